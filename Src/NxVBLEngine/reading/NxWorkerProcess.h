// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxWorkerProtocol/NxSharedMemory.h>
#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <QObject>
#include <QProcess>
#include <QString>

#include <memory>

/// Why a worker is no more.
enum class NxWorkerEnd {
    NotStarted, ///< There is no such program, or it must not be run.
    WrongVersion, ///< It is of another version than the editor.
    Crashed, ///< Also when it was killed from outside.
    TooMuchMemory,
    Confused, ///< What it said was no message.
    Closed, ///< It was asked to.
};

/// One running brevano-worker. Used on the thread it was made on, which needs an event loop.
/// Whoever hears a signal may give it up with deleteLater(), not delete it on the spot.
class NXVBLENGINE_TEST_EXPORT NxWorkerProcess final : public QObject
{
    Q_OBJECT
public:
    /// With a memory, which is handed to it: one that plays films and is spoken to by say().
    NxWorkerProcess(QString program, QString cacheFolder,
                    std::shared_ptr<const NxSharedMemory> memory = nullptr);
    /// Ends the program. One that cannot even be killed, because it waits for a disk without end,
    /// is left to the system.
    ~NxWorkerProcess() override;

    void start();
    /// True when it has said hello and waits for a request.
    [[nodiscard]] bool isReady() const { return m_isReady; }
    /// False as long as it may be no worker at all.
    [[nodiscard]] bool hasGreeted() const { return m_greeted; }
    /// What it said of itself; valid when it has said hello.
    [[nodiscard]] const NxWorkerHello &hello() const { return m_hello; }
    [[nodiscard]] qint64 processId() const;
    [[nodiscard]] bool isRunning() const { return m_process->state() != QProcess::NotRunning; }
    void ask(const NxReadRequest &request);
    void say(NxWorkerWord word, const QByteArray &bytes);
    /// Lets it go when it has no work; ended() follows.
    void close();
    void kill();

Q_SIGNALS:
    void ready();
    void opened(quint64 number);
    void answered(const NxReadAnswer &answer);
    /// One that plays films said something.
    void said(const NxWorkerFrames::Frame &frame);
    /// It is of no more use, though it may still run for a moment. Once; `why` is a sentence for
    /// the log.
    void ended(NxWorkerEnd end, const QString &why);
    /// It runs no more. The last signal, and only of one that was running.
    void gone();

private:
    void onBytes();
    void onFinished(int code, QProcess::ExitStatus status);
    void onFailed(QProcess::ProcessError error);
    void stopWatchingInputSoon();
    void stopWatchingInput();
    void take(const NxWorkerFrames::Frame &frame);
    void greet(const QByteArray &bytes);
    void takeAnswer(const QByteArray &bytes);
    void end(NxWorkerEnd end, const QString &why);

    const QString m_program;
    const bool m_isPlaying;
    std::unique_ptr<QProcess> m_process;
    NxWorkerFrames m_frames;
    NxWorkerHello m_hello;
    bool m_greeted = false;
    bool m_isReady = false;
    bool m_closing = false;
    bool m_ended = false;
};
