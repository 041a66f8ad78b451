// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaFolderComboBox.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxWidgets/NxComboBox.h>

#include <Support/NxTestMain.h>

#include <QAbstractItemView>
#include <QLayout>
#include <QTest>

#include <memory>
#include <utility>

#include "ScriptedFolders.h"
#include "TextLines.h"

namespace {

/// A section Project with the folders Sea, in it Boats, in it Sails, and Hills; a section Titles
/// beside it. A view that lists them, and all folders that became the current one.
struct Stand
{
    explicit Stand(
        const QString &drawing = QStringLiteral("Project(Sea(Boats(Sails)) Hills) Titles"))
    {
        plant(manager->root.get(), drawing);
        presenter = std::make_unique<NxFolderMediaManagerPresenter>(manager.get(), nullptr);
        QObject::connect(presenter.get(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged,
                         [this] { picked.append(presenter->currentFolder()->name()); });
        view = std::make_unique<NxMediaFolderComboBox>(presenter.get(), nullptr);
    }

    ScriptedFolder *folder(const char *name) const
    {
        return called(manager->root.get(), QLatin1String(name));
    }
    NxComboBox *box() const { return view->findChild<NxComboBox *>(); }
    QStringList entries() const
    {
        QStringList texts;
        for (int entry = 0; entry < box()->count(); ++entry)
            texts.append(box()->itemText(entry));
        return texts;
    }
    [[nodiscard]] bool show() const
    {
        view->resize(200, 30);
        view->show();
        view->activateWindow();
        box()->setFocus();
        return QTest::qWaitForWindowActive(view.get());
    }
    [[nodiscard]] bool open() const
    {
        if (!show())
            return false;
        box()->showPopup();
        return QTest::qWaitForWindowExposed(box()->view()->window());
    }
    /// The user goes to an entry with the keyboard, from above.
    void pickByKeys(int entry) const
    {
        QTest::keyClick(box(), Qt::Key_Home);
        for (int step = 0; step < entry; ++step)
            QTest::keyClick(box(), Qt::Key_Down);
    }
    QStringList take() { return std::exchange(picked, {}); }

    QStringList picked;
    std::unique_ptr<ScriptedFolderManager> manager = std::make_unique<ScriptedFolderManager>();
    std::unique_ptr<NxFolderMediaManagerPresenter> presenter;
    std::unique_ptr<NxMediaFolderComboBox> view;
};

const QStringList allEntries =
    lines({"      Project", "            Sea", "                  Boats",
           "                        Sails", "            Hills", "      Titles"});

} // namespace

class tst_NxMediaFolderComboBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsSubFoldersBelowTheirFolder();
    void entriesCarryTheirFolder();
    void namesAreShownAsTheyAre();
    void onlineFoldersAreLeftOutWithAllBelow();
    void aFolderMayBeListedByItself();
    void loadingTwiceListsTwice();
    void clearingEmptiesTheList();
    void nothingToListIsAnEmptyList_data();
    void nothingToListIsAnEmptyList();
    void theDefaultIsTheFirstFolderWhateverIsShown();
    void theBoxFillsTheView();
    void livesInsideItsParentView();
    void keysChooseAFolder();
    void theWheelChoosesAFolder();
    void keysChooseInThePopup();
    void theMouseChoosesInThePopup();
    void theShownFolderCanBeChosenAgain();
    void leavingThePopupChoosesNothing();
    void whatAProgramShowsIsNotChosen();
    void aFolderThatDiedIsNotChosen();
    void theDefaultIsNoneWhenTheFirstFolderDied();
    void aDeadPresenterIsToldNothing();
    void theViewMayGoWhenAFolderIsChosen();
    void anEntryOfTheHostsChoosesNothing();
    void aLargeTreeIsReadOnce();
};

void tst_NxMediaFolderComboBox::listsSubFoldersBelowTheirFolder()
{
    const Stand stand;
    QCOMPARE(stand.entries(), allEntries);
    QCOMPARE(stand.picked, QStringList());
}

void tst_NxMediaFolderComboBox::entriesCarryTheirFolder()
{
    const Stand stand;
    for (int entry = 0; entry < stand.box()->count(); ++entry) {
        const QVariant data = stand.box()->itemData(entry, Qt::UserRole);
        QCOMPARE(data.userType(), int(QMetaType::VoidStar));
        const auto *folder = static_cast<INxFolderMedia *>(data.value<void *>());
        QCOMPARE(folder->name(), stand.entries().at(entry).trimmed());
        QVERIFY(stand.box()->itemIcon(entry).isNull());
    }
}

void tst_NxMediaFolderComboBox::namesAreShownAsTheyAre()
{
    Stand stand(QStringLiteral("A"));
    stand.folder("A")->title = QStringLiteral(" 100%1 %2 & more ");
    stand.view->clear();
    stand.view->load(stand.manager->root.get());
    QCOMPARE(stand.entries(), QStringList{QStringLiteral("       100%1 %2 & more ")});
}

void tst_NxMediaFolderComboBox::onlineFoldersAreLeftOutWithAllBelow()
{
    Stand stand;
    stand.folder("Sea")->itsKind = NXVBLMODEL::fkOnline;
    stand.folder("Titles")->itsKind = NXVBLMODEL::fkOnline;
    stand.folder("Hills")->itsKind = NXVBLMODEL::fkRecent;
    stand.view->clear();
    stand.view->load(stand.manager->root.get());
    QCOMPARE(stand.entries(), lines({"      Project", "            Hills"}));
}

void tst_NxMediaFolderComboBox::aFolderMayBeListedByItself()
{
    Stand stand;
    stand.view->clear();
    stand.view->load(stand.folder("Sea"));
    QCOMPARE(stand.entries(), lines({"                  Boats", "                        Sails"}));
    stand.view->load(stand.folder("Sails"));
    stand.view->load(nullptr);
    QCOMPARE(stand.entries().size(), 2);
}

void tst_NxMediaFolderComboBox::loadingTwiceListsTwice()
{
    Stand stand;
    stand.view->load(stand.manager->root.get());
    QCOMPARE(stand.entries(), allEntries + allEntries);
    QVERIFY(stand.show());
    stand.pickByKeys(allEntries.size() + 4);
    QCOMPARE(stand.take().last(), QStringLiteral("Hills"));
}

void tst_NxMediaFolderComboBox::clearingEmptiesTheList()
{
    Stand stand;
    stand.view->clear();
    QCOMPARE(stand.entries(), QStringList());
    stand.view->setDefaultFolder();
    QCOMPARE(stand.take(), QStringList());
    stand.view->load(stand.manager->root.get());
    QCOMPARE(stand.entries(), allEntries);
}

void tst_NxMediaFolderComboBox::nothingToListIsAnEmptyList_data()
{
    QTest::addColumn<bool>("hasPresenter");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<bool>("hasRoot");
    QTest::newRow("no presenter") << false << false << false;
    QTest::newRow("no manager") << true << false << false;
    QTest::newRow("no root") << true << true << false;
    QTest::newRow("no folders") << true << true << true;
}

void tst_NxMediaFolderComboBox::nothingToListIsAnEmptyList()
{
    QFETCH(bool, hasPresenter);
    QFETCH(bool, hasManager);
    QFETCH(bool, hasRoot);
    ScriptedFolderManager manager;
    if (!hasRoot)
        manager.root.reset();
    NxFolderMediaManagerPresenter presenter(hasManager ? &manager : nullptr, nullptr);
    NxMediaFolderComboBox view(hasPresenter ? &presenter : nullptr, nullptr);
    view.setDefaultFolder();
    QCOMPARE(view.findChild<NxComboBox *>()->count(), 0);
    QVERIFY(!presenter.currentFolder());
}

void tst_NxMediaFolderComboBox::theDefaultIsTheFirstFolderWhateverIsShown()
{
    Stand stand;
    stand.box()->setCurrentIndex(4);
    stand.view->setDefaultFolder();
    QCOMPARE(stand.take(), lines({"Project"}));
    QCOMPARE(stand.box()->currentIndex(), 4);
}

void tst_NxMediaFolderComboBox::theBoxFillsTheView()
{
    const Stand stand;
    QVERIFY(stand.show());
    QCOMPARE(stand.box()->width(), stand.view->width());
    QCOMPARE(stand.view->layout()->contentsMargins(), QMargins());
    QCOMPARE(stand.view->layout()->spacing(), 0);
}

void tst_NxMediaFolderComboBox::livesInsideItsParentView()
{
    NxWidgetView panel;
    const auto *view = new NxMediaFolderComboBox(nullptr, &panel);
    QCOMPARE(view->parentWidget(), panel.widget());
}

void tst_NxMediaFolderComboBox::keysChooseAFolder()
{
    Stand stand;
    QVERIFY(stand.show());
    QTest::keyClick(stand.box(), Qt::Key_Down);
    QCOMPARE(stand.take(), lines({"Sea"}));
    QTest::keyClick(stand.box(), Qt::Key_End);
    QCOMPARE(stand.take(), lines({"Titles"}));
    QCOMPARE(stand.presenter->currentFolder(), stand.folder("Titles"));
}

void tst_NxMediaFolderComboBox::theWheelChoosesAFolder()
{
    Stand stand;
    QVERIFY(stand.show());
    const QPointF place(5, 5);
    QWheelEvent event(place, stand.box()->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(stand.box(), &event);
    QCOMPARE(stand.take(), lines({"Sea"}));
}

void tst_NxMediaFolderComboBox::keysChooseInThePopup()
{
    Stand stand;
    QVERIFY(stand.open());
    QTest::keyClick(stand.box()->view(), Qt::Key_Down);
    QTest::keyClick(stand.box()->view(), Qt::Key_Down);
    QCOMPARE(stand.take(), QStringList());
    QTest::keyClick(stand.box()->view(), Qt::Key_Return);
    QTRY_COMPARE(stand.picked, lines({"Boats"}));
}

void tst_NxMediaFolderComboBox::theMouseChoosesInThePopup()
{
    Stand stand;
    QVERIFY(stand.open());
    QAbstractItemView *list = stand.box()->view();
    const QModelIndex hills = stand.box()->model()->index(4, 0);
    const QPoint place = list->visualRect(hills).center();
    // The popup takes no release before the mouse has moved or waited.
    QTest::mouseMove(list->viewport(), place);
    list->setCurrentIndex(hills);
    const auto click = [&] {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        return !stand.picked.isEmpty();
    };
    QVERIFY(QTest::qWaitFor(click, NxPatience));
    QCOMPARE(stand.take(), lines({"Hills"}));
    QCOMPARE(stand.box()->currentIndex(), 4);
}

void tst_NxMediaFolderComboBox::theShownFolderCanBeChosenAgain()
{
    Stand stand;
    QVERIFY(stand.open());
    QTest::keyClick(stand.box()->view(), Qt::Key_Return);
    QTRY_COMPARE(stand.picked, lines({"Project"}));
}

void tst_NxMediaFolderComboBox::leavingThePopupChoosesNothing()
{
    Stand stand;
    QVERIFY(stand.open());
    QTest::keyClick(stand.box()->view(), Qt::Key_Down);
    QTest::keyClick(stand.box()->view(), Qt::Key_Escape);
    QTRY_VERIFY(!stand.box()->view()->isVisible());
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxMediaFolderComboBox::whatAProgramShowsIsNotChosen()
{
    Stand stand;
    stand.box()->setCurrentIndex(3);
    stand.box()->setCurrentText(QStringLiteral("      Titles"));
    stand.view->clear();
    stand.view->load(stand.manager->root.get());
    QCOMPARE(stand.take(), QStringList());
    QVERIFY(!stand.presenter->currentFolder());
}

void tst_NxMediaFolderComboBox::aFolderThatDiedIsNotChosen()
{
    Stand stand;
    QVERIFY(stand.show());
    (void)stand.manager->take(stand.folder("Sea"));
    QTest::keyClick(stand.box(), Qt::Key_Down);
    QTest::keyClick(stand.box(), Qt::Key_Down);
    QCOMPARE(stand.take(), QStringList());
    QVERIFY(!stand.presenter->currentFolder());
    QTest::keyClick(stand.box(), Qt::Key_End);
    QCOMPARE(stand.take(), lines({"Titles"}));
}

void tst_NxMediaFolderComboBox::theDefaultIsNoneWhenTheFirstFolderDied()
{
    Stand stand;
    (void)stand.manager->take(stand.folder("Project"));
    stand.view->setDefaultFolder();
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxMediaFolderComboBox::aDeadPresenterIsToldNothing()
{
    Stand stand;
    QVERIFY(stand.show());
    stand.presenter.reset();
    QTest::keyClick(stand.box(), Qt::Key_Down);
    stand.view->setDefaultFolder();
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(stand.box()->currentIndex(), 1);
}

void tst_NxMediaFolderComboBox::theViewMayGoWhenAFolderIsChosen()
{
    Stand stand;
    connect(stand.presenter.get(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, this,
            [&] { stand.view.reset(); });
    stand.view->setDefaultFolder();
    QVERIFY(!stand.view);
    QCOMPARE(stand.take(), lines({"Project"}));
}

void tst_NxMediaFolderComboBox::anEntryOfTheHostsChoosesNothing()
{
    Stand stand;
    QVERIFY(stand.show());
    stand.box()->addItem(QStringLiteral("All folders"));
    stand.box()->addItem(QStringLiteral("Other"), QStringLiteral("a text"));
    stand.pickByKeys(allEntries.size() - 1);
    stand.take();
    QTest::keyClick(stand.box(), Qt::Key_Down);
    QTest::keyClick(stand.box(), Qt::Key_Down);
    QCOMPARE(stand.box()->currentText(), QStringLiteral("Other"));
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxMediaFolderComboBox::aLargeTreeIsReadOnce()
{
    constexpr int levels = 300;
    constexpr int siblings = 3000;
    Stand stand(QString{});
    ScriptedFolder *at = stand.manager->root.get();
    for (int level = 0; level < levels; ++level)
        at = at->append(QStringLiteral("deep"));
    for (int row = 0; row < siblings; ++row)
        stand.manager->root->append(QStringLiteral("wide"));
    ScriptedFolder::questions = 0;
    stand.view->load(stand.manager->root.get());
    constexpr int folders = levels + siblings;
    QVERIFY2(ScriptedFolder::questions < 3 * folders,
             qPrintable(QString::number(ScriptedFolder::questions)));
    QCOMPARE(stand.box()->count(), folders);
    QCOMPARE(stand.box()->itemText(levels - 1),
             QString(6 * levels, QLatin1Char(' ')) + QStringLiteral("deep"));
    QCOMPARE(stand.box()->itemText(folders - 1), QStringLiteral("      wide"));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaFolderComboBox)
#include "tst_NxMediaFolderComboBox.moc"
