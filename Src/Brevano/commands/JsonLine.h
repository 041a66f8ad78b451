// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

/// One JSON object on one line of UTF-8, with its keys in the order in which they were added.
///
/// Keys are added once each and are plain ASCII.
class JsonLine
{
public:
    void addText(const char *key, const QString &value);
    /// An array of texts.
    void addTexts(const char *key, const QStringList &values);
    void addNumber(const char *key, qint64 value);
    void addBool(const char *key, bool value);
    void addNull(const char *key);
    void addObject(const char *key, const JsonLine &value);

    /// The empty text is null.
    void addTextOrNull(const char *key, const QString &value);
    /// What is not known is null.
    void addNumberOrNull(const char *key, qint64 value, bool isKnown);
    /// ISO 8601 in UTC; null when the time is not valid.
    void addTimeOrNull(const char *key, const QDateTime &value);

    /// The whole object, without a line end.
    [[nodiscard]] QByteArray text() const;

private:
    void addRaw(const char *key, const QByteArray &value);

    QByteArray m_members;
};
