// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaItemManager.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include "PresenterLog.h"
#include "ProjectDesk.h"
#include "SettingYard.h"

using namespace NXVBLMODEL;

namespace {

const QString selectionChanged = QStringLiteral("items: sigSelectItemsChanged()");

QString asked(const char *names)
{
    return QStringLiteral("items: sigSelectItems([%1])").arg(QLatin1String(names));
}

/// A panel over one category of a project that lives in memory, or in a file of the user.
class Panel
{
public:
    explicit Panel(NxMediaCategoryType type = mctMedia) : Panel(type, isFileWanted()) {}
    Panel(NxMediaCategoryType type, bool isFile)
        : m_type(type),
          m_desk(isFile ? m_dir.filePath(QStringLiteral("film.brevano")) : QString())
    {
        open();
    }

    /// Closes the file and opens it once more, as the next day.
    void reopen()
    {
        presenter.reset();
        m_desk.reopen();
        open();
    }

    INxFolderMedia *addFolder(INxFolderMedia *parent, const char *name) const
    {
        return folders->addFolder(parent, QLatin1String(name))
                   ? parent->childFolder(parent->childFolderCount() - 1)
                   : nullptr;
    }
    void import(INxFolderMedia *folder, std::initializer_list<const char *> names) const
    {
        QVector<NxMediaSeed> seeds;
        for (const char *name : names) {
            NxMediaSeed seed;
            seed.path = QStringLiteral("/footage/") + QLatin1String(name);
            seeds.append(seed);
        }
        m_desk.memory()->addNewMedia(static_cast<NxEngineFolder *>(folder), seeds);
    }
    QList<INxAbstractMedia *> listed() const { return section->items(true, true); }
    QString selection() const
    {
        QStringList names;
        for (const INxAbstractMedia *media : presenter->selectedItems())
            names.append(media->name());
        return names.join(QLatin1Char(' '));
    }
    /// Nothing is selected that the project does not list.
    bool isSelectionListed() const
    {
        const QList<INxAbstractMedia *> living = listed();
        const QList<INxAbstractMedia *> selected = presenter->selectedItems();
        return std::all_of(selected.begin(), selected.end(),
                           [&living](INxAbstractMedia *media) { return living.contains(media); });
    }

private:
    static bool isFileWanted()
    {
        QFETCH_GLOBAL(bool, isFile);
        return isFile;
    }
    void open()
    {
        undo = m_desk.undo();
        INxMediaManager *manager = m_desk.project->mediaManager(m_type);
        items = manager->itemManager();
        folders = manager->folderManager();
        section = folders->folder(fidRoot);
        presenter = std::make_unique<NxMediaItemManagerPresenter>(items, nullptr);
        presenter->setFolder(section);
        log.follow(presenter.get(), QStringLiteral("items"));
    }

    const NxMediaCategoryType m_type;
    const SettingYard m_settings;
    const NxTempDir m_dir;
    ProjectDesk m_desk;

public:
    PresenterLog log;
    INxUndoStack *undo = nullptr;
    INxMediaItemManager *items = nullptr;
    INxFolderMediaManager *folders = nullptr;
    INxFolderMedia *section = nullptr;
    std::unique_ptr<NxMediaItemManagerPresenter> presenter;
};

} // namespace

/// What is selected while a real project is changed, taken back and done again.
class tst_NxMediaItemManagerPresenter_engine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("isFile");
        QTest::newRow("memory") << false;
        QTest::newRow("file") << true;
    }

    void removedMediaAreSelectedWhenTheyComeBack()
    {
        Panel p;
        p.import(p.section, {"a", "b", "c", "d"});
        const QList<INxAbstractMedia *> all = p.listed();
        p.presenter->setSelectedItems({all[3], all[1], all[2]});
        p.log.take();
        QVERIFY(p.items->removeMediaItems(p.section, {all[1], all[3]}));
        QCOMPARE(p.log.take(), (QStringList{selectionChanged, selectionChanged}));
        QCOMPARE(p.selection(), QStringLiteral("c"));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(p.undo->undo());
            QCOMPARE(p.listed(), all);
            const QStringList lines = p.log.take();
            QCOMPARE(lines.size(), 2);
            QCOMPARE(lines.first(), selectionChanged);
            const QList<INxAbstractMedia *> selected = p.presenter->selectedItems();
            QCOMPARE(QSet<INxAbstractMedia *>(selected.begin(), selected.end()),
                     (QSet<INxAbstractMedia *>{all[1], all[3]}));
            QCOMPARE(lines.last(), asked(qUtf8Printable(p.selection())));
            QVERIFY(p.undo->redo());
            QCOMPARE(p.log.take(), (QStringList{selectionChanged, selectionChanged}));
            QCOMPARE(p.selection(), QString());
        }
    }

    void anImportThatIsDoneAgainIsSelected()
    {
        Panel p;
        p.import(p.section, {"a"});
        p.import(p.section, {"b"});
        p.presenter->setSelectedItems(p.listed());
        p.log.take();
        QVERIFY(p.undo->undo());
        QCOMPARE(p.selection(), QStringLiteral("a"));
        QCOMPARE(p.log.take(), QStringList{selectionChanged});
        QVERIFY(p.undo->redo());
        QCOMPARE(p.selection(), QStringLiteral("b"));
        QCOMPARE(p.log.take(), (QStringList{selectionChanged, asked("b")}));
    }

    void aRenameThatIsTakenBackOrDoneAgainSortsAgain()
    {
        Panel p;
        p.import(p.section, {"a", "b"});
        const QList<INxAbstractMedia *> all = p.listed();
        p.presenter->setSortBy({NXMEDIALIBRARY::sbName, NXMEDIALIBRARY::soASC});
        p.presenter->setSelectedItems({all[1]});
        QVERIFY(p.items->renameMediaItem(all[1], QStringLiteral("0")));
        p.log.take(); // What others rename does not sort by itself.
        const QString sorted = QStringLiteral("items: sigSortByChanged()");
        QVERIFY(p.undo->undo());
        QCOMPARE(p.log.take(), (QStringList{sorted, asked("b")}));
        QVERIFY(p.undo->redo());
        QCOMPARE(p.log.take(), (QStringList{sorted, asked("0")}));
        QVERIFY(p.undo->undo());
        p.log.take();
        p.import(p.section, {"c"});
        QCOMPARE(p.log.take(), QStringList());
    }

    void anImportIsNotSelectedByItself()
    {
        Panel p;
        p.import(p.section, {"a", "b"});
        QCOMPARE(p.log.take(), QStringList());
        QCOMPARE(p.selection(), QString());
    }

    void aFolderComesBackWithItsMediaSelected()
    {
        Panel p;
        INxFolderMedia *outer = p.addFolder(p.section, "outer");
        p.import(p.addFolder(outer, "inner"), {"b"});
        p.import(outer, {"a"});
        p.import(p.section, {"x"});
        p.presenter->setSelectedItems(p.listed());
        p.log.take();
        QVERIFY(p.folders->removeFolder(outer));
        QCOMPARE(p.selection(), QStringLiteral("x"));
        QVERIFY(p.undo->undo());
        const QList<INxAbstractMedia *> selected = p.presenter->selectedItems();
        QCOMPARE(selected.size(), 2);
        QVERIFY(p.isSelectionListed());
        QVERIFY(!p.selection().contains(QLatin1Char('x')));
        QVERIFY(p.undo->redo());
        QCOMPARE(p.selection(), QString());
    }

    void whatComesBackOutsideTheShownFolderIsNotSelected()
    {
        Panel p;
        INxFolderMedia *shown = p.addFolder(p.section, "shown");
        p.import(p.section, {"x"});
        p.import(shown, {"a"});
        p.presenter->setFolder(shown);
        p.presenter->setSelectedItems(shown->items(true, true));
        QVERIFY(p.items->removeMediaItems(p.section, p.section->items(false, true)));
        p.log.take();
        QVERIFY(p.undo->undo());
        QCOMPARE(p.log.take(), QStringList());
        QCOMPARE(p.selection(), QStringLiteral("a"));
    }

    void otherStepsLeaveTheSelectionAlone()
    {
        Panel p;
        p.import(p.section, {"a", "b"});
        const QList<INxAbstractMedia *> all = p.listed();
        p.presenter->setSelectedItems({all[1]});
        QVERIFY(p.items->renameMediaItem(all[0], QStringLiteral("renamed")));
        QVERIFY(p.items->setFavourite(all[0], true));
        QVERIFY(p.addFolder(p.section, "new"));
        p.log.take();
        for (int i = 0; i < 3; ++i)
            QVERIFY(p.undo->undo());
        for (int i = 0; i < 3; ++i)
            QVERIFY(p.undo->redo());
        QCOMPARE(p.log.take(), QStringList());
        QCOMPARE(p.selection(), QStringLiteral("b"));
    }

    void aMoveThatIsTakenBackIsSelected()
    {
        Panel p;
        INxFolderMedia *inner = p.addFolder(p.section, "inner");
        p.import(p.section, {"a", "b"});
        p.presenter->setSelectedItems({p.listed().first()});
        QVERIFY(p.items->moveMediaItems(nullptr, inner, {p.listed().first()}));
        QCOMPARE(p.selection(), QString());
        QVERIFY(p.undo->undo());
        QCOMPARE(p.selection(), QStringLiteral("a"));
    }

    void aFavouriteEffectIsSelectedAmongFavouritesOnly()
    {
        Panel p(mctEffect);
        INxFolderMedia *favourites = p.folders->folder(fkFavourites);
        const QList<INxAbstractMedia *> all = p.listed();
        QVERIFY(all.size() > 2);
        p.presenter->setSelectedItems({all[2]});
        QVERIFY(p.items->setFavourite(all[0], true));
        QVERIFY(p.items->setFavourite(all[0], false));
        p.log.take();
        QVERIFY(p.undo->undo());
        QVERIFY(p.undo->undo());
        QVERIFY(p.undo->redo());
        QCOMPARE(p.log.take(), QStringList());
        QCOMPARE(p.presenter->selectedItems(), QList<INxAbstractMedia *>{all[2]});
        p.presenter->setFolder(favourites);
        p.presenter->setSelectedItems({all[0]});
        QVERIFY(p.undo->redo());
        QVERIFY(p.presenter->selectedItems().isEmpty());
        QVERIFY(p.undo->undo());
        QCOMPARE(p.presenter->selectedItems(), QList<INxAbstractMedia *>{all[0]});
    }

    void removedMediaDieAndTheSelectionDoesNotKnowThem()
    {
        Panel p;
        p.import(p.section, {"a", "b", "c"});
        p.presenter->setSelectedItems(p.listed());
        QVERIFY(p.items->removeMediaItems(p.section, p.listed()));
        QVERIFY(p.presenter->selectedItems().isEmpty());
        QVERIFY(p.undo->undo());
        QVERIFY(p.undo->undo());
        p.import(p.section, {"d"});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(p.isSelectionListed());
        p.presenter->setSortBy({NXMEDIALIBRARY::sbName, NXMEDIALIBRARY::soASC});
        QVERIFY(p.isSelectionListed());
    }

    void theHistoryOfYesterdaySelectsToo()
    {
        Panel p(mctMedia, true);
        p.import(p.section, {"a", "b", "c"});
        QVERIFY(p.items->removeMediaItems(p.section, p.listed().mid(1)));
        p.reopen();
        QCOMPARE(p.listed().size(), 1);
        QCOMPARE(p.selection(), QString());
        QVERIFY(p.undo->undo());
        QCOMPARE(p.listed().size(), 3);
        QCOMPARE(p.presenter->selectedItems().size(), 2);
        QVERIFY(p.isSelectionListed());
        QVERIFY(p.undo->redo());
        QCOMPARE(p.selection(), QString());
    }
};

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_engine)
#include "tst_NxMediaItemManagerPresenter_engine.moc"
