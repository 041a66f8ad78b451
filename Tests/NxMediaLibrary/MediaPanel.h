// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxWidgets/NxWidgetView.h>

#include <QList>

#include <memory>

class INxAbstractMedia;
class NxFolderMediaManagerPresenter;
class NxMediaCategoryPresenter;
class NxMediaItemManagerPresenter;
class NxMediaItemModel;
class NxMediaItemSelectionModel;
class NxMediaLibraryPresenter;
class NxMediaTreeModel;
class PanelList;
class QTreeView;

/// The panel as an editor binds it: the folders of the current category beside the media of one of
/// them, real views over the models, which follow the presenters.
///
/// A click on the arrow of a group folds and unfolds it. Delete removes what the view with the
/// focus shows selected, F2 renames a media, a double click on one whose file is missing asks what
/// to do, Ctrl+Z and Ctrl+Shift+Z go through the project's history. Paths that another part of the
/// editor hands in are imported at once.
class MediaPanel : public NxWidgetView
{
    Q_OBJECT
public:
    /// The presenter is not owned, and lives until letGo() at least.
    explicit MediaPanel(NxMediaLibraryPresenter *library);
    ~MediaPanel() override;

    /// Follows neither presenters nor project any more, and shows nothing.
    void letGo();

    [[nodiscard]] PanelList *list() const { return m_list; }
    [[nodiscard]] QTreeView *tree() const { return m_tree; }
    [[nodiscard]] NxMediaItemModel *model() const { return m_model.get(); }
    [[nodiscard]] NxMediaItemSelectionModel *selection() const { return m_selection; }
    [[nodiscard]] NxMediaTreeModel *treeModel() const { return m_treeModel; }

private:
    [[nodiscard]] NxMediaCategoryPresenter *category() const;
    [[nodiscard]] NxMediaItemManagerPresenter *items() const;
    [[nodiscard]] NxFolderMediaManagerPresenter *folders() const;

    void layOut();
    void serveImports();
    void serveKeys();
    void showCategory();
    void followView();
    void followFolders();
    void markCurrentFolder();
    void showFolder();
    void selectRows(const QList<INxAbstractMedia *> &medias);
    void tellSelection();
    void serveClick(int usage, NxMediaItemEventCondition condition, const QModelIndex &index);
    void askAboutMissing(const QModelIndex &index);

    NxMediaLibraryPresenter *m_library; // Not owned; null once let go.
    PanelList *const m_list;
    QTreeView *const m_tree;
    NxMediaTreeModel *const m_treeModel;
    std::unique_ptr<NxMediaItemModel> m_model; // Of the category that is shown.
    NxMediaItemSelectionModel *m_selection = nullptr; // A child of the model.
};
