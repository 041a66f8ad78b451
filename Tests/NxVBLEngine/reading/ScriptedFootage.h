// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Support/NxTempDir.h>

#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QFile>
#include <QStringList>

/// Files by whose names scriptedWorker knows what to do with them, and the worker's settings.
class ScriptedFootage
{
public:
    /// The manner is the name of the worker's cache folder; see scriptedWorker.cpp.
    explicit ScriptedFootage(const QString &manner = QStringLiteral("plain"));

    [[nodiscard]] QString program() const;
    [[nodiscard]] QString cacheFolder() const { return m_cache; }
    /// One worker, and limits that no test reaches by accident.
    [[nodiscard]] NxWorkerSettings settings(int workers = 1) const;
    /// The same, but whatever hangs is given up after a moment.
    [[nodiscard]] NxWorkerSettings impatient(int workers = 1) const;

    /// Writes a file; answers its absolute path. Names that begin with "dead/" lie on a drive of
    /// their own.
    [[nodiscard]] QString file(const QString &name, const QByteArray &content = "x") const;
    [[nodiscard]] static NxFileStamp stampOf(const QString &path);

    /// "NAME WISHES" of every request, in the order in which workers took them.
    [[nodiscard]] QStringList requests() const;
    /// Names alone, without the wishes, of all requests or of those with one of the wishes.
    [[nodiscard]] QStringList names(int wishes = 0xff) const;
    /// Process ids of all workers that were ever started.
    [[nodiscard]] QStringList starts() const;
    /// Until now every worker waits at files with "gated" in their names after it has opened them,
    /// and at "slow" ones before that.
    void openGate();

private:
    [[nodiscard]] QStringList log() const;

    const NxTempDir m_dir;
    const QString m_cache;
    QFile m_gate;
};

/// True when there is no such process any more, or it is dead and only not yet buried.
[[nodiscard]] bool isProcessGone(qint64 processId);
