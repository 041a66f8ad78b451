// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What the model shows and tells, beside what the plain one does.

#include "ItemSession.h"

#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <algorithm>
#include <array>
#include <utility>

using Plain = PlainItemModel;

namespace {

const char *nameOf(Plain::Signal signal)
{
    constexpr std::array<const char *, 9> names{
        "about to reset",    "reset",           "data changed",     "remove",        "added",
        "download finished", "download failed", "fetch-more state", "download limit"};
    return names[size_t(signal)];
}

bool isTile(const INxAbstractMedia *media)
{
    const NXVBLMODEL::NxMediaType type = media->mediaType();
    return type == NXVBLMODEL::mtImportTile || type == NXVBLMODEL::mtViewMoreTile;
}

template<typename Entry, typename Text>
QString sideBySide(const QVector<Entry> &wanted, const QVector<Entry> &got, const Text &text)
{
    QString lines;
    for (int i = 0; i < qMax(wanted.size(), got.size()); ++i) {
        const QString want = i < wanted.size() ? text(wanted.at(i)) : QStringLiteral("-");
        const QString have = i < got.size() ? text(got.at(i)) : QStringLiteral("-");
        lines += QStringLiteral("\n  %1 %2  %3  |  %4")
                     .arg(want == have ? QLatin1Char(' ') : QLatin1Char('!'))
                     .arg(i, 3)
                     .arg(want, -50)
                     .arg(have);
    }
    return lines;
}

} // namespace

void ItemSession::hear(Plain::Signal signal, int number, const void *folder, const void *media)
{
    m_heard.append({signal, number, folder, media});
}

void ItemSession::listen()
{
    using Model = NxMediaItemModel;
    Model *model = &m_model;
    QObject::connect(model, &Model::modelAboutToBeReset, model,
                     [this] { hear(Plain::AboutToReset); });
    QObject::connect(model, &Model::modelReset, model,
                     [this] { hear(Plain::Reset, m_model.rowCount()); });
    QObject::connect(
        model, &Model::dataChanged, model,
        [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
            if (first != last || first.column() != 0 || !roles.isEmpty())
                m_fault = QStringLiteral("more than a row's first column changed");
            hear(Plain::DataChanged, first.row(), nullptr, mediaAt(first));
        });
    QObject::connect(model, &Model::sigRemoveItem, model,
                     [this](const QModelIndex &parent, int first, int last) {
                         if (parent.isValid() || first != last)
                             m_fault = QStringLiteral("a removal of more than a row");
                         hear(Plain::RemoveItem, first);
                     });
    QObject::connect(model, &Model::sigAfterAddItem, model,
                     [this](INxFolderMedia *folder, INxAbstractMedia *item) {
                         hear(Plain::AfterAddItem, 0, folder, item);
                     });
    QObject::connect(model, &Model::sigDownloadFinished, model, [this](INxAbstractMedia *item) {
        hear(Plain::DownloadFinished, 0, nullptr, item);
    });
    QObject::connect(model, &Model::sigDownloadFailed, model, [this](INxAbstractMedia *item) {
        hear(Plain::DownloadFailed, 0, nullptr, item);
    });
    QObject::connect(model, &Model::sigFetchMoreStateChanged, model,
                     [this](INxFolderMedia::FolderFetchMoreState state) {
                         hear(Plain::FetchMoreStateChanged, state);
                     });
    QObject::connect(model, &Model::siVCGDownloadLimit, model,
                     [this] { hear(Plain::DownloadLimit); });
}

ItemSession::Row ItemSession::headerRow(INxAbstractMedia *header) const
{
    Row row;
    row.type = Plain::HeaderRow;
    const auto *group = dynamic_cast<const INxGroupMedia *>(header);
    if (!group)
        return row;
    row.title = group->name();
    row.count = group->itemCount();
    row.expanded = group->isExpanded();
    const QList<INxAbstractMedia *> members = group->members();
    for (const INxAbstractMedia *member : members)
        row.members.append(isTile(member) ? nullptr : member);
    return row;
}

QVector<ItemSession::Row> ItemSession::modelRows() const
{
    QVector<Row> rows;
    QHash<const INxAbstractMedia *, int> headerOfTile;
    for (int i = 0; i < m_model.rowCount(); ++i) {
        INxAbstractMedia *media = m_model.mediaItem(i);
        Row row;
        row.type = isTile(media) ? int(media->mediaType()) : int(Plain::ItemRow);
        if (const auto *group = dynamic_cast<const INxGroupMedia *>(media)) {
            row = headerRow(media);
            for (const INxAbstractMedia *member : group->members().mid(0, 1)) {
                if (isTile(member) && !headerOfTile.contains(member))
                    headerOfTile.insert(member, i);
            }
        } else if (isTile(media)) {
            row.owner = headerOfTile.value(media, -1);
        } else {
            row.media = media;
        }
        rows.append(row);
    }
    return rows;
}

QString ItemSession::text(const Row &row) const
{
    if (row.type == Plain::ItemRow)
        return m_yard.describe(row.media);
    if (row.type != Plain::HeaderRow)
        return QStringLiteral("tile %1 of %2").arg(row.type).arg(row.owner);
    QStringList members;
    for (const void *member : row.members)
        members.append(member ? m_yard.describe(member) : QStringLiteral("tile"));
    return QStringLiteral("[%1] %2 %3: %4")
        .arg(row.title)
        .arg(row.count)
        .arg(row.expanded ? QStringLiteral("v") : QStringLiteral(">"),
             members.join(QStringLiteral(", ")));
}

QString ItemSession::text(const Told &told) const
{
    return QStringLiteral("%1 %2 %3")
        .arg(QLatin1String(nameOf(told.signal)))
        .arg(told.number)
        .arg(m_yard.describe(told.media));
}

QString ItemSession::rowsDifference(const QVector<Row> &wanted) const
{
    const QVector<Row> got = modelRows();
    if (got == wanted)
        return {};
    return QStringLiteral("rows, wanted | shown:")
           + sideBySide(wanted, got, [this](const Row &row) { return text(row); });
}

QString ItemSession::toldDifference(const QVector<Told> &wanted) const
{
    if (m_heard == wanted)
        return {};
    return QStringLiteral("signals, wanted | heard:")
           + sideBySide(wanted, m_heard, [this](const Told &told) { return text(told); });
}

QString ItemSession::stateDifference() const
{
    const INxFolderMedia *folder = m_plain.folder();
    if (m_model.folder() != folder)
        return QStringLiteral("another folder is shown");
    if (m_model.isGrouped() != m_plain.isGrouped())
        return QStringLiteral("grouped is %1").arg(m_model.isGrouped());
    if (m_model.isSortEnable() != m_plain.isSortEnable())
        return QStringLiteral("sorting is %1").arg(m_model.isSortEnable());
    if (m_model.similarLines() != m_plain.similarLines())
        return QStringLiteral("%1 similar lines, wanted %2")
            .arg(m_model.similarLines())
            .arg(m_plain.similarLines());
    const bool canFetch = folder && m_fetchMoreEnable && folder->canFetchMore();
    if (m_model.canFetchMore(QModelIndex()) != canFetch)
        return QStringLiteral("fetching more should be %1").arg(canFetch);
    return {};
}

QString ItemSession::contractFault() const
{
    const QList<INxAbstractMedia *> items = m_model.getItems();
    const int count = m_model.rowCount();
    if (items.size() != count || m_model.rowCount(m_model.index(0, 0)) != count)
        return QStringLiteral("rows are counted differently");
    if (m_model.mediaItem(-1) || m_model.mediaItem(count) || mediaAt(m_model.index(count, 0)))
        return QStringLiteral("there is a media in a row that is none");
    QHash<const INxAbstractMedia *, QList<int>> standing;
    for (int row = 0; row < count; ++row) {
        INxAbstractMedia *media = items.at(row);
        if (!media || m_model.mediaItem(row) != media || mediaAt(m_model.index(row, 0)) != media)
            return QStringLiteral("row %1 answers two media").arg(row);
        standing[media].append(row);
    }
    // In a long list some rows stand for all.
    const int step = qMax(1, count / 60);
    for (int row = 0; row < count; row += step) {
        if (m_model.rows(items.at(row)) != standing.value(items.at(row)))
            return QStringLiteral("the media of row %1 is not found").arg(row);
    }
    return m_model.rows(nullptr).isEmpty() ? QString() : QStringLiteral("nothing has a row");
}

QString ItemSession::difference()
{
    const QVector<Row> rows = m_plain.rows();
    QStringList faults{m_fault, toldDifference(m_plain.takeTold()), stateDifference()};
    faults += rowsDifference(rows);
    faults += contractFault();
    faults.removeAll(QString());
    m_heard.clear();
    return faults.join(QLatin1Char('\n'));
}
