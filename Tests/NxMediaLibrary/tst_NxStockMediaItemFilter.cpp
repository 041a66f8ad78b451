// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaDataModel/NxStockMediaItemFilter.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXVBLMODEL;
using NXMEDIALIBRARY::NxMediaItemViewFilter;
using Medias = QList<INxAbstractMedia *>;

namespace {

bool passes(const NxMediaItemViewFilter &settings, INxAbstractMedia *media)
{
    NxStockMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(Medias{media}, out);
    return out == Medias{media};
}

struct StockResource final : UtilsStockItem
{
    explicit StockResource(int mediaTypeCode) : UtilsStockItem(mediaTypeCode) { resource = true; }
};

} // namespace

class tst_NxStockMediaItemFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void narrowStockVideoIsDropped_data();
    void narrowStockVideoIsDropped();
    void onlyStockVideoHasToBeWide_data();
    void onlyStockVideoHasToBeWide();
    void looksForTheKeywordInTheTitle_data();
    void looksForTheKeywordInTheTitle();
    void looksForTheKeywordInTheNameOfOtherItems();
    void showsKindsByTypeFilter_data();
    void showsKindsByTypeFilter();
    void showsLicencesByTypeFilter();
    void neverShowsClassificationsHeadersAndTiles();
    void aTemplatePassesEveryTypeFilter();
    void keepsTheOrder();
};

void tst_NxStockMediaItemFilter::narrowStockVideoIsDropped_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("shown");
    const auto row = [](const char *name, int choice, QSize size, bool shown) {
        QTest::newRow(name) << choice << size << shown;
    };
    row("any, small", 0, {320, 240}, true);
    row("any, zero", 0, {0, 0}, true);
    row("full, just below", 1, {1919, 9999}, false);
    row("full", 1, {1920, 10}, true);
    row("full, wider", 1, {4096, 10}, true);
    row("full, zero", 1, {0, 0}, false);
    row("full, unknown", 1, {}, true);
    row("ultra, full", 2, {1920, 1080}, false);
    row("ultra, just below", 2, {3839, 9999}, false);
    row("ultra", 2, {3840, 10}, true);
    row("ultra, zero", 2, {0, 0}, false);
    row("ultra, unknown", 2, {}, true);
    row("no such choice", 3, {10, 10}, true);
    row("negative choice", -1, {10, 10}, true);
}

void tst_NxStockMediaItemFilter::narrowStockVideoIsDropped()
{
    QFETCH(QSize, size);
    NxMediaItemViewFilter settings;
    QFETCH(int, choice);
    settings.resolution = choice;
    for (const int type : {int(mtVideo), int(mtVideoAudio)}) {
        StockResource item(type);
        item.size = size;
        QTEST(passes(settings, &item), "shown");
    }
}

void tst_NxStockMediaItemFilter::onlyStockVideoHasToBeWide_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {1, 3, 5, 8, 12, 14, 16})
        QTest::addRow("type %d", type) << type;
}

void tst_NxStockMediaItemFilter::onlyStockVideoHasToBeWide()
{
    QFETCH(int, type);
    NxMediaItemViewFilter settings;
    settings.resolution = NXMEDIALIBRARY::nsrUltraHd;
    StockResource stock(type);
    stock.size = QSize(10, 10);
    QVERIFY(passes(settings, &stock));
    UtilsItem video(mtVideo);
    QVERIFY(passes(settings, &video));
    UtilsVcgItem clip(mtVideo);
    QVERIFY(passes(settings, &clip));
}

void tst_NxStockMediaItemFilter::looksForTheKeywordInTheTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("tags");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");
    const QString hit = QStringLiteral("Blue SEA");
    const QString miss = QStringLiteral("desert");
    QTest::newRow("title") << hit << miss << miss << true;
    QTest::newRow("tags beside a title") << miss << hit << miss << false;
    QTest::newRow("tags without a title") << QString() << hit << miss << true;
    QTest::newRow("name beside a title") << miss << miss << hit << false;
    QTest::newRow("name without texts") << QString() << QString() << hit << false;
}

void tst_NxStockMediaItemFilter::looksForTheKeywordInTheTitle()
{
    StockResource item(mtVideo);
    QFETCH(QString, title);
    QFETCH(QString, tags);
    QFETCH(QString, name);
    item.itsTitle = title;
    item.itsTags = tags;
    item.shownName = name;
    NxMediaItemViewFilter settings;
    QVERIFY(passes(settings, &item));
    settings.keyword = QStringLiteral("sea");
    QTEST(passes(settings, &item), "shown");
}

void tst_NxStockMediaItemFilter::looksForTheKeywordInTheNameOfOtherItems()
{
    UtilsItem item(mtVideo);
    item.shownName = QStringLiteral("Blue Sea");
    NxMediaItemViewFilter settings;
    settings.keyword = QStringLiteral("SEA");
    QVERIFY(passes(settings, &item));
    settings.keyword = QStringLiteral("sand");
    QVERIFY(!passes(settings, &item));
}

void tst_NxStockMediaItemFilter::showsKindsByTypeFilter_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("filter");
    QTest::addColumn<bool>("shown");
    const QList<QPair<int, int>> shownBy = {
        {mtVideo, 1}, {mtVideoAudio, 1}, {mtImage, 2}, {mtAudio, 3}, {mtSubtitle, 4}};
    for (const auto &kind : shownBy) {
        for (const int filter : {-1, 0, 1, 2, 3, 4, 9, 10, 11}) {
            const bool decides = filter >= 1 && filter <= 4;
            QTest::addRow("type %d by %d", kind.first, filter)
                << kind.first << filter << (!decides || kind.second == filter);
        }
    }
}

void tst_NxStockMediaItemFilter::showsKindsByTypeFilter()
{
    QFETCH(int, type);
    QFETCH(int, filter);
    StockResource item(type);
    NxMediaItemViewFilter settings;
    settings.type = filter;
    QTEST(passes(settings, &item), "shown");
    // What the provider is asked for is no concern of this category.
    settings.mediaType = vmtAudio;
    QTEST(passes(settings, &item), "shown");
}

void tst_NxStockMediaItemFilter::showsLicencesByTypeFilter()
{
    for (int filter = 5; filter <= 8; ++filter) {
        for (int state = -1; state <= 2; ++state) {
            StockResource item(mtVideo);
            item.licence = state;
            NxMediaItemViewFilter settings;
            settings.type = filter;
            const bool shown = filter == 5   ? state == 2
                               : filter == 6 ? state == 1
                               : filter == 7 ? state <= 0
                                             : state != 0;
            QVERIFY2(passes(settings, &item) == shown,
                     qPrintable(QStringLiteral("%1 %2").arg(filter).arg(state)));
        }
    }
}

void tst_NxStockMediaItemFilter::neverShowsClassificationsHeadersAndTiles()
{
    UtilsClassifyItem entry(7);
    NxMediaItemViewFilter settings;
    QVERIFY(!passes(settings, &entry));
    settings.classifyId = 7;
    QVERIFY(!passes(settings, &entry));
    StockResource asStock(mtImage);
    asStock.sub = mskStockClassification;
    QVERIFY(!passes(settings, &asStock));
    for (const int type : {17, 18, 19}) {
        StockResource row(type);
        QVERIFY(!passes(settings, &row));
    }
    QVERIFY(!passes(settings, nullptr));
}

void tst_NxStockMediaItemFilter::aTemplatePassesEveryTypeFilter()
{
    UtilsItem item(mtProjectTemplate);
    item.shownName = QStringLiteral("Summer");
    for (int type = 0; type <= 10; ++type) {
        NxMediaItemViewFilter settings;
        settings.type = type;
        QVERIFY(passes(settings, &item));
        settings.keyword = QStringLiteral("winter");
        QVERIFY(!passes(settings, &item));
    }
}

void tst_NxStockMediaItemFilter::keepsTheOrder()
{
    StockResource b(mtVideo);
    StockResource a(mtVideo);
    UtilsClassifyItem entry(1);
    Medias out;
    NxStockMediaItemFilter().Filter(Medias{&b, &entry, nullptr, &a}, out);
    QCOMPARE(out, (Medias{&b, &a}));
}

NX_TEST_MAIN(tst_NxStockMediaItemFilter)
#include "tst_NxStockMediaItemFilter.moc"
