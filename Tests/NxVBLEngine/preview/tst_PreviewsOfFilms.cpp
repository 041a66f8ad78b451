// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/NxEmbeddedEngine.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxLogCapture.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

#include <signal.h>
#include <unistd.h>

#include <memory>

namespace {

constexpr QSize Small(144, 81);
constexpr int Patience = 30'000; // ms
constexpr int Missing = -1;
constexpr int NotReadable = -2;

QString footage(const char *name)
{
    return NxFootageSet::path(NxFootageRecipes::named(QString::fromLatin1(name)));
}

int numberIn(INxTimeline *timeline, qint64 frame)
{
    QImage picture(Small, QImage::Format_RGB32);
    if (!timeline->renderFrame(frame, Small.width(), Small.height(), picture.bits()))
        return Missing;
    return NxNumberedFrames::read(picture).value_or(NotReadable);
}

/// Programs that this one has started and that still run.
QList<qint64> workers()
{
    QList<qint64> ids;
    const QString own = QString::number(::getpid());
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &name : names) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = file.readAll();
        const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields.at(1) == own.toLatin1() && fields.at(0) != "Z")
            ids.append(name.toLongLong());
    }
    return ids;
}

/// The engine as a host has it, with previews of true films.
struct Host
{
    Host()
        : engine(std::make_unique<NxEmbeddedEngine>(options(dir))),
          door(std::make_unique<NxMediaEngineDoor>(engine.get()))
    {
    }
    static NxEmbeddedEngine::Options options(const NxTempDir &dir)
    {
        NxEmbeddedEngine::Options options;
        options.pictureFolder = dir.filePath(QStringLiteral("pictures"));
        return options;
    }
    [[nodiscard]] static std::unique_ptr<INxTimeline> play(const QString &path)
    {
        std::unique_ptr<INxTimeline> timeline(
            INxTimeline::createInstance(INxClip::createVideoClip(path)));
        timeline->setOutputSize(1920, 1080);
        return timeline;
    }

    const NxTempDir dir;
    std::unique_ptr<NxEmbeddedEngine> engine;
    std::unique_ptr<NxMediaEngineDoor> door;
};

} // namespace

/// Films played through the engine's door, by the program that is installed with it.
class tst_PreviewsOfFilms : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder()); }
    void cleanupTestCase() { NX_VERIFY_UNTOUCHED(*m_guard); }
    void cleanup() { QTRY_COMPARE(workers(), QList<qint64>()); }

    void aFilmPlaysFromItsFirstFrameToItsLast();
    void aSecondClipTakesThePlaceOfTheFirst();
    void whatIsNoClipForPreviewsIsRefused();
    void askingTouchesNoDisk();
    void theTimelineMayGoWhileItPlays();
    void theEngineMayGoFirst();
    void aKilledPlayerIsReplaced();
    void aMissingFileHasNoFrames();
    void aFileThatVanishesIsPlayedNoFurther();
    void damagedFilesHaveNoFrames_data();
    void damagedFilesHaveNoFrames();

private:
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_PreviewsOfFilms::aFilmPlaysFromItsFirstFrameToItsLast()
{
    const Host host;
    const auto timeline = host.play(footage("avc.mp4"));
    QVERIFY(timeline);
    QTRY_COMPARE_WITH_TIMEOUT(timeline->frameCount(), 150, Patience);
    for (int frame = 0; frame < 150; ++frame)
        QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), frame), frame, Patience);
    QCOMPARE(numberIn(timeline.get(), 150), Missing);
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 0), 0, Patience);
    QCOMPARE(workers().size(), 1);
}

void tst_PreviewsOfFilms::aSecondClipTakesThePlaceOfTheFirst()
{
    const Host host;
    const auto timeline = host.play(footage("avc.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 5), 5, Patience);
    INxClip *old = timeline->clips().first();
    QVERIFY(timeline->removeClip(old));
    delete old;
    INxClip *next = INxClip::createVideoClip(footage("edited.mp4"));
    QVERIFY(timeline->insertClip(next, 0, 0));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 5), 40, Patience); // 35 are cut away.
    QCOMPARE(timeline->frameCount(), 65);
    QCOMPARE(workers().size(), 1);
}

void tst_PreviewsOfFilms::whatIsNoClipForPreviewsIsRefused()
{
    const Host host;
    QVERIFY(!INxClip::createVideoClip(QString()));
    QVERIFY(!INxTimeline::createInstance(nullptr));
    const auto timeline = host.play(footage("avc.mp4"));
    QVERIFY(!INxTimeline::createInstance(timeline->clips().first())); // It has a timeline.
    QCOMPARE(timeline->clips().first()->timeline(), timeline.get());
}

void tst_PreviewsOfFilms::askingTouchesNoDisk()
{
    const Host host;
    const NxDiskBan ban;
    const auto timeline = host.play(footage("avc.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 30), 30, Patience);
    QCOMPARE(timeline->frameCount(), 150);
    INxClip *old = timeline->clips().first();
    QVERIFY(timeline->removeClip(old));
    delete old;
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_PreviewsOfFilms::theTimelineMayGoWhileItPlays()
{
    const Host host;
    for (const char *name : {"avc.mp4", "vp9.webm", "prores.mov", "avc long.mp4"}) {
        auto timeline = host.play(footage(name));
        QTRY_VERIFY_WITH_TIMEOUT(numberIn(timeline.get(), 1) == 1, Patience);
        static_cast<void>(numberIn(timeline.get(), 40)); // It is being rendered.
    }
    const auto last = host.play(footage("avc.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(last.get(), 2), 2, Patience);
    QCOMPARE(workers().size(), 1);
}

void tst_PreviewsOfFilms::theEngineMayGoFirst()
{
    Host host;
    const auto timeline = host.play(footage("avc.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 0), 0, Patience);
    static_cast<void>(numberIn(timeline.get(), 100));
    host.door.reset();
    host.engine.reset();
    QCOMPARE(workers(), QList<qint64>());
    QCOMPARE(timeline->frameCount(), 0);
    QCOMPARE(numberIn(timeline.get(), 0), Missing);
}

void tst_PreviewsOfFilms::aKilledPlayerIsReplaced()
{
    const Host host;
    const auto timeline = host.play(footage("avc.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 3), 3, Patience);
    const QList<qint64> before = workers();
    QCOMPARE(before.size(), 1);
    QCOMPARE(kill(pid_t(before.first()), SIGKILL), 0);
    QTRY_VERIFY(workers() != before);
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 60), 60, Patience);
    QCOMPARE(timeline->frameCount(), 150);
    QCOMPARE(workers().size(), 1);
}

void tst_PreviewsOfFilms::aMissingFileHasNoFrames()
{
    const NxLogCapture log;
    const Host host;
    const auto timeline = host.play(host.dir.filePath(QStringLiteral("none.mp4")));
    QVERIFY(timeline);
    QTRY_COMPARE_WITH_TIMEOUT(
        log.texts(NxLogLevel::Info).filter(QStringLiteral("none.mp4: The file is missing.")).size(),
        1, Patience);
    QCOMPARE(timeline->frameCount(), 0);
    QCOMPARE(numberIn(timeline.get(), 0), Missing);
}

void tst_PreviewsOfFilms::aFileThatVanishesIsPlayedNoFurther()
{
    const Host host;
    const QString path = host.dir.filePath(QStringLiteral("a.mp4"));
    QVERIFY(QFile::copy(footage("avc.mp4"), path));
    const auto timeline = host.play(path);
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 0), 0, Patience);
    QVERIFY(QFile::remove(path));
    QTRY_COMPARE_WITH_TIMEOUT(numberIn(timeline.get(), 90), 90, Patience); // It is open still.
    const auto again = host.play(path);
    const NxLogCapture log;
    QTRY_COMPARE_WITH_TIMEOUT(
        log.texts(NxLogLevel::Info).filter(QStringLiteral("a.mp4: The file is missing.")).size(), 1,
        Patience);
    QCOMPARE(again->frameCount(), 0);
}

void tst_PreviewsOfFilms::damagedFilesHaveNoFrames_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("noise") << QByteArray(10'000, '\x55');
    QTest::newRow("a playlist") << QByteArray("#EXTM3U\n#EXTINF:6,\nfile:///etc/passwd\n");
    QFile file(footage("avc.mp4"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTest::newRow("the first half") << file.read(file.size() / 2);
}

void tst_PreviewsOfFilms::damagedFilesHaveNoFrames()
{
    QFETCH(QByteArray, content);
    const NxLogCapture log;
    const Host host;
    const auto timeline = host.play(host.dir.write(QStringLiteral("a.mp4"), content));
    QTRY_COMPARE_WITH_TIMEOUT(
        log.texts(NxLogLevel::Info).filter(QStringLiteral("no preview of")).size(), 1, Patience);
    QCOMPARE(timeline->frameCount(), 0);
    QCOMPARE(numberIn(timeline.get(), 0), Missing);
}

NX_TEST_MAIN(tst_PreviewsOfFilms)
#include "tst_PreviewsOfFilms.moc"
