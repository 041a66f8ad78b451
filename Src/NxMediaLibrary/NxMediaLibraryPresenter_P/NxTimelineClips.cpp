// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxTimelineClips.h>

#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxSplitScreenClip.h>

#include <algorithm>

namespace {

int removeFrom(const NxTimelineClips::OfTimeline &of)
{
    return int(std::count_if(of.clips.begin(), of.clips.end(),
                             [&of](INxClip *clip) { return of.timeline->removeClip(clip); }));
}

int removeFrom(const NxTimelineClips::OfSplitScreen &of)
{
    return int(std::count_if(of.clips.begin(), of.clips.end(),
                             [&of](INxClip *clip) { return of.split->removeInnerClip(clip); }));
}

template<typename Places>
int removeAll(const Places &places)
{
    int removed = 0;
    for (const auto &of : places)
        removed += removeFrom(of);
    return removed;
}

} // namespace

NxTimelineClips::NxTimelineClips(INxProject *project, const QSet<QString> &mediaIds)
{
    if (!project || mediaIds.isEmpty())
        return;
    // Each timeline stands behind the one it stands on.
    const QList<INxTimeline *> timelines = project->timelines();
    std::for_each(timelines.rbegin(), timelines.rend(),
                  [this, &mediaIds](INxTimeline *timeline) { walk(timeline, mediaIds); });
    std::reverse(m_onOuter.begin(), m_onOuter.end());
}

void NxTimelineClips::walk(INxTimeline *timeline, const QSet<QString> &mediaIds)
{
    OfTimeline found;
    found.timeline = timeline;
    const QList<INxClip *> clips = timeline->clips();
    for (INxClip *clip : clips) {
        if (clip->kind() == NXVBLMODEL::ckSplitScreen)
            walkSplitScreen(dynamic_cast<INxSplitScreenClip *>(clip), mediaIds);
        if (mediaIds.contains(clip->mediaId()))
            found.clips.append(clip);
    }
    if (found.clips.isEmpty())
        return;
    const bool isComposite = dynamic_cast<INxCompositeTimeline *>(timeline) != nullptr;
    (isComposite ? m_onComposites : m_onOuter).append(found);
}

void NxTimelineClips::walkSplitScreen(INxSplitScreenClip *split, const QSet<QString> &mediaIds)
{
    if (!split)
        return;
    OfSplitScreen found;
    found.split = split;
    const QList<INxClip *> inner = split->innerClips();
    std::copy_if(inner.begin(), inner.end(), std::back_inserter(found.clips),
                 [&mediaIds](INxClip *clip) { return mediaIds.contains(clip->mediaId()); });
    if (!found.clips.isEmpty())
        m_inSplitScreens.append(found);
}

int NxTimelineClips::remove() const
{
    return removeAll(m_onComposites) + removeAll(m_inSplitScreens) + removeAll(m_onOuter);
}
