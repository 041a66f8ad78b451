// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/SourceTags.h>

#include <brevano-worker/facts/ShotDate.h>
#include <brevano-worker/input/Container.h>

#include <array>

namespace {

// By the names of QuickTime, of Android and of plain and Matroska tags, in this order.
constexpr std::array<const char *, 4> MakerNames = {
    "com.apple.quicktime.make", "com.android.manufacturer", "make", "manufacturer"};
constexpr std::array<const char *, 3> ModelNames = {"com.apple.quicktime.model",
                                                    "com.android.model", "model"};
constexpr std::array<const char *, 1> TimecodeNames = {"timecode"};
constexpr std::array<const char *, 2> ReelNames = {"reel_name", "reel"};

QString valueOf(const AVDictionary *tags, const char *name)
{
    const AVDictionaryEntry *entry = av_dict_get(tags, name, nullptr, 0);
    return entry ? QString::fromUtf8(entry->value).trimmed() : QString();
}

template<size_t Count>
QString firstOf(const Container &container, const std::array<const char *, Count> &names)
{
    for (const char *name : names) {
        const QString value = SourceTags::text(container, name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

} // namespace

QString SourceTags::text(const Container &container, const char *name)
{
    const AVFormatContext *format = container.format();
    QString value = valueOf(format->metadata, name);
    for (unsigned i = 0; i < format->nb_streams && value.isEmpty(); ++i)
        value = valueOf(format->streams[i]->metadata, name);
    return value;
}

void SourceTags::read(const Container &container, NxFootageFacts *facts)
{
    facts->streams.cameraMaker = firstOf(container, MakerNames);
    facts->streams.cameraModel = firstOf(container, ModelNames);
    facts->timecode = firstOf(container, TimecodeNames);
    facts->reel = firstOf(container, ReelNames);
    facts->shot = ShotDate::firstSane(
        {ShotDate::ofContainer(text(container, "com.apple.quicktime.creationdate")),
         ShotDate::ofContainer(text(container, "creation_time"))});
}
