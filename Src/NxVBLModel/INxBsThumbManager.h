// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <QImage>
#include <QSize>

#include <functional>

class INxAbstractMedia;

/// Hands out pictures of media, from memory only. One handle per painter.
class NXVBLMODEL_EXPORT INxBsThumbManager
{
public:
    using ArrivalTeller = std::function<void(INxAbstractMedia *)>;

    virtual ~INxBsThumbManager();

    /// The media's picture scaled to fit, in device pixels; null when it is not in memory yet. It
    /// is then fetched, and the observers are told that the media's state changed.
    [[nodiscard]] virtual QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) = 0;
    /// The media's film strip, frames 144 px wide stacked every 81 px; null when it is not in
    /// memory yet, as above, or there is none.
    [[nodiscard]] virtual QImage filmStrip(INxAbstractMedia *media);
    /// Whether filmStrip() ever answers one. Who finds that it does not may read the file of
    /// INxAbstractMediaItem::thumbnailStripPath(). False by default.
    [[nodiscard]] virtual bool servesFilmStrips() const;
    /// Tells whoever made the handle, on the GUI thread, when a picture that was asked for through
    /// it has come, which may then be had. It may destroy the handle. An empty one tells nobody.
    /// By default nothing is told.
    virtual void setArrivalTeller(ArrivalTeller teller);
    /// Forgets what was asked for and did not come yet; for a view that scrolls on.
    virtual void cancelRequests() = 0;
};

/// A handle of the installed engine; null when it makes none. Give it back with
/// releaseThumbManager().
[[nodiscard]] NXVBLMODEL_EXPORT INxBsThumbManager *createBsThumbManager();
/// Null is accepted.
NXVBLMODEL_EXPORT void releaseThumbManager(INxBsThumbManager *handle);
