// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDoorbell.h>
#include <NxCore/NxQueue.h>

#include <Support/NxTestMain.h>

#include <QCoreApplication>
#include <QScopeGuard>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

class tst_NxDoorbell : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersOnItsOwnThread();
    void answersNothingBeforeTheEventLoop();
    void joinsRingsUntilItAnswers();
    void hearsARingDuringItsAnswer();
    void losesNoItem();
    void mayBeDestroyedByItsHandler();
    void isNotAnsweredOnceDestroyed();
    void mayBeRungWhileItIsDestroyed();
    void ropeWithoutABellRingsNothing();
};

void tst_NxDoorbell::answersOnItsOwnThread()
{
    const QThread *answeredOn = nullptr;
    NxDoorbell bell([&] { answeredOn = QThread::currentThread(); });
    std::thread([&bell] { bell.ring(); }).join();
    QTRY_COMPARE(answeredOn, QThread::currentThread());
}

void tst_NxDoorbell::answersNothingBeforeTheEventLoop()
{
    int answers = 0;
    NxDoorbell bell([&] { ++answers; });
    bell.ring();
    QCOMPARE(answers, 0);
    QCoreApplication::processEvents();
    QCOMPARE(answers, 1);
}

void tst_NxDoorbell::joinsRingsUntilItAnswers()
{
    int answers = 0;
    NxDoorbell bell([&] { ++answers; });
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([rope = bell.rope()] {
            for (int ring = 0; ring < 100; ++ring)
                rope.ring();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 1);

    bell.ring();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 2);
}

void tst_NxDoorbell::hearsARingDuringItsAnswer()
{
    int answers = 0;
    std::unique_ptr<NxDoorbell> bell;
    bell = std::make_unique<NxDoorbell>([&] {
        ++answers;
        if (answers == 1)
            bell->ring();
    });
    bell->ring();
    QTRY_COMPARE(answers, 2);
}

void tst_NxDoorbell::losesNoItem()
{
    constexpr int producers = 3;
    constexpr int each = 3000;
    NxQueue<int> queue;
    int received = 0;
    NxDoorbell bell([&] { received += int(queue.drain().size()); });
    std::vector<std::thread> threads;
    const auto joining = qScopeGuard([&threads] {
        for (std::thread &thread : threads)
            thread.join();
    });
    for (int p = 0; p < producers; ++p) {
        threads.emplace_back([&queue, rope = bell.rope()] {
            for (int i = 0; i < each; ++i) {
                queue.push(i);
                rope.ring();
            }
        });
    }
    QTRY_COMPARE(received, producers * each);
}

void tst_NxDoorbell::mayBeDestroyedByItsHandler()
{
    std::unique_ptr<NxDoorbell> bell;
    bool answered = false;
    bell = std::make_unique<NxDoorbell>([&] {
        bell.reset();
        answered = true;
    });
    bell->ring();
    QTRY_VERIFY(answered);
    QVERIFY(!bell);
}

void tst_NxDoorbell::isNotAnsweredOnceDestroyed()
{
    int answers = 0;
    auto bell = std::make_unique<NxDoorbell>([&] { ++answers; });
    const NxDoorbellRope rope = bell->rope();
    bell->ring();
    bell.reset();
    rope.ring();
    QCoreApplication::processEvents();
    QCOMPARE(answers, 0);
}

void tst_NxDoorbell::mayBeRungWhileItIsDestroyed()
{
    std::atomic<bool> stop{false};
    std::atomic<int> rings{0};
    NxQueue<NxDoorbellRope> ropes;
    std::thread ringer([&] {
        NxDoorbellRope rope;
        while (!stop) {
            if (std::optional<NxDoorbellRope> next = ropes.tryPop())
                rope = std::move(*next);
            rope.ring();
            ++rings;
        }
    });
    const auto ending = qScopeGuard([&] {
        stop = true;
        ringer.join();
    });
    for (int i = 0; i < 300; ++i) {
        NxDoorbell bell([] {});
        ropes.push(bell.rope());
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(rings > 0);
}

void tst_NxDoorbell::ropeWithoutABellRingsNothing()
{
    NxDoorbellRope().ring();
    QCoreApplication::processEvents();
}

NX_TEST_MAIN(tst_NxDoorbell)
#include "tst_NxDoorbell.moc"
