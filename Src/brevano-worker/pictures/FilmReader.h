// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <brevano-worker/pictures/AvHandles.h>

#include <QtGlobal>

#include <vector>

extern "C" {
#include <libavformat/avformat.h>
}

class Container;

/// The packets of one stream of a container, from any place of it. Times are in units of the
/// stream; moments are microseconds since the first picture that is shown, or the first sound.
class FilmReader
{
    Q_DISABLE_COPY_MOVE(FilmReader)
public:
    /// Goes to the beginning, wherever the container was. No other stream of it is read as long as
    /// this lives. `durationUs` 0: as the container says it, if it does.
    FilmReader(Container *container, AVStream *stream, qint64 durationUs);
    ~FilmReader();

    [[nodiscard]] const AVStream *stream() const { return m_stream; }
    [[nodiscard]] qint64 durationUs() const { return m_durationUs; } ///< 0: not known.
    [[nodiscard]] int64_t start() const { return m_start; } ///< The time of moment 0.
    [[nodiscard]] int64_t timeOf(qint64 momentUs) const;
    [[nodiscard]] qint64 momentUsOf(int64_t time) const;
    /// Damaged containers tell times with which nobody can reckon. All times that come from here
    /// can be added to each other.
    [[nodiscard]] static bool isBelievable(int64_t time);
    /// When a packet is shown; AV_NOPTS_VALUE when the container does not say.
    [[nodiscard]] static int64_t shownAt(const AVPacket *packet);

    /// When the key frames are shown that the container's index lists; to a picture or two, where
    /// it lists them in decoding order. Empty when the container has no index of its own.
    [[nodiscard]] std::vector<int64_t> listedKeyFrames() const;
    /// True when seek() may lead anywhere near.
    [[nodiscard]] bool seeksRoughly() const;
    /// True when every picture is a key frame by the nature of its codec.
    [[nodiscard]] bool isIntraOnly() const;
    /// True when there is no second picture; goes to the beginning and reads on.
    [[nodiscard]] bool hasOnePacket();

    /// Goes to the key frame at or before a time. Containers that have to be read for it are not
    /// read on for ever: then it is the last one that was met.
    [[nodiscard]] bool seek(int64_t time);
    bool rewind();
    /// Null at the end, and where nothing more can be read. Valid until the next call.
    [[nodiscard]] AVPacket *next();
    /// The next packet that needs no other. Null also when there is none within what a film
    /// reasonably has between two.
    [[nodiscard]] AVPacket *nextKey();
    /// The next packet that is not shown when it is decoded. Pictures between references are; so
    /// the reference before them is shown when the next one is decoded.
    [[nodiscard]] AVPacket *nextReference();

private:
    void findStart();

    Container *const m_container; // Not owned.
    AVFormatContext *const m_format; // Not owned.
    AVStream *const m_stream; // Not owned.
    std::vector<AVDiscard> m_discards; // What the streams had before.
    PacketHandle m_packet;
    qint64 m_durationUs;
    int64_t m_firstTime = 0; // Of the first packet, which need not be shown.
    int64_t m_start = 0;
};
