// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewClip.h>

#include <NxVBLModel/INxTimeline.h>

#include <algorithm>
#include <utility>

NxPreviewClip::NxPreviewClip(QString path) : m_path(std::move(path)) {}

NxPreviewClip::~NxPreviewClip() = default;

int NxPreviewClip::kind() const
{
    return NXVBLMODEL::ckVideo;
}

NxClipPlace NxPreviewClip::place() const
{
    NxClipPlace place;
    place.length = std::max<qint64>(m_timeline ? m_timeline->frameCount() : 0, 1);
    return place;
}
