// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CachedPictures.h"

#include <NxCore/NxDoorbell.h>
#include <NxVBLEngine/pictures/NxPictureThreads.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <Support/NxThreadNiceness.h>

#include <QFile>
#include <QSemaphore>
#include <QtTest>

#include <atomic>
#include <memory>
#include <optional>
#include <set>

using namespace CachedPictures;

namespace {

constexpr int ThreadCount = 2;

NxPictureKey coverKey(int number, const QSize &size = WholeCover)
{
    return {contents(number), NxPictureKind::Cover, size};
}

bool isUnwanted(const NxPictureKey &)
{
    return true;
}

/// Threads, and what they brought so far.
struct Pictures
{
    const NxTempDir cache;
    std::vector<NxPictureThreads::Result> results;
    NxDoorbell bell{[this] { takeResults(); }};
    std::optional<NxPictureThreads> threads{bell.rope()};

    void takeResults()
    {
        if (!threads)
            return;
        for (NxPictureThreads::Result &result : threads->take())
            results.push_back(std::move(result));
    }
    void load(const NxPictureKey &key)
    {
        threads->load(key, path(cache.path(), key.contents, key.kind));
    }
    QString writeCover(int number, const QSize &size = WholeCover)
    {
        return write(cache.path(), contents(number), NxPictureKind::Cover, jpeg(size));
    }
};

/// Keeps every thread busy until it goes.
class Hold
{
    Q_DISABLE_COPY_MOVE(Hold)
public:
    explicit Hold(NxPictureThreads *threads)
    {
        for (int i = 0; i < ThreadCount; ++i) {
            threads->run([semaphores = m_semaphores] {
                semaphores->begun.release();
                semaphores->end.acquire();
            });
        }
        m_semaphores->begun.acquire(ThreadCount);
    }
    ~Hold() { m_semaphores->end.release(ThreadCount); }

private:
    struct Semaphores
    {
        QSemaphore begun;
        QSemaphore end;
    };
    const std::shared_ptr<Semaphores> m_semaphores = std::make_shared<Semaphores>();
};

} // namespace

/// Threads that bring pictures from the disk.
class tst_NxPictureThreads : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void coversFitAndAreNeverEnlarged_data();
    void coversFitAndAreNeverEnlarged();
    void stripsStayAsTheyAre();
    void whatIsNoWholePictureIsNull_data();
    void whatIsNoWholePictureIsNull();
    void aLinkIsTakenAwayAndNotWhatItPointsTo();
    void useOfAPictureIsNoted();
    void whatWasAskedForComes();
    void whatIsGoneComesAsNull();
    void whatWaitsCanBeDropped();
    void whatIsStillWantedKeepsItsOrder();
    void choresAreDoneAndNeverDropped();
    void theyStepBackForTheWindow();
    void theyEndWhileTheyAreBusy();
    void theyEndWithoutEverHavingBegun();
};

void tst_NxPictureThreads::coversFitAndAreNeverEnlarged_data()
{
    QTest::addColumn<QSize>("made");
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("as it was made") << QSize(480, 270) << QSize(480, 270) << QSize(480, 270);
    QTest::newRow("smaller") << QSize(480, 270) << QSize(160, 90) << QSize(160, 90);
    QTest::newRow("in a square") << QSize(480, 270) << QSize(160, 160) << QSize(160, 90);
    QTest::newRow("upright") << QSize(152, 270) << QSize(200, 90) << QSize(50, 90);
    QTest::newRow("larger than it is") << QSize(100, 50) << QSize(480, 270) << QSize(100, 50);
    QTest::newRow("wider but lower") << QSize(480, 270) << QSize(900, 27) << QSize(48, 27);
    QTest::newRow("one pixel") << QSize(480, 270) << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("a line") << QSize(1, 270) << QSize(10, 27) << QSize(1, 27);
}

void tst_NxPictureThreads::coversFitAndAreNeverEnlarged()
{
    QFETCH(QSize, made);
    QFETCH(QSize, asked);
    Pictures f;
    const QImage image = NxPictureThreads::loaded(coverKey(1, asked), f.writeCover(1, made));
    QTEST(image.size(), "expected");
    QCOMPARE(image.format(), QImage::Format_RGB32);
    QVERIFY(isAlike(image.pixelColor(image.rect().center()), Qt::red));
}

void tst_NxPictureThreads::stripsStayAsTheyAre()
{
    const NxTempDir cache;
    const QString path =
        write(cache.path(), contents(1), NxPictureKind::Strip, jpeg(WholeStrip, Qt::blue));
    const QImage image = NxPictureThreads::loaded({contents(1), NxPictureKind::Strip, {}}, path);
    QCOMPARE(image.size(), WholeStrip);
    QVERIFY(isAlike(image.pixelColor(image.rect().center()), Qt::blue));
}

void tst_NxPictureThreads::whatIsNoWholePictureIsNull_data()
{
    QTest::addColumn<bool>("isCover");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = jpeg(WholeCover);
    QByteArray wrongHead = whole;
    wrongHead.replace(0, 2, "xx");
    QTest::newRow("nothing") << true << QByteArray();
    QTest::newRow("one byte") << true << QByteArray("x");
    QTest::newRow("text") << true << QByteArray("no picture");
    QTest::newRow("cut in the middle") << true << whole.left(whole.size() / 2);
    QTest::newRow("cut at the end") << true << whole.left(whole.size() - 1);
    QTest::newRow("wrong head") << true << wrongHead;
    QTest::newRow("a cover too large") << true << jpeg({481, 270});
    QTest::newRow("a strip too wide") << false << jpeg({145, 4860});
    QTest::newRow("a strip too high") << false << jpeg({144, 4861});
}

void tst_NxPictureThreads::whatIsNoWholePictureIsNull()
{
    QFETCH(bool, isCover);
    const NxPictureKind kind = isCover ? NxPictureKind::Cover : NxPictureKind::Strip;
    QFETCH(QByteArray, bytes);
    if (bytes.startsWith("xx"))
        NxTestLog::expectError(QStringLiteral("Not a JPEG file"));
    const NxTempDir cache;
    const QString path = write(cache.path(), contents(1), kind, bytes);
    QVERIFY(NxPictureThreads::loaded({contents(1), kind, WholeCover}, path).isNull());
    QVERIFY2(!QFile::exists(path), "it would hide that a picture is to be made");
    QVERIFY(NxPictureThreads::loaded({contents(1), kind, WholeCover}, path).isNull());
}

void tst_NxPictureThreads::aLinkIsTakenAwayAndNotWhatItPointsTo()
{
    const NxTempDir cache;
    const QString theirs = cache.write(QStringLiteral("holiday.jpg"), "no picture");
    const QString link = cache.filePath(QStringLiteral("link.jpg"));
    QVERIFY(QFile::link(theirs, link));
    QVERIFY(NxPictureThreads::loaded(coverKey(1), link).isNull());
    QVERIFY(QFile::exists(theirs));
    QVERIFY(!QFileInfo(link).isSymLink());
}

void tst_NxPictureThreads::useOfAPictureIsNoted()
{
    Pictures f;
    const QString path = f.writeCover(1);
    const QDateTime old = QDateTime::currentDateTimeUtc().addDays(-10);
    setLastUse(path, old);
    QVERIFY(!NxPictureThreads::loaded(coverKey(1), path).isNull());
    QVERIFY(QFileInfo(path).lastModified() > old.addDays(9));
}

void tst_NxPictureThreads::whatWasAskedForComes()
{
    Pictures f;
    std::set<qint64> asked;
    for (int i = 0; i < 50; ++i) {
        f.writeCover(i, {100, 50 + i});
        f.load(coverKey(i));
        asked.insert(contents(i).size);
    }
    QTRY_COMPARE(f.results.size(), size_t(50));
    for (const NxPictureThreads::Result &result : f.results) {
        QCOMPARE(asked.erase(result.key.contents.size), size_t(1));
        QCOMPARE(result.image.height(), 50 + int(result.key.contents.size - contents(0).size));
    }
}

void tst_NxPictureThreads::whatIsGoneComesAsNull()
{
    Pictures f;
    f.load(coverKey(1));
    QTRY_COMPARE(f.results.size(), size_t(1));
    QCOMPARE(f.results.front().key, coverKey(1));
    QVERIFY(f.results.front().image.isNull());
}

void tst_NxPictureThreads::whatWaitsCanBeDropped()
{
    Pictures f;
    std::vector<NxPictureKey> dropped;
    {
        const Hold hold(&*f.threads);
        for (int i = 0; i < 3; ++i) {
            f.writeCover(i);
            f.load(coverKey(i));
        }
        dropped = f.threads->dropWaiting(&isUnwanted);
    }
    QCOMPARE(dropped.size(), size_t(3));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(dropped[size_t(i)], coverKey(i));
    QVERIFY(f.threads->dropWaiting(&isUnwanted).empty());
    f.load(coverKey(2));
    QTRY_COMPARE(f.results.size(), size_t(1));
    QCOMPARE(f.results.front().key, coverKey(2));
    f.threads.reset();
    QCOMPARE(f.results.size(), size_t(1));
}

void tst_NxPictureThreads::whatIsStillWantedKeepsItsOrder()
{
    Pictures f;
    std::vector<NxPictureKey> dropped;
    {
        const Hold hold(&*f.threads);
        for (int i = 0; i < 6; ++i) {
            f.writeCover(i);
            f.load(coverKey(i));
        }
        const NxPictureThreads::IsUnwanted isOdd = [](const NxPictureKey &key) {
            return key.contents.size % 2 != 0;
        };
        dropped = f.threads->dropWaiting(isOdd);
        QCOMPARE(dropped.size(), size_t(3));
        dropped = f.threads->dropWaiting(&isUnwanted);
    }
    QCOMPARE(dropped.size(), size_t(3));
    QCOMPARE(dropped[0], coverKey(0));
    QCOMPARE(dropped[1], coverKey(2));
    QCOMPARE(dropped[2], coverKey(4));
}

void tst_NxPictureThreads::choresAreDoneAndNeverDropped()
{
    Pictures f;
    const auto done = std::make_shared<std::atomic<int>>(0);
    {
        const Hold hold(&*f.threads);
        for (int i = 0; i < 5; ++i)
            f.threads->run([done] { ++*done; });
        QVERIFY(f.threads->dropWaiting(&isUnwanted).empty());
        QCOMPARE(done->load(), 0);
    }
    QTRY_COMPARE(done->load(), 5);
    QVERIFY(f.threads->take().empty());
}

void tst_NxPictureThreads::theyStepBackForTheWindow()
{
    constexpr int unknown = -1;
    Pictures f;
    const auto niceness = std::make_shared<std::atomic<int>>(unknown);
    f.threads->run([niceness] { *niceness = NxThreadNiceness::own(); });
    QTRY_VERIFY(*niceness != unknown);
    QCOMPARE(niceness->load(), NxThreadNiceness::atLeast(5));
}

void tst_NxPictureThreads::theyEndWhileTheyAreBusy()
{
    Pictures f;
    for (int i = 0; i < 10; ++i)
        f.writeCover(i);
    for (int i = 0; i < 500; ++i)
        f.load(coverKey(i % 10));
    f.threads.reset();
    QVERIFY(f.results.empty()); // Nobody listened in the meantime.
}

void tst_NxPictureThreads::theyEndWithoutEverHavingBegun()
{
    Pictures f;
    f.threads.reset();
    QVERIFY(f.results.empty());
}

NX_TEST_MAIN(tst_NxPictureThreads)
#include "tst_NxPictureThreads.moc"
