// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFilmRecipe.h"
#include "NxFootageRecipes.h"

namespace {

using Codec = NxFilmRecipe::Codec;
using Sound = NxFilmRecipe::Sound;

constexpr NxRational pal{25, 1};
constexpr NxRational cinema{24000, 1001};
constexpr NxRational ntsc{30000, 1001};

// Six seconds of them have more key frames than a film strip has moments.
constexpr int shortGroup = 12;
constexpr int longGroup = 250;
/// Frames of a film of one group, which all hang on its first one.
constexpr int oneGroup = 100;

constexpr Codec avc{"h264", "yuv420p", 8, shortGroup,
                    "-c:v libx264 -preset ultrafast -crf 26 -bf 2 -b_strategy 0 -sc_threshold 0 "
                    "-g 12 -keyint_min 12"};
constexpr Codec avcLong{"h264", "yuv420p", 8, longGroup,
                        "-c:v libx264 -preset ultrafast -crf 26 -bf 2 -b_strategy 0 "
                        "-sc_threshold 0 -g 250 -keyint_min 250"};
constexpr Codec hevc{"hevc", "yuv420p", 8, shortGroup,
                     "-c:v libx265 -preset ultrafast -x265-params "
                     "keyint=12:min-keyint=12:scenecut=0:bframes=2:open-gop=0:log-level=error:"
                     "pools=none:frame-threads=1"};
constexpr Codec hevc10{"hevc", "yuv420p10le", 10, longGroup,
                       "-c:v libx265 -preset ultrafast -tag:v hvc1 -x265-params "
                       "keyint=250:scenecut=0:bframes=2:log-level=error:"
                       "pools=none:frame-threads=1"};
constexpr Codec vp9{"vp9", "yuv420p", 8, shortGroup,
                    "-c:v libvpx-vp9 -deadline realtime -cpu-used 8 -lag-in-frames 0 "
                    "-auto-alt-ref 0 -crf 34 -b:v 0 -g 12 -keyint_min 12"};
constexpr Codec prores{"prores", "yuv422p10le", 10, 1, "-c:v prores_ks -profile:v 0"};
constexpr Codec mpeg2{"mpeg2video", "yuv420p", 8, shortGroup,
                      "-c:v mpeg2video -q:v 4 -g 12 -bf 2 -sc_threshold 1000000000"};
constexpr Codec mpeg4{"mpeg4", "yuv420p", 8, shortGroup,
                      "-c:v mpeg4 -q:v 4 -g 12 -sc_threshold 1000000000"};
constexpr Codec mjpeg{"mjpeg", "yuvj420p", 8, 1, "-c:v mjpeg -q:v 4"};
constexpr Codec dnxhr{"dnxhd", "yuv422p", 8, 1, "-c:v dnxhd -profile:v dnxhr_lb"};

constexpr Sound aac{"aac", 48000, 2, "-c:a aac -b:a 64k", 50000};
constexpr Sound opus{"opus", 48000, 2, "-c:a libopus -b:a 48k", 30000};
constexpr Sound pcm{"pcm_s16le", 48000, 2, "-c:a pcm_s16le", 0};
constexpr Sound mp2{"mp2", 44100, 1, "-c:a mp2 -b:a 96k", 80000};
constexpr Sound flac{"flac", 44100, 2, "-c:a flac", 100000};

NxFootageRecipe variable()
{
    constexpr int frames = 120;
    constexpr int fast = 60;
    constexpr NxRational fastest{50, 1};
    NxFilmRecipe film("variable.mp4", frames, fastest, avc);
    film.options("-bf 0 -vf setpts=if(lt(N\\,60)\\,N\\,60+2*(N-60))/(50*TB) -vsync vfr");
    // 60 frames for one step of 20 ms, 59 for two of them, and the last one for one.
    film.truth().rate = {6000, 179};
    film.truth().durationUs = 3580000;
    film.truth().variableRate = true;
    film.truth().slowFrom = fast;
    return film.made();
}

NxFootageRecipe fragmented()
{
    NxFilmRecipe film("avc fragments.mp4", 150, pal, avc);
    film.sound(aac).options("-movflags frag_keyframe+empty_moov+default_base_moof");
    // It has no list of edits that would take the two frames away by which B-frames are late.
    film.truth().durationSlackUs = 2 * 40000 + 5000;
    return film.made();
}

/// The container hides what lies before the cut, which the frames after it need.
NxFootageRecipe edited()
{
    constexpr int hidden = 35;
    NxFilmRecipe film("edited.mp4", oneGroup, pal, avcLong);
    film.copied("-ss 1.4", "");
    film.truth().frames = oneGroup - hidden;
    film.truth().durationUs = 2600000;
    film.truth().firstNumber = hidden;
    return film.made();
}

NxFootageRecipe withCoverArt()
{
    NxFilmRecipe film("cover art.mp4", oneGroup, pal, avc);
    film.sound(aac)
        .input("-f lavfi -i color=c=teal:size=300x200:rate=1:duration=1")
        .options("-map 0:v -map 1:a -map 2:v -c:v:1 png -pix_fmt:v:1 rgb24 "
                 "-disposition:v:1 attached_pic");
    film.truth().hasCoverArt = true;
    return film.made();
}

NxFootageRecipe wide()
{
    // Three pixels wide where four should be: shown at 320 x 180.
    NxFilmRecipe film("wide pixels.mp4", oneGroup, pal, avc, QSize(240, 180));
    film.options("-aspect 16:9");
    film.truth().pixelAspect = {4, 3};
    return film.made();
}

std::vector<NxFootageRecipe> rates()
{
    return {
        NxFilmRecipe("24.mp4", 96, cinema, avc).sound(aac).made(),
        NxFilmRecipe("30.mov", 120, ntsc, avc)
            .sound(aac)
            .timecode("01:00:00;02", "A001")
            .options("-metadata:s:v:0 reel_name=A001")
            .made(),
        NxFilmRecipe("50.mp4", 150, {50, 1}, avc).made(),
        NxFilmRecipe("60.mp4", 180, {60, 1}, avc).sound(aac).made(),
        variable(),
    };
}

std::vector<NxFootageRecipe> shapes()
{
    return {
        NxFilmRecipe("turned 90.mp4", oneGroup, pal, avc).sound(aac).rotated(90).made(),
        NxFilmRecipe("turned 180.mp4", oneGroup, pal, avc).rotated(180).made(),
        NxFilmRecipe("turned 270.mov", oneGroup, pal, avc).rotated(270).made(),
        edited(),
        withCoverArt(),
        wide(),
    };
}

std::vector<NxFootageRecipe> distributed()
{
    return {
        NxFilmRecipe("avc.mp4", 150, pal, avc)
            .sound(aac)
            .tag("creation_time", "2024-05-06T07:08:09Z")
            .shot("2024-05-06T07:08:09Z")
            .made(),
        NxFilmRecipe("avc long.mp4", 150, pal, avcLong).made(),
        fragmented(),
        NxFilmRecipe("avc.mkv", 150, pal, avc)
            .sound(flac)
            .tag("creation_time", "2023-12-31T23:30:00Z")
            .shot("2023-12-31T23:30:00Z")
            .tag("MAKE", "Lumen")
            .tag("MODEL", "Field")
            .camera("Lumen", "Field")
            .made(),
        NxFilmRecipe("avc.ts", 150, pal, avc).sound(aac).made(),
        NxFilmRecipe("avc.m2ts", 50, pal, avc).sound(aac).made(),
        NxFilmRecipe("hevc.mkv", 150, pal, hevc).made(),
        NxFilmRecipe("hevc 10 bits.mp4", 75, pal, hevc10).sound(aac).made(),
        NxFilmRecipe("vp9.webm", 150, pal, vp9).sound(opus).made(),
    };
}

std::vector<NxFootageRecipe> recorded()
{
    return {
        NxFilmRecipe("prores.mov", 75, pal, prores)
            .sound(pcm)
            .options("-movflags use_metadata_tags")
            .tag("com.apple.quicktime.creationdate", "2024-07-01T12:00:00+0200")
            .tag("creation_time", "2024-07-02T00:00:00Z")
            .shot("2024-07-01T10:00:00Z")
            .tag("com.apple.quicktime.make", "Lumen")
            .tag("com.apple.quicktime.model", "Lumen X2")
            .camera("Lumen", "Lumen X2")
            .timecode("10:20:30:05", "B007")
            .options("-metadata:s:v:0 reel_name=B007")
            .made(),
        NxFilmRecipe("mpeg2.mpg", 150, pal, mpeg2).sound(mp2).options("-f vob").made(),
        NxFilmRecipe("mpeg2.ts", 150, ntsc, mpeg2).made(),
        NxFilmRecipe("mpeg2.mxf", 75, pal, mpeg2)
            .timecode("02:00:00:00", "C100")
            .tag("reel_name", "C100")
            .made(),
        NxFilmRecipe("mjpeg.avi", 75, pal, mjpeg).sound(pcm).made(),
        NxFilmRecipe("mjpeg.mov", 75, cinema, mjpeg)
            .tag("make", "Lumen")
            .tag("model", "Pocket")
            .camera("Lumen", "Pocket")
            .made(),
        NxFilmRecipe("mpeg4.avi", 150, pal, mpeg4).made(),
        NxFilmRecipe("dnxhr.mov", 50, pal, dnxhr).sound(pcm).made(),
        NxFilmRecipe("dnxhr.mxf", 50, pal, dnxhr).timecode("10:00:00:00", "").made(),
    };
}

} // namespace

std::vector<NxFootageRecipe> NxFootageRecipes::films()
{
    std::vector<NxFootageRecipe> recipes;
    for (const auto &part : {distributed(), recorded(), rates(), shapes()})
        recipes.insert(recipes.end(), part.begin(), part.end());
    return recipes;
}
