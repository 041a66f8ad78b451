// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSort.h>

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <limits>
#include <memory>
#include <vector>

#include "PlainEngines.h"
#include "ScriptedMedia.h"

using namespace NXMEDIALIBRARY;

namespace {

using Items = QList<INxAbstractMedia *>;

constexpr int FirstKey = sbName;
constexpr int LastKey = sbSale;

NxMediaItemViewSort by(int key, int order = soASC)
{
    return {NxMediaItemViewSortBy(key), NxMediaItemViewSortOrder(order)};
}

Items sorted(const Items &items, const NxMediaItemViewSort &sort)
{
    Items out;
    NxMediaItemSort::Sort(items, sort, out);
    return out;
}

QDateTime day(int number)
{
    return QDateTime(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC).addDays(number);
}

void setLength(ScriptedItem &item, qint64 frames, int framesPerSecond)
{
    item.info.frames = frames;
    item.info.rate = {framesPerSecond, 1};
}

void setPictureSize(ScriptedItem &item, const QSize &size)
{
    item.info.flags = NXVBLMODEL::sfVideo;
    item.info.video.frameSize = size;
}

QString numbered(const QString &text, QRandomGenerator &random)
{
    return random.bounded(4) == 0 ? QString() : text + QString::number(random.bounded(12));
}

QDateTime randomDate(QRandomGenerator &random)
{
    return random.bounded(4) == 0 ? QDateTime() : day(random.bounded(6));
}

using Media = std::vector<std::unique_ptr<INxAbstractMedia>>;

std::unique_ptr<ScriptedItem> randomItem(QRandomGenerator &random)
{
    static const std::array<NXVBLMODEL::NxMediaType, 7> types{
        NXVBLMODEL::mtNone,  NXVBLMODEL::mtVideo,    NXVBLMODEL::mtAudio, NXVBLMODEL::mtVideoAudio,
        NXVBLMODEL::mtImage, NXVBLMODEL::mtSubtitle, NXVBLMODEL::mtTitle};
    auto item = std::make_unique<ScriptedItem>(types[random.bounded(quint32(types.size()))]);
    item->title = numbered(QStringLiteral("clip "), random);
    item->hasInfo = random.bounded(5) != 0;
    item->info.flags = random.bounded(8);
    item->info.frames = random.bounded(-5, 200);
    item->info.rate = {random.bounded(0, 4), random.bounded(0, 3)};
    item->info.video.frameSize = QSize(random.bounded(-1, 4), random.bounded(-1, 4));
    item->info.image.size = QSize(random.bounded(-1, 4), random.bounded(-1, 4));
    item->resource = random.bounded(4) == 0;
    item->unavailable = random.bounded(6) == 0;
    item->lasts = random.bounded(6) != 0;
    item->frames = random.bounded(100);
    item->rate = {25, 1};
    item->created = randomDate(random);
    item->modified = randomDate(random);
    item->favoured = randomDate(random);
    item->downloaded = randomDate(random);
    item->flaggedNew = random.bounded(3) == 0;
    item->favourite = random.bounded(3) == 0;
    item->used = random.bounded(-2, 4);
    item->in = random.bounded(-2, 4);
    item->out = random.bounded(-2, 4);
    item->audio = numbered(QStringLiteral("48000 Hz, "), random);
    item->category = numbered(QStringLiteral("Nature "), random);
    item->place = random.bounded(-2, 4);
    item->sold = random.bounded(-2, 4);
    return item;
}

Media randomMedia(QRandomGenerator &random)
{
    Media media;
    const int count = random.bounded(80);
    for (int i = 0; i < count; ++i) {
        const int kind = random.bounded(10);
        const QString name = numbered(QStringLiteral("Clip "), random);
        if (kind == 0)
            media.push_back(nullptr);
        else if (kind == 1)
            media.push_back(std::make_unique<ScriptedPlain>(NXVBLMODEL::mtFolder, name));
        else if (kind == 2)
            media.push_back(std::make_unique<ScriptedPlain>(NXVBLMODEL::mtGroup, name));
        else
            media.push_back(randomItem(random));
    }
    return media;
}

Items pointers(const Media &media)
{
    Items items;
    for (const std::unique_ptr<INxAbstractMedia> &one : media)
        items.append(one.get());
    return items;
}

} // namespace

class tst_NxMediaItemSort : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void comparesByItsKey_data();
    void comparesByItsKey();
    void keepsTheOrderOfEqualMedia_data();
    void keepsTheOrderOfEqualMedia();
    void takesEveryRateOfZeroForEqual();
    void putsWhatIsNoItemWhereNothingIsKnown_data();
    void putsWhatIsNoItemWhereNothingIsKnown();
    void copiesExactlyWithoutAKey_data();
    void copiesExactlyWithoutAKey();
    void dropsNullAndMediaWithoutAType_data();
    void dropsNullAndMediaWithoutAType();
    void sortsFoldersByNameInFrontOfTheRest();
    void keepsFoldersInFrontInTheirOrder_data();
    void keepsFoldersInFrontInTheirOrder();
    void takesEveryOrderButZeroForDescending();
    void sortsIntoTheListItReads();
    void replacesWhatStoodInTheOutput();
    void countsSoundWithoutALengthAsZero();
    void asksTheItemWhenThereIsNoInformation();
    void agreesWithThePlainestSort_data();
    void agreesWithThePlainestSort();
    void plainestEnginesShareNothingWithTheEngines();
};

using Change = void (*)(ScriptedItem &smaller, ScriptedItem &larger);
Q_DECLARE_METATYPE(Change)

void tst_NxMediaItemSort::comparesByItsKey_data()
{
    using Item = ScriptedItem;
    QTest::addColumn<int>("key");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *title, int key, Change change) {
        QTest::newRow(title) << key << change;
    };
    row("name in natural order", sbName, [](Item &smaller, Item &larger) {
        smaller.title = QStringLiteral("a2");
        larger.title = QStringLiteral("A10");
    });
    row("duration in milliseconds, not frames", sbDuration, [](Item &smaller, Item &larger) {
        setLength(smaller, 100, 50);
        setLength(larger, 75, 25);
    });
    row("negative duration", sbDuration,
        [](Item &smaller, Item &) { setLength(smaller, -100, 25); });
    row("date created", sbDateCreated, [](Item &smaller, Item &larger) {
        smaller.created = day(0);
        larger.created = day(1);
    });
    row("unknown date created", sbDateCreated, [](Item &, Item &larger) {
        larger.created = QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC);
    });
    row("date created of another zone", sbDateCreated, [](Item &smaller, Item &larger) {
        smaller.created = QDateTime(QDate(2024, 1, 1), QTime(13, 0), Qt::OffsetFromUTC, 7200);
        larger.created = day(0);
    });
    row("uses", sbUsed, [](Item &, Item &larger) { larger.used = 1; });
    row("frame rate as a number", sbFrameRate, [](Item &smaller, Item &larger) {
        smaller.info.rate = {24000, 1001};
        larger.info.rate = {24, 1};
    });
    row("unknown frame rate", sbFrameRate, [](Item &, Item &larger) { larger.info.rate = {1, 9}; });
    row("frame rate below zero", sbFrameRate, [](Item &smaller, Item &) {
        smaller.info.rate = {-25, 1};
    });
    row("in point", sbInPoint, [](Item &smaller, Item &larger) {
        smaller.in = -1;
        larger.in = qint64(1) << 40;
    });
    row("out point", sbOutPoint, [](Item &, Item &larger) { larger.out = 1; });
    row("favourites first", sbFavourite, [](Item &smaller, Item &) { smaller.favourite = true; });
    row("favourite time", sbFavouriteTime, [](Item &, Item &larger) { larger.favoured = day(0); });
    row("download time", sbDownloadTime, [](Item &, Item &larger) { larger.downloaded = day(0); });
    row("width", sbResolution, [](Item &smaller, Item &larger) {
        setPictureSize(smaller, QSize(1280, 1440));
        setPictureSize(larger, QSize(1920, 1080));
    });
    row("height at the same width", sbResolution, [](Item &smaller, Item &larger) {
        setPictureSize(smaller, QSize(1920, 800));
        setPictureSize(larger, QSize(1920, 1080));
    });
    row("no picture", sbResolution,
        [](Item &, Item &larger) { setPictureSize(larger, QSize(0, 0)); });
    row("audio text in natural order", sbAudioInfo, [](Item &smaller, Item &larger) {
        smaller.audio = QStringLiteral("8000 Hz");
        larger.audio = QStringLiteral("44100 Hz");
    });
    row("video before photo", sbType, [](Item &smaller, Item &larger) {
        smaller.info.flags = NXVBLMODEL::sfVideo;
        larger.info.flags = NXVBLMODEL::sfImage;
    });
    row("photo before audio", sbType, [](Item &smaller, Item &larger) {
        smaller.info.flags = NXVBLMODEL::sfImage;
        larger.type = NXVBLMODEL::mtAudio;
    });
    row("audio before anything else", sbType,
        [](Item &smaller, Item &) { smaller.type = NXVBLMODEL::mtAudio; });
    row("anything else before subtitle", sbType,
        [](Item &, Item &larger) { larger.type = NXVBLMODEL::mtSubtitle; });
    row("new ones first", sbNew, [](Item &smaller, Item &larger) {
        smaller.flaggedNew = true;
        larger.modified = day(9);
    });
    row("changed last first", sbNew, [](Item &smaller, Item &larger) {
        smaller.modified = day(1);
        larger.modified = day(0);
    });
    row("changed nobody knows when last", sbNew,
        [](Item &smaller, Item &) { smaller.modified = day(-20000); });
    row("category in natural order", sbCategory, [](Item &smaller, Item &larger) {
        smaller.category = QStringLiteral("Pack 9");
        larger.category = QStringLiteral("pack 10");
    });
    row("service's order", sbListorder, [](Item &smaller, Item &larger) {
        smaller.place = -3;
        larger.place = 2;
    });
    row("sale", sbSale, [](Item &smaller, Item &larger) {
        smaller.sold = -3;
        larger.sold = 2;
    });
}

void tst_NxMediaItemSort::comparesByItsKey()
{
    QFETCH(int, key);
    QFETCH(Change, change);
    ScriptedItem smaller(NXVBLMODEL::mtTitle);
    ScriptedItem larger(NXVBLMODEL::mtTitle);
    change(smaller, larger);
    const Items ascending{&smaller, &larger};
    const Items descending{&larger, &smaller};
    QCOMPARE(sorted(descending, by(key)), ascending);
    QCOMPARE(sorted(ascending, by(key)), ascending);
    QCOMPARE(sorted(ascending, by(key, soDESC)), descending);
    QCOMPARE(sorted(descending, by(key, soDESC)), descending);
}

namespace {

void addEveryKey()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("order");
    for (int key = FirstKey; key <= LastKey; ++key) {
        QTest::addRow("key %d ascending", key) << key << int(soASC);
        QTest::addRow("key %d descending", key) << key << int(soDESC);
    }
}

} // namespace

void tst_NxMediaItemSort::keepsTheOrderOfEqualMedia_data()
{
    addEveryKey();
}

void tst_NxMediaItemSort::keepsTheOrderOfEqualMedia()
{
    QFETCH(int, key);
    QFETCH(int, order);
    std::array<ScriptedItem, 40> items;
    Items list;
    for (ScriptedItem &item : items)
        list.prepend(&item);
    QCOMPARE(sorted(list, by(key, order)), list);
}

void tst_NxMediaItemSort::takesEveryRateOfZeroForEqual()
{
    std::array<ScriptedItem, 3> items;
    items[0].info.rate = {0, 1};
    items[1].info.rate = {0, -1}; // Divides to a negative zero.
    items[2].info.rate = {0, 0};
    const Items list{&items[0], &items[1], &items[2]};
    const Items reversed{&items[2], &items[1], &items[0]};
    for (const int order : {int(soASC), int(soDESC)}) {
        QCOMPARE(sorted(list, by(sbFrameRate, order)), list);
        QCOMPARE(sorted(reversed, by(sbFrameRate, order)), reversed);
    }
}

void tst_NxMediaItemSort::putsWhatIsNoItemWhereNothingIsKnown_data()
{
    addEveryKey();
}

void tst_NxMediaItemSort::putsWhatIsNoItemWhereNothingIsKnown()
{
    QFETCH(int, key);
    QFETCH(int, order);
    ScriptedPlain group(NXVBLMODEL::mtGroup);
    ScriptedItem item(NXVBLMODEL::mtTitle);
    item.hasInfo = false;
    QCOMPARE(sorted({&item, &group}, by(key, order)), (Items{&item, &group}));
    QCOMPARE(sorted({&group, &item}, by(key, order)), (Items{&group, &item}));
}

void tst_NxMediaItemSort::copiesExactlyWithoutAKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("no key") << int(sbNone);
    QTest::newRow("one beyond the last key") << LastKey + 1;
    QTest::newRow("far beyond") << std::numeric_limits<int>::max();
    QTest::newRow("negative") << -1;
}

void tst_NxMediaItemSort::copiesExactlyWithoutAKey()
{
    QFETCH(int, key);
    ScriptedItem b(NXVBLMODEL::mtVideo, QStringLiteral("b"));
    ScriptedItem nameless(NXVBLMODEL::mtNone);
    ScriptedPlain folder(NXVBLMODEL::mtFolder, QStringLiteral("a"));
    const Items list{&b, nullptr, &nameless, &folder, &b};
    QCOMPARE(sorted(list, by(key)), list);
    QCOMPARE(sorted(list, by(key, soDESC)), list);
}

void tst_NxMediaItemSort::dropsNullAndMediaWithoutAType_data()
{
    addEveryKey();
}

void tst_NxMediaItemSort::dropsNullAndMediaWithoutAType()
{
    QFETCH(int, key);
    QFETCH(int, order);
    ScriptedItem item;
    ScriptedItem untyped(NXVBLMODEL::mtNone);
    QCOMPARE(sorted({nullptr, &untyped, &item}, by(key, order)), Items{&item});
    QCOMPARE(sorted({nullptr, &untyped}, by(key, order)), Items());
    QCOMPARE(sorted({}, by(key, order)), Items());
}

void tst_NxMediaItemSort::sortsFoldersByNameInFrontOfTheRest()
{
    ScriptedPlain f2(NXVBLMODEL::mtFolder, QStringLiteral("F10"));
    ScriptedPlain f1(NXVBLMODEL::mtFolder, QStringLiteral("f9"));
    ScriptedItem b(NXVBLMODEL::mtVideo, QStringLiteral("B"));
    ScriptedItem a(NXVBLMODEL::mtVideo, QStringLiteral("A"));
    QCOMPARE(sorted({&f2, &f1, &b, &a}, by(sbName)), (Items{&f1, &f2, &a, &b}));
    QCOMPARE(sorted({&a, &f1, &b, &f2}, by(sbName, soDESC)), (Items{&f2, &f1, &b, &a}));
}

void tst_NxMediaItemSort::keepsFoldersInFrontInTheirOrder_data()
{
    addEveryKey();
}

void tst_NxMediaItemSort::keepsFoldersInFrontInTheirOrder()
{
    QFETCH(int, key);
    QFETCH(int, order);
    ScriptedPlain f2(NXVBLMODEL::mtFolder);
    ScriptedPlain f1(NXVBLMODEL::mtFolder);
    ScriptedItem item;
    QCOMPARE(sorted({&item, &f2, &f1}, by(key, order)), (Items{&f2, &f1, &item}));

    if (key == sbName)
        return;
    f2.title = QStringLiteral("2");
    f1.title = QStringLiteral("1");
    QCOMPARE(sorted({&f2, &item, &f1}, by(key, order)), (Items{&f2, &f1, &item}));
    QCOMPARE(sorted({&f1, &item, &f2}, by(key, order)), (Items{&f1, &f2, &item}));
}

void tst_NxMediaItemSort::takesEveryOrderButZeroForDescending()
{
    ScriptedItem a(NXVBLMODEL::mtVideo, QStringLiteral("a"));
    ScriptedItem b(NXVBLMODEL::mtVideo, QStringLiteral("b"));
    b.used = 1;
    for (const int order : {1, 7, -1}) {
        QCOMPARE(sorted({&a, &b}, by(sbName, order)), (Items{&b, &a}));
        QCOMPARE(sorted({&a, &b}, by(sbUsed, order)), (Items{&b, &a}));
    }
}

void tst_NxMediaItemSort::sortsIntoTheListItReads()
{
    ScriptedItem a(NXVBLMODEL::mtVideo, QStringLiteral("a"));
    ScriptedItem b(NXVBLMODEL::mtVideo, QStringLiteral("b"));
    Items list{nullptr, &b, &a};
    NxMediaItemSort::Sort(list, by(sbName), list);
    QCOMPARE(list, (Items{&a, &b}));
    NxMediaItemSort::Sort(list, by(sbNone), list);
    QCOMPARE(list, (Items{&a, &b}));
}

void tst_NxMediaItemSort::replacesWhatStoodInTheOutput()
{
    ScriptedItem a;
    ScriptedItem old;
    Items out{&old};
    NxMediaItemSort::Sort({&a}, by(sbName), out);
    QCOMPARE(out, Items{&a});
}

void tst_NxMediaItemSort::countsSoundWithoutALengthAsZero()
{
    ScriptedItem still;
    setLength(still, 1000, 25);
    still.lasts = false;
    ScriptedItem shortOne;
    setLength(shortOne, 1, 25);
    QCOMPARE(sorted({&shortOne, &still}, by(sbDuration)), (Items{&still, &shortOne}));
}

void tst_NxMediaItemSort::asksTheItemWhenThereIsNoInformation()
{
    ScriptedItem resource;
    resource.hasInfo = false;
    resource.frames = 50;
    resource.rate = {50, 1};
    ScriptedItem file;
    setLength(file, 50, 25);
    file.frames = 1;
    file.rate = {60, 1};
    QCOMPARE(sorted({&file, &resource}, by(sbDuration)), (Items{&resource, &file}));
    QCOMPARE(sorted({&resource, &file}, by(sbFrameRate)), (Items{&file, &resource}));
}

void tst_NxMediaItemSort::agreesWithThePlainestSort_data()
{
    nxAddSeeds(20);
}

void tst_NxMediaItemSort::agreesWithThePlainestSort()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 4; ++round) {
        const Media media = randomMedia(random);
        const Items items = pointers(media);
        for (int key = FirstKey - 1; key <= LastKey + 1; ++key) {
            QCOMPARE(sorted(items, by(key)), PlainEngines::sorted(items, key, false));
            QCOMPARE(sorted(items, by(key, soDESC)), PlainEngines::sorted(items, key, true));
        }
    }
}

void tst_NxMediaItemSort::plainestEnginesShareNothingWithTheEngines()
{
    for (const char *name : {"PlainEngines.h", "PlainEngines.cpp", "PlainNaturalOrder.h",
                             "PlainNaturalOrder.cpp", "ScriptedMedia.h"}) {
        QFile file(QFINDTESTDATA(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), name);
        QVERIFY2(!file.readAll().contains("NxMediaDataModel/"), name);
    }
}

NX_TEST_MAIN(tst_NxMediaItemSort)
#include "tst_NxMediaItemSort.moc"
