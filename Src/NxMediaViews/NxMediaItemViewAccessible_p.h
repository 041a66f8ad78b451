// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

class NxMediaItemView;
class QItemSelection;

/// What a NxMediaItemView is to assistive programs: a list of its rows, headers and tiles among
/// them.
///
/// A row is made when somebody asks for it, and goes with the next reset of the model: however many
/// rows there are, those that nobody looks at cost nothing.
class NXMEDIAVIEWS_TEST_EXPORT NxMediaItemViewAccessible final : public QAccessibleWidget
{
public:
    /// Has every view answer from now on. May be called again.
    static void install();

    /// Takes the news in place of assistive programs.
    using Listener = void (*)(QAccessibleEvent *news);
    /// Null: assistive programs are told, if there are any.
    static void setListener(Listener listener);

    // News, which cost nothing where nobody listens.

    /// Something came to a row.
    static void tell(NxMediaItemView *view, QAccessible::Event event, int row);
    static void tellSelection(NxMediaItemView *view, const QItemSelection &selected,
                              const QItemSelection &deselected);
    /// Rows were laid out anew: the current one, if the view has the focus.
    static void tellFocus(NxMediaItemView *view);
    /// What stands in which row is not known any more.
    static void dropRows(NxMediaItemView *view);

    explicit NxMediaItemViewAccessible(NxMediaItemView *view);
    ~NxMediaItemViewAccessible() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int row) const override;
    /// -1 of another view's row, and of a row that is gone.
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    /// Null beside the rows.
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    /// The field in which a name is edited, or else the current row; null without the focus.
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    void drop();

    const QPointer<NxMediaItemView> m_view; // Not owned.
    mutable QHash<int, QAccessible::Id> m_rows; // Those that were asked for.
};
