// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <array>

namespace {

struct Clip final : INxClip
{
    int kind() const override { return NXVBLMODEL::ckVideo; }
};

struct SplitScreen final : INxSplitScreenClip
{
    QList<INxClip *> innerClips() override { return {}; }
    bool removeInnerClip(INxClip *) override { return false; }
};

struct Nested final : INxCompositeTimeline
{
    QList<INxClip *> clips() override { return {}; }
    bool removeClip(INxClip *) override { return false; }
    bool insertClip(INxClip *, int, qint64) override { return false; }
    INxClip *outerClip() const override { return nullptr; }
};

} // namespace

class tst_ClipsAndTimelines : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aClipAloneHasNoMediaAndNoTimeline();
    void aSplitScreenSaysWhatItIs();
    void aTimelineHasNoFramesByDefault();
    void aFrameThatIsNotThereWritesNothing();
};

void tst_ClipsAndTimelines::aClipAloneHasNoMediaAndNoTimeline()
{
    const Clip clip;
    QCOMPARE(clip.mediaId(), QString());
    QVERIFY(!clip.timeline());
}

void tst_ClipsAndTimelines::aSplitScreenSaysWhatItIs()
{
    SplitScreen split;
    INxClip *clip = &split;
    QCOMPARE(clip->kind(), 3);
    QVERIFY(dynamic_cast<INxSplitScreenClip *>(clip));
}

void tst_ClipsAndTimelines::aTimelineHasNoFramesByDefault()
{
    Nested nested;
    INxTimeline *timeline = &nested;
    timeline->setOutputSize(1920, 1080);
    QCOMPARE(timeline->frameCount(), qint64(0));
    QVERIFY(dynamic_cast<INxCompositeTimeline *>(timeline));
}

void tst_ClipsAndTimelines::aFrameThatIsNotThereWritesNothing()
{
    Nested nested;
    std::array<uchar, 4> pixel{1, 2, 3, 4};
    QVERIFY(!nested.renderFrame(0, 1, 1, pixel.data()));
    QCOMPARE(pixel, (std::array<uchar, 4>{1, 2, 3, 4}));
}

NX_TEST_MAIN(tst_ClipsAndTimelines)
#include "tst_ClipsAndTimelines.moc"
