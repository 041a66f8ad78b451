// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/input/Container.h>

#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/input/LibavComplaint.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>

extern "C" {
#include <libavutil/avstring.h>
}

namespace {

constexpr int BufferBytes = 64 * 1024;

/// Every reader that works on the bytes it is given. Readers of playlists, image sequences and
/// session descriptions are missing: they open files and addresses on their own.
constexpr const char *Readers =
    "mov,matroska,avi,mpegts,mpeg,mpegvideo,m4v,h264,hevc,mxf,mxf_opatom,gxf,flv,live_flv,asf,wtv,"
    "ogg,gif,dv,nut,ivf,rm,obu,wav,w64,aiff,au,caf,mp3,aac,ac3,eac3,dts,flac,amr,ape,tta,wv,truehd";

QString translated(const char *text)
{
    return QCoreApplication::translate("Container", text);
}

int refuseOther(AVFormatContext * /*format*/, AVIOContext ** /*io*/, const char * /*url*/,
                int /*flags*/, AVDictionary ** /*options*/)
{
    return AVERROR(EPERM);
}

/// What FFmpeg said when it gave up is worth more than its code.
QString reasonOf(int code, const QString &complaint)
{
    if (code == AVERROR(EINVAL) && complaint.contains(QLatin1String("whitelist")))
        return translated("The file is neither a film nor sound that can be read.");
    if (code != AVERROR_INVALIDDATA)
        return translated("The file cannot be read: %1.").arg(Container::errorText(code));
    return complaint.isEmpty() ? translated("The file is damaged, or no film and no sound.")
                               : translated("The file is damaged: %1.").arg(complaint);
}

bool isPicture(const AVStream *stream)
{
    return (stream->disposition & (AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS))
           != 0;
}

template<typename Wanted>
AVStream *best(const AVFormatContext *format, Wanted wanted)
{
    AVStream *found = nullptr;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        AVStream *stream = format->streams[i];
        // A damaged header names codecs that there are not; what they hold is nothing to show.
        if (!wanted(stream) || stream->codecpar->codec_id == AV_CODEC_ID_NONE)
            continue;
        const bool isDefault = (stream->disposition & AV_DISPOSITION_DEFAULT) != 0;
        const bool hadDefault = found && (found->disposition & AV_DISPOSITION_DEFAULT) != 0;
        if (!found || (isDefault && !hadDefault))
            found = stream;
    }
    return found;
}

} // namespace

/// What FFmpeg calls to read.
struct ContainerReading
{
    static int read(void *opaque, uint8_t *buffer, int size)
    {
        auto *container = static_cast<Container *>(opaque);
        const qint64 most = std::min<qint64>(size, container->m_allowance);
        const qint64 got =
            container->m_file->readAt(container->m_place, reinterpret_cast<char *>(buffer), most);
        if (got < 0)
            return AVERROR(EIO);
        if (got == 0)
            return AVERROR_EOF;
        container->m_place += got;
        container->m_allowance -= got;
        return int(got);
    }

    static int64_t seek(void *opaque, int64_t offset, int whence)
    {
        auto *container = static_cast<Container *>(opaque);
        const int64_t size = container->m_file->size();
        const int from = whence & ~AVSEEK_FORCE;
        if (from == AVSEEK_SIZE)
            return size;
        const int64_t base = from == SEEK_CUR ? container->m_place : from == SEEK_END ? size : 0;
        int64_t place = 0;
        if (__builtin_add_overflow(base, offset, &place) || place < 0)
            return AVERROR(EINVAL);
        container->m_place = place;
        return place;
    }
};

NxResult<std::unique_ptr<Container>> Container::open(FootageFile *file)
{
    std::unique_ptr<Container> container(new Container(file));
    const NxResult<void> opened = container->openHeader();
    if (!opened)
        return opened.error();
    return container;
}

Container::Container(FootageFile *file) : m_file(file) {}

Container::~Container()
{
    avformat_close_input(&m_format);
    if (m_io)
        av_freep(&m_io->buffer);
    avio_context_free(&m_io);
}

NxResult<void> Container::openHeader()
{
    auto *buffer = static_cast<unsigned char *>(av_malloc(BufferBytes));
    m_io = buffer ? avio_alloc_context(buffer, BufferBytes, 0, this, &ContainerReading::read,
                                       nullptr, &ContainerReading::seek)
                  : nullptr;
    m_format = m_io ? avformat_alloc_context() : nullptr;
    if (!m_format) {
        if (!m_io)
            av_free(buffer);
        return NxError{translated("There is not enough memory.")};
    }
    m_format->pb = m_io;
    m_format->io_open = &refuseOther;
    // The name helps formats that have no mark of their own; nothing is opened by it.
    const QByteArray name = m_file->path();
    AVDictionary *options = nullptr;
    av_dict_set(&options, "format_whitelist", Readers, 0);
    const LibavComplaint complaint;
    const int code = avformat_open_input(&m_format, name.constData(), nullptr, &options);
    av_dict_free(&options);
    return code < 0 ? NxResult<void>(NxError{reasonOf(code, complaint.text())}) : NxResult<void>();
}

NxResult<void> Container::analyse()
{
    if (std::exchange(m_analysed, true))
        return {};
    // The length of films is measured where it is wanted; FFmpeg would read the end of the file.
    m_format->skip_estimate_duration_from_pts = video() ? 1 : 0;
    const LibavComplaint complaint;
    const int code = avformat_find_stream_info(m_format, nullptr);
    return code < 0 ? NxResult<void>(NxError{reasonOf(code, complaint.text())}) : NxResult<void>();
}

void Container::rewind()
{
    // Streams that are cut anywhere have their clock tell nothing of places in the file.
    const bool isCutAnywhere = (m_format->iformat->flags & AVFMT_TS_DISCONT) != 0;
    const int64_t begin = m_format->start_time == AV_NOPTS_VALUE ? 0 : m_format->start_time;
    if (isCutAnywhere && av_seek_frame(m_format, -1, 0, AVSEEK_FLAG_BYTE) >= 0)
        return;
    av_seek_frame(m_format, -1, begin, AVSEEK_FLAG_BACKWARD);
}

bool Container::isReadBy(const char *reader) const
{
    return av_match_name(reader, m_format->iformat->name) != 0;
}

AVStream *Container::video() const
{
    return best(m_format, [](const AVStream *stream) {
        return stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !isPicture(stream);
    });
}

AVStream *Container::audio() const
{
    return best(m_format, [](const AVStream *stream) {
        return stream->codecpar->codec_type == AVMEDIA_TYPE_AUDIO;
    });
}

AVStream *Container::coverArt() const
{
    return best(m_format, [](const AVStream *stream) {
        return stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && isPicture(stream);
    });
}

QString Container::errorText(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromLocal8Bit(text);
}
