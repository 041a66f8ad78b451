// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandLine.h>

#include <algorithm>

namespace {

QString nameOf(const CommandOption &option)
{
    return QLatin1String(option.name);
}

bool isOption(const ProgramArgument &word)
{
    return word.text.size() > 1 && word.text.startsWith(QLatin1Char('-'));
}

} // namespace

NxResult<CommandLine> CommandLine::parse(const ProgramArguments &words,
                                         const QVector<CommandOption> &options)
{
    CommandLine line;
    bool onlyNames = false;
    for (int at = 0; at < words.size(); ++at) {
        const ProgramArgument &word = words.at(at);
        if (onlyNames || !isOption(word)) {
            line.m_names.append(word);
            continue;
        }
        if (word.text == QLatin1String("--")) {
            onlyNames = true;
            continue;
        }
        const NxResult<void> read = line.readOption(words, &at, options);
        if (!read)
            return read.error();
    }
    return line;
}

NxResult<void> CommandLine::readOption(const ProgramArguments &words, int *at,
                                       const QVector<CommandOption> &options)
{
    const QString name = words.at(*at).text.section(QLatin1Char('='), 0, 0);
    const auto known =
        std::find_if(options.cbegin(), options.cend(),
                     [&name](const CommandOption &option) { return nameOf(option) == name; });
    if (known == options.cend())
        return NxError{QStringLiteral("there is no option %1").arg(name)};
    if (m_values.contains(name))
        return NxError{QStringLiteral("%1 is there twice").arg(name)};
    return readValue(words, at, *known);
}

NxResult<void> CommandLine::readValue(const ProgramArguments &words, int *at,
                                      const CommandOption &option)
{
    const QString name = nameOf(option);
    const int equals = words.at(*at).text.indexOf(QLatin1Char('='));
    if (!option.valueName) {
        if (equals >= 0)
            return NxError{QStringLiteral("%1 takes no value").arg(name)};
        m_values.insert(name, QString());
        return {};
    }
    if (equals < 0 && *at + 1 == words.size())
        return NxError{QStringLiteral("%1 needs a %2").arg(name, QLatin1String(option.valueName))};
    const ProgramArgument &word = words.at(equals < 0 ? ++*at : *at);
    if (!word.isText)
        return NxError{QStringLiteral("the value of %1 is not UTF-8: %2").arg(name, word.text)};
    m_values.insert(name, equals < 0 ? word.text : word.text.mid(equals + 1));
    return {};
}

bool CommandLine::has(const CommandOption &option) const
{
    return m_values.contains(nameOf(option));
}

std::optional<QString> CommandLine::value(const CommandOption &option) const
{
    const auto found = m_values.constFind(nameOf(option));
    if (found == m_values.constEnd())
        return std::nullopt;
    return *found;
}
