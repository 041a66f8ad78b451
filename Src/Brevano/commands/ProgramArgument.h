// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QVector>

/// One word of the command line.
///
/// A file name may be any bytes, a text may not: what cannot be told as a text keeps only a form
/// that people can read, and is no name of a file any more.
struct ProgramArgument
{
    QString text; ///< With the bytes that are no UTF-8 shown as \xNN when there are any.
    bool isText = true; ///< False: `text` is for display only.
};

using ProgramArguments = QVector<ProgramArgument>;
