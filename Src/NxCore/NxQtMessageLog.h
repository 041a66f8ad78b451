// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QtGlobal>

/// Sends what Qt and its logging categories say to the global log while this object lives.
///
/// Debug and info messages become info lines; warnings and worse become error lines. The host
/// makes one on the stack of main(). The handler that was there before comes back at the end.
class NXCORE_EXPORT NxQtMessageLog
{
public:
    NxQtMessageLog();
    ~NxQtMessageLog();

private:
    Q_DISABLE_COPY_MOVE(NxQtMessageLog)

    const QtMessageHandler m_previous;
};
