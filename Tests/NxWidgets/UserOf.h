// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Support/NxPatience.h>

#include <QApplication>
#include <QKeySequence>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

/// A user who sits before every dialog of one class that comes up while this object lives. A dialog
/// that the user leaves open fails the test and is closed, so that the test ends.
template<typename Dialog>
class UserOf : public QObject
{
public:
    using Deed = std::function<void(Dialog &dialog)>;

    /// @param deed what the user does once the dialog is there and waits.
    explicit UserOf(Deed deed) : m_deed(std::move(deed)) { qApp->installEventFilter(this); }

    /// How many dialogs came up.
    [[nodiscard]] int dialogs() const { return m_dialogs; }

    /// Presses keys, each where the keyboard focus then is.
    static Deed typing(const QList<QKeySequence> &keys)
    {
        return [keys](const Dialog &) {
            for (const QKeySequence &key : keys)
                QTest::keySequence(QApplication::focusWidget(), key);
        };
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<Dialog *>(watched);
        if (dialog && event->type() == QEvent::Show && !event->spontaneous()) {
            ++m_dialogs;
            QTimer::singleShot(0, dialog, [this, dialog] { use(dialog); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void use(const QPointer<Dialog> &dialog)
    {
        // A window counts as active while the one it belongs to is, but has no keys yet.
        const auto hasKeys = [&dialog] {
            return dialog && QApplication::focusWindow() == dialog->windowHandle();
        };
        if (!QTest::qWaitFor(hasKeys, NxPatience) || QApplication::activeModalWidget() != dialog)
            qCritical("the dialog lets the user go on elsewhere");
        m_deed(*dialog);
        // A button that was pressed by its letter stays down for a moment.
        if (!QTest::qWaitFor([&dialog] { return !dialog || !dialog->isVisible(); }, NxPatience)) {
            qCritical("the dialog was left open");
            dialog->reject();
        }
    }

    const Deed m_deed;
    int m_dialogs = 0;
};
