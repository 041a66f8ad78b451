// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportRules.h>

#include <Support/NxTestMain.h>

#include <QTest>

class tst_NxImportRules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namedFilesAreJudgedByTheirSuffix_data();
    void namedFilesAreJudgedByTheirSuffix();
    void unwantedSuffixesAlwaysWinInsideFolders_data();
    void unwantedSuffixesAlwaysWinInsideFolders();
    void folderNamesMustStandInAProject_data();
    void folderNamesMustStandInAProject();
    void unreadableFilesHaveAReason_data();
    void unreadableFilesHaveAReason();
};

void tst_NxImportRules::namedFilesAreJudgedByTheirSuffix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("partOfReason");

    const QString taken;
    const QString unwanted = QStringLiteral("cannot be imported");
    const QString unknown = QStringLiteral("does not tell whether it is media");
    QTest::newRow("video") << QStringLiteral("/a/clip.mp4") << taken;
    QTest::newRow("video, capitals") << QStringLiteral("/a/CLIP.MOV") << taken;
    QTest::newRow("picture") << QStringLiteral("/a/p.jpg") << taken;
    QTest::newRow("sound") << QStringLiteral("/a/s.wav") << taken;
    QTest::newRow("subtitle") << QStringLiteral("/a/s.srt") << taken;
    QTest::newRow("importable and unwanted") << QStringLiteral("/a/v.dat") << taken;
    QTest::newRow("document") << QStringLiteral("/a/notes.txt") << unwanted;
    QTest::newRow("document, capitals") << QStringLiteral("/a/NOTES.PDF") << unwanted;
    QTest::newRow("unknown suffix") << QStringLiteral("/a/clip.xyz") << unknown;
    QTest::newRow("no suffix") << QStringLiteral("/a/clip") << unknown;
    QTest::newRow("point in the folder only") << QStringLiteral("/a.mp4/clip") << unknown;
    QTest::newRow("ends in a point") << QStringLiteral("/a/clip.") << unknown;
    QTest::newRow("hidden, but named") << QStringLiteral("/a/.clip.mp4") << taken;
}

void tst_NxImportRules::namedFilesAreJudgedByTheirSuffix()
{
    QFETCH(QString, path);
    QFETCH(QString, partOfReason);
    const QString reason = NxImportRules::refusalOfNamed(path);
    QCOMPARE(reason.isEmpty(), partOfReason.isEmpty());
    QVERIFY2(reason.contains(partOfReason), qUtf8Printable(reason));
}

void tst_NxImportRules::unwantedSuffixesAlwaysWinInsideFolders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("video") << QStringLiteral("clip.mkv") << true;
    QTest::newRow("capitals") << QStringLiteral("CLIP.MKV") << true;
    QTest::newRow("importable and unwanted") << QStringLiteral("v.dat") << false;
    QTest::newRow("unwanted") << QStringLiteral("v.txt") << false;
    QTest::newRow("unknown") << QStringLiteral("v.xyz") << false;
    QTest::newRow("no suffix") << QStringLiteral("mp4") << false;
}

void tst_NxImportRules::unwantedSuffixesAlwaysWinInsideFolders()
{
    QFETCH(QString, name);
    QTEST(NxImportRules::isTakenFromFolder(name), "isTaken");
}

void tst_NxImportRules::folderNamesMustStandInAProject_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("plain") << QStringLiteral("Day 1") << true;
    QTest::newRow("blanks around") << QStringLiteral(" Day 1 ") << true;
    QTest::newRow("blank") << QStringLiteral("  ") << false;
    QTest::newRow("255 characters") << QString(255, QLatin1Char('n')) << true;
    QTest::newRow("256 characters") << QString(256, QLatin1Char('n')) << false;
    QTest::newRow("255 characters and blanks")
        << QString(QString(255, QLatin1Char('n')) + QLatin1String("  ")) << true;
}

void tst_NxImportRules::folderNamesMustStandInAProject()
{
    QFETCH(QString, name);
    QTEST(NxImportRules::refusalOfFolderName(name).isEmpty(), "isTaken");
}

void tst_NxImportRules::unreadableFilesHaveAReason_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("part");

    const int file = int(NxFileKind::File);
    QTest::newRow("fine") << file << true << 1 << QString() << QString();
    QTest::newRow("empty") << file << true << 0 << QString() << QStringLiteral("is empty");
    QTest::newRow("no right") << file << false << 9 << QString() << QStringLiteral("permission");
    QTest::newRow("missing") << int(NxFileKind::Missing) << false << -1 << QString()
                             << QStringLiteral("does not exist");
    QTest::newRow("broken disk") << int(NxFileKind::Failed) << false << -1
                                 << QStringLiteral("Input/output error")
                                 << QStringLiteral("Input/output error");
}

void tst_NxImportRules::unreadableFilesHaveAReason()
{
    QFETCH(int, kind);
    QFETCH(bool, readable);
    QFETCH(int, size);
    QFETCH(QString, error);
    QFETCH(QString, part);
    NxFileFacts facts;
    facts.kind = NxFileKind(kind);
    facts.readable = readable;
    facts.size = size;
    facts.error = error;
    const QString reason = NxImportRules::unreadableReason(facts);
    QCOMPARE(reason.isEmpty(), part.isEmpty());
    QVERIFY2(reason.contains(part), qUtf8Printable(reason));
}

NX_TEST_MAIN(tst_NxImportRules)
#include "tst_NxImportRules.moc"
