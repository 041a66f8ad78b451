// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/ShotDate.h>

#include <NxWorkerProtocol/NxFootageFacts.h>
#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QObject>
#include <QtTest>

namespace {

constexpr qint64 Hour = 3'600'000; // ms

qint64 utc(const char *text)
{
    return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

} // namespace

class tst_ShotDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theContainersDateIsUnderstood_data();
    void theContainersDateIsUnderstood();
    void theCamerasDateIsUnderstood_data();
    void theCamerasDateIsUnderstood();
    void theFirstDateThatCanBeTrueCounts_data();
    void theFirstDateThatCanBeTrueCounts();
};

void tst_ShotDate::theContainersDateIsUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("date");
    const auto row = [](const char *name, const char *text, qint64 date) {
        QTest::newRow(name) << QString::fromLatin1(text) << date;
    };
    row("UTC", "2024-05-06T07:08:09.000000Z", utc("2024-05-06T07:08:09Z"));
    row("with a fraction", "2024-05-06T07:08:09.25Z", utc("2024-05-06T07:08:09.250Z"));
    row("east, without a colon", "2024-07-01T12:00:00+0200", utc("2024-07-01T10:00:00Z"));
    row("west, with a colon", "2024-07-01T12:00:00-03:30", utc("2024-07-01T15:30:00Z"));
    row("hours alone", "2024-07-01T12:00:00+02", utc("2024-07-01T10:00:00Z"));
    row("without a zone", "2024-07-01 12:00:00", utc("2024-07-01T12:00:00Z"));
    row("without seconds", "2024-07-01T12:34Z", utc("2024-07-01T12:34:00Z"));
    row("before 1970", "1904-01-01T00:00:00Z", utc("1904-01-01T00:00:00Z"));
    row("a year alone", "2024", NxNoFootageTime);
    row("no such day", "2023-02-29T12:00:00Z", NxNoFootageTime);
    row("no such hour", "2023-02-28T25:00:00Z", NxNoFootageTime);
    row("more behind it", "2024-07-01T12:00:00Z or so", NxNoFootageTime);
    row("empty", "", NxNoFootageTime);
}

void tst_ShotDate::theContainersDateIsUnderstood()
{
    QFETCH(QString, text);
    QTEST(ShotDate::ofContainer(text), "date");
}

void tst_ShotDate::theCamerasDateIsUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("offset");
    QTest::addColumn<qint64>("date");
    const qint64 summer = QDateTime(QDate(2022, 7, 4), QTime(5, 6, 7)).toMSecsSinceEpoch();
    const QString text = QStringLiteral("2022:07:04 05:06:07");
    QTest::newRow("local time without an offset") << text << QString() << summer;
    QTest::newRow("by its offset")
        << text << QStringLiteral("+05:00") << utc("2022-07-04T00:06:07Z");
    QTest::newRow("spaces around") << QStringLiteral(" %1 ").arg(text) << QStringLiteral(" -01:00 ")
                                   << utc("2022-07-04T06:06:07Z");
    QTest::newRow("an offset that is none") << text << QStringLiteral("east") << NxNoFootageTime;
    QTest::newRow("a clock that was never set")
        << QStringLiteral("0000:00:00 00:00:00") << QString() << NxNoFootageTime;
    QTest::newRow("blank") << QStringLiteral("    :  :     :  :  ") << QString() << NxNoFootageTime;
}

void tst_ShotDate::theCamerasDateIsUnderstood()
{
    QFETCH(QString, text);
    QFETCH(QString, offset);
    QTEST(ShotDate::ofExif(text, offset), "date");
}

void tst_ShotDate::theFirstDateThatCanBeTrueCounts_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("second");
    QTest::addColumn<qint64>("date");
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const qint64 past = utc("2001-02-03T04:05:06Z");
    QTest::newRow("the first") << past << now << past;
    QTest::newRow("the second when there is no first") << NxNoFootageTime << past << past;
    QTest::newRow("not before 1970") << qint64(-1) << past << past;
    QTest::newRow("1970 itself") << qint64(0) << past << qint64(0);
    QTest::newRow("a clock a few hours ahead") << now + 20 * Hour << past << now + 20 * Hour;
    QTest::newRow("not after tomorrow") << now + 25 * Hour << past << past;
    QTest::newRow("none") << now + 25 * Hour << qint64(-5) << NxNoFootageTime;
}

void tst_ShotDate::theFirstDateThatCanBeTrueCounts()
{
    QFETCH(qint64, first);
    QFETCH(qint64, second);
    QTEST(ShotDate::firstSane({first, second}), "date");
}

NX_TEST_MAIN(tst_ShotDate)
#include "tst_ShotDate.moc"
