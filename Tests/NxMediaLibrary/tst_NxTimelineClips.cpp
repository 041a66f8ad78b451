// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxTimelineClips.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ScriptedProject.h"
#include "TextLines.h"

namespace {

QSet<QString> ids(const char *words)
{
    const QStringList list = QString::fromLatin1(words).split(QLatin1Char(' '));
    return {list.begin(), list.end()};
}

/// "main: a b" for each timeline that holds clips of the media.
QStringList texts(const QVector<NxTimelineClips::OfTimeline> &places)
{
    QStringList list;
    for (const NxTimelineClips::OfTimeline &place : places) {
        QStringList clips;
        for (const INxClip *clip : place.clips)
            clips.append(ScriptedTimeline::labelOf(clip));
        list.append(place.timeline->name() + QLatin1String(": ") + clips.join(QLatin1Char(' ')));
    }
    return list;
}

QStringList texts(const QVector<NxTimelineClips::OfSplitScreen> &places)
{
    QStringList list;
    for (const NxTimelineClips::OfSplitScreen &place : places) {
        QStringList clips;
        for (const INxClip *clip : place.clips)
            clips.append(ScriptedTimeline::labelOf(clip));
        list.append(ScriptedTimeline::labelOf(place.split) + QLatin1String(": ")
                    + clips.join(QLatin1Char(' ')));
    }
    return list;
}

} // namespace

/// Which clips leave the timelines together with their media, and in which order.
class tst_NxTimelineClips : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsNothingWithoutAProject();
    void walksNoTimelineForNoMedia();
    void findsTheClipsOfTheMediaAlone();
    void findsEveryClipOfAMedia();
    void listsEachTimelineOnce();
    void keepsTheOrderOfOuterTimelines();
    void findsClipsOfCompositesInnermostFirst();
    void findsClipsInsideSplitScreens();
    void leavesTheClipOfACompositeAlone();
    void leavesTheSplitScreenAloneThatShowsTheMedia();
    void takesASplitScreenOfTheMediaToo();
    void asksForTheTimelinesOnce();
    void removesFromTheInsideOut();
    void removesEachClipOnce();
    void countsWhatATimelineRefuses();
};

void tst_NxTimelineClips::findsNothingWithoutAProject()
{
    const NxTimelineClips clips(nullptr, ids("A"));
    QVERIFY(clips.onComposites().isEmpty());
    QVERIFY(clips.inSplitScreens().isEmpty());
    QVERIFY(clips.onOuterTimelines().isEmpty());
    QCOMPARE(clips.remove(), 0);
}

void tst_NxTimelineClips::walksNoTimelineForNoMedia()
{
    QStringList journal;
    ScriptedProject project(&journal);
    project.addTimeline(QStringLiteral("main"))->add(QStringLiteral("a"), QString());
    const NxTimelineClips clips(&project, {});
    QCOMPARE(clips.remove(), 0);
    QCOMPARE(project.walks, 0);
}

void tst_NxTimelineClips::findsTheClipsOfTheMediaAlone()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    main->add(QStringLiteral("a"), QStringLiteral("A"));
    main->add(QStringLiteral("title"), QString());
    main->add(QStringLiteral("b"), QStringLiteral("B"));
    main->add(QStringLiteral("c"), QStringLiteral("C"));
    const NxTimelineClips clips(&project, ids("A C X"));
    QCOMPARE(texts(clips.onOuterTimelines()), lines({"main: a c"}));
    QCOMPARE(clips.remove(), 2);
    QCOMPARE(journal, lines({"main loses a", "main loses c"}));
}

void tst_NxTimelineClips::findsEveryClipOfAMedia()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    for (const char *label : {"first", "again", "last"})
        main->add(QLatin1String(label), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(clips.remove(), 3);
    QVERIFY(main->held.empty());
}

void tst_NxTimelineClips::listsEachTimelineOnce()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    ScriptedComposite *inner = project.addComposite(main, QStringLiteral("inner"));
    for (const char *media : {"A", "B", "A"}) {
        main->add(QString::fromLatin1(media).toLower(), QLatin1String(media));
        inner->add(QLatin1String("in-") + QLatin1String(media), QLatin1String(media));
    }
    const NxTimelineClips clips(&project, ids("A B"));
    QCOMPARE(texts(clips.onOuterTimelines()), lines({"main: a b a"}));
    QCOMPARE(texts(clips.onComposites()), lines({"inner: in-A in-B in-A"}));
}

void tst_NxTimelineClips::keepsTheOrderOfOuterTimelines()
{
    QStringList journal;
    ScriptedProject project(&journal);
    for (const char *called : {"one", "two", "three"})
        project.addTimeline(QLatin1String(called))->add(QStringLiteral("a"), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(texts(clips.onOuterTimelines()), lines({"one: a", "two: a", "three: a"}));
}

void tst_NxTimelineClips::findsClipsOfCompositesInnermostFirst()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    ScriptedComposite *outer = project.addComposite(main, QStringLiteral("outer"));
    ScriptedComposite *middle = project.addComposite(outer, QStringLiteral("middle"));
    ScriptedComposite *inmost = project.addComposite(middle, QStringLiteral("inmost"));
    for (ScriptedComposite *one : {outer, middle, inmost})
        one->add(QStringLiteral("a"), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(texts(clips.onComposites()), lines({"inmost: a", "middle: a", "outer: a"}));
    QVERIFY(clips.onOuterTimelines().isEmpty());
}

void tst_NxTimelineClips::findsClipsInsideSplitScreens()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    ScriptedComposite *inner = project.addComposite(main, QStringLiteral("inner"));
    ScriptedSplitScreen *onMain = main->addSplitScreen(QStringLiteral("wide"));
    onMain->add(QStringLiteral("left"), QStringLiteral("A"));
    onMain->add(QStringLiteral("right"), QStringLiteral("B"));
    ScriptedSplitScreen *within = inner->addSplitScreen(QStringLiteral("narrow"));
    within->add(QStringLiteral("top"), QStringLiteral("A"));
    within->add(QStringLiteral("bottom"), QStringLiteral("A"));
    main->addSplitScreen(QStringLiteral("other"))->add(QStringLiteral("only"), QStringLiteral("B"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(texts(clips.inSplitScreens()), lines({"narrow: top bottom", "wide: left"}));
    QVERIFY(clips.onComposites().isEmpty());
    QVERIFY(clips.onOuterTimelines().isEmpty());
}

void tst_NxTimelineClips::leavesTheClipOfACompositeAlone()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    project.addComposite(main, QStringLiteral("inner"))
        ->add(QStringLiteral("a"), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(clips.remove(), 1);
    QCOMPARE(main->held.size(), size_t(1)); // What is left of the composite is the user's.
}

void tst_NxTimelineClips::leavesTheSplitScreenAloneThatShowsTheMedia()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    main->addSplitScreen(QStringLiteral("split"))->add(QStringLiteral("a"), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QCOMPARE(clips.remove(), 1);
    QCOMPARE(main->held.size(), size_t(1));
}

void tst_NxTimelineClips::takesASplitScreenOfTheMediaToo()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedSplitScreen *split =
        project.addTimeline(QStringLiteral("main"))->addSplitScreen(QStringLiteral("split"));
    split->id = QStringLiteral("S");
    split->add(QStringLiteral("a"), QStringLiteral("A"));
    split->add(QStringLiteral("b"), QStringLiteral("B"));
    const NxTimelineClips clips(&project, ids("S A"));
    QCOMPARE(clips.remove(), 2);
    QCOMPARE(journal, lines({"split loses a", "main loses split"}));
}

void tst_NxTimelineClips::asksForTheTimelinesOnce()
{
    QStringList journal;
    ScriptedProject project(&journal);
    project.addTimeline(QStringLiteral("main"))->add(QStringLiteral("a"), QStringLiteral("A"));
    QSet<QString> many;
    for (int i = 0; i < 1000; ++i)
        many.insert(QString::number(i));
    QCOMPARE(NxTimelineClips(&project, many).remove(), 0);
    QCOMPARE(project.walks, 1);
    QVERIFY(project.asked.isEmpty());
}

void tst_NxTimelineClips::removesFromTheInsideOut()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    main->add(QStringLiteral("m"), QStringLiteral("A"));
    main->addSplitScreen(QStringLiteral("split"))->add(QStringLiteral("s"), QStringLiteral("A"));
    ScriptedComposite *outer = project.addComposite(main, QStringLiteral("outer"));
    outer->add(QStringLiteral("o"), QStringLiteral("A"));
    ScriptedComposite *inner = project.addComposite(outer, QStringLiteral("inner"));
    inner->add(QStringLiteral("i"), QStringLiteral("A"));
    inner->addSplitScreen(QStringLiteral("deep"))->add(QStringLiteral("d"), QStringLiteral("A"));
    project.addTimeline(QStringLiteral("second"))->add(QStringLiteral("z"), QStringLiteral("A"));
    QCOMPARE(NxTimelineClips(&project, ids("A")).remove(), 6);
    QCOMPARE(journal, lines({"inner loses i", "outer loses o", "deep loses d", "split loses s",
                             "main loses m", "second loses z"}));
}

void tst_NxTimelineClips::removesEachClipOnce()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    ScriptedComposite *inner = project.addComposite(main, QStringLiteral("inner"));
    main->add(QStringLiteral("m"), QStringLiteral("A"));
    inner->add(QStringLiteral("i"), QStringLiteral("B"));
    const NxTimelineClips clips(&project, ids("A B"));
    QCOMPARE(clips.remove(), 2);
    QCOMPARE(journal, lines({"inner loses i", "main loses m"}));
    QCOMPARE(NxTimelineClips(&project, ids("A B")).remove(), 0);
}

void tst_NxTimelineClips::countsWhatATimelineRefuses()
{
    QStringList journal;
    ScriptedProject project(&journal);
    ScriptedTimeline *main = project.addTimeline(QStringLiteral("main"));
    ScriptedClip *gone = main->add(QStringLiteral("gone"), QStringLiteral("A"));
    main->add(QStringLiteral("there"), QStringLiteral("A"));
    const NxTimelineClips clips(&project, ids("A"));
    QVERIFY(main->removeClip(gone));
    QCOMPARE(clips.remove(), 1); // The clip that had left already does not count.
}

NX_TEST_MAIN(tst_NxTimelineClips)
#include "tst_NxTimelineClips.moc"
