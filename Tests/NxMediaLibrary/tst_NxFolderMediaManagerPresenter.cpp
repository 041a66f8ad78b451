// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

#include "LogLines.h"
#include "ScriptedEngine.h"
#include "ScriptedFolders.h"
#include "ScriptedProject.h"
#include "TextLines.h"

namespace {

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

/// Speaks a language in which everything is shouted.
class Shouting : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "NxFolderMediaManagerPresenter") == 0;
        return isOurs ? QString::fromLatin1(source).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

/// The presenter of a tree, A with B and C, C with D; E beside A. What is asked of the tree, undo
/// steps and emissions stand in one journal.
struct Stand
{
    Stand()
    {
        engine.project = project.get();
        manager->calls = &journal;
        plant(manager->root.get(), text("A(B C(D)) E"));
        QObject::connect(
            presenter.get(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, [this] {
                const INxFolderMedia *current = presenter->currentFolder();
                journal.append(text("current ") + (current ? current->name() : text("none")));
            });
    }
    ScriptedFolder *folder(const char *name) const
    {
        return called(manager->root.get(), QLatin1String(name));
    }
    /// Makes a folder the current one and forgets that it was told.
    void enter(const char *name)
    {
        presenter->setCurrentFolder(folder(name));
        journal.clear();
    }
    QString current() const
    {
        const INxFolderMedia *folder = presenter->currentFolder();
        return folder ? folder->name() : QString();
    }

    QStringList journal;
    std::unique_ptr<ScriptedFolder> orphans; ///< Folders that outlive their manager.
    ScriptedEngine engine;
    const NxMediaEngineDoor door{&engine};
    std::unique_ptr<ScriptedProject> project = std::make_unique<ScriptedProject>(&journal);
    std::unique_ptr<ScriptedFolderManager> manager = std::make_unique<ScriptedFolderManager>();
    std::unique_ptr<NxFolderMediaManagerPresenter> presenter =
        std::make_unique<NxFolderMediaManagerPresenter>(manager.get(), nullptr);
};

using Event = void (*)(Stand &stand);

} // namespace

Q_DECLARE_METATYPE(Event)

class tst_NxFolderMediaManagerPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void beginsWithoutACurrentFolder();
    void tellsAnotherCurrentFolder();
    void forgetsAFolderThatDied();
    void outlivesItsManager();
    void worksWithoutAManager();
    void leavesItsManagerWhenItDies();
    void asksAboutTheFolderByItsName_data();
    void asksAboutTheFolderByItsName();
    void asksInTheUsersLanguage();
    void removesAFolderInOneStep();
    void removesAFolderThatNoUndoBringsBack();
    void keepsTheFolderUnlessTheUserSaysYes_data();
    void keepsTheFolderUnlessTheUserSaysYes();
    void asksNothingAboutFoldersThatStay_data();
    void asksNothingAboutFoldersThatStay();
    void removesNothingWithoutAProject();
    void keepsWhatTheManagerKeeps();
    void survivesWhatHappensWhileItAsks_data();
    void survivesWhatHappensWhileItAsks();
    void goesToTheParentOfARemovedFolder_data();
    void goesToTheParentOfARemovedFolder();
    void goesToTheParentOnceTheFolderIsGone();
    void goesToTheParentOfSeveralRemovedFolders_data();
    void goesToTheParentOfSeveralRemovedFolders();
    void forgetsWhereItWentBefore();
    void staysInAMovedFolder_data();
    void staysInAMovedFolder();
    void goesOnAfterAMove();
    void addsAFolderInOneStep();
    void answersNoFolderThatWasNotAdded_data();
    void answersNoFolderThatWasNotAdded();
    void renamesAFolderInOneStep();
    void refusesNames_data();
    void refusesNames();
    void movesAFolderInOneStep();
    void refusesToMove();
};

void tst_NxFolderMediaManagerPresenter::beginsWithoutACurrentFolder()
{
    const Stand stand;
    QVERIFY(!stand.presenter->currentFolder());
    QCOMPARE(stand.presenter->folderManager(), stand.manager.get());
}

void tst_NxFolderMediaManagerPresenter::tellsAnotherCurrentFolder()
{
    Stand stand;
    stand.presenter->setCurrentFolder(nullptr);
    QCOMPARE(stand.journal, QStringList());
    stand.presenter->setCurrentFolder(stand.folder("A"));
    stand.presenter->setCurrentFolder(stand.folder("A"));
    stand.presenter->setCurrentFolder(stand.folder("D"));
    stand.presenter->setCurrentFolder(nullptr);
    QCOMPARE(stand.journal, lines({"current A", "current D", "current none"}));
}

void tst_NxFolderMediaManagerPresenter::forgetsAFolderThatDied()
{
    Stand stand;
    auto folder = std::make_unique<ScriptedFolder>(text("search"));
    stand.presenter->setCurrentFolder(folder.get());
    stand.journal.clear();
    folder.reset();
    QVERIFY(!stand.presenter->currentFolder());
    stand.presenter->setCurrentFolder(nullptr);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxFolderMediaManagerPresenter::outlivesItsManager()
{
    Stand stand;
    ScriptedFolder lonely(text("lonely"));
    stand.manager.reset();
    QVERIFY(!stand.presenter->folderManager());
    const ScriptedUser user;
    stand.presenter->removeFolder(&lonely);
    QVERIFY(!stand.presenter->addFolder(&lonely, text("X")));
    QVERIFY(!stand.presenter->renameFolder(&lonely, text("X")));
    QVERIFY(!stand.presenter->moveFolder(&lonely, &lonely, 0));
    stand.presenter->setCurrentFolder(&lonely);
    QCOMPARE(stand.journal, lines({"current lonely"}));
}

void tst_NxFolderMediaManagerPresenter::worksWithoutAManager()
{
    NxFolderMediaManagerPresenter presenter(nullptr, nullptr);
    ScriptedFolder lonely(text("lonely"));
    const ScriptedUser user;
    QVERIFY(!presenter.folderManager());
    presenter.removeFolder(&lonely);
    QVERIFY(!presenter.addFolder(&lonely, text("X")));
    QVERIFY(!presenter.renameFolder(&lonely, text("X")));
    QVERIFY(!presenter.moveFolder(&lonely, &lonely, 0));
    presenter.setCurrentFolder(&lonely);
    QCOMPARE(presenter.currentFolder(), &lonely);
}

void tst_NxFolderMediaManagerPresenter::leavesItsManagerWhenItDies()
{
    Stand stand;
    QVERIFY(!stand.manager->observers.isEmpty());
    stand.enter("D");
    stand.presenter.reset();
    QVERIFY(stand.manager->observers.isEmpty());
    QVERIFY(stand.manager->removeFolder(stand.folder("C")));
}

void tst_NxFolderMediaManagerPresenter::asksAboutTheFolderByItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("short") << text("D");
    QTest::newRow("with blanks") << text("day 1 ");
    QTest::newRow("with parentheses") << text("(2)");
    QTest::newRow("that looks like a place for a text") << text("%1 %2");
    QTest::newRow("that looks like markup") << text("<b>D</b> & co");
    QTest::newRow("of another script") << QString::fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D");
    QTest::newRow("empty") << QString();
}

void tst_NxFolderMediaManagerPresenter::asksAboutTheFolderByItsName()
{
    QFETCH(QString, name);
    Stand stand;
    ScriptedFolder *folder = stand.folder("D");
    folder->title = name;
    ScriptedUser user;
    user.press(mdbNegative);
    stand.presenter->removeFolder(folder);
    QCOMPARE(user.dialogs(), 1);
    const NMessageDialogInfo asked = user.messages().first();
    QCOMPARE(asked.text,
             text("Are you sure you want to delete the selected folder(") + name + text(")?"));
    QCOMPARE(asked.title, text("Alert"));
    QCOMPARE(asked.detail, QString());
    QCOMPARE(asked.buttons, (QList<int>{mdbAffirmative, mdbNegative}));
    QCOMPARE(asked.defaultButton, int(mdbAffirmative));
    QCOMPARE(asked.escapeButton, int(mdbNegative));
    QCOMPARE(asked.checkBoxText, QString());
}

void tst_NxFolderMediaManagerPresenter::asksInTheUsersLanguage()
{
    Shouting shouting;
    QVERIFY(QCoreApplication::installTranslator(&shouting));
    Stand stand;
    ScriptedUser user;
    user.press(mdbNegative);
    stand.folder("D")->title = text("shoes");
    stand.presenter->removeFolder(stand.folder("shoes"));
    QCOMPARE(user.messages().first().text,
             text("ARE YOU SURE YOU WANT TO DELETE THE SELECTED FOLDER(shoes)?"));
    QCOMPARE(user.messages().first().title, text("ALERT"));
}

void tst_NxFolderMediaManagerPresenter::removesAFolderInOneStep()
{
    Stand stand;
    const QPointer<INxFolderMedia> folder = stand.folder("C");
    const NxLogCapture log;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeFolder(folder);
    QVERIFY(!folder);
    QCOMPARE(stand.journal, lines({"step deleteFolder of "
                                   "NxFolderMediaManagerPresenterPrivate::removeFolder",
                                   "remove C", "step ends"}));
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxFolderMediaManagerPresenter::removesAFolderThatNoUndoBringsBack()
{
    Stand stand;
    stand.project->hasUndo = false;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeFolder(stand.folder("C"));
    QCOMPARE(stand.journal, lines({"remove C"}));
    QVERIFY(!stand.folder("C"));
}

void tst_NxFolderMediaManagerPresenter::keepsTheFolderUnlessTheUserSaysYes_data()
{
    QTest::addColumn<bool>("saysNo");
    QTest::newRow("no") << true;
    QTest::newRow("closed") << false;
}

void tst_NxFolderMediaManagerPresenter::keepsTheFolderUnlessTheUserSaysYes()
{
    QFETCH(bool, saysNo);
    Stand stand;
    stand.enter("D");
    ScriptedUser user;
    if (saysNo)
        user.press(mdbNegative);
    else
        user.escape();
    stand.presenter->removeFolder(stand.folder("C"));
    QVERIFY(stand.folder("C"));
    QCOMPARE(stand.journal, QStringList());
    QCOMPARE(stand.current(), text("D"));
}

void tst_NxFolderMediaManagerPresenter::asksNothingAboutFoldersThatStay_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("no folder") << true;
    QTest::newRow("a folder that may not be removed") << false;
}

void tst_NxFolderMediaManagerPresenter::asksNothingAboutFoldersThatStay()
{
    QFETCH(bool, isNull);
    Stand stand;
    stand.manager->removable = isNull;
    const ScriptedUser user;
    stand.presenter->removeFolder(isNull ? nullptr : stand.folder("C"));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(stand.journal, QStringList());
    QVERIFY(stand.folder("C"));
}

void tst_NxFolderMediaManagerPresenter::removesNothingWithoutAProject()
{
    Stand stand;
    stand.engine.project = nullptr;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeFolder(stand.folder("C"));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.journal, QStringList());
    QVERIFY(stand.folder("C"));
}

void tst_NxFolderMediaManagerPresenter::keepsWhatTheManagerKeeps()
{
    Stand stand;
    stand.enter("C");
    stand.manager->keepsAll = true;
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeFolder(stand.folder("C"));
    QCOMPARE(stand.journal.value(1), text("remove C"));
    QCOMPARE(stand.current(), text("C"));
}

void tst_NxFolderMediaManagerPresenter::survivesWhatHappensWhileItAsks_data()
{
    QTest::addColumn<Event>("happening");
    const auto row = [](const char *name, Event happening) { QTest::newRow(name) << happening; };
    row("the folder goes", [](Stand &stand) { stand.manager->take(stand.folder("C")); });
    row("the folder goes with its parent",
        [](Stand &stand) { stand.manager->take(stand.folder("A")); });
    row("the manager dies", [](Stand &stand) { stand.manager.reset(); });
    row("the manager dies before its folders", [](Stand &stand) {
        stand.orphans = std::move(stand.manager->root);
        stand.manager.reset();
    });
    row("the presenter dies", [](Stand &stand) { stand.presenter.reset(); });
    row("the project is closed", [](Stand &stand) {
        stand.engine.project = nullptr;
        stand.project.reset();
    });
}

void tst_NxFolderMediaManagerPresenter::survivesWhatHappensWhileItAsks()
{
    QFETCH(Event, happening);
    Stand stand;
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&] { happening(stand); });
    stand.presenter->removeFolder(stand.folder("C"));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxFolderMediaManagerPresenter::goesToTheParentOfARemovedFolder_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("then");
    const auto row = [](const char *name, const char *current, const char *removed,
                        const char *then) {
        QTest::newRow(name) << text(current) << text(removed) << text(then);
    };
    row("the folder itself", "D", "D", "C");
    row("a folder at the top", "E", "E", "root");
    row("its parent", "D", "C", "A");
    row("its grandparent", "D", "A", "root");
    row("a folder with others in it", "C", "C", "A");
    row("a brother", "B", "C", "B");
    row("a folder further in", "A", "D", "A");
    row("another one", "D", "E", "D");
    row("none is current", "", "D", "");
}

void tst_NxFolderMediaManagerPresenter::goesToTheParentOfARemovedFolder()
{
    QFETCH(QString, current);
    QFETCH(QString, removed);
    QFETCH(QString, then);
    Stand stand;
    stand.enter(qPrintable(current));
    stand.manager->take(stand.folder(qPrintable(removed)));
    QCOMPARE(stand.current(), then);
    const bool isTold = current != then;
    QCOMPARE(stand.journal, isTold ? QStringList(text("current ") + then) : QStringList());
}

void tst_NxFolderMediaManagerPresenter::goesToTheParentOnceTheFolderIsGone()
{
    Stand stand;
    stand.enter("D");
    ScriptedFolder *c = stand.folder("C");
    int foldersThen = -1;
    connect(stand.presenter.get(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, this,
            [&] { foldersThen = c->childFolderCount(); });
    const std::unique_ptr<ScriptedFolder> removed = stand.manager->take(stand.folder("D"));
    QCOMPARE(foldersThen, 0);
    QCOMPARE(stand.current(), text("C"));
}

void tst_NxFolderMediaManagerPresenter::goesToTheParentOfSeveralRemovedFolders_data()
{
    QTest::addColumn<QString>("current");
    QTest::newRow("the first") << text("B");
    QTest::newRow("the last") << text("C");
    QTest::newRow("a folder in the last") << text("D");
}

void tst_NxFolderMediaManagerPresenter::goesToTheParentOfSeveralRemovedFolders()
{
    QFETCH(QString, current);
    Stand stand;
    stand.enter(qPrintable(current));
    ScriptedFolder *a = stand.folder("A");
    stand.manager->observers.tell(
        [a](auto *observer) { observer->onBeforeRemoveFolderEvent(a, 0, 1); });
    const std::unique_ptr<ScriptedFolder> c = a->take(1);
    const std::unique_ptr<ScriptedFolder> b = a->take(0);
    QCOMPARE(stand.journal, QStringList());
    stand.manager->observers.tell([](auto *observer) { observer->onAfterRemoveFolderEvent(); });
    QCOMPARE(stand.journal, lines({"current A"}));
}

void tst_NxFolderMediaManagerPresenter::forgetsWhereItWentBefore()
{
    Stand stand;
    stand.enter("D");
    stand.manager->take(stand.folder("D"));
    QCOMPARE(stand.current(), text("C"));
    stand.enter("E");
    stand.manager->take(stand.folder("B"));
    QCOMPARE(stand.current(), text("E"));
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxFolderMediaManagerPresenter::staysInAMovedFolder_data()
{
    QTest::addColumn<QString>("current");
    QTest::newRow("the current folder moves") << text("C");
    QTest::newRow("the current folder moves with its parent") << text("D");
    QTest::newRow("another folder moves") << text("B");
}

void tst_NxFolderMediaManagerPresenter::staysInAMovedFolder()
{
    QFETCH(QString, current);
    Stand stand;
    stand.enter(qPrintable(current));
    QVERIFY(stand.manager->moveFolder(stand.folder("C"), stand.folder("E"), 0));
    QCOMPARE(stand.current(), current);
    QCOMPARE(stand.journal, lines({"move C to E 0"}));
}

void tst_NxFolderMediaManagerPresenter::goesOnAfterAMove()
{
    Stand stand;
    stand.enter("D");
    QVERIFY(stand.manager->moveFolder(stand.folder("C"), stand.folder("E"), 0));
    stand.journal.clear();
    QVERIFY(stand.manager->removeFolder(stand.folder("C")));
    QCOMPARE(stand.journal, lines({"remove C", "current E"}));
}

void tst_NxFolderMediaManagerPresenter::addsAFolderInOneStep()
{
    Stand stand;
    INxFolderMedia *added = stand.presenter->addFolder(stand.folder("A"), text("new"));
    QCOMPARE(added, stand.folder("new"));
    QCOMPARE(added->parentFolder(), stand.folder("A"));
    QCOMPARE(stand.journal, lines({"step addFolder of NxFolderMediaManagerPresenter::addFolder",
                                   "add new to A", "step ends"}));
}

void tst_NxFolderMediaManagerPresenter::answersNoFolderThatWasNotAdded_data()
{
    QTest::addColumn<bool>("isNull");
    QTest::newRow("nowhere") << true;
    QTest::newRow("refused") << false;
}

void tst_NxFolderMediaManagerPresenter::answersNoFolderThatWasNotAdded()
{
    QFETCH(bool, isNull);
    Stand stand;
    stand.manager->keepsAll = true;
    QVERIFY(!stand.presenter->addFolder(isNull ? nullptr : stand.folder("A"), text("new")));
    QCOMPARE(stand.journal.contains(text("add new to A")), !isNull);
    QCOMPARE(stand.folder("A")->childFolderCount(), 2);
}

void tst_NxFolderMediaManagerPresenter::renamesAFolderInOneStep()
{
    Stand stand;
    stand.enter("D");
    QVERIFY(stand.presenter->renameFolder(stand.folder("D"), text(" day 2 ")));
    QCOMPARE(stand.journal,
             lines({"step renameFolder of NxFolderMediaManagerPresenter::renameFolder",
                    "rename D to  day 2 ", "step ends"}));
    QCOMPARE(stand.current(), text(" day 2 "));
}

void tst_NxFolderMediaManagerPresenter::refusesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("reachesTheManager");
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blank") << text(" \t\n") << false;
    QTest::newRow("one that the manager refuses") << text("B") << true;
}

void tst_NxFolderMediaManagerPresenter::refusesNames()
{
    QFETCH(QString, name);
    QFETCH(bool, reachesTheManager);
    Stand stand;
    stand.manager->keepsAll = true;
    const NxLogCapture log;
    QVERIFY(!stand.presenter->renameFolder(stand.folder("C"), name));
    QVERIFY(!stand.presenter->renameFolder(nullptr, name));
    QCOMPARE(stand.journal.contains(text("rename C to B")), reachesTheManager);
    QCOMPARE(stand.journal.isEmpty(), !reachesTheManager);
    QCOMPARE(linesOf(log), QStringList());
}

void tst_NxFolderMediaManagerPresenter::movesAFolderInOneStep()
{
    Stand stand;
    QVERIFY(stand.presenter->moveFolder(stand.folder("E"), stand.folder("A"), 1));
    QCOMPARE(stand.journal, lines({"step moveFolder of NxFolderMediaManagerPresenter::moveFolder",
                                   "move E to A 1", "step ends"}));
    QCOMPARE(stand.folder("A")->child(1), stand.folder("E"));
}

void tst_NxFolderMediaManagerPresenter::refusesToMove()
{
    Stand stand;
    QVERIFY(!stand.presenter->moveFolder(nullptr, stand.folder("A"), 0));
    QVERIFY(!stand.presenter->moveFolder(stand.folder("E"), nullptr, 0));
    QCOMPARE(stand.journal, QStringList());
    stand.manager->keepsAll = true;
    QVERIFY(!stand.presenter->moveFolder(stand.folder("E"), stand.folder("A"), 0));
    QCOMPARE(stand.folder("A")->childFolderCount(), 2);
}

NX_TEST_MAIN(tst_NxFolderMediaManagerPresenter)
#include "tst_NxFolderMediaManagerPresenter.moc"
