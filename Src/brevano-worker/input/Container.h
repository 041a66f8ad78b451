// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <cstdint>
#include <limits>
#include <memory>

extern "C" {
#include <libavformat/avformat.h>
}

class FootageFile;

/// The container of a film or sound file, opened with FFmpeg over a file that is open already:
/// whatever the container says, no other file and no address is ever opened. Playlists and session
/// descriptions, which are nothing but names of others, are refused.
class Container
{
    Q_DISABLE_COPY_MOVE(Container)
public:
    /// Reads the header alone. The file must outlive the container. The error is a sentence
    /// without the path.
    [[nodiscard]] static NxResult<std::unique_ptr<Container>> open(FootageFile *file);
    ~Container();

    /// Reads on and decodes until the streams are known; costs much more than the header. Once.
    /// The length of a film whose header tells none stays unknown, or is a guess.
    [[nodiscard]] NxResult<void> analyse();
    [[nodiscard]] bool isAnalysed() const { return m_analysed; }
    /// Packets come from the beginning again, or go on where the container cannot go back.
    void rewind();

    /// True for one of the names of the reader that reads the container, e.g. "mov".
    [[nodiscard]] bool isReadBy(const char *reader) const;
    [[nodiscard]] AVFormatContext *format() const { return m_format; }
    [[nodiscard]] FootageFile *file() const { return m_file; }
    /// The stream of moving pictures that an editor shows; null when there is none. Cover art and
    /// single thumbnails are no video, and streams of no known codec are none at all.
    [[nodiscard]] AVStream *video() const;
    [[nodiscard]] AVStream *audio() const;
    /// A picture that is attached to sound, such as an album's cover; null when there is none.
    [[nodiscard]] AVStream *coverArt() const;

    /// "Invalid data found when processing input" for the error codes of FFmpeg.
    [[nodiscard]] static QString errorText(int code);

private:
    explicit Container(FootageFile *file);
    [[nodiscard]] NxResult<void> openHeader();

    FootageFile *const m_file; // Not owned.
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_format = nullptr;
    int64_t m_place = 0; // Where the next bytes are read.
    qint64 m_allowance = std::numeric_limits<qint64>::max(); // Bytes; then the file seems to end.
    bool m_analysed = false;

    friend struct ContainerReading;
    friend class ReadingLimit;
};
