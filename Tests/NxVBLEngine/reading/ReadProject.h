// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ScriptedFootage.h"

#include <EngineFixture.h>

#include <NxVBLEngine/reading/NxFootageReader.h>

#include <QStringList>

#include <functional>
#include <memory>

/// A project in memory whose files scripted workers read, and what its reader says.
struct ReadProject : EngineFixture
{
    explicit ReadProject(int workers = 1, const QString &manner = QStringLiteral("plain"));

    /// Makes the reader, once the settings are as the test wants them.
    NxFootageReader &reader();
    /// A new media of a new file; `known`: its size and time are, as after an import.
    NxEngineMedia *add(const QString &name, NxEngineFolder *folder = nullptr, bool known = true);
    NxEngineMedia *add(const char *name) { return add(QString::fromLatin1(name)); }
    QVector<NxEngineMedia *> addMany(int count);
    /// Starts to read everything and waits until nothing is left to do.
    bool startAndFinish();
    bool finish();
    /// The disk thread saw the file as it is now.
    void see(const NxEngineMedia *media);
    [[nodiscard]] NxFootageState state(const NxEngineMedia *media);
    /// How often workers were asked for the facts, or the pictures, of a file.
    [[nodiscard]] int factsAsked(const QString &name) const;
    [[nodiscard]] int picturesAsked(const QString &name) const;

    ScriptedFootage footage;
    NxWorkerSettings settings;
    QStringList read; ///< Names, as itemRead() came.
    QStringList pictured; ///< As picturesMade() came.
    QStringList progress; ///< "read/known"
    int idles = 0;
    std::vector<qint64> looksWanted;
    std::unique_ptr<NxFootageReader> m_reader;
};
