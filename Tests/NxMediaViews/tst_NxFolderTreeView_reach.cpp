// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderTreeView.h>

#include "FolderTreeYard.h"

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QSignalSpy>

using namespace NXVBLMODEL;

namespace {

QAccessibleInterface *spoken(const FolderTreeYard &yard)
{
    return QAccessible::queryAccessibleInterface(yard.tree.get());
}

/// What is told of the rows, from top to bottom.
QStringList spokenRows(const FolderTreeYard &yard)
{
    QStringList texts;
    const QAccessibleInterface *view = spoken(yard);
    for (int i = 0; i < view->childCount(); ++i) {
        const QAccessibleInterface *row = view->child(i);
        if (row && row->role() == QAccessible::TreeItem)
            texts.append(row->text(QAccessible::Name));
    }
    return texts;
}

QImage picture(const FolderTreeYard &yard)
{
    return yard.tree->viewport()->grab().toImage();
}

QColor skinColour(NxSkinColor colour)
{
    return NxSkinStyle::instance()->GetColor(colour);
}

} // namespace

/// How users of keyboards, of screen readers and of either skin reach the folders of a tree.
class tst_NxFolderTreeView_reach : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();

    void lettersLeadToNames_data();
    void lettersLeadToNames();
    void theSameLetterGoesRound();
    void foldedNamesAreNotSearched();
    void typingPicksTheFolder();
    void rowsTellNameAndNumber();
    void theViewHasAName();
    void menusAreAskedForByMouse();
    void menusAreAskedForByKey();
    void skinsAreWorn();
    void aFontChangesTheRows();
    void mirroredTreesBeginOnTheRight();
};

void tst_NxFolderTreeView_reach::cleanup()
{
    NxSkinStyle::instance()->setSkin(NxSkin::Dark);
}

void tst_NxFolderTreeView_reach::lettersLeadToNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("first letter") << QStringLiteral("s") << QStringLiteral("Shared Media");
    QTest::newRow("any case") << QStringLiteral("SHA") << QStringLiteral("Shared Media");
    QTest::newRow("several letters") << QStringLiteral("day 2") << QStringLiteral("Day 2");
    QTest::newRow("not in the middle")
        << QStringLiteral("media") << QStringLiteral("Project Media");
    QTest::newRow("where one is") << QStringLiteral("pro") << QStringLiteral("Project Media");
    QTest::newRow("nobody") << QStringLiteral("dx") << QStringLiteral("Day 1");
}

void tst_NxFolderTreeView_reach::lettersLeadToNames()
{
    QFETCH(QString, typed);
    QFETCH(QString, found);
    QApplication::setKeyboardInputInterval(NxPatience); // However slowly the letters come.
    const FolderTreeYard yard;
    for (const QChar &letter : typed)
        yard.tree->keyboardSearch(letter);
    QCOMPARE(folderAt(yard.tree->currentIndex())->name(), found);
}

void tst_NxFolderTreeView_reach::theSameLetterGoesRound()
{
    const FolderTreeYard yard;
    QStringList found;
    for (int i = 0; i < 3; ++i) {
        yard.tree->keyboardSearch(QStringLiteral("d"));
        found.append(folderAt(yard.tree->currentIndex())->name());
    }
    QCOMPARE(found, lines({"Day 1", "Day 2", "Day 1"}));
    yard.tree->keyboardSearch(QString()); // Begins anew.
    yard.tree->keyboardSearch(QStringLiteral("p"));
    QCOMPARE(folderAt(yard.tree->currentIndex())->name(), QStringLiteral("Project Media"));
}

void tst_NxFolderTreeView_reach::foldedNamesAreNotSearched()
{
    const FolderTreeYard yard;
    yard.tree->keyboardSearch(QStringLiteral("t"));
    QCOMPARE(folderAt(yard.tree->currentIndex())->name(), QStringLiteral("Project Media"));
    yard.tree->expandAll();
    yard.tree->keyboardSearch(QString());
    yard.tree->keyboardSearch(QStringLiteral("t"));
    QCOMPARE(folderAt(yard.tree->currentIndex())->name(), QStringLiteral("Takes"));
}

void tst_NxFolderTreeView_reach::typingPicksTheFolder()
{
    const FolderTreeYard yard;
    QTest::keyClicks(yard.tree.get(), QStringLiteral("sh"));
    QCOMPARE(yard.current(), QStringLiteral("Shared Media"));
    QVERIFY(!yard.editor());
}

void tst_NxFolderTreeView_reach::rowsTellNameAndNumber()
{
    const FolderTreeYard yard;
    yard.addMedia(yard.first, lines({"a.mov", "b.mov"}));
    yard.addMedia(yard.takes, lines({"c.mov"}));
    QCOMPARE(spoken(yard)->role(), QAccessible::Tree);
    QCOMPARE(spokenRows(yard), lines({"Project Media, 3 media", "Day 1, 3 media", "Day 2, 0 media",
                                      "Shared Media, 0 media"}));
    yard.folders()->renameFolder(yard.second, QStringLiteral("100 %1 %n"));
    yard.tree->expandAll();
    QCOMPARE(spokenRows(yard), lines({"Project Media, 3 media", "Day 1, 3 media", "Takes, 1 media",
                                      "100 %1 %n, 0 media", "Shared Media, 0 media"}));
}

void tst_NxFolderTreeView_reach::theViewHasAName()
{
    const FolderTreeYard yard;
    QCOMPARE(spoken(yard)->text(QAccessible::Name), QStringLiteral("Folders"));
    yard.tree->setAccessibleName(QString());
    QEvent translated(QEvent::LanguageChange);
    QCoreApplication::sendEvent(yard.tree.get(), &translated);
    QCOMPARE(spoken(yard)->text(QAccessible::Name), QStringLiteral("Folders"));
}

void tst_NxFolderTreeView_reach::menusAreAskedForByMouse()
{
    const FolderTreeYard yard;
    QWidget *viewport = yard.tree->viewport();
    QSignalSpy asked(yard.tree.get(), &NxFolderTreeView::sigContextMenu);
    const auto ask = [&](const QPoint &at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at));
        QCoreApplication::sendEvent(viewport, &event);
        return asked.takeFirst();
    };
    const QPoint on = yard.at(yard.second);
    QCOMPARE(ask(on), (QVariantList{viewport->mapToGlobal(on), QVariant::fromValue(yard.second)}));
    QCOMPARE(yard.current(), QStringLiteral("Day 2"));
    const QVariantList beside = ask({50, 390});
    QCOMPARE(beside.at(1).value<INxFolderMedia *>(), nullptr);
    QCOMPARE(yard.current(), QStringLiteral("Day 2"));
}

void tst_NxFolderTreeView_reach::menusAreAskedForByKey()
{
    const FolderTreeYard yard;
    yard.click(yard.second);
    QSignalSpy asked(yard.tree.get(), &NxFolderTreeView::sigContextMenu);
    const QPoint somewhere(1, 1);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, somewhere);
    QCoreApplication::sendEvent(yard.tree->viewport(), &event);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(1).value<INxFolderMedia *>(), yard.second);
    const QPoint at = yard.tree->viewport()->mapFromGlobal(asked.at(0).at(0).toPoint());
    QVERIFY(yard.tree->visualRect(yard.index(yard.second)).contains(at));
}

void tst_NxFolderTreeView_reach::skinsAreWorn()
{
    const FolderTreeYard yard;
    for (const NxSkin skin : {NxSkin::Light, NxSkin::Dark}) {
        NxSkinStyle::instance()->setSkin(skin);
        const QImage seen = picture(yard);
        QCOMPARE(seen.pixelColor(50, 390), skinColour(NxSkinColor::Background_Tree));
        const QRect row = yard.tree->visualRect(yard.index(yard.section()));
        QCOMPARE(seen.pixelColor(row.right() - 1, row.top() + 1),
                 skinColour(NxSkinColor::State_Selected));
    }
}

void tst_NxFolderTreeView_reach::aFontChangesTheRows()
{
    const FolderTreeYard yard;
    const int height = yard.tree->visualRect(yard.index(yard.first)).height();
    QFont font = yard.tree->font();
    font.setPixelSize(60);
    yard.tree->setFolderFont(font);
    QVERIFY(yard.tree->visualRect(yard.index(yard.first)).height() > height);
}

void tst_NxFolderTreeView_reach::mirroredTreesBeginOnTheRight()
{
    const FolderTreeYard yard;
    yard.tree->setLayoutDirection(Qt::RightToLeft);
    const int width = yard.tree->viewport()->width();
    const QRect row = yard.tree->visualRect(yard.index(yard.first));
    QCOMPARE(row.left(), 0);
    QVERIFY(row.right() < width - yard.tree->indentation());
    yard.click(yard.first);
    yard.press(Qt::Key_Left); // Towards the inside.
    QCOMPARE(yard.rows(),
             lines({"Project Media -", "  Day 1 - *", "    Takes", "  Day 2", "Shared Media"}));
    yard.tree->renameFolder();
    QVERIFY(yard.editor());
    QVERIFY(yard.editor()->geometry().right() < row.right());
    QCOMPARE(yard.editor()->geometry().left(), 0);
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeView_reach)
#include "tst_NxFolderTreeView_reach.moc"
