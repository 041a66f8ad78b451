// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessible>
#include <QModelIndex>
#include <QPointer>

class INxAbstractMedia;
class NxMediaItemView;

/// What a row of a NxMediaItemView is to assistive programs: a media of a list, the heading of a
/// group, or a tile, which is a button.
///
/// Lives until the next reset of the model; NxMediaItemViewAccessible makes it and lets it go.
class NxMediaRowAccessible final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// The view is not owned, and may die.
    NxMediaRowAccessible(NxMediaItemView *view, int row);
    ~NxMediaRowAccessible() override;

    /// Edits a media's name, where its view edits names.
    [[nodiscard]] static const QString &renameAction();

    [[nodiscard]] int row() const { return m_row; }

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override;
    [[nodiscard]] QAccessibleInterface *parent() const override;
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    /// Of the list: offscreen, selected, focused; headings are expanded or collapsed.
    [[nodiscard]] QAccessible::State state() const override;
    /// The name says what a row looks like: name, kind, length, whether it is used or missing. The
    /// description says what stands in the list's columns.
    [[nodiscard]] QString text(QAccessible::Text text) const override;
    /// Asks for a new name of a media, as if the user had typed it.
    void setText(QAccessible::Text text, const QString &value) override;
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override;

    /// Press does what Return does. Media can be selected and unselected, and renamed, headings
    /// folded and unfolded.
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString &action) const override;
    [[nodiscard]] QString localizedActionName(const QString &action) const override;

private:
    [[nodiscard]] QModelIndex index() const;
    /// Null when the row is gone.
    [[nodiscard]] INxAbstractMedia *media() const;
    [[nodiscard]] QString columnTexts() const;

    const QPointer<NxMediaItemView> m_view; // Not owned.
    const int m_row;
};
