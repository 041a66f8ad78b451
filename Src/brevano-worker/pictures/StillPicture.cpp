// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/StillPicture.h>

#include <NxWorkerProtocol/NxPictureFile.h>
#include <brevano-worker/pictures/PictureFit.h>

#include <QCoreApplication>
#include <QIODevice>
#include <QImageReader>

namespace {

const QSize Box(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight);

/// What a worker has the memory for: four bytes a pixel, some formats eight.
constexpr qint64 MostPixels = 110'000'000;
constexpr qint64 MostDeepPixels = MostPixels / 2;
/// JPEG is made small while it is decoded.
constexpr qint64 MostPixelsOfJpeg = 1'000'000'000;

struct FormatRow
{
    QImage::Format format;
    int bitDepth;
    const char *name;
};

/// Named as FFmpeg names them.
constexpr FormatRow Formats[] = {
    {QImage::Format_Mono, 1, "monob"},
    {QImage::Format_MonoLSB, 1, "monob"},
    {QImage::Format_Indexed8, 8, "pal8"},
    {QImage::Format_Grayscale8, 8, "gray"},
    {QImage::Format_Alpha8, 8, "gray"},
    {QImage::Format_Grayscale16, 16, "gray16"},
    {QImage::Format_RGB16, 5, "rgb565"},
    {QImage::Format_RGB555, 5, "rgb555"},
    {QImage::Format_RGB32, 8, "rgb24"},
    {QImage::Format_RGB888, 8, "rgb24"},
    {QImage::Format_BGR888, 8, "bgr24"},
    {QImage::Format_RGBX8888, 8, "rgb24"},
    {QImage::Format_ARGB32, 8, "rgba"},
    {QImage::Format_ARGB32_Premultiplied, 8, "rgba"},
    {QImage::Format_RGBA8888, 8, "rgba"},
    {QImage::Format_RGBA8888_Premultiplied, 8, "rgba"},
    {QImage::Format_BGR30, 10, "x2bgr10"},
    {QImage::Format_RGB30, 10, "x2rgb10"},
    {QImage::Format_RGBX64, 16, "rgb48"},
    {QImage::Format_RGBA64, 16, "rgba64"},
    {QImage::Format_RGBA64_Premultiplied, 16, "rgba64"},
};

const FormatRow *rowOf(QImage::Format format)
{
    for (const FormatRow &row : Formats)
        if (row.format == format)
            return &row;
    return nullptr;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("StillPicture", text);
}

bool isTooLarge(const QImageReader &reader, QSize size)
{
    constexpr int deep = 8; // Bits of a channel that fits into four bytes a pixel.
    const FormatRow *row = rowOf(reader.imageFormat());
    qint64 most = row && row->bitDepth > deep ? MostDeepPixels : MostPixels;
    if (reader.format() == "jpeg")
        most = MostPixelsOfJpeg;
    return qint64(size.width()) * size.height() > most;
}

void setScaledSize(QImageReader *reader, QSize size)
{
    const bool isTurned =
        reader->transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize box = isTurned ? Box.transposed() : Box;
    reader->setScaledSize(PictureFit::within(size, box, PictureFit::Enlarge::Never));
}

/// Sizes may be told wrongly, or not at all.
QImage fitted(const QImage &picture)
{
    const QSize size = PictureFit::within(picture.size(), Box, PictureFit::Enlarge::Never);
    return size == picture.size()
               ? picture
               : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

NxResult<StillPicture> StillPicture::read(QIODevice *device)
{
    if (!device)
        return NxError{translated("The picture cannot be read.")};
    QImageReader reader(device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        return NxError{translated("The picture cannot be read: its format is not known.")};
    const QSize size = reader.size();
    if (!size.isEmpty()) {
        if (isTooLarge(reader, size))
            return NxError{translated("The picture is too large: %1 x %2 pixels.")
                               .arg(size.width())
                               .arg(size.height())};
        setScaledSize(&reader, size);
    }
    const QImage::Format declared = reader.imageFormat();
    const QImage picture = reader.read();
    if (picture.isNull())
        return NxError{translated("The picture cannot be read: %1.").arg(reader.errorString())};
    StillPicture still;
    const FormatRow *row = rowOf(declared != QImage::Format_Invalid ? declared : picture.format());
    if (row) {
        still.bitDepth = row->bitDepth;
        still.pixelFormat = QString::fromLatin1(row->name);
    }
    still.picture = PictureFit::overBlack(fitted(picture));
    return still;
}
