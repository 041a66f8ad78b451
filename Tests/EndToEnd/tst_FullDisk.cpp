// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QSet>
#include <QtTest>

/// An import onto a disk that becomes full: a small one in memory, mounted for this test alone.
class tst_FullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasToldStandsWhenTheDiskIsFull_data();
    void whatWasToldStandsWhenTheDiskIsFull();
    void aDiskThatIsFullFromTheStartTakesNoProject();
};

void tst_FullDisk::whatWasToldStandsWhenTheDiskIsFull_data()
{
    QTest::addColumn<int>("kib");

    QTest::newRow("full soon") << 200;
    QTest::newRow("full later") << 700;
}

void tst_FullDisk::whatWasToldStandsWhenTheDiskIsFull()
{
    QFETCH(int, kib);

    Yard yard;
    constexpr int folders = 60;
    constexpr int files = 100;
    yard.manyClips(folders, files);
    const NxFootageGuard guard(yard.footage());
    const QString disk = yard.folder().makeDir(QStringLiteral("disk"));
    const QString saved = yard.folder().makeDir(QStringLiteral("saved"));
    // The disk is gone with the namespace: what it held is looked at in a copy.
    const QString script =
        QStringLiteral("mount -t tmpfs -o size=$4k tmpfs \"$1\" || exit 99; "
                       "\"$BREVANO\" import --no-read \"$1/Film.brevano\" \"$2\" --json; code=$?; "
                       "cp \"$1\"/Film.brevano* \"$3/\" || exit 98; exit $code");
    const ProgramResult result = ProgramRun::runShell(
        QStringLiteral("script=$1; shift; exec unshare --mount sh -c \"$script\" sh \"$@\""),
        {script, disk, yard.footage(), saved, QString::number(kib)});
    VERIFY_CODE(result, 4);
    QVERIFY2(result.said("Film.brevano: "), result.story().constData());
    QVERIFY2(result.said("the disk is full"), result.story().constData());

    const QStringList told = result.values("added", "path");
    QVERIFY(told.size() < folders * files);
    QCOMPARE(result.summary().value(QLatin1String("added")).toInt(), told.size());
    QVERIFY(QFile::rename(saved + QStringLiteral("/Film.brevano"), yard.project()));
    const QString log = QStringLiteral("/Film.brevano-wal");
    if (QFile::exists(saved + log))
        QVERIFY(QFile::rename(saved + log, yard.path(log.mid(1))));
    const QStringList standing = yard.paths();
    QVERIFY(QSet<QString>(standing.cbegin(), standing.cend())
                .contains(QSet<QString>(told.cbegin(), told.cend())));
    VERIFY_CODE(yard.run("check"), 0);

    // On a disk with room the import goes on.
    const ProgramResult rest = yard.run("import", {yard.footage(), QStringLiteral("--json")});
    VERIFY_CODE(rest, 0);
    QCOMPARE(rest.values("added", "path").size(), folders * files - standing.size());
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_FullDisk::aDiskThatIsFullFromTheStartTakesNoProject()
{
    Yard yard;
    yard.clip(QStringLiteral("a.mp4"));
    const QString disk = yard.folder().makeDir(QStringLiteral("disk"));
    const QString script =
        QStringLiteral("mount -t tmpfs -o size=8k tmpfs \"$1\" || exit 99; "
                       "\"$BREVANO\" import --no-read \"$1/Film.brevano\" \"$2\"; code=$?; "
                       "ls -A \"$1\" >&2; exit $code");
    const ProgramResult result = ProgramRun::runShell(
        QStringLiteral("script=$1; shift; exec unshare --mount sh -c \"$script\" sh \"$@\""),
        {script, disk, yard.footage()});
    VERIFY_CODE(result, 4);
    QVERIFY2(result.said("the disk is full"), result.story().constData());
    QCOMPARE(result.errors.count('\n'), 1); // Nothing is left on the disk.
}

NX_TEST_MAIN(tst_FullDisk)
#include "tst_FullDisk.moc"
