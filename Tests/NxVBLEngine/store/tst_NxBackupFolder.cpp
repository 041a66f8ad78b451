// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxBackupFolder.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFileInfo>

using namespace StoreSamples;

namespace {

constexpr qint64 Hour = 3600 * 1000;
constexpr qint64 Day = 24 * Hour;
constexpr qint64 Start = 1'700'000'000'000;

} // namespace

class tst_NxBackupFolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theCloserOneGoes_data();
    void theCloserOneGoes();
    void aDayOfManyBackupsKeepsTheOlderDays();
    void theHourThatSummerTimeLeavesOutCountsToo();
    void projectsOfOneNameAreKeptApart();
    void namesTellProjectAndTime();
    void foreignFilesAreLeftAlone();
    void halfBackupsAreRemoved();
    void anyProjectNameWillDo_data();
    void anyProjectNameWillDo();
};

void tst_NxBackupFolder::theCloserOneGoes_data()
{
    QTest::addColumn<QVector<qint64>>("times");
    QTest::addColumn<int>("index");
    QTest::newRow("two") << QVector<qint64>{0, 9} << 0;
    QTest::newRow("close at the end") << QVector<qint64>{0, 100, 200, 300, 400, 401} << 4;
    QTest::newRow("close at the beginning") << QVector<qint64>{0, 1, 200, 300, 400, 500} << 0;
    QTest::newRow("close in the middle") << QVector<qint64>{0, 100, 200, 201, 400, 500} << 2;
    QTest::newRow("all alike: a younger one") << QVector<qint64>{0, 10, 20, 30, 40, 50} << 4;
    QTest::newRow("all at once") << QVector<qint64>{7, 7, 7} << 1;
}

void tst_NxBackupFolder::theCloserOneGoes()
{
    QFETCH(QVector<qint64>, times);
    QFETCH(int, index);
    QCOMPARE(NxBackupFolder::superfluous(times), index);
}

void tst_NxBackupFolder::aDayOfManyBackupsKeepsTheOlderDays()
{
    const NxTempDir folder;
    const NxBackupFolder backups(folder.path(), QStringLiteral("/a/Media.brevano"));
    QVector<qint64> times{Start, Start + Day, Start + 2 * Day};
    for (int minute = 0; minute < 30; ++minute)
        times += Start + 3 * Day + minute * 60'000;
    for (const qint64 time : times) {
        writeFile(backups.pathFor(time), QByteArray::number(time));
        backups.thin();
        QVERIFY(backups.backups().size() <= NxBackupFolder::MostBackups);
        QCOMPARE(backups.backups().constLast(), backups.pathFor(time));
    }
    const QStringList kept = backups.backups();
    QCOMPARE(kept.size(), 5);
    for (int day = 0; day < 3; ++day)
        QCOMPARE(kept.at(day), backups.pathFor(Start + day * Day));
}

void tst_NxBackupFolder::theHourThatSummerTimeLeavesOutCountsToo()
{
    const NxTempDir folder;
    const NxBackupFolder backups(folder.path(), QStringLiteral("/a/Media.brevano"));
    // In the zone of the tests no clock shows half past two on that day.
    const QDateTime time(QDate(2026, 3, 29), QTime(2, 30), Qt::UTC);
    const QString path = backups.pathFor(time.toMSecsSinceEpoch());
    writeFile(path, "backup");
    QCOMPARE(backups.backups(), QStringList(path));
}

void tst_NxBackupFolder::projectsOfOneNameAreKeptApart()
{
    const NxTempDir folder;
    const NxBackupFolder one(folder.path(), QStringLiteral("/a/Media.brevano"));
    const NxBackupFolder other(folder.path(), QStringLiteral("/b/Media.brevano"));
    for (int number = 0; number < 7; ++number) {
        writeFile(one.pathFor(Start + number * Hour), "1");
        writeFile(other.pathFor(Start + number * Hour), "2");
    }
    one.thin();
    QCOMPARE(one.backups().size(), 5);
    QCOMPARE(other.backups().size(), 7);
}

void tst_NxBackupFolder::namesTellProjectAndTime()
{
    const NxBackupFolder backups(QStringLiteral("/backups"), QStringLiteral("/a/My film.brevano"));
    const QString path = backups.pathFor(Start + 7);
    QVERIFY2(path.startsWith(QLatin1String("/backups/My film-")), qUtf8Printable(path));
    QVERIFY2(path.endsWith(QLatin1String("-20231114T221320007Z.brevano")), qUtf8Printable(path));
}

void tst_NxBackupFolder::foreignFilesAreLeftAlone()
{
    const NxTempDir folder;
    const NxBackupFolder backups(folder.path(), QStringLiteral("/a/Media.brevano"));
    const QString ours = QFileInfo(backups.pathFor(Start)).fileName();
    const QString prefix = ours.left(ours.indexOf(QLatin1String("2023")));
    for (const QString &name :
         {prefix + QStringLiteral("final.brevano"), prefix + QStringLiteral("20231114.txt"),
          QStringLiteral("Media.brevano"), QStringLiteral("notes")})
        writeFile(folder.filePath(name), "precious");
    for (int number = 0; number < 8; ++number)
        writeFile(backups.pathFor(Start + number * Hour), "1");
    backups.thin();
    QCOMPARE(backups.backups().size(), 5);
    QCOMPARE(filesIn(folder.path()).size(), 5 + 4);
}

void tst_NxBackupFolder::halfBackupsAreRemoved()
{
    const NxTempDir folder;
    const NxBackupFolder backups(folder.path(), QStringLiteral("/a/Media.brevano"));
    const NxBackupFolder other(folder.path(), QStringLiteral("/b/Media.brevano"));
    writeFile(backups.pathFor(Start), "whole");
    writeFile(backups.partPathFor(Start + Hour), "half");
    writeFile(other.partPathFor(Start + Hour), "of somebody who is at work");
    backups.thin();
    QCOMPARE(backups.backups(), QStringList{backups.pathFor(Start)});
    QCOMPARE(filesIn(folder.path()).size(), 2);
}

void tst_NxBackupFolder::anyProjectNameWillDo_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a pattern") << QStringLiteral("[a-z]*?.brevano");
    QTest::newRow("255 bytes") << QString(247, QLatin1Char('x')) + QStringLiteral(".brevano");
    QTest::newRow("emoji at the cut")
        << QString(39, QLatin1Char('x')) + QString::fromUtf8("\xF0\x9F\x8E\xAC\xF0\x9F\x8E\xAC");
    QTest::newRow("nothing but a suffix") << QStringLiteral(".brevano");
}

void tst_NxBackupFolder::anyProjectNameWillDo()
{
    QFETCH(QString, name);
    const NxTempDir folder;
    const NxBackupFolder backups(folder.path(), QStringLiteral("/a/") + name);
    writeFile(backups.pathFor(Start), "1");
    QCOMPARE(backups.backups(), QStringList{backups.pathFor(Start)});
}

NX_TEST_MAIN(tst_NxBackupFolder)
#include "tst_NxBackupFolder.moc"
