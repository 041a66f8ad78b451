// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/FrameGrid.h>

#include <Support/NxTestMain.h>

#include <QObject>
#include <QVector>
#include <QtTest>

#include <limits>

using Times = QVector<qint64>;

class tst_FrameGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void framesAreEvenWithinHalfAFrame_data();
    void framesAreEvenWithinHalfAFrame();
    void theRateIsTheAverageOfTheDistances_data();
    void theRateIsTheAverageOfTheDistances();
    void aFilmLastsToTheEndOfItsLastFrame();
    void absurdTimesTellNothing_data();
    void absurdTimesTellNothing();
};

void tst_FrameGrid::framesAreEvenWithinHalfAFrame_data()
{
    QTest::addColumn<Times>("times");
    QTest::addColumn<bool>("even");
    QTest::newRow("none") << Times{} << true;
    QTest::newRow("one") << Times{7} << true;
    QTest::newRow("two") << Times{7, 900} << true;
    QTest::newRow("all alike") << Times{0, 10, 20, 30, 40} << true;
    QTest::newRow("not from zero") << Times{500, 510, 520, 530} << true;
    QTest::newRow("rounded to milliseconds") << Times{0, 33, 67, 100, 133, 167, 200} << true;
    QTest::newRow("one just half a frame late") << Times{0, 10, 25, 30, 40} << true;
    QTest::newRow("one more than half a frame late") << Times{0, 10, 26, 30, 40} << false;
    QTest::newRow("one more than half a frame early") << Times{0, 10, 14, 30, 40} << false;
    QTest::newRow("slower from the middle on") << Times{0, 10, 20, 40, 60, 80} << false;
    QTest::newRow("two missing") << Times{0, 10, 20, 30, 60, 70, 80, 90} << false;
}

void tst_FrameGrid::framesAreEvenWithinHalfAFrame()
{
    QFETCH(Times, times);
    QFETCH(bool, even);
    QCOMPARE(FrameGrid({times.begin(), times.end()}, {1, 1'000}).isEven(), even);
}

void tst_FrameGrid::theRateIsTheAverageOfTheDistances_data()
{
    QTest::addColumn<Times>("times");
    QTest::addColumn<int>("ticksASecond");
    QTest::addColumn<NxRational>("rate");
    QTest::newRow("25 a second") << Times{0, 40, 80, 120} << 1'000 << NxRational{25, 1};
    QTest::newRow("cinema") << Times{0, 1'001, 2'002, 3'003} << 24'000 << NxRational{24'000, 1'001};
    QTest::newRow("uneven") << Times{0, 10, 30} << 1'000 << NxRational{200, 3};
    QTest::newRow("one frame has none") << Times{5} << 1'000 << NxRational();
}

void tst_FrameGrid::theRateIsTheAverageOfTheDistances()
{
    QFETCH(Times, times);
    QFETCH(int, ticksASecond);
    QFETCH(NxRational, rate);
    const NxRational found = FrameGrid({times.begin(), times.end()}, {1, ticksASecond}).rate();
    QCOMPARE(found.num, rate.num);
    QCOMPARE(found.den, rate.den);
}

void tst_FrameGrid::aFilmLastsToTheEndOfItsLastFrame()
{
    QCOMPARE(FrameGrid({100, 140, 180}, {1, 1'000}).length(), 120);
}

void tst_FrameGrid::absurdTimesTellNothing_data()
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    QTest::addColumn<Times>("times");
    QTest::newRow("all at once") << Times{3, 3, 3};
    QTest::newRow("as far apart as numbers go") << Times{0, 1, most};
    QTest::newRow("further") << Times{-most, 0, most};
}

void tst_FrameGrid::absurdTimesTellNothing()
{
    QFETCH(Times, times);
    const FrameGrid grid({times.begin(), times.end()}, {1, 1'000});
    QCOMPARE(grid.length(), 0);
    QVERIFY(!grid.rate().isValid());
}

NX_TEST_MAIN(tst_FrameGrid)
#include "tst_FrameGrid.moc"
