// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QCoreApplication>
#include <QString>

class INxAbstractMedia;
class INxAbstractMediaItem;

/// The plain texts shown over items: a name, then a line for each thing known, no break at the end.
///
/// Every builder answers an empty text for null and for what is no media item. A date or a length
/// that is not known has no line; GetMediaImageToolTip() alone keeps an empty one. Dates are read
/// from the disk: ask only when a tooltip is really shown. GUI thread only.
class NXMEDIALIBRARY_EXPORT ToolTip
{
    Q_DECLARE_TR_FUNCTIONS(ToolTip)

public:
    /// The text of the user's own media, by what they are; empty for what has no such text.
    [[nodiscard]] static QString GetMediaDataToolTip(const INxAbstractMedia *media);
    /// The text of sounds, elements, effects, titles, transitions and split screens of the
    /// library; empty for everything else.
    [[nodiscard]] static QString GetEffectDataToolTip(const INxAbstractMedia *media);

    /// Name, creation date, length.
    [[nodiscard]] static QString GetMediaVideoToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetMediaVideoAudioToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetMediaAudioToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetMediaSubTitleToolTip(const INxAbstractMedia *media);
    /// Name and creation date, always two lines.
    [[nodiscard]] static QString GetMediaImageToolTip(const INxAbstractMedia *media);
    /// Name, creation date, length, picture size in px, how many media it takes.
    [[nodiscard]] static QString GetMediaProjectTemplateToolTip(const INxAbstractMedia *media);

    /// Name, length, and how to get it while it must still be downloaded.
    [[nodiscard]] static QString GetAudioToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetElementToolTip(const INxAbstractMedia *media);
    /// Name, and what to do next: download it, or drag it.
    [[nodiscard]] static QString GetEffectToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetTitleToolTip(const INxAbstractMedia *media);
    /// Name, and that it is dragged.
    [[nodiscard]] static QString GetTransitionToolTip(const INxAbstractMedia *media);
    [[nodiscard]] static QString GetSplitScreenToolTip(const INxAbstractMedia *media);

    /// The name that is shown; empty for null.
    [[nodiscard]] static QString getName(const INxAbstractMediaItem *item);
};
