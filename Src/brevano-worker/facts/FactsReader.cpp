// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/FactsReader.h>

#include <brevano-worker/facts/FrameFacts.h>
#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/facts/SoundStream.h>
#include <brevano-worker/facts/SourceTags.h>
#include <brevano-worker/facts/StillFacts.h>
#include <brevano-worker/facts/TextFacts.h>
#include <brevano-worker/facts/VideoStream.h>
#include <brevano-worker/input/Container.h>

#include <QCoreApplication>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("FactsReader", text);
}

bool hasLength(const Container &container, const AVStream *stream)
{
    return stream->nb_frames > 0 || stream->duration > 0 || container.format()->duration > 0;
}

bool isVideoTold(const Container &container)
{
    const AVStream *stream = container.video();
    // The length is measured where it is missing, by no means by decoding.
    return !stream
           || (SaneNumbers::isSize(stream->codecpar->width, stream->codecpar->height)
               && SaneNumbers::rate(stream->avg_frame_rate).isValid());
}

bool isSoundTold(const Container &container)
{
    const AVStream *stream = container.audio();
    if (!stream)
        return true;
    const bool isAlone = !container.video();
    return stream->codecpar->sample_rate > 0 && stream->codecpar->ch_layout.nb_channels > 0
           && (!isAlone || hasLength(container, stream));
}

/// True when the header has it all: size, rate, length and the format of the sound.
bool isHeaderEnough(const Container &container)
{
    if (container.isReadBy("gif"))
        return true;
    const AVFormatContext *format = container.format();
    const bool mayBeMore = (format->ctx_flags & AVFMTCTX_NOHEADER) != 0;
    const bool isNothingThere = !container.video() && !container.audio();
    return !mayBeMore && !isNothingThere && isVideoTold(container) && isSoundTold(container);
}

NxResult<void> readPictures(Container *container, NxFootageFacts *facts)
{
    VideoStream::read(container->video(), facts);
    if (facts->streams.width == 0)
        return NxError{translated("The file is damaged: its pictures have no size.")};
    facts->streams.kind = NxFootageKind::Video;
    if (!container->isReadBy("gif")) {
        FrameFacts::read(container, facts);
        return {};
    }
    FrameFacts::readGif(container, facts);
    if (facts->frames < 1)
        return NxError{translated("The file is damaged: there is no picture in it.")};
    const bool isAnimated = facts->frames > 1;
    facts->streams.kind = isAnimated ? NxFootageKind::AnimatedImage : NxFootageKind::Image;
    facts->streams.hasVideo = isAnimated;
    facts->frames = isAnimated ? facts->frames : 0;
    return {};
}

} // namespace

NxResult<NxFootageFacts> FactsReader::ofStream(Container *container)
{
    if (!isHeaderEnough(*container)) {
        const NxResult<void> analysed = container->analyse();
        if (!analysed)
            return analysed.error();
    }
    if (!container->video() && !container->audio())
        return NxError{translated("There is neither a film nor sound in the file.")};

    NxFootageFacts facts;
    facts.streams.demuxer = QString::fromLatin1(container->format()->iformat->name);
    facts.streams.canSeek = !(container->format()->ctx_flags & AVFMTCTX_UNSEEKABLE);
    SourceTags::read(*container, &facts);
    if (container->audio())
        SoundStream::read(*container, &facts);
    if (container->video()) {
        const NxResult<void> read = readPictures(container, &facts);
        return read ? NxResult<NxFootageFacts>(facts) : NxResult<NxFootageFacts>(read.error());
    }
    if (facts.streams.sampleRate == 0 || facts.streams.channels == 0)
        return NxError{translated("The file is damaged: its sound has no format.")};
    facts.streams.kind = NxFootageKind::Audio;
    SoundStream::readLength(*container, &facts);
    return facts;
}

NxResult<NxFootageFacts> FactsReader::ofStill(FootageFile *file)
{
    return StillFacts::read(file);
}

NxResult<NxFootageFacts> FactsReader::ofText(FootageFile *file)
{
    return TextFacts::read(*file);
}
