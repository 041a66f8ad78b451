// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NMessageDialogInfo.h>
#include <NxWidgets/NxWidgetsExport.h>

#include <QDialog>
#include <QPointer>

class QCheckBox;

/// Tells or asks the user something, and waits for the answer. The other windows are dimmed
/// meanwhile. GUI thread only.
///
/// Make it on the stack. The parent, above whose window the dialog appears, may die while the
/// dialog waits: the dialog then lets go of it, closes, and answers as if it had been closed. The
/// caller has to watch whatever else may have died.
///
/// For scripts: the buttons are QPushButtons named "button" and their code ("button2"), the
/// QCheckBox is named "checkBox", the texts are "text" and "detail".
class NXWIDGETS_EXPORT NMessageDialog : public QDialog
{
    Q_OBJECT
public:
    /// @param parent may be null: the dialog then stands in the middle of the screen.
    explicit NMessageDialog(QWidget *parent);
    ~NMessageDialog() override;

    /// Says what to show; replaces what was said before. Not while the dialog is shown.
    void Init(const NMessageDialogInfo &info);

    /// Shows the dialog and waits. Returns the code of the pressed button (NMessageDialogButton),
    /// or the escape button's when the dialog went in any other way.
    int ShowModel();

    /// Whether the check box is checked, also after the dialog was closed; false without one.
    [[nodiscard]] bool isCheckBoxChecked() const;

    /// Shows a dialog and waits for its answer; while an NxDialogScript lives nothing is shown and
    /// the script answers. The two below go the same way.
    [[nodiscard]] static NMessageDialogAnswer Ask(QWidget *parent, const NMessageDialogInfo &info);

    /// Asks a question with the buttons Yes and No; true for Yes. Closing it means No.
    /// @param title the product's name when empty.
    [[nodiscard]] static bool Question_YesNo(QWidget *parent, const QString &title,
                                             const QString &text);

    /// Tells something, with the button OK.
    /// @param title the product's name when empty.
    static void Infomation(QWidget *parent, const QString &title, const QString &text);

private:
    Q_DISABLE_COPY_MOVE(NMessageDialog)
    void letGoOfParent();
    [[nodiscard]] QWidget *makeIcon(int style) const;
    [[nodiscard]] QLayout *makeTexts(const NMessageDialogInfo &info);
    [[nodiscard]] QLayout *makeButtons(const NMessageDialogInfo &info);

    QWidget *m_content = nullptr; // All that Init() made.
    QPointer<QCheckBox> m_checkBox; // Null when there is none.
    int m_escapeButton = mdbClosed;
};
