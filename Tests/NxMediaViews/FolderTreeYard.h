// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/INxUndoStack.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <Support/NxPatience.h>
#include <Support/NxTempDir.h>

#include <QApplication>
#include <QDrag>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include <functional>
#include <memory>

/// A tree whose drags a test carries out.
struct FolderTree final : NxFolderTreeView
{
    std::function<void(const QMimeData &)> carried; ///< While a folder is being dragged.

protected:
    Qt::DropAction carry(QDrag *drag) override
    {
        if (carried)
            carried(*drag->mimeData());
        drag->deleteLater();
        return Qt::IgnoreAction;
    }
};

/// A project in a file and its folder tree in a window. What goes wrong on the way fails the test
/// function.
///
///     Project Media
///       Day 1
///         Takes
///       Day 2
///     Shared Media
class FolderTreeYard
{
public:
    FolderTreeYard()
    {
        NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        take(engine.createProject(path()));
        first = add(section(), "Day 1");
        takes = add(first, "Takes");
        second = add(section(), "Day 2");
        tree->resize(300, 400);
        show(NXVBLMODEL::mctMedia);
    }
    ~FolderTreeYard()
    {
        close();
        NxConfig::Instance()->setStore(nullptr);
        NxAppSettings::instance()->setStore(nullptr);
    }

    /// The project goes, the window stays.
    void close()
    {
        library.reset();
        if (project)
            QVERIFY(bool(engine.closeProject()));
        project = nullptr;
    }
    /// The same project, which cannot be changed any more. The folders' addresses are new.
    void reopenReadOnly()
    {
        close();
        take(engine.openProject(path(), NxProjectOpenMode::ReadOnly));
        first = section()->childFolder(0);
        takes = first->childFolder(0);
        second = section()->childFolder(1);
        show(NXVBLMODEL::mctMedia);
    }
    void show(NXVBLMODEL::NxMediaCategoryType type)
    {
        library->setCurrentCategoryType(type);
        tree->setPresenter(library->getMediaCategoryPresenter(type));
        tree->show();
        QVERIFY(QTest::qWaitForWindowExposed(tree.get()));
        comeForward();
    }
    // No window manager does it here when a dialog went.
    void comeForward() const
    {
        tree->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(tree.get()));
        tree->setFocus();
    }

    [[nodiscard]] NxMediaCategoryPresenter *category() const
    {
        return library->getMediaCategoryPresenter(NXVBLMODEL::mctMedia);
    }
    [[nodiscard]] NxFolderMediaManagerPresenter *folders() const
    {
        return category()->folderManagerPresenter();
    }
    [[nodiscard]] INxFolderMedia *section() const { return folders()->folderManager()->folder(1); }
    [[nodiscard]] INxFolderMedia *shared() const { return folders()->folderManager()->folder(2); }
    [[nodiscard]] INxUndoStack *undo() const { return project->undoStack(); }
    [[nodiscard]] QString current() const { return folders()->currentFolder()->name(); }

    INxFolderMedia *add(INxFolderMedia *parent, const char *name) const
    {
        return folders()->addFolder(parent, QString::fromUtf8(name));
    }
    /// Media of files that nobody has.
    QList<INxAbstractMedia *> addMedia(INxFolderMedia *into, const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(QStringLiteral("/footage/") + name);
        (void)category()->mediaManager()->importer()->addNow(into, paths, nullptr);
        return into->items(false, true);
    }

    [[nodiscard]] QModelIndex index(const INxFolderMedia *folder) const
    {
        for (QModelIndex row = tree->model()->index(0, 0); row.isValid();
             row = tree->indexBelow(row)) {
            if (folderAt(row) == folder)
                return row;
        }
        return {};
    }
    /// The middle of a folder's row.
    [[nodiscard]] QPoint at(const INxFolderMedia *folder) const
    {
        return tree->visualRect(index(folder)).center();
    }
    /// The rows from top to bottom: two blanks for each level, "+" behind a folded one, "-" behind
    /// an unfolded one, "*" behind the current one.
    [[nodiscard]] QStringList rows() const
    {
        QStringList texts;
        for (QModelIndex row = tree->model()->index(0, 0); row.isValid();
             row = tree->indexBelow(row)) {
            const INxFolderMedia *folder = folderAt(row);
            QString text = QString(2 * (folder->depth() - 1), QLatin1Char(' ')) + folder->name();
            if (folder->hasChildFolders())
                text += tree->isExpanded(row) ? QStringLiteral(" -") : QStringLiteral(" +");
            if (row == tree->currentIndex() && tree->selectionModel()->isSelected(row))
                text += QStringLiteral(" *");
            texts.append(text);
        }
        return texts;
    }
    void click(const INxFolderMedia *folder) const
    {
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, at(folder));
    }
    void press(Qt::Key key) const { QTest::keyClick(tree.get(), key); }
    /// The field in which a name is edited; null when there is none.
    [[nodiscard]] QLineEdit *editor() const
    {
        for (QModelIndex row = tree->model()->index(0, 0); row.isValid();
             row = tree->indexBelow(row)) {
            if (auto *field = qobject_cast<QLineEdit *>(tree->indexWidget(row)))
                return field;
        }
        return nullptr;
    }
    /// Types in place of the name that is edited, and presses Return.
    void enter(const QString &text) const
    {
        QLineEdit *field = editor();
        QVERIFY(field);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_VERIFY(!editor());
    }

    const NxTempDir dir;
    NxEmbeddedEngine engine{options()};
    const NxMediaEngineDoor door{&engine};
    NxEngineProject *project = nullptr; // Not owned; null once closed.
    std::unique_ptr<NxMediaLibraryPresenter> library;
    std::unique_ptr<FolderTree> tree = std::make_unique<FolderTree>();
    INxFolderMedia *first = nullptr; // Not owned, like the next.
    INxFolderMedia *takes = nullptr;
    INxFolderMedia *second = nullptr;

private:
    [[nodiscard]] QString path() const { return dir.filePath(QStringLiteral("film.brevano")); }
    [[nodiscard]] NxEmbeddedEngine::Options options() const
    {
        NxEmbeddedEngine::Options wanted;
        wanted.backups = false;
        wanted.readsFootage = false;
        wanted.pictureFolder = dir.filePath(QStringLiteral("pictures"));
        return wanted;
    }
    void take(const NxResult<INxProject *> &opened)
    {
        QVERIFY2(bool(opened), qPrintable(opened.errorText()));
        project = static_cast<NxEngineProject *>(*opened);
        library = std::make_unique<NxMediaLibraryPresenter>(project, nullptr);
    }
};
