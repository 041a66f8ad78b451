// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

extern "C" {
#include <libavformat/avformat.h>
}

/// What a program does that knows no better: opens a file with FFmpeg and analyses all its streams,
/// pictures included. False when FFmpeg cannot read it at all.
inline bool analyseFully(const QByteArray &path)
{
    AVFormatContext *format = nullptr;
    if (avformat_open_input(&format, path.constData(), nullptr, nullptr) < 0)
        return false;
    const bool isAnalysed = avformat_find_stream_info(format, nullptr) >= 0;
    avformat_close_input(&format);
    return isAnalysed;
}
