// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxRowCanvas_p.h>

#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>

namespace {

constexpr qreal DetailScale = 0.84; // Of the font of names.
constexpr int SmallestDetail = 8; // px
constexpr qreal Corner = 4.0;

QFont detailFont(const QFont &font)
{
    QFont smaller = font;
    if (font.pixelSize() > 0)
        smaller.setPixelSize(qMax(SmallestDetail, qRound(font.pixelSize() * DetailScale)));
    else
        smaller.setPointSizeF(font.pointSizeF() * DetailScale);
    return smaller;
}

} // namespace

NxRowCanvas::NxRowCanvas(QPainter *painter, const QStyleOptionViewItem &option, NxRowCaches *caches)
    : m_painter(painter),
      m_option(option),
      m_caches(caches),
      m_ratio(painter->device()->devicePixelRatioF())
{
}

bool NxRowCanvas::isRightToLeft() const
{
    return m_option.direction == Qt::RightToLeft;
}

QSize NxRowCanvas::devicePixels(const QSize &size) const
{
    return (QSizeF(size) * m_ratio).toSize();
}

void NxRowCanvas::ground(const QRect &place, const QColor &colour) const
{
    if (place.isEmpty())
        return;
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing);
    m_painter->setPen(Qt::NoPen);
    m_painter->setBrush(colour);
    m_painter->drawRoundedRect(place, Corner, Corner);
    m_painter->restore();
}

void NxRowCanvas::glyph(NxGlyph glyph, const QRect &place, const QColor &colour,
                        const QColor &ground) const
{
    if (place.isEmpty())
        return;
    const int side = qMin(place.width(), place.height());
    m_painter->drawPixmap(place.topLeft(),
                          m_caches->glyphs.picture(glyph, side, colour, m_ratio, ground));
}

void NxRowCanvas::name(const QString &text, const QRect &place, const QColor &colour) const
{
    m_painter->setPen(colour);
    line(m_caches->names, m_option.font, text, place, Qt::AlignLeft);
}

void NxRowCanvas::detail(const QString &text, const QRect &place, const QColor &colour,
                         Qt::Alignment alignment) const
{
    m_painter->setPen(colour);
    line(m_caches->details, detailFont(m_option.font), text, place, alignment);
}

void NxRowCanvas::badge(const QString &text, const QRect &place, const QColor &ink,
                        const QColor &ground) const
{
    const QPixmap badge = m_caches->badges.picture(
        text, {detailFont(m_option.font), ink, ground, place.width(), place.height(), m_ratio});
    if (badge.isNull())
        return;
    const QSize size = (QSizeF(badge.size()) / m_ratio).toSize();
    const QRect where =
        QStyle::alignedRect(m_option.direction, Qt::AlignLeft | Qt::AlignTop, size, place);
    m_painter->drawPixmap(where.topLeft(), badge);
}

void NxRowCanvas::picture(const QImage &picture, const QRect &place) const
{
    if (picture.isNull() || place.isEmpty())
        return;
    const QSize room = devicePixels(place.size()) - picture.size();
    const QPointF inset(room.width() / 2, room.height() / 2);
    if (m_ratio == 1.0) {
        m_painter->drawImage(place.topLeft() + inset.toPoint(), picture);
        return;
    }
    // A picture with a ratio of its own would be a copy.
    m_painter->save();
    m_painter->scale(1 / m_ratio, 1 / m_ratio);
    m_painter->drawImage(QPointF(place.topLeft()) * m_ratio + inset, picture);
    m_painter->restore();
}

void NxRowCanvas::line(NxElidedTexts &texts, const QFont &font, const QString &text,
                       const QRect &place, Qt::Alignment alignment) const
{
    if (text.isEmpty() || place.isEmpty())
        return;
    const QStaticText laid = texts.text(text, place.width(), font);
    const QRect where = QStyle::alignedRect(m_option.direction, alignment | Qt::AlignVCenter,
                                            laid.size().toSize(), place);
    m_painter->setFont(font);
    if (where.height() <= place.height()) {
        m_painter->drawStaticText(where.topLeft(), laid);
        return;
    }
    m_painter->save();
    m_painter->setClipRect(place, Qt::IntersectClip);
    m_painter->drawStaticText(where.topLeft(), laid);
    m_painter->restore();
}
