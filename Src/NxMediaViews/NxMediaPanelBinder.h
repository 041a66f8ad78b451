// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class NxFolderMediaManagerPresenter;
class NxFolderTreeView;
class NxMediaCategoryPresenter;
class NxMediaItemManagerPresenter;
class NxMediaItemModel;
class NxMediaItemView;
class NxMediaLibraryPresenter;
class NxMediaPanelBinder;
class NxMediaPanelBinderPrivate;
class NxUIView;

/// Connects a panel: what the presenters hold is what the views show, and what the user does in the
/// views the presenters do.
///
/// The category that the library presenter has is shown: its folders in the tree, the media of the
/// folder that is picked in the view, with the view mode, order, groups and filter that the item
/// presenter has, each time as the category was left. Names are edited, media selected, missing
/// files offered to be found, media put on the timeline, and files that other parts of the editor
/// hand in are imported at once, whichever category is shown.
///
/// Texts follow the language of the application while they are shown. The host calls letGo() before
/// it deletes the presenter or closes the project. GUI thread only.
class NXMEDIAVIEWS_EXPORT NxMediaPanelBinder : public QObject
{
    Q_OBJECT
public:
    /// None of them is owned; they may die in any order. The tree may be null, for a panel without
    /// one.
    /// @param panel what dialogs are shown over.
    NxMediaPanelBinder(NxUIView *panel, NxMediaItemView *view, NxFolderTreeView *tree,
                       QObject *parent = nullptr);
    ~NxMediaPanelBinder() override;

    /// Shows what this presenter has, and nothing any more of the one before; null for none.
    void setPresenter(NxMediaLibraryPresenter *presenter);
    /// The same as setPresenter(nullptr).
    void letGo() { setPresenter(nullptr); }
    [[nodiscard]] NxMediaLibraryPresenter *presenter() const;

    /// Those of the shown category; null without one.
    [[nodiscard]] NxMediaCategoryPresenter *category() const;
    [[nodiscard]] NxMediaItemManagerPresenter *items() const;
    [[nodiscard]] NxFolderMediaManagerPresenter *folders() const;
    /// Lists the media of the shown category; null without one.
    [[nodiscard]] NxMediaItemModel *model() const;
    /// How many media are listed: headers and tiles left out.
    [[nodiscard]] int listedCount() const;

    /// What is selected, which the presenter knows as well from here on. Before anything is done
    /// with the selection this is what to ask: a view that is about to be painted may be ahead of
    /// the presenter.
    [[nodiscard]] QList<INxAbstractMedia *> selection() const;
    /// Removes the selected media when the user agrees.
    void removeSelection();
    /// Goes to the folder of a media, out of a search and past filters, and selects it there.
    void showInFolder(INxAbstractMedia *media);
    /// Ends searches, and shows every type.
    void clearFilters();

Q_SIGNALS:
    /// Another category, folder or presenter is shown, or none.
    void sigShownChanged();
    /// What the view lists, or would list, changed.
    void sigRowsChanged();
    void sigSelectionChanged();
    /// Files and folders to be imported into a folder; null: into the shown one.
    void sigImportWanted(INxFolderMedia *into, const QStringList &paths);
    /// The user wants to choose what to import into the shown folder.
    void sigImportDialogWanted();
    /// A media is to be put on the timeline.
    void sigAddWanted(INxAbstractMedia *media);
    /// A media that is here was double-clicked, or Return was pressed on it.
    void sigOpenWanted(INxAbstractMedia *media);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class NxMediaPanelBinderPrivate;
    const std::unique_ptr<NxMediaPanelBinderPrivate> d;
};
