// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CachedPictures.h"

#include <NxVBLEngine/pictures/NxPictureCache.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDirIterator>
#include <QtTest>

namespace {

constexpr int Bytes = 100;
constexpr int Hour = 3'600; // s
constexpr int Day = 24 * Hour; // s

QDateTime ago(qint64 seconds)
{
    return QDateTime::currentDateTimeUtc().addSecs(-seconds);
}

/// A cover of `Bytes` bytes that was last used so many hours ago.
QString cover(const NxTempDir &cache, int number, int hours)
{
    const QString path = CachedPictures::write(cache.path(), CachedPictures::contents(number),
                                               NxPictureKind::Cover, QByteArray(Bytes, 'x'));
    CachedPictures::setLastUse(path, ago(hours * Hour));
    return path;
}

} // namespace

/// The folder of pictures is bounded, and nothing of anybody else's in it is touched.
class tst_NxPictureCache : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsRemovedAtTheLimit();
    void whatWasUsedLongestAgoGoesFirst();
    void stripsCountLikeCovers();
    void whatIsNotOursStays_data();
    void whatIsNotOursStays();
    void linksAreNotFollowed();
    void oldHalfWrittenPicturesGo_data();
    void oldHalfWrittenPicturesGo();
    void aFolderThatIsNotThereIsEmpty();
    void useIsNotedOnceADay_data();
    void useIsNotedOnceADay();
    void useChangesNoPicture();
    void useOfWhatIsGoneMakesNothing();
    void useOfALinkIsNotNoted();
};

void tst_NxPictureCache::nothingIsRemovedAtTheLimit()
{
    const NxTempDir cache;
    QStringList paths;
    for (int i = 0; i < 10; ++i)
        paths.append(cover(cache, i, 10 + i));
    QCOMPARE(NxPictureCache::trim(cache.path(), 10 * Bytes), 10 * Bytes);
    for (const QString &path : std::as_const(paths))
        QVERIFY(QFile::exists(path));
}

void tst_NxPictureCache::whatWasUsedLongestAgoGoesFirst()
{
    const NxTempDir cache;
    QStringList byUse;
    // Not in the order of their names.
    for (const int number : {7, 2, 19, 0, 11, 5, 3, 16, 8, 1, 14, 4, 18, 6, 10, 9, 13, 12, 15, 17})
        byUse.append(cover(cache, number, 100 - byUse.size()));
    QCOMPARE(NxPictureCache::trim(cache.path(), 10 * Bytes), 9 * Bytes);
    for (int i = 0; i < byUse.size(); ++i)
        QVERIFY2(QFile::exists(byUse.at(i)) == (i >= 11), qPrintable(QString::number(i)));
}

void tst_NxPictureCache::stripsCountLikeCovers()
{
    const NxTempDir cache;
    const QString kept = cover(cache, 1, 1);
    const QString strip = CachedPictures::write(cache.path(), CachedPictures::contents(1),
                                                NxPictureKind::Strip, QByteArray(10 * Bytes, 'x'));
    CachedPictures::setLastUse(strip, ago(2 * Hour));
    QCOMPARE(NxPictureCache::trim(cache.path(), 5 * Bytes), Bytes);
    QVERIFY(!QFile::exists(strip));
    QVERIFY(QFile::exists(kept));
}

void tst_NxPictureCache::whatIsNotOursStays_data()
{
    const QString ours = NxPictureFile::name(CachedPictures::contents(1), NxPictureKind::Cover);
    const QString name = ours.section(QLatin1Char('/'), -1);
    const QString folder = ours.section(QLatin1Char('/'), 0, 0);
    QTest::addColumn<QString>("name");
    QTest::newRow("a photo") << QStringLiteral("holiday.jpg");
    QTest::newRow("a photo in our folder") << folder + QStringLiteral("/holiday.jpg");
    QTest::newRow("our name beside the folders") << name;
    QTest::newRow("our name in another folder") << QStringLiteral("mine/") + name;
    QTest::newRow("our name deeper down") << folder + QStringLiteral("/ab/") + name;
    QTest::newRow("our name with more behind it") << ours + QStringLiteral(".bak");
    QTest::newRow("our name with more before it") << folder + QStringLiteral("/x") + name;
    QTest::newRow("another word") << QString(ours).replace(QLatin1String("cover"),
                                                           QLatin1String("poster"));
    QTest::newRow("half written by another program") << ours + QStringLiteral(".firefox.part");
    QTest::newRow("half written, but not ours") << folder + QStringLiteral("/film.mp4.17.part");
}

void tst_NxPictureCache::whatIsNotOursStays()
{
    QFETCH(QString, name);
    const NxTempDir cache;
    const QString theirs = cache.write(name, QByteArray(Bytes, 'x'));
    CachedPictures::setLastUse(theirs, ago(100 * Day));
    const QString ours = cover(cache, 2, 5);
    QCOMPARE(NxPictureCache::trim(cache.path(), 1), 0);
    QVERIFY(QFile::exists(theirs));
    QVERIFY(!QFile::exists(ours));
}

void tst_NxPictureCache::linksAreNotFollowed()
{
    const NxTempDir cache;
    const NxTempDir elsewhere;
    const QString far = cover(elsewhere, 1, 5);
    const QString farFolder = QFileInfo(far).path();
    const QString folder = cache.filePath(QStringLiteral("00"));
    QVERIFY(QFile::link(farFolder, folder));
    const QString near = cover(cache, 2, 5);
    const QString link = QFileInfo(near).path() + QLatin1Char('/') + QFileInfo(far).fileName();
    QVERIFY(QFile::link(far, link));
    QCOMPARE(NxPictureCache::trim(cache.path(), 1), 0);
    QVERIFY(!QFile::exists(near));
    QVERIFY(QFile::exists(far));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(QFileInfo(folder).isSymLink());
}

void tst_NxPictureCache::oldHalfWrittenPicturesGo_data()
{
    QTest::addColumn<int>("age");
    QTest::addColumn<bool>("stays");
    QTest::newRow("being written") << 0 << true;
    QTest::newRow("not yet an hour") << Hour - 60 << true;
    QTest::newRow("more than an hour") << Hour + 60 << false;
}

void tst_NxPictureCache::oldHalfWrittenPicturesGo()
{
    QFETCH(int, age);
    const NxTempDir cache;
    const QString name = NxPictureFile::name(CachedPictures::contents(1), NxPictureKind::Strip);
    const QString half = cache.write(name + QStringLiteral(".4711.part"));
    CachedPictures::setLastUse(half, ago(age));
    QCOMPARE(NxPictureCache::trim(cache.path(), NxPictureCache::DefaultLimit), 0);
    QTEST(QFile::exists(half), "stays");
}

void tst_NxPictureCache::aFolderThatIsNotThereIsEmpty()
{
    const NxTempDir cache;
    QCOMPARE(NxPictureCache::trim(cache.filePath(QStringLiteral("none")), 1), 0);
    QVERIFY(!QFile::exists(cache.filePath(QStringLiteral("none"))));
}

void tst_NxPictureCache::useIsNotedOnceADay_data()
{
    QTest::addColumn<int>("age");
    QTest::addColumn<bool>("isNoted");
    QTest::newRow("used a moment ago") << 30 << false;
    QTest::newRow("used today") << Day - 60 << false;
    QTest::newRow("used yesterday") << Day + 60 << true;
    QTest::newRow("by a clock that was wrong") << -400 * Day << true;
}

void tst_NxPictureCache::useIsNotedOnceADay()
{
    QFETCH(int, age);
    QFETCH(bool, isNoted);
    const NxTempDir cache;
    const QString path = cover(cache, 1, 0);
    CachedPictures::setLastUse(path, ago(age));
    const QDateTime before = QFileInfo(path).lastModified();
    NxPictureCache::noteUse(path);
    const QDateTime after = QFileInfo(path).lastModified();
    QCOMPARE(after != before, isNoted);
    if (isNoted)
        QVERIFY(std::abs(after.secsTo(QDateTime::currentDateTimeUtc())) < 60);
}

void tst_NxPictureCache::useChangesNoPicture()
{
    const NxTempDir cache;
    const QByteArray bytes = CachedPictures::jpeg({10, 10});
    const QString path = CachedPictures::write(cache.path(), CachedPictures::contents(1),
                                               NxPictureKind::Cover, bytes);
    CachedPictures::setLastUse(path, ago(2 * Day));
    NxPictureCache::noteUse(path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void tst_NxPictureCache::useOfWhatIsGoneMakesNothing()
{
    const NxTempDir cache;
    const QString path = cache.filePath(QStringLiteral("gone.jpg"));
    NxPictureCache::noteUse(path);
    QVERIFY(!QFile::exists(path));
}

void tst_NxPictureCache::useOfALinkIsNotNoted()
{
    const NxTempDir cache;
    const QString theirs = cache.write(QStringLiteral("holiday.jpg"));
    CachedPictures::setLastUse(theirs, ago(10 * Day));
    const QDateTime before = QFileInfo(theirs).lastModified();
    const QString link = cache.filePath(QStringLiteral("link.jpg"));
    QVERIFY(QFile::link(theirs, link));
    NxPictureCache::noteUse(link);
    QCOMPARE(QFileInfo(theirs).lastModified(), before);
}

NX_TEST_MAIN(tst_NxPictureCache)
#include "tst_NxPictureCache.moc"
