// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemLayout.h>

#include <QStyle>

#include <array>

namespace {

using namespace NXMEDIALIBRARY;

struct ModeMeasures
{
    NxMediaItemViewMode mode;
    QSize cover;
    int button;
    int missing;
};

constexpr ModeMeasures Modes[] = {
    {vmList, {48, 27}, 20, 16},
    {vmSmallThumbnail, {96, 54}, 18, 16},
    {vmMiddleThumbnail, {144, 81}, 22, 26},
    {vmLargeThumbnail, {224, 126}, 24, 32},
};

constexpr int Margin = 6; // Around the cover of a tile, and above and below the list's.
constexpr int ListMargin = 8;
constexpr int Gap = 6; // Between cover and name of a tile; holds the bar of progress.
constexpr int BarHeight = 3;
constexpr int Mark = 16;
constexpr int MarkStep = Mark + 2;
constexpr int Inset = 3; // Of what lies on a cover.
constexpr int BadgeHeight = 16;

const ModeMeasures &measuresOf(NxMediaItemViewMode mode)
{
    for (const ModeMeasures &it : Modes) {
        if (it.mode == mode)
            return it;
    }
    return Modes[vmLargeThumbnail];
}

using Place = QRect NxMediaItemLayout::*;

constexpr std::array<Place, 12> Places = {
    &NxMediaItemLayout::row,         &NxMediaItemLayout::cover,     &NxMediaItemLayout::name,
    &NxMediaItemLayout::duration,    &NxMediaItemLayout::kindMark,  &NxMediaItemLayout::kindText,
    &NxMediaItemLayout::usedMark,    &NxMediaItemLayout::proxyMark, &NxMediaItemLayout::licenceMark,
    &NxMediaItemLayout::missingMark, &NxMediaItemLayout::addButton, &NxMediaItemLayout::progress,
};

/// What may be cut at the edge of its room; all else is whole or not there.
bool mayBeCut(Place place)
{
    return place == &NxMediaItemLayout::cover || place == &NxMediaItemLayout::name
           || place == &NxMediaItemLayout::progress;
}

/// The row itself stays as it is.
void keepInside(NxMediaItemLayout &layout, const QRect &room)
{
    for (const Place place : Places) {
        QRect &rect = layout.*place;
        if (place != &NxMediaItemLayout::row && !room.contains(rect))
            rect = mayBeCut(place) ? rect & room : QRect();
        if (rect.isEmpty())
            rect = QRect();
    }
}

void mirror(NxMediaItemLayout &layout)
{
    for (const Place place : Places) {
        QRect &rect = layout.*place;
        if (!rect.isNull())
            rect = QStyle::visualRect(Qt::RightToLeft, layout.row, rect);
    }
}

QRect centred(const QRect &around, int side)
{
    return {around.x() + (around.width() - side) / 2, around.y() + (around.height() - side) / 2,
            side, side};
}

void layTile(NxMediaItemLayout &layout, const ModeMeasures &mode, int lineHeight)
{
    const QRect cover({Margin, Margin}, mode.cover);
    const int below = cover.bottom() + 1;
    const int top = cover.y() + Inset;
    const int left = cover.x() + Inset;
    const int end = cover.right() + 1 - Inset;
    const int button = below - Inset - mode.button;
    layout.cover = cover;
    layout.kindMark = {left, top, Mark, Mark};
    layout.usedMark = layout.kindMark.translated(MarkStep, 0);
    layout.licenceMark = {end - Mark, top, Mark, Mark};
    layout.proxyMark = layout.licenceMark.translated(-MarkStep, 0);
    layout.missingMark = centred(cover, mode.missing);
    layout.addButton = {end - mode.button, button, mode.button, mode.button};
    layout.duration = {left, below - Inset - BadgeHeight, end - left, BadgeHeight};
    layout.progress = {cover.x() + 1, below + 1, cover.width() - 2, BarHeight};
    layout.name = {cover.x() + 1, below + Gap, cover.width() - 2, lineHeight};
}

/// What stands in a list beside cover and name, from the end of the room inwards.
enum Column { ButtonColumn, DurationColumn, KindColumn, MarksColumn, ColumnCount };

struct ColumnRoom
{
    Column column;
    int width;
    int widthBesideCells; // Of a list whose further columns tell kind, length and use; 0: none.
};

/// The worthiest first: what stands further down gives way earlier.
constexpr ColumnRoom ColumnRooms[] = {
    {ButtonColumn, 32, 32},
    {DurationColumn, 92, 0},
    {MarksColumn, 3 * MarkStep + 6, 2 * MarkStep + 6},
    {KindColumn, 104, 0},
};
constexpr int NarrowestName = 72;

std::array<int, ColumnCount> columnWidths(int room, bool hasCells)
{
    std::array<int, ColumnCount> widths{};
    for (const ColumnRoom &it : ColumnRooms) {
        const int width = hasCells ? it.widthBesideCells : it.width;
        if (width > room)
            break;
        widths.at(it.column) = width;
        room -= width;
    }
    return widths;
}

/// Of the row's height, from `end` to the left.
QRect takenFrom(int &end, int width, int height)
{
    end -= width;
    return {end, 0, width, height};
}

/// Marks one beside the other, in the middle of the height.
void layMarks(NxMediaItemLayout &layout, const QRect &room, bool hasCells)
{
    QRect mark(room.x(), (room.height() - Mark) / 2, Mark, Mark);
    if (!hasCells) {
        layout.usedMark = mark;
        mark.translate(MarkStep, 0);
    }
    layout.proxyMark = mark;
    layout.licenceMark = mark.translated(MarkStep, 0);
}

/// @param end of what is left for the name.
void layListColumns(NxMediaItemLayout &layout, const ModeMeasures &mode, bool hasCells,
                    int nameLeft, int &end)
{
    const std::array<int, ColumnCount> widths =
        columnWidths(end - nameLeft - NarrowestName, hasCells);
    const int height = layout.row.height();
    if (widths[ButtonColumn] > 0)
        layout.addButton = centred(takenFrom(end, widths[ButtonColumn], height), mode.button);
    if (widths[DurationColumn] > 0)
        layout.duration = takenFrom(end, widths[DurationColumn], height);
    if (widths[KindColumn] > 0) {
        const QRect kind = takenFrom(end, widths[KindColumn], height);
        layout.kindMark = {kind.x(), (height - Mark) / 2, Mark, Mark};
        layout.kindText = kind.adjusted(MarkStep + 4, 0, 0, 0);
    }
    if (widths[MarksColumn] > 0)
        layMarks(layout, takenFrom(end, widths[MarksColumn], height), hasCells);
}

/// @param width of what is laid out; the row may be wider.
void layListRow(NxMediaItemLayout &layout, const ModeMeasures &mode, int lineHeight, int width,
                bool hasCells)
{
    const int height = layout.row.height();
    layout.cover = {{ListMargin, (height - mode.cover.height()) / 2}, mode.cover};
    layout.missingMark = centred(layout.cover, mode.missing);
    const int nameLeft = layout.cover.right() + 1 + ListMargin;
    int end = width - ListMargin;
    layListColumns(layout, mode, hasCells, nameLeft, end);
    const int nameTop = (height - lineHeight) / 2;
    layout.name = {nameLeft, nameTop, qMax(0, end - ListMargin - nameLeft), lineHeight};
    layout.progress = {nameLeft, height - BarHeight - 2, layout.name.width(), BarHeight};
}

} // namespace

QSize NxMediaItemLayout::rowSize(NxMediaItemViewMode mode, int lineHeight, int listWidth)
{
    const ModeMeasures &measures = measuresOf(mode);
    const int cover = measures.cover.height();
    if (mode == vmList)
        return {qMax(0, listWidth), qMax(cover, lineHeight + 2 * BarHeight) + 2 * Margin - 4};
    return {measures.cover.width() + 2 * Margin, Margin + cover + Gap + lineHeight + Margin - 2};
}

NxMediaItemLayout NxMediaItemLayout::of(NxMediaItemViewMode mode, const QSize &row, int lineHeight,
                                        Qt::LayoutDirection direction, int listNameWidth)
{
    NxMediaItemLayout layout;
    if (row.isEmpty())
        return layout;
    layout.row = QRect({0, 0}, row);
    const bool hasCells = mode == vmList && listNameWidth > 0;
    QRect room = layout.row;
    if (hasCells)
        room.setWidth(qMin(room.width(), listNameWidth));
    if (mode == vmList)
        layListRow(layout, measuresOf(mode), lineHeight, room.width(), hasCells);
    else
        layTile(layout, measuresOf(mode), lineHeight);
    keepInside(layout, room);
    if (direction == Qt::RightToLeft)
        mirror(layout);
    return layout;
}

NxMediaItemLayout NxMediaItemLayout::translated(const QPoint &topLeft) const
{
    NxMediaItemLayout moved = *this;
    for (const Place place : Places) {
        if (!(moved.*place).isNull())
            (moved.*place).translate(topLeft);
    }
    return moved;
}
