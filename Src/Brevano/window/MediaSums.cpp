// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/MediaSums.h>

#include <Brevano/commands/MediaFacts.h>
#include <NxMediaViews/NxMediaColumns.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <algorithm>
#include <utility>

using namespace NXVBLMODEL;

namespace {

/// Takes a few milliseconds.
constexpr int SliceSize = 2'000;

} // namespace

MediaSums::MediaSums(QObject *parent) : QObject(parent)
{
    connect(&m_turn, &QTimer::timeout, this, &MediaSums::addSlice);
}

MediaSums::~MediaSums() = default;

void MediaSums::start(int count, Media media)
{
    m_media = std::move(media);
    m_count = count;
    m_next = 0;
    m_totals = {};
    m_turn.start(0);
}

void MediaSums::stop()
{
    m_turn.stop();
    m_media = nullptr;
}

void MediaSums::addSlice()
{
    const int end = std::min(m_count, m_next + SliceSize);
    for (; m_next < end; ++m_next)
        add(m_media(m_next));
    if (m_next < m_count)
        return;
    stop();
    Q_EMIT sigDone();
}

void MediaSums::add(const INxAbstractMedia *media)
{
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    if (!item)
        return;
    const int kind = NxMediaColumns::column(mctMedia, NXMEDIALIBRARY::sbType);
    ++m_totals.kinds[NxMediaColumns::text(*item, mctMedia, kind)];
    m_totals.milliseconds += std::max<qint64>(0, MediaFacts::milliseconds(*item));
    m_totals.bytes += std::max<qint64>(0, item->sourceSize());
    m_totals.unknownSizes += item->sourceSize() < 0 ? 1 : 0;
}
