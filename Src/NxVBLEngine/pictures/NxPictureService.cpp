// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxPictureService.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/pictures/NxPictureCache.h>
#include <NxVBLEngine/reading/NxFootageReader.h>

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

constexpr int PicturesPerTrim = 500;
constexpr qint64 BytesPerKiB = 1'024;

qint64 costOf(const QImage &image)
{
    return std::max<qint64>(image.sizeInBytes() / BytesPerKiB, 1);
}

NxPictureState stateOf(const NxEngineMedia *media, NxPictureKind kind)
{
    return kind == NxPictureKind::Cover ? media->coverState() : media->stripState();
}

bool isMade(const NxEngineMedia *media, NxPictureKind kind)
{
    return stateOf(media, kind) == NxPictureState::Made && !media->fingerprint().isNull();
}

/// The picture itself, in whatever size.
NxPictureKey sizeless(const NxPictureKey &key)
{
    return {key.contents, key.kind, {}};
}

} // namespace

NxPictureService::NxPictureService(NxProjectMemory *memory, NxFootageReader *reader, Limits limits)
    : m_memory(memory),
      m_reader(reader),
      m_limits(limits),
      m_images(limits.memoryKiB),
      m_bell([this] { takeResults(); }),
      m_threads(m_bell.rope())
{
    connect(m_reader, &NxFootageReader::picturesMade, this, &NxPictureService::trimFolder);
}

NxPictureService::~NxPictureService() = default;

QImage NxPictureService::cover(Asker asker, INxAbstractMedia *media, const QSize &devicePixels)
{
    // Covers are no larger, and none is enlarged: all larger sizes are the same picture.
    const QSize size =
        devicePixels.boundedTo(QSize(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight));
    return size.isEmpty() ? QImage() : picture(asker, media, {{}, NxPictureKind::Cover, size});
}

QImage NxPictureService::strip(Asker asker, INxAbstractMedia *media)
{
    return picture(asker, media, {{}, NxPictureKind::Strip, {}});
}

QImage NxPictureService::picture(Asker asker, INxAbstractMedia *item, const NxPictureKey &asked)
{
    const auto *media = dynamic_cast<const NxEngineMedia *>(item);
    if (!media)
        return {};
    if (!isMade(media, asked.kind)) {
        m_reader->wantVisible(media);
        return {};
    }
    const NxPictureKey key{media->fingerprint(), asked.kind, asked.size};
    if (const QImage *image = m_images.object(key))
        return *image;
    Awaited &awaited = m_awaited[key];
    if (awaited.askers.isEmpty())
        order(key, media, &awaited);
    awaited.askers[media->id()].insert(asker);
    return {};
}

void NxPictureService::order(const NxPictureKey &key, const NxEngineMedia *media, Awaited *awaited)
{
    if (m_lost.value(sizeless(key)).contains(media->id()))
        awaited->madeAgainFor = media->id();
    const QString name = NxPictureFile::name(key.contents, key.kind);
    m_threads.load(key, m_reader->cacheFolder() + QLatin1Char('/') + name);
}

void NxPictureService::cancelRequests(Asker asker)
{
    for (Awaited &awaited : m_awaited) {
        for (QSet<Asker> &askers : awaited.askers)
            askers.remove(asker);
    }
    const auto isUnwanted = [this](const NxPictureKey &key) {
        return !m_awaited.value(key).isWanted();
    };
    for (const NxPictureKey &key : m_threads.dropWaiting(isUnwanted))
        m_awaited.remove(key);
    m_reader->forgetWanted();
}

void NxPictureService::setTeller(Asker asker, Teller teller)
{
    if (teller)
        m_tellers.insert(asker, std::move(teller));
    else
        m_tellers.remove(asker);
}

bool NxPictureService::Awaited::isWanted() const
{
    return std::any_of(askers.begin(), askers.end(),
                       [](const QSet<Asker> &waiting) { return !waiting.isEmpty(); });
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
    const Awaited awaited = m_awaited.take(result.key);
    if (result.image.isNull()) {
        noteLoss(result.key, awaited);
        return;
    }
    keep(result);
    const QPointer<NxPictureService> self(this);
    for (auto it = awaited.askers.begin(); it != awaited.askers.end(); ++it) {
        tell(it.key(), result.key, it.value());
        if (!self)
            return;
        if (NxEngineMedia *media = stillWaiting(it.key(), result.key))
            tell(media);
        if (!self)
            return;
    }
}

void NxPictureService::keep(const NxPictureThreads::Result &result)
{
    m_lost.remove(sizeless(result.key));
    // One that is larger than all the memory is kept alone: without it nobody could ever paint it.
    const qint64 cost = std::min<qint64>(costOf(result.image), m_images.maxCost());
    m_images.insert(result.key, new QImage(result.image), int(cost));
}

NxEngineMedia *NxPictureService::stillWaiting(qint64 id, const NxPictureKey &key) const
{
    NxEngineMedia *media = m_memory->media(id);
    const bool isStill = media && media->folder() && media->fingerprint() == key.contents;
    return isStill && isMade(media, key.kind) ? media : nullptr;
}

void NxPictureService::noteLoss(const NxPictureKey &key, const Awaited &awaited)
{
    const QPointer<NxPictureService> self(this);
    for (auto it = awaited.askers.begin(); it != awaited.askers.end(); ++it) {
        const qint64 id = it.key();
        NxEngineMedia *media = stillWaiting(id, key);
        if (!media)
            continue; // Asked for in another size it was found lost before.
        const bool isForGood = id == awaited.madeAgainFor;
        if (isForGood)
            m_lost[sizeless(key)].remove(id); // Should somebody want it tried again.
        else
            m_lost[sizeless(key)].insert(id);
        noteLoss(media, key.kind, isForGood);
        if (!self)
            return;
    }
}

void NxPictureService::noteLoss(NxEngineMedia *media, NxPictureKind kind, bool isForGood)
{
    if (!isForGood) {
        m_reader->notePictureGone(media);
        return;
    }
    NxFootageRecord record = media->footage();
    const bool isCover = kind == NxPictureKind::Cover;
    (isCover ? record.cover : record.strip) = NxPictureState::Failed;
    (isCover ? record.coverReason : record.stripReason) = QCoreApplication::translate(
        "NxPictureService", "The picture was made but cannot be loaded from the cache folder.");
    m_memory->setFootage(media, record);
}

void NxPictureService::tell(qint64 id, const NxPictureKey &key, const QSet<Asker> &askers)
{
    const QPointer<NxPictureService> self(this);
    for (const Asker asker : askers) {
        const Teller teller = m_tellers.value(asker);
        NxEngineMedia *media = teller ? stillWaiting(id, key) : nullptr;
        if (media)
            teller(media);
        if (!self)
            return;
    }
}

void NxPictureService::tell(NxEngineMedia *media)
{
    m_memory->category(media->category())
        ->itemObservers.tell([media](INxMediaItemEventObserver *observer) {
            observer->onMediaStateChangedEvent(media);
        });
}

void NxPictureService::trimFolder()
{
    if (m_madeSinceTrim++ % PicturesPerTrim != 0)
        return;
    const qint64 limit =
        m_limits.folderBytes > 0 ? m_limits.folderBytes : NxPictureCache::DefaultLimit;
    m_threads.run(
        [folder = m_reader->cacheFolder(), limit] { NxPictureCache::trim(folder, limit); });
}
