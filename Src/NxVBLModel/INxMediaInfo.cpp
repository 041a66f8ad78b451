// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaInfo.h>

INxMediaInfo::~INxMediaInfo() = default;

qint64 INxMediaInfo::frameCount() const
{
    return 0;
}

NxRational INxMediaInfo::frameRate() const
{
    return {};
}

qint64 INxMediaInfo::duration() const
{
    return 0;
}

const NxVideoStreamInfo *INxMediaInfo::videoStream() const
{
    return nullptr;
}

const NxAudioStreamInfo *INxMediaInfo::audioStream() const
{
    return nullptr;
}

const NxImageInfo *INxMediaInfo::imageInfo() const
{
    return nullptr;
}

qint64 INxMediaInfo::videoBitRate() const
{
    return 0;
}

qint64 INxMediaInfo::audioBitRate() const
{
    return 0;
}

QString INxMediaInfo::timecode() const
{
    return {};
}

QString INxMediaInfo::reelName() const
{
    return {};
}

QString INxMediaInfo::textEncoding() const
{
    return {};
}

bool INxMediaInfo::canSeek() const
{
    return true;
}

QString INxMediaInfo::demuxer() const
{
    return {};
}
