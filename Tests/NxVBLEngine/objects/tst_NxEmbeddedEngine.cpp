// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"
#include "RandomSession.h"

#include <NxCore/INxUndoStack.h>
#include <NxCore/NxFile.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxObserverConnector.h>
#include <NxVBLModel/NxTimelineUse.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <NxVBLEngine/Support/NxProjectDump.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <iterator>
#include <random>

using namespace NXVBLMODEL;

namespace {

QByteArray dumpOf(INxProject *project)
{
    return projectDump(*static_cast<NxEngineProject *>(project)->memory());
}

INxMediaManager *mediaOf(INxProject *project)
{
    return project->mediaLibrary()->mediaManager(mctMedia);
}

INxFolderMedia *sectionOf(INxProject *project)
{
    return mediaOf(project)->folderManager()->folder(fidRoot);
}

/// Now and then a file is read, cannot be read, or is to be read again.
void readSomething(NxProjectMemory *memory, std::mt19937 *random)
{
    const std::vector<NxEngineMedia *> living = memory->livingMedia();
    if (living.empty())
        return;
    NxEngineMedia *chosen = living[(*random)() % living.size()];
    const qint64 id = chosen->id();
    const NxFootageRecord outcomes[] = {
        NxFootageSamples::full(id, 1), NxFootageSamples::full(id, 2), NxFootageSamples::failed(id),
        NxFootageRecord(), NxFootageSamples::ofKind(NxFootageKind::Image)};
    memory->setFootage(chosen, outcomes[(*random)() % std::size(outcomes)]);
}

bool commit(INxProject *project)
{
    const auto answers = std::make_shared<QVector<bool>>();
    project->requestCommit(
        [answers](const NxResult<void> &result) { answers->append(bool(result)); });
    return QTest::qWaitFor([&answers] { return answers->size() == 1; }, NxPatience)
           && answers->first();
}

} // namespace

class tst_NxEmbeddedEngine : public QObject
{
    Q_OBJECT

private:
    static constexpr int Rounds = 4;
    static constexpr int OperationsInARound = 1250;

    QTemporaryDir m_folder;
    int m_count = 0;

    QString freshPath() { return m_folder.filePath(QStringLiteral("p%1.brevano").arg(++m_count)); }

    QString footage(const QString &name)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write("not read yet");
        return path;
    }

    static NxEmbeddedEngine::Options noBackups()
    {
        NxEmbeddedEngine::Options options;
        options.backups = false;
        options.readsFootage = false;
        return options;
    }

private Q_SLOTS:
    void oneProjectIsCurrentAtATime()
    {
        NxEmbeddedEngine engine(noBackups());
        const NxMediaEngineDoor door(&engine);
        QCOMPARE(INxProjectManager::getInstance()->currentProject(), nullptr);
        const QString path = freshPath();
        const auto created = engine.createProject(path);
        QVERIFY2(created, qPrintable(created.errorText()));
        QCOMPARE(INxProjectManager::getInstance()->currentProject(), *created);
        QCOMPARE((*created)->path(), path);
        QVERIFY(!(*created)->isReadOnly());

        const auto second = engine.createProject(freshPath());
        QVERIFY(!second);
        QVERIFY(second.errorText().contains(path));
        QVERIFY(!engine.openProject(path, NxProjectOpenMode::ReadWrite));

        QVERIFY(engine.closeProject());
        QCOMPARE(engine.currentProject(), nullptr);
        QVERIFY(engine.closeProject());
    }

    void aProjectIsNotMadeOverAFile()
    {
        NxEmbeddedEngine engine(noBackups());
        const QString path = footage(QStringLiteral("notes.brevano"));
        const NxFootageGuard guard(m_folder.path());
        const auto created = engine.createProject(path);
        QVERIFY(!created);
        QVERIFY(created.errorText().contains(path));
        const auto opened = engine.openProject(path, NxProjectOpenMode::ReadWrite);
        QVERIFY(!opened);
        QVERIFY(opened.errorText().contains(path));
        NX_VERIFY_UNTOUCHED(guard);
    }

    void itStaysOpenWhileSomebodyObserves()
    {
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(freshPath());
        QVERIFY(project);
        INxMediaItemEventObserver observer;
        {
            const NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver> connector(
                mediaOf(*project)->itemManager(), &observer);
            QVERIFY(connector.isConnected());
            NxTestLog::expectError(QStringLiteral("still observed"));
            QVERIFY(!engine.closeProject());
            QVERIFY(engine.currentProject());
        }
        QVERIFY(engine.closeProject());
    }

    void everythingIsThereWhenOpenedAgain()
    {
        const QString path = freshPath();
        QByteArray before;
        {
            NxEmbeddedEngine engine(noBackups());
            const auto project = engine.createProject(path);
            QVERIFY(project);
            auto *memory = static_cast<NxEngineProject *>(*project)->memory();
            RandomSession user(memory, 11);
            for (int i = 0; i < 400; ++i)
                user.step();
            before = dumpOf(*project);
            QVERIFY(engine.closeProject());
        }
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.openProject(path, NxProjectOpenMode::ReadWrite);
        QVERIFY2(project, qPrintable(project.errorText()));
        QCOMPARE(dumpOf(*project), before);
        QCOMPARE(engine.integrityProblems().join(QLatin1Char('\n')), QString());
    }

    void timelinesAreThereWhenOpenedAgain()
    {
        const QString path = freshPath();
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(path);
        QVERIFY(project);
        QVERIFY((*project)->timelines().isEmpty());
        INxTimelineEditor *editor = (*project)->timelineEditor();
        QVERIFY(editor);
        NxMediaSeed seed;
        seed.path = QStringLiteral("/footage/a.mov");
        NxProjectMemory *memory = static_cast<NxEngineProject *>(*project)->memory();
        NxEngineMedia *media =
            memory->addNewMedia(memory->category(mctMedia)->folder(fidRoot), {seed}).first();
        INxTimeline *film = editor->addTimeline(QStringLiteral("Film"));
        INxTimeline *inside = editor->addComposite(film, QStringLiteral("Inside"), {0, 0, 9, 0});
        QVERIFY(editor->addClip(inside, media, {2, 3, 4, 5}));
        const QString id = media->mediaId();
        QCOMPARE((*project)->timelines(), (QList<INxTimeline *>{film, inside}));
        QVERIFY(engine.closeProject());

        const auto again = engine.openProject(path, NxProjectOpenMode::ReadOnly);
        QVERIFY2(again, qPrintable(again.errorText()));
        const QList<INxTimeline *> timelines = (*again)->timelines();
        QCOMPARE(timelines.size(), 2);
        QCOMPARE(timelines.last()->name(), QStringLiteral("Inside"));
        const QList<NxTimelineUse> uses = (*again)->timelineUses(id);
        QCOMPARE(uses.size(), 1);
        QCOMPARE(uses.first().timeline, timelines.last());
        QVERIFY(uses.first().clip->place() == (NxClipPlace{2, 3, 4, 5}));
        QVERIFY(!(*again)->timelineEditor()->addTimeline(QStringLiteral("x")));
        QVERIFY((*again)->timelineUses(QStringLiteral("nobody")).isEmpty());
    }

    void whatWasReadOfFootageIsThereWhenOpenedAgain_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void whatWasReadOfFootageIsThereWhenOpenedAgain()
    {
        QFETCH(quint32, seed);
        const QString path = freshPath();
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(path);
        QVERIFY(project);
        auto *memory = static_cast<NxEngineProject *>(*project)->memory();
        RandomSession user(memory, seed);
        std::mt19937 random(seed);
        for (int i = 0; i < 1000; ++i) {
            user.step();
            readSomething(memory, &random);
        }
        const QByteArray before = dumpOf(*project);
        QVERIFY(before.contains("Maker Model 2")); // As the name of a camera.
        memory->flush();
        QVERIFY(engine.closeProject());
        const auto again = engine.openProject(path, NxProjectOpenMode::ReadWrite);
        QVERIFY2(again, qPrintable(again.errorText()));
        QCOMPARE(dumpOf(*again), before);
        QCOMPARE(engine.integrityProblems().join(QLatin1Char('\n')), QString());
    }

    void randomSessionsSurviveClosingAndUndoInTheNextProcess_data()
    {
        nxAddSeeds(20);
    }

    void randomSessionsSurviveClosingAndUndoInTheNextProcess()
    {
        QFETCH(quint32, seed);
        const QString path = freshPath();
        NxEmbeddedEngine engine(noBackups());
        QVERIFY(engine.createProject(path));
        for (int round = 0; round < Rounds; ++round) {
            auto *memory = static_cast<NxEngineProject *>(engine.currentProject())->memory();
            RandomSession user(memory, seed * 10 + quint32(round));
            for (int i = 0; i < OperationsInARound; ++i)
                user.step();
            const QByteArray end = dumpOf(engine.currentProject());
            const int done = memory->undoStack()->index();
            QVERIFY(engine.closeProject());
            const auto again = engine.openProject(path, NxProjectOpenMode::ReadWrite);
            QVERIFY2(again, qPrintable(again.errorText()));
            QCOMPARE(dumpOf(*again), end);
            QCOMPARE(engine.integrityProblems().join(QLatin1Char('\n')), QString());

            INxUndoStack *undo = (*again)->undoStack();
            QCOMPARE(undo->index(), done);
            const QByteArray fileAtEnd = dumpProjectFile(path);
            while (undo->undo()) {}
            while (undo->index() < done)
                QVERIFY(undo->redo());
            QCOMPARE(dumpOf(*again), end);
            QVERIFY(commit(*again));
            QCOMPARE(dumpProjectFile(path), fileAtEnd); // Every table and every column.
        }
    }

    void readOnlyProjectsSayWhyAndChangeNothing()
    {
        const QString path = freshPath();
        {
            NxEmbeddedEngine engine(noBackups());
            const auto project = engine.createProject(path);
            QVERIFY(project);
            QVERIFY(mediaOf(*project)->folderManager()->addFolder(sectionOf(*project),
                                                                  QStringLiteral("A")));
            QVERIFY(engine.closeProject());
        }
        const NxFootageGuard guard(m_folder.path());
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.openProject(path, NxProjectOpenMode::ReadOnly);
        QVERIFY(project);
        QVERIFY((*project)->isReadOnly());
        QVERIFY(!(*project)->readOnlyReason().isEmpty());
        QVERIFY(!mediaOf(*project)->folderManager()->addFolder(sectionOf(*project),
                                                               QStringLiteral("B")));
        NxTestLog::expectError(QStringLiteral("the project is read-only"));
        QCOMPARE(mediaOf(*project)->importer()->start(sectionOf(*project), {path}, mitFiles),
                 quint64(0));
        QVERIFY(!(*project)->undoStack()->canUndo());
        QCOMPARE(sectionOf(*project)->childFolderCount(), 1);
        QVERIFY(engine.closeProject());
        NX_VERIFY_UNTOUCHED(guard);
    }

    void aSecondOpenerSeesTheProjectButDoesNotChangeIt()
    {
        const QString path = freshPath();
        NxEmbeddedEngine first(noBackups());
        QVERIFY(first.createProject(path));
        NxEmbeddedEngine second(noBackups());
        const auto project = second.openProject(path, NxProjectOpenMode::ReadWrite);
        QVERIFY2(project, qPrintable(project.errorText()));
        QVERIFY((*project)->isReadOnly());
        QVERIFY((*project)->readOnlyReason().contains(
            QString::number(QCoreApplication::applicationPid())));
        QVERIFY(second.closeProject());
    }

    void aCommitIsAnsweredOnceItStandsInTheFile()
    {
        const QString path = freshPath();
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(path);
        QVERIFY(project);
        QVERIFY(mediaOf(*project)->folderManager()->addFolder(sectionOf(*project),
                                                              QStringLiteral("A")));
        QVERIFY(commit(*project));
        NxEmbeddedEngine reader(noBackups());
        const auto seen = reader.openProject(path, NxProjectOpenMode::ReadOnly);
        QVERIFY2(seen, qPrintable(seen.errorText()));
        QCOMPARE(sectionOf(*seen)->childFolderCount(), 1);
    }

    void aCopyOpensLikeTheOriginal()
    {
        const QString path = freshPath();
        const QString copy = freshPath();
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(path);
        QVERIFY(project);
        QVERIFY(mediaOf(*project)->folderManager()->addFolder(sectionOf(*project),
                                                              QStringLiteral("A")));
        const QByteArray before = dumpOf(*project);
        int answers = 0;
        QString problem;
        (*project)->saveCopy(copy, [&](const NxResult<void> &result) {
            ++answers;
            problem = result.errorText();
        });
        QTRY_COMPARE(answers, 1);
        QCOMPARE(problem, QString());
        QVERIFY(engine.closeProject());
        const auto copied = engine.openProject(copy, NxProjectOpenMode::ReadWrite);
        QVERIFY2(copied, qPrintable(copied.errorText()));
        QCOMPARE(dumpOf(*copied), before);
    }

    void importedFilesAreThereInTheNextProcess()
    {
        const QString path = freshPath();
        const QString clip = footage(QStringLiteral("clip.mov"));
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(path);
        QVERIFY(project);
        INxMediaImporter *importer = mediaOf(*project)->importer();
        QSignalSpy finished(importer, &INxMediaImporter::finished);
        QVERIFY(importer->start(sectionOf(*project), {clip}, mitFiles) != 0);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(listing(sectionOf(*project)), QStringLiteral("clip.mov"));
        QVERIFY(engine.closeProject());
        const auto again = engine.openProject(path, NxProjectOpenMode::ReadWrite);
        QVERIFY(again);
        QCOMPARE(listing(sectionOf(*again)), QStringLiteral("clip.mov"));
        QCOMPARE((*again)->undoStack()->undoText(), QStringLiteral("importMedia"));
    }

    void onlyCategoriesThatTakeFilesHaveAnImporter()
    {
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(freshPath());
        QVERIFY(project);
        for (int category = 0; category < MediaCategoryCount; ++category) {
            INxMediaManager *manager =
                (*project)->mediaLibrary()->mediaManager(NxMediaCategoryType(category));
            QCOMPARE(manager->importer() != nullptr, category <= mctSplitScreen);
        }
        QCOMPARE((*project)->mediaLibrary()->mediaManager(mctNone), nullptr);
    }

    void filesOfTheProjectAreAnsweredFromTheLastLook()
    {
        const QString clip = footage(QStringLiteral("here.mov"));
        NxEmbeddedEngine engine(noBackups());
        const auto project = engine.createProject(freshPath());
        QVERIFY(project);
        mediaOf(*project)->importer()->addNow(sectionOf(*project), {clip}, nullptr);
        engine.refreshExistence();
        QVERIFY(NxFile::exists(clip));
        QVERIFY(QFile::remove(clip));
        QVERIFY(NxFile::exists(clip)); // Nobody looked yet.
        engine.refreshExistence();
        QVERIFY(!NxFile::exists(clip));
        const auto *item =
            static_cast<INxAbstractMediaItem *>(sectionOf(*project)->items(true, true).first());
        QVERIFY(item->isUnavailable());
        QVERIFY(!item->unavailableReason().isEmpty());
        QVERIFY(engine.closeProject());
        QVERIFY(!NxFile::exists(clip));
        QVERIFY(NxFile::exists(m_folder.path()));
    }
};

NX_TEST_MAIN(tst_NxEmbeddedEngine)
#include "tst_NxEmbeddedEngine.moc"
