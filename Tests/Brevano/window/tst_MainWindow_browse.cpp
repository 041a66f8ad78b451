// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CategoryBar.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/SearchField.h>
#include <Brevano/window/ToolRow.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/delegate/NxMediaFolderComboBox.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaNotice.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <Footage/NxNumberedFrames.h>
#include <NxMediaLibrary/TextLines.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QWheelEvent>

#include "WindowYard.h"

using namespace NXMEDIALIBRARY;
using Id = PanelActions::Id;
using Reading = WindowYard::Reading;

namespace {

constexpr int Patience = WindowYard::Patience;

/// The window with four media, sorted by name: a film, two pictures and a sound.
struct Yard : WindowYard
{
    explicit Yard(Reading reading = Reading::Nothing) : WindowYard(reading)
    {
        openFilm();
        import({picture(QStringLiteral("c.png")), footage("30.mov"),
                picture(QStringLiteral("b.png"), Qt::blue), footage("tone.wav")});
        choose("sort", QStringLiteral("Name"));
        QTRY_COMPARE(rows(), all());
    }

    static QStringList all() { return lines({"30.mov", "b.png", "c.png", "tone.wav"}); }
    QWidget *viewport() const { return view()->viewport(); }
    QLineEdit *search() const
    {
        return panel()->toolRow()->searchField()->findChild<QLineEdit *>();
    }
    QString found() const { return search()->findChild<QLabel *>()->text(); }
    QString sentence() const
    {
        QStringList texts;
        const QList<QLabel *> labels = panel()->notice()->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts.join(QLatin1Char(' '));
    }
    /// Clicks on the heading of a column.
    void clickHeading(const QString &text) const
    {
        QHeaderView *header = view()->columnHeader();
        QVERIFY(header->isVisible());
        for (int column = 0; column < header->count(); ++column) {
            if (header->model()->headerData(column, Qt::Horizontal).toString() != text)
                continue;
            const QPoint at(header->sectionViewportPosition(column)
                                + header->sectionSize(column) / 2,
                            header->height() / 2);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
            return;
        }
        QFAIL(qPrintable(text));
    }
    void wheel(int angle) const
    {
        const QPointF at(20, 60);
        QWheelEvent event(at, viewport()->mapToGlobal(at.toPoint()), {}, {0, angle}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport(), &event);
    }
    void drag(const QPoint &from, const QPoint &to) const
    {
        QTest::mousePress(viewport(), Qt::LeftButton, {}, from);
        for (const QPoint &at : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(viewport(), &move);
        }
        QTest::mouseRelease(viewport(), Qt::LeftButton, {}, to);
    }
    void hover(const QPoint &at, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QMouseEvent move(QEvent::MouseMove, at, viewport()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, held);
        QApplication::sendEvent(viewport(), &move);
    }
    /// The place of a media's picture, in the viewport.
    QRect cover(const QString &name) const
    {
        const QRect row = rect(name);
        const QModelIndex index = view()->indexAt(row.center());
        return view()->mediaDelegate()->getItemPainter(index)->childRect(0).translated(
            row.topLeft());
    }
    /// The number of the frame that a media shows; -1: none.
    int frame(const QString &name) const
    {
        return NxNumberedFrames::read(viewport()->grab(cover(name)).toImage()).value_or(-1);
    }
    QString infoText(const char *part) const
    {
        return window()->info()->findChild<QLabel *>(QLatin1String(part))->text();
    }
};

} // namespace

/// How users look through their media in the window.
class tst_MainWindow_browse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mediaAreSortedByTheMenu();
    void mediaAreSortedByTheHeadings();
    void groupsAreFoldedByMouseAndKeyboard();
    void groupsStayFoldedWhileFactsArrive();
    void theSearchFollowsEachKey();
    void theNoticeSaysWhatHidesEverything();
    void aTypeIsPicked();
    void sizesAreChosen_data();
    void sizesAreChosen();
    void theWheelWithCtrlChangesTheSize();
    void categoriesAreChosen();
    void narrowWindowsHaveAFolderList();
    void aFoundMediaIsShownInItsFolder();
    void theSelectionIsToldOf();
    void aBandSelects();
    void aFilmPlaysUnderThePointer();
    void shiftScrubs();
    void foldersAreHiddenOnDemand();
};

void tst_MainWindow_browse::mediaAreSortedByTheMenu()
{
    const Yard yard;
    yard.choose("sort", QStringLiteral("Order of Import"));
    QCOMPARE(yard.rows(), lines({"c.png", "30.mov", "b.png", "tone.wav"}));
    yard.choose("sort", QStringLiteral("Name"));
    QCOMPARE(yard.rows(), Yard::all());
    yard.choose(Id::SortDescending);
    QCOMPARE(yard.rows(), lines({"tone.wav", "c.png", "b.png", "30.mov"}));
    QVERIFY(yard.action(Id::SortDescending)->isChecked());
}

void tst_MainWindow_browse::mediaAreSortedByTheHeadings()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::Key_1);
    yard.click(QStringLiteral("b.png"));
    yard.clickHeading(QStringLiteral("Name"));
    QCOMPARE(yard.rows(), lines({"tone.wav", "c.png", "b.png", "30.mov"}));
    QCOMPARE(yard.view()->columnHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    QVERIFY(yard.action(Id::SortDescending)->isChecked());
    yard.clickHeading(QStringLiteral("Name"));
    QCOMPARE(yard.rows(), Yard::all());
    QVERIFY(!yard.action(Id::SortDescending)->isChecked());
    yard.clickHeading(QStringLiteral("Type"));
    QCOMPARE(yard.items()->getSortBy(), (NxMediaItemViewSort{sbType, soASC}));
    QCOMPARE(yard.selection(), lines({"b.png"}));
}

void tst_MainWindow_browse::groupsAreFoldedByMouseAndKeyboard()
{
    const Yard yard;
    yard.choose("group", QStringLiteral("Type"));
    const QStringList open = yard.rows();
    QCOMPARE(open.size(), 7);
    QVERIFY(open.at(0).startsWith(QLatin1Char('[')));
    const QString group = open.at(0);
    const QPoint arrow(4, yard.rect(group).center().y());
    QTest::mouseClick(yard.viewport(), Qt::LeftButton, {}, arrow);
    QStringList folded = open;
    folded.removeAt(1);
    QCOMPARE(yard.rows(), folded);
    QTest::mouseClick(yard.viewport(), Qt::LeftButton, {}, arrow);
    QCOMPARE(yard.rows(), open);
    QTest::keyClick(yard.view(), Qt::Key_Home); // The tile that imports.
    QTest::keyClick(yard.view(), Qt::Key_Up);
    QTest::keyClick(yard.view(), Qt::Key_Left);
    QCOMPARE(yard.rows(), folded);
    QTest::keyClick(yard.view(), Qt::Key_Right);
    QCOMPARE(yard.rows(), open);
    yard.choose(Id::GroupDescending);
    QVERIFY(yard.rows().at(0) != group);
}

void tst_MainWindow_browse::groupsStayFoldedWhileFactsArrive()
{
    Yard yard(Reading::Everything);
    yard.choose("group", QStringLiteral("Type"));
    const QString group = yard.rows().at(0);
    QTest::mouseClick(yard.viewport(), Qt::LeftButton, {}, {4, yard.rect(group).center().y()});
    const int before = yard.rows().size();
    QCOMPARE(before, 6);
    yard.import({yard.footage("prores.mov")});
    yard.readAll();
    yard.viewport()->grab();
    QVERIFY(!yard.rows().contains(QStringLiteral("prores.mov")));
    QCOMPARE(yard.rows().size(), before);
    QCOMPARE(yard.rows().at(0), group);
}

void tst_MainWindow_browse::theSearchFollowsEachKey()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::Key_F);
    QVERIFY(yard.search()->hasFocus());
    yard.type(QStringLiteral("."));
    QCOMPARE(yard.rows().size(), 4);
    QTRY_COMPARE(yard.found(), QStringLiteral("4 found"));
    yard.type(QStringLiteral("p"));
    QCOMPARE(yard.rows(), lines({"b.png", "c.png"}));
    QTRY_COMPARE(yard.found(), QStringLiteral("2 found"));
    QTRY_VERIFY(yard.says(QStringLiteral("2 media")));
    auto *clear = yard.search()->findChild<QToolButton *>();
    for (QToolButton *button : yard.search()->findChildren<QToolButton *>()) {
        if (button->geometry().center().x() > yard.search()->width() / 2)
            clear = button;
    }
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(yard.rows(), Yard::all());
    QTRY_COMPARE(yard.found(), QString());
    yard.type(QStringLiteral("30"));
    QCOMPARE(yard.rows(), lines({"30.mov"}));
    yard.press(Qt::Key_Escape);
    QCOMPARE(yard.rows(), Yard::all());
    QVERIFY(yard.view()->hasFocus());
}

void tst_MainWindow_browse::theNoticeSaysWhatHidesEverything()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::Key_F);
    yard.type(QStringLiteral("zebra"));
    QCOMPARE(yard.rows(), QStringList());
    QTRY_VERIFY(yard.panel()->notice()->isVisible());
    QCOMPARE(yard.panel()->notice()->reason(), NxMediaNotice::Reason::FilteredOut);
    QVERIFY2(yard.sentence().contains(QStringLiteral("zebra")), qPrintable(yard.sentence()));
    for (QPushButton *button : yard.panel()->notice()->findChildren<QPushButton *>()) {
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QCOMPARE(yard.rows(), Yard::all());
    QTRY_VERIFY(!yard.panel()->notice()->isVisible());
    QCOMPARE(yard.search()->text(), QString());

    yard.choose("type", QStringLiteral("Subtitle"));
    QTRY_VERIFY(yard.panel()->notice()->isVisible());
    QVERIFY2(yard.sentence().contains(QStringLiteral("Subtitle"), Qt::CaseInsensitive),
             qPrintable(yard.sentence()));
    yard.choose(Id::ClearFilters);
    QCOMPARE(yard.rows(), Yard::all());
}

void tst_MainWindow_browse::aTypeIsPicked()
{
    const Yard yard;
    yard.choose("type", QStringLiteral("Photo"));
    QCOMPARE(yard.rows(), lines({"b.png", "c.png"}));
    yard.choose("type", QStringLiteral("Audio"));
    QCOMPARE(yard.rows(), lines({"tone.wav"}));
    yard.choose("type", QStringLiteral("All"));
    QCOMPARE(yard.rows(), Yard::all());
}

void tst_MainWindow_browse::sizesAreChosen_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("id");
    QTest::addColumn<NxMediaItemViewMode>("mode");
    QTest::newRow("list") << int(Qt::Key_1) << int(Id::ViewList) << vmList;
    QTest::newRow("small") << int(Qt::Key_2) << int(Id::ViewSmall) << vmSmallThumbnail;
    QTest::newRow("middle") << int(Qt::Key_3) << int(Id::ViewMiddle) << vmMiddleThumbnail;
    QTest::newRow("large") << int(Qt::Key_4) << int(Id::ViewLarge) << vmLargeThumbnail;
}

void tst_MainWindow_browse::sizesAreChosen()
{
    QFETCH(const int, key);
    QFETCH(const int, id);
    QFETCH(const NxMediaItemViewMode, mode);
    const Yard yard;
    const int other = key == Qt::Key_1 ? Qt::Key_4 : Qt::Key_1;
    yard.press(Qt::CTRL | other);
    QVERIFY(yard.view()->viewMode() != mode);
    yard.press(Qt::CTRL | key);
    QCOMPARE(yard.view()->viewMode(), mode);
    yard.press(Qt::CTRL | other);
    QToolButton *tool = nullptr;
    for (QToolButton *button : yard.panel()->toolRow()->findChildren<QToolButton *>()) {
        if (button->defaultAction() == yard.action(Id(id)))
            tool = button;
    }
    QVERIFY(tool && tool->isVisible());
    QTest::mouseClick(tool, Qt::LeftButton);
    QCOMPARE(yard.view()->viewMode(), mode);
    QCOMPARE(yard.items()->viewMode(), mode);
    QVERIFY(tool->isChecked());
}

void tst_MainWindow_browse::theWheelWithCtrlChangesTheSize()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::Key_2);
    yard.wheel(120);
    QCOMPARE(yard.view()->viewMode(), vmMiddleThumbnail);
    yard.wheel(120);
    yard.wheel(120);
    QCOMPARE(yard.view()->viewMode(), vmLargeThumbnail);
    yard.wheel(-120);
    QCOMPARE(yard.view()->viewMode(), vmMiddleThumbnail);
    yard.choose(Id::SmallerTiles);
    QCOMPARE(yard.view()->viewMode(), vmSmallThumbnail);
    yard.choose(Id::LargerTiles);
    QCOMPARE(yard.view()->viewMode(), vmMiddleThumbnail);
}

void tst_MainWindow_browse::categoriesAreChosen()
{
    const Yard yard;
    CategoryBar *bar = yard.panel()->categoryBar();
    QAction *other = nullptr;
    for (QAction *action : bar->actions()) {
        if (action->isVisible() && !action->isChecked())
            other = action;
    }
    QVERIFY(other);
    yard.click(QStringLiteral("b.png"));
    QTest::mouseClick(bar->widgetForAction(other), Qt::LeftButton);
    QVERIFY(other->isChecked());
    QCOMPARE(int(yard.items()->categoryType()), other->data().toInt());
    QVERIFY(yard.rows() != Yard::all());
    QVERIFY(yard.says(QStringLiteral("%1 media").arg(yard.rows().size()))
            || QTest::qWaitFor(
                [&yard] { return yard.says(QStringLiteral("%1 media").arg(yard.rows().size())); },
                WindowYard::Patience));
    yard.press(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab);
    while (yard.items()->categoryType() != NXVBLMODEL::mctMedia)
        yard.press(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab);
    QCOMPARE(yard.rows(), Yard::all());
    QCOMPARE(yard.selection(), lines({"b.png"}));
}

void tst_MainWindow_browse::narrowWindowsHaveAFolderList()
{
    const Yard yard;
    yard.choose(Id::ShowInfo);
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    yard.import({yard.picture(QStringLiteral("d.png"))}, day);
    QVERIFY(yard.tree()->isVisible());
    yard.window()->resize(560, 600);
    QTRY_VERIFY(!yard.tree()->isVisible());
    const auto combo = [&yard] {
        const auto *list = yard.panel()->findChild<NxMediaFolderComboBox *>();
        return list ? list->findChild<QComboBox *>() : nullptr;
    };
    QTRY_VERIFY(combo() && combo()->isVisible());
    QCOMPARE(combo()->currentText().trimmed(), yard.shownFolder());
    yard.comeForward();
    combo()->setFocus();
    for (int i = 0; i < 20 && yard.shownFolder() != QLatin1String("Day 1"); ++i) {
        const QPointer<QComboBox> before = combo();
        QTest::keyClick(before, Qt::Key_Down);
        QTRY_VERIFY(!before); // Another folder has another list.
        QVERIFY(combo() && combo()->hasFocus());
        QCOMPARE(combo()->currentText().trimmed(), yard.shownFolder());
    }
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
    QCOMPARE(yard.rows(), lines({"d.png"}));
    yard.window()->resize(1180, 760);
    QTRY_VERIFY(yard.tree()->isVisible());
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
    QVERIFY(!yard.panel()->findChild<NxMediaFolderComboBox *>());
}

void tst_MainWindow_browse::aFoundMediaIsShownInItsFolder()
{
    const Yard yard;
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    yard.import({yard.picture(QStringLiteral("deep.png"))}, day);
    yard.press(Qt::CTRL | Qt::Key_F);
    yard.type(QStringLiteral("deep"));
    QCOMPARE(yard.rows(), lines({"deep.png"}));
    yard.click(QStringLiteral("deep.png"));
    yard.choose(Id::FindInFolder);
    QTRY_COMPARE(yard.selection(), lines({"deep.png"}));
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
    QCOMPARE(yard.search()->text(), QString());
    QCOMPARE(yard.rows(), lines({"deep.png"}));
}

void tst_MainWindow_browse::theSelectionIsToldOf()
{
    const Yard yard;
    yard.click(QStringLiteral("b.png"));
    QTRY_COMPARE(yard.infoText("name"), QStringLiteral("b.png"));
    QTRY_VERIFY(yard.says(QStringLiteral("4 media, 1 selected")));
    yard.click(QStringLiteral("tone.wav"), Qt::ShiftModifier);
    QCOMPARE(yard.selection(), lines({"b.png", "c.png", "tone.wav"}));
    QTRY_VERIFY(yard.infoText("name").contains(QLatin1Char('3')));
    yard.click(QStringLiteral("c.png"), Qt::ControlModifier);
    QCOMPARE(yard.selection(), lines({"b.png", "tone.wav"}));
    QTRY_VERIFY(yard.says(QStringLiteral("4 media, 2 selected")));
    yard.press(QKeySequence::SelectAll);
    QCOMPARE(yard.selection(), Yard::all());
    yard.choose(Id::ClearSelection);
    QCOMPARE(yard.selection(), QStringList());
    QTRY_COMPARE(yard.infoText("name"), yard.section()->name());
}

void tst_MainWindow_browse::aBandSelects()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::Key_2);
    const QPoint ground = yard.viewport()->rect().bottomRight() - QPoint(20, 5);
    yard.drag(ground, yard.rect(QStringLiteral("30.mov")).center());
    QCOMPARE(yard.selection(), Yard::all());
    yard.drag(ground, ground - QPoint(30, 0));
    QCOMPARE(yard.selection(), QStringList());
    yard.drag(ground, yard.rect(QStringLiteral("30.mov")).center());
    QTest::mouseClick(yard.viewport(), Qt::LeftButton, {}, ground);
    QCOMPARE(yard.selection(), QStringList());
}

void tst_MainWindow_browse::aFilmPlaysUnderThePointer()
{
    const Yard yard(Reading::Everything);
    yard.readAll();
    yard.press(Qt::CTRL | Qt::Key_4);
    const QString film = QStringLiteral("30.mov");
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(film) >= 0, Patience);
    yard.hover(yard.viewport()->rect().bottomRight());
    yard.hover(yard.rect(film).center());
    QSet<int> seen;
    QTRY_VERIFY_WITH_TIMEOUT((seen.insert(yard.frame(film)), seen.size() > 3), Patience);
}

void tst_MainWindow_browse::shiftScrubs()
{
    const Yard yard(Reading::Everything);
    yard.readAll();
    yard.press(Qt::CTRL | Qt::Key_4);
    const QString film = QStringLiteral("30.mov");
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(film) >= 0, Patience);
    yard.hover(yard.viewport()->rect().bottomRight());
    const QRect cover = yard.cover(film);
    const auto frameAt = [&](int x) {
        yard.hover({x, cover.center().y()}, Qt::ShiftModifier);
        return yard.frame(film);
    };
    QTest::keyPress(yard.view(), Qt::Key_Shift);
    QTRY_VERIFY_WITH_TIMEOUT(frameAt(cover.right() - 2) > frameAt(cover.left() + 2), Patience);
    const int early = frameAt(cover.left() + cover.width() / 4);
    const int late = frameAt(cover.left() + 3 * cover.width() / 4);
    QVERIFY2(early < late, qPrintable(QStringLiteral("%1, %2").arg(early).arg(late)));
    QCOMPARE(frameAt(cover.left() + cover.width() / 4), early);
    QTest::keyRelease(yard.view(), Qt::Key_Shift);
}

void tst_MainWindow_browse::foldersAreHiddenOnDemand()
{
    const Yard yard;
    yard.press(Qt::Key_F7);
    QVERIFY(!yard.tree()->isVisible());
    yard.press(Qt::Key_F7);
    QVERIFY(yard.tree()->isVisible());
    yard.press(Qt::Key_F8);
    QVERIFY(!yard.window()->info()->isVisible());
    yard.press(Qt::Key_F8);
    QVERIFY(yard.window()->info()->isVisible());
}

NX_TEST_MAIN_WIDGETS(tst_MainWindow_browse)
#include "tst_MainWindow_browse.moc"
