// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/StripMaker.h>

#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/KeyPictures.h>
#include <brevano-worker/pictures/MomentPlan.h>

#include <QCoreApplication>

#include <utility>

using namespace NxPictureFile;

namespace {

std::array<int64_t, Moments> timesOf(const FilmReader &film)
{
    std::array<int64_t, Moments> times = {};
    for (int moment = 0; moment < Moments; ++moment)
        times[size_t(moment)] = film.timeOf(momentUs(moment, film.durationUs()));
    return times;
}

std::chrono::milliseconds steadyTime()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

StripMaker::StripMaker(FilmReader *film, KeyPictures *keys, Clock clock)
    : m_film(film),
      m_keys(keys),
      m_clock(clock ? std::move(clock) : Clock(&steadyTime)),
      m_frames(PictureScaler::of(film->stream()), timesOf(*film))
{
}

NxResult<QImage> StripMaker::make()
{
    m_begin = m_clock();
    const std::vector<int64_t> ways = waysToKeyFrames();
    if (!ways.empty())
        showKeyFrames(ways);
    else if (m_film->isIntraOnly())
        showMoments();
    if (m_frames.isEmpty()) {
        const NxResult<void> passed = passForward();
        if (!passed)
            return passed.error();
    }
    const AVFrame *anything = m_frames.isEmpty() ? m_keys->firstThere() : nullptr;
    if (anything)
        m_frames.putSpare(m_keys->time(), anything);
    if (m_frames.isEmpty())
        return NxError{
            QCoreApplication::translate("StripMaker", "No picture of the film can be decoded.")};
    return m_frames.stacked();
}

std::vector<int64_t> StripMaker::waysToKeyFrames() const
{
    const std::vector<int64_t> keys = m_film->listedKeyFrames();
    std::vector<int64_t> moments;
    for (int moment = 0; moment < Moments; ++moment)
        moments.push_back(m_frames.timeOf(moment));
    const int64_t tenth = m_film->timeOf(m_film->durationUs() / Moments) - m_film->start();
    std::vector<int64_t> ways;
    for (const size_t key : MomentPlan::keyFrames(keys, moments, tenth)) {
        // From halfway to the next one: there is no doubt to which an index leads from there,
        // whatever order it counts in.
        const int64_t next = key + 1 < keys.size() ? keys[key + 1] : keys[key] + tenth;
        ways.push_back(keys[key] + (next - keys[key]) / 2);
    }
    return ways;
}

void StripMaker::showKeyFrames(const std::vector<int64_t> &ways)
{
    for (int moment = 0; moment < Moments; ++moment) {
        const AVFrame *frame = m_keys->listedFor(ways[size_t(moment)]);
        if (frame)
            m_frames.put(moment, m_keys->time(), frame);
    }
}

void StripMaker::showMoments()
{
    for (int moment = 0; moment < Moments; ++moment) {
        const AVFrame *frame = m_keys->atOrBefore(m_frames.timeOf(moment));
        if (frame)
            m_frames.put(moment, m_keys->time(), frame);
    }
}

NxResult<void> StripMaker::passForward()
{
    const NxResult<std::unique_ptr<StreamDecoder>> decoder =
        StreamDecoder::open(m_film->stream(), StreamDecoder::Use::ForwardPass);
    if (!decoder)
        return decoder.error();
    m_film->rewind();
    m_lastTime = m_film->start();
    bool goesOn = true;
    const AVPacket *packet = nullptr;
    do {
        packet = m_film->next();
        (*decoder)->send(packet);
        FrameHandle frame = (*decoder)->receive();
        while (goesOn && frame) {
            goesOn = passOver(std::move(frame));
            frame = (*decoder)->receive();
        }
        goesOn = goesOn && m_clock() - m_begin < LongestPass;
    } while (goesOn && packet);
    if (m_next < Moments && m_last)
        m_frames.putSpare(m_lastTime, m_last.get());
    if (m_next < Moments && packet)
        leap();
    return {};
}

bool StripMaker::passOver(FrameHandle frame)
{
    m_last = std::move(frame);
    if (FilmReader::isBelievable(m_last->best_effort_timestamp))
        m_lastTime = m_last->best_effort_timestamp;
    else
        ++m_lastTime;
    while (m_next < Moments && m_frames.timeOf(m_next) <= m_lastTime
           && m_frames.put(m_next, m_lastTime, m_last.get()))
        ++m_next;
    return m_next < Moments;
}

void StripMaker::leap()
{
    for (; m_next < Moments && m_clock() - m_begin < LongestAll; ++m_next) {
        const AVFrame *frame = m_keys->atOrBefore(m_frames.timeOf(m_next));
        if (frame && m_keys->time() > m_lastTime)
            m_frames.put(m_next, m_keys->time(), frame);
    }
}
