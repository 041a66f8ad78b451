// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainNaturalOrder.h"

namespace PlainNaturalOrder {

namespace {

int sign(qint64 number)
{
    return number < 0 ? -1 : number > 0 ? 1 : 0;
}

bool combines(uint code)
{
    const bool mark = QChar::category(code) == QChar::Mark_NonSpacing
                      || QChar::category(code) == QChar::Mark_SpacingCombining
                      || QChar::category(code) == QChar::Mark_Enclosing;
    return mark
           && (QChar::combiningClass(code) > 0 || QChar::script(code) == QChar::Script_Inherited);
}

bool isSpelled(uint code)
{
    const QChar::Category category = QChar::category(code);
    return (category >= QChar::Mark_NonSpacing && category <= QChar::Mark_Enclosing)
           || category == QChar::Number_Letter
           || (category >= QChar::Letter_Uppercase && category <= QChar::Letter_Other);
}

QVector<uint> spelled(uint code)
{
    if (QChar::isSurrogate(code) || !isSpelled(code))
        return {code};
    QVector<uint> letters;
    const QString text = QString::fromUcs4(&code, 1);
    for (const uint part : text.normalized(QString::NormalizationForm_KD).toUcs4()) {
        QString letter = QString::fromUcs4(&part, 1);
        if (!combines(part))
            letter = letter.toCaseFolded();
        letter.replace(QChar(0xDF), QStringLiteral("ss"));
        letter.replace(QChar(0xE6), QStringLiteral("ae"));
        letter.replace(QChar(0x153), QStringLiteral("oe"));
        letter.replace(QChar(0xFE), QStringLiteral("th"));
        const QString stroked = QString::fromUtf16(u"\u00F8o\u0142l\u0111d\u0127h");
        const int stroke = stroked.indexOf(letter);
        if (stroke >= 0 && stroke % 2 == 0 && letter.size() == 1)
            letters += {stroked.at(stroke + 1).unicode(), 0x335};
        else
            letters += letter.toUcs4();
    }
    return letters;
}

int scriptRank(uint code)
{
    const QVector<QChar::Script> scripts{QChar::Script_Latin, QChar::Script_Greek,
                                         QChar::Script_Cyrillic, QChar::Script_Hebrew,
                                         QChar::Script_Arabic};
    const int rank = scripts.indexOf(QChar::script(code));
    return rank < 0 ? scripts.size() : rank;
}

int symbolRank(uint code)
{
    const QString ranked = QStringLiteral(" \t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~+<=>");
    const int rank = code < 0x80 ? ranked.indexOf(QChar(code)) : -1;
    if (rank >= 0)
        return rank;
    return ranked.size() + (QChar::isSurrogate(code) ? 1 : 0);
}

Element elementOf(uint code)
{
    Element element;
    element.code = code;
    element.elementClass = isSpelled(code) ? Class::Letter : Class::Symbol;
    element.rank = isSpelled(code) ? scriptRank(code) : symbolRank(code);
    return element;
}

bool isMinor(uint code)
{
    return code == '-' || code == '\''
           || (QChar::category(code) == QChar::Other_Control && (code < 9 || code > 13));
}

uint minorWeight(uint code)
{
    return code == '-' ? 100002 : code == '\'' ? 100001 : code;
}

int widthOf(uint code)
{
    const QChar::Decomposition tag = QChar::decompositionTag(code);
    return tag == QChar::Wide ? 2 : tag == QChar::Narrow ? 1 : 0;
}

void readOne(uint code, int width, bool &inNumber, Name &name)
{
    if (QChar::category(code) == QChar::Number_DecimalDigit) {
        if (!inNumber) {
            name.elements.append(Element());
            name.elements.last().elementClass = Class::Number;
        }
        name.elements.last().digits += QString::number(QChar::digitValue(code));
        name.elements.last().width = qMax(name.elements.last().width, width);
        inNumber = true;
        return;
    }
    inNumber = false;
    if (isMinor(code)) {
        name.minors.append({name.elements.size(), minorWeight(code)});
    } else if (combines(code)) {
        (name.elements.isEmpty() ? name.leadingMarks : name.elements.last().marks).append(code);
    } else {
        name.elements.append(elementOf(code));
        name.elements.last().width = width;
    }
}

int compareNumbers(const QString &a, const QString &b)
{
    int zerosA = 0;
    int zerosB = 0;
    while (zerosA < a.size() && a.at(zerosA) == QLatin1Char('0'))
        ++zerosA;
    while (zerosB < b.size() && b.at(zerosB) == QLatin1Char('0'))
        ++zerosB;
    const QString valueA = a.mid(zerosA);
    const QString valueB = b.mid(zerosB);
    if (valueA.size() != valueB.size())
        return sign(valueA.size() - valueB.size());
    if (valueA != valueB)
        return valueA < valueB ? -1 : 1;
    return sign(zerosB - zerosA);
}

int compareElements(const Element &a, const Element &b)
{
    if (a.elementClass != b.elementClass)
        return a.elementClass < b.elementClass ? -1 : 1;
    if (a.elementClass == Class::Number)
        return compareNumbers(a.digits, b.digits);
    if (a.rank != b.rank)
        return sign(a.rank - b.rank);
    return sign(qint64(a.code) - qint64(b.code));
}

int compareMarks(const QVector<uint> &a, const QVector<uint> &b)
{
    for (int i = 0; i < qMin(a.size(), b.size()); ++i) {
        if (a.at(i) != b.at(i))
            return a.at(i) < b.at(i) ? -1 : 1;
    }
    return sign(a.size() - b.size());
}

int compareMinors(const QVector<QPair<int, uint>> &a, const QVector<QPair<int, uint>> &b)
{
    for (int i = 0; i < qMin(a.size(), b.size()); ++i) {
        if (a.at(i).first != b.at(i).first)
            return a.at(i).first > b.at(i).first ? -1 : 1;
        if (a.at(i).second != b.at(i).second)
            return a.at(i).second < b.at(i).second ? -1 : 1;
    }
    return sign(a.size() - b.size());
}

} // namespace

Name read(const QString &text)
{
    Name name;
    bool inNumber = false;
    for (int i = 0; i < text.size(); ++i) {
        uint code = text.at(i).unicode();
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            code = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
        i += code > 0xFFFF ? 1 : 0;
        for (const uint part : spelled(code))
            readOne(part, widthOf(code), inNumber, name);
    }
    return name;
}

int compareNames(const Name &a, const Name &b)
{
    const int common = qMin(a.elements.size(), b.elements.size());
    for (int i = 0; i < common; ++i) {
        if (const int order = compareElements(a.elements.at(i), b.elements.at(i)))
            return order;
    }
    if (a.elements.size() != b.elements.size())
        return sign(a.elements.size() - b.elements.size());
    if (const int order = compareMarks(a.leadingMarks, b.leadingMarks))
        return order;
    for (int i = 0; i < common; ++i) {
        if (const int order = compareMarks(a.elements.at(i).marks, b.elements.at(i).marks))
            return order;
    }
    for (int i = 0; i < common; ++i) {
        if (a.elements.at(i).width != b.elements.at(i).width)
            return sign(a.elements.at(i).width - b.elements.at(i).width);
    }
    return compareMinors(a.minors, b.minors);
}

int compare(const QString &a, const QString &b)
{
    return compareNames(read(a), read(b));
}

} // namespace PlainNaturalOrder
