// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderItemPainter.h>

#include <NxCore/NxStringUtils.h>
#include <NxMediaViews/NxRowCanvas_p.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace {

constexpr int RowHeight = 32; // px, the height of the line edit that renames.
constexpr int Glyph = 16;
constexpr int NarrowestName = 48;
constexpr int EndMargin = 8;
constexpr int CountGap = 8;

QString countText(const INxFolderMedia &folder)
{
    const int count = NxFolderItemPainter::mediaCount(folder);
    return count > 0 ? QString::number(count) : QString();
}

} // namespace

/// In the tree's coordinates.
struct NxFolderItemPainter::Places
{
    QRect glyph;
    QRect name;
    QRect count;
};

NxFolderItemPainter::NxFolderItemPainter(QObject *parent)
    : NxFolderTreeItemPainter(parent),
      m_caches(std::make_unique<NxRowCaches>())
{
    setSize({0, RowHeight});
}

NxFolderItemPainter::~NxFolderItemPainter() = default;

void NxFolderItemPainter::draw(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index, NxMediaItemState state) const
{
    const INxFolderMedia *folder = folderAt(index);
    if (!painter || !painter->isActive() || !folder || option.rect.isEmpty())
        return;
    const NxSkinStyle *skin = NxSkinStyle::instance();
    const NxRowCanvas canvas(painter, option, m_caches.get());
    const bool isSelected = state == misSelected || state == misSelectedHovered;
    if (isSelected || state == misHovered)
        painter->fillRect(option.rect, skin->GetColor(isSelected ? NxSkinColor::State_Selected
                                                                 : NxSkinColor::State_Hover));
    const bool isDisabled = state == misDisabled;
    const QColor ink = skin->GetColor(isDisabled ? NxSkinColor::Text_Icon_Disabled
                                                 : NxSkinColor::Text_Icon_Primary);
    const QColor faint = skin->GetColor(isDisabled ? NxSkinColor::Text_Icon_Disabled
                                                   : NxSkinColor::Text_Icon_Secondary);
    const QString count = countText(*folder);
    const Places places = placesIn(option, folder->name(), count);
    canvas.glyph(NxGlyph::Folder, places.glyph, isSelected && !isDisabled ? ink : faint);
    canvas.name(folder->name(), places.name, ink);
    canvas.detail(count, places.count, faint, Qt::AlignRight);
}

QRect NxFolderItemPainter::nameEditorRect(const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    const INxFolderMedia *folder = folderAt(index);
    if (!folder)
        return {};
    QStyleOptionViewItem leftToRight = option;
    leftToRight.direction = Qt::LeftToRight;
    QRect rect = option.rect;
    rect.setLeft(qMin(placesIn(leftToRight, folder->name(), {}).name.left(), rect.right()));
    return QStyle::visualRect(option.direction, option.rect, rect);
}

// Asked in this way, an engine answers without listing the folder.
int NxFolderItemPainter::mediaCount(const INxFolderMedia &folder)
{
    const INxAbstractMedia *last = folder.lastMedia(true);
    return last ? folder.listedPlace(last, true) + 1 : 0;
}

NxFolderItemPainter::Places NxFolderItemPainter::placesIn(const QStyleOptionViewItem &option,
                                                          const QString &name,
                                                          const QString &count) const
{
    const QRect row = option.rect;
    const Indents indents = indent();
    Places places;
    places.glyph = {row.x() + indents.first, row.y() + (row.height() - Glyph) / 2, Glyph, Glyph};

    // The name's rectangle begins beside and above the place that it is asked for.
    const QRect atOrigin = getTextDrawRect(0, 0, option.font, name);
    const int nameX = places.glyph.right() + 1 + indents.second;
    const int nameY = row.y() + (row.height() - atOrigin.height()) / 2 - atOrigin.y();
    places.name = getTextDrawRect(nameX, nameY, option.font, name);

    int end = row.right() + 1 - EndMargin - indents.fourth;
    const int countWidth = NxStringUtils::calcTextLenght(option.font, count);
    const int nameEnd = end - countWidth - CountGap - indents.third;
    if (!count.isEmpty() && nameEnd - places.name.left() >= NarrowestName) {
        places.count = {end - countWidth, row.y(), countWidth, row.height()};
        end = nameEnd;
    }
    places.name.setRight(qMin(places.name.right(), end - 1));
    for (QRect *rect : {&places.glyph, &places.name, &places.count}) {
        *rect &= row;
        if (!rect->isEmpty())
            *rect = QStyle::visualRect(option.direction, row, *rect);
    }
    return places;
}
