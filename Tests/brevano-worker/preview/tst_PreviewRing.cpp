// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/PreviewRing.h>

#include <Support/NxTestMain.h>

#include <QtTest>

Q_DECLARE_METATYPE(NxPreviewShow)

namespace {

constexpr quint64 Film = 3;
constexpr QSize Size(144, 81);
constexpr qint64 Frames = 100;

NxPreviewShow showing(qint64 frame)
{
    return {Film, 1, frame, Size, 0};
}

/// Lends slots until nothing is missing or no slot is free; answers the frames, in their order.
QList<qint64> fill(PreviewRing *ring, const NxPreviewShow &show, qint64 frames = Frames)
{
    QList<qint64> lent;
    for (;;) {
        const std::optional<qint64> frame = ring->missing(show, frames);
        const std::optional<quint32> slot = ring->freeSlot();
        if (!frame || !slot)
            return lent;
        ring->lend({show.number, *frame, *slot, show.size});
        lent.append(*frame);
    }
}

QList<qint64> range(qint64 first, int count)
{
    QList<qint64> frames;
    for (int i = 0; i < count; ++i)
        frames.append(first + i);
    return frames;
}

} // namespace

class tst_PreviewRing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itRendersAheadUntilItsSlotsAreLent();
    void aLentSlotIsNotWrittenBeforeItComesBack();
    void itGoesOnWithWhatIsMissing();
    void theFilmBeginsAgainAfterItsLastFrame();
    void aShortFilmIsRenderedOnce();
    void anotherSizeOrFilmIsRenderedAnew();
    void pastTheEndNothingIsMissing();
    void whatRendersInTimeHasNoLead();
    void aSlowFilmIsRenderedFurtherAhead();
    void theLeadShrinksOnceThereIsTimeAgain();
    void aJumpIsNoDelay_data();
    void aJumpIsNoDelay();
};

void tst_PreviewRing::itRendersAheadUntilItsSlotsAreLent()
{
    PreviewRing ring;
    QCOMPARE(fill(&ring, showing(5)), range(5, NxPreviewSlots::Count));
    QVERIFY(!ring.missing(showing(5), Frames));
    QVERIFY(!ring.freeSlot());
}

void tst_PreviewRing::aLentSlotIsNotWrittenBeforeItComesBack()
{
    PreviewRing ring;
    fill(&ring, showing(0));
    QCOMPARE(ring.missing(showing(50), Frames), std::optional<qint64>(50));
    QVERIFY(!ring.freeSlot());
    ring.takeBack(NxPreviewSlots::bit(7));
    QCOMPARE(ring.freeSlot(), std::optional<quint32>(7));
}

void tst_PreviewRing::itGoesOnWithWhatIsMissing()
{
    PreviewRing ring;
    fill(&ring, showing(0));
    ring.takeBack(NxPreviewSlots::bit(0) | NxPreviewSlots::bit(1));
    QCOMPARE(fill(&ring, showing(2)), range(NxPreviewSlots::Count, 2));
}

void tst_PreviewRing::theFilmBeginsAgainAfterItsLastFrame()
{
    PreviewRing ring;
    QCOMPARE(fill(&ring, showing(Frames - 2)),
             (QList<qint64>{Frames - 2, Frames - 1}) + range(0, NxPreviewSlots::Count - 2));
}

void tst_PreviewRing::aShortFilmIsRenderedOnce()
{
    PreviewRing ring;
    QCOMPARE(fill(&ring, showing(1), 3), (QList<qint64>{1, 2, 0}));
    QVERIFY(ring.freeSlot());
    QVERIFY(!ring.missing(showing(2), 3));
}

void tst_PreviewRing::anotherSizeOrFilmIsRenderedAnew()
{
    PreviewRing ring;
    ring.lend({Film, 0, 0, Size});
    NxPreviewShow larger = showing(0);
    larger.size = Size * 2;
    NxPreviewShow other = showing(0);
    other.number = Film + 1;
    QCOMPARE(ring.missing(showing(0), Frames), std::optional<qint64>(1));
    QCOMPARE(ring.missing(larger, Frames), std::optional<qint64>(0));
    QCOMPARE(ring.missing(other, Frames), std::optional<qint64>(0));
}

void tst_PreviewRing::pastTheEndNothingIsMissing()
{
    const PreviewRing ring;
    QVERIFY(!ring.missing(showing(Frames), Frames));
    QVERIFY(!ring.missing(showing(std::numeric_limits<qint64>::max()), Frames));
    QVERIFY(!ring.missing(showing(0), 0));
    PreviewRing busy;
    busy.lend({Film, 5, 0, Size});
    busy.keepUp(showing(std::numeric_limits<qint64>::max()), Frames);
    QCOMPARE(busy.lead(), 0);
    QCOMPARE(ring.missing(showing(Frames - 1), Frames), std::optional<qint64>(Frames - 1));
}

void tst_PreviewRing::whatRendersInTimeHasNoLead()
{
    PreviewRing ring;
    ring.keepUp(showing(0), Frames);
    fill(&ring, showing(0));
    for (int frame = 1; frame < 5; ++frame) {
        ring.takeBack(NxPreviewSlots::bit(frame - 1));
        ring.keepUp(showing(frame), Frames);
        QCOMPARE(ring.lead(), 0);
        QCOMPARE(fill(&ring, showing(frame)), range(frame + NxPreviewSlots::Count - 1, 1));
    }
}

void tst_PreviewRing::aSlowFilmIsRenderedFurtherAhead()
{
    // Each picture takes as long as five are shown.
    constexpr int ticks = 5;
    PreviewRing ring;
    QList<qint64> rendered;
    int inTime = 0;
    for (qint64 shown = 0; shown < Frames - ticks; shown += ticks) {
        ring.keepUp(showing(shown), Frames);
        const std::optional<qint64> frame = ring.missing(showing(shown), Frames);
        QVERIFY(frame);
        rendered.append(*frame);
        ring.lend({Film, *frame, 0, Size});
        inTime += NxPreviewSlots::isWanted(*frame, shown + ticks, Frames) ? 1 : 0;
    }
    QCOMPARE(rendered.mid(0, 4), (QList<qint64>{0, 6, 13, 22}));
    QVERIFY2(inTime >= rendered.size() - 4, qPrintable(QString::number(inTime)));
}

void tst_PreviewRing::theLeadShrinksOnceThereIsTimeAgain()
{
    PreviewRing ring;
    ring.lend({Film, 0, 0, Size});
    ring.keepUp(showing(3), Frames);
    ring.keepUp(showing(3), Frames);
    QCOMPARE(ring.lead(), 3);
    ring.lend({Film, 14, 1, Size});
    for (const int lead : {2, 1, 0, 0}) {
        ring.keepUp(showing(4), Frames);
        QCOMPARE(ring.lead(), lead);
    }
}

void tst_PreviewRing::aJumpIsNoDelay_data()
{
    QTest::addColumn<NxPreviewShow>("shown");
    NxPreviewShow larger = showing(21);
    larger.size = Size * 2;
    NxPreviewShow other = showing(21);
    other.number = Film + 1;
    QTest::newRow("far on") << showing(80);
    QTest::newRow("back") << showing(5);
    QTest::newRow("another size") << larger;
    QTest::newRow("another film") << other;
}

void tst_PreviewRing::aJumpIsNoDelay()
{
    QFETCH(NxPreviewShow, shown);
    PreviewRing ring;
    ring.lend({Film, 10, 0, Size});
    ring.keepUp(showing(20), Frames);
    QCOMPARE(ring.lead(), 1);
    ring.lend({Film, 19, 0, Size});
    ring.keepUp(shown, Frames);
    QCOMPARE(ring.lead(), 0);
}

NX_TEST_MAIN(tst_PreviewRing)
#include "tst_PreviewRing.moc"
