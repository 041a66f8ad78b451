// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxMediaRecord.h>

/// What a project keeps of a library resource that the user changed.
struct NxResourceRecord
{
    qint64 id = 0; ///< The resource's id, the same in every project.
    QString name; ///< Empty: the resource's own name.
    qint64 favourite = NxNoTime; ///< ms UTC; NxNoTime: no favourite.
};
