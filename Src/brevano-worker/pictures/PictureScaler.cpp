// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/PictureScaler.h>

#include <cstdlib>
#include <cstring>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

namespace {

constexpr int BytesPerPixel = 4;
constexpr int RowAlignment = 64;
/// Sides of a display matrix; the third row and column do not turn anything.
enum MatrixPlace { XByX = 0, YByX = 1, XByY = 3, YByY = 4 };
constexpr size_t MatrixBytes = 9 * sizeof(int32_t);

int sign(int32_t number)
{
    return (number > 0) - (number < 0);
}

bool canBeSeenThrough(const AVPixFmtDescriptor &format)
{
    return (format.flags & (AV_PIX_FMT_FLAG_ALPHA | AV_PIX_FMT_FLAG_PAL)) != 0;
}

/// Films that do not say it follow the custom of their size.
int colourMatrixOf(const AVFrame *frame)
{
    constexpr int tallestOfStandardDefinition = 576;
    if (frame->colorspace != AVCOL_SPC_UNSPECIFIED)
        return frame->colorspace;
    return frame->height > tallestOfStandardDefinition ? SWS_CS_ITU709 : SWS_CS_ITU601;
}

/// Whether black is 0 rather than 16.
bool isFullRange(const AVFrame *frame, const AVPixFmtDescriptor &format)
{
    constexpr int componentsOfGrey = 2; // The second one is how much can be seen through.
    if (frame->color_range != AVCOL_RANGE_UNSPECIFIED)
        return frame->color_range == AVCOL_RANGE_JPEG;
    return format.nb_components <= componentsOfGrey || qstrncmp(format.name, "yuvj", 4) == 0;
}

void setColours(SwsContext *scaler, const AVFrame *frame, const AVPixFmtDescriptor &format)
{
    constexpr int one = 1 << 16;
    if (format.flags & (AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL))
        return;
    const int *from = sws_getCoefficients(colourMatrixOf(frame));
    const int *to = sws_getCoefficients(SWS_CS_DEFAULT);
    // Fails for formats that have no such colours, which is as well.
    static_cast<void>(
        sws_setColorspaceDetails(scaler, from, isFullRange(frame, format), to, 1, 0, one, one));
}

} // namespace

PictureScaler::PictureScaler(AVRational pixelAspect, const QTransform &upright)
    : m_pixelAspect(pixelAspect),
      m_upright(upright)
{
}

PictureScaler PictureScaler::of(const AVStream *stream)
{
    AVRational aspect = stream->sample_aspect_ratio;
    if (aspect.num <= 0 || aspect.den <= 0)
        aspect = stream->codecpar->sample_aspect_ratio;
    size_t bytes = 0;
    const uint8_t *data = av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    if (!data || bytes < MatrixBytes)
        return PictureScaler(aspect, QTransform());
    int32_t matrix[MatrixBytes / sizeof(int32_t)] = {};
    std::memcpy(matrix, data, MatrixBytes);
    return PictureScaler(aspect, uprightOf(matrix));
}

QTransform PictureScaler::uprightOf(const int32_t *displayMatrix)
{
    const int32_t *m = displayMatrix;
    const bool isTurned = std::abs(int64_t(m[YByX])) > std::abs(int64_t(m[XByX]));
    const QTransform upright = isTurned ? QTransform(0, sign(m[YByX]), sign(m[XByY]), 0, 0, 0)
                                        : QTransform(sign(m[XByX]), 0, 0, sign(m[YByY]), 0, 0);
    return upright.isInvertible() ? upright : QTransform();
}

QSizeF PictureScaler::shapeOf(const AVFrame *frame) const
{
    constexpr double mostBelievable = 16;
    const bool isKnown = m_pixelAspect.num > 0 && m_pixelAspect.den > 0;
    const AVRational aspect = isKnown ? m_pixelAspect : frame->sample_aspect_ratio;
    double wide = aspect.num > 0 && aspect.den > 0 ? av_q2d(aspect) : 1;
    if (wide > mostBelievable || wide < 1 / mostBelievable)
        wide = 1;
    return wide > 1 ? QSizeF(frame->width, frame->height / wide)
                    : QSizeF(frame->width * wide, frame->height);
}

QImage PictureScaler::fitted(const AVFrame *frame, QSize box, PictureFit::Enlarge enlarge)
{
    if (frame->width <= 0 || frame->height <= 0 || !frame->data[0])
        return {};
    const bool isTurned = m_upright.m11() == 0;
    const QSize lyingBox = isTurned ? box.transposed() : box;
    const QImage lying = scaled(frame, PictureFit::within(shapeOf(frame), lyingBox, enlarge));
    if (lying.isNull())
        return {};
    return PictureFit::overBlack(lying).transformed(m_upright);
}

QImage PictureScaler::scaled(const AVFrame *frame, QSize size)
{
    const auto format = AVPixelFormat(frame->format);
    const AVPixFmtDescriptor *description = av_pix_fmt_desc_get(format);
    if (!description || !sws_isSupportedInput(format))
        return {};
    m_scaler.reset(sws_getCachedContext(m_scaler.release(), frame->width, frame->height, format,
                                        size.width(), size.height(), AV_PIX_FMT_RGB32, SWS_AREA,
                                        nullptr, nullptr, nullptr));
    // Scaling writes whole groups of pixels, also past the end of a row: a frame has room for it.
    const FrameHandle target(av_frame_alloc());
    if (!m_scaler || !target)
        return {};
    target->width = size.width();
    target->height = size.height();
    target->format = AV_PIX_FMT_RGB32;
    if (av_frame_get_buffer(target.get(), RowAlignment) < 0)
        return {};
    setColours(m_scaler.get(), frame, *description);
    if (sws_scale(m_scaler.get(), frame->data, frame->linesize, 0, frame->height, target->data,
                  target->linesize)
        <= 0)
        return {};
    QImage picture(size,
                   canBeSeenThrough(*description) ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(picture.scanLine(y), target->data[0] + ptrdiff_t(y) * target->linesize[0],
                    size_t(size.width()) * BytesPerPixel);
    return picture;
}
