// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFittedPictures_p.h>

#include <QPainter>

namespace {

constexpr int MostKiB = 64 * 1024;
constexpr int BytesPerKiB = 1024;

bool isPaintedAsItIs(const QImage &picture)
{
    return picture.format() == QImage::Format_RGB32
           || picture.format() == QImage::Format_ARGB32_Premultiplied;
}

QSize sizeIn(const QSize &box, const QImage &picture, NxFittedPictures::Fit fit)
{
    const QSize size = picture.size();
    const bool isSmall = size.width() <= box.width() && size.height() <= box.height();
    if (isSmall && fit == NxFittedPictures::Fit::Shrink)
        return size;
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage::Format paintedFormat(const QImage &picture)
{
    return picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
}

/// Looks at four pixels of the picture for each of its own, however many there are between them.
QImage quicklyInSize(const QImage &picture, const QSize &size)
{
    QImage sized(size, paintedFormat(picture));
    QPainter painter(&sized);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(sized.rect(), picture);
    return sized;
}

QImage inSize(const QImage &picture, const QSize &size)
{
    QImage plain = picture;
    plain.setDevicePixelRatio(1.0);
    if (plain.size() != size)
        plain = plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return plain.convertToFormat(paintedFormat(picture));
}

} // namespace

NxFittedPictures::NxFittedPictures(Fit fit) : m_fit(fit), m_entries(MostKiB) {}

QImage NxFittedPictures::fitted(INxAbstractMedia *media, const QImage &picture, const QSize &box)
{
    if (picture.isNull() || box.isEmpty())
        return {};
    const QSize size = sizeIn(box, picture, m_fit);
    if (size == picture.size() && isPaintedAsItIs(picture) && picture.devicePixelRatio() == 1.0)
        return picture;
    const Entry *known = m_entries.object(media);
    if (known && known->media.get() == media && known->sourceKey == picture.cacheKey()
        && known->box == box)
        return known->fitted;
    ++m_madeCount;
    const QImage sized =
        m_fit == Fit::FillQuickly ? quicklyInSize(picture, size) : inSize(picture, size);
    auto *entry = new Entry{NxMediaRef(media), picture.cacheKey(), box, sized};
    const QImage answer = entry->fitted;
    m_entries.insert(media, entry, int(answer.sizeInBytes() / BytesPerKiB) + 1);
    return answer;
}

QImage NxFittedPictures::made(const QImage &picture, const QSize &box)
{
    return inSize(picture, sizeIn(box, picture, Fit::Fill));
}
