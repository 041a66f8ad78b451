// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <NxWorkerProtocol/NxMessageForm.h>

using NxMessageForm::wasRead;
using NxMessageForm::written;

namespace {

template<typename Enum>
void readEnum(QDataStream &in, Enum *value, Enum last)
{
    quint8 number = 0;
    in >> number;
    if (number > quint8(last))
        in.setStatus(QDataStream::ReadCorruptData);
    *value = Enum(number);
}

QDataStream &operator<<(QDataStream &out, const NxFootageStreams &s)
{
    return out << quint8(s.kind) << s.hasVideo << s.hasAudio << s.demuxer << s.canSeek << s.width
               << s.height << s.rotation << s.videoCodec << s.videoTag << s.bitDepth
               << s.pixelFormat << s.colorRange << s.colorPrimaries << s.colorTransfer
               << s.colorMatrix << s.variableRate << s.sampleRate << s.channels << s.audioCodec
               << s.audioTag << s.cameraMaker << s.cameraModel << s.textEncoding;
}

QDataStream &operator>>(QDataStream &in, NxFootageStreams &s)
{
    readEnum(in, &s.kind, NxFootageKind::Subtitle);
    return in >> s.hasVideo >> s.hasAudio >> s.demuxer >> s.canSeek >> s.width >> s.height
        >> s.rotation >> s.videoCodec >> s.videoTag >> s.bitDepth >> s.pixelFormat >> s.colorRange
        >> s.colorPrimaries >> s.colorTransfer >> s.colorMatrix >> s.variableRate >> s.sampleRate
        >> s.channels >> s.audioCodec >> s.audioTag >> s.cameraMaker >> s.cameraModel
        >> s.textEncoding;
}

QDataStream &operator<<(QDataStream &out, const NxFootageFacts &f)
{
    return out << f.streams << f.frames << f.rate.num << f.rate.den << f.durationUs
               << f.videoBitRate << f.audioBitRate << f.shot << f.timecode << f.reel;
}

QDataStream &operator>>(QDataStream &in, NxFootageFacts &f)
{
    return in >> f.streams >> f.frames >> f.rate.num >> f.rate.den >> f.durationUs
        >> f.videoBitRate >> f.audioBitRate >> f.shot >> f.timecode >> f.reel;
}

QDataStream &operator<<(QDataStream &out, const NxPictureAnswer &picture)
{
    return out << quint8(picture.outcome) << picture.reason;
}

QDataStream &operator>>(QDataStream &in, NxPictureAnswer &picture)
{
    readEnum(in, &picture.outcome, NxPictureOutcome::Failed);
    return in >> picture.reason;
}

} // namespace

QByteArray NxWorkerMessages::packed(const NxWorkerHello &hello)
{
    return written([&hello](QDataStream &out) {
        out << hello.version << hello.hasNoNetwork << hello.writesCacheOnly;
    });
}

bool NxWorkerMessages::unpack(const QByteArray &bytes, NxWorkerHello *hello)
{
    QDataStream in(bytes);
    in.setVersion(NxMessageForm::Version);
    in >> hello->version;
    if (in.status() == QDataStream::Ok && hello->version != NxWorkerProtocol::Version)
        return true; // What follows in another version is not for us.
    in >> hello->hasNoNetwork >> hello->writesCacheOnly;
    return in.status() == QDataStream::Ok && in.atEnd();
}

QByteArray NxWorkerMessages::packed(const NxReadRequest &request)
{
    return written([&request](QDataStream &out) {
        out << request.number << request.path << quint8(request.road) << request.wishes;
    });
}

bool NxWorkerMessages::unpack(const QByteArray &bytes, NxReadRequest *request)
{
    return wasRead(bytes, [request](QDataStream &in) {
        in >> request->number >> request->path;
        readEnum(in, &request->road, NxFootageRoad::Text);
        in >> request->wishes;
    });
}

QByteArray NxWorkerMessages::packedOpened(quint64 number)
{
    return written([number](QDataStream &out) { out << number; });
}

bool NxWorkerMessages::unpackOpened(const QByteArray &bytes, quint64 *number)
{
    return wasRead(bytes, [number](QDataStream &in) { in >> *number; });
}

QByteArray NxWorkerMessages::packed(const NxReadAnswer &answer)
{
    return written([&answer](QDataStream &out) {
        out << answer.number << answer.failure << answer.stamp.size << answer.stamp.modified
            << answer.changedMeanwhile << answer.facts.has_value();
        if (answer.facts)
            out << *answer.facts;
        out << answer.fingerprint.size << answer.fingerprint.high << answer.fingerprint.low
            << answer.cover << answer.strip << answer.bitDepth << answer.pixelFormat;
    });
}

bool NxWorkerMessages::unpack(const QByteArray &bytes, NxReadAnswer *answer)
{
    return wasRead(bytes, [answer](QDataStream &in) {
        bool hasFacts = false;
        in >> answer->number >> answer->failure >> answer->stamp.size >> answer->stamp.modified
            >> answer->changedMeanwhile >> hasFacts;
        if (hasFacts)
            in >> answer->facts.emplace();
        in >> answer->fingerprint.size >> answer->fingerprint.high >> answer->fingerprint.low
            >> answer->cover >> answer->strip >> answer->bitDepth >> answer->pixelFormat;
    });
}

QByteArray NxWorkerMessages::packedStreams(const NxFootageStreams &streams)
{
    return written([&streams](QDataStream &out) { out << streams; });
}

bool NxWorkerMessages::unpackStreams(const QByteArray &bytes, NxFootageStreams *streams)
{
    return wasRead(bytes, [streams](QDataStream &in) { in >> *streams; });
}
