// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

class INxMediaEngine;

/// Installs an engine for as long as the door lives. Owns nothing.
///
/// One engine serves the process at a time: a second door is refused with a log line and stays
/// without effect. Hosts keep one beside their QApplication, tests one in each fixture.
class NXVBLMODEL_EXPORT NxMediaEngineDoor
{
public:
    explicit NxMediaEngineDoor(INxMediaEngine *engine);
    ~NxMediaEngineDoor();
    NxMediaEngineDoor(const NxMediaEngineDoor &) = delete;
    NxMediaEngineDoor &operator=(const NxMediaEngineDoor &) = delete;

    /// False when the engine was null or another one stood installed.
    [[nodiscard]] bool isInstalled() const { return m_installed; }

    /// The installed engine; null when there is none.
    [[nodiscard]] static INxMediaEngine *engine();

private:
    const bool m_installed;
};
