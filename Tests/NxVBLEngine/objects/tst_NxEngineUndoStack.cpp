// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <NxCore/NxUndoRedoCommander.h>

#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QtTest>

namespace {

NxUndoRedoCommander scope(EngineFixture *project, const char *action)
{
    return {project->undo, QStringLiteral("test"), QLatin1String(action)};
}

} // namespace

class tst_NxEngineUndoStack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScopeInWhichNothingChangedLeavesNoStep()
    {
        EngineFixture project;
        QSignalSpy changed(project.undo, &INxUndoStack::changed);
        {
            const auto step = scope(&project, "nothing");
        }
        QCOMPARE(project.undo->count(), 0);
        QCOMPARE(changed.count(), 0);
    }

    void stepsGoBackAndForth()
    {
        EngineFixture project;
        QVERIFY(!project.undo->canUndo());
        QVERIFY(!project.undo->undo());
        QVERIFY(!project.undo->redo());
        project.addFolder(project.section, QStringLiteral("A"));
        project.addFolder(project.section, QStringLiteral("B"));
        QSignalSpy changed(project.undo, &INxUndoStack::changed);
        QCOMPARE(project.undo->index(), 2);
        QVERIFY(project.undo->undo());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(project.undo->index(), 1);
        QCOMPARE(project.undo->count(), 2);
        QCOMPARE(project.undo->undoText(), QStringLiteral("addFolder"));
        QCOMPARE(project.undo->redoText(), QStringLiteral("addFolder"));
        QVERIFY(project.undo->redo());
        QVERIFY(!project.undo->canRedo());
        QCOMPARE(project.undo->redoText(), QString());
        QCOMPARE(project.section->childFolderCount(), 2);
    }

    void undoneStepsAreGoneOnceSomethingElseIsDone()
    {
        EngineFixture project;
        project.addFolder(project.section, QStringLiteral("A"));
        project.addFolder(project.section, QStringLiteral("B"));
        project.undo->undo();
        project.addFolder(project.section, QStringLiteral("C"));
        QVERIFY(!project.undo->canRedo());
        QCOMPARE(project.undo->count(), 2);
    }

    void anEmptyScopeKeepsWhatWasUndone()
    {
        EngineFixture project;
        project.addFolder(project.section, QStringLiteral("A"));
        project.undo->undo();
        {
            const auto step = scope(&project, "nothing");
        }
        QVERIFY(project.undo->canRedo());
    }

    void nothingIsUndoneInsideAStep()
    {
        EngineFixture project;
        project.addFolder(project.section, QStringLiteral("A"));
        const auto step = scope(&project, "open");
        QVERIFY(!project.undo->undo());
        QVERIFY(!project.undo->redo());
        QCOMPARE(project.section->childFolderCount(), 1);
    }

    void theLastTwoHundredStepsAreKept()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("start"));
        for (int i = 0; i < 250; ++i)
            project.items->renameMediaItem(media, QString::number(i));
        QCOMPARE(project.undo->count(), 200);
        QCOMPARE(project.undo->index(), 200);
        while (project.undo->undo()) {}
        QCOMPARE(media->name(), QStringLiteral("49"));
        while (project.undo->redo()) {}
        QCOMPARE(media->name(), QStringLiteral("249"));
    }

    void aLongJobGoesOnWithItsStepAsLongAsItIsTheLast()
    {
        EngineFixture project;
        const auto slice = [&project](qint64 serial, const char *name) {
            project.undo->continueStep(serial);
            const auto step = scope(&project, "importMedia");
            project.addMedia(project.section, QLatin1String(name));
            return project.undo->lastSerial();
        };
        const qint64 first = slice(0, "a");
        QCOMPARE(slice(first, "b"), first);
        QCOMPARE(project.undo->count(), 1);

        project.items->renameMediaItem(project.named(QStringLiteral("a")), QStringLiteral("x"));
        const qint64 second = slice(first, "c"); // Something came in between.
        QVERIFY(second != first);
        QCOMPARE(project.undo->count(), 3);
        QCOMPARE(slice(second, "d"), second);

        QVERIFY(project.undo->isDone(second));
        project.undo->undo();
        QVERIFY(!project.undo->isDone(second));
        QVERIFY(project.undo->isDone(first));
        QCOMPARE(listing(project.section), QStringLiteral("x b"));
        slice(second, "e"); // Taken back: it does not come to life again.
        QCOMPARE(listing(project.section), QStringLiteral("x b e"));
        QVERIFY(!project.undo->isDone(second));
    }

    void goingOnConcernsOnlyTheNextStep()
    {
        EngineFixture project;
        project.addMedia(project.section, QStringLiteral("a"));
        project.undo->continueStep(project.undo->lastSerial());
        {
            const auto step = scope(&project, "nothing");
        }
        project.addMedia(project.section, QStringLiteral("b"));
        QCOMPARE(project.undo->count(), 2);
    }

    void aMediaThatALaterStepRemovedAgainStaysForThatStep()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        NxEngineMedia *other = project.addMedia(project.section, QStringLiteral("other"));
        const NxMediaRef watched(media);
        project.items->removeMediaItems(nullptr, {media}); // Falls off first,
        project.items->addMediaItems(project.section, {media});
        for (int i = 0; i < 150; ++i)
            project.items->renameMediaItem(other, QString::number(i));
        project.items->removeMediaItems(nullptr, {media}); // while this one remains.
        for (int i = 0; i < 60; ++i)
            project.items->renameMediaItem(other, QString::number(1000 + i));
        QCoreApplication::processEvents();
        QVERIFY(!watched.isNull());
        for (int i = 0; i < 61; ++i)
            QVERIFY(project.undo->undo());
        QCOMPARE(media->parentFolder(), project.section);
    }

    void stepsReachTheProjectFileWithWhatTheyChanged()
    {
        EngineFixture project;
        std::vector<NxStoreBatch> batches;
        project.memory.setWriter(
            [&batches](NxStoreBatch batch) { batches.push_back(std::move(batch)); });
        {
            const auto step = scope(&project, "both");
            project.addMedia(project.section, QStringLiteral("a"));
            project.addFolder(project.section, QStringLiteral("F"));
            QCOMPARE(batches.size(), size_t(0)); // Not half of it.
        }
        QCOMPARE(batches.size(), size_t(1));
        const auto holds = [&batches](auto wanted) {
            using Entry = decltype(wanted);
            return std::any_of(batches[0].begin(), batches[0].end(),
                               [](const NxStoreEntry::Any &entry) {
                                   return std::holds_alternative<Entry>(entry);
                               });
        };
        QVERIFY(holds(NxStoreEntry::NewMedia()));
        QVERIFY(holds(NxStoreEntry::NewFolder()));
        QVERIFY(holds(NxStoreEntry::StepBegin()));
        QVERIFY(holds(NxStoreEntry::StepChange()));
        QVERIFY(holds(NxStoreEntry::StepPosition()));
        QVERIFY(holds(NxStoreEntry::Counters()));
        project.undo->undo();
        QCOMPARE(batches.size(), size_t(2));
    }

    void stepsOfAnEarlierProcessAreTakenUp()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        project.items->renameMediaItem(media, QStringLiteral("b"));
        project.items->renameMediaItem(media, QStringLiteral("c"));
        project.undo->undo();
        const auto &kept = project.undo->steps();

        NxProjectContents contents;
        contents.media = {media->record()};
        contents.undoSteps.assign(kept.begin(), kept.end());
        contents.undoDone = project.undo->index();
        contents.counters = project.memory.counters();
        EngineFixture next;
        next.memory.load(contents);

        QCOMPARE(listing(next.section), QStringLiteral("b"));
        QVERIFY(next.undo->redo());
        QCOMPARE(listing(next.section), QStringLiteral("c"));
        QVERIFY(next.undo->undo());
        QVERIFY(next.undo->undo());
        QCOMPARE(listing(next.section), QStringLiteral("a"));
    }
};

NX_TEST_MAIN(tst_NxEngineUndoStack)
#include "tst_NxEngineUndoStack.moc"
