// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <brevano-worker/pictures/AvHandles.h>

struct AVStream;

/// Decodes one stream. What damaged streams give is whatever the decoder makes of them.
class StreamDecoder
{
public:
    enum class Use {
        SingleFrames, ///< One thread: more of them only delay the first picture. For sound, too.
        ForwardPass, ///< Two threads, no picture that no other needs, no smoothing of blocks.
    };

    /// The error is a sentence for the user.
    [[nodiscard]] static NxResult<std::unique_ptr<StreamDecoder>> open(const AVStream *stream,
                                                                       Use use);

    /// The picture of a packet that needs no other. Nothing is read on for the decoder's delay: it
    /// is emptied at once. Null when there is no picture in it.
    [[nodiscard]] FrameHandle decodeAlone(const AVPacket *packet);

    /// Gives the decoder the next packet, null at the stream's end. Take all frames before the
    /// next one.
    void send(const AVPacket *packet);
    /// The next frame that is ready; null when the decoder wants more.
    [[nodiscard]] FrameHandle receive();
    /// Forgets everything, for a packet from elsewhere.
    void flush();

private:
    explicit StreamDecoder(CodecHandle codec);

    CodecHandle m_codec;
};
