// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CategoryBar.h>

#include <Brevano/window/FoldedTools.h>
#include <Brevano/window/ToolIcons.h>
#include <NxMediaLibrary/LibraryStand.h>
#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace NXVBLMODEL;

namespace {

/// A window with a bar and a field below it; the library has media, transitions and templates.
struct Window : LibraryStand
{
    Window()
    {
        for (const NxMediaCategoryType category : {mctMedia, mctTransition, mctTemplate})
            library[category].list("a");
        auto *column = new QVBoxLayout(&window);
        column->addWidget(bar);
        column->addWidget(field);
        window.resize(900, 120);
    }

    void show(NxMediaCategoryType category = mctMedia)
    {
        presenter.setCurrentCategoryType(category);
        bar->setPresenter(&presenter);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    QStringList titles() const
    {
        QStringList titles;
        const QList<QAction *> actions = bar->actions();
        for (const QAction *action : actions) {
            if (action->isVisible())
                titles.append(action->text());
        }
        return titles;
    }
    QStringList checked() const
    {
        QStringList titles;
        const QList<QAction *> actions = bar->actions();
        for (const QAction *action : actions) {
            if (action->isChecked() && action->isVisible())
                titles.append(action->text());
        }
        return titles;
    }
    QAction *action(const QString &title) const
    {
        const QList<QAction *> actions = bar->actions();
        for (QAction *action : actions) {
            if (action->text() == title)
                return action;
        }
        return nullptr;
    }
    QToolButton *folded() const { return FoldedTools::button(bar); }

    QWidget window;
    CategoryBar *const bar = new CategoryBar(&window);
    QLineEdit *const field = new QLineEdit(&window);
};

} // namespace

/// The buttons by which users go from category to category.
class tst_CategoryBar : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aButtonStandsForEachCategoryThatHasSomethingToShow();
    void theShownCategoryHasAButtonThoughItIsEmpty();
    void everyCategoryHasAName();
    void aClickShowsTheCategory();
    void theBarFollowsWhoeverChooses();
    void aCheckedButtonStaysChecked();
    void keysChoose_data();
    void keysChoose();
    void keysChooseTheOtherWayFromRightToLeft();
    void categoriesChangeFromAnywhereInTheWindow();
    void whatHasNoRoomIsInTheMenu();
    void theFrameTellsWhoHasTheKeyboard();
    void withoutAPresenterThereIsNothingToChoose();
    void aPresenterMayDie();
    void namesFollowTheLanguage();
};

void tst_CategoryBar::aButtonStandsForEachCategoryThatHasSomethingToShow()
{
    Window window;
    (void)window.library[mctAudio]; // Empty.
    window.library[mctEffect].section->loaded = false;
    window.library[mctStockMedia].section->hasMorePages = true;
    window.library[mctReserved].list("a"); // For no user.
    ScriptedCategory &lame = window.library[mctTitle];
    lame.list("a");
    lame.hasItems = false;
    ScriptedCategory &bare = window.library[mctElement];
    bare.list("a");
    bare.hasFolders = false;
    window.show();
    QCOMPARE(window.titles(), lines({"Media", "Transitions", "Effects", "Stock", "Templates"}));
}

void tst_CategoryBar::theShownCategoryHasAButtonThoughItIsEmpty()
{
    Window window;
    (void)window.library[mctAudio];
    window.show();
    QVERIFY(!window.titles().contains(QStringLiteral("Audio")));
    window.presenter.setCurrentCategoryType(mctAudio);
    QCOMPARE(window.titles(), lines({"Media", "Audio", "Transitions", "Templates"}));
    QCOMPARE(window.checked(), lines({"Audio"}));
}

void tst_CategoryBar::everyCategoryHasAName()
{
    QStringList titles;
    for (int code = mctMedia; code <= mctNone; ++code)
        titles.append(CategoryBar::title(NxMediaCategoryType(code)));
    QCOMPARE(titles, lines({"Media", "Audio", "Titles", "Transitions", "Effects", "Elements",
                            "Split Screen", "Stock", "Stock Provider", "Templates", "", ""}));
}

void tst_CategoryBar::aClickShowsTheCategory()
{
    Window window;
    window.show();
    QTest::mouseClick(window.bar->widgetForAction(window.action(QStringLiteral("Transitions"))),
                      Qt::LeftButton);
    QCOMPARE(window.presenter.currentCategoryType(), mctTransition);
    QCOMPARE(window.checked(), lines({"Transitions"}));
}

void tst_CategoryBar::theBarFollowsWhoeverChooses()
{
    Window window;
    window.show(mctTemplate);
    QCOMPARE(window.checked(), lines({"Templates"}));
    window.presenter.setCurrentCategoryType(mctMedia);
    QCOMPARE(window.checked(), lines({"Media"}));
    window.presenter.setCurrentCategoryType(mctNone);
    QCOMPARE(window.checked(), QStringList());
}

void tst_CategoryBar::aCheckedButtonStaysChecked()
{
    Window window;
    window.show();
    QTest::mouseClick(window.bar->widgetForAction(window.action(QStringLiteral("Media"))),
                      Qt::LeftButton);
    QCOMPARE(window.checked(), lines({"Media"}));
}

void tst_CategoryBar::keysChoose_data()
{
    QTest::addColumn<NxMediaCategoryType>("shown");
    QTest::addColumn<int>("key");
    QTest::addColumn<NxMediaCategoryType>("wanted");
    QTest::newRow("right") << mctMedia << int(Qt::Key_Right) << mctTransition;
    QTest::newRow("left") << mctTransition << int(Qt::Key_Left) << mctMedia;
    QTest::newRow("right, round the end") << mctTemplate << int(Qt::Key_Right) << mctMedia;
    QTest::newRow("left, round the end") << mctMedia << int(Qt::Key_Left) << mctTemplate;
    QTest::newRow("home") << mctTemplate << int(Qt::Key_Home) << mctMedia;
    QTest::newRow("end") << mctMedia << int(Qt::Key_End) << mctTemplate;
    QTest::newRow("from no category") << mctNone << int(Qt::Key_Right) << mctMedia;
    QTest::newRow("a key of no meaning") << mctMedia << int(Qt::Key_X) << mctMedia;
}

void tst_CategoryBar::keysChoose()
{
    QFETCH(const NxMediaCategoryType, shown);
    QFETCH(const int, key);
    Window window;
    window.show(shown);
    window.bar->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    QTEST(window.presenter.currentCategoryType(), "wanted");
}

void tst_CategoryBar::keysChooseTheOtherWayFromRightToLeft()
{
    Window window;
    window.window.setLayoutDirection(Qt::RightToLeft);
    window.show();
    window.bar->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QCOMPARE(window.presenter.currentCategoryType(), mctTransition);
}

void tst_CategoryBar::categoriesChangeFromAnywhereInTheWindow()
{
    Window window;
    window.show();
    window.field->setFocus();
    QTest::keyClick(window.field, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(window.presenter.currentCategoryType(), mctTransition);
    QTest::keyClick(window.field, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(window.field, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(window.presenter.currentCategoryType(), mctTemplate);
    QVERIFY(window.field->hasFocus());
}

void tst_CategoryBar::whatHasNoRoomIsInTheMenu()
{
    Window window;
    window.show();
    QVERIFY(!window.folded()->isVisible());
    window.window.resize(130, 120);
    QTRY_VERIFY(window.folded()->isVisible());
    QVERIFY(window.folded()->focusPolicy() & Qt::TabFocus);
    QCOMPARE(window.folded()->accessibleName(), QStringLiteral("More categories"));
    QCOMPARE(window.folded()->icon().pixmap(16).toImage(),
             ToolIcons::icon(ToolIcons::Id::More).pixmap(16).toImage());
    const QMenu *menu = window.folded()->menu();
    QVERIFY(menu);
    const QStringList titles = window.titles();
    for (const QString &title : titles) {
        QAction *action = window.action(title);
        const bool isButton = window.bar->widgetForAction(action)->isVisible();
        QVERIFY2(isButton != menu->actions().contains(action), qPrintable(title));
    }
    QVERIFY(menu->actions().contains(window.action(QStringLiteral("Templates"))));
    menu->actions().last()->trigger();
    QCOMPARE(window.presenter.currentCategoryType(), mctTemplate);
}

void tst_CategoryBar::theFrameTellsWhoHasTheKeyboard()
{
    Window window;
    window.show();
    const QRgb focus = NxSkinStyle::instance()->GetColor(NxSkinColor::Control_Focus).rgb();
    window.field->setFocus();
    QVERIFY(window.bar->grab().toImage().pixel(0, 0) != focus);
    window.bar->setFocus();
    QCOMPARE(window.bar->grab().toImage().pixel(0, 0), focus);
}

void tst_CategoryBar::withoutAPresenterThereIsNothingToChoose()
{
    Window window;
    window.show();
    window.bar->setPresenter(nullptr);
    QVERIFY(!window.bar->isEnabled());
    QCOMPARE(window.titles(), QStringList());
    QTest::keyClick(window.field, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(window.presenter.currentCategoryType(), mctMedia);
    window.presenter.setCurrentCategoryType(mctTemplate);
    QCOMPARE(window.checked(), QStringList());
}

void tst_CategoryBar::aPresenterMayDie()
{
    Window window;
    window.show();
    auto other = std::make_unique<NxMediaLibraryPresenter>(&window.library, nullptr);
    window.bar->setPresenter(other.get());
    QVERIFY(window.bar->isEnabled());
    other.reset();
    QVERIFY(!window.bar->isEnabled());
    QCOMPARE(window.titles(), QStringList());
}

void tst_CategoryBar::namesFollowTheLanguage()
{
    Window window;
    window.show();
    const NxBracketLanguage language;
    QTRY_COMPARE(window.titles(), lines({"[Media]", "[Transitions]", "[Templates]"}));
    QCOMPARE(window.bar->accessibleName(), QStringLiteral("[Categories]"));
}

NX_TEST_MAIN_WIDGETS(tst_CategoryBar)
#include "tst_CategoryBar.moc"
