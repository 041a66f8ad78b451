// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/setting/MatterViewMenuState.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <cstddef>

class tst_MatterViewMenuState : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void holdsElevenIntegersOfEachField();
    void keepsTheOrderOfTheFields();
    void beginsWithLargeThumbnails();
};

void tst_MatterViewMenuState::holdsElevenIntegersOfEachField()
{
    QCOMPARE(sizeof(MatterViewMenuState), 6 * 11 * sizeof(qint32));
    QCOMPARE(int(MatterViewMenuState::Values().size()), 11);
}

void tst_MatterViewMenuState::keepsTheOrderOfTheFields()
{
    const std::size_t places[] = {
        offsetof(MatterViewMenuState, filterTypes), offsetof(MatterViewMenuState, viewTypes),
        offsetof(MatterViewMenuState, sortBys),     offsetof(MatterViewMenuState, sortByOrders),
        offsetof(MatterViewMenuState, groupBys),    offsetof(MatterViewMenuState, groupByOrders)};
    for (std::size_t i = 0; i < 6; ++i)
        QCOMPARE(places[i], i * sizeof(MatterViewMenuState::Values));
}

void tst_MatterViewMenuState::beginsWithLargeThumbnails()
{
    const MatterViewMenuState state;
    for (int i = 0; i < 11; ++i) {
        QCOMPARE(state.viewTypes[i], 3);
        QCOMPARE(state.filterTypes[i], 0);
        QCOMPARE(state.sortBys[i], 0);
        QCOMPARE(state.sortByOrders[i], 0);
        QCOMPARE(state.groupBys[i], 0);
        QCOMPARE(state.groupByOrders[i], 0);
    }
}

NX_TEST_MAIN(tst_MatterViewMenuState)
#include "tst_MatterViewMenuState.moc"
