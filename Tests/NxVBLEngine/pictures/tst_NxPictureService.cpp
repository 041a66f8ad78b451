// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CachedPictures.h"
#include "ReadProject.h"

#include <NxVBLEngine/pictures/NxPictureService.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace CachedPictures;

namespace {

constexpr QSize Small{160, 90};
constexpr int Patience = 60'000; // ms

/// A view that paints the covers of some media whenever it is told that they changed.
class View final : public INxMediaItemEventObserver
{
    Q_DISABLE_COPY_MOVE(View)
public:
    explicit View(NxEngineCategory *category) : m_category(category)
    {
        m_category->itemObservers.add(this);
    }
    ~View() override { m_category->itemObservers.remove(this); }

    void onMediaStateChangedEvent(INxAbstractMedia *item) override
    {
        told.append(item->name());
        if (onTold)
            onTold(item);
    }

    QStringList told;
    std::function<void(INxAbstractMedia *)> onTold;

private:
    NxEngineCategory *const m_category;
};

/// A project whose scripted workers make no pictures: the tests put them into the folder.
struct PictureProject : ReadProject
{
    NxPictureService &service()
    {
        if (!m_service)
            m_service = std::make_unique<NxPictureService>(&memory, &reader(), limits);
        return *m_service;
    }
    /// A media of which everything was read, and its cover on disk.
    NxEngineMedia *made(const QString &name, const QColor &colour = Qt::red)
    {
        NxEngineMedia *media = add(name);
        service();
        reader().want({media}, NxFootageReader::wFacts | NxFootageReader::wPictures);
        if (!finish())
            qFatal("%s was not read", qUtf8Printable(name));
        writeCover(media, colour);
        view.told.clear();
        return media;
    }
    NxEngineMedia *made(const char *name) { return made(QString::fromLatin1(name)); }
    QString coverPath(const NxEngineMedia *media) const
    {
        return path(footage.cacheFolder(), media->fingerprint(), NxPictureKind::Cover);
    }
    void writeCover(const NxEngineMedia *media, const QColor &colour = Qt::red) const
    {
        write(footage.cacheFolder(), media->fingerprint(), NxPictureKind::Cover,
              jpeg(WholeCover, colour));
    }
    QImage cover(INxAbstractMedia *media, const QSize &size = Small)
    {
        return service().cover(this, media, size);
    }
    /// Asks, waits until the view is told, and asks again.
    QImage fetched(NxEngineMedia *media, const QSize &size = Small)
    {
        const int before = view.told.count(media->name());
        const QImage first = cover(media, size);
        if (!first.isNull())
            return first;
        const auto isTold = [&] { return view.told.count(media->name()) > before; };
        return QTest::qWaitFor(isTold, Patience) ? cover(media, size) : QImage();
    }

    NxPictureService::Limits limits;
    View view{category};
    std::unique_ptr<NxPictureService> m_service; // Goes before the reader.
};

} // namespace

/// Pictures for painters: from memory, else fetched, else made.
class tst_NxPictureService : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPictureComesFromMemoryAlone();
    void stripsComeAsTheyAre();
    void sizesWithoutAPixelHaveNoPicture_data();
    void sizesWithoutAPixelHaveNoPicture();
    void sizesBeyondReasonAreTheWholePicture();
    void everySizeIsItsOwnPicture();
    void whatIsNoFileHasNoPicture();
    void whatIsNotMadeIsMadeFirst();
    void whatFailedOrIsNoneIsNotAskedForAgain_data();
    void whatFailedOrIsNoneIsNotAskedForAgain();
    void copiesShareAPictureAndAreBothTold();
    void aCoverThatWentIsMadeAgain_data();
    void aCoverThatWentIsMadeAgain();
    void aPictureThatNeverLoadsFails();
    void whatNeverLoadedMayBeTriedAgain();
    void aChangedFileGivesTheNewPicture();
    void whatIsGivenUpIsNotToldOf();
    void oneGivesUpNothingOfAnothers();
    void mediaMayGoWhileTheirPictureIsOnItsWay();
    void theServiceMayGoWhilePicturesAreOnTheirWay();
    void theServiceMayGoWhenAPictureComes();
    void memoryIsBounded();
    void onePictureLargerThanTheMemoryIsKept();
    void theFolderIsTrimmed();
};

void tst_NxPictureService::aPictureComesFromMemoryAlone()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    QVERIFY(f.cover(media).isNull());
    QVERIFY(f.cover(media).isNull());
    QTRY_COMPARE(f.view.told, QStringList(QStringLiteral("a.mp4")));
    QVERIFY(QFile::remove(f.coverPath(media)));
    const QImage image = f.cover(media);
    QCOMPARE(image.size(), Small);
    QVERIFY(isAlike(image.pixelColor(image.rect().center()), Qt::red));
    QCOMPARE(f.picturesAsked(QStringLiteral("a.mp4")), 1);
}

void tst_NxPictureService::stripsComeAsTheyAre()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    write(f.footage.cacheFolder(), media->fingerprint(), NxPictureKind::Strip,
          jpeg(WholeStrip, Qt::blue));
    QVERIFY(f.service().strip(this, media).isNull());
    QTRY_COMPARE(f.view.told, QStringList(QStringLiteral("a.mp4")));
    const QImage image = f.service().strip(this, media);
    QCOMPARE(image.size(), WholeStrip);
    QVERIFY(isAlike(image.pixelColor(image.rect().center()), Qt::blue));
    QVERIFY(f.cover(media).isNull());
}

void tst_NxPictureService::sizesWithoutAPixelHaveNoPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QSize();
    QTest::newRow("zero") << QSize(0, 0);
    QTest::newRow("no width") << QSize(0, 90);
    QTest::newRow("no height") << QSize(160, 0);
    QTest::newRow("negative") << QSize(-160, 90);
}

void tst_NxPictureService::sizesWithoutAPixelHaveNoPicture()
{
    QFETCH(QSize, size);
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    QVERIFY(f.cover(media, size).isNull());
    QVERIFY(!f.fetched(media).isNull());
    QVERIFY(f.cover(media, size).isNull());
    QCOMPARE(f.view.told.size(), 1); // Nothing came for the empty size.
}

void tst_NxPictureService::sizesBeyondReasonAreTheWholePicture()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    constexpr int absurd = std::numeric_limits<int>::max();
    QCOMPARE(f.fetched(media, {absurd, absurd}).size(), WholeCover);
    QCOMPARE(f.cover(media, {1'000, absurd}).size(), WholeCover);
    QCOMPARE(f.cover(media, WholeCover).size(), WholeCover);
    QCOMPARE(f.view.told.size(), 1);
}

void tst_NxPictureService::everySizeIsItsOwnPicture()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    QCOMPARE(f.fetched(media, {160, 90}).size(), QSize(160, 90));
    QCOMPARE(f.fetched(media, {80, 80}).size(), QSize(80, 45));
    QCOMPARE(f.cover(media, {160, 90}).size(), QSize(160, 90));
}

void tst_NxPictureService::whatIsNoFileHasNoPicture()
{
    PictureProject f;
    QVERIFY(f.cover(nullptr).isNull());
    QVERIFY(f.service().strip(this, nullptr).isNull());
}

void tst_NxPictureService::whatIsNotMadeIsMadeFirst()
{
    PictureProject f;
    f.service();
    NxEngineMedia *media = f.add("a.mp4");
    NxEngineMedia *other = f.add("b.mp4");
    f.view.onTold = [&f, media](INxAbstractMedia *told) {
        if (told != media || media->coverState() != NxPictureState::Made)
            return;
        if (!QFile::exists(f.coverPath(media)))
            f.writeCover(media);
        (void)f.cover(media); // As a view does that paints it.
    };
    QVERIFY(f.cover(media).isNull());
    QTRY_VERIFY_WITH_TIMEOUT(!f.cover(media).isNull(), Patience);
    QCOMPARE(f.picturesAsked(QStringLiteral("a.mp4")), 1);
    QCOMPARE(other->readState(), NxReadState::Unread); // Nobody looks at it.
}

void tst_NxPictureService::whatFailedOrIsNoneIsNotAskedForAgain_data()
{
    QTest::addColumn<bool>("hasFailed");
    QTest::newRow("failed") << true;
    QTest::newRow("none") << false;
}

void tst_NxPictureService::whatFailedOrIsNoneIsNotAskedForAgain()
{
    QFETCH(bool, hasFailed);
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    NxFootageRecord record = media->footage();
    record.cover = hasFailed ? NxPictureState::Failed : NxPictureState::None;
    f.memory.setFootage(media, record);
    for (int i = 0; i < 10; ++i)
        QVERIFY(f.cover(media).isNull());
    QVERIFY(f.reader().isIdle());
    QCOMPARE(f.picturesAsked(QStringLiteral("a.mp4")), 1);
}

void tst_NxPictureService::copiesShareAPictureAndAreBothTold()
{
    PictureProject f;
    NxEngineMedia *first = f.made("a.mp4");
    NxEngineMedia *second = f.made("copies/a.mp4");
    QCOMPARE(first->fingerprint(), second->fingerprint());
    f.view.told.clear();
    QVERIFY(f.cover(first).isNull());
    QVERIFY(f.cover(second).isNull());
    QTRY_COMPARE(f.view.told.size(), 2);
    QVERIFY(!f.cover(first).isNull());
    QCOMPARE(f.cover(first).cacheKey(), f.cover(second).cacheKey());
}

void tst_NxPictureService::aCoverThatWentIsMadeAgain_data()
{
    QTest::addColumn<QByteArray>("left");
    const QByteArray whole = jpeg(WholeCover);
    QTest::newRow("deleted") << QByteArray();
    QTest::newRow("cut") << whole.left(whole.size() / 2);
    QTest::newRow("overwritten") << QByteArray("no picture");
}

void tst_NxPictureService::aCoverThatWentIsMadeAgain()
{
    QFETCH(QByteArray, left);
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    QVERIFY(QFile::remove(f.coverPath(media)));
    if (!left.isEmpty())
        write(f.footage.cacheFolder(), media->fingerprint(), NxPictureKind::Cover, left);
    f.view.onTold = [&f, media](INxAbstractMedia *) {
        if (media->coverState() == NxPictureState::Made && !QFile::exists(f.coverPath(media)))
            f.writeCover(media, Qt::green);
    };
    QVERIFY(f.cover(media).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(f.picturesAsked(QStringLiteral("a.mp4")), 2, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(media->coverState(), NxPictureState::Made, Patience);
    const QImage image = f.fetched(media);
    QCOMPARE(image.size(), Small);
    QVERIFY(isAlike(image.pixelColor(image.rect().center()), Qt::green));
    // It may go as often as the user likes.
    QVERIFY(QFile::remove(f.coverPath(media)));
    QVERIFY(f.cover(media, {80, 45}).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(f.picturesAsked(QStringLiteral("a.mp4")), 3, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(media->coverState(), NxPictureState::Made, Patience);
    QCOMPARE(f.fetched(media, {80, 45}).size(), QSize(80, 45));
    QCOMPARE(f.cover(media).size(), Small); // What is in memory stays.
}

void tst_NxPictureService::aPictureThatNeverLoadsFails()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    NxEngineMedia *copy = f.made("copies/a.mp4");
    QVERIFY(QFile::remove(f.coverPath(media)));
    f.view.onTold = [&f](INxAbstractMedia *item) {
        (void)f.cover(item); // As a view does that paints it.
        (void)f.cover(item, {80, 45});
    };
    (void)f.cover(media);
    (void)f.cover(copy);
    QTRY_COMPARE_WITH_TIMEOUT(media->coverState(), NxPictureState::Failed, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(copy->coverState(), NxPictureState::Failed, Patience);
    QTRY_VERIFY(f.reader().isIdle());
    QVERIFY(f.state(media).coverReason.contains(QStringLiteral("cache folder")));
    QCOMPARE(media->stripState(), NxPictureState::Made);
    const int asked = f.footage.requests().size();
    QVERIFY2(asked <= 8, qPrintable(QString::number(asked)));
    for (int i = 0; i < 10; ++i)
        QVERIFY(f.cover(media).isNull());
    QVERIFY(f.reader().isIdle());
    QCOMPARE(f.footage.requests().size(), asked);
}

void tst_NxPictureService::whatNeverLoadedMayBeTriedAgain()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    QVERIFY(QFile::remove(f.coverPath(media)));
    f.view.onTold = [&f](INxAbstractMedia *item) { (void)f.cover(item); };
    (void)f.cover(media);
    QTRY_COMPARE_WITH_TIMEOUT(media->coverState(), NxPictureState::Failed, Patience);
    QTRY_VERIFY(f.reader().isIdle());
    f.writeCover(media);
    f.reader().read({media}, NxFootageReader::wFacts | NxFootageReader::wPictures);
    QTRY_VERIFY_WITH_TIMEOUT(!f.cover(media).isNull(), Patience);
    QCOMPARE(f.state(media).coverReason, QString());
}

void tst_NxPictureService::aChangedFileGivesTheNewPicture()
{
    PictureProject f;
    NxEngineMedia *media = f.made("a.mp4");
    const QImage before = f.fetched(media);
    QVERIFY(isAlike(before.pixelColor(0, 0), Qt::red));
    QCOMPARE(f.footage.file(QStringLiteral("a.mp4"), "longer than before"), media->filePath());
    f.reader().read({media}, NxFootageReader::wFacts | NxFootageReader::wPictures);
    QVERIFY(f.finish());
    f.writeCover(media, Qt::blue);
    const QImage after = f.fetched(media);
    QVERIFY(isAlike(after.pixelColor(0, 0), Qt::blue));
}

void tst_NxPictureService::whatIsGivenUpIsNotToldOf()
{
    PictureProject f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 5; ++i)
        media.append(f.made(QStringLiteral("%1.mp4").arg(i)));
    Jam first(f.footage.cacheFolder(), media.at(0)->fingerprint());
    Jam second(f.footage.cacheFolder(), media.at(1)->fingerprint());
    for (NxEngineMedia *each : std::as_const(media))
        QVERIFY(f.cover(each).isNull());
    f.service().cancelRequests(&f);
    QVERIFY(f.cover(media.at(4)).isNull()); // Nor does it hinder asking again.
    first.release();
    second.release();
    QTRY_VERIFY(f.view.told.contains(QStringLiteral("4.mp4")));
    QVERIFY(!f.view.told.contains(QStringLiteral("2.mp4")));
    QVERIFY(!f.view.told.contains(QStringLiteral("3.mp4")));
    QVERIFY(!f.fetched(media.at(2)).isNull());
}

void tst_NxPictureService::oneGivesUpNothingOfAnothers()
{
    PictureProject f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 5; ++i)
        media.append(f.made(QStringLiteral("%1.mp4").arg(i)));
    Jam first(f.footage.cacheFolder(), media.at(0)->fingerprint());
    Jam second(f.footage.cacheFolder(), media.at(1)->fingerprint());
    const int one = 1;
    const int other = 2;
    for (NxEngineMedia *each : std::as_const(media)) {
        QVERIFY(f.service().cover(&one, each, Small).isNull());
        QVERIFY(f.service().cover(&other, each, Small).isNull());
    }
    f.service().cancelRequests(&one);
    first.release();
    second.release();
    for (int i = 2; i < media.size(); ++i) {
        QTRY_COMPARE(f.view.told.count(media.at(i)->name()), 1);
        QVERIFY(!f.service().cover(&other, media.at(i), Small).isNull());
    }
}

void tst_NxPictureService::mediaMayGoWhileTheirPictureIsOnItsWay()
{
    PictureProject f;
    NxEngineMedia *removed = f.made("removed.mp4");
    NxEngineMedia *forgotten = f.made("forgotten.mp4");
    NxEngineMedia *stays = f.made("stays.mp4");
    QVERIFY(QFile::remove(f.coverPath(forgotten)));
    f.view.told.clear();
    for (NxEngineMedia *each : {removed, forgotten, stays})
        QVERIFY(f.cover(each).isNull());
    const qint64 id = forgotten->id();
    QVERIFY(f.items->removeMediaItems(f.section, {removed, forgotten}));
    f.memory.forget({{}, {id}, {}});
    QTRY_VERIFY(!f.memory.media(id));
    QTRY_VERIFY(!f.cover(stays).isNull());
    QCOMPARE(f.view.told, QStringList(QStringLiteral("stays.mp4")));
}

void tst_NxPictureService::theServiceMayGoWhilePicturesAreOnTheirWay()
{
    PictureProject f;
    for (int i = 0; i < 10; ++i) {
        NxEngineMedia *media = f.made(QStringLiteral("%1.mp4").arg(i));
        QVERIFY(f.cover(media).isNull());
    }
    f.view.told.clear();
    f.m_service.reset();
    QCoreApplication::processEvents();
    QVERIFY(f.view.told.isEmpty());
}

void tst_NxPictureService::theServiceMayGoWhenAPictureComes()
{
    PictureProject f;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 10; ++i)
        media.append(f.made(QStringLiteral("%1.mp4").arg(i)));
    f.view.told.clear();
    f.view.onTold = [&f](INxAbstractMedia *) { f.m_service.reset(); };
    for (NxEngineMedia *each : std::as_const(media))
        QVERIFY(f.cover(each).isNull());
    QTRY_VERIFY(!f.m_service);
    QCoreApplication::processEvents();
    QCOMPARE(f.view.told.size(), 1);
}

void tst_NxPictureService::memoryIsBounded()
{
    PictureProject f;
    constexpr int oneCover = 160 * 90 * 4 / 1024;
    f.limits.memoryKiB = 3 * oneCover;
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < 5; ++i) {
        media.append(f.made(QStringLiteral("%1.mp4").arg(i)));
        QVERIFY(!f.fetched(media.last()).isNull());
    }
    for (int i = 0; i < 5; ++i)
        QCOMPARE(f.cover(media.at(i)).isNull(), i < 2); // The last three are there.
}

void tst_NxPictureService::onePictureLargerThanTheMemoryIsKept()
{
    PictureProject f;
    f.limits.memoryKiB = 1;
    NxEngineMedia *media = f.made("a.mp4");
    QVERIFY(!f.fetched(media).isNull());
    QVERIFY(!f.cover(media).isNull());
    QCOMPARE(f.view.told.size(), 1);
}

void tst_NxPictureService::theFolderIsTrimmed()
{
    PictureProject f;
    f.limits.folderBytes = 10;
    const QString old =
        write(f.footage.cacheFolder(), contents(1), NxPictureKind::Cover, "0123456789x");
    f.made("a.mp4");
    QTRY_VERIFY(!QFile::exists(old));
}

NX_TEST_MAIN(tst_NxPictureService)
#include "tst_NxPictureService.moc"
