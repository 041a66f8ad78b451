// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxFolderTreeItemPainter.h>

#include <NxCore/NxStringUtils.h>

#include <QFontMetrics>

namespace {

constexpr int textIndent = 5; // px
constexpr int textRise = 4; // px
constexpr int textAir = 5; // px, to the right and below.

} // namespace

NxFolderTreeItemPainter::NxFolderTreeItemPainter(QObject *parent) : INxItemBasePainter(parent) {}

NxFolderTreeItemPainter::~NxFolderTreeItemPainter() = default;

void NxFolderTreeItemPainter::changeItemChildrenRect() {}

void NxFolderTreeItemPainter::draw(QPainter *, const QStyleOptionViewItem &, const QModelIndex &,
                                   NxMediaItemState) const
{
}

void NxFolderTreeItemPainter::initPaintStateInfo() {}

void NxFolderTreeItemPainter::usageEventFromFromChild(const int &) {}

void NxFolderTreeItemPainter::setIndent(int first, int second, int third, int fourth)
{
    m_indents = {first, second, third, fourth};
}

QRect NxFolderTreeItemPainter::getTextDrawRect(const int &x, const int &y, const QFont &font,
                                               const QString &text) const
{
    return {x + textIndent, y - textRise, NxStringUtils::calcTextLenght(font, text) + textAir,
            QFontMetrics(font).height() + textAir};
}
