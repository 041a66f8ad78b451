// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/Sections.h>

#include <Brevano/commands/CommandLine.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <algorithm>
#include <iterator>

namespace {

struct SectionWord
{
    const char *word;
    NXVBLMODEL::NxFolderKind kind;
};

constexpr SectionWord words[] = {
    {"project", NXVBLMODEL::fkProject},
    {"shared", NXVBLMODEL::fkShared},
};

QString chosenWord(const CommandLine &line)
{
    return line.value(CommandOptions::section).value_or(QLatin1String(words[0].word));
}

} // namespace

QString Sections::wordOf(const INxFolderMedia *section)
{
    const auto known =
        std::find_if(std::begin(words), std::end(words), [section](const SectionWord &entry) {
            return section && section->isKind(entry.kind);
        });
    return known == std::end(words) ? QString() : QString(QLatin1String(known->word));
}

QString Sections::fault(const CommandLine &line)
{
    const QString word = chosenWord(line);
    const bool isKnown =
        std::any_of(std::begin(words), std::end(words), [&word](const SectionWord &entry) {
            return word == QLatin1String(entry.word);
        });
    if (isKnown)
        return {};
    return QStringLiteral("there is no section \"%1\", only \"project\" and \"shared\"").arg(word);
}

NxResult<INxFolderMedia *> Sections::chosen(const CommandLine &line,
                                            const QList<INxFolderMedia *> &sections)
{
    const QString word = chosenWord(line);
    const auto found =
        std::find_if(sections.cbegin(), sections.cend(),
                     [&word](const INxFolderMedia *section) { return wordOf(section) == word; });
    if (found == sections.cend())
        return NxError{QStringLiteral("the project has no section \"%1\"").arg(word)};
    return *found;
}
