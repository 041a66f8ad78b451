// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxPictureThreads.h>

#include <NxCore/NxDiskBan.h>
#include <NxCore/NxStepBack.h>
#include <NxVBLEngine/pictures/NxPictureCache.h>

#include <QFile>
#include <QImageReader>

#include <chrono>
#include <optional>
#include <utility>

namespace {

constexpr int ThreadCount = 2;
constexpr std::chrono::hours IdleWait{1};

/// A JPEG ends with this mark; one that was cut would be filled up with grey.
bool isWhole(QFile *file)
{
    static const QByteArray mark("\xff\xd9");
    return file->size() > mark.size() && file->seek(file->size() - mark.size())
           && file->read(mark.size()) == mark && file->seek(0);
}

/// Anything else was put there by somebody else, and may be of any size.
bool isSizeOf(NxPictureKind kind, const QSize &size)
{
    const QSize largest = kind == NxPictureKind::Cover
                              ? QSize(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight)
                              : QSize(NxPictureFile::FrameWidth, NxPictureFile::StripHeight);
    return !size.isEmpty() && size.boundedTo(largest) == size;
}

QImage decoded(const NxPictureKey &key, QIODevice *file)
{
    QImageReader reader(file, "jpg");
    const QSize whole = reader.size();
    if (!isSizeOf(key.kind, whole))
        return {};
    if (key.kind == NxPictureKind::Cover) {
        const QSize fitting = whole.scaled(key.size, Qt::KeepAspectRatio);
        if (fitting.width() < whole.width())
            reader.setScaledSize(fitting.expandedTo(QSize(1, 1)));
    }
    return reader.read();
}

} // namespace

NxPictureThreads::NxPictureThreads(NxDoorbellRope bell) : m_shared(std::make_shared<Shared>())
{
    m_shared->bell = std::move(bell);
}

NxPictureThreads::~NxPictureThreads()
{
    (void)m_shared->orders.drain();
    m_shared->orders.close();
    for (std::thread &thread : m_threads)
        thread.join();
}

void NxPictureThreads::start()
{
    while (int(m_threads.size()) < ThreadCount)
        m_threads.emplace_back(&NxPictureThreads::work, m_shared);
}

void NxPictureThreads::load(const NxPictureKey &key, const QString &path)
{
    m_shared->orders.push({key, path, {}});
    start();
}

void NxPictureThreads::run(std::function<void()> chore)
{
    m_shared->orders.push({{}, {}, std::move(chore)});
    start();
}

std::vector<NxPictureKey> NxPictureThreads::dropWaiting(const IsUnwanted &isUnwanted)
{
    std::vector<NxPictureKey> dropped;
    std::vector<Order> kept;
    for (Order &order : m_shared->orders.drain()) {
        if (!order.chore && isUnwanted(order.key))
            dropped.push_back(order.key);
        else
            kept.push_back(std::move(order));
    }
    m_shared->orders.pushAll(std::move(kept));
    return dropped;
}

std::vector<NxPictureThreads::Result> NxPictureThreads::take()
{
    return m_shared->results.drain();
}

void NxPictureThreads::work(const std::shared_ptr<Shared> &shared)
{
    nxStepBack();
    while (!shared->orders.isClosed()) {
        const std::optional<Order> order = shared->orders.waitPop(IdleWait);
        if (!order)
            continue;
        if (order->chore) {
            order->chore();
            continue;
        }
        shared->results.push({order->key, loaded(order->key, order->path)});
        shared->bell.ring();
    }
}

QImage NxPictureThreads::loaded(const NxPictureKey &key, const QString &path)
{
    NxDiskBan::note("NxPictureThreads::loaded");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QImage image = isWhole(&file) ? decoded(key, &file) : QImage();
    if (image.isNull()) {
        file.remove();
        return {};
    }
    NxPictureCache::noteUse(path);
    // The format that is painted without being converted each time.
    return image.convertToFormat(QImage::Format_RGB32);
}
