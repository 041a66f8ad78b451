// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxFile.h>

#include <NxCore/NxDiskBan.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include <thread>

class tst_NxFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void looksAtTheDisk();
    void believesTheAnswerer();
    void looksItselfWhereTheAnswererKnowsNothing();
    void knowsWhatTheAnswererKnowsAndNothingElse();
    void asksNobodyAboutAnEmptyPath();
    void mayAskWhileTheAnswererChanges();

    void cleanup() { NxFile::setAnswerer({}); }
};

void tst_NxFile::looksAtTheDisk()
{
    const NxTempDir dir;
    QVERIFY(NxFile::exists(dir.write(QStringLiteral("clip 🎬\n.mp4"))));
    QVERIFY(NxFile::exists(dir.path()));
    QVERIFY(!NxFile::exists(dir.filePath(QStringLiteral("missing.mp4"))));
}

void tst_NxFile::believesTheAnswerer()
{
    const NxTempDir dir;
    const QString present = dir.write(QStringLiteral("present.mp4"));
    const QString missing = dir.filePath(QStringLiteral("missing.mp4"));
    NxFile::setAnswerer([&](const QString &path) { return path == missing; });
    QVERIFY(!NxFile::exists(present));
    QVERIFY(NxFile::exists(missing));
    NxFile::setAnswerer({});
    QVERIFY(NxFile::exists(present));
    QVERIFY(!NxFile::exists(missing));
}

void tst_NxFile::looksItselfWhereTheAnswererKnowsNothing()
{
    const NxTempDir dir;
    const QString present = dir.write(QStringLiteral("present.mp4"));
    int asked = 0;
    NxFile::setAnswerer([&asked](const QString &) -> std::optional<bool> {
        ++asked;
        return std::nullopt;
    });
    QVERIFY(NxFile::exists(present));
    QVERIFY(!NxFile::exists(dir.filePath(QStringLiteral("missing.mp4"))));
    QCOMPARE(asked, 2);
}

void tst_NxFile::knowsWhatTheAnswererKnowsAndNothingElse()
{
    const NxTempDir dir;
    const QString present = dir.write(QStringLiteral("present.mp4"));
    const QString missing = dir.filePath(QStringLiteral("missing.mp4"));
    const NxDiskBan ban;
    QCOMPARE(NxFile::knownToExist(present), std::nullopt);
    NxFile::setAnswerer([&](const QString &path) -> std::optional<bool> {
        return path == present ? std::nullopt : std::optional<bool>(path == missing);
    });
    QCOMPARE(NxFile::knownToExist(present), std::nullopt);
    QCOMPARE(NxFile::knownToExist(missing), std::optional<bool>(true));
    QCOMPARE(NxFile::knownToExist(dir.filePath(QStringLiteral("gone"))),
             std::optional<bool>(false));
    QCOMPARE(NxFile::knownToExist({}), std::optional<bool>(false));
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxFile::asksNobodyAboutAnEmptyPath()
{
    NxFile::setAnswerer([](const QString &) { return true; });
    QVERIFY(!NxFile::exists(QString()));
}

void tst_NxFile::mayAskWhileTheAnswererChanges()
{
    const QString missing = QStringLiteral("/no/such/file");
    int found = 0;
    std::thread asker([&] {
        for (int i = 0; i < 2000; ++i)
            found += NxFile::exists(missing) ? 1 : 0;
    });
    for (int i = 0; i < 500; ++i)
        NxFile::setAnswerer([](const QString &) { return false; });
    asker.join();
    QCOMPARE(found, 0);
}

NX_TEST_MAIN(tst_NxFile)
#include "tst_NxFile.moc"
