// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QHash>
#include <QImage>
#include <QModelIndex>
#include <QObject>
#include <QPersistentModelIndex>
#include <QString>

#include <memory>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxVCGMediaItem;
class NxFilmStripSource;
class NxPreviewVideo;
class QTimer;

/// Plays one media in place of its cover while the pointer rests on it, 25 frames a second.
///
/// A file of the project shows its film strip; a stock item and a clip of the stock provider show
/// a video, which may have to be fetched first. Frames are 144 x 81 px. Nothing here waits for a
/// disk or a decoder: what is not at hand yet is asked for, and the cover stays until it comes.
/// A media that dies is no longer played. GUI thread only.
class NXMEDIALIBRARY_EXPORT INxPreviewFrameHelper : public QObject
{
    Q_OBJECT
public:
    explicit INxPreviewFrameHelper(QObject *parent = nullptr);
    ~INxPreviewFrameHelper() override;

    /// Holds a media and finds out what there is to show of it; starts nothing. What was waited
    /// for on behalf of the media before is forgotten. The media is not owned and may be null.
    void setMedia(const QModelIndex &index, INxAbstractMedia *media);
    /// Null when none is held or it died.
    [[nodiscard]] INxAbstractMedia *getMedia() const;

    /// Takes the preview of a stock item, and has it fetched once if it is not here.
    void setMediaInStockMedia(INxAbstractMediaItem *item);
    /// Takes the file of a provider's clip; looks again after half a second if the clip is about
    /// to come. Playing must then be started again.
    void setMediaInVCGMedia(INxAbstractMediaItem *item);

    /// On at first. Switching it off keeps further playing from starting.
    [[nodiscard]] bool isEnablePlayThumbnail() const { return m_isEnabled; }
    void setEnablePlayThumbnail(bool enable) { m_isEnabled = enable; }

    /// Starts from the first frame. True when it plays, and when no media is held. False while it
    /// is disabled or there is nothing to show; a film strip that is still on its way begins to
    /// play by itself when it comes.
    bool playPreviewFrame();
    /// Stands still at one frame: `place` goes from 0, the first, to 1, the last. False, and
    /// nothing changes, while there is nothing to show yet.
    bool showPreviewFrame(qreal place);
    /// Stops, and lets go of the media that was playing or about to; a clip that was waited for
    /// is forgotten.
    void stopPreviewFrame();

    /// The frame to be painted now; false when there is none. True and `out` untouched for a
    /// frame behind the last one of a video, or while its length is unknown; a null image while
    /// no frame of a video came yet.
    bool getCurIndexPlayThumbnail(QImage &out) const;
    /// True when the present frame lies below the film strip, as it does once at the end of every
    /// round: its picture is blank, and a painter draws the cover instead.
    [[nodiscard]] bool isBeyondStrip() const;
    /// A frame of the play video in 32 bits without transparency. While it is not at hand, the
    /// one shown before in this size; null when there is none.
    [[nodiscard]] QImage getTimelineFrame(qint64 frame, int width, int height) const;

    /// The film strip, frames stacked every 81 px; null when there is none, or not yet.
    [[nodiscard]] QImage getPlayThumbnail() const { return m_strip; }
    /// In place of one that may be on its way.
    void setPlayThumbnail(const QImage &strip);

    /// The path of the video that is shown; empty when there is none.
    [[nodiscard]] QString getPlayVideo() const;
    /// Shows a video from now on; a path without "mp4" shows none. The same path again changes
    /// nothing.
    void setPlayVideo(const QString &path);

Q_SIGNALS:
    /// The row is to be painted again. Invalid when the model was reset since setMedia().
    void sigUpdate(const QModelIndex &index);

private Q_SLOTS:
    void slotPlayThumbnailTimeout();
    void slotDownloadVCGMediaTimeout();

private:
    [[nodiscard]] bool isDead() const { return m_isHolding && m_media.isNull(); }
    [[nodiscard]] bool isVideoHeld() const;
    [[nodiscard]] int frameCount() const;
    [[nodiscard]] bool isRequested(INxAbstractMediaItem *item) const;
    void requestPreview(INxAbstractMediaItem *item);
    void forgetWaiting();
    void takeStrip(const QImage &strip);
    void stepVideo();
    void stepStrip();
    void step(bool hasMore);

    int m_frame = 0;
    QTimer *const m_frameTimer; // A child, as the next one is.
    QTimer *const m_downloadTimer;
    QImage m_strip;
    bool m_isEnabled = true;
    bool m_isPlayWanted = false; // To be played when its film strip comes.
    bool m_isHeld = false; // At one frame.
    QPersistentModelIndex m_index;
    NxMediaRef m_media;
    bool m_isHolding = false; // Also when the media died.
    NxMediaRef m_waiting; // The provider's clip whose file is about to come.
    QHash<INxAbstractMediaItem *, NxMediaRef> m_requested; // A null reference: no entry.
    const std::unique_ptr<NxPreviewVideo> m_video;
    const std::unique_ptr<NxFilmStripSource> m_strips;
};
