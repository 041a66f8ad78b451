// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxViewMoreSplitLinePainter.h>

#include <NxCore/NxStringUtils.h>
#include <NxMediaLibrary/delegate_P/NxHeaderDrawing.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionViewItem>

namespace {

enum RowChild : int {
    rcLeftLine,
    rcArrow,
    rcText,
    rcRightLine,
    rcCount,
};

constexpr int Gap = 4; // Between a line and the pill.
constexpr int ArrowAreaWidth = 20;
constexpr int Inset = 8; // Before and behind the arrow, and on either side of the text.

bool isTouched(NxMediaItemChildStatus status)
{
    return status == mcsHovered || status == mcsPressed;
}

/// Corners that take 99 in a hundred of the shorter half side, and are no more oval for a longer
/// rectangle.
QPainterPath pill(const QRectF &rect)
{
    constexpr qreal roundness = 99.0;
    const bool isWide = rect.width() > rect.height();
    const int x = int(isWide ? roundness * rect.height() / rect.width() : roundness);
    const int y = int(isWide ? roundness : roundness * rect.width() / rect.height());
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(rect, x, y, Qt::RelativeSize);
    return path;
}

} // namespace

INxViewMoreSplitLinePainter::INxViewMoreSplitLinePainter(QObject *parent)
    : INxItemBasePainter(parent)
{
    NxSkinStyle::instance()->Attach(this);
    INxItemBasePainter::initItemChildrenInfo(rcCount);
    loadPictures();
}

INxViewMoreSplitLinePainter::~INxViewMoreSplitLinePainter()
{
    NxSkinStyle::instance()->Detach(this);
}

void INxViewMoreSplitLinePainter::init()
{
    initItemChildrenInfo(rcCount);
    loadPictures();
    changeItemChildrenRect();
}

void INxViewMoreSplitLinePainter::OnSkinChangedEvent(INxSkinEvent *event)
{
    if (event->isSkinChanged())
        init();
}

void INxViewMoreSplitLinePainter::changeItemChildrenRect()
{
    const int height = size().height();
    const QRect leftLine(0, 0, sideLineWidth(), height);
    const QRect arrow(leftLine.right() + Gap, 0, ArrowAreaWidth, height);
    const QRect text(arrow.right(), 0, titleWidth() + Gap, height);
    const int rightX = text.right() + Gap;
    const QRect rightLine(rightX, 0, size().width() - rightX, height);
    setChildRect(rcLeftLine, withoutNegativeSize(leftLine));
    setChildRect(rcArrow, withoutNegativeSize(arrow));
    setChildRect(rcText, withoutNegativeSize(text));
    setChildRect(rcRightLine, withoutNegativeSize(rightLine));
}

void INxViewMoreSplitLinePainter::changeItemChildrenRect(const QModelIndex &)
{
    changeItemChildrenRect();
}

void INxViewMoreSplitLinePainter::draw(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index, NxMediaItemState state) const
{
    const INxAbstractMedia *media = mediaAt(index);
    const bool isViewMore = media && media->mediaType() == NXVBLMODEL::mtViewMoreTile;
    if (!painter || !isViewMore || size().isEmpty())
        return;
    m_font = option.font;
    const int y = option.rect.top();
    const int height = size().height();
    const QRect leftLine(option.rect.left(), y, sideLineWidth(), height);
    const QRect hoverArea(leftLine.right() + Gap, y, hoverWidth(), height);
    const QRect arrow = arrowRect(hoverArea.left() + Inset + Gap, y, height);
    const QRect text(arrow.right() + Inset, y, titleWidth(), height);
    const int rightX = text.right() + Gap;
    const QRect rightLine(rightX, y, size().width() - rightX, height);

    const NxSkinStyle *skin = NxSkinStyle::instance();
    painter->save();
    painter->setFont(option.font);
    painter->setPen(skin->GetColor(NxSkinColor::Component_Divider_Primary));
    drawLine(painter, leftLine);
    drawHoverArea(painter, hoverArea, state);
    drawViewMore(painter, arrow);
    painter->setPen(skin->GetColor(NxSkinColor::Text_Icon_Primary));
    drawTitle(painter, text);
    painter->setPen(skin->GetColor(NxSkinColor::Component_Divider_Primary));
    drawLine(painter, rightLine);
    painter->restore();
}

void INxViewMoreSplitLinePainter::initPaintStateInfo() {}

void INxViewMoreSplitLinePainter::usageEventFromFromChild(const int &child)
{
    if (currentMouseEvent() == mmeLeftRelease && (child == rcArrow || child == rcText))
        setUseEvent(mueViewMore);
}

QString INxViewMoreSplitLinePainter::title() const
{
    return tr("View More");
}

int INxViewMoreSplitLinePainter::titleWidth() const
{
    return Gap + NxStringUtils::calcTextLenght(m_font, title()) + 2 * Inset;
}

int INxViewMoreSplitLinePainter::hoverWidth() const
{
    return ArrowAreaWidth + Inset + titleWidth();
}

bool INxViewMoreSplitLinePainter::isEnableHoverArea(NxMediaItemState state) const
{
    return state != misNormal
           && (isTouched(childStatus(rcArrow)) || isTouched(childStatus(rcText)));
}

void INxViewMoreSplitLinePainter::drawViewMore(QPainter *painter, const QRect &rect) const
{
    const NxMediaItemChildStatus status = childStatus(rcArrow);
    drawArrowPicture(painter, rect, m_pictures.value(status == mcsInitial ? mcsNormal : status));
}

void INxViewMoreSplitLinePainter::drawHoverArea(QPainter *painter, const QRect &rect,
                                                NxMediaItemState state) const
{
    if (!isEnableHoverArea(state) || rect.isEmpty())
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipPath(pill(rect), Qt::IntersectClip);
    painter->setPen(Qt::NoPen);
    painter->setBrush(NxSkinStyle::instance()->GetColor(NxSkinColor::State_Hover));
    painter->drawRect(rect);
    painter->restore();
}

void INxViewMoreSplitLinePainter::drawLine(QPainter *painter, const QRect &rect) const
{
    drawCentreLine(painter, rect);
}

void INxViewMoreSplitLinePainter::drawTitle(QPainter *painter, const QRect &rect) const
{
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, title());
}

int INxViewMoreSplitLinePainter::sideLineWidth() const
{
    return (size().width() - 2 * Gap - hoverWidth()) / 2;
}

void INxViewMoreSplitLinePainter::loadPictures()
{
    m_pictures = loadArrowPictures(QLatin1String("down"));
}
