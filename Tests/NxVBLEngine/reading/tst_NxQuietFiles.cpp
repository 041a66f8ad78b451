// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxQuietFiles.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

constexpr qint64 Now = 100'000;
constexpr NxFileStamp Early{10, 1'000};
constexpr NxFileStamp Late{20, 2'000};

} // namespace

class tst_NxQuietFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aFileIsQuietWhenItStaysAsItIs();
    void everyChangeBeginsAnew_data();
    void everyChangeBeginsAnew();
    void quietFilesAreForgotten();
    void onlyThoseThatMayBeQuietAreDue();
    void forgottenFilesBeginAnew();
};

void tst_NxQuietFiles::aFileIsQuietWhenItStaysAsItIs()
{
    NxQuietFiles files;
    QVERIFY(!files.noteSeen(1, Early, Now));
    QVERIFY(!files.noteSeen(1, Early, Now + NxQuietFiles::Quiet - 1));
    QVERIFY(files.noteSeen(1, Early, Now + NxQuietFiles::Quiet));
}

void tst_NxQuietFiles::everyChangeBeginsAnew_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("modified");
    QTest::newRow("grown") << Early.size + 1 << Early.modified;
    QTest::newRow("written anew") << Early.size << Early.modified + 1;
    QTest::newRow("an older file in its place") << Early.size << Early.modified - 1;
}

void tst_NxQuietFiles::everyChangeBeginsAnew()
{
    QFETCH(qint64, size);
    QFETCH(qint64, modified);
    const NxFileStamp changed{size, modified};
    NxQuietFiles files;
    QVERIFY(!files.noteSeen(1, Early, Now));
    const qint64 later = Now + NxQuietFiles::Quiet;
    QVERIFY(!files.noteSeen(1, changed, later));
    QVERIFY(!files.noteSeen(1, changed, later + NxQuietFiles::Quiet - 1));
    QVERIFY(files.noteSeen(1, changed, later + NxQuietFiles::Quiet));
}

void tst_NxQuietFiles::quietFilesAreForgotten()
{
    NxQuietFiles files;
    QVERIFY(!files.noteSeen(1, Early, Now));
    QVERIFY(files.contains(1));
    QVERIFY(files.noteSeen(1, Early, Now + NxQuietFiles::Quiet));
    QVERIFY(!files.contains(1));
    QVERIFY(files.isEmpty());
}

void tst_NxQuietFiles::onlyThoseThatMayBeQuietAreDue()
{
    NxQuietFiles files;
    QVERIFY(!files.noteSeen(1, Early, Now));
    QVERIFY(!files.noteSeen(2, Early, Now + 1'000));
    QCOMPARE(files.due(Now + NxQuietFiles::Quiet - 1), QVector<qint64>());
    QCOMPARE(files.due(Now + NxQuietFiles::Quiet), QVector<qint64>{1});
    QCOMPARE(files.due(Now + 1'000 + NxQuietFiles::Quiet).size(), 2);
}

void tst_NxQuietFiles::forgottenFilesBeginAnew()
{
    NxQuietFiles files;
    QVERIFY(!files.noteSeen(1, Early, Now));
    QVERIFY(!files.noteSeen(2, Late, Now));
    files.forget(1);
    QVERIFY(!files.noteSeen(1, Early, Now + NxQuietFiles::Quiet));
    QVERIFY(files.noteSeen(2, Late, Now + NxQuietFiles::Quiet));
    files.clear();
    QVERIFY(files.isEmpty());
}

NX_TEST_MAIN(tst_NxQuietFiles)
#include "tst_NxQuietFiles.moc"
