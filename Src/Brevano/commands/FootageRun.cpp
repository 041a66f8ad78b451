// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/FootageRun.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <NxVBLModel/INxFootageService.h>

FootageRun::FootageRun(INxFootageService *service, Console *console,
                       const InterruptWatcher &interrupts)
    : m_service(service), m_console(console)
{
    connect(&interrupts, &InterruptWatcher::interrupted, this, [this] {
        m_outcome.interrupted = true;
        m_service->stop();
        m_loop.quit();
    });
    connect(m_service, &INxFootageService::idle, &m_loop, &QEventLoop::quit);
    connect(m_service, &INxFootageService::progress, this, &FootageRun::onProgress);
}

FootageRun::Outcome FootageRun::run(const Begin &begin)
{
    begin(m_service);
    if (!m_service->isIdle())
        m_loop.exec();
    m_console->progress(QString());
    m_outcome.trouble = m_service->trouble();
    return m_outcome;
}

void FootageRun::onProgress(qint64 read, qint64 known)
{
    constexpr int interval = 100; // ms
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < interval)
        return;
    m_sinceProgress.start();
    m_console->progress(
        QStringLiteral("%1 of %2 read (Ctrl-C stops; the rest is read another time)")
            .arg(read)
            .arg(known));
}
