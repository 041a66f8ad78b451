// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"
#include "TimelineStand.h"

#include <NxCore/NxLogCapture.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>
#include <limits>

using namespace NXVBLMODEL;

namespace {

using Spoil = std::function<void(NxProjectContents *)>;

NxTimelineRecord timelineRecord(qint64 id, qint64 outerClip = 0)
{
    return {id, QStringLiteral("T%1").arg(id), outerClip, true};
}

NxClipRecord clipRecord(qint64 id, qint64 timeline, int kind, const NxClipPlace &place)
{
    NxClipRecord record;
    record.id = id;
    record.timeline = timeline;
    record.kind = kind;
    record.media = kind == ckVideo ? 1 : 0;
    record.place = place;
    return record;
}

/// T1 shows a clip (1), a split screen (2) with an inner clip (3), and T2 as a clip (4); T2 shows a
/// clip (5). T3 shows nothing. All clips show media 1.
NxProjectContents soundContents()
{
    NxProjectContents contents;
    contents.counters = {100, 100, 1100, 100, 100, 100};
    NxMediaRecord media;
    media.id = 1;
    media.folder = fidRoot;
    media.place = 1;
    media.name = QStringLiteral("film.mov");
    media.path = QStringLiteral("/footage/film.mov");
    contents.media = {media};
    contents.timelines = {timelineRecord(1), timelineRecord(2, 4), timelineRecord(3)};
    NxClipRecord inner = clipRecord(3, 1, ckVideo, {0, 0, 0, 6});
    inner.split = 2;
    contents.clips = {clipRecord(1, 1, ckVideo, {0, 0, 10, 0}),
                      clipRecord(2, 1, ckSplitScreen, {0, 10, 10, 0}), inner,
                      clipRecord(4, 1, ckComposite, {1, 0, 10, 0}),
                      clipRecord(5, 2, ckVideo, {0, 0, 10, 0})};
    return contents;
}

/// "T1: 1 2(3) 4 | T2: 5 | T3:"
QString shown(const NxProjectMemory &memory)
{
    const auto idOf = [](INxClip *clip) {
        return QString::number(NxTimelineMemory::nodeOf(clip)->id());
    };
    QStringList timelines;
    for (INxTimeline *timeline : memory.timelines()->timelines()) {
        QString line = timeline->name() + QLatin1Char(':');
        for (INxClip *clip : timeline->clips()) {
            line += QLatin1Char(' ') + idOf(clip);
            if (auto *split = dynamic_cast<INxSplitScreenClip *>(clip)) {
                for (INxClip *inner : split->innerClips())
                    line += QStringLiteral("(%1)").arg(idOf(inner));
            }
        }
        timelines += line;
    }
    return timelines.join(QLatin1String(" | "));
}

} // namespace

Q_DECLARE_METATYPE(Spoil)

/// Timelines as they are found in project files, sound and damaged ones.
class tst_NxTimelineMemory_load : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingStandsWhereItStood()
    {
        EngineFixture project;
        EngineEvents events(project.category);
        const NxLogCapture log;
        project.memory.load(soundContents());
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) 4 | T2: 5 | T3:"));
        NxEngineMedia *film = project.memory.media(1);
        QCOMPARE(film->usedCount(), 3);
        QCOMPARE(project.memory.timelines()->uses(film->mediaId()).size(), 3);
        QCOMPARE(project.memory.brokenInvariant(), QString());
        QCOMPARE(log.texts(), QStringList());
    }

    void whatWasRemovedComesBackOnlyByUndo()
    {
        EngineFixture project;
        NxProjectContents contents = soundContents();
        for (const int dead : {3, 4}) // The composite's clip, and what stood on it.
            contents.clips[size_t(dead)].alive = false;
        contents.timelines[1].alive = false;
        NxChange clips;
        clips.what = NxChangeKind::ClipRemove;
        clips.ids = {5};
        NxChange timeline = clips;
        timeline.what = NxChangeKind::TimelineRemove;
        timeline.ids = {2};
        NxChange outer = clips;
        outer.ids = {4};
        contents.undoSteps = {
            {7, QStringLiteral("f"), QStringLiteral("removeClip"), {clips, timeline, outer}}};
        contents.undoDone = 1;
        project.memory.load(contents);
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) | T3:"));
        QCOMPARE(project.memory.media(1)->usedCount(), 2);
        QVERIFY(project.undo->undo());
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) 4 | T2: 5 | T3:"));
        QCOMPARE(project.memory.media(1)->usedCount(), 3);
        QCOMPARE(project.memory.brokenInvariant(), QString());
        QVERIFY(project.undo->redo());
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) | T3:"));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void clipsOfMediaThatAreGoneStay()
    {
        EngineFixture project;
        NxProjectContents contents = soundContents();
        contents.media.clear();
        project.memory.load(contents);
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) 4 | T2: 5 | T3:"));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void whatDoesNotFitIsMendedAndTold_data()
    {
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("said");
        const auto row = [](const char *name, const Spoil &spoil, const char *result,
                            const char *said) {
            QTest::newRow(name) << spoil << QString::fromLatin1(result)
                                << QString::fromLatin1(said);
        };
        row(
            "a clip on no timeline", [](NxProjectContents *c) { c->clips[0].timeline = 77; },
            "T1: 2(3) 4 | T2: 5 | T3:", "clip 1 stood nowhere");
        row(
            "clips on a removed timeline",
            [](NxProjectContents *c) { c->timelines[0].alive = false; },
            "T2: 5 | T3:", "timeline 2 stood for the unknown clip 4");
        row(
            "inside a clip that is gone", [](NxProjectContents *c) { c->clips[2].split = 77; },
            "T1: 1 2 4 | T2: 5 | T3:", "clip 3 stood nowhere");
        row(
            "inside a clip of another kind", [](NxProjectContents *c) { c->clips[2].split = 1; },
            "T1: 1 2 4 | T2: 5 | T3:", "clip 3 stood nowhere");
        row(
            "inside a removed split screen",
            [](NxProjectContents *c) { c->clips[1].alive = false; },
            "T1: 1 4 | T2: 5 | T3:", "clip 3 stood nowhere");
        row(
            "inside a split screen of another timeline",
            [](NxProjectContents *c) { c->clips[2].timeline = 3; },
            "T1: 1 2 4 | T2: 5 | T3:", "clip 3 stood nowhere");
        row(
            "a timeline whose clip is gone",
            [](NxProjectContents *c) { c->clips.erase(c->clips.begin() + 3); },
            "T1: 1 2(3) | T2: 5 | T3:", "timeline 2 stood for the unknown clip 4");
        row(
            "a timeline whose clip was removed",
            [](NxProjectContents *c) { c->clips[3].alive = false; },
            "T1: 1 2(3) | T2: 5 | T3:", "timeline 2 stood for the unknown clip 4");
        row(
            "a timeline that stands for a clip of a media",
            [](NxProjectContents *c) { c->timelines[1].outerClip = 1; },
            "T1: 1 2(3) | T2: 5 | T3:", "timeline 2 stood for the unknown clip 1");
        row(
            "a clip whose timeline is gone",
            [](NxProjectContents *c) { c->timelines.erase(c->timelines.begin() + 1); },
            "T1: 1 2(3) | T3:", "clip 4 stood nowhere");
        row(
            "two timelines that stand for one clip",
            [](NxProjectContents *c) { c->timelines[2].outerClip = 4; },
            "T1: 1 2(3) 4 | T2: 5 | T3:", "timeline 3 stood for the unknown clip 4");
        row(
            "a timeline that stands on itself",
            [](NxProjectContents *c) { c->clips[3].timeline = 2; },
            "T1: 1 2(3) | T2: 5 | T3:", "timeline 2 stood for the unknown clip 4");
        row(
            "timelines that stand on each other",
            [](NxProjectContents *c) {
                c->clips[3].timeline = 3;
                c->clips[0] = clipRecord(1, 2, ckComposite, {5, 0, 10, 0});
                c->timelines[2].outerClip = 1;
            },
            "T1: 2(3) | T2: 5 1 | T3:", "timeline 2 stood for the unknown clip 4");
        row(
            "a clip that covers another",
            [](NxProjectContents *c) { c->clips[1].place.position = 5; },
            "T1: 1 4 2(3) | T2: 5 | T3:",
            "clip 2 covered another one of its track and is shown on track 2");
        row(
            "a clip that covers another on the last track there can be",
            [](NxProjectContents *c) {
                c->clips[0].place.track = std::numeric_limits<int>::max() - 1;
                c->clips[3].place = c->clips[0].place;
            },
            "T1: 4 2(3) 1 | T2: 5 | T3:",
            "clip 4 covered another one of its track and is shown on track 0");
    }

    void whatDoesNotFitIsMendedAndTold()
    {
        QFETCH(Spoil, spoil);
        QFETCH(QString, said);
        EngineFixture project;
        NxProjectContents contents = soundContents();
        spoil(&contents);
        const NxLogCapture log;
        project.memory.load(contents);
        QTEST(shown(project.memory), "result");
        QCOMPARE(project.memory.brokenInvariant(), QString());
        QVERIFY2(!log.texts().filter(said).isEmpty(),
                 qPrintable(log.texts().join(QLatin1Char('\n'))));
    }

    void changesThatDoNotFitArePassedOver_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<qint64>("id");
        QTest::newRow("a clip nobody knows") << int(NxChangeKind::ClipRemove) << qint64(77);
        QTest::newRow("a living clip comes to life") << int(NxChangeKind::ClipAdd) << qint64(1);
        QTest::newRow("a timeline nobody knows") << int(NxChangeKind::TimelineRemove) << qint64(77);
        QTest::newRow("a name for a timeline nobody knows")
            << int(NxChangeKind::TimelineRename) << qint64(77);
        QTest::newRow("a move of a clip nobody knows") << int(NxChangeKind::ClipMove) << qint64(77);
    }

    void changesThatDoNotFitArePassedOver()
    {
        QFETCH(int, kind);
        QFETCH(qint64, id);
        EngineFixture project;
        project.memory.load(soundContents());
        NxChange change;
        change.what = NxChangeKind(kind);
        change.ids = {id};
        project.memory.timelines()->apply(change);
        QCOMPARE(shown(project.memory), QStringLiteral("T1: 1 2(3) 4 | T2: 5 | T3:"));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }
};

NX_TEST_MAIN(tst_NxTimelineMemory_load)
#include "tst_NxTimelineMemory_load.moc"
