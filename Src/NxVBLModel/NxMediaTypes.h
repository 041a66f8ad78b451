// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaType>

/// @file
/// The vocabulary of the media model: every small integer that a query answers, named once.
///
/// Several queries answer integers that look alike (a media type 3 is sound, a media
/// information's kind 3 is moving pictures, a folder kind 3 is a user section). They are
/// different vocabularies, so each has an enum of its own here. The enums are plain, with an
/// `int` behind them, because the values are stored in projects and travel in messages: never
/// renumber one.

namespace NXVBLMODEL {

/// The panel's categories; 11 keys what belongs to no category.
enum NxMediaCategoryType : int {
    mctMedia = 0, ///< The project's own media.
    mctAudio = 1,
    mctTitle = 2,
    mctTransition = 3,
    mctEffect = 4,
    mctElement = 5,
    mctSplitScreen = 6,
    mctStockMedia = 7, ///< Stock media that came with a subscription.
    mctVCGStock = 8, ///< Clips of the online stock provider.
    mctTemplate = 9, ///< Project templates.
    mctReserved = 10,
    mctNone = 11,
};
/// How many categories have a manager: 0 to 10.
constexpr int MediaCategoryCount = mctNone;

/// What an object is: INxAbstractMedia::mediaType().
enum NxMediaType : int {
    mtNone = 0, ///< Never the type of something listed.
    mtFolder = 1,
    mtVideo = 2, ///< Moving pictures without sound.
    mtAudio = 3,
    mtVideoAudio = 4, ///< Moving pictures with sound.
    mtImage = 5,
    mtTitle = 8,
    mtTransition = 9,
    mtEffect = 10,
    mtSplitScreen = 11,
    mtElement = 12, ///< Composed of parts; an animated GIF is one, too.
    mtSubtitle = 14,
    mtProjectTemplate = 16,
    mtGroup = 17, ///< A group's header row.
    mtImportTile = 18, ///< The "Import Media" tile.
    mtViewMoreTile = 19, ///< The "View More" tile.
};

/// A finer class within a media type: INxAbstractMedia::subKind().
enum NxMediaSubKind : int {
    mskNone = 0,
    mskPictureElement = 1000,
    mskStockMedia = 1001,
    mskStockGif = 1004,
    mskGif = 1006,
    mskStockClassification = 1010,
};

/// INxAbstractMedia::kindCode().
enum NxMediaKindCode : int {
    mkcNone = 0,
    mkcAnimatedImage = 1,
    mkcStillImage = 3,
    mkcStockCopy = 8, ///< The file belongs to a stock resource.
};

/// How a resource may be used: INxAbstractMedia::state().
enum NxLicenceState : int {
    lsNone = -1,
    lsFree = 0,
    lsStandard = 1,
    lsPremium = 2,
};

/// What a media information describes: INxMediaInfo::kind().
enum NxMediaInfoKind : int {
    mikUnknown = 0,
    mikVideo = 3,
    mikAudio = 4,
    mikImage = 5,
    mikSubtitle = 16,
};

/// Bits of INxMediaInfo::streamFlags().
enum NxStreamFlag : int {
    sfNone = 0,
    sfVideo = 1 << 0,
    sfAudio = 1 << 1,
    sfImage = 1 << 2,
};

/// Kinds of folders: INxFolderMedia::kind(), isKind() and holdsMediaType().
/// A section's id equals its kind wherever a category has one section of that kind.
enum NxFolderKind : int {
    fkNone = 0, ///< The hidden root, and the user's folders.
    fkProject = 1,
    fkShared = 2,
    fkUserSection = 3,
    fkUserSectionMore = 4,
    fkOnline = 5, ///< Keeps the order in which the service lists things.
    fkRecent = 6,
    fkFavourites = 8,
    fkCustom = 9, ///< The user's own folder inside an online section.
    fkDownloaded = 11,
    fkStockHome = 21,
    fkDownloadRecord = 26,
    fkStockImageChoice = 27,
    fkStockAudioChoice = 28,
    fkStockVideoChoice = 29,
};

/// Folder ids that are the same in every project.
enum NxFolderId : int {
    fidHiddenRoot = 0,
    fidRoot = 1, ///< The section in which a category begins.
    fidDownloaded = 11,
    fidFirstUserFolder = 1001, ///< Folders made by the user count on from here.
};

/// What the stock provider offers.
enum VCGMediaType : int {
    vmtNone = 0,
    vmtImage = 1,
    vmtAudio = 2,
    vmtVideo = 3,
};

/// Where a file to import comes from.
enum NxMediaImportType : int {
    mitFiles = 0,
    mitFolder = 1,
    mitCameraPhone = 2,
    mitAutoBeatSync = 3,
    mitInstantCutter = 4,
    mitCloud = 5,
};

/// Picture proportions of a project template.
enum NxTemplateRatioType : int {
    trtLandscape = 0,
    trtSquare = 1,
    trtPortrait = 2,
};

/// What a template request asks for.
enum NxResourcesType : int {
    rtInitial = 9,
};

/// What is being downloaded: 0 and 1 are light (icon, preview), 2 to 6 content.
enum NxDownloadKind : int {
    dkIcon = 0,
    dkPreview = 1,
    dkFirstContent = 2,
    dkLastContent = 6,
};

/// What INxAbstractMediaItem::requestResource() is asked for.
enum NxResourceRequest : int {
    rrPreview = 256,
};

/// INxVCGMediaItem::stateCode().
enum VCGResourceState : int {
    vrsFailed = -1,
    vrsNotRequested = 0,
    vrsQueued = 1,
    vrsLoading = 2,
    vrsReady = 3, ///< Can be previewed.
};

/// How media that are sent to the timeline are placed.
enum NxTimelineAddMode : int {
    tamAppend = 4,
};

/// What the timeline answers after media were sent to it.
enum NxTimelineAddStatus : int {
    tasAdded = 0,
    tasCancelled = 3, ///< Nothing is to be done about the media.
};

enum NxAudioSyncMode : int {
    asmBySound = 1,
};

/// What the user said about muting the second clip of an audio synchronisation.
enum NxMuteChoice : int {
    mcNotAsked = 0,
    mcMute = 1,
    mcKeepSound = 2,
};

/// How a resource is paid for; 0 is free, all others are paid for in one way or another.
enum NxPaymentType : int {
    ptFree = 0,
    ptFreeWithAccount = 1,
    ptStandard = 2,
    ptPremium = 3,
    ptPack = 4,
    ptPurchase = 5,
    ptSubscription = 6,
    ptTeam = 7,
    ptProDadPaid = 8,
};

/// INxResourceInfo::attribute().
enum NxResourceAttribute : int {
    raNone = 0,
    raCustom = 6, ///< Made by the user.
};

/// INxClip::kind().
enum NxClipKind : int {
    ckUnknown = 0,
    ckVideo = 1, ///< Moving or still pictures.
    ckAudio = 2,
    ckSplitScreen = 3,
    ckComposite = 4, ///< Stands for a timeline.
};

/// Parts of a composed element (media type 12).
enum NxMediaPartKind : int {
    mpkVideo = 1,
    mpkImage = 3,
};

/// INxSecondaryMedia::secondaryKind().
enum NxSecondaryKind : int {
    skNone = 0,
    skPhoto = 1,
};

} // namespace NXVBLMODEL

Q_DECLARE_METATYPE(NXVBLMODEL::NxMediaCategoryType)
Q_DECLARE_METATYPE(NXVBLMODEL::NxMediaType)
