// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxStreamDescriptions.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_NxStreamDescriptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfOneCameraShareADescription()
    {
        NxStreamDescriptions pool;
        const NxStreamDescription *one = pool.of(NxFootageSamples::full(1).facts.streams);
        QCOMPARE(pool.of(NxFootageSamples::full(2).facts.streams), one);
        QCOMPARE(pool.count(), size_t(1));
        QVERIFY(pool.of(NxFootageSamples::full(1, 2).facts.streams) != one);
        QCOMPARE(pool.count(), size_t(2));
    }

    void aDescriptionStaysWhereItIsHoweverManyFollow()
    {
        NxStreamDescriptions pool;
        const NxStreamDescription *first = pool.of(NxFootageSamples::full(1, 0).facts.streams);
        for (int camera = 1; camera < 5000; ++camera)
            QVERIFY(pool.of(NxFootageSamples::full(1, camera).facts.streams));
        QCOMPARE(pool.count(), size_t(5000));
        QCOMPARE(pool.of(NxFootageSamples::full(1, 0).facts.streams), first);
        QCOMPARE(first->camera, QStringLiteral("Maker Model 0"));
    }
};

NX_TEST_MAIN(tst_NxStreamDescriptions)
#include "tst_NxStreamDescriptions.moc"
