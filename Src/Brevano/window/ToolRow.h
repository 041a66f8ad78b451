// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/PanelActions.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QPointer>
#include <QWidget>

class NxMediaItemManagerPresenter;
class QAction;
class QActionGroup;
class QMenu;
class QToolBar;
class SearchField;

/// The tools above a list of media: import, view modes, sorting, grouping, filters and the search.
///
/// Shows how the presenter's list is shown, whoever chose it. When there is little room, texts
/// give way to icons, and then tools to a menu at the end.
class ToolRow : public QWidget
{
    Q_OBJECT
public:
    /// The actions are not owned, and must outlive the row.
    explicit ToolRow(const PanelActions *actions, QWidget *parent = nullptr);
    ~ToolRow() override;

    /// Serves the list of this presenter, which is not owned and may die; null disables all but
    /// what imports.
    void setPresenter(NxMediaItemManagerPresenter *presenter);
    [[nodiscard]] SearchField *searchField() const { return m_search; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// A button that opens a menu of choices, of which one is taken.
    struct Choice
    {
        QAction *button = nullptr;
        QMenu *menu = nullptr;
        QActionGroup *entries = nullptr;
    };

    [[nodiscard]] QAction *action(PanelActions::Id id) const { return m_actions->action(id); }
    [[nodiscard]] Choice addChoice(const QIcon &icon, const char *name);
    void addViewModes();
    void serveActions();
    void retranslate();
    void fill(const Choice &choice, const QVector<int> &values, QString (*text)(int)) const;
    void fillMenus();
    void showTexts(bool areShown);
    void measure();
    void fitWidth();

    void follow();
    void followViewMode();
    void followSort();
    void followGroup();
    void followFilter();

    void sortBy(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);
    void groupBy(const NXMEDIALIBRARY::NxMediaItemViewGroup &group);
    void clearFilters();
    [[nodiscard]] QString groupHint() const;

    const PanelActions *const m_actions; // Not owned.
    QPointer<NxMediaItemManagerPresenter> m_presenter;
    QToolBar *const m_tools;
    SearchField *const m_search;
    Choice m_import;
    Choice m_sort;
    Choice m_group;
    Choice m_type;
    int m_widthWithTexts = 0; // px, that the row needs for them.
};
