// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class NxDiskPulse;

/// The looks at the disk that presence needs; a test may put its own in their place.
struct NxPresenceDisk
{
    NxFileLook look = &NxFileProbe::look;
    std::function<QStringList()> volumeRoots = &NxFileProbe::volumeRoots;
};

/// One file to be looked at.
struct NxFileQuestion
{
    qint64 media = 0;
    QString path;
    QString movedPath; ///< Where it is if it moved together with the project; may be empty.
};

struct NxFileAnswer
{
    qint64 media = 0;
    QString path; ///< As asked. Empty: holds for the media whatever its path is.
    NxPresence presence = NxPresence::Unknown;
    QString movedPath; ///< Not empty: the file was found there instead.
    NxFileFacts facts;
};

/// What tells whether anything in a folder may have changed.
struct NxFolderState
{
    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 modified = NxNoTime; ///< ms UTC.
    /// False when the folder was changed so lately that a further change could hide in the same
    /// tick of the file system's clock.
    bool settled = false;
    QString missingAncestor; ///< The highest folder on the way to it that is missing.

    /// Something was put into it or taken out, or it is another folder by now.
    [[nodiscard]] bool differsFrom(const NxFolderState &other) const
    {
        return exists != other.exists || device != other.device || inode != other.inode
            || modified != other.modified;
    }
};

/// Files of one folder to be looked at.
struct NxFolderQuestion
{
    int folder = 0;
    QString path;
    QVector<NxFileQuestion> files;
    bool isWhole = true; ///< All files of the folder are looked at, be it in several questions.
};

struct NxFolderAnswer
{
    int folder = 0;
    NxFolderState state;
    QVector<NxFileAnswer> files;
    bool isWhole = true; ///< As asked.
};

/// A folder, or the highest missing one above it, to be compared with what is known of it.
struct NxFolderPoll
{
    QString path;
    NxFolderState known;
    QVector<int> folders; ///< Those to be looked at when it changed.
};

/// The disk thread's side of presence. Everything here may wait for a disk.
namespace NxPresenceCheck {

[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxFolderAnswer answer(
    const NxFolderQuestion &question, const NxPresenceDisk &disk, NxDiskPulse &pulse);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool hasChanged(
    const NxFolderPoll &poll, const NxPresenceDisk &disk);

} // namespace NxPresenceCheck
