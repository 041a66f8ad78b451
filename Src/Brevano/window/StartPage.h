// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class PanelActions;
class QLabel;
class QListWidget;
class QToolButton;
class WindowMemory;

/// What a window without a project shows: how to make or open one, and those opened lately.
class StartPage : public QWidget
{
    Q_OBJECT
public:
    /// Neither is owned; both outlive the page.
    StartPage(PanelActions *actions, WindowMemory *memory, QWidget *parent = nullptr);
    ~StartPage() override;

    /// Brings the list of recent projects up to date.
    void refresh();

Q_SIGNALS:
    void sigOpen(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslate();

    WindowMemory *const m_memory; // Not owned.
    QLabel *const m_title; // Children.
    QLabel *const m_recentTitle;
    QListWidget *const m_recent;
};
