// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>
#include <NxVBLEngine/store/NxStreamsForm.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include <optional>

namespace {

template<typename... Values>
QString line(const char *kind, const Values &...values)
{
    QStringList parts{QLatin1String(kind)};
    (parts.append(values), ...);
    return parts.join(QLatin1Char('|'));
}

QString text(qint64 number)
{
    return QString::number(number);
}

QString text(const QString &string)
{
    // Lone surrogates would be lost in printing and comparing otherwise.
    QString hex;
    for (const QChar unit : string) {
        hex += unit.isPrint() && !unit.isSurrogate()
                   ? QString(unit)
                   : QStringLiteral("\\%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
    }
    return hex;
}

QString text(const NxChangeState &state)
{
    return line("", text(state.folder), text(state.place), text(state.text), text(state.secondText),
                text(state.number));
}

QString described(const NxMediaRecord &media)
{
    return line("media", text(media.id), text(media.category), text(media.folder),
                text(media.place), text(media.name), text(media.path), text(media.canonicalPath),
                text(media.relativePath), text(media.size), text(media.created),
                text(media.modified), text(media.favourite), text(media.importKind),
                text(media.kindCode), text(media.alive ? 1 : 0));
}

QString described(const NxFolderRecord &folder)
{
    return line("folder", text(folder.id), text(folder.category), text(folder.parent),
                text(folder.place), text(folder.name), text(folder.alive ? 1 : 0));
}

QString described(const NxTimelineRecord &timeline)
{
    return line("timeline", text(timeline.id), text(timeline.name), text(timeline.outerClip),
                text(timeline.alive ? 1 : 0));
}

QString described(const NxClipRecord &clip)
{
    return line("clip", text(clip.id), text(clip.timeline), text(clip.split), text(clip.kind),
                text(clip.media), text(clip.place.track), text(clip.place.position),
                text(clip.place.length), text(clip.place.inPoint), text(clip.alive ? 1 : 0));
}

QString described(const NxChange &change)
{
    QStringList ids;
    for (const qint64 id : change.ids)
        ids += text(id);
    return line("change", text(int(change.what)), text(change.category), ids.join(QLatin1Char(',')),
                text(change.before), text(change.after));
}

QString text(const NxFingerprint &fingerprint)
{
    return line("", text(fingerprint.size), QString::number(fingerprint.high, 16),
                QString::number(fingerprint.low, 16));
}

QString described(const NxFootageRow &row, const NxProjectContents &contents)
{
    const QByteArray streams =
        row.streams < 0 ? QByteArray()
                        : NxStreamsForm::packed(contents.streams.at(size_t(row.streams))).toHex();
    return line("footage", text(row.media), text(int(row.state)), text(row.reason),
                text(row.stamp.size), text(row.stamp.modified), QString::fromLatin1(streams),
                text(row.frames), text(row.rate.num), text(row.rate.den), text(row.durationUs),
                text(row.videoBitRate), text(row.audioBitRate), text(row.shot), text(row.timecode),
                text(row.reel), text(row.fingerprint), text(int(row.cover)), text(row.coverReason),
                text(int(row.strip)), text(row.stripReason));
}

NxChangeState named(const QString &name)
{
    NxChangeState state;
    state.text = name;
    return state;
}

NxChangeState numbered(qint64 number)
{
    NxChangeState state;
    state.number = number;
    return state;
}

NxChangeState placed(int folder, qint64 place)
{
    NxChangeState state;
    state.folder = folder;
    state.place = place;
    return state;
}

/// A step with one change that is also applied.
NxStoreBatch step(qint64 serial, const NxChange &change)
{
    NxStoreBatch batch;
    batch.push_back(NxStoreEntry::StepBegin{serial, QStringLiteral("tst::step"),
                                            QStringLiteral("Step %1").arg(serial)});
    batch.push_back(NxStoreEntry::StepChange{serial, change});
    batch.push_back(NxStoreEntry::Apply{change});
    return batch;
}

} // namespace

NxMediaRecord StoreSamples::media(qint64 id, int folder)
{
    NxMediaRecord record;
    record.id = id;
    record.folder = folder;
    record.place = 10 * id;
    record.name = QStringLiteral("Clip %1").arg(id);
    record.path = QStringLiteral("/footage/holiday/Clip %1.mp4").arg(id);
    record.canonicalPath = QStringLiteral("/disk/holiday/Clip %1.mp4").arg(id);
    record.relativePath = QStringLiteral("../holiday/Clip %1.mp4").arg(id);
    record.size = 1000 + id;
    record.created = 1'600'000'000'000 + id;
    record.modified = 1'600'000'100'000 + id;
    record.favourite = 1'600'000'200'000 + id;
    record.importKind = 2;
    record.kindCode = 1;
    return record;
}

NxFolderRecord StoreSamples::folder(int id, int parent)
{
    NxFolderRecord record;
    record.id = id;
    record.parent = parent;
    record.place = id * 1024LL;
    record.name = QStringLiteral("Folder %1").arg(id);
    return record;
}

NxTimelineRecord StoreSamples::timeline(qint64 id, qint64 outerClip)
{
    NxTimelineRecord record;
    record.id = id;
    record.name = QStringLiteral("Timeline %1").arg(id);
    record.outerClip = outerClip;
    return record;
}

NxClipRecord StoreSamples::clip(qint64 id, qint64 timeline)
{
    NxClipRecord record;
    record.id = id;
    record.timeline = timeline;
    record.kind = NXVBLMODEL::ckAudio;
    const qint64 few = id % 1000; // The largest ids leave no room to count with.
    record.media = 10 + few;
    record.place = {2, 100 * few, 50, 7};
    return record;
}

NxClipRecord StoreSamples::innerClip(qint64 id, const NxClipRecord &split)
{
    NxClipRecord record = clip(id, split.timeline);
    record.split = split.id;
    record.place = {0, 0, 0, 3};
    return record;
}

NxChange StoreSamples::change(NxChangeKind kind, const QVector<qint64> &ids,
                              const NxChangeState &after)
{
    NxChange result;
    result.what = kind;
    result.ids = ids;
    result.after = after;
    return result;
}

NxStoreBatch StoreSamples::addMedia(qint64 firstId, int count)
{
    NxStoreEntry::NewMedia entry;
    for (int i = 0; i < count; ++i)
        entry.media.append(media(firstId + i));
    NxStoreEntry::Counters counters;
    counters.nextMediaId = firstId + count;
    counters.nextPlace = 10 * (firstId + count);
    return {entry, counters};
}

std::vector<NxStoreBatch> StoreSamples::session()
{
    using Kind = NxChangeKind;
    std::vector<NxStoreBatch> batches;
    NxStoreEntry::Counters counters;
    counters.nextMediaId = 1000;
    counters.nextPlace = 10000;
    counters.nextFolderId = 1010;
    counters.nextStepSerial = 100;
    counters.nextTimelineId = 20;
    counters.nextClipId = 30;
    NxStoreBatch first = addMedia(1, 60);
    first.push_back(counters);
    batches.push_back(first);
    batches.push_back(
        {NxStoreEntry::NewFolder{folder(1001)}, NxStoreEntry::NewFolder{folder(1002)}});
    batches.push_back(step(1, change(Kind::MediaRename, {3}, named(QStringLiteral("Sunset")))));
    batches.push_back(step(2, change(Kind::MediaMove, {4}, placed(1001, 77))));
    batches.push_back(step(3, change(Kind::MediaRemove, {5, 6, 7, 8})));
    batches.push_back(step(4, change(Kind::FolderRename, {1002}, named(QStringLiteral("Sea")))));
    batches.push_back(step(5, change(Kind::FolderMove, {1002}, placed(1001, 5))));
    batches.push_back(step(6, change(Kind::MediaFavourite, {9}, numbered(NxNoTime))));
    NxChange title = change(Kind::ResourceRename, {500}, named(QStringLiteral("My title")));
    title.category = 2;
    batches.push_back(step(7, title));
    batches.push_back(
        {NxStoreEntry::Apply{change(Kind::FolderRemove, {1002})}, NxStoreEntry::StepPosition{3}});
    batches.push_back(step(8, change(Kind::MediaFavourite, {10}, numbered(12))));
    batches.push_back({NxStoreEntry::StepDrop{{1, 2, 3}, {5, 6, 7, 8}, {1002}}});
    NxMediaRecord facts = media(11);
    facts.size = 99;
    facts.relativePath = QStringLiteral("elsewhere/Clip 11.mp4");
    batches.push_back({NxStoreEntry::Facts{{facts}}});
    batches.push_back(
        {NxStoreEntry::Footage{{NxFootageSamples::full(12), NxFootageSamples::full(13, 2),
                                NxFootageSamples::failed(14)}},
         NxStoreEntry::Footage{{NxFootageSamples::full(15)}}});
    NxClipRecord composite = clip(2);
    composite.kind = NXVBLMODEL::ckComposite;
    composite.media = 0;
    NxClipRecord split = clip(3);
    split.kind = NXVBLMODEL::ckSplitScreen;
    split.media = 0;
    batches.push_back({NxStoreEntry::NewTimeline{timeline(1)},
                       NxStoreEntry::NewClips{{clip(1), composite, split, innerClip(4, split)}},
                       NxStoreEntry::NewTimeline{timeline(2, 2)},
                       NxStoreEntry::NewClips{{clip(5, 2), clip(6)}}});
    batches.push_back(step(9, change(Kind::ClipMove, {1}, placed(3, 20))));
    batches.push_back(step(10, change(Kind::ClipRemove, {6})));
    batches.push_back(
        step(11, change(Kind::TimelineRename, {2}, named(QStringLiteral("Opening")))));
    return batches;
}

QStringList StoreSamples::described(const NxProjectContents &contents)
{
    QStringList lines;
    for (const NxFolderRecord &record : contents.folders)
        lines += ::described(record);
    for (const NxMediaRecord &record : contents.media)
        lines += ::described(record);
    for (const NxFootageRow &row : contents.footage)
        lines += ::described(row, contents);
    if (contents.senselessFootage != 0)
        lines += line("senseless footage", text(contents.senselessFootage));
    for (const NxResourceRecord &record : contents.resources)
        lines += line("resource", text(record.id), text(record.name), text(record.favourite));
    for (const NxTimelineRecord &record : contents.timelines)
        lines += ::described(record);
    for (const NxClipRecord &record : contents.clips)
        lines += ::described(record);
    for (const NxUndoRecord &step : contents.undoSteps) {
        lines += line("step", text(step.serial), text(step.function), text(step.action));
        for (const NxChange &change : step.changes)
            lines += ::described(change);
    }
    const NxStoreEntry::Counters &counters = contents.counters;
    lines += line("meta", text(contents.undoDone), text(counters.nextMediaId),
                  text(counters.nextPlace), text(counters.nextFolderId),
                  text(counters.nextStepSerial), text(counters.nextTimelineId),
                  text(counters.nextClipId), text(contents.projectFolder));
    if (!contents.damage.isEmpty())
        lines += contents.damage;
    return lines;
}

NxResult<void> StoreSamples::commitAndWait(NxProjectStore *store)
{
    std::optional<NxResult<void>> answer;
    store->commit([&answer](const NxResult<void> &result) { answer = result; });
    if (!QTest::qWaitFor([&answer] { return answer.has_value(); }, 30000))
        return NxError{QStringLiteral("the commit was never answered")};
    return *answer;
}

NxResult<void> StoreSamples::saveCopyAndWait(NxProjectStore *store, const QString &path)
{
    std::optional<NxResult<void>> answer;
    store->saveCopy(path, [&answer](const NxResult<void> &result) { answer = result; });
    if (!QTest::qWaitFor([&answer] { return answer.has_value(); }, 30000))
        return NxError{QStringLiteral("the copy was never answered")};
    return *answer;
}

void StoreSamples::makeProject(const QString &path, const std::vector<NxStoreBatch> &batches,
                               const NxProjectStoreOptions &options)
{
    auto store = NxProjectStore::create(path, options);
    if (!store)
        qFatal("%s", qUtf8Printable(store.errorText()));
    for (const NxStoreBatch &batch : batches)
        (*store)->write(batch);
    if (const NxResult<void> closed = (*store)->close(); !closed)
        qFatal("%s", qUtf8Printable(closed.errorText()));
}

QStringList StoreSamples::contentsOf(const QString &path)
{
    NxProjectStoreOptions options;
    options.readOnly = true;
    auto store = NxProjectStore::open(path, options);
    if (!store)
        return {store.errorText()};
    const NxResult<NxProjectContents> contents = (*store)->load();
    return contents ? described(*contents) : QStringList{contents.errorText()};
}

QHash<QString, QByteArray> StoreSamples::filesIn(const QString &folder)
{
    QHash<QString, QByteArray> files;
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names)
        files.insert(name, readFile(dir.filePath(name)));
    return files;
}

QByteArray StoreSamples::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        qFatal("%s cannot be read", qUtf8Printable(path));
    return file.readAll();
}

void StoreSamples::writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qUtf8Printable(path));
}

void StoreSamples::runSql(const QString &path, const QByteArray &sql)
{
    auto database = NxSqliteDatabase::open(path, NxSqliteDatabase::Access::ReadWrite, nullptr);
    if (!database || !(*database)->execute(sql.constData()))
        qFatal("%s: %s", qUtf8Printable(path), sql.constData());
}
