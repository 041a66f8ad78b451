// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

struct Searched : NMediaItemData
{
    explicit Searched(const ItemStand &stand) : NMediaItemData(mctMedia) { load(stand.folder); }
    QString text() const { return rowsText(getItems()); }
};

} // namespace

/// Filters that are changed, and searches for what is similar.
class tst_NMediaItemData_similar : public QObject
{
    Q_OBJECT

    /// The first media are those of one series.
    static void makePack(ItemStand &stand, int count)
    {
        stand.folder->pack = stand.folder->media.mid(0, count);
    }

private Q_SLOTS:
    void aFilterIsReadAnew()
    {
        const ItemStand stand(fkOnline, "Sea Sun Moon");
        Searched data(stand);
        data.setFilter(filterOf("s"));
        QCOMPARE(data.text(), QStringLiteral("Sea Sun"));
        data.setFilter(filterOf("un"));
        QCOMPARE(data.text(), QStringLiteral("Sun"));
        QVERIFY(data.getFilter() == filterOf("un"));
        data.setFilter(filterOf(""));
        QCOMPARE(data.text(), QStringLiteral("Sea Sun Moon"));
    }

    void aFilterWithoutAFolderIsRemembered()
    {
        const ItemStand stand(fkOnline, "Sea Sun Moon");
        NMediaItemData data(mctMedia);
        data.setFilter(filterOf("sun"));
        data.load(stand.folder);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("Sun"));
    }

    void onlyAnotherAnchorMakesTheRowsOfASimilarSearch_data()
    {
        using Filter = NxMediaItemViewFilter;
        QTest::addColumn<Filter>("before");
        QTest::addColumn<Filter>("after");
        QTest::addColumn<QString>("rows");
        Filter otherCategory = similarTo(1);
        otherCategory.similarCategory = 3;
        Filter otherId = similarTo(1);
        otherId.searchId = QStringLiteral("run 2");
        Filter keywordToo = similarTo(1);
        keywordToo.keyword = QStringLiteral("A");
        Filter keywordAndAnchor = similarTo(2);
        keywordAndAnchor.keyword = QStringLiteral("A");
        QTest::newRow("first similar search") << Filter() << similarTo(1) << "";
        QTest::newRow("similar after a keyword") << filterOf("A") << similarTo(1) << "";
        QTest::newRow("same anchor") << similarTo(1) << similarTo(1) << "";
        QTest::newRow("another category") << similarTo(1) << otherCategory << "";
        QTest::newRow("another run") << similarTo(1) << otherId << "";
        QTest::newRow("same anchor, a keyword") << similarTo(1) << keywordToo << "";
        QTest::newRow("another anchor") << similarTo(1) << similarTo(2) << "B A";
        QTest::newRow("another anchor and a keyword") << similarTo(1) << keywordAndAnchor << "A";
        QTest::newRow("back to none") << similarTo(1) << Filter() << "+ A B";
        QTest::newRow("back to a keyword") << similarTo(1) << filterOf("A") << "+ A";
    }

    void onlyAnotherAnchorMakesTheRowsOfASimilarSearch()
    {
        QFETCH(NxMediaItemViewFilter, before);
        QFETCH(NxMediaItemViewFilter, after);
        QFETCH(QString, rows);
        const ItemStand stand(fkProject, "B A");
        Searched data(stand);
        data.setSortEnable(true);
        data.setSortBy({sbName, soASC});
        data.setFilter(before);
        data.setFilter(after);
        QCOMPARE(data.text(), rows);
    }

    void aFilterBeginsWithFewLines_data()
    {
        QTest::addColumn<int>("searchMode");
        QTest::addColumn<bool>("inList");
        QTest::addColumn<int>("lines");
        QTest::newRow("thumbnails") << int(esmSimilar) << false << 2;
        QTest::newRow("list") << int(esmSimilar) << true << 6;
        QTest::newRow("thumbnails, nothing searched") << int(esmNone) << false << 2;
        QTest::newRow("list, nothing searched") << int(esmNone) << true << 6;
    }

    void aFilterBeginsWithFewLines()
    {
        QFETCH(int, searchMode);
        QFETCH(bool, inList);
        QFETCH(int, lines);
        NMediaItemData data(mctMedia);
        data.addSimilarLines(5);
        QCOMPARE(data.similarLines(), 7);
        NxMediaItemViewFilter filter = similarTo(1, inList);
        filter.searchMode = searchMode;
        data.setFilter(filter);
        QCOMPARE(data.similarLines(), lines);
    }

    void packsAreShownLineByLine_data()
    {
        QTest::addColumn<int>("inSeries");
        QTest::addColumn<int>("perLine");
        QTest::addColumn<int>("lines");
        QTest::addColumn<QString>("rows");
        QTest::newRow("lines unknown") << 2 << 0 << 2 << "A B C D E";
        QTest::newRow("one pack, lines unknown") << 0 << 0 << 0 << "A B C D E";
        QTest::newRow("one pack") << 0 << 1 << 2 << "A B ...";
        QTest::newRow("one pack, longer lines") << 0 << 2 << 2 << "A B C D ...";
        QTest::newRow("one pack in whole lines") << 0 << 1 << 5 << "A B C D E";
        QTest::newRow("one pack, one media too many") << 0 << 1 << 4 << "A B C D ...";
        QTest::newRow("one pack, half a line") << 0 << 2 << 3 << "A B C D E";
        QTest::newRow("all in the series") << 5 << 2 << 1 << "A B ...";
        QTest::newRow("two packs") << 3 << 1 << 1 << "A ... D ...";
        QTest::newRow("two packs, the second is short") << 3 << 1 << 2 << "A B ... D E";
        QTest::newRow("two packs, the first is short") << 2 << 1 << 2 << "A B C D ...";
        QTest::newRow("two packs, all") << 2 << 1 << 3 << "A B C D E";
        QTest::newRow("no lines") << 2 << 1 << 0 << "... ...";
    }

    void packsAreShownLineByLine()
    {
        QFETCH(int, inSeries);
        QFETCH(int, perLine);
        QFETCH(int, lines);
        QFETCH(QString, rows);
        ItemStand stand(fkProject, "A B C D E");
        makePack(stand, inSeries);
        Searched data(stand);
        data.setItemCountPerLine(perLine, false);
        data.addSimilarLines(lines - data.similarLines());
        data.reLoadMediaInSimilarSearch(stand.folder);
        QCOMPARE(data.text(), rows);
    }

    void moreLinesLetTheTileGo()
    {
        ItemStand stand(fkProject, "A B C D E");
        Searched data(stand);
        data.setItemCountPerLine(1, false);
        for (const char *rows : {"A B ...", "A B C D ...", "A B C D E", "A B C D E"}) {
            data.reLoadMediaInSimilarSearch(stand.folder);
            QCOMPARE(data.text(), QLatin1String(rows));
            data.addSimilarLines(2);
        }
    }

    void theSeriesComesFirstAndIsNotRepeated()
    {
        ItemStand stand(fkProject, "A B C D");
        stand.folder->pack = ItemStand::Items{stand.item("D"), stand.item("B")};
        Searched data(stand);
        data.reLoadMediaInSimilarSearch(stand.folder);
        QCOMPARE(data.text(), QStringLiteral("D B A C"));
    }

    void bothPacksAreFiltered()
    {
        ItemStand stand(fkProject, "A B C D E");
        makePack(stand, 3);
        stand.item("B")->licence = lsPremium;
        stand.item("E")->licence = lsPremium;
        Searched data(stand);
        NxMediaItemViewFilter filter = similarTo(1);
        filter.type = mtfFree;
        data.setFilter(filter);
        data.setItemCountPerLine(1, false);
        data.reLoadMediaInSimilarSearch(stand.folder);
        QCOMPARE(data.text(), QStringLiteral("A C D"));
    }

    void theServicesOrderStaysAndNothingIsGrouped()
    {
        const ItemStand stand(fkProject, "B:x C:y A:x");
        Searched data(stand);
        data.setSortEnable(true);
        data.setSortBy({sbName, soASC});
        data.setGroupBy({gbCategory, soASC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
        data.reLoadMediaInSimilarSearch(stand.folder);
        QCOMPARE(data.text(), QStringLiteral("B C A"));
    }

    void theTileSpeaksTheUsersLanguage()
    {
        const ItemStand stand(fkProject, "A B C");
        Searched data(stand);
        data.setItemCountPerLine(1, false);
        data.reLoadMediaInSimilarSearch(stand.folder);
        const INxAbstractMedia *tile = data.mediaItem(2);
        QCOMPARE(tile->mediaType(), mtViewMoreTile);
        QCOMPARE(tile->name(), QStringLiteral("View More"));
        const CapitalTranslator translator;
        data.updateExtraText();
        QCOMPARE(tile->name(), QStringLiteral("VIEW MORE"));
        data.reLoadMediaInSimilarSearch(stand.folder);
        QCOMPARE(data.mediaItem(2)->name(), QStringLiteral("VIEW MORE"));
    }

    void noFolderHasNothingSimilar()
    {
        const ItemStand stand(fkProject, "A B C");
        Searched data(stand);
        data.reLoadMediaInSimilarSearch(nullptr);
        QCOMPARE(data.text(), QString());
        QCOMPARE(data.folder(), stand.folder);
    }

    void whatIsRemovedLeavesThePack()
    {
        const ItemStand stand(fkProject, "A B C");
        Searched data(stand);
        data.setChangesTold(true);
        data.updateMediaItems();
        data.setItemCountPerLine(1, false);
        data.reLoadMediaInSimilarSearch(stand.folder);
        data.remove(stand.item("A"));
        QCOMPARE(data.text(), QStringLiteral("B ..."));
        data.remove(stand.item("C"));
        QCOMPARE(data.text(), QStringLiteral("B ..."));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_similar)
#include "tst_NMediaItemData_similar.moc"
