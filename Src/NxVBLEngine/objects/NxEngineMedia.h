// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineItem.h>
#include <NxVBLEngine/objects/NxEngineMediaInfo.h>
#include <NxVBLEngine/records/NxMediaRecord.h>

#include <memory>

/// Whether the file behind a media is there, as the disk thread last saw it.
enum class NxPresence : quint8 {
    Unknown, ///< Not looked at yet; shown as present.
    Present,
    Missing, ///< No file of this path.
    Unreachable, ///< The disk or network drive does not answer.
    Unreadable, ///< Something that is no file has its name.
    Denied, ///< There, but we have no right to read it.
};

/// A file of the user that stands in the project.
///
/// By the million: no allocation beside its strings, unless reading it failed. The project memory
/// owns and changes it.
class NXVBLENGINE_TEST_EXPORT NxEngineMedia final : public NxEngineItem
{
public:
    explicit NxEngineMedia(const NxMediaRecord &record);
    ~NxEngineMedia() override;

    /// The media as it stands, without a relative path. `alive` tells whether it has a folder.
    [[nodiscard]] NxMediaRecord record() const;

    [[nodiscard]] qint64 id() const { return m_id; }
    /// The folder it stands in or, while it is removed, stood in.
    [[nodiscard]] int folderId() const { return m_folderId; }
    void setFolderId(int id) { m_folderId = id; }
    [[nodiscard]] int category() const { return m_category; }
    void setName(const QString &name) { m_name = name; }
    void setPaths(const QString &path, const QString &canonicalPath);
    /// The path with all links followed.
    [[nodiscard]] QString canonicalPath() const;
    void setFileFacts(qint64 size, qint64 created, qint64 modified);
    void setFavouriteSince(qint64 time) { m_favourite = time; }
    [[nodiscard]] qint64 favouriteSince() const { return m_favourite; }
    void setUsed(int uses) { m_used = uses; }
    [[nodiscard]] NxPresence presence() const { return m_presence; }
    void setPresence(NxPresence presence) { m_presence = presence; }
    /// The file was looked for and is not there, or its drive does not answer.
    [[nodiscard]] bool isAway() const
    {
        return m_presence == NxPresence::Missing || m_presence == NxPresence::Unreachable;
    }

    /// What is known of the file's contents. Without copying: the accessors below.
    [[nodiscard]] NxFootageRecord footage() const;
    /// The same without what it shares with other files.
    [[nodiscard]] NxFootageRow footageRow() const;
    /// Null unless the file was read.
    [[nodiscard]] const NxStreamDescription *streams() const { return m_facts.streams(); }
    /// `streams` describes a file that was read and lives longer than the media; else null.
    void setFootage(const NxFootageRow &row, const NxStreamDescription *streams);
    [[nodiscard]] NxReadState readState() const { return NxReadState(m_readState); }
    /// Of the file as it was read.
    [[nodiscard]] const NxFileStamp &stamp() const { return m_stamp; }
    [[nodiscard]] const NxFingerprint &fingerprint() const { return m_fingerprint; }
    [[nodiscard]] NxPictureState coverState() const { return NxPictureState(m_coverState); }
    [[nodiscard]] NxPictureState stripState() const { return NxPictureState(m_stripState); }

    NXVBLMODEL::NxMediaType mediaType() const override;
    int subKind() const override { return m_subKind; }
    int state() const override { return NXVBLMODEL::lsNone; }
    int kindCode() const override { return m_kindCode; }
    QString name() const override { return m_name; }
    QString mediaId() const override;
    QString sourcePath() const override { return m_path; }

    QString filePath() const override { return m_path; }
    /// A provisional one, of the suffix alone, unless the file was read.
    const INxMediaInfo *mediaInfo() const override { return m_info; }
    bool isUnavailable() const override;
    QString unavailableReason() const override;
    bool hasDuration() const override;
    /// When it was recorded; else the birth of the file, else its last change. What lies before
    /// 1970 or after tomorrow is a clock gone wrong and does not count.
    QDateTime dateCreated() const override;
    QDateTime lastModified() const override;
    int usedCount() const override { return m_used; }
    bool isFavourite() const override { return m_favourite != NxNoTime; }
    QDateTime favouriteTime() const override;
    QString audioInfoText() const override;
    QString cameraName() const override;
    qint64 sourceSize() const override { return m_size; }
    QString thumbnailStripPath() const override;

private:
    struct Reasons
    {
        QString read;
        QString cover;
        QString strip;
    };

    void updateCodes();

    qint64 m_id;
    QString m_name;
    QString m_path;
    QString m_canonicalPath; // Empty when it is the path.
    const INxMediaInfo *m_info = nullptr; // Static, by suffix; or m_facts.
    NxEngineMediaInfo m_facts;
    NxFileStamp m_stamp;
    NxFingerprint m_fingerprint;
    std::unique_ptr<const Reasons> m_reasons; // Of failures; null where nothing failed.
    qint64 m_size;
    qint64 m_created;
    qint64 m_modified;
    qint64 m_favourite;
    int m_folderId;
    int m_used = 0; // By the timelines.
    quint16 m_subKind = 0;
    quint8 m_type = 0;
    quint8 m_kindCode = 0;
    quint8 m_category;
    quint8 m_importKind;
    quint8 m_readState = quint8(NxReadState::Unread);
    quint8 m_coverState = quint8(NxPictureState::Unknown);
    quint8 m_stripState = quint8(NxPictureState::Unknown);
    NxPresence m_presence = NxPresence::Unknown;
};
