// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/setting/MatterMenu.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <cstring>

class tst_MatterMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void holdsSixIntegersInOrder();
    void beginsWithZeroEverywhere();
};

void tst_MatterMenu::holdsSixIntegersInOrder()
{
    QCOMPARE(sizeof(MatterMenu), 6 * sizeof(qint32));
    const MatterMenu menu{
        NXMEDIALIBRARY::mtfVideo,      NXMEDIALIBRARY::vmMiddleThumbnail,
        NXMEDIALIBRARY::sbDateCreated, static_cast<NXMEDIALIBRARY::NxMediaItemViewSortOrder>(4),
        NXMEDIALIBRARY::gbCategory,    static_cast<NXMEDIALIBRARY::NxMediaItemViewSortOrder>(6)};
    qint32 values[6];
    std::memcpy(values, &menu, sizeof menu);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(values[i], i + 1);
}

void tst_MatterMenu::beginsWithZeroEverywhere()
{
    const MatterMenu menu;
    QCOMPARE(menu.filterType, NXMEDIALIBRARY::mtfAll);
    QCOMPARE(menu.viewType, NXMEDIALIBRARY::vmList);
    QCOMPARE(menu.sortBy, NXMEDIALIBRARY::sbNone);
    QCOMPARE(menu.sortByOrder, NXMEDIALIBRARY::soASC);
    QCOMPARE(menu.groupBy, NXMEDIALIBRARY::gbNone);
    QCOMPARE(menu.groupByOrder, NXMEDIALIBRARY::soASC);
}

NX_TEST_MAIN(tst_MatterMenu)
#include "tst_MatterMenu.moc"
