// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectChecker.h>

#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxTimelineRowCheck.h>

#include <QCoreApplication>
#include <QHash>
#include <QPair>
#include <QSet>

#include <algorithm>

namespace {

constexpr int HighestSection = 1000; // Up to here folders are made by the engine, not kept.

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

QString said(const char *text, qint64 id)
{
    return translated(text).arg(id);
}

/// Checks the rows of one project against each other.
class RowCheck
{
public:
    explicit RowCheck(const NxProjectContents &contents)
        : m_contents(contents),
          m_timelines(contents)
    {
    }

    QStringList problems()
    {
        checkFolders();
        checkSiblings();
        checkMedia();
        checkFootage();
        checkCounters();
        checkUndo();
        return m_problems + m_timelines.problems();
    }

private:
    void checkFolders()
    {
        for (const NxFolderRecord &folder : m_contents.folders) {
            if (m_folders.contains(folder.id))
                m_problems += said("folder %1 is there twice", folder.id);
            m_folders.insert(folder.id, &folder);
        }
        for (const NxFolderRecord &folder : m_contents.folders) {
            if (!isFolder(folder.category, folder.parent))
                m_problems += said("folder %1 lies in a folder that is not there", folder.id);
            else if (!leadsToSection(folder))
                m_problems += said("folder %1 lies within itself", folder.id);
        }
    }

    [[nodiscard]] bool isFolder(int category, int id) const
    {
        if (id <= HighestSection)
            return id >= 0;
        const NxFolderRecord *const folder = m_folders.value(id);
        return folder && folder->category == category;
    }

    [[nodiscard]] bool leadsToSection(const NxFolderRecord &folder) const
    {
        const NxFolderRecord *above = &folder;
        for (int steps = 0; steps <= m_folders.size(); ++steps) {
            above = m_folders.value(above->parent);
            if (!above)
                return true;
        }
        return false;
    }

    void checkSiblings()
    {
        QHash<QPair<QPair<int, int>, QString>, int> names;
        for (const NxFolderRecord &folder : m_contents.folders) {
            if (!folder.alive)
                continue;
            const auto key = qMakePair(qMakePair(folder.category, folder.parent), folder.name);
            if (names.contains(key)) {
                m_problems += translated("folders %1 and %2 lie in one folder and have one name")
                                  .arg(names.value(key))
                                  .arg(folder.id);
            }
            names.insert(key, folder.id);
        }
    }

    void checkMedia()
    {
        for (const NxMediaRecord &media : m_contents.media) {
            if (m_media.contains(media.id))
                m_problems += said("media %1 is there twice", media.id);
            m_media.insert(media.id);
            if (!isFolder(media.category, media.folder))
                m_problems += said("media %1 lies in a folder that is not there", media.id);
        }
    }

    void checkFootage()
    {
        for (const NxFootageRow &row : m_contents.footage) {
            if (!m_media.contains(row.media))
                m_problems += said("facts are kept of media %1, which is not there", row.media);
        }
        if (m_contents.senselessFootage > 0) {
            m_problems += said("facts that make no sense, whose files are to be read again: %1",
                               m_contents.senselessFootage);
        }
    }

    void checkCounters()
    {
        const NxStoreEntry::Counters &counters = m_contents.counters;
        for (const NxMediaRecord &media : m_contents.media) {
            if (media.id >= counters.nextMediaId)
                m_problems += said("the number of media %1 would be given out again", media.id);
            if (media.place >= counters.nextPlace)
                m_problems += said("the place of media %1 would be given out again", media.id);
        }
        for (const NxFolderRecord &folder : m_contents.folders) {
            if (folder.id >= counters.nextFolderId)
                m_problems += said("the number of folder %1 would be given out again", folder.id);
        }
        for (const NxUndoRecord &step : m_contents.undoSteps) {
            if (step.serial >= counters.nextStepSerial) {
                m_problems +=
                    said("the number of undo step %1 would be given out again", step.serial);
            }
        }
    }

    void checkUndo()
    {
        for (const NxUndoRecord &step : m_contents.undoSteps) {
            for (const NxChange &change : step.changes) {
                if (!isKnown(change))
                    m_problems += said("undo step %1 names what is not there", step.serial);
            }
        }
    }

    [[nodiscard]] bool isKnown(const NxChange &change) const
    {
        return std::all_of(change.ids.begin(), change.ids.end(),
                           [&](qint64 id) { return isKnown(objectOf(change.what), id); });
    }

    [[nodiscard]] bool isKnown(NxObjectKind kind, qint64 id) const
    {
        switch (kind) {
        case NxObjectKind::Folder:
            return m_folders.contains(int(id));
        case NxObjectKind::Media:
            return m_media.contains(id);
        case NxObjectKind::Timeline:
            return m_timelines.knowsTimeline(id);
        case NxObjectKind::Clip:
            return m_timelines.knowsClip(id);
        case NxObjectKind::Resource:
            break; // Made by the engine, for every project.
        }
        return true;
    }

    const NxProjectContents &m_contents;
    QHash<int, const NxFolderRecord *> m_folders;
    QSet<qint64> m_media;
    NxTimelineRowCheck m_timelines;
    QStringList m_problems;
};

QStringList pageProblems(NxSqliteDatabase *database)
{
    QStringList problems;
    NxSqliteStatement check = database->prepare("PRAGMA integrity_check");
    NxSqliteStatement::Step step = NxSqliteStatement::Step::Row;
    while ((step = check.step()) == NxSqliteStatement::Step::Row) {
        const QString line = check.text(0);
        if (line != QLatin1String("ok"))
            problems += line;
    }
    if (step == NxSqliteStatement::Step::Failed)
        problems += database->failure(NxStoreDeed::Read).message;
    return problems;
}

QStringList lostChanges(NxSqliteDatabase *database)
{
    QStringList problems;
    NxSqliteStatement lost = database->prepare(
        "SELECT DISTINCT step FROM undo_change WHERE step NOT IN (SELECT serial FROM undo_step)");
    while (lost.step() == NxSqliteStatement::Step::Row)
        problems += said("a change belongs to undo step %1, which is not there", lost.integer(0));
    return problems;
}

} // namespace

QStringList NxProjectChecker::problems(NxSqliteDatabase *database)
{
    QStringList problems = pageProblems(database) + lostChanges(database);
    const NxProjectContents contents = NxProjectReader(database).read();
    if (!contents.damage.isEmpty())
        problems += contents.damage;
    return problems + problemsOf(contents);
}

QStringList NxProjectChecker::problemsOf(const NxProjectContents &contents)
{
    return RowCheck(contents).problems();
}
