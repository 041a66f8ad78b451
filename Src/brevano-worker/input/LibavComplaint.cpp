// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/input/LibavComplaint.h>

#include <cstdarg>
#include <cstdio>
#include <mutex>

extern "C" {
#include <libavutil/log.h>
}

namespace {

constexpr int LongestComplaint = 200;

thread_local LibavComplaint *listening = nullptr;

} // namespace

/// What FFmpeg calls with each line of its log.
struct LibavListener
{
    static void hear(void * /*context*/, int level, const char *format, va_list arguments)
    {
        if (!listening || level > AV_LOG_ERROR || !listening->m_text.isEmpty())
            return;
        char line[LongestComplaint] = {};
        std::vsnprintf(line, sizeof line, format, arguments);
        QString text = QString::fromUtf8(line).simplified();
        while (text.endsWith(QLatin1Char('.')) || text.endsWith(QLatin1Char('!')))
            text.chop(1);
        // Whoever shows the reason names the file already.
        if (!text.contains(QLatin1Char('/')))
            listening->m_text = text;
    }
};

LibavComplaint::LibavComplaint() : m_outer(listening)
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(&LibavListener::hear); });
    listening = this;
}

LibavComplaint::~LibavComplaint()
{
    listening = m_outer;
}
