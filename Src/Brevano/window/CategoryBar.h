// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QPointer>
#include <QToolBar>

class NxMediaLibraryPresenter;
class QActionGroup;

/// One button for each category of the library, of which one is shown.
///
/// A category is on the bar when it has media, can be filled by the user, or waits for a service;
/// the one that is shown always is. The arrow keys, Home and End choose while the bar has the
/// keyboard; Ctrl+Tab and Ctrl+Shift+Tab go on and back from anywhere in the window. Buttons for
/// which there is no room are in a menu at the end.
class CategoryBar : public QToolBar
{
    Q_OBJECT
public:
    explicit CategoryBar(QWidget *parent = nullptr);
    ~CategoryBar() override;

    /// Shows and sets the category of this presenter, which is not owned and may die; null for
    /// none.
    void setPresenter(NxMediaLibraryPresenter *presenter);

    /// What users call a category; empty for one that has no button.
    [[nodiscard]] static QString title(NXVBLMODEL::NxMediaCategoryType category);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void choose(const QAction *action);
    void goOn(int steps);
    void follow();
    [[nodiscard]] QList<QAction *> shownActions() const;

    QPointer<NxMediaLibraryPresenter> m_presenter;
    QActionGroup *const m_categories; // A child; holds one action for each category.
};
