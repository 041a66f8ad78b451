// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GallerySheet.h"

#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>

#include <iterator>

using namespace NXMEDIALIBRARY;

namespace {

constexpr QSize SheetSize(1240, 1790);
constexpr int Margin = 24;
constexpr int Gap = 8;
constexpr int TitleHeight = 26;
constexpr int SectionGap = 18;
constexpr int FontPixels = 13;
constexpr int HeaderHeight = 28;
constexpr int ColumnWidth = 580;

struct RowState
{
    const char *title;
    QStyle::State bits;
};

const RowState States[] = {
    {"normal", QStyle::State_Enabled},
    {"hovered", QStyle::State_Enabled | QStyle::State_MouseOver},
    {"selected", QStyle::State_Enabled | QStyle::State_Selected},
    {"both", QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_MouseOver},
    {"disabled", QStyle::State_None},
};

QString titleOf(NxMediaItemViewMode mode)
{
    return mode == vmSmallThumbnail    ? QStringLiteral("Small covers")
           : mode == vmMiddleThumbnail ? QStringLiteral("Middle covers")
                                       : QStringLiteral("Large covers");
}

QString nameOf(NxMediaItemViewMode mode)
{
    return mode == vmSmallThumbnail    ? QStringLiteral("small")
           : mode == vmMiddleThumbnail ? QStringLiteral("middle")
                                       : QStringLiteral("large");
}

} // namespace

GallerySheet::GallerySheet()
    : m_painter(new NxMediaItemPainter),
      m_font(QStringLiteral("DejaVu Sans"))
{
    m_font.setPixelSize(FontPixels);
    m_painter->setNameFont(m_font);
    m_painter->setProxyTest([](const INxAbstractMediaItem *item) {
        const auto *shown = dynamic_cast<const GalleryItem *>(item);
        return shown && shown->hasProxy;
    });
    m_delegate.setItemPainter(m_painter);
    QList<INxAbstractMedia *> rows = m_stock.media();
    rows.prepend(m_stock.importTile());
    rows += m_stock.headers();
    rows += m_stock.viewMoreTile();
    m_model.setMedia(rows);
    m_folders.setFolders(m_stock.folders());
    addMarks();
}

GallerySheet::~GallerySheet() = default;

QSize GallerySheet::size() const
{
    return SheetSize;
}

void GallerySheet::draw(QPainter *painter)
{
    m_canvas = painter;
    m_sections.clear();
    painter->setFont(m_font);
    painter->fillRect(QRect({0, 0}, SheetSize),
                      NxSkinStyle::instance()->GetColor(NxSkinColor::Background_Panel));
    int y = Margin / 2;
    for (const NxMediaItemViewMode mode : {vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail})
        drawMode(mode, y);
    int left = y;
    drawList(left);
    drawHeaders(y);
    drawFolders(y);
    m_canvas = nullptr;
}

QImage GallerySheet::image(int scale)
{
    QImage sheet(SheetSize * scale, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    QPainter painter(&sheet);
    draw(&painter);
    return sheet;
}

void GallerySheet::addMarks()
{
    constexpr int whole = 100;
    for (INxAbstractMedia *media : m_stock.media()) {
        const auto *item = dynamic_cast<const GalleryItem *>(media);
        if (item && item->progress >= 0)
            m_painter->setProgress(media, item->progress, whole);
    }
}

void GallerySheet::drawTitle(const QString &text, QPoint place)
{
    QFont bold = m_font;
    bold.setBold(true);
    m_canvas->setFont(bold);
    m_canvas->setPen(NxSkinStyle::instance()->GetColor(NxSkinColor::Text_Icon_Primary));
    m_canvas->drawText(QRect(place, QSize(ColumnWidth, TitleHeight)), Qt::AlignVCenter, text);
    m_canvas->setFont(m_font);
}

/// The kinds one after the other, then one media in each state.
void GallerySheet::drawMode(NxMediaItemViewMode mode, int &y)
{
    m_painter->setViewMode(mode);
    const QSize row = m_painter->size();
    drawTitle(titleOf(mode), {Margin, y});
    y += TitleHeight;
    const int perLine = (SheetSize.width() - 2 * Margin + Gap) / (row.width() + Gap);
    const int kinds = m_stock.media().size() + 1;
    int shown = 0;
    const auto place = [&] {
        const QPoint cell(shown % perLine, shown / perLine);
        ++shown;
        return QRect({Margin + cell.x() * (row.width() + Gap), y + cell.y() * (row.height() + Gap)},
                     row);
    };
    for (int i = 0; i < kinds; ++i)
        drawRow(m_delegate, m_model.index(i), place(), QStyle::State_Enabled);
    for (const RowState &state : States) {
        constexpr int marked = 2;
        if (state.bits != QStyle::State_Enabled)
            drawRow(m_delegate, m_model.index(marked), place(), state.bits);
    }
    drawRow(m_delegate, m_model.index(0), place(), QStyle::State_Enabled | QStyle::State_MouseOver);
    const int height = ((shown + perLine - 1) / perLine) * (row.height() + Gap) - Gap;
    m_sections.append({nameOf(mode), {Margin, y, SheetSize.width() - 2 * Margin, height}});
    y += height + SectionGap;
}

void GallerySheet::drawList(int &y)
{
    m_painter->setListWidth(ColumnWidth);
    m_painter->setViewMode(vmList);
    const QSize row = m_painter->size();
    drawTitle(QStringLiteral("List"), {Margin, y});
    y += TitleHeight;
    const int top = y;
    for (int i = 0; i < m_stock.media().size() + 1; ++i) {
        drawRow(m_delegate, m_model.index(i), {{Margin, y}, row}, QStyle::State_Enabled);
        y += row.height();
    }
    for (const RowState &state : States) {
        constexpr int marked = 2;
        drawRow(m_delegate, m_model.index(marked), {{Margin, y}, row}, state.bits);
        y += row.height();
    }
    m_sections.append({QStringLiteral("list"), {Margin, top, ColumnWidth, y - top}});
}

void GallerySheet::drawHeaders(int &y)
{
    const int x = SheetSize.width() - Margin - ColumnWidth;
    drawTitle(QStringLiteral("Group headers and \"View More\""), {x, y});
    y += TitleHeight;
    const int top = y;
    const QSize size(ColumnWidth, HeaderHeight);
    m_delegate.setGroupHeaderSize(size);
    m_delegate.setViewMoreHeaderSize(size);
    const int first = m_stock.media().size() + 1;
    const auto drawHeader = [&](int row, QStyle::State state) {
        drawRow(m_delegate, m_model.index(row), {{x, y}, size}, state);
        y += HeaderHeight;
    };
    const int last = m_model.rowCount() - 1;
    for (int row = first; row <= last; ++row)
        drawHeader(row, QStyle::State_Enabled);
    // The mouse is on what can be clicked in the first and the last of them.
    for (const int row : {first, last}) {
        INxItemBasePainter *painter = m_delegate.getItemPainter(m_model.index(row));
        const int clickable = row == first ? 0 : 1;
        painter->setChildStatus(clickable, mcsHovered);
        drawHeader(row, QStyle::State_Enabled | QStyle::State_MouseOver);
        painter->setChildStatus(clickable, mcsNormal);
    }
    m_sections.append({QStringLiteral("headers"), {x, top, ColumnWidth, y - top}});
    y += SectionGap;
}

void GallerySheet::drawFolders(int &y)
{
    constexpr int treeWidth = 260;
    constexpr int rowHeight = 32;
    const int x = SheetSize.width() - Margin - ColumnWidth;
    const NxSkinStyle *skin = NxSkinStyle::instance();
    drawTitle(QStringLiteral("Folders"), {x, y});
    y += TitleHeight;
    const int top = y;
    const int rows = m_folders.rowCount() + int(std::size(States)) - 1;
    m_canvas->fillRect(QRect(x, y, treeWidth, rows * rowHeight),
                       skin->GetColor(NxSkinColor::Background_Tree));
    const auto drawFolder = [&](int row, QStyle::State state) {
        drawRow(m_treeDelegate, m_folders.index(row), {x, y, treeWidth, rowHeight}, state);
        y += rowHeight;
    };
    for (int i = 0; i < m_folders.rowCount(); ++i)
        drawFolder(i, QStyle::State_Enabled);
    for (const RowState &state : States) {
        if (state.bits != QStyle::State_Enabled)
            drawFolder(1, state.bits);
    }
    m_sections.append({QStringLiteral("folders"), {x, top, treeWidth, y - top}});
}

/// Each row at the origin, as the headers' lines want it.
void GallerySheet::drawRow(const QAbstractItemDelegate &delegate, const QModelIndex &index,
                           const QRect &place, QStyle::State state)
{
    QStyleOptionViewItem option;
    option.rect = QRect({0, 0}, place.size());
    option.state = state;
    option.font = m_font;
    option.palette = NxSkinStyle::instance()->palette();
    m_canvas->save();
    m_canvas->translate(place.topLeft());
    delegate.paint(m_canvas, option, index);
    m_canvas->restore();
}
