// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <Support/NxTestMain.h>

#include <QTimer>
#include <QtTest>

#include "ItemStand.h"
#include "ItemViewer.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

/// Counts its observers; refuses them if told so.
struct CountingManager final : INxMediaItemManager
{
    bool registerObserver(INxMediaItemEventObserver *observer) override
    {
        ++attempts;
        return !refuses && observers.add(observer);
    }
    void unregisterObserver(INxMediaItemEventObserver *observer) override
    {
        observers.remove(observer);
        ++farewells;
    }
    NxObserverList<INxMediaItemEventObserver> observers;
    bool refuses = false;
    int attempts = 0;
    int farewells = 0;
};

} // namespace

/// Who follows whom, and what happens when somebody dies or is idle.
class tst_NxMediaItemModel_lives : public QObject
{
    Q_OBJECT

    struct Shown
    {
        Shown()
        {
            model = std::make_unique<NxMediaItemModel>(mctMedia, nullptr);
            viewer = std::make_unique<ItemViewer>(model.get());
            model->subscribeMediaItemManager(&stand.manager);
            model->setSortEnable(true);
            model->setSortBy({sbName, soASC});
            model->load(stand.folder);
            static_cast<void>(viewer->takeTold());
        }
        QString text() const { return rowsText(model->getItems()); }
        QString told() const { return viewer->takeTold(); }
        /// The rows of a model that begins now.
        QString freshText() const
        {
            NxMediaItemModel fresh(mctMedia, nullptr);
            fresh.setSortEnable(true);
            fresh.setSortBy(model->getSortBy());
            fresh.load(stand.folder);
            fresh.setGroupBy(model->getGroupBy());
            fresh.setFilter(model->getFilter());
            return rowsText(fresh.getItems());
        }

        ItemStand stand{fkProject, "B:x A:y C:x"};
        std::unique_ptr<NxMediaItemModel> model;
        std::unique_ptr<ItemViewer> viewer;
    };

    static void addGroups()
    {
        QTest::addColumn<int>("groupBy");
        QTest::newRow("ungrouped") << int(gbNone);
        QTest::newRow("grouped") << int(gbCategory);
    }

private Q_SLOTS:
    void aSubscribedManagerIsFollowed()
    {
        Shown s;
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("AB")));
        QCOMPARE(s.told(), QStringLiteral("before reset, added AB to folder, reset"));
        s.stand.manager.take(s.stand.item("B"));
        QCOMPARE(s.told(), QStringLiteral("before reset, removing 3, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A AB C"));
    }

    void subscribingTwiceTellsOnce()
    {
        Shown s;
        s.model->subscribeMediaItemManager(&s.stand.manager);
        s.stand.manager.announce(s.stand.item("A"));
        QCOMPARE(s.told(), QStringLiteral("changed 1"));
    }

    void severalManagersAreFollowedUntilUnsubscribed()
    {
        Shown s;
        ScriptedItemManager second;
        s.model->subscribeMediaItemManager(&second);
        second.announce(s.stand.item("A"));
        s.stand.manager.announce(s.stand.item("B"));
        QCOMPARE(s.told(), QStringLiteral("changed 1, changed 2"));
        s.model->unSubscribeMediaItemManager();
        QVERIFY(second.observers.isEmpty() && s.stand.manager.observers.isEmpty());
        second.announce(s.stand.item("A"));
        s.stand.manager.announce(s.stand.item("B"));
        QCOMPARE(s.told(), QString());
        s.model->subscribeMediaItemManager(&s.stand.manager);
        s.stand.manager.announce(s.stand.item("B"));
        QCOMPARE(s.told(), QStringLiteral("changed 2"));
    }

    void refusedSubscriptionsAreNotKept()
    {
        CountingManager manager;
        {
            NxMediaItemModel model(mctMedia, nullptr);
            manager.refuses = true;
            model.subscribeMediaItemManager(&manager);
            model.subscribeMediaItemManager(nullptr);
            model.unSubscribeMediaItemManager();
            QCOMPARE(manager.attempts, 1);
            QCOMPARE(manager.farewells, 0);
            manager.refuses = false;
            model.subscribeMediaItemManager(&manager);
            model.subscribeMediaItemManager(&manager);
            QCOMPARE(manager.farewells, 0);
        }
        QCOMPARE(manager.farewells, 1);
        QVERIFY(manager.observers.isEmpty());
    }

    void modelAndManagerMayDieInAnyOrder()
    {
        auto manager = std::make_unique<ScriptedItemManager>();
        NxMediaItemModel survivor(mctMedia, nullptr);
        survivor.subscribeMediaItemManager(manager.get());
        auto model = std::make_unique<NxMediaItemModel>(mctMedia, nullptr);
        model->subscribeMediaItemManager(manager.get());
        model.reset();
        QVERIFY(!manager->observers.isEmpty());
        manager.reset();
        survivor.unSubscribeMediaItemManager();
        QCOMPARE(survivor.rowCount(), 0);
    }

    void whatHappenedWhileNobodyFollowedIsSeenWithTheNextRows_data()
    {
        QTest::addColumn<bool>("isFollowedBefore");
        QTest::newRow("followed before") << true;
        QTest::newRow("followed for the first time") << false;
    }

    void whatHappenedWhileNobodyFollowedIsSeenWithTheNextRows()
    {
        QFETCH(bool, isFollowedBefore);
        ItemStand stand(fkProject, "B:x A:y C:x");
        NxMediaItemModel model(mctMedia, nullptr);
        if (isFollowedBefore)
            model.subscribeMediaItemManager(&stand.manager);
        model.setSortEnable(true);
        model.setSortBy({sbName, soASC});
        model.load(stand.folder);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ A B C"));
        model.unSubscribeMediaItemManager();
        stand.item("A")->title = QStringLiteral("D");
        stand.item("B")->category = QStringLiteral("z");
        model.subscribeMediaItemManager(&stand.manager);
        model.load(stand.folder);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ B C D"));
        model.setGroupBy(ByCategory);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("[x] + C [y] + D [z] + B"));
    }

    void aModelThatFollowsNobodyReadsEverythingAnew()
    {
        ItemStand stand(fkProject, "B A C");
        NxMediaItemModel model(mctMedia, nullptr);
        model.setSortEnable(true);
        model.setSortBy({sbName, soASC});
        model.load(stand.folder);
        stand.item("A")->title = QStringLiteral("D");
        model.setSortBy({sbName, soASC});
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ B C D"));
    }

    void oneMoreAfterNobodyFollowedIsPlacedAnew()
    {
        Shown s;
        s.model->unSubscribeMediaItemManager();
        s.stand.item("A")->title = QStringLiteral("D");
        s.stand.folder->media.append(s.stand.make(QStringLiteral("E")));
        s.model->subscribeMediaItemManager(&s.stand.manager);
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("CC")));
        QCOMPARE(s.text(), QStringLiteral("+ B C CC D E"));
    }

    void theFolderMayDieWhileItIsShown_data() { addGroups(); }

    void theFolderMayDieWhileItIsShown()
    {
        QFETCH(int, groupBy);
        Shown s;
        s.model->setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        static_cast<void>(s.told());
        int rowsAtTheEnd = -1;
        connect(s.model.get(), &QAbstractItemModel::modelReset, this,
                [&] { rowsAtTheEnd = s.model->rowCount(); });
        s.stand.section->destroy(s.stand.folder);
        QCOMPARE(s.told(), QStringLiteral("before reset, reset"));
        QCOMPARE(rowsAtTheEnd, 0);
        QVERIFY(!s.model->folder());
        s.stand.list("N", s.stand.section);
        s.model->load(s.stand.section);
        QCOMPARE(s.model->rowCount(), groupBy == gbNone ? 2 : 3);
        s.model->load(nullptr);
    }

    void theFolderMayDieInsideAChange()
    {
        Shown s;
        ScriptedItem *item = s.stand.make(QStringLiteral("BB"));
        INxFolderMedia *folder = s.stand.folder;
        s.model->onBeforeAddItemEvent(folder, item);
        s.stand.section->destroy(s.stand.folder);
        s.model->onAfterAddItemEvent(folder, item);
        QCOMPARE(s.told(), QStringLiteral("before reset, reset"));
        QCOMPARE(s.model->rowCount(), 0);
        s.model->load(s.stand.section);
        QCOMPARE(s.told(), QStringLiteral("before reset, reset"));
    }

    void theDeathOfAFolderThatWasShownIsNotTold()
    {
        Shown s;
        s.model->load(s.stand.section);
        static_cast<void>(s.told());
        s.stand.section->destroy(s.stand.folder);
        QCOMPARE(s.told(), QString());
    }

    void theModelMayDieBeforeItsFolder()
    {
        Shown s;
        s.viewer.reset();
        s.model.reset();
        QVERIFY(s.stand.manager.observers.isEmpty());
        s.stand.section->destroy(s.stand.folder);
    }

    void aRemovedMediaMayDieAtOnce_data() { addGroups(); }

    void aRemovedMediaMayDieAtOnce()
    {
        QFETCH(int, groupBy);
        Shown s;
        s.model->setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        const int header = groupBy == gbNone ? -1 : 0;
        s.model->expandStateToggle(header, true); // So that media stand twice.
        INxAbstractMedia *dying = s.stand.item("C");
        connect(s.model.get(), &NxMediaItemModel::sigRemoveItem, this, [&s, dying] {
            s.stand.folder->media.removeAll(dying);
            if (s.stand.items.back().get() == dying)
                s.stand.items.pop_back();
        });
        s.model->onBeforeRemoveItemEvent(s.stand.folder, dying);
        QVERIFY(s.model->rows(dying).isEmpty());
        QCOMPARE(s.text(), groupBy == gbNone ? QStringLiteral("+ A B")
                                             : QStringLiteral("[x] + B + B [y] + A"));
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("D:y")));
        QCOMPARE(s.text(), s.freshText());
    }

    void whoHearsOfAnAdditionMayAddAtOnce_data() { addGroups(); }

    void whoHearsOfAnAdditionMayAddAtOnce()
    {
        QFETCH(int, groupBy);
        Shown s;
        s.model->setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        static_cast<void>(s.told());
        connect(s.model.get(), &NxMediaItemModel::sigAfterAddItem, this,
                [&s](INxFolderMedia *, INxAbstractMedia *item) {
                    if (item->name() == QLatin1String("BB"))
                        s.stand.manager.insert(s.stand.folder, 0,
                                               s.stand.make(QStringLiteral("BA:z")));
                });
        s.stand.manager.insert(s.stand.folder, 1, s.stand.make(QStringLiteral("BB:x")));
        QCOMPARE(s.told(),
                 QStringLiteral("before reset, added BB to folder, added BA to folder, reset"));
        QCOMPARE(s.text(), s.freshText());
    }

    void whoHearsOfARemovalMayLookElsewhere()
    {
        Shown s;
        connect(s.model.get(), &NxMediaItemModel::sigRemoveItem, this,
                [&s] { s.model->load(s.stand.section); });
        s.stand.manager.take(s.stand.item("B"));
        QCOMPARE(s.told(), QStringLiteral("before reset, removing 2, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A C"));
    }

    void whoHearsOfAResetMayChooseAnew()
    {
        Shown s;
        bool isDone = false;
        connect(s.model.get(), &QAbstractItemModel::modelReset, this, [&] {
            if (!std::exchange(isDone, true))
                s.model->setSortBy({sbName, soDESC});
        });
        s.model->load(s.stand.folder);
        QCOMPARE(s.told(), QStringLiteral("before reset, reset, before reset, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ C B A"));
    }

    void anIdleModelGivesMemoryBack_data() { addGroups(); }

    void anIdleModelGivesMemoryBack()
    {
        QFETCH(int, groupBy);
        Shown s;
        const QList<QTimer *> timers = s.model->findChildren<QTimer *>();
        QCOMPARE(timers.size(), 1);
        QVERIFY(timers.first()->isSingleShot());
        QCOMPARE(timers.first()->interval(), 60000);
        QVERIFY(timers.first()->isActive());
        QVERIFY(!NxMediaItemModel(mctMedia, nullptr).findChild<QTimer *>()->isActive());
        s.model->setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        const auto idle = [&] {
            const QList<INxAbstractMedia *> rows = s.model->getItems();
            static_cast<void>(s.told());
            QVERIFY(QMetaObject::invokeMethod(timers.first(), "timeout"));
            QCOMPARE(s.model->getItems(), rows);
            QCOMPARE(s.told(), QString());
        };
        idle();
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("AB:y")));
        QCOMPARE(s.text(), s.freshText());
        idle();
        s.stand.manager.take(s.stand.item("B"));
        QCOMPARE(s.text(), s.freshText());
        idle();
        s.stand.manager.rename(s.stand.item("A"), QStringLiteral("Z"));
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("BC:w")));
        QCOMPARE(s.text(), s.freshText());
        idle();
        s.model->setFilter(filterOf("c"));
        QCOMPARE(s.text(), s.freshText());
        idle();
        s.model->setSortBy({sbName, soDESC});
        s.model->setFilter({});
        QCOMPARE(s.text(), s.freshText());
    }

    void movesThatAreNotToldAsRemovalsAreFollowedWithTheNextOne()
    {
        Shown s;
        s.stand.manager.rename(s.stand.item("A"), QStringLiteral("B"));
        s.model->load(s.stand.folder);
        const INxAbstractMedia *moved = s.model->mediaItem(1);
        s.stand.manager.moveQuietly(s.stand.items.front().get(), s.stand.folder, 5);
        s.stand.manager.insert(s.stand.folder, 3, s.stand.make(QStringLiteral("D")));
        QCOMPARE(s.model->mediaItem(2), moved);
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_lives)
#include "tst_NxMediaItemModel_lives.moc"
