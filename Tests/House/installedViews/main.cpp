// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxFolderItemPainter.h>
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxVBLModel/INxExtraMedia.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAbstractListModel>
#include <QApplication>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

/// One "Import Media" tile.
class TileModel final : public QAbstractListModel
{
public:
    explicit TileModel(INxAbstractMedia *tile) : m_tile(tile) {}
    int rowCount(const QModelIndex &) const override { return 1; }
    QModelIndex index(int row, int column, const QModelIndex &) const override
    {
        return createIndex(row, column, m_tile);
    }
    QVariant data(const QModelIndex &, int) const override { return {}; }

private:
    INxAbstractMedia *const m_tile;
};

} // namespace

/// Paints a row with the installed libraries alone: 0 when something was drawn.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile);
    const TileModel model(tile);
    NxMediaItemDelegate delegate;
    auto *rows = new NxMediaItemPainter;
    delegate.setItemPainter(rows);
    NxMediaFolderTreeDelegate tree;
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(0, 0), rows->size());
    option.state = QStyle::State_Enabled;
    const QColor ground = NxSkinStyle::instance()->GetColor(NxSkinColor::Background_Panel);
    QImage empty(rows->size(), QImage::Format_RGB32);
    empty.fill(ground);
    QImage picture = empty;
    QPainter painter(&picture);
    delegate.paint(&painter, option, model.index(0, 0, {}));
    painter.end();
    INxExtraMedia::releaseExtraMedia(tile);
    return picture != empty && tree.sizeHint(option, {}).height() > 0 ? 0 : 1;
}
