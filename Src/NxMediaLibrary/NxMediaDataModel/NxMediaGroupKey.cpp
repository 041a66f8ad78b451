// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMediaGroupKey_p.h"

#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include <QCoreApplication>
#include <QDate>
#include <QLocale>

#include <algorithm>
#include <array>

namespace {

constexpr char Context[] = "NxMediaItemGroup";
constexpr QLatin1Char FixedMark('#');
constexpr QLatin1Char DayMark('@');
constexpr QLatin1Char TextMark('=');

struct Title
{
    const char *text;
    bool isTranslated; // The others read the same in every language.
};

// By NxMediaGroupKey::Fixed.
constexpr std::array<Title, NxMediaGroupKey::FixedCount> Titles = {{
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "Video"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "Photo"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "Audio"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "Other"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "Subtitle"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "less than 1min"), true},
    {"1 ~ 5 min", false},
    {"5 ~ 30 min", false},
    {"30 ~ 60 min", false},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "more than 60min"), true},
    {QT_TRANSLATE_NOOP("NxMediaItemGroup", "None"), true},
}};

qint64 numberOf(const QString &key)
{
    return key.midRef(1).toLongLong();
}

bool isNone(const QString &key)
{
    return key == NxMediaGroupKey::ofFixed(NxMediaGroupKey::None);
}

int compareKeys(const QString &a, const QString &b)
{
    if (a.startsWith(TextMark) && b.startsWith(TextMark))
        return NxNaturalOrder::compare(a.mid(1), b.mid(1));
    const qint64 first = numberOf(a);
    const qint64 second = numberOf(b);
    return first < second ? -1 : first > second ? 1 : 0;
}

QString fixedTitle(qint64 group)
{
    if (group < 0 || group >= NxMediaGroupKey::FixedCount)
        return QString();
    return NxMediaGroupKey::translated(QLatin1String(Titles[size_t(group)].text));
}

} // namespace

QString NxMediaGroupKey::ofFixed(Fixed group)
{
    return FixedMark + QString::number(group);
}

QString NxMediaGroupKey::ofDay(qint64 julianDay)
{
    return DayMark + QString::number(julianDay);
}

QString NxMediaGroupKey::ofText(const QString &text)
{
    return TextMark + text;
}

QString NxMediaGroupKey::title(const QString &key)
{
    if (key.startsWith(TextMark))
        return key.mid(1);
    if (key.startsWith(FixedMark))
        return fixedTitle(numberOf(key));
    if (!key.startsWith(DayMark))
        return QString();
    const QDate day = QDate::fromJulianDay(numberOf(key));
    return QLocale::c().toString(day, QStringLiteral("yyyy/MM/dd"));
}

QString NxMediaGroupKey::translated(const QString &title)
{
    const auto known = std::find_if(Titles.begin(), Titles.end(), [&title](const Title &one) {
        return one.isTranslated && title == QLatin1String(one.text);
    });
    return known == Titles.end() ? title : QCoreApplication::translate(Context, known->text);
}

bool NxMediaGroupKey::isBefore(const QString &a, const QString &b, bool descending)
{
    if (isNone(a) || isNone(b))
        return !isNone(a);
    return descending ? compareKeys(b, a) < 0 : compareKeys(a, b) < 0;
}
