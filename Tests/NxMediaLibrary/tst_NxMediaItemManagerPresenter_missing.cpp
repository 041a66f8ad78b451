// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "DialogText.h"
#include "FlowStand.h"
#include "TextLines.h"

using Presenter = NxMediaItemManagerPresenter;

namespace {

constexpr const char *DeleteStep =
    "step deleteMediaItems of NxMediaItemManagerPresenter::dealWithMissingFiles";

} // namespace

/// Media whose files are missing: found again, deleted or left as they are.
class tst_NxMediaItemManagerPresenter_missing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void offersThreeWays();
    void asksNothingAboutNothing();
    void relocates();
    void deletesInOneStep();
    void deletesFromEachFolderInOneStep();
    void deletesWithoutAQuestionAndLeavesTimelinesAlone();
    void deletesWithoutAProject();
    void deletesOutOfTheSelection();
    void leavesOutWhatStandsInNoFolder();
    void leavesEverythingAlone_data();
    void leavesEverythingAlone();
    void sparesWhatDiedMeanwhile();
    void endsWhenThePresenterDies_data();
    void endsWhenThePresenterDies();
    void endsWhenTheManagerDies();
};

void tst_NxMediaItemManagerPresenter_missing::offersThreeWays()
{
    FlowStand stand;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbClosed);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 198",
                    "Unable to locate file. Click 'RELOCATE' to try importing the file again, "
                    "'DELETE' to delete it, or 'IGNORE' to abort this operation.",
                    "buttons 2 RELOCATE, 3 DELETE, 4 IGNORE", "default 2, escape 4"}));
}

void tst_NxMediaItemManagerPresenter_missing::asksNothingAboutNothing()
{
    FlowStand stand;
    const ScriptedUser user;
    QVERIFY(!stand.presenter->dealWithMissingFiles({}));
    QCOMPARE(user.dialogs(), 0);
}

void tst_NxMediaItemManagerPresenter_missing::relocates()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B");
    stand.manager->lengths = {{QStringLiteral("/found/A"), 0}, {QStringLiteral("/found/B"), 0}};
    ScriptedUser user;
    user.press(mdbAffirmative)
        .choose(QStringLiteral("/found/A"))
        .choose(QStringLiteral("/found/B"));
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A B")));
    QCOMPARE(stand.journal, lines({"step relinkMedia of NxMediaItemManagerPresenter::relinkMedia",
                                   "A takes /found/A", "step ends",
                                   "step relinkMedia of NxMediaItemManagerPresenter::relinkMedia",
                                   "B takes /found/B", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_missing::deletesInOneStep()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("C A")));
    QCOMPARE(stand.journal, lines({DeleteStep, "folder is emptied of C A", "step ends"}));
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("B"));
}

void tst_NxMediaItemManagerPresenter_missing::deletesFromEachFolderInOneStep()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B", stand.section);
    stand.add("C");
    stand.add("D", stand.section);
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("B A D C")));
    QCOMPARE(stand.journal, lines({DeleteStep, "section is emptied of B D",
                                   "folder is emptied of A C", "step ends"}));
    QVERIFY(stand.section->items(true, true).isEmpty());
}

void tst_NxMediaItemManagerPresenter_missing::deletesWithoutAQuestionAndLeavesTimelinesAlone()
{
    FlowStand stand;
    stand.add("A");
    stand.project->addTimeline(QStringLiteral("main"))
        ->add(QStringLiteral("a"), QStringLiteral("id-A"));
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.journal, lines({DeleteStep, "folder is emptied of A", "step ends"}));
    QCOMPARE(stand.project->timelineUses(QStringLiteral("id-A")).size(), 1);
}

void tst_NxMediaItemManagerPresenter_missing::deletesWithoutAProject()
{
    FlowStand stand;
    stand.engine.project = nullptr;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(stand.journal, lines({"folder is emptied of A"}));
}

void tst_NxMediaItemManagerPresenter_missing::deletesOutOfTheSelection()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    stand.presenter->setSelectedItems(stand.list("C B A"));
    stand.takeJournal();
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A B")));
    QCOMPARE(stand.journal, lines({"presenter: sigSelectItemsChanged()", DeleteStep,
                                   "folder is emptied of A B", "step ends"}));
    QCOMPARE(namesOf(stand.presenter->selectedItems()), QStringLiteral("C"));
}

void tst_NxMediaItemManagerPresenter_missing::leavesOutWhatStandsInNoFolder()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B")->parent = nullptr;
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("B A") + FlowStand::Items{nullptr}));
    QCOMPARE(stand.journal, lines({DeleteStep, "folder is emptied of A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_missing::leavesEverythingAlone_data()
{
    QTest::addColumn<bool>("isIgnored");

    QTest::newRow("ignored") << true;
    QTest::newRow("closed") << false;
}

void tst_NxMediaItemManagerPresenter_missing::leavesEverythingAlone()
{
    QFETCH(bool, isIgnored);
    FlowStand stand;
    stand.add("A");
    stand.presenter->setSelectedItems(stand.list("A"));
    stand.takeJournal();
    ScriptedUser user;
    if (isIgnored)
        user.press(mdbClosed);
    else
        user.escape();
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.journal, QStringList());
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("A"));
}

void tst_NxMediaItemManagerPresenter_missing::sparesWhatDiedMeanwhile()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B");
    ScriptedUser user;
    user.press(mdbNegative).whileOpen([&stand] { stand.kill(stand.list("A").first()); });
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A B")));
    QCOMPARE(stand.journal, lines({DeleteStep, "folder is emptied of B", "step ends"}));
    stand.takeJournal();

    stand.add("C");
    stand.add("D");
    stand.manager->lengths = {{QStringLiteral("/found/D"), 0}};
    user.press(mdbAffirmative).whileOpen([&stand] { stand.kill(stand.list("C").first()); });
    user.choose(QStringLiteral("/found/D"));
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("C D")));
    QCOMPARE(stand.journal, lines({"step relinkMedia of NxMediaItemManagerPresenter::relinkMedia",
                                   "D takes /found/D", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_missing::endsWhenThePresenterDies_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("relocating") << int(mdbAffirmative);
    QTest::newRow("deleting") << int(mdbNegative);
    QTest::newRow("ignoring") << int(mdbClosed);
}

void tst_NxMediaItemManagerPresenter_missing::endsWhenThePresenterDies()
{
    QFETCH(int, button);
    FlowStand stand;
    stand.add("A");
    ScriptedUser user;
    user.press(button).whileOpen([&stand] { stand.presenter.reset(); });
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_missing::endsWhenTheManagerDies()
{
    FlowStand stand;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbNegative).whileOpen([&stand] { stand.manager.reset(); });
    QVERIFY(stand.presenter->dealWithMissingFiles(stand.list("A")));
    QCOMPARE(stand.journal, QStringList());
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("A"));
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_missing)
#include "tst_NxMediaItemManagerPresenter_missing.moc"
