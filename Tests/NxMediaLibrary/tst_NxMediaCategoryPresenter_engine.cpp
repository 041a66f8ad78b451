// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaManager.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

#include "PresenterStand.h"
#include "TextLines.h"

using namespace NXVBLMODEL;

namespace {

/// One category of a real project.
struct Project : PresenterStand
{
    explicit Project(NxMediaCategoryType category = mctMedia)
    {
        engine.project = project.get();
        presenter =
            std::make_unique<NxMediaCategoryPresenter>(project->mediaManager(category), nullptr);
    }
    NxFolderMediaManagerPresenter *folders() const { return presenter->folderManagerPresenter(); }
    NxMediaItemManagerPresenter *items() const { return presenter->mediaItemManagerPresenter(); }
    INxFolderMedia *section() const { return folders()->folderManager()->folder(fidRoot); }
    INxFolderMedia *add(INxFolderMedia *parent, const char *name) const
    {
        return folders()->addFolder(parent, QLatin1String(name));
    }
    void remove(INxFolderMedia *folder) const
    {
        ScriptedUser user;
        user.press(mdbAffirmative);
        folders()->removeFolder(folder);
    }
    /// The folder that tree and list show; a complaint when they differ.
    QString shown() const
    {
        if (items()->folder() != folders()->currentFolder())
            return QStringLiteral("the list shows another folder");
        return items()->folder() ? items()->folder()->name() : QString();
    }

    std::unique_ptr<NxEngineProject> project = std::make_unique<NxEngineProject>();
    std::unique_ptr<NxMediaCategoryPresenter> presenter;
};

} // namespace

/// Tree and list of a real project show the same folder.
class tst_NxMediaCategoryPresenter_engine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everySectionCanBeShown_data();
    void everySectionCanBeShown();
    void listLeavesARemovedFolder();
    void listLeavesAnUndoneFolder();
    void listStaysInAMovedFolder();
    void listStaysWhileNothingCanBeSearched();
    void projectIsLeftWhenThePresenterDies();
};

void tst_NxMediaCategoryPresenter_engine::everySectionCanBeShown_data()
{
    QTest::addColumn<int>("code");
    for (int code = mctMedia; code < MediaCategoryCount; ++code)
        QTest::addRow("category %d", code) << code;
}

void tst_NxMediaCategoryPresenter_engine::everySectionCanBeShown()
{
    QFETCH(int, code);
    const Project p{NxMediaCategoryType(code)};
    const QList<INxFolderMedia *> sections =
        p.folders()->folderManager()->rootFolder()->childFolders();
    QVERIFY(!sections.isEmpty());
    for (INxFolderMedia *section : sections) {
        p.folders()->setCurrentFolder(section);
        QCOMPARE(p.items()->folder(), section);
        QCOMPARE(p.items()->getCategoryTreeSelectedFolder(), section);
    }
    QCOMPARE(int(p.items()->categoryType()), code);
}

void tst_NxMediaCategoryPresenter_engine::listLeavesARemovedFolder()
{
    const Project p;
    INxFolderMedia *a = p.add(p.section(), "A");
    INxFolderMedia *b = p.add(a, "B");
    p.folders()->setCurrentFolder(b);
    QCOMPARE(p.shown(), QStringLiteral("B"));
    p.remove(b);
    QCOMPARE(p.shown(), QStringLiteral("A"));
    QVERIFY(p.project->undoStack()->undo());
    QCOMPARE(p.shown(), QStringLiteral("A"));
    p.folders()->setCurrentFolder(a->childFolder(0));
    p.remove(a);
    QCOMPARE(p.shown(), p.section()->name());
}

void tst_NxMediaCategoryPresenter_engine::listLeavesAnUndoneFolder()
{
    const Project p;
    p.folders()->setCurrentFolder(p.add(p.section(), "A"));
    QVERIFY(p.project->undoStack()->undo());
    QCOMPARE(p.shown(), p.section()->name());
}

void tst_NxMediaCategoryPresenter_engine::listStaysInAMovedFolder()
{
    Project p;
    INxFolderMedia *a = p.add(p.section(), "A");
    INxFolderMedia *b = p.add(p.section(), "B");
    p.folders()->setCurrentFolder(b);
    p.log.follow(p.items(), QStringLiteral("items"));
    QVERIFY(p.folders()->moveFolder(b, a, 0));
    QVERIFY(p.project->undoStack()->undo());
    QCOMPARE(p.shown(), QStringLiteral("B"));
    QCOMPARE(p.log.take(), QStringList());
}

void tst_NxMediaCategoryPresenter_engine::listStaysWhileNothingCanBeSearched()
{
    Project p;
    p.folders()->setCurrentFolder(p.add(p.section(), "A"));
    QVERIFY(!p.folders()->folderManager()->searchFolder());
    NxTestLog::expectError(QStringLiteral("search folder is nullptr"));
    p.items()->setFilterSimilarResource(7, mctStockMedia, QString(), false, false);
    QCOMPARE(p.shown(), QStringLiteral("A"));
    p.items()->setFilterKeyword(QStringLiteral("sea"), NXMEDIALIBRARY::esmKeyword);
    QCOMPARE(p.shown(), QStringLiteral("A"));
}

void tst_NxMediaCategoryPresenter_engine::projectIsLeftWhenThePresenterDies()
{
    Project p;
    p.folders()->setCurrentFolder(p.add(p.section(), "A"));
    QVERIFY(p.project->isObserved());
    p.presenter.reset();
    QVERIFY(!p.project->isObserved());
}

NX_TEST_MAIN(tst_NxMediaCategoryPresenter_engine)
#include "tst_NxMediaCategoryPresenter_engine.moc"
