// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// Why a path was not plainly added.
enum class NxImportVerdict {
    AlreadyThere, ///< The project holds the same file.
    CopyOf, ///< Added, but another media has the same contents.
    Refused, ///< Not a file that can be imported.
    Unreadable, ///< It cannot be opened.
    Cancelled, ///< The import was stopped before it.
};

/// One path that was not plainly added.
struct NxImportReportLine
{
    QString path; ///< As given; bytes that are no UTF-8 are shown escaped.
    NxImportVerdict verdict = NxImportVerdict::Refused;
    QString reason; ///< A sentence for the user.
    QString folder; ///< Path of the folder it was meant for, "/" between the names.
};

/// What an import came to.
struct NxImportReport
{
    QVector<NxImportReportLine> lines; ///< In the order the paths were met.
    qint64 found = 0; ///< Files looked at, those passed over left out.
    qint64 added = 0;
    qint64 alreadyThere = 0;
    qint64 refused = 0;
    qint64 unreadable = 0;
    qint64 cancelled = 0;
    qint64 passedOverHidden = 0; ///< Hidden files and folders met inside folders.
    qint64 passedOverOther = 0; ///< Files inside folders whose suffix is not importable.
    qint64 passedOverTwice = 0; ///< Files and folders reached a second time.
    qint64 foldersAdded = 0;
};

Q_DECLARE_METATYPE(NxImportReport)
