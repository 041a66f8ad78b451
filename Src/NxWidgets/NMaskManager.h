// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

#include <QtGlobal>

/// Knows whether the editor's windows are dimmed because a modal dialog waits for the user.
/// NxMaskScope dims them. GUI thread only.
class NXWIDGETS_EXPORT NMaskManager
{
public:
    /// The process's manager; never null.
    static NMaskManager *GetInstance();

    /// True while at least one NxMaskScope lives.
    [[nodiscard]] bool IsMaskVisible() const;

private:
    Q_DISABLE_COPY_MOVE(NMaskManager)
    friend class NxMaskScope;
    NMaskManager() = default;

    int m_scopes = 0;
};
