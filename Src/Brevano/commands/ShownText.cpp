// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ShownText.h>

#include <QLocale>

#include <algorithm>
#include <iterator>

namespace {

struct Range
{
    uint first;
    uint last;
};

/// Blocks of characters that are two columns wide.
constexpr Range wideRanges[] = {
    {0x1100, 0x115F},   {0x2E80, 0xA4CF},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F},
    {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};

bool isWide(uint character)
{
    return std::any_of(std::begin(wideRanges), std::end(wideRanges),
                       [character](const Range &range) {
                           return character >= range.first && character <= range.last;
                       });
}

bool takesNoColumn(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing
           || category == QChar::Other_Format;
}

bool breaksTheLine(QChar character)
{
    return character.category() == QChar::Other_Control
           || character.category() == QChar::Separator_Line
           || character.category() == QChar::Separator_Paragraph
           || character.category() == QChar::Other_Format;
}

QString escaped(QChar character)
{
    if (character == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (character == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    const ushort code = character.unicode();
    if (code <= 0xFF)
        return QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
    return QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
}

/// Joins the parts of one emoji.
constexpr QChar zeroWidthJoiner(0x200D);

} // namespace

QString ShownText::oneLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        if (breaksTheLine(character) && character != zeroWidthJoiner)
            line += escaped(character);
        else
            line += character;
    }
    return line;
}

int ShownText::columns(const QString &text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        if (!takesNoColumn(character))
            width += isWide(character) ? 2 : 1;
    }
    return width;
}

QString ShownText::size(qint64 bytes)
{
    constexpr int digits = 1;
    return QLocale::c().formattedDataSize(bytes, digits, QLocale::DataSizeIecFormat);
}

QString ShownText::count(qint64 number, const char *one, const char *many)
{
    const char *noun = number == 1 ? one : many;
    return QStringLiteral("%1 %2").arg(number).arg(QLatin1String(noun));
}
