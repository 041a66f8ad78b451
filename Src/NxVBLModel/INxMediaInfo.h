// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

struct NxAudioStreamInfo;
struct NxImageInfo;
struct NxVideoStreamInfo;

/// The facts of a media file.
///
/// Until the file is read a media answers a provisional information: kind and streams as the
/// suffix tells, and no numbers. Stream records live as long as the information.
class NXVBLMODEL_EXPORT INxMediaInfo
{
public:
    virtual ~INxMediaInfo();

    /// NXVBLMODEL::NxMediaInfoKind.
    [[nodiscard]] virtual int kind() const = 0;
    /// Bits of NXVBLMODEL::NxStreamFlag.
    [[nodiscard]] virtual int streamFlags() const = 0;
    /// Frames at frameRate(); sound, subtitles and templates count at 25 a second. May be
    /// negative when unknown.
    [[nodiscard]] virtual qint64 frameCount() const;
    /// Average frames a second; 0/0 when unknown and for pictures.
    [[nodiscard]] virtual NxRational frameRate() const;
    /// Frames at the own rate; sound in hundredths of a second.
    [[nodiscard]] virtual qint64 duration() const;
    [[nodiscard]] virtual const NxVideoStreamInfo *videoStream() const;
    [[nodiscard]] virtual const NxAudioStreamInfo *audioStream() const;
    [[nodiscard]] virtual const NxImageInfo *imageInfo() const;
    /// Bits a second, as the container says; 0 when unknown.
    [[nodiscard]] virtual qint64 videoBitRate() const;
    /// Bits a second, as the container says; 0 when unknown.
    [[nodiscard]] virtual qint64 audioBitRate() const;
    /// Time code of the first frame, "01:00:00:00", with ";" before the frames when it drops some;
    /// empty when there is none.
    [[nodiscard]] virtual QString timecode() const;
    /// The tape or card that the footage says it comes from; empty when unknown.
    [[nodiscard]] virtual QString reelName() const;
    /// Encoding of a subtitle file, e.g. "UTF-8"; empty for everything else.
    [[nodiscard]] virtual QString textEncoding() const;
    [[nodiscard]] virtual bool canSeek() const;
    /// Name of the container format's reader.
    [[nodiscard]] virtual QString demuxer() const;
};
