// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QItemSelectionModel>

class INxAbstractMedia;
class NxMediaItemModel;

/// The selection of a media view, answered as media: one for each selected row.
///
/// Nothing is remembered here, every answer is worked out from what is selected at the moment.
/// GUI thread only.
class NXMEDIALIBRARY_EXPORT NxMediaItemSelectionModel : public QItemSelectionModel
{
    Q_OBJECT
public:
    NxMediaItemSelectionModel(NxMediaItemModel *model, QObject *parent);
    ~NxMediaItemSelectionModel() override;

    /// Null when the selection was given another kind of model.
    [[nodiscard]] NxMediaItemModel *mediaItemModel() const;
    /// One index for each row that is selected in its first column, in the order in which rows were
    /// selected.
    [[nodiscard]] QList<QModelIndex> firstColumnSelectedIndexes() const;
    /// The media of those rows, not owned. A media that stands in two rows is answered twice,
    /// headers and tiles are answered like any other. A row whose media is gone is left out and
    /// logged.
    [[nodiscard]] QList<INxAbstractMedia *> selectedItems() const;
};
