// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxFittedPictures_p.h>

#include <QHash>
#include <QPersistentModelIndex>
#include <QVector>

class INxBsThumbManager;
class INxPreviewFrameHelper;

/// Chooses the picture that stands for a media at this moment, and has it in the size in which it
/// is painted: what plays under the pointer, the frame of an animated picture, the cover, or the
/// picture that all media of its kind share.
class NxMediaCovers
{
public:
    /// Loads the shared pictures; nothing else here reads a file.
    NxMediaCovers();

    /// Where pictures come from. Not owned; each may be null.
    struct Sources
    {
        INxBsThumbManager *thumbs = nullptr;
        INxPreviewFrameHelper *preview = nullptr;
    };

    /// Null while there is none.
    /// @param box in device pixels.
    [[nodiscard]] QImage cover(const QModelIndex &index, INxAbstractMedia *media, const QSize &box,
                               const Sources &sources);
    /// The rows for which cover() answered a frame of an animated picture that is not its present
    /// one any more; each once.
    [[nodiscard]] QVector<QPersistentModelIndex> takeGifRows();

private:
    struct SharedCover
    {
        QImage picture;
        NxFittedPictures fitted{NxFittedPictures::Fit::Fill};
    };
    struct PreviewFrame
    {
        QImage frame;
        QSize box;
        QImage fitted;
    };

    [[nodiscard]] QImage previewFrame(INxAbstractMedia *media, const QSize &box,
                                      INxPreviewFrameHelper *helper);
    [[nodiscard]] QImage gifFrame(const QModelIndex &index, INxAbstractMedia *media,
                                  const QSize &box);
    [[nodiscard]] QImage sharedCover(const INxAbstractMedia &media, const QSize &box);

    NxFittedPictures m_covers{NxFittedPictures::Fit::Shrink};
    NxFittedPictures m_gifs{NxFittedPictures::Fit::FillQuickly};
    PreviewFrame m_preview; // One media plays at a time.
    SharedCover m_sound;
    SharedCover m_subtitle;
    QHash<QPersistentModelIndex, qint64> m_gifRows; // With the key of the frame that they show.
};
