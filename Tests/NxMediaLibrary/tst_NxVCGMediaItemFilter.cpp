// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaDataModel/NxVCGMediaItemFilter.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXVBLMODEL;
using NXMEDIALIBRARY::NxMediaItemViewFilter;
using Medias = QList<INxAbstractMedia *>;

namespace {

bool passes(const NxMediaItemViewFilter &settings, INxAbstractMedia *media)
{
    NxVCGMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(Medias{media}, out);
    return out == Medias{media};
}

} // namespace

class tst_NxVCGMediaItemFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsWhatTheProviderIsAskedFor_data();
    void showsWhatTheProviderIsAskedFor();
    void paysNoHeedToTheTypeFilter_data();
    void paysNoHeedToTheTypeFilter();
    void findsAKeywordInTheName();
    void aClassificationPassesByItsId_data();
    void aClassificationPassesByItsId();
    void aClipPassesWhateverTheClassification();
    void paysNoHeedToTheResolution();
    void aTemplatePassesEveryMediaType();
    void neverShowsHeadersAndTiles();
    void keepsTheOrder();
};

void tst_NxVCGMediaItemFilter::showsWhatTheProviderIsAskedFor_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("asked");
    QTest::addColumn<bool>("shown");
    const QList<QPair<int, int>> kinds = {
        {mtImage, 1}, {mtAudio, 2}, {mtVideo, 3}, {mtVideoAudio, 3}, {mtTitle, -1}};
    for (const auto &kind : kinds) {
        for (const int asked : {0, 1, 2, 3, 4}) {
            const bool decides = asked >= 1 && asked <= 3;
            QTest::addRow("type %d for %d", kind.first, asked)
                << kind.first << asked << (!decides || kind.second == asked);
        }
    }
}

void tst_NxVCGMediaItemFilter::showsWhatTheProviderIsAskedFor()
{
    QFETCH(int, type);
    QFETCH(int, asked);
    UtilsVcgItem clip(type);
    clip.resource = true;
    NxMediaItemViewFilter settings;
    settings.mediaType = VCGMediaType(asked);
    QTEST(passes(settings, &clip), "shown");
}

void tst_NxVCGMediaItemFilter::paysNoHeedToTheTypeFilter_data()
{
    QTest::addColumn<int>("filter");
    for (int filter = -1; filter <= 11; ++filter)
        QTest::addRow("type filter %d", filter) << filter;
}

void tst_NxVCGMediaItemFilter::paysNoHeedToTheTypeFilter()
{
    QFETCH(int, filter);
    UtilsVcgItem clip(mtVideo);
    clip.resource = true;
    clip.licence = lsStandard;
    NxMediaItemViewFilter settings;
    settings.type = filter;
    QVERIFY(passes(settings, &clip));
    settings.mediaType = vmtVideo;
    QVERIFY(passes(settings, &clip));
    settings.mediaType = vmtImage;
    QVERIFY(!passes(settings, &clip));
}

void tst_NxVCGMediaItemFilter::findsAKeywordInTheName()
{
    UtilsVcgItem clip(mtVideo);
    clip.shownName = QStringLiteral("Blue sea");
    NxMediaItemViewFilter settings;
    settings.keyword = QStringLiteral("SEA");
    QVERIFY(passes(settings, &clip));
    settings.keyword = QStringLiteral("sand");
    QVERIFY(!passes(settings, &clip));
}

void tst_NxVCGMediaItemFilter::aClassificationPassesByItsId_data()
{
    QTest::addColumn<qint64>("id");
    QTest::addColumn<qint64>("chosen");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none chosen") << qint64(7) << qint64(0) << true;
    QTest::newRow("the chosen one") << qint64(7) << qint64(7) << true;
    QTest::newRow("another one") << qint64(7) << qint64(8) << false;
    QTest::newRow("large ids") << (qint64(1) << 40) + 7 << qint64(7) << false;
}

void tst_NxVCGMediaItemFilter::aClassificationPassesByItsId()
{
    QFETCH(qint64, id);
    QFETCH(qint64, chosen);
    UtilsClassifyItem entry(id);
    entry.shownName = QStringLiteral("Nature");
    NxMediaItemViewFilter settings;
    settings.classifyId = chosen;
    QTEST(passes(settings, &entry), "shown");
    settings.mediaType = vmtAudio;
    QTEST(passes(settings, &entry), "shown");
    settings.keyword = QStringLiteral("sea");
    QTEST(passes(settings, &entry), "shown");
}

void tst_NxVCGMediaItemFilter::aClipPassesWhateverTheClassification()
{
    UtilsVcgItem clip(mtVideo);
    NxMediaItemViewFilter settings;
    settings.classifyId = 8;
    QVERIFY(passes(settings, &clip));
}

void tst_NxVCGMediaItemFilter::paysNoHeedToTheResolution()
{
    UtilsStockItem item(mtVideo);
    item.size = QSize(10, 10);
    NxMediaItemViewFilter settings;
    settings.resolution = NXMEDIALIBRARY::nsrUltraHd;
    QVERIFY(passes(settings, &item));
}

void tst_NxVCGMediaItemFilter::aTemplatePassesEveryMediaType()
{
    UtilsItem item(mtProjectTemplate);
    for (const int asked : {0, 1, 2, 3}) {
        NxMediaItemViewFilter settings;
        settings.mediaType = VCGMediaType(asked);
        QVERIFY(passes(settings, &item));
    }
}

void tst_NxVCGMediaItemFilter::neverShowsHeadersAndTiles()
{
    const NxMediaItemViewFilter settings;
    for (const int type : {17, 18, 19}) {
        UtilsVcgItem row(type);
        QVERIFY(!passes(settings, &row));
        UtilsClassifyItem entry(7);
        entry.type = NxMediaType(type);
        QVERIFY(!passes(settings, &entry));
    }
    QVERIFY(!passes(settings, nullptr));
}

void tst_NxVCGMediaItemFilter::keepsTheOrder()
{
    UtilsVcgItem b(mtVideo);
    UtilsVcgItem a(mtVideo);
    UtilsClassifyItem entry(1);
    Medias out;
    NxVCGMediaItemFilter().Filter(Medias{&b, &entry, nullptr, &a}, out);
    QCOMPARE(out, (Medias{&b, &entry, &a}));
}

NX_TEST_MAIN(tst_NxVCGMediaItemFilter)
#include "tst_NxVCGMediaItemFilter.moc"
