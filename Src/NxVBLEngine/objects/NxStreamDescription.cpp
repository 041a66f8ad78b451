// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxStreamDescription.h>

#include <QStringList>

#include <array>

using namespace NXVBLMODEL;

namespace {

struct Codes
{
    NxMediaType type;
    NxMediaSubKind subKind;
    NxMediaKindCode kindCode;
    NxMediaInfoKind infoKind;
    int streamFlags;
};

// By NxFootageKind.
constexpr std::array<Codes, 6> CodesOfKind = {{
    {mtNone, mskNone, mkcNone, mikUnknown, sfNone},
    {mtVideo, mskNone, mkcNone, mikVideo, sfVideo},
    {mtAudio, mskNone, mkcNone, mikAudio, sfAudio},
    {mtImage, mskNone, mkcStillImage, mikImage, sfImage},
    {mtElement, mskGif, mkcAnimatedImage, mikVideo, sfVideo},
    {mtSubtitle, mskNone, mkcNone, mikSubtitle, sfNone},
}};

QSize sizeOf(const NxFootageStreams &streams)
{
    const bool isKnown = streams.width > 0 && streams.height > 0;
    return isKnown ? QSize(streams.width, streams.height) : QSize();
}

NxVideoStreamInfo videoOf(const NxFootageStreams &streams)
{
    NxVideoStreamInfo video;
    video.frameSize = sizeOf(streams);
    video.rotation = streams.rotation;
    video.codecTag = streams.videoTag;
    video.codecName = streams.videoCodec;
    video.bitDepth = streams.bitDepth;
    video.pixelFormat = streams.pixelFormat;
    video.colorRange = streams.colorRange;
    video.colorPrimaries = streams.colorPrimaries;
    video.colorTransfer = streams.colorTransfer;
    video.colorMatrix = streams.colorMatrix;
    video.variableFrameRate = streams.variableRate;
    return video;
}

NxAudioStreamInfo audioOf(const NxFootageStreams &streams)
{
    NxAudioStreamInfo audio;
    audio.sampleRate = streams.sampleRate;
    audio.channels = streams.channels;
    audio.format = streams.audioCodec;
    audio.codecTag = streams.audioTag;
    return audio;
}

} // namespace

NxStreamDescription::NxStreamDescription(const NxFootageStreams &read) : streams(read)
{
    const Codes &codes = CodesOfKind[size_t(read.kind)];
    type = codes.type;
    subKind = codes.subKind;
    kindCode = codes.kindCode;
    infoKind = codes.infoKind;
    streamFlags = codes.streamFlags;
    if (read.kind == NxFootageKind::Video && read.hasAudio) {
        type = mtVideoAudio;
        streamFlags |= sfAudio;
    }
    if (streamFlags & sfVideo)
        video = videoOf(read);
    if (streamFlags & sfImage)
        image = {sizeOf(read), read.cameraMaker, read.videoCodec, read.rotation};
    if (streamFlags & sfAudio) {
        audio = audioOf(read);
        audioFormat = audioText(read.sampleRate, read.channels);
    }
    camera = cameraName(read.cameraMaker, read.cameraModel);
}

QString NxStreamDescription::cameraName(const QString &maker, const QString &model)
{
    if (maker.isEmpty() || model.startsWith(maker, Qt::CaseInsensitive))
        return model;
    return model.isEmpty() ? maker : maker + QLatin1Char(' ') + model;
}

QString NxStreamDescription::audioText(int sampleRate, int channels)
{
    QStringList parts;
    if (sampleRate > 0)
        parts += QStringLiteral("%1 Hz").arg(sampleRate);
    if (channels > 0)
        parts += QStringLiteral("%1 ch").arg(channels);
    return parts.join(QLatin1String(", "));
}
