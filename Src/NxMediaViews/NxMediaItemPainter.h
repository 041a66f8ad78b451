// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/INxItemMediaIconBasePainter.h>
#include <NxMediaViews/NxMediaItemLayout.h>
#include <NxMediaViews/NxMediaViewsExport.h>

#include <QPersistentModelIndex>
#include <QVector>

#include <functional>
#include <memory>

class INxAbstractMedia;
class INxAbstractMediaItem;

/// Paints the media of a view: cover, name, length and marks, and the "Import Media" tile.
///
/// Four view modes: a list, and covers of 96 x 54, 144 x 81 and 224 x 126 px with the name below.
/// Colours are those of the skin at each paint, texts are in the option's font. Nothing is scaled,
/// laid out or converted twice, and no paint touches a disk: the pictures that sound and subtitles
/// share are read when a painter is made, all others come from the engine's memory and the cover
/// stays a plain ground until they do.
///
/// Give one to NxMediaItemDelegate::setItemPainter(). GUI thread only.
class NXMEDIAVIEWS_EXPORT NxMediaItemPainter : public INxItemMediaIconBasePainter
{
    Q_OBJECT
public:
    /// The areas of a row.
    enum Child : int {
        ccCover = 0,
        ccName = 1,
        /// Shown on the hovered row. Completes mueHoveredOnly when it is clicked.
        ccAddButton = 2,
    };
    /// Whether a smaller copy of the item is there to edit with. Asked at each paint.
    using ProxyTest = std::function<bool(const INxAbstractMediaItem *item)>;

    /// In the mode that all painters of media have now.
    explicit NxMediaItemPainter(QObject *parent = nullptr);
    ~NxMediaItemPainter() override;

    /// The width of a row in the list, px. 0 at first: then no row of the list shows.
    void setListWidth(int width);
    /// The width of the first column of a list with columns, px: cover, name, the marks of proxy
    /// and licence, the bar of progress and the button keep to it, and nothing tells kind, length
    /// and use. Ground and frame stay as wide as the row. 0 at first: all of the row is used.
    void setListNameWidth(int width);
    /// The font that the view draws names in: rows become as high as it needs. The application's
    /// at first.
    void setNameFont(const QFont &font);
    /// How the view lays out; from left to right at first. Drawing follows the option, the mouse
    /// follows this.
    void setLayoutDirection(Qt::LayoutDirection direction);

    /// Shows a bar below the media until it is told a total of 0 or less. The media is not owned,
    /// and may die. Repaints nothing.
    void setProgress(INxAbstractMedia *media, qint64 done, qint64 total);
    /// An empty one: no media has a proxy.
    void setProxyTest(ProxyTest test);

    /// The rows that show a frame of an animated picture which is not its present one any more:
    /// the only ones that a view needs to paint when NxCustomDelegate::sigRepaintAll() comes. A row
    /// is answered once, and again only after it was painted.
    [[nodiscard]] QVector<QPersistentModelIndex> takeGifRows();

    /// Covers that were asked for and have not come yet are not wanted any more, unless they are
    /// painted again; for a view that scrolls on.
    void cancelCoverRequests();

    void changeItemChildrenRect() override;
    /// Rows of what is no media item have no button, tiles have no areas at all.
    void changeItemChildrenRect(const QModelIndex &index) override;
    void draw(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
              NxMediaItemState state) const override;
    void drawItemContent(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index, NxMediaItemState state) const override;
    void usageEventFromFromChild(const int &child) override;
    /// Where the name stands; null for a tile.
    [[nodiscard]] QRect nameEditorRect(const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const override;

private:
    struct Private;
    void fillSizes();

    const std::unique_ptr<Private> d;
};
