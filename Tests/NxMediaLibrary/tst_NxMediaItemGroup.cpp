// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemGroup.h>

#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaRef.h>
#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <vector>

#include "PlainEngines.h"
#include "ScriptedMedia.h"

using namespace NXMEDIALIBRARY;

namespace {

using Items = QList<INxAbstractMedia *>;

INxGroupMedia *groupAt(const Items &groups, int place)
{
    return dynamic_cast<INxGroupMedia *>(groups.value(place));
}

// The groups of one run, released in the end.
class Groups
{
public:
    Groups() = default;
    ~Groups() { release(); }
    Q_DISABLE_COPY_MOVE(Groups)

    void make(const Items &items, int key, int order = soASC)
    {
        release();
        NxMediaItemGroup::Group(items, by(key, order), list);
    }
    void merge(const Items &items, int key, int order = soASC)
    {
        Items added;
        NxMediaItemGroup::Group(items, by(key, order), added);
        NxMediaItemGroup::MergeOrAddGroup(list, added, by(key, order));
    }
    QStringList titles() const
    {
        QStringList texts;
        for (const INxAbstractMedia *group : list)
            texts.append(group->name());
        return texts;
    }
    Items members(const QString &title) const
    {
        const int place = titles().indexOf(title);
        return place < 0 ? Items() : groupAt(list, place)->members();
    }
    static NxMediaItemViewGroup by(int key, int order)
    {
        return {NxMediaItemViewGroupBy(key), NxMediaItemViewSortOrder(order), nullptr};
    }

    Items list;

private:
    void release()
    {
        for (int i = 0; i < list.size(); ++i)
            INxGroupMedia::releaseGroup(groupAt(list, i));
        list.clear();
    }
};

QStringList reversed(QStringList texts)
{
    std::reverse(texts.begin(), texts.end());
    return texts;
}

QStringList typeTitles()
{
    return {QStringLiteral("Video"), QStringLiteral("Photo"), QStringLiteral("Audio"),
            QStringLiteral("Other"), QStringLiteral("Subtitle")};
}

QStringList durationTitles()
{
    return {QStringLiteral("less than 1min"), QStringLiteral("1 ~ 5 min"),
            QStringLiteral("5 ~ 30 min"), QStringLiteral("30 ~ 60 min"),
            QStringLiteral("more than 60min")};
}

QDateTime local(int year, int month, int dayOfMonth, int hour, int minute = 0)
{
    return QDateTime(QDate(year, month, dayOfMonth), QTime(hour, minute)).toUTC();
}

// Another zone for as long as it lives.
class Zone
{
public:
    explicit Zone(const QByteArray &name) : m_before(qgetenv("TZ")) { set(name); }
    ~Zone() { set(m_before); }
    Q_DISABLE_COPY_MOVE(Zone)

private:
    static void set(const QByteArray &name)
    {
        qputenv("TZ", name);
        tzset();
    }
    QByteArray m_before;
};

class Shouting final : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "NxMediaItemGroup") == 0 ? QString::fromUtf8(text).toUpper()
                                                         : QString();
    }
    bool isEmpty() const override { return false; }
};

void compareWithPlainest(const Items &items, int key)
{
    for (const bool descending : {false, true}) {
        Groups groups;
        groups.make(items, key, descending ? soDESC : soASC);
        const QVector<PlainEngines::Group> plain = PlainEngines::grouped(items, key, descending);
        QCOMPARE(groups.list.size(), plain.size());
        for (int i = 0; i < plain.size(); ++i) {
            QCOMPARE(groupAt(groups.list, i)->name(), plain.at(i).title);
            QCOMPARE(groupAt(groups.list, i)->members(), plain.at(i).members);
        }
    }
}

} // namespace

class tst_NxMediaItemGroup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesNoGroupsWithoutAKey_data();
    void makesNoGroupsWithoutAKey();
    void replacesWhatStoodInTheOutput();
    void groupsIntoTheListItReads();
    void leavesOutNullEntries_data();
    void leavesOutNullEntries();
    void cutsDurationsIntoFive_data();
    void cutsDurationsIntoFive();
    void countsWhatHasNoLengthAsShort();
    void alwaysMakesAllFive_data();
    void alwaysMakesAllFive();
    void tellsTypesApart();
    void keepsTheInputOrderWithinAGroup();
    void makesOneGroupADay();
    void cutsDaysInLocalTime();
    void midnightBeginsItsDay_data();
    void midnightBeginsItsDay();
    void findsDaysAsTheCalendarDoes_data();
    void findsDaysAsTheCalendarDoes();
    void makesOneGroupACamera();
    void makesOneGroupACategory();
    void keepsACameraCalledNoneApart();
    void translatesFixedTitlesAlone();
    void makesTitlesAnewFromKeys();
    void mergesIntoTheGroupOfTheSameKey();
    void putsANewGroupAtItsPlace_data();
    void putsANewGroupAtItsPlace();
    void releasesNewGroupsThatAreNotNeeded();
    void agreesWithThePlainestGroups_data();
    void agreesWithThePlainestGroups();
    void mergingOneByOneGivesTheSameGroups_data();
    void mergingOneByOneGivesTheSameGroups();
};

void tst_NxMediaItemGroup::makesNoGroupsWithoutAKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("no key") << int(gbNone);
    QTest::newRow("one beyond the last") << gbCategory + 1;
    QTest::newRow("negative") << -1;
}

void tst_NxMediaItemGroup::makesNoGroupsWithoutAKey()
{
    QFETCH(int, key);
    ScriptedItem item;
    Items out{&item};
    NxMediaItemGroup::Group({&item}, Groups::by(key, soASC), out);
    QVERIFY(out.isEmpty());
}

void tst_NxMediaItemGroup::replacesWhatStoodInTheOutput()
{
    ScriptedItem item;
    Groups groups;
    groups.list = {&item};
    NxMediaItemGroup::Group({}, Groups::by(gbType, soASC), groups.list);
    QCOMPARE(groups.titles(), typeTitles());
}

void tst_NxMediaItemGroup::groupsIntoTheListItReads()
{
    ScriptedItem item;
    item.camera = QStringLiteral("Canon");
    for (int key = gbType; key <= gbCategory; ++key) {
        Groups groups;
        groups.list = {&item};
        NxMediaItemGroup::Group(groups.list, Groups::by(key, soASC), groups.list);
        int members = 0;
        for (int i = 0; i < groups.list.size(); ++i)
            members += groupAt(groups.list, i)->itemCount();
        QCOMPARE(members, 1);
    }
}

void tst_NxMediaItemGroup::leavesOutNullEntries_data()
{
    QTest::addColumn<int>("key");
    for (int key = gbType; key <= gbCategory; ++key)
        QTest::addRow("key %d", key) << key;
}

void tst_NxMediaItemGroup::leavesOutNullEntries()
{
    QFETCH(int, key);
    Groups groups;
    groups.make({nullptr, nullptr}, key);
    for (int i = 0; i < groups.list.size(); ++i)
        QVERIFY(groupAt(groups.list, i)->members().isEmpty());
    QCOMPARE(groups.list.size(), key == gbType || key == gbDuration ? 5 : 0);
}

void tst_NxMediaItemGroup::cutsDurationsIntoFive_data()
{
    QTest::addColumn<qint64>("msec");
    QTest::addColumn<QString>("title");
    const auto row = [](qint64 msec, int group) {
        QTest::addRow("%lld ms", msec) << msec << durationTitles().at(group);
    };
    row(-5, 0);
    row(0, 0);
    row(59999, 0);
    row(60000, 1);
    row(299999, 1);
    row(300000, 2);
    row(1799999, 2);
    row(1800000, 3);
    row(3599999, 3);
    row(3600000, 4);
}

void tst_NxMediaItemGroup::cutsDurationsIntoFive()
{
    QFETCH(qint64, msec);
    QFETCH(QString, title);
    ScriptedItem item;
    item.info.frames = msec;
    item.info.rate = {1000, 1};
    Groups groups;
    for (const int order : {0, 1, 7}) {
        groups.make({&item}, gbDuration, order);
        QCOMPARE(groups.titles(), order == 0 ? durationTitles() : reversed(durationTitles()));
        QCOMPARE(groups.members(title), Items{&item});
    }
}

void tst_NxMediaItemGroup::countsWhatHasNoLengthAsShort()
{
    ScriptedItem still;
    still.info.frames = 1000000;
    still.info.rate = {1, 1};
    still.lasts = false;
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    Groups groups;
    groups.make({&still, &folder}, gbDuration);
    QCOMPARE(groups.members(durationTitles().first()), (Items{&still, &folder}));
}

void tst_NxMediaItemGroup::alwaysMakesAllFive_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("titles");
    QTest::newRow("type") << int(gbType) << typeTitles();
    QTest::newRow("duration") << int(gbDuration) << durationTitles();
}

void tst_NxMediaItemGroup::alwaysMakesAllFive()
{
    QFETCH(int, key);
    QFETCH(QStringList, titles);
    Groups groups;
    groups.make({}, key, soASC);
    QCOMPARE(groups.titles(), titles);
    groups.make({}, key, soDESC);
    QCOMPARE(groups.titles(), reversed(titles));
    groups.make({}, key, 7);
    QCOMPARE(groups.titles(), reversed(titles));
}

void tst_NxMediaItemGroup::tellsTypesApart()
{
    ScriptedItem video(NXVBLMODEL::mtAudio);
    video.info.flags = NXVBLMODEL::sfVideo | NXVBLMODEL::sfImage;
    ScriptedItem photo(NXVBLMODEL::mtSubtitle);
    photo.info.flags = NXVBLMODEL::sfImage;
    ScriptedItem audio(NXVBLMODEL::mtAudio);
    ScriptedItem subtitle(NXVBLMODEL::mtSubtitle);
    ScriptedItem title(NXVBLMODEL::mtTitle);
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    Groups groups;
    groups.make({&folder, &title, &subtitle, &audio, &photo, &video}, gbType);
    QCOMPARE(groups.members(QStringLiteral("Video")), Items{&video});
    QCOMPARE(groups.members(QStringLiteral("Photo")), Items{&photo});
    QCOMPARE(groups.members(QStringLiteral("Audio")), Items{&audio});
    QCOMPARE(groups.members(QStringLiteral("Subtitle")), Items{&subtitle});
    QCOMPARE(groups.members(QStringLiteral("Other")), (Items{&folder, &title}));
}

void tst_NxMediaItemGroup::keepsTheInputOrderWithinAGroup()
{
    std::array<ScriptedItem, 4> items;
    const Items list{&items[2], &items[0], &items[3], &items[1]};
    for (int key = gbType; key <= gbCategory; ++key) {
        for (const int order : {soASC, soDESC}) {
            Groups groups;
            groups.make(list, key, order);
            Items members;
            for (int i = 0; i < groups.list.size(); ++i)
                members += groupAt(groups.list, i)->members();
            QCOMPARE(members, list);
        }
    }
}

void tst_NxMediaItemGroup::makesOneGroupADay()
{
    ScriptedItem late;
    late.created = local(2024, 10, 3, 23, 59);
    ScriptedItem early;
    early.created = local(2024, 9, 30, 0, 0);
    ScriptedItem lateToo;
    lateToo.created = local(2024, 10, 3, 0, 0);
    ScriptedItem undated;
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    const Items list{&undated, &late, &folder, &early, &lateToo};
    const QString september = QStringLiteral("2024/09/30");
    const QString october = QStringLiteral("2024/10/03");
    const QString none = QStringLiteral("None");
    Groups groups;
    groups.make(list, gbDateCreated);
    QCOMPARE(groups.titles(), (QStringList{september, october, none}));
    QCOMPARE(groups.members(october), (Items{&late, &lateToo}));
    QCOMPARE(groups.members(none), (Items{&undated, &folder}));
    groups.make(list, gbDateCreated, soDESC);
    QCOMPARE(groups.titles(), (QStringList{october, september, none}));
}

void tst_NxMediaItemGroup::cutsDaysInLocalTime()
{
    ScriptedItem item;
    item.created = QDateTime(QDate(2024, 6, 30), QTime(22, 30), Qt::UTC);
    Groups groups;
    {
        const Zone zone("CET-1CEST,M3.5.0,M10.5.0/3");
        groups.make({&item}, gbDateCreated);
        QCOMPARE(groups.titles(), QStringList{QStringLiteral("2024/07/01")});
    }
    const Zone zone("UTC0");
    groups.make({&item}, gbDateCreated);
    QCOMPARE(groups.titles(), QStringList{QStringLiteral("2024/06/30")});
}

void tst_NxMediaItemGroup::midnightBeginsItsDay_data()
{
    QTest::addColumn<QDate>("first");
    QTest::newRow("when the clocks go forward") << QDate(2024, 3, 28);
    QTest::newRow("when the clocks go back") << QDate(2024, 10, 24);
    QTest::newRow("when the clocks stay") << QDate(2024, 6, 27);
}

void tst_NxMediaItemGroup::midnightBeginsItsDay()
{
    QFETCH(QDate, first);
    const Zone zone("Europe/Berlin");
    std::array<ScriptedItem, 8> items;
    Items list;
    QStringList days;
    for (int i = 0; i < int(items.size()); ++i) {
        items[size_t(i)].created = QDateTime(first.addDays(i), QTime(0, 0));
        list.append(&items[size_t(i)]);
        days.append(first.addDays(i).toString(QStringLiteral("yyyy/MM/dd")));
    }
    Groups groups;
    groups.make(list, gbDateCreated);
    QCOMPARE(groups.titles(), days);
}

void tst_NxMediaItemGroup::findsDaysAsTheCalendarDoes_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("years");
    QTest::newRow("summer time") << QByteArray("Europe/Berlin") << 2023 << 2;
    QTest::newRow("summer time that begins at midnight")
        << QByteArray("America/Sao_Paulo") << 2015 << 2;
    QTest::newRow("a day that was skipped") << QByteArray("Pacific/Apia") << 2011 << 1;
    QTest::newRow("far from a whole hour") << QByteArray("Asia/Kathmandu") << 1985 << 2;
    QTest::newRow("dates far apart") << QByteArray("Europe/Berlin") << 1900 << 300;
    QTest::newRow("around the first known change") << QByteArray("Europe/Berlin") << 1969 << 2;
    QTest::newRow("around the last known change") << QByteArray("Europe/Berlin") << 2037 << 2;
}

void tst_NxMediaItemGroup::findsDaysAsTheCalendarDoes()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, firstYear);
    QFETCH(int, years);
    const Zone there(zone);
    QRandomGenerator random(7);
    const QDateTime first(QDate(firstYear, 1, 1), QTime(0, 0), Qt::UTC);
    std::vector<ScriptedItem> items(2000);
    Items list;
    for (size_t i = 0; i < items.size(); ++i) {
        // Every other one within an hour and a half of a local midnight.
        const QDate day = first.date().addDays(random.bounded(years * 365));
        const qint64 near = random.bounded(-5400000, 5400000);
        const qint64 anywhere = random.bounded(24 * 3600 * 1000);
        const QDateTime at = QDateTime(day, QTime(12, 0)).addMSecs(-12 * 3600000LL);
        items[i].created = at.toUTC().addMSecs(i % 2 ? near : anywhere);
        list.append(&items[i]);
    }
    compareWithPlainest(list, gbDateCreated);
}

namespace {

void makesOneGroupAText(int key, QString ScriptedItem::*text)
{
    std::array<ScriptedItem, 6> items;
    items[0].*text = QStringLiteral("Cam 10");
    items[1].*text = QStringLiteral("cam 9");
    items[3].*text = QStringLiteral("Cam 10");
    items[4].*text = QStringLiteral("CAM 10");
    items[5].*text = QStringLiteral(""); // Empty, though not null.
    ScriptedPlain folder(NXVBLMODEL::mtFolder);
    const Items list{&items[0], &items[1], &items[2], &items[3], &items[4], &items[5], &folder};
    Groups groups;
    groups.make(list, key);
    QCOMPARE(groups.titles(), (QStringList{QStringLiteral("cam 9"), QStringLiteral("Cam 10"),
                                           QStringLiteral("CAM 10"), QStringLiteral("None")}));
    QCOMPARE(groups.members(QStringLiteral("Cam 10")), (Items{&items[0], &items[3]}));
    QCOMPARE(groups.members(QStringLiteral("None")), (Items{&items[2], &items[5], &folder}));
    groups.make(list, key, soDESC);
    QCOMPARE(groups.titles(), (QStringList{QStringLiteral("Cam 10"), QStringLiteral("CAM 10"),
                                           QStringLiteral("cam 9"), QStringLiteral("None")}));
}

} // namespace

void tst_NxMediaItemGroup::makesOneGroupACamera()
{
    makesOneGroupAText(gbCameraName, &ScriptedItem::camera);
}

void tst_NxMediaItemGroup::makesOneGroupACategory()
{
    makesOneGroupAText(gbCategory, &ScriptedItem::category);
}

void tst_NxMediaItemGroup::keepsACameraCalledNoneApart()
{
    ScriptedItem odd;
    odd.camera = QStringLiteral("None");
    ScriptedItem unknown;
    Groups groups;
    groups.make({&unknown, &odd}, gbCameraName);
    QCOMPARE(groups.list.size(), 2);
    QCOMPARE(groupAt(groups.list, 0)->members(), Items{&odd});
    QCOMPARE(groupAt(groups.list, 1)->members(), Items{&unknown});
}

void tst_NxMediaItemGroup::translatesFixedTitlesAlone()
{
    ScriptedItem known;
    known.camera = QStringLiteral("Video");
    ScriptedItem unknown;
    Shouting translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Groups groups;
    groups.make({}, gbType);
    QCOMPARE(groups.titles(),
             (QStringList{QStringLiteral("VIDEO"), QStringLiteral("PHOTO"), QStringLiteral("AUDIO"),
                          QStringLiteral("OTHER"), QStringLiteral("SUBTITLE")}));
    groups.make({}, gbDuration);
    QCOMPARE(groups.titles(),
             (QStringList{QStringLiteral("LESS THAN 1MIN"), QStringLiteral("1 ~ 5 min"),
                          QStringLiteral("5 ~ 30 min"), QStringLiteral("30 ~ 60 min"),
                          QStringLiteral("MORE THAN 60MIN")}));
    groups.make({&known, &unknown}, gbCameraName);
    QCOMPARE(groups.titles(), (QStringList{QStringLiteral("Video"), QStringLiteral("NONE")}));
    QCOMPARE(NxMediaItemGroup::getGroupByTranslateText(QStringLiteral("None")),
             QStringLiteral("NONE"));
    QCOMPARE(NxMediaItemGroup::getGroupByTranslateText(QStringLiteral("a text of the user")),
             QStringLiteral("a text of the user"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

void tst_NxMediaItemGroup::makesTitlesAnewFromKeys()
{
    ScriptedItem item;
    item.created = local(2024, 10, 3, 12);
    item.category = QStringLiteral("None");
    for (int key = gbType; key <= gbCategory; ++key) {
        Groups groups;
        groups.make({&item}, key);
        for (int i = 0; i < groups.list.size(); ++i) {
            const INxGroupMedia *group = groupAt(groups.list, i);
            QCOMPARE(NxMediaItemGroup::getGroupTitle(group->groupKey()), group->name());
        }
    }
    Groups groups;
    groups.make({}, gbType);
    Shouting translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(NxMediaItemGroup::getGroupTitle(groupAt(groups.list, 0)->groupKey()),
             QStringLiteral("VIDEO"));
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(NxMediaItemGroup::getGroupTitle(QString()), QString());
    QCOMPARE(NxMediaItemGroup::getGroupTitle(QStringLiteral("#99")), QString());
}

void tst_NxMediaItemGroup::mergesIntoTheGroupOfTheSameKey()
{
    ScriptedItem first;
    first.camera = QStringLiteral("Canon");
    ScriptedItem second;
    second.camera = first.camera;
    Groups groups;
    groups.make({&first}, gbCameraName);
    INxAbstractMedia *const before = groups.list.first();
    groups.merge({&second}, gbCameraName);
    QCOMPARE(groups.list, Items{before});
    QCOMPARE(groups.members(first.camera), (Items{&first, &second}));
}

void tst_NxMediaItemGroup::putsANewGroupAtItsPlace_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QStringList>("titles");
    const QString a = QStringLiteral("a9");
    const QString b = QStringLiteral("A10");
    const QString c = QStringLiteral("c");
    const QString none = QStringLiteral("None");
    QTest::newRow("in front") << int(soASC) << QStringList{b, c} << a << QStringList{a, b, c};
    QTest::newRow("between") << int(soASC) << QStringList{a, c} << b << QStringList{a, b, c};
    QTest::newRow("at the end") << int(soASC) << QStringList{a, b} << c << QStringList{a, b, c};
    QTest::newRow("before none") << int(soASC) << QStringList{a, QString()} << c
                                 << QStringList{a, c, none};
    QTest::newRow("none") << int(soASC) << QStringList{a} << QString() << QStringList{a, none};
    QTest::newRow("descending between")
        << int(soDESC) << QStringList{a, c} << b << QStringList{c, b, a};
    QTest::newRow("descending before none")
        << int(soDESC) << QStringList{QString(), c} << a << QStringList{c, a, none};
    QTest::newRow("descending none")
        << int(soDESC) << QStringList{c} << QString() << QStringList{c, none};
    QTest::newRow("among none") << int(soASC) << QStringList() << a << QStringList{a};
}

void tst_NxMediaItemGroup::putsANewGroupAtItsPlace()
{
    QFETCH(int, order);
    QFETCH(QStringList, cameras);
    QFETCH(QString, added);
    QFETCH(QStringList, titles);
    std::vector<ScriptedItem> items(size_t(cameras.size()));
    Items list;
    for (size_t i = 0; i < items.size(); ++i) {
        items[i].camera = cameras.at(int(i));
        list.append(&items[i]);
    }
    Groups groups;
    groups.make(list, gbCameraName, order);
    ScriptedItem item;
    item.camera = added;
    groups.merge({&item}, gbCameraName, order);
    QCOMPARE(groups.titles(), titles);
}

void tst_NxMediaItemGroup::releasesNewGroupsThatAreNotNeeded()
{
    ScriptedItem item;
    Items added;
    NxMediaItemGroup::Group({&item}, Groups::by(gbType, soASC), added);
    std::vector<std::unique_ptr<NxMediaRef>> watched;
    for (INxAbstractMedia *group : qAsConst(added))
        watched.push_back(std::make_unique<NxMediaRef>(group));

    Groups groups;
    NxMediaItemGroup::MergeOrAddGroup(groups.list, added, Groups::by(gbType, soASC));
    QCOMPARE(groups.titles(), QStringList{QStringLiteral("Other")});
    for (size_t i = 0; i < watched.size(); ++i)
        QCOMPARE(watched[i]->isNull(), typeTitles().at(int(i)) != QLatin1String("Other"));

    NxMediaItemGroup::Group({&item}, Groups::by(gbType, soASC), added);
    const NxMediaRef merged(added.at(typeTitles().indexOf(QStringLiteral("Other"))));
    NxMediaItemGroup::MergeOrAddGroup(groups.list, added, Groups::by(gbType, soASC));
    QVERIFY(merged.isNull());
    QCOMPARE(groupAt(groups.list, 0)->members(), (Items{&item, &item}));
}

namespace {

std::vector<ScriptedItem> randomItems(QRandomGenerator &random)
{
    std::vector<ScriptedItem> items(size_t(random.bounded(60)));
    for (ScriptedItem &item : items) {
        const QString number = QString::number(random.bounded(12));
        item.type = random.bounded(2) ? NXVBLMODEL::mtAudio : NXVBLMODEL::mtSubtitle;
        item.info.flags = random.bounded(3) == 0 ? random.bounded(8) : 0;
        item.info.frames = random.bounded(-10, 5000);
        item.info.rate = {random.bounded(0, 3), 1};
        item.lasts = random.bounded(8) != 0;
        if (random.bounded(5) != 0)
            item.created = local(2024, 3, 25, 0).addSecs(random.bounded(10 * 86400));
        item.camera = random.bounded(4) ? QStringLiteral("Cam ") + number : QString();
        item.category = random.bounded(4) ? QStringLiteral("pack") + number : QString();
    }
    return items;
}

Items pointers(std::vector<ScriptedItem> &items)
{
    Items list;
    for (ScriptedItem &item : items)
        list.append(&item);
    return list;
}

void addSeeds()
{
    nxAddSeeds(20);
}

} // namespace

void tst_NxMediaItemGroup::agreesWithThePlainestGroups_data()
{
    addSeeds();
}

void tst_NxMediaItemGroup::agreesWithThePlainestGroups()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 5; ++round) {
        std::vector<ScriptedItem> items = randomItems(random);
        Items list = pointers(items);
        ScriptedPlain folder(NXVBLMODEL::mtFolder);
        list.insert(list.size() / 2, &folder);
        list.append(nullptr);
        for (int key = gbNone; key <= gbCategory + 1; ++key)
            compareWithPlainest(list, key);
    }
}

void tst_NxMediaItemGroup::mergingOneByOneGivesTheSameGroups_data()
{
    addSeeds();
}

void tst_NxMediaItemGroup::mergingOneByOneGivesTheSameGroups()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    std::vector<ScriptedItem> items = randomItems(random);
    for (int key = gbType; key <= gbCategory; ++key) {
        for (const int order : {soASC, soDESC}) {
            Groups whole;
            whole.make(pointers(items), key, order);
            Groups grown;
            for (INxAbstractMedia *item : pointers(items))
                grown.merge({item}, key, order);
            QStringList filled;
            for (const QString &title : whole.titles()) {
                if (!whole.members(title).isEmpty())
                    filled.append(title);
            }
            QCOMPARE(grown.titles(), filled);
            for (const QString &title : qAsConst(filled))
                QCOMPARE(grown.members(title), whole.members(title));
        }
    }
}

NX_TEST_MAIN(tst_NxMediaItemGroup)
#include "tst_NxMediaItemGroup.moc"
