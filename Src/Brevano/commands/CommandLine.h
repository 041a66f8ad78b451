// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/CommandOption.h>
#include <Brevano/commands/ProgramArgument.h>
#include <NxCore/NxResult.h>

#include <QHash>

#include <optional>

/// The words of one command, sorted into options and the rest.
///
/// Options may stand anywhere, as "--into FOLDER" or "--into=FOLDER", each once at most. After
/// "--" every word is a name, whatever it begins with; "-" alone is a name, too.
class CommandLine
{
public:
    /// What cannot be understood is an error that says so.
    [[nodiscard]] static NxResult<CommandLine> parse(const ProgramArguments &words,
                                                     const QVector<CommandOption> &options);

    [[nodiscard]] bool has(const CommandOption &option) const;
    /// Nothing when the option is not there.
    [[nodiscard]] std::optional<QString> value(const CommandOption &option) const;
    /// The words that are no options, in their order.
    [[nodiscard]] const ProgramArguments &names() const { return m_names; }

private:
    [[nodiscard]] NxResult<void> readOption(const ProgramArguments &words, int *at,
                                            const QVector<CommandOption> &options);
    [[nodiscard]] NxResult<void> readValue(const ProgramArguments &words, int *at,
                                           const CommandOption &option);

    ProgramArguments m_names;
    QHash<QString, QString> m_values;
};
