// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageRecipes.h"

namespace {

constexpr qint64 second = 1000000; // us
constexpr int rateOfSound = 25;

struct Tone
{
    const char *name;
    const char *codec;
    int sampleRate; ///< Hz
    int channels;
    int seconds;
    qint64 slackUs; ///< By how much the last packet may reach over the end.
    const char *arguments;
    bool hasCoverArt;
};

constexpr Tone tones[] = {
    {"tone.wav", "pcm_s16le", 48000, 2, 3, 0, "-c:a pcm_s16le", false},
    {"tone 24 bits.wav", "pcm_s24le", 96000, 1, 2, 0, "-c:a pcm_s24le", false},
    {"tone.mp3", "mp3", 44100, 1, 3, 80000, "-c:a libmp3lame -b:a 64k", false},
    {"tone cover art.mp3", "mp3", 44100, 2, 4, 80000, "-c:a libmp3lame -b:a 96k -id3v2_version 3",
     true},
    {"tone.flac", "flac", 44100, 2, 3, 0, "-c:a flac", false},
    {"tone.m4a", "aac", 48000, 2, 3, 50000, "-c:a aac -b:a 96k", false},
    {"tone cover art.m4a", "aac", 44100, 2, 3, 50000, "-c:a aac -b:a 96k", true},
    {"tone.ogg", "vorbis", 44100, 2, 3, 30000, "-c:a libvorbis -q:a 3", false},
    {"tone.aiff", "pcm_s16be", 44100, 2, 2, 0, "-c:a pcm_s16be", false},
    {"tone.mka", "opus", 48000, 2, 3, 30000, "-c:a libopus -b:a 48k", false},
};

QStringList argumentsOf(const Tone &tone)
{
    const QString sine = QStringLiteral("sine=frequency=440:sample_rate=%1:duration=%2")
                             .arg(tone.sampleRate)
                             .arg(tone.seconds);
    QString line = QStringLiteral("-v error -y -bitexact -f lavfi -i ") + sine;
    if (tone.hasCoverArt) {
        line += QLatin1String(" -f lavfi -i color=c=teal:size=300x200:rate=1:duration=1"
                              " -map 0:a -map 1:v -c:v mjpeg -disposition:v attached_pic");
    }
    line += QStringLiteral(" -ac %1 ").arg(tone.channels) + QLatin1String(tone.arguments);
    return line.split(QLatin1Char(' ')) + QStringList{NxFootageStep::Output};
}

NxFootageRecipe recipeOf(const Tone &tone)
{
    NxFootageRecipe recipe;
    recipe.name = QLatin1String(tone.name);
    recipe.steps.append({QStringLiteral(NX_FFMPEG), argumentsOf(tone)});
    NxFootageTruth &truth = recipe.truth;
    truth.kind = NxFootageKind::Audio;
    truth.hasCoverArt = tone.hasCoverArt;
    truth.rate = {rateOfSound, 1};
    truth.frames = tone.seconds * rateOfSound;
    truth.durationUs = tone.seconds * second;
    truth.durationSlackUs = tone.slackUs;
    truth.audioCodec = QLatin1String(tone.codec);
    truth.sampleRate = tone.sampleRate;
    truth.channels = tone.channels;
    return recipe;
}

} // namespace

std::vector<NxFootageRecipe> NxFootageRecipes::sounds()
{
    std::vector<NxFootageRecipe> recipes;
    for (const Tone &tone : tones)
        recipes.push_back(recipeOf(tone));
    return recipes;
}
