// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxItemMediaIconBasePainter.h>

#include <QFontMetrics>
#include <QPainter>

namespace {

void drawBar(QPainter *painter, const QRect &rect, const QColor &color)
{
    constexpr qreal radius = 2.0;
    painter->setPen(QPen(color, 1));
    painter->setBrush(QBrush(color, Qt::SolidPattern));
    painter->drawRoundedRect(rect, radius, radius);
}

} // namespace

NXMEDIALIBRARY::NxMediaItemViewMode INxItemMediaIconBasePainter::m_modeItemView =
    NXMEDIALIBRARY::vmLargeThumbnail;

INxItemMediaIconBasePainter::INxItemMediaIconBasePainter(QObject *parent)
    : INxItemBasePainter(parent)
{
    const QColor white(QStringLiteral("#FFFFFF"));
    setPaintColor(1, white, white, QFont(), misNormal);
}

INxItemMediaIconBasePainter::~INxItemMediaIconBasePainter() = default;

void INxItemMediaIconBasePainter::changeItemChildrenRect() {}

void INxItemMediaIconBasePainter::draw(QPainter *, const QStyleOptionViewItem &,
                                       const QModelIndex &, NxMediaItemState) const
{
}

void INxItemMediaIconBasePainter::initPaintStateInfo() {}

void INxItemMediaIconBasePainter::usageEventFromFromChild(const int &) {}

NxMediaItemEventCondition INxItemMediaIconBasePainter::mouseEventCondition() const
{
    return useEventCondition();
}

void INxItemMediaIconBasePainter::drawTxt(QPainter *painter, const QRect &rect, const QString &text,
                                          int flags) const
{
    if (!painter)
        return;
    const QString shown =
        painter->fontMetrics().elidedText(text, Qt::ElideRight, rect.width(), Qt::TextShowMnemonic);
    painter->drawText(rect, flags, shown);
}

void INxItemMediaIconBasePainter::drawProgress(QPainter *painter, const QRect &progressRect,
                                               const QColor &progressColor, const QRect &backRect,
                                               const QColor &backColor) const
{
    if (!painter)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawBar(painter, backRect, backColor);
    drawBar(painter, progressRect, progressColor);
    painter->restore();
}

void INxItemMediaIconBasePainter::drawSelectEffect(QPainter *painter, const QRect &rect,
                                                   const QColor &color) const
{
    if (!painter)
        return;
    constexpr int width = 2;
    constexpr qreal radius = 4.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, width));
    painter->drawRoundedRect(rect.adjusted(1, 1, -1, 0), radius, radius);
    painter->restore();
}

void INxItemMediaIconBasePainter::setViewMode(NXMEDIALIBRARY::NxMediaItemViewMode mode)
{
    m_modeItemView = mode;
    setSize(m_sizes.value(mode));
}

NxMediaItemUsageEvents INxItemMediaIconBasePainter::mouseEventResult() const
{
    return NxMediaItemUsageEvents(useEvent());
}

void INxItemMediaIconBasePainter::setViewModeSize(NXMEDIALIBRARY::NxMediaItemViewMode mode,
                                                  const QSize &size)
{
    m_sizes.insert(mode, size);
}
