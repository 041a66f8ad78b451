// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QString>
#include <QStringList>

class INxAbstractMediaItem;

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
};
