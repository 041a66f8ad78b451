// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QCache>
#include <QImage>
#include <QSize>

class INxAbstractMedia;

/// Pictures of media in the size and form in which they are painted: the last one of each media.
class NXMEDIAVIEWS_TEST_EXPORT NxFittedPictures
{
public:
    enum class Fit {
        Shrink, ///< A picture that is small enough stays as it is.
        Fill, ///< One that is too small is made larger, too.
        FillQuickly, ///< The same for what moves: less smooth where it is made much smaller.
    };

    explicit NxFittedPictures(Fit fit);

    /// The picture as large as the box allows, in device pixels, in a form that is painted without
    /// being converted. Scales nothing when it is asked for the same picture again. Null for a
    /// null picture and an empty box.
    [[nodiscard]] QImage fitted(INxAbstractMedia *media, const QImage &picture, const QSize &box);

    /// The picture as large as the box allows, made anew at each call.
    [[nodiscard]] static QImage made(const QImage &picture, const QSize &box);

    /// How often a picture was scaled or converted.
    [[nodiscard]] int madeCount() const { return m_madeCount; }

private:
    struct Entry
    {
        NxMediaRef media; // Null: the media died, and this is no entry.
        qint64 sourceKey = 0;
        QSize box;
        QImage fitted;
    };

    const Fit m_fit;
    int m_madeCount = 0;
    QCache<INxAbstractMedia *, Entry> m_entries; // Cost in KiB.
};
