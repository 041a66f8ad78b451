// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaColumnPainter_p.h>

#include <NxMediaViews/NxMediaColumns.h>
#include <NxMediaViews/NxRowCanvas_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>

namespace {

constexpr int NameColumn = 0;
constexpr int Margin = 8; // px, at both sides of a cell's text.

} // namespace

NxMediaColumnPainter::NxMediaColumnPainter() : m_caches(std::make_unique<NxRowCaches>()) {}

NxMediaColumnPainter::~NxMediaColumnPainter() = default;

void NxMediaColumnPainter::draw(QPainter *painter, const QStyleOptionViewItem &option,
                                const INxAbstractMedia *media,
                                NXVBLMODEL::NxMediaCategoryType category,
                                const QVector<Cell> &cells, NxMediaItemState state) const
{
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    if (!painter || !painter->isActive() || !item)
        return;
    const NxRowCanvas canvas(painter, option, m_caches.get());
    const QColor colour = NxSkinStyle::instance()->GetColor(
        state == misDisabled ? NxSkinColor::Text_Icon_Disabled : NxSkinColor::Text_Icon_Secondary);
    for (const Cell &cell : cells) {
        const QRect room = cell.rect.adjusted(Margin, 0, -Margin, 0);
        if (cell.column == NameColumn || room.isEmpty())
            continue;
        canvas.detail(NxMediaColumns::text(*item, category, cell.column), room, colour,
                      NxMediaColumns::alignment(category, cell.column));
    }
}
