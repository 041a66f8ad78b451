// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageSamples.h"

NxFootageRecord NxFootageSamples::full(qint64 media, int camera)
{
    NxFootageRecord record;
    record.media = media;
    record.state = NxReadState::Read;
    record.stamp = {5000 + media, 1'600'000'300'000 + media};
    NxFootageStreams &streams = record.facts.streams;
    streams.kind = NxFootageKind::Video;
    streams.hasVideo = streams.hasAudio = streams.canSeek = streams.variableRate = true;
    streams.demuxer = QStringLiteral("mov,mp4");
    streams.width = 1080;
    streams.height = 1920;
    streams.rotation = 90;
    streams.videoCodec = QStringLiteral("hevc");
    streams.videoTag = QStringLiteral("hvc1");
    streams.bitDepth = 10;
    streams.pixelFormat = QStringLiteral("yuv420p10le");
    streams.colorRange = QStringLiteral("tv");
    streams.colorPrimaries = QStringLiteral("bt2020");
    streams.colorTransfer = QStringLiteral("arib-std-b67");
    streams.colorMatrix = QStringLiteral("bt2020nc");
    streams.sampleRate = 48000;
    streams.channels = 6;
    streams.audioCodec = QStringLiteral("aac");
    streams.audioTag = QStringLiteral("mp4a");
    streams.cameraMaker = QStringLiteral("Maker");
    streams.cameraModel = QStringLiteral("Model %1").arg(camera);
    streams.textEncoding = QStringLiteral("UTF-8");
    record.facts.frames = 100 + media;
    record.facts.rate = {24000, 1001};
    record.facts.durationUs = 4'000'000 + media;
    record.facts.videoBitRate = 50'000'000 + media;
    record.facts.audioBitRate = 320'000 + media;
    record.facts.shot = 1'500'000'000'000 + media;
    record.facts.timecode = QStringLiteral("01:02:03;%1").arg(media);
    record.facts.reel = QStringLiteral("A%1").arg(media);
    record.fingerprint = {5000 + media, 0xFEDC'BA98'0000'0000ULL + quint64(media),
                          0x8000'0000'0000'0001ULL};
    record.cover = NxPictureState::Made;
    record.strip = NxPictureState::Failed;
    record.stripReason = QStringLiteral("The disk is full.");
    return record;
}

NxFootageRecord NxFootageSamples::failed(qint64 media)
{
    NxFootageRecord record;
    record.media = media;
    record.state = NxReadState::Failed;
    record.stamp = {7, 8};
    record.reason = QStringLiteral("The file is damaged.");
    return record;
}

NxFootageRecord NxFootageSamples::ofKind(NxFootageKind kind, bool hasAudio)
{
    NxFootageRecord record;
    record.state = NxReadState::Read;
    NxFootageFacts &facts = record.facts;
    facts.streams.kind = kind;
    facts.streams.hasVideo = kind == NxFootageKind::Video || kind == NxFootageKind::AnimatedImage;
    facts.streams.hasAudio = hasAudio;
    facts.streams.width = 640;
    facts.streams.height = 360;
    if (hasAudio) {
        facts.streams.sampleRate = 44100;
        facts.streams.channels = 2;
    }
    if (kind != NxFootageKind::Image) {
        facts.frames = 100;
        facts.rate = {25, 1};
        facts.durationUs = 4'000'000;
    }
    return record;
}
