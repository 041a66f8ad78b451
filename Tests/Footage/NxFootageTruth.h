// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QSize>
#include <QString>

/// What a file is, known from the way it was made. Unknown numbers are 0, unknown texts empty.
struct NxFootageTruth
{
    NxFootageKind kind = NxFootageKind::Unknown;

    QSize size{0, 0}; ///< px, as shown: turned, but not stretched to square pixels.
    int rotation = 0; ///< Degrees clockwise that whoever shows it applies, after mirroring.
    bool mirrored = false; ///< Left and right change places before it is turned.
    NxRational pixelAspect{1, 1}; ///< Width of a pixel to its height.
    QString videoCodec; ///< As FFmpeg calls it; for pictures the format.
    QString pixelFormat; ///< Of films, as FFmpeg calls it.
    int bitDepth = 0; ///< Bits a channel, of films.
    bool hasCoverArt = false;

    NxRational rate; ///< The average; 25/1 for sound and subtitles, none for pictures.
    qint64 frames = 0; ///< Of films; for sound and subtitles seconds times 25, rounded.
    bool variableRate = false;
    qint64 durationUs = 0; ///< Of the moving pictures where there are some.
    /// By how much what a container says may differ: lossy sound is made of whole packets.
    qint64 durationSlackUs = 0;

    QString audioCodec; ///< As FFmpeg calls it.
    int sampleRate = 0; ///< Hz
    int channels = 0;

    qint64 shot = NxNoFootageTime; ///< ms UTC
    QString cameraMaker;
    QString cameraModel;
    QString timecode;
    QString reel;
    QString textEncoding; ///< Of subtitles.

    bool isNumbered = false; ///< The pictures bear numbers of NxNumberedFrames.
    int keyFrameDistance = 0; ///< Frames from one key frame to the next; 1 when each is one.
    int firstNumber = 0; ///< What the first frame that is shown bears.
    /// The first frames of a film of variable rate stand half as long as those from this one on.
    int slowFrom = 0;

    [[nodiscard]] bool isFilm() const
    {
        return kind == NxFootageKind::Video || kind == NxFootageKind::AnimatedImage;
    }
    /// Every frame can be decoded alone, so each moment shows its own frame and no other.
    [[nodiscard]] bool isExact() const { return keyFrameDistance == 1; }
    /// When a frame is shown, from the first one on, in microseconds.
    [[nodiscard]] qint64 frameTimeUs(int frame) const;
    /// The number of the frame that stands at a moment.
    [[nodiscard]] int numberAt(qint64 us) const;
    /// The number of the key frame at or before a moment. It may lie before the first frame that
    /// is shown.
    [[nodiscard]] int keyNumberAt(qint64 us) const;
};
