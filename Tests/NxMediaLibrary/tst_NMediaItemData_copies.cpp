// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <algorithm>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

QString text(const NMediaItemData &data)
{
    return rowsText(data.getItems());
}

/// Groups by first letter, whatever is chosen.
struct ByLetter : NMediaItemData
{
    ByLetter() : NMediaItemData(mctMedia) {}
    void doGroupBy(Items &items, INxFolderMedia *folder, Items &groups) override
    {
        asked = rowsText(items);
        askedFor = folder;
        groups.clear();
        for (INxAbstractMedia *item : qAsConst(items)) {
            if (groups.isEmpty() || !groups.last()->name().startsWith(item->name()[0])) {
                INxGroupMedia *group = INxGroupMedia::createGroup();
                group->setTitle(item->name().left(1) + QLatin1Char('-'));
                groups.append(group);
            }
            dynamic_cast<INxGroupMedia *>(groups.last())->addMember(item);
        }
        if (stranger)
            groups.append(stranger);
    }
    using NMediaItemData::doGroupBy;
    void sortGroupItems() override { ++timesSorted; }

    QString asked;
    INxFolderMedia *askedFor = nullptr;
    INxAbstractMedia *stranger = nullptr; // What is no group. Not owned.
    int timesSorted = 0;
};

/// Never shows a tile.
struct WithoutTiles : NMediaItemData
{
    WithoutTiles() : NMediaItemData(mctMedia) {}
    void doExtraMedia() override { ++timesAsked; }
    int timesAsked = 0;
};

/// Shows the last first.
struct Reversed : NMediaItemData
{
    Reversed() : NMediaItemData(mctMedia) {}
    Items getVisibleItems(const Items &items) override
    {
        Items rows = NMediaItemData::getVisibleItems(items);
        std::reverse(rows.begin(), rows.end());
        return rows;
    }
    Items getVisibleItemsFromGroup() override
    {
        Items rows = NMediaItemData::getVisibleItemsFromGroup();
        std::reverse(rows.begin(), rows.end());
        return rows;
    }
};

} // namespace

/// Copies of a record, and records of another kind.
class tst_NMediaItemData_copies : public QObject
{
    Q_OBJECT

    const ItemStand m_stand{fkProject, "B:x Ab:y Aa:x"};

    static void choose(NMediaItemData &data, const ItemStand &stand)
    {
        data.setSortEnable(true);
        data.setKeepFolder(true);
        data.load(stand.folder);
        data.setSortBy({sbName, soASC});
        data.setGroupBy(ByCategory);
        data.setItemCountPerLine(3, false);
        data.saveRelocateIndex(4);
    }
    static void expectChoices(const NMediaItemData &data, const ItemStand &stand)
    {
        QCOMPARE(data.folder(), stand.folder);
        QVERIFY(data.isSortEnable() && data.isKeepFolder());
        QVERIFY((data.getSortBy() == NxMediaItemViewSort{sbName, soASC}));
        QVERIFY(data.getGroupBy() == ByCategory);
        QCOMPARE(data.itemCountPerLine(), 3);
        QCOMPARE(data.similarLines(), 6);
        QCOMPARE(data.getRelocateIndexs(), QList<int>({4}));
    }

private Q_SLOTS:
    void aCopyHasEveryChoiceAndRow()
    {
        NMediaItemData original(mctMedia);
        NxMediaItemViewFilter inList;
        inList.listView = true;
        original.setFilter(inList);
        choose(original, m_stand);
        const NMediaItemData copy(original);
        NMediaItemData assigned(mctStockMedia);
        assigned = original;
        for (const NMediaItemData *one : {&copy, &std::as_const(assigned)}) {
            expectChoices(*one, m_stand);
            QVERIFY(one->getFilter() == inList);
            QCOMPARE(text(*one), QStringLiteral("[x] + Aa B [y] + Ab"));
            QCOMPARE(one->getItems(), original.getItems());
        }
    }

    void aCopyFiltersByItsOwnFilter()
    {
        NMediaItemData original(mctMedia);
        original.load(m_stand.folder);
        NMediaItemData copy(original);
        NMediaItemData assigned(mctStockMedia);
        assigned = original;
        original.setFilter(filterOf("b"));
        copy.updateMediaItems();
        assigned.updateMediaItems();
        QCOMPARE(text(original), QStringLiteral("+ B Ab"));
        QCOMPARE(text(copy), QStringLiteral("+ B Ab Aa"));
        QCOMPARE(text(assigned), QStringLiteral("+ B Ab Aa"));
        copy.setFilter(filterOf("aa"));
        assigned.setFilter(filterOf("ab"));
        original.updateMediaItems();
        QCOMPARE(text(original), QStringLiteral("+ B Ab"));
        QCOMPARE(text(copy), QStringLiteral("+ Aa"));
        QCOMPARE(text(assigned), QStringLiteral("+ Ab"));
    }

    void anAssignedRecordFiltersAsTheCategoryOfTheOther()
    {
        NMediaItemData original(mctVCGStock);
        original.load(m_stand.folder);
        NMediaItemData assigned(mctMedia);
        assigned = original;
        NxMediaItemViewFilter filter;
        filter.mediaType = vmtAudio; // Only the stock provider's filter looks at it.
        assigned.setFilter(filter);
        QCOMPARE(text(assigned), QString());
    }

    void aCopyOutlivesTheOriginal()
    {
        auto original = std::make_unique<NMediaItemData>(mctMedia);
        choose(*original, m_stand);
        NMediaItemData copy(*original);
        NMediaItemData assigned(mctMedia);
        assigned = *original;
        original.reset();
        copy.updateMediaItems();
        assigned.load(m_stand.folder);
        QCOMPARE(text(copy), QStringLiteral("[x] + Aa B [y] + Ab"));
        QCOMPARE(text(assigned), QStringLiteral("[x] + Aa B [y] + Ab"));
    }

    void theOriginalKeepsItsHeadersWhenACopyDies()
    {
        NMediaItemData original(mctMedia);
        choose(original, m_stand);
        const QList<INxAbstractMedia *> rows = original.getItems();
        {
            NMediaItemData copy(original);
            NMediaItemData assigned(mctMedia);
            assigned = original;
            copy.clear();
            assigned.setGroupBy({});
            QCOMPARE(text(assigned), QStringLiteral("+ Aa Ab B"));
        }
        QCOMPARE(original.getItems(), rows);
        QCOMPARE(text(original), QStringLiteral("[x] + Aa B [y] + Ab"));
    }

    void assigningReplacesWhatWasShown()
    {
        const ItemStand other(fkShared, "D:z C:z");
        NMediaItemData original(mctMedia);
        choose(original, m_stand);
        NMediaItemData assigned(mctMedia);
        choose(assigned, other);
        QCOMPARE(text(assigned), QStringLiteral("[z] + C D"));
        assigned = original;
        QCOMPARE(text(assigned), QStringLiteral("[x] + Aa B [y] + Ab"));
        const NMediaItemData &same = assigned;
        assigned = same;
        QCOMPARE(text(assigned), QStringLiteral("[x] + Aa B [y] + Ab"));
    }

    void anAssignedRecordFollowsChanges()
    {
        const ItemStand other(fkShared, "E D C");
        NMediaItemData original(mctMedia);
        original.load(m_stand.folder);
        NMediaItemData assigned(mctMedia);
        assigned.setChangesTold(true);
        assigned.load(other.folder);
        assigned = original;
        assigned.remove(m_stand.item("Ab"));
        QCOMPARE(text(assigned), QStringLiteral("+ B Aa"));
        assigned.append(m_stand.item("Ab"), m_stand.folder);
        QCOMPARE(text(assigned), QStringLiteral("+ B Ab Aa"));
    }

    void anotherKindOfRecordMayGroupItsOwnWay()
    {
        ByLetter data;
        data.setSortEnable(true);
        data.load(m_stand.folder);
        data.setGroupBy(ByCategory);
        QCOMPARE(data.asked, QStringLiteral("B Ab Aa"));
        QCOMPARE(data.askedFor, m_stand.folder);
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-] + Ab Aa"));
        data.setSortBy({sbName, soASC});
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-] + Aa Ab"));
        QCOMPARE(rowsText(dynamic_cast<INxGroupMedia *>(data.mediaItem(3))->members()),
                 QStringLiteral("+ Aa Ab"));
        NxMediaItemViewFilter paid;
        paid.type = mtfPaid;
        data.setFilter(paid);
        QCOMPARE(text(data), QString());
    }

    void ownGroupsFollowChanges()
    {
        ItemStand stand(fkProject, "B Ab Aa");
        ByLetter data;
        data.setChangesTold(true);
        data.load(stand.folder);
        data.setGroupBy(ByCategory);
        data.append(stand.make(QStringLiteral("Ac")), stand.folder);
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-] + Ab Aa Ac"));
        data.remove(stand.item("Ab"));
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-] + Aa Ac"));
        data.expandStateToggle(3, false);
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-]"));
    }

    void whatIsNoGroupAmongTheGroupsIsNotShown()
    {
        ScriptedPlain stranger(mtEffect, QStringLiteral("stranger"));
        ByLetter data;
        data.stranger = &stranger;
        data.load(m_stand.folder);
        data.setGroupBy(ByCategory);
        QCOMPARE(text(data), QStringLiteral("[B-] + B [A-] + Ab Aa"));
        data.doExtraMedia();
        data.remove(m_stand.item("B"));
        QCOMPARE(text(data), QStringLiteral("[B-] + [A-] + Ab Aa"));
    }

    void groupsAreHandedOutOnceForEachGrouping()
    {
        ByLetter data;
        data.load(m_stand.folder);
        QCOMPARE(data.timesSorted, 0);
        data.setGroupBy(ByCategory);
        QCOMPARE(data.timesSorted, 1);
        data.updateMediaItems();
        QCOMPARE(data.timesSorted, 2);
        data.doGroupBy();
        QCOMPARE(data.timesSorted, 3);
        data.load(nullptr);
        data.doGroupBy();
        QCOMPARE(data.timesSorted, 3);
    }

    void anotherKindOfRecordMayDoWithoutTiles()
    {
        ItemStand stand(fkProject);
        WithoutTiles data;
        data.setChangesTold(true);
        data.load(stand.folder);
        QCOMPARE(data.timesAsked, 1);
        data.append(stand.make(QStringLiteral("A:x")), stand.folder);
        QCOMPARE(text(data), QStringLiteral("A"));
        stand.folder->media.append(stand.item("A"));
        data.append(stand.make(QStringLiteral("B:y")), stand.folder);
        QCOMPARE(text(data), QStringLiteral("A B"));
        stand.folder->media.append(stand.item("B"));
        data.setGroupBy(ByCategory);
        QCOMPARE(text(data), QStringLiteral("[x] A [y] B"));
        data.remove(stand.item("A"));
        QCOMPARE(text(data), QStringLiteral("[x] [y] B"));
    }

    void anotherKindOfRecordMayShowItsOwnWay_data()
    {
        QTest::addColumn<bool>("areChangesTold");
        QTest::newRow("changes are told") << true;
        QTest::newRow("changes are not told") << false;
    }

    void anotherKindOfRecordMayShowItsOwnWay()
    {
        QFETCH(bool, areChangesTold);
        ItemStand stand(fkUserSection, "C:x A:x B:x");
        Reversed data;
        data.setChangesTold(areChangesTold);
        data.setSortEnable(true);
        data.load(stand.folder);
        data.setSortBy({sbName, soASC});
        QCOMPARE(text(data), QStringLiteral("C B A"));
        data.append(stand.make(QStringLiteral("AB:x")), stand.folder);
        QCOMPARE(text(data), QStringLiteral("C B AB A"));
        stand.folder->media.append(stand.item("AB"));
        data.remove(stand.item("C"));
        stand.folder->media.removeAll(stand.item("C"));
        QCOMPARE(text(data), QStringLiteral("B AB A"));
        data.append(stand.make(QStringLiteral("AC:x")), stand.folder);
        QCOMPARE(text(data), QStringLiteral("B AC AB A"));
    }

    void visibleRowsOfGroupsMayBeAskedFor()
    {
        NMediaItemData data(mctMedia);
        data.load(m_stand.folder);
        data.setGroupBy(ByCategory);
        data.expandStateToggle(0, false);
        QCOMPARE(text(data), QStringLiteral("[x] [y] + Ab"));
        QCOMPARE(rowsText(data.getVisibleItemsFromGroup()), QStringLiteral("[x] B Aa [y] Ab"));
        QCOMPARE(text(data), QStringLiteral("[x] [y] + Ab"));
        data.remove(m_stand.item("Ab"));
        QCOMPARE(text(data), QStringLiteral("[x] [y] +"));
    }
    void visibleRowsOfGroupsKnowWhatCameAndWent()
    {
        ItemStand stand(NXVBLMODEL::fkProject, "B:x Aa:x Ab:y");
        NMediaItemData data(mctMedia);
        data.setChangesTold(true);
        data.load(stand.folder);
        data.setGroupBy(ByCategory);
        for (const char *word : {"Ac:x", "D:z", "E:y"})
            data.append(stand.make(QString::fromLatin1(word)), stand.folder);
        data.remove(stand.item("B"));
        QCOMPARE(rowsText(data.getVisibleItemsFromGroup()),
                 QStringLiteral("[x] Aa Ac [y] Ab E [z] D"));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_copies)
#include "tst_NMediaItemData_copies.moc"
