// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>

#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

namespace {

bool canBeSelected(const QModelIndex &index)
{
    constexpr Qt::ItemFlags needed = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return (index.flags() & needed) == needed;
}

} // namespace

NxMediaItemSelectionModel::NxMediaItemSelectionModel(NxMediaItemModel *model, QObject *parent)
    : QItemSelectionModel(model, parent)
{
}

NxMediaItemSelectionModel::~NxMediaItemSelectionModel() = default;

NxMediaItemModel *NxMediaItemSelectionModel::mediaItemModel() const
{
    return qobject_cast<NxMediaItemModel *>(const_cast<QAbstractItemModel *>(model()));
}

// By ranges: a selection of many rows in ten columns has few of them.
QList<QModelIndex> NxMediaItemSelectionModel::firstColumnSelectedIndexes() const
{
    QList<QModelIndex> indexes;
    const QItemSelection ranges = selection();
    for (const QItemSelectionRange &range : ranges) {
        if (!range.isValid() || range.left() > 0)
            continue;
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex index = range.model()->index(row, 0, range.parent());
            if (canBeSelected(index))
                indexes.append(index);
        }
    }
    return indexes;
}

QList<INxAbstractMedia *> NxMediaItemSelectionModel::selectedItems() const
{
    QList<INxAbstractMedia *> items;
    const NxMediaItemModel *shown = mediaItemModel();
    Q_ASSERT(shown);
    const QList<QModelIndex> indexes = shown ? firstColumnSelectedIndexes() : QList<QModelIndex>();
    for (const QModelIndex &index : indexes) {
        if (INxAbstractMedia *item = shown->mediaItem(index.row()))
            items.append(item);
        else
            NX_LOG_INFO("selec media invalid row:%d  rowCount:%d", index.row(), shown->rowCount());
    }
    return items;
}
