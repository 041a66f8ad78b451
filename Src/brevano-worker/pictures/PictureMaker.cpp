// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/PictureMaker.h>

#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/pictures/CoverMaker.h>
#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/KeyPictures.h>
#include <brevano-worker/pictures/SoundPeaks.h>
#include <brevano-worker/pictures/StillPicture.h>
#include <brevano-worker/pictures/StripMaker.h>
#include <brevano-worker/pictures/Waveform.h>

#include <QBuffer>
#include <QCoreApplication>

#include <utility>

extern "C" {
#include <libavutil/pixdesc.h>
}

namespace {

NxPictureAnswer failed(const QString &reason)
{
    return {NxPictureOutcome::Failed, reason};
}

void failAll(const NxReadRequest &request, const QString &reason, NxReadAnswer *answer)
{
    if (request.wishes & rwCover)
        answer->cover = failed(reason);
    if (request.wishes & rwStrip)
        answer->strip = failed(reason);
}

/// A picture's name is made of the fingerprint.
bool canBeKept(const NxReadRequest &request, NxReadAnswer *answer)
{
    if (!answer->fingerprint.isNull())
        return true;
    failAll(request,
            QCoreApplication::translate("PictureMaker", "The file cannot be read to its end."),
            answer);
    return false;
}

bool isGif(const Container &container)
{
    return qstrcmp(container.format()->iformat->name, "gif") == 0;
}

/// Decoders start without an analysis wherever the header says what they need.
NxResult<void> makeDecodable(Container *container)
{
    const auto knowsCodec = [](const AVStream *stream) {
        return stream->codecpar->codec_id != AV_CODEC_ID_NONE;
    };
    const AVStream *video = container->video();
    const AVStream *audio = container->audio();
    const bool mayHaveMore = (container->format()->ctx_flags & AVFMTCTX_NOHEADER) != 0;
    if (video && knowsCodec(video) && video->codecpar->width > 0)
        return {};
    if (!video && !mayHaveMore && audio && knowsCodec(audio) && audio->codecpar->sample_rate > 0)
        return {};
    return container->analyse();
}

void describe(AVPixelFormat format, NxReadAnswer *answer)
{
    const AVPixFmtDescriptor *description = av_pix_fmt_desc_get(format);
    if (!description)
        return;
    answer->pixelFormat = QString::fromLatin1(description->name);
    answer->bitDepth = description->comp[0].depth;
}

NxResult<QImage> coverArtOf(const AVStream *stream)
{
    const AVPacket &packet = stream->attached_pic;
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(packet.data),
                                               packet.data ? packet.size : 0);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    NxResult<StillPicture> still = StillPicture::read(&buffer);
    if (!still)
        return still.error();
    return still->picture;
}

NxResult<QImage> coverOfSound(Container *container, qint64 durationUs)
{
    if (const AVStream *art = container->coverArt()) {
        NxResult<QImage> cover = coverArtOf(art);
        if (cover)
            return cover;
    }
    AVStream *audio = container->audio();
    if (!audio)
        return NxError{QCoreApplication::translate(
            "PictureMaker", "There is neither picture nor sound in the file.")};
    FilmReader sound(container, audio, durationUs);
    const NxResult<std::vector<float>> peaks = SoundPeaks(&sound).read();
    if (!peaks)
        return peaks.error();
    return Waveform::of(*peaks);
}

} // namespace

PictureMaker::PictureMaker(QString cacheFolder) : m_store(std::move(cacheFolder)) {}

void PictureMaker::makeOfStream(const NxReadRequest &wished, Container *container,
                                qint64 durationUs, NxReadAnswer *answer) const
{
    if (!canBeKept(wished, answer))
        return;
    const NxReadRequest request = withoutKept(wished, answer);
    if (!(request.wishes & (rwCover | rwStrip)))
        return;
    const NxResult<void> known = makeDecodable(container);
    if (!known) {
        failAll(request, known.error().message, answer);
        return;
    }
    if (container->video()) {
        makeOfFilm(request, container, durationUs, answer);
        return;
    }
    if (request.wishes & rwStrip)
        answer->strip.outcome = NxPictureOutcome::NoneThere;
    if (request.wishes & rwCover)
        keep(NxPictureKind::Cover, coverOfSound(container, durationUs), answer);
}

void PictureMaker::makeOfFilm(const NxReadRequest &request, Container *container, qint64 durationUs,
                              NxReadAnswer *answer) const
{
    FilmReader film(container, container->video(), durationUs);
    const NxResult<std::unique_ptr<StreamDecoder>> decoder =
        StreamDecoder::open(film.stream(), StreamDecoder::Use::SingleFrames);
    if (!decoder) {
        failAll(request, decoder.error().message, answer);
        return;
    }
    KeyPictures keys(&film, decoder->get());
    const bool gif = isGif(*container);
    if (request.wishes & rwCover) {
        // What an animated picture begins with is what it shows where nothing moves.
        const qint64 moment = gif ? 0 : NxPictureFile::coverMomentUs(film.durationUs());
        CoverMaker cover(&film, &keys);
        const NxResult<QImage> picture = cover.make(moment);
        describe(cover.format(), answer);
        keep(NxPictureKind::Cover, picture, answer);
    }
    if (!(request.wishes & rwStrip))
        return;
    if (gif && film.hasOnePacket()) {
        answer->strip.outcome = NxPictureOutcome::NoneThere;
        return;
    }
    StripMaker strip(&film, &keys);
    const NxResult<QImage> picture = strip.make();
    describe(strip.format(), answer);
    keep(NxPictureKind::Strip, picture, answer);
}

void PictureMaker::makeOfStill(const NxReadRequest &wished, FootageFile *file,
                               NxReadAnswer *answer) const
{
    if (!canBeKept(wished, answer))
        return;
    const NxReadRequest request = withoutKept(wished, answer);
    if (request.wishes & rwStrip)
        answer->strip.outcome = NxPictureOutcome::NoneThere;
    if (!(request.wishes & rwCover))
        return;
    const NxResult<StillPicture> still = StillPicture::read(file->device());
    if (!still) {
        answer->cover = failed(still.error().message);
        return;
    }
    answer->bitDepth = still->bitDepth;
    answer->pixelFormat = still->pixelFormat;
    keep(NxPictureKind::Cover, still->picture, answer);
}

NxReadRequest PictureMaker::withoutKept(const NxReadRequest &request, NxReadAnswer *answer) const
{
    struct Picture
    {
        NxReadWish wish;
        NxPictureKind kind;
        NxPictureAnswer NxReadAnswer::*answer;
    };
    static constexpr Picture pictures[] = {
        {rwStrip, NxPictureKind::Strip, &NxReadAnswer::strip},
        {rwCover, NxPictureKind::Cover, &NxReadAnswer::cover},
    };
    NxReadRequest rest = request;
    for (const Picture &picture : pictures) {
        if (!(request.wishes & picture.wish) || (request.wishes & rwAnew))
            continue;
        const std::optional<PictureSource> source = m_store.find(answer->fingerprint, picture.kind);
        if (!source)
            continue;
        answer->*picture.answer = {NxPictureOutcome::Made, {}};
        answer->bitDepth = source->bitDepth;
        answer->pixelFormat = source->pixelFormat;
        rest.wishes = quint8(rest.wishes & ~picture.wish);
    }
    return rest;
}

void PictureMaker::keep(NxPictureKind kind, const NxResult<QImage> &picture,
                        NxReadAnswer *answer) const
{
    NxPictureAnswer &outcome = kind == NxPictureKind::Cover ? answer->cover : answer->strip;
    outcome =
        picture ? NxPictureAnswer{NxPictureOutcome::Made, {}} : failed(picture.error().message);
    if (!picture)
        return;
    const NxResult<void> written =
        m_store.write(answer->fingerprint, kind, *picture, {answer->bitDepth, answer->pixelFormat});
    if (!written)
        outcome = failed(written.error().message);
}
