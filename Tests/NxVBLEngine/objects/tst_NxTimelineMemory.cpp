// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "TimelineStand.h"

#include <NxCore/NxUndoRedoCommander.h>

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

namespace {

QStringList changedOnce(const QStringList &names)
{
    QStringList lines;
    for (const QString &name : names)
        lines += QStringLiteral("state ") + name;
    return lines;
}

} // namespace

class tst_NxTimelineMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMediaThatIsNotShownHasNoUses()
    {
        TimelineStand stand;
        QVERIFY(stand.uses(stand.film).isEmpty());
        QVERIFY(stand.memory.timelines()->uses(QString()).isEmpty());
        QVERIFY(stand.memory.timelines()->uses(QStringLiteral("folder:0:1")).isEmpty());
    }

    void clipsWithoutAMediaAreNoUses()
    {
        TimelineStand stand;
        stand.addSplit(stand.timeline, 0, 0);
        stand.addComposite(stand.timeline, 1, 0);
        QVERIFY(stand.memory.timelines()->uses(QStringLiteral("0")).isEmpty());
        QVERIFY(stand.memory.timelines()->uses(QString()).isEmpty());
    }

    void usesComeInTheOrderInWhichTheClipsWereMade()
    {
        TimelineStand stand;
        INxTimeline *second = stand.editor->addTimeline(QStringLiteral("Second"));
        INxClip *a = stand.add(stand.timeline, stand.film, 0, 90);
        INxClip *b = stand.add(second, stand.film, 0, 0);
        INxClip *c = stand.add(stand.timeline, stand.film, 0, 0);
        stand.add(stand.timeline, stand.sound, 0, 30);
        const auto clips = [&stand] {
            QList<INxClip *> used;
            for (const NxTimelineUse &use : stand.uses(stand.film)) {
                used += use.clip;
                if (use.timeline != use.clip->timeline())
                    return QList<INxClip *>();
            }
            return used;
        };
        QCOMPARE(clips(), (QList<INxClip *>{a, b, c}));
        QVERIFY(second->removeClip(b));
        QCOMPARE(clips(), (QList<INxClip *>{a, c}));
        stand.undo->undo();
        QCOMPARE(clips(), (QList<INxClip *>{a, b, c}));
        QCOMPARE(stand.film->usedCount(), 3);
    }

    void aChangeOfUsesIsToldOnceForEachMedia()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        EngineEvents events(stand.category);
        stand.add(inside, stand.film, 0, 0);
        QCOMPARE(events.take(), changedOnce({QStringLiteral("film.mov")}));
        stand.add(inside, stand.film, 0, 20);
        stand.add(inside, stand.sound, 0, 40);
        events.take();
        stand.timeline->removeClip(inside->outerClip()); // Three clips in one change.
        QStringList told = events.take();
        told.sort();
        QCOMPARE(told, changedOnce({QStringLiteral("film.mov"), QStringLiteral("sound.wav")}));
        stand.undo->undo();
        QCOMPARE(events.take().size(), 2);
        stand.add(3, 0);
        events.take();
        stand.editor->moveClip(stand.timeline->clips().last(), 3, 100);
        QCOMPARE(events.take(), QStringList()); // As many uses as before.
    }

    void usesAreRightWhenTheyAreTold()
    {
        struct Watcher final : INxMediaItemEventObserver
        {
            explicit Watcher(TimelineStand *watched) : stand(watched)
            {
                stand->items->registerObserver(this);
            }
            ~Watcher() override { stand->items->unregisterObserver(this); }
            void onMediaStateChangedEvent(INxAbstractMedia *media) override
            {
                counts += static_cast<INxAbstractMediaItem *>(media)->usedCount();
                uses += stand->uses(media).size();
            }
            TimelineStand *const stand;
            QVector<int> counts;
            QVector<int> uses;
        };
        TimelineStand stand;
        Watcher watcher(&stand);
        INxClip *clip = stand.add(0, 0);
        stand.timeline->removeClip(clip);
        stand.undo->undo();
        QCOMPARE(watcher.counts, (QVector<int>{1, 0, 1}));
        QCOMPARE(watcher.uses, watcher.counts);
    }

    void removedMediaAreCountedAndNotAnnounced()
    {
        TimelineStand stand;
        stand.add(0, 0);
        INxClip *second = stand.add(0, 20);
        QVERIFY(stand.items->removeMediaItems(nullptr, {stand.film}));
        QCOMPARE(stand.timeline->clips().size(), 2); // Clips stay without their media.
        QCOMPARE(second->mediaId(), stand.film->mediaId());
        EngineEvents events(stand.category);
        QVERIFY(stand.timeline->removeClip(second));
        QCOMPARE(events.take(), QStringList());
        QCOMPARE(stand.broken(), QString());
        {
            const NxUndoRedoCommander scope(stand.undo, QStringLiteral("t"), QStringLiteral("t"));
            QVERIFY(stand.items->addMediaItems(stand.section, {stand.film}));
        }
        QCOMPARE(stand.film->usedCount(), 1);
        QCOMPARE(stand.broken(), QString());
    }

    void idsAreNeverUsedTwice()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        const qint64 clipId = NxTimelineMemory::nodeOf(clip)->id();
        stand.undo->undo();
        QVERIFY(NxTimelineMemory::nodeOf(stand.add(0, 0))->id() > clipId);
        INxTimeline *timeline = stand.editor->addTimeline(QStringLiteral("x"));
        const qint64 id = NxTimelineMemory::nodeOf(timeline)->id();
        stand.undo->undo();
        timeline = stand.editor->addTimeline(QStringLiteral("x"));
        QVERIFY(NxTimelineMemory::nodeOf(timeline)->id() > id);
    }

    void whatNoStepCanBringBackIsForgotten()
    {
        TimelineStand stand;
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 0, 0);
        INxClip *clip = stand.add(inside, stand.film, 0, 0);
        const qint64 clipId = NxTimelineMemory::nodeOf(clip)->id();
        const qint64 outerId = NxTimelineMemory::nodeOf(inside->outerClip())->id();
        const qint64 timelineId =
            NxTimelineMemory::nodeOf(static_cast<INxTimeline *>(inside))->id();
        stand.timeline->removeClip(inside->outerClip());
        const NxTimelineMemory *timelines = stand.memory.timelines();
        for (int i = 0; i < NxEngineUndoStack::MaximumSteps - 1; ++i)
            QVERIFY(stand.editor->addTimeline(QStringLiteral("x")));
        QVERIFY(timelines->clip(clipId)); // The removal is the oldest step now.
        QVERIFY(stand.editor->addTimeline(QStringLiteral("x")));
        QVERIFY(!timelines->clip(clipId));
        QVERIFY(!timelines->clip(outerId));
        QVERIFY(!timelines->timeline(timelineId));
        QCOMPARE(clip->mediaId(), stand.film->mediaId()); // Until the event loop's next turn.
        QCOMPARE(stand.broken(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(stand.broken(), QString());
    }

    void whatWasUndoneIsForgottenWithItsStep()
    {
        TimelineStand stand;
        const qint64 id = NxTimelineMemory::nodeOf(stand.add(0, 0))->id();
        stand.undo->undo();
        QVERIFY(stand.memory.timelines()->clip(id));
        stand.add(0, 0);
        QVERIFY(!stand.memory.timelines()->clip(id));
        QCOMPARE(stand.broken(), QString());
    }

    void whatLivesIsNeverForgotten()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        for (int i = 0; i < 2 * NxEngineUndoStack::MaximumSteps; ++i)
            QVERIFY(stand.editor->moveClip(clip, 0, i + 1));
        QCoreApplication::processEvents();
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{clip});
        QCOMPARE(stand.broken(), QString());
    }

    void newRowsAreStoredInPlaceOfTheirChange()
    {
        TimelineStand stand;
        NxStoreBatch written;
        stand.memory.setWriter([&written](NxStoreBatch batch) {
            for (NxStoreEntry::Any &entry : batch)
                written.push_back(std::move(entry));
        });
        stand.addComposite(stand.timeline, 1, 30);
        int clips = 0;
        int timelines = 0;
        for (const NxStoreEntry::Any &entry : written) {
            QVERIFY(!std::holds_alternative<NxStoreEntry::Apply>(entry));
            if (const auto *stored = std::get_if<NxStoreEntry::NewClips>(&entry)) {
                ++clips;
                QCOMPARE(stored->clips.size(), 1);
                QVERIFY(stored->clips.first().alive);
                QVERIFY(stored->clips.first().place == (NxClipPlace{1, 30, 10, 0}));
            } else if (const auto *made = std::get_if<NxStoreEntry::NewTimeline>(&entry)) {
                ++timelines;
                QVERIFY(made->timeline.alive);
                QCOMPARE(made->timeline.name, QStringLiteral("Inside"));
            }
        }
        QCOMPARE(clips, 1);
        QCOMPARE(timelines, 1);
    }
};

NX_TEST_MAIN(tst_NxTimelineMemory)
#include "tst_NxTimelineMemory.moc"
