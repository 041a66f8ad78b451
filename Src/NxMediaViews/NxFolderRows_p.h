// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>

/// The folders of a category, as their tree needs them: each with a text for assistive programs,
/// its name and how many media it and the folders below it hold, and those of the user draggable.
class NxFolderRows : public NxMediaTreeModel
{
    Q_OBJECT
public:
    explicit NxFolderRows(QObject *parent);
    ~NxFolderRows() override;

    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
};
