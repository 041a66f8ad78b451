// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QtGlobal>

class INxProject;
class INxUndoStack;
class NxBaseMediaPresenter;
class QWidget;

/// The private half of a presenter. Made for its presenter, which deletes it.
class NXMEDIALIBRARY_TEST_EXPORT NxBaseMediaPresenterPrivate
{
    Q_DISABLE_COPY_MOVE(NxBaseMediaPresenterPrivate)
public:
    NxBaseMediaPresenterPrivate();
    virtual ~NxBaseMediaPresenterPrivate();

    /// What dialogs are shown above; null without a view.
    [[nodiscard]] QWidget *viewWidget() const;
    /// Null when no project is open.
    [[nodiscard]] static INxProject *currentProject();
    /// Whether the open project cannot be changed; then the user was told why.
    bool tellIfReadOnly() const;
    /// Of the open project; null without one.
    [[nodiscard]] static INxUndoStack *undoStack();

    NxBaseMediaPresenter *q_ptr = nullptr; // Set by the presenter that took it over.
};
