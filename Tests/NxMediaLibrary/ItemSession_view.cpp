// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What a view and its presenter do to the model, and events without an item.

#include "ItemSession.h"

#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <array>

using namespace NXMEDIALIBRARY;

namespace {

NxMediaItemViewFilter recordOf(const PlainItemModel::Filter &filter)
{
    NxMediaItemViewFilter record;
    record.similarResourceId = filter.anchor;
    record.keyword = filter.keyword;
    record.type = filter.type;
    record.searchMode = filter.mode;
    record.listView = filter.largeSteps;
    return record;
}

using Observer = INxMediaItemEventObserver;
using Telling = void (*)(Observer *, INxFolderMedia *, INxAbstractMedia *);
constexpr std::array<Telling, 9> Tellings{{
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *item) {
        observer->onBeforeAddItemEvent(folder, item);
        observer->onAfterAddItemEvent(folder, item);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *item) {
        observer->onBeforeRemoveItemEvent(folder, item);
        observer->onAfterRemoveItemEvent(folder, item);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *item) {
        observer->onRenameItemEvent(folder, item);
    },
    [](Observer *observer, INxFolderMedia *, INxAbstractMedia *item) {
        observer->onMediaStateChangedEvent(item);
    },
    [](Observer *observer, INxFolderMedia *, INxAbstractMedia *item) {
        observer->onDownloadFinishedEvent(item, 3, false);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *) {
        observer->onBeforeClearItemsEvent(folder);
        observer->onAfterClearItemsEvent(folder);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *) {
        observer->onAllMediaChangedFinishEvent(folder);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *item) {
        observer->onAfterAddItemEvent(folder, item);
    },
    [](Observer *observer, INxFolderMedia *folder, INxAbstractMedia *item) {
        observer->onAfterMoveItemEvent(folder, nullptr, item);
    },
}};

} // namespace

void ItemSession::finishChanges(const Event &event)
{
    ScriptedItemFolder *folder = someFolder(event.a);
    tell(QStringLiteral("all changes to %1 are over").arg(folder->title));
    m_yard.manager()->observers.tell(
        [&](auto *observer) { observer->onAllMediaChangedFinishEvent(folder); });
}

void ItemSession::tellFetchState(const Event &event)
{
    ScriptedItemFolder *folder = someFolder(event.a);
    const auto state = INxFolderMedia::FolderFetchMoreState(event.b % 5);
    tell(QStringLiteral("fetch-more state %1 of %2").arg(state).arg(folder->title));
    m_yard.manager()->observers.tell(
        [&](auto *observer) { observer->onFetchMoreStateChangedEvent(folder, state); });
}

void ItemSession::tellOfNothing(const Event &event)
{
    const quint32 which = event.a % quint32(Tellings.size());
    INxFolderMedia *folder = event.b % 2 == 0 && which < 5 ? someFolder(event.c) : nullptr;
    tell(QStringLiteral("tell %1 of %2 and no item")
             .arg(which)
             .arg(folder ? folder->name() : QStringLiteral("no folder")));
    m_yard.manager()->observers.tell(
        [&](auto *observer) { Tellings[which](observer, folder, nullptr); });
}

void ItemSession::tellLimit(const Event &)
{
    tell(QStringLiteral("no more downloads today"));
    m_yard.manager()->observers.tell([](auto *observer) { observer->onVCGDownloadLimit(); });
}

void ItemSession::loadBoth(ScriptedItemFolder *folder)
{
    tell(QStringLiteral("show ") + (folder ? folder->title : QStringLiteral("no folder")));
    m_plain.load(folder);
    m_model.load(folder);
}

void ItemSession::load(const Event &event)
{
    if (event.a % 30 == 0)
        loadBoth(nullptr);
    else
        loadBoth(event.a % 3 == 0 ? m_yard.folder(0)
                                  : m_yard.folder(event.b)); // Most is in the first.
}

void ItemSession::clearModel(const Event &)
{
    tell(QStringLiteral("clear the view"));
    m_plain.clear();
    m_model.clear();
}

void ItemSession::applyFilter(const PlainItemModel::Filter &filter)
{
    tell(QStringLiteral("filter: type %1, keyword \"%2\", mode %3, anchor %4, large steps %5")
             .arg(filter.type)
             .arg(filter.keyword)
             .arg(filter.mode)
             .arg(filter.anchor)
             .arg(filter.largeSteps));
    m_filter = filter;
    m_plain.setFilter(filter);
    m_model.setFilter(recordOf(filter));
}

void ItemSession::setFilter(const Event &event)
{
    static const std::array<QString, 3> keywords{QStringLiteral("CLIP"), QStringLiteral("2"),
                                                 QStringLiteral("\u00c9T\u00c9")};
    PlainItemModel::Filter filter = m_filter;
    filter.type = event.a % 4 == 0 ? int(event.b % 11) : 0;
    filter.keyword = event.c % 4 == 0 ? keywords[event.c / 4 % keywords.size()] : QString();
    filter.mode = event.d % 2 == 0 ? 0 : 4;
    applyFilter(filter);
}

void ItemSession::searchSimilar(const Event &event)
{
    PlainItemModel::Filter filter = m_filter;
    filter.mode = event.a % 5 == 0 ? 0 : 5;
    filter.anchor = int(event.b % 3);
    filter.largeSteps = event.c % 3 == 0;
    applyFilter(filter);
}

void ItemSession::setSortBy(const Event &event)
{
    constexpr int unknownKey = 40;
    const int key = event.a % 20 == 19 ? unknownKey : int(event.a % 20);
    const int order = event.b % 5 == 4 ? 7 : int(event.b % 2);
    tell(QStringLiteral("sort by %1, order %2").arg(key).arg(order));
    m_plain.setSortBy(key, order != 0);
    m_model.setSortBy({NxMediaItemViewSortBy(key), NxMediaItemViewSortOrder(order)});
}

void ItemSession::setSortEnable(const Event &event)
{
    const bool enable = event.a % 4 != 0;
    tell(QStringLiteral("sorting is %1").arg(enable));
    m_plain.setSortEnable(enable);
    m_model.setSortEnable(enable);
}

void ItemSession::setGroupBy(const Event &event)
{
    const int key = int(event.a % 6);
    const int order = event.b % 5 == 4 ? 7 : int(event.b % 2);
    tell(QStringLiteral("group by %1, order %2").arg(key).arg(order));
    m_plain.setGroupBy(key, order != 0);
    m_model.setGroupBy({NxMediaItemViewGroupBy(key), NxMediaItemViewSortOrder(order), nullptr});
}

void ItemSession::toggleHeader(const Event &event)
{
    const QVector<Row> rows = m_plain.rows();
    QVector<int> headers;
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).type == PlainItemModel::HeaderRow)
            headers.append(row);
    }
    if (headers.isEmpty())
        return;
    const int row = headers.at(int(event.a) % headers.size());
    const bool isTwice = event.b % 8 == 0;
    const bool expand = rows.at(row).expanded == isTwice;
    tell(QStringLiteral("%1 row %2")
             .arg(expand ? QStringLiteral("unfold") : QStringLiteral("fold"))
             .arg(row));
    if (expand && rows.size() > 2 * m_size.most)
        return;
    m_plain.expandStateToggle(row, expand);
    m_model.expandStateToggle(row, expand);
}

void ItemSession::toggleRow(const Event &event)
{
    const int row = int(event.a) % (m_model.rowCount() + 4) - 2;
    const bool expand = event.b % 4 == 0;
    tell(QStringLiteral("toggle row %1 to %2").arg(row).arg(expand));
    m_plain.expandStateToggle(row, expand);
    m_model.expandStateToggle(row, expand);
}

void ItemSession::viewMore(const Event &event)
{
    const bool isLarge = event.a % 2 == 0;
    tell(QStringLiteral("view more, large %1").arg(isLarge));
    m_plain.viewMoreSimilarPackItem(isLarge);
    m_model.viewMoreSimilarPackItem(isLarge);
}

void ItemSession::updateSimilar(const Event &)
{
    tell(QStringLiteral("update what is similar"));
    m_plain.updateSimilarMediaItems();
    m_model.updateSimilarMediaItems();
}

void ItemSession::setItemCountPerLine(const Event &event)
{
    const int count = int(event.a % 4);
    const bool rescale = event.b % 2 == 0;
    tell(QStringLiteral("%1 in a line, rescale %2").arg(count).arg(rescale));
    m_plain.setItemCountPerLine(count, rescale);
    m_model.setItemCountPerLine(count, rescale);
}

void ItemSession::setFetchMoreEnable(const Event &event)
{
    m_fetchMoreEnable = event.a % 2 == 0;
    tell(QStringLiteral("fetching more is %1").arg(m_fetchMoreEnable));
    m_model.setFetchMoreEnable(m_fetchMoreEnable);
}

void ItemSession::changeLanguage(const Event &)
{
    tell(QStringLiteral("the language changes"));
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&m_model, &change);
    m_model.updateGroupByItemText();
}

/// Long after the last event.
void ItemSession::idle(const Event &)
{
    tell(QStringLiteral("a long time passes"));
    const QList<QTimer *> timers = m_model.findChildren<QTimer *>();
    for (QTimer *timer : timers) {
        if (!QMetaObject::invokeMethod(timer, "timeout"))
            m_fault = QStringLiteral("time cannot pass");
    }
}
