// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/ProgramArgument.h>

#include <QHash>
#include <QList>
#include <QStringList>
#include <QVector>

class Console;
class INxAbstractMedia;
class INxFolderMedia;

/// Which media the words of a command line mean.
///
/// A word with a separator is the path of a file, taken from the current folder when it is not
/// absolute; any other word is a name, which must fit exactly and fit one media only.
class MediaResolver
{
public:
    /// What the words mean. When there are complaints nothing should be done.
    struct Answer
    {
        QVector<INxAbstractMedia *> media; ///< Each once, in the order of the words.
        QVector<QStringList> complaints; ///< A headline each, and the lines that belong to it.
    };

    explicit MediaResolver(const QList<INxFolderMedia *> &sections);

    [[nodiscard]] Answer resolve(const ProgramArguments &words);
    /// Says the complaints of an answer; true when there are none.
    [[nodiscard]] static bool isUnderstood(const Answer &answer, Console *console);
    [[nodiscard]] static bool isPath(const QString &word);

private:
    [[nodiscard]] QVector<INxAbstractMedia *> find(const QString &word);
    [[nodiscard]] INxAbstractMedia *findPath(const QString &path) const;
    [[nodiscard]] QVector<INxAbstractMedia *> findName(const QString &name);

    const QList<INxFolderMedia *> m_sections;
    QHash<QString, QVector<INxAbstractMedia *>> m_byName; // Filled when the first name is asked.
};
