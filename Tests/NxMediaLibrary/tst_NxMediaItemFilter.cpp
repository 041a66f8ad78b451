// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilter.h>

#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>

#include <memory>
#include <vector>

using namespace NXVBLMODEL;
using NXMEDIALIBRARY::NxMediaItemViewFilter;
using Medias = QList<INxAbstractMedia *>;

namespace {

Medias filtered(const NxMediaItemViewFilter &settings, const Medias &items)
{
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(items, out);
    return out;
}

bool passes(const NxMediaItemViewFilter &settings, INxAbstractMedia *media)
{
    return filtered(settings, {media}) == Medias{media};
}

NxMediaItemViewFilter byType(int type)
{
    NxMediaItemViewFilter settings;
    settings.type = type;
    return settings;
}

NxMediaItemViewFilter byKeyword(const QString &keyword)
{
    NxMediaItemViewFilter settings;
    settings.keyword = keyword;
    return settings;
}

/// What kinds of media lists hold, each with the type filters that show it.
struct Kind
{
    const char *name;
    int type;
    int sub;
    int streams;
    bool resource;
    QList<int> shownBy; ///< Of the filters 1 to 4.
};

const QList<Kind> &kinds()
{
    static const QList<Kind> all = {
        {"silent video", mtVideo, 0, sfVideo, false, {1}},
        {"video with sound", mtVideoAudio, 0, sfVideo | sfAudio, false, {1}},
        {"sound", mtAudio, 0, sfAudio, false, {3}},
        {"picture", mtImage, 0, sfImage, false, {2}},
        {"GIF", mtElement, mskGif, sfVideo, false, {1}},
        {"video and still", mtVideo, 0, sfVideo | sfImage, false, {2}},
        {"unread video", mtVideo, 0, sfNone, false, {}},
        {"subtitle", mtSubtitle, 0, sfNone, false, {4}},
        {"title", mtTitle, 0, sfNone, true, {}},
        {"transition", mtTransition, 0, sfNone, true, {}},
        {"effect", mtEffect, 0, sfNone, true, {}},
        {"split screen", mtSplitScreen, 0, sfNone, true, {}},
        {"element", mtElement, 0, sfNone, true, {}},
        {"picture element", mtElement, mskPictureElement, sfNone, true, {2}},
        {"stock video", mtVideoAudio, mskStockMedia, sfNone, true, {1}},
        {"stock picture", mtImage, mskStockMedia, sfNone, true, {2}},
        {"library sound", mtAudio, 0, sfNone, true, {3}},
        {"project template", mtProjectTemplate, 0, sfNone, true, {1, 2, 3, 4}},
    };
    return all;
}

/// The rules once more, one after the other, with Qt's own search.
bool reference(const UtilsItem *item, const NxMediaItemViewFilter &settings)
{
    const int type = item ? int(item->type) : 0;
    if (!item || type == 17 || type == 18 || type == 19)
        return false;
    if (!item->shownName.contains(settings.keyword, Qt::CaseInsensitive))
        return false;
    if (type == 16)
        return true;
    const bool still = !item->resource ? item->info && (item->info->streamFlags() & 4)
                                       : type == 5 || (type == 12 && item->sub == 1000);
    const bool gif = type == 12 && (item->sub == 1006 || item->sub == 1004);
    const bool moving = !item->resource ? gif || (item->info && (item->info->streamFlags() & 1))
                                        : type == 2 || type == 4;
    switch (settings.type) {
    case 1:
        return moving && !still;
    case 2:
        return still;
    case 3:
        return type == 3;
    case 4:
        return type == 14;
    case 5:
        return item->licence == 2;
    case 6:
        return item->licence == 1;
    case 7:
        return item->licence == -1 || item->licence == 0;
    case 8:
        return item->licence != 0;
    default:
        return true;
    }
}

/// Names over few letters, so that keywords are found: with letters whose case is odd, and some
/// outside the basic plane.
QString randomText(QRandomGenerator &random, int longest)
{
    static const QStringList letters = {
        QStringLiteral("a"),
        QStringLiteral("A"),
        QStringLiteral("b"),
        QStringLiteral("B"),
        QStringLiteral("k"),
        QStringLiteral("s"),
        QString(QChar(0x212A)),
        QString(QChar(0x17F)),
        QString(QChar(0xFC)),
        QString(QChar(0xDC)),
        QString(QChar(0x3A3)),
        QString(QChar(0x3C2)),
        QString(QChar(0xDF)),
        QString(QChar(0x130)),
        QString(QChar(0x131)),
        QStringLiteral(" "),
        QString::fromUcs4(U"\U00010400", 1),
        QString::fromUcs4(U"\U00010428", 1),
        QString(QChar(0xD801)),
        QString(QChar(0xDC28)),
    };
    QString text;
    for (int left = random.bounded(longest + 1); left > 0; --left)
        text += letters.at(random.bounded(letters.size()));
    return text;
}

} // namespace

class tst_NxMediaItemFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsKindsByTypeFilter_data();
    void showsKindsByTypeFilter();
    void showsLicencesByTypeFilter_data();
    void showsLicencesByTypeFilter();
    void neverShowsTheModelsOwnRows_data();
    void neverShowsTheModelsOwnRows();
    void skipsNulls();
    void findsAKeywordInTheName_data();
    void findsAKeywordInTheName();
    void findsOneLetterAsTextsDo();
    void aTemplateIsSubjectToTheKeyword();
    void typeAndKeywordBothDecide();
    void readsTheSettingsAnewEachTime();
    void showsEverythingWithoutSettings();
    void keepsTheOrderAndWhatWasThere();
    void theOutputMayBeTheInput();
    void listsAFolderWithThoseBelow();
    void listsTheMembersOfAGroup();
    void noFolderAndNoGroupHoldNothing();
    void copiesReadTheSameSettings();
    void doesWhatThePlainRulesSay_data();
    void doesWhatThePlainRulesSay();
};

void tst_NxMediaItemFilter::showsKindsByTypeFilter_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("filter");
    QTest::addColumn<bool>("shown");
    for (int kind = 0; kind < kinds().size(); ++kind) {
        for (const int filter : {-1, 0, 1, 2, 3, 4, 9, 10, 11, 1000}) {
            const bool decides = filter >= 1 && filter <= 4;
            QTest::addRow("%s by %d", kinds().at(kind).name, filter)
                << kind << filter << (!decides || kinds().at(kind).shownBy.contains(filter));
        }
    }
}

void tst_NxMediaItemFilter::showsKindsByTypeFilter()
{
    QFETCH(int, kind);
    QFETCH(int, filter);
    const Kind &described = kinds().at(kind);
    const UtilsInfo info(mikUnknown, described.streams);
    UtilsItem item(described.type);
    item.sub = described.sub;
    item.resource = described.resource;
    item.info = &info;
    QTEST(passes(byType(filter), &item), "shown");
}

void tst_NxMediaItemFilter::showsLicencesByTypeFilter_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<QList<int>>("shown");
    QTest::newRow("premium") << 5 << QList<int>{2};
    QTest::newRow("standard") << 6 << QList<int>{1};
    QTest::newRow("free") << 7 << QList<int>{-1, 0};
    QTest::newRow("paid") << 8 << QList<int>{-2, -1, 1, 2, 3};
}

void tst_NxMediaItemFilter::showsLicencesByTypeFilter()
{
    QFETCH(int, filter);
    QFETCH(QList<int>, shown);
    for (const int state : {-2, -1, 0, 1, 2, 3}) {
        UtilsItem item(mtTitle);
        item.licence = state;
        QVERIFY2(passes(byType(filter), &item) == shown.contains(state),
                 qPrintable(QString::number(state)));
        item.type = mtProjectTemplate;
        QVERIFY(passes(byType(filter), &item));
    }
    // A folder is free.
    UtilsFolder folder(QStringLiteral("Clips"));
    QCOMPARE(passes(byType(filter), &folder), filter == 7);
}

void tst_NxMediaItemFilter::neverShowsTheModelsOwnRows_data()
{
    QTest::addColumn<int>("filter");
    for (int filter = -1; filter <= 11; ++filter)
        QTest::addRow("type filter %d", filter) << filter;
}

void tst_NxMediaItemFilter::neverShowsTheModelsOwnRows()
{
    QFETCH(int, filter);
    const std::unique_ptr<INxGroupMedia, void (*)(INxGroupMedia *)> group(
        INxGroupMedia::createGroup(), &INxGroupMedia::releaseGroup);
    const std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)> tile(
        INxExtraMedia::createExtraMedia(mtImportTile), &INxExtraMedia::releaseExtraMedia);
    const std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)> more(
        INxExtraMedia::createExtraMedia(mtViewMoreTile), &INxExtraMedia::releaseExtraMedia);
    UtilsItem disguised(mtViewMoreTile);
    NxMediaItemViewFilter settings = byType(filter);
    const Medias rows{group.get(), tile.get(), more.get(), &disguised};
    QVERIFY(filtered(settings, rows).isEmpty());
    group->setTitle(QStringLiteral("Video"));
    settings.keyword = QStringLiteral("video");
    QVERIFY(filtered(settings, rows).isEmpty());
}

void tst_NxMediaItemFilter::skipsNulls()
{
    UtilsItem item(mtTitle);
    QCOMPARE(filtered({}, {nullptr, &item, nullptr}), Medias{&item});
}

void tst_NxMediaItemFilter::findsAKeywordInTheName_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");
    const auto row = [](const char *title, const char *keyword, const char *name, bool shown) {
        QTest::newRow(title) << QString::fromUtf8(keyword) << QString::fromUtf8(name) << shown;
    };
    row("empty", "", "anything", true);
    row("empty in empty", "", "", true);
    row("in an empty name", "a", "", false);
    row("capitals in the middle", "ABC", "xxabcyy", true);
    row("small letters in capitals", "abc", "XXABCYY", true);
    row("at the start", "sea", "Sea and sand", true);
    row("at the end", "sand", "Sea and SAND", true);
    row("whole", "sea", "sea", true);
    row("longer than the name", "seas", "sea", false);
    row("not there", "abd", "xxabcyy", false);
    row("a blank counts", " ", "sea", false);
    row("no wildcard", "s*", "sea", false);
    row("umlaut", "MÜLLER", "Herr Müller.mp4", true);
    row("umlaut is no u", "MULLER", "Herr Müller.mp4", false);
    row("final sigma", "ΟΔΟΣ", "οδος", true);
    row("sharp s is not ss", "STRASSE", "Straße", false);
    row("beyond the basic plane", "\U00010400", "x\U00010428", true);
}

void tst_NxMediaItemFilter::findsAKeywordInTheName()
{
    QFETCH(QString, keyword);
    QFETCH(QString, name);
    UtilsItem item(mtTitle);
    item.shownName = name;
    QTEST(passes(byKeyword(keyword), &item), "shown");
}

void tst_NxMediaItemFilter::findsOneLetterAsTextsDo()
{
    UtilsItem item;
    item.type = mtVideo;
    for (const char *keyword : {"m", "K", "s", "i", "I", "1", "\xc4\xb1", "\xc3\x9f", "\xc2\xb5"}) {
        const NxMediaItemViewFilter settings = byKeyword(QString::fromUtf8(keyword));
        for (int unit = 1; unit <= 0xffff; ++unit) {
            item.shownName = QChar(unit);
            if (passes(settings, &item)
                != item.shownName.contains(settings.keyword, Qt::CaseInsensitive))
                QFAIL(qPrintable(
                    QStringLiteral("%1 in U+%2").arg(settings.keyword).arg(unit, 4, 16)));
        }
    }
}

void tst_NxMediaItemFilter::aTemplateIsSubjectToTheKeyword()
{
    UtilsItem item(mtProjectTemplate);
    item.shownName = QStringLiteral("Summer");
    for (int type = 0; type <= 10; ++type) {
        NxMediaItemViewFilter settings = byType(type);
        settings.keyword = QStringLiteral("MER");
        QVERIFY(passes(settings, &item));
        settings.keyword = QStringLiteral("winter");
        QVERIFY(!passes(settings, &item));
    }
}

void tst_NxMediaItemFilter::typeAndKeywordBothDecide()
{
    UtilsItem sound(mtAudio);
    sound.shownName = QStringLiteral("Rain");
    UtilsItem title(mtTitle);
    title.shownName = QStringLiteral("Rain");
    UtilsItem other(mtAudio);
    other.shownName = QStringLiteral("Wind");
    NxMediaItemViewFilter settings = byType(3);
    settings.keyword = QStringLiteral("rain");
    QCOMPARE(filtered(settings, {&title, &other, &sound}), Medias{&sound});
}

void tst_NxMediaItemFilter::readsTheSettingsAnewEachTime()
{
    UtilsItem sound(mtAudio);
    UtilsItem title(mtTitle);
    NxMediaItemViewFilter settings;
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(Medias{&sound, &title}, out);
    QCOMPARE(out, (Medias{&sound, &title}));
    settings.type = NXMEDIALIBRARY::mtfAudio;
    out.clear();
    filter.Filter(Medias{&sound, &title}, out);
    QCOMPARE(out, Medias{&sound});
    settings.keyword = QStringLiteral("x");
    out.clear();
    filter.Filter(Medias{&sound, &title}, out);
    QVERIFY(out.isEmpty());
}

void tst_NxMediaItemFilter::showsEverythingWithoutSettings()
{
    UtilsItem sound(mtAudio);
    UtilsMedia group(mtGroup);
    Medias out;
    NxMediaItemFilter().Filter(Medias{&group, &sound, nullptr}, out);
    QCOMPARE(out, Medias{&sound});
}

void tst_NxMediaItemFilter::keepsTheOrderAndWhatWasThere()
{
    UtilsItem a(mtTitle);
    UtilsItem b(mtTitle);
    UtilsItem before(mtTitle);
    Medias out{nullptr, &before};
    const NxMediaItemFilter filter;
    filter.Filter(Medias{&b, &a, &b}, out);
    QCOMPARE(out, (Medias{nullptr, &before, &b, &a, &b}));
}

void tst_NxMediaItemFilter::theOutputMayBeTheInput()
{
    // Long enough that the list moves in memory while it grows.
    std::vector<std::unique_ptr<UtilsItem>> items;
    Medias list;
    Medias sounds;
    for (int i = 0; i < 1000; ++i) {
        items.push_back(std::make_unique<UtilsItem>(i % 10 == 0 ? mtTitle : mtAudio));
        list.append(items.back().get());
        if (items.back()->type == mtAudio)
            sounds.append(items.back().get());
    }
    const Medias expected = list + sounds;
    const NxMediaItemViewFilter settings = byType(3);
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    filter.Filter(list, list);
    QCOMPARE(list, expected);
}

void tst_NxMediaItemFilter::listsAFolderWithThoseBelow()
{
    UtilsFolder root(QStringLiteral("Project"));
    UtilsFolder day(QStringLiteral("Day 1"), &root);
    UtilsItem a(mtAudio);
    UtilsItem title(mtTitle);
    UtilsItem deep(mtAudio);
    root.own = {&title, &a};
    day.own = {&deep};
    NxMediaItemViewFilter settings;
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(&root, out);
    QCOMPARE(out, (Medias{&title, &a, &deep}));
    settings.type = NXMEDIALIBRARY::mtfAudio;
    filter.Filter(&root, out);
    QCOMPARE(out, (Medias{&title, &a, &deep, &a, &deep}));
}

void tst_NxMediaItemFilter::listsTheMembersOfAGroup()
{
    const std::unique_ptr<INxGroupMedia, void (*)(INxGroupMedia *)> group(
        INxGroupMedia::createGroup(), &INxGroupMedia::releaseGroup);
    UtilsItem a(mtAudio);
    UtilsItem title(mtTitle);
    UtilsMedia tile(mtImportTile);
    group->setMembers({&tile, &title, &a});
    const NxMediaItemViewFilter settings = byType(3);
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    Medias out;
    filter.Filter(group.get(), out);
    QCOMPARE(out, Medias{&a});
}

void tst_NxMediaItemFilter::noFolderAndNoGroupHoldNothing()
{
    UtilsItem a(mtAudio);
    Medias out{&a};
    const NxMediaItemFilter filter;
    filter.Filter(static_cast<INxFolderMedia *>(nullptr), out);
    filter.Filter(static_cast<INxGroupMedia *>(nullptr), out);
    QCOMPARE(out, Medias{&a});
}

void tst_NxMediaItemFilter::copiesReadTheSameSettings()
{
    UtilsItem sound(mtAudio);
    UtilsItem title(mtTitle);
    NxMediaItemViewFilter settings;
    NxMediaItemFilter filter;
    filter.SetFilterParam(settings);
    const NxMediaItemFilter copy(filter);
    NxMediaItemFilter assigned;
    assigned = filter;
    settings.type = NXMEDIALIBRARY::mtfAudio;
    Medias out;
    copy.Filter(Medias{&title, &sound}, out);
    assigned.Filter(Medias{&title, &sound}, out);
    QCOMPARE(out, (Medias{&sound, &sound}));
}

void tst_NxMediaItemFilter::doesWhatThePlainRulesSay_data()
{
    nxAddSeeds(20);
}

void tst_NxMediaItemFilter::doesWhatThePlainRulesSay()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    std::vector<std::unique_ptr<UtilsInfo>> infos;
    for (int streams = 0; streams < 8; ++streams)
        infos.push_back(std::make_unique<UtilsInfo>(mikUnknown, streams));
    const QList<int> types{0, 1, 2, 3, 4, 5, 8, 12, 12, 14, 16, 17, 18, 19};
    const QList<int> subs{0, 1000, 1001, 1004, 1006};
    std::vector<std::unique_ptr<UtilsItem>> items;
    for (int i = 0; i < 1000; ++i) {
        auto item = std::make_unique<UtilsItem>(types.at(random.bounded(types.size())));
        item->sub = subs.at(random.bounded(subs.size()));
        item->licence = random.bounded(-2, 4);
        item->resource = random.bounded(2) == 0;
        item->info = random.bounded(4) == 0 ? nullptr : infos.at(random.bounded(8u)).get();
        item->shownName = randomText(random, 12);
        items.push_back(random.bounded(50) == 0 ? nullptr : std::move(item));
    }
    Medias input;
    for (const auto &item : items)
        input.append(item.get());
    for (int run = 0; run < 60; ++run) {
        NxMediaItemViewFilter settings = byType(random.bounded(-1, 12));
        settings.keyword = randomText(random, 3);
        Medias expected;
        for (const auto &item : items) {
            if (reference(item.get(), settings))
                expected.append(item.get());
        }
        QVERIFY2(filtered(settings, input) == expected,
                 qPrintable(QStringLiteral("seed %1, run %2, type %3, keyword %4")
                                .arg(seed)
                                .arg(run)
                                .arg(settings.type)
                                .arg(settings.keyword)));
    }
}

NX_TEST_MAIN(tst_NxMediaItemFilter)
#include "tst_NxMediaItemFilter.moc"
