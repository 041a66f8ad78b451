// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetView.h>

#include <QTimer>

class CategoryBar;
class NxFolderTreeView;
class NxMediaFolderComboBox;
class NxMediaItemView;
class NxMediaLibraryPresenter;
class NxMediaNotice;
class NxMediaPanelBinder;
class PanelActions;
class QSplitter;
class QVBoxLayout;
class ToolRow;

/// The media panel as an editor puts it together from the library's parts: the categories, the
/// folders beside the media, and the tools above them. In a narrow window a drop-down list stands
/// in for the folder tree.
class PanelView : public NxWidgetView
{
    Q_OBJECT
public:
    /// The actions are not owned, and outlive the panel.
    explicit PanelView(const PanelActions *actions, NxUIView *parent = nullptr);
    ~PanelView() override;

    /// Null shows nothing. To be called before the presenter dies.
    void setPresenter(NxMediaLibraryPresenter *presenter);
    /// Whether the user wants to see the folders.
    void setFoldersShown(bool shown);

    [[nodiscard]] NxMediaPanelBinder *binder() const { return m_binder; }
    [[nodiscard]] NxMediaItemView *view() const { return m_view; }
    [[nodiscard]] NxFolderTreeView *tree() const { return m_tree; }
    [[nodiscard]] ToolRow *toolRow() const { return m_tools; }
    [[nodiscard]] CategoryBar *categoryBar() const { return m_categories; }
    [[nodiscard]] NxMediaNotice *notice() const { return m_notice; }
    [[nodiscard]] QSplitter *splitter() const { return m_splitter; }

Q_SIGNALS:
    /// What is listed, or how much of it, changed; once for all that changes at a time.
    void sigListedChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void connectParts();
    void showCategory();
    void showCounts();
    void fitFolders();
    void reloadCombo();
    void retranslate();

    NxMediaItemView *const m_view; // Children, as all below.
    NxFolderTreeView *const m_tree;
    CategoryBar *const m_categories;
    ToolRow *const m_tools;
    NxMediaNotice *const m_notice;
    QSplitter *const m_splitter;
    NxMediaPanelBinder *const m_binder;
    QVBoxLayout *m_mediaSide = nullptr;
    NxMediaFolderComboBox *m_combo = nullptr; // Only while the panel is narrow.
    bool m_areFoldersShown = true;
    QTimer m_countsSoon;
    QTimer m_comboSoon;
};
