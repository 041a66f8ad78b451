// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxCloudRequestKeys.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXVBLMODEL;

class tst_NxCloudRequestKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachParameterHasAKeyAndABit_data();
    void eachParameterHasAKeyAndABit();
    void aCodeThatIsNoneHasNeither_data();
    void aCodeThatIsNoneHasNeither();
};

void tst_NxCloudRequestKeys::eachParameterHasAKeyAndABit_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("flag");
    QTest::newRow("crpCategoryType")
        << int(crpCategoryType) << QStringLiteral("request_categoryType") << 1;
    QTest::newRow("crpKeyword") << int(crpKeyword) << QStringLiteral("request_keyword") << 2;
    QTest::newRow("crpPageNumber")
        << int(crpPageNumber) << QStringLiteral("request_pageNumber") << 4;
    QTest::newRow("crpPageSize") << int(crpPageSize) << QStringLiteral("request_pageSize") << 8;
    QTest::newRow("crpSearchType")
        << int(crpSearchType) << QStringLiteral("request_searchType") << 16;
    QTest::newRow("crpMediaType") << int(crpMediaType) << QStringLiteral("request_mediaType") << 32;
    QTest::newRow("crpClassificationId")
        << int(crpClassificationId) << QStringLiteral("request_classificationId") << 64;
    QTest::newRow("crpRatio") << int(crpRatio) << QStringLiteral("request_ratio") << 128;
    QTest::newRow("crpSimilarResourceId")
        << int(crpSimilarResourceId) << QStringLiteral("request_similarResourceId") << 256;
    QTest::newRow("crpFolderId") << int(crpFolderId) << QStringLiteral("request_folderId") << 512;
}

void tst_NxCloudRequestKeys::eachParameterHasAKeyAndABit()
{
    QFETCH(int, code);
    QTEST(toCloudResourceRequestParamaKey(code), "key");
    QTEST(toCloudResourceRequestParamaFlag(code), "flag");
}

void tst_NxCloudRequestKeys::aCodeThatIsNoneHasNeither_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("below the first") << -1;
    QTest::newRow("behind the last") << 10;
    QTest::newRow("far away") << 1000000;
}

void tst_NxCloudRequestKeys::aCodeThatIsNoneHasNeither()
{
    QFETCH(int, code);
    QCOMPARE(toCloudResourceRequestParamaKey(code), QString());
    QCOMPARE(toCloudResourceRequestParamaFlag(code), 0);
}

NX_TEST_MAIN(tst_NxCloudRequestKeys)
#include "tst_NxCloudRequestKeys.moc"
