// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaManager.h>

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QtTest>

#include <memory>

#include "PlainTree.h"
#include "TreeViewer.h"

/// The tree over the folders of a real project: whatever is done, undone and done again, who looks
/// at it knows every folder.
class tst_NxMediaTreeModel_engine : public QObject
{
    Q_OBJECT

    /// The project's own media from the hidden root down.
    struct Project
    {
        Project()
        {
            model.load(folders->rootFolder());
            model.subscribeFoderManager(folders);
            static_cast<void>(viewer.takeTold());
        }
        INxFolderMedia *add(INxFolderMedia *parent, const char *name)
        {
            return folders->addFolder(parent, QLatin1String(name))
                       ? parent->childFolder(parent->childFolderCount() - 1)
                       : nullptr;
        }
        /// What the folders are below the section, by the folders themselves and by the viewer.
        QString drawing() const
        {
            PlainTree plain;
            plain.load(folders->rootFolder());
            const QString seen = viewer.drawing();
            if (seen != plain.drawing())
                return QStringLiteral("seen %1, there is %2").arg(seen, plain.drawing());
            plain.load(section);
            return plain.drawing();
        }

        std::unique_ptr<NxEngineProject> project = std::make_unique<NxEngineProject>();
        INxUndoStack *const undo = project->undoStack();
        INxFolderMediaManager *const folders =
            project->mediaManager(NXVBLMODEL::mctMedia)->folderManager();
        INxFolderMedia *const section = folders->folder(NXVBLMODEL::fidRoot);
        NxMediaTreeModel model;
        TreeViewer viewer{&model};
    };

private Q_SLOTS:
    void sectionsAreTheTopRows_data()
    {
        QTest::addColumn<int>("category");
        for (int category = 0; category < NXVBLMODEL::MediaCategoryCount; ++category)
            QTest::addRow("category %d", category) << category;
    }

    void sectionsAreTheTopRows()
    {
        QFETCH(int, category);
        NxEngineProject project;
        INxMediaManager *manager = project.mediaManager(NXVBLMODEL::NxMediaCategoryType(category));
        INxFolderMedia *root = manager->folderManager()->rootFolder();
        NxMediaTreeModel model;
        const TreeViewer viewer(&model);
        model.load(root);
        QCOMPARE(model.rowCount(), root->childFolderCount());
        for (INxFolderMedia *section : root->childFolders()) {
            const QModelIndex index = model.findIndex(section);
            QCOMPARE(index.row(), section->rowInParent());
            QVERIFY(!index.parent().isValid());
            QCOMPARE(model.data(index, Qt::ToolTipRole), QVariant(section->toolTipText()));
        }
    }

    void addedRenamedMovedAndRemovedFoldersAreFollowed()
    {
        Project p;
        INxFolderMedia *a = p.add(p.section, "A");
        INxFolderMedia *b = p.add(a, "B");
        INxFolderMedia *c = p.add(p.section, "C");
        QCOMPARE(p.drawing(), QStringLiteral("A(B) C"));
        QVERIFY(p.folders->renameFolder(b, QStringLiteral("X")));
        QVERIFY(p.folders->moveFolder(c, a, 0));
        QCOMPARE(p.drawing(), QStringLiteral("A(C X)"));
        QVERIFY(p.folders->moveFolder(b, p.section, 0));
        QCOMPARE(p.drawing(), QStringLiteral("X A(C)"));
        QVERIFY(p.folders->removeFolder(a));
        QCOMPARE(p.drawing(), QStringLiteral("X"));
        static_cast<void>(p.viewer.takeTold());
        QVERIFY(p.folders->renameFolder(b, QStringLiteral("Y")));
        QCOMPARE(p.viewer.takeTold(),
                 QStringList({QStringLiteral("changed 0/0"), QStringLiteral("changed 0")}));
        QVERIFY(p.folders->moveFolder(p.add(b, "Z"), p.section, 0));
        QCOMPARE(p.viewer.takeTold(),
                 QStringList(
                     {QStringLiteral("before inserted 0/0 0-0"), QStringLiteral("inserted 0/0 0-0"),
                      QStringLiteral("before removed 0/0 0-0"), QStringLiteral("removed 0/0 0-0"),
                      QStringLiteral("before inserted 0 0-0"), QStringLiteral("inserted 0 0-0")}));
    }

    void undoAndRedoAreFollowed()
    {
        Project p;
        INxFolderMedia *a = p.add(p.section, "A");
        p.add(a, "B");
        p.add(p.section, "C");
        QVERIFY(p.folders->renameFolder(a, QStringLiteral("X")));
        QVERIFY(p.folders->moveFolder(a, p.section, -1));
        QVERIFY(p.folders->removeFolder(a));
        const QStringList states{QString(),
                                 QStringLiteral("A"),
                                 QStringLiteral("A(B)"),
                                 QStringLiteral("A(B) C"),
                                 QStringLiteral("X(B) C"),
                                 QStringLiteral("C X(B)"),
                                 QStringLiteral("C")};
        for (int i = states.size() - 1; i > 0; --i) {
            QCOMPARE(p.drawing(), states.at(i));
            QVERIFY(p.undo->undo());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        for (const QString &state : states) {
            QCOMPARE(p.drawing(), state);
            QCOMPARE(p.undo->redo(), state != states.last());
        }
    }

    void longWorkOnFoldersIsFollowed_data()
    {
        nxAddSeeds(4);
    }

    void longWorkOnFoldersIsFollowed()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        Project p;
        const auto anyFolder = [&] {
            INxFolderMedia *folder = p.section;
            while (folder->childFolderCount() > 0 && random.bounded(3) > 0)
                folder = folder->childFolder(random.bounded(folder->childFolderCount()));
            return folder;
        };
        for (int i = 0; i < 400; ++i) {
            const QString name = QString::number(i);
            switch (random.bounded(8)) {
            case 0:
                p.folders->renameFolder(anyFolder(), name);
                break;
            case 1:
                p.folders->moveFolder(anyFolder(), anyFolder(), random.bounded(-1, 4));
                break;
            case 2:
                p.folders->removeFolder(anyFolder());
                break;
            case 3:
                p.undo->undo();
                break;
            case 4:
                p.undo->redo();
                break;
            default:
                p.folders->addFolder(anyFolder(), name);
            }
            QVERIFY2(!p.drawing().startsWith(QLatin1String("seen")), qPrintable(p.drawing()));
            QCoreApplication::processEvents(); // Removed folders die here.
        }
    }

    void aProjectThatClosesLeavesAnEmptyModel()
    {
        Project p;
        p.add(p.section, "A");
        static_cast<void>(p.viewer.takeTold());
        p.project.reset();
        QCOMPARE(p.viewer.takeTold(),
                 QStringList({QStringLiteral("before reset"), QStringLiteral("reset")}));
        QCOMPARE(p.model.rowCount(), 0);
        p.model.unSubscribeFoderManager();
    }
};

NX_TEST_MAIN(tst_NxMediaTreeModel_engine)
#include "tst_NxMediaTreeModel_engine.moc"
