// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxQueue.h>

#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <memory>
#include <numeric>
#include <thread>

using namespace std::chrono_literals;

class tst_NxQueue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void givesOutInOrder();
    void isEmptyAtFirst();
    void keepsBatchesTogether();
    void drainsEverything();
    void takesItemsThatOnlyMove();
    void waitsForAnItem();
    void waitsNoLongerThanAsked();
    void wakesEverybodyWhenClosed();
    void takesNothingOnceClosed();
    void givesOutTheRestOnceClosed();
    void losesNothingBetweenManyThreads();
};

void tst_NxQueue::givesOutInOrder()
{
    NxQueue<int> queue;
    QVERIFY(queue.push(1));
    QVERIFY(queue.push(2));
    QVERIFY(queue.pushAll({3, 4}));
    QCOMPARE(queue.size(), std::size_t(4));
    for (int expected = 1; expected <= 4; ++expected)
        QCOMPARE(queue.tryPop().value_or(0), expected);
    QVERIFY(!queue.tryPop());
}

void tst_NxQueue::isEmptyAtFirst()
{
    NxQueue<int> queue;
    QCOMPARE(queue.size(), std::size_t(0));
    QVERIFY(!queue.isClosed());
    QVERIFY(!queue.tryPop());
    QVERIFY(queue.drain().empty());
}

void tst_NxQueue::keepsBatchesTogether()
{
    constexpr int batches = 200;
    constexpr int length = 20;
    NxQueue<int> queue;
    const auto produce = [&queue](int sender) {
        for (int i = 0; i < batches; ++i)
            queue.pushAll(std::vector<int>(length, sender));
    };
    std::thread first(produce, 1);
    std::thread second(produce, 2);
    first.join();
    second.join();

    const std::vector<int> items = queue.drain();
    QCOMPARE(items.size(), std::size_t(2 * batches * length));
    for (std::size_t at = 0; at < items.size(); at += length) {
        const auto begin = items.begin() + std::ptrdiff_t(at);
        QCOMPARE(std::count(begin, begin + length, *begin), std::ptrdiff_t(length));
    }
}

void tst_NxQueue::drainsEverything()
{
    NxQueue<int> queue;
    queue.pushAll({1, 2, 3});
    QCOMPARE(queue.drain(), (std::vector<int>{1, 2, 3}));
    QVERIFY(queue.drain().empty());
    QVERIFY(queue.push(4));
    QCOMPARE(queue.drain(), (std::vector<int>{4}));
}

void tst_NxQueue::takesItemsThatOnlyMove()
{
    NxQueue<std::unique_ptr<int>> queue;
    queue.push(std::make_unique<int>(7));
    const std::optional<std::unique_ptr<int>> item = queue.waitPop(0ms);
    QVERIFY(item);
    QCOMPARE(**item, 7);
}

void tst_NxQueue::waitsForAnItem()
{
    NxQueue<int> queue;
    std::optional<int> received;
    std::thread consumer([&] { received = queue.waitPop(1min); });
    queue.push(5);
    consumer.join();
    QCOMPARE(received.value_or(0), 5);
}

void tst_NxQueue::waitsNoLongerThanAsked()
{
    NxQueue<int> queue;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!queue.waitPop(30ms));
    QVERIFY(timer.elapsed() >= 29);
}

void tst_NxQueue::wakesEverybodyWhenClosed()
{
    NxQueue<int> queue;
    std::vector<std::thread> waiting;
    for (int i = 0; i < 3; ++i)
        waiting.emplace_back([&queue] { QVERIFY(!queue.waitPop(1h)); });
    queue.close();
    for (std::thread &thread : waiting)
        thread.join(); // Would hang for an hour.
}

void tst_NxQueue::takesNothingOnceClosed()
{
    NxQueue<int> queue;
    queue.close();
    QVERIFY(queue.isClosed());
    QVERIFY(!queue.push(1));
    QVERIFY(!queue.pushAll({2, 3}));
    QCOMPARE(queue.size(), std::size_t(0));
}

void tst_NxQueue::givesOutTheRestOnceClosed()
{
    NxQueue<int> queue;
    queue.pushAll({1, 2, 3});
    queue.close();
    QCOMPARE(queue.waitPop(1h).value_or(0), 1);
    QCOMPARE(queue.tryPop().value_or(0), 2);
    QCOMPARE(queue.drain(), (std::vector<int>{3}));
    QVERIFY(!queue.waitPop(1h));
}

void tst_NxQueue::losesNothingBetweenManyThreads()
{
    constexpr int producers = 4;
    constexpr int consumers = 3;
    constexpr int each = 5000;
    NxQueue<int> queue;
    std::vector<std::vector<int>> received(consumers);
    std::vector<std::thread> readers;
    for (int c = 0; c < consumers; ++c) {
        readers.emplace_back([&queue, &mine = received[std::size_t(c)]] {
            while (const std::optional<int> item = queue.waitPop(1min))
                mine.push_back(*item);
        });
    }
    std::vector<std::thread> writers;
    for (int p = 0; p < producers; ++p) {
        writers.emplace_back([&queue, p] {
            for (int i = 0; i < each; ++i)
                queue.push(p * each + i);
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    queue.close();
    for (std::thread &reader : readers)
        reader.join();

    std::vector<int> all;
    for (const std::vector<int> &part : received)
        all.insert(all.end(), part.begin(), part.end());
    std::sort(all.begin(), all.end());
    std::vector<int> expected(std::size_t(producers) * each);
    std::iota(expected.begin(), expected.end(), 0);
    QVERIFY(all == expected);
}

NX_TEST_MAIN(tst_NxQueue)
#include "tst_NxQueue.moc"
