// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ScriptedFootage.h"

#include <EngineFixture.h>

#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxVBLModel/NxRelinkReport.h>

#include <chrono>
#include <functional>
#include <memory>

class NxDiskThread;
class NxRelinkSearch;

/// A project in memory whose files are moved and looked for.
struct MovedProject : EngineFixture
{
    enum class Worker {
        Real, ///< Makes fingerprints of the contents.
        Scripted, ///< Opens no file; fingerprints are made of names.
    };

    explicit MovedProject(Worker worker = Worker::Real,
                          const QString &manner = QStringLiteral("plain"));
    ~MovedProject();

    /// The folder in which all names below stand.
    [[nodiscard]] QString root() const;
    [[nodiscard]] QString path(const QString &name) const;
    /// Writes a file of the user, as it may lie anywhere.
    void write(const QString &name, const QByteArray &content) const;
    /// A new media of a new file, of known size.
    NxEngineMedia *add(const QString &name, const QByteArray &content);
    /// A new media of an existing file.
    NxEngineMedia *addExisting(const QString &path);
    /// The file of the media is gone, and nobody knows its size but the project.
    void lose(const NxEngineMedia *media) const;
    void move(const QString &from, const QString &to) const;
    /// Has the files of media read, and their fingerprints made.
    void identify(const QVector<NxEngineMedia *> &media);
    /// As if the file had been read, and were so many frames long.
    void setFrames(NxEngineMedia *media, qint64 frames);
    void setFingerprint(NxEngineMedia *media, const NxFingerprint &fingerprint);

    /// Made when it is asked for first, with the settings of that moment.
    NxRelinkSearch &search();
    /// Looks for the media below a folder, and waits for the report.
    NxRelinkReport find(const QVector<NxEngineMedia *> &media,
                        const QString &folder = QStringLiteral("new"));
    /// A line for each finding, paths without the root: "a.mp4: contents new/b.mp4".
    [[nodiscard]] QStringList lines(const NxRelinkReport &report) const;
    [[nodiscard]] QStringList found(const QVector<NxEngineMedia *> &media)
    {
        return lines(find(media));
    }
    /// The sentences of the report, paths without the root.
    [[nodiscard]] QStringList sentences(const NxRelinkReport &report) const;

    ScriptedFootage footage;
    NxWorkerSettings settings;
    std::chrono::milliseconds patience{60'000};
    NxFileLook look = &NxFileProbe::look;
    std::shared_ptr<NxDiskThread> disk;
    std::unique_ptr<NxRelinkSearch> m_search;
};

[[nodiscard]] QList<INxAbstractMediaItem *> asItems(const QVector<NxEngineMedia *> &media);
