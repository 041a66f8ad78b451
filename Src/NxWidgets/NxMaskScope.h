// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

#include <QPointer>
#include <QVector>
#include <QWidget>

/// Dims the windows that are on the screen while this object lives, and keeps the mouse from them.
///
/// Scopes nest: each dims the windows that are not dimmed yet, and undims only those. Windows that
/// open later stay bright: a dialog is shown after its scope was made.
class NXWIDGETS_EXPORT NxMaskScope
{
public:
    /// @param bright a window that stays as it is, although it is on the screen already.
    explicit NxMaskScope(const QWidget *bright = nullptr);
    ~NxMaskScope();

private:
    Q_DISABLE_COPY_MOVE(NxMaskScope)

    QVector<QPointer<QWidget>> m_masks; // Children of the windows they cover.
};
