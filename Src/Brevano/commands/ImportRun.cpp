// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ImportRun.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxMediaTypes.h>

ImportRun::ImportRun(INxProject *project, Console *console, const InterruptWatcher &interrupts,
                     bool tellsItems)
    : m_project(project),
      m_console(console),
      m_tellsItems(tellsItems)
{
    connect(&interrupts, &InterruptWatcher::interrupted, this, [this] {
        m_outcome.interrupted = true;
        stop();
    });
}

std::optional<ImportRun::Outcome> ImportRun::run(INxMediaImporter *importer, INxFolderMedia *into,
                                                 const QStringList &paths)
{
    m_importer = importer;
    connect(importer, &INxMediaImporter::added, this,
            [this](quint64, const QList<INxAbstractMediaItem *> &items) { onAdded(items); });
    connect(importer, &INxMediaImporter::progress, this,
            [this](quint64, qint64 found, qint64 added) { onProgress(found, added); });
    connect(importer, &INxMediaImporter::finished, this,
            [this](quint64, const NxImportReport &report) { onFinished(report); });
    m_job = importer->start(into, paths, NXVBLMODEL::mitFiles);
    if (m_job == 0)
        return std::nullopt;
    if (!m_isFinished || m_openCommits > 0)
        m_loop.exec();
    m_console->progress(QString());
    return m_outcome;
}

void ImportRun::stop()
{
    if (m_importer)
        m_importer->cancel(m_job);
}

void ImportRun::onAdded(const QList<INxAbstractMediaItem *> &items)
{
    QVector<QByteArray> lines;
    for (const INxAbstractMediaItem *item : items) {
        if (!m_tellsItems)
            break;
        JsonLine line;
        line.addText("event", QStringLiteral("added"));
        MediaFacts::addIdentity(&line, *item);
        lines.append(line.text());
    }
    m_outcome.added += items;
    ++m_openCommits;
    m_project->requestCommit([this, lines, count = items.size()](const NxResult<void> &result) {
        onCommitted(lines, count, result);
    });
}

void ImportRun::onCommitted(const QVector<QByteArray> &lines, int items,
                            const NxResult<void> &result)
{
    --m_openCommits;
    if (result) {
        m_onDisk += items;
        for (const QByteArray &line : lines)
            m_console->line(line);
    } else if (m_outcome.failure.isEmpty()) {
        m_outcome.failure = result.error().message;
        stop();
    }
    endWhenComplete();
}

void ImportRun::onProgress(qint64 found, qint64 added)
{
    constexpr int interval = 100; // ms
    if (m_sinceProgress.isValid() && m_sinceProgress.elapsed() < interval)
        return;
    m_sinceProgress.start();
    m_console->progress(QStringLiteral("%1 found, %2 added (Ctrl-C stops; what was added stays)")
                            .arg(found)
                            .arg(added));
}

void ImportRun::onFinished(const NxImportReport &report)
{
    m_outcome.report = report;
    m_isFinished = true;
    endWhenComplete();
}

void ImportRun::endWhenComplete()
{
    if (!m_isFinished || m_openCommits > 0)
        return;
    if (!m_outcome.failure.isEmpty())
        m_outcome.report.added = m_onDisk;
    m_loop.quit();
}
