// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerProcess.h>

#include <NxCore/NxDiskBan.h>
#include <NxVBLEngine/reading/NxForkGuard.h>
#include <NxWorkerProtocol/NxWorkerExit.h>

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QSocketNotifier>

#include <optional>
#include <utility>

namespace {

constexpr int LongestFarewell = 1'000; // ms

/// A process that keeps the memory that its program is to share.
class SharingProcess final : public QProcess
{
public:
    explicit SharingProcess(std::shared_ptr<const NxSharedMemory> memory)
        : m_memory(std::move(memory))
    {
    }

protected:
    void setupChildProcess() override
    {
        if (m_memory)
            m_memory->passOn();
    }

private:
    const std::shared_ptr<const NxSharedMemory> m_memory;
};

bool isOfPreviews(NxWorkerWord word)
{
    return word >= NxWorkerWord::PreviewOpened;
}

} // namespace

NxWorkerProcess::NxWorkerProcess(QString program, QString cacheFolder,
                                 std::shared_ptr<const NxSharedMemory> memory)
    : m_program(std::move(program))
    , m_isPlaying(memory != nullptr)
    , m_process(std::make_unique<SharingProcess>(memory))
{
    QStringList arguments{std::move(cacheFolder)};
    if (memory)
        arguments += {QStringLiteral("--preview"), memory->name()};
    m_process->setProgram(m_program);
    m_process->setArguments(arguments);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &NxWorkerProcess::onBytes);
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
        &NxWorkerProcess::onFinished);
    connect(m_process.get(), &QProcess::errorOccurred, this, &NxWorkerProcess::onFailed);
}

NxWorkerProcess::~NxWorkerProcess()
{
    m_process->disconnect(this);
    if (m_process->state() == QProcess::NotRunning)
        return;
    m_process->kill();
    if (!m_process->waitForFinished(LongestFarewell))
        m_process.release(); // Its own destructor would wait half a minute for a dead disk.
}

void NxWorkerProcess::start()
{
    NxDiskBan::note("NxWorkerProcess::start");
    const NxForkGuard guard;
    m_process->start(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

qint64 NxWorkerProcess::processId() const
{
    return m_process->processId();
}

void NxWorkerProcess::ask(const NxReadRequest &request)
{
    NxDiskBan::note("NxWorkerProcess::ask");
    m_isReady = false;
    say(NxWorkerWord::Request, NxWorkerMessages::packed(request));
}

void NxWorkerProcess::say(NxWorkerWord word, const QByteArray &bytes)
{
    m_process->write(NxWorkerFrames::framed(word, bytes));
}

void NxWorkerProcess::close()
{
    m_closing = true;
    m_isReady = false;
    m_process->closeWriteChannel();
}

void NxWorkerProcess::kill()
{
    m_isReady = false;
    m_process->kill();
}

void NxWorkerProcess::onBytes()
{
    m_frames.append(m_process->readAllStandardOutput());
    const QPointer<NxWorkerProcess> self(this);
    while (self && !m_ended) {
        const std::optional<NxWorkerFrames::Frame> frame = m_frames.take();
        if (!frame)
            break;
        take(*frame);
    }
    if (self && !m_ended && m_frames.isBroken())
        end(NxWorkerEnd::Confused, tr("%1 does not speak as it should.").arg(m_program));
}

void NxWorkerProcess::take(const NxWorkerFrames::Frame &frame)
{
    quint64 number = 0;
    if (!m_greeted && frame.word == NxWorkerWord::Hello) {
        greet(frame.bytes);
    } else if (m_greeted && m_isPlaying && isOfPreviews(frame.word)) {
        Q_EMIT said(frame);
    } else if (m_greeted && !m_isPlaying && frame.word == NxWorkerWord::Answer) {
        takeAnswer(frame.bytes);
    } else if (m_greeted && !m_isPlaying && frame.word == NxWorkerWord::Opened
        && NxWorkerMessages::unpackOpened(frame.bytes, &number)) {
        Q_EMIT opened(number);
    } else {
        end(NxWorkerEnd::Confused, tr("%1 does not speak as it should.").arg(m_program));
    }
}

void NxWorkerProcess::greet(const QByteArray &bytes)
{
    if (!NxWorkerMessages::unpack(bytes, &m_hello)) {
        end(NxWorkerEnd::Confused, tr("%1 does not speak as it should.").arg(m_program));
        return;
    }
    if (m_hello.version != NxWorkerProtocol::Version) {
        end(NxWorkerEnd::WrongVersion,
            tr("%1 speaks version %2, this program version %3: they are not of one installation.")
                .arg(m_program)
                .arg(m_hello.version)
                .arg(NxWorkerProtocol::Version));
        return;
    }
    m_greeted = true;
    m_isReady = true;
    Q_EMIT ready();
}

void NxWorkerProcess::takeAnswer(const QByteArray &bytes)
{
    NxReadAnswer answer;
    if (!NxWorkerMessages::unpack(bytes, &answer)) {
        end(NxWorkerEnd::Confused, tr("%1 does not speak as it should.").arg(m_program));
        return;
    }
    m_isReady = true;
    Q_EMIT answered(answer);
}

void NxWorkerProcess::onFailed(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart)
        end(NxWorkerEnd::NotStarted,
            tr("%1 cannot be started: %2.").arg(m_program, m_process->errorString()));
    if (error == QProcess::WriteError)
        stopWatchingInputSoon();
}

// QProcess closes the pipe into which it cannot write, and then goes on watching its number, which
// may soon be that of another file: after this call, but before the event loop waits again.
void NxWorkerProcess::stopWatchingInputSoon()
{
    using Loop = QAbstractEventDispatcher;
    for (const auto next : {&Loop::awake, &Loop::aboutToBlock})
        connect(Loop::instance(), next, this, &NxWorkerProcess::stopWatchingInput,
            Qt::UniqueConnection);
}

void NxWorkerProcess::stopWatchingInput()
{
    disconnect(QAbstractEventDispatcher::instance(), nullptr, this, nullptr);
    const auto notifiers = m_process->findChildren<QSocketNotifier *>();
    for (QSocketNotifier *notifier : notifiers) {
        if (notifier->type() == QSocketNotifier::Write)
            notifier->setEnabled(false);
    }
}

void NxWorkerProcess::onFinished(int code, QProcess::ExitStatus status)
{
    const QPointer<NxWorkerProcess> self(this);
    const bool endedItself = status == QProcess::NormalExit;
    if (endedItself && code == int(NxWorkerExit::TooMuchMemory))
        end(NxWorkerEnd::TooMuchMemory, tr("%1 took too much memory.").arg(m_program));
    else if (endedItself && m_closing)
        end(NxWorkerEnd::Closed, {});
    else
        end(NxWorkerEnd::Crashed, tr("%1 ended with code %2.").arg(m_program).arg(code));
    if (self)
        Q_EMIT gone();
}

void NxWorkerProcess::end(NxWorkerEnd end, const QString &why)
{
    m_isReady = false;
    if (std::exchange(m_ended, true))
        return;
    m_process->kill();
    Q_EMIT ended(end, why); // Last: whoever hears it may let this go.
}
