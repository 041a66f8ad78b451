// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxConvertUtility.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <cmath>
#include <limits>

class tst_NxConvertUtility : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void countsMilliseconds_data();
    void countsMilliseconds();
    void writesTimes_data();
    void writesTimes();
};

void tst_NxConvertUtility::countsMilliseconds_data()
{
    QTest::addColumn<qint64>("frames");
    QTest::addColumn<double>("fps");
    QTest::addColumn<qint64>("msecs");

    QTest::newRow("one second") << qint64(25) << 25.0 << qint64(1000);
    QTest::newRow("rounded down") << qint64(1) << 30.0 << qint64(33);
    QTest::newRow("rounded up") << qint64(2) << 30.0 << qint64(67);
    QTest::newRow("half a millisecond goes up") << qint64(1) << 2000.0 << qint64(1);
    QTest::newRow("film") << qint64(24) << 24000.0 / 1001.0 << qint64(1001);
    QTest::newRow("a day") << qint64(2592000) << 30.0 << qint64(86400000);
    QTest::newRow("nothing") << qint64(0) << 25.0 << qint64(0);
    QTest::newRow("negative") << qint64(-25) << 25.0 << qint64(-1000);
    QTest::newRow("no rate") << qint64(25) << 0.0 << qint64(0);
    QTest::newRow("negative rate") << qint64(25) << -25.0 << qint64(0);
    QTest::newRow("rate is no number") << qint64(25) << std::nan("") << qint64(0);
}

void tst_NxConvertUtility::countsMilliseconds()
{
    QFETCH(qint64, frames);
    QFETCH(double, fps);
    QFETCH(qint64, msecs);
    QCOMPARE(NxConvertUtility::frame2Msec(frames, fps), msecs);
}

void tst_NxConvertUtility::writesTimes_data()
{
    QTest::addColumn<qint64>("frames");
    QTest::addColumn<double>("fps");
    QTest::addColumn<QString>("text");

    QTest::newRow("a minute") << qint64(1500) << 25.0 << QStringLiteral("00:01:00:00");
    QTest::newRow("rate is no whole number")
        << qint64(24) << 23.97 << QStringLiteral("00:00:01:00");
    QTest::newRow("nothing") << qint64(0) << 25.0 << QStringLiteral("00:00:00:00");
    QTest::newRow("frames remain") << qint64(1499) << 25.0 << QStringLiteral("00:00:59:24");
    QTest::newRow("an hour") << qint64(25 * 3661 + 3) << 25.0 << QStringLiteral("01:01:01:03");
    QTest::newRow("a hundred hours")
        << qint64(25) * 360000 << 25.0 << QStringLiteral("100:00:00:00");
    QTest::newRow("more than 99 frames a second")
        << qint64(359) << 240.0 << QStringLiteral("00:00:01:119");
    QTest::newRow("negative") << qint64(-5) << 25.0 << QStringLiteral("00:00:00:00");
    QTest::newRow("no rate") << qint64(100) << 0.0 << QStringLiteral("00:00:00:00");
    QTest::newRow("endless rate") << qint64(100) << std::numeric_limits<double>::infinity()
                                  << QStringLiteral("00:00:00:00");
}

void tst_NxConvertUtility::writesTimes()
{
    QFETCH(qint64, frames);
    QFETCH(double, fps);
    QFETCH(QString, text);
    QCOMPARE(NxConvertUtility::frame2String(frames, fps), text);
}

NX_TEST_MAIN(tst_NxConvertUtility)
#include "tst_NxConvertUtility.moc"
