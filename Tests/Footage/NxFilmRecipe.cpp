// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFilmRecipe.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

constexpr int fullTurn = 360;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QStringList &quietly()
{
    // Without the versions of the tools in them, the files are the same on every machine.
    static const QStringList arguments = words("-v error -y -bitexact");
    return arguments;
}

} // namespace

NxFilmRecipe::NxFilmRecipe(const char *name, int frames, NxRational rate, const Codec &codec,
                           QSize size)
    : m_codec(words(codec.arguments))
{
    // Encoders share their work out by the processors that they find, and their files show it.
    m_codec += QStringList{QStringLiteral("-threads"), QStringLiteral("1")};
    m_recipe.name = QLatin1String(name);
    m_recipe.frames = NxNumberedFrames(size, frames, rate);
    m_codec += QStringList{QStringLiteral("-pix_fmt"), QLatin1String(codec.pixelFormat)};
    NxFootageTruth &facts = m_recipe.truth;
    facts.kind = NxFootageKind::Video;
    facts.size = size;
    facts.rate = rate;
    facts.frames = frames;
    facts.durationUs = facts.frameTimeUs(frames);
    facts.videoCodec = QLatin1String(codec.name);
    facts.pixelFormat = QLatin1String(codec.pixelFormat);
    facts.bitDepth = codec.bitDepth;
    facts.keyFrameDistance = codec.keyFrameDistance;
    facts.isNumbered = true;
}

NxFilmRecipe &NxFilmRecipe::sound(const Sound &sound)
{
    const double seconds = double(truth().frames) * truth().rate.den / truth().rate.num;
    m_inputs += words("-f lavfi -i");
    m_inputs += QStringLiteral("sine=frequency=440:sample_rate=%1:duration=%2")
                    .arg(sound.sampleRate)
                    .arg(seconds, 0, 'f', 6);
    m_codec += words(sound.arguments);
    m_codec += QStringList{QStringLiteral("-ac"), QString::number(sound.channels)};
    truth().audioCodec = QLatin1String(sound.codec);
    truth().sampleRate = sound.sampleRate;
    truth().channels = sound.channels;
    truth().durationSlackUs = sound.slackUs;
    return *this;
}

NxFilmRecipe &NxFilmRecipe::input(const char *arguments)
{
    m_inputs += words(arguments);
    return *this;
}

NxFilmRecipe &NxFilmRecipe::options(const char *arguments)
{
    m_options += words(arguments);
    return *this;
}

NxFilmRecipe &NxFilmRecipe::tag(const char *key, const char *value)
{
    m_options += QStringLiteral("-metadata");
    m_options += QLatin1String(key) + QLatin1Char('=') + QLatin1String(value);
    return *this;
}

NxFilmRecipe &NxFilmRecipe::copied(const char *inputArguments, const char *outputArguments)
{
    m_copies.append({words(inputArguments), words(outputArguments)});
    return *this;
}

NxFilmRecipe &NxFilmRecipe::rotated(int degrees)
{
    // The option turns the other way round.
    const QByteArray option = "-metadata:s:v:0 rotate=" + QByteArray::number(fullTurn - degrees);
    copied("", option.constData());
    truth().rotation = degrees;
    if (degrees % (fullTurn / 2) != 0)
        truth().size.transpose();
    return *this;
}

NxFilmRecipe &NxFilmRecipe::shot(const char *utc)
{
    const QDateTime time = QDateTime::fromString(QLatin1String(utc), Qt::ISODate);
    Q_ASSERT(time.isValid());
    truth().shot = time.toMSecsSinceEpoch();
    return *this;
}

NxFilmRecipe &NxFilmRecipe::camera(const char *maker, const char *model)
{
    truth().cameraMaker = QLatin1String(maker);
    truth().cameraModel = QLatin1String(model);
    return *this;
}

NxFilmRecipe &NxFilmRecipe::timecode(const char *text, const char *reel)
{
    m_options += QStringList{QStringLiteral("-timecode"), QLatin1String(text)};
    truth().timecode = QLatin1String(text);
    truth().reel = QLatin1String(reel);
    return *this;
}

NxFootageStep NxFilmRecipe::encoding(const QString &target) const
{
    const QStringList pictures = words("-f yuv4mpegpipe -i pipe:0");
    const QStringList arguments = quietly() + pictures + m_inputs + m_codec + m_options;
    return {QStringLiteral(NX_FFMPEG), arguments + QStringList{target}};
}

NxFootageRecipe NxFilmRecipe::made() const
{
    NxFootageRecipe recipe = m_recipe;
    const QString suffix = QFileInfo(recipe.name).suffix();
    const auto target = [this, &suffix](int step) {
        return step == m_copies.size()
                   ? NxFootageStep::Output
                   : NxFootageStep::Scratch + QStringLiteral("/%1.").arg(step) + suffix;
    };
    recipe.steps.append(encoding(target(0)));
    for (int step = 0; step < m_copies.size(); ++step) {
        const Copy &copy = m_copies.at(step);
        const QStringList source{QStringLiteral("-i"), target(step)};
        const QStringList copying = words("-map 0 -c copy") + copy.output;
        recipe.steps.append({QStringLiteral(NX_FFMPEG), quietly() + copy.input + source + copying
                                                            + QStringList{target(step + 1)}});
    }
    return recipe;
}
