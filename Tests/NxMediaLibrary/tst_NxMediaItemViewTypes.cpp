// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <functional>

using namespace NXMEDIALIBRARY;
using ChangeFilter = std::function<void(NxMediaItemViewFilter &)>;
Q_DECLARE_METATYPE(ChangeFilter)

class tst_NxMediaItemViewTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keepsTheNumbersThatFilesHold_data();
    void keepsTheNumbersThatFilesHold();
    void holdsNumbersBeyondTheNamedOnes();
    void aFreshFilterShowsEverything();
    void filtersDifferByEveryField_data();
    void filtersDifferByEveryField();
    void sortsDifferByEveryField();
    void groupsDifferByEveryField();
    void aFreshImportAsksForFilesIntoTheShownFolder();
    void aFreshCustomRequestHasTheCustomKind();
};

void tst_NxMediaItemViewTypes::keepsTheNumbersThatFilesHold_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("number");
    const auto rows = [](const char *family, std::initializer_list<int> values,
                         std::initializer_list<int> numbers) {
        auto number = numbers.begin();
        for (const int value : values) {
            QTest::addRow("%s %d", family, *number) << value << *number;
            ++number;
        }
    };
    rows("mode", {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail}, {0, 1, 2, 3});
    rows("sort",
         {sbNone, sbName, sbDuration, sbDateCreated, sbUsed, sbFrameRate, sbInPoint, sbOutPoint,
          sbFavourite, sbFavouriteTime, sbDownloadTime, sbResolution, sbAudioInfo, sbType, sbNew,
          sbCategory, sbListorder, sbSale},
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17});
    rows("order", {soASC, soDESC}, {0, 1});
    rows("group", {gbNone, gbType, gbDateCreated, gbDuration, gbCameraName, gbCategory},
         {0, 1, 2, 3, 4, 5});
    rows("type",
         {mtfAll, mtfVideo, mtfPhoto, mtfAudio, mtfSubtitle, mtfPremium, mtfStandard, mtfFree,
          mtfPaid, mtfServiceVideo, mtfServicePhoto},
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    rows("search", {esmNone, esmKeyword, esmSimilar, esmStockKeyword, esmStockClassify},
         {0, 4, 5, 21, 22});
    rows("resolution", {nsrAny, nsrFullHd, nsrUltraHd}, {0, 1, 2});
}

void tst_NxMediaItemViewTypes::keepsTheNumbersThatFilesHold()
{
    QFETCH(int, value);
    QTEST(value, "number");
}

void tst_NxMediaItemViewTypes::holdsNumbersBeyondTheNamedOnes()
{
    QCOMPARE(int(NxMediaItemViewSortBy(18)), 18);
    QCOMPARE(int(NxMediaItemViewSortOrder(-7)), -7);
    QCOMPARE(sizeof(NxMediaItemViewSort), 2 * sizeof(qint32));
}

void tst_NxMediaItemViewTypes::aFreshFilterShowsEverything()
{
    const NxMediaItemViewFilter fresh;
    QCOMPARE(fresh.similarResourceId, qint64(0));
    QCOMPARE(fresh.similarCategory, 0);
    QCOMPARE(fresh.type, int(mtfAll));
    QCOMPARE(fresh.mediaType, NXVBLMODEL::vmtNone);
    QCOMPARE(fresh.searchMode, int(esmNone));
    QVERIFY(fresh.keyword.isEmpty());
    QVERIFY(fresh.searchId.isEmpty());
    QVERIFY(!fresh.folderKindFlag && !fresh.reload && !fresh.showBar && !fresh.listView);
    QCOMPARE(fresh.resolution, int(nsrAny));
    QCOMPARE(fresh.orientation + fresh.provider + fresh.formatKind + fresh.payment, 0);
    QCOMPARE(fresh.classifyId, qint64(0));
    QVERIFY(fresh == NxMediaItemViewFilter());
}

void tst_NxMediaItemViewTypes::filtersDifferByEveryField_data()
{
    QTest::addColumn<ChangeFilter>("change");
    const auto row = [](const char *field, const ChangeFilter &change) {
        QTest::newRow(field) << change;
    };
    using Filter = NxMediaItemViewFilter;
    row("similar resource", [](Filter &f) { f.similarResourceId = Q_INT64_C(1) << 40; });
    row("similar category", [](Filter &f) { f.similarCategory = 3; });
    row("keyword", [](Filter &f) { f.keyword = QStringLiteral("sea"); });
    row("type", [](Filter &f) { f.type = mtfPaid; });
    row("media type", [](Filter &f) { f.mediaType = NXVBLMODEL::vmtAudio; });
    row("search mode", [](Filter &f) { f.searchMode = esmSimilar; });
    row("search id", [](Filter &f) { f.searchId = QStringLiteral("7"); });
    row("folder kind", [](Filter &f) { f.folderKindFlag = true; });
    row("reload", [](Filter &f) { f.reload = true; });
    row("bar", [](Filter &f) { f.showBar = true; });
    row("list view", [](Filter &f) { f.listView = true; });
    row("resolution", [](Filter &f) { f.resolution = nsrUltraHd; });
    row("orientation", [](Filter &f) { f.orientation = 1; });
    row("provider", [](Filter &f) { f.provider = 1; });
    row("format", [](Filter &f) { f.formatKind = 1; });
    row("payment", [](Filter &f) { f.payment = 1; });
    row("classification", [](Filter &f) { f.classifyId = Q_INT64_C(1) << 40; });
}

void tst_NxMediaItemViewTypes::filtersDifferByEveryField()
{
    QFETCH(ChangeFilter, change);
    const NxMediaItemViewFilter plain;
    NxMediaItemViewFilter changed;
    change(changed);
    QVERIFY(changed != plain);
    QVERIFY(plain != changed);
    QVERIFY(!(changed == plain));
    const NxMediaItemViewFilter copy = changed;
    QVERIFY(copy == changed);
    QVERIFY(!(copy != changed));
}

void tst_NxMediaItemViewTypes::sortsDifferByEveryField()
{
    const NxMediaItemViewSort plain;
    QCOMPARE(plain.sortBy, sbNone);
    QCOMPARE(plain.order, soASC);
    QVERIFY((plain == NxMediaItemViewSort{sbNone, soASC}));
    QVERIFY((plain != NxMediaItemViewSort{sbName, soASC}));
    QVERIFY((plain != NxMediaItemViewSort{sbNone, soDESC}));
}

void tst_NxMediaItemViewTypes::groupsDifferByEveryField()
{
    // Only the address is compared; nothing stands behind it.
    auto *folder = reinterpret_cast<INxFolderMedia *>(quintptr(0x40));
    const NxMediaItemViewGroup plain;
    QVERIFY((plain == NxMediaItemViewGroup{gbNone, soASC, nullptr}));
    QVERIFY((plain != NxMediaItemViewGroup{gbType, soASC, nullptr}));
    QVERIFY((plain != NxMediaItemViewGroup{gbNone, soDESC, nullptr}));
    QVERIFY((plain != NxMediaItemViewGroup{gbNone, soASC, folder}));
}

void tst_NxMediaItemViewTypes::aFreshImportAsksForFilesIntoTheShownFolder()
{
    const NxMediaImportParam param;
    QCOMPARE(param.kind, 0);
    QVERIFY(param.files.isEmpty());
    QVERIFY(!param.folder);
    QVERIFY(!param.firstFlag && !param.secondFlag);
}

void tst_NxMediaItemViewTypes::aFreshCustomRequestHasTheCustomKind()
{
    const NxMediaAddCustomParam param;
    QCOMPARE(param.kind, 18);
    QVERIFY(!param.value.isValid());
}

NX_TEST_MAIN(tst_NxMediaItemViewTypes)
#include "tst_NxMediaItemViewTypes.moc"
