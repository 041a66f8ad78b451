// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include "RowStand.h"

#include <NxMediaLibrary/GifMaker.h>
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTest>

using namespace NXMEDIALIBRARY;

namespace {

using Rows = QVector<QPersistentModelIndex>;

constexpr QSize FrameSize(144, 81);

QColor colourOfFrame(int frame)
{
    return QColor::fromHsv(frame * 30, 255, 200).toRgb();
}

/// Ten frames of one colour each.
QImage filmStrip()
{
    constexpr int frames = 10;
    QImage strip(FrameSize.width(), FrameSize.height() * frames, QImage::Format_RGB32);
    QPainter painter(&strip);
    for (int i = 0; i < frames; ++i)
        painter.fillRect(QRect({0, i * FrameSize.height()}, FrameSize), colourOfFrame(i));
    return strip;
}

/// A media whose cover is grey, in a row of middle covers.
struct PlayedRow : RowStand
{
    PlayedRow()
    {
        engine.covers = [this](INxAbstractMedia *, const QSize &size) {
            QImage cover(size, QImage::Format_RGB32);
            cover.fill(coverColour);
            return cover;
        };
        show(&item);
        painter->setViewMode(vmMiddleThumbnail);
    }
    [[nodiscard]] INxPreviewFrameHelper *preview() { return delegate.previewFrameHelper(); }
    void play()
    {
        preview()->setMedia(index(), &item);
        preview()->setPlayThumbnail(filmStrip());
    }
    void step() { QMetaObject::invokeMethod(preview(), "slotPlayThumbnailTimeout"); }
    /// Of a place of the cover that no mark covers.
    [[nodiscard]] QColor shown()
    {
        return painted().pixelColor(layout(vmMiddleThumbnail).cover.topLeft() + QPoint(100, 40));
    }

    GalleryItem item{NXVBLMODEL::mtVideo};
    const QColor coverColour{90, 90, 90};
};

} // namespace

class tst_NxMediaItemPainter_motion : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void thePlayedMediaShowsItsFrame();
    void framesFillTheCoverOfEveryMode_data();
    void framesFillTheCoverOfEveryMode();
    void behindTheStripTheCoverStays();
    void otherMediaKeepTheirCovers();
    void withoutAPreviewTheCoverStays();
    void animatedPicturesShowTheirFrameAndAreReported();
    void whatIsReadAfterItsRowWasPaintedIsReported_data();
    void whatIsReadAfterItsRowWasPaintedIsReported();
    void aRestingPictureIsNotReported();
    void aPictureThatVanishesIsReportedOnce();
    void rowsThatAreGoneAreNotReported();
    void stillPicturesAreNotReported();

    void init()
    {
        constexpr int noon = 12 * 3'600'000; // ms. By the day's time films are put away.
        NxGifPreviewHelper::getInstance()->setClock([] { return noon; });
    }
    void cleanup()
    {
        NxGifPreviewHelper::getInstance()->setClock({});
        NxGifPreviewHelper::getInstance()->stopPlay();
        NxGifPreviewHelper::getInstance()->clear();
    }
};

void tst_NxMediaItemPainter_motion::thePlayedMediaShowsItsFrame()
{
    PlayedRow row;
    QCOMPARE(row.shown(), row.coverColour);
    row.play();
    QCOMPARE(row.shown(), colourOfFrame(0));
    QCOMPARE(row.shown(), colourOfFrame(0));
    row.step();
    QCOMPARE(row.shown(), colourOfFrame(1));
    row.step();
    QCOMPARE(row.shown(), colourOfFrame(2));
}

void tst_NxMediaItemPainter_motion::framesFillTheCoverOfEveryMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const int mode : {vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail})
            QTest::addRow("mode %d at %gx", mode, ratio) << mode << ratio;
    }
}

void tst_NxMediaItemPainter_motion::framesFillTheCoverOfEveryMode()
{
    QFETCH(int, mode);
    QFETCH(qreal, ratio);
    PlayedRow row;
    row.painter->setViewMode(NxMediaItemViewMode(mode));
    row.play();
    const QRect cover = row.layout(NxMediaItemViewMode(mode)).cover;
    const QImage picture = row.painted(QStyle::State_Enabled, ratio);
    const QPoint first = (QPointF(cover.topLeft()) * ratio).toPoint();
    const QPoint last =
        first + QPoint(qRound(cover.width() * ratio) - 1, qRound(cover.height() * ratio) - 1);
    QCOMPARE(picture.pixelColor(first), colourOfFrame(0));
    QCOMPARE(picture.pixelColor(last), colourOfFrame(0));
    QVERIFY(picture.pixelColor(last + QPoint(1, 0)) != colourOfFrame(0));
    QVERIFY(picture.pixelColor(first - QPoint(1, 0)) != colourOfFrame(0));
}

void tst_NxMediaItemPainter_motion::behindTheStripTheCoverStays()
{
    PlayedRow row;
    row.play();
    constexpr int frames = 10;
    for (int i = 0; i < frames; ++i)
        row.step();
    QVERIFY(row.preview()->isBeyondStrip());
    QCOMPARE(row.shown(), row.coverColour);
    row.step();
    QCOMPARE(row.shown(), colourOfFrame(0));
}

void tst_NxMediaItemPainter_motion::otherMediaKeepTheirCovers()
{
    PlayedRow row;
    row.play();
    GalleryItem other(NXVBLMODEL::mtVideo);
    row.show(&other);
    QCOMPARE(row.shown(), row.coverColour);
}

void tst_NxMediaItemPainter_motion::withoutAPreviewTheCoverStays()
{
    PlayedRow row;
    row.play();
    row.preview()->setPlayThumbnail({});
    QCOMPARE(row.shown(), row.coverColour);
    row.play();
    row.painter->setPreviewFrameHelper(nullptr);
    QCOMPARE(row.shown(), row.coverColour);
}

void tst_NxMediaItemPainter_motion::animatedPicturesShowTheirFrameAndAreReported()
{
    const NxTempDir dir;
    PlayedRow row;
    row.item.type = NXVBLMODEL::mtElement;
    row.item.finerKind = NXVBLMODEL::mskGif;
    row.item.code = NXVBLMODEL::mkcAnimatedImage;
    row.item.path = dir.write(QStringLiteral("waving.gif"), GifMaker::gif({Qt::red, Qt::blue}));
    // Read on another thread; until then the cover stands.
    QTRY_VERIFY(row.shown() == QColor(Qt::red) || row.shown() == QColor(Qt::blue));
    int reports = 0;
    const auto reported = [&] { return reports += row.painter->takeGifRows().size(); };
    QTRY_VERIFY(reported() == 1);
    QTRY_COMPARE(row.shown(), QColor(Qt::blue)); // Not reported again until it is painted.
    QTRY_COMPARE(row.shown(), QColor(Qt::red));
    QTRY_VERIFY(reported() == 2);
}

void tst_NxMediaItemPainter_motion::whatIsReadAfterItsRowWasPaintedIsReported_data()
{
    QTest::addColumn<QVector<QColor>>("frames");
    QTest::newRow("a film") << QVector<QColor>{Qt::red, Qt::blue};
    QTest::newRow("a still picture, once in vain") << QVector<QColor>{Qt::red};
}

void tst_NxMediaItemPainter_motion::whatIsReadAfterItsRowWasPaintedIsReported()
{
    QFETCH(QVector<QColor>, frames);
    const NxTempDir dir;
    PlayedRow row;
    row.item.code = NXVBLMODEL::mkcAnimatedImage;
    row.item.path = dir.write(QStringLiteral("late.gif"), GifMaker::gif(frames));
    QCOMPARE(row.shown(), row.coverColour); // Nobody else has it painted.
    QCOMPARE(row.painter->takeGifRows(), Rows());
    Rows reported;
    const auto isReported = [&] {
        reported += row.painter->takeGifRows();
        return !reported.isEmpty();
    };
    QTRY_VERIFY(isReported());
    QCOMPARE(reported, Rows{row.index()});
    QCOMPARE(row.painter->takeGifRows(), Rows());
}

void tst_NxMediaItemPainter_motion::aRestingPictureIsNotReported()
{
    constexpr int longRest = 60'000; // Hundredths of a second.
    const NxTempDir dir;
    PlayedRow row;
    row.item.code = NXVBLMODEL::mkcAnimatedImage;
    row.item.path =
        dir.write(QStringLiteral("slow.gif"), GifMaker::gif({Qt::red, Qt::blue}, longRest));
    QTRY_COMPARE(row.shown(), QColor(Qt::red));
    QSignalSpy ticks(NxGifPreviewHelper::getInstance(), &NxGifPreviewHelper::sigUpdate);
    QTRY_VERIFY(ticks.size() > 3);
    QCOMPARE(row.painter->takeGifRows(), Rows());
}

void tst_NxMediaItemPainter_motion::aPictureThatVanishesIsReportedOnce()
{
    const NxTempDir dir;
    PlayedRow row;
    row.item.code = NXVBLMODEL::mkcAnimatedImage;
    row.item.path =
        dir.write(QStringLiteral("slow.gif"), GifMaker::gif({Qt::red, Qt::blue}, 60'000));
    QTRY_COMPARE(row.shown(), QColor(Qt::red));
    NxGifPreviewHelper::getInstance()->clear();
    row.item.path = dir.filePath(QStringLiteral("gone.gif"));
    QCOMPARE(row.painter->takeGifRows(), Rows{row.index()});
    QCOMPARE(row.shown(), row.coverColour);
    QCOMPARE(row.painter->takeGifRows(), Rows());
}

void tst_NxMediaItemPainter_motion::rowsThatAreGoneAreNotReported()
{
    const NxTempDir dir;
    PlayedRow row;
    row.item.code = NXVBLMODEL::mkcAnimatedImage;
    row.item.path = dir.write(QStringLiteral("waving.gif"), GifMaker::gif({Qt::red, Qt::blue}));
    QTRY_VERIFY(row.shown() != row.coverColour);
    row.model.setMedia({});
    QCOMPARE(row.painter->takeGifRows(), Rows());
}

void tst_NxMediaItemPainter_motion::stillPicturesAreNotReported()
{
    PlayedRow row;
    QCOMPARE(row.shown(), row.coverColour);
    row.play();
    QCOMPARE(row.shown(), colourOfFrame(0));
    QCOMPARE(row.painter->takeGifRows(), Rows());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemPainter_motion)
#include "tst_NxMediaItemPainter_motion.moc"
