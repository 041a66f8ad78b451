// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/preview/NxPreviewNews.h>
#include <NxVBLEngine/preview/NxPreviewOrder.h>
#include <NxVBLEngine/preview/NxPreviewSettings.h>
#include <NxVBLEngine/reading/NxWorkerBurial.h>
#include <NxVBLEngine/reading/NxWorkerProcess.h>

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

/// Speaks with the one worker that plays films, a film at a time.
///
/// A file that ends the worker while it works, by a crash, by silence or by talk that makes no
/// sense, is tried once more with a fresh worker; when it ends that one, too, it is given up for
/// good. The worker starts with the first film and is let go when nobody has asked for a while.
/// Whatever it says is checked before it is told.
///
/// Used on the thread it was made on, which needs an event loop.
class NXVBLENGINE_TEST_EXPORT NxPreviewPlayer final : public QObject
{
    Q_OBJECT
public:
    using Tell = std::function<void(NxPreviewNews)>;

    NxPreviewPlayer(NxPreviewSettings settings, Tell tell);
    /// Ends the worker.
    ~NxPreviewPlayer() override;

    void obey(const NxPreviewOrder &order);
    /// 0 while no worker runs.
    [[nodiscard]] qint64 processId() const;

private:
    /// A film that the worker was asked for and may be busy with.
    struct Asked
    {
        quint64 number = 0;
        QByteArray path;
        quint64 turnBefore = 0; // Once it rests from that turn, it is busy with this film.
        bool isAnswered = false;
        qint64 frames = 0; // As the worker says.
    };
    struct Killer
    {
        int workers = 0; // That the file has ended.
        QString reason; // Of the last.
    };

    void play(const NxPreviewOrder &order);
    void show(const NxPreviewOrder &order);
    void close(const NxPreviewOrder &order);
    void takeShow(const NxPreviewOrder &order);
    void ensureProcess();
    void start(const QString &program);
    [[nodiscard]] bool isListening() const { return m_process && m_process->hasGreeted(); }
    void sendOpen(const NxPreviewOpen &film);
    void sendShow();
    void onReady();
    void onSaid(const NxWorkerFrames::Frame &frame);
    [[nodiscard]] bool takeOpened(const QByteArray &bytes);
    [[nodiscard]] bool takeFrame(const QByteArray &bytes);
    [[nodiscard]] bool takeRested(const QByteArray &bytes);
    [[nodiscard]] Asked *asked(quint64 number);
    [[nodiscard]] bool isAtWork() const;
    void watch();
    void onEnded(NxWorkerEnd end, const QString &why);
    void onSilent();
    void onVainStart(NxWorkerEnd end, const QString &why);
    void strike(const QString &reason);
    void stop();
    void letGo(quint64 stopped);
    void giveUp(const QString &why);
    void tellUnplayable(quint64 number, const QString &reason);

    const NxPreviewSettings m_settings;
    const Tell m_tell;
    std::unique_ptr<NxWorkerProcess> m_process;
    std::shared_ptr<const NxSharedMemory> m_memory; // Of the process; each has its own.
    NxWorkerBurial m_burial;
    QTimer m_limitTimer;
    QTimer m_idleTimer;
    std::optional<NxPreviewOpen> m_film; // What is to be played.
    NxPreviewShow m_show; // And what of it.
    std::deque<Asked> m_asked; // The oldest first.
    quint64 m_turnSent = 0;
    quint64 m_turnRested = 0;
    quint32 m_lent = 0; // Slots of pictures that were told.
    quint32 m_freed = 0; // Those among them that the worker is to get back.
    QHash<QByteArray, Killer> m_killers; // By path.
    QString m_givenUp; // Why no worker is started any more.
    int m_vainStarts = 0; // In a row.
};
