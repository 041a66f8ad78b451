// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>

#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/delegate_P/NxGifFiles.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QMovie>
#include <QTime>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace {

constexpr int TickInterval = 50; // ms
constexpr int KeepAlive = 5'000; // ms

NxGifPreviewHelper *theInstance = nullptr;

int timeOfDay()
{
    const QTime now = QTime::currentTime();
    return now.isValid() ? now.msecsSinceStartOfDay() : 0;
}

/// The file of an animated picture; empty for all else.
QString pathOf(INxAbstractMedia *media)
{
    if (!media || media->kindCode() != NXVBLMODEL::mkcAnimatedImage)
        return {};
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    return item ? item->filePath() : QString();
}

} // namespace

NxGifPreviewHelper::NxGifPreviewHelper()
    : m_files(std::make_unique<NxGifFiles>([this](const QString &path) { onFileRead(path); }))
{
}

NxGifPreviewHelper::~NxGifPreviewHelper()
{
    for (const auto &[media, entry] : m_movies)
        delete entry.movie; // There may be no event loop any more in which it could go later.
}

NxGifPreviewHelper *NxGifPreviewHelper::getInstance()
{
    if (!theInstance) {
        theInstance = new NxGifPreviewHelper;
        theInstance->init();
        qAddPostRoutine(&NxGifPreviewHelper::destroyInstance);
    }
    return theInstance;
}

void NxGifPreviewHelper::destroyInstance()
{
    delete std::exchange(theInstance, nullptr);
}

void NxGifPreviewHelper::init()
{
    m_timer = std::make_unique<QTimer>();
    m_timer->setInterval(TickInterval);
    connect(m_timer.get(), &QTimer::timeout, this, [this] { onTimeout(); });
}

void NxGifPreviewHelper::startPlay()
{
    m_isTickWanted = true;
    if (!m_timer || m_timer->isActive())
        return;
    for (auto &[media, entry] : m_movies)
        entry.movie->setPaused(false);
    m_timer->start();
}

void NxGifPreviewHelper::stopPlay()
{
    m_isTickWanted = false;
    if (!m_timer)
        return;
    m_timer->stop();
    for (auto &[media, entry] : m_movies)
        entry.movie->setPaused(true);
}

bool NxGifPreviewHelper::isAwaited(INxAbstractMedia *media) const
{
    const auto waiting = m_waiting.constFind(media);
    return waiting != m_waiting.constEnd() && waiting->get() == media;
}

bool NxGifPreviewHelper::getImage(INxAbstractMedia *media, QImage &out)
{
    if (livingEntry(media) == m_movies.end() && !addMedia(media)) {
        m_isTickWanted = m_isTickWanted || m_waiting.contains(media);
        return false;
    }
    startPlay();
    auto found = m_movies.find(media);
    if (found == m_movies.end())
        return false;
    lookAgain(media, found->second.path);
    found = m_movies.find(media);
    if (found == m_movies.end())
        return false;
    found->second.lastAccess = now();
    out = found->second.movie->currentImage();
    return true;
}

bool NxGifPreviewHelper::hasNewFrame(INxAbstractMedia *media)
{
    const auto found = livingEntry(media);
    if (found == m_movies.end())
        return false;
    found->second.lastAccess = now();
    return found->second.isMoved;
}

NxGifPreviewHelper::Table::iterator NxGifPreviewHelper::livingEntry(INxAbstractMedia *media)
{
    const auto found = m_movies.find(media);
    if (found == m_movies.end() || !found->second.media.isNull())
        return found;
    drop(found);
    return m_movies.end();
}

bool NxGifPreviewHelper::addMedia(INxAbstractMedia *media)
{
    const QString path = pathOf(media);
    if (path.isEmpty())
        return false;
    const NxGifFile *file = m_files->file(path);
    if (!file) {
        m_waiting.insert(media, media);
        return false;
    }
    QMovie *movie = file->isAnimated() ? startedMovie(path, *file) : nullptr;
    if (!movie)
        return false;
    Entry entry;
    entry.media = media;
    entry.path = path;
    entry.lastAccess = now();
    entry.movie = movie;
    m_movies.emplace(media, std::move(entry));
    return true;
}

bool NxGifPreviewHelper::updateMedia(INxAbstractMedia *media)
{
    const auto found = m_movies.find(media);
    if (found != m_movies.end() && found->second.path == pathOf(media)) {
        release(found->second.movie);
        m_movies.erase(found);
    } else if (found != m_movies.end()) {
        drop(found);
    }
    return addMedia(media);
}

void NxGifPreviewHelper::lookAgain(INxAbstractMedia *media, const QString &path)
{
    if (pathOf(media) == path)
        (void)m_files->file(path);
    else
        updateMedia(media);
}

QMovie *NxGifPreviewHelper::startedMovie(const QString &path, const NxGifFile &file)
{
    auto movie = std::make_unique<QMovie>();
    movie->setCacheMode(QMovie::CacheNone);
    if (file.bytes.isEmpty()) {
        NxDiskBan::note("NxGifPreviewHelper::startedMovie"); // Too large to be read whole.
        movie->setFileName(path);
    } else {
        auto *buffer = new QBuffer(movie.get());
        buffer->setData(file.bytes);
        buffer->open(QIODevice::ReadOnly);
        movie->setDevice(buffer);
    }
    movie->start();
    if (movie->currentImage().isNull()) {
        m_files->giveUp(path);
        return nullptr;
    }
    movie->setPaused(!m_timer || !m_timer->isActive());
    return movie.release();
}

NxGifPreviewHelper::Table::iterator NxGifPreviewHelper::drop(Table::iterator entry)
{
    const QString path = entry->second.path;
    release(entry->second.movie);
    const auto next = m_movies.erase(entry);
    const bool isShown = std::any_of(m_movies.begin(), m_movies.end(),
                                     [&](const auto &other) { return other.second.path == path; });
    if (!isShown)
        m_files->forgetFilm(path);
    return next;
}

void NxGifPreviewHelper::release(QMovie *movie)
{
    movie->stop();
    movie->deleteLater();
}

void NxGifPreviewHelper::clear()
{
    for (const auto &[media, entry] : m_movies) {
        release(entry.movie);
        m_files->forgetFilm(entry.path);
    }
    m_movies.clear();
    m_waiting.clear();
}

void NxGifPreviewHelper::setClock(Clock clock)
{
    m_clock = std::move(clock);
}

int NxGifPreviewHelper::now() const
{
    return m_clock ? m_clock() : timeOfDay();
}

void NxGifPreviewHelper::onFileRead(const QString &path)
{
    QVector<INxAbstractMedia *> shown;
    for (const auto &[media, entry] : m_movies) {
        if (entry.path == path && !entry.media.isNull())
            shown.append(media);
    }
    for (INxAbstractMedia *media : std::as_const(shown))
        updateMedia(media);

    QVector<INxAbstractMedia *> come;
    for (auto it = m_waiting.begin(); it != m_waiting.end();) {
        INxAbstractMedia *media = it->get();
        const bool isCome = media && pathOf(media) == path;
        if (isCome)
            come.append(media);
        it = isCome || !media ? m_waiting.erase(it) : std::next(it);
    }
    if (!m_isTickWanted)
        return; // Nobody looks any more.
    bool isNew = false;
    for (INxAbstractMedia *media : std::as_const(come))
        isNew |= addMedia(media);
    if (!isNew)
        return;
    startPlay();
    Q_EMIT sigUpdate();
}

void NxGifPreviewHelper::onTimeout()
{
    const int time = now();
    for (auto it = m_movies.begin(); it != m_movies.end();) {
        Entry &entry = it->second;
        if (entry.media.isNull() || std::abs(time - entry.lastAccess) > KeepAlive) {
            it = drop(it);
            continue;
        }
        const int frame = entry.movie->currentFrameNumber();
        entry.isMoved = frame != std::exchange(entry.shownAtTick, frame);
        ++it;
    }
    Q_EMIT sigUpdate();
}
