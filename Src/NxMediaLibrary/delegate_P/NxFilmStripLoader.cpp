// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxFilmStripLoader.h>

#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/delegate_P/NxPreviewFrameSize.h>

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 BytesPerKiB = 1'024;
/// What is larger was not made for this, and would only fill the memory.
constexpr qint64 MostPixels = 64LL * 1'024 * 1'024;

bool isSizeOfStrip(const QSize &size)
{
    return size.width() >= NxPreviewFrame::Width && size.height() >= NxPreviewFrame::Height;
}

QImage decoded(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // The name says nothing about a file of a cache.
    const QSize size = reader.size();
    if (size.isValid()
        && (!isSizeOfStrip(size) || qint64(size.width()) * size.height() > MostPixels))
        return {};
    const QImage image = reader.read();
    if (!isSizeOfStrip(image.size()))
        return {};
    // The formats that are painted without being converted each time.
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

NxFilmStripLoader::NxFilmStripLoader(Arrived arrived, int memoryKiB)
    : m_arrived(std::move(arrived)),
      m_strips(memoryKiB)
{
}

NxFilmStripLoader::~NxFilmStripLoader() = default;

bool NxFilmStripLoader::isStrip(const QImage &image)
{
    return isSizeOfStrip(image.size());
}

void NxFilmStripLoader::load(const QString &path)
{
    const Strip *kept = m_strips.object(path);
    const Strip known = kept ? *kept : Strip();
    m_thread.dropWaiting();
    m_thread.post([this, path, known]() -> NxFileThread::Answer {
        return [this, path, strip = read(path, known)] { take(path, strip); };
    });
}

NxFilmStripLoader::Strip NxFilmStripLoader::read(const QString &path, const Strip &known)
{
    NxDiskBan::note("NxFilmStripLoader::read");
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    const qint64 modified = file.lastModified().toMSecsSinceEpoch();
    if (file.size() == known.bytes && modified == known.modified)
        return known;
    return {file.size(), modified, decoded(path)};
}

void NxFilmStripLoader::take(const QString &path, const Strip &strip)
{
    if (strip.image.isNull()) {
        m_strips.remove(path);
    } else {
        const qint64 cost = std::max<qint64>(strip.image.sizeInBytes() / BytesPerKiB, 1);
        // One that is larger than all the memory is kept alone.
        m_strips.insert(path, new Strip(strip), int(std::min<qint64>(cost, m_strips.maxCost())));
    }
    const Arrived arrived = m_arrived; // It may destroy this object.
    arrived(path, strip.image);
}
