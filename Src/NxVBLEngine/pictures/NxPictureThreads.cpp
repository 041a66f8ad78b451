// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxPictureThreads.h>

#include <NxVBLEngine/pictures/NxPictureCache.h>

#include <QImageReader>

#include <chrono>
#include <optional>
#include <utility>

namespace {

constexpr int ThreadCount = 2;
constexpr std::chrono::hours IdleWait{1};

} // namespace

NxPictureThreads::NxPictureThreads(NxDoorbellRope bell)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->bell = std::move(bell);
}

NxPictureThreads::~NxPictureThreads()
{
    const std::vector<Order> dropped = m_shared->orders.drain();
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

std::vector<NxPictureKey> NxPictureThreads::dropWaiting()
{
    std::vector<NxPictureKey> keys;
    for (Order &order : m_shared->orders.drain()) {
        if (order.chore)
            m_shared->orders.push(std::move(order));
        else
            keys.push_back(order.key);
    }
    return keys;
}

std::vector<NxPictureThreads::Result> NxPictureThreads::take()
{
    return m_shared->results.drain();
}

void NxPictureThreads::work(const std::shared_ptr<Shared> &shared)
{
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
    QImageReader reader(path, "jpg");
    const QSize whole = reader.size();
    if (key.kind == NxPictureKind::Cover && whole.isValid()) {
        const QSize fitting = whole.scaled(key.size, Qt::KeepAspectRatio);
        if (fitting.width() < whole.width())
            reader.setScaledSize(fitting.expandedTo(QSize(1, 1)));
    }
    const QImage image = reader.read();
    if (image.isNull())
        return image;
    NxPictureCache::noteUse(path);
    // The format that is painted without being converted each time.
    return image.convertToFormat(QImage::Format_RGB32);
}
