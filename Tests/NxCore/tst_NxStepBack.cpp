// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxStepBack.h>

#include <Support/NxTestMain.h>
#include <Support/NxThreadNiceness.h>

#include <QTest>

#include <thread>

class tst_NxStepBack : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aThreadStepsBack();
    void nobodyElseDoes();
    void noThreadComesForward();
};

void tst_NxStepBack::aThreadStepsBack()
{
    int found = 0;
    std::thread([&found] {
        nxStepBack();
        found = NxThreadNiceness::own();
    }).join();

    QCOMPARE(found, NxThreadNiceness::atLeast(5));
}

void tst_NxStepBack::nobodyElseDoes()
{
    const int before = NxThreadNiceness::own();

    std::thread(&nxStepBack).join();

    QCOMPARE(NxThreadNiceness::own(), before);
}

void tst_NxStepBack::noThreadComesForward()
{
    const int further = NxThreadNiceness::atLeast(12);
    int found = 0;
    std::thread([&found, further] {
        QCOMPARE(::setpriority(PRIO_PROCESS, id_t(gettid()), further), 0);
        nxStepBack();
        found = NxThreadNiceness::own();
    }).join();

    QCOMPARE(found, further);
}

NX_TEST_MAIN(tst_NxStepBack)
#include "tst_NxStepBack.moc"
