// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ProgramResult.h"

#include <QProcess>

/// The program, started as users start it. Dies with this object.
class ProgramRun : public QProcess
{
    Q_OBJECT
public:
    /// Who runs it.
    enum class User {
        Same,
        Nobody, ///< When the tests are started as root, for whom permissions do not count.
    };

    explicit ProgramRun(User user = User::Same) : m_user(user) {}
    ~ProgramRun() override;

    /// Starts it in a folder; the tests' own when that is empty.
    void begin(const QStringList &arguments, const QString &folder = {});
    /// The same through a shell command, in which "$BREVANO" is the program and "$@" are the
    /// arguments.
    void beginShell(const QString &command, const QStringList &arguments,
                    const QString &folder = {});
    /// Kills it when it has not ended after so many milliseconds; answers whether it did.
    bool killAfter(int msec);
    /// Waits for its end.
    [[nodiscard]] ProgramResult end();
    /// Waits until its output has a whole line; false when it ends without one.
    [[nodiscard]] bool waitForLine();

    /// The whole run at once.
    [[nodiscard]] static ProgramResult run(const QStringList &arguments, const QString &folder = {},
                                           User user = User::Same);
    [[nodiscard]] static ProgramResult runShell(const QString &command,
                                                const QStringList &arguments,
                                                const QString &folder = {});

protected:
    void setupChildProcess() override;

private:
    [[nodiscard]] bool isForNobody() const;
    void launch(const QString &program, const QStringList &arguments, const QString &folder);

    const User m_user;
};
