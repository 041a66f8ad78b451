// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/KeyPictures.h>

#include <brevano-worker/pictures/FilmReader.h>

#include <algorithm>
#include <new>
#include <utility>

namespace {

PacketHandle kept(const AVPacket *packet)
{
    PacketHandle clone(packet ? av_packet_clone(packet) : nullptr);
    if (packet && !clone)
        throw std::bad_alloc();
    return clone;
}

} // namespace

KeyPictures::KeyPictures(FilmReader *film, StreamDecoder *decoder)
    : m_film(film),
      m_decoder(decoder)
{
}

const AVFrame *KeyPictures::atOrBefore(int64_t time)
{
    const PacketHandle packet = m_film->seeksRoughly() ? packetBySearch(time) : packetByIndex(time);
    return decode(packet.get());
}

const AVFrame *KeyPictures::listedFor(int64_t time)
{
    return m_film->seek(time) ? decode(m_film->nextKey()) : nullptr;
}

PacketHandle KeyPictures::packetByIndex(int64_t time)
{
    if (!m_film->seek(time))
        return {};
    PacketHandle packet = kept(m_film->nextKey());
    if (!packet || FilmReader::shownAt(packet.get()) <= time)
        return packet;
    // Indexes that count in decoding order lead to a key frame that is decoded before the time,
    // yet shown after it.
    const int64_t decoded = FilmReader::isBelievable(packet->dts) ? packet->dts : time;
    if (!m_film->seek(std::min(decoded, time) - 1))
        return packet;
    PacketHandle earlier = kept(m_film->nextKey());
    return earlier ? std::move(earlier) : std::move(packet);
}

PacketHandle KeyPictures::packetBySearch(int64_t time)
{
    constexpr qint64 furthestUs = 16 * AV_TIME_BASE;
    PacketHandle best;
    for (qint64 backUs = AV_TIME_BASE / 2; !best && backUs <= furthestUs; backUs *= 2) {
        const int64_t back = m_film->timeOf(backUs) - m_film->start();
        const int64_t from = std::max(time - back, m_film->start());
        if (!(from > m_film->start() ? m_film->seek(from) : m_film->rewind()))
            continue;
        best = lastKeyUntil(time);
    }
    return best;
}

PacketHandle KeyPictures::lastKeyUntil(int64_t time)
{
    PacketHandle best;
    const AVPacket *packet = m_film->nextKey();
    while (packet) {
        PacketHandle key = kept(packet);
        const bool isTold = packet->pts != AV_NOPTS_VALUE;
        if (!isTold) {
            packet = m_film->nextReference();
            key->pts = packet ? packet->dts : key->dts;
        }
        if (FilmReader::shownAt(key.get()) > time)
            break;
        best = std::move(key);
        if (isTold || (packet && !(packet->flags & AV_PKT_FLAG_KEY)))
            packet = m_film->nextKey();
    }
    return best;
}

const AVFrame *KeyPictures::firstThere()
{
    constexpr int mostKeyFrames = 8;
    constexpr int mostPackets = 500;
    m_film->rewind();
    for (int i = 0; i < mostKeyFrames; ++i) {
        const AVFrame *picture = decode(m_film->nextKey());
        if (picture)
            return picture;
    }
    // No key frame is marked, or all are damaged: whatever comes of decoding one after another.
    m_film->rewind();
    m_picture.reset();
    for (int i = 0; i < mostPackets && !m_picture; ++i) {
        const AVPacket *packet = m_film->next();
        m_decoder->send(packet);
        m_picture = m_decoder->receive();
        if (!packet)
            break;
    }
    m_decoder->flush();
    m_packetTime = AV_NOPTS_VALUE;
    m_time = m_film->start();
    if (m_picture && FilmReader::isBelievable(m_picture->best_effort_timestamp))
        m_time = m_picture->best_effort_timestamp;
    return m_picture.get();
}

const AVFrame *KeyPictures::decode(AVPacket *packet)
{
    if (!packet)
        return nullptr;
    const int64_t time = FilmReader::shownAt(packet);
    if (m_picture && time != AV_NOPTS_VALUE && time == m_packetTime)
        return m_picture.get();
    // A film that was cut without being decoded begins with pictures that are not shown.
    packet->flags &= ~AV_PKT_FLAG_DISCARD;
    m_picture = m_decoder->decodeAlone(packet);
    m_packetTime = time;
    m_time = time != AV_NOPTS_VALUE ? time : m_film->start();
    return m_picture.get();
}
