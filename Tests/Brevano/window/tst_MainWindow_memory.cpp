// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CategoryBar.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/StartPage.h>
#include <Brevano/window/WindowMemory.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxProject.h>
#include <NxWidgets/NxSkinStyle.h>

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QSplitter>
#include <QTextEdit>
#include <QToolButton>

#include "WindowYard.h"

using namespace NXMEDIALIBRARY;
using Id = PanelActions::Id;

namespace {

/// The window with a project that has folders in a folder, and pictures.
struct Yard : WindowYard
{
    Yard()
    {
        openFilm();
        import({picture(QStringLiteral("a.png")), picture(QStringLiteral("b.png"), Qt::blue)});
        INxFolderMedia *day = addFolder(QStringLiteral("Day 1"));
        picture(QStringLiteral("Takes/c.png"), Qt::green);
        import({dir.filePath(QStringLiteral("Takes"))}, day);
    }
    ~Yard() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    INxFolderMedia *day() const { return section()->childFolder(0); }
    INxFolderMedia *takes() const { return day()->childFolder(0); }
    QListWidget *recent() const
    {
        return window()->findChild<StartPage *>()->findChild<QListWidget *>();
    }
    QLabel *banner(const QString &part) const
    {
        const QList<QLabel *> labels = window()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->isVisible() && label->text().contains(part))
                return label;
        }
        return nullptr;
    }
    int columnOf(const QString &heading) const
    {
        const QHeaderView *header = view()->columnHeader();
        for (int column = 0; column < header->count(); ++column) {
            if (header->model()->headerData(column, Qt::Horizontal).toString() == heading)
                return column;
        }
        return -1;
    }
};

/// The texts of the dialogs that a user sees, each left with the button.
struct Told
{
    explicit Told(int button)
        : user([this, button](const NMessageDialog &dialog) {
              texts.append(dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText());
              QTest::mouseClick(DialogUser::button(dialog, button), Qt::LeftButton);
          })
    {
    }

    QStringList texts;
    const DialogUser user;
};

} // namespace

/// What comes back with the next start of the program, and what when it cannot.
class tst_MainWindow_memory : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theWindowComesBackAsItWas();
    void columnsComeBack();
    void aMovedColumnThatClosesAtOnceComesBack();
    void theUsersPlaceInTheProjectComesBack();
    void aTreeThatIsAllFoldedComesBackSo();
    void eachCategoryComesBack();
    void howMediaAreShownComesBack();
    void skinAndLanguageComeBack();
    void recentProjectsOpenFromTheStartPage();
    void aProjectThatIsGoneIsOfferedAnew();
    void aFileThatIsNoProjectIsExplained();
    void aProjectThatSomebodyHoldsCanBeLookedAt();
    void spoiltMemoriesDoNoHarm_data();
    void spoiltMemoriesDoNoHarm();
    void aProjectDroppedOnTheMediaOpens();
    void aClosedProjectLeavesTheStartPage();
};

void tst_MainWindow_memory::theWindowComesBackAsItWas()
{
    Yard yard;
    yard.window()->resize(900, 640);
    yard.panel()->splitter()->setSizes({300, 400});
    yard.press(Qt::Key_F8);
    yard.press(Qt::Key_F9);
    QCoreApplication::sendPostedEvents();
    const QList<int> panes = yard.panel()->splitter()->sizes();
    yard.restart();
    QCOMPARE(yard.window()->size(), QSize(900, 640));
    QVERIFY(!yard.window()->info()->isVisible());
    QVERIFY(!yard.action(Id::ShowInfo)->isChecked());
    QVERIFY(yard.action(Id::ShowReport)->isChecked());
    QTRY_COMPARE(yard.panel()->splitter()->sizes(), panes);
    yard.press(Qt::Key_F7);
    yard.restart();
    QVERIFY(!yard.tree()->isVisible());
    QVERIFY(!yard.action(Id::ShowFolders)->isChecked());
}

void tst_MainWindow_memory::columnsComeBack()
{
    Yard yard;
    yard.press(Qt::CTRL | Qt::Key_1);
    QHeaderView *header = yard.view()->columnHeader();
    const int type = yard.columnOf(QStringLiteral("Type"));
    QVERIFY(type > 0);
    header->resizeSection(type, 177);
    header->moveSection(header->visualIndex(type), header->count() - 1);
    yard.restart();
    QCOMPARE(yard.view()->viewMode(), vmList);
    header = yard.view()->columnHeader();
    QCOMPARE(header->sectionSize(type), 177);
    QCOMPARE(header->visualIndex(type), header->count() - 1);
}

void tst_MainWindow_memory::aMovedColumnThatClosesAtOnceComesBack()
{
    Yard yard;
    yard.press(Qt::CTRL | Qt::Key_1);
    const int type = yard.columnOf(QStringLiteral("Type"));
    yard.view()->columnHeader()->resizeSection(type, 133);
    QVERIFY(yard.window()->closeProject());
    yard.openFilm();
    QCOMPARE(yard.view()->columnHeader()->sectionSize(type), 133);
}

void tst_MainWindow_memory::theUsersPlaceInTheProjectComesBack()
{
    Yard yard;
    yard.pick(yard.takes());
    QCOMPARE(yard.shownFolder(), QStringLiteral("Takes"));
    const QSet<int> open = yard.tree()->expandedFolders();
    yard.restart();
    QCOMPARE(yard.shownFolder(), QStringLiteral("Takes"));
    QCOMPARE(yard.rows(), lines({"c.png"}));
    QCOMPARE(yard.tree()->expandedFolders(), open);
    yard.pick(yard.day());
    QTest::keyClick(yard.tree(), Qt::Key_Left);
    const QSet<int> folded = yard.tree()->expandedFolders();
    QVERIFY(folded != open);
    yard.restart();
    QCOMPARE(yard.tree()->expandedFolders(), folded);
}

void tst_MainWindow_memory::aTreeThatIsAllFoldedComesBackSo()
{
    Yard yard;
    yard.pick(yard.section());
    QTest::keyClick(yard.tree(), Qt::Key_Left);
    QVERIFY(!yard.tree()->isExpanded(yard.tree()->currentIndex()));
    const QString film = yard.window()->holder()->path();
    yard.memory()->setExpandedFolders(film, NXVBLMODEL::mctMedia, {}); // The other section, too.
    yard.restart();
    QVERIFY(!yard.tree()->isExpanded(yard.tree()->currentIndex()));
}

void tst_MainWindow_memory::eachCategoryComesBack()
{
    Yard yard;
    yard.pick(yard.day());
    QAction *other = nullptr;
    for (QAction *action : yard.panel()->categoryBar()->actions()) {
        if (action->isVisible() && !action->isChecked())
            other = action;
    }
    QVERIFY(other);
    const int category = other->data().toInt();
    QTest::mouseClick(yard.panel()->categoryBar()->widgetForAction(other), Qt::LeftButton);
    const QString folder = yard.shownFolder();
    yard.restart();
    QCOMPARE(int(yard.items()->categoryType()), category);
    QCOMPARE(yard.shownFolder(), folder);
    for (QAction *action : yard.panel()->categoryBar()->actions()) {
        if (action->data().toInt() == NXVBLMODEL::mctMedia)
            action->trigger();
    }
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
}

void tst_MainWindow_memory::howMediaAreShownComesBack()
{
    Yard yard;
    yard.press(Qt::CTRL | Qt::Key_4);
    yard.choose("sort", QStringLiteral("Duration"));
    yard.choose("group", QStringLiteral("Type"));
    yard.restart();
    QCOMPARE(yard.view()->viewMode(), vmLargeThumbnail);
    QCOMPARE(yard.items()->getSortBy().sortBy, sbDuration);
    QCOMPARE(yard.items()->getGroupBy().groupBy, gbType);
    QVERIFY(yard.action(Id::ViewLarge)->isChecked());
}

void tst_MainWindow_memory::skinAndLanguageComeBack()
{
    Yard yard;
    yard.choose(Id::SkinLight);
    yard.memory()->setLanguage(QStringLiteral("de"));
    yard.restart();
    QCOMPARE(NxSkinStyle::instance()->skin(), NxSkin::Light);
    QVERIFY(yard.action(Id::SkinLight)->isChecked());
    QCOMPARE(yard.window()->menuBar()->actions().constFirst()->text(), QStringLiteral("&Datei"));
}

void tst_MainWindow_memory::recentProjectsOpenFromTheStartPage()
{
    Yard yard;
    QVERIFY(yard.window()->createProject(yard.dir.filePath(QStringLiteral("other.brevano"))));
    yard.start();
    QVERIFY(!yard.project());
    QListWidget *recent = yard.recent();
    QVERIFY(recent->isVisible());
    QCOMPARE(recent->count(), 2);
    QCOMPARE(recent->item(0)->text(), QStringLiteral("other"));
    QCOMPARE(recent->item(1)->text(), QStringLiteral("film"));
    recent->setFocus();
    recent->setCurrentRow(1);
    QTest::keyClick(recent, Qt::Key_Return);
    QTRY_COMPARE(yard.window()->holder()->path(), yard.film());
    QVERIFY(!recent->isVisible());
    QVERIFY(yard.window()->windowTitle().startsWith(QLatin1String("film")));
}

void tst_MainWindow_memory::aProjectThatIsGoneIsOfferedAnew()
{
    Yard yard;
    yard.end();
    QVERIFY(QFile::rename(yard.film(), yard.dir.filePath(QStringLiteral("away"))));
    yard.start();
    {
        const Told told(mdbNegative);
        QVERIFY(!yard.window()->openProject(yard.film()));
        QCOMPARE(told.texts.size(), 1);
        QVERIFY(told.texts.constFirst().contains(QLatin1String("film.brevano")));
    }
    QVERIFY(!yard.project());
    QVERIFY(!QFile::exists(yard.film()));
    const Told told(mdbAffirmative);
    QVERIFY(yard.window()->openProject(yard.film()));
    QCOMPARE(yard.rows(), QStringList());
}

void tst_MainWindow_memory::aFileThatIsNoProjectIsExplained()
{
    Yard yard;
    yard.end();
    yard.dir.write(QStringLiteral("film.brevano"), "words");
    yard.start();
    const Told told(mdbAffirmative);
    QVERIFY(!yard.window()->openProject(yard.film()));
    QCOMPARE(told.texts.size(), 1);
    QVERIFY(!yard.project());
    QVERIFY(yard.window()->findChild<StartPage *>()->isVisible());
    QVERIFY(yard.window()->createProject(yard.dir.filePath(QStringLiteral("other.brevano"))));
    QVERIFY(!yard.window()->openProject(yard.film()));
    QCOMPARE(told.texts.size(), 2);
    QCOMPARE(QFileInfo(yard.window()->holder()->path()).fileName(),
             QStringLiteral("other.brevano"));
}

void tst_MainWindow_memory::aProjectThatSomebodyHoldsCanBeLookedAt()
{
    Yard yard;
    yard.end();
    NxEmbeddedEngine other(NxEmbeddedEngine::Options{{}, false, false, {}, 0});
    QVERIFY(bool(other.openProject(yard.film(), NxProjectOpenMode::ReadWrite)));
    yard.start();
    yard.openFilm();
    QVERIFY(yard.banner(yard.project()->readOnlyReason()));
    QVERIFY(yard.window()->windowTitle().contains(QLatin1String("read-only")));
    QVERIFY(yard.rows().contains(QStringLiteral("a.png")));
    for (const Id id : {Id::ImportFiles, Id::Paste, Id::NewFolder, Id::RemoveUnused, Id::Undo})
        QVERIFY2(!yard.action(id)->isEnabled(), qPrintable(yard.action(id)->text()));
    yard.end();
    QVERIFY(bool(other.closeProject()));
    yard.start();
    yard.openFilm();
    QVERIFY(yard.action(Id::ImportFiles)->isEnabled());
    QVERIFY(!yard.banner(QStringLiteral("read-only")));
}

void tst_MainWindow_memory::spoiltMemoriesDoNoHarm_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a word") << QVariant(QStringLiteral("nonsense"));
    QTest::newRow("a number") << QVariant(-12345);
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\x01 not a state", 16));
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("a list") << QVariant(lines({"", "../x", "[}"}));
}

void tst_MainWindow_memory::spoiltMemoriesDoNoHarm()
{
    QFETCH(const QVariant, value);
    Yard yard;
    yard.pick(yard.takes());
    yard.end();
    QVERIFY(yard.remembered().size() > 5);
    for (QVariant &one : yard.remembered())
        one = value;
    yard.remembered().insert(QStringLiteral("Window/Language"), QStringLiteral("en"));
    yard.start();
    yard.openFilm();
    QVERIFY(yard.panel()->isVisible());
    QVERIFY(yard.rows().contains(QStringLiteral("a.png")));
    QVERIFY(yard.window()->width() > 300);
}

void tst_MainWindow_memory::aProjectDroppedOnTheMediaOpens()
{
    const Yard yard;
    const QString other = yard.dir.filePath(QStringLiteral("other.brevano"));
    QVERIFY(yard.window()->createProject(other));
    QVERIFY(Yard::drop(yard.view()->viewport(), {30, 30}, *Yard::files({yard.film()})));
    QTRY_COMPARE(yard.window()->holder()->path(), yard.film());
    QVERIFY(Yard::drop(yard.tree()->viewport(), yard.folderAt(yard.day()), *Yard::files({other})));
    QTRY_COMPARE(yard.window()->holder()->path(), other);
    QCOMPARE(yard.rows(), QStringList());
}

void tst_MainWindow_memory::aClosedProjectLeavesTheStartPage()
{
    const Yard yard;
    yard.click(QStringLiteral("a.png"));
    yard.press(Qt::CTRL | Qt::Key_W);
    QVERIFY(!yard.project());
    QVERIFY(yard.window()->findChild<StartPage *>()->isVisible());
    QVERIFY(!yard.action(Id::CloseProject)->isEnabled());
    QVERIFY(!yard.action(Id::ImportFiles)->isEnabled());
    QVERIFY(!yard.action(Id::Undo)->isEnabled());
    QTRY_COMPARE(yard.window()->info()->facts().size(), 0);
    yard.recent()->setFocus();
    QVERIFY(yard.window()->openProject(yard.film()));
    QVERIFY(yard.rows().contains(QStringLiteral("a.png")));
}

NX_TEST_MAIN_WIDGETS(tst_MainWindow_memory)
#include "tst_MainWindow_memory.moc"
