// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// A worker that opens no file: what it does follows from the name of the file it is asked for, and
// from the name of its cache folder. Every request leaves a line in that folder.
#include <NxWorkerProtocol/NxPictureFile.h>
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>

namespace {

constexpr int FoundHeight = 1080; // px
constexpr int FoundWidth = 1920; // px
constexpr qint64 FoundFrames = 100;
constexpr int FoundRate = 25;
constexpr qint64 FoundDuration = 4'000'000; // us
constexpr quint32 OtherVersion = NxWorkerProtocol::Version + 41;
constexpr int PieceOfFrame = 9; // bytes

class ScriptedWorker
{
public:
    explicit ScriptedWorker(const QString &cacheFolder) : m_folder(cacheFolder) {}
    int run();

private:
    [[nodiscard]] bool isNamed(const char *word) const
    {
        return m_name.contains(QLatin1String(word));
    }
    void log(const QString &line) const;
    void say(NxWorkerWord word, const QByteArray &bytes) const;
    void greet();
    bool readMore();
    void serve(const NxReadRequest &request);
    void misbehaveUnopened() const;
    void misbehaveOpened(const NxReadRequest &request) const;
    [[nodiscard]] NxReadAnswer answerTo(const NxReadRequest &request) const;
    void addPictures(const NxReadRequest &request, NxReadAnswer *answer) const;
    void waitForGate() const;
    [[noreturn]] static void hang();
    [[noreturn]] static void crash();

    const QDir m_folder;
    NxWorkerFrames m_frames;
    QString m_name;
};

void ScriptedWorker::log(const QString &line) const
{
    QFile file(m_folder.filePath(QStringLiteral("requests.log")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        std::abort();
    file.write(line.toUtf8() + '\n');
}

void ScriptedWorker::say(NxWorkerWord word, const QByteArray &bytes) const
{
    const QByteArray frame = NxWorkerFrames::framed(word, bytes);
    if (::write(STDOUT_FILENO, frame.constData(), size_t(frame.size())) != frame.size())
        std::exit(int(NxWorkerExit::EditorGone));
}

void ScriptedWorker::hang()
{
    for (;;)
        pause();
}

void ScriptedWorker::crash()
{
    signal(SIGSEGV, SIG_DFL);
    raise(SIGSEGV);
    std::abort();
}

void ScriptedWorker::waitForGate() const
{
    const QByteArray path = QFile::encodeName(m_folder.filePath(QStringLiteral("gate")));
    const int gate = ::open(path.constData(), O_RDONLY); // A pipe: waits until it is held open.
    if (gate < 0)
        std::abort();
    ::close(gate);
}

void ScriptedWorker::greet()
{
    const QString manner = m_folder.dirName();
    log(QStringLiteral("start %1").arg(getpid()));
    if (manner == QLatin1String("endsatonce"))
        std::exit(int(NxWorkerExit::WrongUsage));
    if (manner == QLatin1String("silent"))
        hang();
    if (manner == QLatin1String("garbage")) {
        (void)::write(STDOUT_FILENO, "Hello, world!", PieceOfFrame);
        hang();
    }
    if (manner == QLatin1String("earless"))
        ::close(STDIN_FILENO);
    NxWorkerHello hello;
    if (manner == QLatin1String("otherversion"))
        hello.version = OtherVersion;
    hello.hasNoNetwork = true;
    say(NxWorkerWord::Hello, NxWorkerMessages::packed(hello));
}

bool ScriptedWorker::readMore()
{
    QByteArray bytes(4'096, '\0');
    const ssize_t count = ::read(STDIN_FILENO, bytes.data(), size_t(bytes.size()));
    if (count > 0)
        m_frames.append(bytes.left(int(count)));
    const QString manner = m_folder.dirName();
    if (count <= 0 && (manner == QLatin1String("deaf") || manner == QLatin1String("earless")))
        hang();
    return count > 0;
}

void ScriptedWorker::misbehaveUnopened() const
{
    if (isNamed("slow"))
        waitForGate();
    if (isNamed("hang-unopened"))
        hang();
    if (isNamed("crash-unopened"))
        crash();
}

void ScriptedWorker::misbehaveOpened(const NxReadRequest &request) const
{
    if (isNamed("gated"))
        waitForGate();
    QFile scar(m_folder.filePath(QStringLiteral("scar-") + m_name));
    const bool isSecondTime = scar.exists();
    if (isNamed("crash") && !(isNamed("crash-once") && isSecondTime)) {
        (void)scar.open(QIODevice::WriteOnly);
        crash();
    }
    if (isNamed("hang-opened") || (isNamed("hang-pictures") && (request.wishes & rwCover) != 0))
        hang();
    if (isNamed("memory"))
        std::exit(int(NxWorkerExit::TooMuchMemory));
    const QByteArray frame =
        NxWorkerFrames::framed(NxWorkerWord::Answer, NxWorkerMessages::packed(answerTo(request)));
    if (isNamed("half-frame")) {
        (void)::write(STDOUT_FILENO, frame.constData(), PieceOfFrame);
        hang();
    }
    if (isNamed("garbage")) {
        (void)::write(STDOUT_FILENO, "\xff\xff\xff\xff\xff\xff\xff\xff\xff", PieceOfFrame);
        hang();
    }
}

void ScriptedWorker::addPictures(const NxReadRequest &request, NxReadAnswer *answer) const
{
    if ((request.wishes & rwFingerprint) != 0)
        answer->fingerprint = {answer->stamp.size, quint64(m_name.size()), quint64(qHash(m_name))};
    const bool isFailing = isNamed("no-pictures");
    const NxPictureAnswer made{isFailing ? NxPictureOutcome::Failed : NxPictureOutcome::Made,
                               isFailing ? QStringLiteral("No picture can be decoded.")
                                         : QString()};
    if ((request.wishes & rwCover) != 0)
        answer->cover = made;
    if ((request.wishes & rwStrip) != 0)
        answer->strip = made;
    answer->bitDepth = 8;
    answer->pixelFormat = QStringLiteral("yuv420p");
}

NxReadAnswer ScriptedWorker::answerTo(const NxReadRequest &request) const
{
    NxReadAnswer answer;
    answer.number = request.number + (isNamed("wrong-number") ? 1 : 0);
    const QFileInfo file(QFile::decodeName(request.path));
    if (file.exists())
        answer.stamp = {file.size(), file.lastModified().toMSecsSinceEpoch()};
    if (isNamed("vanishes") && !file.exists()) {
        answer.failure = QStringLiteral("The file is missing.");
        return answer;
    }
    answer.changedMeanwhile = isNamed("half-written");
    const bool failsPictures = isNamed("unreadable-pictures") && (request.wishes & rwCover) != 0;
    if (isNamed("fails") || failsPictures || answer.changedMeanwhile) {
        answer.failure = QStringLiteral("The file is damaged.");
        return answer;
    }
    addPictures(request, &answer);
    if ((request.wishes & rwFacts) == 0)
        return answer;
    NxFootageFacts facts;
    facts.streams.kind = NxFootageKind::Video;
    facts.streams.hasVideo = true;
    facts.streams.width = FoundWidth;
    facts.streams.height = FoundHeight;
    facts.frames = FoundFrames;
    facts.rate = {FoundRate, 1};
    facts.durationUs = FoundDuration;
    facts.reel = m_name;
    answer.facts = facts;
    return answer;
}

void ScriptedWorker::serve(const NxReadRequest &request)
{
    m_name = QFileInfo(QFile::decodeName(request.path)).fileName();
    log(QStringLiteral("%1 %2").arg(m_name).arg(request.wishes));
    misbehaveUnopened();
    say(NxWorkerWord::Opened, NxWorkerMessages::packedOpened(request.number));
    misbehaveOpened(request);
    say(NxWorkerWord::Answer, NxWorkerMessages::packed(answerTo(request)));
}

int ScriptedWorker::run()
{
    greet();
    while (readMore()) {
        while (const auto frame = m_frames.take()) {
            NxReadRequest request;
            if (!NxWorkerMessages::unpack(frame->bytes, &request))
                return int(NxWorkerExit::PipeBroken);
            serve(request);
        }
    }
    return int(NxWorkerExit::Done);
}

} // namespace

int main(int argc, char **argv)
{
    constexpr rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // A test that ends early leaves none behind.
    if (argc != 2)
        return int(NxWorkerExit::WrongUsage);
    return ScriptedWorker(QFile::decodeName(argv[1])).run();
}
