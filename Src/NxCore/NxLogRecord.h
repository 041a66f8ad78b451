// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// How serious a log line is.
enum class NxLogLevel {
    Info, ///< Worth knowing when something is looked into later.
    Error, ///< Something the user asked for did not happen.
};

/// One line of the log.
struct NxLogRecord
{
    NxLogLevel level = NxLogLevel::Info;
    QByteArray file; ///< Source file name without folders.
    QByteArray function; ///< "Class::method".
    int line = 0;
    QString text;
};
