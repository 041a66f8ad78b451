// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDir.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QTest>

class tst_NxDir : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void matchesSuffixes_data();
    void matchesSuffixes();
    void listsFiles_data();
    void listsFiles();
    void listsNothingOfNothing();
    void doesNotFollowLinksToFolders();
};

void tst_NxDir::matchesSuffixes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<bool>("matches");

    const QStringList videos{QStringLiteral("*.MP4;*.DVR-MS;*.MOV")};
    QTest::newRow("path") << QStringLiteral("/a/b/clip.mp4") << videos << true;
    QTest::newRow("path with backslashes") << QStringLiteral("C:\\a\\clip.MOV") << videos << true;
    QTest::newRow("bare suffix") << QStringLiteral("Mp4") << videos << true;
    QTest::newRow("suffix with point") << QStringLiteral(".mp4") << videos << true;
    QTest::newRow("suffix with hyphen") << QStringLiteral("tv.dvr-ms") << videos << true;
    QTest::newRow("only the last suffix") << QStringLiteral("clip.mp4.part") << videos << false;
    QTest::newRow("part of a suffix") << QStringLiteral("clip.xmp4") << videos << false;
    QTest::newRow("longer suffix") << QStringLiteral("clip.mp42") << videos << false;
    QTest::newRow("no suffix, but the name of one")
        << QStringLiteral("/home/mp4") << videos << false;
    QTest::newRow("point in a folder") << QStringLiteral("/a.mp4/clip") << videos << false;
    QTest::newRow("point at the end") << QStringLiteral("clip.") << videos << false;
    QTest::newRow("empty") << QString() << videos << false;
    QTest::newRow("one pattern an entry")
        << QStringLiteral("a.mov") << QStringList{QStringLiteral("*.avi"), QStringLiteral("*.mov")}
        << true;
    QTest::newRow("bare suffixes as list")
        << QStringLiteral("a.mov") << QStringList{QStringLiteral("avi"), QStringLiteral(".mov")}
        << true;
    QTest::newRow("semicolon at the end")
        << QStringLiteral("clip.") << QStringList{QStringLiteral("*.SRT;*.LRC;")} << false;
    QTest::newRow("blanks between patterns")
        << QStringLiteral("a.lrc") << QStringList{QStringLiteral("*.SRT; *.LRC")} << true;
    QTest::newRow("everything") << QStringLiteral("README") << QStringList{QStringLiteral("*.*")}
                                << true;
    QTest::newRow("everything by one star")
        << QStringLiteral("a.b") << QStringList{QStringLiteral("*")} << true;
    QTest::newRow("no filters") << QStringLiteral("a.b") << QStringList() << false;
}

void tst_NxDir::matchesSuffixes()
{
    QFETCH(QString, text);
    QFETCH(QStringList, filters);
    QFETCH(bool, matches);
    QCOMPARE(NxDir::CheckFilters(text, filters), matches);
}

void tst_NxDir::listsFiles_data()
{
    QTest::addColumn<bool>("recursive");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("one folder") << false
                                << QStringList{QStringLiteral(".hidden"), QStringLiteral("b.mp4"),
                                               QStringLiteral("c.mp4")};
    QTest::newRow("all below") << true
                               << QStringList{
                                      QStringLiteral(".hidden"),   QStringLiteral("b.mp4"),
                                      QStringLiteral("c.mp4"),     QStringLiteral("a/y.mp4"),
                                      QStringLiteral("a/x/z.mp4"), QStringLiteral("d/w.mp4")};
}

void tst_NxDir::listsFiles()
{
    QFETCH(bool, recursive);
    QFETCH(QStringList, names);
    const NxTempDir dir;
    for (const char *name : {"c.mp4", "b.mp4", ".hidden", "a/y.mp4", "a/x/z.mp4", "d/w.mp4"})
        dir.write(QLatin1String(name));
    dir.makeDir(QStringLiteral("empty"));

    QStringList expected;
    for (const QString &name : names)
        expected += dir.filePath(name);
    QCOMPARE(NxDir::getAllFile(dir.path(), recursive), expected);
}

void tst_NxDir::listsNothingOfNothing()
{
    const NxTempDir dir;
    QCOMPARE(NxDir::getAllFile(dir.path(), true), QStringList());
    QCOMPARE(NxDir::getAllFile(dir.filePath(QStringLiteral("missing")), true), QStringList());
    QCOMPARE(NxDir::getAllFile(dir.write(QStringLiteral("file")), true), QStringList());
    QCOMPARE(NxDir::getAllFile(QString(), true), QStringList());
}

void tst_NxDir::doesNotFollowLinksToFolders()
{
    const NxTempDir dir;
    const QString clip = dir.write(QStringLiteral("a/clip.mp4"));
    QVERIFY(QFile::link(dir.path(), dir.filePath(QStringLiteral("a/loop"))));
    QCOMPARE(NxDir::getAllFile(dir.path(), true), QStringList{clip});
}

NX_TEST_MAIN(tst_NxDir)
#include "tst_NxDir.moc"
