// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <limits>

#include "ItemPresenterStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

QString emitted(const char *signal)
{
    return QStringLiteral("items: %1").arg(QLatin1String(signal));
}

NxMediaLibrarySetting *setting()
{
    return NxMediaLibrarySetting::instance();
}

/// How every category is shown, as the settings know it.
QStringList settingsText()
{
    QStringList texts;
    for (int code = mctMedia; code < MediaCategoryCount; ++code) {
        const auto category = NxMediaCategoryType(code);
        texts.append(QStringLiteral("%1: view %2, sort %3 %4, group %5 %6, filter %7")
                         .arg(code)
                         .arg(setting()->GetViewType(category))
                         .arg(setting()->GetSortBy(category))
                         .arg(setting()->GetSortByOrder(category))
                         .arg(setting()->GetGroupBy(category))
                         .arg(setting()->GetGroupByOrder(category))
                         .arg(setting()->GetFilterType(category)));
    }
    return texts;
}

int categoriesShownAs(NxMediaItemViewMode mode, const NxMediaLibrarySetting &read)
{
    int count = 0;
    for (int code = mctMedia; code < MediaCategoryCount; ++code)
        count += read.GetViewType(NxMediaCategoryType(code)) == mode;
    return count;
}

QStringList linesThatDiffer(const QStringList &before, const QStringList &after)
{
    QStringList differing;
    for (int i = 0; i < after.size(); ++i) {
        if (before[i] != after[i])
            differing.append(after[i]);
    }
    return differing;
}

} // namespace

/// Which folder the list shows, and how; and that this is remembered.
class tst_NxMediaItemManagerPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Its beginning and its end

    void beginsUnsortedInLargeThumbnails()
    {
        ItemPresenterStand stand(mctEffect);
        const NxMediaItemManagerPresenter &presenter = stand.presenter;
        QCOMPARE(presenter.itemManager(),
                 static_cast<INxMediaItemManager *>(&stand.category.items));
        QCOMPARE(presenter.categoryType(), mctEffect);
        QVERIFY(!presenter.folder());
        QVERIFY(!presenter.getCategoryTreeSelectedFolder());
        QVERIFY(presenter.selectedItems().isEmpty());
        QVERIFY(!presenter.multiSelected());
        QCOMPARE(presenter.viewMode(), vmLargeThumbnail);
        QVERIFY(presenter.getSortBy() == NxMediaItemViewSort());
        QVERIFY(presenter.getGroupBy() == NxMediaItemViewGroup());
        QVERIFY(presenter.getFilter() == NxMediaItemViewFilter());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void tellsTheseThings()
    {
        const QMetaObject &meta = NxMediaItemManagerPresenter::staticMetaObject;
        QStringList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(signatures,
                 (QStringList{
                     QStringLiteral("sigRootFolderChanged()"),
                     QStringLiteral("sigSelectItemsChanged()"),
                     QStringLiteral("sigViewModeChanged()"),
                     QStringLiteral("sigSortByChanged()"),
                     QStringLiteral("sigGroupByChanged()"),
                     QStringLiteral("sigFilterChanged()"),
                     QStringLiteral("sigFilterTypeChanged()"),
                     QStringLiteral("sigFilterKeywordChanged()"),
                     QStringLiteral("sigFilterSimilarSearchChanged()"),
                     QStringLiteral("sigExitSearchrFolder()"),
                     QStringLiteral("sigImportMedia(NXMEDIALIBRARY::NxMediaImportParam,"
                                    "QList<INxAbstractMediaItem*>&,bool)"),
                     QStringLiteral("sigAddCustomMediaItem(NXMEDIALIBRARY::NxMediaAddCustomParam,"
                                    "INxAbstractMediaItem*&)"),
                     QStringLiteral("sigGotoFolder(INxFolderMedia*)"),
                     QStringLiteral("sigClearSelection()"),
                     QStringLiteral("sigSelectAll()"),
                     QStringLiteral("sigSelectItems(QList<INxAbstractMedia*>)"),
                     QStringLiteral("sigRedownloadMedia(QList<INxAbstractMedia*>)"),
                     QStringLiteral("sigSetSimilarSearchBar(QString,"
                                    "NXVBLMODEL::NxMediaCategoryType)"),
                 }));
    }

    void followsItsManagerWhileItLives()
    {
        ScriptedItemManager manager;
        {
            const NxMediaItemManagerPresenter presenter(&manager, nullptr);
            QVERIFY(!manager.observers.isEmpty());
        }
        QVERIFY(manager.observers.isEmpty());
    }

    void livesWithoutAManager_data()
    {
        QTest::addColumn<bool>("isDead");
        QTest::newRow("none") << false;
        QTest::newRow("dead") << true;
    }

    void livesWithoutAManager()
    {
        QFETCH(bool, isDead);
        PresenterStand stand;
        auto manager = isDead ? std::make_unique<ScriptedItemManager>() : nullptr;
        ScriptedItemFolder folder(QStringLiteral("folder"));
        ScriptedItem item;
        {
            NxMediaItemManagerPresenter presenter(manager.get(), nullptr);
            manager.reset();
            const QStringList before = settingsText();
            QVERIFY(!presenter.itemManager());
            QCOMPARE(presenter.categoryType(), mctNone);
            presenter.loadViewState();
            presenter.setFolder(&folder);
            QCOMPARE(presenter.folder(), static_cast<INxFolderMedia *>(&folder));
            presenter.setSortBy({sbName, soDESC});
            QVERIFY(presenter.getSortBy() == (NxMediaItemViewSort{sbName, soDESC}));
            presenter.setGroupBy({gbType, soDESC, nullptr});
            presenter.setFilterType(mtfAudio);
            presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
            QVERIFY(!presenter.getFilter().folderKindFlag);
            QVERIFY(!presenter.addMediaItems({&item}));
            QVERIFY(!presenter.addMediaItems(&folder, {&item}));
            QVERIFY(!presenter.renameMediaItem(&item, QStringLiteral("a")));
            QVERIFY(!presenter.removeMediaItems(&folder, {&item}));
            presenter.resetResourceLoader();
            QCOMPARE(settingsText(), before);
        }
    }

    // The shown folder

    void aFolderOfTheTreeIsShownAndSelected()
    {
        ItemPresenterStand stand;
        stand.presenter.setFolder(stand.folder);
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("refresh folder"), QStringLiteral("refresh folder"),
                              emitted("sigRootFolderChanged()")}));
        QCOMPARE(stand.presenter.folder(), static_cast<INxFolderMedia *>(stand.folder));
        QCOMPARE(stand.presenter.getCategoryTreeSelectedFolder(),
                 static_cast<INxFolderMedia *>(stand.folder));
    }

    void aSearchFolderIsShownButNotSelected()
    {
        ItemPresenterStand stand;
        stand.presenter.setFolder(stand.folder);
        stand.log.take();
        stand.presenter.setFolder(&stand.search);
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("refresh search"), QStringLiteral("refresh search"),
                              emitted("sigRootFolderChanged()")}));
        QCOMPARE(stand.presenter.folder(), static_cast<INxFolderMedia *>(&stand.search));
        QCOMPARE(stand.presenter.getCategoryTreeSelectedFolder(),
                 static_cast<INxFolderMedia *>(stand.folder));
    }

    void aFolderThatIsPickedAgainIsToldAgain()
    {
        ItemPresenterStand stand;
        for (INxFolderMedia *folder : {static_cast<INxFolderMedia *>(stand.folder),
                                       static_cast<INxFolderMedia *>(&stand.search)}) {
            stand.presenter.setFolder(folder);
            const QStringList first = stand.log.take();
            QCOMPARE(first.size(), 3);
            stand.presenter.setFolder(folder);
            QCOMPARE(stand.log.take(), first);
        }
    }

    void noFolderIsIgnored()
    {
        ItemPresenterStand stand;
        stand.presenter.setFolder(nullptr);
        QVERIFY(!stand.presenter.folder());
        stand.presenter.setFolder(stand.folder);
        stand.log.take();
        stand.presenter.setFolder(nullptr);
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.presenter.folder(), static_cast<INxFolderMedia *>(stand.folder));
    }

    void aDeadFolderIsForgotten()
    {
        ItemPresenterStand stand;
        stand.presenter.setFolder(stand.folder);
        stand.log.take();
        stand.category.section->destroy(stand.folder);
        QVERIFY(!stand.presenter.folder());
        QVERIFY(!stand.presenter.getCategoryTreeSelectedFolder());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void hooksRunInTheirOrder_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QStringList>("hooks");
        const QString told = emitted("sigRootFolderChanged()");
        QTest::newRow("search folder")
            << QStringLiteral("search")
            << QStringList{QStringLiteral("root changed (search, other)"),
                           QStringLiteral("search folder entered (search, other)"), told};
        QTest::newRow("folder of the tree")
            << QStringLiteral("folder")
            << QStringList{QStringLiteral("root changed (folder, folder)"),
                           QStringLiteral("tree folder entered (folder, folder)"), told};
        QTest::newRow("the same folder of the tree")
            << QStringLiteral("other")
            << QStringList{QStringLiteral("root changed (other, other)"),
                           QStringLiteral("tree folder entered (other, other)"), told};
        QTest::newRow("loose folder") << QStringLiteral("loose")
                                      << QStringList{QStringLiteral("root changed (loose, other)"),
                                                     QStringLiteral("reload (loose, loose)"), told};
        QTest::newRow("none") << QString() << QStringList();
    }

    void hooksRunInTheirOrder()
    {
        QFETCH(QString, kind);
        QFETCH(QStringList, hooks);
        HookedStand stand;
        stand.presenter.setFolder(stand.other);
        stand.log.take();
        const QHash<QString, INxFolderMedia *> folders{{QStringLiteral("search"), &stand.search},
                                                       {QStringLiteral("folder"), stand.folder},
                                                       {QStringLiteral("other"), stand.other},
                                                       {QStringLiteral("loose"), &stand.loose}};
        stand.presenter.setFolder(folders.value(kind));
        QCOMPARE(stand.log.take(), hooks);
    }

    void aLooseFolderIsToldOnce()
    {
        HookedStand stand;
        stand.presenter.setFolder(&stand.loose);
        stand.log.take();
        stand.presenter.setFolder(&stand.loose);
        QCOMPARE(stand.log.take(), QStringList());
        stand.presenter.setFolder(&stand.looseToo);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("root changed (loose too, loose)"),
                                                QStringLiteral("reload (loose too, loose too)"),
                                                emitted("sigRootFolderChanged()")}));
    }

    void aSearchFolderThatStandsInTheTreeIsASearchFolder()
    {
        HookedStand stand;
        stand.folder->searchFolder = true;
        stand.presenter.setFolder(stand.folder);
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("root changed (folder, null)"),
                              QStringLiteral("search folder entered (folder, null)"),
                              emitted("sigRootFolderChanged()")}));
    }

    void aFolderMayDieAtItsHook()
    {
        HookedStand stand;
        stand.half->meanwhile = [&stand] {
            stand.half->meanwhile = nullptr;
            stand.category.section->destroy(stand.folder);
        };
        stand.presenter.setFolder(stand.folder);
        QVERIFY(!stand.presenter.folder());
        QVERIFY(!stand.presenter.getCategoryTreeSelectedFolder());
    }

    // View mode

    void theViewModeBecomesThatOfEveryCategory_data()
    {
        QTest::addColumn<int>("mode");
        for (const int mode : {int(vmList), int(vmSmallThumbnail), int(vmMiddleThumbnail)})
            QTest::addRow("%d", mode) << mode;
    }

    void theViewModeBecomesThatOfEveryCategory()
    {
        QFETCH(int, mode);
        const auto wanted = NxMediaItemViewMode(mode);
        ItemPresenterStand stand(mctEffect);
        QStringList seen;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigViewModeChanged, this, [&] {
            seen.append(QStringLiteral("%1 %2")
                            .arg(stand.presenter.viewMode())
                            .arg(setting()->GetViewType(mctReserved)));
        });
        stand.presenter.setViewMode(wanted);
        QCOMPARE(stand.log.take(), QStringList{emitted("sigViewModeChanged()")});
        QCOMPARE(seen, QStringList{QStringLiteral("%1 %1").arg(mode)});
        QCOMPARE(categoriesShownAs(wanted, *setting()), int(MediaCategoryCount));
        QCOMPARE(categoriesShownAs(wanted, *SettingYard::restart()), int(MediaCategoryCount));
        stand.presenter.setViewMode(wanted);
        QCOMPARE(stand.log.take(), QStringList());
    }

    void theViewModeThatIsSetIsNotWritten()
    {
        ItemPresenterStand stand;
        setting()->SetViewType(mctMedia, vmList);
        const QByteArray before = stand.settings.iniText();
        stand.presenter.setViewMode(vmLargeThumbnail);
        QCOMPARE(stand.settings.iniText(), before);
        QCOMPARE(setting()->GetViewType(mctMedia), vmList);
        QCOMPARE(stand.log.take(), QStringList());
    }

    // Sorting

    void aSortIsKeptAndTold_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("order");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("another key") << int(sbDuration) << int(soASC) << true;
        QTest::newRow("another order") << int(sbName) << int(soDESC) << true;
        QTest::newRow("both") << int(sbType) << int(soDESC) << true;
        QTest::newRow("no key") << int(sbNone) << int(soASC) << false;
        QTest::newRow("no key, another order") << int(sbNone) << int(soDESC) << false;
    }

    void aSortIsKeptAndTold()
    {
        QFETCH(int, key);
        QFETCH(int, order);
        QFETCH(bool, isTold);
        const NxMediaItemViewSort wanted{NxMediaItemViewSortBy(key),
                                         NxMediaItemViewSortOrder(order)};
        ItemPresenterStand stand(mctAudio);
        stand.presenter.setSortBy({sbName, soASC});
        stand.presenter.setSelectedItems({stand.category.list("b"), stand.category.list("a")});
        stand.log.take();
        const QStringList before = settingsText();
        stand.presenter.setSortBy(wanted);
        QCOMPARE(stand.log.take(), isTold ? (QStringList{emitted("sigSortByChanged()"),
                                                         emitted("sigSelectItems([b a])")})
                                          : QStringList());
        QVERIFY(stand.presenter.getSortBy() == wanted);
        QCOMPARE(linesThatDiffer(before, settingsText()).size(), 1);
        QCOMPARE(int(setting()->GetSortBy(mctAudio)), key);
        QCOMPARE(int(setting()->GetSortByOrder(mctAudio)), order);
    }

    void theSortThatIsSetSortsAgainAndWritesNothing()
    {
        ItemPresenterStand stand;
        stand.presenter.setSortBy({sbType, soDESC});
        stand.log.take();
        setting()->SetSortBy(mctMedia, sbDuration);
        const QByteArray before = stand.settings.iniText();
        stand.presenter.setSortBy({sbType, soDESC});
        QCOMPARE(stand.log.take(),
                 (QStringList{emitted("sigSortByChanged()"), emitted("sigSelectItems([])")}));
        QCOMPARE(stand.settings.iniText(), before);
        QCOMPARE(setting()->GetSortBy(mctMedia), sbDuration);
    }

    void noSortThatIsSetDoesNothing()
    {
        ItemPresenterStand stand;
        setting()->SetSortBy(mctMedia, sbDuration);
        stand.presenter.setSortBy({sbNone, soASC});
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(setting()->GetSortBy(mctMedia), sbDuration);
    }

    void theSelectionFromBeforeTheSortIsAskedFor()
    {
        ItemPresenterStand stand;
        ScriptedItem *a = stand.category.list("a");
        auto *dying = new ScriptedItem(mtVideo, QStringLiteral("dying"));
        ScriptedItem *b = stand.category.list("b");
        stand.presenter.setSelectedItems({a, dying, b});
        stand.log.take();
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigSortByChanged, this, [&] {
            stand.presenter.setSelectedItems({});
            delete dying;
        });
        stand.presenter.setSortBy({sbName, soASC});
        QCOMPARE(stand.log.take(),
                 (QStringList{emitted("sigSortByChanged()"), emitted("sigSelectItemsChanged()"),
                              emitted("sigSelectItems([a b])")}));
    }

    void thePresenterMayDieWhenTheListIsSorted()
    {
        PresenterStand stand;
        auto *presenter = new NxMediaItemManagerPresenter(nullptr, nullptr);
        connect(presenter, &NxMediaItemManagerPresenter::sigSortByChanged, this,
                [presenter] { delete presenter; });
        presenter->setSortBy({sbName, soASC});
    }

    // Grouping

    void aGroupingIsKeptAndTold_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("order");
        QTest::newRow("another key") << int(gbDuration) << int(soASC);
        QTest::newRow("another order") << int(gbType) << int(soDESC);
        QTest::newRow("both") << int(gbDateCreated) << int(soDESC);
        QTest::newRow("none") << int(gbNone) << int(soASC);
    }

    void aGroupingIsKeptAndTold()
    {
        QFETCH(int, key);
        QFETCH(int, order);
        const NxMediaItemViewGroup wanted{NxMediaItemViewGroupBy(key),
                                          NxMediaItemViewSortOrder(order), nullptr};
        ItemPresenterStand stand;
        stand.presenter.setGroupBy({gbType, soASC, stand.folder});
        stand.log.take();
        const QStringList before = settingsText();
        stand.presenter.setGroupBy(wanted);
        QCOMPARE(stand.log.take(), QStringList{emitted("sigGroupByChanged()")});
        QVERIFY(stand.presenter.getGroupBy() == wanted);
        QCOMPARE(linesThatDiffer(before, settingsText()).size(), 1);
        QCOMPARE(int(setting()->GetGroupBy(mctMedia)), key);
        QCOMPARE(int(setting()->GetGroupByOrder(mctMedia)), order);
    }

    void theGroupingThatIsSetIsNeitherWrittenNorTold()
    {
        ItemPresenterStand stand;
        stand.presenter.setGroupBy({gbType, soDESC, stand.folder});
        setting()->SetGroupBy(mctMedia, gbDuration);
        stand.log.take();
        stand.presenter.setGroupBy({gbType, soDESC, stand.other});
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.presenter.getGroupBy().folder, static_cast<INxFolderMedia *>(stand.folder));
        QCOMPARE(setting()->GetGroupBy(mctMedia), gbDuration);
    }

    // How it was shown before

    void theCategoryIsShownAsItWasLeft()
    {
        ItemPresenterStand stand(mctEffect);
        setting()->SetViewType(mctEffect, vmList);
        setting()->SetSortBy(mctEffect, sbCategory);
        setting()->SetSortByOrder(mctEffect, soDESC);
        setting()->SetGroupBy(mctEffect, gbCategory);
        setting()->SetGroupByOrder(mctEffect, soDESC);
        setting()->SetFilterType(mctEffect, mtfPhoto);
        stand.presenter.setFilterKeyword(QStringLiteral("word"), esmKeyword);
        stand.log.take();
        QCOMPARE(stand.presenter.viewMode(), vmLargeThumbnail);
        const QStringList before = settingsText();
        const QByteArray written = stand.settings.iniText();
        stand.presenter.loadViewState();
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(settingsText(), before);
        QCOMPARE(stand.settings.iniText(), written);
        QCOMPARE(stand.presenter.viewMode(), vmList);
        QVERIFY(stand.presenter.getSortBy() == (NxMediaItemViewSort{sbCategory, soDESC}));
        QVERIFY(stand.presenter.getGroupBy()
                == (NxMediaItemViewGroup{gbCategory, soDESC, nullptr}));
        const NxMediaItemViewFilter filter = stand.presenter.getFilter();
        QCOMPARE(filter.type, int(mtfPhoto));
        QCOMPARE(filter.mediaType, vmtImage);
        QCOMPARE(filter.keyword, QStringLiteral("word"));
    }

    void aCategoryThatWasNeverShownBeginsAtItsDefaults()
    {
        ItemPresenterStand stand(mctMedia);
        stand.presenter.loadViewState();
        QCOMPARE(stand.presenter.viewMode(), setting()->GetViewType(mctMedia));
        QVERIFY(stand.presenter.getSortBy() == (NxMediaItemViewSort{sbName, soASC}));
        QVERIFY(stand.settings.iniText().isEmpty());
        QCOMPARE(stand.log.take(), QStringList());
    }

    // What usage events call a sort

    void sortKeysHaveNamesForUsageEvents_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("name");
        const QStringList names{QStringLiteral("None"),
                                QStringLiteral("Name"),
                                QStringLiteral("Duration"),
                                QStringLiteral("DateCreated"),
                                QStringLiteral("Used"),
                                QStringLiteral("FrameRate"),
                                QStringLiteral("InPoint"),
                                QStringLiteral("OutPoint"),
                                QStringLiteral("Favourite"),
                                QStringLiteral("FavouriteTime"),
                                QStringLiteral("DownloadTime"),
                                QStringLiteral("Resolution"),
                                QStringLiteral("AudioInfo"),
                                QStringLiteral("Type"),
                                QStringLiteral("New"),
                                QStringLiteral("Category"),
                                QString(),
                                QString(),
                                QStringLiteral("Count"),
                                QString()};
        for (int key = 0; key < names.size(); ++key)
            QTest::addRow("%d", key) << key << names[key];
        for (const int key : {-1, 20, std::numeric_limits<int>::max()})
            QTest::addRow("%d", key) << key << QString();
    }

    void sortKeysHaveNamesForUsageEvents()
    {
        QFETCH(int, key);
        QFETCH(QString, name);
        ItemPresenterStand stand;
        QCOMPARE(stand.presenter.getMediaItemSortByAlias({NxMediaItemViewSortBy(key), soASC}),
                 name);
    }

    void ordersHaveNamesForUsageEvents_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << 0 << QStringLiteral("asc");
        for (const int order : {1, 2, -1, std::numeric_limits<int>::max()})
            QTest::addRow("%d", order) << order << QStringLiteral("desc");
    }

    void ordersHaveNamesForUsageEvents()
    {
        QFETCH(int, order);
        QFETCH(QString, name);
        ItemPresenterStand stand;
        QCOMPARE(
            stand.presenter.getMediaItemSortOrderAlias({sbName, NxMediaItemViewSortOrder(order)}),
            name);
    }
};

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter)
#include "tst_NxMediaItemManagerPresenter.moc"
