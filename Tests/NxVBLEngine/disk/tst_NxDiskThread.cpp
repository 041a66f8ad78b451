// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDiskThread.h>

#include <Support/NxTestMain.h>
#include <Support/NxThreadNiceness.h>

#include <NxCore/NxQueue.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <string>

namespace {

constexpr std::chrono::milliseconds Short{1'000};
constexpr std::chrono::minutes Long{5};

/// What tasks of a test share with it; outlives every thread that was left behind.
struct Shared
{
    NxQueue<int> order;
    NxQueue<bool> gate; // What hangs waits for it.
    std::atomic<bool> sawAbandoned{false};
};

std::vector<int> waitFor(const std::shared_ptr<Shared> &shared, size_t count)
{
    std::vector<int> order;
    while (order.size() < count) {
        const std::optional<int> next = shared->order.waitPop(std::chrono::seconds(30));
        if (!next)
            break;
        order.push_back(*next);
    }
    return order;
}

} // namespace

class tst_NxDiskThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tasksRunInOrderOnOneOtherThread();
    void tasksStepBackForTheWindow();
    void smallTasksRunFirst();
    void aTaskThatHangsIsLeftBehind();
    void aTaskThatGivesSignsOfLifeIsNot();
    void theTaskThatWasLeftLearnsIt();
    void aTaskWithItsAnswerIsNotLeftBehind();
    void onlyOneOfAnsweringAndLeavingComesTrue();
    void whatTasksCaptureDiesWithThem();
    void closeDropsWhatWaits();
    void closeAsksTheRunningTaskToReturn();
    void closeDoesNotWaitForADeadDrive();
    void theStuckHandlerMayCloseEverything();
};

void tst_NxDiskThread::tasksRunInOrderOnOneOtherThread()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk;
    const auto ids = std::make_shared<NxQueue<std::thread::id>>();
    for (int i = 0; i < 100; ++i) {
        QVERIFY(disk.post([shared, ids, i](NxDiskPulse &) {
            ids->push(std::this_thread::get_id());
            shared->order.push(i);
        }));
    }
    const std::vector<int> order = waitFor(shared, 100);
    QCOMPARE(int(order.size()), 100);
    QVERIFY(std::is_sorted(order.begin(), order.end()));
    const std::vector<std::thread::id> threads = ids->drain();
    QVERIFY(threads.front() != std::this_thread::get_id());
    QVERIFY(std::all_of(threads.begin(), threads.end(),
                        [&threads](std::thread::id id) { return id == threads.front(); }));
}

void tst_NxDiskThread::tasksStepBackForTheWindow()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk;
    disk.post([shared](NxDiskPulse &) { shared->order.push(NxThreadNiceness::own()); });
    QCOMPARE(waitFor(shared, 1), std::vector<int>({NxThreadNiceness::atLeast(5)}));
}

void tst_NxDiskThread::smallTasksRunFirst()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk;
    disk.post([shared](NxDiskPulse &) {
        shared->order.push(0);
        (void)shared->gate.waitPop(Long);
    });
    QCOMPARE(waitFor(shared, 1), std::vector<int>({0}));
    disk.post([shared](NxDiskPulse &) { shared->order.push(1); });
    disk.post([shared](NxDiskPulse &) { shared->order.push(2); });
    disk.post([shared](NxDiskPulse &) { shared->order.push(3); }, {}, NxDiskThread::Lane::Small);
    shared->gate.close();
    QCOMPARE(waitFor(shared, 3), std::vector<int>({3, 1, 2}));
}

void tst_NxDiskThread::aTaskThatHangsIsLeftBehind()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk(Short);
    int stuck = 0;
    disk.post([shared](NxDiskPulse &) { (void)shared->gate.waitPop(Long); }, [&stuck] { ++stuck; });
    disk.post([shared](NxDiskPulse &) { shared->order.push(1); }, [&stuck] { stuck += 100; });
    QTRY_COMPARE(stuck, 1);
    QVERIFY(disk.isStuck());
    QCOMPARE(disk.hangingThreads(), 1);
    QCOMPARE(waitFor(shared, 1), std::vector<int>({1})); // The tasks behind it run.
    shared->gate.close(); // The drive answers after all.
    QTRY_COMPARE(disk.hangingThreads(), 0);
    QVERIFY(!disk.isStuck());
    QCOMPARE(stuck, 1);
    disk.post([shared](NxDiskPulse &) { shared->order.push(2); });
    QCOMPARE(waitFor(shared, 1), std::vector<int>({2}));
}

void tst_NxDiskThread::aTaskThatGivesSignsOfLifeIsNot()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk(Short);
    bool stuck = false;
    disk.post([shared](NxDiskPulse &pulse) {
        while (!shared->gate.isClosed()) { // Slow, but alive.
            (void)shared->gate.waitPop(Short / 10);
            pulse.beat();
        }
        shared->order.push(7);
    }, [&stuck] { stuck = true; });
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(clock.hasExpired(Short.count() * 2));
    QVERIFY(!stuck);
    shared->gate.close();
    QCOMPARE(waitFor(shared, 1), std::vector<int>({7}));
}

void tst_NxDiskThread::theTaskThatWasLeftLearnsIt()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk(Short);
    bool stuck = false;
    disk.post([shared](NxDiskPulse &pulse) {
        (void)shared->gate.waitPop(Long);
        shared->order.push(pulse.isAbandoned() ? 1 : 0);
    }, [&stuck] { stuck = true; });
    QTRY_VERIFY(stuck);
    shared->gate.close();
    QCOMPARE(waitFor(shared, 1), std::vector<int>({1}));
}

void tst_NxDiskThread::aTaskWithItsAnswerIsNotLeftBehind()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk(Short);
    int stuck = 0;
    disk.post([shared](NxDiskPulse &pulse) {
        shared->order.push(pulse.conclude() ? 1 : 0);
        (void)shared->gate.waitPop(Long);
        shared->order.push(pulse.isAbandoned() ? 0 : 2);
    }, [&stuck] { ++stuck; });
    QCOMPARE(waitFor(shared, 1), std::vector<int>({1}));
    QTRY_VERIFY(disk.isStuck()); // So long that it would be left behind.
    QTimer beside; // As long as several looks after what hangs.
    const QSignalSpy beats(&beside, &QTimer::timeout);
    beside.start(Short);
    QTRY_VERIFY(beats.size() >= 2);
    QCOMPARE(stuck, 0);
    shared->gate.close();
    QCOMPARE(waitFor(shared, 1), std::vector<int>({2}));
}

void tst_NxDiskThread::onlyOneOfAnsweringAndLeavingComesTrue()
{
    NxDiskPulse answered;
    answered.start();
    QVERIFY(answered.conclude());
    QVERIFY(!answered.leaveBehind());
    QVERIFY(answered.conclude());
    QVERIFY(!answered.isAbandoned());
    answered.close();
    QVERIFY(answered.isAbandoned());

    NxDiskPulse left;
    left.start();
    QVERIFY(left.leaveBehind());
    QVERIFY(!left.conclude());
    QVERIFY(left.isAbandoned());

    answered.start(); // The next task of a thread that is to end.
    QVERIFY(answered.isAbandoned());
}

void tst_NxDiskThread::whatTasksCaptureDiesWithThem()
{
    NxDiskThread disk;
    auto captured = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = captured;
    disk.post([captured](NxDiskPulse &) {});
    captured.reset();
    QTRY_VERIFY(watch.expired());
}

void tst_NxDiskThread::closeDropsWhatWaits()
{
    const auto shared = std::make_shared<Shared>();
    NxDiskThread disk;
    disk.post([shared](NxDiskPulse &pulse) {
        shared->order.push(0);
        while (!pulse.isAbandoned())
            std::this_thread::yield();
    });
    QCOMPARE(waitFor(shared, 1), std::vector<int>({0}));
    auto captured = std::make_shared<int>(1);
    const std::weak_ptr<int> watch = captured;
    disk.post([shared, captured](NxDiskPulse &) { shared->order.push(1); });
    captured.reset();
    disk.close();
    QVERIFY(watch.expired());
    QVERIFY(!disk.post([shared](NxDiskPulse &) { shared->order.push(2); }));
    QVERIFY(!shared->order.tryPop());
    disk.close();
}

void tst_NxDiskThread::closeAsksTheRunningTaskToReturn()
{
    const auto shared = std::make_shared<Shared>();
    {
        NxDiskThread disk;
        disk.post([shared](NxDiskPulse &pulse) {
            shared->order.push(0);
            while (!pulse.isAbandoned())
                pulse.beat();
            shared->sawAbandoned = true;
        });
        QCOMPARE(waitFor(shared, 1), std::vector<int>({0}));
    }
    QVERIFY(shared->sawAbandoned); // The destructor waited for it.
}

void tst_NxDiskThread::closeDoesNotWaitForADeadDrive()
{
    const auto shared = std::make_shared<Shared>();
    QElapsedTimer clock;
    {
        NxDiskThread disk(Short);
        disk.post([shared](NxDiskPulse &) {
            shared->order.push(0);
            (void)shared->gate.waitPop(Long);
            shared->order.push(1);
        });
        QCOMPARE(waitFor(shared, 1), std::vector<int>({0}));
        clock.start();
    }
    QVERIFY(clock.elapsed() < NxPatience);
    shared->gate.close();
    QCOMPARE(waitFor(shared, 1), std::vector<int>({1})); // It still runs to its end, harmlessly.
}

void tst_NxDiskThread::theStuckHandlerMayCloseEverything()
{
    const auto shared = std::make_shared<Shared>();
    auto disk = std::make_unique<NxDiskThread>(Short);
    disk->post([shared](NxDiskPulse &) { (void)shared->gate.waitPop(Long); },
               [&disk] { disk.release()->deleteLater(); });
    QTRY_VERIFY(!disk);
    shared->gate.close();
}

NX_TEST_MAIN(tst_NxDiskThread)
#include "tst_NxDiskThread.moc"
