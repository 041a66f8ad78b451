// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxRelinkReport.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QString>

class Console;
class INxAbstractMediaItem;
class InterruptWatcher;
class NxMediaItemManagerPresenter;

/// Has missing media looked for and relinked, and waits for it: shows how far it is, and stops when
/// the user wants it to.
class RelinkRun : public QObject
{
    Q_OBJECT
public:
    struct Outcome
    {
        NxRelinkReport report;
        int relinked = 0;
    };

    RelinkRun(NxMediaItemManagerPresenter *presenter, Console *console,
              const InterruptWatcher &interrupts);

    [[nodiscard]] Outcome run(const QList<INxAbstractMediaItem *> &missing,
                              const QString &directory);

private:
    void onProgress(qint64 seen, qint64 compared);

    NxMediaItemManagerPresenter *const m_presenter; // Not owned.
    Console *const m_console; // Not owned.
    const InterruptWatcher &m_interrupts;
    QEventLoop m_loop;
    QElapsedTimer m_sinceProgress;
};
