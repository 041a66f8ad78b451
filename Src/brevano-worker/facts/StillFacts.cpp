// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/StillFacts.h>

#include <brevano-worker/facts/ExifTags.h>
#include <brevano-worker/facts/HeifHeader.h>
#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/input/FootageFile.h>

#include <QCoreApplication>
#include <QImage>
#include <QImageReader>

#include <array>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("StillFacts", text);
}

/// Size and turn, as the picture is shown.
struct Shape
{
    QSize size;
    int rotation = 0;
};

/// The turn after mirroring left and right; by QImageIOHandler::Transformation.
int rotationOf(QImageIOHandler::Transformations transformation)
{
    static constexpr std::array<int, 8> rotations = {0, 0, 180, 180, 90, 90, 270, 270};
    return rotations[size_t(transformation) % rotations.size()];
}

Shape shapeOf(QImageReader *reader, const FootageFile &file)
{
    if (const auto header = HeifHeader::read(file))
        return {header->size, header->rotation};
    const QImageIOHandler::Transformations transformation = reader->transformation();
    QSize size = reader->size();
    if (!size.isValid())
        size = reader->read().size();
    if (transformation & QImageIOHandler::TransformationRotate90)
        size.transpose();
    return {size, rotationOf(transformation)};
}

/// The picture format, by the name that users know.
QString formatOf(const QImageReader &reader)
{
    const QString format = QString::fromLatin1(reader.format()).toLower();
    return format == QLatin1String("heif") ? QStringLiteral("heic") : format;
}

} // namespace

NxResult<NxFootageFacts> StillFacts::read(FootageFile *file)
{
    QIODevice *device = file->device();
    if (!device)
        return NxError{translated("The disk cannot read the file.")};
    QImageReader reader(device);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return NxError{translated("The file is damaged, or no picture of a known kind.")};
    const QString format = formatOf(reader); // Gone when the picture was decoded.
    const Shape shape = shapeOf(&reader, *file);
    if (shape.size.isEmpty())
        return NxError{translated("The file is damaged: its picture has no size.")};
    if (!SaneNumbers::isSize(shape.size.width(), shape.size.height())) {
        return NxError{translated("The picture is too large: %1 x %2 pixels.")
                           .arg(shape.size.width())
                           .arg(shape.size.height())};
    }
    const ExifTags tags = ExifTags::read(*file);
    NxFootageFacts facts;
    facts.streams.kind = NxFootageKind::Image;
    facts.streams.width = shape.size.width();
    facts.streams.height = shape.size.height();
    facts.streams.rotation = shape.rotation;
    facts.streams.videoCodec = format;
    facts.streams.cameraMaker = tags.maker;
    facts.streams.cameraModel = tags.model;
    facts.shot = tags.shot;
    return facts;
}
