// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/JsonLine.h>

#include <NxCore/NxText.h>

#include <QByteArrayList>

namespace {

QByteArray escapedControl(uchar byte)
{
    switch (byte) {
    case '\n':
        return QByteArrayLiteral("\\n");
    case '\r':
        return QByteArrayLiteral("\\r");
    case '\t':
        return QByteArrayLiteral("\\t");
    default:
        return QByteArrayLiteral("\\u00") + QByteArray::number(byte, 16).rightJustified(2, '0');
    }
}

QByteArray quoted(const QString &text)
{
    constexpr uchar firstPrintable = 0x20;
    const QByteArray bytes = text.toUtf8();
    QByteArray result;
    result.reserve(bytes.size() + 2);
    result += '"';
    for (const char byte : bytes) {
        if (uchar(byte) < firstPrintable) {
            result += escapedControl(uchar(byte));
            continue;
        }
        if (byte == '"' || byte == '\\')
            result += '\\';
        result += byte;
    }
    result += '"';
    return result;
}

} // namespace

void JsonLine::addRaw(const char *key, const QByteArray &value)
{
    if (!m_members.isEmpty())
        m_members += ',';
    m_members += '"';
    m_members += key;
    m_members += "\":";
    m_members += value;
}

void JsonLine::addText(const char *key, const QString &value)
{
    addRaw(key, quoted(value));
}

void JsonLine::addTexts(const char *key, const QStringList &values)
{
    QByteArrayList texts;
    for (const QString &value : values)
        texts.append(quoted(value));
    addRaw(key, '[' + texts.join(',') + ']');
}

void JsonLine::addNumber(const char *key, qint64 value)
{
    addRaw(key, QByteArray::number(value));
}

void JsonLine::addBool(const char *key, bool value)
{
    addRaw(key, value ? QByteArrayLiteral("true") : QByteArrayLiteral("false"));
}

void JsonLine::addNull(const char *key)
{
    addRaw(key, QByteArrayLiteral("null"));
}

void JsonLine::addObject(const char *key, const JsonLine &value)
{
    addRaw(key, value.text());
}

void JsonLine::addTextOrNull(const char *key, const QString &value)
{
    if (value.isEmpty())
        addNull(key);
    else
        addText(key, value);
}

void JsonLine::addNumberOrNull(const char *key, qint64 value, bool isKnown)
{
    if (isKnown)
        addNumber(key, value);
    else
        addNull(key);
}

void JsonLine::addTimeOrNull(const char *key, const QDateTime &value)
{
    addTextOrNull(key, value.isValid() ? NxText::isoUtc(value.toMSecsSinceEpoch()) : QString());
}

QByteArray JsonLine::text() const
{
    return '{' + m_members + '}';
}
