// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ProgramRun.h"

#include <Support/NxTempDir.h>

/// A place for one test: a folder of footage, and one of projects beside it.
class Yard
{
public:
    /// What its clips are.
    enum class Clips {
        Named, ///< Files of which only the names count: an import does not look into them.
        Real, ///< Footage.
    };

    explicit Yard(Clips clips = Clips::Named);

    /// Writes a small file into the footage, with folders above it; answers its path.
    QString clip(const QString &name, const QByteArray &content = "clip") const;
    /// Many files: "part 00/clip 000.mp4" and so on.
    void manyClips(int folders, int files) const;

    [[nodiscard]] QString footage() const { return m_footage; }
    [[nodiscard]] QString footage(const QString &name) const;
    /// A path beside the footage.
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString project() const { return path(QStringLiteral("Film.brevano")); }
    [[nodiscard]] const NxTempDir &folder() const { return m_folder; }

    /// Runs "brevano <command> <this project> <rest>" from the yard's folder.
    ProgramResult run(const char *command, const QStringList &rest = {}) const;
    /// What `list --json` says of the media in the order of their folders; it must end with 0.
    [[nodiscard]] QVector<QJsonObject> listed(const QStringList &rest = {}) const;
    /// The rows of a `list --json` that are media.
    [[nodiscard]] static QVector<QJsonObject> mediaOf(const ProgramResult &list);
    /// The same as texts: "Holiday/Day 1: clip.mp4" for each media, in their order.
    [[nodiscard]] QStringList shown(const QStringList &rest = {}) const;
    /// The paths of all media.
    [[nodiscard]] QStringList paths() const;

private:
    const Clips m_clips;
    const NxTempDir m_folder;
    const QString m_footage;
};
