// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <QSize>
#include <QString>

/// What is known about the pictures of a moving-picture file. Unknown numbers are 0, unknown
/// texts empty. Files that one camera wrote share one such record; what differs from file to file
/// is asked of INxMediaInfo.
struct NxVideoStreamInfo
{
    QSize frameSize; ///< px, as shown: rotation applied.
    int rotation = 0; ///< Degrees clockwise that were applied: 0, 90, 180, 270.
    QString codecTag; ///< Four characters, as the container says them.
    QString codecName;
    int bitDepth = 0; ///< Bits a channel.
    QString pixelFormat;
    QString colorRange;
    QString colorPrimaries;
    QString colorTransfer;
    QString colorMatrix;
    bool variableFrameRate = false; ///< Frame times stand off the grid of the average rate.
    QString bitRateMode;
};

/// What is known about the sound of a file.
struct NxAudioStreamInfo
{
    int sampleRate = 0; ///< Hz.
    int channels = 0;
    QString format;
    QString codecTag;
};

/// What is known about a still picture.
struct NxImageInfo
{
    QSize size; ///< px, orientation applied.
    QString exifMaker;
    QString format; ///< e.g. "jpeg".
    int rotation = 0; ///< Degrees clockwise that were applied, after mirroring: 0, 90, 180, 270.
};
