// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/ExifTags.h>

#include <brevano-worker/facts/ShotDate.h>
#include <brevano-worker/input/FootageFile.h>

#include <exiv2/exiv2.hpp>

#include <cstdint>
#include <exception>
#include <mutex>

namespace {

// By number: not every version of the library knows all of them by name.
constexpr uint16_t Make = 0x010f;
constexpr uint16_t Model = 0x0110;
constexpr uint16_t DateTimeOriginal = 0x9003;
constexpr uint16_t OffsetTimeOriginal = 0x9011;

void prepare()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize();
#ifdef EXV_ENABLE_BMFF
        Exiv2::enableBMFF(true);
#endif
    });
}

QString text(const Exiv2::ExifData &tags, uint16_t tag, const char *group)
{
    const auto found = tags.findKey(Exiv2::ExifKey(tag, group));
    return found == tags.end() ? QString() : QString::fromStdString(found->toString()).trimmed();
}

} // namespace

ExifTags ExifTags::read(const FootageFile &file)
{
    prepare();
    ExifTags read;
    try {
        const auto image = Exiv2::ImageFactory::open(file.openName().toStdString());
        image->readMetadata();
        const Exiv2::ExifData &tags = image->exifData();
        read.maker = text(tags, Make, "Image");
        read.model = text(tags, Model, "Image");
        read.shot = ShotDate::firstSane({ShotDate::ofExif(
            text(tags, DateTimeOriginal, "Photo"), text(tags, OffsetTimeOriginal, "Photo"))});
    } catch (const std::exception &) {
        // Not every kind of picture has tags, and damaged ones tell nothing.
        return read;
    }
    return read;
}
