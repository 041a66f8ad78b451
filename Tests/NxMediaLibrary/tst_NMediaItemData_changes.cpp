// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemFollower.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

} // namespace

/// Rows that follow one media more or less, whether every change is told or not.
class tst_NMediaItemData_changes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("areChangesTold");
        QTest::newRow("changes are told") << true;
        QTest::newRow("changes are not told") << false;
    }

    void oneMoreStandsWhereTheSortPutsIt()
    {
        ItemFollower one(fkProject, "B F D");
        one.add("C");
        QCOMPARE(one.text(), QStringLiteral("+ B C D F"));
        one.add("A");
        one.add("G");
        QCOMPARE(one.text(), QStringLiteral("+ A B C D F G"));
        one.data.setSortBy({sbName, soDESC});
        one.add("E");
        QCOMPARE(one.text(), QStringLiteral("+ G F E D C B A"));
        one.data.setSortBy({});
        one.add("AA");
        QCOMPARE(one.text(), QStringLiteral("+ B F D C A G E AA"));
    }

    void equalOnesStandAsTheyAreListed()
    {
        ItemFollower one(fkOnline, "A:1 A:2");
        one.add("A:3", 1);
        one.add("A:4");
        QStringList categories;
        for (INxAbstractMedia *media : one.data.getItems())
            categories.append(dynamic_cast<INxAbstractMediaItem *>(media)->categoryName());
        QCOMPARE(categories.join(QString()), QStringLiteral("1324"));
    }

    void whatTheFilterDropsIsNotShown()
    {
        ItemFollower one(fkProject, "A B");
        NxMediaItemViewFilter free;
        free.type = mtfFree;
        one.data.setFilter(free);
        ScriptedItem *paid = one.stand.make(QStringLiteral("AA"));
        paid->licence = lsPremium;
        one.addItem(paid);
        QCOMPARE(one.text(), QStringLiteral("+ A B"));
        one.data.setFilter({});
        QCOMPARE(one.text(), QStringLiteral("+ A AA B"));
        one.remove("AA");
        QCOMPARE(one.text(), QStringLiteral("+ A B"));
    }

    void whatWasHiddenAndIsGoneDoesNotComeBack()
    {
        ItemFollower one(fkProject, "A AB B");
        one.data.setFilter(filterOf("b"));
        one.remove("A");
        QCOMPARE(one.text(), QStringLiteral("+ AB B"));
        one.data.setFilter({});
        QCOMPARE(one.text(), QStringLiteral("+ AB B"));
        one.add("C");
        QCOMPARE(one.text(), QStringLiteral("+ AB B C"));
    }

    void theFirstOneBringsTheTile()
    {
        ItemFollower one(fkProject, "");
        QCOMPARE(one.text(), QString());
        one.add("A");
        QCOMPARE(one.text(), QStringLiteral("+ A"));
        QCOMPARE(one.data.mediaItem(0)->name(), QStringLiteral("Import Media"));
    }

    void theTileOfAnEmptiedFolderStays()
    {
        ItemFollower one(fkProject, "A B");
        one.remove("B");
        one.remove("A");
        QCOMPARE(one.text(), QStringLiteral("+"));
        one.add("C");
        QCOMPARE(one.text(), QStringLiteral("+ C"));
        one.remove("C");
        one.data.updateMediaItems();
        QCOMPARE(one.text(), QString());
    }

    void foldersStandBeforeMedia()
    {
        ItemFollower one(fkProject, "B D");
        const auto addFolder = [&one](const char *name) {
            ScriptedItem *folder = one.stand.make(QLatin1String(name));
            folder->type = mtFolder;
            one.addItem(folder);
        };
        addFolder("C");
        QCOMPARE(one.text(), QStringLiteral("+ C B D"));
        addFolder("A");
        QCOMPARE(one.text(), QStringLiteral("+ A C B D"));
        one.add("AA");
        QCOMPARE(one.text(), QStringLiteral("+ A C AA B D"));
        one.data.setSortBy({sbListorder, soDESC});
        addFolder("B1");
        one.add("B2");
        QCOMPARE(one.text(), QStringLiteral("+ C A B1 B D AA B2"));
    }

    void mediaWithoutATypeAreNotSortedIn()
    {
        ItemFollower one(fkProject, "B");
        ScriptedItem *odd = one.stand.make(QStringLiteral("A"));
        odd->type = mtNone;
        one.addItem(odd);
        QCOMPARE(one.text(), QStringLiteral("+ B"));
        one.data.setSortBy({});
        QCOMPARE(one.text(), QStringLiteral("+ B A"));
    }

    void whatIsListedAlreadyIsNotShownTwice()
    {
        ItemFollower one(fkProject, "A B");
        one.data.append(one.stand.item("A"), one.stand.folder);
        QCOMPARE(one.text(), QStringLiteral("+ A B"));
        one.data.remove(one.stand.item("A"));
        QCOMPARE(one.text(), QStringLiteral("+ B"));
    }

    void foldersInsideAreFollowed()
    {
        ItemFollower one(fkProject, "A C");
        ScriptedItemFolder *sub = one.stand.addFolder("C:inside", one.stand.folder);
        one.data.updateMediaItems();
        QCOMPARE(one.text(), QStringLiteral("+ A C C"));
        one.add("B", 0, sub);
        one.add("C:last", 1000);
        QCOMPARE(one.text(), QStringLiteral("+ A B C C C"));
        QCOMPARE(fullText(one.data), one.freshText());
        const QList<INxAbstractMedia *> rows = one.data.getItems();
        QCOMPARE(dynamic_cast<INxAbstractMediaItem *>(rows[3])->categoryName(), QString());
    }

    void theTurnOfANewListingIsTold()
    {
        ItemFollower one(fkProject, "A:1 A:2");
        one.stand.folder->media.move(0, 1);
        one.data.listingChanged();
        one.add("B");
        QCOMPARE(one.data.mediaItem(1), one.stand.folder->media[0]);
        QCOMPARE(one.text(), QStringLiteral("+ A A B"));
    }

    void aChangedMediaMovesWithTheNextOne()
    {
        ItemFollower one(fkProject, "A B C");
        one.stand.item("A")->title = QStringLiteral("D");
        one.data.mediaChanged(one.stand.item("D"));
        QCOMPARE(one.text(), QStringLiteral("+ D B C"));
        one.add("CC");
        QCOMPARE(one.text(), QStringLiteral("+ B C CC D"));
        one.data.setFilter(filterOf("c"));
        one.stand.item("B")->title = QStringLiteral("CB");
        one.data.mediaChanged(one.stand.item("CB"));
        one.stand.item("C")->title = QStringLiteral("X");
        one.data.mediaChanged(one.stand.item("X"));
        one.add("CA");
        QCOMPARE(one.text(), QStringLiteral("+ CA CB CC"));
    }

    void aChangedMediaMovesWithTheNextRows()
    {
        ItemFollower one(fkProject, "A B C");
        one.stand.item("A")->title = QStringLiteral("D");
        one.data.mediaChanged(one.stand.item("D"));
        one.data.updateMediaItems();
        QCOMPARE(one.text(), QStringLiteral("+ B C D"));
    }

    void severalChangedMediaAreTakenOutBeforeOneIsPlaced()
    {
        ItemFollower one(fkProject, "A B C D E F G");
        one.stand.item("A")->title = QStringLiteral("F1");
        one.data.mediaChanged(one.stand.item("F1"));
        one.stand.item("E")->title = QStringLiteral("Z");
        one.data.mediaChanged(one.stand.item("Z"));
        one.add("H");
        QCOMPARE(one.text(), QStringLiteral("+ B C D F F1 G H Z"));
    }

    void manyChangedMediaMoveToo()
    {
        ItemFollower one(fkOnline, "A B C");
        for (int i = 0; i < 40; ++i)
            one.add(qPrintable(QStringLiteral("M%1").arg(i)));
        for (const auto &item : one.stand.items) {
            item->title.prepend(QLatin1Char(item->title.size() % 2 ? 'Z' : 'Y'));
            one.data.mediaChanged(item.get());
        }
        one.add("Z");
        QCOMPARE(fullText(one.data), one.freshText());
    }

    void choicesThatChangedMeanwhileAreFollowed()
    {
        ItemFollower one(fkProject, "A:x B:y");
        one.data.setSortEnable(false);
        one.add("AA:z");
        QCOMPARE(one.text(), QStringLiteral("+ A B AA"));
        one.data.setSortEnable(true);
        one.add("AB:z");
        QCOMPARE(one.text(), QStringLiteral("+ A AA AB B"));
        one.stand.section->itsKind = fkOnline;
        one.add("AC:z");
        QCOMPARE(one.text(), QStringLiteral("A AA AB AC B"));
        one.stand.folder->newnessOrdered = true;
        one.stand.item("B")->modified = QDateTime(QDate(2025, 1, 1), QTime(), Qt::UTC);
        one.data.mediaChanged(one.stand.item("B"));
        one.add("AD:z");
        QCOMPARE(one.text(), QStringLiteral("B A AA AB AC AD"));
    }

    void rowsStayWhenMemoryIsGivenBack()
    {
        for (const NxMediaItemViewGroup &group : {NxMediaItemViewGroup(), ByCategory}) {
            ItemFollower one(fkProject, "C:x A:y D:x", group);
            const QString before = one.text();
            one.data.releaseCaches();
            QCOMPARE(one.text(), before);
            one.add("B:x");
            one.data.releaseCaches();
            one.remove("D");
            one.add("E:z");
            QCOMPARE(fullText(one.data), one.freshText());
            one.data.releaseCaches();
            one.data.setSortBy({sbName, soDESC});
            QCOMPARE(fullText(one.data), one.freshText());
        }
    }

    void deadMediaAreTakenOutWithoutALook()
    {
        for (const NxMediaItemViewGroup &group : {NxMediaItemViewGroup(), ByCategory}) {
            ItemFollower one(fkProject, "A:x B:y C:x", group);
            INxAbstractMedia *dead = one.stand.item("C");
            one.stand.folder->media.removeAll(dead);
            one.stand.items.pop_back();
            one.data.remove(dead);
            QVERIFY(one.data.rows(dead).isEmpty());
            one.add("D:x");
            QCOMPARE(fullText(one.data), one.freshText());
        }
    }

    void changesThatWereNotToldAreSeenOnceTheyAre()
    {
        ItemFollower one(fkProject, "A B C");
        QFETCH_GLOBAL(bool, areChangesTold);
        one.data.setChangesTold(false);
        one.stand.item("A")->title = QStringLiteral("D");
        one.data.setChangesTold(areChangesTold);
        one.data.load(one.stand.folder);
        QCOMPARE(one.text(), QStringLiteral("+ B C D"));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_changes)
#include "tst_NMediaItemData_changes.moc"
