// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <QUuid>

#include "ItemPresenterStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

const QString filterChanged = QStringLiteral("items: sigFilterChanged()");
const QString keywordChanged = QStringLiteral("items: sigFilterKeywordChanged()");
const QString typeChanged = QStringLiteral("items: sigFilterTypeChanged()");
const QString similarChanged = QStringLiteral("items: sigFilterSimilarSearchChanged()");

using Change = void (*)(NxMediaItemViewFilter *filter);

bool isNewId(const QString &id)
{
    const QUuid read(id);
    return !read.isNull() && read.toString() == id;
}

/// The filter that a stand's presenter holds, after a change to its record.
NxMediaItemViewFilter changed(const NxMediaItemManagerPresenter &presenter,
                              const std::function<void(NxMediaItemViewFilter *)> &change)
{
    NxMediaItemViewFilter filter = presenter.getFilter();
    change(&filter);
    return filter;
}

} // namespace

Q_DECLARE_METATYPE(Change)

/// What the list shows of its folder: by type, by keyword, by likeness.
class tst_NxMediaItemManagerPresenter_filter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The whole record

    void everyFieldIsAChange_data()
    {
        QTest::addColumn<Change>("change");
        using Filter = NxMediaItemViewFilter;
        const auto add = [](const char *name, Change change) { QTest::newRow(name) << change; };
        add("similar resource", [](Filter *f) { f->similarResourceId = 1; });
        add("similar category", [](Filter *f) { f->similarCategory = mctStockMedia; });
        add("keyword", [](Filter *f) { f->keyword = QStringLiteral("a"); });
        add("type", [](Filter *f) { f->type = mtfAudio; });
        add("media type", [](Filter *f) { f->mediaType = vmtVideo; });
        add("search mode", [](Filter *f) { f->searchMode = esmStockKeyword; });
        add("search id", [](Filter *f) { f->searchId = QStringLiteral("a"); });
        add("folder kind", [](Filter *f) { f->folderKindFlag = true; });
        add("reload", [](Filter *f) { f->reload = true; });
        add("bar", [](Filter *f) { f->showBar = true; });
        add("list", [](Filter *f) { f->listView = true; });
        add("resolution", [](Filter *f) { f->resolution = nsrUltraHd; });
        add("orientation", [](Filter *f) { f->orientation = 1; });
        add("provider", [](Filter *f) { f->provider = 1; });
        add("format", [](Filter *f) { f->formatKind = 1; });
        add("payment", [](Filter *f) { f->payment = 1; });
        add("classification", [](Filter *f) { f->classifyId = 1; });
    }

    void everyFieldIsAChange()
    {
        QFETCH(Change, change);
        ItemPresenterStand stand;
        const NxMediaItemViewFilter wanted = changed(stand.presenter, change);
        stand.presenter.setFilter(wanted);
        QCOMPARE(stand.log.take(), QStringList{filterChanged});
        QVERIFY(stand.presenter.getFilter() == wanted);
        stand.presenter.setFilter(wanted);
        QCOMPARE(stand.log.take(), QStringList());
    }

    void theSearchModeTellsWhatIsAnnounced_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<QString>("signal");
        QTest::newRow("begins a keyword search")
            << int(esmNone) << int(esmKeyword) << keywordChanged;
        QTest::newRow("leaves a keyword search")
            << int(esmKeyword) << int(esmNone) << filterChanged;
        QTest::newRow("begins a similar search")
            << int(esmNone) << int(esmSimilar) << filterChanged;
        QTest::newRow("stock keyword") << int(esmKeyword) << int(esmStockKeyword) << filterChanged;
        QTest::newRow("stock classification")
            << int(esmKeyword) << int(esmStockClassify) << filterChanged;
        QTest::newRow("unknown mode") << int(esmKeyword) << 3 << filterChanged;
    }

    void theSearchModeTellsWhatIsAnnounced()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QString, signal);
        ItemPresenterStand stand;
        NxMediaItemViewFilter filter;
        filter.searchMode = before;
        stand.presenter.setFilter(filter);
        stand.log.take();
        filter.searchMode = after;
        stand.presenter.setFilter(filter);
        QCOMPARE(stand.log.take(), QStringList{signal});
        filter.provider = 5; // Whatever else changes while the mode stays.
        stand.presenter.setFilter(filter);
        QCOMPARE(stand.log.take(), QStringList{signal});
    }

    void theServiceIsAskedBeforeTheFilterIsTold_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("reload");
        QTest::addColumn<bool>("isAsked");
        const QSet<int> serviceTypes{1, 2, 9, 10};
        for (int type = -1; type <= 11; ++type) {
            QTest::addRow("type %d", type) << type << true << serviceTypes.contains(type);
            QTest::addRow("type %d, shown only", type) << type << false << false;
        }
    }

    void theServiceIsAskedBeforeTheFilterIsTold()
    {
        QFETCH(int, type);
        QFETCH(bool, reload);
        QFETCH(bool, isAsked);
        HookedStand stand;
        stand.presenter.setFolder(stand.folder);
        NxMediaItemViewFilter filter;
        filter.provider = 1;
        filter.type = type;
        filter.reload = reload;
        stand.log.take();
        stand.half->meanwhile = [&] { QVERIFY(stand.presenter.getFilter() == filter); };
        stand.presenter.setFilter(filter);
        const QStringList asked{QStringLiteral("reload (folder, folder)")};
        QCOMPARE(stand.log.take(), (isAsked ? asked : QStringList()) + QStringList{filterChanged});
        filter.searchMode = esmKeyword;
        stand.presenter.setFilter(filter);
        QCOMPARE(stand.log.take(), (isAsked ? asked : QStringList()) + QStringList{keywordChanged});
    }

    void aReloadLeavesTheListingOfNoFolderAlone()
    {
        ItemPresenterStand stand;
        NxMediaItemViewFilter filter;
        filter.type = mtfServiceVideo;
        filter.reload = true;
        stand.presenter.setFilter(filter);
        QCOMPARE(stand.log.take(), QStringList{filterChanged});
        stand.presenter.setFolder(stand.folder);
        stand.log.take();
        filter.type = mtfServicePhoto;
        stand.presenter.setFilter(filter);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("refresh folder"), filterChanged}));
    }

    // The type

    void aTypeIsKeptAndTold_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("mediaType");
        const QHash<int, int> stockTypes{{1, 3}, {2, 1}, {3, 2}};
        for (int type = 0; type <= 10; ++type) {
            if (type != mtfPaid)
                QTest::addRow("%d", type) << type << stockTypes.value(type, 0);
        }
    }

    void aTypeIsKeptAndTold()
    {
        QFETCH(int, type);
        QFETCH(int, mediaType);
        ItemPresenterStand stand(mctElement);
        stand.presenter.setFilterType(mtfPaid);
        stand.log.take();
        QList<int> stored;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this, [&] {
            stored.append(NxMediaLibrarySetting::instance()->GetFilterType(mctElement));
        });
        stand.presenter.setFilterType(NxMediaTypeFilter(type));
        QCOMPARE(stand.log.take(), (QStringList{filterChanged, typeChanged}));
        QCOMPARE(stored, QList<int>{type});
        QCOMPARE(stand.presenter.getFilter().type, type);
        QCOMPARE(int(stand.presenter.getFilter().mediaType), mediaType);
        QCOMPARE(NxMediaLibrarySetting::instance()->GetFilterType(mctMedia), mtfAll);
    }

    void theTypeThatIsSetIsNeitherKeptNorTold()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterType(mtfAudio);
        NxMediaLibrarySetting::instance()->SetFilterType(mctMedia, mtfVideo);
        stand.log.take();
        stand.presenter.setFilterType(mtfAudio);
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(NxMediaLibrarySetting::instance()->GetFilterType(mctMedia), mtfVideo);
    }

    void theTypeLeavesASearchAsItIs()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
        const NxMediaItemViewFilter before = stand.presenter.getFilter();
        stand.log.take();
        stand.presenter.setFilterType(mtfVideo);
        QCOMPARE(stand.log.take(), (QStringList{keywordChanged, typeChanged}));
        QVERIFY(stand.presenter.getFilter() == changed(stand.presenter, [&](auto *filter) {
                    *filter = before;
                    filter->type = mtfVideo;
                    filter->mediaType = vmtVideo;
                }));
    }

    void theTypeOfAServiceIsAskedFor()
    {
        HookedStand stand;
        stand.presenter.setFolder(stand.folder);
        NxMediaItemViewFilter filter;
        filter.reload = true;
        stand.presenter.setFilter(filter);
        stand.log.take();
        stand.presenter.setFilterType(mtfVideo);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("reload (folder, folder)"),
                                                filterChanged, typeChanged}));
    }

    void thePresenterMayDieWhenTheFilterIsTold()
    {
        PresenterStand stand;
        auto *presenter = new NxMediaItemManagerPresenter(nullptr, nullptr);
        connect(presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [presenter] { delete presenter; });
        presenter->setFilterType(mtfAudio);
        presenter = new NxMediaItemManagerPresenter(nullptr, nullptr);
        connect(presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [presenter] { delete presenter; });
        presenter->setFilterSimilarResource(1, mctStockMedia, QString(), true, false);
    }

    // Keywords

    void aKeywordBeginsASearch_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("signal");
        QTest::newRow("keyword") << int(esmKeyword) << keywordChanged;
        QTest::newRow("stock keyword") << int(esmStockKeyword) << filterChanged;
        QTest::newRow("none") << int(esmNone) << filterChanged;
    }

    void aKeywordBeginsASearch()
    {
        QFETCH(int, mode);
        QFETCH(QString, signal);
        ItemPresenterStand stand;
        stand.presenter.setFilterType(mtfAudio);
        stand.log.take();
        stand.presenter.setFilterKeyword(QStringLiteral("a"), ESearchMode_e(mode));
        QCOMPARE(stand.log.take(), QStringList{signal});
        const NxMediaItemViewFilter filter = stand.presenter.getFilter();
        QCOMPARE(filter.keyword, QStringLiteral("a"));
        QCOMPARE(filter.searchMode, mode);
        QVERIFY2(isNewId(filter.searchId), qUtf8Printable(filter.searchId));
        QVERIFY(!filter.folderKindFlag);
        QCOMPARE(filter.type, int(mtfAudio));
    }

    void everyKeywordIsASearchOfItsOwn()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
        const QString first = stand.presenter.getFilter().searchId;
        stand.presenter.setFilterKeyword(QStringLiteral("A"), esmKeyword);
        QVERIFY(isNewId(stand.presenter.getFilter().searchId));
        QVERIFY(stand.presenter.getFilter().searchId != first);
        QCOMPARE(stand.log.take(), (QStringList{keywordChanged, keywordChanged}));
    }

    void anEmptyKeywordEndsTheSearch()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
        stand.log.take();
        stand.presenter.setFilterKeyword(QString(), esmKeyword);
        QCOMPARE(stand.log.take(), QStringList{keywordChanged});
        QVERIFY(stand.presenter.getFilter().keyword.isEmpty());
        QVERIFY(stand.presenter.getFilter().searchId.isEmpty());
        QCOMPARE(stand.presenter.getFilter().searchMode, int(esmKeyword));
    }

    void theKeywordThatIsSetChangesNothing()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterKeyword(QString(), esmKeyword);
        QVERIFY(stand.presenter.getFilter() == NxMediaItemViewFilter());
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
        const NxMediaItemViewFilter before = stand.presenter.getFilter();
        stand.log.take();
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmStockKeyword);
        QCOMPARE(stand.log.take(), QStringList());
        QVERIFY(stand.presenter.getFilter() == before);
    }

    void aSearchKnowsThatItBeganInASearchFolder()
    {
        ItemPresenterStand stand;
        stand.category.items.root = &stand.search;
        stand.presenter.setFilterKeyword(QStringLiteral("a"), esmKeyword);
        QVERIFY(stand.presenter.getFilter().folderKindFlag);
        stand.category.items.root = stand.folder;
        stand.presenter.setFilterKeyword(QStringLiteral("b"), esmKeyword);
        QVERIFY(!stand.presenter.getFilter().folderKindFlag);
        stand.category.items.root = &stand.search;
        stand.presenter.setFilterKeyword(QString(), esmKeyword);
        QVERIFY(stand.presenter.getFilter().folderKindFlag);
        stand.category.items.root = nullptr;
        stand.presenter.setFilterKeyword(QStringLiteral("c"), esmKeyword);
        QVERIFY(!stand.presenter.getFilter().folderKindFlag);
    }

    // Likeness

    void aSimilarSearchBegins_data()
    {
        QTest::addColumn<bool>("showBar");
        QTest::addColumn<bool>("listView");
        for (const bool showBar : {false, true}) {
            for (const bool listView : {false, true})
                QTest::addRow("bar %d, list %d", showBar, listView) << showBar << listView;
        }
    }

    void aSimilarSearchBegins()
    {
        QFETCH(bool, showBar);
        QFETCH(bool, listView);
        ItemPresenterStand stand;
        stand.presenter.setFilterType(mtfAudio);
        stand.presenter.setFilterKeyword(QStringLiteral("word"), esmKeyword);
        const QString wordId = stand.presenter.getFilter().searchId;
        stand.log.take();
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QStringLiteral("/a.png"),
                                                 showBar, listView);
        const QStringList bar{QStringLiteral("items: sigSetSimilarSearchBar(/a.png, 7)")};
        QCOMPARE(stand.log.take(),
                 (QStringList{filterChanged, similarChanged} + (showBar ? bar : QStringList())));
        NxMediaItemViewFilter expected;
        expected.similarResourceId = 77;
        expected.similarCategory = mctStockMedia;
        expected.type = mtfAudio;
        expected.mediaType = vmtAudio;
        expected.searchMode = esmSimilar;
        expected.searchId = stand.presenter.getFilter().searchId;
        expected.showBar = showBar;
        expected.listView = listView;
        QVERIFY(stand.presenter.getFilter() == expected);
        QVERIFY2(isNewId(expected.searchId), qUtf8Printable(expected.searchId));
        QVERIFY(expected.searchId != wordId);
    }

    void theSearchThatRunsIsNotBegunAgain()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QString(), true, true);
        const NxMediaItemViewFilter before = stand.presenter.getFilter();
        stand.log.take();
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QStringLiteral("/b.png"), false,
                                                 false);
        QCOMPARE(stand.log.take(), QStringList());
        QVERIFY(stand.presenter.getFilter() == before);
    }

    void anotherResourceGoesOnWithTheSearch_data()
    {
        QTest::addColumn<qint64>("id");
        QTest::addColumn<int>("category");
        QTest::newRow("another id") << Q_INT64_C(78) << int(mctStockMedia);
        QTest::newRow("another category") << Q_INT64_C(77) << int(mctElement);
        QTest::newRow("a large id") << Q_INT64_C(0x7fffffffffffffff) << int(mctStockMedia);
    }

    void anotherResourceGoesOnWithTheSearch()
    {
        QFETCH(qint64, id);
        QFETCH(int, category);
        ItemPresenterStand stand;
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QString(), true, true);
        const QString searchId = stand.presenter.getFilter().searchId;
        stand.log.take();
        stand.presenter.setFilterSimilarResource(id, NxMediaCategoryType(category), QString(),
                                                 false, false);
        QCOMPARE(stand.log.take(), (QStringList{filterChanged, similarChanged}));
        QCOMPARE(stand.presenter.getFilter().similarResourceId, id);
        QCOMPARE(stand.presenter.getFilter().similarCategory, category);
        QCOMPARE(stand.presenter.getFilter().searchId, searchId);
        QVERIFY(!stand.presenter.getFilter().showBar);
        QVERIFY(!stand.presenter.getFilter().listView);
    }

    void thatTheSearchWasUsedIsRemembered()
    {
        ItemPresenterStand stand;
        bool wasUsedWhenTold = false;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [&] { wasUsedWhenTold = NxConfig::Instance()->getFindSimilarUsed(); });
        QVERIFY(!NxConfig::Instance()->getFindSimilarUsed());
        stand.presenter.setFilterSimilarResource(0, mctMedia, QString(), true, true);
        QVERIFY(!NxConfig::Instance()->getFindSimilarUsed());
        stand.presenter.setFilterSimilarResource(77, mctMedia, QString(), true, true);
        QVERIFY(wasUsedWhenTold);
        QVERIFY(NxConfig::Instance()->getFindSimilarUsed());
    }

    void aSimilarSearchIsTakenOutOfTheFilter()
    {
        ItemPresenterStand stand;
        stand.presenter.setFilterType(mtfPhoto);
        stand.presenter.setFilter(
            changed(stand.presenter, [](auto *filter) { filter->provider = 4; }));
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QString(), true, true);
        stand.log.take();
        stand.presenter.clearSimilarSearch();
        QCOMPARE(stand.log.take(), QStringList{filterChanged});
        NxMediaItemViewFilter expected;
        expected.type = mtfPhoto;
        expected.mediaType = vmtImage;
        expected.provider = 4;
        QVERIFY(stand.presenter.getFilter() == expected);
        stand.presenter.clearSimilarSearch();
        QCOMPARE(stand.log.take(), QStringList());
    }

    void otherSearchesAreLeftAlone_data()
    {
        QTest::addColumn<int>("mode");
        for (const int mode :
             {int(esmNone), int(esmKeyword), int(esmStockKeyword), int(esmStockClassify)})
            QTest::addRow("%d", mode) << mode;
    }

    void otherSearchesAreLeftAlone()
    {
        QFETCH(int, mode);
        ItemPresenterStand stand;
        stand.presenter.setFilterSimilarResource(77, mctStockMedia, QString(), true, true);
        stand.presenter.setFilterKeyword(QStringLiteral("a"), ESearchMode_e(mode));
        const NxMediaItemViewFilter before = stand.presenter.getFilter();
        stand.log.take();
        stand.presenter.clearSimilarSearch();
        QCOMPARE(stand.log.take(), QStringList());
        QVERIFY(stand.presenter.getFilter() == before);
    }

    // The stock provider's folders

    void aStockFolderBeginsWithAFreshFilter_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("fresh");
        const QHash<int, int> fresh{{1, 3}, {2, 1}, {3, 2}};
        for (int type = 0; type <= 10; ++type)
            QTest::addRow("after type %d", type) << type << fresh.value(type, 0);
    }

    void aStockFolderBeginsWithAFreshFilter()
    {
        QFETCH(int, before);
        QFETCH(int, fresh);
        HookedStand stand(mctVCGStock);
        stand.presenter.setFolder(stand.folder);
        stand.presenter.setFilterType(mtfVideo);
        stand.presenter.setFilter(changed(stand.presenter, [before](auto *filter) {
            filter->type = before;
            filter->keyword = QStringLiteral("word");
            filter->provider = 4;
        }));
        stand.log.take();
        QStringList rootsWhenTold;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [&] { rootsWhenTold.append(stand.presenter.folder()->name()); });
        stand.presenter.setFolder(stand.other);
        NxMediaItemViewFilter expected;
        expected.type = fresh;
        expected.mediaType = vmtVideo;
        QVERIFY(stand.presenter.getFilter() == expected);
        QCOMPARE(stand.log.take(),
                 (QStringList{filterChanged, QStringLiteral("root changed (other, other)"),
                              QStringLiteral("tree folder entered (other, other)"),
                              QStringLiteral("items: sigRootFolderChanged()")}));
        QCOMPARE(rootsWhenTold, QStringList{QStringLiteral("folder")});
    }

    void aStockFolderComesBackWithItsOwnFilter()
    {
        HookedStand stand(mctVCGStock);
        stand.presenter.setFolder(stand.folder);
        NxMediaItemViewFilter first;
        first.keyword = QStringLiteral("first");
        first.searchMode = esmKeyword;
        first.type = mtfAudio;
        stand.presenter.setFilter(first);
        stand.presenter.setFolder(stand.other);
        NxMediaItemViewFilter second;
        second.provider = 2;
        stand.presenter.setFilter(second);
        stand.log.take();
        stand.presenter.setFolder(stand.folder);
        QVERIFY(stand.presenter.getFilter() == first);
        QCOMPARE(stand.log.take().first(), keywordChanged);
        stand.presenter.setFolder(stand.other);
        QVERIFY(stand.presenter.getFilter() == second);
        QCOMPARE(stand.log.take().first(), filterChanged);
    }

    void theFilterStaysWhereNoFolderIsLeftBehind_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        const QString folder = QStringLiteral("folder");
        const QString other = QStringLiteral("other");
        const QString search = QStringLiteral("search");
        QTest::newRow("the first folder") << int(mctVCGStock) << QString() << folder;
        QTest::newRow("the same folder") << int(mctVCGStock) << folder << folder;
        QTest::newRow("no folder") << int(mctVCGStock) << folder << QString();
        QTest::newRow("a search folder") << int(mctVCGStock) << folder << search;
        QTest::newRow("project media") << int(mctMedia) << folder << other;
        QTest::newRow("stock media") << int(mctStockMedia) << folder << other;
    }

    void theFilterStaysWhereNoFolderIsLeftBehind()
    {
        QFETCH(int, category);
        QFETCH(QString, from);
        QFETCH(QString, to);
        HookedStand stand{NxMediaCategoryType(category)};
        const QHash<QString, INxFolderMedia *> folders{{QStringLiteral("search"), &stand.search},
                                                       {QStringLiteral("folder"), stand.folder},
                                                       {QStringLiteral("other"), stand.other}};
        stand.presenter.setFolder(folders.value(from));
        NxMediaItemViewFilter filter;
        filter.keyword = QStringLiteral("word");
        filter.type = mtfVideo;
        stand.presenter.setFilter(filter);
        stand.log.take();
        stand.presenter.setFolder(folders.value(to));
        QVERIFY(stand.presenter.getFilter() == filter);
        QVERIFY(!stand.log.take().contains(filterChanged));
    }

    void aSearchFolderThatIsLeftKeepsItsFilterToo()
    {
        HookedStand stand(mctVCGStock);
        stand.presenter.setFolder(stand.folder);
        stand.presenter.setFolder(&stand.search);
        NxMediaItemViewFilter searching;
        searching.keyword = QStringLiteral("found");
        searching.type = mtfPhoto;
        stand.presenter.setFilter(searching);
        stand.presenter.setFolder(stand.folder);
        QCOMPARE(stand.presenter.getFilter().keyword, QString());
        QCOMPARE(stand.presenter.getFilter().type, int(mtfVideo));
        QVERIFY(stand.half->folderFilters.value(&stand.search).filter == searching);
    }

    void theFilterOfADeadFolderIsNotGivenToTheNextOneThere()
    {
        HookedStand stand(mctVCGStock);
        stand.presenter.setFolder(stand.folder);
        NxMediaItemViewFilter old;
        old.keyword = QStringLiteral("old");
        // What a folder left behind that died, whose address another one has now.
        stand.half->folderFilters.insert(stand.other, {QPointer<INxFolderMedia>(), old});
        stand.presenter.setFolder(stand.other);
        QVERIFY(stand.presenter.getFilter().keyword.isEmpty());
    }

    void aFolderThatDiesWhenTheFilterIsToldIsNotShown()
    {
        HookedStand stand(mctVCGStock);
        stand.presenter.setFolder(stand.folder);
        NxMediaItemViewFilter filter;
        filter.provider = 1;
        stand.presenter.setFilter(filter);
        stand.log.take();
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [&stand] { stand.category.section->destroy(stand.other); });
        stand.presenter.setFolder(stand.other);
        QCOMPARE(stand.log.take(), QStringList{filterChanged});
        QCOMPARE(stand.presenter.folder(), static_cast<INxFolderMedia *>(stand.folder));
    }

    void thePresenterMayDieWhenAStockFolderIsLeft()
    {
        PresenterStand stand;
        ScriptedCategory &stock = stand.library[mctVCGStock];
        auto *presenter = new NxMediaItemManagerPresenter(&stock.items, nullptr);
        presenter->setFolder(stock.addFolder("a", stock.section));
        presenter->setFilterKeyword(QStringLiteral("word"), esmStockKeyword);
        connect(presenter, &NxMediaItemManagerPresenter::sigFilterChanged, this,
                [presenter] { delete presenter; });
        presenter->setFolder(stock.addFolder("b", stock.section));
        QVERIFY(stock.items.observers.isEmpty());
    }
};

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_filter)
#include "tst_NxMediaItemManagerPresenter_filter.moc"
