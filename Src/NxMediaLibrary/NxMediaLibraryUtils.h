// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class QWidget;

/// Small questions that the panel's presenters share. GUI thread only.
///
/// The lists of file types are NXVBLMODEL::suffixPatterns(); here they are put into the forms that
/// file dialogs and file walks want. All patterns are upper case: whoever matches names against
/// them ignores case.
class NXMEDIALIBRARY_EXPORT NxMediaLibraryUtils
{
public:
    NxMediaLibraryUtils() = delete;

    /// One list of patterns, "*.MP4;*.FLV;...".
    [[nodiscard]] static QString getImportVideoFilter();
    [[nodiscard]] static QString getImportImageFilter();
    [[nodiscard]] static QString getImportAudioFilter();
    [[nodiscard]] static QString getImportSrtFilter();
    /// The files that are never taken out of a folder.
    [[nodiscard]] static QString getImportUnsupportFilter();

    /// The filter of a file dialog for everything but subtitles: all of it, then one line a kind,
    /// then any file. Patterns are separated by ";", which NxFileDialog understands.
    [[nodiscard]] static QString getImportFileFilter();
    /// The same for moving and still pictures alone.
    [[nodiscard]] static QString getImportVideoAnImageFilter();

    /// One list as a pair for the native dialogs of Windows: "(patterns)", NUL, "patterns", NUL.
    [[nodiscard]] static QString getImportVideoFilterEx();
    [[nodiscard]] static QString getImportImageFilterEx();
    [[nodiscard]] static QString getImportAudioFilterEx();
    [[nodiscard]] static QString getImportSrtTextFilterEx();
    /// All kinds as the whole filter of a native dialog, which ends in two NULs.
    [[nodiscard]] static QString getImportFileFilterEx();

    /// A regular expression that fits the names of one list: "^.*?\.(MP4|FLV|...)$".
    [[nodiscard]] static QString getImportVideoRegexFilter();
    [[nodiscard]] static QString getImportImageRegexFilter();
    [[nodiscard]] static QString getImportAudioRegexFilter();
    [[nodiscard]] static QString getImportSrtRegexFilter();
    /// The same for the names of all four lists.
    [[nodiscard]] static QString getImportFileRegexFilter();

    /// The video, image, audio and subtitle lists, as NxDir::CheckFilters() takes them.
    [[nodiscard]] static QStringList getImportAllSupportFilter();
    /// The unsupported list.
    [[nodiscard]] static QStringList getImportAllUnsupportFilter();

    /// The folder that was last imported from; a fixed folder of sample music before the first.
    [[nodiscard]] static QString getImportMediaFileDir();
    static void writeImportMediaFileDir(const QString &directory);

    /// Whether something of what was dropped or chosen may be imported: a file that is not on the
    /// unsupported list, or a folder with one in it or below. A path that is not there counts as
    /// a file. Folders are walked only as far as the first such file.
    [[nodiscard]] static bool hasValidFile(const QStringList &paths);

    /// Codec tests, by what is known about the item's moving pictures; false for null, and while
    /// nothing is known.
    [[nodiscard]] static bool IsHevc(INxAbstractMediaItem *item);
    [[nodiscard]] static bool isH264Encode(INxAbstractMediaItem *item);
    [[nodiscard]] static bool isH265Encode(INxAbstractMediaItem *item);
    /// A file of a video DVD, by its suffix; false for null.
    [[nodiscard]] static bool IsVob(INxAbstractMediaItem *item);

    /// Tells the user that HEVC cannot be played yet, waits, and opens the page "HevcPage" of
    /// NxConfig, however the dialog was closed. A page that does not open is an error in the log.
    static void ShowHEVCHintWidget(QWidget *parent);

    // What a media is. Each answers false for null. None touches a disk.

    /// Moving pictures. A file by its video stream, a GIF always; a resource by its media type, a
    /// composed one by its parts. False for what is no media item.
    [[nodiscard]] static bool isVideo(const INxAbstractMedia *media);
    /// A still picture. A file by its image stream; a resource by its media type, a composed one
    /// by its kind code, sub-kind, secondary kind or parts. False for what is no media item.
    [[nodiscard]] static bool isPhoto(const INxAbstractMedia *media);
    /// Sound alone: by media type, or by what the media information says.
    [[nodiscard]] static bool isAudio(const INxAbstractMedia *media);
    /// An animated GIF, of the project or of the stock library.
    [[nodiscard]] static bool isGif(const INxAbstractMedia *media);
    /// By the media information; by media type only while there is none.
    [[nodiscard]] static bool isSubtitle(const INxAbstractMedia *media);
    [[nodiscard]] static bool isProjectTemplate(const INxAbstractMedia *media);
    /// A library resource that is a photo.
    [[nodiscard]] static bool isResourceMediaImage(const INxAbstractMedia *media);
    /// A library resource that is a video.
    [[nodiscard]] static bool isResourceMediaVideo(const INxAbstractMedia *media);
    /// A video that may be filed into the project although it came from the library.
    [[nodiscard]] static bool isSourceMediaVideo(const INxAbstractMedia *media);
    /// Some timeline uses the item.
    [[nodiscard]] static bool isUsed(const INxAbstractMedia *media);
    /// What the media information says of the file's streams; false without it.
    [[nodiscard]] static bool hasAudio(const INxAbstractMedia *media);
    [[nodiscard]] static bool hasVideo(const INxAbstractMedia *media);
    [[nodiscard]] static bool hasImage(const INxAbstractMedia *media);

    // What is shown of an item.

    /// "hh:mm:ss:ff" for video, sound, subtitles and project templates. Empty for all else, for a
    /// rate below one frame a second or none, and for an unknown length.
    [[nodiscard]] static QString getDuration(const INxAbstractMediaItem *item);
    /// When the file was made, else last changed, as "yyyy/MM/dd hh:mm:ss" in local time; empty
    /// when the file is not there. Looks at the disk.
    [[nodiscard]] static QString getCreatDate(const INxAbstractMediaItem *item);
    /// Width and height in px of a video's or a photo's pictures; invalid for all else, while
    /// nothing is known, and for an unavailable item.
    [[nodiscard]] static QSize getResolution(const INxAbstractMediaItem *item);
    /// Hz, of a video's sound or of a sound item; 0 for all else, while nothing is known, and for
    /// an unavailable item.
    [[nodiscard]] static int getAudioSampleRate(const INxAbstractMediaItem *item);
    /// The picture that stands for sound without cover art, with "/"; empty when the resources
    /// are not installed.
    [[nodiscard]] static QString getDefaultAudioThumbnailImagePath();
    /// The picture that stands for subtitles.
    [[nodiscard]] static QString getDefaultSubtitleThumbnailImagePath();

    // Folders and what they list.

    /// The media items of a folder in its own order, those of the folders below included when
    /// `recursive`; never folders. Empty for null.
    [[nodiscard]] static QList<INxAbstractMediaItem *> extractItems(const INxFolderMedia *folder,
                                                                    bool recursive);
    /// The media items among `medias`, in order and as often as they stand there: folders, group
    /// headers, tiles and nulls are left out. The list is not changed.
    [[nodiscard]] static QList<INxAbstractMediaItem *> extractMediaItems(
        const QList<INxAbstractMedia *> &medias);
    /// What the folder lists: INxFolderMedia::items(). Empty for null.
    [[nodiscard]] static QList<INxAbstractMedia *> getMediaItemsFromFolderMedia(
        const INxFolderMedia *folder, bool recursive, bool mediaOnly);
    /// The nearest folder that takes new media, beginning with `folder` and going up; null when
    /// there is none.
    [[nodiscard]] static INxFolderMedia *findCanAddMediaFolder(INxFolderMedia *folder);
    /// The name of the folder that holds the media; "Search", in every language, for a search
    /// folder. Empty for null and for what stands in no folder.
    [[nodiscard]] static QString getParentFolderName(const INxAbstractMedia *media);
    /// True when the folder holds resources of an older format.
    [[nodiscard]] static bool needConvertOldResource(const INxFolderMedia *folder);
    /// True for a folder that the user may not rename, move or remove: the hidden root, the
    /// sections and search folders.
    [[nodiscard]] static bool isSpecialFolder(const INxFolderMedia *folder);
    /// No folder is restricted to non-commercial use: always false.
    [[nodiscard]] static bool isNonCommercial(const INxFolderMedia *folder);
};
