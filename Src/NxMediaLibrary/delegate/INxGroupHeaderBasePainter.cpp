// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxGroupHeaderBasePainter.h>

#include <NxCore/NxStringUtils.h>
#include <NxMediaLibrary/delegate_P/NxHeaderDrawing.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

enum HeaderChild : int {
    hcArrow,
    hcMiddle,
    hcEnd,
    hcCount,
};

constexpr int ArrowAreaWidth = 24;
constexpr int MiddleWidth = 100;
constexpr int Spacing = 8;
constexpr int TitleMargin = 24; // Beyond the end of the text.

} // namespace

INxGroupHeaderBasePainter::INxGroupHeaderBasePainter(QObject *parent) : INxItemBasePainter(parent)
{
    NxSkinStyle::instance()->Attach(this);
    INxItemBasePainter::initItemChildrenInfo(hcCount);
    loadPictures();
}

INxGroupHeaderBasePainter::~INxGroupHeaderBasePainter()
{
    NxSkinStyle::instance()->Detach(this);
}

void INxGroupHeaderBasePainter::init()
{
    initItemChildrenInfo(hcCount);
    loadPictures();
    changeItemChildrenRect();
}

void INxGroupHeaderBasePainter::OnSkinChangedEvent(INxSkinEvent *event)
{
    if (event->isSkinChanged())
        init();
}

void INxGroupHeaderBasePainter::changeItemChildrenRect()
{
    const int height = size().height();
    const QRect arrow(0, 0, ArrowAreaWidth, height);
    const QRect middle(arrow.right() + Spacing, 0, MiddleWidth, height);
    const int endX = middle.right() + Spacing;
    const QRect end(endX, 0, size().width() - endX, height);
    setChildRect(hcArrow, withoutNegativeSize(arrow));
    setChildRect(hcMiddle, withoutNegativeSize(middle));
    setChildRect(hcEnd, withoutNegativeSize(end));
}

void INxGroupHeaderBasePainter::draw(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index, NxMediaItemState state) const
{
    const auto *group = dynamic_cast<const INxGroupMedia *>(mediaAt(index));
    if (!painter || !group || size().isEmpty())
        return;
    painter->save();
    const int y = option.rect.top();
    const int height = size().height();
    int x = option.rect.left();
    if (group->canFold()) {
        const QRect arrow = arrowRect(x, y, height);
        drawExpandState(painter, arrow, group->isExpanded(), state);
        x = arrow.right() + Spacing;
    }

    const NxSkinStyle *skin = NxSkinStyle::instance();
    const QString count = QString::number(group->itemCount());
    const QString title = QStringLiteral("%1 (%2)").arg(group->name(), count);
    const int textWidth = NxStringUtils::calcTextLenght(option.font, title);
    const QRect titleRect(x, y, textWidth + TitleMargin, height);
    painter->setFont(option.font);
    painter->setPen(skin->GetColor(NxSkinColor::Text_Icon_Secondary));
    drawTitle(painter, titleRect, title);

    if (group->canFold()) {
        const int lineX = titleRect.right() + Spacing;
        painter->setPen(skin->GetColor(NxSkinColor::Component_Divider_Primary));
        drawLine(painter, QRect(lineX, y, size().width() - lineX, height));
    }
    painter->restore();
}

void INxGroupHeaderBasePainter::initPaintStateInfo() {}

void INxGroupHeaderBasePainter::usageEventFromFromChild(const int &child)
{
    if (currentMouseEvent() == mmeLeftRelease && child == hcArrow)
        setUseEvent(mueToggleGroup);
}

void INxGroupHeaderBasePainter::drawExpandState(QPainter *painter, const QRect &rect, bool expanded,
                                                NxMediaItemState state) const
{
    NxMediaItemChildStatus status = childStatus(hcArrow);
    const bool isUntouched = status == mcsInitial || status > mcsPressed;
    if (isUntouched || (status == mcsHovered && state == misNormal))
        status = mcsNormal;
    drawArrowPicture(painter, rect,
                     (expanded ? m_expandedPictures : m_collapsedPictures).value(status));
}

void INxGroupHeaderBasePainter::drawLine(QPainter *painter, const QRect &rect) const
{
    drawCentreLine(painter, rect);
}

void INxGroupHeaderBasePainter::drawTitle(QPainter *painter, const QRect &rect,
                                          const QString &title) const
{
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, title);
}

void INxGroupHeaderBasePainter::loadPictures()
{
    m_expandedPictures = loadArrowPictures(QLatin1String("down"));
    m_collapsedPictures = loadArrowPictures(QLatin1String("right"));
}
