// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaCovers_p.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxRowCanvas_p.h>

#include <QHash>

#include <optional>

/// What the painter keeps; its drawing reads it, too.
struct NxMediaItemPainter::Private
{
    struct Progress
    {
        NxMediaRef media; // Null: the media died, and this is no entry.
        qint64 done = 0;
        qint64 total = 0;
    };

    [[nodiscard]] NxMediaItemLayout layoutOf(const QSize &row, Qt::LayoutDirection direction) const;
    /// From 0 to 1; nothing for a media without a bar.
    [[nodiscard]] std::optional<qreal> progressOf(INxAbstractMedia *media) const;
    void forgetDeadProgress();

    NxRowCaches caches;
    NxMediaCovers covers;
    QHash<INxAbstractMedia *, Progress> progress;
    ProxyTest hasProxy;
    // Of this painter: the mode that is common to all may belong to another view already.
    NXMEDIALIBRARY::NxMediaItemViewMode mode = NXMEDIALIBRARY::vmLargeThumbnail;
    int lineHeight = 0;
    int listWidth = 0;
    int listNameWidth = 0;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};
