// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineUndoStack.h>
#include <NxVBLEngine/objects/NxMediaIdIndex.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxTimelineMemory.h>

namespace {

QString problemOfItems(const NxEngineFolder *folder, qint64 *count)
{
    qint64 lastPlace = std::numeric_limits<qint64>::min();
    for (const NxEngineItem *item : folder->ownItems()) {
        if (folder->listsGuests())
            continue;
        if (item->folder() != folder)
            return QStringLiteral("\"%1\" is listed where it does not stand").arg(item->name());
        if (item->place() <= lastPlace)
            return QStringLiteral("\"%1\" is listed out of order").arg(item->name());
        lastPlace = item->place();
        *count += item->isResource() ? 0 : 1;
    }
    return {};
}

QString problemOfTree(const NxEngineFolder *folder, qint64 *count)
{
    QString problem = problemOfItems(folder, count);
    for (int row = 0; problem.isEmpty() && row < folder->childFolderCount(); ++row) {
        const NxEngineFolder *child = folder->children()[size_t(row)];
        if (child->parentEngineFolder() != folder || child->rowInParent() != row)
            return QStringLiteral("folder \"%1\" does not know its row").arg(child->name());
        if (row > 0 && folder->children()[size_t(row) - 1]->place() >= child->place())
            return QStringLiteral("folder \"%1\" stands out of order").arg(child->name());
        problem = problemOfTree(child, count);
    }
    return problem;
}

} // namespace

QString NxProjectMemory::brokenInvariant() const
{
    qint64 listed = 0;
    for (const auto &category : m_categories) {
        const QString problem = problemOfTree(category->root(), &listed);
        if (!problem.isEmpty())
            return problem;
    }
    if (listed != m_livingMedia)
        return QStringLiteral("%1 media are listed, %2 are counted").arg(listed).arg(m_livingMedia);

    const std::vector<NxEngineMedia *> media = m_mediaById->all();
    qint64 living = 0;
    int indexed = 0;
    for (NxEngineMedia *one : media) {
        const bool isFound = allMediaByPath(one->sourcePath()).contains(one);
        if (isFound != (one->folder() != nullptr))
            return QStringLiteral("media %1 and the index of paths disagree").arg(one->id());
        living += one->folder() ? 1 : 0;
        if (one->folder())
            indexed += one->canonicalPath() == one->sourcePath() ? 1 : 2;
        if (one->id() >= m_counters.nextMediaId || one->place() >= m_counters.nextPlace)
            return QStringLiteral("media %1 is ahead of the project's counters").arg(one->id());
        if (one->usedCount() != m_timelines->useCount(one->id()))
            return QStringLiteral("media %1 miscounts its uses").arg(one->id());
    }
    if (indexed != m_mediaByPathHash.size())
        return QStringLiteral("the index of paths holds what does not live");
    if (living != m_livingMedia)
        return QStringLiteral("%1 media live, %2 are counted").arg(living).arg(m_livingMedia);
    if (m_undoStack->index() < 0 || m_undoStack->index() > m_undoStack->count())
        return QStringLiteral("the history stands outside itself");
    return m_timelines->brokenInvariant();
}
