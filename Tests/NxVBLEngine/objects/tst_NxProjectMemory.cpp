// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxEngineResource.h>

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

namespace {

NxMediaRecord mediaRecord(qint64 id, int folder, qint64 place, const char *name)
{
    NxMediaRecord record;
    record.id = id;
    record.folder = folder;
    record.place = place;
    record.name = QLatin1String(name);
    record.path = QStringLiteral("/footage/") + record.name;
    return record;
}

NxFolderRecord folderRecord(int id, int parent, qint64 place, const char *name)
{
    return {id, mctMedia, parent, place, QLatin1String(name), true};
}

NxProjectContents contentsWithCounters()
{
    NxProjectContents contents;
    contents.counters = {100, 100, 1100, 100};
    return contents;
}

} // namespace

class tst_NxProjectMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newMediaAreAnnouncedOneByOneInOrder()
    {
        EngineFixture project;
        EngineEvents events(project.category);
        project.addMedia(project.section, {QStringLiteral("a"), QStringLiteral("b")});
        QCOMPARE(events.take(), (QStringList{QStringLiteral("before add a < Project Media"),
                                             QStringLiteral("after add a < Project Media"),
                                             QStringLiteral("before add b < Project Media"),
                                             QStringLiteral("after add b < Project Media")}));
        QCOMPARE(events.complaints, QStringList());
        QCOMPARE(project.memory.livingMediaCount(), qint64(2));
    }

    void idsAreNeverUsedTwice()
    {
        EngineFixture project;
        NxEngineMedia *first = project.addMedia(project.section, QStringLiteral("a"));
        const qint64 id = first->id();
        project.undo->undo();
        NxEngineMedia *second = project.addMedia(project.section, QStringLiteral("a"));
        QVERIFY(second->id() > id);
    }

    void mediaAreFoundByBothTheirPaths()
    {
        EngineFixture project;
        NxMediaSeed seed;
        seed.path = QStringLiteral("/link/a.mov");
        seed.canonicalPath = QStringLiteral("/real/a.mov");
        NxEngineMedia *media = project.memory.addNewMedia(project.section, {seed}).first();
        QCOMPARE(project.memory.mediaByPath(seed.path, mctMedia), media);
        QCOMPARE(project.memory.mediaByPath(seed.canonicalPath, mctMedia), media);
        QCOMPARE(project.memory.mediaByPath(seed.path, mctAudio), nullptr);
        QCOMPARE(project.memory.allMediaByPath(seed.path), QVector<NxEngineMedia *>{media});
        project.undo->undo();
        QCOMPARE(project.memory.mediaByPath(seed.path, mctMedia), nullptr);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void aNameIsTheFilesUnlessOneIsGiven()
    {
        EngineFixture project;
        NxMediaSeed seed;
        seed.path = QStringLiteral("/a/b/clip.mov");
        QCOMPARE(project.memory.addNewMedia(project.section, {seed}).first()->name(),
                 QStringLiteral("clip.mov"));
        seed.name = QStringLiteral("given");
        QCOMPARE(project.memory.addNewMedia(project.section, {seed}).first()->name(),
                 QStringLiteral("given"));
    }

    void loadsFoldersWhateverTheOrderOfTheirIds()
    {
        EngineFixture project;
        NxProjectContents contents = contentsWithCounters();
        contents.folders = {folderRecord(1001, 1005, 1, "inner"),
                            folderRecord(1005, fidRoot, 2, "outer"),
                            folderRecord(1006, fidRoot, 1, "first")};
        contents.media = {mediaRecord(3, 1001, 5, "c"), mediaRecord(1, fidRoot, 2, "a"),
                          mediaRecord(2, fidRoot, 1, "b")};
        project.memory.load(contents);
        QCOMPARE(listing(project.section), QStringLiteral("b a c"));
        QCOMPARE(project.section->childFolder(0)->name(), QStringLiteral("first"));
        QCOMPARE(project.category->folder(1001)->parentFolder(), project.category->folder(1005));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void nothingIsLostWhenAFolderIsUnknown()
    {
        EngineFixture project;
        NxProjectContents contents = contentsWithCounters();
        contents.folders = {
            folderRecord(1001, 4711, 1, "stray"), folderRecord(1002, 1001, 1, "child"),
            folderRecord(1003, 1004, 1, "ring a"), folderRecord(1004, 1003, 1, "ring b")};
        contents.media = {mediaRecord(1, 4712, 1, "lost"), mediaRecord(2, 1002, 2, "kept"),
                          mediaRecord(3, fidHiddenRoot, 3, "unfiled")};
        project.memory.load(contents);
        QVERIFY(project.category->folder(1001));
        QCOMPARE(listing(project.category->folder(1001)), QStringLiteral("kept"));
        QVERIFY(project.category->folder(1003));
        QVERIFY(project.category->folder(1004));
        const QString listed = listing(project.section);
        for (const char *name : {"lost", "kept", "unfiled"})
            QVERIFY2(listed.contains(QLatin1String(name)), name);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void removedRecordsComeBackOnlyByUndo()
    {
        EngineFixture project;
        NxProjectContents contents = contentsWithCounters();
        contents.media = {mediaRecord(1, fidRoot, 1, "a"), mediaRecord(2, fidRoot, 2, "b")};
        contents.media[0].alive = false;
        NxChange removal;
        removal.what = NxChangeKind::MediaRemove;
        removal.ids = {1};
        contents.undoSteps = {
            {7, QStringLiteral("f"), QStringLiteral("deleteMediaItems"), {removal}}};
        contents.undoDone = 1;
        project.memory.load(contents);
        QCOMPARE(listing(project.section), QStringLiteral("b"));
        QVERIFY(project.undo->undo());
        QCOMPARE(listing(project.section), QStringLiteral("a b"));
    }

    void resourcesKeepTheUsersNamesAndTheFavouritesTheirOrder()
    {
        EngineFixture project;
        NxEngineCategory *titles = project.memory.category(mctTitle);
        const qint64 one = titles->resources()[0]->id();
        const qint64 two = titles->resources()[1]->id();
        NxProjectContents contents = contentsWithCounters();
        contents.resources = {{one, QStringLiteral("Mine"), 2000},
                              {two, QString(), 1000},
                              {4711, QStringLiteral("?"), 5}};
        const QString ownName = titles->resources()[1]->name();
        project.memory.load(contents);
        QCOMPARE(titles->resources()[0]->name(), QStringLiteral("Mine"));
        const auto favourites = titles->section(fkFavourites)->items(true, true);
        QCOMPARE(favourites.size(), 2);
        QCOMPARE(favourites.first()->name(), ownName); // The one that became a favourite first.
    }

    void relativePathsAreHandedOutWhereTheyMakeADifference()
    {
        NxProjectMemory memory(QStringLiteral("/moved/here/Film.brevano"));
        NxProjectContents contents = contentsWithCounters();
        contents.media = {mediaRecord(1, fidRoot, 1, "a"), mediaRecord(2, fidRoot, 2, "b")};
        contents.media[0].relativePath = QStringLiteral("../footage/a");
        contents.media[1].relativePath = QStringLiteral("../../footage/b"); // Still the same place.
        memory.load(contents);
        const QHash<qint64, QString> handedOut = memory.takeRelativePaths();
        QCOMPARE(handedOut.size(), 1);
        QCOMPARE(handedOut.value(1), QStringLiteral("../footage/a"));
        QVERIFY(memory.takeRelativePaths().isEmpty());
    }

    void newMediaAreStoredWithTheirWayFromTheProject_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("relative");
        QTest::newRow("below") << "/films/footage/a.mov"
                               << "footage/a.mov";
        QTest::newRow("beside") << "/cards/a.mov"
                                << "../cards/a.mov";
    }

    void newMediaAreStoredWithTheirWayFromTheProject()
    {
        QFETCH(QString, path);
        NxProjectMemory memory(QStringLiteral("/films/Film.brevano"));
        NxStoreBatch written;
        memory.setWriter([&written](NxStoreBatch batch) { written = std::move(batch); });
        NxMediaSeed seed;
        seed.path = path;
        memory.addNewMedia(memory.category(mctMedia)->folder(fidRoot), {seed});
        for (const NxStoreEntry::Any &entry : written) {
            if (const auto *stored = std::get_if<NxStoreEntry::NewMedia>(&entry)) {
                QTEST(stored->media.first().relativePath, "relative");
                return;
            }
        }
        QFAIL("nothing was stored");
    }

    void fileFactsAreToldAndStoredOnlyWhenTheyDiffer()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        const int steps = project.undo->count();
        EngineEvents events(project.category);
        project.memory.setFileFacts(media, 10, 20, 30);
        project.memory.setFileFacts(media, 10, 20, 30);
        QCOMPARE(events.take(), QStringList(QStringLiteral("state a")));
        QCOMPARE(media->sourceSize(), qint64(10));
        QCOMPARE(project.undo->count(), steps); // Nothing to undo about the disk.
    }

    void presenceIsToldOnlyWhenItShows_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("told");
        QTest::newRow("seen for the first time")
            << int(NxPresence::Unknown) << int(NxPresence::Present) << false;
        QTest::newRow("goes missing")
            << int(NxPresence::Present) << int(NxPresence::Missing) << true;
        QTest::newRow("comes back") << int(NxPresence::Missing) << int(NxPresence::Present) << true;
        QTest::newRow("another reason")
            << int(NxPresence::Missing) << int(NxPresence::Unreachable) << true;
        QTest::newRow("still missing")
            << int(NxPresence::Missing) << int(NxPresence::Missing) << false;
    }

    void presenceIsToldOnlyWhenItShows()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(bool, told);
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a"));
        media->setPresence(NxPresence(before));
        EngineEvents events(project.category);
        project.memory.setPresence(media, NxPresence(after));
        QCOMPARE(events.take().size(), told ? 1 : 0);
    }

    void aMovedPathKeepsTheMediaAndItsHistory()
    {
        EngineFixture project;
        NxEngineMedia *media = project.addMedia(project.section, QStringLiteral("a.mov"));
        const int steps = project.undo->count();
        project.memory.setMovedPath(media, QStringLiteral("/elsewhere/a.mov"));
        QCOMPARE(project.memory.mediaByPath(QStringLiteral("/elsewhere/a.mov"), mctMedia), media);
        QCOMPARE(project.undo->count(), steps);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void unknownCategoriesAreNull()
    {
        EngineFixture project;
        QCOMPARE(project.memory.category(-1), nullptr);
        QCOMPARE(project.memory.category(mctNone), nullptr);
    }

    void namesLieInTheOrderOfTheFolders()
    {
        // Walking the folder walks memory forwards: the objects of a load lie one after the other.
        EngineFixture project;
        NxProjectContents contents = contentsWithCounters();
        constexpr int Count = 2000;
        for (int i = 0; i < Count; ++i)
            contents.media.push_back(mediaRecord(Count - i, fidRoot, i + 1, "x"));
        contents.counters.nextMediaId = Count + 1;
        contents.counters.nextPlace = Count + 1;
        project.memory.load(contents);
        int forward = 0;
        const auto items = project.section->items(true, true);
        for (int i = 1; i < items.size(); ++i) {
            const auto step = quintptr(items[i]) - quintptr(items[i - 1]);
            forward += step > 0 && step <= 2 * sizeof(NxEngineMedia) ? 1 : 0;
        }
        QVERIFY2(forward > Count * 9 / 10, qPrintable(QString::number(forward)));
    }
};

NX_TEST_MAIN(tst_NxProjectMemory)
#include "tst_NxProjectMemory.moc"
