// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>

#include <QAbstractListModel>

/// A list of media, which are not owned; null is a row without one.
class MediaRows final : public QAbstractListModel
{
public:
    explicit MediaRows(const QList<INxAbstractMedia *> &media) : m_media(media) {}

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : m_media.size();
    }
    QModelIndex index(int row, int column = 0, const QModelIndex &parent = {}) const override
    {
        return hasIndex(row, column, parent) ? createIndex(row, column, m_media.at(row))
                                             : QModelIndex();
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return QAbstractListModel::flags(index) | Qt::ItemIsEditable;
    }

    void empty()
    {
        beginResetModel();
        m_media.clear();
        endResetModel();
    }

private:
    QList<INxAbstractMedia *> m_media; // Not owned.
};
