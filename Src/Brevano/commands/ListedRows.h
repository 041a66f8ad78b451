// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class NxMediaItemModel;
struct ViewChoice;

/// The rows that views of the folders show, one folder after the other: media, group headers and
/// tiles. Headers and tiles die with this object; it must not outlive the project.
class ListedRows
{
public:
    ListedRows(const QList<INxFolderMedia *> &folders, const ViewChoice &choice);
    ~ListedRows();
    Q_DISABLE_COPY_MOVE(ListedRows)

    [[nodiscard]] const QVector<const INxAbstractMedia *> &rows() const { return m_rows; }
    /// The rows that are media, in their order.
    [[nodiscard]] QVector<const INxAbstractMediaItem *> media() const;
    /// Of the columns of a list view.
    [[nodiscard]] const QStringList &headings() const { return m_headings; }

private:
    void addFolder(INxFolderMedia *folder, const ViewChoice &choice);

    std::vector<std::unique_ptr<NxMediaItemModel>> m_models;
    QVector<const INxAbstractMedia *> m_rows;
    QStringList m_headings;
};
