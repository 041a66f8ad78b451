// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/INxSkinEventHandler.h>

#include <QDialog>
#include <QPair>
#include <QTimer>
#include <QVector>

class PanelActions;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

/// A window beside the panel's that lists every action with its keys, and what keys and the mouse
/// do in the list of media. Follows the texts, keys, language and skin of now.
class ShortcutSheet : public QDialog, private INxSkinEventHandler
{
    Q_OBJECT
public:
    /// @param actions not owned; they outlive the sheet.
    explicit ShortcutSheet(PanelActions *actions, QWidget *parent = nullptr);
    ~ShortcutSheet() override;

    /// The rows below a heading, action and keys, as they are shown.
    [[nodiscard]] QVector<QPair<QString, QString>> rows(const QString &heading) const;
    [[nodiscard]] QStringList headings() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void OnSkinChangedEvent(INxSkinEvent *event) override;

    void addActions();
    void addViewKeys();
    void retranslate();
    void wear();

    PanelActions *const m_actions; // Not owned.
    QTreeWidget *const m_list; // Owned by the dialog.
    QVector<QPair<QAction *, QTreeWidgetItem *>> m_rows; // Neither is owned.
    QTimer m_soon;
};
