// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxInteractionTypes.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXVBLMODEL;

/// Projects hold these numbers, and other parts of the editor send them.
class tst_NxMediaTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyNumberStaysWhatProjectsHold_data();
    void everyNumberStaysWhatProjectsHold();
};

void tst_NxMediaTypes::everyNumberStaysWhatProjectsHold_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("stored");

    QTest::newRow("mctMedia") << int(mctMedia) << 0;
    QTest::newRow("mctAudio") << int(mctAudio) << 1;
    QTest::newRow("mctTitle") << int(mctTitle) << 2;
    QTest::newRow("mctTransition") << int(mctTransition) << 3;
    QTest::newRow("mctEffect") << int(mctEffect) << 4;
    QTest::newRow("mctElement") << int(mctElement) << 5;
    QTest::newRow("mctSplitScreen") << int(mctSplitScreen) << 6;
    QTest::newRow("mctStockMedia") << int(mctStockMedia) << 7;
    QTest::newRow("mctVCGStock") << int(mctVCGStock) << 8;
    QTest::newRow("mctTemplate") << int(mctTemplate) << 9;
    QTest::newRow("mctReserved") << int(mctReserved) << 10;
    QTest::newRow("mctNone") << int(mctNone) << 11;
    QTest::newRow("MediaCategoryCount") << int(MediaCategoryCount) << 11;

    QTest::newRow("mtNone") << int(mtNone) << 0;
    QTest::newRow("mtFolder") << int(mtFolder) << 1;
    QTest::newRow("mtVideo") << int(mtVideo) << 2;
    QTest::newRow("mtAudio") << int(mtAudio) << 3;
    QTest::newRow("mtVideoAudio") << int(mtVideoAudio) << 4;
    QTest::newRow("mtImage") << int(mtImage) << 5;
    QTest::newRow("mtTitle") << int(mtTitle) << 8;
    QTest::newRow("mtTransition") << int(mtTransition) << 9;
    QTest::newRow("mtEffect") << int(mtEffect) << 10;
    QTest::newRow("mtSplitScreen") << int(mtSplitScreen) << 11;
    QTest::newRow("mtElement") << int(mtElement) << 12;
    QTest::newRow("mtSubtitle") << int(mtSubtitle) << 14;
    QTest::newRow("mtProjectTemplate") << int(mtProjectTemplate) << 16;
    QTest::newRow("mtGroup") << int(mtGroup) << 17;
    QTest::newRow("mtImportTile") << int(mtImportTile) << 18;
    QTest::newRow("mtViewMoreTile") << int(mtViewMoreTile) << 19;

    QTest::newRow("mskNone") << int(mskNone) << 0;
    QTest::newRow("mskPictureElement") << int(mskPictureElement) << 1000;
    QTest::newRow("mskStockMedia") << int(mskStockMedia) << 1001;
    QTest::newRow("mskStockGif") << int(mskStockGif) << 1004;
    QTest::newRow("mskGif") << int(mskGif) << 1006;
    QTest::newRow("mskStockClassification") << int(mskStockClassification) << 1010;

    QTest::newRow("mkcNone") << int(mkcNone) << 0;
    QTest::newRow("mkcAnimatedImage") << int(mkcAnimatedImage) << 1;
    QTest::newRow("mkcStillImage") << int(mkcStillImage) << 3;
    QTest::newRow("mkcStockCopy") << int(mkcStockCopy) << 8;

    QTest::newRow("lsNone") << int(lsNone) << -1;
    QTest::newRow("lsFree") << int(lsFree) << 0;
    QTest::newRow("lsStandard") << int(lsStandard) << 1;
    QTest::newRow("lsPremium") << int(lsPremium) << 2;

    QTest::newRow("mikUnknown") << int(mikUnknown) << 0;
    QTest::newRow("mikVideo") << int(mikVideo) << 3;
    QTest::newRow("mikAudio") << int(mikAudio) << 4;
    QTest::newRow("mikImage") << int(mikImage) << 5;
    QTest::newRow("mikSubtitle") << int(mikSubtitle) << 16;

    QTest::newRow("sfNone") << int(sfNone) << 0;
    QTest::newRow("sfVideo") << int(sfVideo) << 1;
    QTest::newRow("sfAudio") << int(sfAudio) << 2;
    QTest::newRow("sfImage") << int(sfImage) << 4;

    QTest::newRow("fkNone") << int(fkNone) << 0;
    QTest::newRow("fkProject") << int(fkProject) << 1;
    QTest::newRow("fkShared") << int(fkShared) << 2;
    QTest::newRow("fkUserSection") << int(fkUserSection) << 3;
    QTest::newRow("fkUserSectionMore") << int(fkUserSectionMore) << 4;
    QTest::newRow("fkOnline") << int(fkOnline) << 5;
    QTest::newRow("fkRecent") << int(fkRecent) << 6;
    QTest::newRow("fkFavourites") << int(fkFavourites) << 8;
    QTest::newRow("fkCustom") << int(fkCustom) << 9;
    QTest::newRow("fkDownloaded") << int(fkDownloaded) << 11;
    QTest::newRow("fkStockHome") << int(fkStockHome) << 21;
    QTest::newRow("fkDownloadRecord") << int(fkDownloadRecord) << 26;
    QTest::newRow("fkStockImageChoice") << int(fkStockImageChoice) << 27;
    QTest::newRow("fkStockAudioChoice") << int(fkStockAudioChoice) << 28;
    QTest::newRow("fkStockVideoChoice") << int(fkStockVideoChoice) << 29;

    QTest::newRow("fidHiddenRoot") << int(fidHiddenRoot) << 0;
    QTest::newRow("fidRoot") << int(fidRoot) << 1;
    QTest::newRow("fidDownloaded") << int(fidDownloaded) << 11;
    QTest::newRow("fidFirstUserFolder") << int(fidFirstUserFolder) << 1001;

    QTest::newRow("vmtNone") << int(vmtNone) << 0;
    QTest::newRow("vmtImage") << int(vmtImage) << 1;
    QTest::newRow("vmtAudio") << int(vmtAudio) << 2;
    QTest::newRow("vmtVideo") << int(vmtVideo) << 3;

    QTest::newRow("mitFiles") << int(mitFiles) << 0;
    QTest::newRow("mitFolder") << int(mitFolder) << 1;
    QTest::newRow("mitCameraPhone") << int(mitCameraPhone) << 2;
    QTest::newRow("mitAutoBeatSync") << int(mitAutoBeatSync) << 3;
    QTest::newRow("mitInstantCutter") << int(mitInstantCutter) << 4;
    QTest::newRow("mitCloud") << int(mitCloud) << 5;

    QTest::newRow("trtLandscape") << int(trtLandscape) << 0;
    QTest::newRow("trtSquare") << int(trtSquare) << 1;
    QTest::newRow("trtPortrait") << int(trtPortrait) << 2;

    QTest::newRow("rtInitial") << int(rtInitial) << 9;

    QTest::newRow("dkIcon") << int(dkIcon) << 0;
    QTest::newRow("dkPreview") << int(dkPreview) << 1;
    QTest::newRow("dkFirstContent") << int(dkFirstContent) << 2;
    QTest::newRow("dkLastContent") << int(dkLastContent) << 6;

    QTest::newRow("rrPreview") << int(rrPreview) << 256;

    QTest::newRow("vrsFailed") << int(vrsFailed) << -1;
    QTest::newRow("vrsNotRequested") << int(vrsNotRequested) << 0;
    QTest::newRow("vrsQueued") << int(vrsQueued) << 1;
    QTest::newRow("vrsLoading") << int(vrsLoading) << 2;
    QTest::newRow("vrsReady") << int(vrsReady) << 3;

    QTest::newRow("tamAppend") << int(tamAppend) << 4;

    QTest::newRow("tasAdded") << int(tasAdded) << 0;
    QTest::newRow("tasCancelled") << int(tasCancelled) << 3;

    QTest::newRow("asmBySound") << int(asmBySound) << 1;

    QTest::newRow("mcNotAsked") << int(mcNotAsked) << 0;
    QTest::newRow("mcMute") << int(mcMute) << 1;
    QTest::newRow("mcKeepSound") << int(mcKeepSound) << 2;

    QTest::newRow("ptFree") << int(ptFree) << 0;
    QTest::newRow("ptFreeWithAccount") << int(ptFreeWithAccount) << 1;
    QTest::newRow("ptStandard") << int(ptStandard) << 2;
    QTest::newRow("ptPremium") << int(ptPremium) << 3;
    QTest::newRow("ptPack") << int(ptPack) << 4;
    QTest::newRow("ptPurchase") << int(ptPurchase) << 5;
    QTest::newRow("ptSubscription") << int(ptSubscription) << 6;
    QTest::newRow("ptTeam") << int(ptTeam) << 7;
    QTest::newRow("ptProDadPaid") << int(ptProDadPaid) << 8;

    QTest::newRow("raNone") << int(raNone) << 0;
    QTest::newRow("raCustom") << int(raCustom) << 6;

    QTest::newRow("ckUnknown") << int(ckUnknown) << 0;
    QTest::newRow("ckVideo") << int(ckVideo) << 1;
    QTest::newRow("ckAudio") << int(ckAudio) << 2;
    QTest::newRow("ckSplitScreen") << int(ckSplitScreen) << 3;

    QTest::newRow("mpkVideo") << int(mpkVideo) << 1;
    QTest::newRow("mpkImage") << int(mpkImage) << 3;

    QTest::newRow("skNone") << int(skNone) << 0;
    QTest::newRow("skPhoto") << int(skPhoto) << 1;

    QTest::newRow("FetchMoreNone") << int(INxFolderMedia::FetchMoreNone) << 0;
    QTest::newRow("FetchMoreLoading") << int(INxFolderMedia::FetchMoreLoading) << 1;
    QTest::newRow("FetchMoreAvailable") << int(INxFolderMedia::FetchMoreAvailable) << 2;
    QTest::newRow("FetchMoreFinished") << int(INxFolderMedia::FetchMoreFinished) << 3;
    QTest::newRow("FetchMoreFailed") << int(INxFolderMedia::FetchMoreFailed) << 4;

    QTest::newRow("eptNone") << int(eptNone) << 0;
    QTest::newRow("eptShown") << int(eptShown) << 1;
    QTest::newRow("eptPreviewed") << int(eptPreviewed) << 2;
    QTest::newRow("eptUsed") << int(eptUsed) << 3;

    QTest::newRow("eitNone") << int(eitNone) << 0;
    QTest::newRow("eitPreview") << int(eitPreview) << 1;
    QTest::newRow("eitDownload") << int(eitDownload) << 2;
    QTest::newRow("eitAdd") << int(eitAdd) << 3;
}

void tst_NxMediaTypes::everyNumberStaysWhatProjectsHold()
{
    QFETCH(int, value);
    QTEST(value, "stored");
}

NX_TEST_MAIN(tst_NxMediaTypes)
#include "tst_NxMediaTypes.moc"
