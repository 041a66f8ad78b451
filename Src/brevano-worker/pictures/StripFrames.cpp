// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/StripFrames.h>

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace NxPictureFile;

StripFrames::StripFrames(PictureScaler scaler, std::array<int64_t, Moments> times)
    : m_scaler(std::move(scaler)),
      m_times(times)
{
}

bool StripFrames::put(int moment, int64_t time, const AVFrame *frame)
{
    QImage &row = m_rows[size_t(moment)];
    const bool isSame = !m_there.empty() && m_there.back().time == time;
    row = isSame ? m_there.back().picture : shown(time, frame);
    return !row.isNull();
}

void StripFrames::putSpare(int64_t time, const AVFrame *frame)
{
    static_cast<void>(shown(time, frame));
}

QImage StripFrames::shown(int64_t time, const AVFrame *frame)
{
    const QSize box(FrameWidth, FrameHeight);
    const QImage picture = m_scaler.fitted(frame, box, PictureFit::Enlarge::ToFill);
    if (!picture.isNull()) {
        m_there.push_back({time, picture});
        m_format = AVPixelFormat(frame->format);
    }
    return picture;
}

QImage StripFrames::nearest(int64_t time) const
{
    const auto isNearer = [time](const Shown &a, const Shown &b) {
        return std::abs(a.time - time) < std::abs(b.time - time);
    };
    return std::min_element(m_there.begin(), m_there.end(), isNearer)->picture;
}

QImage StripFrames::stacked() const
{
    if (m_there.empty())
        return {};
    QImage strip(FrameWidth, StripHeight, QImage::Format_RGB32);
    strip.fill(Qt::black);
    QPainter painter(&strip);
    for (int row = 0; row < Moments * RowsPerMoment; ++row) {
        const int moment = row / RowsPerMoment;
        const QImage picture =
            has(moment) ? m_rows[size_t(moment)] : nearest(m_times[size_t(moment)]);
        painter.drawImage((FrameWidth - picture.width()) / 2,
                          row * FrameHeight + (FrameHeight - picture.height()) / 2, picture);
    }
    return strip;
}
