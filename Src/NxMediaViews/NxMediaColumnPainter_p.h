// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QRect>
#include <QVector>

#include <memory>

class INxAbstractMedia;
class QPainter;
class QStyleOptionViewItem;
struct NxRowCaches;

/// Paints what a list says of a media beside its name: a text for each further column.
///
/// Texts are made anew at each paint, so that they are never old ones; only their layout is kept.
/// GUI thread only; no paint touches a disk.
class NXMEDIAVIEWS_TEST_EXPORT NxMediaColumnPainter
{
public:
    struct Cell
    {
        int column; ///< As NxMediaColumns counts; 0 is the name, which is not drawn here.
        QRect rect; ///< In the painter's coordinates.
    };

    NxMediaColumnPainter();
    ~NxMediaColumnPainter();

    /// Each text keeps to its cell: what is too long ends in an ellipsis. Nothing is drawn for
    /// what is no media item: headers of groups, tiles, folders.
    /// @param option tells font and direction; cells are where they are given.
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const INxAbstractMedia *media,
              NXVBLMODEL::NxMediaCategoryType category, const QVector<Cell> &cells,
              NxMediaItemState state) const;

private:
    const std::unique_ptr<NxRowCaches> m_caches;
};
