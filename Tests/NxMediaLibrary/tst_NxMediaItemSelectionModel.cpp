// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>

#include <Support/NxTestMain.h>

#include <QStandardItemModel>
#include <QtTest>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr QItemSelectionModel::SelectionFlags Rows =
    QItemSelectionModel::Select | QItemSelectionModel::Rows;

/// What the base class lists in the first column.
QModelIndexList plainFirstColumn(const QItemSelectionModel &selection)
{
    QModelIndexList indexes = selection.selectedIndexes();
    indexes.erase(std::remove_if(indexes.begin(), indexes.end(),
                                 [](const QModelIndex &index) { return index.column() > 0; }),
                  indexes.end());
    return indexes;
}

QString rowNumbers(const QModelIndexList &indexes)
{
    QStringList numbers;
    for (const QModelIndex &index : indexes)
        numbers.append(QString::number(index.row()));
    return numbers.join(QLatin1Char(' '));
}

} // namespace

/// Which media a selection of cells means.
class tst_NxMediaItemSelectionModel : public QObject
{
    Q_OBJECT

    struct Selected
    {
        explicit Selected(int sectionKind = fkOnline, const char *words = "A B C D E",
                          int category = mctMedia)
            : stand(sectionKind, words),
              model(NxMediaCategoryType(category), nullptr),
              selection(&model, nullptr)
        {
            model.load(stand.folder);
        }
        void select(int row, int column) { select(row, column, row, column); }
        void select(int top, int left, int bottom, int right)
        {
            selection.select(QItemSelection(model.index(top, left), model.index(bottom, right)),
                             QItemSelectionModel::Select);
        }
        QString text() const { return rowsText(selection.selectedItems()); }

        ItemStand stand;
        NxMediaItemModel model;
        NxMediaItemSelectionModel selection;
    };

private Q_SLOTS:
    void itStandsOverItsModel()
    {
        NxMediaItemModel model(mctMedia, nullptr);
        QObject parent;
        const auto *selection = new NxMediaItemSelectionModel(&model, &parent);
        QCOMPARE(selection->mediaItemModel(), &model);
        QCOMPARE(selection->model(), &model);
        QCOMPARE(selection->parent(), &parent);
        QCOMPARE(selection->metaObject()->methodCount(),
                 QItemSelectionModel::staticMetaObject.methodCount());
    }

    void noSelectionMeansNoMedia()
    {
        const NxLogCapture log;
        const Selected s;
        QVERIFY(s.selection.firstColumnSelectedIndexes().isEmpty());
        QVERIFY(s.selection.selectedItems().isEmpty());
        QVERIFY(log.texts().isEmpty());
    }

    void aWholeRowIsOneMedia()
    {
        Selected s;
        QCOMPARE(s.model.columnCount(), 10);
        s.selection.select(s.model.index(1, 4), Rows);
        QCOMPARE(s.selection.selectedIndexes().size(), 10);
        QCOMPARE(s.selection.firstColumnSelectedIndexes(), QModelIndexList{s.model.index(1, 0)});
        QCOMPARE(s.text(), QStringLiteral("B"));
    }

    void otherColumnsAloneMeanNothing()
    {
        Selected s;
        s.select(1, 1);
        s.select(2, 1, 3, 9);
        QVERIFY(s.selection.firstColumnSelectedIndexes().isEmpty());
        QCOMPARE(s.text(), QString());
        s.select(3, 0);
        QCOMPARE(s.text(), QStringLiteral("D"));
        s.select(0, 0, 4, 0);
        QCOMPARE(rowNumbers(s.selection.firstColumnSelectedIndexes()),
                 rowNumbers(plainFirstColumn(s.selection)));
    }

    void mediaStandInTheOrderInWhichTheyWereSelected()
    {
        Selected s;
        for (const int row : {3, 0, 4})
            s.selection.select(s.model.index(row, 0), Rows);
        QCOMPARE(s.text(), QStringLiteral("D A E"));
        s.select(1, 0, 2, 9);
        QCOMPARE(s.text(), QStringLiteral("D A E B C"));
        s.selection.select(s.model.index(0, 0), QItemSelectionModel::Deselect);
        QCOMPARE(s.text(), QStringLiteral("D E B C"));
        QCOMPARE(s.selection.firstColumnSelectedIndexes(), plainFirstColumn(s.selection));
    }

    void severalRangesMeanEachOfTheirRows()
    {
        Selected s;
        QItemSelection ranges;
        ranges.select(s.model.index(3, 0), s.model.index(4, 9));
        ranges.select(s.model.index(0, 0), s.model.index(1, 0));
        s.selection.select(ranges, QItemSelectionModel::Select);
        QCOMPARE(s.text(), QStringLiteral("D E A B"));
        QCOMPARE(s.selection.firstColumnSelectedIndexes(), plainFirstColumn(s.selection));
    }

    void headersAndTilesCannotBeSelected()
    {
        Selected s(fkProject, "A:x B:x");
        s.model.setGroupBy({gbCategory, soASC, nullptr});
        QCOMPARE(rowsText(s.model.getItems()), QStringLiteral("[x] + A B"));
        s.select(0, 0, 3, 9);
        QCOMPARE(s.text(), QStringLiteral("A B"));
        QCOMPARE(s.selection.firstColumnSelectedIndexes(), plainFirstColumn(s.selection));
    }

    void aMediaThatStandsTwiceIsAnsweredTwice()
    {
        Selected s(fkUserSection, "A:x B:x");
        s.model.setGroupBy({gbCategory, soASC, nullptr});
        s.model.expandStateToggle(0, true);
        QCOMPARE(rowsText(s.model.getItems()), QStringLiteral("[x] A B A B"));
        s.select(1, 0, 4, 9);
        QCOMPARE(s.text(), QStringLiteral("A B A B"));
    }

    void rowsThatAreGoneAreLeftOutAndLogged()
    {
        Selected s;
        s.select(4, 0);
        s.select(1, 0);
        s.select(7, 0, 8, 0);
        const NxLogCapture log;
        QCOMPARE(s.text(), QStringLiteral("E B"));
        QCOMPARE(log.texts(),
                 QStringList({QStringLiteral("selec media invalid row:7  rowCount:5"),
                              QStringLiteral("selec media invalid row:8  rowCount:5")}));
        for (const NxLogRecord &record : log.records())
            QCOMPARE(record.function, QByteArray("NxMediaItemSelectionModel::selectedItems"));
    }

    void aResetEndsTheSelection()
    {
        const NxLogCapture log;
        Selected s;
        s.select(0, 0, 4, 9);
        s.model.setFilter(filterOf("a"));
        QCOMPARE(s.text(), QString());
        s.select(0, 0);
        s.model.load(nullptr);
        QCOMPARE(s.text(), QString());
        QVERIFY(log.texts().isEmpty());
    }

    void oneColumnOfFiveIsEnough()
    {
        Selected s(fkOnline, "A B C", mctAudio);
        s.selection.select(s.model.index(2, 2), Rows);
        QCOMPARE(s.selection.selectedIndexes().size(), 5);
        QCOMPARE(s.text(), QStringLiteral("C"));
    }

    void manyRowsAreAnsweredAsTheBaseClassListsThem()
    {
        constexpr int count = 10000;
        Selected s(fkProject, "A:0");
        for (int i = 1; i < count; ++i)
            s.stand.folder->media.append(s.stand.make(QStringLiteral("M:%1").arg(i % 7)));
        s.model.load(s.stand.folder);
        s.model.setGroupBy({gbCategory, soASC, nullptr});
        const int rows = s.model.rowCount();
        QCOMPARE(rows, count + 14);
        s.select(rows / 2, 0, rows - 1, 9);
        s.select(0, 0, rows / 3, 9);
        s.select(rows / 3 + 5, 1, rows / 3 + 9, 9);
        s.selection.select(s.model.index(rows / 4, 3), QItemSelectionModel::Deselect);
        s.selection.select(s.model.index(rows / 5, 0),
                           QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
        const QModelIndexList plain = plainFirstColumn(s.selection);
        QVERIFY(plain.size() > count / 2);
        QCOMPARE(s.selection.firstColumnSelectedIndexes(), plain);
        const QList<INxAbstractMedia *> items = s.selection.selectedItems();
        QCOMPARE(items.size(), plain.size());
        for (int i = 0; i < items.size(); ++i)
            QCOMPARE(static_cast<void *>(items[i]), plain[i].internalPointer());
    }

    void theSelectionNeedNotBeOfThisModel()
    {
        QStandardItemModel other(3, 2);
        NxMediaItemModel model(mctMedia, nullptr);
        NxMediaItemSelectionModel selection(&model, nullptr);
        selection.setModel(&other);
        QVERIFY(!selection.mediaItemModel());
        selection.select(QItemSelection(other.index(0, 0), other.index(1, 1)),
                         QItemSelectionModel::Select);
        QCOMPARE(rowNumbers(selection.firstColumnSelectedIndexes()), QStringLiteral("0 1"));
        selection.setModel(nullptr);
        QVERIFY(!selection.mediaItemModel());
    }
};

NX_TEST_MAIN(tst_NxMediaItemSelectionModel)
#include "tst_NxMediaItemSelectionModel.moc"
