// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxPresenceKeeper.h>

#include <NxCore/NxQueue.h>
#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxSlice.h>

#include <QPointer>
#include <QThread>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace {

constexpr int RoundInterval = 2'000; // ms
constexpr int PollsPerRound = NxWatchedFolders::LooksPerSecond * RoundInterval / 1'000;
constexpr int FilesPerCheck = 250; // Their answers take a fraction of a frame.
constexpr int FilesPerRound = 1'000;

} // namespace

/// What a task on the disk thread found.
struct NxPresenceKeeper::News
{
    enum class Kind { Volumes, Checked, Polled };

    Kind kind = Kind::Checked;
    /// The task was left behind long ago; all it tells is that its volume answers again.
    bool isLate = false;
    QString volume;
    QStringList roots;
    QVector<NxFolderAnswer> answers;
    QVector<int> changed; ///< Folders.
};

/// Outlives the keeper as long as a task does.
struct NxPresenceKeeper::Post
{
    NxQueue<News> queue;
    NxDoorbellRope bell;

    void send(News news, NxDiskPulse &pulse)
    {
        news.isLate = !pulse.conclude();
        queue.push(std::move(news));
        bell.ring();
    }
};

NxPresenceKeeper::NxPresenceKeeper(
    NxProjectMemory *memory, std::shared_ptr<NxDiskThread> disk, NxPresenceDisk looks)
    : m_memory(memory)
    , m_disk(std::move(disk))
    , m_looks(std::move(looks))
    , m_folders(memory)
    , m_post(std::make_shared<Post>())
    , m_bell([this] { m_pumpTimer.start(); })
{
    m_post->bell = m_bell.rope();
    m_clock.start();
    // A timer, not the bell itself: between two of its turns all other events get theirs.
    m_pumpTimer.setSingleShot(true);
    m_pumpTimer.setInterval(0);
    connect(&m_pumpTimer, &QTimer::timeout, this, &NxPresenceKeeper::pump);
    m_roundTimer.setInterval(RoundInterval);
    connect(&m_roundTimer, &QTimer::timeout, this, &NxPresenceKeeper::beginRound);
    connect(m_memory, &NxProjectMemory::applied, this, &NxPresenceKeeper::onApplied);
}

NxPresenceKeeper::~NxPresenceKeeper() = default;

void NxPresenceKeeper::setRelativePaths(QHash<qint64, QString> paths)
{
    m_folders.setRelativePaths(std::move(paths));
}

void NxPresenceKeeper::start()
{
    if (m_started)
        return;
    m_started = true;
    m_fresh.clear(); // They are among the living.
    for (const NxEngineMedia *media : m_memory->livingMedia())
        m_fresh.push_back(media->id());
    m_roundTimer.start();
    m_pumpTimer.start();
    askVolumes();
}

void NxPresenceKeeper::refreshNow(std::function<void()> done)
{
    if (done)
        m_done.push_back(std::move(done));
    start();
    m_folders.wantAll();
    m_pumpTimer.start();
}

void NxPresenceKeeper::lookAgain(const std::vector<qint64> &media)
{
    m_folders.wantAgain(media);
    m_pumpTimer.start();
}

std::optional<bool> NxPresenceKeeper::known(const QString &path) const
{
    if (QThread::currentThread() != thread())
        return std::nullopt;
    const QVector<NxEngineMedia *> media = m_memory->allMediaByPath(path);
    if (media.isEmpty())
        return std::nullopt;
    return std::none_of(media.begin(), media.end(),
                        [](const NxEngineMedia *each) { return each->isAway(); });
}

void NxPresenceKeeper::onApplied(const NxChange &change)
{
    const bool bringsPaths
        = change.what == NxChangeKind::MediaAdd || change.what == NxChangeKind::MediaRelink;
    if (bringsPaths)
        m_fresh.insert(m_fresh.end(), change.ids.begin(), change.ids.end());
}

// Asking

void NxPresenceKeeper::beginRound()
{
    askVolumes();
    m_folders.wantUncertain(m_clock.elapsed());
    m_folders.wantNext(FilesPerRound);
    m_pumpTimer.start();
    poll();
}

void NxPresenceKeeper::askVolumes()
{
    if (m_askingVolumes)
        return;
    const QPointer<NxPresenceKeeper> self(this);
    const auto ask = [post = m_post, looks = m_looks](NxDiskPulse &pulse) {
        News news;
        news.kind = News::Kind::Volumes;
        news.roots = looks.volumeRoots();
        post->send(std::move(news), pulse);
    };
    const auto onStuckTask = [self] {
        if (self)
            self->m_askingVolumes = false;
    };
    m_askingVolumes = m_disk->post(ask, onStuckTask, NxDiskThread::Lane::Small);
}

void NxPresenceKeeper::checkNext()
{
    if (m_checking || !m_answers.empty() || !m_folders.hasVolumeRoots())
        return;
    QString volume;
    const QVector<NxFolderQuestion> questions = m_folders.takeQuestions(FilesPerCheck, &volume);
    if (questions.isEmpty())
        return;
    const QPointer<NxPresenceKeeper> self(this);
    const auto check = [post = m_post, looks = m_looks, questions, volume](NxDiskPulse &pulse) {
        News news;
        news.volume = volume;
        for (const NxFolderQuestion &question : questions) {
            pulse.beat();
            if (!pulse.isAbandoned())
                news.answers.append(NxPresenceCheck::answer(question, looks, pulse));
        }
        post->send(std::move(news), pulse);
    };
    const auto onStuckTask = [self, volume] {
        if (self)
            self->onStuck(volume, false);
    };
    m_checking = m_disk->post(check, onStuckTask);
    if (!m_checking)
        m_folders.wantNothing(); // The project closes; nothing will be answered any more.
}

void NxPresenceKeeper::poll()
{
    const QHash<QString, QVector<NxFolderPoll>> polls = m_folders.nextPolls(PollsPerRound);
    for (auto volume = polls.cbegin(); volume != polls.cend(); ++volume) {
        if (!m_polling.contains(volume.key()))
            postPoll(volume.key(), volume.value());
    }
}

void NxPresenceKeeper::postPoll(const QString &volume, const QVector<NxFolderPoll> &polls)
{
    const QPointer<NxPresenceKeeper> self(this);
    const auto compare = [post = m_post, looks = m_looks, polls, volume](NxDiskPulse &pulse) {
        News news;
        news.kind = News::Kind::Polled;
        news.volume = volume;
        for (const NxFolderPoll &poll : polls) {
            pulse.beat();
            if (pulse.isAbandoned())
                break;
            if (NxPresenceCheck::hasChanged(poll, looks))
                news.changed += poll.folders;
        }
        post->send(std::move(news), pulse);
    };
    const auto onStuckTask = [self, volume] {
        if (self)
            self->onStuck(volume, true);
    };
    if (m_disk->post(compare, onStuckTask, NxDiskThread::Lane::Small))
        m_polling.insert(volume);
}

// Hearing

void NxPresenceKeeper::onStuck(const QString &volume, bool inPoll)
{
    if (inPoll)
        m_polling.remove(volume);
    else
        m_checking = false;
    std::vector<NxFileAnswer> answers;
    for (const qint64 id : m_folders.loseVolume(volume)) {
        NxFileAnswer answer;
        answer.media = id;
        answer.presence = NxPresence::Unreachable;
        answers.push_back(answer);
    }
    takeAnswers(std::move(answers));
    m_pumpTimer.start();
}

void NxPresenceKeeper::takeAnswers(std::vector<NxFileAnswer> answers)
{
    m_answers.insert(m_answers.end(), std::make_move_iterator(answers.begin()),
        std::make_move_iterator(answers.end()));
}

void NxPresenceKeeper::takeNews(const News &news)
{
    if (news.kind == News::Kind::Volumes) {
        m_askingVolumes = false;
        m_folders.setVolumeRoots(news.roots);
        return;
    }
    if (news.isLate) {
        m_folders.findVolume(news.volume);
        return;
    }
    if (news.kind == News::Kind::Polled) {
        m_polling.remove(news.volume);
        for (const int folder : news.changed)
            m_folders.want(folder);
        return;
    }
    m_checking = false;
    for (const NxFolderAnswer &answer : news.answers) {
        m_folders.note(answer, m_clock.elapsed());
        takeAnswers({answer.files.begin(), answer.files.end()});
    }
}

void NxPresenceKeeper::pump()
{
    for (const News &news : m_post->queue.drain())
        takeNews(news);
    const QPointer<NxPresenceKeeper> self(this);
    const NxSlice slice;
    applyAnswers(slice);
    if (!self)
        return;
    fileFresh(slice);
    checkNext();
    if (!m_answers.empty() || !m_fresh.empty())
        m_pumpTimer.start();
    if (isSettled())
        callDone();
}

void NxPresenceKeeper::fileFresh(const NxSlice &slice)
{
    constexpr size_t atOnce = 200;
    while (!m_fresh.empty() && !slice.isOver()) {
        const auto end = m_fresh.begin() + std::ptrdiff_t(std::min(atOnce, m_fresh.size()));
        m_folders.wantMedia({m_fresh.begin(), end});
        m_fresh.erase(m_fresh.begin(), end);
    }
}

void NxPresenceKeeper::applyAnswers(const NxSlice &slice)
{
    const QPointer<NxPresenceKeeper> self(this);
    while (self && !m_answers.empty() && !slice.isOver()) {
        const NxFileAnswer answer = std::move(m_answers.front());
        m_answers.pop_front();
        apply(answer);
    }
    if (self)
        m_memory->flush();
}

void NxPresenceKeeper::apply(const NxFileAnswer &answer)
{
    NxEngineMedia *media = m_memory->media(answer.media);
    if (!media || !media->folder())
        return;
    if (!answer.path.isEmpty() && answer.path != media->filePath())
        return; // Linked to another file in the meantime.
    if (!answer.movedPath.isEmpty()) {
        m_memory->setMovedPath(media, answer.movedPath);
        m_folders.forgetRelativePath(media->id());
        m_folders.want(m_folders.add(media));
    }
    if (answer.presence == NxPresence::Present)
        m_memory->setFileFacts(
            media, answer.facts.size, answer.facts.created, answer.facts.modified);
    const QPointer<NxPresenceKeeper> self(this);
    m_memory->setPresence(media, answer.presence);
    if (self && answer.presence == NxPresence::Present)
        Q_EMIT seen(answer.media, {answer.facts.size, answer.facts.modified});
}

bool NxPresenceKeeper::isSettled() const
{
    return m_folders.hasVolumeRoots() && !m_checking && m_answers.empty() && m_fresh.empty()
        && !m_folders.isAnythingWanted();
}

void NxPresenceKeeper::callDone()
{
    for (const std::function<void()> &done : std::exchange(m_done, {}))
        done();
}
