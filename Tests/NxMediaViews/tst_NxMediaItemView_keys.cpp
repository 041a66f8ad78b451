// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QSignalSpy>

#include "MediaViewStand.h"

using namespace NXMEDIALIBRARY;

namespace {

//   A B C
//   D E F
//   G H I
//   J
const char *const Ten = "A B C D E F G H I J";

//   [x]
//   A B C
//   D
//   [y]
//   E F
const char *const Grouped = "A:x B:x C:x D:x E:y F:y";

/// Presses keys one after the other: "Down Shift+Right".
void press(MediaViewStand *stand, const QString &keys)
{
    for (const QString &key : keys.split(QLatin1Char(' ')))
        QTest::keySequence(&stand->view, QKeySequence(key));
}

/// Null when no name is edited.
QLineEdit *fieldOf(const MediaViewStand &stand)
{
    return stand.view.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit"));
}

/// How long ago a letter was typed that the next one continues.
struct QuickTyping
{
    explicit QuickTyping(int milliseconds) { QApplication::setKeyboardInputInterval(milliseconds); }
    ~QuickTyping() { QApplication::setKeyboardInputInterval(m_before); }

private:
    const int m_before = QApplication::keyboardInputInterval();
};

constexpr int Never = 60'000; // ms
constexpr int Quick = 10; // ms

} // namespace

/// What keys do in the view: they move, select, fold, search and rename.
class tst_NxMediaItemView_keys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cursorKeysMove_data();
    void cursorKeysMove();
    void cursorKeysGoOverHeaders_data();
    void cursorKeysGoOverHeaders();
    void foldedGroupsAreReached();
    void theColumnIsForgottenByOtherWays();
    void pagesAreAsHighAsTheView();
    void theCurrentRowIsSeen();
    void withoutACurrentRowKeysBegin_data();
    void withoutACurrentRowKeysBegin();
    void shiftSelects_data();
    void shiftSelects();
    void ctrlMovesAndSpaceSelects();
    void allAreSelected();
    void keysActOnRows_data();
    void keysActOnRows();
    void returnActivatesAMedia_data();
    void returnActivatesAMedia();
    void viewMoreShowsMore();
    void sidewaysKeysFoldAndUnfold_data();
    void sidewaysKeysFoldAndUnfold();
    void firstLettersFindNames_data();
    void firstLettersFindNames();
    void slowLettersBeginAnew();
    void aSpaceThatSelectsBeginsNoName();
    void lettersScrollToTheName();
    void namesAreEdited();
    void escKeepsTheName();
    void anEmptyOrOldNameIsNoWish_data();
    void anEmptyOrOldNameIsNoWish();
    void headersAndTilesHaveNoNameToEdit_data();
    void headersAndTilesHaveNoNameToEdit();
    void aNameIsEditedWhereverItStands();
    void keysDoNothingWithoutRows_data();
    void keysDoNothingWithoutRows();
};

void tst_NxMediaItemView_keys::cursorKeysMove_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("inList");
    QTest::addColumn<bool>("isMirrored");
    const auto row = [](const char *what, const char *from, const char *keys, const char *to,
                        bool inList = false, bool isMirrored = false) {
        QTest::newRow(what) << from << keys << to << inList << isMirrored;
    };
    row("right", "A", "Right", "B");
    row("right, to the next line", "C", "Right", "D");
    row("right, at the end", "J", "Right", "J");
    row("left", "B", "Left", "A");
    row("left, to the line before", "D", "Left", "C");
    row("left, at the beginning", "A", "Left", "A");
    row("down", "B", "Down", "E");
    row("down, to a short line", "H", "Down", "J");
    row("down, at the end", "J", "Down", "J");
    row("down and up, the column is kept", "H", "Down Up", "H");
    row("down, left and up, it is another one", "I", "Down Left Up", "F");
    row("up", "E", "Up", "B");
    row("up, at the beginning", "B", "Up", "B");
    row("home", "F", "Home", "A");
    row("end", "F", "End", "J");
    row("page down", "B", "PgDown", "J");
    row("page up", "H", "PgUp", "B");
    row("list, down", "B", "Down", "C", true);
    row("list, up", "B", "Up", "A", true);
    row("list, page down", "B", "PgDown", "J", true);
    row("list, pages up", "J", "PgUp PgUp", "A", true);
    row("list, home", "F", "Home", "A", true);
    row("list, end", "F", "End", "J", true);
    row("right to left, right", "B", "Right", "A", false, true);
    row("right to left, left", "B", "Left", "C", false, true);
    row("right to left, left, to the next line", "C", "Left", "D", false, true);
    row("right to left, down and up", "H", "Down Up", "H", false, true);
    row("right to left, home", "F", "Home", "A", false, true);
}

void tst_NxMediaItemView_keys::cursorKeysMove()
{
    QFETCH(QString, from);
    QFETCH(QString, keys);
    QFETCH(bool, inList);
    QFETCH(bool, isMirrored);
    MediaViewStand stand(Ten);
    if (isMirrored)
        stand.view.setLayoutDirection(Qt::RightToLeft);
    if (inList)
        stand.showList();
    stand.choose(from);
    press(&stand, keys);
    QTEST(stand.current(), "to");
    QTEST(stand.selected(), "to");
}

void tst_NxMediaItemView_keys::cursorKeysGoOverHeaders_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("to");
    QTest::newRow("down, to a header") << "D"
                                       << "Down"
                                       << "[y]";
    QTest::newRow("down, over it") << "D"
                                   << "Down Down"
                                   << "E";
    QTest::newRow("the column is kept over it") << "B"
                                                << "Down Down Down"
                                                << "F";
    QTest::newRow("and back") << "B"
                              << "Down Down Down Up Up Up"
                              << "B";
    QTest::newRow("up, to a header") << "F"
                                     << "Up"
                                     << "[y]";
    QTest::newRow("up, to the first one") << "B"
                                          << "Up"
                                          << "[x]";
    QTest::newRow("up, no further") << "B"
                                    << "Up Up"
                                    << "[x]";
    QTest::newRow("right, past it") << "D"
                                    << "Right"
                                    << "E";
    QTest::newRow("left, past it") << "E"
                                   << "Left"
                                   << "D";
    QTest::newRow("left, not to the first one") << "A"
                                                << "Left"
                                                << "A";
    QTest::newRow("home, past it") << "F"
                                   << "Home"
                                   << "A";
}

void tst_NxMediaItemView_keys::cursorKeysGoOverHeaders()
{
    QFETCH(QString, from);
    QFETCH(QString, keys);
    MediaViewStand stand(Grouped);
    stand.group();
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B C D [y] E F"));
    stand.choose(from);
    press(&stand, keys);
    QTEST(stand.current(), "to");
}

void tst_NxMediaItemView_keys::foldedGroupsAreReached()
{
    MediaViewStand stand(Grouped);
    stand.group();
    stand.view.setAllExpanded(false);
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y]"));
    press(&stand, QStringLiteral("End"));
    QCOMPARE(stand.current(), QStringLiteral("[y]"));
    press(&stand, QStringLiteral("Home"));
    QCOMPARE(stand.current(), QStringLiteral("[x]"));
    press(&stand, QStringLiteral("Down"));
    QCOMPARE(stand.current(), QStringLiteral("[y]"));
    QCOMPARE(stand.selected(), QString());
}

void tst_NxMediaItemView_keys::theColumnIsForgottenByOtherWays()
{
    MediaViewStand stand(Ten);
    stand.choose(QStringLiteral("I"));
    press(&stand, QStringLiteral("Down"));
    QCOMPARE(stand.current(), QStringLiteral("J"));
    stand.click(QStringLiteral("J"));
    stand.choose(QStringLiteral("D"));
    press(&stand, QStringLiteral("Down"));
    QCOMPARE(stand.current(), QStringLiteral("G"));
    press(&stand, QStringLiteral("c"));
    press(&stand, QStringLiteral("Down"));
    QCOMPARE(stand.current(), QStringLiteral("F"));
}

void tst_NxMediaItemView_keys::pagesAreAsHighAsTheView()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    stand.choose(QStringLiteral("B"));
    press(&stand, QStringLiteral("PgDown"));
    QCOMPARE(stand.current(), QStringLiteral("H"));
    press(&stand, QStringLiteral("PgUp"));
    QCOMPARE(stand.current(), QStringLiteral("B"));
}

void tst_NxMediaItemView_keys::theCurrentRowIsSeen()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    for (const char *keys : {"End", "Home", "PgDown", "Down", "Up Up"}) {
        press(&stand, QLatin1String(keys));
        const QRect place = stand.rect(stand.current());
        QVERIFY2(stand.view.viewport()->rect().contains(place), keys);
    }
}

void tst_NxMediaItemView_keys::withoutACurrentRowKeysBegin_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("to");
    for (const char *key : {"Down", "Up", "Left", "Right", "PgDown", "PgUp", "Home"})
        QTest::newRow(key) << key << "A";
    QTest::newRow("End") << "End"
                         << "F";
}

void tst_NxMediaItemView_keys::withoutACurrentRowKeysBegin()
{
    QFETCH(QString, key);
    MediaViewStand stand(Grouped);
    stand.group();
    QCOMPARE(stand.current(), QStringLiteral("A"));
    stand.view.selectionModel()->clearCurrentIndex();
    press(&stand, key);
    QTEST(stand.current(), "to");
}

void tst_NxMediaItemView_keys::shiftSelects_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("selected");
    QTest::newRow("right") << "A"
                           << "Shift+Right"
                           << "A B";
    QTest::newRow("down") << "A"
                          << "Shift+Down"
                          << "A B C D";
    QTest::newRow("down, to a header") << "D"
                                       << "Shift+Down"
                                       << "D";
    QTest::newRow("down, over a header") << "D"
                                         << "Shift+Down Shift+Down"
                                         << "D E";
    QTest::newRow("up, over a header") << "E"
                                       << "Shift+Up Shift+Up"
                                       << "D E";
    QTest::newRow("there and back") << "A"
                                    << "Shift+Right Shift+Right Shift+Left"
                                    << "A B";
    QTest::newRow("to the end") << "C"
                                << "Shift+End"
                                << "C D E F";
    QTest::newRow("to the beginning") << "C"
                                      << "Shift+Home"
                                      << "A B C";
    QTest::newRow("a page") << "A"
                            << "Shift+PgDown"
                            << "A B C D E";
}

void tst_NxMediaItemView_keys::shiftSelects()
{
    QFETCH(QString, from);
    QFETCH(QString, keys);
    MediaViewStand stand(Grouped);
    stand.group();
    stand.choose(from);
    press(&stand, keys);
    QTEST(stand.selected(), "selected");
}

void tst_NxMediaItemView_keys::ctrlMovesAndSpaceSelects()
{
    MediaViewStand stand(Ten);
    stand.choose(QStringLiteral("A"));
    press(&stand, QStringLiteral("Ctrl+Right Ctrl+Right"));
    QCOMPARE(stand.current(), QStringLiteral("C"));
    QCOMPARE(stand.selected(), QStringLiteral("A"));
    press(&stand, QStringLiteral("Ctrl+Space"));
    QCOMPARE(stand.selected(), QStringLiteral("A C"));
    press(&stand, QStringLiteral("Ctrl+Space"));
    QCOMPARE(stand.selected(), QStringLiteral("A"));
    press(&stand, QStringLiteral("Space"));
    QCOMPARE(stand.selected(), QStringLiteral("A C"));
}

void tst_NxMediaItemView_keys::allAreSelected()
{
    MediaViewStand stand(Grouped, NXVBLMODEL::fkProject);
    stand.group();
    press(&stand, QStringLiteral("Ctrl+A"));
    QCOMPARE(stand.selected(), QStringLiteral("A B C D E F"));
    QCOMPARE(stand.view.selectedIndexes().size(), 6);
}

void tst_NxMediaItemView_keys::keysActOnRows_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("imports");
    for (const char *key : {"Return", "Enter", "Space"}) {
        QTest::addRow("%s on a header", key) << "[x]" << key << "[x] [y] + E" << 0;
        QTest::addRow("%s on a tile", key) << "+" << key << "[x] + A [y] + E" << 1;
        QTest::addRow("%s on a media", key) << "E" << key << "[x] + A [y] + E" << 0;
    }
    QTest::newRow("with a modifier") << "[x]"
                                     << "Ctrl+Space"
                                     << "[x] + A [y] + E" << 0;
}

void tst_NxMediaItemView_keys::keysActOnRows()
{
    QFETCH(QString, row);
    QFETCH(QString, key);
    MediaViewStand stand("A:x E:y", NXVBLMODEL::fkProject);
    stand.group();
    const QSignalSpy asked(&stand.view, &NxMediaItemView::sigImportWanted);
    stand.choose(row);
    press(&stand, key);
    QTEST(stand.rows(), "rows");
    QTEST(asked.size(), "imports");
}

void tst_NxMediaItemView_keys::returnActivatesAMedia_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("activated");
    QTest::newRow("return") << "A"
                            << "Return" << 1;
    QTest::newRow("enter") << "A"
                           << "Enter" << 1;
    QTest::newRow("space") << "A"
                           << "Space" << 0;
    QTest::newRow("a missing one") << "gone"
                                   << "Return" << 1;
    QTest::newRow("a tile") << "+"
                            << "Return" << 0;
}

void tst_NxMediaItemView_keys::returnActivatesAMedia()
{
    QFETCH(QString, row);
    QFETCH(QString, key);
    MediaViewStand stand("A gone", NXVBLMODEL::fkProject);
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    stand.choose(row);
    press(&stand, key);
    QTEST(activated.size(), "activated");
    if (!activated.isEmpty())
        QCOMPARE(activated.at(0).at(0).value<INxAbstractMedia *>()->name(), row);
}

void tst_NxMediaItemView_keys::viewMoreShowsMore()
{
    MediaViewStand stand("A B C D E F G H I J K L M N");
    stand.folder->pack = stand.folder->media;
    stand.model.setFilter(similarTo(1));
    stand.model.updateSimilarMediaItems();
    const int tile = stand.row(QStringLiteral("..."));
    QVERIFY2(tile >= 0, qPrintable(stand.rows()));
    const int shown = stand.model.listedCount();
    const int lines = stand.model.similarLines();
    stand.view.selectionModel()->setCurrentIndex(stand.model.index(tile, 0),
                                                 QItemSelectionModel::NoUpdate);
    press(&stand, QStringLiteral("Return"));
    QVERIFY(stand.model.similarLines() > lines);
    QVERIFY(stand.model.listedCount() > shown);
}

void tst_NxMediaItemView_keys::sidewaysKeysFoldAndUnfold_data()
{
    QTest::addColumn<bool>("isMirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_NxMediaItemView_keys::sidewaysKeysFoldAndUnfold()
{
    QFETCH(bool, isMirrored);
    MediaViewStand stand(Grouped);
    stand.group();
    if (isMirrored)
        stand.view.setLayoutDirection(Qt::RightToLeft);
    const QString fold = isMirrored ? QStringLiteral("Right") : QStringLiteral("Left");
    const QString unfold = isMirrored ? QStringLiteral("Left") : QStringLiteral("Right");
    stand.choose(QStringLiteral("[x]"));
    press(&stand, unfold);
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B C D [y] E F"));
    press(&stand, fold);
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] E F"));
    QCOMPARE(stand.current(), QStringLiteral("[x]"));
    press(&stand, fold);
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] E F"));
    press(&stand, unfold);
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B C D [y] E F"));
    QCOMPARE(stand.current(), QStringLiteral("[x]"));
}

void tst_NxMediaItemView_keys::firstLettersFindNames_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("a letter") << "Apple"
                              << "b"
                              << "Bird";
    QTest::newRow("a capital") << "Apple"
                               << "B"
                               << "Bird";
    QTest::newRow("the same letter goes on") << "Apple"
                                             << "bb"
                                             << "Boat";
    QTest::newRow("and begins again") << "Apple"
                                      << "bbb"
                                      << "Bird";
    QTest::newRow("from where one is") << "Bird"
                                       << "b"
                                       << "Boat";
    QTest::newRow("a text") << "Apple"
                            << "bo"
                            << "Boat";
    QTest::newRow("a text stays where it is found") << "Bird"
                                                    << "bird"
                                                    << "Bird";
    QTest::newRow("from the end to the beginning") << "Émile"
                                                   << "ap"
                                                   << "Apple";
    QTest::newRow("with a space") << "Apple"
                                  << "my f"
                                  << "my film";
    QTest::newRow("an umlaut") << "Apple"
                               << "ü"
                               << "Übung";
    QTest::newRow("an accent") << "Apple"
                               << "é"
                               << "Émile";
    QTest::newRow("nobody") << "Apple"
                            << "q"
                            << "Apple";
    QTest::newRow("nobody any more") << "Apple"
                                     << "boz"
                                     << "Boat";
    QTest::newRow("no header") << "Apple"
                               << "x"
                               << "Apple";
    QTest::newRow("no tile") << "Apple"
                             << "i"
                             << "Apple";
}

void tst_NxMediaItemView_keys::firstLettersFindNames()
{
    QFETCH(QString, from);
    QFETCH(QString, typed);
    const QuickTyping typing(Never);
    MediaViewStand stand("Apple:x Bird:x Boat:x my_film:x Übung:x Émile:x", NXVBLMODEL::fkProject);
    stand.group();
    stand.choose(from);
    for (const QChar letter : typed) {
        QKeyEvent event(QEvent::KeyPress, letter.isSpace() ? Qt::Key_Space : 0, Qt::NoModifier,
                        QString(letter));
        QApplication::sendEvent(&stand.view, &event);
    }
    QTEST(stand.current(), "found");
    QTEST(stand.selected(), "found");
}

void tst_NxMediaItemView_keys::slowLettersBeginAnew()
{
    const QuickTyping typing(Quick);
    MediaViewStand stand("Apple Bird Boat Olive");
    stand.choose(QStringLiteral("Apple"));
    press(&stand, QStringLiteral("b"));
    QElapsedTimer since;
    since.start();
    QTRY_VERIFY(since.elapsed() > 2 * Quick);
    QCOMPARE(stand.current(), QStringLiteral("Bird"));
    press(&stand, QStringLiteral("o"));
    QCOMPARE(stand.current(), QStringLiteral("Olive"));
}

void tst_NxMediaItemView_keys::aSpaceThatSelectsBeginsNoName()
{
    const QuickTyping typing(Never);
    MediaViewStand stand("Apple Bird");
    stand.choose(QStringLiteral("Apple"));
    press(&stand, QStringLiteral("Space"));
    press(&stand, QStringLiteral("b"));
    QCOMPARE(stand.current(), QStringLiteral("Bird"));
}

void tst_NxMediaItemView_keys::lettersScrollToTheName()
{
    MediaViewStand stand("A B C D E F G H I J K L M");
    stand.fit(MediaViewStand::PerLine, 2);
    press(&stand, QStringLiteral("m"));
    QVERIFY(stand.view.viewport()->rect().contains(stand.rect(QStringLiteral("M"))));
}

void tst_NxMediaItemView_keys::namesAreEdited()
{
    MediaViewStand stand(Ten);
    QSignalSpy wanted(&stand.view, &NxMediaItemView::sigRenameWanted);
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    stand.choose(QStringLiteral("B"));
    press(&stand, QStringLiteral("F2"));
    QLineEdit *field = fieldOf(stand);
    QVERIFY(field && field->hasFocus());
    QCOMPARE(field->text(), QStringLiteral("B"));
    QVERIFY(stand.rect(QStringLiteral("B")).contains(field->geometry()));
    stand.move(stand.at(QStringLiteral("A")));
    QTest::keyPress(field, Qt::Key_Shift);
    QVERIFY(!stand.view.isScrubbing());
    QTest::keyRelease(field, Qt::Key_Shift);
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("Beach"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(wanted.size(), 1);
    QCOMPARE(wanted.at(0).at(0).value<INxAbstractMedia *>()->name(), QStringLiteral("B"));
    QCOMPARE(wanted.at(0).at(1).toString(), QStringLiteral("Beach"));
    QCOMPARE(activated.size(), 0);
    QTRY_VERIFY(!fieldOf(stand));
    QVERIFY(stand.view.hasFocus());
    press(&stand, QStringLiteral("Right"));
    QCOMPARE(stand.current(), QStringLiteral("C"));
}

void tst_NxMediaItemView_keys::escKeepsTheName()
{
    MediaViewStand stand(Ten);
    const QSignalSpy wanted(&stand.view, &NxMediaItemView::sigRenameWanted);
    stand.choose(QStringLiteral("B"));
    press(&stand, QStringLiteral("F2"));
    QVERIFY(fieldOf(stand));
    QTest::keyClicks(fieldOf(stand), QStringLiteral("each"));
    QTest::keyPress(fieldOf(stand), Qt::Key_Escape);
    QTRY_VERIFY(!fieldOf(stand));
    QCOMPARE(wanted.size(), 0);
    QVERIFY(stand.view.hasFocus());
}

void tst_NxMediaItemView_keys::anEmptyOrOldNameIsNoWish_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("the old one") << "B";
}

void tst_NxMediaItemView_keys::anEmptyOrOldNameIsNoWish()
{
    QFETCH(QString, name);
    MediaViewStand stand(Ten);
    const QSignalSpy wanted(&stand.view, &NxMediaItemView::sigRenameWanted);
    stand.view.editName(stand.media(QStringLiteral("B")));
    QVERIFY(fieldOf(stand));
    fieldOf(stand)->setText(name);
    QTest::keyClick(fieldOf(stand), Qt::Key_Return);
    QTRY_VERIFY(!fieldOf(stand));
    QCOMPARE(wanted.size(), 0);
}

void tst_NxMediaItemView_keys::headersAndTilesHaveNoNameToEdit_data()
{
    QTest::addColumn<QString>("row");
    QTest::newRow("header") << "[x]";
    QTest::newRow("tile") << "+";
}

void tst_NxMediaItemView_keys::headersAndTilesHaveNoNameToEdit()
{
    QFETCH(QString, row);
    MediaViewStand stand(Grouped, NXVBLMODEL::fkProject);
    stand.group();
    stand.choose(row);
    press(&stand, QStringLiteral("F2"));
    QVERIFY(!fieldOf(stand));
    stand.view.editName();
    QVERIFY(!fieldOf(stand));
}

void tst_NxMediaItemView_keys::aNameIsEditedWhereverItStands()
{
    MediaViewStand stand("A B C D E F G H I J K L M");
    stand.fit(MediaViewStand::PerLine, 2);
    const ShownMedia elsewhere(QStringLiteral("elsewhere"));
    stand.view.editName(const_cast<ShownMedia *>(&elsewhere));
    QVERIFY(!fieldOf(stand));
    stand.view.editName(stand.media(QStringLiteral("M")));
    QVERIFY(fieldOf(stand));
    QCOMPARE(stand.selected(), QStringLiteral("M"));
    QVERIFY(stand.view.viewport()->rect().contains(fieldOf(stand)->geometry()));
}

void tst_NxMediaItemView_keys::keysDoNothingWithoutRows_data()
{
    QTest::addColumn<bool>("hasModel");
    QTest::newRow("no rows") << true;
    QTest::newRow("no model") << false;
}

void tst_NxMediaItemView_keys::keysDoNothingWithoutRows()
{
    QFETCH(bool, hasModel);
    MediaViewStand stand(Ten);
    stand.choose(QStringLiteral("B"));
    if (hasModel)
        stand.model.load(nullptr);
    else
        stand.view.setModel(nullptr);
    const QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    press(&stand, QStringLiteral("Down Up Left Right Home End PgUp PgDown Shift+Down Ctrl+A Space "
                                 "Return F2 b Escape"));
    stand.view.editName();
    stand.view.setAllExpanded(false);
    QCOMPARE(activated.size(), 0);
    QCOMPARE(stand.current(), QStringLiteral("-"));
    QVERIFY(stand.view.selectedMedia().isEmpty());
    QVERIFY(!fieldOf(stand));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_keys)
#include "tst_NxMediaItemView_keys.moc"
