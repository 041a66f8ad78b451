// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewTimeline.h>

#include "ScriptedFilms.h"

#include <NxVBLEngine/preview/NxPreviewService.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <Support/NxTestMain.h>

#include <QRgb>
#include <QTest>

#include <memory>
#include <vector>

namespace {

constexpr int Missing = -1;

/// A clip of another kind.
class OtherClip final : public INxClip
{
public:
    [[nodiscard]] int kind() const override { return NXVBLMODEL::ckVideo; }
};

struct Previews
{
    Previews() : service(std::make_unique<NxPreviewService>(films.settings())) {}
    [[nodiscard]] std::unique_ptr<NxPreviewClip> clip(const char *name) const
    {
        return std::make_unique<NxPreviewClip>(films.film(QString::fromLatin1(name)));
    }
    [[nodiscard]] std::unique_ptr<NxPreviewTimeline> timeline(const char *name) const
    {
        return std::make_unique<NxPreviewTimeline>(service.get(), clip(name));
    }

    ScriptedFilms films;
    std::unique_ptr<NxPreviewService> service;
};

int numberIn(INxTimeline *timeline, qint64 frame)
{
    const int width = ScriptedFilms::Size.width();
    const int height = ScriptedFilms::Size.height();
    std::vector<QRgb> pixels(size_t(width) * size_t(height));
    if (!timeline->renderFrame(frame, width, height, reinterpret_cast<uchar *>(pixels.data())))
        return Missing;
    return int(pixels.back() & 0xffffff);
}

} // namespace

class tst_NxPreviewTimeline : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itPlaysItsClip();
    void anotherClipTakesItsPlace();
    void anEmptyOneHasNoFrames();
    void itTakesOneClipAtTheBeginning();
    void aRefusedClipStaysItsOwners();
    void theOutputIsTold();
    void itMayDieWhileFramesAreUnderWay();
    void itMayOutliveTheService();
    void aClipIsAsLongAsItsTimeline();
};

void tst_NxPreviewTimeline::itPlaysItsClip()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    QCOMPARE(timeline->clips().size(), 1);
    QCOMPARE(timeline->clips().first()->timeline(), timeline.get());
    QCOMPARE(timeline->trackCount(), 1);
    QTRY_COMPARE(timeline->frameCount(), ScriptedFilms::Frames);
    QTRY_COMPARE(numberIn(timeline.get(), 0), 0);
    QTRY_COMPARE(numberIn(timeline.get(), 1), 1);
}

void tst_NxPreviewTimeline::anotherClipTakesItsPlace()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    QTRY_COMPARE(numberIn(timeline.get(), 9), 9);
    INxClip *old = timeline->clips().first();
    QVERIFY(timeline->removeClip(old));
    QCOMPARE(old->timeline(), nullptr);
    delete old;
    QVERIFY(timeline->insertClip(f.clip("short.mp4").release(), 0, 0));
    // What the clip before had is not this one's, which may come at any moment.
    QCOMPARE(numberIn(timeline.get(), 9), Missing);
    QVERIFY(timeline->frameCount() == 0 || timeline->frameCount() == ScriptedFilms::ShortFrames);
    QTRY_COMPARE(timeline->frameCount(), ScriptedFilms::ShortFrames);
    QTRY_COMPARE(numberIn(timeline.get(), 2), 2);
    QCOMPARE(f.films.starts().size(), 1);
}

void tst_NxPreviewTimeline::anEmptyOneHasNoFrames()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    QTRY_COMPARE(numberIn(timeline.get(), 0), 0);
    const std::unique_ptr<INxClip> clip(timeline->clips().first());
    QVERIFY(timeline->removeClip(clip.get()));
    QVERIFY(timeline->clips().isEmpty());
    QCOMPARE(timeline->trackCount(), 0);
    QCOMPARE(timeline->frameCount(), 0);
    QCOMPARE(numberIn(timeline.get(), 0), Missing);
    QVERIFY(!timeline->removeClip(clip.get()));
}

void tst_NxPreviewTimeline::itTakesOneClipAtTheBeginning()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    const std::unique_ptr<INxClip> second = f.clip("b.mp4");
    QVERIFY(!timeline->insertClip(second.get(), 0, 0));
    QVERIFY(!timeline->insertClip(second.get(), 1, 0));
    const std::unique_ptr<INxClip> first(timeline->clips().first());
    QVERIFY(timeline->removeClip(first.get()));
    QVERIFY(!timeline->insertClip(second.get(), 1, 0));
    QVERIFY(!timeline->insertClip(second.get(), 0, 5));
    QCOMPARE(second->timeline(), nullptr);
    QVERIFY(timeline->clips().isEmpty());
    INxClip *const inside = f.clip("b.mp4").release();
    QVERIFY(timeline->insertClip(inside, 0, 0));
    QCOMPARE(timeline->clips(), QList<INxClip *>{inside});
}

void tst_NxPreviewTimeline::aRefusedClipStaysItsOwners()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    const auto other = f.timeline("b.mp4");
    const std::unique_ptr<INxClip> clip(timeline->clips().first());
    QVERIFY(timeline->removeClip(clip.get()));
    OtherClip foreign;
    QVERIFY(!timeline->insertClip(&foreign, 0, 0));
    QVERIFY(!timeline->insertClip(nullptr, 0, 0));
    QVERIFY(!timeline->removeClip(nullptr));
    QVERIFY(!timeline->insertClip(other->clips().first(), 0, 0)); // It stands there already.
    QVERIFY(!timeline->removeClip(other->clips().first()));
    QCOMPARE(other->clips().first()->timeline(), other.get());
}

void tst_NxPreviewTimeline::theOutputIsTold()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    timeline->setOutputSize(1920, 1080);
    QTRY_COMPARE(numberIn(timeline.get(), 0), 0);
    QCOMPARE(f.films.opened().size(), 1); // That is what it had.
    timeline->setOutputSize(1080, 1080);
    const std::unique_ptr<INxClip> clip(timeline->clips().first());
    QVERIFY(timeline->removeClip(clip.get()));
    QVERIFY(timeline->insertClip(f.clip("b.mp4").release(), 0, 0));
    QTRY_VERIFY(f.films.orders().contains(QStringLiteral("open b.mp4 1080x1080")));
}

void tst_NxPreviewTimeline::itMayDieWhileFramesAreUnderWay()
{
    Previews f;
    for (int i = 0; i < 30; ++i) {
        auto timeline = f.timeline(i % 3 == 2 ? "short.mp4" : "a.mp4");
        if (i % 2 == 0)
            QTRY_VERIFY(numberIn(timeline.get(), i % 3) != Missing);
        timeline.reset();
    }
    const auto last = f.timeline("a.mp4");
    QTRY_COMPARE(numberIn(last.get(), 0), 0);
    QCOMPARE(f.films.starts().size(), 1);
}

void tst_NxPreviewTimeline::itMayOutliveTheService()
{
    Previews f;
    const auto timeline = f.timeline("a.mp4");
    QTRY_COMPARE(numberIn(timeline.get(), 0), 0);
    f.service.reset();
    QCOMPARE(timeline->frameCount(), 0);
    QCOMPARE(numberIn(timeline.get(), 0), Missing);
    timeline->setOutputSize(100, 100);
    const std::unique_ptr<INxClip> clip(timeline->clips().first());
    QVERIFY(timeline->removeClip(clip.get()));
    QVERIFY(timeline->insertClip(f.clip("b.mp4").release(), 0, 0));
    QCOMPARE(timeline->frameCount(), 0);
    for (const QString &id : f.films.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxPreviewTimeline::aClipIsAsLongAsItsTimeline()
{
    Previews f;
    const auto alone = f.clip("a.mp4");
    QCOMPARE(alone->kind(), int(NXVBLMODEL::ckVideo));
    QCOMPARE(alone->timeline(), nullptr);
    QCOMPARE(alone->place(), (NxClipPlace{0, 0, 1, 0}));
    const auto timeline = f.timeline("a.mp4");
    QTRY_COMPARE(timeline->clips().first()->place().length, ScriptedFilms::Frames);
}

NX_TEST_MAIN(tst_NxPreviewTimeline)
#include "tst_NxPreviewTimeline.moc"
