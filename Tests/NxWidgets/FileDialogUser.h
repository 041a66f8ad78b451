// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "UserOf.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

/// A user of file dialogs.
class FileDialogUser : public UserOf<QFileDialog>
{
public:
    using UserOf::UserOf;

    /// Where names are typed; the test fails when there is no such place.
    static QLineEdit *nameEdit(const QFileDialog &dialog)
    {
        auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (!edit)
            qCritical("the dialog takes no names");
        return edit;
    }

    /// Types a name in place of what stands there: at once, for names hold letters without a key.
    static void enter(const QFileDialog &dialog, const QString &name)
    {
        QLineEdit *edit = nameEdit(dialog);
        QTest::keySequence(edit, QKeySequence::SelectAll);
        QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, name, Qt::NoModifier);
    }

    /// Types a name and presses Return.
    static void choose(const QFileDialog &dialog, const QString &name)
    {
        enter(dialog, name);
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
    }
    static Deed choosing(const QString &name)
    {
        return [name](const QFileDialog &dialog) { choose(dialog, name); };
    }

    static QPushButton *button(const QFileDialog &dialog, QDialogButtonBox::StandardButton which)
    {
        return dialog.findChild<QDialogButtonBox *>()->button(which);
    }

    /// Presses one of the buttons with the mouse.
    static void click(const QFileDialog &dialog, QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(button(dialog, which), Qt::LeftButton);
    }
};
