// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/TimelineDesk.h>
#include <NxCore/INxUndoStack.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxClipPlace.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>

#include "ImportYard.h"

namespace {

constexpr qint64 StillFrames = 125; // Five seconds.

QList<INxAbstractMedia *> mediaOf(const ImportYard &yard)
{
    return yard.section()->items(true, true);
}

int usesOf(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media)->usedCount();
}

QList<INxClip *> clipsOf(const ImportYard &yard)
{
    const QList<INxTimeline *> timelines = yard.project->timelines();
    return timelines.size() == 1 ? timelines.constFirst()->clips() : QList<INxClip *>();
}

} // namespace

/// Media are put on the timeline.
class tst_TimelineDesk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTimelineIsMadeForTheFirstMedia();
    void mediaStandOneBehindTheOther();
    void allOfThemAreOneStep();
    void foldersAreLeftOut();
    void filmsKeepTheirLength();
    void whatCannotBeChangedSaysWhy();
    void withoutAProjectThereIsNoTimeline();
};

void tst_TimelineDesk::aTimelineIsMadeForTheFirstMedia()
{
    ImportYard yard;
    yard.import({yard.picture(QStringLiteral("a.png"))});
    const NxResult<QString> added = TimelineDesk::append(yard.project, mediaOf(yard));
    QVERIFY2(bool(added), qPrintable(added.errorText()));
    QCOMPARE(yard.project->timelines().size(), 1);
    QCOMPARE(*added, yard.project->timelines().constFirst()->name());
    QCOMPARE(clipsOf(yard).size(), 1);
    QCOMPARE(usesOf(mediaOf(yard).constFirst()), 1);
}

void tst_TimelineDesk::mediaStandOneBehindTheOther()
{
    ImportYard yard;
    yard.import({yard.picture(QStringLiteral("a.png")), yard.picture(QStringLiteral("b.png"))});
    QVERIFY(bool(TimelineDesk::append(yard.project, mediaOf(yard))));
    QVERIFY(bool(TimelineDesk::append(yard.project, {mediaOf(yard).constFirst()})));
    QVector<qint64> positions;
    for (const INxClip *clip : clipsOf(yard)) {
        QCOMPARE(clip->place().track, 0);
        QCOMPARE(clip->place().length, StillFrames);
        positions.append(clip->place().position);
    }
    QCOMPARE(positions, (QVector<qint64>{0, StillFrames, 2 * StillFrames}));
}

void tst_TimelineDesk::allOfThemAreOneStep()
{
    ImportYard yard;
    yard.import({yard.picture(QStringLiteral("a.png")), yard.picture(QStringLiteral("b.png"))});
    INxUndoStack *history = yard.project->undoStack();
    const int steps = history->count();
    QVERIFY(bool(TimelineDesk::append(yard.project, mediaOf(yard))));
    QCOMPARE(history->count(), steps + 1);
    QCOMPARE(history->undoText(), QStringLiteral("addClip"));
    history->undo();
    QCOMPARE(yard.project->timelines().size(), 0);
    QCOMPARE(usesOf(mediaOf(yard).constFirst()), 0);
    history->redo();
    QCOMPARE(clipsOf(yard).size(), 2);
}

void tst_TimelineDesk::foldersAreLeftOut()
{
    ImportYard yard;
    yard.import({yard.picture(QStringLiteral("a.png"))});
    QVERIFY(bool(TimelineDesk::append(yard.project, {yard.section(), mediaOf(yard).constFirst()})));
    QCOMPARE(clipsOf(yard).size(), 1);
}

void tst_TimelineDesk::filmsKeepTheirLength()
{
    ImportYard yard;
    yard.import({NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("30.mov")))});
    auto *film = dynamic_cast<INxAbstractMediaItem *>(mediaOf(yard).constFirst());
    INxFootageService *service = yard.project->footageService();
    QSignalSpy idle(service, &INxFootageService::idle);
    service->read({film}, INxFootageService::wFacts);
    QVERIFY(idle.wait(30'000));
    const qint64 msecs = film->mediaInfo()->duration();
    QVERIFY(msecs > 0);
    QVERIFY(bool(TimelineDesk::append(yard.project, {film})));
    QCOMPARE(clipsOf(yard).constFirst()->place().length, msecs * 25 / 1000);
}

void tst_TimelineDesk::whatCannotBeChangedSaysWhy()
{
    ImportYard yard;
    yard.import({yard.picture(QStringLiteral("a.png"))});
    yard.reopen(NxProjectOpenMode::ReadOnly);
    const NxResult<QString> added = TimelineDesk::append(yard.project, mediaOf(yard));
    QVERIFY(!added);
    QCOMPARE(added.error().message, yard.project->readOnlyReason());
    QVERIFY(yard.project->timelines().isEmpty());
}

void tst_TimelineDesk::withoutAProjectThereIsNoTimeline()
{
    const NxResult<QString> added = TimelineDesk::append(nullptr, {});
    QVERIFY(!added);
    QVERIFY(!added.error().message.isEmpty());
}

NX_TEST_MAIN_WIDGETS(tst_TimelineDesk)
#include "tst_TimelineDesk.moc"
