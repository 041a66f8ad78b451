// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
// A player that opens no file: what it does follows from the name of the film, and from the name
// of its cache folder. Each pixel of a frame is the frame's number. Every order leaves a line in
// that folder.
#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <brevano-worker/pipe/WorkerPipe.h>
#include <brevano-worker/preview/PreviewRing.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRgb>

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 FramesOfFilm = 100;
constexpr qint64 FramesOfShortFilm = 3;
constexpr int LateFrame = 3;
constexpr QRgb Opaque = 0xff000000;

class ScriptedPlayer
{
public:
    ScriptedPlayer(const QString &cacheFolder, std::unique_ptr<NxSharedMemory> memory)
        : m_folder(cacheFolder),
          m_memory(std::move(memory))
    {
    }
    int run();

private:
    [[nodiscard]] bool isNamed(const char *word) const
    {
        return m_name.contains(QLatin1String(word));
    }
    void log(const QString &line) const;
    void say(NxWorkerWord word, const QByteArray &bytes) const;
    void greet() const;
    void open(const NxPreviewOpen &order);
    void show(const NxPreviewShow &order);
    void play();
    void playFrame(qint64 frame, quint32 slot);
    [[nodiscard]] bool isSecondTime() const;
    void misbehave(const char *where) const;
    void misspeak(const NxPreviewFrame &picture) const;
    void rest() const;
    [[noreturn]] static void hang();
    [[noreturn]] static void crash();

    const QDir m_folder;
    const std::unique_ptr<NxSharedMemory> m_memory;
    WorkerPipe m_pipe{STDIN_FILENO, STDOUT_FILENO};
    PreviewRing m_ring;
    QString m_name;
    quint64 m_number = 0;
    qint64 m_frames = 0;
    NxPreviewShow m_shown;
};

void ScriptedPlayer::log(const QString &line) const
{
    QFile file(m_folder.filePath(QStringLiteral("requests.log")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        std::abort();
    file.write(line.toUtf8() + '\n');
}

void ScriptedPlayer::say(NxWorkerWord word, const QByteArray &bytes) const
{
    if (!m_pipe.send(word, bytes))
        std::exit(int(NxWorkerExit::EditorGone));
}

void ScriptedPlayer::hang()
{
    for (;;)
        pause();
}

void ScriptedPlayer::crash()
{
    signal(SIGSEGV, SIG_DFL);
    raise(SIGSEGV);
    std::abort();
}

void ScriptedPlayer::greet() const
{
    const QString manner = m_folder.dirName();
    log(QStringLiteral("start %1").arg(getpid()));
    if (manner == QLatin1String("endsatonce"))
        std::exit(int(NxWorkerExit::WrongUsage));
    if (manner == QLatin1String("silent"))
        hang();
    NxWorkerHello hello;
    if (manner == QLatin1String("otherversion"))
        ++hello.version;
    say(NxWorkerWord::Hello, NxWorkerMessages::packed(hello));
}

bool ScriptedPlayer::isSecondTime() const
{
    QFile scar(m_folder.filePath(QStringLiteral("scar-") + m_name));
    return scar.exists() || !scar.open(QIODevice::WriteOnly);
}

/// By names such as "crash-opening" and "hang-playing-once".
void ScriptedPlayer::misbehave(const char *where) const
{
    if (!isNamed(where) || (isNamed("once") && isSecondTime()))
        return;
    if (isNamed("crash"))
        crash();
    if (isNamed("hang"))
        hang();
    if (isNamed("memory"))
        std::exit(int(NxWorkerExit::TooMuchMemory));
}

void ScriptedPlayer::open(const NxPreviewOpen &order)
{
    m_name = QFileInfo(QFile::decodeName(order.path)).fileName();
    m_number = order.number;
    log(QStringLiteral("open %1 %2x%3")
            .arg(m_name)
            .arg(order.output.width())
            .arg(order.output.height()));
    rest();
    misbehave("opening");
    const bool isFilm = !m_name.isEmpty() && !isNamed("fails");
    m_frames = !isFilm ? 0 : isNamed("short") ? FramesOfShortFilm : FramesOfFilm;
    const QString reason = isNamed("fails") ? QStringLiteral("The file is damaged.") : QString();
    say(NxWorkerWord::PreviewOpened,
        NxPreviewMessages::packed(NxPreviewOpened{m_number, m_frames, reason}));
}

void ScriptedPlayer::show(const NxPreviewShow &order)
{
    log(QStringLiteral("show %1 %2").arg(order.frame).arg(order.size.width()));
    m_ring.takeBack(order.freed);
    m_shown = order;
    misbehave("playing");
    if (m_shown.number == m_number)
        play();
    rest();
}

void ScriptedPlayer::play()
{
    for (;;) {
        const std::optional<qint64> frame = m_ring.missing(m_shown, m_frames);
        const std::optional<quint32> slot = m_ring.freeSlot();
        if (!frame || !slot || m_frames == 0)
            return;
        playFrame(*frame, *slot);
    }
}

void ScriptedPlayer::playFrame(qint64 frame, quint32 slot)
{
    const NxPreviewFrame picture{m_number, frame, slot, m_shown.size};
    if (isNamed("late-failure") && frame == LateFrame) {
        m_frames = 0;
        say(NxWorkerWord::PreviewOpened, NxPreviewMessages::packed(NxPreviewOpened{
                                             m_number, 0, QStringLiteral("It broke off.")}));
        return;
    }
    misspeak(picture);
    auto *pixels =
        reinterpret_cast<QRgb *>(m_memory->bytes() + qint64(slot) * NxPreviewSlots::Capacity);
    std::fill_n(pixels, picture.size.width() * picture.size.height(), Opaque | QRgb(frame));
    m_ring.lend(picture);
    say(NxWorkerWord::PreviewFrame, NxPreviewMessages::packed(picture));
}

void ScriptedPlayer::misspeak(const NxPreviewFrame &picture) const
{
    NxPreviewFrame wrong = picture;
    if (isNamed("bad-slot"))
        wrong.slot = NxPreviewSlots::Count;
    if (isNamed("bad-frame"))
        wrong.frame = FramesOfFilm;
    if (isNamed("bad-size"))
        wrong.size = {100'000, 100'000};
    if (isNamed("bad-number"))
        ++wrong.number;
    const bool isWrong = wrong.slot != picture.slot || wrong.frame != picture.frame
                         || wrong.size != picture.size || wrong.number != picture.number;
    if (isWrong || isNamed("lent-slot"))
        say(NxWorkerWord::PreviewFrame, NxPreviewMessages::packed(wrong));
    if (isNamed("bad-turn"))
        say(NxWorkerWord::PreviewRested, NxPreviewMessages::packedRested(m_shown.turn + 1));
    if (isNamed("bad-answer"))
        say(NxWorkerWord::PreviewOpened,
            NxPreviewMessages::packed(NxPreviewOpened{m_number, FramesOfFilm + 1, {}}));
    if (isNamed("bad-word"))
        say(NxWorkerWord::Answer, {});
    if (isNamed("half-message"))
        say(NxWorkerWord::PreviewFrame, "x");
}

void ScriptedPlayer::rest() const
{
    say(NxWorkerWord::PreviewRested, NxPreviewMessages::packedRested(m_shown.turn));
}

int ScriptedPlayer::run()
{
    greet();
    while (m_pipe.receive()) {
        while (const auto frame = m_pipe.take()) {
            NxPreviewOpen toOpen;
            NxPreviewShow toShow;
            if (frame->word == NxWorkerWord::PreviewOpen
                && NxPreviewMessages::unpack(frame->bytes, &toOpen))
                open(toOpen);
            else if (frame->word == NxWorkerWord::PreviewShow
                     && NxPreviewMessages::unpack(frame->bytes, &toShow))
                show(toShow);
            else
                return int(NxWorkerExit::PipeBroken);
        }
    }
    return int(NxWorkerExit::Done);
}

} // namespace

int main(int argc, char **argv)
{
    constexpr rlimit noCore{0, 0};
    constexpr int arguments = 4;
    setrlimit(RLIMIT_CORE, &noCore);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // A test that ends early leaves none behind.
    if (argc != arguments || qstrcmp(argv[2], "--preview") != 0)
        return int(NxWorkerExit::WrongUsage);
    auto memory = NxSharedMemory::attach(QString::fromLocal8Bit(argv[arguments - 1]),
                                         NxPreviewSlots::MemoryBytes);
    if (!memory)
        return int(NxWorkerExit::WrongUsage);
    return ScriptedPlayer(QFile::decodeName(argv[1]), memory.take()).run();
}
