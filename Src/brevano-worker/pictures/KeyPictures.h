// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <brevano-worker/pictures/StreamDecoder.h>

class FilmReader;

/// Decodes single key frames of a film. Asked twice in a row for the same one it decodes it once.
class KeyPictures
{
public:
    /// Neither is owned.
    KeyPictures(FilmReader *film, StreamDecoder *decoder);

    /// The nearest key frame that is shown at or before a time; null when it cannot be read or
    /// decoded. Pictures are valid until the next call.
    [[nodiscard]] const AVFrame *atOrBefore(int64_t time);
    /// The key frame to which the container's index leads from a time.
    [[nodiscard]] const AVFrame *listedFor(int64_t time);
    /// The first picture of the film that can be decoded at all.
    [[nodiscard]] const AVFrame *firstThere();

    /// When the last one is shown; the film's start where its container does not say.
    [[nodiscard]] int64_t time() const { return m_time; }

private:
    [[nodiscard]] PacketHandle packetByIndex(int64_t time);
    [[nodiscard]] PacketHandle packetBySearch(int64_t time);
    [[nodiscard]] PacketHandle lastKeyUntil(int64_t time);
    [[nodiscard]] const AVFrame *decode(AVPacket *packet);

    FilmReader *const m_film;
    StreamDecoder *const m_decoder;
    FrameHandle m_picture;
    int64_t m_packetTime = AV_NOPTS_VALUE; // As the container says it.
    int64_t m_time = 0;
};
