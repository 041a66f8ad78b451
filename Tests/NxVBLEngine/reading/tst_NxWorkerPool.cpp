// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerPool.h>

#include "ScriptedFootage.h"

#include <Support/NxTestMain.h>

#include <QSet>
#include <QTest>
#include <QTimer>

#include <signal.h>

#include <algorithm>
#include <map>

Q_DECLARE_METATYPE(NxReadEnd)

namespace {

using namespace std::chrono_literals;

/// Workers, and what became of the requests to them.
struct Pool
{
    explicit Pool(int workers = 1, const QString &manner = QStringLiteral("plain"))
        : footage(manner),
          settings(footage.settings(workers))
    {
    }
    /// The pool is made with the first request, so that a test can change the settings before.
    quint64 ask(const QString &name, quint8 wishes = rwFacts)
    {
        NxReadRequest request;
        request.number = ++lastNumber;
        request.path = QFile::encodeName(footage.file(name));
        request.wishes = wishes;
        start().add({request});
        return request.number;
    }
    quint64 ask(const char *name, quint8 wishes = rwFacts)
    {
        return ask(QString::fromLatin1(name), wishes);
    }
    NxWorkerPool &start()
    {
        const auto tell = [this](const NxReadOutcome &outcome) {
            ++told[outcome.number];
            outcomes[outcome.number] = outcome;
            order.append(outcome.number);
        };
        if (!pool)
            pool = std::make_unique<NxWorkerPool>(settings, tell);
        return *pool;
    }
    [[nodiscard]] bool isTold(quint64 number) const { return told.count(number) > 0; }
    /// Waits until all requests are told of; false when one was told of twice.
    bool finish()
    {
        const auto all = [this] { return told.size() == size_t(lastNumber); };
        return QTest::qWaitFor(all, 60'000)
               && std::all_of(told.begin(), told.end(),
                              [](const auto &each) { return each.second == 1; });
    }
    [[nodiscard]] NxReadEnd endOf(quint64 number) { return outcomes[number].end; }
    [[nodiscard]] qint64 onlyProcess() const
    {
        const std::vector<qint64> ids = pool->processIds();
        return ids.size() == 1 ? ids.front() : -1;
    }

    ScriptedFootage footage;
    NxWorkerSettings settings;
    quint64 lastNumber = 0;
    std::map<quint64, int> told;
    std::map<quint64, NxReadOutcome> outcomes;
    QVector<quint64> order;
    std::unique_ptr<NxWorkerPool> pool;
};

} // namespace

class tst_NxWorkerPool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRequestIsAnsweredOnce();
    void oneWorkerAnswersInOrder();
    void noMoreWorkersThanRequestsOrSeats();
    void aFileThatKillsIsTriedOnceMore_data();
    void aFileThatKillsIsTriedOnceMore();
    void aFileMayCrashOnce();
    void aWorkerKilledFromOutsideIsReplaced_data();
    void aWorkerKilledFromOutsideIsReplaced();
    void idleWorkersMayBeKilledAsOftenAsYouLike();
    void picturesMayTakeLongerThanFacts();
    void aSilentDriveHoldsUpOneWorker();
    void aSlowDriveIsToldOfWhenItAnswers();
    void aDriveIsNoLongerSlowWhenItHasOpenedTheFile();
    void aSilentDriveIsTriedAgain();
    void aFileThatKillsDoesNotSilenceItsDrive();
    void workersThatNeverStartAreGivenUp_data();
    void workersThatNeverStartAreGivenUp();
    void withoutAProgramThereIsOneErrorLine();
    void idleWorkersAreLetGoAndStartedAnew();
    void idleWorkersThatDoNotGoAreReplaced();
    void thePoolMayDieWithWorkUnderWay();
};

void tst_NxWorkerPool::everyRequestIsAnsweredOnce()
{
    Pool f(2);
    for (int i = 0; i < 200; ++i)
        f.ask(QStringLiteral("%1.mp4").arg(i));
    const quint64 failing = f.ask("fails.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.outcomes[7].end, NxReadEnd::Answered);
    QCOMPARE(f.outcomes[7].answer.facts->reel, QStringLiteral("6.mp4"));
    QCOMPARE(f.endOf(failing), NxReadEnd::Answered);
    QCOMPARE(f.outcomes[failing].answer.failure, QStringLiteral("The file is damaged."));
    QCOMPARE(f.footage.requests().size(), 201);
    QCOMPARE(f.footage.starts().size(), 2);
}

void tst_NxWorkerPool::oneWorkerAnswersInOrder()
{
    Pool f;
    QVector<quint64> asked;
    for (int i = 0; i < 20; ++i)
        asked.append(f.ask(QStringLiteral("%1.mp4").arg(i)));
    QVERIFY(f.finish());
    QCOMPARE(f.order, asked);
}

void tst_NxWorkerPool::noMoreWorkersThanRequestsOrSeats()
{
    Pool f(3);
    f.ask("gated-1.mp4");
    QTRY_COMPARE(f.footage.requests().size(), 1);
    QCOMPARE(f.footage.starts().size(), 1);
    QCOMPARE(f.pool->processIds().size(), size_t(1));
    for (int i = 2; i < 10; ++i)
        f.ask(QStringLiteral("gated-%1.mp4").arg(i));
    QTRY_COMPARE(f.footage.requests().size(), 3);
    QCOMPARE(f.pool->processIds().size(), size_t(3));
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.footage.starts().size(), 3);
}

void tst_NxWorkerPool::aFileThatKillsIsTriedOnceMore_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    const QString crashed = QStringLiteral("Reading the file crashed its reader.");
    const QString hungry = QStringLiteral("Reading the file takes too much memory.");
    const QString slow = QStringLiteral("Reading the file took too long.");
    QTest::newRow("crash") << QStringLiteral("crash.mp4") << crashed;
    QTest::newRow("before opening") << QStringLiteral("crash-unopened.mp4") << crashed;
    QTest::newRow("memory") << QStringLiteral("memory.mp4") << hungry;
    QTest::newRow("hangs") << QStringLiteral("hang-opened.mp4") << slow;
    QTest::newRow("garbage") << QStringLiteral("garbage.mp4") << crashed;
    QTest::newRow("wrong number") << QStringLiteral("wrong-number.mp4") << crashed;
    QTest::newRow("half a frame") << QStringLiteral("half-frame.mp4") << slow;
}

void tst_NxWorkerPool::aFileThatKillsIsTriedOnceMore()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    Pool f(2);
    if (reason.contains(QLatin1String("too long")))
        f.settings.factsLimit = 3s;
    QVector<quint64> good;
    for (int i = 0; i < 5; ++i)
        good.append(f.ask(QStringLiteral("%1.mp4").arg(i)));
    const quint64 bad = f.ask(name);
    for (int i = 5; i < 10; ++i)
        good.append(f.ask(QStringLiteral("%1.mp4").arg(i)));
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(bad), NxReadEnd::Killed);
    QTEST(f.outcomes[bad].reason, "reason");
    QCOMPARE(f.footage.names().count(name), 2);
    for (const quint64 number : good)
        QCOMPARE(f.endOf(number), NxReadEnd::Answered);
    QCOMPARE(f.footage.names().size(), 12);
    const quint64 after = f.ask("after.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(after), NxReadEnd::Answered);
}

void tst_NxWorkerPool::aFileMayCrashOnce()
{
    Pool f;
    const quint64 number = f.ask("crash-once.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(number), NxReadEnd::Answered);
    QCOMPARE(f.footage.names().size(), 2);
    QCOMPARE(f.footage.starts().size(), 2);
}

void tst_NxWorkerPool::aWorkerKilledFromOutsideIsReplaced_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("killed") << SIGKILL;
    QTest::newRow("crashed") << SIGSEGV;
    QTest::newRow("stopped") << SIGSTOP;
}

void tst_NxWorkerPool::aWorkerKilledFromOutsideIsReplaced()
{
    QFETCH(int, signal);
    Pool f;
    if (signal == SIGSTOP)
        f.settings.factsLimit = 5s;
    const quint64 hit = f.ask("gated.mp4");
    const quint64 other = f.ask("other.mp4");
    QTRY_COMPARE(f.footage.requests().size(), 1);
    const qint64 first = f.onlyProcess();
    QCOMPARE(kill(pid_t(first), signal), 0);
    QTRY_VERIFY(f.isTold(other));
    QTRY_COMPARE(f.footage.names().count(QStringLiteral("gated.mp4")), 2);
    QTRY_VERIFY(isProcessGone(first));
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(hit), NxReadEnd::Answered);
    QCOMPARE(f.endOf(other), NxReadEnd::Answered);
}

void tst_NxWorkerPool::idleWorkersMayBeKilledAsOftenAsYouLike()
{
    constexpr int workers = 5;
    Pool f(workers);
    for (int i = 0; i < workers; ++i)
        f.ask(QStringLiteral("gated-%1.mp4").arg(i));
    QTRY_COMPARE(f.footage.requests().size(), workers);
    f.footage.openGate();
    QVERIFY(f.finish());
    for (const qint64 id : f.pool->processIds())
        QCOMPARE(kill(pid_t(id), SIGKILL), 0);
    QTRY_VERIFY(f.pool->processIds().empty());
    const quint64 next = f.ask("next.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(next), NxReadEnd::Answered);
    QCOMPARE(f.footage.starts().size(), workers + 1);
}

void tst_NxWorkerPool::picturesMayTakeLongerThanFacts()
{
    Pool f;
    f.settings.factsLimit = 1ms;
    f.settings.picturesLimit = 60s;
    const quint64 pictures = f.ask("gated.mp4", rwCover);
    QTRY_COMPARE(f.footage.requests().size(), 1);
    const quint64 facts = f.ask("hang-opened.mp4", rwFacts);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(pictures), NxReadEnd::Answered);
    QCOMPARE(f.endOf(facts), NxReadEnd::Killed);
}

void tst_NxWorkerPool::aSilentDriveHoldsUpOneWorker()
{
    Pool f(2);
    f.settings.slowOpening = 1s;
    QVector<quint64> dead;
    for (int i = 0; i < 6; ++i)
        dead.append(f.ask(QStringLiteral("dead/slow-%1.mp4").arg(i)));
    QVector<quint64> good;
    for (int i = 0; i < 20; ++i)
        good.append(f.ask(QStringLiteral("%1.mp4").arg(i)));
    const auto isTold = [&f](quint64 number) { return f.isTold(number); };
    QTRY_VERIFY(std::all_of(good.begin(), good.end(), isTold));
    QTRY_COMPARE(std::count_if(dead.begin(), dead.end(), isTold), 5);
    for (const quint64 number : std::as_const(dead)) {
        if (!f.isTold(number))
            continue;
        QCOMPARE(f.endOf(number), NxReadEnd::DriveSilent);
        QVERIFY(f.outcomes[number].volume.endsWith(QLatin1String("/dead")));
        QVERIFY(!f.outcomes[number].reason.isEmpty());
    }
    QVERIFY(f.footage.names().filter(QStringLiteral("slow")).size() <= 2);
    QVERIFY(f.pool->processIds().size() <= 2);
}

void tst_NxWorkerPool::aSlowDriveIsToldOfWhenItAnswers()
{
    Pool f(2);
    f.settings.slowOpening = 1s;
    const quint64 slow = f.ask("dead/slow.mp4");
    QTRY_COMPARE(f.footage.requests().size(), 1);
    const quint64 good = f.ask("good.mp4");
    QTRY_VERIFY(f.isTold(good));
    bool isSlowByNow = false; // Timers fire in their order.
    QTimer::singleShot(2s, Qt::PreciseTimer, this, [&] { isSlowByNow = true; });
    QTRY_VERIFY(isSlowByNow);
    const quint64 held = f.ask("dead/b.mp4"); // Only now: its answer would clear the drive.
    QTRY_VERIFY(f.isTold(held));
    QCOMPARE(f.endOf(held), NxReadEnd::DriveSilent);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(slow), NxReadEnd::Answered);
    QVERIFY(f.outcomes[slow].volumeBack.endsWith(QLatin1String("/dead")));
    QCOMPARE(f.outcomes[good].volumeBack, QString());
    const quint64 after = f.ask("dead/b.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(after), NxReadEnd::Answered);
    QCOMPARE(f.outcomes[after].volumeBack, QString());
}

void tst_NxWorkerPool::aDriveIsNoLongerSlowWhenItHasOpenedTheFile()
{
    Pool f(2);
    f.settings.slowOpening = 0ms; // Every drive counts as slow until it has opened the file.
    const quint64 lasting = f.ask("dead/gated.mp4");
    const auto isAnswered = [&f] {
        const quint64 number = f.ask("dead/b.mp4");
        return QTest::qWaitFor([&] { return f.isTold(number); }, NxPatience)
            && f.endOf(number) == NxReadEnd::Answered;
    };
    QVERIFY(QTest::qWaitFor(isAnswered, 30'000));
    QVERIFY(!f.isTold(lasting));
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(lasting), NxReadEnd::Answered);
}

void tst_NxWorkerPool::aSilentDriveIsTriedAgain()
{
    Pool f;
    f.settings.slowOpening = 1s;
    f.settings.openingLimit = 3s;
    f.settings.silentPause = 1ms;
    const quint64 slow = f.ask("dead/slow.mp4");
    const quint64 good = f.ask("good.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(slow), NxReadEnd::DriveSilent);
    QCOMPARE(f.endOf(good), NxReadEnd::Answered);
    f.footage.openGate();
    const auto comesBack = [&f] {
        const quint64 number = f.ask("dead/slow.mp4");
        return QTest::qWaitFor([&] { return f.isTold(number); }, NxPatience)
               && f.endOf(number) == NxReadEnd::Answered
               && !f.outcomes[number].volumeBack.isEmpty();
    };
    QVERIFY(QTest::qWaitFor(comesBack, 30'000));
}

void tst_NxWorkerPool::aFileThatKillsDoesNotSilenceItsDrive()
{
    Pool f;
    f.settings.slowOpening = 1ms; // Whatever is opened counts as slow at first.
    f.settings.factsLimit = 300ms;
    const quint64 bad = f.ask("dead/slow-hang-opened.mp4");
    QTRY_COMPARE(f.footage.requests().size(), 1);
    f.footage.openGate();
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(bad), NxReadEnd::Killed);
    const quint64 good = f.ask("dead/good.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(good), NxReadEnd::Answered);
}

void tst_NxWorkerPool::workersThatNeverStartAreGivenUp_data()
{
    QTest::addColumn<QString>("manner");
    QTest::addColumn<int>("starts");
    QTest::newRow("end at once") << QStringLiteral("endsatonce") << 3;
    QTest::newRow("greet with garbage") << QStringLiteral("garbage") << 3;
    QTest::newRow("say nothing") << QStringLiteral("silent") << 3;
    QTest::newRow("another version") << QStringLiteral("otherversion") << 1;
}

void tst_NxWorkerPool::workersThatNeverStartAreGivenUp()
{
    QFETCH(QString, manner);
    Pool f(1, manner);
    f.settings.startLimit = manner == QLatin1String("silent") ? 300ms : 60s;
    NxTestLog::expectError(QStringLiteral("no footage is read"));
    const quint64 first = f.ask("a.mp4");
    const quint64 second = f.ask("b.mp4");
    QVERIFY(f.finish());
    const quint64 late = f.ask("c.mp4");
    QVERIFY(f.finish());
    for (const quint64 number : {first, second, late}) {
        QCOMPARE(f.endOf(number), NxReadEnd::NoWorker);
        QVERIFY(f.outcomes[number].reason.contains(f.footage.program()));
    }
    QFETCH(int, starts);
    // One that says nothing may be ended before it has written down that it started.
    QVERIFY(f.footage.starts().size() <= starts);
    QVERIFY(manner == QLatin1String("silent") || f.footage.starts().size() == starts);
    QVERIFY(f.footage.requests().isEmpty());
}

void tst_NxWorkerPool::withoutAProgramThereIsOneErrorLine()
{
    Pool f(2);
    f.settings.program.clear();
    f.settings.whyNone = QStringLiteral("It is not installed.");
    NxTestLog::expectError(QStringLiteral("It is not installed."));
    const quint64 first = f.ask("a.mp4");
    const quint64 second = f.ask("b.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(first), NxReadEnd::NoWorker);
    QCOMPARE(f.endOf(second), NxReadEnd::NoWorker);
    QCOMPARE(f.outcomes[second].reason, QStringLiteral("It is not installed."));
}

void tst_NxWorkerPool::idleWorkersAreLetGoAndStartedAnew()
{
    Pool f;
    f.settings.idleLimit = 50ms;
    f.ask("a.mp4");
    QVERIFY(f.finish());
    QTRY_VERIFY(f.pool->processIds().empty());
    const quint64 next = f.ask("b.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(next), NxReadEnd::Answered);
    QCOMPARE(f.footage.starts().size(), 2);
}

void tst_NxWorkerPool::idleWorkersThatDoNotGoAreReplaced()
{
    Pool f(1, QStringLiteral("deaf"));
    f.settings.idleLimit = 50ms;
    f.ask("a.mp4");
    QVERIFY(f.finish());
    f.pool.reset();
    f.settings.startLimit = 1s;
    f.ask("b.mp4");
    QVERIFY(f.finish());
    const qint64 deaf = f.onlyProcess();
    QTRY_VERIFY(isProcessGone(deaf));
    const quint64 next = f.ask("c.mp4");
    QVERIFY(f.finish());
    QCOMPARE(f.endOf(next), NxReadEnd::Answered);
}

void tst_NxWorkerPool::thePoolMayDieWithWorkUnderWay()
{
    Pool f(2);
    f.ask("hang-opened.mp4");
    f.ask("hang-unopened.mp4");
    QTRY_COMPARE(f.footage.requests().size(), 2);
    const std::vector<qint64> ids = f.pool->processIds();
    f.pool.reset();
    QCOMPARE(ids.size(), size_t(2));
    for (const qint64 id : ids)
        QTRY_VERIFY(isProcessGone(id));
    QVERIFY(f.told.empty());
}

NX_TEST_MAIN(tst_NxWorkerPool)
#include "tst_NxWorkerPool.moc"
