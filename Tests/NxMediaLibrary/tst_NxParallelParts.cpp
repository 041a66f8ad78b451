// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxParallelParts.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

namespace {

std::thread startNone(const std::function<void()> &)
{
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
}

} // namespace

class tst_NxParallelParts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void doesEachPartOnce_data();
    void doesEachPartOnce();
    void doesAllOnThisThreadWhereNoOtherCanBeHad();
    void hasEveryThreadBehindItWhenItReturns();
    void throwsWhatAPartThrew();
};

void tst_NxParallelParts::doesEachPartOnce_data()
{
    QTest::addColumn<int>("parts");
    for (const int parts : {0, 1, 2, 3, 16, 1000})
        QTest::addRow("%d parts", parts) << parts;
}

void tst_NxParallelParts::doesEachPartOnce()
{
    QFETCH(int, parts);
    std::vector<int> done(size_t(parts), 0);
    nxDoParts(done.size(), [&done](size_t part) { ++done[part]; });
    QCOMPARE(done, std::vector<int>(size_t(parts), 1));
}

void tst_NxParallelParts::doesAllOnThisThreadWhereNoOtherCanBeHad()
{
    std::vector<std::thread::id> threads(50);
    nxDoParts(
        threads.size(), [&threads](size_t part) { threads[part] = std::this_thread::get_id(); },
        startNone);
    QCOMPARE(threads, std::vector<std::thread::id>(50, std::this_thread::get_id()));
}

void tst_NxParallelParts::hasEveryThreadBehindItWhenItReturns()
{
    std::atomic<int> started{0};
    std::atomic<int> ended{0};
    const NxThreadStart count = [&](const std::function<void()> &work) {
        return nxStartThread([&started, &ended, work] {
            ++started;
            work();
            ++ended;
        });
    };
    nxDoParts(
        8, [](size_t) {}, count);
    QCOMPARE(ended.load(), started.load());
    QCOMPARE(started.load(), int(std::clamp(std::thread::hardware_concurrency(), 1u, 4u)) - 1);
}

void tst_NxParallelParts::throwsWhatAPartThrew()
{
    const auto work = [](size_t part) {
        if (part == 7)
            throw std::runtime_error("the seventh failed");
    };
    QVERIFY_EXCEPTION_THROWN(nxDoParts(20, work), std::runtime_error);
    QVERIFY_EXCEPTION_THROWN(nxDoParts(20, work, startNone), std::runtime_error);
}

NX_TEST_MAIN(tst_NxParallelParts)
#include "tst_NxParallelParts.moc"
