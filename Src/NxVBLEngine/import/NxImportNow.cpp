// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxImportNow.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/import/NxDirectoryWalker.h>
#include <NxVBLEngine/import/NxImportRules.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLModel/NxFolderPath.h>

#include <utility>

NxImportNow::NxImportNow(NxEngineFolder *folder)
    : m_folder(folder)
    , m_category(folder->category())
    , m_memory(m_category->memory())
    , m_folderPath(NxFolderPath::of(folder))
{
}

QList<INxAbstractMediaItem *> NxImportNow::add(const QStringList &paths)
{
    m_report.found = paths.size();
    for (const QString &path : paths)
        want(path);

    QVector<NxEngineMedia *> added;
    {
        const NxUndoRedoCommander step(m_memory->undoStack(), QStringLiteral("NxImportNow::add"),
            QStringLiteral("importMedia"));
        added = m_memory->addNewMedia(m_folder, m_seeds);
    }
    m_report.added = added.size();
    QList<INxAbstractMediaItem *> items;
    items.reserve(m_wanted.size());
    for (const Wanted &wanted : std::as_const(m_wanted)) {
        if (wanted.known)
            items.append(wanted.known);
        else if (wanted.seed < added.size())
            items.append(added.at(wanted.seed));
    }
    if (added.isEmpty())
        return items;
    m_memory->flush();
    m_category->itemObservers.tell([this](INxMediaItemEventObserver *observer) {
        observer->onAllMediaChangedFinishEvent(m_folder);
    });
    return items;
}

void NxImportNow::want(const QString &given)
{
    const QString path = NxDirectoryWalker::named(given).path;
    const QString refusal = NxImportRules::refusalOfNamed(path);
    if (!refusal.isEmpty()) {
        m_report.lines.append({given, NxImportVerdict::Refused, refusal, m_folderPath});
        ++m_report.refused;
        return;
    }
    const auto seeded = m_seedByPath.constFind(path);
    if (seeded != m_seedByPath.constEnd()) {
        m_wanted.append({nullptr, *seeded});
        m_report.lines.append({given, NxImportVerdict::AlreadyThere,
            tr("It was named twice."), m_folderPath});
        ++m_report.alreadyThere;
        return;
    }
    if (NxEngineMedia *known = m_memory->mediaByPath(path, m_category->categoryType())) {
        wantKnown(given, known);
        return;
    }
    m_wanted.append({nullptr, m_seeds.size()});
    m_seedByPath.insert(path, m_seeds.size());
    NxMediaSeed seed;
    seed.path = path;
    m_seeds.append(seed);
}

void NxImportNow::wantKnown(const QString &given, NxEngineMedia *known)
{
    m_wanted.append({known, -1});
    const QString path = NxFolderPath::of(known->parentFolder());
    m_report.lines.append({given, NxImportVerdict::AlreadyThere,
        tr("It is already in \"%1\".").arg(path.isEmpty() ? known->parentFolder()->name() : path),
        m_folderPath});
    ++m_report.alreadyThere;
}
