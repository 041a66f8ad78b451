// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxProjectDump.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <memory>
#include <vector>

namespace {

struct DatabaseCloser
{
    void operator()(sqlite3 *database) const { sqlite3_close_v2(database); }
};
struct StatementCloser
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, DatabaseCloser>;
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

Database openForReading(const QByteArray &name, int flags)
{
    sqlite3 *raw = nullptr;
    sqlite3_open_v2(name.constData(), &raw, flags, nullptr);
    sqlite3_busy_timeout(raw, 5000);
    return Database(raw);
}

/// Opens a project so that nothing beside it is made or changed. `folder` is for a copy.
Database openProject(const QString &path, const QTemporaryDir &folder)
{
    const QString log = path + QLatin1String("-wal");
    if (QFileInfo::exists(path + QLatin1String("-shm")))
        return openForReading(QFile::encodeName(path), SQLITE_OPEN_READONLY);
    if (QFileInfo(log).size() > 0) {
        const QString copy = folder.filePath(QStringLiteral("copy"));
        QFile::copy(path, copy);
        QFile::copy(log, copy + QLatin1String("-wal"));
        return openForReading(QFile::encodeName(copy), SQLITE_OPEN_READWRITE);
    }
    const QByteArray uri =
        "file://" + QFile::encodeName(path).toPercentEncoding("/") + "?immutable=1";
    return openForReading(uri, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

Statement prepare(const Database &database, const QByteArray &sql)
{
    sqlite3_stmt *raw = nullptr;
    sqlite3_prepare_v2(database.get(), sql.constData(), -1, &raw, nullptr);
    return Statement(raw);
}

QByteArray bytes(sqlite3_stmt *statement, int column)
{
    const auto *begin = static_cast<const char *>(sqlite3_column_blob(statement, column));
    return QByteArray(begin, sqlite3_column_bytes(statement, column));
}

QByteArray valueText(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return QByteArray::number(qlonglong(sqlite3_column_int64(statement, column)));
    case SQLITE_FLOAT:
        return QByteArray::number(sqlite3_column_double(statement, column), 'g', 17);
    case SQLITE_TEXT:
        return '"' + bytes(statement, column).toPercentEncoding(" /.:,()<>=*'") + '"';
    case SQLITE_BLOB:
        return "x" + bytes(statement, column).toHex();
    default:
        return "null";
    }
}

QByteArray quoted(const QByteArray &name)
{
    return '"' + QByteArray(name).replace("\"", "\"\"") + '"';
}

QByteArray orderByAll(int columns)
{
    QByteArray order;
    for (int column = 1; column <= columns; ++column)
        order += (column > 1 ? ", " : "") + QByteArray::number(column);
    return order;
}

/// All rows of a query, "title: name=value name=value", each on a line.
QByteArray rowsOf(const Database &database, const QByteArray &title, const QByteArray &sql)
{
    const Statement statement = prepare(database, sql);
    QByteArray text;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
        text += title + ':';
        for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
            text += QByteArray(" ") + sqlite3_column_name(statement.get(), column) + '='
                    + valueText(statement.get(), column);
        }
        text += '\n';
    }
    if (code != SQLITE_DONE)
        text += title + ": " + sqlite3_errmsg(database.get()) + '\n';
    return text;
}

std::vector<QByteArray> tablesOf(const Database &database)
{
    const Statement statement =
        prepare(database, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
    std::vector<QByteArray> names;
    while (sqlite3_step(statement.get()) == SQLITE_ROW)
        names.push_back(bytes(statement.get(), 0));
    return names;
}

int columnCount(const Database &database, const QByteArray &table)
{
    return sqlite3_column_count(prepare(database, "SELECT * FROM " + quoted(table)).get());
}

} // namespace

QByteArray dumpProjectFile(const QString &path)
{
    const QTemporaryDir folder;
    const Database database = openProject(path, folder);
    QByteArray text =
        rowsOf(database, "pragma", "PRAGMA application_id")
        + rowsOf(database, "pragma", "PRAGMA user_version")
        + rowsOf(database, "schema",
                 "SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY type, name");
    for (const QByteArray &table : tablesOf(database)) {
        text += rowsOf(database, table,
                       "SELECT * FROM " + quoted(table) + " ORDER BY "
                           + orderByAll(columnCount(database, table)));
    }
    return text;
}
