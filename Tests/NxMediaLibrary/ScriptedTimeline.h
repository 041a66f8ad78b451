// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>

#include <QStringList>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// Timelines that a test lays out clip by clip, and that note down what is taken from them.

struct ScriptedClip final : INxClip
{
    ScriptedClip(const QString &called, const QString &media, int clipKind)
        : label(called),
          id(media),
          itsKind(clipKind)
    {
    }
    int kind() const override { return itsKind; }
    QString mediaId() const override { return id; }
    INxTimeline *timeline() const override { return on; }

    const QString label;
    const QString id;
    const int itsKind;
    INxTimeline *on = nullptr; // Not owned.
};

/// Takes a clip out of a list and keeps it alive. False when it is not there.
template<typename Clip>
bool takeClip(std::vector<std::unique_ptr<Clip>> *clips, const INxClip *clip,
              std::vector<std::unique_ptr<Clip>> *taken)
{
    const auto place = std::find_if(clips->begin(), clips->end(),
                                    [clip](const auto &one) { return one.get() == clip; });
    if (place == clips->end())
        return false;
    taken->push_back(std::move(*place));
    clips->erase(place);
    return true;
}

struct ScriptedSplitScreen final : INxSplitScreenClip
{
    ScriptedSplitScreen(const QString &called, QStringList *notes) : label(called), journal(notes)
    {
    }
    INxTimeline *timeline() const override { return on; }
    QString mediaId() const override { return id; }
    QList<INxClip *> innerClips() override
    {
        QList<INxClip *> list;
        for (const auto &clip : inner)
            list.append(clip.get());
        return list;
    }
    bool removeInnerClip(INxClip *clip) override
    {
        if (!takeClip(&inner, clip, &removed))
            return false;
        journal->append(QStringLiteral("%1 loses %2").arg(label, removed.back()->label));
        return true;
    }

    ScriptedClip *add(const QString &called, const QString &media)
    {
        inner.push_back(std::make_unique<ScriptedClip>(called, media, NXVBLMODEL::ckVideo));
        inner.back()->on = on;
        return inner.back().get();
    }

    const QString label;
    QString id; ///< Of the media that lends the split screen its looks; empty for none.
    QStringList *const journal; // Not owned.
    INxTimeline *on = nullptr; // Not owned.
    std::vector<std::unique_ptr<ScriptedClip>> inner;
    std::vector<std::unique_ptr<ScriptedClip>> removed;
};

/// The part that outer and composite timelines share.
template<typename Base>
struct ScriptedTimelineOf : Base
{
    ScriptedTimelineOf(const QString &called, QStringList *notes) : label(called), journal(notes) {}

    QString name() const override { return label; }
    QList<INxClip *> clips() override
    {
        QList<INxClip *> list;
        for (const auto &clip : held)
            list.append(clip.get());
        return list;
    }
    bool removeClip(INxClip *clip) override
    {
        if (!takeClip(&held, clip, &removed))
            return false;
        journal->append(QStringLiteral("%1 loses %2").arg(label, labelOf(clip)));
        return true;
    }
    bool insertClip(INxClip *, int, qint64) override { return false; }

    ScriptedClip *add(const QString &called, const QString &media,
                      int clipKind = NXVBLMODEL::ckVideo)
    {
        auto clip = std::make_unique<ScriptedClip>(called, media, clipKind);
        ScriptedClip *added = clip.get();
        added->on = this;
        held.push_back(std::move(clip));
        return added;
    }
    ScriptedSplitScreen *addSplitScreen(const QString &called)
    {
        auto split = std::make_unique<ScriptedSplitScreen>(called, journal);
        ScriptedSplitScreen *added = split.get();
        added->on = this;
        held.push_back(std::move(split));
        return added;
    }

    static QString labelOf(const INxClip *clip)
    {
        const auto *split = dynamic_cast<const ScriptedSplitScreen *>(clip);
        return split ? split->label : static_cast<const ScriptedClip *>(clip)->label;
    }

    const QString label;
    QStringList *const journal; // Not owned.
    std::vector<std::unique_ptr<INxClip>> held;
    std::vector<std::unique_ptr<INxClip>> removed;
};

using ScriptedTimeline = ScriptedTimelineOf<INxTimeline>;

struct ScriptedComposite final : ScriptedTimelineOf<INxCompositeTimeline>
{
    ScriptedComposite(const QString &called, QStringList *notes, INxClip *clip)
        : ScriptedTimelineOf(called, notes),
          outer(clip)
    {
    }
    INxClip *outerClip() const override { return outer; }

    INxClip *const outer; // Not owned.
};
