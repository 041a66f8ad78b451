// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RelinkRun.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>

RelinkRun::RelinkRun(NxMediaItemManagerPresenter *presenter, Console *console,
                     const InterruptWatcher &interrupts)
    : m_presenter(presenter),
      m_console(console),
      m_interrupts(interrupts)
{
}

RelinkRun::Outcome RelinkRun::run(const QList<INxAbstractMediaItem *> &missing,
                                  const QString &directory)
{
    Outcome outcome;
    NxMissingMediaRelinker relinker(m_presenter);
    connect(&relinker, &NxMissingMediaRelinker::progress, this, &RelinkRun::onProgress);
    connect(&relinker, &NxMissingMediaRelinker::finished, this,
            [this, &outcome](const NxRelinkReport &report, int relinked) {
                outcome = {report, relinked};
                m_loop.quit();
            });
    connect(&m_interrupts, &InterruptWatcher::interrupted, &relinker,
            &NxMissingMediaRelinker::cancel);
    if (relinker.start(missing, directory))
        m_loop.exec();
    m_console->progress(QString());
    return outcome;
}

void RelinkRun::onProgress(qint64 seen, qint64 compared)
{
    constexpr int interval = 100; // ms
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < interval)
        return;
    m_sinceProgress.start();
    m_console->progress(
        QStringLiteral("%1 files seen, %2 compared (Ctrl-C stops)").arg(seen).arg(compared));
}
