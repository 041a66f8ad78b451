// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libswscale/swscale.h>
}

/// Owners of what FFmpeg hands out.
struct AvHandleCloser
{
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(SwsContext *scaler) const { sws_freeContext(scaler); }
};

using CodecHandle = std::unique_ptr<AVCodecContext, AvHandleCloser>;
using FrameHandle = std::unique_ptr<AVFrame, AvHandleCloser>;
using PacketHandle = std::unique_ptr<AVPacket, AvHandleCloser>;
using ScalerHandle = std::unique_ptr<SwsContext, AvHandleCloser>;
