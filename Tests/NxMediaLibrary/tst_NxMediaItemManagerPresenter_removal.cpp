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

constexpr const char *StockQuestion = "Are you sure you want to delete the selected matter?";
constexpr const char *TimelineQuestion =
    "One or more of your selected clips have been added to the timeline. Deleting them from the "
    "library will also delete them from the timeline.";
constexpr const char *TemplateQuestion =
    "Are you sure you want to delete the custom project template item \"A?\"";
constexpr const char *OrdinaryQuestion = "Are you sure you want to delete the selected item?";
constexpr const char *NoQuestion = "";

/// Puts a clip of a media on the project's first timeline.
ScriptedClip *use(FlowStand *stand, const char *media)
{
    if (stand->project->held.empty())
        stand->project->addTimeline(QStringLiteral("main"));
    auto *main = static_cast<ScriptedTimeline *>(stand->project->held.front().get());
    const QString name = QString::fromLatin1(media);
    return main->add(QLatin1String("clip-") + name, QLatin1String("id-") + name);
}

/// Sees to it that removing the media called A asks this question.
void makeAsk(FlowStand *stand, const char *question)
{
    if (question == StockQuestion) {
        stand->add<FlowStockItem>("A");
    } else if (question == TemplateQuestion) {
        stand->add("A", NXVBLMODEL::mtProjectTemplate);
    } else {
        stand->add("A");
        if (question == TimelineQuestion)
            use(stand, "A");
    }
    stand->takeJournal();
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(FlowStand *)>)

/// Removing media: what is asked, what is removed, and in which order.
class tst_NxMediaItemManagerPresenter_removal : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksAboutStockMedia();
    void asksAboutMediaOnTimelines();
    void asksAboutATemplateByItsName();
    void asksAboutOrdinaryMediaUntilToldOtherwise();

    void asksOneQuestion_data();
    void asksOneQuestion();
    void judgesStockAndTemplatesByTheFirstMedia_data();
    void judgesStockAndTemplatesByTheFirstMedia();
    void looksForUsesOnlyWhereTimelinesCanUse_data();
    void looksForUsesOnlyWhereTimelinesCanUse();
    void asksEvenAboutNothing();

    void doesAsTheUserSays_data();
    void doesAsTheUserSays();
    void keepsTheCheckBoxWhateverTheAnswer_data();
    void keepsTheCheckBoxWhateverTheAnswer();
    void asksNoMoreOnceTheBoxWasChecked();

    void removesInOrder();
    void removesClipsWhereverTheyStand();
    void leavesEverythingAloneWhenDeclined();
    void removesWithoutAProject();
    void removesWithoutAnUndoHistory();
    void removesWithoutAProxyService();
    void removesFromNoParticularFolder();
    void refusesWithoutAManager();

    void dropsTheSelectionInOneGo();
    void keepsWhatElseIsSelected();
    void saysNothingWhenNothingWasSelected();
    void dropsWhatOthersRemoveOneByOne();

    void sparesWhatDiedMeanwhile();
    void doesNothingWhenAllDiedMeanwhile();
    void endsWhenItsWorldEnds_data();
    void endsWhenItsWorldEnds();
    void goesOnWithoutAProjectThatWasClosed();
    void endsWhenTheSelectionIsFollowedByItsDeath();
};

void tst_NxMediaItemManagerPresenter_removal::asksAboutStockMedia()
{
    FlowStand stand;
    makeAsk(&stand, StockQuestion);
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 230", "Are you sure you want to delete the selected matter?",
                    "Deleting the file will affect the used project. You can retrieve it by "
                    "downloading the record",
                    "buttons 2 Yes, 3 No", "default 2, escape 3"}));
}

void tst_NxMediaItemManagerPresenter_removal::asksAboutMediaOnTimelines()
{
    FlowStand stand;
    makeAsk(&stand, TimelineQuestion);
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 198",
                    "One or more of your selected clips have been added to the timeline. Deleting "
                    "them from the library will also delete them from the timeline.",
                    "buttons 2, 3", "default 2, escape 3"}));
}

void tst_NxMediaItemManagerPresenter_removal::asksAboutATemplateByItsName()
{
    FlowStand stand;
    stand.add("Title%1", NXVBLMODEL::mtProjectTemplate);
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("Title%1")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 230",
                    "Are you sure you want to delete the custom project template item "
                    "\"Title%1?\"",
                    "buttons 2 Yes, 3 No", "default 2, escape 3"}));
}

void tst_NxMediaItemManagerPresenter_removal::asksAboutOrdinaryMediaUntilToldOtherwise()
{
    FlowStand stand;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(dialogText(user.messages().first()),
             lines({"style 230", "Are you sure you want to delete the selected item?",
                    "buttons 2 Yes, 3 No", "default 2, escape 3", "[ ] Stop asking for now."}));
}

void tst_NxMediaItemManagerPresenter_removal::asksOneQuestion_data()
{
    QTest::addColumn<bool>("isStock");
    QTest::addColumn<bool>("isUsed");
    QTest::addColumn<bool>("isTemplate");
    QTest::addColumn<bool>("confirms");
    QTest::addColumn<QString>("question");

    const auto row = [](const char *name, bool isStock, bool isUsed, bool isTemplate, bool confirms,
                        const char *question) {
        QTest::newRow(name) << isStock << isUsed << isTemplate << confirms
                            << QString::fromLatin1(question);
    };
    row("ordinary", false, false, false, true, OrdinaryQuestion);
    row("ordinary, asking off", false, false, false, false, NoQuestion);
    row("template", false, false, true, true, TemplateQuestion);
    row("template, asking off", false, false, true, false, TemplateQuestion);
    row("used", false, true, false, true, TimelineQuestion);
    row("used, asking off", false, true, false, false, TimelineQuestion);
    row("used template", false, true, true, true, TimelineQuestion);
    row("stock", true, false, false, true, StockQuestion);
    row("stock, asking off", true, false, false, false, StockQuestion);
    row("used stock", true, true, false, true, StockQuestion);
    row("used stock template, asking off", true, true, true, false, StockQuestion);
}

void tst_NxMediaItemManagerPresenter_removal::asksOneQuestion()
{
    QFETCH(bool, isStock);
    QFETCH(bool, isUsed);
    QFETCH(bool, isTemplate);
    QFETCH(bool, confirms);
    QFETCH(QString, question);
    FlowStand stand;
    const int type = isTemplate ? NXVBLMODEL::mtProjectTemplate : NXVBLMODEL::mtVideoAudio;
    if (isStock)
        stand.add<FlowStockItem>("A", type);
    else
        stand.add("A", type);
    if (isUsed)
        use(&stand, "A");
    NxConfig::Instance()->setMediaDeleteConfirm(confirms);
    ScriptedUser user;
    if (!question.isEmpty())
        user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(user.dialogs(), question.isEmpty() ? 0 : 1);
    if (!question.isEmpty())
        QCOMPARE(user.messages().first().text, question);
    QCOMPARE(stand.folder->media.isEmpty(), question.isEmpty());
    const bool asksOnlyHere = question == QLatin1String(OrdinaryQuestion);
    QCOMPARE(NxConfig::Instance()->getMediaDeleteConfirm(), asksOnlyHere || confirms);
}

void tst_NxMediaItemManagerPresenter_removal::judgesStockAndTemplatesByTheFirstMedia_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("question");

    QTest::newRow("ordinary before stock") << "O S" << OrdinaryQuestion;
    QTest::newRow("stock before ordinary") << "S O" << StockQuestion;
    QTest::newRow("template before stock") << "A S" << TemplateQuestion;
    QTest::newRow("ordinary before template") << "O A" << OrdinaryQuestion;
    QTest::newRow("template before ordinary") << "A O" << TemplateQuestion;
    QTest::newRow("used behind ordinary") << "O U" << TimelineQuestion;
    QTest::newRow("used behind template") << "A U" << TimelineQuestion;
    QTest::newRow("used behind stock") << "S U" << StockQuestion;
}

void tst_NxMediaItemManagerPresenter_removal::judgesStockAndTemplatesByTheFirstMedia()
{
    QFETCH(QString, order);
    QFETCH(QString, question);
    FlowStand stand;
    stand.add("O");
    stand.add("U");
    stand.add<FlowStockItem>("S");
    stand.add("A", NXVBLMODEL::mtProjectTemplate);
    use(&stand, "U");
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(
        stand.presenter->removeMediaItems(stand.folder, stand.list(order.toLatin1().constData())));
    QCOMPARE(user.messages().first().text, question);
}

void tst_NxMediaItemManagerPresenter_removal::looksForUsesOnlyWhereTimelinesCanUse_data()
{
    QTest::addColumn<bool>("hasFolder");
    QTest::addColumn<bool>("isManaged");
    QTest::addColumn<bool>("byFile");
    QTest::addColumn<bool>("byResource");
    QTest::addColumn<bool>("looks");

    QTest::newRow("by their files") << true << true << true << false << true;
    QTest::newRow("as resources") << true << true << false << true << true;
    QTest::newRow("both") << true << true << true << true << true;
    QTest::newRow("neither") << true << true << false << false << false;
    QTest::newRow("no folder") << false << true << true << true << false;
    QTest::newRow("a folder of nobody") << true << false << true << true << false;
}

void tst_NxMediaItemManagerPresenter_removal::looksForUsesOnlyWhereTimelinesCanUse()
{
    QFETCH(bool, hasFolder);
    QFETCH(bool, isManaged);
    QFETCH(bool, byFile);
    QFETCH(bool, byResource);
    QFETCH(bool, looks);
    FlowStand stand;
    stand.category.servesTimelinesByFile = byFile;
    stand.category.servesTimelinesByResource = byResource;
    if (!isManaged)
        stand.section->managed = nullptr;
    stand.add("A");
    use(&stand, "A");
    ScriptedUser user;
    user.press(mdbNegative);
    stand.presenter->removeMediaItems(hasFolder ? stand.folder : nullptr, stand.list("A"));
    QCOMPARE(user.messages().first().text,
             QString::fromLatin1(looks ? TimelineQuestion : OrdinaryQuestion));
    QCOMPARE(stand.project->asked.isEmpty(), !looks);
}

void tst_NxMediaItemManagerPresenter_removal::asksEvenAboutNothing()
{
    FlowStand stand;
    ScriptedUser user;
    user.press(mdbAffirmative).press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, {}));
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, {nullptr}));
    for (const NMessageDialogInfo &info : user.messages())
        QCOMPARE(info.text, QString::fromLatin1(OrdinaryQuestion));
    QVERIFY(stand.folder->media.isEmpty());
}

void tst_NxMediaItemManagerPresenter_removal::doesAsTheUserSays_data()
{
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("removes");

    const std::initializer_list<std::pair<const char *, const char *>> questions = {
        {"stock", StockQuestion},
        {"timeline", TimelineQuestion},
        {"template", TemplateQuestion},
        {"ordinary", OrdinaryQuestion}};
    for (const auto &[name, question] : questions) {
        const QString text = QString::fromLatin1(question);
        QTest::addRow("%s, yes", name) << text << int(mdbAffirmative) << true;
        QTest::addRow("%s, no", name) << text << int(mdbNegative) << false;
        QTest::addRow("%s, closed", name) << text << 0 << false;
    }
}

void tst_NxMediaItemManagerPresenter_removal::doesAsTheUserSays()
{
    QFETCH(QString, question);
    QFETCH(int, button);
    QFETCH(bool, removes);
    FlowStand stand;
    for (const char *known :
         {StockQuestion, TimelineQuestion, TemplateQuestion, OrdinaryQuestion}) {
        if (question == QLatin1String(known))
            makeAsk(&stand, known);
    }
    ScriptedUser user;
    if (button)
        user.press(button);
    else
        user.escape();
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(user.messages().first().text, question);
    QCOMPARE(stand.folder->media.isEmpty(), removes);
    QCOMPARE(stand.journal.isEmpty(), !removes);
}

void tst_NxMediaItemManagerPresenter_removal::keepsTheCheckBoxWhateverTheAnswer_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isChecked");

    QTest::newRow("yes, checked") << int(mdbAffirmative) << true;
    QTest::newRow("yes, unchecked") << int(mdbAffirmative) << false;
    QTest::newRow("no, checked") << int(mdbNegative) << true;
    QTest::newRow("no, unchecked") << int(mdbNegative) << false;
}

void tst_NxMediaItemManagerPresenter_removal::keepsTheCheckBoxWhateverTheAnswer()
{
    QFETCH(int, button);
    QFETCH(bool, isChecked);
    FlowStand stand;
    stand.add("A");
    ScriptedUser user;
    if (isChecked)
        user.checkAndPress(button);
    else
        user.press(button);
    // What the box says at the end counts, not what was known before.
    user.whileOpen([isChecked] { NxConfig::Instance()->setMediaDeleteConfirm(isChecked); });
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(NxConfig::Instance()->getMediaDeleteConfirm(), !isChecked);
    QCOMPARE(stand.folder->media.isEmpty(), button == mdbAffirmative);
}

void tst_NxMediaItemManagerPresenter_removal::asksNoMoreOnceTheBoxWasChecked()
{
    FlowStand stand;
    stand.add("A");
    {
        ScriptedUser user;
        user.checkAndPress(mdbNegative);
        stand.presenter->removeMediaItems(stand.folder, stand.list("A"));
        QCOMPARE(stand.folder->media.size(), 1);
    }
    ScriptedUser user;
    stand.presenter->removeMediaItems(stand.folder, stand.list("A"));
    QVERIFY(stand.folder->media.isEmpty());
    NxConfig::Instance()->setMediaDeleteConfirm(true);
    stand.add("B");
    user.press(mdbAffirmative);
    stand.presenter->removeMediaItems(stand.folder, stand.list("B"));
    QVERIFY(stand.folder->media.isEmpty());
}

void tst_NxMediaItemManagerPresenter_removal::removesInOrder()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    use(&stand, "B");
    use(&stand, "C");
    stand.presenter->setSelectedItems(stand.list("A B"));
    stand.takeJournal();
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&stand] {
        stand.journal.append(QStringLiteral("asked"));
    });
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("B A")));
    QCOMPARE(stand.journal,
             lines({"asked", "stop proxies B A", "presenter: sigSelectItemsChanged()",
                    "step deleteMediaItems of "
                    "NxMediaItemManagerPresenterPrivate::removeMediaItems",
                    "main loses clip-B", "folder is emptied of B A", "step ends"}));
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("C"));
}

void tst_NxMediaItemManagerPresenter_removal::removesClipsWhereverTheyStand()
{
    FlowStand stand;
    stand.add("A");
    ScriptedTimeline *main = stand.project->addTimeline(QStringLiteral("main"));
    const QString id = QStringLiteral("id-A");
    main->add(QStringLiteral("m"), id);
    main->addSplitScreen(QStringLiteral("split"))->add(QStringLiteral("s"), id);
    ScriptedComposite *inner = stand.project->addComposite(main, QStringLiteral("inner"));
    inner->add(QStringLiteral("i"), id);
    inner->add(QStringLiteral("other"), QStringLiteral("id-B"));
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal, lines({"stop proxies A",
                                   "step deleteMediaItems of "
                                   "NxMediaItemManagerPresenterPrivate::removeMediaItems",
                                   "inner loses i", "split loses s", "main loses m",
                                   "folder is emptied of A", "step ends"}));
    QCOMPARE(stand.project->walks, 1);
}

void tst_NxMediaItemManagerPresenter_removal::leavesEverythingAloneWhenDeclined()
{
    FlowStand stand;
    stand.add("A");
    use(&stand, "A");
    stand.presenter->setSelectedItems(stand.list("A"));
    stand.takeJournal();
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal, QStringList());
    QCOMPARE(namesOf(stand.presenter->selectedItems()), QStringLiteral("A"));
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("A"));
}

void tst_NxMediaItemManagerPresenter_removal::removesWithoutAProject()
{
    FlowStand stand;
    stand.engine.project = nullptr;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal, lines({"stop proxies A", "folder is emptied of A"}));
}

void tst_NxMediaItemManagerPresenter_removal::removesWithoutAnUndoHistory()
{
    FlowStand stand;
    stand.project->hasUndo = false;
    stand.add("A");
    use(&stand, "A");
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal,
             lines({"stop proxies A", "main loses clip-A", "folder is emptied of A"}));
}

void tst_NxMediaItemManagerPresenter_removal::removesWithoutAProxyService()
{
    FlowStand stand;
    stand.engine.proxies = nullptr;
    stand.add("A");
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QVERIFY(stand.folder->media.isEmpty());
}

void tst_NxMediaItemManagerPresenter_removal::removesFromNoParticularFolder()
{
    FlowStand stand;
    stand.add("A");
    use(&stand, "A");
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(nullptr, stand.list("A")));
    QCOMPARE(stand.journal, lines({"stop proxies A",
                                   "step deleteMediaItems of "
                                   "NxMediaItemManagerPresenterPrivate::removeMediaItems",
                                   "main loses clip-A", "nothing is emptied of A", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_removal::refusesWithoutAManager()
{
    FlowStand stand;
    stand.add("A");
    const ScriptedUser user;
    Presenter orphan(nullptr, nullptr);
    QVERIFY(!orphan.removeMediaItems(stand.folder, stand.list("A")));
    stand.manager.reset();
    QVERIFY(!stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(stand.journal, QStringList());
}

void tst_NxMediaItemManagerPresenter_removal::dropsTheSelectionInOneGo()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    stand.presenter->setSelectedItems(stand.list("C A B"));
    stand.takeJournal();
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeMediaItems(stand.folder, stand.list("A B C"));
    QCOMPARE(stand.journal.count(QStringLiteral("presenter: sigSelectItemsChanged()")), 1);
    QVERIFY(stand.presenter->selectedItems().isEmpty());
    QVERIFY(stand.folder->media.isEmpty());
}

void tst_NxMediaItemManagerPresenter_removal::keepsWhatElseIsSelected()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C", "D"})
        stand.add(name);
    stand.presenter->setSelectedItems(stand.list("D A B C"));
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeMediaItems(stand.folder, stand.list("A C"));
    QCOMPARE(namesOf(stand.presenter->selectedItems()), QStringLiteral("D B"));
}

void tst_NxMediaItemManagerPresenter_removal::saysNothingWhenNothingWasSelected()
{
    FlowStand stand;
    stand.add("A");
    stand.add("B");
    stand.presenter->setSelectedItems(stand.list("B"));
    stand.takeJournal();
    ScriptedUser user;
    user.press(mdbAffirmative);
    stand.presenter->removeMediaItems(stand.folder, stand.list("A"));
    QVERIFY(!stand.journal.contains(QStringLiteral("presenter: sigSelectItemsChanged()")));
    QCOMPARE(namesOf(stand.presenter->selectedItems()), QStringLiteral("B"));
}

void tst_NxMediaItemManagerPresenter_removal::dropsWhatOthersRemoveOneByOne()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    stand.presenter->setSelectedItems(stand.list("A B C"));
    stand.takeJournal();
    stand.manager->removeMediaItems(stand.folder, stand.list("B A"));
    QCOMPARE(stand.journal, lines({"folder is emptied of B A", "presenter: sigSelectItemsChanged()",
                                   "presenter: sigSelectItemsChanged()"}));
    QCOMPARE(namesOf(stand.presenter->selectedItems()), QStringLiteral("C"));
}

void tst_NxMediaItemManagerPresenter_removal::sparesWhatDiedMeanwhile()
{
    FlowStand stand;
    for (const char *name : {"A", "B", "C"})
        stand.add(name);
    use(&stand, "A");
    use(&stand, "B");
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&stand] { stand.kill(stand.list("B").first()); });
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A B C")));
    QCOMPARE(stand.journal, lines({"stop proxies A C",
                                   "step deleteMediaItems of "
                                   "NxMediaItemManagerPresenterPrivate::removeMediaItems",
                                   "main loses clip-A", "folder is emptied of A C", "step ends"}));
}

void tst_NxMediaItemManagerPresenter_removal::doesNothingWhenAllDiedMeanwhile()
{
    FlowStand stand;
    stand.add("A");
    use(&stand, "A");
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&stand] { stand.kill(stand.list("A").first()); });
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QVERIFY(!stand.journal.contains(QStringLiteral("main loses clip-A")));
}

void tst_NxMediaItemManagerPresenter_removal::endsWhenItsWorldEnds_data()
{
    using Deed = std::function<void(FlowStand *)>;
    QTest::addColumn<Deed>("end");

    QTest::newRow("presenter") << Deed([](FlowStand *stand) { stand->presenter.reset(); });
    QTest::newRow("manager") << Deed([](FlowStand *stand) { stand->manager.reset(); });
    QTest::newRow("folder") << Deed(
        [](FlowStand *stand) { stand->section->destroy(stand->folder); });
    QTest::newRow("everything") << Deed([](FlowStand *stand) {
        stand->presenter.reset();
        stand->manager.reset();
        stand->section->destroy(stand->folder);
        stand->engine.project = nullptr;
        stand->project.reset();
        stand->items.clear();
    });
}

void tst_NxMediaItemManagerPresenter_removal::endsWhenItsWorldEnds()
{
    QFETCH(std::function<void(FlowStand *)>, end);
    for (const char *question :
         {StockQuestion, TimelineQuestion, TemplateQuestion, OrdinaryQuestion}) {
        FlowStand stand;
        makeAsk(&stand, question);
        ScriptedUser user;
        user.press(mdbAffirmative).whileOpen([&stand, &end] { end(&stand); });
        QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
        QCOMPARE(user.messages().first().text, QString::fromLatin1(question));
        QCOMPARE(stand.journal, QStringList());
    }
}

void tst_NxMediaItemManagerPresenter_removal::goesOnWithoutAProjectThatWasClosed()
{
    FlowStand stand;
    stand.add("A");
    use(&stand, "A");
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&stand] {
        stand.engine.project = nullptr;
        stand.project.reset();
    });
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal, lines({"stop proxies A", "folder is emptied of A"}));
}

void tst_NxMediaItemManagerPresenter_removal::endsWhenTheSelectionIsFollowedByItsDeath()
{
    FlowStand stand;
    stand.add("A");
    stand.presenter->setSelectedItems(stand.list("A"));
    stand.takeJournal();
    QObject context; // The presenter that emits is the one that dies.
    connect(stand.presenter.get(), &Presenter::sigSelectItemsChanged, &context,
            [&stand] { stand.presenter.reset(); });
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(stand.presenter->removeMediaItems(stand.folder, stand.list("A")));
    QCOMPARE(stand.journal, lines({"stop proxies A", "presenter: sigSelectItemsChanged()"}));
    QCOMPARE(namesOf(stand.folder->media), QStringLiteral("A"));
}

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_removal)
#include "tst_NxMediaItemManagerPresenter_removal.moc"
