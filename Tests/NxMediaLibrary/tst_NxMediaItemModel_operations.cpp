// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QtTest>

#include "ItemStand.h"
#include "ItemViewer.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

using Operation = void (*)(NxMediaItemModel &model);

/// The model as Qt's rules want it: rows have no rows of their own.
struct FlatProxy final : QIdentityProxyModel
{
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::rowCount(parent);
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : QIdentityProxyModel::columnCount(parent);
    }
    bool hasChildren(const QModelIndex &parent = {}) const override
    {
        return !parent.isValid() && rowCount(parent) > 0;
    }
    QModelIndex sibling(int row, int column, const QModelIndex &) const override
    {
        return index(row, column);
    }
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        return hasIndex(row, column, parent) ? QIdentityProxyModel::index(row, column, parent)
                                             : QModelIndex();
    }
};

struct NamedOperation
{
    const char *name;
    Operation run;
};

const NamedOperation Resetting[] = {
    {"load", [](NxMediaItemModel &m) { m.load(m.folder()); }},
    {"load nothing", [](NxMediaItemModel &m) { m.load(nullptr); }},
    {"clear", [](NxMediaItemModel &m) { m.clear(); }},
    {"sort",
     [](NxMediaItemModel &m) {
         m.setSortBy({sbName, soDESC});
     }},
    {"same sort", [](NxMediaItemModel &m) { m.setSortBy(m.getSortBy()); }},
    {"group",
     [](NxMediaItemModel &m) {
         m.setGroupBy({gbType, soASC, nullptr});
     }},
    {"no group", [](NxMediaItemModel &m) { m.setGroupBy({}); }},
    {"filter", [](NxMediaItemModel &m) { m.setFilter(filterOf("a")); }},
    {"same filter", [](NxMediaItemModel &m) { m.setFilter(m.getFilter()); }},
    {"similar", [](NxMediaItemModel &m) { m.setFilter(similarTo(1)); }},
    {"fold", [](NxMediaItemModel &m) { m.expandStateToggle(0, false); }},
    {"unfold", [](NxMediaItemModel &m) { m.expandStateToggle(0, true); }},
    {"fold what is no header", [](NxMediaItemModel &m) { m.expandStateToggle(1, false); }},
    {"fold what is not there", [](NxMediaItemModel &m) { m.expandStateToggle(-1, false); }},
    {"two more lines", [](NxMediaItemModel &m) { m.viewMoreSimilarPackItem(false); }},
    {"six more lines", [](NxMediaItemModel &m) { m.viewMoreSimilarPackItem(true); }},
    {"similar again", [](NxMediaItemModel &m) { m.updateSimilarMediaItems(); }},
};

const NamedOperation Quiet[] = {
    {"sorting on", [](NxMediaItemModel &m) { m.setSortEnable(true); }},
    {"sorting off", [](NxMediaItemModel &m) { m.setSortEnable(false); }},
    {"keep the folder", [](NxMediaItemModel &m) { m.setKeepFolder(true); }},
    {"no more pages", [](NxMediaItemModel &m) { m.setFetchMoreEnable(false); }},
    {"length of a line", [](NxMediaItemModel &m) { m.setItemCountPerLine(3, false); }},
    {"rescale", [](NxMediaItemModel &m) { m.setItemCountPerLine(3, true); }},
    {"rescale to nothing", [](NxMediaItemModel &m) { m.setItemCountPerLine(0, true); }},
    {"group texts", [](NxMediaItemModel &m) { m.updateGroupByItemText(); }},
    {"remember a row", [](NxMediaItemModel &m) { m.saveRelocateIndex(1); }},
    {"forget rows", [](NxMediaItemModel &m) { m.removeAllRelocateIndex(); }},
    {"no managers", [](NxMediaItemModel &m) { m.unSubscribeMediaItemManager(); }},
    {"null manager", [](NxMediaItemModel &m) { m.subscribeMediaItemManager(nullptr); }},
    {"language",
     [](NxMediaItemModel &m) {
         QEvent event(QEvent::LanguageChange);
         QCoreApplication::sendEvent(&m, &event);
     }},
};

} // namespace

Q_DECLARE_METATYPE(Operation)

/// What presenters and views ask the model to do.
class tst_NxMediaItemModel_operations : public QObject
{
    Q_OBJECT

    template<size_t Count>
    static void addOperations(const NamedOperation (&operations)[Count])
    {
        QTest::addColumn<Operation>("run");
        for (const NamedOperation &operation : operations)
            QTest::newRow(operation.name) << operation.run;
    }

    const ItemStand m_stand{fkProject, "C:x A:y B:x"};

private Q_SLOTS:
    void everyChangeOfRowsIsOneReset_data() { addOperations(Resetting); }

    void everyChangeOfRowsIsOneReset()
    {
        QFETCH(Operation, run);
        for (const bool hasFolder : {true, false}) {
            NxMediaItemModel model(mctMedia, nullptr);
            if (hasFolder)
                model.load(m_stand.folder);
            model.setGroupBy(ByCategory);
            ItemViewer viewer(&model);
            run(model);
            QCOMPARE(viewer.takeTold(), QStringLiteral("before reset, reset"));
        }
    }

    void choicesThatChangeNoRowAreNotTold_data() { addOperations(Quiet); }

    void choicesThatChangeNoRowAreNotTold()
    {
        QFETCH(Operation, run);
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(m_stand.folder);
        model.setGroupBy(ByCategory);
        ItemViewer viewer(&model);
        run(model);
        QCOMPARE(viewer.takeTold(), QString());
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("[x] + C B [y] + A"));
    }

    void rowsChangeInsideTheReset()
    {
        NxMediaItemModel model(mctMedia, nullptr);
        ItemViewer viewer(&model);
        model.load(m_stand.folder);
        QCOMPARE(viewer.takeRows(), QStringLiteral("0, 4"));
        model.setGroupBy(ByCategory);
        QCOMPARE(viewer.takeRows(), QStringLiteral("4, 7"));
        model.expandStateToggle(0, false);
        QCOMPARE(viewer.takeRows(), QStringLiteral("7, 4"));
        model.setFilter(filterOf("b"));
        QCOMPARE(viewer.takeRows(), QStringLiteral("4, 2"));
        model.updateSimilarMediaItems();
        QCOMPARE(viewer.takeRows(), QStringLiteral("2, 1"));
        model.clear();
        QCOMPARE(viewer.takeRows(), QStringLiteral("1, 0"));
        QCOMPARE(model.folder(), m_stand.folder);
    }

    void choicesReachTheRows()
    {
        NxMediaItemModel model(mctMedia, nullptr);
        model.setSortEnable(true);
        model.setKeepFolder(true);
        model.load(m_stand.folder);
        QVERIFY(model.isSortEnable() && model.isKeepFolder());
        QCOMPARE(model.folder(), m_stand.folder);
        model.setSortBy({sbName, soASC});
        QVERIFY((model.getSortBy() == NxMediaItemViewSort{sbName, soASC}));
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ A B C"));
        model.setGroupBy(ByCategory);
        QVERIFY(model.getGroupBy() == ByCategory);
        QVERIFY(model.isGrouped());
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("[x] + B C [y] + A"));
        model.setFilter(filterOf("b"));
        QVERIFY(model.getFilter() == filterOf("b"));
        QVERIFY(!model.isGrouped());
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ B"));
        model.saveRelocateIndex(3);
        model.saveRelocateIndex(1);
        QCOMPARE(model.getRelocateIndexs(), QList<int>({3, 1}));
        model.removeAllRelocateIndex();
        QVERIFY(model.getRelocateIndexs().isEmpty());
    }

    void viewMoreShowsMoreLines()
    {
        ItemStand stand(fkProject, "A B C D E F G H I J K L");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        model.setFilter(similarTo(1));
        QCOMPARE(model.rowCount(), 0);
        model.setItemCountPerLine(1, false);
        QCOMPARE(model.itemCountPerLine(), 1);
        model.updateSimilarMediaItems();
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A B ..."));
        model.viewMoreSimilarPackItem(false);
        QCOMPARE(model.similarLines(), 4);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A B C D ..."));
        model.viewMoreSimilarPackItem(true);
        QCOMPARE(model.similarLines(), 10);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A B C D E F G H I J ..."));
        model.setItemCountPerLine(2, true);
        QCOMPARE(model.similarLines(), 5);
        model.viewMoreSimilarPackItem(false);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A B C D E F G H I J K L"));
        model.setFilter(similarTo(2));
        QCOMPARE(model.similarLines(), 2);
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("A B C D ..."));
    }

    void morePagesAreFetchedWhereTheFolderHasThem()
    {
        struct Paged final : INxFolderMedia
        {
            int folderId() const override { return fidFirstUserFolder; }
            QList<INxAbstractMedia *> items(bool, bool) const override { return {}; }
            bool canFetchMore() const override { return hasMore; }
            void fetchMore() override { ++fetched; }
            bool hasMore = true;
            int fetched = 0;
        };
        auto folder = std::make_unique<Paged>();
        NxMediaItemModel model(mctVCGStock, nullptr);
        model.fetchMore(QModelIndex());
        QVERIFY(!model.canFetchMore(QModelIndex()));
        model.load(folder.get());
        QVERIFY(model.canFetchMore(QModelIndex()));
        QVERIFY(model.canFetchMore(model.index(0, 0)));
        folder->hasMore = false;
        QVERIFY(!model.canFetchMore(QModelIndex()));
        folder->hasMore = true;
        model.setFetchMoreEnable(false);
        QVERIFY(!model.isFetchMoreEnable());
        QVERIFY(!model.canFetchMore(QModelIndex()));
        model.fetchMore(QModelIndex());
        QCOMPARE(folder->fetched, 1);
        model.setFetchMoreEnable(true);
        folder.reset();
        QVERIFY(!model.canFetchMore(QModelIndex()));
        model.fetchMore(QModelIndex());
    }

    void theLanguageRetitlesTilesAtOnceAndHeadersWhenAsked()
    {
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(m_stand.folder);
        model.setGroupBy({gbType, soASC, nullptr});
        const CapitalTranslator translator;
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&model, &event);
        QCOMPARE(model.mediaItem(1)->name(), QStringLiteral("IMPORT MEDIA"));
        QCOMPARE(model.mediaItem(0)->name(), QStringLiteral("Other"));
        model.updateGroupByItemText();
        QCOMPARE(model.mediaItem(0)->name(), QStringLiteral("OTHER"));
    }

    void otherEventsChangeNothing()
    {
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(m_stand.folder);
        const CapitalTranslator translator;
        QEvent event(QEvent::ThemeChange);
        QCoreApplication::sendEvent(&model, &event);
        QCOMPARE(model.mediaItem(0)->name(), QStringLiteral("Import Media"));
        bool isReached = false;
        QMetaObject::invokeMethod(
            &model, [&isReached] { isReached = true; }, Qt::QueuedConnection);
        QCoreApplication::sendPostedEvents(&model);
        QVERIFY(isReached); // By the base class.
    }

    void theRulesOfModelsHoldThroughEverything()
    {
        ItemStand stand(fkProject, "C:x A:y B:x");
        stand.addFolder("D:z E:x", stand.folder);
        NxMediaItemModel model(mctMedia, nullptr);
        FlatProxy proxy;
        const QAbstractItemModelTester before(
            &proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
        proxy.setSourceModel(&model);
        const QAbstractItemModelTester tester(
            &proxy, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.subscribeMediaItemManager(&stand.manager);
        const auto workOn = [&](const char *serial) {
            ScriptedItem *item = stand.make(QLatin1String(serial));
            stand.manager.insert(stand.folder, 1, item);
            stand.manager.rename(item, QStringLiteral("0"));
            stand.manager.announce(item);
            QCOMPARE(proxy.rowCount(), model.rowCount());
            stand.manager.take(item);
        };
        for (const NamedOperation &operation : Resetting) {
            model.load(stand.folder);
            model.setFilter({});
            model.setGroupBy(ByCategory);
            operation.run(model);
            QCOMPARE(proxy.rowCount(), model.rowCount());
            workOn("F:x");
            for (const NamedOperation &other : Quiet)
                other.run(model);
            model.subscribeMediaItemManager(&stand.manager);
            workOn("G");
        }
        stand.manager.clear(stand.folder, [&] { stand.folder->media.clear(); });
        stand.section->destroy(stand.folder);
        QCOMPARE(proxy.rowCount(), 0);
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_operations)
#include "tst_NxMediaItemModel_operations.moc"
