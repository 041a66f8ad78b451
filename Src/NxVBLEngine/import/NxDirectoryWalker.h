// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxDirectoryReader.h>
#include <NxVBLEngine/disk/NxFileProbe.h>

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

enum class NxWalkStep {
    File, ///< A file to be added.
    FolderEntered, ///< What follows, up to its FolderLeft, stands in this folder.
    FolderLeft,
    Hidden, ///< Passed over.
    OtherSuffix, ///< Passed over.
    Twice, ///< A folder that was walked already; passed over.
    Refused,
    Unreadable,
    NamedDone, ///< All that belongs to one named path was told.
};

/// What a walk came across.
struct NxWalkEntry
{
    NxWalkStep step = NxWalkStep::File;
    QString path; ///< Absolute and cleaned; for a name that is not valid text, as it can be shown.
    QString canonicalPath; ///< With all links followed; empty when the same.
    QString name; ///< Of an entered folder.
    QString given; ///< The path as the user wrote it, when it is one that the user named.
    QString reason; ///< Why it was refused, or cannot be read.
    NxFileFacts facts; ///< Of a file.

    /// The canonical path, also where it is the path.
    [[nodiscard]] const QString &realPath() const
    {
        return canonicalPath.isEmpty() ? path : canonicalPath;
    }
    /// How the path is reported: as the user wrote it, where he did.
    [[nodiscard]] const QString &shownPath() const { return given.isEmpty() ? path : given; }
};

/// Who listens to a walk. Called on the thread that walks.
class INxWalkListener
{
public:
    virtual ~INxWalkListener() = default;
    virtual void onWalked(NxWalkEntry entry) = 0;
    /// Asked between all looks at the disk, so it is a sign of life as well. True ends the walk.
    [[nodiscard]] virtual bool isCancelled() = 0;
    /// Asked after every entry. True interrupts the walk; it can be taken up again.
    [[nodiscard]] virtual bool wantsPause() = 0;
};

/// Walks over named files and folders, and finds what can be imported.
///
/// Lazily: it holds the names of the folders on the way to where it is, and no more. Files come
/// before folders. Links are followed; every folder is walked once, however many ways lead to it,
/// so cycles end. Nothing is opened but folders.
class NXVBLENGINE_TEST_EXPORT NxDirectoryWalker
{
public:
    enum class Outcome { Paused, Finished, Cancelled };

    /// A path that the user named; relative ones were made absolute already.
    struct Named
    {
        QString given;
        QString path;
    };

    explicit NxDirectoryWalker(QVector<Named> named, NxFileLook look = &NxFileProbe::look);

    /// Walks on from where it was.
    [[nodiscard]] Outcome walk(INxWalkListener *listener);

    /// The absolute, cleaned form of what the user wrote; an empty text stays empty.
    [[nodiscard]] static Named named(const QString &given);

private:
    struct Level
    {
        QString path;
        QString canonicalPath;
        NxDirectoryListing listing;
        size_t nextFile = 0;
        size_t nextFolder = 0;
    };

    bool step();
    void beginNamed(const Named &named);
    void beginNamedFile(const Named &named, const NxFileFacts &facts);
    void visitFile(const Level &level, const NxDirectoryEntry &entry);
    void visitFolder(const Level &level, const NxDirectoryEntry &entry);
    [[nodiscard]] bool mayEnter(const QString &path, const NxFileProbe::Canonical &canonical,
        const QString &given, const NxFileFacts &facts);
    void enter(const QString &path, const NxFileProbe::Canonical &canonical,
        const QString &given, const NxFileFacts &facts);
    void leave();
    void tellFile(const QString &path, const NxFileProbe::Canonical &canonical,
        const QString &given, const NxFileFacts &facts);
    void tell(NxWalkStep step, const QString &path, const QString &reason = {},
        const QString &given = {});
    [[nodiscard]] NxFileProbe::Canonical canonicalOf(
        const Level &level, const NxDirectoryEntry &entry, const QString &path) const;

    const QVector<Named> m_named;
    const NxFileLook m_look;
    int m_nextNamed = 0;
    std::vector<Level> m_levels; // The folders on the way to where the walk is.
    QSet<QString> m_walked; // Identities of folders.
    INxWalkListener *m_listener = nullptr; // While walking.
};
