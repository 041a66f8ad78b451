// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxWatchedFolders.h>

#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

constexpr qint64 ShortestPause = 2'000; // ms

QString folderOf(const QString &path)
{
    const int separator = path.lastIndexOf(QLatin1Char('/'));
    return separator > 0 ? path.left(separator) : QStringLiteral("/");
}

QString keyOf(const QString &path, const QString &realPath)
{
    return path == realPath ? path : path + QChar(0) + realPath;
}

QString projectFolderOf(const NxProjectMemory *memory)
{
    const QString path = memory->projectPath();
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

} // namespace

NxWatchedFolders::NxWatchedFolders(const NxProjectMemory *memory)
    : m_memory(memory)
    , m_projectFolder(projectFolderOf(memory))
{
}

int NxWatchedFolders::folderFor(const NxEngineMedia *media)
{
    const QString path = folderOf(media->filePath());
    const QString realPath = folderOf(media->canonicalPath());
    const QString key = keyOf(path, realPath);
    const auto found = m_folderByKey.constFind(key);
    const int index = found == m_folderByKey.constEnd() ? int(m_folders.size()) : *found;
    if (found == m_folderByKey.constEnd()) {
        m_folderByKey.insert(key, index);
        Folder folder;
        folder.path = path;
        folder.realPath = realPath;
        folder.volume = NxFileProbe::volumeOf(realPath, m_roots);
        m_folders.push_back(std::move(folder));
    }
    return index;
}

int NxWatchedFolders::add(const NxEngineMedia *media)
{
    const int index = folderFor(media);
    m_folders[size_t(index)].media.push_back(media->id());
    return index;
}

void NxWatchedFolders::setRelativePaths(QHash<qint64, QString> paths)
{
    m_relativePaths = std::move(paths);
}

void NxWatchedFolders::setVolumeRoots(const QStringList &roots)
{
    if (roots == m_roots)
        return;
    m_roots = roots;
    for (Folder &folder : m_folders)
        folder.volume = NxFileProbe::volumeOf(folder.realPath, m_roots);
}

// Wanting

void NxWatchedFolders::want(int index)
{
    Folder &folder = m_folders[size_t(index)];
    if (!folder.wanted) {
        folder.wanted = true;
        m_wanted.push_back({index, true, false, {}, 0});
        return;
    }
    // Only the first in the queue can have begun; it begins anew.
    Wanted &first = m_wanted.front();
    if (first.folder == index && first.isWhole)
        first.isBegun = false;
}

void NxWatchedFolders::wantAll()
{
    for (int index = 0; index < int(m_folders.size()); ++index)
        want(index);
}

void NxWatchedFolders::wantMedia(const std::vector<qint64> &media)
{
    wantOf(media, &NxWatchedFolders::add);
}

void NxWatchedFolders::wantAgain(const std::vector<qint64> &media)
{
    wantOf(media, &NxWatchedFolders::folderFor);
}

void NxWatchedFolders::wantOf(const std::vector<qint64> &media, FolderOf folderOf)
{
    QHash<int, std::vector<qint64>> byFolder;
    for (const qint64 id : media) {
        const NxEngineMedia *known = m_memory->media(id);
        if (known && known->folder())
            byFolder[(this->*folderOf)(known)].push_back(id);
    }
    for (auto each = byFolder.begin(); each != byFolder.end(); ++each)
        m_wanted.push_back({each.key(), false, true, std::move(each.value()), 0});
}

void NxWatchedFolders::wantUncertain(qint64 now)
{
    const QSet<int> uncertain = m_uncertain;
    for (const int index : uncertain) {
        const Folder &folder = m_folders[size_t(index)];
        constexpr qint64 second = 1'000;
        const qint64 fair = qint64(folder.media.size()) * second / LooksPerSecond;
        if (now - folder.lastLook >= std::max(ShortestPause - second / 2, fair))
            want(index);
    }
}

void NxWatchedFolders::wantNext(int most)
{
    if (isAnythingWanted())
        return;
    int room = most;
    for (size_t visited = 0; visited < m_folders.size() && room > 0; ++visited) {
        m_nextFolder %= m_folders.size();
        const Folder &folder = m_folders[m_nextFolder];
        const size_t from = std::min(m_nextFile, folder.media.size());
        const size_t to = std::min(from + size_t(room), folder.media.size());
        if (to > from) {
            const auto first = folder.media.begin();
            m_wanted.push_back({int(m_nextFolder), false, true,
                {first + std::ptrdiff_t(from), first + std::ptrdiff_t(to)}, 0});
            room -= int(to - from);
        }
        m_nextFile = to;
        if (to < folder.media.size())
            return;
        ++m_nextFolder;
        m_nextFile = 0;
    }
}

void NxWatchedFolders::wantNothing()
{
    m_wanted.clear();
    for (Folder &folder : m_folders)
        folder.wanted = false;
}

// Looking

bool NxWatchedFolders::liesIn(const NxEngineMedia *media, const Folder &folder) const
{
    return media && media->folder() && folderOf(media->filePath()) == folder.path
        && folderOf(media->canonicalPath()) == folder.realPath;
}

void NxWatchedFolders::begin(Wanted *wanted)
{
    Folder &folder = m_folders[size_t(wanted->folder)];
    std::vector<qint64> &media = folder.media;
    std::sort(media.begin(), media.end());
    media.erase(std::unique(media.begin(), media.end()), media.end());
    const auto gone = std::remove_if(media.begin(), media.end(),
        [this, &folder](qint64 id) { return !liesIn(m_memory->media(id), folder); });
    media.erase(gone, media.end());
    folder.troubled = false;
    wanted->media = media;
    wanted->next = 0;
    wanted->isBegun = true;
}

void NxWatchedFolders::appendFiles(Wanted *wanted, int most, NxFolderQuestion *question) const
{
    const Folder &folder = m_folders[size_t(wanted->folder)];
    for (; wanted->next < wanted->media.size() && question->files.size() < most; ++wanted->next) {
        const qint64 id = wanted->media[wanted->next];
        const NxEngineMedia *media = m_memory->media(id);
        if (!liesIn(media, folder))
            continue;
        const QString relative = m_relativePaths.value(id);
        const QString moved = relative.isEmpty() || m_projectFolder.isEmpty()
            ? QString()
            : QDir::cleanPath(m_projectFolder + QLatin1Char('/') + relative);
        question->files.append({id, media->filePath(), moved});
    }
}

QVector<NxFolderQuestion> NxWatchedFolders::takeQuestions(int mostFiles, QString *volume)
{
    QVector<NxFolderQuestion> questions;
    int room = mostFiles;
    while (!m_wanted.empty() && room > 0) {
        Wanted &wanted = m_wanted.front();
        Folder &folder = m_folders[size_t(wanted.folder)];
        const bool isLost = m_lostVolumes.contains(folder.volume);
        if (!isLost && !questions.isEmpty() && folder.volume != *volume)
            break;
        if (!isLost) {
            *volume = folder.volume;
            if (!wanted.isBegun)
                begin(&wanted);
            NxFolderQuestion question{wanted.folder, folder.path, {}, wanted.isWhole};
            appendFiles(&wanted, room, &question);
            room -= question.files.size() + 1; // The folder itself is a look, too.
            if (!question.files.isEmpty())
                questions.append(question);
        }
        if (!isLost && wanted.next < wanted.media.size())
            break;
        if (wanted.isWhole)
            folder.wanted = false;
        m_wanted.pop_front();
    }
    return questions;
}

void NxWatchedFolders::setMissingAncestor(int index, const QString &ancestor)
{
    NxFolderState &state = m_folders[size_t(index)].state;
    if (state.missingAncestor == ancestor)
        return;
    const auto old = m_awayByAncestor.find(state.missingAncestor);
    if (old != m_awayByAncestor.end()) {
        old->remove(index);
        if (old->isEmpty())
            m_awayByAncestor.erase(old);
    }
    if (!ancestor.isEmpty())
        m_awayByAncestor[ancestor].insert(index);
}

void NxWatchedFolders::note(const NxFolderAnswer &answer, qint64 now)
{
    Folder &folder = m_folders[size_t(answer.folder)];
    const bool hidesChange
        = !answer.isWhole && folder.lastLook != 0 && answer.state.differsFrom(folder.state);
    if (hidesChange) {
        want(answer.folder); // Some of its files were not looked at since.
        return;
    }
    setMissingAncestor(answer.folder, answer.state.missingAncestor);
    folder.state = answer.state;
    folder.lastLook = now;
    const auto isTrouble = [](const NxFileAnswer &file) {
        return file.presence != NxPresence::Present;
    };
    folder.troubled = folder.troubled
        || std::any_of(answer.files.begin(), answer.files.end(), isTrouble);
    const bool isUncertain = folder.state.exists && (folder.troubled || !folder.state.settled);
    if (isUncertain)
        m_uncertain.insert(answer.folder);
    else
        m_uncertain.remove(answer.folder);
}

// Polling

void NxWatchedFolders::appendPoll(int index, QHash<QString, QVector<NxFolderPoll>> *polls) const
{
    const Folder &folder = m_folders[size_t(index)];
    const bool isIdle = folder.state.exists && !folder.media.empty() && !folder.wanted;
    if (isIdle && !m_lostVolumes.contains(folder.volume))
        (*polls)[folder.volume].append({folder.path, folder.state, {index}});
}

QHash<QString, QVector<NxFolderPoll>> NxWatchedFolders::nextPolls(int most)
{
    QHash<QString, QVector<NxFolderPoll>> polls;
    for (auto away = m_awayByAncestor.cbegin(); away != m_awayByAncestor.cend(); ++away) {
        const QString volume = NxFileProbe::volumeOf(away.key(), m_roots);
        if (m_lostVolumes.contains(volume))
            continue;
        const QVector<int> folders(away->cbegin(), away->cend());
        polls[volume].append({away.key(), NxFolderState(), folders});
        --most;
    }
    const int count = int(m_folders.size());
    for (int i = 0; i < std::min(count, most); ++i) {
        m_nextPoll = (m_nextPoll + 1) % count;
        appendPoll(m_nextPoll, &polls);
    }
    return polls;
}

// Volumes

std::vector<qint64> NxWatchedFolders::loseVolume(const QString &volume)
{
    m_lostVolumes.insert(volume);
    std::vector<qint64> media;
    for (const Folder &folder : m_folders) {
        if (folder.volume == volume)
            media.insert(media.end(), folder.media.begin(), folder.media.end());
    }
    return media;
}

void NxWatchedFolders::findVolume(const QString &volume)
{
    m_lostVolumes.remove(volume);
    for (int index = 0; index < int(m_folders.size()); ++index) {
        if (m_folders[size_t(index)].volume == volume)
            want(index);
    }
}
