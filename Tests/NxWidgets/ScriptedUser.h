// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxDialogScript.h>

#include <QList>

#include <functional>
#include <utility>

/// A user who is told in advance how to answer the dialogs that come up while this object lives,
/// and who remembers them. No window appears, and no QApplication is needed.
///
///     ScriptedUser user;
///     user.checkAndPress(mdbAffirmative);
///     user.choose(path).whileOpen([&] { project.close(); });
///     presenter.removeMedias();
///     QCOMPARE(user.messages().first().text, ...);
///
/// A dialog that nobody expected, or one of the other kind, fails the test and counts as closed. So
/// does an answer that is left over. Make it in the test function, so that this very one fails.
class ScriptedUser : public INxDialogAnswerer
{
public:
    using Deed = std::function<void()>;

    ScriptedUser() : m_script(this) {}
    ~ScriptedUser() override
    {
        if (!m_answers.isEmpty())
            qCritical("%d dialogs never came up", m_answers.size());
    }

    /// Presses a button of the next message dialog, and leaves its check box as it is.
    ScriptedUser &press(int button)
    {
        return then(Kind::Message, [button](const NMessageDialogInfo &) { return button; });
    }
    /// The same after checking the check box.
    ScriptedUser &checkAndPress(int button)
    {
        press(button);
        m_answers.last().checks = true;
        return *this;
    }
    /// Closes the next message dialog without a choice.
    ScriptedUser &escape()
    {
        return then(Kind::Message,
                    [](const NMessageDialogInfo &info) { return info.escapeButton; });
    }
    /// Chooses a file in the next file dialog; an empty path cancels it.
    ScriptedUser &choose(const QString &path)
    {
        then(Kind::File, {});
        m_answers.last().path = path;
        return *this;
    }
    /// Done while the dialog of the latest announcement is open, before it is answered.
    ScriptedUser &whileOpen(Deed deed)
    {
        m_answers.last().deed = std::move(deed);
        return *this;
    }

    /// The message dialogs that came up, the first one first.
    [[nodiscard]] const QList<NMessageDialogInfo> &messages() const { return m_messages; }
    /// The file dialogs that came up, the first one first.
    [[nodiscard]] const QList<NxFileDialogInfo> &fileDialogs() const { return m_fileDialogs; }
    /// How many dialogs of any kind came up.
    [[nodiscard]] int dialogs() const { return m_messages.size() + m_fileDialogs.size(); }
    /// How many announced dialogs did not come up yet.
    [[nodiscard]] int waiting() const { return m_answers.size(); }

    NMessageDialogAnswer answer(const NMessageDialogInfo &info) override
    {
        m_messages += info;
        const Answer next = take(Kind::Message, info.text);
        if (!next.button)
            return {info.escapeButton, info.isCheckBoxChecked};
        if (next.checks && info.checkBoxText.isEmpty())
            qCritical("\"%s\" has no check box", qUtf8Printable(info.text));
        return {next.button(info), next.checks || info.isCheckBoxChecked};
    }
    QString chooseFile(const NxFileDialogInfo &info) override
    {
        m_fileDialogs += info;
        return take(Kind::File, info.title).path;
    }

private:
    enum class Kind { Message, File };
    using Button = std::function<int(const NMessageDialogInfo &info)>;
    struct Answer
    {
        Kind kind = Kind::Message;
        Button button; // Empty where there are none.
        bool checks = false;
        QString path;
        Deed deed;
    };

    ScriptedUser &then(Kind kind, Button button)
    {
        Answer answer;
        answer.kind = kind;
        answer.button = std::move(button);
        m_answers += answer;
        return *this;
    }
    /// The answer that is due, after its deed was done; an empty one when there is none.
    Answer take(Kind kind, const QString &asked)
    {
        if (m_answers.isEmpty() || m_answers.first().kind != kind) {
            qCritical("nobody expected this dialog: \"%s\"", qUtf8Printable(asked));
            return {};
        }
        const Answer next = m_answers.takeFirst();
        if (next.deed)
            next.deed();
        return next;
    }

    QList<Answer> m_answers;
    QList<NMessageDialogInfo> m_messages;
    QList<NxFileDialogInfo> m_fileDialogs;
    const NxDialogScript m_script;
};
