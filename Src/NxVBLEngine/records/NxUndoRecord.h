// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxChange.h>

/// One undo step: everything that one operation of the user changed, in order.
struct NxUndoRecord
{
    qint64 serial = 0; ///< Ascending, never used twice in a project.
    QString function; ///< Where it was begun, for the log.
    QString action; ///< Its name for the user and for scripts.
    QVector<NxChange> changes;
};
