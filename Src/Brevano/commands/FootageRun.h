// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class Console;
class INxAbstractMediaItem;
class INxFootageService;
class InterruptWatcher;

/// Has footage read and waits for it: shows how far it is, and stops when the user wants it to.
class FootageRun : public QObject
{
    Q_OBJECT
public:
    struct Outcome
    {
        bool interrupted = false;
        QString trouble; ///< Why nothing can be read at all; empty when all is well.
    };
    using Begin = std::function<void(INxFootageService *)>;

    FootageRun(INxFootageService *service, Console *console, const InterruptWatcher &interrupts);

    /// `begin` asks the service for what is to be read.
    [[nodiscard]] Outcome run(const Begin &begin);

private:
    void onProgress(qint64 read, qint64 known);

    INxFootageService *const m_service; // Not owned.
    Console *const m_console; // Not owned.
    QEventLoop m_loop;
    QElapsedTimer m_sinceProgress;
    Outcome m_outcome;
};
