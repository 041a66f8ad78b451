// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/VideoStream.h>

#include <brevano-worker/facts/SaneNumbers.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
}

namespace {

constexpr int QuarterTurn = 90;
constexpr int QuarterTurns = 4;
constexpr size_t MatrixNumbers = 9;

QString named(const char *name)
{
    return QString::fromLatin1(name);
}

void readColors(const AVCodecParameters &parameters, NxFootageStreams *streams)
{
    if (parameters.color_range != AVCOL_RANGE_UNSPECIFIED)
        streams->colorRange = named(av_color_range_name(parameters.color_range));
    if (parameters.color_primaries != AVCOL_PRI_UNSPECIFIED)
        streams->colorPrimaries = named(av_color_primaries_name(parameters.color_primaries));
    if (parameters.color_trc != AVCOL_TRC_UNSPECIFIED)
        streams->colorTransfer = named(av_color_transfer_name(parameters.color_trc));
    if (parameters.color_space != AVCOL_SPC_UNSPECIFIED)
        streams->colorMatrix = named(av_color_space_name(parameters.color_space));
}

void readPixels(const AVCodecParameters &parameters, NxFootageStreams *streams)
{
    const AVPixFmtDescriptor *pixels = av_pix_fmt_desc_get(AVPixelFormat(parameters.format));
    if (!pixels)
        return;
    streams->pixelFormat = named(pixels->name);
    streams->bitDepth = pixels->comp[0].depth;
}

} // namespace

QString VideoStream::fourCharacters(uint32_t tag)
{
    constexpr int bitsACharacter = 8;
    constexpr int characters = 4;
    QString text;
    for (int i = 0; i < characters; ++i) {
        const uint32_t code = (tag >> (i * bitsACharacter)) & 0xff;
        if (code < ' ' || code > '~')
            return {};
        text += QLatin1Char(char(code));
    }
    return text;
}

int VideoStream::rotation(const AVStream *stream)
{
    size_t bytes = 0;
    const uint8_t *data = av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    std::array<int32_t, MatrixNumbers> matrix = {};
    if (!data || bytes < sizeof matrix)
        return 0;
    std::memcpy(matrix.data(), data, sizeof matrix);
    const double determinant = double(matrix[0]) * matrix[4] - double(matrix[1]) * matrix[3];
    if (determinant < 0) {
        // The picture is mirrored before it is turned; what is left is the turn.
        matrix[0] = matrix[0] == INT32_MIN ? INT32_MAX : -matrix[0];
        matrix[1] = matrix[1] == INT32_MIN ? INT32_MAX : -matrix[1];
    }
    const double counterClockwise = av_display_rotation_get(matrix.data());
    if (!std::isfinite(counterClockwise))
        return 0;
    const int turns = int(std::lround(-counterClockwise / QuarterTurn)) + QuarterTurns;
    return turns % QuarterTurns * QuarterTurn;
}

void VideoStream::read(const AVStream *stream, NxFootageFacts *facts)
{
    const AVCodecParameters &parameters = *stream->codecpar;
    NxFootageStreams &streams = facts->streams;
    streams.hasVideo = true;
    if (SaneNumbers::isSize(parameters.width, parameters.height)) {
        streams.width = parameters.width;
        streams.height = parameters.height;
    }
    streams.rotation = rotation(stream);
    if (streams.rotation % (2 * QuarterTurn) != 0)
        std::swap(streams.width, streams.height);
    if (parameters.codec_id != AV_CODEC_ID_NONE)
        streams.videoCodec = named(avcodec_get_name(parameters.codec_id));
    streams.videoTag = fourCharacters(parameters.codec_tag);
    facts->videoBitRate = std::max<qint64>(parameters.bit_rate, 0);
    readColors(parameters, &streams);
    readPixels(parameters, &streams);
}
