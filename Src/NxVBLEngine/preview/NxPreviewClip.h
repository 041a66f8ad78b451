// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxClip.h>

/// A whole file as a clip, for previews. It opens nothing: its timeline plays it.
class NXVBLENGINE_TEST_EXPORT NxPreviewClip final : public INxClip
{
public:
    explicit NxPreviewClip(QString path);
    ~NxPreviewClip() override;

    [[nodiscard]] QString path() const { return m_path; }
    /// Null takes it from its timeline. Not owned.
    void setTimeline(INxTimeline *timeline) { m_timeline = timeline; }

    [[nodiscard]] int kind() const override;
    [[nodiscard]] INxTimeline *timeline() const override { return m_timeline; }
    /// As long as its timeline; 1 frame while that is not known.
    [[nodiscard]] NxClipPlace place() const override;

private:
    const QString m_path;
    INxTimeline *m_timeline = nullptr; // Not owned.
};
