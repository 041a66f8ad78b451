// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaCovers_p.h>

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxSkinPicture.h>

namespace {

/// What is remembered of a row whose GIF is being read; no frame has this key.
constexpr qint64 NotReadYet = 0;

/// The crisper of its two pictures: it is made smaller once for each size.
QImage loaded(const QString &path)
{
    constexpr qreal crisp = 2.0;
    QImage picture = path.isEmpty() ? QImage() : NxSkinPicture(path).pixmap(crisp).toImage();
    picture.setDevicePixelRatio(1.0);
    return picture;
}

} // namespace

NxMediaCovers::NxMediaCovers()
{
    m_sound.picture = loaded(NxMediaLibraryUtils::getDefaultAudioThumbnailImagePath());
    m_subtitle.picture = loaded(NxMediaLibraryUtils::getDefaultSubtitleThumbnailImagePath());
}

QImage NxMediaCovers::cover(const QModelIndex &index, INxAbstractMedia *media, const QSize &box,
                            const Sources &sources)
{
    const QImage preview = previewFrame(media, box, sources.preview);
    if (!preview.isNull())
        return preview;
    const QImage gif = gifFrame(index, media, box);
    if (!gif.isNull())
        return gif;
    if (sources.thumbs) {
        const QImage own = m_covers.fitted(media, sources.thumbs->thumbnail(media, box), box);
        if (!own.isNull())
            return own;
    }
    return sharedCover(*media, box);
}

QVector<QPersistentModelIndex> NxMediaCovers::takeGifRows()
{
    QVector<QPersistentModelIndex> rows;
    for (auto row = m_gifRows.begin(); row != m_gifRows.end();) {
        QImage frame;
        const bool isShown = row.key().isValid();
        const bool plays =
            isShown && NxGifPreviewHelper::getInstance()->getImage(mediaAt(row.key()), frame);
        const bool isStillRead =
            isShown && row.value() == NotReadYet
            && NxGifPreviewHelper::getInstance()->isAwaited(mediaAt(row.key()));
        if ((plays && frame.cacheKey() == row.value()) || isStillRead) {
            ++row;
            continue;
        }
        if (isShown)
            rows.append(row.key());
        row = m_gifRows.erase(row);
    }
    return rows;
}

/// Null for whatever does not play now, and for the blank frame behind a film strip.
QImage NxMediaCovers::previewFrame(INxAbstractMedia *media, const QSize &box,
                                   INxPreviewFrameHelper *helper)
{
    if (!helper || helper->getMedia() != media || helper->isBeyondStrip())
        return {};
    QImage frame;
    if (!helper->getCurIndexPlayThumbnail(frame) || frame.isNull())
        return {};
    // Each question is answered with another copy of the same frame.
    if (m_preview.box != box || m_preview.frame != frame)
        m_preview = {frame, box, NxFittedPictures::made(frame, box)};
    return m_preview.fitted;
}

QImage NxMediaCovers::gifFrame(const QModelIndex &index, INxAbstractMedia *media, const QSize &box)
{
    if (media->kindCode() != NXVBLMODEL::mkcAnimatedImage)
        return {};
    QImage frame;
    NxGifPreviewHelper *const gifs = NxGifPreviewHelper::getInstance();
    if (!gifs->getImage(media, frame) || frame.isNull()) {
        if (gifs->isAwaited(media)) // Nothing else may have it painted once it plays.
            m_gifRows.insert(index, NotReadYet);
        return {};
    }
    m_gifRows.insert(index, frame.cacheKey());
    return m_gifs.fitted(media, frame, box);
}

QImage NxMediaCovers::sharedCover(const INxAbstractMedia &media, const QSize &box)
{
    SharedCover *cover = NxMediaLibraryUtils::isAudio(&media)      ? &m_sound
                         : NxMediaLibraryUtils::isSubtitle(&media) ? &m_subtitle
                                                                   : nullptr;
    return cover ? cover->fitted.fitted(nullptr, cover->picture, box) : QImage();
}
