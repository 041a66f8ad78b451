// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxGifFiles.h>

#include <NxCore/NxDiskBan.h>

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSize>

#include <iterator>
#include <utility>

namespace {

/// A larger picture would stop the user at each of its frames.
constexpr qint64 MostPixels = 64LL * 1'024 * 1'024;

int framesIn(QIODevice *device)
{
    QImageReader reader(device);
    const QSize size = reader.size();
    const bool isShowable = reader.canRead() && qint64(size.width()) * size.height() <= MostPixels;
    return isShowable ? reader.imageCount() : 0;
}

} // namespace

NxGifFiles::NxGifFiles(Changed changed) : NxGifFiles(std::move(changed), Limits()) {}

NxGifFiles::NxGifFiles(Changed changed, Limits limits)
    : m_changed(std::move(changed)),
      m_limits(limits)
{
    m_time.start();
}

NxGifFiles::~NxGifFiles() = default;

const NxGifFile *NxGifFiles::file(const QString &path)
{
    auto found = m_known.find(path);
    if (found == m_known.end()) {
        makeRoom();
        found = m_known.insert(path, {});
        look(path, &*found);
    } else if (!found->isBeingLookedAt
               && m_time.elapsed() - found->lookedAt >= m_limits.looks.count()) {
        look(path, &*found);
    }
    return found->isRead ? &found->file : nullptr;
}

void NxGifFiles::look(const QString &path, Known *known)
{
    known->isBeingLookedAt = true;
    m_thread.post(
        [this, path, before = known->file, most = m_limits.oneFile]() -> NxFileThread::Answer {
            return [this, path, file = read(path, before, most)] { take(path, file); };
        });
}

NxGifFile NxGifFiles::read(const QString &path, const NxGifFile &known, qint64 mostBytes)
{
    NxDiskBan::note("NxGifFiles::read");
    const QFileInfo info(path);
    if (!info.isFile())
        return {};
    NxGifFile file{info.size(), info.lastModified().toMSecsSinceEpoch(), 0, {}};
    if (file.size == known.size && file.modified == known.modified)
        return known;
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly))
        return file;
    if (file.size > mostBytes) {
        file.frames = framesIn(&source);
        return file;
    }
    file.bytes = source.read(mostBytes);
    QBuffer buffer(&file.bytes);
    if (buffer.open(QIODevice::ReadOnly))
        file.frames = framesIn(&buffer);
    buffer.close();
    if (!file.isAnimated())
        file.bytes.clear();
    return file;
}

void NxGifFiles::take(const QString &path, NxGifFile file)
{
    const auto found = m_known.find(path);
    if (found == m_known.end())
        return; // It was forgotten meanwhile.
    found->isBeingLookedAt = false;
    found->lookedAt = m_time.elapsed();
    const bool isSame =
        found->isRead && found->file.size == file.size && found->file.modified == file.modified;
    if (isSame)
        return;
    m_bytes -= found->file.bytes.size();
    if (m_bytes + file.bytes.size() > m_limits.allFiles)
        file.bytes.clear();
    m_bytes += file.bytes.size();
    found->file = std::move(file);
    found->isRead = true;
    const Changed changed = m_changed; // It may destroy this object.
    changed(path);
}

void NxGifFiles::forgetFilm(const QString &path)
{
    const auto found = m_known.find(path);
    if (found == m_known.end() || !found->file.isAnimated())
        return;
    m_bytes -= found->file.bytes.size();
    m_known.erase(found);
}

void NxGifFiles::giveUp(const QString &path)
{
    const auto found = m_known.find(path);
    if (found == m_known.end())
        return;
    m_bytes -= found->file.bytes.size();
    found->file.bytes.clear();
    found->file.frames = 0;
}

void NxGifFiles::makeRoom()
{
    if (m_known.size() < m_limits.files)
        return;
    for (auto it = m_known.begin(); it != m_known.end();) {
        const bool isIdle = it->isRead && !it->file.isAnimated();
        it = isIdle ? m_known.erase(it) : std::next(it);
    }
}
