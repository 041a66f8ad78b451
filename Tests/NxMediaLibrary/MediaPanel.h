// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxWidgets/NxWidgetView.h>

class NxFolderTreeView;
class NxMediaItemModel;
class NxMediaItemSelectionModel;
class NxMediaItemManagerPresenter;
class NxMediaLibraryPresenter;
class NxMediaTreeModel;
class PanelList;

/// The panel as an editor puts it together: the folders of the current category beside the media of
/// one of them, bound to the presenters.
///
/// Delete removes what the view with the focus shows selected, Ctrl+Z and Ctrl+Shift+Z go through
/// the project's history.
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
    [[nodiscard]] NxFolderTreeView *tree() const { return m_tree; }
    [[nodiscard]] NxMediaPanelBinder *binder() const { return m_binder; }
    [[nodiscard]] NxMediaItemModel *model() const { return m_binder->model(); }
    [[nodiscard]] NxMediaItemSelectionModel *selection() const;
    [[nodiscard]] NxMediaTreeModel *treeModel() const;

private:
    void serveKeys();

    PanelList *const m_list; // Children, as the next two.
    NxFolderTreeView *const m_tree;
    NxMediaPanelBinder *const m_binder;
};
