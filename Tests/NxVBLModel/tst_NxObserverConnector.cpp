// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxObserverConnector.h>

#include <NxVBLModel/INxMediaFolderEventObserver.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

#include "memoryengine.h"

namespace {

struct Watcher final : INxMediaItemEventObserver
{
    void onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *) override { ++added; }
    int added = 0;
};

using Connector = NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>;
using FolderConnector = NxObserverConnectorT<INxFolderMediaManager, INxMediaFolderEventObserver>;

} // namespace

class tst_NxObserverConnector : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void connectsForAsLongAsItLives();
    void unregistersThroughItsBase();
    void showsARefusalAtOnce();
    void aRefusedOneLeavesTheOtherConnected();
    void showsTheRefusalOfAManagerWithoutObservers();
    void isNotConnectedToNull();
    void outlivesItsManager();
    void outlivesItsFolderManager();

private:
    static void addOne(MemoryEngine &engine)
    {
        engine.items.addMediaItems(&engine.section, {new MemoryMedia(QStringLiteral("a.mp4"))});
    }
};

void tst_NxObserverConnector::connectsForAsLongAsItLives()
{
    MemoryEngine engine;
    Watcher watcher;
    {
        const Connector connector(&engine.items, &watcher);
        QVERIFY(connector.isConnected());
        addOne(engine);
        QCOMPARE(watcher.added, 1);
    }
    addOne(engine);
    QCOMPARE(watcher.added, 1);
}

void tst_NxObserverConnector::unregistersThroughItsBase()
{
    MemoryEngine engine;
    Watcher watcher;
    std::unique_ptr<NxObserverConnector> connector =
        std::make_unique<Connector>(&engine.items, &watcher);
    QVERIFY(connector->isConnected());
    connector.reset();
    addOne(engine);
    QCOMPARE(watcher.added, 0);
}

void tst_NxObserverConnector::showsARefusalAtOnce()
{
    MemoryEngine engine;
    Watcher watcher;
    const Connector first(&engine.items, &watcher);
    const Connector second(&engine.items, &watcher);
    QVERIFY(first.isConnected());
    QVERIFY(!second.isConnected());
}

void tst_NxObserverConnector::aRefusedOneLeavesTheOtherConnected()
{
    MemoryEngine engine;
    Watcher watcher;
    const Connector first(&engine.items, &watcher);
    {
        const Connector refused(&engine.items, &watcher);
        QVERIFY(!refused.isConnected());
    }
    addOne(engine);
    QCOMPARE(watcher.added, 1);
}

void tst_NxObserverConnector::showsTheRefusalOfAManagerWithoutObservers()
{
    MemoryEngine engine;
    INxMediaFolderEventObserver observer;
    const FolderConnector connector(&engine, &observer);
    QVERIFY(!connector.isConnected());
}

void tst_NxObserverConnector::isNotConnectedToNull()
{
    MemoryEngine engine;
    Watcher watcher;
    const Connector withoutManager(nullptr, &watcher);
    QVERIFY(!withoutManager.isConnected());
    const Connector withoutObserver(&engine.items, nullptr);
    QVERIFY(!withoutObserver.isConnected());
    const Connector withoutBoth(nullptr, nullptr);
    QVERIFY(!withoutBoth.isConnected());
}

void tst_NxObserverConnector::outlivesItsManager()
{
    auto engine = std::make_unique<MemoryEngine>();
    Watcher watcher;
    auto connector = std::make_unique<Connector>(&engine->items, &watcher);
    QVERIFY(connector->isConnected());
    engine.reset();
    QVERIFY(!connector->isConnected());
    connector.reset();
    QCOMPARE(watcher.added, 0);
}

void tst_NxObserverConnector::outlivesItsFolderManager()
{
    struct Welcoming final : INxFolderMediaManager
    {
        INxFolderMedia *rootFolder() override { return nullptr; }
        INxFolderMedia *folder(int) override { return nullptr; }
        bool registerObserver(INxMediaFolderEventObserver *) override { return true; }
    };
    INxMediaFolderEventObserver observer;
    auto manager = std::make_unique<Welcoming>();
    const FolderConnector connector(manager.get(), &observer);
    QVERIFY(connector.isConnected());
    manager.reset();
    QVERIFY(!connector.isConnected());
}

NX_TEST_MAIN(tst_NxObserverConnector)
#include "tst_NxObserverConnector.moc"
