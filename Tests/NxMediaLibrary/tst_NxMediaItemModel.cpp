// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/ToolTip.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemStand.h"
#include "ItemViewer.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

QString headings(const NxMediaItemModel &model, int count)
{
    QStringList texts;
    for (int section = 0; section < count; ++section)
        texts.append(model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    return texts.join(QLatin1String(", "));
}

} // namespace

/// What the model answers to views.
class tst_NxMediaItemModel : public QObject
{
    Q_OBJECT

    static void addCategories()
    {
        QTest::addColumn<int>("category");
        for (int category = mctMedia; category <= mctNone; ++category)
            QTest::addRow("category %d", category) << category;
    }

private Q_SLOTS:
    void anEmptyModelHasNoRows()
    {
        QObject parent;
        NxMediaItemModel model(mctMedia, &parent);
        QCOMPARE(static_cast<QObject &>(model).parent(), &parent);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.getItems().isEmpty());
        QVERIFY(!model.folder());
        QVERIFY(!model.mediaItem(0));
        QVERIFY(model.rows(nullptr).isEmpty());
        QVERIFY(!model.isSortEnable() && !model.isKeepFolder() && !model.isGrouped());
        QVERIFY(model.isFetchMoreEnable());
        QVERIFY(!model.canFetchMore(QModelIndex()));
        QCOMPARE(model.itemCountPerLine(), 0);
        QCOMPARE(model.similarLines(), 2);
    }

    void columnsDependOnTheCategory_data() { addCategories(); }

    void columnsDependOnTheCategory()
    {
        QFETCH(int, category);
        const NxMediaItemModel model(NxMediaCategoryType(category), nullptr);
        const bool isMedia = category == mctMedia;
        QCOMPARE(model.columnCount(), isMedia ? 10 : 5);
        QCOMPARE(model.columnCount(model.index(0, 0)), isMedia ? 10 : 5);
        QCOMPARE(headings(model, model.columnCount()),
                 isMedia ? QStringLiteral("Name, Used, Type, Frame Rate, In Point, Out Point, "
                                          "Duration, Resolution, Audio Info, Date Created")
                         : QStringLiteral("Name, Library, Favorite, Category, Find Similar"));
        for (const int section : {-1, model.columnCount(), 99})
            QVERIFY(!model.headerData(section, Qt::Horizontal, Qt::DisplayRole).isValid());
    }

    void headingsSpeakTheUsersLanguage()
    {
        const CapitalTranslator translator;
        const NxMediaItemModel media(mctMedia, nullptr);
        QCOMPARE(headings(media, 4), QStringLiteral("NAME, USED, TYPE, FRAME RATE"));
        const NxMediaItemModel resources(mctTitle, nullptr);
        QCOMPARE(headings(resources, 2), QStringLiteral("NAME, LIBRARY"));
    }

    void otherHeadingsAreThoseOfEveryModel()
    {
        const NxMediaItemModel model(mctMedia, nullptr);
        QCOMPARE(model.headerData(2, Qt::Vertical, Qt::DisplayRole), QVariant(3));
        for (const int role : {int(Qt::ToolTipRole), int(Qt::EditRole), int(Qt::DecorationRole)})
            QVERIFY(!model.headerData(0, Qt::Horizontal, role).isValid());
    }

    void eachIndexCarriesItsMedia()
    {
        const ItemStand stand(fkProject, "A B");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        for (int row = 0; row < 3; ++row) {
            for (const int column : {0, 9, 99}) {
                const QModelIndex index = model.index(row, column);
                QVERIFY(index.isValid());
                QCOMPARE(index.row(), row);
                QCOMPARE(index.column(), column);
                QCOMPARE(static_cast<INxAbstractMedia *>(index.internalPointer()),
                         model.mediaItem(row));
                QVERIFY(!model.parent(index).isValid());
            }
        }
        QCOMPARE(model.mediaItem(0)->mediaType(), mtImportTile);
        QCOMPARE(model.mediaItem(2), stand.item("B"));
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("+ A B"));
        QCOMPARE(model.rows(stand.item("B")), QList<int>({2}));
    }

    void indexesOfRowsThatAreNotThereAreMadeWithoutMedia()
    {
        const ItemStand stand(fkProject, "A B");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        const QModelIndex behind = model.index(3, 1);
        QVERIFY(behind.isValid());
        QCOMPARE(behind.row(), 3);
        QVERIFY(!behind.internalPointer());
        const QModelIndex before = model.index(-1, 0);
        QCOMPARE(before.row(), -1);
        QVERIFY(!before.internalPointer());
        QVERIFY(!model.mediaItem(-1));
        QVERIFY(!model.mediaItem(3));
    }

    void theListIsFlat()
    {
        const ItemStand stand(fkOnline, "A B");
        NxMediaItemModel model(mctAudio, nullptr);
        model.load(stand.folder);
        const QModelIndex first = model.index(0, 0);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.rowCount(first), 2);
        QCOMPARE(model.columnCount(first), 5);
        QVERIFY(!first.parent().isValid());
        QCOMPARE(model.index(1, 0, first), model.index(1, 0));
    }

    void onlyTwoCategoriesHaveToolTips_data() { addCategories(); }

    void onlyTwoCategoriesHaveToolTips()
    {
        QFETCH(int, category);
        ItemStand stand(fkOnline, "A");
        stand.item("A")->type = mtAudio;
        NxMediaItemModel model(NxMediaCategoryType(category), nullptr);
        model.load(stand.folder);
        const QVariant tip = model.data(model.index(0, 3), Qt::ToolTipRole);
        const INxAbstractMedia *media = stand.item("A");
        if (category == mctMedia)
            QCOMPARE(tip, QVariant(ToolTip::GetMediaDataToolTip(media)));
        else if (category == mctAudio)
            QCOMPARE(tip, QVariant(ToolTip::GetEffectDataToolTip(media)));
        else
            QVERIFY(!tip.isValid());
    }

    void thereIsNoDataButToolTips()
    {
        const ItemStand stand(fkProject, "A");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        const QModelIndex media = model.index(1, 0);
        QVERIFY(model.data(media, Qt::ToolTipRole).toString().startsWith(QLatin1Char('A')));
        for (int role = 0; role <= Qt::UserRole + 8; ++role)
            QCOMPARE(model.data(media, role).isValid(), role == Qt::ToolTipRole);
        QVERIFY(!model.data(QModelIndex(), Qt::ToolTipRole).isValid());
        QVERIFY(!model.data(model.index(2, 0), Qt::ToolTipRole).isValid());
        QVERIFY(!model.data(model.index(-1, 0), Qt::ToolTipRole).isValid());
        QCOMPARE(model.data(model.index(0, 0), Qt::ToolTipRole), QVariant(QString()));
    }

    void flagsDependOnTheRowAndTheColumn_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<Qt::ItemFlags>("flags");
        const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        const Qt::ItemFlags synthetic = Qt::ItemIsEnabled;
        for (const int column : {0, 1, 9}) {
            const auto name = [column](const char *row) {
                return QStringLiteral("%1, column %2").arg(QLatin1String(row)).arg(column);
            };
            Qt::ItemFlags media = base | Qt::ItemIsDragEnabled;
            if (column == 0)
                media |= Qt::ItemIsEditable;
            QTest::newRow(qPrintable(name("header"))) << 0 << column << synthetic;
            QTest::newRow(qPrintable(name("import tile"))) << 1 << column << synthetic;
            QTest::newRow(qPrintable(name("media"))) << 2 << column << media;
            QTest::newRow(qPrintable(name("behind the last"))) << 3 << column << base;
            QTest::newRow(qPrintable(name("before the first")))
                << -1 << column << Qt::ItemFlags(Qt::NoItemFlags);
        }
    }

    void flagsDependOnTheRowAndTheColumn()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(Qt::ItemFlags, flags);
        const ItemStand stand(fkProject, "A:x");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        model.setGroupBy({gbCategory, soASC, nullptr});
        QCOMPARE(rowsText(model.getItems()), QStringLiteral("[x] + A"));
        QCOMPARE(model.flags(model.index(row, column)), flags);
    }

    void flagsOfOtherRows()
    {
        ItemStand stand(fkProject, "A B C");
        ScriptedPlain place(mtFolder);
        stand.folder->media.prepend(&place);
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        model.setItemCountPerLine(1, false);
        model.updateSimilarMediaItems();
        QCOMPARE(rowsText(model.getItems()), QStringLiteral(" A ..."));
        QCOMPARE(model.flags(model.index(2, 0)), Qt::ItemFlags(Qt::ItemIsEnabled));
        QCOMPARE(model.flags(model.index(0, 1)),
                 Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
        QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    }

    void nothingCanBeSet()
    {
        const ItemStand stand(fkProject, "A");
        NxMediaItemModel model(mctMedia, nullptr);
        model.load(stand.folder);
        ItemViewer viewer(&model);
        for (const int role : {int(Qt::EditRole), int(Qt::DisplayRole), int(Qt::ToolTipRole)})
            QVERIFY(!model.setData(model.index(1, 0), QStringLiteral("B"), role));
        QCOMPARE(stand.item("A")->title, QStringLiteral("A"));
        QCOMPARE(viewer.takeTold(), QString());
    }

    void signalsAreNumberedAsTheyAlwaysWere()
    {
        const QMetaObject &meta = NxMediaItemModel::staticMetaObject;
        QStringList names;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            names.append(QString::fromLatin1(meta.method(i).name()));
        QCOMPARE(
            names,
            QStringList({QStringLiteral("sigFetchMoreStateChanged"),
                         QStringLiteral("sigDownloadFinished"), QStringLiteral("sigDownloadFailed"),
                         QStringLiteral("siVCGDownloadLimit"), QStringLiteral("sigRemoveItem"),
                         QStringLiteral("sigAfterAddItem")}));
    }

    void itIsTheFolderAndWhatLiesInIt()
    {
        ItemStand stand(fkProject, "A");
        ScriptedItemFolder *child = stand.addFolder("B", stand.folder);
        ScriptedItemFolder *grandchild = stand.addFolder("C", child);
        NxMediaItemModel model(mctMedia, nullptr);
        QVERIFY(!model.checkFolder(stand.folder));
        model.load(stand.folder);
        QVERIFY(model.checkFolder(stand.folder));
        QVERIFY(model.checkFolder(child));
        QVERIFY(model.checkFolder(grandchild));
        QVERIFY(!model.checkFolder(stand.section));
        QVERIFY(!model.checkFolder(nullptr));
        model.load(child);
        QVERIFY(!model.checkFolder(stand.folder));
        stand.folder->destroy(child);
        QVERIFY(!model.checkFolder(stand.folder));
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel)
#include "tst_NxMediaItemModel.moc"
