// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/preview/NxPreviewSettings.h>
#include <NxVBLEngine/preview/NxPreviewThread.h>

#include <NxCore/NxDoorbell.h>

#include <QHash>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

/// The films that are played as previews, one at a time: the one that was asked for last.
///
/// Nothing here waits. What is not rendered yet is asked for and not there; what was rendered
/// ahead is copied out of the memory that the worker shares. Used from one thread.
class NXVBLENGINE_TEST_EXPORT NxPreviewService final : public QObject
{
    Q_OBJECT
public:
    explicit NxPreviewService(NxPreviewSettings settings);
    /// Ends the worker.
    ~NxPreviewService() override;

    /// Plays a file from its beginning, in pictures of the size of a film strip's. `output` (px)
    /// is their shape. Answers the film by which it is asked for.
    [[nodiscard]] quint64 add(const QString &path, QSize output);
    void remove(quint64 film);
    void setOutput(quint64 film, QSize output);
    /// 0 while it is not known, and for files that cannot be played.
    [[nodiscard]] qint64 frameCount(quint64 film);
    /// Copies a frame in that size (px) to `rgb32`; false when it is not there yet, and then it
    /// was asked for and nothing is written.
    bool copyFrame(quint64 film, qint64 frame, QSize size, uchar *rgb32);

    /// Of the worker; 0 while none runs. Waits for an answer.
    [[nodiscard]] qint64 processId() { return m_thread.processId(); }

private:
    struct Film
    {
        QString path;
        QSize output;
        qint64 frames = -1; // Not known.
    };

    void play(quint64 film, qint64 frame, QSize size);
    void show(qint64 frame, QSize size);
    void stopPlaying();
    void order(NxPreviewOrder::What what);
    void takeNews();
    void takeOpened(const NxPreviewNews &news);
    void takeFrame(const NxPreviewNews &news);
    void takeLoss(const NxPreviewNews &news);
    void giveBack(qint64 frame);
    void giveBackAll();
    [[nodiscard]] bool isWanted(qint64 frame) const;
    [[nodiscard]] bool isPlaying(quint64 film) const { return m_playing && film == m_film; }

    QHash<quint64, Film> m_films;
    quint64 m_lastFilm = 0;
    quint64 m_film = 0; // That is played; 0: none.
    quint64 m_number = 0; // By which the worker knows it; another each time it is opened.
    bool m_playing = false; // The thread was asked for it, and has not lost it.
    qint64 m_shown = 0;
    QSize m_size;
    std::shared_ptr<const NxSharedMemory> m_memory; // Of the pictures that are held.
    QHash<qint64, quint32> m_held; // The slot of each frame that is here.
    quint32 m_freed = 0; // Slots to be given back with the next order.
    NxDoorbell m_bell;
    NxPreviewThread m_thread; // The last: it rings the bell.
};
