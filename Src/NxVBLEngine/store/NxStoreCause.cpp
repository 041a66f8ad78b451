// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxStoreCause.h>

#include <QCoreApplication>

#include <sqlite3.h>

#include <cerrno>

namespace {

struct CodeText
{
    int code;
    const char *text;
};

constexpr CodeText SqliteTexts[] = {
    {SQLITE_FULL, QT_TRANSLATE_NOOP("NxProjectStore", "the disk is full")},
    {SQLITE_PERM, QT_TRANSLATE_NOOP("NxProjectStore", "permission denied")},
    {SQLITE_AUTH, QT_TRANSLATE_NOOP("NxProjectStore", "permission denied")},
    {SQLITE_READONLY, QT_TRANSLATE_NOOP("NxProjectStore", "it is write-protected")},
    {SQLITE_CORRUPT, QT_TRANSLATE_NOOP("NxProjectStore", "it is damaged")},
    {SQLITE_NOTADB, QT_TRANSLATE_NOOP("NxProjectStore", "it is not a Brevano project")},
    {SQLITE_BUSY, QT_TRANSLATE_NOOP("NxProjectStore", "another program holds it")},
    {SQLITE_NOMEM, QT_TRANSLATE_NOOP("NxProjectStore", "there is not enough memory")},
    {SQLITE_TOOBIG, QT_TRANSLATE_NOOP("NxProjectStore", "a text is too long for it")},
};

constexpr CodeText SystemTexts[] = {
    {ENOSPC, QT_TRANSLATE_NOOP("NxProjectStore", "the disk is full")},
#ifdef EDQUOT
    {EDQUOT, QT_TRANSLATE_NOOP("NxProjectStore", "the disk quota is used up")},
#endif
    {EACCES, QT_TRANSLATE_NOOP("NxProjectStore", "permission denied")},
    {EPERM, QT_TRANSLATE_NOOP("NxProjectStore", "permission denied")},
    {EROFS, QT_TRANSLATE_NOOP("NxProjectStore", "its drive is write-protected")},
    {EIO, QT_TRANSLATE_NOOP("NxProjectStore", "the drive reports an error")},
    {ENOENT, QT_TRANSLATE_NOOP("NxProjectStore", "there is no such file")},
    {ENODEV, QT_TRANSLATE_NOOP("NxProjectStore", "its drive is gone")},
};

constexpr const char *DeedTexts[] = {
    QT_TRANSLATE_NOOP("NxProjectStore", "cannot be opened: %1"),
    QT_TRANSLATE_NOOP("NxProjectStore", "cannot be read: %1"),
    QT_TRANSLATE_NOOP("NxProjectStore", "cannot be written: %1"),
    QT_TRANSLATE_NOOP("NxProjectStore", "cannot be written as a copy: %1"),
    QT_TRANSLATE_NOOP("NxProjectStore", "cannot be removed: %1"),
};

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

template<size_t count>
const char *textOf(const CodeText (&texts)[count], int code)
{
    for (const CodeText &text : texts) {
        if (text.code == code)
            return text.text;
    }
    return nullptr;
}

int primary(int code)
{
    return code & 0xFF;
}

} // namespace

QString NxStoreCause::ofSqlite(int code, int systemError)
{
    const bool systemKnows = primary(code) == SQLITE_IOERR || primary(code) == SQLITE_CANTOPEN;
    if (systemKnows && systemError != 0)
        return ofSystem(systemError);
    if (const char *text = textOf(SqliteTexts, primary(code)))
        return translated(text);
    return QString::fromUtf8(sqlite3_errstr(code));
}

QString NxStoreCause::ofSystem(int systemError)
{
    if (const char *text = textOf(SystemTexts, systemError))
        return translated(text);
    return qt_error_string(systemError);
}

NxError NxStoreCause::error(const QString &path, NxStoreDeed deed, const QString &cause)
{
    return error(path, translated(DeedTexts[int(deed)]).arg(cause));
}

NxError NxStoreCause::error(const QString &path, const QString &sentence)
{
    return {QStringLiteral("%1: %2").arg(path, sentence)};
}

bool NxStoreCause::isDamage(int code)
{
    return primary(code) == SQLITE_CORRUPT || primary(code) == SQLITE_NOTADB
           || primary(code) == SQLITE_IOERR;
}
