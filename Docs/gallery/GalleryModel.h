// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>

#include <QAbstractListModel>

/// Rows for a list of media, or of folders as a tree has them.
class GalleryModel final : public QAbstractListModel
{
public:
    void setMedia(const QList<INxAbstractMedia *> &media)
    {
        beginResetModel();
        m_rows.clear();
        for (INxAbstractMedia *it : media)
            m_rows.append(it);
        endResetModel();
    }
    void setFolders(const QList<INxFolderMedia *> &folders)
    {
        beginResetModel();
        m_rows.clear();
        for (INxFolderMedia *it : folders)
            m_rows.append(it);
        endResetModel();
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : m_rows.size();
    }
    QModelIndex index(int row, int column = 0,
                      const QModelIndex &parent = QModelIndex()) const override
    {
        const bool isThere = !parent.isValid() && row >= 0 && row < m_rows.size() && column == 0;
        return isThere ? createIndex(row, column, m_rows.at(row)) : QModelIndex();
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }

private:
    QList<void *> m_rows; // Not owned; all of one kind.
};
