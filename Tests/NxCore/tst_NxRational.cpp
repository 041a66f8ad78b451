// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxRational.h>

#include <Support/NxTestMain.h>

#include <QTest>

class tst_NxRational : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void dividesWhereItCan_data();
    void dividesWhereItCan();
    void comparesWhatWasRead();
    void isUnknownAtFirst();
};

void tst_NxRational::dividesWhereItCan_data()
{
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("den");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<double>("value");

    QTest::newRow("film") << 24000 << 1001 << true << 24000.0 / 1001.0;
    QTest::newRow("whole") << 25 << 1 << true << 25.0;
    QTest::newRow("negative") << -1 << 4 << true << -0.25;
    QTest::newRow("zero") << 0 << 5 << true << 0.0;
    QTest::newRow("unknown") << 0 << 0 << false << 0.0;
    QTest::newRow("over zero") << 25 << 0 << false << 0.0;
}

void tst_NxRational::dividesWhereItCan()
{
    QFETCH(int, num);
    QFETCH(int, den);
    QFETCH(bool, valid);
    QFETCH(double, value);
    const NxRational rational{num, den};
    QCOMPARE(rational.isValid(), valid);
    QCOMPARE(rational.toDouble(), value);
}

void tst_NxRational::comparesWhatWasRead()
{
    const NxRational reduced{25, 1};
    const NxRational same{25, 1};
    const NxRational unreduced{50, 2};
    QVERIFY(reduced == same);
    QVERIFY(!(reduced != same));
    QVERIFY(reduced != unreduced);
}

void tst_NxRational::isUnknownAtFirst()
{
    QCOMPARE(NxRational().num, 0);
    QVERIFY(!NxRational().isValid());
}

NX_TEST_MAIN(tst_NxRational)
#include "tst_NxRational.moc"
