// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxFile.h>

#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QCoreApplication>
#include <QTest>

#include <thread>

class tst_NxDiskBan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsNotedWithoutABan();
    void aRealLookAtTheDiskIsNoted();
    void whatIsKnownWithoutTheDiskIsNoBreach();
    void onlyTheThreadOfTheBanIsWatched();
    void theInnermostOfTwoBansNotes();
};

void tst_NxDiskBan::nothingIsNotedWithoutABan()
{
    NxDiskBan::note("somebody");
    const NxDiskBan ban;
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxDiskBan::aRealLookAtTheDiskIsNoted()
{
    const NxDiskBan ban;
    NxTestLog::expectError(QStringLiteral("NxFile::exists was called where nothing may wait"));
    QVERIFY(NxFile::exists(QCoreApplication::applicationFilePath()));
    QCOMPARE(ban.breaches(), QStringList({QStringLiteral("NxFile::exists")}));
}

void tst_NxDiskBan::whatIsKnownWithoutTheDiskIsNoBreach()
{
    NxFile::setAnswerer([](const QString &) { return std::optional<bool>(true); });
    const NxDiskBan ban;
    QVERIFY(NxFile::exists(QStringLiteral("/nowhere/at/all.mov")));
    QVERIFY(!NxFile::exists(QString()));
    NxFile::setAnswerer({});
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxDiskBan::onlyTheThreadOfTheBanIsWatched()
{
    const NxDiskBan ban;
    std::thread other([] { NxDiskBan::note("elsewhere"); });
    other.join();
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxDiskBan::theInnermostOfTwoBansNotes()
{
    const NxDiskBan outer;
    {
        const NxDiskBan inner;
        NxTestLog::expectError(QStringLiteral("reader was called where nothing may wait"));
        NxDiskBan::note("reader");
        QCOMPARE(inner.breaches(), QStringList({QStringLiteral("reader")}));
    }
    QCOMPARE(outer.breaches(), QStringList());
    NxTestLog::expectError(QStringLiteral("writer was called where nothing may wait"));
    NxDiskBan::note("writer");
    QCOMPARE(outer.breaches(), QStringList({QStringLiteral("writer")}));
}

NX_TEST_MAIN(tst_NxDiskBan)
#include "tst_NxDiskBan.moc"
