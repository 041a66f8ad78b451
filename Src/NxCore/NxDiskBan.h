// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QStringList>

/// Finds out whether a thread that must never wait reaches for a disk, a database or another
/// process.
///
/// While one lives on a thread, every call there of a function that may wait is noted, and
/// written to the log as an error. Tests hold one on the GUI thread while they move the mouse; a
/// host may hold one in its event loop while it is being developed. Bans of one thread nest: the
/// innermost notes.
class NXCORE_EXPORT NxDiskBan
{
    Q_DISABLE_COPY_MOVE(NxDiskBan)
public:
    NxDiskBan();
    /// On the thread that it was made on.
    ~NxDiskBan();

    /// The functions that were called nevertheless, in their order.
    [[nodiscard]] QStringList breaches() const { return m_breaches; }

    /// Stands in every function that may wait: `function` names it. Without a ban on the calling
    /// thread it costs a look at one variable. From any thread.
    static void note(const char *function);

private:
    NxDiskBan *const m_outer;
    QStringList m_breaches;
};
