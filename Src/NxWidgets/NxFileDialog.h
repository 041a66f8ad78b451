// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxFileDialogInfo.h>
#include <NxWidgets/NxWidgetsExport.h>

class QWidget;

/// Lets the user choose a file, and waits. The other windows are dimmed meanwhile. While an
/// NxDialogScript lives no window appears and the script chooses. GUI thread only.
class NXWIDGETS_EXPORT NxFileDialog
{
public:
    NxFileDialog() = delete;

    /// An existing file, as an absolute path with "/"; empty when the user chose none.
    /// @param parent may be null, and may die while the dialog waits: then nothing was chosen.
    [[nodiscard]] static QString getOpenFileName(QWidget *parent, const QString &title,
                                                 const QString &directory, const QString &filter);
    [[nodiscard]] static QString getOpenFileName(QWidget *parent, const NxFileDialogInfo &info);

    /// Where a dialog begins that is given no folder, or one that is not there, until the next one
    /// ends. Empty, as at first, or not there itself: the user's home.
    static void setStartDirectory(const QString &directory);

    /// What Qt's dialogs want: "Video (*.MP4;*.MOV)" becomes "Video (*.MP4 *.mp4 *.MOV *.mov)"
    /// where names of another case are other names, "Video (*.MP4 *.MOV)" elsewhere. Empty
    /// patterns are left out; so is a choice without any. "*.*" becomes "*", which fits names
    /// without a point too. Patterns alone are a choice without a name.
    [[nodiscard]] static QString nameFilter(const QString &filter);
};
