// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/StreamDecoder.h>

#include <brevano-worker/input/Container.h>

#include <QCoreApplication>

namespace {

constexpr int ThreadsOfForwardPass = 2;
/// A frame of twice the largest cameras' still fits into the memory that a worker may take.
constexpr int64_t MostPixels = 160'000'000;

QString noDecoder(const AVStream *stream)
{
    return QCoreApplication::translate("StreamDecoder", "There is no decoder for %1.")
        .arg(QString::fromLatin1(avcodec_get_name(stream->codecpar->codec_id)));
}

void setUp(AVCodecContext *codec, const AVStream *stream, StreamDecoder::Use use)
{
    codec->pkt_timebase = stream->time_base;
    codec->max_pixels = MostPixels;
    if (use == StreamDecoder::Use::ForwardPass) {
        codec->thread_count = ThreadsOfForwardPass;
        codec->skip_frame = AVDISCARD_NONREF;
        codec->skip_loop_filter = AVDISCARD_ALL;
        return;
    }
    codec->thread_count = 1;
    // Where decoding can begin without a clean start, that picture is still the one to show.
    codec->flags |= AV_CODEC_FLAG_OUTPUT_CORRUPT;
}

} // namespace

NxResult<std::unique_ptr<StreamDecoder>> StreamDecoder::open(const AVStream *stream, Use use)
{
    const AVCodec *decoder = avcodec_find_decoder(stream->codecpar->codec_id);
    if (!decoder)
        return NxError{noDecoder(stream)};
    CodecHandle codec(avcodec_alloc_context3(decoder));
    int code =
        codec ? avcodec_parameters_to_context(codec.get(), stream->codecpar) : AVERROR(ENOMEM);
    if (code >= 0) {
        setUp(codec.get(), stream, use);
        code = avcodec_open2(codec.get(), decoder, nullptr);
    }
    if (code < 0)
        return NxError{
            QCoreApplication::translate("StreamDecoder", "The file cannot be decoded: %1.")
                .arg(Container::errorText(code))};
    return std::unique_ptr<StreamDecoder>(new StreamDecoder(std::move(codec)));
}

StreamDecoder::StreamDecoder(CodecHandle codec) : m_codec(std::move(codec)) {}

FrameHandle StreamDecoder::decodeAlone(const AVPacket *packet)
{
    FrameHandle picture;
    if (avcodec_send_packet(m_codec.get(), packet) >= 0) {
        picture = receive();
        if (!picture && avcodec_send_packet(m_codec.get(), nullptr) >= 0)
            picture = receive();
    }
    flush();
    return picture;
}

void StreamDecoder::send(const AVPacket *packet)
{
    // What a damaged packet fails to give is simply not received.
    static_cast<void>(avcodec_send_packet(m_codec.get(), packet));
}

FrameHandle StreamDecoder::receive()
{
    // A frame that cannot be decoded does not end the stream.
    constexpr int mostFailures = 16;
    FrameHandle frame(av_frame_alloc());
    for (int i = 0; frame && i < mostFailures; ++i) {
        const int code = avcodec_receive_frame(m_codec.get(), frame.get());
        if (code >= 0)
            return frame;
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
            break;
    }
    return {};
}

void StreamDecoder::flush()
{
    avcodec_flush_buffers(m_codec.get());
}
