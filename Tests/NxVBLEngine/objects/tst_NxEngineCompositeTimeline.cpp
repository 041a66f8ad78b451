// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TimelineStand.h"

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

class tst_NxEngineCompositeTimeline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itStandsAsAClip()
    {
        TimelineStand stand;
        const NxClipPlace place{2, 40, 30, 5};
        INxCompositeTimeline *inside =
            stand.editor->addComposite(stand.timeline, QStringLiteral(" Titles "), place);
        QVERIFY(inside);
        QCOMPARE(inside->name(), QStringLiteral("Titles"));
        INxClip *outer = inside->outerClip();
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{outer});
        QCOMPARE(outer->kind(), int(ckComposite));
        QCOMPARE(outer->mediaId(), QString());
        QCOMPARE(outer->timeline(), stand.timeline);
        QVERIFY(outer->place() == place);
        QVERIFY(inside->clips().isEmpty());
        QCOMPARE(stand.broken(), QString());
    }

    void whatStandsOnItIsItsOwn()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        INxClip *clip = stand.add(inside, stand.film, 0, 0);
        QCOMPARE(clip->timeline(), static_cast<INxTimeline *>(inside));
        QCOMPARE(stand.timeline->clips().size(), 1);
        QCOMPARE(stand.uses(stand.film).size(), 1);
        QCOMPARE(stand.uses(stand.film).first().timeline, static_cast<INxTimeline *>(inside));
        QCOMPARE(stand.film->usedCount(), 1);
    }

    void timelinesAreListedBehindTheOneTheyStandOn()
    {
        TimelineStand stand;
        INxTimeline *second = stand.editor->addTimeline(QStringLiteral("Second"));
        INxTimeline *late = stand.addComposite(stand.timeline, 1, 0);
        INxTimeline *early = stand.addComposite(stand.timeline, 0, 50);
        INxTimeline *within = stand.addComposite(early, 0, 0);
        INxTimeline *other = stand.addComposite(second, 0, 0);
        const QList<INxTimeline *> expected{stand.timeline, early, within, late, second, other};
        QCOMPARE(stand.memory.timelines()->timelines(), expected);
    }

    void itGoesWithItsClip()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        INxCompositeTimeline *deeper = stand.addComposite(inside, 0, 0);
        INxClip *clip = stand.add(deeper, stand.film, 0, 0);
        INxClip *inner = stand.editor->addInnerClip(stand.addSplit(deeper, 1, 0), stand.sound, 0);
        const QByteArray before = stand.dump();
        const int steps = stand.undo->count();
        QVERIFY(stand.timeline->removeClip(inside->outerClip()));
        QCOMPARE(stand.undo->count(), steps + 1);
        QCOMPARE(stand.memory.timelines()->timelines(), QList<INxTimeline *>{stand.timeline});
        QCOMPARE(clip->timeline(), nullptr);
        QCOMPARE(inner->timeline(), nullptr);
        QCOMPARE(stand.film->usedCount(), 0);
        QCOMPARE(stand.sound->usedCount(), 0);
        QCOMPARE(stand.broken(), QString());
        QVERIFY(stand.undo->undo());
        QCOMPARE(stand.dump(), before);
        QCOMPARE(deeper->clips().first(), clip);
        QCOMPARE(stand.uses(stand.sound).first().clip, inner);
        QCOMPARE(stand.broken(), QString());
    }

    void itsClipGoesWithIt()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        INxClip *outer = inside->outerClip();
        stand.add(inside, stand.film, 0, 0);
        const QByteArray before = stand.dump();
        QVERIFY(stand.editor->removeTimeline(inside));
        QVERIFY(stand.timeline->clips().isEmpty());
        QCOMPARE(outer->timeline(), nullptr);
        QCOMPARE(stand.broken(), QString());
        QVERIFY(stand.undo->undo());
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{outer});
        QCOMPARE(inside->outerClip(), outer);
    }

    void itMovesWithItsClip()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        INxClip *clip = stand.add(inside, stand.film, 0, 7);
        QVERIFY(stand.editor->moveClip(inside->outerClip(), 3, 90));
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("3:90"));
        QCOMPARE(clip->place().position, qint64(7));
        QCOMPARE(stand.broken(), QString());
    }

    void aTimelineGoesWithAllThatStandsOnIt()
    {
        TimelineStand stand;
        INxTimeline *second = stand.editor->addTimeline(QStringLiteral("Second"));
        stand.add(0, 0);
        stand.add(0, 30);
        stand.add(stand.addComposite(stand.timeline, 1, 0), stand.film, 0, 0);
        stand.editor->addInnerClip(stand.addSplit(stand.timeline, 2, 0), stand.film, 0);
        stand.add(second, stand.film, 0, 0);
        const QByteArray before = stand.dump();
        QCOMPARE(stand.film->usedCount(), 5);
        QVERIFY(stand.editor->removeTimeline(stand.timeline));
        QCOMPARE(stand.film->usedCount(), 1);
        QCOMPARE(stand.memory.timelines()->timelines(), QList<INxTimeline *>{second});
        QVERIFY(stand.timeline->clips().isEmpty());
        QVERIFY(stand.undo->undo());
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.film->usedCount(), 5);
        QCOMPARE(stand.broken(), QString());
    }
};

NX_TEST_MAIN(tst_NxEngineCompositeTimeline)
#include "tst_NxEngineCompositeTimeline.moc"
