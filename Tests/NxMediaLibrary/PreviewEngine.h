// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxTimeline.h>

#include <QColor>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// An engine whose videos and film strips come when a test says so, and which notes down what it
/// is asked to do.

struct NotedClip final : INxClip
{
    NotedClip(const QString &file, QStringList *notes) : path(file), journal(notes) {}
    ~NotedClip() override { journal->append(QStringLiteral("clip %1 gone").arg(path)); }
    int kind() const override { return NXVBLMODEL::ckVideo; }

    const QString path;
    QStringList *const journal; // Not owned.
};

/// What the timelines of an engine have to show.
struct VideoScript
{
    qint64 frames = 0;
    bool isAtHand = true; ///< Whether frames can be rendered.
    bool givesClipsBack = true;
};

struct NotedTimeline final : INxTimeline
{
    NotedTimeline(INxClip *clip, const VideoScript *video, QStringList *notes)
        : script(video),
          journal(notes)
    {
        held.emplace_back(static_cast<NotedClip *>(clip));
    }
    ~NotedTimeline() override { journal->append(QStringLiteral("timeline gone")); }
    QList<INxClip *> clips() override
    {
        QList<INxClip *> list;
        for (const auto &clip : held)
            list.append(clip.get());
        return list;
    }
    bool removeClip(INxClip *clip) override
    {
        const auto place = std::find_if(held.begin(), held.end(),
                                        [clip](const auto &one) { return one.get() == clip; });
        if (place == held.end() || !script->givesClipsBack)
            return false;
        journal->append(QStringLiteral("remove %1").arg((*place)->path));
        static_cast<void>(place->release());
        held.erase(place);
        return true;
    }
    bool insertClip(INxClip *clip, int track, qint64 position) override
    {
        held.emplace_back(static_cast<NotedClip *>(clip));
        journal->append(
            QStringLiteral("insert %1 at %2/%3").arg(held.back()->path).arg(track).arg(position));
        return true;
    }
    void setOutputSize(int width, int height) override
    {
        journal->append(QStringLiteral("output %1x%2").arg(width).arg(height));
    }
    qint64 frameCount() override { return script->frames; }
    bool renderFrame(qint64 frame, int width, int height, uchar *rgb32) override
    {
        journal->append(QStringLiteral("render %1 %2x%3").arg(frame).arg(width).arg(height));
        if (!script->isAtHand)
            return false;
        auto *pixels = reinterpret_cast<QRgb *>(rgb32);
        std::fill(pixels, pixels + width * height, colour(frame));
        return true;
    }

    /// The colour of all pixels of a frame.
    static QRgb colour(qint64 frame) { return qRgb(int(frame), 100, 200); }

    const VideoScript *const script; // Not owned, as the next one is not.
    QStringList *const journal;
    std::vector<std::unique_ptr<NotedClip>> held;
};

/// Film strips by media.
struct StripShelf
{
    bool isServing = true;
    QHash<INxAbstractMedia *, QImage> strips;
    QStringList journal;
    INxBsThumbManager::ArrivalTeller teller;
};

struct NotedPictures final : INxBsThumbManager
{
    explicit NotedPictures(StripShelf *where) : shelf(where) {}
    ~NotedPictures() override
    {
        shelf->teller = {};
        shelf->journal.append(QStringLiteral("given back"));
    }
    QImage thumbnail(INxAbstractMedia *, const QSize &) override { return {}; }
    QImage filmStrip(INxAbstractMedia *media) override
    {
        shelf->journal.append(QStringLiteral("asked"));
        return shelf->strips.value(media);
    }
    bool servesFilmStrips() const override { return shelf->isServing; }
    void setArrivalTeller(ArrivalTeller teller) override { shelf->teller = std::move(teller); }
    void cancelRequests() override {}

    StripShelf *const shelf; // Not owned.
};

struct PreviewEngine final : INxMediaEngine
{
    INxClip *createVideoClip(const QString &path) override
    {
        if (!opensFiles)
            return nullptr;
        journal.append(QStringLiteral("clip %1").arg(path));
        return new NotedClip(path, &journal);
    }
    INxTimeline *createTimeline(INxClip *clip) override
    {
        if (!makesTimelines)
            return nullptr;
        journal.append(QStringLiteral("timeline"));
        return new NotedTimeline(clip, &video, &journal);
    }
    INxBsThumbManager *createThumbManager() override
    {
        return shelf ? new NotedPictures(shelf) : INxMediaEngine::createThumbManager();
    }
    QStringList takeJournal() { return std::exchange(journal, {}); }

    bool opensFiles = true;
    bool makesTimelines = true;
    VideoScript video;
    StripShelf *shelf = nullptr; // Not owned; null: no pictures are handed out.
    QStringList journal;
};
