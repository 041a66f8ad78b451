// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxVCGClassifyMediaItem.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

/// An entry that leads to a classification of the stock provider.
struct Classification final : INxVCGClassifyMediaItem
{
    NxMediaType mediaType() const override { return mtImage; }
    QString name() const override { return QStringLiteral("entry"); }
    qint64 classifyId() const override { return 7; }
};

QDateTime day(int number)
{
    return QDateTime(QDate(2025, 3, number), QTime(12, 0), Qt::UTC);
}

/// Four media that every choice orders in a way of its own.
struct Facts : ItemStand
{
    Facts() : ItemStand(fkOnline, "D B A C")
    {
        set(&ScriptedItem::modified, "C A D B");
        set(&ScriptedItem::favoured, "C D A B");
        set(&ScriptedItem::downloaded, "A C B D");
        set(&ScriptedItem::created, "D A C B");
    }
    /// Gives the first one the earliest date.
    void set(QDateTime ScriptedItem::*date, const char *names)
    {
        int number = 0;
        for (const QString &name : QString::fromLatin1(names).split(QLatin1Char(' ')))
            item(name.toLatin1().constData())->*date = day(++number);
    }
};

} // namespace

/// What a record shows of its folder, and in which order.
class tst_NMediaItemData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsChosenInTheBeginning()
    {
        const NMediaItemData data(mctMedia);
        QVERIFY(!data.folder());
        QCOMPARE(data.getItems().size(), 0);
        QVERIFY(data.getGroupBy() == NxMediaItemViewGroup());
        QVERIFY(data.getSortBy() == NxMediaItemViewSort());
        QVERIFY(data.getFilter() == NxMediaItemViewFilter());
        QVERIFY(!data.isKeepFolder());
        QVERIFY(!data.isSortEnable());
        QCOMPARE(data.itemCountPerLine(), 0);
        QCOMPARE(data.similarLines(), 2);
        QVERIFY(data.getRelocateIndexs().isEmpty());
        QVERIFY(!data.isCanGroupBy());
        QVERIFY(!data.isGrouped());
    }

    void aFolderIsShownWithTheFoldersInIt()
    {
        ItemStand stand(fkOnline, "B A");
        ScriptedItemFolder *sub = stand.addFolder("D C", stand.folder);
        stand.addFolder("E", sub);
        NMediaItemData data(mctMedia);
        data.load(stand.folder);
        QCOMPARE(data.folder(), stand.folder);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("B A D C E"));
        data.load(sub);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("D C E"));
        data.load(nullptr);
        QVERIFY(!data.folder());
        QCOMPARE(rowsText(data.getItems()), QString());
    }

    void clearingKeepsTheFolder()
    {
        const ItemStand stand(fkProject, "B A");
        NMediaItemData data(mctMedia);
        data.load(stand.folder);
        data.clear();
        QCOMPARE(data.folder(), stand.folder);
        QCOMPARE(data.getItems().size(), 0);
        data.updateMediaItems();
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("+ B A"));
    }

    void rowsThatAreNotThereHaveNoMedia()
    {
        const ItemStand stand(fkOnline, "B A");
        NMediaItemData data(mctMedia);
        data.load(stand.folder);
        QCOMPARE(data.mediaItem(0), stand.item("B"));
        QCOMPARE(data.mediaItem(1), stand.item("A"));
        QVERIFY(!data.mediaItem(2));
        QVERIFY(!data.mediaItem(-1));
        QCOMPARE(data.rows(stand.item("A")), QList<int>({1}));
        QVERIFY(data.rows(nullptr).isEmpty());
    }

    void aDeadFolderCountsAsNone()
    {
        auto stand = std::make_unique<ItemStand>(fkProject, "B:x A:y");
        NMediaItemData data(mctMedia);
        data.load(stand->folder);
        data.setGroupBy({gbCategory, soASC, nullptr});
        INxAbstractMedia *item = stand->item("A");
        stand->section->destroy(stand->folder);
        QVERIFY(!data.folder());
        QCOMPARE(data.getItems().size(), 0);
        QVERIFY(!data.mediaItem(0));
        QVERIFY(data.rows(item).isEmpty());
        QVERIFY(!data.isCanGroupBy());
        QVERIFY(!data.isGrouped());
        data.expandStateToggle(0, false);
        data.remove(item);
        data.append(item, nullptr);
        data.setSortBy({sbName, soASC});
        data.setFilter(filterOf("A"));
        data.setGroupBy({gbType, soASC, nullptr});
        data.updateMediaItems();
        data.reLoadMediaInSimilarSearch(nullptr);
        QCOMPARE(data.getItems().size(), 0);
        QCOMPARE(data.getGroupBy().groupBy, gbType);
    }

    void nothingInParticularIsNoTrouble()
    {
        const ItemStand stand(fkProject, "A");
        NMediaItemData data(mctMedia);
        data.load(stand.folder);
        data.append(nullptr, nullptr);
        data.appended(nullptr);
        data.mediaChanged(nullptr);
        data.remove(nullptr);
        data.doExtraMedia();
        data.releaseCaches();
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("+ A"));
        QCOMPARE(rowsText(NMediaItemData(mctMedia).getVisibleItems({stand.item("A"), nullptr})),
                 QStringLiteral("A null"));
    }

    void theFoldersNatureMayOverrideTheSort_data()
    {
        QTest::addColumn<bool>("isNewnessOrdered");
        QTest::addColumn<QList<int>>("kinds");
        QTest::addColumn<int>("sortBy");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("rows");
        using Kinds = QList<int>;
        const auto plain = [](const char *name, const Kinds &kinds, int sortBy, int order,
                              const char *rows, bool isNewnessOrdered = false) {
            QTest::newRow(name) << isNewnessOrdered << kinds << sortBy << order << rows;
        };
        const auto newest = [&plain](const char *name, const Kinds &kinds, int sortBy, int order) {
            plain(name, kinds, sortBy, order, "B D A C", true);
        };
        plain("by name", {}, sbName, soASC, "A B C D");
        plain("by name down", {}, sbName, soDESC, "D C B A");
        plain("newest", {}, sbNew, soASC, "B D A C");
        plain("newest last", {}, sbNew, soDESC, "C A D B");
        plain("unsorted", {}, sbNone, soASC, "D B A C");
        plain("unknown key", {}, sbSale + 1, soDESC, "D B A C");
        newest("newness beats a key", {}, sbName, soDESC);
        newest("newness beats no key", {}, sbNone, soASC);
        newest("newness beats its order", {}, sbNew, soDESC);
        newest("newness beats favourites", {fkFavourites}, sbNew, soASC);
        newest("newness beats recent", {fkRecent}, sbName, soASC);
        plain("new favourites", {fkFavourites}, sbNew, soASC, "C D A B");
        plain("old favourites", {fkFavourites}, sbNew, soDESC, "B A D C");
        plain("favourites by name", {fkFavourites}, sbName, soASC, "A B C D");
        plain("new downloads", {fkDownloaded}, sbNew, soASC, "A C B D");
        plain("old downloads", {fkDownloaded}, sbNew, soDESC, "D B C A");
        plain("downloads by name", {fkDownloaded}, sbName, soDESC, "D C B A");
        plain("favourites first", {fkDownloaded, fkFavourites}, sbNew, soASC, "C D A B");
        plain("recent", {fkRecent}, sbName, soASC, "B C A D");
        plain("recent beats newest", {fkRecent}, sbNew, soASC, "B C A D");
        plain("favourites beat recent", {fkRecent, fkFavourites}, sbNew, soASC, "C D A B");
        plain("recent favourites by name", {fkRecent, fkFavourites}, sbName, soASC, "B C A D");
    }

    void theFoldersNatureMayOverrideTheSort()
    {
        QFETCH(bool, isNewnessOrdered);
        QFETCH(QList<int>, kinds);
        QFETCH(int, sortBy);
        QFETCH(int, order);
        QFETCH(QString, rows);
        Facts facts;
        facts.folder->newnessOrdered = isNewnessOrdered;
        facts.folder->extraKinds = kinds;
        facts.section->extraKinds = QList<int>{fkRecent, fkFavourites, fkDownloaded}; // Not asked.
        facts.section->newnessOrdered = true;
        NMediaItemData data(mctAudio);
        data.setSortEnable(true);
        data.load(facts.folder);
        data.setSortBy({NxMediaItemViewSortBy(sortBy), NxMediaItemViewSortOrder(order)});
        QCOMPARE(rowsText(data.getItems()), rows);
        QCOMPARE(int(data.getSortBy().sortBy), sortBy);
        QCOMPARE(int(data.getSortBy().order), order);
        data.setSortEnable(false);
        QCOMPARE(rowsText(data.getItems()), rows);
        data.updateMediaItems();
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("D B A C"));
        data.setSortEnable(true);
        data.load(facts.folder);
        QCOMPARE(rowsText(data.getItems()), rows);
    }

    void askingWhatIsVisibleChangesNoRows()
    {
        const ItemStand stand(fkOnline, "C A B");
        NMediaItemData data(mctMedia);
        data.setSortEnable(true);
        data.load(stand.folder);
        data.setSortBy({sbName, soASC});
        QCOMPARE(rowsText(data.getVisibleItems({stand.item("B"), stand.item("A")})),
                 QStringLiteral("A B"));
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("A B C"));
        data.remove(stand.item("C"));
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("A B"));
        data.remove(stand.item("A"));
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("B"));
    }

    void theCategoryChoosesTheFilter_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("rows");
        for (int category = mctMedia; category <= mctNone; ++category)
            QTest::addRow("category %d", category) << category
                                                   << (category == mctStockMedia ? "A"
                                                       : category == mctVCGStock ? "entry"
                                                                                 : "A entry");
    }

    void theCategoryChoosesTheFilter()
    {
        QFETCH(int, category);
        QFETCH(QString, rows);
        Classification entry;
        ItemStand stand(fkOnline, "A");
        stand.folder->media.append(&entry);
        NxMediaItemViewFilter filter;
        filter.mediaType = vmtImage; // Only the stock provider's filter looks at it.
        NMediaItemData data(static_cast<NxMediaCategoryType>(category));
        data.load(stand.folder);
        data.setFilter(filter);
        QCOMPARE(rowsText(data.getItems()), rows);
    }

    void linesFollowTheNumberOfItemsInALine_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("rescale");
        QTest::addColumn<int>("lines");
        QTest::newRow("fewer items") << 6 << 4 << true << 3;
        QTest::newRow("parts of a line are dropped") << 6 << 5 << true << 2;
        QTest::newRow("more items") << 6 << 12 << true << 1;
        QTest::newRow("as many as there is room for") << 6 << 13 << true << 0;
        QTest::newRow("not rescaled") << 6 << 4 << false << 2;
        QTest::newRow("to nothing") << 6 << 0 << true << 2;
        QTest::newRow("to nothing, not rescaled") << 6 << 0 << false << 2;
        QTest::newRow("from nothing") << 0 << 4 << true << 0;
    }

    void linesFollowTheNumberOfItemsInALine()
    {
        QFETCH(int, before);
        QFETCH(int, count);
        QFETCH(bool, rescale);
        QFETCH(int, lines);
        NMediaItemData data(mctMedia);
        data.setItemCountPerLine(before, false);
        data.setItemCountPerLine(count, rescale);
        QCOMPARE(data.itemCountPerLine(), count);
        QCOMPARE(data.similarLines(), lines);
    }

    void rowsToComeBackToAreKeptInOrder()
    {
        NMediaItemData data(mctMedia);
        data.saveRelocateIndex(7);
        data.saveRelocateIndex(-1);
        data.saveRelocateIndex(7);
        QCOMPARE(data.getRelocateIndexs(), QList<int>({7, -1, 7}));
        data.load(nullptr);
        QCOMPARE(data.getRelocateIndexs(), QList<int>({7, -1, 7}));
        data.removeAllRelocateIndex();
        QVERIFY(data.getRelocateIndexs().isEmpty());
    }

    void flagsAreKept()
    {
        NMediaItemData data(mctMedia);
        data.setKeepFolder(true);
        data.setSortEnable(true);
        QVERIFY(data.isKeepFolder() && data.isSortEnable());
        data.setKeepFolder(false);
        QVERIFY(!data.isKeepFolder() && data.isSortEnable());
    }
};

NX_TEST_MAIN(tst_NMediaItemData)
#include "tst_NMediaItemData.moc"
