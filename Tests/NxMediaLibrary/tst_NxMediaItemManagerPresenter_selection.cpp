// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxProject.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemPresenterStand.h"

using namespace NXVBLMODEL;

namespace {

const QString selectionChanged = QStringLiteral("items: sigSelectItemsChanged()");

QString asked(const char *names)
{
    return QStringLiteral("items: sigSelectItems([%1])").arg(QLatin1String(names));
}

/// A history of one step, which a test does again and again.
class ReplayedHistory final : public INxUndoStack
{
public:
    using Step = std::function<void()>;

    bool undo() override
    {
        {
            const ReplayScope replaying(this);
            step();
        }
        Q_EMIT changed();
        return true;
    }
    bool redo() override { return undo(); }
    bool canUndo() const override { return true; }
    bool canRedo() const override { return true; }
    QString undoText() const override { return {}; }
    QString redoText() const override { return {}; }
    int count() const override { return 1; }
    int index() const override { return 1; }

    /// Whether anybody waits for the end of what is replayed.
    [[nodiscard]] bool isFollowed() const
    {
        return isSignalConnected(QMetaMethod::fromSignal(&INxUndoStack::changed));
    }

    Step step;

protected:
    void openStep(const QString &, const QString &) override {}
    void closeStep() override {}
};

struct ReplayedProject final : INxProject
{
    INxMediaLibrary *mediaLibrary() override { return nullptr; }
    INxUndoStack *undoStack() override { return &history; }

    ReplayedHistory history;
};

/// A list that shows "folder", with "a", "b" and "c" in it; "x" stands elsewhere.
struct SelectionStand : ItemPresenterStand
{
    SelectionStand()
    {
        engine.project = &project;
        favourites->itsKind = fkFavourites;
        presenter.setFolder(folder);
        log.take();
    }
    void select(const QList<INxAbstractMedia *> &selected)
    {
        presenter.setSelectedItems(selected);
        log.take();
    }
    QString selection() const { return ScriptedItemManager::namesOf(presenter.selectedItems()); }
    void show(INxFolderMedia *shown)
    {
        presenter.setFolder(shown);
        log.take();
    }
    static void nothing() {}

    ReplayedProject project;
    ScriptedItemFolder *const favourites = category.addFolder("favourites", &category.folders.root);
    ScriptedItem *const a = category.list(QStringLiteral("a"), folder);
    ScriptedItem *const b = category.list(QStringLiteral("b"), folder);
    ScriptedItem *const c = category.list(QStringLiteral("c"), folder);
    ScriptedItem *const x = category.list(QStringLiteral("x"), other);
};

} // namespace

/// What is selected: told by the view, taken out when it goes, and chosen when it comes back.
class tst_NxMediaItemManagerPresenter_selection : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Told by the view

    void theSelectionIsKeptInItsOrder()
    {
        SelectionStand stand;
        QStringList seen;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigSelectItemsChanged, this,
                [&] { seen.append(stand.selection()); });
        stand.presenter.setSelectedItems({});
        stand.presenter.setSelectedItems({stand.b, stand.a});
        stand.presenter.setSelectedItems({stand.b, stand.a});
        stand.presenter.setSelectedItems({stand.a, stand.b});
        stand.presenter.setSelectedItems({stand.a});
        stand.presenter.setSelectedItems({});
        QCOMPARE(seen, (QStringList{QStringLiteral("b a"), QStringLiteral("a b"),
                                    QStringLiteral("a"), QString()}));
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, selectionChanged,
                                                selectionChanged, selectionChanged}));
    }

    void severalAreMoreThanOne()
    {
        SelectionStand stand;
        QVERIFY(!stand.presenter.multiSelected());
        stand.presenter.setSelectedItems({stand.a});
        QVERIFY(!stand.presenter.multiSelected());
        stand.presenter.setSelectedItems({stand.a, stand.b});
        QVERIFY(stand.presenter.multiSelected());
        stand.presenter.setSelectedItems({});
        QVERIFY(!stand.presenter.multiSelected());
    }

    void theViewIsAskedToSelect()
    {
        SelectionStand stand;
        stand.select({stand.a});
        stand.presenter.selectAll();
        stand.presenter.clearSelection();
        stand.presenter.selectItems({stand.c, stand.b});
        stand.presenter.selectItems({});
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("items: sigSelectAll()"),
                                                QStringLiteral("items: sigClearSelection()"),
                                                asked("c b"), asked("")}));
        QCOMPARE(stand.selection(), QStringLiteral("a"));
    }

    // What goes

    void aRemovedMediaLeavesTheSelectionWhileItStillLives()
    {
        SelectionStand stand;
        stand.select({stand.c, stand.a, stand.b});
        QStringList homes;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigSelectItemsChanged, this,
                [&] { homes.append(stand.a->home->name()); });
        stand.category.items.take(stand.a);
        QCOMPARE(homes, QStringList{QStringLiteral("folder")});
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QStringLiteral("c b"));
    }

    void mediaLeaveOneByOne()
    {
        SelectionStand stand;
        stand.select({stand.a, stand.b, stand.c});
        stand.category.items.take(stand.c);
        QCOMPARE(stand.selection(), QStringLiteral("a b"));
        stand.category.items.take(stand.a);
        QCOMPARE(stand.selection(), QStringLiteral("b"));
        stand.category.items.take(stand.b);
        QCOMPARE(stand.selection(), QString());
        QCOMPARE(stand.log.take(),
                 (QStringList{selectionChanged, selectionChanged, selectionChanged}));
    }

    void aMediaThatIsNotSelectedGoesInSilence()
    {
        SelectionStand stand;
        stand.select({stand.a});
        stand.category.items.take(stand.b);
        stand.category.items.take(stand.x);
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("a"));
    }

    void aMediaThatStandsOnTwoRowsLeavesBoth()
    {
        SelectionStand stand;
        stand.select({stand.a, stand.b, stand.a});
        stand.category.items.take(stand.a);
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QStringLiteral("b"));
    }

    void aMediaOfAnotherFolderLeavesToo()
    {
        SelectionStand stand;
        stand.select({stand.x, stand.a});
        stand.category.items.take(stand.x);
        QCOMPARE(stand.selection(), QStringLiteral("a"));
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
    }

    void aMovedMediaLeaves()
    {
        SelectionStand stand;
        stand.select({stand.a, stand.b});
        stand.category.items.move(stand.a, stand.other, 0);
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QStringLiteral("b"));
    }

    void otherEventsLeaveTheSelectionAlone()
    {
        SelectionStand stand;
        stand.select({stand.a, stand.b});
        stand.category.items.rename(stand.a, QStringLiteral("z"));
        stand.category.items.announce(stand.b);
        stand.category.items.insert(stand.folder, 0, stand.category.list("new"));
        stand.category.items.moveQuietly(stand.b, stand.other, 0);
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("z b"));
    }

    void aClearedFolderTakesItsOwnMediaAlong()
    {
        SelectionStand stand;
        stand.select({stand.a, stand.x, stand.b});
        stand.category.items.clear(stand.folder, [&stand] { stand.folder->media.clear(); });
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QStringLiteral("x"));
        stand.category.items.clear(stand.folder, [] {});
        stand.category.items.clear(nullptr, [] {});
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("x"));
    }

    void mediaOfAFolderFurtherInStayWhenTheOuterOneIsCleared()
    {
        SelectionStand stand;
        ScriptedItem *inner = stand.category.list(QStringLiteral("inner"),
                                                  stand.category.addFolder("f", stand.folder));
        stand.select({inner, stand.a});
        stand.category.items.clear(stand.folder, [] {});
        QCOMPARE(stand.selection(), QStringLiteral("inner"));
    }

    // Favourites are listed away from home

    void aFavouriteThatIsOneNoLongerStaysSelectedAtHome()
    {
        SelectionStand stand;
        stand.favourites->media = {stand.a, stand.b};
        stand.select({stand.a});
        stand.category.items.clear(stand.favourites, SelectionStand::nothing);
        stand.category.items.takeGuest(stand.favourites, stand.a, SelectionStand::nothing);
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("a"));
    }

    void aFavouriteThatIsOneNoLongerLeavesTheFavourites_data()
    {
        QTest::addColumn<bool>("showsOuter");
        QTest::newRow("favourites shown") << false;
        QTest::newRow("a folder around them shown") << true;
    }

    void aFavouriteThatIsOneNoLongerLeavesTheFavourites()
    {
        QFETCH(bool, showsOuter);
        SelectionStand stand;
        stand.favourites->media = {stand.a, stand.x};
        stand.show(showsOuter ? &stand.category.folders.root : stand.favourites);
        stand.select({stand.a, stand.x});
        stand.category.items.takeGuest(stand.favourites, stand.a, SelectionStand::nothing);
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QStringLiteral("x"));
        stand.category.items.clear(stand.favourites, [] {});
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QString());
    }

    void aRemovedFavouriteLeavesWhereverItIsSelected()
    {
        SelectionStand stand;
        stand.favourites->media = {stand.a};
        stand.show(stand.favourites);
        stand.select({stand.a});
        stand.category.items.take(stand.a);
        QCOMPARE(stand.log.take(), QStringList{selectionChanged});
        QCOMPARE(stand.selection(), QString());
    }

    void aFavouriteLeavesAListThatShowsNoFolder()
    {
        ItemPresenterStand stand;
        ScriptedItem *a = stand.category.list(QStringLiteral("a"), stand.folder);
        stand.presenter.setSelectedItems({a});
        stand.category.items.takeGuest(stand.other, a, [] {});
        QVERIFY(stand.presenter.selectedItems().isEmpty());
    }

    // What comes back

    void whatAnUndoBringsBackIsSelectedAtItsEnd()
    {
        SelectionStand stand;
        stand.category.items.take(stand.a);
        stand.category.items.take(stand.c);
        stand.select({stand.b});
        stand.project.history.step = [&stand] {
            stand.category.items.insert(stand.folder, 1, stand.c);
            stand.category.items.insert(stand.folder, 0, stand.a);
            QCOMPARE(stand.log.take(), QStringList());
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, asked("c a")}));
        QCOMPARE(stand.selection(), QStringLiteral("c a"));
    }

    void everyUndoSelectsItsOwn()
    {
        SelectionStand stand;
        for (ScriptedItem *item : {stand.a, stand.b}) {
            stand.category.items.take(item);
            stand.project.history.step = [&stand, item] {
                stand.category.items.insert(stand.folder, 0, item);
            };
            QVERIFY(stand.project.history.undo());
            QCOMPARE(stand.log.take(),
                     (QStringList{selectionChanged, asked(qUtf8Printable(item->title))}));
            QVERIFY(!stand.project.history.isFollowed());
            Q_EMIT stand.project.history.changed();
            QCOMPARE(stand.log.take(), QStringList());
        }
        QCOMPARE(stand.selection(), QStringLiteral("b"));
    }

    void whatIsSelectedAlreadyIsAskedForAgain()
    {
        SelectionStand stand;
        stand.select({stand.a});
        stand.project.history.step = [&stand] {
            stand.category.items.observers.tell(
                [&stand](auto *observer) { observer->onAfterAddItemEvent(stand.folder, stand.a); });
        };
        QVERIFY(stand.project.history.redo());
        QCOMPARE(stand.log.take(), QStringList{asked("a")});
    }

    void mediaThatComeInOtherWaysAreNotSelected()
    {
        SelectionStand stand;
        stand.select({stand.b});
        stand.category.items.insert(stand.folder, 0, stand.category.list("new"));
        Q_EMIT stand.project.history.changed();
        stand.engine.project = nullptr;
        stand.category.items.insert(stand.folder, 0, stand.category.list("newer"));
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("b"));
    }

    void whatComesBackElsewhereIsNotSelected()
    {
        SelectionStand stand;
        stand.select({stand.b});
        stand.category.items.take(stand.x);
        stand.project.history.step = [&stand] {
            stand.category.items.insert(stand.other, 0, stand.x);
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("b"));
        stand.category.items.take(stand.x);
        stand.show(stand.category.section);
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, asked("x")}));
    }

    void nothingIsSelectedWhereNoFolderIsShown()
    {
        ItemPresenterStand stand;
        ReplayedProject project;
        stand.engine.project = &project;
        ScriptedItem item;
        project.history.step = [&] { stand.category.items.insert(stand.folder, 0, &item); };
        QVERIFY(project.history.undo());
        QCOMPARE(stand.log.take(), QStringList());
        stand.folder->media.clear();
    }

    void whatCameBackAndDiedIsNotSelected()
    {
        SelectionStand stand;
        stand.category.items.take(stand.b);
        stand.project.history.step = [&stand] {
            auto dying = std::make_unique<ScriptedItem>(mtVideo, QStringLiteral("dying"));
            stand.category.items.insert(stand.folder, 0, dying.get());
            stand.category.items.insert(stand.folder, 0, stand.b);
            stand.folder->media.removeAll(dying.get());
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, asked("b")}));
    }

    void whatWasTakenAgainInTheSameStepIsNotSelected()
    {
        SelectionStand stand;
        stand.category.items.take(stand.b);
        stand.project.history.step = [&stand] {
            stand.category.items.insert(stand.folder, 0, stand.b);
            stand.category.items.take(stand.b);
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void anUndoneFavouriteIsSelectedAmongFavouritesOnly()
    {
        SelectionStand stand;
        stand.select({stand.b});
        stand.project.history.step = [&stand] {
            stand.favourites->media.clear();
            stand.category.items.insertGuest(stand.favourites, 0, stand.a, SelectionStand::nothing);
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.selection(), QStringLiteral("b"));
        stand.show(stand.favourites);
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, asked("a")}));
    }

    void whatComesHomeAndIntoTheFavouritesIsSelectedOnce()
    {
        SelectionStand stand;
        stand.show(stand.favourites);
        stand.category.items.take(stand.a);
        stand.project.history.step = [&stand] {
            stand.category.items.insert(stand.folder, 0, stand.a);
            stand.category.items.insertGuest(stand.favourites, 0, stand.a, SelectionStand::nothing);
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.log.take(), (QStringList{selectionChanged, asked("a")}));
    }

    void thePresenterMayDieInAnUndo_data()
    {
        QTest::addColumn<bool>("atTheEnd");
        QTest::newRow("while media come back") << false;
        QTest::newRow("when they are selected") << true;
    }

    void thePresenterMayDieInAnUndo()
    {
        QFETCH(bool, atTheEnd);
        SelectionStand stand;
        auto *presenter = new NxMediaItemManagerPresenter(&stand.category.items, nullptr);
        presenter->setFolder(stand.folder);
        connect(presenter, &NxMediaItemManagerPresenter::sigSelectItemsChanged, this,
                [presenter] { delete presenter; });
        stand.category.items.take(stand.a);
        stand.project.history.step = [&] {
            stand.category.items.insert(stand.folder, 0, stand.a);
            if (!atTheEnd)
                delete presenter;
        };
        QVERIFY(stand.project.history.undo());
        QCOMPARE(stand.selection(), QStringLiteral("a"));
    }
};

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_selection)
#include "tst_NxMediaItemManagerPresenter_selection.moc"
