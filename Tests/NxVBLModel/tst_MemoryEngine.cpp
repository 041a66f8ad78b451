// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxMediaRef.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <functional>

#include "memoryengine.h"

namespace {

struct Watcher final : INxMediaItemEventObserver
{
    void onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override
    {
        note("before add", folder, item);
    }
    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override
    {
        note("after add", folder, item);
    }
    void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override
    {
        note("before remove", folder, item);
    }
    void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override
    {
        note("after remove", folder, item);
    }
    void note(const char *what, const INxFolderMedia *folder, INxAbstractMedia *item)
    {
        const bool isListed = folder->items(false, true).contains(item);
        notes += QStringLiteral("%1 %2, %3")
                     .arg(QLatin1String(what), item->name(),
                          isListed ? QStringLiteral("listed") : QStringLiteral("not listed"));
        if (reaction)
            reaction();
    }
    QStringList notes;
    std::function<void()> reaction;
};

using Connector = NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>;

} // namespace

/// What an editor's own engine has to do, shown by the one of the embedding example.
class tst_MemoryEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isReachedThroughTheDoor();
    void hasOneCategory();
    void knowsItsFoldersById();
    void announcesEachItemBeforeAndAfter();
    void announcesARemovalWhileTheItemLives();
    void aMediaAnswersItsFolder();
    void anObserverMayLeaveWhileItIsTold();
    void listsAllMediaOfItsFolders();
};

void tst_MemoryEngine::isReachedThroughTheDoor()
{
    MemoryEngine engine;
    const NxMediaEngineDoor door(&engine);
    INxProject *project = INxProjectManager::getInstance()->currentProject();
    QCOMPARE(project, static_cast<INxProject *>(&engine));
    QCOMPARE(project->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia),
             static_cast<INxMediaManager *>(&engine));
}

void tst_MemoryEngine::hasOneCategory()
{
    MemoryEngine engine;
    QCOMPARE(engine.categoryType(), NXVBLMODEL::mctMedia);
    for (int category = 1; category <= NXVBLMODEL::mctNone; ++category)
        QVERIFY(!engine.mediaManager(NXVBLMODEL::NxMediaCategoryType(category)));
}

void tst_MemoryEngine::knowsItsFoldersById()
{
    MemoryEngine engine;
    QCOMPARE(engine.folder(NXVBLMODEL::fidRoot), static_cast<INxFolderMedia *>(&engine.section));
    QVERIFY(!engine.folder(4711));
    QCOMPARE(engine.rootFolder()->folderId(), 0);
    QCOMPARE(engine.section.owner(), static_cast<INxFolderMedia *>(&engine.section));
}

void tst_MemoryEngine::announcesEachItemBeforeAndAfter()
{
    MemoryEngine engine;
    Watcher watcher;
    const Connector connector(&engine.items, &watcher);
    auto *a = new MemoryMedia(QStringLiteral("a"));
    auto *b = new MemoryMedia(QStringLiteral("b"));
    QVERIFY(engine.items.addMediaItems(&engine.section, {a, b}));
    QCOMPARE(watcher.notes, (QStringList{QStringLiteral("before add a, not listed"),
                                         QStringLiteral("after add a, listed"),
                                         QStringLiteral("before add b, not listed"),
                                         QStringLiteral("after add b, listed")}));
}

void tst_MemoryEngine::announcesARemovalWhileTheItemLives()
{
    MemoryEngine engine;
    auto *a = new MemoryMedia(QStringLiteral("a"));
    const NxMediaRef ref(a);
    engine.items.addMediaItems(&engine.section, {a});
    Watcher watcher;
    const Connector connector(&engine.items, &watcher);
    QVERIFY(engine.items.removeMediaItems(&engine.section, {a}));
    QCOMPARE(watcher.notes, (QStringList{QStringLiteral("before remove a, listed"),
                                         QStringLiteral("after remove a, not listed")}));
    QVERIFY(ref.isNull());
}

void tst_MemoryEngine::aMediaAnswersItsFolder()
{
    MemoryEngine engine;
    auto *a = new MemoryMedia(QStringLiteral("a"));
    QVERIFY(!a->parentFolder());
    engine.items.addMediaItems(&engine.section, {a});
    QCOMPARE(a->parentFolder(), static_cast<INxFolderMedia *>(&engine.section));
    QVERIFY(engine.section.containsMedia(a, false));
}

void tst_MemoryEngine::anObserverMayLeaveWhileItIsTold()
{
    MemoryEngine engine;
    Watcher leaving;
    Watcher staying;
    auto connector = std::make_unique<Connector>(&engine.items, &leaving);
    const Connector other(&engine.items, &staying);
    leaving.reaction = [&connector] { connector.reset(); };
    engine.items.addMediaItems(&engine.section, {new MemoryMedia(QStringLiteral("a"))});
    QCOMPARE(leaving.notes.size(), 1);
    QCOMPARE(staying.notes.size(), 2);
}

void tst_MemoryEngine::listsAllMediaOfItsFolders()
{
    MemoryEngine engine;
    auto *day = new MemoryFolder(1001, QStringLiteral("Day 1"), &engine.section);
    auto *a = new MemoryMedia(QStringLiteral("a"));
    auto *b = new MemoryMedia(QStringLiteral("b"));
    engine.items.addMediaItems(day, {b});
    engine.items.addMediaItems(&engine.section, {a});
    QCOMPARE(engine.allMedia(), (QList<INxAbstractMedia *>{a, b}));
}

NX_TEST_MAIN(tst_MemoryEngine)
#include "tst_MemoryEngine.moc"
