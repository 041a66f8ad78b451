// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <QByteArray>
#include <QString>

#include <limits>

/// A footage time, in ms since 1970 (UTC), that is not known.
constexpr qint64 NxNoFootageTime = std::numeric_limits<qint64>::min();

/// What a file turned out to be. The values stand in projects: never renumber one.
enum class NxFootageKind : quint8 {
    Unknown = 0,
    Video = 1, ///< Moving pictures, with or without sound. Cover art is no video.
    Audio = 2,
    Image = 3,
    AnimatedImage = 4, ///< A GIF of more than one picture.
    Subtitle = 5,
};

/// What files that one camera wrote with one setting have in common; unknown numbers are 0,
/// unknown texts empty.
struct NxFootageStreams
{
    NxFootageKind kind = NxFootageKind::Unknown;
    bool hasVideo = false; ///< Moving pictures.
    bool hasAudio = false;
    QString demuxer; ///< Name of the container format's reader, e.g. "mov,mp4,m4a,3gp,3g2,mj2".
    bool canSeek = false;

    int width = 0; ///< px, as shown: rotation and EXIF orientation applied.
    int height = 0; ///< px, as shown.
    int rotation = 0; ///< Degrees clockwise that were applied: 0, 90, 180, 270.
    QString videoCodec; ///< e.g. "h264"; for pictures the format, e.g. "png".
    QString videoTag; ///< Four characters, as the container says them, e.g. "avc1".
    int bitDepth = 0; ///< Bits a channel.
    QString pixelFormat; ///< e.g. "yuv420p".
    QString colorRange;
    QString colorPrimaries;
    QString colorTransfer;
    QString colorMatrix;
    bool variableRate = false; ///< Frame times stand off the grid of the average rate.

    int sampleRate = 0; ///< Hz.
    int channels = 0;
    QString audioCodec; ///< e.g. "aac".
    QString audioTag;

    QString cameraMaker;
    QString cameraModel;
    QString textEncoding; ///< Of subtitles, e.g. "UTF-8".
};

/// What one file told of itself when it was read.
struct NxFootageFacts
{
    NxFootageStreams streams;
    /// Moving pictures: their number. Sound and subtitles: seconds times 25, rounded. 0 for
    /// pictures.
    qint64 frames = 0;
    /// Average rate of moving pictures, 25/1 for sound and subtitles, 0/0 for pictures.
    NxRational rate;
    qint64 durationUs = 0; ///< Microseconds; 0 when there is none.
    qint64 videoBitRate = 0; ///< Bits a second, as the container says.
    qint64 audioBitRate = 0;
    qint64 shot = NxNoFootageTime; ///< When it was recorded, as the file itself says.
    QString timecode; ///< Of the first frame, "01:00:00:00" or "01:00:00;00".
    QString reel;
};

/// The state of a file on disk; two equal ones mean that it was not written in between.
struct NxFileStamp
{
    qint64 size = -1; ///< Bytes.
    qint64 modified = NxNoFootageTime; ///< ms UTC.

    friend bool operator==(const NxFileStamp &a, const NxFileStamp &b)
    {
        return a.size == b.size && a.modified == b.modified;
    }
    friend bool operator!=(const NxFileStamp &a, const NxFileStamp &b) { return !(a == b); }
};

/// The identity of a file's contents: its size, and a 128-bit hash of its first, middle and last
/// 64 KiB.
struct NxFingerprint
{
    /// How the hash is made. Stored with it; another version is another identity.
    static constexpr int Version = 1;

    qint64 size = -1; ///< Bytes; -1: not known.
    quint64 high = 0;
    quint64 low = 0;

    [[nodiscard]] bool isNull() const { return size < 0; }
    friend bool operator==(const NxFingerprint &a, const NxFingerprint &b)
    {
        return a.size == b.size && a.high == b.high && a.low == b.low;
    }
    friend bool operator!=(const NxFingerprint &a, const NxFingerprint &b) { return !(a == b); }
};
