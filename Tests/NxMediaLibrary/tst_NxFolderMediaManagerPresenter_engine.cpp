// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

#include "PlainTree.h"
#include "ScriptedEngine.h"

namespace {

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

/// The presenter of a real project's own media.
struct Project
{
    Project()
    {
        engine.project = project.get();
        QObject::connect(&presenter, &NxFolderMediaManagerPresenter::sigCurrentFolderChanged,
                         [this] {
                             const INxFolderMedia *current = presenter.currentFolder();
                             told.append(current ? current->name() : text("none"));
                             isAlwaysInTheTree = isAlwaysInTheTree && isInTheTree(current);
                         });
    }
    bool isInTheTree(const INxFolderMedia *folder) const
    {
        return folder == folders->rootFolder() || folders->rootFolder()->contains(folder, true);
    }
    /// What the folders are below the section.
    QString drawing() const
    {
        PlainTree plain;
        plain.load(section);
        return plain.drawing();
    }
    void import(INxFolderMedia *folder, const char *name) const
    {
        NxMediaSeed seed;
        seed.path = text("/footage/") + text(name);
        project->memory()->addNewMedia(static_cast<NxEngineFolder *>(folder), {seed});
    }
    void remove(INxFolderMedia *folder)
    {
        ScriptedUser user;
        user.press(mdbAffirmative);
        presenter.removeFolder(folder);
    }
    /// The folders of the user, those of the section first.
    QList<INxFolderMedia *> userFolders() const
    {
        QList<INxFolderMedia *> all{section};
        for (int i = 0; i < all.size(); ++i)
            all.append(all.at(i)->childFolders());
        all.removeFirst();
        return all;
    }

    std::unique_ptr<NxEngineProject> project = std::make_unique<NxEngineProject>();
    ScriptedEngine engine;
    const NxMediaEngineDoor door{&engine};
    INxUndoStack *const undo = project->undoStack();
    INxFolderMediaManager *const folders =
        project->mediaManager(NXVBLMODEL::mctMedia)->folderManager();
    INxFolderMedia *const section = folders->folder(NXVBLMODEL::fidRoot);
    NxFolderMediaManagerPresenter presenter{folders, nullptr};
    QStringList told; ///< The folders that became current.
    bool isAlwaysInTheTree = true; ///< Whether each stood in the tree when it was told.
};

} // namespace

/// Folders of a real project: every operation is one step that can be taken back, and the current
/// folder is one that is there.
class tst_NxFolderMediaManagerPresenter_engine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void operationsAreStepsOfTheirOwn();
    void refusedOperationsLeaveNoStep();
    void aFolderGoesWithAllThatItHolds();
    void theParentOfARemovedFolderBecomesCurrent();
    void anUndoneFolderIsLeft();
    void aMovedFolderStaysCurrent();
    void sectionsAreNotAskedAbout();
    void theProjectMayBeClosedWhileTheUserIsAsked();
    void theCurrentFolderIsAlwaysInTheTree_data();
    void theCurrentFolderIsAlwaysInTheTree();
};

void tst_NxFolderMediaManagerPresenter_engine::operationsAreStepsOfTheirOwn()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    QCOMPARE(p.undo->undoText(), text("addFolder"));
    INxFolderMedia *b = p.presenter.addFolder(p.section, text(" B "));
    QCOMPARE(b->name(), text("B"));
    QVERIFY(p.presenter.renameFolder(a, text("X")));
    QCOMPARE(p.undo->undoText(), text("renameFolder"));
    QVERIFY(p.presenter.moveFolder(b, a, 0));
    QCOMPARE(p.undo->undoText(), text("moveFolder"));
    p.remove(b);
    QCOMPARE(p.undo->undoText(), text("deleteFolder"));
    const QStringList states{QString(),   text("A"),    text("A B"),
                             text("X B"), text("X(B)"), text("X")};
    QCOMPARE(p.undo->index(), states.size() - 1);
    for (int i = states.size() - 1; i > 0; --i) {
        QCOMPARE(p.drawing(), states.at(i));
        QVERIFY(p.undo->undo());
    }
    for (const QString &state : states) {
        QCOMPARE(p.drawing(), state);
        QCOMPARE(p.undo->redo(), state != states.last());
    }
}

void tst_NxFolderMediaManagerPresenter_engine::refusedOperationsLeaveNoStep()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    INxFolderMedia *b = p.presenter.addFolder(a, text("B"));
    const int steps = p.undo->count();
    QVERIFY(!p.presenter.addFolder(p.section, text("A")));
    QVERIFY(!p.presenter.addFolder(p.section, text(" ")));
    QVERIFY(!p.presenter.addFolder(p.folders->rootFolder(), text("C")));
    QVERIFY(!p.presenter.renameFolder(a, text("  ")));
    QVERIFY(!p.presenter.renameFolder(p.section, text("C")));
    QVERIFY(!p.presenter.moveFolder(a, b, 0));
    QVERIFY(!p.presenter.moveFolder(p.section, a, 0));
    QCOMPARE(p.undo->count(), steps);
    QCOMPARE(p.drawing(), text("A(B)"));
}

void tst_NxFolderMediaManagerPresenter_engine::aFolderGoesWithAllThatItHolds()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    INxFolderMedia *b = p.presenter.addFolder(a, text("B"));
    p.import(a, "one.mp4");
    p.import(b, "two.mp4");
    const int steps = p.undo->index();
    p.remove(a);
    QCOMPARE(p.undo->index(), steps + 1);
    QCOMPARE(p.project->memory()->livingMediaCount(), 0);
    QCOMPARE(p.drawing(), QString());
    QVERIFY(p.undo->undo());
    QCOMPARE(p.project->memory()->livingMediaCount(), 2);
    QCOMPARE(p.drawing(), text("A(B)"));
}

void tst_NxFolderMediaManagerPresenter_engine::theParentOfARemovedFolderBecomesCurrent()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    INxFolderMedia *b = p.presenter.addFolder(a, text("B"));
    p.presenter.setCurrentFolder(b);
    p.remove(b);
    QCOMPARE(p.presenter.currentFolder(), a);
    QVERIFY(p.undo->undo());
    QCOMPARE(p.presenter.currentFolder(), a);
    p.presenter.setCurrentFolder(a->childFolder(0));
    p.remove(a);
    QCOMPARE(p.presenter.currentFolder(), p.section);
    QVERIFY(p.isAlwaysInTheTree);
}

void tst_NxFolderMediaManagerPresenter_engine::anUndoneFolderIsLeft()
{
    Project p;
    p.presenter.setCurrentFolder(p.presenter.addFolder(p.section, text("A")));
    p.told.clear();
    QVERIFY(p.undo->undo());
    QCOMPARE(p.told, QStringList(p.section->name()));
    QVERIFY(p.undo->redo());
    QCOMPARE(p.presenter.currentFolder(), p.section);
}

void tst_NxFolderMediaManagerPresenter_engine::aMovedFolderStaysCurrent()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    INxFolderMedia *b = p.presenter.addFolder(p.section, text("B"));
    p.presenter.setCurrentFolder(b);
    p.told.clear();
    QVERIFY(p.presenter.moveFolder(b, a, 0));
    QVERIFY(p.undo->undo());
    QVERIFY(p.undo->redo());
    QCOMPARE(p.presenter.currentFolder(), b);
    QCOMPARE(p.told, QStringList());
}

void tst_NxFolderMediaManagerPresenter_engine::sectionsAreNotAskedAbout()
{
    Project p;
    const ScriptedUser user;
    p.presenter.removeFolder(p.section);
    p.presenter.removeFolder(p.folders->rootFolder());
    QCOMPARE(user.dialogs(), 0);
}

void tst_NxFolderMediaManagerPresenter_engine::theProjectMayBeClosedWhileTheUserIsAsked()
{
    Project p;
    INxFolderMedia *a = p.presenter.addFolder(p.section, text("A"));
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&p] {
        p.engine.project = nullptr;
        p.project.reset();
    });
    p.presenter.removeFolder(a);
    QCOMPARE(user.dialogs(), 1);
    QVERIFY(!p.presenter.folderManager());
    QVERIFY(!p.presenter.currentFolder());
}

void tst_NxFolderMediaManagerPresenter_engine::theCurrentFolderIsAlwaysInTheTree_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("session %u", seed) << seed;
}

void tst_NxFolderMediaManagerPresenter_engine::theCurrentFolderIsAlwaysInTheTree()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    Project p;
    p.presenter.setCurrentFolder(p.section);
    const auto any = [&] {
        const QList<INxFolderMedia *> all = p.userFolders();
        const int place = random.bounded(all.size() + 1);
        return place == all.size() ? p.section : all.at(place);
    };
    const std::vector<std::function<void(INxFolderMedia *, const QString &)>> deeds{
        [&p](auto *folder, const QString &name) { p.presenter.addFolder(folder, name); },
        [&p](auto *folder, const QString &) { p.presenter.setCurrentFolder(folder); },
        [&](auto *folder, const QString &) {
            p.presenter.moveFolder(folder, any(), random.bounded(4) - 1);
        },
        [&p](auto *folder, const QString &) {
            if (folder != p.section)
                p.remove(folder);
        },
        [&p](auto *, const QString &) { p.undo->undo(); },
        [&p](auto *, const QString &) { p.undo->redo(); },
        [&p](auto *folder, const QString &name) { p.presenter.renameFolder(folder, name); },
    };
    for (int i = 0; i < 300; ++i) {
        deeds[size_t(random.bounded(int(deeds.size())))](any(), QString::number(i));
        QVERIFY(p.presenter.currentFolder());
        QVERIFY(p.isInTheTree(p.presenter.currentFolder()));
        QVERIFY(p.isAlwaysInTheTree);
    }
    QVERIFY(p.undo->count() > 50);
}

NX_TEST_MAIN(tst_NxFolderMediaManagerPresenter_engine)
#include "tst_NxFolderMediaManagerPresenter_engine.moc"
