// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxPictureService.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/pictures/NxPictureCache.h>
#include <NxVBLEngine/reading/NxFootageReader.h>

#include <QPointer>

#include <algorithm>

namespace {

constexpr int PicturesPerTrim = 500;
constexpr int LargestSide = 4'096; // px
constexpr qint64 BytesPerKiB = 1'024;

int costOf(const QImage &image)
{
    return int(std::max<qint64>(image.sizeInBytes() / BytesPerKiB, 1));
}

NxPictureState stateOf(const NxEngineMedia *media, NxPictureKind kind)
{
    return kind == NxPictureKind::Cover ? media->coverState() : media->stripState();
}

} // namespace

NxPictureService::NxPictureService(NxProjectMemory *memory, NxFootageReader *reader, Limits limits)
    : m_memory(memory)
    , m_reader(reader)
    , m_limits(limits)
    , m_images(limits.memoryKiB)
    , m_bell([this] { takeResults(); })
    , m_threads(m_bell.rope())
{
    connect(m_reader, &NxFootageReader::picturesMade, this, &NxPictureService::trimFolder);
}

NxPictureService::~NxPictureService() = default;

QImage NxPictureService::cover(INxAbstractMedia *media, const QSize &devicePixels)
{
    const QSize size = devicePixels.boundedTo(QSize(LargestSide, LargestSide));
    return size.isEmpty() ? QImage() : picture(media, NxPictureKind::Cover, size);
}

QImage NxPictureService::strip(INxAbstractMedia *media)
{
    return picture(media, NxPictureKind::Strip, {});
}

QImage NxPictureService::picture(INxAbstractMedia *item, NxPictureKind kind, const QSize &size)
{
    const auto *media = dynamic_cast<const NxEngineMedia *>(item);
    if (!media)
        return {};
    if (stateOf(media, kind) != NxPictureState::Made) {
        m_reader->wantVisible(media);
        return {};
    }
    const NxPictureKey key{media->fingerprint(), kind, size};
    if (const QImage *image = m_images.object(key))
        return *image;
    QSet<qint64> &awaiting = m_awaited[key];
    if (awaiting.isEmpty())
        m_threads.load(key,
            m_reader->cacheFolder() + QLatin1Char('/') + NxPictureFile::name(key.contents, kind));
    awaiting.insert(media->id());
    return {};
}

void NxPictureService::cancelRequests()
{
    for (const NxPictureKey &key : m_threads.dropWaiting())
        m_awaited.remove(key);
    m_reader->forgetWanted();
}

void NxPictureService::takeResults()
{
    const QPointer<NxPictureService> self(this);
    for (const NxPictureThreads::Result &result : m_threads.take()) {
        take(result);
        if (!self)
            return; // Whoever was told has closed the project.
    }
}

void NxPictureService::take(const NxPictureThreads::Result &result)
{
    const QSet<qint64> awaiting = m_awaited.take(result.key);
    const bool isGone = result.image.isNull();
    if (!isGone)
        m_images.insert(result.key, new QImage(result.image), costOf(result.image));
    const QPointer<NxPictureService> self(this);
    for (const qint64 id : awaiting) {
        NxEngineMedia *media = m_memory->media(id);
        const bool isStill = media && media->fingerprint() == result.key.contents;
        if (!isStill)
            continue;
        if (isGone)
            m_reader->notePictureGone(media);
        else
            tell(id);
        if (!self)
            return;
    }
}

void NxPictureService::tell(qint64 id)
{
    NxEngineMedia *media = m_memory->media(id);
    if (!media->folder())
        return;
    m_memory->category(media->category())
        ->itemObservers.tell([media](INxMediaItemEventObserver *observer) {
            observer->onMediaStateChangedEvent(media);
        });
}

void NxPictureService::trimFolder()
{
    if (m_madeSinceTrim++ % PicturesPerTrim != 0)
        return;
    const qint64 limit
        = m_limits.folderBytes > 0 ? m_limits.folderBytes : NxPictureCache::DefaultLimit;
    m_threads.run([folder = m_reader->cacheFolder(), limit] {
        NxPictureCache::trim(folder, limit);
    });
}
