// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ScriptedFolders.h"
#include "TreeViewer.h"

namespace {

QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list += QLatin1String(text);
    return list;
}

/// "function: text" of each error line.
QStringList errorsOf(const NxLogCapture &capture)
{
    QStringList list;
    for (const NxLogRecord &record : capture.records()) {
        if (record.level == NxLogLevel::Error)
            list += QString::fromUtf8(record.function) + QLatin1String(": ") + record.text;
    }
    return list;
}

} // namespace

/// What views are told when folders come, go, move and change.
class tst_NxMediaTreeModel_events : public QObject
{
    Q_OBJECT

    struct Tree
    {
        Tree()
        {
            plant(manager.root.get(), QStringLiteral("A(B C(D E)) F(G)"));
            model.load(manager.root.get());
            model.subscribeFoderManager(&manager);
            static_cast<void>(viewer.takeTold());
        }
        ScriptedFolder *folder(const char *name) const
        {
            return called(manager.root.get(), QLatin1String(name));
        }

        ScriptedFolderManager manager;
        NxMediaTreeModel model;
        TreeViewer viewer{&model};
    };

private Q_SLOTS:
    void newFoldersAreInsertedWhereTheyStand_data()
    {
        QTest::addColumn<QString>("parent");
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("told");
        QTest::addColumn<QString>("drawing");
        QTest::newRow("at the top")
            << "root" << 1 << lines({"before inserted - 1-1", "inserted - 1-1"})
            << "A(B C(D E)) X F(G)";
        QTest::newRow("below a row")
            << "A" << 0 << lines({"before inserted 0 0-0", "inserted 0 0-0"})
            << "A(X B C(D E)) F(G)";
        QTest::newRow("below a leaf")
            << "D" << 0 << lines({"before inserted 0/1/0 0-0", "inserted 0/1/0 0-0"})
            << "A(B C(D(X) E)) F(G)";
    }

    void newFoldersAreInsertedWhereTheyStand()
    {
        QFETCH(QString, parent);
        QFETCH(int, row);
        QFETCH(QStringList, told);
        QFETCH(QString, drawing);
        Tree tree;
        tree.manager.insert(called(tree.manager.root.get(), parent), row,
                            std::make_unique<ScriptedFolder>(QStringLiteral("X")));
        QCOMPARE(tree.viewer.takeTold(), told);
        QCOMPARE(tree.viewer.drawing(), drawing);
    }

    void severalFoldersMayComeAndGoAtOnce()
    {
        Tree tree;
        ScriptedFolder *a = tree.folder("A");
        tree.model.onBeforeAddFolderEvent(a, 1, 2);
        a->insert(1, std::make_unique<ScriptedFolder>(QStringLiteral("X")));
        a->insert(2, std::make_unique<ScriptedFolder>(QStringLiteral("Y")));
        tree.model.onAfterAddFolderEvent();
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B X Y C(D E)) F(G)"));
        tree.model.onBeforeRemoveFolderEvent(a, 0, 1);
        a->take(0);
        a->take(0);
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(Y C(D E)) F(G)"));
        QCOMPARE(tree.viewer.takeTold(), lines({"before inserted 0 1-2", "inserted 0 1-2",
                                                "before removed 0 0-1", "removed 0 0-1"}));
    }

    void removedFoldersGoWithAllBelowThem()
    {
        Tree tree;
        tree.manager.removeFolder(tree.folder("C"));
        QCOMPARE(tree.viewer.takeTold(), lines({"before removed 0 1-1", "removed 0 1-1"}));
        tree.manager.removeFolder(tree.folder("A"));
        QCOMPARE(tree.viewer.takeTold(), lines({"before removed - 0-0", "removed - 0-0"}));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("F(G)"));
    }

    void aMoveIsARemovalAndAnInsertion()
    {
        Tree tree;
        tree.manager.moveFolder(tree.folder("C"), tree.folder("F"), 0);
        QCOMPARE(tree.viewer.takeTold(), lines({"before removed 0 1-1", "removed 0 1-1",
                                                "before inserted 1 0-0", "inserted 1 0-0"}));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B) F(C(D E) G)"));
    }

    void theEventsOfAMoveItselfTellNothing()
    {
        Tree tree;
        tree.model.onBeforeMoveFolderEvent();
        tree.model.onAfterMoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
    }

    void aChangedFolderRepaintsAllThatItStandsIn()
    {
        Tree tree;
        tree.manager.renameFolder(tree.folder("E"), QStringLiteral("new"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 0/1/1", "changed 0/1", "changed 0"}));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B C(D new)) F(G)"));
        tree.model.onFolderStateChangedEvent(tree.folder("F"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 1"}));
    }

    void aChangeOfTheRootOrOfAnUnknownFolderRepaintsNothing()
    {
        Tree tree;
        ScriptedFolder unknown;
        tree.model.onFolderStateChangedEvent(tree.manager.root.get());
        tree.model.onFolderStateChangedEvent(&unknown);
        tree.model.onFolderStateChangedEvent(nullptr);
        NxMediaTreeModel().onFolderStateChangedEvent(&unknown);
        QCOMPARE(tree.viewer.takeTold(), QStringList());
    }

    void repaintingStopsWhenWhoIsToldEmptiesTheModel()
    {
        Tree tree;
        connect(&tree.model, &QAbstractItemModel::dataChanged, this, [&tree] {
            tree.model.clear();
            tree.manager.root.reset();
        });
        tree.model.onFolderStateChangedEvent(tree.folder("E"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 0/1/1", "before reset", "reset"}));
    }

    void aParentThatIsNotInTheTreeIsReported_data()
    {
        QTest::addColumn<bool>("isNull");
        QTest::addColumn<QString>("text");
        QTest::newRow("unknown") << false << QString::fromUtf8("find folder failed: Müller %s");
        QTest::newRow("null") << true << QStringLiteral("find folder failed: ");
    }

    void aParentThatIsNotInTheTreeIsReported()
    {
        QFETCH(bool, isNull);
        QFETCH(QString, text);
        NxTestLog::expectErrors(QStringLiteral("find folder failed: "));
        Tree tree;
        ScriptedFolder unknown(QString::fromUtf8("Müller %s"));
        INxFolderMedia *parent = isNull ? nullptr : &unknown;
        const NxLogCapture capture;
        tree.model.onBeforeAddFolderEvent(parent, 0, 0);
        tree.model.onAfterAddFolderEvent();
        tree.model.onBeforeRemoveFolderEvent(parent, 0, 0);
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        QCOMPARE(
            errorsOf(capture),
            QStringList({QStringLiteral("NxMediaTreeModel::onBeforeAddFolderEvent: ") + text,
                         QStringLiteral("NxMediaTreeModel::onBeforeRemoveFolderEvent: ") + text}));
    }

    void withoutARootOnlyRemovalsAreReported()
    {
        NxTestLog::expectErrors(QStringLiteral("find folder failed: "));
        NxMediaTreeModel model;
        TreeViewer viewer(&model);
        ScriptedFolder unknown(QStringLiteral("lost"));
        const NxLogCapture capture;
        model.onBeforeAddFolderEvent(&unknown, 0, 0);
        model.onBeforeAddFolderEvent(nullptr, 0, 0);
        model.onAfterAddFolderEvent();
        QCOMPARE(errorsOf(capture), QStringList());
        model.onBeforeRemoveFolderEvent(&unknown, 0, 0);
        model.onBeforeRemoveFolderEvent(nullptr, 0, 0);
        model.onAfterRemoveFolderEvent();
        QCOMPARE(errorsOf(capture),
                 lines({"NxMediaTreeModel::onBeforeRemoveFolderEvent: find folder failed: lost",
                        "NxMediaTreeModel::onBeforeRemoveFolderEvent: find folder failed: "}));
        QCOMPARE(viewer.takeTold(), QStringList());
    }

    void anEndWithoutABeginningTellsNothing()
    {
        Tree tree;
        tree.model.onAfterAddFolderEvent();
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        tree.manager.addFolder(tree.folder("B"), QStringLiteral("X"));
        tree.model.onAfterAddFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), lines({"before inserted 0/0 0-0", "inserted 0/0 0-0"}));
    }

    void theEndOfTheOtherKindEndsNothing()
    {
        Tree tree;
        ScriptedFolder *b = tree.folder("B");
        tree.model.onBeforeAddFolderEvent(b, 0, 0);
        tree.model.onAfterRemoveFolderEvent();
        b->append(QStringLiteral("X"));
        tree.model.onAfterAddFolderEvent();
        tree.model.onBeforeRemoveFolderEvent(b, 0, 0);
        tree.model.onAfterAddFolderEvent();
        b->take(0);
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), lines({"before inserted 0/0 0-0", "inserted 0/0 0-0",
                                                "before removed 0/0 0-0", "removed 0/0 0-0"}));
    }

    void aChangeInsideAnotherOneIsIgnoredAndReported()
    {
        NxTestLog::expectErrors(QStringLiteral("a folder change inside another one is ignored: "));
        Tree tree;
        ScriptedFolder *b = tree.folder("B");
        const NxLogCapture capture;
        tree.model.onBeforeAddFolderEvent(b, 0, 0);
        tree.model.onBeforeAddFolderEvent(tree.folder("G"), 0, 0);
        tree.model.onBeforeRemoveFolderEvent(tree.folder("C"), 0, 0);
        b->append(QStringLiteral("X"));
        tree.model.onAfterAddFolderEvent();
        tree.model.onAfterAddFolderEvent();
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), lines({"before inserted 0/0 0-0", "inserted 0/0 0-0"}));
        QCOMPARE(errorsOf(capture), lines({"NxMediaTreeModel::onBeforeAddFolderEvent: "
                                           "a folder change inside another one is ignored: G",
                                           "NxMediaTreeModel::onBeforeRemoveFolderEvent: "
                                           "a folder change inside another one is ignored: C"}));
    }

    void whoHearsOfNewRowsMayAddFoldersAtOnce()
    {
        Tree tree;
        connect(&tree.model, &QAbstractItemModel::rowsInserted, this, [&tree] {
            if (!tree.folder("Y"))
                tree.manager.addFolder(tree.folder("X"), QStringLiteral("Y"));
        });
        tree.manager.addFolder(tree.folder("G"), QStringLiteral("X"));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B C(D E)) F(G(X(Y)))"));
    }

    void loadingInsideAChangeEndsItWithAReset()
    {
        Tree tree;
        ScriptedFolder *c = tree.folder("C");
        tree.model.onBeforeRemoveFolderEvent(c, 0, 0);
        tree.model.load(tree.manager.root.get());
        c->take(0);
        static_cast<void>(tree.viewer.takeTold());
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), lines({"before reset", "reset"}));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("A(B C(E)) F(G)"));
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
    }

    void aChangeAfterAnInterruptedOneIsTold()
    {
        Tree tree;
        tree.model.onBeforeAddFolderEvent(tree.folder("C"), 0, 0);
        tree.model.load(tree.manager.root.get());
        static_cast<void>(tree.viewer.takeTold());
        tree.manager.addFolder(tree.folder("B"), QStringLiteral("X"));
        QCOMPARE(tree.viewer.takeTold(), lines({"before inserted 0/0 0-0", "inserted 0/0 0-0"}));
    }

    void emptyingTheModelInsideAChangeForgetsIt_data()
    {
        QTest::addColumn<bool>("dies");
        QTest::newRow("cleared") << false;
        QTest::newRow("root died") << true;
    }

    void emptyingTheModelInsideAChangeForgetsIt()
    {
        QFETCH(bool, dies);
        Tree tree;
        tree.model.onBeforeRemoveFolderEvent(tree.folder("C"), 0, 0);
        if (dies)
            tree.manager.root.reset();
        else
            tree.model.clear();
        tree.model.onAfterRemoveFolderEvent();
        QCOMPARE(tree.viewer.takeTold(),
                 lines({"before removed 0/1 0-0", "before reset", "reset"}));
        ScriptedFolderManager next;
        plant(next.root.get(), QStringLiteral("P(Q)"));
        tree.model.load(next.root.get());
        tree.model.subscribeFoderManager(&next);
        next.addFolder(next.root.get(), QStringLiteral("R"));
        QCOMPARE(tree.viewer.drawing(), QStringLiteral("P(Q) R"));
        tree.model.unSubscribeFoderManager();
    }

    void aSubscribedManagerIsFollowedUntilUnsubscribed()
    {
        Tree tree;
        QVERIFY(!tree.manager.observers.isEmpty());
        tree.model.unSubscribeFoderManager();
        QVERIFY(tree.manager.observers.isEmpty());
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        tree.manager.renameFolder(tree.folder("A"), QStringLiteral("Z"));
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        tree.model.subscribeFoderManager(&tree.manager);
        tree.manager.renameFolder(tree.folder("Z"), QStringLiteral("A"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 0"}));
    }

    void leavingTheManagersInsideAChangeIsAReset()
    {
        Tree tree;
        tree.model.onBeforeAddFolderEvent(tree.folder("B"), 0, 0);
        tree.model.unSubscribeFoderManager();
        QCOMPARE(tree.viewer.takeTold(),
                 lines({"before inserted 0/0 0-0", "before reset", "reset"}));
        tree.folder("B")->append(QStringLiteral("X"));
        tree.model.onAfterAddFolderEvent();
        QCOMPARE(tree.viewer.takeTold(), QStringList());
        QCOMPARE(tree.viewer.modelDrawing(), QStringLiteral("A(B(X) C(D E)) F(G)"));
    }

    void subscribingTwiceTellsOnce()
    {
        Tree tree;
        tree.model.subscribeFoderManager(&tree.manager);
        tree.manager.renameFolder(tree.folder("A"), QStringLiteral("Z"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 0"}));
    }

    void severalManagersMayBeFollowed()
    {
        Tree tree;
        ScriptedFolderManager second;
        tree.model.subscribeFoderManager(&second);
        plant(second.root.get(), QStringLiteral("P"));
        tree.model.load(second.root.get());
        static_cast<void>(tree.viewer.takeTold());
        second.renameFolder(second.root->child(0), QStringLiteral("Q"));
        tree.manager.renameFolder(tree.folder("A"), QStringLiteral("Z"));
        QCOMPARE(tree.viewer.takeTold(), lines({"changed 0"}));
        tree.model.unSubscribeFoderManager();
        QVERIFY(second.observers.isEmpty());
        QVERIFY(tree.manager.observers.isEmpty());
    }

    void managersThatRefuseOrAreNullAreIgnored()
    {
        ScriptedFolderManager manager;
        manager.refuses = true;
        NxMediaTreeModel model;
        model.subscribeFoderManager(&manager);
        model.subscribeFoderManager(nullptr);
        QVERIFY(manager.observers.isEmpty());
        model.unSubscribeFoderManager();
    }

    void modelAndManagerMayDieInAnyOrder()
    {
        ScriptedFolderManager manager;
        auto model = std::make_unique<NxMediaTreeModel>();
        model->subscribeFoderManager(&manager);
        model.reset();
        QVERIFY(manager.observers.isEmpty());

        auto dying = std::make_unique<ScriptedFolderManager>();
        NxMediaTreeModel survivor;
        survivor.load(dying->root.get());
        survivor.subscribeFoderManager(dying.get());
        dying.reset();
        QCOMPARE(survivor.rowCount(), 0);
        survivor.unSubscribeFoderManager();
    }
};

NX_TEST_MAIN(tst_NxMediaTreeModel_events)
#include "tst_NxMediaTreeModel_events.moc"
