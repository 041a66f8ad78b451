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

/// Groups that follow one media more or less, whether every change is told or not.
class tst_NMediaItemData_groupChanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("areChangesTold");
        QTest::newRow("changes are told") << true;
        QTest::newRow("changes are not told") << false;
    }

    void oneMoreGoesToItsGroup()
    {
        ItemFollower one(fkProject, "B:x D:z", ByCategory);
        QCOMPARE(one.text(), QStringLiteral("[x] + B [z] + D"));
        one.add("A:x");
        QCOMPARE(fullText(one.data), QStringLiteral("[x] {2 of + A B} + A B [z] {1 of + D} + D"));
        one.add("C:y");
        QCOMPARE(one.text(), QStringLiteral("[x] + A B [y] + C [z] + D"));
        one.add("E");
        one.add("AA:y");
        QCOMPARE(fullText(one.data),
                 QStringLiteral("[x] {2 of + A B} + A B [y] {2 of + AA C} + AA C "
                                "[z] {1 of + D} + D [None] {1 of + E} + E"));
        QCOMPARE(fullText(one.data), one.freshText());
    }

    void groupsRunTheOtherWayToo()
    {
        ItemFollower one(fkUserSection, "B:x D:z", {gbCategory, soDESC, nullptr});
        one.add("C:y");
        one.add("E");
        one.add("F:zz");
        QCOMPARE(one.text(), QStringLiteral("[zz] F [z] D [y] C [x] B [None] E"));
    }

    void anotherGroupIsFoundByEachKey_data()
    {
        QTest::addColumn<int>("groupBy");
        for (int key = gbNone; key <= gbCategory; ++key)
            QTest::addRow("key %d", key) << key;
    }

    void anotherGroupIsFoundByEachKey()
    {
        QFETCH(int, groupBy);
        for (const NxMediaItemViewSortOrder order : {soASC, soDESC}) {
            ItemFollower one(fkProject, "A B", {NxMediaItemViewGroupBy(groupBy), order, nullptr});
            for (int i = 0; i < 12; ++i) {
                ScriptedItem *item = one.stand.make(QStringLiteral("M%1").arg(i * 5 % 12));
                item->info.frames = i * 25 * 60 * 7;
                item->info.rate = {25, 1};
                item->info.flags = i % 3;
                item->camera = QString::number(i * 7 % 5);
                item->category = QString::number(i * 3 % 4);
                item->created = QDateTime(QDate(2025, 1, 1 + i * 5 % 7), QTime(12, 0), Qt::UTC);
                one.addItem(item);
                QCOMPARE(fullText(one.data), one.freshText());
            }
        }
    }

    void anEmptiedGroupsHeaderStays()
    {
        ItemFollower one(fkProject, "A:x B:y", ByCategory);
        one.remove("A");
        QCOMPARE(fullText(one.data), QStringLiteral("[x] {0 of +} + [y] {1 of + B} + B"));
        one.add("C:y");
        QCOMPARE(fullText(one.data), QStringLiteral("[y] {2 of + B C} + B C"));
    }

    void aChangedMediaChangesItsGroup()
    {
        ItemFollower one(fkProject, "A:x B:y C:y", ByCategory);
        one.stand.item("B")->category = QStringLiteral("x");
        one.data.mediaChanged(one.stand.item("B"));
        QCOMPARE(one.text(), QStringLiteral("[x] + A [y] + B C"));
        one.add("D:y");
        QCOMPARE(one.text(), QStringLiteral("[x] + A B [y] + C D"));
        one.stand.item("B")->category = QStringLiteral("w");
        one.data.mediaChanged(one.stand.item("B"));
        one.add("E:x");
        QCOMPARE(fullText(one.data), one.freshText());
    }

    void headersAndTilesMayBeTakenOut()
    {
        ItemFollower one(fkProject, "A:x B:y", ByCategory);
        one.data.remove(one.data.mediaItem(1));
        QCOMPARE(fullText(one.data), QStringLiteral("[x] {1 of A} A [y] {1 of + B} + B"));
        one.add("C:y");
        QCOMPARE(one.text(), QStringLiteral("[x] + A [y] + B C"));
        one.data.setGroupBy({});
        one.data.remove(one.data.mediaItem(0));
        QCOMPARE(one.text(), QStringLiteral("A B C"));
        one.add("D");
        QCOMPARE(one.text(), QStringLiteral("+ A B C D"));
    }

    void anotherOrderTurnsTheGroups()
    {
        ItemFollower one(fkProject, "B:y A:x C", ByCategory);
        one.data.setGroupBy({gbCategory, soDESC, nullptr});
        QCOMPARE(one.text(), QStringLiteral("[y] + B [x] + A [None] + C"));
        one.add("D:xx");
        QCOMPARE(one.text(), QStringLiteral("[y] + B [xx] + D [x] + A [None] + C"));
        one.data.setGroupBy({gbDuration, soDESC, nullptr});
        QCOMPARE(one.text(), QStringLiteral("[less than 1min] + A B C D"));
        one.data.setGroupBy(ByCategory);
        QCOMPARE(one.text(), QStringLiteral("[x] + A [xx] + D [y] + B [None] + C"));
    }

    void theFirstMatchOfAKeywordComesWithoutAHeader()
    {
        ItemFollower one(fkProject, "A:x", ByCategory);
        one.data.setFilter(filterOf("b"));
        QCOMPARE(one.text(), QString());
        one.add("B:x");
        QCOMPARE(one.text(), QStringLiteral("+ B"));
        one.data.setFilter({});
        QCOMPARE(one.text(), QStringLiteral("[x] + A B"));
    }
};

NX_TEST_MAIN(tst_NMediaItemData_groupChanges)
#include "tst_NMediaItemData_groupChanges.moc"
