// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewPlayer.h>

#include "ScriptedFilms.h"

#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QRgb>
#include <QTest>

#include <signal.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace {

using What = NxPreviewNews::What;

/// A player, and what it told.
struct Playing
{
    explicit Playing(const QString &manner = QStringLiteral("plain"))
        : films(manner),
          settings(films.settings())
    {
    }
    /// The player is made with the first order, so that a test can change the settings before.
    NxPreviewPlayer &start()
    {
        if (!player)
            player = std::make_unique<NxPreviewPlayer>(settings, [this](NxPreviewNews news) {
                if (news.what == What::Frame)
                    memory = news.memory;
                told.push_back(std::move(news));
            });
        return *player;
    }
    void play(const QString &name, qint64 frame = 0)
    {
        order.what = NxPreviewOrder::What::Play;
        order.open.number = ++number;
        order.open.path = QFile::encodeName(films.film(name));
        send(frame);
    }
    void play(const char *name) { play(QString::fromLatin1(name)); }
    void show(qint64 frame, quint32 freed = 0)
    {
        order.what = NxPreviewOrder::What::Show;
        order.show.freed = freed;
        order.memory = memory;
        send(frame);
    }
    void close()
    {
        order.what = NxPreviewOrder::What::Close;
        order.open.number = ++number;
        start().obey(order);
    }
    void send(qint64 frame)
    {
        order.show.frame = frame;
        order.show.size = ScriptedFilms::Size;
        start().obey(order);
        order.show.freed = 0;
    }
    [[nodiscard]] int count(What what) const
    {
        return int(std::count_if(told.begin(), told.end(),
                                 [what](const NxPreviewNews &news) { return news.what == what; }));
    }
    /// The last thing that was told of a film's opening; number 0 when there is none.
    [[nodiscard]] NxPreviewOpened opened() const
    {
        NxPreviewOpened last;
        for (const NxPreviewNews &news : told) {
            if (news.what == What::Opened)
                last = news.opened;
        }
        return last;
    }
    [[nodiscard]] bool isFull() const { return count(What::Frame) >= NxPreviewSlots::Count; }

    ScriptedFilms films;
    NxPreviewSettings settings;
    NxPreviewOrder order;
    quint64 number = 0;
    std::shared_ptr<const NxSharedMemory> memory;
    std::vector<NxPreviewNews> told;
    std::unique_ptr<NxPreviewPlayer> player;
};

} // namespace

class tst_NxPreviewPlayer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void framesAreToldAndLieInTheirSlots();
    void noProcessRunsBeforeAFilmIsPlayed();
    void slotsGoBackWithTheNextOrder();
    void slotsOfAnotherMemoryAreNotGivenBack();
    void aFileThatEndsItsPlayerIsTriedOnceMore_data();
    void aFileThatEndsItsPlayerIsTriedOnceMore();
    void aFileMayEndItsPlayerOnce_data();
    void aFileMayEndItsPlayerOnce();
    void theNextFilmIsNotToSuffer();
    void theFilmThatHangsIsToBlameNotTheNextOne();
    void whatMakesNoSenseIsNotTold_data();
    void whatMakesNoSenseIsNotTold();
    void aFilmMayTurnOutDamaged();
    void aPlayerKilledAtRestHurtsNoFilm();
    void oneThatNobodyAsksIsLetGo();
    void aPlayerThatNeverStartsIsGivenUp_data();
    void aPlayerThatNeverStartsIsGivenUp();
    void withoutAProgramThereIsOneErrorLine();
    void aClosedFilmIsPlayedNoMore();
    void filmsMayFollowEachOtherAtOnce();
    void itMayDieWithWorkUnderWay_data();
    void itMayDieWithWorkUnderWay();
};

void tst_NxPreviewPlayer::framesAreToldAndLieInTheirSlots()
{
    Playing f;
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    QCOMPARE(f.told.front().what, What::Opened);
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.opened().frames, ScriptedFilms::Frames);
    for (int i = 0; i < NxPreviewSlots::Count; ++i) {
        const NxPreviewNews &news = f.told.at(size_t(i) + 1);
        QCOMPARE(news.frame.frame, qint64(i));
        const auto *pixels = reinterpret_cast<const QRgb *>(
            news.memory->bytes() + qint64(news.frame.slot) * NxPreviewSlots::Capacity);
        QCOMPARE(pixels[7], 0xff000000 | QRgb(i));
    }
}

void tst_NxPreviewPlayer::noProcessRunsBeforeAFilmIsPlayed()
{
    Playing f;
    f.close();
    f.show(3);
    QCOMPARE(f.player->processId(), 0);
    f.play("a.mp4");
    QVERIFY(f.player->processId() > 0);
    QTRY_VERIFY(f.isFull());
    QCOMPARE(f.films.starts().size(), 1);
}

void tst_NxPreviewPlayer::slotsGoBackWithTheNextOrder()
{
    Playing f;
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    const quint32 first = f.told.at(1).frame.slot;
    f.show(1, NxPreviewSlots::bit(int(first)));
    QTRY_COMPARE(f.count(What::Frame), NxPreviewSlots::Count + 1);
    QCOMPARE(f.told.back().frame.slot, first);
    QCOMPARE(f.told.back().frame.frame, qint64(NxPreviewSlots::Count));
}

void tst_NxPreviewPlayer::slotsOfAnotherMemoryAreNotGivenBack()
{
    Playing f;
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    auto other = NxSharedMemory::create(NxPreviewSlots::MemoryBytes);
    QVERIFY(other);
    const auto own = std::exchange(f.memory, other.take());
    f.show(1, NxPreviewSlots::All);
    f.memory = own;
    f.show(1, NxPreviewSlots::bit(0)); // The one that comes after it.
    QTRY_COMPARE(f.count(What::Frame), NxPreviewSlots::Count + 1);
    QCOMPARE(f.told.back().frame.slot, 0U);
}

void tst_NxPreviewPlayer::aFileThatEndsItsPlayerIsTriedOnceMore_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const QString crashed = QStringLiteral("Playing the file crashed its player.");
    const QString tooLong = QStringLiteral("Playing the file took too long.");
    const auto row = [](const char *name, const QString &reason) {
        QTest::newRow(name) << QString::fromLatin1(name) << reason;
    };
    row("crash-opening.mp4", crashed);
    row("crash-playing.mp4", crashed);
    row("hang-opening.mp4", tooLong);
    row("hang-playing.mp4", tooLong);
    row("memory-playing.mp4", QStringLiteral("Playing the file takes too much memory."));
    row("bad-slot.mp4", crashed);
}

void tst_NxPreviewPlayer::aFileThatEndsItsPlayerIsTriedOnceMore()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    Playing f;
    if (name.startsWith(QLatin1String("hang")))
        f.settings = f.films.impatient();
    f.play(name);
    QTRY_COMPARE(f.opened().reason, reason);
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.opened().frames, 0);
    QCOMPARE(f.films.opened(), (QStringList{name, name}));
    QCOMPARE(f.count(What::Lost), 2);
    f.play(name); // It is known by now.
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.opened().reason, reason);
    QCOMPARE(f.player->processId(), 0);
}

void tst_NxPreviewPlayer::aFileMayEndItsPlayerOnce_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"crash-opening-once.mp4", "crash-playing-once.mp4",
                             "hang-opening-once.mp4", "hang-playing-once.mp4"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_NxPreviewPlayer::aFileMayEndItsPlayerOnce()
{
    QFETCH(QString, name);
    Playing f;
    if (name.startsWith(QLatin1String("hang")))
        f.settings = f.films.impatient();
    f.play(name, 5);
    QTRY_VERIFY(f.isFull());
    QCOMPARE(f.opened().frames, ScriptedFilms::Frames);
    QCOMPARE(f.told.back().frame.frame, qint64(5 + NxPreviewSlots::Count - 1));
    QCOMPARE(f.films.starts().size(), 2);
    QCOMPARE(f.count(What::Lost), 1);
}

void tst_NxPreviewPlayer::theNextFilmIsNotToSuffer()
{
    Playing f;
    f.play("crash-playing.mp4");
    QTRY_VERIFY(!f.opened().reason.isEmpty());
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    QCOMPARE(f.opened().frames, ScriptedFilms::Frames);
    QCOMPARE(f.films.starts().size(), 3);
}

void tst_NxPreviewPlayer::theFilmThatHangsIsToBlameNotTheNextOne()
{
    Playing f;
    f.settings = f.films.impatient();
    for (int i = 0; i < 2; ++i) {
        f.play("hang-playing.mp4");
        QTRY_COMPARE(f.films.opened().size(), 2 * i + 1);
        f.play("a.mp4"); // Before it is noticed that the first one hangs.
        QTRY_COMPARE(f.films.opened().size(), 2 * i + 2);
        QTRY_COMPARE(f.opened().number, f.number);
        QCOMPARE(f.opened().frames, ScriptedFilms::Frames);
    }
    f.play("hang-playing.mp4");
    QCOMPARE(f.opened().reason, QStringLiteral("Playing the file took too long."));
}

void tst_NxPreviewPlayer::whatMakesNoSenseIsNotTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("frames"); // That come before it is noticed.
    const auto row = [](const char *name, int frames) {
        QTest::newRow(name) << QString::fromLatin1(name) << frames;
    };
    row("bad-slot.mp4", 0);
    row("bad-frame.mp4", 0);
    row("bad-size.mp4", 0);
    row("bad-number.mp4", 0);
    row("bad-turn.mp4", 0);
    row("bad-answer.mp4", 0);
    row("bad-word.mp4", 0);
    row("half-message.mp4", 0);
    row("lent-slot.mp4", 1);
}

void tst_NxPreviewPlayer::whatMakesNoSenseIsNotTold()
{
    QFETCH(QString, name);
    QFETCH(int, frames);
    Playing f;
    f.play(name);
    QTRY_VERIFY(!f.opened().reason.isEmpty());
    QCOMPARE(f.count(What::Frame), 2 * frames); // Of both players.
    QCOMPARE(f.count(What::Lost), 2);
}

void tst_NxPreviewPlayer::aFilmMayTurnOutDamaged()
{
    Playing f;
    f.play("late-failure.mp4");
    QTRY_COMPARE(f.opened().reason, QStringLiteral("It broke off."));
    QCOMPARE(f.count(What::Opened), 2);
    QCOMPARE(f.count(What::Frame), 3);
    QCOMPARE(f.count(What::Lost), 0);
    f.play("a.mp4");
    QTRY_COMPARE(f.opened().frames, ScriptedFilms::Frames);
    QCOMPARE(f.films.starts().size(), 1);
}

void tst_NxPreviewPlayer::aPlayerKilledAtRestHurtsNoFilm()
{
    Playing f;
    for (int i = 1; i <= 4; ++i) {
        f.told.clear();
        f.play("a.mp4");
        QTRY_VERIFY(f.isFull());
        f.close();
        QTRY_COMPARE(f.opened().number, f.number);
        QCOMPARE(kill(pid_t(f.player->processId()), SIGKILL), 0);
        QTRY_COMPARE(f.count(What::Lost), 1);
        QCOMPARE(f.player->processId(), 0);
        QCOMPARE(f.films.starts().size(), i);
    }
}

void tst_NxPreviewPlayer::oneThatNobodyAsksIsLetGo()
{
    Playing f;
    f.settings.idleLimit = std::chrono::milliseconds(1);
    f.play("a.mp4");
    QTRY_COMPARE(f.count(What::Lost), 1);
    QCOMPARE(f.told.back().stopped, f.number);
    QCOMPARE(f.player->processId(), 0);

    f.show(1);
    QCOMPARE(f.player->processId(), 0); // Whoever asks plays it anew.
    QVERIFY(f.opened().reason.isEmpty());
}

void tst_NxPreviewPlayer::aPlayerThatNeverStartsIsGivenUp_data()
{
    QTest::addColumn<QString>("manner");
    QTest::addColumn<int>("starts");
    QTest::newRow("it ends at once") << QStringLiteral("endsatonce") << 3;
    QTest::newRow("it says nothing") << QStringLiteral("silent") << 3;
    QTest::newRow("another version") << QStringLiteral("otherversion") << 1;
}

void tst_NxPreviewPlayer::aPlayerThatNeverStartsIsGivenUp()
{
    QFETCH(QString, manner);
    QFETCH(int, starts);
    Playing f(manner);
    if (manner == QLatin1String("silent"))
        f.settings.startLimit = std::chrono::seconds(1);
    NxTestLog::expectError(QStringLiteral("no preview is played"));
    f.play("a.mp4");
    QTRY_VERIFY(!f.opened().reason.isEmpty());
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.count(What::Lost), starts);
    f.play("b.mp4");
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.count(What::Lost), starts);
}

void tst_NxPreviewPlayer::withoutAProgramThereIsOneErrorLine()
{
    Playing f;
    f.settings.program = [] { return NxResult<QString>(NxError{QStringLiteral("not there")}); };
    NxTestLog::expectError(QStringLiteral("no preview is played: not there"));
    for (int i = 0; i < 3; ++i) {
        f.play("a.mp4");
        QCOMPARE(f.opened().number, f.number);
        QCOMPARE(f.opened().reason, QStringLiteral("not there"));
    }
}

void tst_NxPreviewPlayer::aClosedFilmIsPlayedNoMore()
{
    Playing f;
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    f.close();
    f.show(9, NxPreviewSlots::All);
    QTRY_COMPARE(f.opened().number, f.number);
    QCOMPARE(f.count(What::Frame), NxPreviewSlots::Count);
    QCOMPARE(f.films.opened(), (QStringList{QStringLiteral("a.mp4"), QString()}));
    f.play("b.mp4"); // The slots of the film before go to this one.
    QTRY_COMPARE(f.count(What::Frame), 2 * NxPreviewSlots::Count);
}

void tst_NxPreviewPlayer::filmsMayFollowEachOtherAtOnce()
{
    Playing f;
    f.play("a.mp4");
    QTRY_VERIFY(f.isFull());
    for (int i = 0; i < 20; ++i) {
        f.close();
        f.play("b.mp4");
        f.play("fails.mp4");
        f.close();
        f.close();
    }
    f.told.clear();
    f.order.memory = f.memory;
    f.order.show.freed = NxPreviewSlots::All;
    f.play("c.mp4");
    QTRY_VERIFY(f.isFull());
    QCOMPARE(f.opened().number, f.number);
    QCOMPARE(f.count(What::Lost), 0);
    QCOMPARE(f.films.starts().size(), 1);
}

void tst_NxPreviewPlayer::itMayDieWithWorkUnderWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a.mp4", "hang-opening.mp4", "hang-playing.mp4", "crash-playing.mp4"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_NxPreviewPlayer::itMayDieWithWorkUnderWay()
{
    QFETCH(QString, name);
    Playing f;
    f.play(name);
    QTRY_VERIFY(!f.films.opened().isEmpty());
    f.player.reset();
    for (const QString &id : f.films.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

NX_TEST_MAIN(tst_NxPreviewPlayer)
#include "tst_NxPreviewPlayer.moc"
