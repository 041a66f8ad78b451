// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <Support/NxTestMain.h>

#include <QMimeData>
#include <QSortFilterProxyModel>
#include <QtTest>

#include "ScriptedFolders.h"
#include "TreeViewer.h"

namespace {

/// The place of an index; empty for the invalid one.
QString placeOf(const QModelIndex &index)
{
    return index.isValid() ? TreeViewer::place(index) : QString();
}

/// What findIndex() promises, in the plainest way.
QModelIndex plainFind(const NxMediaTreeModel &model, const INxFolderMedia *root,
                      const INxFolderMedia *folder, const QModelIndex &start)
{
    if (!start.isValid() && root == folder)
        return {};
    if (start.isValid() && folderAt(start) == folder)
        return start;
    for (int row = 0; row < model.rowCount(start); ++row) {
        const QModelIndex found = plainFind(model, root, folder, model.index(row, 0, start));
        if (found.isValid())
            return found;
    }
    return {};
}

} // namespace

/// A small tree, what each query answers and where each folder is found.
class tst_NxMediaTreeModel : public QObject
{
    Q_OBJECT

    struct Tree
    {
        explicit Tree(const QString &drawing = QStringLiteral("A(B C(D E)) F(G)"))
        {
            plant(manager.root.get(), drawing);
            model.load(manager.root.get());
            told = viewer.takeTold();
        }
        ScriptedFolder *folder(const char *name) const
        {
            return called(manager.root.get(), QLatin1String(name));
        }
        QModelIndex at(const char *name) const { return model.findIndex(folder(name)); }

        ScriptedFolderManager manager;
        NxMediaTreeModel model;
        TreeViewer viewer{&model};
        QStringList told;
    };

private Q_SLOTS:
    void nothingIsShownBeforeAFolderIsLoaded()
    {
        ScriptedFolder folder;
        NxMediaTreeModel model;
        TreeViewer viewer(&model);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.index(0, 0).isValid());
        QVERIFY(!model.findIndex(&folder).isValid());
        QVERIFY(!model.findIndex(nullptr).isValid());
        QVERIFY(!model.parent(QModelIndex()).isValid());
        QVERIFY(!model.hasChildren());
        QVERIFY(!static_cast<QObject &>(model).parent());
    }

    void loadingEmptiesAndThenFillsTheModel()
    {
        const Tree tree;
        const QStringList twoResets{QStringLiteral("before reset"), QStringLiteral("reset"),
                                    QStringLiteral("before reset"), QStringLiteral("reset")};
        QCOMPARE(tree.told, twoResets);
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B C(D E)) F(G)"));
    }

    void theModelIsEmptyBetweenTheTwoResetsOfLoading()
    {
        Tree tree;
        QVector<int> rows;
        connect(&tree.model, &QAbstractItemModel::modelReset, this,
                [&] { rows.append(tree.model.rowCount()); });
        tree.model.load(tree.folder("A"));
        QCOMPARE(rows, QVector<int>({0, 2}));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("B C(D E)"));
    }

    void clearingIsOneReset()
    {
        Tree tree;
        tree.model.clear();
        QCOMPARE(tree.viewer.takeTold(),
                 QStringList({QStringLiteral("before reset"), QStringLiteral("reset")}));
        QCOMPARE(tree.model.rowCount(), 0);
    }

    void loadingNothingEmptiesTheModel()
    {
        Tree tree;
        tree.model.load(nullptr);
        QCOMPARE(tree.viewer.takeTold().size(), 4);
        QCOMPARE(tree.model.rowCount(), 0);
    }

    void eachIndexCarriesItsFolder_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("parent");
        QTest::addColumn<QString>("name");
        QTest::newRow("first row") << 0 << 0 << QString() << QStringLiteral("A");
        QTest::newRow("last row") << 1 << 0 << QString() << QStringLiteral("F");
        QTest::newRow("below a row") << 1 << 0 << QStringLiteral("A") << QStringLiteral("C");
        QTest::newRow("deeper") << 1 << 0 << QStringLiteral("C") << QStringLiteral("E");
        QTest::newRow("row behind the last") << 2 << 0 << QString() << QString();
        QTest::newRow("negative row") << -1 << 0 << QString() << QString();
        QTest::newRow("second column") << 0 << 1 << QString() << QString();
        QTest::newRow("negative column") << 0 << -1 << QString() << QString();
        QTest::newRow("below a leaf") << 0 << 0 << QStringLiteral("B") << QString();
    }

    void eachIndexCarriesItsFolder()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, parent);
        QFETCH(QString, name);
        const Tree tree;
        const QModelIndex above = tree.at(parent.toLatin1().constData());
        const QModelIndex index = tree.model.index(row, column, above);
        QCOMPARE(index.isValid(), !name.isEmpty());
        if (name.isEmpty())
            return;
        QCOMPARE(index.internalPointer(),
                 static_cast<void *>(static_cast<INxFolderMedia *>(tree.folder(qPrintable(name)))));
        QCOMPARE(index.row(), row);
        QCOMPARE(index.column(), 0);
        QCOMPARE(index.parent(), above);
    }

    void parentsAreRowsBelowTheRootOnly()
    {
        const Tree tree;
        QCOMPARE(tree.at("D").parent(), tree.at("C"));
        QCOMPARE(tree.at("C").parent(), tree.at("A"));
        QVERIFY(!tree.at("A").parent().isValid());
        QVERIFY(!tree.at("F").parent().isValid());
    }

    void aTreeMayBeginBelowTheRootOfItsFolders()
    {
        Tree tree;
        tree.model.load(tree.folder("A"));
        QVERIFY(!tree.at("A").isValid());
        QVERIFY(!tree.at("root").isValid());
        QVERIFY(!tree.at("G").isValid());
        QCOMPARE(placeOf(tree.at("E")), QStringLiteral("1/1"));
        QVERIFY(!tree.at("C").parent().isValid());
    }

    void rowsAreTheFoldersBelowAndThereIsOneColumn()
    {
        const Tree tree;
        QCOMPARE(tree.model.rowCount(), 2);
        QCOMPARE(tree.model.rowCount(tree.at("A")), 2);
        QCOMPARE(tree.model.rowCount(tree.at("B")), 0);
        QCOMPARE(tree.model.columnCount(), 1);
        QCOMPARE(tree.model.columnCount(tree.at("B")), 1);
        QCOMPARE(NxMediaTreeModel().columnCount(), 1);
    }

    void onlyTheToolTipIsAnswered()
    {
        const Tree tree;
        for (int role = 0; role < Qt::UserRole + 20; ++role) {
            const QVariant answer = tree.model.data(tree.at("C"), role);
            QCOMPARE(answer.isValid(), role == Qt::ToolTipRole);
        }
        QCOMPARE(tree.model.data(tree.at("C"), Qt::ToolTipRole),
                 QVariant(QStringLiteral("tip of C")));
        QVERIFY(!tree.model.data(QModelIndex(), Qt::ToolTipRole).isValid());
    }

    void toolTipsCanBeTurnedOffInTwoWays_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("visible");
        QTest::newRow("both on") << true << true;
        QTest::newRow("disabled") << false << true;
        QTest::newRow("hidden") << true << false;
        QTest::newRow("both off") << false << false;
    }

    void toolTipsCanBeTurnedOffInTwoWays()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, visible);
        Tree tree;
        tree.model.setToolTipEnable(enabled);
        tree.model.setToolTipVisible(visible);
        QCOMPARE(tree.model.data(tree.at("B"), Qt::ToolTipRole).isValid(), enabled && visible);
        tree.model.setToolTipEnable(true);
        tree.model.setToolTipVisible(true);
        QVERIFY(tree.model.data(tree.at("B"), Qt::ToolTipRole).isValid());
    }

    void thereAreNoHeaders()
    {
        const Tree tree;
        for (int role = 0; role < Qt::UserRole; ++role) {
            QVERIFY(!tree.model.headerData(0, Qt::Horizontal, role).isValid());
            QVERIFY(!tree.model.headerData(0, Qt::Vertical, role).isValid());
        }
    }

    void foldersCanBeRenamedInPlaceAndDroppedOn()
    {
        const Tree tree;
        const Qt::ItemFlags own = Qt::ItemIsEditable | Qt::ItemIsDropEnabled;
        QCOMPARE(tree.model.flags(tree.at("B")),
                 Qt::ItemFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | own));
        QCOMPARE(tree.model.flags(QModelIndex()), own);
    }

    void aDragCarriesQtsOwnEncodingUnderTheTreesType()
    {
        const Tree tree;
        const QStringList types{QStringLiteral("application/ntreemodeldatalist")};
        QCOMPARE(tree.model.mimeTypes(), types);
        const std::unique_ptr<QMimeData> drag(tree.model.mimeData({tree.at("B")}));
        QVERIFY(drag);
        QCOMPARE(drag->formats(), types);
        QVERIFY(!drag->data(types.first()).isEmpty());
    }

    void everyFolderIsFoundWhereASearchThroughAllFindsIt()
    {
        const Tree tree(QStringLiteral("A(B C(D E(H I)) J) F(G) K(L(M(N(O))))"));
        const QString names = QStringLiteral("ABCDEFGHIJKLMNO");
        QVector<INxFolderMedia *> folders{tree.manager.root.get()};
        for (const QChar &name : names)
            folders += called(tree.manager.root.get(), name);
        for (INxFolderMedia *folder : folders) {
            for (INxFolderMedia *top : folders) {
                const QModelIndex start = tree.model.findIndex(top);
                QCOMPARE(tree.model.findIndex(folder, start),
                         plainFind(tree.model, tree.manager.root.get(), folder, start));
            }
        }
        QCOMPARE(placeOf(tree.at("O")), QStringLiteral("2/0/0/0/0"));
    }

    void aFolderOfAnotherTreeIsNotFound()
    {
        const Tree tree;
        const Tree other(QStringLiteral("P(Q)"));
        QVERIFY(!tree.model.findIndex(other.folder("Q")).isValid());
        QVERIFY(!tree.model.findIndex(other.folder("P"), tree.at("A")).isValid());
        QVERIFY(!tree.model.findIndex(other.manager.root.get()).isValid());
        QVERIFY(!tree.model.findIndex(nullptr, tree.at("A")).isValid());
    }

    void foldersThatDoNotKnowTheirPlaceAreFoundAllTheSame_data()
    {
        QTest::addColumn<QString>("liar");
        QTest::addColumn<bool>("tellsParent");
        QTest::addColumn<int>("row");
        QTest::newRow("no parent told") << QStringLiteral("E") << false << 1;
        QTest::newRow("top row without a parent") << QStringLiteral("A") << false << 0;
        QTest::newRow("wrong row") << QStringLiteral("E") << true << 0;
        QTest::newRow("row out of range") << QStringLiteral("E") << true << 7;
        QTest::newRow("negative row") << QStringLiteral("C") << true << -1;
    }

    void foldersThatDoNotKnowTheirPlaceAreFoundAllTheSame()
    {
        QFETCH(QString, liar);
        QFETCH(bool, tellsParent);
        QFETCH(int, row);
        ScriptedFolder root;
        plant(&root, QStringLiteral("A(B C(D E)) F(G)"));
        called(&root, liar)->tellsParent = tellsParent;
        called(&root, liar)->row = row;
        NxMediaTreeModel model;
        model.load(&root);
        const QModelIndex a = model.index(0, 0);
        const QModelIndex c = model.index(1, 0, a);
        QCOMPARE(model.findIndex(called(&root, QStringLiteral("C"))), c);
        QCOMPARE(model.findIndex(called(&root, QStringLiteral("E"))), model.index(1, 0, c));
        QCOMPARE(model.findIndex(called(&root, QStringLiteral("E")), c), model.index(1, 0, c));
        QCOMPARE(model.findIndex(called(&root, QStringLiteral("F"))), model.index(1, 0));
        QVERIFY(!model.findIndex(called(&root, QStringLiteral("E")), model.index(1, 0)).isValid());
    }

    void foldersThatNeverTellTheirParentsAreFoundAllTheSame()
    {
        ScriptedFolder root;
        plant(&root, QStringLiteral("A B"));
        for (const auto &folder : root.children) {
            folder->tellsParent = false;
            folder->row = -1;
        }
        NxMediaTreeModel model;
        model.load(&root);
        QCOMPARE(model.findIndex(root.child(1)), model.index(1, 0));
    }

    void findingAFolderAsksFewQuestionsHoweverManyThereAre()
    {
        ScriptedFolder root;
        for (int i = 0; i < 5000; ++i)
            root.append(QStringLiteral("wide"))->append(QStringLiteral("below"));
        ScriptedFolder other;
        ScriptedFolder *foreign = other.append(QStringLiteral("foreign"));
        NxMediaTreeModel model;
        model.load(&root);
        ScriptedFolder *deep = root.child(4999)->child(0);
        constexpr int few = 40;
        const auto questionsOf = [](const auto &work) {
            ScriptedFolder::questions = 0;
            work();
            return ScriptedFolder::questions;
        };
        QVERIFY(questionsOf([&] { QVERIFY(model.findIndex(deep).isValid()); }) < few);
        QVERIFY(questionsOf([&] { QVERIFY(!model.findIndex(foreign).isValid()); }) < few);
        QVERIFY(questionsOf([&] { QVERIFY(!model.findIndex(&other).isValid()); }) < few);
        QVERIFY(questionsOf([&] { model.onFolderStateChangedEvent(deep); }) < few);
        QVERIFY(questionsOf([&] {
                    model.onBeforeAddFolderEvent(deep, 0, 0);
                    deep->append(QStringLiteral("new"));
                    model.onAfterAddFolderEvent();
                })
                < few);
    }

    void indexesOfAnotherModelHaveNothingBelow()
    {
        const Tree tree;
        const Tree other;
        QCOMPARE(tree.model.rowCount(other.at("A")), 0);
        QVERIFY(!tree.model.index(0, 0, other.at("A")).isValid());
        QVERIFY(!tree.model.data(other.at("A"), Qt::ToolTipRole).isValid());
        QVERIFY(!tree.model.parent(other.at("B")).isValid());
        QVERIFY(!tree.model.findIndex(tree.folder("B"), other.at("A")).isValid());
    }

    void aRootThatDiesLeavesAnEmptyModel()
    {
        Tree tree;
        const QModelIndex stale = tree.at("C");
        tree.manager.root.reset();
        QCOMPARE(tree.viewer.takeTold(),
                 QStringList({QStringLiteral("before reset"), QStringLiteral("reset")}));
        QCOMPARE(tree.model.rowCount(), 0);
        QCOMPARE(tree.model.rowCount(stale), 0);
        QVERIFY(!tree.model.parent(stale).isValid());
        QVERIFY(!tree.model.data(stale, Qt::ToolTipRole).isValid());
        QVERIFY(!tree.model.index(0, 0, stale).isValid());
        QVERIFY(!tree.model.index(0, 0).isValid());
    }

    void aFormerRootMayDieUnnoticed()
    {
        Tree tree;
        const Tree other(QStringLiteral("P(Q)"));
        tree.model.load(other.manager.root.get());
        static_cast<void>(tree.viewer.takeTold());
        tree.manager.root.reset();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        QCOMPARE(tree.viewer.modelDrawing(), QStringLiteral("P(Q)"));
        tree.model.clear();
    }

    void aRootThatIsDeletedByWhoHearsOfTheFirstResetIsNotLoaded()
    {
        NxMediaTreeModel model;
        TreeViewer viewer(&model);
        auto root = std::make_unique<ScriptedFolder>();
        plant(root.get(), QStringLiteral("A"));
        connect(&model, &QAbstractItemModel::modelReset, this, [&root] { root.reset(); });
        model.load(root.get());
        QCOMPARE(model.rowCount(), 0);
    }

    void aProxyFollowsTheTree()
    {
        Tree tree;
        tree.model.subscribeFoderManager(&tree.manager);
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&tree.model);
        TestedTree tested(&proxy);
        const QAbstractItemModelTester tester(&tested, TreeViewer::Reporting::Fatal);
        tree.manager.moveFolder(tree.folder("C"), tree.folder("G"), 0);
        QCOMPARE(placeOf(proxy.mapFromSource(tree.at("E"))), QStringLiteral("1/0/0/1"));
        tree.manager.removeFolder(tree.folder("A"));
        QCOMPARE(proxy.rowCount(), 1);
    }
};

NX_TEST_MAIN(tst_NxMediaTreeModel)
#include "tst_NxMediaTreeModel.moc"
