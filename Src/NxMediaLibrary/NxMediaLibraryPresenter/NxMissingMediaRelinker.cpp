// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>

#include <NxCore/INxUndoStack.h>
#include <NxCore/NxFile.h>
#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/INxRelinkSearch.h>

#include <utility>

namespace {

bool isMissing(const INxAbstractMediaItem *item)
{
    return !item->isResource() && !item->filePath().isEmpty() && !NxFile::exists(item->filePath());
}

bool isFound(const NxRelinkFinding &finding)
{
    return finding.match == NxRelinkMatch::Fingerprint
           || finding.match == NxRelinkMatch::NameSizeDuration;
}

INxProject *currentProject()
{
    return INxProjectManager::getInstance()->currentProject();
}

} // namespace

NxMissingMediaRelinker::NxMissingMediaRelinker(NxMediaItemManagerPresenter *presenter,
                                               QObject *parent)
    : QObject(parent),
      m_presenter(presenter)
{
    if (presenter)
        connect(presenter, &QObject::destroyed, this, &NxMissingMediaRelinker::cancel);
}

NxMissingMediaRelinker::~NxMissingMediaRelinker()
{
    if (m_engine && isRunning())
        m_engine->cancel(m_search);
}

QList<INxAbstractMediaItem *> NxMissingMediaRelinker::missingMedia(const INxFolderMedia *folder)
{
    QList<INxAbstractMediaItem *> missing;
    const QList<INxAbstractMediaItem *> items = NxMediaLibraryUtils::extractItems(folder, true);
    for (INxAbstractMediaItem *item : items) {
        if (isMissing(item))
            missing.append(item);
    }
    return missing;
}

bool NxMissingMediaRelinker::start(const QList<INxAbstractMediaItem *> &items,
                                   const QString &directory)
{
    INxProject *project = currentProject();
    INxRelinkSearch *engine = project ? project->relinkSearch() : nullptr;
    if (isRunning() || !engine || !m_presenter) {
        NX_LOG_ERROR(isRunning() ? "a search for missing media runs already"
                                 : "nothing can search for missing media");
        return false;
    }
    m_paths.clear();
    for (INxAbstractMediaItem *item : items) {
        if (item)
            m_paths.insert(item, item->sourcePath());
    }
    m_engine = engine;
    connect(engine, &INxRelinkSearch::progress, this, &NxMissingMediaRelinker::onProgress);
    connect(engine, &INxRelinkSearch::finished, this, &NxMissingMediaRelinker::onFinished);
    connect(engine, &QObject::destroyed, this, &NxMissingMediaRelinker::onEngineGone);
    m_search = engine->start(items, directory);
    return true;
}

void NxMissingMediaRelinker::cancel()
{
    if (m_engine && isRunning())
        m_engine->cancel(m_search);
}

void NxMissingMediaRelinker::onProgress(quint64 search, qint64 seen, qint64 compared)
{
    if (search == m_search)
        Q_EMIT progress(seen, compared);
}

void NxMissingMediaRelinker::onFinished(quint64 search, NxRelinkReport report)
{
    if (search != m_search)
        return;
    m_search = 0;
    m_engine->disconnect(this);
    const int relinked = report.cancelled ? 0 : relinkAll(&report);
    if (report.cancelled)
        leaveToTheUser(&report);
    m_paths.clear();
    Q_EMIT finished(report, relinked);
}

int NxMissingMediaRelinker::relinkAll(NxRelinkReport *report) const
{
    INxMediaItemManager *manager = m_presenter ? m_presenter->itemManager() : nullptr;
    INxProject *project = currentProject();
    const NxUndoRedoCommander step(project ? project->undoStack() : nullptr,
                                   QStringLiteral("NxMissingMediaRelinker::onFinished"),
                                   QStringLiteral("relinkMedia"));
    int relinked = 0;
    for (NxRelinkFinding &finding : report->findings) {
        if (!isFound(finding))
            continue;
        if (relink(manager, finding))
            ++relinked;
        else
            finding.match = NxRelinkMatch::None;
    }
    return relinked;
}

// What was not looked at may match as well.
void NxMissingMediaRelinker::leaveToTheUser(NxRelinkReport *report)
{
    for (NxRelinkFinding &finding : report->findings) {
        if (isFound(finding))
            finding.match = NxRelinkMatch::Ambiguous;
    }
}

void NxMissingMediaRelinker::onEngineGone()
{
    if (!isRunning())
        return;
    m_search = 0;
    m_paths.clear();
    NxRelinkReport report;
    report.cancelled = true;
    Q_EMIT finished(report, 0);
}

bool NxMissingMediaRelinker::relink(INxMediaItemManager *manager,
                                    const NxRelinkFinding &finding) const
{
    INxAbstractMedia *media = finding.media.get();
    const bool isAsItWas =
        media && media->parentFolder() && media->sourcePath() == m_paths.value(media);
    return isAsItWas && manager && manager->relinkMedia(media, finding.paths.constFirst());
}
