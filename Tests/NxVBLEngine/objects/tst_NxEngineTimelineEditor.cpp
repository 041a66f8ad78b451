// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "TimelineStand.h"

#include <NxCore/NxLogCapture.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineResource.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>
#include <limits>

using namespace NXVBLMODEL;

namespace {

using Deed = std::function<bool(TimelineStand &)>;

/// A clip of another engine.
struct ForeignClip final : INxClip
{
    int kind() const override { return ckVideo; }
};

struct ForeignTimeline final : INxTimeline
{
    QList<INxClip *> clips() override { return {}; }
    bool removeClip(INxClip *) override { return false; }
    bool insertClip(INxClip *, int, qint64) override { return false; }
};

} // namespace

Q_DECLARE_METATYPE(Deed)

class tst_NxEngineTimelineEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreTrimmedAndMayBeAlike()
    {
        TimelineStand stand;
        QCOMPARE(stand.editor->addTimeline(QStringLiteral("  Film \n"))->name(),
                 QStringLiteral("Film"));
        QVERIFY(stand.editor->addTimeline(QStringLiteral("Film")));
        QVERIFY(stand.editor->addTimeline(QString(255, QLatin1Char('x'))));
        QCOMPARE(stand.memory.timelines()->timelines().size(), 4);
    }

    void aTimelineIsRenamedOnce()
    {
        TimelineStand stand;
        const int steps = stand.undo->count();
        QVERIFY(stand.editor->renameTimeline(stand.timeline, QStringLiteral(" Main ")));
        QCOMPARE(stand.undo->count(), steps);
        QVERIFY(stand.editor->renameTimeline(stand.timeline, QStringLiteral("Final cut")));
        QCOMPARE(stand.timeline->name(), QStringLiteral("Final cut"));
        stand.undo->undo();
        QCOMPARE(stand.timeline->name(), QStringLiteral("Main"));
    }

    void aClipIsOfTheKindOfItsMedia_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("kind");
        QTest::newRow("film") << "film.mov" << int(ckVideo);
        QTest::newRow("sound") << "sound.wav" << int(ckAudio);
        QTest::newRow("picture") << "picture.jpg" << int(ckVideo);
    }

    void aClipIsOfTheKindOfItsMedia()
    {
        QFETCH(QString, name);
        TimelineStand stand;
        NxEngineMedia *media = stand.named(name);
        const NxClipPlace place{1, 30, 25, 8};
        INxClip *clip = stand.editor->addClip(stand.timeline, media, place);
        QVERIFY(clip);
        QTEST(clip->kind(), "kind");
        QCOMPARE(clip->mediaId(), media->mediaId());
        QCOMPARE(clip->timeline(), stand.timeline);
        QVERIFY(clip->place() == place);
        INxClip *inner = stand.editor->addInnerClip(stand.addSplit(stand.timeline, 0, 0), media, 0);
        QTEST(inner->kind(), "kind");
    }

    void aClipStaysOfTheKindThatItWasMade()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        QVERIFY(stand.items->relinkMedia(stand.film, QStringLiteral("/other/film.wav")));
        QCOMPARE(stand.film->mediaType(), mtAudio);
        QCOMPARE(clip->kind(), int(ckVideo));
    }

    void resourcesOfTheLibraryCanBeShown()
    {
        TimelineStand stand;
        NxEngineCategory *sounds = stand.memory.category(mctAudio);
        NxEngineResource *resource = sounds->resources().front().get();
        EngineEvents events(sounds);
        INxClip *clip = stand.add(stand.timeline, resource, 0, 0);
        QVERIFY(clip);
        QCOMPARE(clip->mediaId(), resource->mediaId());
        QCOMPARE(resource->usedCount(), 1);
        QCOMPARE(stand.uses(resource).size(), 1);
        QCOMPARE(events.take(), QStringList(QStringLiteral("state ") + resource->name()));
    }

    void refusalsSayWhyAndChangeNothing_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<QString>("said");
        const auto row = [](const char *name, const char *said, const Deed &deed) {
            QTest::newRow(name) << deed << QString::fromLatin1(said);
        };
        const auto addAt = [](NxClipPlace place) {
            return [place](TimelineStand &s) {
                return s.editor->addClip(s.timeline, s.film, place) != nullptr;
            };
        };
        constexpr qint64 last = std::numeric_limits<qint64>::max();
        row("a timeline without a name", "cannot be called",
            [](TimelineStand &s) { return s.editor->addTimeline(QStringLiteral(" \t")); });
        row("a timeline with too long a name", "cannot be called",
            [](TimelineStand &s) { return s.editor->addTimeline(QString(256, QLatin1Char('x'))); });
        row("a new name of blanks", "cannot be called", [](TimelineStand &s) {
            return s.editor->renameTimeline(s.timeline, QStringLiteral(" "));
        });
        row("a composite without a name", "cannot be called", [](TimelineStand &s) {
            return s.editor->addComposite(s.timeline, QString(), {0, 50, 10, 0});
        });
        row("no timeline", "does not stand in this project",
            [](TimelineStand &s) { return s.add(nullptr, s.film, 0, 0); });
        row("a timeline of another engine", "does not stand in this project", [](TimelineStand &s) {
            ForeignTimeline foreign;
            return s.add(&foreign, s.film, 0, 0) || s.editor->removeTimeline(&foreign)
                   || s.editor->renameTimeline(&foreign, QStringLiteral("x"));
        });
        row("a timeline of another project", "does not stand in this project",
            [](TimelineStand &s) {
                TimelineStand other;
                return s.add(other.timeline, s.film, 0, 0)
                       || s.editor->removeTimeline(other.timeline)
                       || s.addSplit(other.timeline, 0, 0) || s.addComposite(other.timeline, 0, 0);
            });
        row("no media", "media does not stand in this project",
            [](TimelineStand &s) { return s.add(s.timeline, nullptr, 0, 50); });
        row("a folder", "media does not stand in this project",
            [](TimelineStand &s) { return s.add(s.timeline, s.section, 0, 50); });
        row("a media of another project", "media does not stand in this project",
            [](TimelineStand &s) {
                TimelineStand other;
                return s.add(s.timeline, other.film, 0, 50);
            });
        row("a negative track", "no clip can stand", addAt({-1, 50, 10, 0}));
        row("a track beyond counting", "no clip can stand",
            addAt({std::numeric_limits<int>::max(), 50, 10, 0}));
        row("a negative position", "no clip can stand", addAt({0, -1, 1, 0}));
        row("no length", "no clip can stand", addAt({0, 50, 0, 0}));
        row("a negative beginning", "no clip can stand", addAt({0, 50, 10, -1}));
        row("an end beyond time", "no clip can stand", addAt({0, last - 9, 10, 0}));
        row("a covered beginning", "has no room", addAt({0, 109, 10, 0}));
        row("a covered end", "has no room", addAt({0, 91, 10, 0}));
        row("a covered middle", "has no room", addAt({0, 90, 100, 0}));
        row("inside a clip", "has no room", addAt({0, 104, 2, 0}));
        row("a covered split screen", "has no room",
            [](TimelineStand &s) { return s.addSplit(s.timeline, 0, 100); });
        row("a covered composite", "has no room",
            [](TimelineStand &s) { return s.addComposite(s.timeline, 0, 95); });
        row("a move onto another clip", "has no room",
            [](TimelineStand &s) { return s.editor->moveClip(s.timeline->clips().at(1), 0, 105); });
        row("a move before the beginning", "no clip can stand",
            [](TimelineStand &s) { return s.editor->moveClip(s.timeline->clips().at(1), 0, -5); });
        row("a move of a foreign clip", "does not stand in this project", [](TimelineStand &s) {
            ForeignClip foreign;
            return s.editor->moveClip(&foreign, 0, 300) || s.editor->moveClip(nullptr, 0, 300)
                   || s.timeline->removeClip(&foreign) || s.timeline->removeClip(nullptr);
        });
        row("a move of an inner clip", "where its split screen stands", [](TimelineStand &s) {
            auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(2));
            return s.editor->moveClip(split->innerClips().first(), 0, 300);
        });
        row("an inner clip from before the beginning", "no media begins", [](TimelineStand &s) {
            auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(2));
            return s.editor->addInnerClip(split, s.film, -1);
        });
        row("an inner clip in no split screen", "clip does not stand in this project",
            [](TimelineStand &s) { return s.editor->addInnerClip(nullptr, s.film, 0); });
        row("an inner clip of no media", "media does not stand in this project",
            [](TimelineStand &s) {
                auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(2));
                return s.editor->addInnerClip(split, nullptr, 0);
            });
        row("a clip of another timeline", "does not hold the clip", [](TimelineStand &s) {
            return s.memory.timelines()->timelines().at(1)->removeClip(s.timeline->clips().first());
        });
        row("an inner clip as one of the timeline", "does not hold the clip", [](TimelineStand &s) {
            auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(2));
            return s.timeline->removeClip(split->innerClips().first());
        });
        row("a clip that stands in no split screen", "split screen does not hold the clip",
            [](TimelineStand &s) {
                auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(2));
                return split->removeInnerClip(s.timeline->clips().first());
            });
        row("a living clip brought back", "was not removed from", [](TimelineStand &s) {
            return s.timeline->insertClip(s.timeline->clips().first(), 3, 0);
        });
        row("a foreign clip brought back", "was not removed from", [](TimelineStand &s) {
            ForeignClip foreign;
            return s.timeline->insertClip(&foreign, 3, 0) || s.timeline->insertClip(nullptr, 3, 0);
        });
    }

    void refusalsSayWhyAndChangeNothing()
    {
        QFETCH(Deed, deed);
        QFETCH(QString, said);
        TimelineStand stand;
        QVERIFY(stand.add(0, 100));
        QVERIFY(stand.add(0, 200));
        QVERIFY(stand.editor->addInnerClip(stand.addSplit(stand.timeline, 1, 0), stand.sound, 0));
        QVERIFY(stand.editor->addTimeline(QStringLiteral("Second")));
        const QByteArray before = stand.dump();
        const int steps = stand.undo->count();
        const NxStoreEntry::Counters counters = stand.memory.counters();
        const NxLogCapture log;
        QVERIFY(!deed(stand));
        QVERIFY2(!log.texts(NxLogLevel::Info).filter(said).isEmpty(),
                 qPrintable(log.texts().join(QLatin1Char('\n'))));
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.undo->count(), steps);
        QCOMPARE(stand.memory.counters().nextClipId, counters.nextClipId);
        QCOMPARE(stand.memory.counters().nextTimelineId, counters.nextTimelineId);
        QCOMPARE(stand.broken(), QString());
    }

    void whatTouchesHasRoom_data()
    {
        QTest::addColumn<int>("track");
        QTest::addColumn<qint64>("position");
        QTest::newRow("just before") << 0 << qint64(90);
        QTest::newRow("just behind") << 0 << qint64(110);
        QTest::newRow("above") << 1 << qint64(100);
        QTest::newRow("at the beginning of time") << 0 << qint64(0);
    }

    void whatTouchesHasRoom()
    {
        QFETCH(int, track);
        QFETCH(qint64, position);
        TimelineStand stand;
        QVERIFY(stand.add(0, 100));
        QVERIFY(stand.add(track, position));
        QCOMPARE(stand.broken(), QString());
    }

    void aReadOnlyProjectRefusesEverything()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        INxClip *removed = stand.add(0, 50);
        QVERIFY(stand.timeline->removeClip(removed));
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 1, 0);
        INxClip *inner = stand.editor->addInnerClip(split, stand.film, 0);
        const QByteArray before = stand.dump();
        stand.memory.setReadOnly(true);
        QVERIFY(!stand.editor->addTimeline(QStringLiteral("x")));
        QVERIFY(!stand.editor->removeTimeline(stand.timeline));
        QVERIFY(!stand.editor->renameTimeline(stand.timeline, QStringLiteral("x")));
        QVERIFY(!stand.add(3, 0));
        QVERIFY(!stand.addSplit(stand.timeline, 3, 0));
        QVERIFY(!stand.addComposite(stand.timeline, 3, 0));
        QVERIFY(!stand.editor->addInnerClip(split, stand.film, 0));
        QVERIFY(!stand.editor->moveClip(clip, 3, 0));
        QVERIFY(!stand.timeline->removeClip(clip));
        QVERIFY(!stand.timeline->insertClip(removed, 0, 50));
        QVERIFY(!split->removeInnerClip(inner));
        QCOMPARE(stand.dump(), before);
    }

    void aRemovedMediaCannotBeShown()
    {
        TimelineStand stand;
        QVERIFY(stand.items->removeMediaItems(nullptr, {stand.film}));
        QVERIFY(!stand.add(0, 0));
        QCOMPARE(stand.timeline->clips().size(), 0);
    }

    void removedTimelinesAndClipsTakeNothing()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 1, 0);
        QVERIFY(stand.timeline->removeClip(split));
        QVERIFY(!stand.editor->addInnerClip(split, stand.film, 0));
        QVERIFY(!stand.editor->moveClip(split, 0, 100));
        QVERIFY(!stand.timeline->removeClip(split));
        QVERIFY(stand.editor->removeTimeline(stand.timeline));
        QVERIFY(!stand.add(2, 0));
        QVERIFY(!stand.timeline->insertClip(clip, 0, 0));
        QVERIFY(!stand.editor->removeTimeline(stand.timeline));
        QVERIFY(!stand.editor->renameTimeline(stand.timeline, QStringLiteral("x")));
        QCOMPARE(stand.broken(), QString());
    }

    void everyCallIsOneStep_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<QString>("step");
        const auto row = [](const char *step, const Deed &deed) {
            QTest::newRow(step) << deed << QString::fromLatin1(step);
        };
        row("addTimeline",
            [](TimelineStand &s) { return s.editor->addTimeline(QStringLiteral("x")); });
        row("renameTimeline", [](TimelineStand &s) {
            return s.editor->renameTimeline(s.timeline, QStringLiteral("x"));
        });
        row("removeTimeline",
            [](TimelineStand &s) { return s.editor->removeTimeline(s.timeline); });
        row("addClip", [](TimelineStand &s) { return s.add(3, 0); });
        row("addSplitScreen", [](TimelineStand &s) { return s.addSplit(s.timeline, 3, 0); });
        row("addInnerClip", [](TimelineStand &s) {
            auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(1));
            return s.editor->addInnerClip(split, s.film, 0);
        });
        row("addComposite", [](TimelineStand &s) { return s.addComposite(s.timeline, 3, 0); });
        row("moveClip",
            [](TimelineStand &s) { return s.editor->moveClip(s.timeline->clips().first(), 3, 0); });
        row("removeClip",
            [](TimelineStand &s) { return s.timeline->removeClip(s.timeline->clips().at(2)); });
        row("removeInnerClip", [](TimelineStand &s) {
            auto *split = dynamic_cast<INxSplitScreenClip *>(s.timeline->clips().at(1));
            return split->removeInnerClip(split->innerClips().first());
        });
    }

    void everyCallIsOneStep()
    {
        QFETCH(Deed, deed);
        TimelineStand stand;
        stand.add(0, 0);
        stand.editor->addInnerClip(stand.addSplit(stand.timeline, 1, 0), stand.sound, 4);
        INxCompositeTimeline *inside = stand.addComposite(stand.timeline, 2, 0);
        stand.add(inside, stand.picture, 0, 0);
        const QByteArray before = stand.dump();
        const int steps = stand.undo->count();
        QVERIFY(deed(stand));
        QCOMPARE(stand.undo->count(), steps + 1);
        QTEST(stand.undo->undoText(), "step");
        QCOMPARE(stand.broken(), QString());
        const QByteArray after = stand.dump();
        QVERIFY(after != before);
        for (int round = 0; round < 2; ++round) {
            QVERIFY(stand.undo->undo());
            QCOMPARE(stand.dump(), before);
            QCOMPARE(stand.broken(), QString());
            QVERIFY(stand.undo->redo());
            QCOMPARE(stand.dump(), after);
            QCOMPARE(stand.broken(), QString());
        }
    }

    void callsJoinTheOpenStep()
    {
        TimelineStand stand;
        const QByteArray before = stand.dump();
        const int steps = stand.undo->count();
        {
            const NxUndoRedoCommander scope(stand.undo, QStringLiteral("test"),
                                            QStringLiteral("deleteMediaItems"));
            INxClip *clip = stand.add(0, 0);
            stand.addSplit(stand.timeline, 1, 0);
            stand.editor->moveClip(clip, 2, 0);
            stand.timeline->removeClip(clip);
        }
        QCOMPARE(stand.undo->count(), steps + 1);
        QCOMPARE(stand.undo->undoText(), QStringLiteral("deleteMediaItems"));
        stand.undo->undo();
        QCOMPARE(stand.dump(), before);
    }

    void movedClipsKeepTheirIdentity()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 0);
        stand.add(0, 50);
        QVERIFY(stand.editor->moveClip(clip, 0, 40)); // Up to the other one.
        QVERIFY(stand.editor->moveClip(clip, 0, 35)); // Over where it stands itself.
        QVERIFY(stand.editor->moveClip(clip, 0, 44 - 10));
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:34 0:50"));
        QVERIFY(stand.editor->moveClip(clip, 0, 60));
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:50 0:60"));
        QCOMPARE(stand.timeline->clips().last(), clip);
        const int steps = stand.undo->count();
        QVERIFY(stand.editor->moveClip(clip, 0, 60));
        QCOMPARE(stand.undo->count(), steps); // It stands there already.
        while (stand.undo->undoText() == QLatin1String("moveClip"))
            stand.undo->undo();
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:0 0:50"));
        QCOMPARE(stand.timeline->clips().first(), clip);
    }

    void removedClipsComeBackAsTheyWere()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 20);
        stand.add(0, 50);
        const QByteArray before = stand.dump();
        QVERIFY(stand.timeline->removeClip(clip));
        QCOMPARE(clip->timeline(), nullptr);
        QVERIFY(stand.timeline->insertClip(clip, 0, 20));
        QCOMPARE(stand.timeline->clips().first(), clip);
        QCOMPARE(stand.dump(), before);
        stand.undo->undo();
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:50"));
        stand.undo->undo();
        QCOMPARE(stand.dump(), before);
    }

    void removedClipsComeBackElsewhere()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 20);
        const QByteArray before = stand.dump();
        QVERIFY(stand.timeline->removeClip(clip));
        const QByteArray removed = stand.dump();
        stand.add(0, 25); // Now its place is taken.
        QVERIFY(!stand.timeline->insertClip(clip, 0, 20));
        QVERIFY(!stand.timeline->insertClip(clip, -1, 20));
        QVERIFY(stand.timeline->insertClip(clip, 2, 5));
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:25 2:5"));
        QCOMPARE(stand.uses(stand.film).size(), 2);
        QCOMPARE(stand.broken(), QString());
        stand.undo->undo();
        stand.undo->undo();
        QCOMPARE(stand.dump(), removed);
        stand.undo->undo();
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.broken(), QString());
    }

    void aClipComesBackOnlyWhereItWas()
    {
        TimelineStand stand;
        INxTimeline *second = stand.editor->addTimeline(QStringLiteral("Second"));
        INxClip *clip = stand.add(0, 20);
        QVERIFY(stand.timeline->removeClip(clip));
        QVERIFY(!second->insertClip(clip, 0, 20));
        QVERIFY(stand.timeline->insertClip(clip, 0, 20));
    }

    void aClipWhoseMakingWasTakenBackStaysAway()
    {
        TimelineStand stand;
        INxClip *clip = stand.add(0, 20);
        stand.undo->undo();
        const NxLogCapture log;
        QVERIFY(!stand.timeline->insertClip(clip, 0, 20));
        QCOMPARE(log.texts().filter(QStringLiteral("was taken back")).size(), 1);
        QVERIFY(stand.undo->canRedo()); // A refusal keeps what can be done again.
        QVERIFY(stand.undo->redo());
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{clip});
    }

    void contentsComeBackWithTheirClip()
    {
        TimelineStand stand;
        INxCompositeTimeline *outer = stand.addComposite(stand.timeline, 0, 0);
        INxCompositeTimeline *inner = stand.addComposite(outer, 0, 0);
        INxSplitScreenClip *split = stand.addSplit(inner, 1, 0);
        stand.editor->addInnerClip(split, stand.sound, 0);
        stand.editor->addInnerClip(split, stand.film, 0);
        stand.add(inner, stand.film, 0, 0);
        INxClip *earlier = stand.add(inner, stand.picture, 0, 50);
        QVERIFY(inner->removeClip(earlier)); // By itself: it stays away.
        const QByteArray before = stand.dump();
        INxClip *clip = outer->outerClip();
        QVERIFY(stand.timeline->removeClip(clip));
        QCOMPARE(stand.broken(), QString());
        QCOMPARE(stand.memory.timelines()->timelines().size(), 1);
        QVERIFY(stand.timeline->insertClip(clip, 0, 0));
        QCOMPARE(stand.broken(), QString());
        QCOMPARE(stand.dump(), before);
        stand.undo->undo();
        QCOMPARE(stand.memory.timelines()->timelines().size(), 1);
        QCOMPARE(stand.broken(), QString());
        stand.undo->redo();
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.uses(stand.picture).size(), 0);
    }

    void contentsOfASplitScreenComeBackWithIt()
    {
        TimelineStand stand;
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 0, 0);
        INxClip *first = stand.editor->addInnerClip(split, stand.sound, 0);
        INxClip *second = stand.editor->addInnerClip(split, stand.film, 0);
        INxClip *earlier = stand.editor->addInnerClip(split, stand.picture, 0);
        QVERIFY(split->removeInnerClip(earlier));
        QVERIFY(stand.timeline->removeClip(split));
        QCOMPARE(split->innerClips(), QList<INxClip *>());
        QVERIFY(stand.timeline->insertClip(split, 4, 70));
        QCOMPARE(split->innerClips(), (QList<INxClip *>{first, second}));
        QCOMPARE(first->place().track, 4);
        QCOMPARE(stand.broken(), QString());
    }
};

NX_TEST_MAIN(tst_NxEngineTimelineEditor)
#include "tst_NxEngineTimelineEditor.moc"
