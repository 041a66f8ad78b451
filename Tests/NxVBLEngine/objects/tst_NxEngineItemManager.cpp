// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineResource.h>

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

namespace {

// A downloaded stock clip of another category: a resource with a file.
class StockClip final : public INxAbstractMediaItem
{
public:
    NxMediaType mediaType() const override { return mtVideoAudio; }
    QString name() const override { return QStringLiteral("Stock"); }
    QString filePath() const override { return path; }
    bool isResource() const override { return true; }
    bool isSourceMedia() const override { return true; }
    QString path = QStringLiteral("/stock/clip.mov");
};

} // namespace

class tst_NxEngineItemManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removalPairsEventsItemByItemInOneStep()
    {
        EngineFixture project;
        const auto media = project.addMedia(
            project.section, {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        const int steps = project.undo->count();
        EngineEvents events(project.category);
        QVERIFY(project.items->removeMediaItems(project.section, {media[2], media[0]}));
        QCOMPARE(events.take(), (QStringList{QStringLiteral("before remove c < Project Media"),
                                             QStringLiteral("after remove c < Project Media"),
                                             QStringLiteral("before remove a < Project Media"),
                                             QStringLiteral("after remove a < Project Media")}));
        QCOMPARE(events.complaints, QStringList());
        QCOMPARE(listing(project.section), QStringLiteral("b"));
        QCOMPARE(project.undo->count(), steps + 1);
        QCOMPARE(project.undo->undoText(), QStringLiteral("deleteMediaItems"));
    }

    void undoBringsTheSameObjectsBackInPlace()
    {
        EngineFixture project;
        const auto media = project.addMedia(
            project.section, {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        const QString id = media[1]->mediaId();
        const NxMediaRef watched(media[1]);
        project.items->removeMediaItems(nullptr, {media[1]});
        QCOMPARE(media[1]->parentFolder(), nullptr);
        QCoreApplication::processEvents();
        QVERIFY(!watched.isNull()); // The step keeps it alive.

        QVERIFY(project.undo->undo());
        QCOMPARE(listing(project.section), QStringLiteral("a b c"));
        QCOMPARE(project.section->findMedia(id, true), media[1]);
        QVERIFY(project.undo->redo());
        QCOMPARE(listing(project.section), QStringLiteral("a c"));
    }

    void aRemovedMediaDiesWhenItsStepFallsOff()
    {
        EngineFixture project;
        NxEngineMedia *gone = project.addMedia(project.section, QStringLiteral("gone"));
        NxEngineMedia *stays = project.addMedia(project.section, QStringLiteral("stays"));
        const NxMediaRef watched(gone);
        project.items->removeMediaItems(nullptr, {gone});
        for (int i = 0; i < NxEngineUndoStack::MaximumSteps - 1; ++i) {
            project.items->renameMediaItem(stays, QString::number(i));
            QCoreApplication::processEvents();
            QVERIFY(!watched.isNull());
        }
        project.items->renameMediaItem(stays, QStringLiteral("last"));
        QTRY_VERIFY(watched.isNull());
        QCOMPARE(project.undo->count(), NxEngineUndoStack::MaximumSteps);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void anUndoneImportDiesWhenSomethingElseIsDone()
    {
        EngineFixture project;
        NxEngineMedia *stays = project.addMedia(project.section, QStringLiteral("stays"));
        const NxMediaRef undone(project.addMedia(project.section, QStringLiteral("undone")));
        project.undo->undo();
        QCoreApplication::processEvents();
        QVERIFY(!undone.isNull());
        project.items->renameMediaItem(stays, QStringLiteral("x"));
        QTRY_VERIFY(undone.isNull());
        QVERIFY(!project.undo->canRedo());
    }

    void removalNamesEachItemOnceAndOnlyItsOwn()
    {
        EngineFixture project;
        EngineFixture stranger;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        NxEngineMedia *inside = project.addMedia(folder, QStringLiteral("in"));
        NxEngineMedia *outside = project.addMedia(project.section, QStringLiteral("out"));
        NxEngineMedia *foreign = stranger.addMedia(stranger.section, QStringLiteral("foreign"));
        EngineEvents events(project.category);
        QVERIFY(
            project.items->removeMediaItems(folder, {inside, outside, inside, nullptr, foreign}));
        QCOMPARE(events.take().size(), 2);
        QCOMPARE(listing(project.section), QStringLiteral("out"));
        QVERIFY(!project.items->removeMediaItems(folder, {inside, outside}));
        QVERIFY(!project.items->removeMediaItems(folder, {}));
    }

    void movesToTheEndAndTellsARemovalAndAnAddition()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        NxEngineMedia *a = project.addMedia(project.section, QStringLiteral("a"));
        project.addMedia(folder, QStringLiteral("b"));
        const QByteArray before = projectDump(project.memory);
        EngineEvents events(project.category);
        QVERIFY(project.items->moveMediaItems(project.section, folder, {a}));
        QCOMPARE(listing(folder), QStringLiteral("b a"));
        QCOMPARE(events.take(),
                 (QStringList{QStringLiteral("before move a: Project Media > F"),
                              QStringLiteral("before remove a < Project Media"),
                              QStringLiteral("after remove a < Project Media"),
                              QStringLiteral("before add a < F"), QStringLiteral("after add a < F"),
                              QStringLiteral("after move a: Project Media > F")}));
        QCOMPARE(events.complaints, QStringList());
        project.undo->undo();
        QCOMPARE(projectDump(project.memory), before);
        project.undo->redo();
        QCOMPARE(listing(folder), QStringLiteral("b a"));
    }

    void movingToWhereItIsLeavesNoStep()
    {
        EngineFixture project;
        NxEngineMedia *a = project.addMedia(project.section, QStringLiteral("a"));
        const int steps = project.undo->count();
        QVERIFY(!project.items->moveMediaItems(nullptr, project.section, {a}));
        QVERIFY(!project.items->moveMediaItems(nullptr, project.category->root(), {a}));
        QVERIFY(!project.items->moveMediaItems(nullptr, nullptr, {a}));
        QCOMPARE(project.undo->count(), steps);
    }

    void renaming_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("done");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("leavesStep");
        QTest::newRow("another name") << "new" << true << "new" << true;
        QTest::newRow("blanks are trimmed") << " new " << true << "new" << true;
        QTest::newRow("the same") << "old" << true << "old" << false;
        QTest::newRow("empty") << "" << false << "old" << false;
        QTest::newRow("only blanks") << "  " << false << "old" << false;
        QTest::newRow("too long") << QString(256, QLatin1Char('x')) << false << "old" << false;
    }

    void renaming()
    {
        QFETCH(QString, name);
        QFETCH(bool, done);
        QFETCH(QString, shown);
        QFETCH(bool, leavesStep);
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("old"));
        const QString path = media->sourcePath();
        QCOMPARE(project.items->renameMediaItem(media, name), done);
        QCOMPARE(media->name(), shown);
        QCOMPARE(media->sourcePath(), path); // The file keeps its name.
        QCOMPARE(project.undo->count(), leavesStep ? 2 : 1);
    }

    void twoMediaMayHaveOneName()
    {
        EngineFixture project;
        project.addMedia(project.section, QStringLiteral("a"));
        NxEngineMedia *b = project.addMedia(project.section, QStringLiteral("b"));
        QVERIFY(project.items->renameMediaItem(b, QStringLiteral("a")));
        QCOMPARE(listing(project.section), QStringLiteral("a a"));
    }

    void favouritesLeaveOneStepAndKnowWhen()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        QVERIFY(project.items->setFavourite(media, true));
        QVERIFY(project.items->setFavourite(media, true));
        QCOMPARE(project.undo->count(), 2);
        QVERIFY(media->favouriteTime().isValid());
        project.undo->undo();
        QVERIFY(!media->isFavourite());
        QVERIFY(!media->favouriteTime().isValid());
    }

    void relinkKeepsTheIdentityAndReadsTheSuffixAgain()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a.mov"));
        media->setPresence(NxPresence::Missing);
        const QString id = media->mediaId();
        QVERIFY(project.items->relinkMedia(media, QStringLiteral("/new/../other/a.wav")));
        QCOMPARE(media->sourcePath(), QStringLiteral("/other/a.wav"));
        QCOMPARE(media->name(), QStringLiteral("a.mov"));
        QCOMPARE(media->mediaType(), mtAudio);
        QCOMPARE(media->mediaId(), id);
        QVERIFY(!media->isUnavailable());
        QCOMPARE(project.memory.mediaByPath(QStringLiteral("/other/a.wav"), mctMedia), media);
        QCOMPARE(project.memory.mediaByPath(QStringLiteral("/footage/a.mov"), mctMedia), nullptr);
        project.undo->undo();
        QCOMPARE(project.memory.mediaByPath(QStringLiteral("/footage/a.mov"), mctMedia), media);
        QCOMPARE(media->mediaType(), mtVideoAudio);
        QVERIFY(!project.items->relinkMedia(media, QString()));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void addingWhatStandsElsewhereMovesIt()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        NxEngineMedia *a = project.addMedia(folder, QStringLiteral("a"));
        QVERIFY(project.items->addMediaItems({a})); // The first folder that takes media.
        QCOMPARE(a->parentFolder(), project.section);
        const int steps = project.undo->count();
        QVERIFY(project.items->addMediaItems(project.section, {a}));
        QCOMPARE(project.undo->count(), steps); // It stands there already.
    }

    void addingWhatWasRemovedBringsItBackAtTheEnd()
    {
        EngineFixture project;
        const auto media =
            project.addMedia(project.section, {QStringLiteral("a"), QStringLiteral("b")});
        project.items->removeMediaItems(nullptr, {media[0]});
        const QByteArray removed = projectDump(project.memory);
        QVERIFY(project.items->addMediaItems(project.section, {media[0]}));
        QCOMPARE(listing(project.section), QStringLiteral("b a"));
        project.undo->undo();
        QCOMPARE(projectDump(project.memory), removed);
    }

    void stockClipsAreFiledAsCopies()
    {
        EngineFixture project;
        StockClip clip;
        QVERIFY(project.items->addMediaItems(project.section, {&clip}));
        NxEngineMedia *copy = project.named(QStringLiteral("Stock"));
        QVERIFY(copy);
        QCOMPARE(copy->kindCode(), int(mkcStockCopy));
        QCOMPARE(copy->filePath(), clip.path);
        QVERIFY(!copy->isResource());
        QCOMPARE(project.section->findMediaByPath(clip.path, true), copy);
    }

    void whatHasNoFileIsNotFiled()
    {
        EngineFixture project;
        NxEngineCategory *titles = project.memory.category(mctTitle);
        StockClip clip;
        clip.path.clear();
        QVERIFY(!project.items->addMediaItems(project.section, {&clip}));
        QVERIFY(
            !project.items->addMediaItems(project.section, {titles->resources().front().get()}));
        QVERIFY(!project.items->addMediaItems(project.section, {nullptr}));
        QVERIFY(!project.items->addMediaItems(project.section, {}));
        QVERIFY(!project.items->addMediaItems(project.category->root(), {&clip}));
        QCOMPARE(project.undo->count(), 0);
    }

    void severalOperationsInOneScopeAreOneStep()
    {
        EngineFixture project;
        const auto media =
            project.addMedia(project.section, {QStringLiteral("a"), QStringLiteral("b")});
        const QByteArray before = projectDump(project.memory);
        {
            const NxUndoRedoCommander scope(project.undo, QStringLiteral("test"),
                                            QStringLiteral("both"));
            project.items->renameMediaItem(media[0], QStringLiteral("x"));
            project.items->removeMediaItems(nullptr, {media[1]});
        }
        QCOMPARE(project.undo->count(), 2);
        QCOMPARE(project.undo->undoText(), QStringLiteral("both"));
        project.undo->undo();
        QCOMPARE(projectDump(project.memory), before);
    }

    void aReadOnlyProjectRefusesEverything()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        const QByteArray before = projectDump(project.memory);
        project.memory.setReadOnly(true);
        QVERIFY(!project.items->renameMediaItem(media, QStringLiteral("x")));
        QVERIFY(!project.items->setFavourite(media, true));
        QVERIFY(!project.items->removeMediaItems(nullptr, {media}));
        QVERIFY(!project.items->moveMediaItems(nullptr, folder, {media}));
        QVERIFY(!project.items->relinkMedia(media, QStringLiteral("/x")));
        QVERIFY(!project.items->addMediaItems(folder, {media}));
        QVERIFY(project.memory.addNewMedia(project.section, {NxMediaSeed()}).isEmpty());
        QCOMPARE(projectDump(project.memory), before);
    }

    void severalCopiesKeepTheirOrderAmongMediaThatAreMoved()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        NxEngineMedia *standing = project.addMedia(project.section, QStringLiteral("standing"));
        EngineFixture other;
        QList<INxAbstractMedia *> items;
        for (const char *name : {"a", "b", "c"})
            items.append(other.addMedia(other.section, QLatin1String(name)));
        items.insert(2, standing);
        items.append(nullptr);
        const int steps = project.undo->count();
        QVERIFY(!project.items->addMediaItems(folder, items)); // Nothing is no media.
        QCOMPARE(listing(folder), QStringLiteral("a b standing c"));
        QCOMPARE(project.undo->count(), steps + 1);
        QVERIFY(project.undo->undo());
        QCOMPARE(listing(folder), QString());
        QCOMPARE(listing(project.section), QStringLiteral("standing"));
    }

    void aMediaWhoseAdditionWasUndoneStaysAway()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("undone"));
        QVERIFY(project.undo->undo());
        QVERIFY(!project.items->addMediaItems(project.section, {media}));
        QCOMPARE(listing(project.section), QString());
        QVERIFY(project.undo->redo());
        QCOMPARE(listing(project.section), QStringLiteral("undone"));
    }

    void refreshRemembersTheFolderAndTellsNothing()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("F"));
        EngineEvents events(project.category);
        project.items->refresh(folder);
        QCOMPARE(events.take(), QStringList());
        QCOMPARE(project.items->currentRoot(), folder);
        project.folders->removeFolder(folder);
        QTRY_COMPARE(project.items->currentRoot(), nullptr);
    }
};

NX_TEST_MAIN(tst_NxEngineItemManager)
#include "tst_NxEngineItemManager.moc"
