// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/RowText.h>
#include <Brevano/commands/ViewChoice.h>
#include <Brevano/commands/ViewWords.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

QDateTime day(int number)
{
    return QDateTime(QDate(2026, 7, number), QTime(12, 0), Qt::UTC);
}

/// Gives a media the facts of a place in an order, from 1 on.
using Give = void (*)(FakeItem *media, int place);

void giveType(FakeItem *media, int place)
{
    constexpr NxMediaType types[] = {mtVideoAudio, mtImage, mtAudio, mtSubtitle};
    constexpr int flags[] = {sfVideo, sfImage, sfAudio, sfNone};
    media->type = types[place - 1];
    media->info.flags = flags[place - 1];
}

struct Fact
{
    const char *key;
    Give give;
};

const Fact facts[] = {
    {"duration",
     [](FakeItem *media, int place) {
         media->info.rate = {25, 1};
         media->info.frames = 100 * place;
     }},
    {"datecreated", [](FakeItem *media, int place) { media->created = day(place); }},
    {"used", [](FakeItem *media, int place) { media->used = place; }},
    {"framerate",
     [](FakeItem *media, int place) {
         media->info.rate = {24000 * place, 1001};
     }},
    {"inpoint", [](FakeItem *media, int place) { media->in = place; }},
    {"outpoint", [](FakeItem *media, int place) { media->out = place; }},
    {"favouritetime", [](FakeItem *media, int place) { media->favoured = day(place); }},
    {"downloadtime", [](FakeItem *media, int place) { media->downloaded = day(place); }},
    {"resolution",
     [](FakeItem *media, int place) { media->info.video.frameSize = QSize(100, 100) * place; }},
    {"audioinfo",
     [](FakeItem *media, int place) { media->sound = QStringLiteral("%1 Hz").arg(place * 9); }},
    {"type", &giveType},
    {"category",
     [](FakeItem *media, int place) { media->category = QStringLiteral("c%1").arg(place * 9); }},
    {"listorder", [](FakeItem *media, int place) { media->place = place; }},
    {"sale", [](FakeItem *media, int place) { media->sold = place; }},
};

ViewChoice sorted(const char *key, NxMediaItemViewSortOrder order)
{
    ViewChoice choice;
    choice.sort = {*ViewWords::sortKey(QLatin1String(key)), order};
    return choice;
}

/// "== Video (2)|[Import Media]|a|b".
QString shown(const ListedRows &rows)
{
    QStringList lines;
    for (const INxAbstractMedia *row : rows.rows()) {
        const bool isMedia = RowText::kindWord(*row) == QLatin1String("media");
        lines.append(isMedia ? row->name() : RowText::lineOf(*row));
    }
    return lines.join(QLatin1Char('|'));
}

} // namespace

class tst_ListedRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everySortKeyOrdersByItsFact_data();
    void everySortKeyOrdersByItsFact();
    void namesAreInNaturalOrder();
    void favouritesAndWhatIsNewComeFirst();
    void withoutAKeyTheFoldersOrderStays();
    void everyGroupKeyMakesItsGroups_data();
    void everyGroupKeyMakesItsGroups();
    void whatIsGroupedIsSortedToo();
    void aTypeAndAKeywordNarrowTheRows();
    void aKeywordSwitchesGroupsOff();
    void foldersFollowEachOther();
    void resourcesHaveNoTile();
    void aServicesOrderIsKept();
    void headingsAreThoseOfTheCategory();

private:
    QString listed(const ViewChoice &choice) const;

    std::unique_ptr<FakeFolder> m_folder;
    QVector<FakeItem *> m_media; // Of the folder.
};

void tst_ListedRows::init()
{
    m_folder = std::make_unique<FakeFolder>(QStringLiteral("Project Media"), fkProject);
    m_media.clear();
    for (const char *name : {"a", "b", "c", "d"})
        m_media.append(m_folder->addItem(QLatin1String("/f/") + QLatin1String(name)));
}

QString tst_ListedRows::listed(const ViewChoice &choice) const
{
    return shown(ListedRows({m_folder.get()}, choice));
}

void tst_ListedRows::everySortKeyOrdersByItsFact_data()
{
    QTest::addColumn<int>("fact");

    for (int fact = 0; fact < int(std::size(facts)); ++fact)
        QTest::newRow(facts[fact].key) << fact;
}

void tst_ListedRows::everySortKeyOrdersByItsFact()
{
    QFETCH(int, fact);

    constexpr int places[] = {2, 4, 1, 3};
    for (int i = 0; i < m_media.size(); ++i)
        facts[fact].give(m_media.at(i), places[i]);
    const char *key = facts[fact].key;
    QCOMPARE(listed(sorted(key, soASC)), QStringLiteral("[Import Media]|c|a|d|b"));
    QCOMPARE(listed(sorted(key, soDESC)), QStringLiteral("[Import Media]|b|d|a|c"));
}

void tst_ListedRows::namesAreInNaturalOrder()
{
    m_folder = std::make_unique<FakeFolder>(QStringLiteral("Project Media"), fkProject);
    for (const char *name : {"clip 10", "Clip 9", "clip 100", "Apple"})
        m_folder->addItem(QLatin1String("/f/") + QLatin1String(name));
    QCOMPARE(listed(sorted("name", soASC)),
             QStringLiteral("[Import Media]|Apple|Clip 9|clip 10|clip 100"));
    QCOMPARE(listed(sorted("name", soDESC)),
             QStringLiteral("[Import Media]|clip 100|clip 10|Clip 9|Apple"));
}

void tst_ListedRows::favouritesAndWhatIsNewComeFirst()
{
    m_media.at(1)->favourite = true;
    m_media.at(3)->favourite = true;
    QCOMPARE(listed(sorted("favourite", soASC)), QStringLiteral("[Import Media]|b|d|a|c"));
    QCOMPARE(listed(sorted("favourite", soDESC)), QStringLiteral("[Import Media]|a|c|b|d"));

    constexpr int days[] = {2, 4, 1, 3};
    for (int i = 0; i < m_media.size(); ++i)
        m_media.at(i)->modified = day(days[i]);
    QCOMPARE(listed(sorted("new", soASC)), QStringLiteral("[Import Media]|b|d|a|c"));
    QCOMPARE(listed(sorted("new", soDESC)), QStringLiteral("[Import Media]|c|a|d|b"));
}

void tst_ListedRows::withoutAKeyTheFoldersOrderStays()
{
    for (const NxMediaItemViewSortOrder order : {soASC, soDESC})
        QCOMPARE(listed(sorted("none", order)), QStringLiteral("[Import Media]|a|b|c|d"));
}

void tst_ListedRows::everyGroupKeyMakesItsGroups_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("ascending");
    QTest::addColumn<QString>("descending");

    QTest::newRow("none") << "none"
                          << "[Import Media]|a|b|c|d"
                          << "[Import Media]|a|b|c|d";
    QTest::newRow("type") << "type"
                          << "== Video (1)|[Import Media]|d|== Photo (2)|[Import Media]|b|c"
                             "|== Audio (1)|[Import Media]|a"
                          << "== Audio (1)|[Import Media]|a|== Photo (2)|[Import Media]|b|c"
                             "|== Video (1)|[Import Media]|d";
    QTest::newRow("datecreated")
        << "datecreated"
        << "== 2026/07/01 (2)|[Import Media]|b|d|== 2026/07/02 (1)|[Import Media]|a"
           "|== None (1)|[Import Media]|c"
        << "== 2026/07/02 (1)|[Import Media]|a|== 2026/07/01 (2)|[Import Media]|b|d"
           "|== None (1)|[Import Media]|c";
    QTest::newRow("duration")
        << "duration"
        << "== less than 1min (3)|[Import Media]|b|c|d|== 1 ~ 5 min (1)|[Import Media]|a"
        << "== 1 ~ 5 min (1)|[Import Media]|a|== less than 1min (3)|[Import Media]|b|c|d";
    QTest::newRow("cameraname") << "cameraname"
                                << "== X 9 (1)|[Import Media]|b|== X 10 (2)|[Import Media]|a|d"
                                   "|== None (1)|[Import Media]|c"
                                << "== X 10 (2)|[Import Media]|a|d|== X 9 (1)|[Import Media]|b"
                                   "|== None (1)|[Import Media]|c";
    QTest::newRow("category") << "category"
                              << "== Beats (2)|[Import Media]|b|c|== Loops (1)|[Import Media]|d"
                                 "|== None (1)|[Import Media]|a"
                              << "== Loops (1)|[Import Media]|d|== Beats (2)|[Import Media]|b|c"
                                 "|== None (1)|[Import Media]|a";
}

void tst_ListedRows::everyGroupKeyMakesItsGroups()
{
    QFETCH(QString, key);
    QFETCH(QString, ascending);
    QFETCH(QString, descending);

    constexpr int typePlaces[] = {3, 2, 2, 1};
    constexpr int days[] = {2, 1, 0, 1};
    const char *cameras[] = {"X 10", "X 9", "", "X 10"};
    const char *categories[] = {"", "Beats", "Beats", "Loops"};
    for (int i = 0; i < m_media.size(); ++i) {
        FakeItem *media = m_media.at(i);
        giveType(media, typePlaces[i]);
        media->created = days[i] > 0 ? day(days[i]) : QDateTime();
        media->camera = QLatin1String(cameras[i]);
        media->category = QLatin1String(categories[i]);
    }
    m_media.at(0)->info.rate = {25, 1};
    m_media.at(0)->info.frames = 25 * 60;

    ViewChoice choice;
    choice.group.groupBy = *ViewWords::groupKey(key);
    QCOMPARE(listed(choice), ascending);
    choice.group.order = soDESC;
    QCOMPARE(listed(choice), descending);
}

void tst_ListedRows::whatIsGroupedIsSortedToo()
{
    giveType(m_media.at(0), 3);
    ViewChoice choice = sorted("name", soDESC);
    choice.group.groupBy = gbType;
    QCOMPARE(listed(choice), QStringLiteral("== Video (3)|[Import Media]|d|c|b"
                                            "|== Audio (1)|[Import Media]|a"));
}

void tst_ListedRows::aTypeAndAKeywordNarrowTheRows()
{
    giveType(m_media.at(0), 3);
    giveType(m_media.at(2), 3);
    ViewChoice choice;
    choice.filter.type = mtfAudio;
    QCOMPARE(listed(choice), QStringLiteral("[Import Media]|a|c"));
    choice.filter.keyword = QStringLiteral("C");
    choice.filter.searchMode = esmKeyword;
    QCOMPARE(listed(choice), QStringLiteral("[Import Media]|c"));
    choice.filter.keyword = QStringLiteral("b");
    QCOMPARE(listed(choice), QString()); // Nothing to show is nothing, no tile either.
}

void tst_ListedRows::aKeywordSwitchesGroupsOff()
{
    ViewChoice choice;
    choice.group.groupBy = gbType;
    choice.filter.keyword = QStringLiteral("b");
    choice.filter.searchMode = esmKeyword;
    QCOMPARE(listed(choice), QStringLiteral("[Import Media]|b"));
}

void tst_ListedRows::foldersFollowEachOther()
{
    FakeFolder shared(QStringLiteral("Shared Media"), fkShared);
    shared.addItem(QStringLiteral("/f/A"));
    FakeFolder empty(QStringLiteral("Empty"), fkShared);
    const ListedRows rows({m_folder.get(), &empty, &shared}, sorted("name", soDESC));
    QCOMPARE(shown(rows), QStringLiteral("[Import Media]|d|c|b|a|[Import Media]|A"));
    QCOMPARE(rows.media().size(), 5);
    QCOMPARE(rows.media().constLast()->name(), QStringLiteral("A"));
}

void tst_ListedRows::resourcesHaveNoTile()
{
    FakeFolder all(QStringLiteral("All"), fkUserSection);
    all.addItem(QStringLiteral("b"));
    all.addItem(QStringLiteral("a"));
    ViewChoice choice = sorted("name", soASC);
    choice.category = mctEffect;
    QCOMPARE(shown(ListedRows({&all}, choice)), QStringLiteral("a|b"));
    choice.group.groupBy = gbCategory;
    QCOMPARE(shown(ListedRows({&all}, choice)), QStringLiteral("== None (2)|a|b"));
}

void tst_ListedRows::aServicesOrderIsKept()
{
    FakeFolder online(QStringLiteral("Home"), fkOnline);
    online.addItem(QStringLiteral("b"));
    online.addItem(QStringLiteral("a"));
    ViewChoice choice = sorted("name", soASC);
    choice.category = mctVCGStock;
    QCOMPARE(shown(ListedRows({&online}, choice)), QStringLiteral("b|a"));
}

void tst_ListedRows::headingsAreThoseOfTheCategory()
{
    ViewChoice choice;
    QCOMPARE(ListedRows({}, choice).headings().join(QLatin1Char('|')),
             QStringLiteral("Name|Used|Type|Frame Rate|In Point|Out Point|Duration|Resolution"
                            "|Audio Info|Date Created"));
    choice.category = mctTitle;
    QCOMPARE(ListedRows({}, choice).headings().join(QLatin1Char('|')),
             QStringLiteral("Name|Library|Favorite|Category|Find Similar"));
}

NX_TEST_MAIN(tst_ListedRows)
#include "tst_ListedRows.moc"
