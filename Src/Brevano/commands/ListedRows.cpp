// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ListedRows.h>

#include <Brevano/commands/ViewChoice.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

namespace {

QStringList headingsOf(const NxMediaItemModel &model)
{
    QStringList headings;
    for (int column = 0; column < model.columnCount(); ++column) {
        headings.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    return headings;
}

} // namespace

ListedRows::ListedRows(const QList<INxFolderMedia *> &folders, const ViewChoice &choice)
    : m_headings(headingsOf(NxMediaItemModel(choice.category, nullptr)))
{
    for (INxFolderMedia *folder : folders)
        addFolder(folder, choice);
}

ListedRows::~ListedRows() = default;

void ListedRows::addFolder(INxFolderMedia *folder, const ViewChoice &choice)
{
    m_models.push_back(std::make_unique<NxMediaItemModel>(choice.category, nullptr));
    NxMediaItemModel *model = m_models.back().get();
    model->setSortEnable(!NxMediaItemModel::keepsServiceOrder(folder));
    model->setSortBy(choice.sort);
    model->setGroupBy(choice.group);
    model->setFilter(choice.filter);
    model->load(folder);
    for (int row = 0; row < model->rowCount(); ++row)
        m_rows.append(model->mediaItem(row));
}

QVector<const INxAbstractMediaItem *> ListedRows::media() const
{
    QVector<const INxAbstractMediaItem *> media;
    for (const INxAbstractMedia *row : m_rows) {
        if (const auto *item = dynamic_cast<const INxAbstractMediaItem *>(row))
            media.append(item);
    }
    return media;
}
