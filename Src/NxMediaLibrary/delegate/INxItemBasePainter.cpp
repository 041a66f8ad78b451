// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxItemBasePainter.h>

#include <NxVBLModel/INxBsThumbManager.h>

#include <QPainter>
#include <QPainterPath>

INxItemBasePainter::INxItemBasePainter(QObject *parent)
    : QObject(parent),
      m_thumbManager(createBsThumbManager())
{
}

INxItemBasePainter::~INxItemBasePainter()
{
    releaseThumbManager(m_thumbManager);
}

void INxItemBasePainter::changeItemChildrenRect(const QModelIndex &) {}

void INxItemBasePainter::itemEntered(const QModelIndex &) {}

void INxItemBasePainter::itemLeave() {}

void INxItemBasePainter::setPreviewFrameHelper(INxPreviewFrameHelper *helper)
{
    m_previewFrames = helper;
}

void INxItemBasePainter::initItemChildrenInfo(const int &count)
{
    for (int child = 0; child < count; ++child)
        m_children.insert(child, Child());
}

int INxItemBasePainter::mouseInChildCrossPositionJudgement(const QList<QPair<int, QRect>> &children,
                                                           const QModelIndex &) const
{
    if (children.isEmpty())
        return -1;
    if (children.size() == 1)
        return children.first().first;
    const QPair<int, QRect> &first = children.at(children.size() - 2);
    const QPair<int, QRect> &second = children.last();
    const bool isSmaller = first.second.width() < second.second.width()
                           && first.second.height() < second.second.height();
    return isSmaller ? first.first : second.first;
}

void INxItemBasePainter::mouseEventFilterInChild(const NxMediaItemMouseEvent &event,
                                                 const int &child)
{
    m_useEvent = mueNone;
    if (!m_children.contains(child) || childStatus(child) == mcsDisabled) {
        leaveHoveredChildren();
        return;
    }
    bool completes = false;
    if (event == mmeLeftPress || event == mmeOtherPress) {
        m_isPressed = true;
        m_pressedChild = child;
        changeStatus(child, mcsPressed);
        completes = true;
    } else if (event == mmeLeftRelease || event == mmeOtherRelease) {
        m_isPressed = false;
        changeStatus(child, mcsNormal);
        changeStatus(m_pressedChild, mcsNormal);
        completes = child == m_pressedChild;
    } else if (event == mmeMove) {
        const bool isHeld = m_isPressed && child == m_pressedChild;
        changeStatus(child, isHeld ? mcsPressed : mcsHovered);
    } else if (event == mmeDoubleClick) {
        changeStatus(child, mcsNormal);
        completes = true;
    }
    if (completes)
        usageEventFromFromChild(child);
    settleOtherChildren(child);
}

QRect INxItemBasePainter::nameEditorRect(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {};
}

void INxItemBasePainter::setSize(const QSize &size)
{
    m_size = size;
    changeItemChildrenRect();
}

NxMediaItemEventCondition INxItemBasePainter::useEventCondition() const
{
    return mediaItemEventCondition(m_mouseEvent);
}

int INxItemBasePainter::mouseInChild(const QPoint &position, const QModelIndex &index) const
{
    QList<QPair<int, QRect>> hit;
    for (auto child = m_children.cbegin(); child != m_children.cend(); ++child) {
        if (child->isEnabled && child->rect.contains(position))
            hit.append({child.key(), child->rect});
    }
    return hit.isEmpty() ? -1 : mouseInChildCrossPositionJudgement(hit, index);
}

bool INxItemBasePainter::updateMouseEventInItem(const QPoint &position, NxMediaItemMouseEvent event,
                                                const QModelIndex &index)
{
    m_mouseEvent = event;
    changeItemChildrenRect(index);
    const int before = m_mouseInChild;
    m_mouseInChild = mouseInChild(position, index);
    m_mousePosition = position;
    mouseEventFilterInChild(event, m_mouseInChild);
    return m_mouseInChild != before || m_repaintsOnMouseMove;
}

NxMediaItemChildStatus INxItemBasePainter::childStatus(int child) const
{
    return m_children.value(child).status;
}

void INxItemBasePainter::setChildStatus(int child, NxMediaItemChildStatus status)
{
    const auto found = m_children.find(child);
    if (found != m_children.end())
        found->status = status;
}

QRect INxItemBasePainter::childRect(int child) const
{
    return m_children.value(child).rect;
}

bool INxItemBasePainter::isChildEnabled(int child) const
{
    const auto found = m_children.constFind(child);
    return found != m_children.constEnd() && found->isEnabled;
}

void INxItemBasePainter::setChildEnabled(int child, bool enabled)
{
    const auto found = m_children.find(child);
    if (found != m_children.end())
        found->isEnabled = enabled;
}

QRect INxItemBasePainter::itemConvertViewChildRect(const int &childId,
                                                   const QPoint &itemTopLeft) const
{
    return childRect(childId).translated(itemTopLeft);
}

void INxItemBasePainter::setPaintColor(const int &penWidth, const QColor &penColor,
                                       const QColor &brushColor, const QFont &font,
                                       NxMediaItemState state)
{
    m_styles.insert(state, {penWidth, penColor, brushColor, font});
}

void INxItemBasePainter::adjustDrawingStyle(QPainter *painter, NxMediaItemState state) const
{
    if (!painter)
        return;
    const auto found = m_styles.constFind(state);
    const Style style = found != m_styles.constEnd() ? *found : m_styles.value(misNormal);
    QPen pen = painter->pen();
    pen.setWidth(style.penWidth);
    pen.setColor(style.penColor);
    QBrush brush = painter->brush();
    brush.setColor(style.brushColor);
    painter->setPen(pen);
    painter->setBrush(brush);
    painter->setFont(style.font);
}

QPixmap INxItemBasePainter::getPicture(NxMediaItemChildStatus status, const QPixmap &disabled,
                                       const QPixmap &hover, const QPixmap &normal,
                                       const QPixmap &pressed) const
{
    if (status == mcsInitial || status == mcsNormal)
        return normal;
    if (status == mcsHovered)
        return hover;
    return status == mcsPressed ? pressed : disabled;
}

void INxItemBasePainter::roundedRectClip(QPainter *painter, QRect &rect, double xRadius,
                                         double yRadius) const
{
    if (!painter)
        return;
    QPainterPath path;
    path.addRoundedRect(QRectF(rect), xRadius, yRadius, Qt::AbsoluteSize);
    painter->setClipPath(path);
}

void INxItemBasePainter::setChildRect(int child, const QRect &rect)
{
    const auto found = m_children.find(child);
    if (found != m_children.end())
        found->rect = rect;
}

/// As setChildStatus(), but a disabled child stays so whatever the mouse does.
void INxItemBasePainter::changeStatus(int child, NxMediaItemChildStatus status)
{
    if (childStatus(child) != mcsDisabled)
        setChildStatus(child, status);
}

void INxItemBasePainter::leaveHoveredChildren()
{
    for (Child &child : m_children) {
        if (child.status == mcsHovered)
            child.status = mcsNormal;
    }
}

void INxItemBasePainter::settleOtherChildren(int child)
{
    for (auto other = m_children.begin(); other != m_children.end(); ++other) {
        if (other.key() != child && other->status != mcsDisabled)
            other->status = mcsNormal;
    }
}
