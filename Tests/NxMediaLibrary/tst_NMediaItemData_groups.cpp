// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

INxGroupMedia *groupAt(const NMediaItemData &data, int row)
{
    return dynamic_cast<INxGroupMedia *>(data.mediaItem(row));
}

/// A record that shows a folder by category.
struct Grouped : NMediaItemData
{
    explicit Grouped(const ItemStand &stand, const NxMediaItemViewGroup &group = ByCategory)
        : NMediaItemData(mctMedia)
    {
        load(stand.folder);
        setGroupBy(group);
    }
    QString text() const { return rowsText(getItems()); }
};

} // namespace

/// When and how rows stand in groups, and what stands there beside media.
class tst_NMediaItemData_groups : public QObject
{
    Q_OBJECT

    static void addPlaces()
    {
        QTest::addColumn<int>("sectionKind");
        QTest::addColumn<int>("folderKind");
        QTest::addColumn<bool>("isSearchResult");
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<int>("searchMode");
        QTest::addColumn<int>("groupBy");
        QTest::addColumn<bool>("isAllowed");
    }

private Q_SLOTS:
    void groupingDependsOnThePlace_data()
    {
        addPlaces();
        const QList<int> groupable{fkProject,         fkShared,     fkUserSection,
                                   fkUserSectionMore, fkFavourites, fkDownloaded};
        for (int kind = fkNone; kind <= fkStockVideoChoice; ++kind)
            QTest::addRow("section of kind %d", kind)
                << kind << 0 << false << "" << 0 << int(gbCategory) << groupable.contains(kind);
        for (const int kind : groupable)
            QTest::addRow("no choice in a section of kind %d", kind)
                << kind << 0 << false << "" << 0 << int(gbNone) << false;
        QTest::newRow("kind of the folder itself")
            << int(fkOnline) << int(fkFavourites) << false << "" << 0 << int(gbCategory) << false;
        QTest::newRow("search result")
            << int(fkProject) << 0 << true << "" << 0 << int(gbCategory) << false;
        QTest::newRow("keyword") << int(fkProject) << 0 << false << "x" << 0 << int(gbCategory)
                                 << false;
        QTest::newRow("keyword mode without a keyword")
            << int(fkProject) << 0 << false << "" << int(esmKeyword) << int(gbCategory) << true;
        QTest::newRow("the user's own resources")
            << int(fkOnline) << int(fkCustom) << false << "" << 0 << int(gbCategory) << true;
        QTest::newRow("own resources, no choice")
            << int(fkOnline) << int(fkCustom) << false << "" << 0 << int(gbNone) << true;
        QTest::newRow("own resources that were searched")
            << int(fkOnline) << int(fkCustom) << true << "x" << 0 << int(gbCategory) << true;
        QTest::newRow("similar") << int(fkOnline) << 0 << false << "" << int(esmSimilar)
                                 << int(gbCategory) << true;
        QTest::newRow("similar, no choice")
            << int(fkOnline) << 0 << false << "" << int(esmSimilar) << int(gbNone) << true;
        QTest::newRow("similar search result with a keyword")
            << int(fkProject) << 0 << true << "x" << int(esmSimilar) << int(gbCategory) << true;
    }

    void groupingDependsOnThePlace()
    {
        QFETCH(int, sectionKind);
        QFETCH(int, folderKind);
        QFETCH(bool, isSearchResult);
        QFETCH(QString, keyword);
        QFETCH(int, searchMode);
        QFETCH(int, groupBy);
        QFETCH(bool, isAllowed);
        const ItemStand stand(sectionKind, "A:x");
        stand.folder->itsKind = folderKind;
        stand.folder->searchResult = isSearchResult;
        NMediaItemData data(mctMedia);
        NxMediaItemViewFilter filter = filterOf(qPrintable(keyword));
        filter.searchMode = searchMode;
        data.setFilter(filter);
        data.load(stand.folder);
        data.setGroupBy({NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        QCOMPARE(data.isCanGroupBy(), isAllowed);
        QCOMPARE(data.isGrouped(), isAllowed && groupBy != gbNone);
        data.setGroupBy(ByCategory);
        QCOMPARE(NMediaItemData::canGroup(stand.folder, filter), data.isCanGroupBy());
    }

    void furtherKindsOfTheSectionCount()
    {
        const ItemStand stand(fkOnline, "A:x");
        stand.section->extraKinds = QList<int>{fkDownloaded};
        const Grouped data(stand);
        QCOMPARE(data.text(), QStringLiteral("[x] A"));
    }

    void withoutASectionNothingIsGrouped()
    {
        ItemStand stand(fkProject, "A:x");
        Grouped data(stand);
        data.load(&stand.root);
        QVERIFY(!data.isCanGroupBy());
        QCOMPARE(data.text(), QStringLiteral("A"));
        stand.folder->searchFolder = true;
        data.load(stand.folder);
        QVERIFY(!data.isCanGroupBy());
        QCOMPARE(data.text(), QStringLiteral("A"));
    }

    void aSimilarSearchOfNothingIsNotGrouped()
    {
        NMediaItemData data(mctMedia);
        data.setFilter(similarTo(1));
        data.setGroupBy(ByCategory);
        QVERIFY(data.isCanGroupBy());
        QVERIFY(NMediaItemData::canGroup(nullptr, similarTo(1)));
        QVERIFY(!NMediaItemData::canGroup(nullptr, {}));
        QVERIFY(!data.isGrouped());
    }

    void eachGroupHasItsHeaderAndItsTile()
    {
        const ItemStand stand(fkProject, "B:y D A:x C:y");
        Grouped data(stand);
        QCOMPARE(data.text(), QStringLiteral("[x] + A [y] + B C [None] + D"));
        data.setGroupBy({gbCategory, soDESC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[y] + B C [x] + A [None] + D"));
        QCOMPARE(data.mediaItem(0)->mediaType(), mtGroup);
        QCOMPARE(data.mediaItem(1)->mediaType(), mtImportTile);
        QCOMPARE(data.mediaItem(1)->name(), QStringLiteral("Import Media"));
    }

    void membersAreWhatIsShownBehindTheTile()
    {
        const ItemStand stand(fkProject, "C:x B:y A:x");
        Grouped data(stand);
        INxGroupMedia *group = groupAt(data, 0);
        QCOMPARE(rowsText(group->members()), QStringLiteral("+ C A"));
        QCOMPARE(group->members().first(), data.mediaItem(1));
        QCOMPARE(group->itemCount(), 2);
        data.setSortEnable(true);
        data.setSortBy({sbName, soASC});
        group = groupAt(data, 0);
        QCOMPARE(rowsText(group->members()), QStringLiteral("+ A C"));
        NxMediaItemViewFilter video;
        video.type = mtfPremium;
        stand.item("C")->licence = lsPremium;
        data.setFilter(video);
        QCOMPARE(data.text(), QStringLiteral("[x] + C"));
        QCOMPARE(rowsText(groupAt(data, 0)->members()), QStringLiteral("+ C"));
        QCOMPARE(groupAt(data, 0)->itemCount(), 1);
    }

    void aGroupOfWhichNothingIsLeftIsNotShown()
    {
        const ItemStand stand(fkProject, "A:x B:y C:x");
        stand.item("B")->licence = lsPremium;
        Grouped data(stand);
        NxMediaItemViewFilter free;
        free.type = mtfFree;
        data.setFilter(free);
        QCOMPARE(data.text(), QStringLiteral("[x] + A C"));
        data.setGroupBy({gbType, soASC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[Other] + A C"));
    }

    void aKeywordEndsTheGroups()
    {
        const ItemStand stand(fkProject, "A:x BA:y C:x");
        Grouped data(stand);
        data.setFilter(filterOf("a"));
        QCOMPARE(data.text(), QStringLiteral("+ A BA"));
        QCOMPARE(data.getGroupBy().groupBy, gbCategory);
        data.setFilter(filterOf(""));
        QCOMPARE(data.text(), QStringLiteral("[x] + A C [y] + BA"));
    }

    void groupsAreSortedByTheUsersChoiceAlone()
    {
        const ItemStand stand(fkProject, "B:x A:y C:x D:x");
        const QDateTime day(QDate(2025, 1, 1), QTime(), Qt::UTC);
        stand.item("C")->modified = day.addDays(2);
        stand.item("B")->modified = day.addDays(1);
        stand.folder->newnessOrdered = true;
        stand.folder->extraKinds = QList<int>{fkRecent};
        Grouped data(stand);
        data.setSortBy({sbName, soDESC});
        QCOMPARE(data.text(), QStringLiteral("[x] + B C D [y] + A"));
        data.setSortEnable(true);
        data.updateMediaItems();
        QCOMPARE(data.text(), QStringLiteral("[x] + D C B [y] + A"));
        data.setGroupBy({});
        QCOMPARE(data.text(), QStringLiteral("+ C B A D"));
    }

    void groupsMayBeMadeForOthers()
    {
        const ItemStand stand(fkProject, "A:x B:y C:x");
        Grouped data(stand);
        QList<INxAbstractMedia *> items{stand.item("C"), stand.item("B")};
        QList<INxAbstractMedia *> groups{nullptr};
        data.doGroupBy(items, stand.folder, groups);
        QCOMPARE(rowsText(groups), QStringLiteral("[x] [y]"));
        QCOMPARE(rowsText(dynamic_cast<INxGroupMedia *>(groups[0])->members()),
                 QStringLiteral("C"));
        for (INxAbstractMedia *group : qAsConst(groups))
            INxGroupMedia::releaseGroup(dynamic_cast<INxGroupMedia *>(group));
        QCOMPARE(data.text(), QStringLiteral("[x] + A C [y] + B"));
        data.remove(stand.item("A"));
        QCOMPARE(data.text(), QStringLiteral("[x] + C [y] + B"));
    }

    void tilesDependOnTheSection_data()
    {
        QTest::addColumn<int>("sectionKind");
        QTest::addColumn<QString>("ungrouped");
        for (int kind = fkNone; kind <= fkStockVideoChoice; ++kind)
            QTest::addRow("section of kind %d", kind)
                << kind << (kind == fkProject || kind == fkShared ? "+ A" : "A");
    }

    void tilesDependOnTheSection()
    {
        QFETCH(int, sectionKind);
        QFETCH(QString, ungrouped);
        const ItemStand stand(sectionKind, "A:x");
        NMediaItemData data(mctMedia);
        data.load(stand.folder);
        QCOMPARE(rowsText(data.getItems()), ungrouped);
        data.load(stand.section);
        QCOMPARE(rowsText(data.getItems()), ungrouped);
        stand.folder->itsKind = fkCustom; // Lets every place be grouped.
        data.load(stand.folder);
        data.setGroupBy(ByCategory);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("[x] ") + ungrouped);
        stand.section->itsKind = fkOnline;
        stand.section->extraKinds = QList<int>{fkShared};
        data.load(stand.folder);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("[x] + A"));
        stand.folder->searchFolder = true; // So it has no section.
        data.load(stand.folder);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("[x] A"));
    }

    void nothingHasNoTile_data()
    {
        QTest::addColumn<int>("groupBy");
        QTest::newRow("ungrouped") << int(gbNone);
        QTest::newRow("grouped") << int(gbType);
    }

    void nothingHasNoTile()
    {
        QFETCH(int, groupBy);
        ItemStand stand(fkProject);
        Grouped data(stand, {NxMediaItemViewGroupBy(groupBy), soASC, nullptr});
        QCOMPARE(data.text(), QString());
        stand.list("A");
        NxMediaItemViewFilter paid;
        paid.type = mtfPaid;
        data.setFilter(paid);
        QCOMPARE(data.text(), QString());
    }

    void tilesAreNeverDoubled()
    {
        const ItemStand stand(fkProject, "A:x B:y");
        Grouped data(stand);
        data.doExtraMedia();
        QCOMPARE(data.text(), QStringLiteral("[x] + A [y] + B"));
        QCOMPARE(rowsText(groupAt(data, 0)->members()), QStringLiteral("+ A"));
        data.setGroupBy({});
        data.doExtraMedia();
        QCOMPARE(data.text(), QStringLiteral("+ A B"));
    }

    void anotherChoiceReplacesTheGroups()
    {
        const ItemStand stand(fkProject, "A:x B:y");
        Grouped data(stand, {});
        QCOMPARE(data.text(), QStringLiteral("+ A B"));
        data.setGroupBy(ByCategory);
        QCOMPARE(data.text(), QStringLiteral("[x] + A [y] + B"));
        data.setGroupBy({gbDuration, soASC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[less than 1min] + A B"));
        data.setGroupBy({NxMediaItemViewGroupBy(9), soASC, nullptr});
        QCOMPARE(data.text(), QString());
        data.setGroupBy({});
        QCOMPARE(data.text(), QStringLiteral("+ A B"));
    }

    void theFirstChoiceWhereEverythingMayBeGrouped()
    {
        const ItemStand stand(fkOnline, "A:x");
        stand.folder->itsKind = fkCustom;
        Grouped data(stand);
        QCOMPARE(data.text(), QStringLiteral("[x] A"));
        data.setGroupBy({});
        QCOMPARE(data.text(), QStringLiteral("A"));
    }

    void aChoiceWithoutAFolderIsRemembered()
    {
        const ItemStand stand(fkProject, "A:x");
        NMediaItemData data(mctMedia);
        data.setGroupBy(ByCategory);
        QVERIFY(data.getGroupBy() == ByCategory);
        data.load(stand.folder);
        QCOMPARE(rowsText(data.getItems()), QStringLiteral("[x] + A"));
    }

    void theLanguageChangesOnlyTextsOfTheHouse()
    {
        const ItemStand stand(fkProject, "A:None B:video C");
        Grouped data(stand);
        INxGroupMedia *first = groupAt(data, 0);
        const CapitalTranslator translator;
        data.updateGroupByText();
        QCOMPARE(data.text(), QStringLiteral("[None] + A [video] + B [NONE] + C"));
        QCOMPARE(groupAt(data, 0), first);
        QCOMPARE(data.mediaItem(1)->name(), QStringLiteral("Import Media"));
        data.updateExtraText();
        QCOMPARE(data.mediaItem(1)->name(), QStringLiteral("IMPORT MEDIA"));
        QCOMPARE(data.mediaItem(4)->name(), QStringLiteral("IMPORT MEDIA"));
    }

    void theLanguageChangesTheTitlesOfFixedGroups()
    {
        const ItemStand stand(fkProject, "A B C");
        const QList<int> minutes{0, 2, 60};
        for (int i = 0; i < minutes.size(); ++i) {
            stand.items[size_t(i)]->info.frames = qint64(minutes[i]) * 60 * 25;
            stand.items[size_t(i)]->info.rate = {25, 1};
        }
        Grouped data(stand, {gbDuration, soASC, nullptr});
        QCOMPARE(data.text(),
                 QStringLiteral("[less than 1min] + A [1 ~ 5 min] + B [more than 60min] + C"));
        const CapitalTranslator translator;
        data.updateGroupByText();
        QCOMPARE(data.text(),
                 QStringLiteral("[LESS THAN 1MIN] + A [1 ~ 5 min] + B [MORE THAN 60MIN] + C"));
        data.setGroupBy({gbType, soASC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[OTHER] + A B C"));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_groups)
#include "tst_NMediaItemData_groups.moc"
