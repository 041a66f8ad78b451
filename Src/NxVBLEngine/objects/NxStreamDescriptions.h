// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxStreamDescription.h>

#include <QByteArray>

#include <unordered_map>

/// Keeps one description for all files that have the same. What was asked for stays where it is
/// until the pool dies: media point to it.
class NXVBLENGINE_TEST_EXPORT NxStreamDescriptions
{
public:
    /// The description of such files. Never null.
    [[nodiscard]] const NxStreamDescription *of(const NxFootageStreams &streams);
    /// How many different ones there are.
    [[nodiscard]] size_t count() const { return m_descriptions.size(); }

private:
    std::unordered_map<QByteArray, NxStreamDescription> m_descriptions; // By their packed form.
};
