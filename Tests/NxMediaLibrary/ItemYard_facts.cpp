// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What is told of items: few values, so that many are equal.

#include "ItemYard.h"

#include <array>

using namespace NXVBLMODEL;

namespace {

template<typename Value, size_t Count>
const Value &choose(const std::array<Value, Count> &values, quint32 number)
{
    return values[number % Count];
}

QString someText(quint32 number)
{
    static const std::array<QString, 5> texts{QString(), QStringLiteral("Cam 2"),
                                              QStringLiteral("Cam 10"), QStringLiteral("None"),
                                              QStringLiteral("Cam 2")};
    return choose(texts, number);
}

NxMediaType someType(quint32 number)
{
    constexpr std::array<NxMediaType, 16> types{
        mtVideo,           mtVideoAudio, mtAudio,      mtImage, mtSubtitle, mtTitle,
        mtProjectTemplate, mtVideo,      mtVideoAudio, mtAudio, mtImage,    mtTransition,
        mtVideo,           mtElement,    mtSubtitle,   mtFolder};
    return choose(types, number);
}

qint64 someFrames(quint32 number)
{
    constexpr std::array<qint64, 8> frames{0, 1499, 1500, 1500, 7499, 7500, 45000, 90000};
    return choose(frames, number);
}

int someStreams(quint32 number)
{
    constexpr std::array<int, 5> streams{sfNone, sfVideo, sfVideo | sfAudio, sfImage, sfAudio};
    return choose(streams, number);
}

using Change = void (*)(ScriptedItem &item, quint32 value);

constexpr std::array<Change, ItemYard::FactCount> Changes = {{
    [](ScriptedItem &item, quint32 value) { item.title = ItemYard::someName(value); },
    [](ScriptedItem &item, quint32 value) { item.type = someType(value); },
    [](ScriptedItem &item, quint32 value) { item.licence = int(value % 4) - 1; },
    [](ScriptedItem &item, quint32 value) { item.resource = value % 4 == 0; },
    [](ScriptedItem &item, quint32 value) { item.hasInfo = value % 6 != 0; },
    [](ScriptedItem &item, quint32 value) { item.info.flags = someStreams(value); },
    [](ScriptedItem &item, quint32 value) { item.info.frames = someFrames(value); },
    [](ScriptedItem &item, quint32 value) {
        item.info.rate = {int(value % 3) * 25, 1};
    },
    [](ScriptedItem &item, quint32 value) { item.frames = someFrames(value); },
    [](ScriptedItem &item, quint32 value) {
        item.rate = {25, int(value % 3)};
    },
    [](ScriptedItem &item, quint32 value) {
        item.info.video.frameSize = QSize(int(value % 3) * 1920, int(value % 2) * 1080);
    },
    [](ScriptedItem &item, quint32 value) { item.created = ItemYard::someDate(value); },
    [](ScriptedItem &item, quint32 value) { item.modified = ItemYard::someDate(value); },
    [](ScriptedItem &item, quint32 value) { item.flaggedNew = value % 3 == 0; },
    [](ScriptedItem &item, quint32 value) { item.used = int(value % 3); },
    [](ScriptedItem &item, quint32 value) { item.in = int(value % 3); },
    [](ScriptedItem &item, quint32 value) { item.out = int(value % 3); },
    [](ScriptedItem &item, quint32 value) { item.downloaded = ItemYard::someDate(value); },
    [](ScriptedItem &item, quint32 value) { item.audio = someText(value); },
    [](ScriptedItem &item, quint32 value) { item.category = someText(value); },
    [](ScriptedItem &item, quint32 value) { item.camera = someText(value); },
    [](ScriptedItem &item, quint32 value) { item.place = int(value % 4); },
    [](ScriptedItem &item, quint32 value) { item.sold = int(value % 3); },
    [](ScriptedItem &item, quint32 value) { item.favoured = ItemYard::someDate(value); },
}};

// By sort key and by group key: the fact that decides.
constexpr std::array<quint32, 18> FactOfSort{0,  0,  6,  11, 14, 7,  15, 16, 13,
                                             23, 17, 10, 18, 1,  12, 19, 21, 22};
constexpr std::array<quint32, 6> FactOfGroup{0, 5, 11, 6, 20, 19};

} // namespace

void ItemYard::change(ScriptedItem *item, quint32 fact, quint32 value)
{
    choose(Changes, fact)(*item, value);
}

quint32 ItemYard::factOfSort(int key)
{
    return choose(FactOfSort, quint32(key));
}

quint32 ItemYard::factOfGroup(int key)
{
    return choose(FactOfGroup, quint32(key));
}

QString ItemYard::someName(quint32 number)
{
    static const std::array<QString, 9> names{QStringLiteral("clip 2"),
                                              QStringLiteral("Clip 2"),
                                              QStringLiteral("clip 10"),
                                              QStringLiteral("b"),
                                              QStringLiteral("B"),
                                              QStringLiteral("clip"),
                                              QStringLiteral("a-1"),
                                              QString(),
                                              QStringLiteral("\u00e9t\u00e9 2")};
    return choose(names, number);
}

QDateTime ItemYard::someDate(quint32 number)
{
    const QDateTime first(QDate(2024, 3, 30), QTime(22, 30), Qt::UTC);
    return number % 5 == 0 ? QDateTime() : first.addSecs(int(number % 5) * 3600 * 9);
}
