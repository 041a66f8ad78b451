// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectLock.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <NxCore/NxQueue.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSysInfo>

#include <sys/file.h>

#include <chrono>
#include <thread>

using namespace StoreSamples;
using Answer = NxProjectLock::Answer;

class tst_NxProjectLock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void oneHolderAtATime();
    void twoLinksToOneProjectMeetAtOneLock();
    void anotherProcessIsNamed();
    void theLockOfAKilledProcessIsTakenOver();
    void theLockThatADeadProcessIsGivingBackIsWaitedFor();
    void aLockThatNamesNobodyIsTakenOver_data();
    void aLockThatNamesNobodyIsTakenOver();
    void theLockOfAnotherComputerIsKept();
    void whereNoLockFitsTheProjectIsOnlyRead();
    void closingGivesTheLockBack();
    void aReadOnlyOpeningTakesNoLock();

private:
    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
    QString m_lockPath;
};

void tst_NxProjectLock::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
    m_lockPath = m_path + QLatin1String(".lock");
    makeProject(m_path, {addMedia(1, 3)});
}

void tst_NxProjectLock::oneHolderAtATime()
{
    NxProjectLock first(m_path);
    NxProjectLock second(m_path);
    QCOMPARE(int(first.tryLock()), int(Answer::Ours));
    QCOMPARE(int(second.tryLock()), int(Answer::Taken));
    first.release();
    QCOMPARE(int(second.tryLock()), int(Answer::Ours));
}

void tst_NxProjectLock::twoLinksToOneProjectMeetAtOneLock()
{
    const QString link = m_folder->filePath(QStringLiteral("link.brevano"));
    QVERIFY(QFile::link(m_path, link));
    const auto first = NxProjectStore::open(link, {});
    const auto second = NxProjectStore::open(m_path, {});
    QVERIFY(first && second);
    QVERIFY(!(*first)->isReadOnly());
    QVERIFY((*second)->isReadOnly());
}

void tst_NxProjectLock::anotherProcessIsNamed()
{
    QProcess holder;
    holder.start(QStringLiteral(NX_HOLDER), {QStringLiteral("hold"), m_path});
    QVERIFY(holder.waitForReadyRead());
    QCOMPARE(holder.readLine().trimmed(), QByteArray("held"));

    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    const QString reason = (*store)->readOnlyReason();
    QCOMPARE(reason, QStringLiteral("%1: is open in another window (process %2 on host %3)")
                         .arg(m_path)
                         .arg(holder.processId())
                         .arg(QSysInfo::machineHostName()));
    const NxResult<NxProjectContents> contents = (*store)->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QCOMPARE(int(contents->media.size()), 3);
    QVERIFY((*store)->close());

    holder.closeWriteChannel();
    QVERIFY(holder.waitForFinished());
    QCOMPARE(holder.exitCode(), 0);
    QCOMPARE(filesIn(m_folder->path()).keys(), QStringList{QStringLiteral("Media.brevano")});
}

void tst_NxProjectLock::theLockOfAKilledProcessIsTakenOver()
{
    QProcess holder;
    holder.start(QStringLiteral(NX_HOLDER), {QStringLiteral("hold"), m_path});
    QVERIFY(holder.waitForReadyRead());
    holder.kill();
    QVERIFY(holder.waitForFinished());
    QVERIFY(QFileInfo::exists(m_lockPath));

    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY2(!(*store)->isReadOnly(), qUtf8Printable((*store)->readOnlyReason()));
}

// The system closes the files of a killed process, and of what it started, one after the other.
void tst_NxProjectLock::theLockThatADeadProcessIsGivingBackIsWaitedFor()
{
    QProcess dead;
    dead.start(QStringLiteral("true"), QStringList());
    QVERIFY(dead.waitForStarted());
    const qint64 number = dead.processId();
    QVERIFY(dead.waitForFinished());
    writeFile(m_lockPath, QStringLiteral("%1\nbrevano\n%2\n\n\n")
                              .arg(QString::number(number), QSysInfo::machineHostName())
                              .toUtf8());
    QFile held(m_lockPath);
    QVERIFY(held.open(QIODevice::ReadWrite));
    QCOMPARE(::flock(held.handle(), LOCK_EX | LOCK_NB), 0);
    NxProjectLock lock(m_path);
    QCOMPARE(int(lock.tryLock()), int(Answer::Taken));

    constexpr int tries = 20; // In which a busy machine may give it back too late.
    Answer answer = Answer::Taken;
    for (int i = 0; i < tries && answer == Answer::Taken; ++i) {
        QCOMPARE(::flock(held.handle(), LOCK_EX | LOCK_NB), 0);
        NxQueue<bool> never;
        std::thread system([&] {
            (void)never.waitPop(std::chrono::milliseconds(50));
            ::flock(held.handle(), LOCK_UN);
        });
        answer = lock.tryLock();
        system.join();
    }
    QCOMPARE(int(answer), int(Answer::Ours));
}

void tst_NxProjectLock::aLockThatNamesNobodyIsTakenOver_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("half a number") << QByteArray("12");
    QTest::newRow("zeros") << QByteArray(40, '\0');
}

void tst_NxProjectLock::aLockThatNamesNobodyIsTakenOver()
{
    QFETCH(QByteArray, content);
    writeFile(m_lockPath, content);
    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY2(!(*store)->isReadOnly(), qUtf8Printable((*store)->readOnlyReason()));
}

void tst_NxProjectLock::theLockOfAnotherComputerIsKept()
{
    const QByteArray content = "77\nbrevano\nsome-other-computer\n\n\n";
    writeFile(m_lockPath, content);
    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY((*store)->isReadOnly());
    const QString reason = (*store)->readOnlyReason();
    QVERIFY2(reason.contains(QLatin1String("(process 77 on host some-other-computer)")),
             qUtf8Printable(reason));
    QVERIFY2(reason.endsWith(QLatin1String("remove ") + m_lockPath), qUtf8Printable(reason));
    QVERIFY((*store)->close());
    QCOMPARE(readFile(m_lockPath), content);
}

void tst_NxProjectLock::whereNoLockFitsTheProjectIsOnlyRead()
{
    const QString longName = m_folder->filePath(QString(252, QLatin1Char('n')));
    QVERIFY(QFile::rename(m_path, longName));
    const auto store = NxProjectStore::open(longName, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QCOMPARE((*store)->readOnlyReason(),
             longName + QStringLiteral(": cannot be written, since no lock can be made beside it"));
    const NxResult<NxProjectContents> contents = (*store)->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QCOMPARE(int(contents->media.size()), 3);
}

void tst_NxProjectLock::closingGivesTheLockBack()
{
    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY(QFileInfo::exists(m_lockPath));
    QVERIFY((*store)->close());
    QVERIFY(!QFileInfo::exists(m_lockPath));
}

void tst_NxProjectLock::aReadOnlyOpeningTakesNoLock()
{
    NxProjectStoreOptions options;
    options.readOnly = true;
    const auto reader = NxProjectStore::open(m_path, options);
    QVERIFY2(reader, qUtf8Printable(reader.errorText()));
    const auto writer = NxProjectStore::open(m_path, {});
    QVERIFY2(writer, qUtf8Printable(writer.errorText()));
    QVERIFY(!(*writer)->isReadOnly());
}

NX_TEST_MAIN(tst_NxProjectLock)
#include "tst_NxProjectLock.moc"
