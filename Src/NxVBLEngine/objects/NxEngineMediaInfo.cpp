// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineMediaInfo.h>

#include <NxVBLEngine/objects/NxStreamDescription.h>

using namespace NXVBLMODEL;

namespace {

constexpr qint64 UsPerHundredth = 10'000; // Microseconds in a hundredth of a second.

qint64 hundredths(qint64 us)
{
    const qint64 whole = us / UsPerHundredth;
    return us % UsPerHundredth >= UsPerHundredth / 2 ? whole + 1 : whole;
}

} // namespace

void NxEngineMediaInfo::set(const NxFootageRow &row, const NxStreamDescription *streams)
{
    m_streams = streams;
    m_frames = row.frames;
    m_rate = row.rate;
    m_durationUs = row.durationUs;
    m_videoBitRate = row.videoBitRate;
    m_audioBitRate = row.audioBitRate;
    m_shot = row.shot;
    m_timecode = row.timecode;
    m_reel = row.reel;
}

void NxEngineMediaInfo::writeTo(NxFootageRow *row) const
{
    row->frames = m_frames;
    row->rate = m_rate;
    row->durationUs = m_durationUs;
    row->videoBitRate = m_videoBitRate;
    row->audioBitRate = m_audioBitRate;
    row->shot = m_shot;
    row->timecode = m_timecode;
    row->reel = m_reel;
}

int NxEngineMediaInfo::kind() const
{
    return m_streams ? m_streams->infoKind : mikUnknown;
}

int NxEngineMediaInfo::streamFlags() const
{
    return m_streams ? m_streams->streamFlags : sfNone;
}

qint64 NxEngineMediaInfo::duration() const
{
    return kind() == mikAudio ? hundredths(m_durationUs) : m_frames;
}

const NxVideoStreamInfo *NxEngineMediaInfo::videoStream() const
{
    return (streamFlags() & sfVideo) ? &m_streams->video : nullptr;
}

const NxAudioStreamInfo *NxEngineMediaInfo::audioStream() const
{
    return (streamFlags() & sfAudio) ? &m_streams->audio : nullptr;
}

const NxImageInfo *NxEngineMediaInfo::imageInfo() const
{
    return (streamFlags() & sfImage) ? &m_streams->image : nullptr;
}

QString NxEngineMediaInfo::textEncoding() const
{
    return m_streams ? m_streams->streams.textEncoding : QString();
}

bool NxEngineMediaInfo::canSeek() const
{
    return !m_streams || m_streams->streams.canSeek;
}

QString NxEngineMediaInfo::demuxer() const
{
    return m_streams ? m_streams->streams.demuxer : QString();
}
