// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

QVector<int> plainLineRows(const NxMediaItemModel &model)
{
    QVector<int> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const NxMediaType type = model.mediaItem(row)->mediaType();
        if (type == mtGroup || type == mtViewMoreTile)
            rows.append(row);
    }
    return rows;
}

/// Every media that is in a group, or in a row where there are none.
int plainCount(const NxMediaItemModel &model)
{
    QSet<const INxAbstractMedia *> counted;
    const auto count = [&counted](const QList<INxAbstractMedia *> &medias) {
        for (const INxAbstractMedia *media : medias) {
            if (dynamic_cast<const ScriptedItem *>(media))
                counted.insert(media);
        }
    };
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto *group = dynamic_cast<const INxGroupMedia *>(model.mediaItem(row));
        count(group ? group->members() : QList<INxAbstractMedia *>{model.mediaItem(row)});
    }
    return counted.size();
}

struct Lines : NxMediaItemModel
{
    explicit Lines(const ItemStand &stand) : NxMediaItemModel(mctMedia, nullptr)
    {
        load(stand.folder);
    }
    [[nodiscard]] QString text() const { return rowsText(getItems()); }
};

} // namespace

/// Which rows take a whole line, and how many media are shown.
class tst_NxMediaItemModel_lines : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anEmptyModelHasNoLines();
    void mediaSideBySideTakeNoWholeLine_data();
    void mediaSideBySideTakeNoWholeLine();
    void eachHeaderTakesALine();
    void foldedGroupsKeepTheirHeadersAndTheirCount();
    void groupsThatShowTheirMediaTwiceCountThemOnce();
    void whatIsFilteredOutDoesNotCount();
    void moreOfAPackTakesALine();
    void packsThatAreShownWholeHaveNoLine();
    void linesFollowWhateverHappens_data();
    void linesFollowWhateverHappens();
};

void tst_NxMediaItemModel_lines::anEmptyModelHasNoLines()
{
    NxMediaItemModel model(mctMedia, nullptr);
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 0);
    const ItemStand stand(fkProject);
    model.load(stand.folder);
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 0);
    model.setGroupBy(ByCategory);
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 0);
}

void tst_NxMediaItemModel_lines::mediaSideBySideTakeNoWholeLine_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("rows");
    QTest::newRow("with the import tile") << int(fkProject) << "+ A B C";
    QTest::newRow("without tiles") << int(fkOnline) << "A B C";
}

void tst_NxMediaItemModel_lines::mediaSideBySideTakeNoWholeLine()
{
    QFETCH(int, section);
    const ItemStand stand(section, "A B C");
    Lines model(stand);
    QTEST(model.text(), "rows");
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 3);
    model.clear();
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 0);
}

void tst_NxMediaItemModel_lines::eachHeaderTakesALine()
{
    const ItemStand stand(fkProject, "A:x C:y B:x");
    Lines model(stand);
    model.setGroupBy(ByCategory);
    QCOMPARE(model.text(), QStringLiteral("[x] + A B [y] + C"));
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 4}));
    QCOMPARE(model.listedCount(), 3);
    model.setGroupBy({});
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 3);
}

void tst_NxMediaItemModel_lines::foldedGroupsKeepTheirHeadersAndTheirCount()
{
    const ItemStand stand(fkProject, "A:x C:y B:x");
    Lines model(stand);
    model.setGroupBy(ByCategory);
    model.expandStateToggle(0, false);
    QCOMPARE(model.text(), QStringLiteral("[x] [y] + C"));
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 1}));
    QCOMPARE(model.listedCount(), 3);
    model.expandStateToggle(1, false);
    QCOMPARE(model.text(), QStringLiteral("[x] [y]"));
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 1}));
    QCOMPARE(model.listedCount(), 3);
    model.expandStateToggle(0, true);
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 4}));
}

void tst_NxMediaItemModel_lines::groupsThatShowTheirMediaTwiceCountThemOnce()
{
    const ItemStand stand(fkProject, "A:x C:y B:x D:z");
    Lines model(stand);
    model.setGroupBy(ByCategory);
    model.expandStateToggle(0, true);
    QCOMPARE(model.text(), QStringLiteral("[x] + A B + A B [y] + C [z] + D"));
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 7, 10}));
    QCOMPARE(model.listedCount(), 4);
    model.expandStateToggle(10, true);
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 7, 10}));
    model.expandStateToggle(0, false);
    QCOMPARE(model.text(), QStringLiteral("[x] [y] + C [z] + D + D"));
    QCOMPARE(model.wholeLineRows(), QVector<int>({0, 1, 4}));
    QCOMPARE(model.listedCount(), 4);
}

void tst_NxMediaItemModel_lines::whatIsFilteredOutDoesNotCount()
{
    const ItemStand stand(fkProject, "Sea:x Sun:y Moon:x");
    Lines model(stand);
    model.setFilter(filterOf("s"));
    QCOMPARE(model.text(), QStringLiteral("+ Sea Sun"));
    QCOMPARE(model.listedCount(), 2);
    model.setFilter(filterOf("nobody"));
    QCOMPARE(model.text(), QString());
    QCOMPARE(model.listedCount(), 0);
}

void tst_NxMediaItemModel_lines::moreOfAPackTakesALine()
{
    const ItemStand stand(fkProject, "A B C D E F");
    stand.folder->pack = stand.folder->media.mid(0, 3);
    Lines model(stand);
    model.setItemCountPerLine(1, false);
    model.setFilter(similarTo(1));
    model.updateSimilarMediaItems();
    QCOMPARE(model.text(), QStringLiteral("A B ... D E ..."));
    QCOMPARE(model.wholeLineRows(), QVector<int>({2, 5}));
    QCOMPARE(model.listedCount(), 4);
}

void tst_NxMediaItemModel_lines::packsThatAreShownWholeHaveNoLine()
{
    const ItemStand stand(fkProject, "A B C D E F");
    stand.folder->pack = stand.folder->media.mid(0, 3);
    Lines model(stand);
    model.setItemCountPerLine(1, false);
    model.setFilter(similarTo(1));
    model.viewMoreSimilarPackItem(false);
    QCOMPARE(model.text(), QStringLiteral("A B C D E F"));
    QVERIFY(model.wholeLineRows().isEmpty());
    QCOMPARE(model.listedCount(), 6);
}

void tst_NxMediaItemModel_lines::linesFollowWhateverHappens_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_NxMediaItemModel_lines::linesFollowWhateverHappens()
{
    QFETCH(quint32, seed);
    QRandomGenerator dice(seed);
    const auto number = [&dice](int below) { return int(dice.bounded(below)); };
    ItemStand stand(fkProject, "A:x B:y C:z D:x E:y F:w");
    ScriptedItemFolder *inner = stand.addFolder("G:x H:v", stand.folder);
    stand.folder->pack = stand.folder->media.mid(0, 3);
    Lines model(stand);
    model.subscribeMediaItemManager(&stand.manager);
    model.setItemCountPerLine(1, false);
    model.setGroupBy(ByCategory);
    for (int step = 0; step < 80; ++step) {
        ScriptedItem *item = stand.items.at(size_t(number(int(stand.items.size())))).get();
        switch (number(8)) {
        case 0:
            if (item->home)
                stand.manager.take(item);
            break;
        case 1:
            if (!item->home)
                stand.manager.insert(number(2) == 0 ? inner : stand.folder, 0, item);
            break;
        case 2:
            model.setFilter(number(3) == 0 ? similarTo(number(9)) : filterOf(""));
            break;
        case 3:
            model.setGroupBy(number(3) == 0 ? NxMediaItemViewGroup{} : ByCategory);
            break;
        case 4:
            model.viewMoreSimilarPackItem(false);
            break;
        default: {
            const QVector<int> heads = plainLineRows(model);
            if (!heads.isEmpty())
                model.expandStateToggle(heads.at(number(heads.size())), number(2) == 0);
        }
        }
        QCOMPARE(model.wholeLineRows(), plainLineRows(model));
        QCOMPARE(model.listedCount(), plainCount(model));
    }
}

NX_TEST_MAIN(tst_NxMediaItemModel_lines)
#include "tst_NxMediaItemModel_lines.moc"
