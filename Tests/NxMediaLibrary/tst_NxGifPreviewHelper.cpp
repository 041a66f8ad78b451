// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GifMaker.h"
#include "PreviewMedia.h"
#include "ScriptedMedia.h"

#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <cstddef>
#include <memory>
#include <new>

namespace {

const QVector<QColor> RedAndGreen{Qt::red, Qt::green};
const QVector<QColor> BlueAndWhite{Qt::blue, Qt::white};
constexpr int Noon = 12 * 3'600'000; // ms
constexpr int KeepAlive = 5'000; // ms

/// The helper with a clock of the test's, and nothing in it.
struct Stand
{
    Stand()
    {
        helper->setClock([this] { return time; });
        QObject::connect(helper, &NxGifPreviewHelper::sigUpdate, &life, [this] { ++updates; });
    }
    ~Stand()
    {
        helper->stopPlay();
        helper->clear();
        helper->setClock({});
    }
    QString write(const QVector<QColor> &colours, const char *name = "a.gif") const
    {
        return dir.write(QString::fromLatin1(name), GifMaker::gif(colours));
    }
    bool has(INxAbstractMedia *media) const
    {
        QImage image;
        return helper->getImage(media, image);
    }
    QColor colour(INxAbstractMedia *media) const
    {
        QImage image;
        const bool isShown = helper->getImage(media, image);
        return isShown && !image.isNull() ? image.pixelColor(0, 0) : QColor();
    }
    /// Asks until it plays, as a view does that is told to paint.
    bool plays(INxAbstractMedia *media) const
    {
        return QTest::qWaitFor([&] { return has(media); }, NxPatience);
    }
    /// Waits until the helper has ticked.
    bool tick()
    {
        const int before = updates;
        return QTest::qWaitFor([&] { return updates > before; }, NxPatience);
    }

    const NxTempDir dir;
    NxGifPreviewHelper *const helper = NxGifPreviewHelper::getInstance(); // Not owned.
    int time = Noon;
    int updates = 0;
    QObject life;
};

} // namespace

/// Animated GIFs in the views of the whole program.
class tst_NxGifPreviewHelper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thereIsOneOfIt();
    void hostsFindItsSignalInItsPlace();
    void aGifPlays();
    void viewsAreToldWhenAFileWasRead();
    void theFrameIsNotCopied();
    void nothingWaitsForTheDisk();
    void whatIsNoAnimatedGifHasNoImage_data();
    void whatIsNoAnimatedGifHasNoImage();
    void stillPicturesStartNoTicks();
    void theTickComesWithoutGifs();
    void initStopsTheTicks();
    void nobodyLookingStopsTheFilms();
    void aFileReadAfterNobodyLooksStartsNothing();
    void whatNobodyAskedForIsPutAway_data();
    void whatNobodyAskedForIsPutAway();
    void aFrameIsNewOnce();
    void askingForNewFramesKeepsAGif();
    void copiesOfOneFilePlayEachForItself();
    void aReplacedFileIsShown();
    void aStillFileThatBecomesAFilmPlays();
    void aFileThatWentShowsTheCover();
    void aMediaThatGetsAnotherFileShowsIt();
    void aDeadMediaIsNoEntry();
    void aMediaMayDieWhileItsFileIsRead();
    void clearingPutsAllAway();
};

void tst_NxGifPreviewHelper::thereIsOneOfIt()
{
    QCOMPARE(NxGifPreviewHelper::getInstance(), NxGifPreviewHelper::getInstance());
}

void tst_NxGifPreviewHelper::hostsFindItsSignalInItsPlace()
{
    const QMetaObject &meta = NxGifPreviewHelper::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod update = meta.method(meta.methodOffset());
    QCOMPARE(update.methodSignature(), QByteArray("sigUpdate()"));
    QCOMPARE(update.methodType(), QMetaMethod::Signal);
}

void tst_NxGifPreviewHelper::aGifPlays()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    QImage image;
    QVERIFY(f.helper->getImage(&item, image));
    QCOMPARE(image.size(), QSize(16, 9));
    QTRY_COMPARE(f.colour(&item), QColor(Qt::green));
    QTRY_COMPARE(f.colour(&item), QColor(Qt::red));
}

void tst_NxGifPreviewHelper::viewsAreToldWhenAFileWasRead()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(!f.has(&item));
    QTRY_VERIFY(f.updates > 0);
    QVERIFY(f.helper->hasNewFrame(&item));
    QVERIFY(f.has(&item));
}

void tst_NxGifPreviewHelper::theFrameIsNotCopied()
{
    Stand f;
    GifItem item(f.dir.write(QStringLiteral("a.gif"), GifMaker::gif(RedAndGreen, 60'000)));
    QVERIFY(f.plays(&item));
    QImage first;
    QImage second;
    QVERIFY(f.helper->getImage(&item, first));
    QVERIFY(f.helper->getImage(&item, second));
    QCOMPARE(first.cacheKey(), second.cacheKey());
}

void tst_NxGifPreviewHelper::nothingWaitsForTheDisk()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    GifItem still(f.write({Qt::red}, "still.gif"));
    const NxDiskBan ban;
    QVERIFY(!f.has(&still));
    QVERIFY(f.plays(&item));
    QVERIFY(f.tick());
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxGifPreviewHelper::whatIsNoAnimatedGifHasNoImage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("code");
    const int animated = NXVBLMODEL::mkcAnimatedImage;
    const QByteArray film = GifMaker::gif(RedAndGreen);
    QTest::newRow("one frame") << GifMaker::gif({Qt::red}) << animated;
    QTest::newRow("no frame") << GifMaker::gif({}) << animated;
    QTest::newRow("empty") << QByteArray() << animated;
    QTest::newRow("no picture") << QByteArray("no picture") << animated;
    QTest::newRow("cut in the first frame") << film.left(450) << animated;
    QTest::newRow("gigantic") << GifMaker::gif(RedAndGreen).replace(6, 4, "\xff\xff\xff\xff")
                              << animated;
    QTest::newRow("still image by its kind") << film << int(NXVBLMODEL::mkcStillImage);
    QTest::newRow("no kind") << film << int(NXVBLMODEL::mkcNone);
}

void tst_NxGifPreviewHelper::whatIsNoAnimatedGifHasNoImage()
{
    QFETCH(QByteArray, content);
    QFETCH(int, code);
    Stand f;
    GifItem film(f.write(RedAndGreen, "film.gif"));
    GifItem item(f.dir.write(QStringLiteral("a.gif"), content));
    item.code = code;
    QVERIFY(!f.has(&item));
    QVERIFY(f.plays(&film)); // Read behind the other, so that one was read, too.
    QVERIFY(!f.has(&item));
    QVERIFY(!f.helper->hasNewFrame(&item));
    QVERIFY(!f.has(nullptr));
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    QVERIFY(!f.has(&folder));
    GifItem without;
    QVERIFY(!f.has(&without));
}

void tst_NxGifPreviewHelper::stillPicturesStartNoTicks()
{
    Stand f;
    GifItem item(f.write({Qt::red}));
    for (int i = 0; i < 3; ++i)
        QVERIFY(!f.has(&item));
    QTimer beside; // As long as several ticks.
    const QSignalSpy beats(&beside, &QTimer::timeout);
    beside.start(100);
    QTRY_VERIFY(beats.size() >= 2);
    QCOMPARE(f.updates, 0);
    GifItem film(f.write(RedAndGreen, "film.gif"));
    QVERIFY(!f.has(&film));
    QTRY_VERIFY(f.updates > 0); // Only the film makes itself known.
}

void tst_NxGifPreviewHelper::theTickComesWithoutGifs()
{
    Stand f;
    f.helper->startPlay();
    QVERIFY(f.tick());
    QVERIFY(f.tick());
}

void tst_NxGifPreviewHelper::initStopsTheTicks()
{
    Stand f;
    f.helper->startPlay();
    f.helper->init();
    f.updates = 0;
    QTimer beside; // As long as several ticks.
    const QSignalSpy beats(&beside, &QTimer::timeout);
    beside.start(100);
    QTRY_VERIFY(beats.size() >= 2);
    QCOMPARE(f.updates, 0);
    f.helper->startPlay();
    QVERIFY(f.tick());
}

void tst_NxGifPreviewHelper::nobodyLookingStopsTheFilms()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    f.helper->stopPlay();
    f.updates = 0;
    GifItem other(f.write(BlueAndWhite, "b.gif"));
    QVERIFY(f.plays(&other)); // Somebody looks again: both play on.
    QVERIFY(f.tick());
    QTRY_COMPARE(f.colour(&item), QColor(Qt::green));
    QTRY_COMPARE(f.colour(&item), QColor(Qt::red));
}

void tst_NxGifPreviewHelper::aFileReadAfterNobodyLooksStartsNothing()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    GifItem other(f.write(BlueAndWhite, "b.gif"));
    QVERIFY(!f.has(&item));
    f.helper->stopPlay();
    // The file of the other is read behind it; without a tick it plays when it is asked for.
    const auto isRead = [&] {
        const bool isShown = f.has(&other);
        f.helper->stopPlay();
        return isShown;
    };
    QTRY_VERIFY(isRead());
    QCOMPARE(f.updates, 0);
    QVERIFY(f.has(&item));
}

void tst_NxGifPreviewHelper::whatNobodyAskedForIsPutAway_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("now");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("at once") << Noon << Noon << true;
    QTest::newRow("five seconds later") << Noon << Noon + KeepAlive << true;
    QTest::newRow("a moment later still") << Noon << Noon + KeepAlive + 1 << false;
    QTest::newRow("five seconds earlier") << Noon << Noon - KeepAlive << true;
    QTest::newRow("a moment earlier still") << Noon << Noon - KeepAlive - 1 << false;
    QTest::newRow("across midnight") << 86'399'000 << 1'000 << false;
}

void tst_NxGifPreviewHelper::whatNobodyAskedForIsPutAway()
{
    QFETCH(int, asked);
    QFETCH(int, now);
    QFETCH(bool, isKept);
    Stand f;
    f.time = asked;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    f.time = now;
    QVERIFY(f.tick());
    QCOMPARE(f.has(&item), isKept);
}

void tst_NxGifPreviewHelper::aFrameIsNewOnce()
{
    Stand f;
    GifItem item(f.dir.write(QStringLiteral("a.gif"), GifMaker::gif(RedAndGreen, 60'000)));
    QVERIFY(!f.helper->hasNewFrame(&item));
    QVERIFY(f.plays(&item));
    QVERIFY(f.tick());
    QVERIFY(f.tick());
    QVERIFY(!f.helper->hasNewFrame(&item)); // It rests for ten minutes.
    // Slower than the ticks, so that they see each frame.
    GifItem moving(f.dir.write(QStringLiteral("b.gif"), GifMaker::gif(BlueAndWhite, 12)));
    QVERIFY(f.plays(&moving));
    int moves = 0;
    int rests = 0;
    bool hasRestingMoved = false;
    QObject life;
    connect(f.helper, &NxGifPreviewHelper::sigUpdate, &life, [&] {
        ++(f.helper->hasNewFrame(&moving) ? moves : rests);
        hasRestingMoved = hasRestingMoved || f.helper->hasNewFrame(&item);
    });
    QTRY_VERIFY(moves >= 3 && rests >= 1);
    QVERIFY(!hasRestingMoved);
    QVERIFY(!f.helper->hasNewFrame(nullptr));
}

void tst_NxGifPreviewHelper::askingForNewFramesKeepsAGif()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    f.time = Noon + KeepAlive;
    (void)f.helper->hasNewFrame(&item);
    f.time = Noon + 2 * KeepAlive;
    QVERIFY(f.tick());
    QVERIFY(f.has(&item));
}

void tst_NxGifPreviewHelper::copiesOfOneFilePlayEachForItself()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    auto copy = std::make_unique<GifItem>(item.path);
    QVERIFY(f.plays(&item));
    QVERIFY(f.has(copy.get())); // The file is known by now.
    copy.reset();
    QVERIFY(f.tick());
    QVERIFY(f.has(&item));
}

void tst_NxGifPreviewHelper::aReplacedFileIsShown()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    f.dir.write(QStringLiteral("a.gif"), GifMaker::gif(BlueAndWhite, 60'000, {20, 10}));
    QTRY_COMPARE(f.colour(&item), QColor(Qt::blue)); // It rests there for ten minutes.
    QImage image;
    QVERIFY(f.helper->getImage(&item, image));
    QCOMPARE(image.size(), QSize(20, 10));
}

void tst_NxGifPreviewHelper::aStillFileThatBecomesAFilmPlays()
{
    Stand f;
    GifItem item(f.write({Qt::red}));
    GifItem film(f.write(RedAndGreen, "film.gif"));
    QVERIFY(!f.has(&item));
    QVERIFY(f.plays(&film));
    QVERIFY(!f.has(&item));
    f.write(BlueAndWhite);
    QVERIFY(f.plays(&item));
}

void tst_NxGifPreviewHelper::aFileThatWentShowsTheCover()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    QVERIFY(QFile::remove(item.path));
    QTRY_VERIFY(!f.has(&item));
    f.write(BlueAndWhite);
    QVERIFY(f.plays(&item));
    QTRY_COMPARE(f.colour(&item), QColor(Qt::white));
}

void tst_NxGifPreviewHelper::aMediaThatGetsAnotherFileShowsIt()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    item.path = f.write(BlueAndWhite, "b.gif");
    QTRY_COMPARE(f.colour(&item), QColor(Qt::white));
    item.path = f.write({Qt::red}, "c.gif");
    QTRY_VERIFY(!f.has(&item));
    item.path.clear();
    QVERIFY(!f.has(&item));
}

void tst_NxGifPreviewHelper::aDeadMediaIsNoEntry()
{
    Stand f;
    const QString path = f.write(RedAndGreen);
    // The next media has the address of the one before, as the allocator may do it.
    alignas(GifItem) std::byte place[sizeof(GifItem)];
    auto *first = new (place) GifItem(path);
    QVERIFY(f.plays(first));
    first->~GifItem();
    auto *second = new (place) GifItem(path);
    second->code = NXVBLMODEL::mkcStillImage;
    QVERIFY(!f.helper->hasNewFrame(second));
    QVERIFY(!f.has(second));
    second->~GifItem();
    auto *third = new (place) GifItem(path);
    QVERIFY(f.plays(third));
    third->~GifItem();
    QVERIFY(f.tick()); // Puts it away.
}

void tst_NxGifPreviewHelper::aMediaMayDieWhileItsFileIsRead()
{
    Stand f;
    auto item = std::make_unique<GifItem>(f.write(RedAndGreen));
    QVERIFY(!f.has(item.get()));
    item.reset();
    GifItem other(f.write(BlueAndWhite, "b.gif"));
    QVERIFY(f.plays(&other));
}

void tst_NxGifPreviewHelper::clearingPutsAllAway()
{
    Stand f;
    GifItem item(f.write(RedAndGreen));
    QVERIFY(f.plays(&item));
    f.helper->clear();
    QVERIFY(!f.helper->hasNewFrame(&item));
    QVERIFY(!f.has(&item)); // It is read again.
    QVERIFY(f.plays(&item));
}

NX_TEST_MAIN(tst_NxGifPreviewHelper)
#include "tst_NxGifPreviewHelper.moc"
