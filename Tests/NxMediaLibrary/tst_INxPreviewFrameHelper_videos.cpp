// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PreviewEngine.h"
#include "PreviewMedia.h"
#include "PreviewStand.h"

#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <cstddef>
#include <new>

namespace {

constexpr int DownloadWait = 500; // ms

struct EngineBehindDoor
{
    PreviewEngine engine;
    const NxMediaEngineDoor door{&engine};
};

/// The helper goes before its engine.
struct VideoStand : EngineBehindDoor, PreviewStand
{
};

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

/// Videos in place of covers: of stock items, and of the stock provider's clips.
class tst_INxPreviewFrameHelper_videos : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aVideoIsPutOnATimelineOfItsOwn();
    void theNextVideoTakesItsPlace();
    void theSameVideoChangesNothing();
    void onlyThesePathsArePlayed_data();
    void onlyThesePathsArePlayed();
    void whatIsNoVideoKeepsTheTimeline();
    void aTimelineThatKeepsItsClipIsMadeAnew();
    void aFileThatCannotBeOpenedHasNoFrames();
    void anEngineWithoutTimelinesLosesNoClip();
    void anotherEngineMakesItsOwnTimeline();

    void framesAreRenderedOnce();
    void theLastFrameStaysUntilTheNextComes();
    void framesOfAnotherVideoAreNotShown();
    void impossibleSizesHaveNoFrame_data();
    void impossibleSizesHaveNoFrame();

    void aStockItemPlaysItsPreview();
    void aVideoRunsRound();
    void aVideoOfUnknownLengthIsWaitedFor();
    void aFrameBehindTheEndLeavesThePictureAlone();
    void otherStockHasNoPreview();
    void aMissingPreviewIsFetchedOnce();
    void aPreviewThatWentIsFetchedAgain();
    void aPreviewInCapitalsIsFetchedAndNotPlayed();
    void eachItemIsFetchedForItself();

    void aProvidersClipPlaysItsFile();
    void aClipThatIsNotReadyShowsNothing_data();
    void aClipThatIsNotReadyShowsNothing();
    void aClipAboutToComeIsLookedAtAgain();
    void aClipStillWithoutAFileShowsNothing();
    void leavingForgetsTheClipThatIsWaitedFor_data();
    void leavingForgetsTheClipThatIsWaitedFor();
    void aClipThatDiesIsNotWaitedFor();
    void aVideoItemThatDiesIsNotPlayed();
    void aVideoStandsStillAtAFrame();
};

void tst_INxPreviewFrameHelper_videos::aVideoIsPutOnATimelineOfItsOwn()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    QCOMPARE(f.engine.takeJournal(),
             QStringList({text("clip a.mp4"), text("timeline"), text("output 1920x1080")}));
}

void tst_INxPreviewFrameHelper_videos::theNextVideoTakesItsPlace()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    f.helper.setPlayVideo(text("b.mp4"));
    QCOMPARE(f.engine.takeJournal(),
             QStringList({text("remove a.mp4"), text("clip a.mp4 gone"), text("clip b.mp4"),
                          text("insert b.mp4 at 0/0"), text("output 1920x1080")}));
}

void tst_INxPreviewFrameHelper_videos::theSameVideoChangesNothing()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    f.helper.setPlayVideo(text("a.mp4"));
    QCOMPARE(f.engine.takeJournal(), QStringList());
    f.helper.setPlayVideo(text("A.mp4"));
    QCOMPARE(f.helper.getPlayVideo(), text("A.mp4"));
    QVERIFY(!f.engine.takeJournal().isEmpty());
}

void tst_INxPreviewFrameHelper_videos::onlyThesePathsArePlayed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isPlayed");
    QTest::newRow("at the end") << text("a.mp4") << true;
    QTest::newRow("in the middle") << text("/mp4/a.mov") << true;
    QTest::newRow("in capitals") << text("a.MP4") << false;
    QTest::newRow("another film") << text("a.mov") << false;
    QTest::newRow("nothing") << QString() << false;
}

void tst_INxPreviewFrameHelper_videos::onlyThesePathsArePlayed()
{
    QFETCH(QString, path);
    QFETCH(bool, isPlayed);
    VideoStand f;
    f.helper.setPlayVideo(path);
    QCOMPARE(f.helper.getPlayVideo(), isPlayed ? path : QString());
    QCOMPARE(f.engine.journal.isEmpty(), !isPlayed);
}

void tst_INxPreviewFrameHelper_videos::whatIsNoVideoKeepsTheTimeline()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    f.helper.setPlayVideo(text("a.mov"));
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QCOMPARE(f.engine.takeJournal(), QStringList());
    f.helper.setPlayVideo(text("a.mp4"));
    QVERIFY(!f.engine.takeJournal().contains(text("timeline")));
}

void tst_INxPreviewFrameHelper_videos::aTimelineThatKeepsItsClipIsMadeAnew()
{
    VideoStand f;
    f.engine.video.givesClipsBack = false;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    f.helper.setPlayVideo(text("b.mp4"));
    QCOMPARE(f.engine.takeJournal(),
             QStringList({text("timeline gone"), text("clip a.mp4 gone"), text("clip b.mp4"),
                          text("timeline"), text("output 1920x1080")}));
}

void tst_INxPreviewFrameHelper_videos::anEngineWithoutTimelinesLosesNoClip()
{
    VideoStand f;
    f.engine.makesTimelines = false;
    f.helper.setPlayVideo(text("a.mp4"));
    QCOMPARE(f.engine.takeJournal(), QStringList({text("clip a.mp4"), text("clip a.mp4 gone")}));
    QImage image;
    QVERIFY(!f.helper.getCurIndexPlayThumbnail(image));
}

void tst_INxPreviewFrameHelper_videos::aFileThatCannotBeOpenedHasNoFrames()
{
    VideoStand f;
    f.engine.opensFiles = false;
    StockItem item;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    QImage image;
    QVERIFY(!f.helper.getCurIndexPlayThumbnail(image)); // Without a timeline.
    f.engine.opensFiles = true;
    f.helper.setPlayVideo(text("b.mp4"));
    QVERIFY(f.helper.getCurIndexPlayThumbnail(image));
    f.engine.opensFiles = false;
    f.helper.setPlayVideo(text("c.mp4"));
    QVERIFY(f.helper.getCurIndexPlayThumbnail(image)); // The timeline is there, and empty.
    QVERIFY(image.isNull());
}

void tst_INxPreviewFrameHelper_videos::anotherEngineMakesItsOwnTimeline()
{
    PreviewEngine first;
    PreviewEngine second;
    INxPreviewFrameHelper helper;
    {
        const NxMediaEngineDoor door(&first);
        helper.setPlayVideo(text("a.mp4"));
    }
    first.takeJournal();
    const NxMediaEngineDoor door(&second);
    helper.setPlayVideo(text("b.mp4"));
    QCOMPARE(first.takeJournal(), QStringList({text("timeline gone"), text("clip a.mp4 gone")}));
    QCOMPARE(second.takeJournal(),
             QStringList({text("clip b.mp4"), text("timeline"), text("output 1920x1080")}));
}

void tst_INxPreviewFrameHelper_videos::framesAreRenderedOnce()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    const QImage image = f.helper.getTimelineFrame(7, 144, 81);
    QCOMPARE(image.size(), QSize(144, 81));
    QCOMPARE(image.format(), QImage::Format_RGB32);
    QCOMPARE(image.pixel(143, 80), NotedTimeline::colour(7));
    QCOMPARE(f.helper.getTimelineFrame(7, 144, 81), image);
    QCOMPARE(f.engine.takeJournal(), QStringList(text("render 7 144x81")));
    QVERIFY(!f.helper.getTimelineFrame(8, 144, 81).isNull());
    QVERIFY(!f.helper.getTimelineFrame(8, 288, 162).isNull());
    QCOMPARE(f.engine.takeJournal(),
             QStringList({text("render 8 144x81"), text("render 8 288x162")}));
}

void tst_INxPreviewFrameHelper_videos::theLastFrameStaysUntilTheNextComes()
{
    VideoStand f;
    f.engine.video.isAtHand = false;
    f.helper.setPlayVideo(text("a.mp4"));
    QVERIFY(f.helper.getTimelineFrame(0, 144, 81).isNull());
    f.engine.video.isAtHand = true;
    QCOMPARE(frameShown(f.helper.getTimelineFrame(0, 144, 81)), 0);
    QCOMPARE(frameShown(f.helper.getTimelineFrame(1, 144, 81)), 1);
    f.engine.video.isAtHand = false;
    f.engine.takeJournal();
    QCOMPARE(frameShown(f.helper.getTimelineFrame(2, 144, 81)), 1);
    QCOMPARE(frameShown(f.helper.getTimelineFrame(2, 144, 81)), 1);
    QCOMPARE(f.engine.takeJournal().size(), 2); // It is asked for until it comes.
    QVERIFY(f.helper.getTimelineFrame(2, 288, 162).isNull());
    f.engine.video.isAtHand = true;
    QCOMPARE(frameShown(f.helper.getTimelineFrame(2, 144, 81)), 2);
}

void tst_INxPreviewFrameHelper_videos::framesOfAnotherVideoAreNotShown()
{
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    QCOMPARE(frameShown(f.helper.getTimelineFrame(3, 144, 81)), 3);
    f.engine.video.isAtHand = false;
    f.helper.setPlayVideo(text("b.mp4"));
    QVERIFY(f.helper.getTimelineFrame(3, 144, 81).isNull());
    QVERIFY(f.helper.getTimelineFrame(4, 144, 81).isNull());
}

void tst_INxPreviewFrameHelper_videos::impossibleSizesHaveNoFrame_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("negative") << QSize(-144, 81);
    QTest::newRow("beyond all memory") << QSize(1 << 30, 1 << 30);
}

void tst_INxPreviewFrameHelper_videos::impossibleSizesHaveNoFrame()
{
    QFETCH(QSize, size);
    VideoStand f;
    f.helper.setPlayVideo(text("a.mp4"));
    f.engine.takeJournal();
    QVERIFY(f.helper.getTimelineFrame(0, size.width(), size.height()).isNull());
    QCOMPARE(f.engine.takeJournal(), QStringList());
}

void tst_INxPreviewFrameHelper_videos::aStockItemPlaysItsPreview()
{
    VideoStand f;
    f.engine.video.frames = 100;
    StockItem item;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    QVERIFY(item.requests.isEmpty());
    QVERIFY(!f.isPlaying());
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
    QCOMPARE(frameShown(f.frame()), 0);
    QCOMPARE(f.frame().size(), QSize(144, 81));
    QVERIFY(!f.helper.isBeyondStrip());
    QTRY_VERIFY(f.updates.size() > 2);
}

void tst_INxPreviewFrameHelper_videos::aVideoRunsRound()
{
    VideoStand f;
    f.engine.video.frames = 3;
    StockItem item;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QVERIFY(f.helper.playPreviewFrame());
    QVector<int> told;
    f.onUpdate = [&] { told.append(frameShown(f.frame())); };
    for (int i = 0; i < 6; ++i)
        QVERIFY(f.step());
    QCOMPARE(told, QVector<int>({0, 1, 2, 0, 0, 1})); // Behind the end it begins anew.
}

void tst_INxPreviewFrameHelper_videos::aVideoOfUnknownLengthIsWaitedFor()
{
    VideoStand f;
    StockItem item;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QVERIFY(f.step());
    QCOMPARE(f.updates.size(), 2);
    QVERIFY(f.frame().isNull());
    f.engine.video.frames = 10;
    QCOMPARE(frameShown(f.frame()), 0);
}

void tst_INxPreviewFrameHelper_videos::aFrameBehindTheEndLeavesThePictureAlone()
{
    VideoStand f;
    f.engine.video.frames = 1;
    StockItem item;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    f.engine.takeJournal();
    QImage image(3, 3, QImage::Format_RGB32);
    QVERIFY(f.helper.getCurIndexPlayThumbnail(image));
    QCOMPARE(image.size(), QSize(3, 3));
    QCOMPARE(f.engine.takeJournal(), QStringList());
}

void tst_INxPreviewFrameHelper_videos::otherStockHasNoPreview()
{
    VideoStand f;
    f.helper.setPlayVideo(text("before.mp4"));
    StockItem item;
    item.kind = NXVBLMODEL::mskStockGif;
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QVERIFY(!f.helper.playPreviewFrame());
    QImage image;
    QVERIFY(!f.helper.getCurIndexPlayThumbnail(image));
    item.preview.clear();
    f.helper.setMedia({}, &item);
    QVERIFY(item.requests.isEmpty());
}

void tst_INxPreviewFrameHelper_videos::aMissingPreviewIsFetchedOnce()
{
    VideoStand f;
    StockItem item;
    f.helper.setMedia({}, &item);
    QCOMPARE(item.requests, QStringList(text("\"\" 256 1")));
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    f.helper.setMedia({}, &item);
    QCOMPARE(item.requests.size(), 1);
}

void tst_INxPreviewFrameHelper_videos::aPreviewThatWentIsFetchedAgain()
{
    VideoStand f;
    StockItem item;
    f.helper.setMedia({}, &item);
    item.preview = text("a.mp4");
    f.helper.setMedia({}, &item);
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    item.preview.clear();
    f.helper.setMedia({}, &item);
    QCOMPARE(item.requests.size(), 2);
}

void tst_INxPreviewFrameHelper_videos::aPreviewInCapitalsIsFetchedAndNotPlayed()
{
    VideoStand f;
    StockItem item;
    item.preview = text("a.MP4");
    f.helper.setMedia({}, &item);
    QCOMPARE(item.requests.size(), 1);
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    item.preview = text("a.mp4.part"); // Played, as it holds the letters, and fetched no more.
    f.helper.setMedia({}, &item);
    QCOMPARE(item.requests.size(), 1);
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4.part"));
}

void tst_INxPreviewFrameHelper_videos::eachItemIsFetchedForItself()
{
    VideoStand f;
    // On one address after the other, as the allocator may do it.
    alignas(StockItem) std::byte place[sizeof(StockItem)];
    for (int i = 0; i < 2; ++i) {
        auto *item = new (place) StockItem;
        f.helper.setMedia({}, item);
        f.helper.setMedia({}, item);
        QCOMPARE(item->requests.size(), 1);
        item->~StockItem();
    }
}

void tst_INxPreviewFrameHelper_videos::aProvidersClipPlaysItsFile()
{
    VideoStand f;
    f.engine.video.frames = 10;
    ProviderClip clip;
    clip.paths = QStringList({text("a.mp4"), text("b.mp4")});
    f.helper.setMedia({}, &clip);
    QCOMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    QVERIFY(!f.downloadTimer->isActive());
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QCOMPARE(frameShown(f.frame()), 1);
    clip.paths.clear();
    f.helper.setMedia({}, &clip);
    QVERIFY(f.helper.getPlayVideo().isEmpty());
}

void tst_INxPreviewFrameHelper_videos::aClipThatIsNotReadyShowsNothing_data()
{
    QTest::addColumn<int>("state");
    for (int state = NXVBLMODEL::vrsFailed; state < NXVBLMODEL::vrsReady; ++state)
        QTest::addRow("%d", state) << state;
}

void tst_INxPreviewFrameHelper_videos::aClipThatIsNotReadyShowsNothing()
{
    QFETCH(int, state);
    VideoStand f;
    f.helper.setPlayVideo(text("before.mp4"));
    ProviderClip clip;
    clip.state = state;
    clip.available = false;
    clip.paths = QStringList(text("a.mp4"));
    f.helper.setMedia({}, &clip);
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QVERIFY(!f.downloadTimer->isActive());
    QVERIFY(!f.helper.playPreviewFrame());
}

void tst_INxPreviewFrameHelper_videos::aClipAboutToComeIsLookedAtAgain()
{
    VideoStand f;
    f.helper.setPlayVideo(text("before.mp4"));
    ProviderClip clip;
    clip.available = false;
    f.helper.setMedia({}, &clip);
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QVERIFY(f.downloadTimer->isActive());
    QCOMPARE(f.downloadTimer->interval(), DownloadWait);
    QVERIFY(!f.helper.playPreviewFrame());
    clip.paths = QStringList(text("a.mp4"));
    QTRY_COMPARE(f.helper.getPlayVideo(), text("a.mp4"));
    QVERIFY(!f.isPlaying()); // Whoever wants it played starts it.
    QVERIFY(!f.downloadTimer->isActive());
    QVERIFY(f.helper.playPreviewFrame());
}

void tst_INxPreviewFrameHelper_videos::aClipStillWithoutAFileShowsNothing()
{
    VideoStand f;
    ProviderClip clip;
    clip.available = false;
    f.helper.setMedia({}, &clip);
    QVERIFY(f.downloaded());
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    clip.paths = QStringList(text("a.mp4"));
    QVERIFY(f.downloaded()); // Nobody waits any more.
    QVERIFY(f.helper.getPlayVideo().isEmpty());
}

void tst_INxPreviewFrameHelper_videos::leavingForgetsTheClipThatIsWaitedFor_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("another media") << text("other");
    QTest::newRow("no media") << text("none");
    QTest::newRow("stopping") << text("stop");
}

void tst_INxPreviewFrameHelper_videos::leavingForgetsTheClipThatIsWaitedFor()
{
    QFETCH(QString, how);
    VideoStand f;
    ProviderClip clip;
    clip.available = false;
    clip.paths = QStringList(text("a.mp4"));
    f.helper.setMedia({}, &clip);
    QVERIFY(f.downloadTimer->isActive());
    StripItem other;
    if (how == QLatin1String("stop"))
        f.helper.stopPreviewFrame();
    else
        f.helper.setMedia({}, how == QLatin1String("other") ? &other : nullptr);
    QVERIFY(!f.downloadTimer->isActive());
    QVERIFY(f.downloaded());
    QVERIFY(f.helper.getPlayVideo().isEmpty());
}

void tst_INxPreviewFrameHelper_videos::aClipThatDiesIsNotWaitedFor()
{
    VideoStand f;
    auto clip = std::make_unique<ProviderClip>();
    clip->available = false;
    f.helper.setMedia({}, clip.get());
    clip.reset();
    QVERIFY(f.downloaded());
    QVERIFY(f.helper.getPlayVideo().isEmpty());
}

void tst_INxPreviewFrameHelper_videos::aVideoItemThatDiesIsNotPlayed()
{
    VideoStand f;
    f.engine.video.frames = 10;
    auto item = std::make_unique<StockItem>();
    item->preview = text("a.mp4");
    f.helper.setMedia({}, item.get());
    QVERIFY(f.helper.playPreviewFrame());
    item.reset();
    QVERIFY(f.frame().isNull());
    QVERIFY(f.step());
    QVERIFY(!f.isPlaying());
    QVERIFY(f.updates.isEmpty());
}

void tst_INxPreviewFrameHelper_videos::aVideoStandsStillAtAFrame()
{
    VideoStand f;
    auto item = std::make_unique<StockItem>();
    item->preview = text("a.mp4");
    f.helper.setMedia({}, item.get());
    QVERIFY(!f.helper.showPreviewFrame(0.5)); // Nobody knows its length yet.
    f.engine.video.frames = 100;
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.helper.showPreviewFrame(0.5));
    QVERIFY(!f.isPlaying());
    QCOMPARE(frameShown(f.frame()), 50);
    QVERIFY(f.helper.showPreviewFrame(1.0));
    QCOMPARE(frameShown(f.frame()), 99);
    QVERIFY(f.helper.playPreviewFrame());
    QCOMPARE(frameShown(f.frame()), 0);
    item.reset();
    QVERIFY(!f.helper.showPreviewFrame(0.5));
}

NX_TEST_MAIN(tst_INxPreviewFrameHelper_videos)
#include "tst_INxPreviewFrameHelper_videos.moc"
