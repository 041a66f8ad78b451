// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderTreeView.h>

#include "FolderTreeYard.h"

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QTextEdit>

using namespace NXVBLMODEL;

namespace {

/// Reads each message, and closes it.
class Reader : public DialogUser
{
public:
    Reader()
        : DialogUser([this](NMessageDialog &dialog) {
              messages.append(dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText());
              dialog.reject();
          })
    {
    }

    QStringList messages;
};

} // namespace

/// Folders that the user makes, renames and removes in a tree.
class tst_NxFolderTreeView_names : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aNewFolderIsNamedAtOnce();
    void newFoldersAreNumbered();
    void aNewFolderGoesWhereFoldersAreTaken();
    void whereNoFolderIsTakenTheUserIsTold();
    void namesAreEditedInPlace();
    void escapeKeepsTheName();
    void anotherNameCanBeEditedWithoutLeavingTheFirst();
    void refusedNamesAreExplained_data();
    void refusedNamesAreExplained();
    void sectionsKeepTheirNames();
    void deleteAsksAndRemoves();
    void sectionsAreNotRemoved();
    void readOnlyProjectsSayWhy();
};

void tst_NxFolderTreeView_names::aNewFolderIsNamedAtOnce()
{
    const FolderTreeYard yard;
    yard.click(yard.first);
    const int steps = yard.undo()->count();
    yard.tree->newFolder();
    QVERIFY(yard.editor());
    QCOMPARE(yard.editor()->text(), QStringLiteral("New Folder"));
    QCOMPARE(QApplication::focusWidget(), yard.editor());
    QCOMPARE(yard.undo()->count(), steps + 1);
    yard.enter(QStringLiteral("Sound"));
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 1 - *", "    Takes", "    Sound",
                                 "  Day 2", "Shared Media"}));
    QCOMPARE(yard.undo()->count(), steps + 2);
    yard.undo()->undo();
    QCOMPARE(yard.first->childFolder(1)->name(), QStringLiteral("New Folder"));
    yard.undo()->undo();
    QCOMPARE(yard.first->childFolderCount(), 1);
}

void tst_NxFolderTreeView_names::newFoldersAreNumbered()
{
    const FolderTreeYard yard;
    for (int i = 0; i < 3; ++i)
        yard.tree->newFolder(); // Each ends the editing of the one before.
    yard.enter(QStringLiteral("Last"));
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "  New Folder",
                                 "  New Folder 2", "  Last", "Shared Media"}));
    QVERIFY(yard.folders()->folderManager()->removeFolder(yard.section()->childFolder(3)));
    yard.tree->newFolder();
    QCOMPARE(yard.editor()->text(), QStringLiteral("New Folder 2"));
}

void tst_NxFolderTreeView_names::aNewFolderGoesWhereFoldersAreTaken()
{
    FolderTreeYard yard;
    yard.tree->collapseAll();
    yard.folders()->setCurrentFolder(yard.takes);
    yard.tree->collapseAll();
    yard.tree->newFolder();
    QCOMPARE(yard.takes->childFolderCount(), 1);
    QVERIFY(yard.tree->viewport()->rect().contains(yard.at(yard.takes->childFolder(0))));
    yard.show(mctTitle);
    yard.tree->newFolder();
    yard.enter(QStringLiteral("Mine"));
    QCOMPARE(yard.rows(), lines({"All - *", "  Mine", "Favorites", "Downloaded"}));
}

void tst_NxFolderTreeView_names::whereNoFolderIsTakenTheUserIsTold()
{
    FolderTreeYard yard;
    yard.show(mctTemplate);
    const QStringList before = yard.rows();
    const Reader reader;
    yard.tree->newFolder();
    QTRY_COMPARE(reader.messages, lines({"No folder can be made in \"All\"."}));
    QCOMPARE(yard.rows(), before);
}

void tst_NxFolderTreeView_names::namesAreEditedInPlace()
{
    const FolderTreeYard yard;
    yard.click(yard.second);
    const int steps = yard.undo()->count();
    yard.press(Qt::Key_F2);
    QVERIFY(yard.editor());
    QCOMPARE(yard.editor()->text(), QStringLiteral("Day 2"));
    QLineEdit *const field = yard.editor();
    yard.tree->renameFolder();
    QCOMPARE(yard.editor(), field);
    yard.enter(QStringLiteral(" Night "));
    QCOMPARE(yard.second->name(), QStringLiteral("Night"));
    QCOMPARE(yard.undo()->count(), steps + 1);
    yard.undo()->undo();
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 1 +", "  Day 2 *", "Shared Media"}));
}

void tst_NxFolderTreeView_names::escapeKeepsTheName()
{
    const FolderTreeYard yard;
    yard.click(yard.second);
    const int steps = yard.undo()->count();
    yard.tree->renameFolder();
    yard.editor()->setText(QStringLiteral("Night"));
    QTest::keyClick(yard.editor(), Qt::Key_Escape);
    QTRY_VERIFY(!yard.editor());
    QCOMPARE(yard.second->name(), QStringLiteral("Day 2"));
    QCOMPARE(yard.undo()->count(), steps);
}

void tst_NxFolderTreeView_names::anotherNameCanBeEditedWithoutLeavingTheFirst()
{
    const FolderTreeYard yard;
    yard.folders()->setCurrentFolder(yard.first);
    yard.tree->renameFolder();
    yard.editor()->setText(QStringLiteral("Morning"));
    yard.folders()->setCurrentFolder(yard.second);
    yard.tree->renameFolder();
    QCOMPARE(yard.first->name(), QStringLiteral("Morning"));
    yard.enter(QStringLiteral("Night"));
    QCOMPARE(yard.second->name(), QStringLiteral("Night"));
}

void tst_NxFolderTreeView_names::refusedNamesAreExplained_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("taken") << QStringLiteral(" Day 1")
                           << QStringLiteral(
                                  "There is a folder \"Day 1\" already. \"Day 2\" keeps its name.");
    QTest::newRow("none") << QStringLiteral("  ")
                          << QStringLiteral("A folder needs a name. \"Day 2\" keeps its own.");
    const QString tooLong(256, QLatin1Char('x'));
    QTest::newRow("too long")
        << tooLong << QStringLiteral("The folder \"Day 2\" cannot be called \"%1\".").arg(tooLong);
}

void tst_NxFolderTreeView_names::refusedNamesAreExplained()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    const FolderTreeYard yard;
    yard.click(yard.second);
    const int steps = yard.undo()->count();
    const Reader reader;
    yard.tree->renameFolder();
    yard.editor()->setText(name);
    QTest::keyClick(yard.editor(), Qt::Key_Return);
    QTRY_COMPARE(reader.messages, QStringList(message));
    QTRY_VERIFY(!yard.editor());
    QCOMPARE(yard.second->name(), QStringLiteral("Day 2"));
    QCOMPARE(yard.undo()->count(), steps);
    QCOMPARE(reader.dialogs(), 1);
}

void tst_NxFolderTreeView_names::sectionsKeepTheirNames()
{
    const FolderTreeYard yard;
    yard.press(Qt::Key_F2);
    QVERIFY(!yard.editor());
    yard.tree->renameFolder();
    QVERIFY(!yard.editor());
    QTest::mouseDClick(yard.tree->viewport(), Qt::LeftButton, {}, yard.at(yard.second));
    QVERIFY(!yard.editor());
}

void tst_NxFolderTreeView_names::deleteAsksAndRemoves()
{
    const FolderTreeYard yard;
    yard.click(yard.first);
    const int steps = yard.undo()->count();
    {
        const DialogUser user(DialogUser::clicking(mdbNegative));
        yard.press(Qt::Key_Delete);
        QCOMPARE(user.dialogs(), 1);
        QCOMPARE(yard.current(), QStringLiteral("Day 1"));
    }
    yard.comeForward();
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    yard.press(Qt::Key_Delete);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 2", "Shared Media"}));
    QCOMPARE(yard.undo()->count(), steps + 1);
}

void tst_NxFolderTreeView_names::sectionsAreNotRemoved()
{
    const FolderTreeYard yard;
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    const QStringList before = yard.rows();
    yard.press(Qt::Key_Delete);
    yard.tree->removeFolder();
    QCOMPARE(user.dialogs(), 0);
    QCOMPARE(yard.rows(), before);
}

void tst_NxFolderTreeView_names::readOnlyProjectsSayWhy()
{
    FolderTreeYard yard;
    yard.reopenReadOnly();
    yard.click(yard.second);
    const QStringList before = yard.rows();
    const QString reason = yard.project->readOnlyReason();
    QVERIFY(!reason.isEmpty());
    const Reader reader;
    yard.tree->newFolder();
    QTRY_COMPARE(reader.messages, QStringList(reason));
    yard.comeForward();
    yard.press(Qt::Key_F2);
    QTRY_COMPARE(reader.messages, QStringList({reason, reason}));
    QVERIFY(!yard.editor());
    yard.comeForward();
    yard.press(Qt::Key_Delete);
    QTRY_COMPARE(reader.messages.size(), 3);
    QCOMPARE(yard.rows(), before);
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeView_names)
#include "tst_NxFolderTreeView_names.moc"
