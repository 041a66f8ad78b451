// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NMessageDialog.h>

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

/// A user who sits before every message dialog that comes up while this object lives. A dialog that
/// the user leaves open fails the test and is closed, so that the test ends.
class DialogUser : public QObject
{
public:
    using Deed = std::function<void(NMessageDialog &dialog)>;

    /// @param deed what the user does once the dialog is there and waits.
    explicit DialogUser(Deed deed) : m_deed(std::move(deed)) { qApp->installEventFilter(this); }

    /// How many dialogs came up.
    [[nodiscard]] int dialogs() const { return m_dialogs; }

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

    /// Presses keys, each where the keyboard focus then is.
    static Deed typing(const QList<QKeySequence> &keys)
    {
        return [keys](const NMessageDialog &) {
            for (const QKeySequence &key : keys)
                QTest::keySequence(QApplication::focusWidget(), key);
        };
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<NMessageDialog *>(watched);
        if (dialog && event->type() == QEvent::Show && !event->spontaneous()) {
            ++m_dialogs;
            QTimer::singleShot(0, dialog, [this, dialog] { use(dialog); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void use(const QPointer<NMessageDialog> &dialog)
    {
        if (!QTest::qWaitForWindowActive(dialog) || QApplication::activeModalWidget() != dialog)
            qCritical("the dialog lets the user go on elsewhere");
        m_deed(*dialog);
        // A button that was pressed by its letter stays down for a moment.
        if (!QTest::qWaitFor([&dialog] { return !dialog || !dialog->isVisible(); })) {
            qCritical("the dialog was left open");
            dialog->reject();
        }
    }

    const Deed m_deed;
    int m_dialogs = 0;
};
