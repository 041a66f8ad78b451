// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QtGlobal>

#include <memory>

class INxClip;
class INxMediaEngine;
class INxTimeline;

/// The video that plays in place of a cover: one clip on a timeline of its own, which goes on from
/// one video to the next. Waits for nothing. GUI thread only.
class NxPreviewVideo
{
    Q_DISABLE_COPY_MOVE(NxPreviewVideo)
public:
    NxPreviewVideo();
    ~NxPreviewVideo();

    [[nodiscard]] QString path() const { return m_path; }
    /// A path without "mp4" shows nothing. The same path again changes nothing.
    void setPath(const QString &path);

    [[nodiscard]] bool hasTimeline() const { return m_timeline != nullptr; }
    /// 0 while it is not known.
    [[nodiscard]] qint64 frameCount() const;
    /// While the frame is not at hand, the last one of this video in this size; null when there is
    /// none.
    [[nodiscard]] QImage frame(qint64 number, int width, int height);

private:
    void show(const QString &path);
    /// False when the timeline does not give the clip back.
    [[nodiscard]] bool destroyClip();

    QString m_path;
    const INxMediaEngine *m_engine = nullptr; // Which made the timeline; never looked into.
    std::unique_ptr<INxTimeline> m_timeline;
    INxClip *m_clip = nullptr; // Owned by the timeline.
    QImage m_last; // The picture that was shown last.
    qint64 m_lastNumber = -1;
};
