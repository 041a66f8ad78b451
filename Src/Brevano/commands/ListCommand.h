// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/commands/Command.h>
#include <NxCore/NxResult.h>

#include <QList>
#include <QVector>

class INxAbstractMediaItem;
class INxFolderMedia;
class ProjectSession;

/// Lists the media of a project, in the order of its folders.
class ListCommand final : public Command
{
public:
    int run(const CommandLine &line, Console *console) override;

private:
    using Media = QVector<const INxAbstractMediaItem *>;

    [[nodiscard]] static NxResult<QList<INxFolderMedia *>> listedFolders(
        const ProjectSession &session, const CommandLine &line);
    [[nodiscard]] static Media mediaOf(const QList<INxFolderMedia *> &folders);
    static void printJson(const Media &media, Console *console);
    static void printTable(const Media &media, Console *console);
    [[nodiscard]] static QString sums(const Media &media);
};
