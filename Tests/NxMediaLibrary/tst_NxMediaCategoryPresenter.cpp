// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <Support/NxTestMain.h>

#include <QMetaMethod>
#include <QTest>

#include <memory>

#include "LogLines.h"
#include "PresenterStand.h"
#include "TextLines.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

/// A category whose section holds A and B, and which has a search folder. Nothing of it is made
/// yet.
struct Stand : PresenterStand
{
    explicit Stand(NxMediaCategoryType type = mctMedia) : category(library[type])
    {
        a = category.addFolder("A", category.section);
        b = category.addFolder("B", category.section);
        search.searchFolder = true;
        category.folders.search = &search;
        category.tell(nullptr);
        presenter = std::make_unique<NxMediaCategoryPresenter>(&category, nullptr);
    }
    NxFolderMediaManagerPresenter *folders() const { return presenter->folderManagerPresenter(); }
    NxMediaItemManagerPresenter *items() const { return presenter->mediaItemManagerPresenter(); }
    /// Has all that is told from now on noted down.
    void listen()
    {
        log.follow(folders(), QStringLiteral("folders"));
        log.follow(items(), QStringLiteral("items"));
        log.take();
    }
    /// A is the tree's folder, and shown.
    void enterA()
    {
        folders()->setCurrentFolder(a);
        listen();
    }
    /// A is the tree's folder; the search folder is shown.
    void enterSearch()
    {
        enterA();
        items()->setFolder(&search);
        log.take();
    }
    QString shown() const { return items()->folder() ? items()->folder()->name() : QString(); }

    ScriptedCategory &category;
    ScriptedItemFolder *a;
    ScriptedItemFolder *b;
    ScriptedItemFolder search{QStringLiteral("search")};
    std::unique_ptr<NxMediaCategoryPresenter> presenter;
};

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

NxMediaItemViewFilter filterOf(int mode, const QString &keyword)
{
    NxMediaItemViewFilter filter;
    filter.searchMode = mode;
    filter.keyword = keyword;
    return filter;
}

} // namespace

class tst_NxMediaCategoryPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesNothingBeforeItIsAskedFor();
    void makesEachPresenterOnce_data();
    void makesEachPresenterOnce();
    void makesItsPresentersWithoutManagers_data();
    void makesItsPresentersWithoutManagers();
    void showsTheCategoryAsTheUserLeftIt();
    void leavesTheManagersWhenItDies();
    void slotsKeepTheirOrder();
    void listFollowsTheTree();
    void listIsMadeWhenTheTreeNeedsIt();
    void listStaysWithoutACurrentFolder();
    void listShowsTheParentOfARemovedFolder();
    void goesToAFolder();
    void goesToNoFolder();
    void goesToTheCurrentFolder_data();
    void goesToTheCurrentFolder();
    void showsWhatLooksAlike();
    void looksForNothingAlikeWithoutASearchFolder_data();
    void looksForNothingAlikeWithoutASearchFolder();
    void goesBackFromASearch();
    void goesBackToTheFolderChosenMeanwhile();
    void goesBackToNoFolder();
    void searchesWhereTheFolderSearches_data();
    void searchesWhereTheFolderSearches();
    void searchesByKeywordInTheFolderItself();
    void searchesNothingWithoutACurrentFolder();
    void searchesNothingWithoutASearchFolder_data();
    void searchesNothingWithoutASearchFolder();
};

void tst_NxMediaCategoryPresenter::makesNothingBeforeItIsAskedFor()
{
    const Stand stand;
    QCOMPARE(stand.presenter->mediaManager(), &stand.category);
    QVERIFY(stand.presenter->children().isEmpty());
    QVERIFY(stand.category.items.observers.isEmpty());
    QVERIFY(stand.category.folders.observers.isEmpty());
}

void tst_NxMediaCategoryPresenter::makesEachPresenterOnce_data()
{
    QTest::addColumn<int>("code");
    for (int code = mctMedia; code < MediaCategoryCount; ++code)
        QTest::addRow("category %d", code) << code;
}

void tst_NxMediaCategoryPresenter::makesEachPresenterOnce()
{
    QFETCH(int, code);
    const Stand stand{NxMediaCategoryType(code)};
    NxFolderMediaManagerPresenter *folders = stand.folders();
    NxMediaItemManagerPresenter *items = stand.items();
    QCOMPARE(stand.folders(), folders);
    QCOMPARE(stand.items(), items);
    QCOMPARE(folders->parent(), stand.presenter.get());
    QCOMPARE(items->parent(), stand.presenter.get());
    QCOMPARE(folders->folderManager(), &stand.category.folders);
    QCOMPARE(items->itemManager(), &stand.category.items);
    QCOMPARE(int(items->categoryType()), code);
    QVERIFY(!folders->currentFolder());
    QVERIFY(!items->folder());
}

void tst_NxMediaCategoryPresenter::makesItsPresentersWithoutManagers_data()
{
    QTest::addColumn<bool>("hasManager");
    QTest::newRow("no category") << false;
    QTest::newRow("a category without managers") << true;
}

void tst_NxMediaCategoryPresenter::makesItsPresentersWithoutManagers()
{
    QFETCH(bool, hasManager);
    Stand stand;
    stand.category.hasFolders = false;
    stand.category.hasItems = false;
    NxMediaCategoryPresenter presenter(hasManager ? &stand.category : nullptr, nullptr);
    QVERIFY(!presenter.folderManagerPresenter()->folderManager());
    QVERIFY(!presenter.mediaItemManagerPresenter()->itemManager());
    presenter.folderManagerPresenter()->setCurrentFolder(stand.a);
    QCOMPARE(presenter.mediaItemManagerPresenter()->folder(), stand.a);
    NxTestLog::expectError(text("search folder is nullptr"));
    presenter.slotFilterSimilarSearchChanged();
    QCOMPARE(presenter.mediaItemManagerPresenter()->folder(), stand.a);
}

void tst_NxMediaCategoryPresenter::showsTheCategoryAsTheUserLeftIt()
{
    NxMediaItemViewSort sort;
    sort.sortBy = sbDuration;
    sort.order = soASC;
    Stand stand(mctAudio);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    setting->SetSortBy(mctAudio, sort.sortBy);
    setting->SetSortByOrder(mctAudio, sort.order);
    setting->SetFilterType(mctAudio, mtfFree);
    QCOMPARE(stand.items()->viewMode(), vmList);
    QCOMPARE(stand.items()->getSortBy(), sort);
    QCOMPARE(stand.items()->getFilter().type, int(mtfFree));
}

void tst_NxMediaCategoryPresenter::leavesTheManagersWhenItDies()
{
    Stand stand;
    stand.enterA();
    QVERIFY(!stand.category.folders.observers.isEmpty());
    stand.presenter.reset();
    QVERIFY(stand.category.items.observers.isEmpty());
    QVERIFY(stand.category.folders.observers.isEmpty());
}

void tst_NxMediaCategoryPresenter::slotsKeepTheirOrder()
{
    const QMetaObject &meta = NxMediaCategoryPresenter::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(names, lines({"slotCurrentFolderChanged()", "slotOnGotoFolder(INxFolderMedia*)",
                           "slotOnFilterKeywordChanged()", "slotFilterSimilarSearchChanged()",
                           "slotOnExitSearchFolder()"}));
}

void tst_NxMediaCategoryPresenter::listFollowsTheTree()
{
    Stand stand;
    stand.listen();
    const QStringList told =
        lines({"items: sigRootFolderChanged()", "folders: sigCurrentFolderChanged()"});
    stand.folders()->setCurrentFolder(stand.a);
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(), told);
    stand.folders()->setCurrentFolder(stand.a);
    QCOMPARE(stand.log.take(), QStringList());
    stand.folders()->setCurrentFolder(stand.b);
    QCOMPARE(stand.shown(), text("B"));
    QCOMPARE(stand.log.take(), told);
    QCOMPARE(stand.items()->getCategoryTreeSelectedFolder(), stand.b);
}

void tst_NxMediaCategoryPresenter::listIsMadeWhenTheTreeNeedsIt()
{
    const Stand stand;
    stand.folders()->setCurrentFolder(stand.a);
    QVERIFY(stand.presenter->findChild<NxMediaItemManagerPresenter *>());
    QCOMPARE(stand.shown(), text("A"));
}

void tst_NxMediaCategoryPresenter::listStaysWithoutACurrentFolder()
{
    Stand stand;
    stand.enterA();
    const NxLogCapture log;
    stand.folders()->setCurrentFolder(nullptr);
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(), lines({"folders: sigCurrentFolderChanged()"}));
    QCOMPARE(linesOf(log), lines({"info NxMediaCategoryPresenter::slotCurrentFolderChanged: "
                                  "current folder is nullptr"}));
}

void tst_NxMediaCategoryPresenter::listShowsTheParentOfARemovedFolder()
{
    Stand stand;
    stand.enterA();
    ScriptedItemFolder *section = stand.category.section;
    auto &observers = stand.category.folders.observers;
    const int row = stand.a->rowInParent();
    observers.tell([&](auto *observer) { observer->onBeforeRemoveFolderEvent(section, row, row); });
    section->destroy(stand.a);
    QVERIFY(!stand.items()->folder());
    observers.tell([](auto *observer) { observer->onAfterRemoveFolderEvent(); });
    QCOMPARE(stand.shown(), section->name());
    QCOMPARE(stand.folders()->currentFolder(), section);
}

void tst_NxMediaCategoryPresenter::goesToAFolder()
{
    Stand stand;
    stand.enterA();
    stand.items()->gotoFolder(stand.b);
    QCOMPARE(stand.folders()->currentFolder(), stand.b);
    QCOMPARE(stand.shown(), text("B"));
    QCOMPARE(stand.log.take(),
             lines({"items: sigRootFolderChanged()", "folders: sigCurrentFolderChanged()",
                    "items: sigGotoFolder(B)"}));
}

void tst_NxMediaCategoryPresenter::goesToNoFolder()
{
    Stand stand;
    stand.enterA();
    const NxLogCapture log;
    NxTestLog::expectError(text("folder is nullptr"));
    stand.presenter->slotOnGotoFolder(nullptr);
    QCOMPARE(linesOf(log),
             lines({"error NxMediaCategoryPresenter::slotOnGotoFolder: folder is nullptr"}));
    QCOMPARE(stand.folders()->currentFolder(), stand.a);
    QCOMPARE(stand.log.take(), QStringList());
}

void tst_NxMediaCategoryPresenter::goesToTheCurrentFolder_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("then");
    QTest::newRow("while it is shown") << text("A") << text("A");
    QTest::newRow("while a search is shown") << text("search") << text("A");
    QTest::newRow("while another folder is shown") << text("B") << text("B");
}

void tst_NxMediaCategoryPresenter::goesToTheCurrentFolder()
{
    QFETCH(QString, shown);
    QFETCH(QString, then);
    Stand stand;
    stand.enterA();
    for (ScriptedItemFolder *folder : {stand.a, stand.b, &stand.search}) {
        if (folder->name() == shown)
            stand.items()->setFolder(folder);
    }
    stand.log.take();
    stand.presenter->slotOnGotoFolder(stand.a);
    QCOMPARE(stand.shown(), then);
    QCOMPARE(stand.folders()->currentFolder(), stand.a);
    const bool isTold = shown != then;
    QCOMPARE(stand.log.take(), isTold ? lines({"items: sigRootFolderChanged()"}) : QStringList());
}

void tst_NxMediaCategoryPresenter::showsWhatLooksAlike()
{
    Stand stand;
    stand.enterA();
    const NxLogCapture log;
    stand.items()->setFilterSimilarResource(7, mctStockMedia, text("/cover.png"), true, false);
    QCOMPARE(stand.shown(), text("search"));
    QCOMPARE(stand.search.searchSwitches, QList<bool>{true});
    QCOMPARE(stand.folders()->currentFolder(), stand.a);
    QCOMPARE(stand.items()->getCategoryTreeSelectedFolder(), stand.a);
    QCOMPARE(stand.log.take(), lines({"items: sigFilterChanged()", "items: sigRootFolderChanged()",
                                      "items: sigFilterSimilarSearchChanged()",
                                      "items: sigSetSimilarSearchBar(/cover.png, 7)"}));
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxMediaCategoryPresenter::looksForNothingAlikeWithoutASearchFolder_data()
{
    QTest::addColumn<bool>("hasFolders");
    QTest::newRow("no search folder") << true;
    QTest::newRow("no folders") << false;
}

void tst_NxMediaCategoryPresenter::looksForNothingAlikeWithoutASearchFolder()
{
    QFETCH(bool, hasFolders);
    Stand stand;
    stand.enterA();
    stand.category.folders.search = nullptr;
    stand.category.hasFolders = hasFolders;
    const NxLogCapture log;
    NxTestLog::expectError(text("search folder is nullptr"));
    stand.presenter->slotFilterSimilarSearchChanged();
    QCOMPARE(linesOf(log), lines({"error NxMediaCategoryPresenter::slotFilterSimilarSearchChanged: "
                                  "search folder is nullptr"}));
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(), QStringList());
}

void tst_NxMediaCategoryPresenter::goesBackFromASearch()
{
    Stand stand;
    stand.enterA();
    stand.items()->setFilterSimilarResource(7, mctStockMedia, QString(), false, false);
    QCOMPARE(stand.shown(), text("search"));
    stand.log.take();
    stand.items()->exitSearchFolder();
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(),
             lines({"items: sigRootFolderChanged()", "items: sigExitSearchrFolder()"}));
}

void tst_NxMediaCategoryPresenter::goesBackToTheFolderChosenMeanwhile()
{
    Stand stand;
    stand.enterSearch();
    stand.folders()->setCurrentFolder(stand.b);
    QCOMPARE(stand.shown(), text("B"));
    stand.items()->setFolder(&stand.search);
    stand.items()->exitSearchFolder();
    QCOMPARE(stand.shown(), text("B"));
}

void tst_NxMediaCategoryPresenter::goesBackToNoFolder()
{
    Stand stand;
    stand.listen();
    stand.items()->setFolder(&stand.search);
    const NxLogCapture log;
    NxTestLog::expectError(text("current folder is nullptr"));
    stand.items()->exitSearchFolder();
    QCOMPARE(linesOf(log), lines({"error NxMediaCategoryPresenter::slotOnExitSearchFolder: "
                                  "current folder is nullptr"}));
    QCOMPARE(stand.shown(), text("search"));
}

void tst_NxMediaCategoryPresenter::searchesWhereTheFolderSearches_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("searches");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("then");
    const auto row = [](const char *name, int kind, const char *searches, int mode,
                        const char *keyword, const char *then) {
        QTest::newRow(name) << kind << text(searches) << mode << text(keyword) << text(then);
    };
    row("own media", fkNone, "keyword", esmKeyword, "sea", "A");
    row("own media, no keyword", fkNone, "keyword", esmKeyword, "", "A");
    row("own media, by a provider's mode", fkNone, "keyword", esmStockKeyword, "sea", "A");
    row("an online section", fkOnline, "online", esmStockKeyword, "sea", "A");
    row("stock home, by keyword", fkStockHome, "online", esmStockKeyword, "sea", "search");
    row("stock home, in a classification", fkStockHome, "online", esmStockClassify, "sea",
        "search");
    row("stock home, no keyword", fkStockHome, "online", esmStockKeyword, "", "A");
    row("stock home, no keyword in a classification", fkStockHome, "online", esmStockClassify, "",
        "A");
    row("stock home, an ordinary keyword", fkStockHome, "online", esmKeyword, "sea", "A");
    row("stock home, no search", fkStockHome, "online", esmNone, "sea", "A");
    row("stock home, what looks alike", fkStockHome, "online", esmSimilar, "sea", "A");
    row("image choice", fkStockImageChoice, "online", esmStockKeyword, "sea", "search");
    row("image choice, no keyword", fkStockImageChoice, "online", esmStockKeyword, "", "search");
    row("audio choice, no keyword", fkStockAudioChoice, "online", esmNone, "", "search");
    row("video choice, any mode", fkStockVideoChoice, "online", esmKeyword, "sea", "search");
    row("a kind before the choices", fkDownloadRecord, "online", esmStockKeyword, "sea", "A");
    row("a kind behind the choices", fkStockVideoChoice + 1, "online", esmStockKeyword, "sea", "A");
    row("searched by keyword alone", fkStockHome, "keyword", esmStockKeyword, "sea", "search");
    row("searched by looks alone", fkStockHome, "similar", esmStockKeyword, "sea", "search");
    row("searched in every way", fkStockHome, "keyword online similar", esmStockKeyword, "sea",
        "search");
    row("not searched", fkStockHome, "", esmStockKeyword, "sea", "");
    row("a choice that is not searched", fkStockImageChoice, "", esmStockKeyword, "sea", "");
    row("own media that are not searched", fkNone, "", esmKeyword, "", "");
}

/// From a search that is shown: it goes on, it ends, or nothing happens.
void tst_NxMediaCategoryPresenter::searchesWhereTheFolderSearches()
{
    QFETCH(int, kind);
    QFETCH(QString, searches);
    QFETCH(int, mode);
    QFETCH(QString, keyword);
    QFETCH(QString, then);
    Stand stand;
    stand.a->itsKind = kind;
    stand.a->keywordSearch = searches.contains(text("keyword"));
    stand.a->onlineSearch = searches.contains(text("online"));
    stand.a->similarSearch = searches.contains(text("similar"));
    stand.enterSearch();
    stand.items()->setFilter(filterOf(mode, keyword));
    stand.items()->setFolder(&stand.search);
    stand.search.searchSwitches.clear();
    stand.log.take();
    const NxLogCapture log;
    stand.presenter->slotOnFilterKeywordChanged();
    QCOMPARE(stand.shown(), then.isEmpty() ? text("search") : then);
    QCOMPARE(stand.log.take(),
             then.isEmpty() ? QStringList() : lines({"items: sigRootFolderChanged()"}));
    QCOMPARE(stand.search.searchSwitches,
             then == text("search") ? QList<bool>{true} : QList<bool>());
    QCOMPARE(stand.folders()->currentFolder(), stand.a);
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxMediaCategoryPresenter::searchesByKeywordInTheFolderItself()
{
    Stand stand;
    stand.enterSearch();
    stand.items()->setFilterKeyword(text("sea"), esmKeyword);
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(),
             lines({"items: sigRootFolderChanged()", "items: sigFilterKeywordChanged()"}));
}

void tst_NxMediaCategoryPresenter::searchesNothingWithoutACurrentFolder()
{
    Stand stand;
    stand.listen();
    stand.items()->setFolder(&stand.search);
    stand.log.take();
    const NxLogCapture log;
    stand.presenter->slotOnFilterKeywordChanged();
    QCOMPARE(stand.shown(), text("search"));
    QCOMPARE(stand.log.take(), QStringList());
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxMediaCategoryPresenter::searchesNothingWithoutASearchFolder_data()
{
    QTest::addColumn<bool>("hasFolders");
    QTest::newRow("no search folder") << true;
    QTest::newRow("no folders") << false;
}

void tst_NxMediaCategoryPresenter::searchesNothingWithoutASearchFolder()
{
    QFETCH(bool, hasFolders);
    Stand stand;
    stand.a->itsKind = fkStockImageChoice;
    stand.enterA();
    stand.category.folders.search = nullptr;
    stand.category.hasFolders = hasFolders;
    const NxLogCapture log;
    NxTestLog::expectError(text("search folder is nullptr"));
    stand.presenter->slotOnFilterKeywordChanged();
    QCOMPARE(linesOf(log), lines({"error NxMediaCategoryPresenter::slotOnFilterKeywordChanged: "
                                  "search folder is nullptr"}));
    QCOMPARE(stand.shown(), text("A"));
    QCOMPARE(stand.log.take(), QStringList());
}

NX_TEST_MAIN(tst_NxMediaCategoryPresenter)
#include "tst_NxMediaCategoryPresenter.moc"
