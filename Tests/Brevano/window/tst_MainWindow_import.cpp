// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/ImportReportView.h>
#include <Brevano/window/ImportStatus.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <NxCore/NxDiskBan.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxProject.h>

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/DialogUser.h>
#include <NxWidgets/FileDialogUser.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

#include "WindowYard.h"

using Id = PanelActions::Id;
using Reading = WindowYard::Reading;

namespace {

constexpr int Patience = WindowYard::Patience;

/// The window with a new project.
struct Yard : WindowYard
{
    explicit Yard(Reading reading = Reading::Nothing) : WindowYard(reading) { openFilm(); }

    void waitForImport() const { QTRY_VERIFY_WITH_TIMEOUT(!window()->desk()->isBusy(), Patience); }
    QStringList pictures(int count) const
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(picture(QStringLiteral("pictures of the day/%1.png").arg(i)));
        return paths;
    }
    template<typename Button>
    Button *button(const QWidget *parent, const char *text) const
    {
        const QList<Button *> all = parent->findChildren<Button *>();
        for (Button *one : all) {
            if (one->text() == QLatin1String(text))
                return one;
        }
        return nullptr;
    }
    QTreeView *lines() const { return window()->report()->findChild<QTreeView *>(); }
    /// What the report says about each file: its name and the verdict.
    QStringList report() const
    {
        QStringList texts;
        const QAbstractItemModel *model = lines()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            texts.append(model->index(row, 1).data().toString() + QLatin1String(": ")
                         + model->index(row, 0).data().toString());
        }
        texts.sort();
        return texts;
    }
    /// Clicks on the line of a file.
    void pickLine(const QString &name) const
    {
        const QAbstractItemModel *model = lines()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, 1);
            if (index.data().toString() != name)
                continue;
            lines()->scrollTo(index);
            const QPoint at = lines()->visualRect(index).center();
            QTest::mouseClick(lines()->viewport(), Qt::LeftButton, {}, at);
            return;
        }
        QFAIL(qPrintable(name));
    }
};

/// Says how many dialogs came up while it lives.
class NewWindows final : public QObject
{
public:
    NewWindows() { qApp->installEventFilter(this); }

    [[nodiscard]] int dialogs() const { return m_dialogs; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QDialog *>(watched))
            ++m_dialogs;
        return false;
    }

private:
    int m_dialogs = 0;
};

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Files come into a project: over every way that the window has, with what it says about them.
class tst_MainWindow_import : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesAndFoldersAreDroppedOnTheMedia();
    void filesAreDroppedOnAFolder();
    void filesArePasted();
    void aClipboardWithoutFilesIsExplained();
    void filesAreChosenInADialog();
    void aFolderIsChosenInADialog();
    void theImportTileOpensTheDialog();
    void aDroppedProjectOpens();
    void progressIsToldAndCanBeCancelled();
    void badFilesAreReportedTogether();
    void aMendedFileIsTriedAgain();
    void aReadOnlyProjectTakesNothing();
    void anImportThatTheWindowLeavesGoesOnLater();
    void importingNeverKeepsTheWindowWaiting();
};

void tst_MainWindow_import::filesAndFoldersAreDroppedOnTheMedia()
{
    const Yard yard;
    const QString single = yard.picture(QStringLiteral("a.png"));
    yard.picture(QStringLiteral("Day 1/b.png"));
    yard.picture(QStringLiteral("Day 1/Evening/c.png"));
    const NxFootageGuard guard(yard.dir.filePath(QStringLiteral("Day 1")));
    const auto data = Yard::files({single, yard.dir.filePath(QStringLiteral("Day 1"))});
    QVERIFY(Yard::drop(yard.view()->viewport(), {30, 30}, *data, Qt::CopyAction | Qt::MoveAction));
    yard.waitForImport();
    QVERIFY(yard.media(QStringLiteral("a.png")));
    QVERIFY(yard.media(QStringLiteral("b.png")));
    const INxAbstractMediaItem *evening = yard.media(QStringLiteral("c.png"));
    QVERIFY(evening);
    QCOMPARE(evening->parentFolder()->name(), QStringLiteral("Evening"));
    QTRY_COMPARE(sorted(yard.rows()), lines({"a.png", "b.png", "c.png"}));
    QVERIFY(QFile::exists(single));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_MainWindow_import::filesAreDroppedOnAFolder()
{
    const Yard yard;
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    const auto data = Yard::files({yard.picture(QStringLiteral("a.png"))});
    QVERIFY(Yard::drop(yard.tree()->viewport(), yard.folderAt(day), *data));
    yard.waitForImport();
    QVERIFY(yard.media(QStringLiteral("a.png")));
    QCOMPARE(yard.media(QStringLiteral("a.png"))->parentFolder(), day);
    INxFolderMedia *other = yard.addFolder(QStringLiteral("Day 2"));
    yard.pick(other);
    QCOMPARE(yard.rows(), QStringList());
    yard.pick(day);
    QCOMPARE(yard.rows(), lines({"a.png"}));
}

void tst_MainWindow_import::filesArePasted()
{
    const Yard yard;
    INxFolderMedia *day = yard.addFolder(QStringLiteral("Day 1"));
    yard.pick(day);
    QApplication::clipboard()->setMimeData(
        Yard::files({yard.picture(QStringLiteral("a.png"))}).release());
    yard.press(Qt::CTRL | Qt::Key_V);
    yard.waitForImport();
    QTRY_COMPARE(yard.rows(), lines({"a.png"}));
}

void tst_MainWindow_import::aClipboardWithoutFilesIsExplained()
{
    const Yard yard;
    const NewWindows windows;
    QApplication::clipboard()->setText(QStringLiteral("a word"));
    yard.choose(Id::Paste);
    QCOMPARE(yard.told(), QStringLiteral("The clipboard holds no files."));
    QCOMPARE(yard.rows(), QStringList());
    QCOMPARE(windows.dialogs(), 0);
}

void tst_MainWindow_import::filesAreChosenInADialog()
{
    const Yard yard;
    const FileDialogUser user(
        FileDialogUser::choosing(yard.picture(QString::fromUtf8("plage 🏖.png"))));
    yard.press(Qt::CTRL | Qt::Key_I);
    QCOMPARE(user.dialogs(), 1);
    yard.waitForImport();
    QTRY_COMPARE(yard.rows(), lines({"plage 🏖.png"}));
}

void tst_MainWindow_import::aFolderIsChosenInADialog()
{
    const Yard yard;
    yard.picture(QStringLiteral("Day 1/a.png"));
    const FileDialogUser user(FileDialogUser::choosing(yard.dir.filePath(QStringLiteral("Day 1"))));
    yard.choose(Id::ImportFolder);
    QCOMPARE(user.dialogs(), 1);
    yard.waitForImport();
    QVERIFY(yard.media(QStringLiteral("a.png")));
    QCOMPARE(yard.media(QStringLiteral("a.png"))->parentFolder()->name(), QStringLiteral("Day 1"));
}

void tst_MainWindow_import::theImportTileOpensTheDialog()
{
    const Yard yard;
    const FileDialogUser user(FileDialogUser::choosing(yard.picture(QStringLiteral("a.png"))));
    QTRY_VERIFY(yard.panel()->notice());
    auto *wanted = yard.button<QPushButton>(yard.view()->viewport(), "Import");
    QTRY_VERIFY(wanted && wanted->isVisible());
    QTest::mouseClick(wanted, Qt::LeftButton);
    QCOMPARE(user.dialogs(), 1);
    yard.waitForImport();
    QTRY_COMPARE(yard.rows(), lines({"a.png"}));
    QTRY_VERIFY(!wanted->isVisible());
}

void tst_MainWindow_import::aDroppedProjectOpens()
{
    const Yard yard;
    yard.import({yard.picture(QStringLiteral("a.png"))});
    const QString other = yard.dir.filePath(QStringLiteral("other.brevano"));
    QVERIFY(yard.window()->createProject(other));
    QCOMPARE(yard.rows(), QStringList());
    const auto data = Yard::files({yard.film()});
    QVERIFY(Yard::drop(yard.window(), {5, 5}, *data));
    QTRY_COMPARE(yard.window()->holder()->path(), yard.film());
    QCOMPARE(yard.rows(), lines({"a.png"}));
}

void tst_MainWindow_import::progressIsToldAndCanBeCancelled()
{
    constexpr int count = 3'000;
    constexpr int jobs = 60; // Each looks at all of them; together they outlast any click.
    const Yard yard;
    for (int i = 0; i < count; ++i)
        yard.dir.write(QStringLiteral("pictures of the day/%1.png").arg(i));
    const auto *status = yard.window()->statusBar()->findChild<ImportStatus *>();
    const auto *text = status->findChild<QLabel *>();
    auto *cancel = yard.button<QPushButton>(status, "Cancel");
    const ImportDesk *desk = yard.window()->desk();
    QString toldMeanwhile;
    connect(desk, &ImportDesk::sigProgress, status, [&] {
        if (!desk->isBusy() || desk->added() == 0 || !cancel->isVisible())
            return;
        if (toldMeanwhile.isEmpty())
            toldMeanwhile = text->text();
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    for (int job = 0; job < jobs; ++job)
        yard.window()->importPaths({yard.dir.filePath(QStringLiteral("pictures of the day"))});
    QVERIFY(desk->isBusy());
    yard.waitForImport();
    QVERIFY2(toldMeanwhile.startsWith(QLatin1String("Importing: ")), qPrintable(toldMeanwhile));
    QVERIFY(!yard.section()->items(true, true).isEmpty());
    QVERIFY(desk->report().found < qint64(jobs) * count);
    QTRY_VERIFY(!text->text().startsWith(QLatin1String("Importing: ")));
    QVERIFY(yard.window()->desk()->report().cancelled > 0);
}

void tst_MainWindow_import::badFilesAreReportedTogether()
{
    const Yard yard(Reading::Everything);
    const NewWindows windows;
    const QByteArray film = contentsOf(yard.footage("30.mov"));
    const QStringList paths{
        yard.picture(QString::fromUtf8("plage 🏖.png")),
        yard.dir.write(QStringLiteral("empty.mp4"), {}),
        yard.dir.write(QStringLiteral("cut.mov"), film.left(200)),
        yard.dir.write(QStringLiteral("noise.mp4"), QByteArray(5000, 'n')),
        yard.dir.write(QStringLiteral("notes.xyz")),
    };
    QVERIFY(Yard::drop(yard.view()->viewport(), {30, 30}, *Yard::files(paths)));
    yard.waitForImport();
    yard.readAll();
    QTRY_VERIFY(yard.lines()->isVisible());
    QTRY_COMPARE(yard.report(), lines({"cut.mov: Cannot be read", "empty.mp4: Cannot be read",
                                       "noise.mp4: Cannot be read", "notes.xyz: Refused"}));
    QVERIFY(yard.rows().contains(QString::fromUtf8("plage 🏖.png")));
    QCOMPARE(windows.dialogs(), 0);

    INxFolderMedia *elsewhere = yard.addFolder(QStringLiteral("Elsewhere"));
    yard.pick(elsewhere);
    QCOMPARE(yard.rows(), QStringList());
    yard.pickLine(QStringLiteral("noise.mp4"));
    QTest::mouseClick(yard.button<QToolButton>(yard.window()->report(), "Show"), Qt::LeftButton);
    QTRY_COMPARE(yard.selection(), lines({"noise.mp4"}));
    QCOMPARE(yard.shownFolder(), yard.section()->name());
}

void tst_MainWindow_import::aMendedFileIsTriedAgain()
{
    const Yard yard(Reading::Everything);
    const QString path = yard.dir.write(QStringLiteral("film.mov"), "no film yet");
    yard.import({path});
    yard.readAll();
    QTRY_COMPARE(yard.report(), lines({"film.mov: Cannot be read"}));
    QTRY_VERIFY(yard.lines()->isVisible()); // Trouble opens it.
    yard.window()->report()->parentWidget()->hide();
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QVERIFY(file.write(contentsOf(yard.footage("30.mov"))) > 0);
    file.close();
    const auto *status = yard.window()->statusBar()->findChild<ImportStatus *>();
    auto *report = yard.button<QPushButton>(status, "Import Report");
    QTRY_VERIFY(report->isVisible());
    QTest::mouseClick(report, Qt::LeftButton);
    QTRY_VERIFY(yard.lines()->isVisible());
    yard.pickLine(QStringLiteral("film.mov"));
    auto *again = yard.button<QToolButton>(yard.window()->report(), "Try Again");
    QVERIFY(again->isEnabled());
    QTest::mouseClick(again, Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(yard.report(), QStringList(), Patience);
    const INxMediaInfo *facts = yard.media(QStringLiteral("film.mov"))->mediaInfo();
    QVERIFY(facts && facts->duration() > 0);
}

void tst_MainWindow_import::aReadOnlyProjectTakesNothing()
{
    Yard yard;
    const QString picture = yard.picture(QStringLiteral("a.png"));
    yard.end();
    NxEmbeddedEngine other(NxEmbeddedEngine::Options{{}, false, false, {}, 0});
    QVERIFY(bool(other.openProject(yard.film(), NxProjectOpenMode::ReadWrite)));
    yard.start();
    yard.openFilm();
    QVERIFY(yard.window()->holder()->isReadOnly());
    QVERIFY(!yard.action(Id::ImportFiles)->isEnabled());
    QVERIFY(!yard.action(Id::Paste)->isEnabled());
    QStringList told;
    const DialogUser user([&told](const NMessageDialog &dialog) {
        told.append(dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText());
        QTest::mouseClick(DialogUser::button(dialog, mdbAffirmative), Qt::LeftButton);
    });
    Yard::drop(yard.view()->viewport(), {30, 30}, *Yard::files({picture}));
    QCOMPARE(told, QStringList{yard.project()->readOnlyReason()});
    QCOMPARE(yard.rows(), QStringList());
}

void tst_MainWindow_import::anImportThatTheWindowLeavesGoesOnLater()
{
    Yard yard(Reading::Everything);
    const NewWindows windows;
    (void)yard.pictures(600);
    yard.window()->importPaths({yard.dir.filePath(QStringLiteral("pictures of the day"))});
    const ImportDesk *desk = yard.window()->desk();
    while (desk->isBusy() && desk->added() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    yard.restart();
    const QList<INxAbstractMedia *> kept = yard.section()->items(true, true);
    QVERIFY(!kept.isEmpty());
    yard.readAll();
    for (const INxAbstractMedia *one : kept) {
        const auto *item = dynamic_cast<const INxAbstractMediaItem *>(one);
        QVERIFY(item);
        QCOMPARE(yard.project()->footageService()->state(item).facts, NxFootageStatus::Done);
    }
    QCOMPARE(windows.dialogs(), 0);
}

void tst_MainWindow_import::importingNeverKeepsTheWindowWaiting()
{
    const Yard yard(Reading::Everything);
    (void)yard.pictures(300);
    const NxDiskBan ban;
    yard.window()->importPaths({yard.dir.filePath(QStringLiteral("pictures of the day"))});
    yard.waitForImport();
    yard.readAll();
    yard.window()->grab();
    QCOMPARE(ban.breaches(), QStringList());
    QCOMPARE(yard.section()->items(true, true).size(), 300);
}

NX_TEST_MAIN_WIDGETS(tst_MainWindow_import)
#include "tst_MainWindow_import.moc"
