// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

/// Groups that are folded and unfolded.
class tst_NMediaItemData_folding : public QObject
{
    Q_OBJECT

    /// "[x] + A B [y] + C"
    struct Grouped : NMediaItemData
    {
        explicit Grouped(const ItemStand &stand) : NMediaItemData(mctMedia)
        {
            load(stand.folder);
            setGroupBy({gbCategory, soASC, nullptr});
        }
        QString text() const { return rowsText(getItems()); }
        INxGroupMedia *group(int row) const
        {
            return dynamic_cast<INxGroupMedia *>(mediaItem(row));
        }
    };

    const ItemStand m_stand{fkProject, "A:x C:y B:x"};

private Q_SLOTS:
    void groupsBeginUnfolded()
    {
        const Grouped data(m_stand);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
        QVERIFY(data.group(0)->isExpanded());
        QVERIFY(data.group(4)->isExpanded());
    }

    void foldingHidesTheMembersAndTheTile()
    {
        Grouped data(m_stand);
        data.expandStateToggle(0, false);
        QCOMPARE(data.text(), QStringLiteral("[x] [y] + C"));
        QVERIFY(!data.group(0)->isExpanded());
        QCOMPARE(data.group(0)->itemCount(), 2);
        data.expandStateToggle(1, false);
        QCOMPARE(data.text(), QStringLiteral("[x] [y]"));
        data.expandStateToggle(0, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y]"));
        QVERIFY(data.group(0)->isExpanded());
        QVERIFY(!data.group(4)->isExpanded());
        data.expandStateToggle(4, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
    }

    void unfoldingTwiceShowsTheMembersTwice()
    {
        Grouped data(m_stand);
        data.expandStateToggle(4, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C + C"));
        QCOMPARE(data.rows(m_stand.item("C")), QList<int>({6, 8}));
        data.expandStateToggle(0, true);
        QCOMPARE(data.rows(m_stand.item("B")), QList<int>({3, 6}));
        data.expandStateToggle(0, false);
        QCOMPARE(data.text(), QStringLiteral("[x] [y] + C + C"));
        data.remove(m_stand.item("C"));
        QCOMPARE(data.text(), QStringLiteral("[x] [y] + +"));
    }

    void foldingTwiceIsFoldingOnce()
    {
        Grouped data(m_stand);
        data.expandStateToggle(0, false);
        data.expandStateToggle(0, false);
        QCOMPARE(data.text(), QStringLiteral("[x] [y] + C"));
    }

    void rowsThatAreNoHeadersCannotBeFolded_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("before the first") << -1;
        QTest::newRow("behind the last") << 7;
        QTest::newRow("far behind the last") << 7000;
        QTest::newRow("tile") << 1;
        QTest::newRow("media") << 2;
    }

    void rowsThatAreNoHeadersCannotBeFolded()
    {
        QFETCH(int, row);
        Grouped data(m_stand);
        for (const bool expand : {false, true}) {
            data.expandStateToggle(row, expand);
            QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
        }
    }

    void newRowsAreUnfolded()
    {
        Grouped data(m_stand);
        const auto fold = [&data] {
            data.expandStateToggle(0, false);
            data.expandStateToggle(1, false);
            QCOMPARE(data.text(), QStringLiteral("[x] [y]"));
        };
        fold();
        data.updateMediaItems();
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
        fold();
        data.load(m_stand.folder);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
        fold();
        data.setGroupBy({gbCategory, soDESC, nullptr});
        QCOMPARE(data.text(), QStringLiteral("[y] + C [x] + A B"));
        QVERIFY(data.group(0)->isExpanded());
        QVERIFY(data.group(3)->isExpanded());
    }

    void oneMoreMediaUnfoldsEverything_data()
    {
        QTest::addColumn<bool>("areChangesTold");
        QTest::newRow("changes are told") << true;
        QTest::newRow("changes are not told") << false;
    }

    void oneMoreMediaUnfoldsEverything()
    {
        QFETCH(bool, areChangesTold);
        ItemStand stand(fkProject, "A:x C:y B:x");
        Grouped data(stand);
        data.setChangesTold(areChangesTold);
        data.updateMediaItems();
        data.expandStateToggle(0, false);
        ScriptedItem *added = stand.make(QStringLiteral("D:y"));
        data.append(added, stand.folder);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C D"));
        QVERIFY(data.group(0)->isExpanded());
    }

    void whatLeavesAFoldedGroupDoesNotComeBack()
    {
        Grouped data(m_stand);
        data.expandStateToggle(0, false);
        data.remove(m_stand.item("A"));
        QCOMPARE(data.text(), QStringLiteral("[x] [y] + C"));
        QCOMPARE(data.group(0)->itemCount(), 1);
        data.expandStateToggle(0, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + B [y] + C"));
    }

    void theHeaderOfAnEmptiedGroupStaysUntilTheNextRows()
    {
        Grouped data(m_stand);
        data.remove(m_stand.item("C"));
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] +"));
        QCOMPARE(data.group(4)->itemCount(), 0);
        data.expandStateToggle(4, false);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y]"));
        data.expandStateToggle(4, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] +"));
        data.updateMediaItems();
        QCOMPARE(data.text(), QStringLiteral("[x] + A B [y] + C"));
    }

    void membersStandInTheOrderInWhichTheyWereShown()
    {
        Grouped data(m_stand);
        data.setSortEnable(true);
        data.setSortBy({sbName, soDESC});
        QCOMPARE(data.text(), QStringLiteral("[x] + B A [y] + C"));
        data.expandStateToggle(0, false);
        data.expandStateToggle(0, true);
        QCOMPARE(data.text(), QStringLiteral("[x] + B A [y] + C"));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_folding)
#include "tst_NMediaItemData_folding.moc"
