// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "UserOf.h"

#include <NxWidgets/NMessageDialog.h>

#include <QPushButton>

/// A user of message dialogs.
class DialogUser : public UserOf<NMessageDialog>
{
public:
    using UserOf::UserOf;

    /// The button of this code; the test fails when there is none.
    static QPushButton *button(const QDialog &dialog, int code)
    {
        const QString name = QStringLiteral("button%1").arg(code);
        auto *found = dialog.findChild<QPushButton *>(name);
        if (!found)
            qCritical("the dialog has no %s", qUtf8Printable(name));
        return found;
    }

    /// Presses the button of this code with the mouse.
    static Deed clicking(int code)
    {
        return [code](const NMessageDialog &dialog) {
            if (QPushButton *pressed = button(dialog, code))
                QTest::mouseClick(pressed, Qt::LeftButton);
        };
    }
};
