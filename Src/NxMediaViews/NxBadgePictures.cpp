// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxBadgePictures_p.h>

#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr int MostBadges = 1024; // Several screens full, a few KiB each.
constexpr int WidestBadge = 512; // px
constexpr int Padding = 4;
constexpr qreal Corner = 3.0;

QPixmap drawn(const QString &text, const NxBadgePictures::Look &look)
{
    const QFontMetrics metrics(look.font);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, look.width - 2 * Padding);
    if (shown.isEmpty())
        return {};
    const QSize size(qMin(look.width, metrics.horizontalAdvance(shown) + 2 * Padding), look.height);
    QPixmap badge((QSizeF(size) * look.devicePixelRatio).toSize());
    badge.setDevicePixelRatio(look.devicePixelRatio);
    badge.fill(Qt::transparent);
    QPainter painter(&badge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.ground);
    const QRect whole({0, 0}, size);
    painter.drawRoundedRect(whole, Corner, Corner);
    painter.setPen(look.ink);
    painter.setFont(look.font);
    painter.drawText(whole, Qt::AlignCenter | Qt::TextSingleLine, shown);
    return badge;
}

} // namespace

NxBadgePictures::NxBadgePictures() : m_badges(MostBadges) {}

QPixmap NxBadgePictures::picture(const QString &text, const Look &look)
{
    if (text.isEmpty() || look.width <= 2 * Padding || look.height <= 0)
        return {};
    if (look.font != m_font) {
        m_badges.clear();
        m_font = look.font;
    }
    // Rooms differ, most badges do not: a row whose button appears keeps its picture.
    Look roomy = look;
    roomy.width = WidestBadge;
    const QPixmap whole = kept(text, roomy);
    const bool fits = whole.width() <= qRound(look.width * look.devicePixelRatio);
    return fits ? whole : kept(text, look);
}

QPixmap NxBadgePictures::kept(const QString &text, const Look &look)
{
    const Key key{text,       look.ink.rgba(), look.ground.rgba(),
                  look.width, look.height,     look.devicePixelRatio};
    if (const QPixmap *known = m_badges.object(key))
        return *known;
    auto *badge = new QPixmap(drawn(text, look));
    const QPixmap answer = *badge;
    m_badges.insert(key, badge);
    return answer;
}
