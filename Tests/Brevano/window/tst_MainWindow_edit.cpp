// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/MediaMenu.h>
#include <Brevano/window/MissingSearch.h>
#include <Brevano/window/PanelView.h>
#include <NxCore/INxUndoStack.h>
#include <NxCore/NxDesktopService.h>
#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/DialogUser.h>
#include <NxWidgets/FileDialogUser.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QUrl>

#include "WindowYard.h"

using Id = PanelActions::Id;
using Reading = WindowYard::Reading;

namespace {

constexpr int Patience = WindowYard::Patience;

/// The window with three pictures, sorted by name, whose files are in a folder "stock".
struct Yard : WindowYard
{
    explicit Yard(Reading reading = Reading::Nothing) : WindowYard(reading)
    {
        openFilm();
        import({picture(QStringLiteral("stock/a.png")),
                picture(QStringLiteral("stock/b.png"), Qt::green),
                picture(QStringLiteral("stock/c.png"), Qt::blue)});
        choose("sort", QStringLiteral("Name"));
        QTRY_COMPARE(rows(), all());
    }

    static QStringList all() { return lines({"a.png", "b.png", "c.png"}); }
    QString stock() const { return dir.filePath(QStringLiteral("stock")); }
    /// Types in place of the name that is edited, and presses Return.
    void enter(const QString &name) const
    {
        comeForward();
        auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(field);
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
    }
    QString undoText() const { return action(Id::Undo)->text(); }
    QString redoText() const { return action(Id::Redo)->text(); }
    /// Waits until it is known that the file of a media is gone.
    void waitUntilMissing(const QString &name) const
    {
        QTRY_COMPARE_WITH_TIMEOUT(NxFile::knownToExist(media(name)->filePath()),
                                  std::optional<bool>(false), Patience);
    }
    /// The entries that a menu which a request opens has; a line is empty.
    QStringList menu(QWidget *target, const QContextMenuEvent &request) const
    {
        QContextMenuEvent event(request);
        QApplication::sendEvent(target, &event);
        auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QStringList texts;
        if (!shown)
            return texts;
        for (const QAction *entry : shown->actions()) {
            if (entry->isVisible() && entry->isEnabled() && !entry->isSeparator())
                texts.append(entry->text().remove(QLatin1Char('&')));
        }
        shown->close();
        return texts;
    }
};

} // namespace

/// What users change in a project through its window, and take back.
class tst_MainWindow_edit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aMediaIsRenamedInPlace();
    void mediaAreDeletedOnDemand();
    void foldersAreMadeRenamedAndDeleted();
    void mediaAreDraggedToAFolder();
    void stepsAreNamed();
    void mediaOfTheTimelineAreMarked();
    void unusedMediaAreDeleted();
    void aMovedFileIsRelinked();
    void missingFilesAreFoundInAFolder();
    void aMediaHasAMenu();
    void aFolderHasAMenu();
    void namesAndPathsAreCopied();
    void aFileIsShownWhereItIs();
};

void tst_MainWindow_edit::aMediaIsRenamedInPlace()
{
    const Yard yard;
    const NxFootageGuard guard(yard.stock());
    yard.click(QStringLiteral("b.png"));
    yard.press(Qt::Key_F2);
    yard.enter(QStringLiteral("zebra"));
    QTRY_COMPARE(yard.rows(), lines({"a.png", "c.png", "zebra"}));
    QCOMPARE(yard.selection(), lines({"zebra"}));
    QCOMPARE(yard.undoText(), QStringLiteral("&Undo Rename Media"));
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), Yard::all());
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_MainWindow_edit::mediaAreDeletedOnDemand()
{
    const Yard yard;
    const NxFootageGuard guard(yard.stock());
    yard.click(QStringLiteral("a.png"));
    yard.click(QStringLiteral("b.png"), Qt::ShiftModifier);
    {
        const DialogUser refusing(DialogUser::clicking(mdbNegative));
        yard.press(Qt::Key_Delete);
        QCOMPARE(refusing.dialogs(), 1);
        QCOMPARE(yard.rows(), Yard::all());
    }
    const DialogUser agreeing(DialogUser::clicking(mdbAffirmative));
    yard.choose(Id::Remove);
    QCOMPARE(agreeing.dialogs(), 1);
    QCOMPARE(yard.rows(), lines({"c.png"}));
    QCOMPARE(yard.selection(), QStringList());
    yard.choose(Id::Undo);
    QCOMPARE(yard.rows(), Yard::all());
    yard.choose(Id::Redo);
    QCOMPARE(yard.rows(), lines({"c.png"}));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_MainWindow_edit::foldersAreMadeRenamedAndDeleted()
{
    const Yard yard;
    yard.press(Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    yard.enter(QStringLiteral("Day 1"));
    QTRY_COMPARE(yard.section()->childFolders().size(), 1);
    INxFolderMedia *made = yard.section()->childFolder(0);
    QTRY_COMPARE(made->name(), QStringLiteral("Day 1"));
    yard.pick(made);
    yard.press(Qt::Key_F2);
    yard.enter(QStringLiteral("Monday"));
    QTRY_COMPARE(made->name(), QStringLiteral("Monday"));
    yard.pick(made);
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    yard.press(Qt::Key_Delete);
    QCOMPARE(yard.section()->childFolders().size(), 0);
    QCOMPARE(yard.rows(), Yard::all());
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.section()->childFolders().size(), 1);
    QCOMPARE(yard.section()->childFolder(0)->name(), QStringLiteral("Monday"));
}

void tst_MainWindow_edit::mediaAreDraggedToAFolder()
{
    const Yard yard;
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    NxMediaItemMimeData dragged;
    dragged.append(yard.media(QStringLiteral("a.png")));
    dragged.append(yard.media(QStringLiteral("c.png")));
    QVERIFY(Yard::drop(yard.tree()->viewport(), yard.folderAt(day), dragged,
                       Qt::CopyAction | Qt::MoveAction));
    QCOMPARE(yard.media(QStringLiteral("a.png"))->parentFolder(), day);
    QCOMPARE(yard.undoText(), QStringLiteral("&Undo Move Media"));
    yard.pick(day);
    QCOMPARE(yard.rows(), lines({"a.png", "c.png"}));
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), QStringList());
    QCOMPARE(yard.media(QStringLiteral("c.png"))->parentFolder(), yard.section());
}

void tst_MainWindow_edit::stepsAreNamed()
{
    const Yard yard;
    QCOMPARE(yard.undoText(), QStringLiteral("&Undo Import"));
    QVERIFY(!yard.action(Id::Redo)->isEnabled());
    QCOMPARE(yard.redoText(), QStringLiteral("&Redo"));
    yard.choose(Id::Undo);
    QCOMPARE(yard.rows(), QStringList());
    QCOMPARE(yard.redoText(), QStringLiteral("&Redo Import"));
    yard.press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    QCOMPARE(yard.rows(), Yard::all());
    QVERIFY(!yard.action(Id::Redo)->isEnabled());
}

void tst_MainWindow_edit::mediaOfTheTimelineAreMarked()
{
    const Yard yard;
    yard.click(QStringLiteral("a.png"));
    yard.click(QStringLiteral("c.png"), Qt::ControlModifier);
    const QImage before =
        yard.view()->viewport()->grab(yard.rect(QStringLiteral("a.png"))).toImage();
    yard.press(Qt::CTRL | Qt::Key_T);
    QCOMPARE(yard.told(), QStringLiteral("2 added to \"Timeline 1\""));
    QCOMPARE(yard.media(QStringLiteral("a.png"))->usedCount(), 1);
    QCOMPARE(yard.media(QStringLiteral("b.png"))->usedCount(), 0);
    QCOMPARE(yard.media(QStringLiteral("c.png"))->usedCount(), 1);
    QVERIFY(yard.view()->viewport()->grab(yard.rect(QStringLiteral("a.png"))).toImage() != before);
    QCOMPARE(yard.undoText(), QStringLiteral("&Undo Add to Timeline"));
    yard.choose(Id::Undo);
    QCOMPARE(yard.media(QStringLiteral("a.png"))->usedCount(), 0);
    QVERIFY(yard.project()->timelines().isEmpty());
}

void tst_MainWindow_edit::unusedMediaAreDeleted()
{
    const Yard yard;
    yard.click(QStringLiteral("b.png"));
    yard.choose(Id::AddToTimeline);
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    yard.choose(Id::RemoveUnused);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.rows(), lines({"b.png"}));
    yard.choose(Id::RemoveUnused);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.told(), QStringLiteral("All media of this folder are used."));
}

void tst_MainWindow_edit::aMovedFileIsRelinked()
{
    Yard yard;
    const QString moved = yard.dir.makeDir(QStringLiteral("elsewhere")) + QStringLiteral("/b.png");
    QVERIFY(QFile::rename(yard.stock() + QStringLiteral("/b.png"), moved));
    yard.restart();
    yard.waitUntilMissing(QStringLiteral("b.png"));
    const NxFootageGuard guard(QFileInfo(moved).path());
    const DialogUser asked(DialogUser::clicking(mdbAffirmative));
    const FileDialogUser shown(FileDialogUser::choosing(moved));
    yard.doubleClick(QStringLiteral("b.png"));
    QCOMPARE(asked.dialogs(), 1);
    QCOMPARE(shown.dialogs(), 1);
    QCOMPARE(yard.media(QStringLiteral("b.png"))->filePath(), moved);
    QCOMPARE(yard.undoText(), QStringLiteral("&Undo Relink"));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_MainWindow_edit::missingFilesAreFoundInAFolder()
{
    Yard yard(Reading::Everything);
    yard.readAll();
    const QString place = yard.dir.filePath(QStringLiteral("new stock"));
    yard.end();
    QVERIFY(QFile::rename(yard.stock(), place));
    yard.start();
    yard.openFilm();
    yard.waitUntilMissing(QStringLiteral("a.png"));
    yard.waitUntilMissing(QStringLiteral("c.png"));
    const NxFootageGuard guard(place);
    const FileDialogUser user(FileDialogUser::choosing(place));
    yard.choose(Id::FindMissing);
    QCOMPARE(user.dialogs(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(yard.told(), QStringLiteral("3 of 3 missing files found"), Patience);
    for (const QString &name : Yard::all())
        QCOMPARE(yard.media(name)->filePath(), place + QLatin1Char('/') + name);
    NX_VERIFY_UNTOUCHED(guard);
    yard.choose(Id::FindMissing);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.told(), QStringLiteral("No file of this folder is missing."));
}

void tst_MainWindow_edit::aMediaHasAMenu()
{
    const Yard yard;
    QWidget *viewport = yard.view()->viewport();
    const QPoint at = yard.rect(QStringLiteral("b.png")).center();
    QTest::mouseClick(viewport, Qt::RightButton, {}, at);
    const QStringList byMouse = yard.menu(
        viewport, QContextMenuEvent(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at)));
    QCOMPARE(yard.selection(), lines({"b.png"}));
    QVERIFY(byMouse.contains(QStringLiteral("Add to Timeline")));
    QVERIFY(byMouse.contains(QStringLiteral("Rename")));
    QVERIFY(byMouse.contains(QStringLiteral("Find in Folder")));
    yard.comeForward();
    yard.view()->setFocus();
    QCOMPARE(yard.menu(viewport, QContextMenuEvent(QContextMenuEvent::Keyboard, {0, 0},
                                                   viewport->mapToGlobal({0, 0}))),
             byMouse);
}

void tst_MainWindow_edit::aFolderHasAMenu()
{
    const Yard yard;
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    yard.pick(day);
    QWidget *viewport = yard.tree()->viewport();
    const QPoint at = yard.folderAt(day);
    const QStringList entries = yard.menu(
        viewport, QContextMenuEvent(QContextMenuEvent::Mouse, at, viewport->mapToGlobal(at)));
    QVERIFY(entries.contains(QStringLiteral("New Folder")));
    QVERIFY(entries.contains(QStringLiteral("Import Files...")));
    QVERIFY(entries.contains(QStringLiteral("Rename")));
}

void tst_MainWindow_edit::namesAndPathsAreCopied()
{
    const Yard yard;
    yard.click(QStringLiteral("a.png"));
    yard.click(QStringLiteral("b.png"), Qt::ControlModifier);
    yard.press(Qt::CTRL | Qt::Key_C);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a.png\nb.png"));
    yard.choose(Id::CopyPath);
    QCOMPARE(QApplication::clipboard()->text(),
             QDir::toNativeSeparators(yard.stock() + QStringLiteral("/a.png\n") + yard.stock()
                                      + QStringLiteral("/b.png")));
}

void tst_MainWindow_edit::aFileIsShownWhereItIs()
{
    const Yard yard;
    QList<QUrl> opened;
    NxDesktopService::setOpener([&opened](const QUrl &url) {
        opened.append(url);
        return true;
    });
    yard.click(QStringLiteral("c.png"));
    yard.choose(Id::Reveal);
    QTRY_COMPARE(opened, QList<QUrl>{QUrl::fromLocalFile(yard.stock())});
    NxDesktopService::setOpener({});
}

int main(int argc, char **argv)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"); // No file manager of the desktop.
    return nxRunTest<QApplication, tst_MainWindow_edit>(argc, argv);
}
#include "tst_MainWindow_edit.moc"
