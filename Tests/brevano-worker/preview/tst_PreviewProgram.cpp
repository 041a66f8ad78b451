// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

constexpr quint64 Film = 11;
constexpr QSize Small(144, 81);
constexpr int NotReadable = -1;

/// Hands a memory to its program.
class SharingProcess final : public QProcess
{
public:
    explicit SharingProcess(const NxSharedMemory *memory) : m_memory(memory) {}

protected:
    void setupChildProcess() override { m_memory->passOn(); }

private:
    const NxSharedMemory *const m_memory; // Not owned.
};

QByteArray pathOf(const char *name)
{
    return QFile::encodeName(
        NxFootageSet::path(NxFootageRecipes::named(QString::fromLatin1(name))));
}

} // namespace

/// The program itself, playing films into shared memory.
class tst_PreviewProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder()); }
    void cleanupTestCase() { NX_VERIFY_UNTOUCHED(*m_guard); }
    void init();
    void cleanup();

    void itRendersAheadAndThenRests();
    void slotsThatComeBackAreFilledAgain();
    void aJumpIsObeyed();
    void theFilmBeginsAgain();
    void anotherFilmTakesItsPlace();
    void aClosedFilmIsLetGo();
    void whatCannotBePlayedIsAReason();
    void itEndsWithItsPipe();
    void whatIsNoMessageEndsIt_data();
    void whatIsNoMessageEndsIt();
    void withoutItsMemoryItDoesNotRun_data();
    void withoutItsMemoryItDoesNotRun();

private:
    [[nodiscard]] std::optional<NxWorkerFrames::Frame> next();
    /// Everything up to the next rest: the frames' numbers in the film.
    [[nodiscard]] QList<qint64> played();
    void open(quint64 number, const QByteArray &path);
    void show(quint64 number, qint64 frame, quint32 freed = 0);
    [[nodiscard]] NxPreviewOpened opened();
    [[nodiscard]] int numberIn(quint32 slot) const;

    const NxTempDir m_dir;
    std::unique_ptr<NxFootageGuard> m_guard;
    std::unique_ptr<NxSharedMemory> m_memory;
    std::unique_ptr<QProcess> m_worker;
    NxWorkerFrames m_frames;
    QHash<qint64, quint32> m_slots; // Of the frames that were announced last.
    quint64 m_turn = 0;
};

void tst_PreviewProgram::init()
{
    auto memory = NxSharedMemory::create(NxPreviewSlots::MemoryBytes);
    QVERIFY2(memory, qPrintable(memory.errorText()));
    m_memory = memory.take();
    m_frames = {};
    m_slots.clear();
    m_turn = 0;
    m_worker = std::make_unique<SharingProcess>(m_memory.get());
    m_worker->start(
        QStringLiteral(NX_WORKER_PROGRAM),
        {m_dir.filePath(QStringLiteral("cache")), QStringLiteral("--preview"), m_memory->name()});
    QVERIFY(m_worker->waitForStarted());
    const auto hello = next();
    QVERIFY(hello && hello->word == NxWorkerWord::Hello);
}

void tst_PreviewProgram::cleanup()
{
    m_worker->kill();
    m_worker->waitForFinished();
    m_worker.reset();
}

std::optional<NxWorkerFrames::Frame> tst_PreviewProgram::next()
{
    std::optional<NxWorkerFrames::Frame> frame = m_frames.take();
    while (!frame && !m_frames.isBroken() && m_worker->waitForReadyRead()) {
        m_frames.append(m_worker->readAllStandardOutput());
        frame = m_frames.take();
    }
    return frame;
}

void tst_PreviewProgram::open(quint64 number, const QByteArray &path)
{
    NxPreviewOpen order;
    order.number = number;
    order.path = path;
    m_worker->write(
        NxWorkerFrames::framed(NxWorkerWord::PreviewOpen, NxPreviewMessages::packed(order)));
}

void tst_PreviewProgram::show(quint64 number, qint64 frame, quint32 freed)
{
    const NxPreviewShow order{number, ++m_turn, frame, Small, freed};
    m_worker->write(
        NxWorkerFrames::framed(NxWorkerWord::PreviewShow, NxPreviewMessages::packed(order)));
}

NxPreviewOpened tst_PreviewProgram::opened()
{
    NxPreviewOpened opened;
    for (auto frame = next(); frame; frame = next()) {
        if (frame->word != NxWorkerWord::PreviewOpened)
            continue;
        if (!NxPreviewMessages::unpack(frame->bytes, &opened))
            qWarning("no message");
        break;
    }
    return opened;
}

QList<qint64> tst_PreviewProgram::played()
{
    QList<qint64> numbers;
    for (auto frame = next(); frame; frame = next()) {
        NxPreviewFrame picture;
        quint64 turn = 0;
        if (frame->word == NxWorkerWord::PreviewFrame
            && NxPreviewMessages::unpack(frame->bytes, &picture)) {
            numbers.append(picture.frame);
            m_slots.insert(picture.frame, picture.slot);
        }
        if (frame->word == NxWorkerWord::PreviewRested
            && NxPreviewMessages::unpackRested(frame->bytes, &turn) && turn == m_turn)
            break;
    }
    return numbers;
}

int tst_PreviewProgram::numberIn(quint32 slot) const
{
    const QImage picture(m_memory->bytes() + qint64(slot) * NxPreviewSlots::Capacity, Small.width(),
                         Small.height(), QImage::Format_RGB32);
    return NxNumberedFrames::read(picture).value_or(NotReadable);
}

void tst_PreviewProgram::itRendersAheadAndThenRests()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 0);
    QCOMPARE(opened().frames, 150);
    const QList<qint64> frames = played();
    QCOMPARE(frames.size(), NxPreviewSlots::Count);
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(frames.at(i), qint64(i));
        QCOMPARE(numberIn(m_slots.value(i)), i);
    }
}

void tst_PreviewProgram::slotsThatComeBackAreFilledAgain()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 0);
    QCOMPARE(played().size(), NxPreviewSlots::Count);
    show(Film, 1);
    QCOMPARE(played(), QList<qint64>()); // Nobody gave a slot back.
    const quint32 first = m_slots.value(0);
    show(Film, 2, NxPreviewSlots::bit(int(first)));
    QCOMPARE(played(), QList<qint64>{NxPreviewSlots::Count});
    QCOMPARE(m_slots.value(NxPreviewSlots::Count), first);
    QCOMPARE(numberIn(first), NxPreviewSlots::Count);
}

void tst_PreviewProgram::aJumpIsObeyed()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 0);
    QCOMPARE(played().size(), NxPreviewSlots::Count);
    show(Film, 100, NxPreviewSlots::All);
    const QList<qint64> frames = played();
    QCOMPARE(frames.size(), NxPreviewSlots::Count);
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(frames.at(i), qint64(100 + i));
        QCOMPARE(numberIn(m_slots.value(100 + i)), 100 + i);
    }
}

void tst_PreviewProgram::theFilmBeginsAgain()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 148);
    QCOMPARE(opened().frames, 150);
    const QList<qint64> frames = played();
    QCOMPARE(frames.mid(0, 4), (QList<qint64>{148, 149, 0, 1}));
    QCOMPARE(numberIn(m_slots.value(149)), 149);
    QCOMPARE(numberIn(m_slots.value(1)), 1);
}

void tst_PreviewProgram::anotherFilmTakesItsPlace()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 0);
    QCOMPARE(played().size(), NxPreviewSlots::Count);
    open(Film + 1, pathOf("edited.mp4"));
    show(Film + 1, 0, NxPreviewSlots::All);
    const NxPreviewOpened second = opened();
    QCOMPARE(second.number, Film + 1);
    QCOMPARE(played().size(), NxPreviewSlots::Count);
    QCOMPARE(numberIn(m_slots.value(0)), 35); // What lies before is cut away.
    show(Film, 5, NxPreviewSlots::All); // A late word about the first.
    QCOMPARE(played(), QList<qint64>());
}

void tst_PreviewProgram::aClosedFilmIsLetGo()
{
    const QString path = m_dir.filePath(QStringLiteral("a.mp4"));
    QVERIFY(QFile::copy(QFile::decodeName(pathOf("avc.mp4")), path));
    const auto isHeld = [this, &path] {
        const QDir open(QStringLiteral("/proc/%1/fd").arg(m_worker->processId()));
        const QFileInfoList files = open.entryInfoList(QDir::Files | QDir::System);
        return std::any_of(files.begin(), files.end(),
                           [&path](const QFileInfo &file) { return file.symLinkTarget() == path; });
    };
    open(Film, QFile::encodeName(path));
    show(Film, 0);
    QCOMPARE(played().size(), NxPreviewSlots::Count);
    QVERIFY(isHeld());
    open(Film + 1, {});
    const NxPreviewOpened closed = opened();
    QCOMPARE(closed.number, Film + 1);
    QCOMPARE(closed.frames, 0);
    QCOMPARE(closed.reason, QString());
    QVERIFY(!isHeld());
}

void tst_PreviewProgram::whatCannotBePlayedIsAReason()
{
    open(Film, QFile::encodeName(m_dir.filePath(QStringLiteral("none.mp4"))));
    const NxPreviewOpened missing = opened();
    QCOMPARE(missing.number, Film);
    QCOMPARE(missing.frames, 0);
    QCOMPARE(missing.reason, QStringLiteral("The file is missing."));
    show(Film, 0);
    QCOMPARE(played(), QList<qint64>());
    open(Film + 1, pathOf("avc.mp4")); // The next one is not to suffer for it.
    QCOMPARE(opened().frames, 150);
}

void tst_PreviewProgram::itEndsWithItsPipe()
{
    open(Film, pathOf("avc.mp4"));
    show(Film, 0);
    QCOMPARE(opened().frames, 150);
    m_worker->closeWriteChannel();
    QVERIFY(m_worker->waitForFinished());
    QCOMPARE(m_worker->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_worker->exitCode(), int(NxWorkerExit::Done));
}

void tst_PreviewProgram::whatIsNoMessageEndsIt_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const NxPreviewShow tooLarge{Film, 1, 0, {8000, 8000}, 0};

    QTest::newRow("an unknown word") << QByteArray("\x01\0\0\0\x63z", 6);
    QTest::newRow("a request to read")
        << NxWorkerFrames::framed(NxWorkerWord::Request, NxWorkerMessages::packed(NxReadRequest()));
    QTest::newRow("half a film") << NxWorkerFrames::framed(NxWorkerWord::PreviewOpen, "x");
    QTest::newRow("a picture larger than a slot")
        << NxWorkerFrames::framed(NxWorkerWord::PreviewShow, NxPreviewMessages::packed(tooLarge));
}

void tst_PreviewProgram::whatIsNoMessageEndsIt()
{
    QFETCH(QByteArray, bytes);

    m_worker->write(bytes);
    QVERIFY(m_worker->waitForFinished());
    QCOMPARE(m_worker->exitCode(), int(NxWorkerExit::PipeBroken));
}

void tst_PreviewProgram::withoutItsMemoryItDoesNotRun_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString preview = QStringLiteral("--preview");
    QTest::newRow("none named") << QStringList{preview};
    QTest::newRow("no number") << QStringList{preview, QStringLiteral("memory")};
    QTest::newRow("one that is not open") << QStringList{preview, QStringLiteral("900")};
    QTest::newRow("another word") << QStringList{QStringLiteral("--play"), QStringLiteral("900")};
}

void tst_PreviewProgram::withoutItsMemoryItDoesNotRun()
{
    QFETCH(QStringList, arguments);
    QProcess worker;
    worker.start(QStringLiteral(NX_WORKER_PROGRAM),
                 QStringList{m_dir.filePath(QStringLiteral("cache"))} + arguments);
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.exitCode(), int(NxWorkerExit::WrongUsage));
    QVERIFY(!worker.readAllStandardError().isEmpty());
    QVERIFY(worker.readAllStandardOutput().isEmpty());
}

NX_TEST_MAIN(tst_PreviewProgram)
#include "tst_PreviewProgram.moc"
