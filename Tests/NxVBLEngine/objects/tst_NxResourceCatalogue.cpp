// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxResourceCatalogue.h>

#include <Support/NxTestMain.h>

#include <QSet>
#include <QtTest>

using namespace NXVBLMODEL;

class tst_NxResourceCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsOfEachCategory_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("idsAndKinds");

        QTest::newRow("media") << int(mctMedia) << "1:1 2:2";
        for (int category = mctAudio; category <= mctStockMedia; ++category) {
            QTest::addRow("resources %d", category) << category << "1:3 8:8 11:11";
        }
        QTest::newRow("stock provider")
            << int(mctVCGStock) << "21:21 27:27 28:28 29:29 8:8 11:11 26:26";
        QTest::newRow("templates") << int(mctTemplate) << "1:3 8:8 11:11";
        QTest::newRow("reserved") << int(mctReserved) << "1:3";
        QTest::newRow("no category") << int(mctNone) << "";
        QTest::newRow("negative") << -1 << "";
    }

    void sectionsOfEachCategory()
    {
        QFETCH(int, category);
        QStringList found;
        for (const NxSectionEntry &section : NxResourceCatalogue::sections(category)) {
            found.append(QStringLiteral("%1:%2").arg(section.id).arg(section.kind));
            QVERIFY(!section.name.isEmpty());
        }
        QTEST(found.join(QLatin1Char(' ')), "idsAndKinds");
    }

    void resourceCategoriesHaveTwelveInTwoSectionsAtLeast_data()
    {
        QTest::addColumn<int>("category");
        for (int category = mctAudio; category <= mctTemplate; ++category)
            QTest::addRow("category %d", category) << category;
    }

    void resourceCategoriesHaveTwelveInTwoSectionsAtLeast()
    {
        QFETCH(int, category);
        QSet<int> sections;
        QSet<QString> names;
        const QVector<NxResourceEntry> resources = NxResourceCatalogue::resources(category);
        for (const NxResourceEntry &resource : resources) {
            sections.insert(resource.section);
            names.insert(resource.name);
            QCOMPARE(resource.category, category);
            QVERIFY(resource.type != mtNone);
            QVERIFY(!resource.categoryText.isEmpty());
        }
        QVERIFY(resources.size() >= 12);
        QVERIFY(sections.size() >= 2);
        QCOMPARE(names.size(), resources.size());
    }

    void theUsersOwnAndTheReservedCategoryHaveNone()
    {
        QVERIFY(NxResourceCatalogue::resources(mctMedia).isEmpty());
        QVERIFY(NxResourceCatalogue::resources(mctReserved).isEmpty());
        QVERIFY(NxResourceCatalogue::resources(mctNone).isEmpty());
    }

    void idsAreNeverUsedTwice()
    {
        QSet<qint64> ids;
        int count = 0;
        for (int category = 0; category < MediaCategoryCount; ++category) {
            for (const NxResourceEntry &resource : NxResourceCatalogue::resources(category)) {
                ids.insert(resource.id);
                ++count;
            }
        }
        QCOMPARE(ids.size(), count);
    }

    // Projects keep what the user changed by these ids, so they must never move.
    void idsStayTheSame_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<qint64>("firstId");
        QTest::newRow("audio") << int(mctAudio) << (qint64(1) << 52) + 1;
        QTest::newRow("title") << int(mctTitle) << (qint64(1) << 52) + 3001;
        QTest::newRow("stock media") << int(mctStockMedia) << (qint64(1) << 52) + 18001;
        QTest::newRow("template") << int(mctTemplate) << (qint64(1) << 52) + 24001;
    }

    void idsStayTheSame()
    {
        QFETCH(int, category);
        QTEST(NxResourceCatalogue::resources(category).first().id, "firstId");
    }
};

NX_TEST_MAIN(tst_NxResourceCatalogue)
#include "tst_NxResourceCatalogue.moc"
