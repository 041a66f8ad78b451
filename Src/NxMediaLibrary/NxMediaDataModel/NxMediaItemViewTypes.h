// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

class INxFolderMedia;

/// @file
/// How a view shows its media: the records that presenters, models and engines hand each other.
///
/// The enums are plain with a 32-bit integer behind them: settings files hold their values, and a
/// value beyond the named ones may arrive and must be survived. Never renumber one.
namespace NXMEDIALIBRARY {

/// The size in which items are shown.
enum NxMediaItemViewMode : qint32 {
    vmList = 0,
    vmSmallThumbnail = 1,
    vmMiddleThumbnail = 2,
    vmLargeThumbnail = 3, ///< Where a view begins, and what an unknown text in the settings means.
};

/// What items are sorted by.
enum NxMediaItemViewSortBy : qint32 {
    sbNone = 0, ///< Not sorted: the order in which the folder lists its items.
    sbName = 1,
    sbDuration = 2,
    sbDateCreated = 3,
    sbUsed = 4,
    sbFrameRate = 5,
    sbInPoint = 6,
    sbOutPoint = 7,
    sbFavourite = 8,
    sbFavouriteTime = 9,
    sbDownloadTime = 10,
    sbResolution = 11,
    sbAudioInfo = 12,
    sbType = 13,
    sbNew = 14, ///< What is new, then what changed last. "Last modified" in the settings.
    sbCategory = 15,
    sbListorder = 16, ///< The service's own order.
    sbSale = 17,
    sbCount = 18, ///< Known to usage events; nothing is sorted by it.
};

/// Engines take every value but 0 for descending.
enum NxMediaItemViewSortOrder : qint32 {
    soASC = 0,
    soDESC = 1,
};

/// What items are put together by.
enum NxMediaItemViewGroupBy : qint32 {
    gbNone = 0,
    gbType = 1,
    gbDateCreated = 2, ///< By local day.
    gbDuration = 3,
    gbCameraName = 4,
    gbCategory = 5,
};

/// Which items are shown at all.
enum NxMediaTypeFilter : qint32 {
    mtfAll = 0,
    mtfVideo = 1,
    mtfPhoto = 2,
    mtfAudio = 3,
    mtfSubtitle = 4,
    mtfPremium = 5,
    mtfStandard = 6,
    mtfFree = 7,
    mtfPaid = 8, ///< Whatever is not free, what has no licence included.
    mtfServiceVideo = 9, ///< Video, chosen by the service: every item it delivers is shown.
    mtfServicePhoto = 10, ///< Photos, chosen by the service.
};

/// What a view searches for.
enum ESearchMode_e : qint32 {
    esmNone = 0,
    esmKeyword = 4,
    esmSimilar = 5, ///< Items like a given one.
    esmStockKeyword = 21, ///< A keyword at the stock provider.
    esmStockClassify = 22, ///< A keyword within one of the stock provider's classifications.
};

/// The least width of stock video.
enum NxStockResolution : qint32 {
    nsrAny = 0,
    nsrFullHd = 1, ///< At least 1920 px.
    nsrUltraHd = 2, ///< At least 3840 px.
};

struct NxMediaItemViewSort
{
    NxMediaItemViewSortBy sortBy = sbNone;
    NxMediaItemViewSortOrder order = soASC;

    friend bool operator==(const NxMediaItemViewSort &a, const NxMediaItemViewSort &b)
    {
        return a.sortBy == b.sortBy && a.order == b.order;
    }
    friend bool operator!=(const NxMediaItemViewSort &a, const NxMediaItemViewSort &b)
    {
        return !(a == b);
    }
};

struct NxMediaItemViewGroup
{
    NxMediaItemViewGroupBy groupBy = gbNone;
    NxMediaItemViewSortOrder order = soASC;
    INxFolderMedia *folder = nullptr; ///< The shown folder while items are grouped. Not owned.

    friend bool operator==(const NxMediaItemViewGroup &a, const NxMediaItemViewGroup &b)
    {
        return a.groupBy == b.groupBy && a.order == b.order && a.folder == b.folder;
    }
    friend bool operator!=(const NxMediaItemViewGroup &a, const NxMediaItemViewGroup &b)
    {
        return !(a == b);
    }
};

/// What a view shows of its folder.
struct NxMediaItemViewFilter
{
    /// The resource whose likes are searched. It alone tells one similar search from another.
    qint64 similarResourceId = 0;
    int similarCategory = 0; ///< NXVBLMODEL::NxMediaCategoryType of that resource.
    QString keyword; ///< Empty: every name.
    int type = mtfAll; ///< NxMediaTypeFilter.
    NXVBLMODEL::VCGMediaType mediaType = NXVBLMODEL::vmtNone; ///< At the stock provider.
    int searchMode = esmNone; ///< ESearchMode_e.
    QString searchId; ///< Tells the runs of a search apart in usage events.
    bool folderKindFlag = false; ///< The search began in a search folder.
    bool reload = false; ///< The type filter is the service's: the folder is asked for anew.
    bool showBar = false; ///< The bar of a similar search is shown.
    bool listView = false; ///< Shown as a list: "View More" reveals six lines at once, not two.
    int resolution = nsrAny; ///< NxStockResolution; for stock video alone.
    int orientation = 0; ///< What the service is asked for; 0 is any, here and below.
    int provider = 0;
    int formatKind = 0;
    int payment = 0;
    qint64 classifyId = 0; ///< The stock provider's classification; 0 is none.
};

/// Two filters are equal when every field is.
[[nodiscard]] inline bool operator==(const NxMediaItemViewFilter &a, const NxMediaItemViewFilter &b)
{
    return a.similarResourceId == b.similarResourceId && a.similarCategory == b.similarCategory
           && a.keyword == b.keyword && a.type == b.type && a.mediaType == b.mediaType
           && a.searchMode == b.searchMode && a.searchId == b.searchId
           && a.folderKindFlag == b.folderKindFlag && a.reload == b.reload && a.showBar == b.showBar
           && a.listView == b.listView && a.resolution == b.resolution
           && a.orientation == b.orientation && a.provider == b.provider
           && a.formatKind == b.formatKind && a.payment == b.payment
           && a.classifyId == b.classifyId;
}

[[nodiscard]] inline bool operator!=(const NxMediaItemViewFilter &a, const NxMediaItemViewFilter &b)
{
    return !(a == b);
}

/// Asks the view side to import files, and to answer the items made.
struct NxMediaImportParam
{
    int kind = NXVBLMODEL::mitFiles; ///< NXVBLMODEL::NxMediaImportType.
    QStringList files; ///< Files and folders, absolute paths.
    INxFolderMedia *folder = nullptr; ///< Takes the items; null: the view's own. Not owned.
    bool firstFlag = false; ///< The requester's options, handed on unread.
    bool secondFlag = false;
};

/// The kind of the custom item that a message offers.
constexpr int CustomMediaKind = 18;

/// Asks the view side to make one custom item.
struct NxMediaAddCustomParam
{
    int kind = CustomMediaKind;
    QVariant value;
};

} // namespace NXMEDIALIBRARY

Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewMode)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewSortBy)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewSortOrder)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewGroupBy)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaTypeFilter)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewSort)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewGroup)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaItemViewFilter)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaImportParam)
Q_DECLARE_METATYPE(NXMEDIALIBRARY::NxMediaAddCustomParam)
