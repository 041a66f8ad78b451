// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxFootageRow.h>
#include <NxVBLModel/INxMediaInfo.h>

struct NxStreamDescription;

/// The facts of a file that was read: its own numbers, and a description it shares with others.
class NXVBLENGINE_TEST_EXPORT NxEngineMediaInfo final : public INxMediaInfo
{
public:
    /// `streams` lives longer; null for a file that was not read.
    void set(const NxFootageRow &row, const NxStreamDescription *streams);
    /// Null while the file is not read; then this information says nothing.
    [[nodiscard]] const NxStreamDescription *streams() const { return m_streams; }
    /// Puts the file's own numbers and texts into a row.
    void writeTo(NxFootageRow *row) const;
    /// When the footage was recorded, as the file says: ms UTC, or NxNoFootageTime.
    [[nodiscard]] qint64 shot() const { return m_shot; }

    int kind() const override;
    int streamFlags() const override;
    qint64 frameCount() const override { return m_frames; }
    NxRational frameRate() const override { return m_rate; }
    qint64 duration() const override;
    const NxVideoStreamInfo *videoStream() const override;
    const NxAudioStreamInfo *audioStream() const override;
    const NxImageInfo *imageInfo() const override;
    qint64 videoBitRate() const override { return m_videoBitRate; }
    qint64 audioBitRate() const override { return m_audioBitRate; }
    QString timecode() const override { return m_timecode; }
    QString reelName() const override { return m_reel; }
    QString textEncoding() const override;
    bool canSeek() const override;
    QString demuxer() const override;

private:
    const NxStreamDescription *m_streams = nullptr; // Not owned.
    qint64 m_frames = 0;
    NxRational m_rate;
    qint64 m_durationUs = 0;
    qint64 m_videoBitRate = 0;
    qint64 m_audioBitRate = 0;
    qint64 m_shot = NxNoFootageTime;
    QString m_timecode;
    QString m_reel;
};
