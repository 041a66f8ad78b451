// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/SoundStream.h>

#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/facts/VideoStream.h>
#include <brevano-worker/input/Container.h>

#include <algorithm>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace {

int upTo(int most, int value)
{
    return value > 0 && value <= most ? value : 0;
}

} // namespace

void SoundStream::read(const Container &container, NxFootageFacts *facts)
{
    const AVCodecParameters &parameters = *container.audio()->codecpar;
    NxFootageStreams &streams = facts->streams;
    streams.hasAudio = true;
    streams.sampleRate = upTo(SaneNumbers::MostSampleRate, parameters.sample_rate);
    streams.channels = upTo(SaneNumbers::MostChannels, parameters.ch_layout.nb_channels);
    if (parameters.codec_id != AV_CODEC_ID_NONE)
        streams.audioCodec = QString::fromLatin1(avcodec_get_name(parameters.codec_id));
    streams.audioTag = VideoStream::fourCharacters(parameters.codec_tag);
    facts->audioBitRate = std::max<qint64>(parameters.bit_rate, 0);
}

void SoundStream::readLength(const Container &container, NxFootageFacts *facts)
{
    const AVStream *stream = container.audio();
    const qint64 own = SaneNumbers::durationUs(stream->duration, stream->time_base);
    facts->durationUs = own > 0 ? own : SaneNumbers::durationUs(container.format()->duration);
    facts->rate = Rate;
    facts->frames = SaneNumbers::frames(facts->durationUs, Rate);
}
