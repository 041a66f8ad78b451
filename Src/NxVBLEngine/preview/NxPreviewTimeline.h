// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/preview/NxPreviewClip.h>
#include <NxVBLModel/INxTimeline.h>

#include <QPointer>
#include <QSize>

#include <memory>

class NxPreviewService;

/// A timeline of one clip at most, which is played as a preview from the moment it is there. It
/// may outlive the engine; then it has no frames.
class NXVBLENGINE_TEST_EXPORT NxPreviewTimeline final : public INxTimeline
{
    Q_DISABLE_COPY_MOVE(NxPreviewTimeline)
public:
    NxPreviewTimeline(NxPreviewService *service, std::unique_ptr<NxPreviewClip> clip);
    ~NxPreviewTimeline() override;

    [[nodiscard]] QList<INxClip *> clips() override;
    /// The clip is its caller's then.
    bool removeClip(INxClip *clip) override;
    /// At the beginning of track 0, while there is no other. False, with the clip still its
    /// caller's, anywhere else, and for clips that are no previews or stand elsewhere.
    bool insertClip(INxClip *clip, int track, qint64 position) override;
    void setOutputSize(int width, int height) override;
    qint64 frameCount() override;
    bool renderFrame(qint64 frame, int width, int height, uchar *rgb32) override;

private:
    void take(std::unique_ptr<NxPreviewClip> clip);

    const QPointer<NxPreviewService> m_service;
    std::unique_ptr<NxPreviewClip> m_clip;
    quint64 m_film = 0;
    QSize m_output{1920, 1080};
};
