// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NMessageDialogInfo.h>
#include <NxWidgets/NxFileDialogInfo.h>
#include <NxWidgets/NxWidgetsExport.h>

#include <QtGlobal>

/// Answers dialogs where no user sits in front of a window: scripts, servers, tests.
class NXWIDGETS_EXPORT INxDialogAnswerer
{
public:
    virtual ~INxDialogAnswerer();

    /// The answer to a message dialog. What no user could answer is refused with an error line,
    /// and the dialog counts as closed: a button that it does not show, other than its escape
    /// button. A dialog without buttons shows the affirmative one.
    [[nodiscard]] virtual NMessageDialogAnswer answer(const NMessageDialogInfo &info) = 0;
    /// The path of the file that is chosen, absolute or from the process's current folder; empty:
    /// none.
    [[nodiscard]] virtual QString chooseFile(const NxFileDialogInfo &info) = 0;
};

/// While it lives, no dialog of NMessageDialog and NxFileDialog appears; its answerer answers at
/// once. Needs no window system. The latest one counts, and they end in reverse order. GUI thread
/// only.
class NXWIDGETS_EXPORT NxDialogScript
{
public:
    /// The answerer is not owned.
    explicit NxDialogScript(INxDialogAnswerer *answerer);
    ~NxDialogScript();

    /// Null while dialogs are shown to the user.
    [[nodiscard]] static INxDialogAnswerer *current();

private:
    Q_DISABLE_COPY_MOVE(NxDialogScript)
    INxDialogAnswerer *const m_outer; // Not owned; may be null.
};
