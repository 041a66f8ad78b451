// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxPresenceCheck.h>

#include <NxVBLEngine/disk/NxDiskThread.h>

#include <QDateTime>

#include <array>

namespace {

/// Longer than the coarsest clock of a file system, which is FAT's with two seconds.
constexpr qint64 SettlingTime = 3'000; // ms

NxPresence presenceOf(const NxFileFacts &facts)
{
    // By NxFileKind. A folder or a device in a file's place is not the file.
    constexpr std::array<NxPresence, 6> presences = {
        NxPresence::Missing,
        NxPresence::Present,
        NxPresence::Missing,
        NxPresence::Unreadable,
        NxPresence::Denied,
        NxPresence::Unreachable,
    };
    if (facts.kind == NxFileKind::File && !facts.readable)
        return NxPresence::Denied;
    return presences[size_t(facts.kind)];
}

/// Empty for the top of a disk.
QString parentOf(const QString &path)
{
    const int separator = path.lastIndexOf(QLatin1Char('/'));
    if (separator < 0 || path.size() == 1)
        return {};
    return separator == 0 ? QStringLiteral("/") : path.left(separator);
}

QString highestMissing(QString path, const NxPresenceDisk &disk, NxDiskPulse &pulse)
{
    for (QString parent = parentOf(path); !parent.isEmpty(); parent = parentOf(path)) {
        pulse.beat();
        if (disk.look(parent).kind != NxFileKind::Missing)
            break;
        path = parent;
    }
    return path;
}

NxFolderState stateOf(const NxFileFacts &facts)
{
    NxFolderState state;
    state.exists = facts.kind != NxFileKind::Missing;
    state.device = facts.device;
    state.inode = facts.inode;
    state.modified = facts.modified;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    state.settled = !state.exists || facts.modified < now - SettlingTime;
    return state;
}

NxFileAnswer answerFile(
    const NxFileQuestion &question, bool folderExists, const NxPresenceDisk &disk)
{
    NxFileAnswer answer;
    answer.media = question.media;
    answer.path = question.path;
    if (folderExists)
        answer.facts = disk.look(question.path);
    answer.presence = presenceOf(answer.facts);
    if (answer.presence != NxPresence::Missing || question.movedPath.isEmpty())
        return answer;
    const NxFileFacts moved = disk.look(question.movedPath);
    if (moved.kind != NxFileKind::File)
        return answer;
    answer.movedPath = question.movedPath;
    answer.facts = moved;
    answer.presence = presenceOf(moved);
    return answer;
}

} // namespace

NxFolderAnswer NxPresenceCheck::answer(
    const NxFolderQuestion &question, const NxPresenceDisk &disk, NxDiskPulse &pulse)
{
    NxFolderAnswer answer;
    answer.folder = question.folder;
    answer.isWhole = question.isWhole;
    answer.state = stateOf(disk.look(question.path));
    if (!answer.state.exists)
        answer.state.missingAncestor = highestMissing(question.path, disk, pulse);
    for (const NxFileQuestion &file : question.files) {
        pulse.beat();
        if (pulse.isAbandoned())
            break;
        answer.files.append(answerFile(file, answer.state.exists, disk));
    }
    return answer;
}

bool NxPresenceCheck::hasChanged(const NxFolderPoll &poll, const NxPresenceDisk &disk)
{
    return stateOf(disk.look(poll.path)).differsFrom(poll.known);
}
