// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxStreamDescriptions.h>
#include <NxVBLEngine/records/NxProjectContents.h>

#include <QHash>
#include <QObject>
#include <QPair>
#include <QString>
#include <QVector>

#include <array>
#include <functional>
#include <memory>
#include <memory_resource>
#include <vector>

class NxEngineCategory;
class NxEngineFolder;
class NxEngineItem;
class NxEngineResource;
class NxEngineUndoStack;
class NxMediaIdIndex;
class NxTimelineMemory;
class NxUndoRedoCommander;

/// What is known of a file before it becomes a media.
struct NxMediaSeed
{
    QString path; ///< Absolute, cleaned, as the user named it.
    QString canonicalPath; ///< All links followed; empty when the same.
    QString name; ///< Empty: the file's name.
    qint64 size = -1; ///< Bytes.
    qint64 created = NxNoTime; ///< ms UTC.
    qint64 modified = NxNoTime; ///< ms UTC.
    int importKind = 0; ///< NXVBLMODEL::NxMediaImportType.
    int kindCode = 0; ///< NXVBLMODEL::NxMediaKindCode where the suffix does not tell it.
};

/// The open project in memory: the truth that the store follows.
///
/// Owns every object of every category. Each change goes through perform(), which applies it,
/// announces it to the observers, writes it into the open undo step and hands it to the store's
/// next batch. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxProjectMemory : public QObject
{
    Q_OBJECT
public:
    /// Where batches go; called with every finished batch.
    using Writer = std::function<void(NxStoreBatch)>;
    /// Answers INxMediaItemManager::readDuration().
    using LengthReader = std::function<qint64(const QString &path)>;

    /// An empty project; `projectPath` may be empty for one that lives in memory alone.
    explicit NxProjectMemory(const QString &projectPath);
    ~NxProjectMemory() override;

    /// Fills an empty memory with what a project file holds. Announces nothing.
    void load(NxProjectContents contents);
    /// Where media may be found whose file is not where it was: their paths from the project's
    /// folder, for those to which that makes a difference. Handed out once, after load().
    [[nodiscard]] QHash<qint64, QString> takeRelativePaths();
    void setWriter(Writer writer);
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    [[nodiscard]] bool isReadOnly() const { return m_readOnly; }
    [[nodiscard]] QString projectPath() const { return m_projectPath; }
    /// Where covers and film strips lie; empty when none are made.
    void setPictureFolder(const QString &folder) { m_pictureFolder = folder; }
    [[nodiscard]] const QString &pictureFolder() const { return m_pictureFolder; }
    /// What reads the lengths of files; empty when nothing does.
    void setLengthReader(const LengthReader &reader) { m_lengthReader = reader; }
    [[nodiscard]] const LengthReader &lengthReader() const { return m_lengthReader; }

    /// Null for a category that is none.
    [[nodiscard]] NxEngineCategory *category(int category) const;
    [[nodiscard]] NxEngineUndoStack *undoStack() const { return m_undoStack.get(); }
    [[nodiscard]] NxTimelineMemory *timelines() const { return m_timelines.get(); }
    /// Null when unknown. Removed media are found, too.
    [[nodiscard]] NxEngineMedia *media(qint64 id) const;
    [[nodiscard]] NxEngineResource *resource(qint64 id) const;
    /// A living media of this path or canonical path, in this category; null when there is none.
    [[nodiscard]] NxEngineMedia *mediaByPath(const QString &path, int category) const;
    /// Every living media of this path, in any category.
    [[nodiscard]] QVector<NxEngineMedia *> allMediaByPath(const QString &path) const;
    /// Living media of all categories.
    [[nodiscard]] qint64 livingMediaCount() const { return m_livingMedia; }
    /// Every living media, category by category, in the order of the folders.
    [[nodiscard]] std::vector<NxEngineMedia *> livingMedia() const;

    /// New media at the end of a folder, in order. One change, one "before/after" pair each.
    QVector<NxEngineMedia *> addNewMedia(NxEngineFolder *folder, const QVector<NxMediaSeed> &seeds);
    /// A new folder at the end of its siblings. The name must have been checked.
    NxEngineFolder *addNewFolder(NxEngineFolder *parent, const QString &name);
    /// Applies a change, announces it, and writes it down. Refused when read-only.
    void perform(const NxChange &change);
    /// A change that brings to life what was just made: `rows` are stored in its place.
    void introduce(const NxChange &change, NxStoreEntry::Any rows);
    /// The same for undo and redo: applied, announced and stored, but in no step.
    void replay(const NxChange &change);

    /// File facts that no undo concerns, announced as one state change.
    void setFileFacts(NxEngineMedia *media, qint64 size, qint64 created, qint64 modified);
    /// What was read of the media's file, in place of what was known; `record.media` is ignored.
    /// Stored when it differs, unless the project is read-only: then it lasts as long as the
    /// memory. Announced as one state change when a view shows it. No undo concerns it.
    void setFootage(NxEngineMedia *media, const NxFootageRecord &record);
    /// The same file under another path, because project and footage moved together.
    void setMovedPath(NxEngineMedia *media, const QString &path);
    /// How many living clips show a media or resource; announced, not stored.
    void setUses(qint64 mediaId, int uses);
    /// What the disk thread saw; announced when it differs, not stored.
    void setPresence(NxEngineMedia *media, NxPresence presence);

    /// A place behind everything that was placed before.
    [[nodiscard]] qint64 takePlace() { return m_counters.nextPlace++; }
    [[nodiscard]] qint64 takeStepSerial() { return m_counters.nextStepSerial++; }
    [[nodiscard]] qint64 takeTimelineId() { return m_counters.nextTimelineId++; }
    [[nodiscard]] qint64 takeClipId() { return m_counters.nextClipId++; }
    [[nodiscard]] const NxStoreEntry::Counters &counters() const { return m_counters; }
    /// Adds to the batch that is being collected.
    void enqueue(NxStoreEntry::Any entry);
    /// Hands the collected batch to the writer.
    void flush();
    /// Forgets removed objects for good; they die with the event loop's next turn.
    void forget(const NxStoreEntry::StepDrop &dead);
    /// Of these ids, those of objects that are removed. Resources never are.
    [[nodiscard]] QVector<qint64> removedAmong(NxObjectKind kind, const QVector<qint64> &ids) const;

    /// Checks every cross reference; the first broken one in words, empty when all is well.
    [[nodiscard]] QString brokenInvariant() const;

Q_SIGNALS:
    /// A change was applied, by whom ever.
    void applied(const NxChange &change);

private:
    using Handler = void (NxProjectMemory::*)(const NxChange &);
    struct HandlerEntry
    {
        NxChangeKind what;
        Handler apply;
    };
    static const std::array<HandlerEntry, 18> s_handlers;

    void apply(const NxChange &change);
    void applyFolderAdd(const NxChange &change);
    void applyFolderRemove(const NxChange &change);
    void applyFolderRename(const NxChange &change);
    void applyFolderMove(const NxChange &change);
    void applyMediaAdd(const NxChange &change);
    void applyMediaRemove(const NxChange &change);
    void applyMediaRename(const NxChange &change);
    void applyMediaMove(const NxChange &change);
    void insertMedia(NxEngineMedia *media, NxEngineFolder *folder);
    void takeMedia(NxEngineMedia *media);
    void applyMediaFavourite(const NxChange &change);
    void applyMediaRelink(const NxChange &change);
    void applyResourceRename(const NxChange &change);
    void applyResourceFavourite(const NxChange &change);
    void applyToTimelines(const NxChange &change);

    /// A step for a change that nobody opened one for; inside one it joins.
    [[nodiscard]] NxUndoRedoCommander ownStep(const char *function);
    NxEngineMedia *createMedia(const NxMediaRecord &record);
    void destroyMedia(NxEngineMedia *media);
    void loadFolders(const std::vector<NxFolderRecord> &folders);
    void loadMedia(std::vector<NxMediaRecord> media);
    void loadFootage(NxProjectContents *contents);
    /// What is known of a file when a media goes over to another one, and when it comes back.
    void setFootageAside(NxEngineMedia *media);
    void takeFootageBack(NxEngineMedia *media);
    void loadResources(const std::vector<NxResourceRecord> &resources);
    void indexPath(NxEngineMedia *media);
    void unindexPath(NxEngineMedia *media);
    void noteRelativePath(const NxMediaRecord &record);
    [[nodiscard]] NxEngineFolder *homeOf(const NxMediaRecord &record) const;
    [[nodiscard]] QString relativePath(const QString &path) const;
    [[nodiscard]] NxMediaRecord storedRecord(const NxEngineMedia *media) const;
    void announce(NxEngineItem *item);
    [[nodiscard]] QVector<qint64> removedMedia(const QVector<qint64> &ids) const;
    [[nodiscard]] QVector<qint64> removedFolders(const QVector<qint64> &ids) const;
    void scheduleBurial();
    void bury();

    const QString m_projectPath;
    const QString m_projectFolder;
    QString m_pictureFolder;
    bool m_readOnly = false;
    Writer m_writer;
    LengthReader m_lengthReader;
    NxStoreBatch m_batch;
    NxStoreEntry::Counters m_counters;

    NxStreamDescriptions m_descriptions;
    /// Of files that media were relinked from, for an undo. Lasts as long as the memory.
    QHash<QPair<qint64, QString>, NxFootageRecord> m_footageAside;
    std::pmr::unsynchronized_pool_resource m_mediaPool; // Media lie in blocks, in load order.
    std::unique_ptr<NxMediaIdIndex> m_mediaById; // Removed ones included.
    QMultiHash<uint, NxEngineMedia *> m_mediaByPathHash; // Living ones, by both their paths.
    QHash<qint64, NxEngineResource *> m_resourcesById; // Owned by their categories.
    QHash<int, NxFolderRecord> m_removedFolders;
    qint64 m_livingMedia = 0;
    std::array<std::unique_ptr<NxEngineCategory>, NXVBLMODEL::MediaCategoryCount> m_categories;
    std::unique_ptr<NxTimelineMemory> m_timelines;
    std::unique_ptr<NxEngineUndoStack> m_undoStack;

    QHash<qint64, QString> m_relativePaths; // Until they are handed out.
    std::vector<NxEngineMedia *> m_deadMedia; // Until the event loop's next turn.
    std::vector<std::unique_ptr<NxEngineFolder>> m_deadFolders;
    bool m_burialScheduled = false;
};
