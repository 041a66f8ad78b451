// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <random>

using namespace StoreSamples;

namespace {

constexpr int BatchSize = 7; // Of the program that is killed.

} // namespace

class tst_NxProjectStoreKilled : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everythingReportedStandsAndNothingHalf();
    void theLogOfAKilledProcessIsReadWithoutTouchingIt();
    void theLogOfAKilledProcessIsFoldedIn();

private:
    /// Lets the program write until it has reported so many commits, and kills it. Answers how
    /// many media it has reported last.
    int writeAndKill(int commits);
    int media() const { return contentsOf(m_path).filter(QLatin1String("media|")).size(); }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectStoreKilled::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
    makeProject(m_path, {});
}

int tst_NxProjectStoreKilled::writeAndKill(int commits)
{
    QProcess writer;
    writer.start(QStringLiteral(NX_HOLDER), {QStringLiteral("write"), m_path});
    QByteArray lines;
    while (lines.count('\n') < commits && writer.waitForReadyRead(30000))
        lines += writer.readAll();
    writer.kill();
    writer.waitForFinished();
    lines += writer.readAll();
    lines.truncate(lines.lastIndexOf('\n'));
    return lines.mid(lines.lastIndexOf('\n') + 1).toInt();
}

void tst_NxProjectStoreKilled::everythingReportedStandsAndNothingHalf()
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> commits(1, 60);
    for (int round = 0; round < 12; ++round) {
        const int reported = writeAndKill(commits(random));
        QVERIFY(reported > 0);
        const int found = media();
        QVERIFY2(found >= reported, qPrintable(QStringLiteral("%1 < %2").arg(found).arg(reported)));
        QCOMPARE(found % BatchSize, 0);
    }
    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QCOMPARE((*store)->integrityProblems(), QStringList());
    QVERIFY((*store)->close());
}

void tst_NxProjectStoreKilled::theLogOfAKilledProcessIsReadWithoutTouchingIt()
{
    const int reported = writeAndKill(5);
    QVERIFY(QFileInfo(m_path + QLatin1String("-wal")).size() > 0);
    QVERIFY(QFile::remove(m_path + QLatin1String("-shm")));
    QVERIFY(QFile::remove(m_path + QLatin1String(".lock")));
    const auto before = filesIn(m_folder->path());
    QVERIFY(media() >= reported);
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectStoreKilled::theLogOfAKilledProcessIsFoldedIn()
{
    const int reported = writeAndKill(5);
    const auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QVERIFY(!(*store)->isReadOnly());
    const NxResult<NxProjectContents> contents = (*store)->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QVERIFY2(contents->damage.isEmpty(), qUtf8Printable(contents->damage));
    QVERIFY(int(contents->media.size()) >= reported);
    QVERIFY((*store)->close());
    QCOMPARE(filesIn(m_folder->path()).keys(), QStringList{QStringLiteral("Media.brevano")});
    QCOMPARE(media(), int(contents->media.size()));
}

NX_TEST_MAIN(tst_NxProjectStoreKilled)
#include "tst_NxProjectStoreKilled.moc"
