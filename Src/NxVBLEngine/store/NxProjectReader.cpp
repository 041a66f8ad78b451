// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectReader.h>

#include <NxVBLEngine/store/NxFootageTableReader.h>
#include <NxVBLEngine/store/NxNarrowing.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include <QCoreApplication>

#include <algorithm>
#include <tuple>

namespace {

using Step = NxSqliteStatement::Step;
using Table = NxTableReader::Table;

constexpr int MostCategories = 11;

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

bool isCategory(int category)
{
    return category >= 0 && category < MostCategories;
}

bool readFolder(const NxSqliteStatement &row, NxFolderRecord *folder)
{
    NxNarrowing from(row);
    folder->id = from.integer(0);
    folder->category = from.integer(1);
    folder->parent = from.integer(2);
    folder->place = row.integer(3);
    folder->name = row.text(4);
    folder->alive = from.flag(5);
    return from.fits() && folder->id > 0 && isCategory(folder->category) && folder->parent >= 0;
}

bool readOneMedia(const NxSqliteStatement &row, NxMediaRecord *media)
{
    NxNarrowing from(row);
    media->id = row.integer(0);
    media->category = from.integer(1);
    media->folder = from.integer(2);
    media->place = row.integer(3);
    media->name = row.text(4);
    media->path = row.text(5);
    media->canonicalPath = row.text(6);
    media->relativePath = row.text(7);
    media->size = row.integer(8);
    media->created = from.time(9);
    media->modified = from.time(10);
    media->favourite = from.time(11);
    media->importKind = from.integer(12);
    media->kindCode = from.integer(13);
    media->alive = from.flag(14);
    return from.fits() && media->id > 0 && isCategory(media->category) && media->folder >= 0
           && media->size >= -1;
}

bool readResource(const NxSqliteStatement &row, NxResourceRecord *resource)
{
    resource->id = row.integer(0);
    resource->name = row.text(1);
    resource->favourite = NxNarrowing(row).time(2);
    return true;
}

bool readTimeline(const NxSqliteStatement &row, NxTimelineRecord *timeline)
{
    NxNarrowing from(row);
    timeline->id = from.atLeast(1, 0);
    timeline->name = row.text(1);
    timeline->outerClip = from.atLeast(0, 2);
    timeline->alive = from.flag(3);
    return from.fits();
}

bool readClip(const NxSqliteStatement &row, NxClipRecord *clip)
{
    NxNarrowing from(row);
    clip->id = from.atLeast(1, 0);
    clip->timeline = from.atLeast(1, 1);
    clip->split = from.atLeast(0, 2);
    clip->kind = from.oneOf(3, NXVBLMODEL::ckComposite);
    clip->media = from.atLeast(0, 4);
    clip->place.track = from.integer(5);
    clip->place.position = row.integer(6);
    clip->place.length = row.integer(7);
    clip->place.inPoint = from.atLeast(0, 8);
    clip->alive = from.flag(9);
    return from.fits() && (clip->split != 0 || isPossible(clip->place));
}

bool readStep(const NxSqliteStatement &row, NxUndoRecord *step)
{
    step->serial = row.integer(0);
    step->function = row.text(1);
    step->action = row.text(2);
    return step->serial > 0;
}

struct ChangeRow
{
    qint64 id = 0;
    qint64 step = 0;
    NxChange change;
};

bool readChange(const NxSqliteStatement &row, ChangeRow *change)
{
    NxNarrowing from(row);
    change->id = row.integer(0);
    change->step = row.integer(1);
    const int kind = from.integer(2);
    change->change.what = NxChangeKind(kind);
    change->change.category = from.integer(3);
    return from.fits() && isChangeKind(kind) && isCategory(change->change.category)
           && unpackIds(row.blob(4), &change->change.ids)
           && unpackState(row.blob(5), &change->change.before)
           && unpackState(row.blob(6), &change->change.after);
}

const auto IdOf = [](const auto &row) { return qint64(row.id); };

/// Where a media is listed; the id makes it one order.
auto listedAt(const NxMediaRecord &media)
{
    return std::make_tuple(media.category, media.folder, media.place, media.id);
}

struct ListedMedia
{
    decltype(listedAt(NxMediaRecord())) at;
    size_t index;
};

/// Moves rows so that the one at order[i].index comes to stand at i.
void rearrange(std::vector<NxMediaRecord> *rows, std::vector<ListedMedia> *order)
{
    for (size_t start = 0; start < order->size(); ++start) {
        if (order->at(start).index == start)
            continue;
        NxMediaRecord first = std::move((*rows)[start]);
        size_t hole = start;
        while (true) {
            const size_t next = (*order)[hole].index;
            (*order)[hole].index = hole;
            if (next == start)
                break;
            (*rows)[hole] = std::move((*rows)[next]);
            hole = next;
        }
        (*rows)[hole] = std::move(first);
    }
}

} // namespace

NxProjectReader::NxProjectReader(NxSqliteDatabase *database)
    : m_database(database),
      m_tables(database)
{
}

NxProjectContents NxProjectReader::read(const QString &damage)
{
    if (!damage.isEmpty())
        m_damage += damage;
    readMeta();
    readFolders();
    readMedia();
    readFootage();
    readResources();
    readTimelines();
    readUndo();
    m_damage += m_tables.damage();
    const qint64 impossible = m_tables.impossible() + m_strayChanges;
    if (impossible > 0) {
        m_damage += QCoreApplication::translate("NxProjectStore",
                                                "entries with impossible values are left out: %n",
                                                nullptr, int(std::min<qint64>(impossible, 1e9)));
    }
    m_damage.removeDuplicates();
    m_contents.damage = m_damage.join(QLatin1String("; "));
    return std::move(m_contents);
}

void NxProjectReader::readMeta()
{
    NxStoreEntry::Counters &counters = m_contents.counters;
    counters.nextMediaId = metaNumber("next_media_id", 1);
    counters.nextPlace = metaNumber("next_place", 1);
    counters.nextFolderId = int(metaNumber("next_folder_id", 1001));
    counters.nextStepSerial = metaNumber("next_step_serial", 1);
    counters.nextTimelineId = metaNumber("next_timeline_id", 1);
    counters.nextClipId = metaNumber("next_clip_id", 1);
    m_contents.undoDone = int(metaNumber("undo_done", 0));

    NxSqliteStatement folder =
        m_database->prepare("SELECT value FROM meta WHERE key = 'project_folder'");
    if (folder.step() == Step::Row)
        m_contents.projectFolder = folder.text(0);
}

qint64 NxProjectReader::metaNumber(const char *key, qint64 fallback)
{
    const QByteArray sql = QByteArray("SELECT value FROM meta WHERE key = '") + key + '\'';
    NxSqliteStatement statement = m_database->prepare(sql.constData());
    if (statement.step() == Step::Row)
        return statement.integer(0);
    m_damage += translated("its counters cannot be read");
    return fallback;
}

void NxProjectReader::readFolders()
{
    const Table table{QT_TRANSLATE_NOOP("NxProjectStore", "the list of folders breaks off"),
                      "SELECT id, category, parent, place, name, alive FROM folder", "id"};
    m_tables.read(table, &m_contents.folders, readFolder, IdOf);
    std::sort(m_contents.folders.begin(), m_contents.folders.end(),
              [](const NxFolderRecord &a, const NxFolderRecord &b) {
                  return std::tie(a.category, a.id) < std::tie(b.category, b.id);
              });
}

void NxProjectReader::readMedia()
{
    const Table table{QT_TRANSLATE_NOOP("NxProjectStore", "the list of media breaks off"),
                      "SELECT id, category, folder, place, name, path, canonical_path,"
                      " relative_path, size, created, modified, favourite, import_kind, kind_code,"
                      " alive FROM media",
                      "id"};
    m_contents.media.reserve(size_t(mediaEstimate()));
    m_tables.read(table, &m_contents.media, readOneMedia, IdOf);
    sortMedia();
}

qint64 NxProjectReader::mediaEstimate()
{
    // Counting would read the whole table once more. Neither bound is exact; both are safe.
    constexpr qint64 shortestRow = 40;
    const qint64 bytes =
        m_database->number("PRAGMA page_count", 0) * m_database->number("PRAGMA page_size", 0);
    const qint64 highestId = m_database->number("SELECT max(id) FROM media", 0);
    return std::max<qint64>(0, std::min(bytes / shortestRow, highestId));
}

void NxProjectReader::sortMedia()
{
    std::vector<NxMediaRecord> &media = m_contents.media;
    const bool isSorted = std::is_sorted(
        media.begin(), media.end(),
        [](const NxMediaRecord &a, const NxMediaRecord &b) { return listedAt(a) < listedAt(b); });
    if (isSorted)
        return;

    std::vector<ListedMedia> order;
    order.reserve(media.size());
    for (size_t index = 0; index < media.size(); ++index)
        order.push_back({listedAt(media[index]), index});
    std::sort(order.begin(), order.end(),
              [](const ListedMedia &a, const ListedMedia &b) { return a.at < b.at; });
    rearrange(&media, &order);
}

void NxProjectReader::readFootage()
{
    NxFootageTableReader reader(m_database);
    reader.read(&m_contents);
    m_damage += reader.damage();
}

void NxProjectReader::readResources()
{
    const Table table{QT_TRANSLATE_NOOP("NxProjectStore", "the list of resources breaks off"),
                      "SELECT id, name, favourite FROM resource", "id"};
    m_tables.read(table, &m_contents.resources, readResource, IdOf);
}

void NxProjectReader::readTimelines()
{
    const Table timelines{QT_TRANSLATE_NOOP("NxProjectStore", "the list of timelines breaks off"),
                          "SELECT id, name, outer_clip, alive FROM timeline", "id"};
    m_tables.read(timelines, &m_contents.timelines, readTimeline, IdOf);
    const Table clips{QT_TRANSLATE_NOOP("NxProjectStore", "the list of clips breaks off"),
                      "SELECT id, timeline, split, kind, media, track, position, length, in_point,"
                      " alive FROM clip",
                      "id"};
    m_tables.read(clips, &m_contents.clips, readClip, IdOf);
}

void NxProjectReader::readUndo()
{
    const Table stepTable{QT_TRANSLATE_NOOP("NxProjectStore", "the undo steps break off"),
                          "SELECT serial, function, action FROM undo_step", "serial"};
    m_tables.read(stepTable, &m_contents.undoSteps, readStep,
                  [](const NxUndoRecord &step) { return step.serial; });

    const Table changeTable{QT_TRANSLATE_NOOP("NxProjectStore", "the undo steps break off"),
                            "SELECT id, step, kind, category, ids, before, after FROM undo_change",
                            "id"};
    std::vector<ChangeRow> changes;
    m_tables.read(changeTable, &changes, readChange, IdOf);

    std::vector<NxUndoRecord> &steps = m_contents.undoSteps;
    for (ChangeRow &row : changes) {
        const auto step = std::lower_bound(
            steps.begin(), steps.end(), row.step,
            [](const NxUndoRecord &record, qint64 serial) { return record.serial < serial; });
        if (step != steps.end() && step->serial == row.step)
            step->changes.append(std::move(row.change));
        else
            ++m_strayChanges;
    }
    const int stepCount = int(steps.size());
    if (m_contents.undoDone < 0 || m_contents.undoDone > stepCount) {
        m_damage += translated("the place within the undo steps is impossible");
        m_contents.undoDone = std::clamp(m_contents.undoDone, 0, stepCount);
    }
}
