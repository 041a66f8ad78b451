// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PreviewEngine.h"
#include "PreviewMedia.h"
#include "PreviewStand.h"
#include "ScriptedMedia.h"

#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxTestMain.h>

#include <QMetaMethod>
#include <QStandardItemModel>
#include <QtTest>

namespace {

constexpr int FrameInterval = 40; // ms
constexpr QSize FrameSize{144, 81};

/// A film strip that is held and played.
struct StripStand : PreviewStand
{
    explicit StripStand(const QImage &strip)
    {
        model.appendRow(new QStandardItem);
        model.appendRow(new QStandardItem);
        helper.setMedia(model.index(0, 0), &item);
        helper.setPlayThumbnail(strip);
    }

    QStandardItemModel model;
    StripItem item;
};

} // namespace

/// What plays in place of a cover: film strips, and what becomes of them.
class tst_INxPreviewFrameHelper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hostsFindItsSignalAndSlotsInTheirPlaces();
    void atFirstNothingIsHeld();
    void withoutAMediaPlayingNeedsNothing();
    void aStripPlaysFromItsFirstFrame();
    void anUpdateComesBeforeTheStep();
    void aStripRunsOnceBelowItsEnd_data();
    void aStripRunsOnceBelowItsEnd();
    void theFrameBelowTheStripIsBlank();
    void framesAreTakenFromTheLeft();
    void theTimerStepsByItself();
    void playingAgainStartsAtTheFirstFrame();
    void disabledItDoesNotStart();
    void stoppingLetsGoOfTheMedia();
    void stoppingWhatDoesNotPlayKeepsTheMedia();
    void anotherStripStartsAtTheFirstFrame();
    void whatIsNoItemShowsNothing_data();
    void whatIsNoItemShowsNothing();
    void aMediaThatDiesIsNotPlayed();
    void aResetModelGetsNoStaleIndex();
    void theRowIsFollowedThroughInsertions();
    void theHelperMayGoWhileItTells();

    void itStandsStillAtAFrame_data();
    void itStandsStillAtAFrame();
    void aFrameInPlaceOfPlaying();
    void playingGoesOnFromTheFirstFrame();
    void standingStillThenStoppingLetsGoOfTheMedia();
    void anotherMediaDoesNotStandStill();
    void withoutFramesNothingStandsStill_data();
    void withoutFramesNothingStandsStill();
    void aMediaThatDiesDoesNotStandStill();
};

void tst_INxPreviewFrameHelper::hostsFindItsSignalAndSlotsInTheirPlaces()
{
    const QMetaObject &meta = INxPreviewFrameHelper::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 3);
    const QMetaMethod update = meta.method(meta.methodOffset());
    QCOMPARE(update.methodSignature(), QByteArray("sigUpdate(QModelIndex)"));
    QCOMPARE(update.methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("slotPlayThumbnailTimeout()"));
    QCOMPARE(meta.method(meta.methodOffset() + 2).methodSignature(),
             QByteArray("slotDownloadVCGMediaTimeout()"));
}

void tst_INxPreviewFrameHelper::atFirstNothingIsHeld()
{
    PreviewStand f;
    QVERIFY(!f.helper.getMedia());
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QVERIFY(f.helper.isEnablePlayThumbnail());
    QVERIFY(!f.helper.isBeyondStrip());
    QImage image(1, 1, QImage::Format_RGB32);
    QVERIFY(!f.helper.getCurIndexPlayThumbnail(image));
    QCOMPARE(image.size(), QSize(1, 1));
    QVERIFY(f.helper.getTimelineFrame(0, 144, 81).isNull());
    QVERIFY(f.frameTimer && f.downloadTimer);
}

void tst_INxPreviewFrameHelper::withoutAMediaPlayingNeedsNothing()
{
    PreviewStand f;
    QVERIFY(f.helper.playPreviewFrame());
    f.helper.setEnablePlayThumbnail(false);
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(!f.isPlaying());
}

void tst_INxPreviewFrameHelper::aStripPlaysFromItsFirstFrame()
{
    StripStand f(filmStrip(810));
    QVERIFY(!f.isPlaying());
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
    QCOMPARE(f.frameTimer->interval(), FrameInterval);
    QVERIFY(f.updates.isEmpty());
    QCOMPARE(f.frame().size(), FrameSize);
    QCOMPARE(frameShown(f.frame()), 0);
    QVERIFY(f.step());
    QCOMPARE(frameShown(f.frame()), 1);
    QCOMPARE(f.updates, QVector<QModelIndex>{f.model.index(0, 0)});
}

void tst_INxPreviewFrameHelper::anUpdateComesBeforeTheStep()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QVector<int> told;
    f.onUpdate = [&] { told.append(frameShown(f.frame())); };
    for (int i = 0; i < 3; ++i)
        QVERIFY(f.step());
    QCOMPARE(told, QVector<int>({0, 1, 2}));
    QCOMPARE(frameShown(f.frame()), 3);
}

void tst_INxPreviewFrameHelper::aStripRunsOnceBelowItsEnd_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QVector<int>>("shown"); // After each step; -1: below the strip.
    QTest::newRow("ten frames") << 810 << QVector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, -1, 0, 1};
    QTest::newRow("nine frames and a bit") << 809 << QVector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1};
    QTest::newRow("one frame") << 81 << QVector<int>{-1, 0, -1, 0};
    QTest::newRow("less than a frame") << 80 << QVector<int>{0, 0};
}

void tst_INxPreviewFrameHelper::aStripRunsOnceBelowItsEnd()
{
    QFETCH(int, height);
    QFETCH(QVector<int>, shown);
    StripStand f(filmStrip(height));
    QVERIFY(f.helper.playPreviewFrame());
    for (const int expected : std::as_const(shown)) {
        QVERIFY(f.step());
        QCOMPARE(f.helper.isBeyondStrip(), expected < 0);
        if (expected >= 0)
            QCOMPARE(frameShown(f.frame()), expected);
    }
    QCOMPARE(f.updates.size(), shown.size());
}

void tst_INxPreviewFrameHelper::theFrameBelowTheStripIsBlank()
{
    StripStand f(filmStrip(81));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QVERIFY(f.helper.isBeyondStrip());
    const QImage blank = f.frame();
    QCOMPARE(blank.size(), FrameSize);
    QCOMPARE(blank.pixelColor(0, 0), QColor(Qt::black));
}

void tst_INxPreviewFrameHelper::framesAreTakenFromTheLeft()
{
    QImage wide = filmStrip(162, 300);
    for (int y = 0; y < wide.height(); ++y) {
        for (int x = 144; x < wide.width(); ++x)
            wide.setPixelColor(x, y, Qt::white);
    }
    StripStand f(wide);
    QVERIFY(f.helper.playPreviewFrame());
    QCOMPARE(f.frame().size(), FrameSize);
    QCOMPARE(f.frame(), wide.copy(0, 0, 144, 81));
    QVERIFY(f.step());
    QCOMPARE(f.frame(), wide.copy(0, 81, 144, 81));
}

void tst_INxPreviewFrameHelper::theTimerStepsByItself()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QTRY_VERIFY(f.updates.size() >= 12);
}

void tst_INxPreviewFrameHelper::playingAgainStartsAtTheFirstFrame()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QVERIFY(f.helper.playPreviewFrame());
    QCOMPARE(frameShown(f.frame()), 0);
    QVERIFY(f.isPlaying());
}

void tst_INxPreviewFrameHelper::disabledItDoesNotStart()
{
    StripStand f(filmStrip(810));
    f.helper.setEnablePlayThumbnail(false);
    QVERIFY(!f.helper.isEnablePlayThumbnail());
    QVERIFY(!f.helper.playPreviewFrame());
    QVERIFY(!f.isPlaying());
    f.helper.setEnablePlayThumbnail(true);
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
}

void tst_INxPreviewFrameHelper::stoppingLetsGoOfTheMedia()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    f.helper.stopPreviewFrame();
    QVERIFY(!f.isPlaying());
    QVERIFY(!f.helper.getMedia());
    QCOMPARE(frameShown(f.frame()), 0); // The strip stays until the next media.
    f.updates.clear();
    QVERIFY(f.step());
    QCOMPARE(f.updates, QVector<QModelIndex>{QModelIndex()});
}

void tst_INxPreviewFrameHelper::stoppingWhatDoesNotPlayKeepsTheMedia()
{
    StripStand f(filmStrip(810));
    f.helper.stopPreviewFrame();
    QCOMPARE(f.helper.getMedia(), &f.item);
    f.helper.setPlayThumbnail({});
    QVERIFY(!f.helper.playPreviewFrame()); // There is nothing to play, and nothing comes.
    f.helper.stopPreviewFrame();
    QCOMPARE(f.helper.getMedia(), &f.item);
}

void tst_INxPreviewFrameHelper::anotherStripStartsAtTheFirstFrame()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    StripItem other;
    f.helper.setMedia(f.model.index(1, 0), &other);
    QCOMPARE(f.helper.getMedia(), &other);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(f.frame().isNull());
    QVERIFY(!f.helper.playPreviewFrame());
    f.helper.setPlayThumbnail(filmStrip(162));
    QCOMPARE(frameShown(f.frame()), 0);
}

void tst_INxPreviewFrameHelper::whatIsNoItemShowsNothing_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("folder") << true;
    QTest::newRow("nothing") << false;
}

void tst_INxPreviewFrameHelper::whatIsNoItemShowsNothing()
{
    QFETCH(bool, isFolder);
    PreviewEngine engine;
    const NxMediaEngineDoor door(&engine);
    StripStand f(filmStrip(810));
    f.helper.setPlayVideo(QStringLiteral("a.mp4"));
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    f.helper.setMedia(f.model.index(1, 0), isFolder ? &folder : nullptr);
    QVERIFY(f.helper.getPlayThumbnail().isNull());
    QVERIFY(f.helper.getPlayVideo().isEmpty());
    QCOMPARE(f.helper.playPreviewFrame(), !isFolder);
    QVERIFY(!f.isPlaying());
    QVERIFY(f.frame().isNull());
}

void tst_INxPreviewFrameHelper::aMediaThatDiesIsNotPlayed()
{
    PreviewStand f;
    auto item = std::make_unique<StripItem>();
    f.helper.setMedia({}, item.get());
    f.helper.setPlayThumbnail(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    item.reset();
    QVERIFY(!f.helper.getMedia());
    QVERIFY(f.frame().isNull());
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QVERIFY(f.updates.isEmpty());
    QVERIFY(!f.isPlaying());
}

void tst_INxPreviewFrameHelper::aResetModelGetsNoStaleIndex()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    f.model.clear();
    QVERIFY(f.step());
    QCOMPARE(f.updates, QVector<QModelIndex>{QModelIndex()});
}

void tst_INxPreviewFrameHelper::theRowIsFollowedThroughInsertions()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    f.model.insertRow(0, new QStandardItem);
    QVERIFY(f.step());
    QCOMPARE(f.updates, QVector<QModelIndex>{f.model.index(1, 0)});
}

void tst_INxPreviewFrameHelper::theHelperMayGoWhileItTells()
{
    StripItem item;
    auto helper = std::make_unique<INxPreviewFrameHelper>();
    helper->setMedia({}, &item);
    helper->setPlayThumbnail(filmStrip(810));
    connect(helper.get(), &INxPreviewFrameHelper::sigUpdate, this, [&] { helper.reset(); });
    QVERIFY(helper->playPreviewFrame());
    QTRY_VERIFY(!helper);
}

void tst_INxPreviewFrameHelper::itStandsStillAtAFrame_data()
{
    QTest::addColumn<qreal>("place");
    QTest::addColumn<int>("frame"); // Of ten.
    QTest::newRow("first") << 0.0 << 0;
    QTest::newRow("end of the first") << 0.099 << 0;
    QTest::newRow("second") << 0.101 << 1;
    QTest::newRow("middle") << 0.55 << 5;
    QTest::newRow("begin of the last") << 0.901 << 9;
    QTest::newRow("last") << 1.0 << 9;
    QTest::newRow("before the first") << -0.3 << 0;
    QTest::newRow("behind the last") << 1.3 << 9;
    QTest::newRow("far before the first") << -1e30 << 0;
    QTest::newRow("far behind the last") << 1e30 << 9;
}

void tst_INxPreviewFrameHelper::itStandsStillAtAFrame()
{
    QFETCH(qreal, place);
    QFETCH(int, frame);
    StripStand f(filmStrip(810));
    QVector<int> told;
    f.onUpdate = [&] { told.append(frameShown(f.frame())); };
    QVERIFY(f.helper.showPreviewFrame(place));
    QVERIFY(!f.isPlaying());
    QVERIFY(!f.helper.isBeyondStrip());
    QCOMPARE(frameShown(f.frame()), frame);
    QCOMPARE(told, QVector<int>{frame});
    QCOMPARE(f.updates, QVector<QModelIndex>{f.model.index(0, 0)});
    QCOMPARE(f.helper.getMedia(), &f.item);
}

void tst_INxPreviewFrameHelper::aFrameInPlaceOfPlaying()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.step());
    QVERIFY(f.helper.showPreviewFrame(0.75));
    QVERIFY(!f.isPlaying());
    QCOMPARE(frameShown(f.frame()), 7);
    QVERIFY(f.helper.showPreviewFrame(0.25));
    QCOMPARE(frameShown(f.frame()), 2);
}

void tst_INxPreviewFrameHelper::playingGoesOnFromTheFirstFrame()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.showPreviewFrame(0.75));
    QVERIFY(f.helper.playPreviewFrame());
    QVERIFY(f.isPlaying());
    QCOMPARE(frameShown(f.frame()), 0);
    QVERIFY(f.step());
    QCOMPARE(frameShown(f.frame()), 1);
}

void tst_INxPreviewFrameHelper::standingStillThenStoppingLetsGoOfTheMedia()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.showPreviewFrame(0.75));
    f.helper.stopPreviewFrame();
    QVERIFY(!f.helper.getMedia());
    QCOMPARE(frameShown(f.frame()), 0);
    QVERIFY(!f.helper.showPreviewFrame(0.75)); // There is no media to show frames of.
    QCOMPARE(frameShown(f.frame()), 0);
}

void tst_INxPreviewFrameHelper::anotherMediaDoesNotStandStill()
{
    StripStand f(filmStrip(810));
    QVERIFY(f.helper.showPreviewFrame(0.75));
    StripItem other;
    f.helper.setMedia(f.model.index(1, 0), &other);
    f.helper.stopPreviewFrame();
    QCOMPARE(f.helper.getMedia(), &other); // It neither plays nor stands still.
}

void tst_INxPreviewFrameHelper::withoutFramesNothingStandsStill_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("a frame") << 81 << true << true;
    QTest::newRow("disabled") << 810 << false << false;
    QTest::newRow("no strip") << 0 << true << false;
    QTest::newRow("less than a frame") << 80 << true << false;
}

void tst_INxPreviewFrameHelper::withoutFramesNothingStandsStill()
{
    QFETCH(int, height);
    QFETCH(bool, isEnabled);
    QFETCH(bool, isShown);
    StripStand f(height > 0 ? filmStrip(height) : QImage());
    f.helper.setEnablePlayThumbnail(isEnabled);
    QCOMPARE(f.helper.showPreviewFrame(1.0), isShown);
    QCOMPARE(f.updates.size(), isShown ? 1 : 0);
    QVERIFY(!f.isPlaying());
    f.helper.stopPreviewFrame();
    QCOMPARE(f.helper.getMedia() == nullptr, isShown);
}

void tst_INxPreviewFrameHelper::aMediaThatDiesDoesNotStandStill()
{
    PreviewStand f;
    auto item = std::make_unique<StripItem>();
    f.helper.setMedia({}, item.get());
    f.helper.setPlayThumbnail(filmStrip(810));
    QVERIFY(f.helper.showPreviewFrame(0.5));
    item.reset();
    QVERIFY(!f.helper.showPreviewFrame(0.7));
    QCOMPARE(f.updates.size(), 1);
    QVERIFY(f.frame().isNull());
}

NX_TEST_MAIN(tst_INxPreviewFrameHelper)
#include "tst_INxPreviewFrameHelper.moc"
