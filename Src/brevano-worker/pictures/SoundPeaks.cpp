// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/SoundPeaks.h>

#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/StreamDecoder.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace {

constexpr float NotHeard = -1;

using PeakFinder = float (*)(const uint8_t *samples, int64_t from, int64_t to);

template<typename Sample>
float peakOf(const uint8_t *samples, int64_t from, int64_t to)
{
    const auto *values = reinterpret_cast<const Sample *>(samples);
    double peak = 0;
    for (int64_t i = from; i < to; ++i) {
        // What is no number is no peak.
        const double loudness = std::abs(double(values[i]));
        peak = loudness > peak ? loudness : peak;
    }
    const double full =
        std::is_floating_point_v<Sample> ? 1 : double(std::numeric_limits<Sample>::max());
    return float(std::min(peak / full, 1.0));
}

template<>
float peakOf<uint8_t>(const uint8_t *samples, int64_t from, int64_t to)
{
    constexpr int silence = 128;
    int peak = 0;
    for (int64_t i = from; i < to; ++i)
        peak = std::max(peak, std::abs(samples[i] - silence));
    return float(peak) / silence;
}

PeakFinder finderOf(AVSampleFormat packedFormat)
{
    static constexpr std::pair<AVSampleFormat, PeakFinder> table[] = {
        {AV_SAMPLE_FMT_U8, &peakOf<uint8_t>},  {AV_SAMPLE_FMT_S16, &peakOf<int16_t>},
        {AV_SAMPLE_FMT_S32, &peakOf<int32_t>}, {AV_SAMPLE_FMT_S64, &peakOf<int64_t>},
        {AV_SAMPLE_FMT_FLT, &peakOf<float>},   {AV_SAMPLE_FMT_DBL, &peakOf<double>},
    };
    for (const auto &[format, finder] : table)
        if (format == packedFormat)
            return finder;
    return nullptr;
}

/// Of all channels, between two samples.
float peakBetween(const AVFrame *frame, PeakFinder finder, int64_t from, int64_t to)
{
    const int channels = frame->ch_layout.nb_channels;
    if (!av_sample_fmt_is_planar(AVSampleFormat(frame->format)))
        return finder(frame->data[0], from * channels, to * channels);
    float peak = 0;
    for (int channel = 0; channel < channels; ++channel)
        peak = std::max(peak, finder(frame->extended_data[channel], from, to));
    return peak;
}

std::chrono::milliseconds steadyTime()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

/// Columns that were not heard look like the nearest that was.
void fillGaps(std::vector<float> *columns)
{
    const std::vector<float> heard = *columns;
    const int count = int(heard.size());
    const auto isHeard = [&](int i) { return i >= 0 && i < count && heard[size_t(i)] >= 0; };
    for (int i = 0; i < count; ++i) {
        for (int far = 0; far < count && (*columns)[size_t(i)] < 0; ++far) {
            if (isHeard(i - far) || isHeard(i + far))
                (*columns)[size_t(i)] = heard[size_t(isHeard(i - far) ? i - far : i + far)];
        }
    }
}

} // namespace

SoundPeaks::SoundPeaks(FilmReader *sound, Clock clock)
    : m_sound(sound),
      m_clock(clock ? std::move(clock) : Clock(&steadyTime))
{
}

NxResult<std::vector<float>> SoundPeaks::read()
{
    using std::chrono::microseconds;
    const NxResult<std::unique_ptr<StreamDecoder>> decoder =
        StreamDecoder::open(m_sound->stream(), StreamDecoder::Use::SingleFrames);
    if (!decoder)
        return decoder.error();
    m_begin = m_clock();
    const bool isLong = microseconds(m_sound->durationUs()) > LongestHeardWhole;
    if (isLong)
        hearPlaces(decoder->get());
    if (m_peaks.empty())
        hearWhole(decoder->get());
    if (m_peaks.empty())
        return NxError{QCoreApplication::translate("SoundPeaks", "The sound cannot be decoded.")};
    return columns();
}

bool SoundPeaks::isLate() const
{
    return m_clock() - m_begin >= LongestHearing;
}

void SoundPeaks::hearWhole(StreamDecoder *decoder)
{
    m_sound->rewind();
    m_place = 0;
    const AVPacket *packet = nullptr;
    do {
        packet = m_sound->next();
        decoder->send(packet);
        while (const FrameHandle frame = decoder->receive())
            take(frame.get());
    } while (packet && !isLate());
}

void SoundPeaks::hearPlaces(StreamDecoder *decoder)
{
    // When the time is up, what was heard is spread over the whole sound.
    constexpr int stride = 8;
    for (int first = 0; first < stride; ++first)
        for (int column = first; column < Columns && !isLate(); column += stride)
            hearPlace(decoder, m_sound->durationUs() * (2 * column + 1) / (2 * Columns));
}

void SoundPeaks::hearPlace(StreamDecoder *decoder, qint64 momentUs)
{
    constexpr int packets = 4; // The first one or two only prepare the decoder.
    if (!m_sound->seek(m_sound->timeOf(momentUs)))
        return;
    decoder->flush();
    m_place = momentUs;
    for (int i = 0; i < packets; ++i) {
        const AVPacket *packet = m_sound->next();
        if (!packet)
            return;
        decoder->send(packet);
        while (const FrameHandle frame = decoder->receive())
            take(frame.get());
    }
}

void SoundPeaks::take(const AVFrame *frame)
{
    const auto format = AVSampleFormat(frame->format);
    const PeakFinder finder = finderOf(av_get_packed_sample_fmt(format));
    if (!finder || frame->nb_samples <= 0 || frame->sample_rate <= 0 || !frame->data[0])
        return;
    constexpr int piecesPerColumn = 2;
    const qint64 pieceUs = m_sound->durationUs() / (Columns * piecesPerColumn);
    const int64_t most = frame->nb_samples;
    const int64_t piece =
        pieceUs > 0
            ? std::clamp<int64_t>(av_rescale(pieceUs, frame->sample_rate, AV_TIME_BASE), 1, most)
            : most;
    if (FilmReader::isBelievable(frame->best_effort_timestamp))
        m_place = m_sound->momentUsOf(frame->best_effort_timestamp);
    for (int64_t from = 0; from < most; from += piece)
        m_peaks.push_back({m_place + av_rescale(from, AV_TIME_BASE, frame->sample_rate),
                           peakBetween(frame, finder, from, std::min(from + piece, most))});
    m_place += av_rescale(most, AV_TIME_BASE, frame->sample_rate);
}

std::vector<float> SoundPeaks::columns() const
{
    const auto isEarlier = [](const Peak &a, const Peak &b) { return a.momentUs < b.momentUs; };
    const qint64 last = std::max_element(m_peaks.begin(), m_peaks.end(), isEarlier)->momentUs;
    const qint64 length = std::max<qint64>(m_sound->durationUs(), last + 1);
    std::vector<float> columns(Columns, NotHeard);
    for (const Peak &peak : m_peaks) {
        const double place = double(peak.momentUs) / double(length);
        const int column = std::clamp(int(place * Columns), 0, Columns - 1);
        columns[size_t(column)] = std::max(columns[size_t(column)], peak.loudness);
    }
    fillGaps(&columns);
    return columns;
}
