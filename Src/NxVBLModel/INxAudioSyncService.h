// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QtGlobal>

/// Aligns clips by their sound. Owned by the engine.
class NXVBLMODEL_EXPORT INxAudioSyncService
{
public:
    virtual ~INxAudioSyncService();

    /// Shortest media that can be aligned, ms.
    [[nodiscard]] virtual qint64 minLength() const = 0;
    /// Longest media that can be aligned, ms.
    [[nodiscard]] virtual qint64 maxLength() const = 0;
};
