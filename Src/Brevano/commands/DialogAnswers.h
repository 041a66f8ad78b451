// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxDialogScript.h>

#include <QString>

class CommandLine;
class Console;

/// Answers what the panel's presenters ask, where there is no window: by --yes or --no, or as the
/// user does on the terminal. Where neither can answer, every question is declined, and it is said
/// which option would answer it.
class DialogAnswers final : public INxDialogAnswerer
{
public:
    DialogAnswers(const CommandLine &line, Console *console);
    ~DialogAnswers() override;

    /// What is wrong with the words; empty when all is well.
    [[nodiscard]] static QString fault(const CommandLine &line);

    /// The file that is chosen when one is asked for; once.
    void setFile(const QString &path) { m_file = path; }
    /// Whether a question was declined.
    [[nodiscard]] bool isDeclined() const { return m_isDeclined; }
    /// Whether something was told that needs no choice: why an operation was refused.
    [[nodiscard]] bool isRefused() const { return m_isRefused; }

    NMessageDialogAnswer answer(const NMessageDialogInfo &info) override;
    QString chooseFile(const NxFileDialogInfo &info) override;

private:
    [[nodiscard]] bool isAffirmed(const QString &question);
    [[nodiscard]] bool askOnTerminal(const QString &question) const;

    Console *const m_console; // Not owned.
    const bool m_yes;
    const bool m_no;
    QString m_file;
    bool m_isDeclined = false;
    bool m_isRefused = false;
};
