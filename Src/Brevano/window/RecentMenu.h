// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMenu>

class WindowMemory;

/// The menu of the projects that were open lately, the latest first.
///
/// It is made anew whenever it opens. It does not look whether the projects are still there: a
/// drive that sleeps would hold the menu up.
class RecentMenu : public QMenu
{
    Q_OBJECT
public:
    /// The memory is not owned and outlives the menu.
    explicit RecentMenu(WindowMemory *memory, QWidget *parent = nullptr);
    ~RecentMenu() override;

    /// Brings the entries up to date. The menu does it itself as it opens; for who disables the
    /// menu while it has nothing to offer.
    void refresh();
    /// Whether there is a project in it.
    [[nodiscard]] bool isEmptyList() const;

Q_SIGNALS:
    /// A project was chosen.
    void sigOpen(const QString &path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void addProject(int number, const QString &path);

    WindowMemory *const m_memory; // Not owned.
};
