// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxSiblingPlaces.h>

#include <Support/NxTestMain.h>

#include <QtTest>

class tst_NxSiblingPlaces : public QObject
{
    Q_OBJECT

private:
    EngineFixture project;
    QVector<NxEngineFolder *> siblings;

    NxEngineFolder *folderAtPlace(qint64 place)
    {
        NxEngineFolder *made = project.addFolder(project.section, QString::number(siblings.size()));
        made->setPlace(place);
        siblings.append(made);
        return made;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const qint64 place : {10, 11, 20})
            folderAtPlace(place);
    }

    void roomBetweenTwo_data()
    {
        QTest::addColumn<int>("spot");
        QTest::addColumn<bool>("hasGap");
        QTest::addColumn<qint64>("place");
        QTest::newRow("before the first") << 0 << true << qint64(5);
        QTest::newRow("between neighbours there is none") << 1 << false << qint64(10);
        QTest::newRow("in the middle of a gap") << 2 << true << qint64(15);
        QTest::newRow("behind the last") << 3 << true << 20 + NxSiblingPlaces::Gap;
    }

    void roomBetweenTwo()
    {
        QFETCH(int, spot);
        QTEST(NxSiblingPlaces::hasGap(siblings, spot), "hasGap");
        QTEST(NxSiblingPlaces::placeAt(siblings, spot), "place");
    }

    void theFirstOfAllGetsAGapBeforeIt()
    {
        QVERIFY(NxSiblingPlaces::hasGap({}, 0));
        QCOMPARE(NxSiblingPlaces::placeAt({}, 0), NxSiblingPlaces::Gap);
    }
};

NX_TEST_MAIN(tst_NxSiblingPlaces)
#include "tst_NxSiblingPlaces.moc"
