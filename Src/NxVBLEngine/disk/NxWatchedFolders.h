// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxPresenceCheck.h>

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <deque>
#include <vector>

class NxEngineMedia;
class NxProjectMemory;

/// The folders on disk in which a project's media lie: what is known of them, which are to be
/// looked at, and when. Values only; it touches no disk.
///
/// What is known is bounded by the number of folders, and eight bytes a media.
class NXVBLENGINE_TEST_EXPORT NxWatchedFolders
{
public:
    /// Looks a second that one folder may cost when it is looked at again and again.
    static constexpr int LooksPerSecond = 2'000;

    explicit NxWatchedFolders(const NxProjectMemory *memory);

    /// Files a media under the folder it lies in; answers the folder.
    int add(const NxEngineMedia *media);
    /// Relative paths of media whose project has moved, by id.
    void setRelativePaths(QHash<qint64, QString> paths);
    void forgetRelativePath(qint64 media) { m_relativePaths.remove(media); }
    void setVolumeRoots(const QStringList &roots);
    [[nodiscard]] bool hasVolumeRoots() const { return !m_roots.isEmpty(); }

    /// Wants all files of a folder looked at; of all folders.
    void want(int folder);
    void wantAll();
    /// Files media that are new here under their folders, and wants them looked at.
    void wantMedia(const std::vector<qint64> &media);
    /// Wants media looked at that are filed already.
    void wantAgain(const std::vector<qint64> &media);
    /// Wants the folders looked at whose last answer was not the last word; `now` in ms.
    void wantUncertain(qint64 now);
    /// Wants the next files looked at, in turn; none while others are wanted.
    void wantNext(int most);
    [[nodiscard]] bool isAnythingWanted() const { return !m_wanted.empty(); }
    void wantNothing();

    /// The next files to look at, of one volume only. None of a volume that does not answer.
    [[nodiscard]] QVector<NxFolderQuestion> takeQuestions(int mostFiles, QString *volume);
    /// What was found; `now` in ms. The files' answers are for the caller.
    void note(const NxFolderAnswer &answer, qint64 now);
    /// The next folders to compare with what is known, by volume: what is missing always, the
    /// others in turn.
    [[nodiscard]] QHash<QString, QVector<NxFolderPoll>> nextPolls(int most);

    /// A volume does not answer: answers the media on it.
    [[nodiscard]] std::vector<qint64> loseVolume(const QString &volume);
    /// It answers again: all that is on it is wanted.
    void findVolume(const QString &volume);

private:
    struct Folder
    {
        QString path;
        QString realPath; // With links followed; decides on the volume.
        QString volume;
        std::vector<qint64> media; // May name removed ones until the next look.
        NxFolderState state;
        bool wanted = false;
        bool troubled = false; // Some of its files are not there, or cannot be read.
        qint64 lastLook = 0; // ms
    };
    /// What is wanted of one folder.
    struct Wanted
    {
        int folder = 0;
        bool isWhole = true;
        bool isBegun = false;
        std::vector<qint64> media;
        size_t next = 0;
    };

    [[nodiscard]] int folderFor(const NxEngineMedia *media);
    using FolderOf = int (NxWatchedFolders::*)(const NxEngineMedia *);
    void wantOf(const std::vector<qint64> &media, FolderOf folderOf);
    [[nodiscard]] bool liesIn(const NxEngineMedia *media, const Folder &folder) const;
    void begin(Wanted *wanted);
    void appendFiles(Wanted *wanted, int most, NxFolderQuestion *question) const;
    void appendPoll(int index, QHash<QString, QVector<NxFolderPoll>> *polls) const;
    void setMissingAncestor(int index, const QString &ancestor);

    const NxProjectMemory *const m_memory; // Not owned.
    const QString m_projectFolder;
    QHash<qint64, QString> m_relativePaths;
    QStringList m_roots;
    QSet<QString> m_lostVolumes;
    std::vector<Folder> m_folders;
    QHash<QString, int> m_folderByKey;
    std::deque<Wanted> m_wanted;
    QSet<int> m_uncertain;
    QHash<QString, QSet<int>> m_awayByAncestor; // Missing folders by the highest missing one.
    int m_nextPoll = 0;
    size_t m_nextFolder = 0; // Where wantNext() goes on.
    size_t m_nextFile = 0;
};
