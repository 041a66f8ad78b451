// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/MomentPlan.h>

#include <QTest>

#include <random>
#include <set>

using Times = std::vector<int64_t>;
using Places = std::vector<size_t>;
Q_DECLARE_METATYPE(Times)
Q_DECLARE_METATYPE(Places)

class tst_MomentPlan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void momentsShowTheirKeyFrames_data();
    void momentsShowTheirKeyFrames();
    void noTwoMomentsShowTheSame();
};

void tst_MomentPlan::momentsShowTheirKeyFrames_data()
{
    QTest::addColumn<Times>("keys");
    QTest::addColumn<Times>("moments");
    QTest::addColumn<qint64>("furthest");
    QTest::addColumn<Places>("plan");
    const Times moments{5, 15, 25};
    QTest::newRow("the one at or before")
        << Times{0, 4, 6, 14, 16, 24, 26} << moments << qint64(9) << Places{1, 3, 5};
    QTest::newRow("exactly at the moment")
        << Times{5, 15, 25} << moments << qint64(0) << Places{0, 1, 2};
    QTest::newRow("the first where none is before")
        << Times{6, 14, 24} << moments << qint64(9) << Places{0, 1, 2};
    QTest::newRow("the next one where two share one")
        << Times{0, 10, 27, 30} << moments << qint64(20) << Places{0, 1, 2};
    QTest::newRow("an earlier one where too few are left")
        << Times{0, 13, 14} << moments << qint64(20) << Places{0, 1, 2};
    QTest::newRow("refused: too few") << Times{0, 10} << moments << qint64(100) << Places{};
    QTest::newRow("refused: none") << Times{} << moments << qint64(100) << Places{};
    QTest::newRow("refused: one is too far away")
        << Times{0, 1, 2} << moments << qint64(9) << Places{};
}

void tst_MomentPlan::momentsShowTheirKeyFrames()
{
    QFETCH(Times, keys);
    QFETCH(Times, moments);
    QFETCH(qint64, furthest);
    QFETCH(Places, plan);
    QCOMPARE(MomentPlan::keyFrames(keys, moments, furthest), plan);
}

void tst_MomentPlan::noTwoMomentsShowTheSame()
{
    constexpr unsigned seed = 4711;
    constexpr int rounds = 2'000;
    qInfo("seed %u", seed);
    std::mt19937 random(seed);
    std::uniform_int_distribution<int64_t> time(0, 1'000);
    std::uniform_int_distribution<int> amount(1, 30);
    for (int round = 0; round < rounds; ++round) {
        std::set<int64_t> keys;
        std::set<int64_t> moments;
        for (int i = amount(random); i > 0; --i)
            keys.insert(time(random));
        for (int i = amount(random); i > 0; --i)
            moments.insert(time(random));
        const Places plan = MomentPlan::keyFrames(Times(keys.begin(), keys.end()),
                                                  Times(moments.begin(), moments.end()), 1'000);
        QCOMPARE(plan.empty(), keys.size() < moments.size());
        for (size_t i = 1; i < plan.size(); ++i)
            QVERIFY(plan[i - 1] < plan[i]);
        QVERIFY(plan.empty() || plan.back() < keys.size());
    }
}

NX_TEST_MAIN(tst_MomentPlan)
#include "tst_MomentPlan.moc"
