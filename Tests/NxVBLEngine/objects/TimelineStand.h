// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxVBLModel/NxMediaTypes.h>

/// A project with a film, a sound and a picture, and one timeline that shows nothing yet.
struct TimelineStand : EngineFixture
{
    TimelineStand()
        : film(addMedia(section, QStringLiteral("film.mov"))),
          sound(addMedia(section, QStringLiteral("sound.wav"))),
          picture(addMedia(section, QStringLiteral("picture.jpg"))),
          timeline(editor->addTimeline(QStringLiteral("Main")))
    {
    }

    NxEngineMedia *const film;
    NxEngineMedia *const sound;
    NxEngineMedia *const picture;
    INxTimeline *const timeline;

    /// A clip of the film, ten frames long.
    INxClip *add(int track, qint64 position) { return add(timeline, film, track, position); }
    INxClip *add(INxTimeline *onto, INxAbstractMedia *media, int track, qint64 position)
    {
        return editor->addClip(onto, media, {track, position, 10, 0});
    }
    INxSplitScreenClip *addSplit(INxTimeline *onto, int track, qint64 position)
    {
        return editor->addSplitScreen(onto, {track, position, 10, 0});
    }
    INxCompositeTimeline *addComposite(INxTimeline *onto, int track, qint64 position)
    {
        return editor->addComposite(onto, QStringLiteral("Inside"), {track, position, 10, 0});
    }
    [[nodiscard]] QList<NxTimelineUse> uses(const INxAbstractMedia *media) const
    {
        return memory.timelines()->uses(media->mediaId());
    }
    [[nodiscard]] QByteArray dump() const { return projectDump(memory); }
    [[nodiscard]] QString broken() const { return memory.brokenInvariant(); }
};

/// "track:position" of the clips of a timeline, separated by blanks.
[[nodiscard]] inline QString placesOf(INxTimeline *timeline)
{
    QStringList places;
    const QList<INxClip *> clips = timeline->clips();
    for (const INxClip *clip : clips)
        places += QStringLiteral("%1:%2").arg(clip->place().track).arg(clip->place().position);
    return places.join(QLatin1Char(' '));
}
