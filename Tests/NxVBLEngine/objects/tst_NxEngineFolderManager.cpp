// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"

#include <NxCore/NxUndoRedoCommander.h>

#include <Support/NxTestMain.h>

#include <QtTest>

namespace {

QString tree(const NxEngineFolder *folder)
{
    QStringList children;
    for (const NxEngineFolder *child : folder->children())
        children.append(tree(child));
    const QString inside =
        children.isEmpty() ? QString()
                           : QLatin1Char('(') + children.join(QLatin1Char(' ')) + QLatin1Char(')');
    return folder->name() + inside;
}

} // namespace

class tst_NxEngineFolderManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAtTheEndAndTellsTheRows()
    {
        EngineFixture project;
        EngineEvents events(project.category);
        QVERIFY(project.folders->addFolder(project.section, QStringLiteral(" B ")));
        QVERIFY(project.folders->addFolder(project.section, QStringLiteral("A")));
        QCOMPARE(tree(project.section), QStringLiteral("Project Media(B A)"));
        QCOMPARE(events.take(), (QStringList{QStringLiteral("before folder add Project Media 0-0"),
                                             QStringLiteral("after folder add"),
                                             QStringLiteral("before folder add Project Media 1-1"),
                                             QStringLiteral("after folder add")}));
    }

    void refusesNamesThatAreNone_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("taken");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("only blanks") << QStringLiteral("  \t") << false;
        QTest::newRow("255 characters") << QString(255, QLatin1Char('x')) << true;
        QTest::newRow("256 characters") << QString(256, QLatin1Char('x')) << false;
        QTest::newRow("256 with a blank that is trimmed")
            << QString(255, QLatin1Char('x')) + QLatin1Char(' ') << true;
        QTest::newRow("the name of a sibling") << QStringLiteral("Twin") << false;
        QTest::newRow("a sibling's name with blanks around") << QStringLiteral(" Twin ") << false;
        QTest::newRow("a sibling's name in another case") << QStringLiteral("twin") << true;
    }

    void refusesNamesThatAreNone()
    {
        QFETCH(QString, name);
        QFETCH(bool, taken);
        EngineFixture project;
        QVERIFY(project.addFolder(project.section, QStringLiteral("Twin")));
        NxEngineFolder *other = project.addFolder(project.section, QStringLiteral("Other"));
        const int steps = project.undo->count();
        QCOMPARE(project.folders->renameFolder(other, name), taken);
        QCOMPARE(project.undo->count(), steps + (taken ? 1 : 0));
        project.undo->undo();
        QCOMPARE(project.folders->addFolder(project.section, name), taken);
    }

    void refusesToAddWhereNoFolderMayStand()
    {
        EngineFixture project;
        NxEngineCategory *titles = project.memory.category(NXVBLMODEL::mctTitle);
        QVERIFY(!project.folders->addFolder(nullptr, QStringLiteral("x")));
        QVERIFY(!project.folders->addFolder(project.category->root(), QStringLiteral("x")));
        QVERIFY(
            !project.folders->addFolder(titles->root()->children().front(), QStringLiteral("x")));
        QCOMPARE(project.undo->count(), 0);
    }

    void renamingToTheSameNameLeavesNoStep()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("A"));
        QVERIFY(project.folders->renameFolder(folder, QStringLiteral("A ")));
        QCOMPARE(project.undo->count(), 1);
    }

    void renamingTellsBothKindsOfObservers()
    {
        EngineFixture project;
        NxEngineFolder *folder = project.addFolder(project.section, QStringLiteral("A"));
        EngineEvents events(project.category);
        QVERIFY(project.folders->renameFolder(folder, QStringLiteral("B")));
        QCOMPARE(events.take(), (QStringList{QStringLiteral("folder state B"),
                                             QStringLiteral("folder renamed B")}));
    }

    void removingAFolderTakesItsMediaFirstAndItsFoldersBottomUp()
    {
        EngineFixture project;
        NxEngineFolder *a = project.addFolder(project.section, QStringLiteral("A"));
        NxEngineFolder *b = project.addFolder(a, QStringLiteral("B"));
        project.addMedia(a, QStringLiteral("a.mov"));
        project.addMedia(b, QStringLiteral("b.mov"));
        EngineEvents events(project.category);
        QVERIFY(project.folders->canRemoveFolder(a));
        QVERIFY(project.folders->removeFolder(a));
        QCOMPARE(
            events.take(),
            (QStringList{
                QStringLiteral("before remove b.mov < B"), QStringLiteral("after remove b.mov < B"),
                QStringLiteral("before folder remove A 0-0"), QStringLiteral("after folder remove"),
                QStringLiteral("before remove a.mov < A"), QStringLiteral("after remove a.mov < A"),
                QStringLiteral("before folder remove Project Media 0-0"),
                QStringLiteral("after folder remove")}));
        QCOMPARE(events.complaints, QStringList());
        QCOMPARE(project.undo->undoText(), QStringLiteral("deleteFolder"));
    }

    void undoingARemovalBringsTheWholeTreeBack()
    {
        EngineFixture project;
        NxEngineFolder *a = project.addFolder(project.section, QStringLiteral("A"));
        project.addFolder(project.section, QStringLiteral("Z"));
        NxEngineFolder *b = project.addFolder(a, QStringLiteral("B"));
        project.addMedia(a, {QStringLiteral("a1.mov"), QStringLiteral("a2.mov")});
        NxEngineMedia *media = project.addMedia(b, QStringLiteral("b.mov"));
        const NxMediaRef ref(media);
        const QByteArray before = projectDump(project.memory);

        QVERIFY(project.folders->removeFolder(a));
        QCOMPARE(tree(project.section), QStringLiteral("Project Media(Z)"));
        QVERIFY(project.undo->undo());

        QCOMPARE(projectDump(project.memory), before);
        QCOMPARE(ref.get(), media); // The very same object.
        QVERIFY(project.undo->redo());
        QCOMPARE(tree(project.section), QStringLiteral("Project Media(Z)"));
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void sectionsAndTheRootAreNotRemoved()
    {
        EngineFixture project;
        for (INxFolderMedia *fixed :
             QList<INxFolderMedia *>{nullptr, project.category->root(), project.section}) {
            QVERIFY(!project.folders->canRemoveFolder(fixed));
            QVERIFY(!project.folders->removeFolder(fixed));
        }
    }

    void movingPutsAFolderBeforeTheRow_data()
    {
        QTest::addColumn<QString>("moved");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("leavesStep");
        QTest::newRow("to the front") << "C" << 0 << "C A B D" << true;
        QTest::newRow("forward") << "A" << 3 << "B C A D" << true;
        QTest::newRow("to the end") << "A" << 4 << "B C D A" << true;
        QTest::newRow("out of range is the end") << "A" << 99 << "B C D A" << true;
        QTest::newRow("negative is the end") << "A" << -1 << "B C D A" << true;
        QTest::newRow("before itself: stays") << "B" << 1 << "A B C D" << false;
        QTest::newRow("behind itself: stays") << "B" << 2 << "A B C D" << false;
        QTest::newRow("the last to the end: stays") << "D" << 4 << "A B C D" << false;
    }

    void movingPutsAFolderBeforeTheRow()
    {
        QFETCH(QString, moved);
        QFETCH(int, row);
        QFETCH(bool, leavesStep);
        EngineFixture project;
        for (const char *name : {"A", "B", "C", "D"})
            project.addFolder(project.section, QLatin1String(name));
        const int steps = project.undo->count();
        const QByteArray before = projectDump(project.memory);

        QVERIFY(
            project.folders->moveFolder(project.section->childNamed(moved), project.section, row));

        QStringList names;
        for (const NxEngineFolder *child : project.section->children())
            names.append(child->name());
        QTEST(names.join(QLatin1Char(' ')), "after");
        QCOMPARE(project.undo->count(), steps + (leavesStep ? 1 : 0));
        QCOMPARE(project.memory.brokenInvariant(), QString());
        if (leavesStep) {
            project.undo->undo();
            QCOMPARE(projectDump(project.memory), before);
        }
    }

    void viewsFollowAMoveAsARemovalAndAnAddition()
    {
        EngineFixture project;
        NxEngineFolder *a = project.addFolder(project.section, QStringLiteral("A"));
        NxEngineFolder *b = project.addFolder(project.section, QStringLiteral("B"));
        project.addMedia(b, QStringLiteral("b.mov"));
        EngineEvents events(project.category);
        QVERIFY(project.folders->moveFolder(b, a, 0));
        QCOMPARE(
            events.take(),
            (QStringList{
                QStringLiteral("before folder move"),
                QStringLiteral("before folder remove Project Media 1-1"),
                QStringLiteral("after folder remove"), QStringLiteral("before folder add A 0-0"),
                QStringLiteral("after folder add"), QStringLiteral("after folder move"),
                QStringLiteral("all changed Project Media"), QStringLiteral("all changed A")}));
    }

    void refusesMovesIntoItselfBelowItselfAndBesideANamesake()
    {
        EngineFixture project;
        NxEngineFolder *a = project.addFolder(project.section, QStringLiteral("A"));
        NxEngineFolder *b = project.addFolder(a, QStringLiteral("B"));
        NxEngineFolder *c = project.addFolder(b, QStringLiteral("A"));
        QVERIFY(!project.folders->moveFolder(a, a, 0));
        QVERIFY(!project.folders->moveFolder(a, c, 0));
        QVERIFY(!project.folders->moveFolder(c, project.section, 0));
        QVERIFY(!project.folders->moveFolder(project.section, a, 0));
        QVERIFY(!project.folders->moveFolder(a, project.category->root(), 0));
        QVERIFY(!project.folders->moveFolder(a, nullptr, 0));
        QCOMPARE(tree(project.section), QStringLiteral("Project Media(A(B(A)))"));
    }

    void aHundredMovesToTheSameSpotNeverRunOutOfRoom()
    {
        EngineFixture project;
        for (const char *name : {"first", "x", "y", "last"})
            project.addFolder(project.section, QLatin1String(name));
        for (int i = 0; i < 100; ++i) {
            const QString moved = QLatin1String(i % 2 == 0 ? "y" : "x");
            QVERIFY(project.folders->moveFolder(project.section->childNamed(moved), project.section,
                                                1));
            QCOMPARE(project.section->childFolder(1)->name(), moved);
            QCOMPARE(project.section->childFolder(0)->name(), QStringLiteral("first"));
            QCOMPARE(project.section->childFolder(3)->name(), QStringLiteral("last"));
            QCOMPARE(project.memory.brokenInvariant(), QString());
        }
    }

    void aReadOnlyProjectRefusesEverything()
    {
        EngineFixture project;
        NxEngineFolder *a = project.addFolder(project.section, QStringLiteral("A"));
        NxEngineFolder *b = project.addFolder(project.section, QStringLiteral("B"));
        project.memory.setReadOnly(true);
        const QByteArray before = projectDump(project.memory);
        QVERIFY(!project.folders->addFolder(project.section, QStringLiteral("C")));
        QVERIFY(!project.folders->renameFolder(a, QStringLiteral("C")));
        QVERIFY(!project.folders->moveFolder(a, b, 0));
        QVERIFY(!project.folders->canRemoveFolder(a));
        QVERIFY(!project.folders->removeFolder(a));
        QVERIFY(!project.undo->undo());
        QCOMPARE(projectDump(project.memory), before);
    }

    void observersComeOnceAndLeave()
    {
        EngineFixture project;
        INxMediaFolderEventObserver observer;
        QVERIFY(project.folders->registerObserver(&observer));
        QVERIFY(!project.folders->registerObserver(&observer));
        QVERIFY(!project.folders->registerObserver(nullptr));
        project.folders->unregisterObserver(&observer);
        QVERIFY(project.folders->registerObserver(&observer));
        project.folders->unregisterObserver(&observer);
    }
};

NX_TEST_MAIN(tst_NxEngineFolderManager)
#include "tst_NxEngineFolderManager.moc"
