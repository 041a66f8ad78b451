// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewService.h>

#include "ScriptedFilms.h"

#include <NxCore/NxLogCapture.h>
#include <Support/NxTestMain.h>

#include <QRgb>
#include <QTest>

#include <signal.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr QSize Small = ScriptedFilms::Size;
constexpr QSize Large(1920, 1080);
constexpr QSize Output(1920, 1080);
constexpr QRgb Untouched = 0x12345678;
constexpr int Missing = -1;
constexpr int Torn = -2;

struct Previews
{
    Previews() : settings(films.settings()) {}
    NxPreviewService &start()
    {
        if (!service)
            service = std::make_unique<NxPreviewService>(settings);
        return *service;
    }
    quint64 add(const char *name)
    {
        return start().add(films.film(QString::fromLatin1(name)), Output);
    }
    /// The number that all pixels of a frame bear; Missing when it is not there, and then nothing
    /// was written.
    [[nodiscard]] int numberIn(quint64 film, qint64 frame, QSize size = Small)
    {
        std::vector<QRgb> pixels(size_t(size.width()) * size_t(size.height()), Untouched);
        const bool isThere =
            service->copyFrame(film, frame, size, reinterpret_cast<uchar *>(pixels.data()));
        const QRgb first = pixels.front();
        if (std::count(pixels.begin(), pixels.end(), first) != qptrdiff(pixels.size()))
            return Torn;
        if (!isThere)
            return first == Untouched ? Missing : Torn;
        return int(first & 0xffffff);
    }

    ScriptedFilms films;
    NxPreviewSettings settings;
    std::unique_ptr<NxPreviewService> service;
};

} // namespace

class tst_NxPreviewService : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void framesComeOneAfterTheOther();
    void whatIsNotThereYetIsAskedFor();
    void aFilmIsPlayedFromTheStart();
    void noFrameIsRenderedTwice();
    void theFilmGoesRound();
    void aShortFilmGoesRoundWithoutBeingRenderedAnew();
    void anotherSizeIsRenderedAnew();
    void whatFitsNoSlotIsNotThere_data();
    void whatFitsNoSlotIsNotThere();
    void theFilmThatIsAskedForLastIsPlayed();
    void aFilmThatLostItsTurnStillLearnsItsLength();
    void anotherOutputIsOpenedAnew();
    void whatCannotBePlayedIsNotedOnce_data();
    void whatCannotBePlayedIsNotedOnce();
    void aKilledPlayerIsReplaced();
    void oneThatWasLetGoComesBack();
    void removedFilmsHaveNoFrames();
    void whateverIsAskedTheRightFrameIsShown();
};

void tst_NxPreviewService::framesComeOneAfterTheOther()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE_WITH_TIMEOUT(f.service->frameCount(film), ScriptedFilms::Frames, 30'000);
    for (int frame = 0; frame < ScriptedFilms::Frames; ++frame)
        QTRY_COMPARE(f.numberIn(film, frame), frame);
    QCOMPARE(f.numberIn(film, ScriptedFilms::Frames), Missing);
    QCOMPARE(f.numberIn(film, -1), Missing);
}

void tst_NxPreviewService::whatIsNotThereYetIsAskedFor()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QCOMPARE(f.numberIn(film, 70), Missing);
    QTRY_COMPARE(f.numberIn(film, 70), 70);
    QCOMPARE(f.numberIn(film, 20), Missing);
    QTRY_COMPARE(f.numberIn(film, 20), 20);
}

void tst_NxPreviewService::aFilmIsPlayedFromTheStart()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.films.orders().size(), 2);
    QCOMPARE(f.films.orders(),
             (QStringList{QStringLiteral("open a.mp4 1920x1080"), QStringLiteral("show 0 144")}));
    QTRY_COMPARE(f.service->frameCount(film), ScriptedFilms::Frames);
}

void tst_NxPreviewService::noFrameIsRenderedTwice()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    for (int frame = 0; frame < 30; ++frame) {
        QTRY_COMPARE(f.numberIn(film, frame), frame);
        QCOMPARE(f.numberIn(film, frame), frame); // It stays as long as it is shown.
    }
    QCOMPARE(f.films.opened().size(), 1);
}

void tst_NxPreviewService::theFilmGoesRound()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 98), 98);
    QTRY_COMPARE(f.numberIn(film, 99), 99);
    QTRY_COMPARE(f.numberIn(film, 0), 0);
    QTRY_COMPARE(f.numberIn(film, 1), 1);
}

void tst_NxPreviewService::aShortFilmGoesRoundWithoutBeingRenderedAnew()
{
    Previews f;
    const quint64 film = f.add("short.mp4");
    for (int frame = 0; frame < ScriptedFilms::ShortFrames; ++frame)
        QTRY_COMPARE(f.numberIn(film, frame), frame);
    for (int frame = 0; frame < ScriptedFilms::ShortFrames; ++frame)
        QCOMPARE(f.numberIn(film, frame), frame);
}

void tst_NxPreviewService::anotherSizeIsRenderedAnew()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 4), 4);
    QCOMPARE(f.numberIn(film, 4, Large), Missing);
    QTRY_COMPARE(f.numberIn(film, 4, Large), 4);
    QTRY_COMPARE(f.numberIn(film, 5, Large), 5);
    QCOMPARE(f.numberIn(film, 5), Missing);
    QTRY_COMPARE(f.numberIn(film, 5), 5);
}

void tst_NxPreviewService::whatFitsNoSlotIsNotThere_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("too large") << QSize(1921, 1080);
    QTest::newRow("beyond counting") << QSize(1 << 16, 1 << 16);
    QTest::newRow("nothing") << QSize(0, 81);
    QTest::newRow("less than nothing") << QSize(-144, -81);
}

void tst_NxPreviewService::whatFitsNoSlotIsNotThere()
{
    QFETCH(QSize, size);
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 0), 0);
    QRgb pixel = Untouched;
    QVERIFY(!f.service->copyFrame(film, 0, size, reinterpret_cast<uchar *>(&pixel)));
    QCOMPARE(pixel, Untouched);
    QCOMPARE(f.numberIn(film, 0), 0); // Nor was anything else given up for it.
}

void tst_NxPreviewService::theFilmThatIsAskedForLastIsPlayed()
{
    Previews f;
    const quint64 first = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(first, 3), 3);
    const quint64 second = f.add("short.mp4");
    QTRY_COMPARE(f.numberIn(second, 2), 2);
    QCOMPARE(f.numberIn(first, 40), Missing);
    QTRY_COMPARE(f.numberIn(first, 40), 40);
    QCOMPARE(f.films.starts().size(), 1);
    QCOMPARE(f.films.opened(), (QStringList{QStringLiteral("a.mp4"), QStringLiteral("short.mp4"),
                                            QStringLiteral("a.mp4")}));
}

void tst_NxPreviewService::aFilmThatLostItsTurnStillLearnsItsLength()
{
    Previews f;
    const quint64 first = f.add("a.mp4");
    const quint64 second = f.add("short.mp4");
    QTRY_COMPARE(f.service->frameCount(second), ScriptedFilms::ShortFrames);
    QTRY_COMPARE(f.service->frameCount(first), ScriptedFilms::Frames);
    QCOMPARE(f.service->frameCount(second), ScriptedFilms::ShortFrames);
}

void tst_NxPreviewService::anotherOutputIsOpenedAnew()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 7), 7);
    f.service->setOutput(film, Output); // The same.
    f.service->setOutput(film, {0, 0}); // None.
    QCOMPARE(f.numberIn(film, 7), 7);
    f.service->setOutput(film, {1080, 1080});
    QTRY_COMPARE(f.numberIn(film, 7), 7);
    QVERIFY(f.films.orders().contains(QStringLiteral("open a.mp4 1080x1080")));
    QCOMPARE(f.films.opened().size(), 2);
}

void tst_NxPreviewService::whatCannotBePlayedIsNotedOnce_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("damaged") << QStringLiteral("fails.mp4")
                             << QStringLiteral("The file is damaged.");
    QTest::newRow("damaged further on")
        << QStringLiteral("late-failure.mp4") << QStringLiteral("It broke off.");
    QTest::newRow("crashing") << QStringLiteral("crash-playing.mp4")
                              << QStringLiteral("Playing the file crashed its player.");
}

void tst_NxPreviewService::whatCannotBePlayedIsNotedOnce()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const NxLogCapture log;
    Previews f;
    const quint64 film = f.add(name.toLatin1().constData());
    const auto notes = [&log] {
        return log.texts(NxLogLevel::Info).filter(QStringLiteral("no preview of"));
    };
    QTRY_COMPARE(notes().size(), 1);
    QCOMPARE(notes().first(),
             QStringLiteral("no preview of %1: %2").arg(f.films.film(name), reason));
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(f.service->frameCount(film), 0);
        QCOMPARE(f.numberIn(film, i), Missing);
    }
    const quint64 next = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(next, 0), 0);
    QCOMPARE(notes().size(), 1);
    QCOMPARE(f.films.opened().last(), QStringLiteral("a.mp4"));
}

void tst_NxPreviewService::aKilledPlayerIsReplaced()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    for (int frame = 0; frame < 50; frame += 10) {
        QTRY_COMPARE(f.numberIn(film, frame), frame);
        if (frame != 20)
            continue;
        const qint64 player = f.service->processId();
        QVERIFY(player > 0);
        QCOMPARE(kill(pid_t(player), SIGKILL), 0);
        QTRY_VERIFY(f.service->processId() != player); // Frames it had made are gone by then.
    }
    QCOMPARE(f.films.starts().size(), 2);
}

void tst_NxPreviewService::oneThatWasLetGoComesBack()
{
    Previews f;
    f.settings.idleLimit = std::chrono::seconds(2);
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 0), 0);
    QTRY_COMPARE(f.service->processId(), 0);
    QCOMPARE(f.service->frameCount(film), ScriptedFilms::Frames);
    QTRY_COMPARE(f.numberIn(film, 1), 1);
    QVERIFY(f.films.starts().size() > 1);
}

void tst_NxPreviewService::removedFilmsHaveNoFrames()
{
    Previews f;
    const quint64 film = f.add("a.mp4");
    QTRY_COMPARE(f.numberIn(film, 0), 0);
    f.service->remove(film);
    QCOMPARE(f.service->frameCount(film), 0);
    QCOMPARE(f.numberIn(film, 0), Missing);
    QTRY_COMPARE(f.films.opened().last(), QString()); // The player lets go of the file.
    f.service->remove(film);
    f.service->setOutput(film, {100, 100});
    const quint64 next = f.add("b.mp4");
    QTRY_COMPARE(f.numberIn(next, 1), 1);
}

void tst_NxPreviewService::whateverIsAskedTheRightFrameIsShown()
{
    Previews f;
    std::vector<quint64> films{f.add("a.mp4"), f.add("b.mp4"), f.add("short.mp4")};
    quint32 random = 12345;
    for (int i = 0; i < 3'000; ++i) {
        random = random * 1664525 + 1013904223;
        const quint64 film = films.at((random >> 8) % 64 == 0 ? (random >> 16) % 3 : 0);
        const int frame = (random >> 4) % 8 == 0 ? int((random >> 16) % 100) : i % 100;
        const QSize size = (random >> 20) % 128 == 0 ? QSize(64, 36) : Small;
        const int number = f.numberIn(film, frame, size);
        QVERIFY2(number == frame || number == Missing, qPrintable(QString::number(number)));
        QCoreApplication::processEvents();
        if (i % 100 == 50) // Whatever was asked before, who stays with a frame sees it.
            QTRY_COMPARE(f.numberIn(films.front(), 50), 50);
    }
    QCOMPARE(f.films.starts().size(), 1); // Nobody spoke out of turn.
}

NX_TEST_MAIN(tst_NxPreviewService)
#include "tst_NxPreviewService.moc"
