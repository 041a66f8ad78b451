// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxVCGMediaItemStrategy.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemPresenterStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

const QString sorted = QStringLiteral("items: sigSortByChanged()");

/// Writes down when it is attached, detached and destroyed.
struct WrittenStrategy final : INxMediaItemStrategy
{
    WrittenStrategy(const QString &called, QStringList *lines) : name(called), written(lines) {}
    ~WrittenStrategy() override { written->append(name + QStringLiteral(" dies")); }

    void attach(NxMediaItemManagerPresenter *presenter) override
    {
        attached = presenter;
        written->append(name + QStringLiteral(" is attached"));
    }
    void detach() override
    {
        attached = nullptr;
        written->append(name + QStringLiteral(" is detached"));
    }

    const QString name;
    QStringList *const written; // Not owned.
    NxMediaItemManagerPresenter *attached = nullptr; // Not owned.
};

struct RequestStand : ItemPresenterStand
{
    RequestStand()
    {
        presenter.setSortBy({sbName, soASC});
        presenter.setSelectedItems({b});
        log.take();
    }
    std::shared_ptr<WrittenStrategy> makeStrategy(const char *name)
    {
        return std::make_shared<WrittenStrategy>(QLatin1String(name), &log.lines);
    }

    ScriptedItem *const a = category.list(QStringLiteral("a"), folder);
    ScriptedItem *const b = category.list(QStringLiteral("b"), folder);
};

const QStringList sortedAgain{sorted, QStringLiteral("items: sigSelectItems([b])")};

} // namespace

/// What the user wants done to media: asked of the view side, or of the media model.
class tst_NxMediaItemManagerPresenter_requests : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Imports

    void theViewSideImports()
    {
        RequestStand stand;
        NxMediaImportParam param;
        param.kind = mitCameraPhone;
        param.files = QStringList{QStringLiteral("/a.mov"), QStringLiteral("/b.mov")};
        param.folder = stand.other;
        param.secondFlag = true;
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigImportMedia, this,
                [&](const NxMediaImportParam &, QList<INxAbstractMediaItem *> &medias, bool) {
                    medias = {stand.a, stand.b};
                });
        const QList<INxAbstractMediaItem *> made = stand.presenter.importMeidas(param);
        QCOMPARE(made, (QList<INxAbstractMediaItem *>{stand.a, stand.b}));
        QCOMPARE(stand.log.take(),
                 QStringList{QStringLiteral("items: sigImportMedia(kind 2 [/a.mov /b.mov] to "
                                            "other, false true, [], true)")}
                     + sortedAgain);
    }

    void anImportThatMakesNothingIsNotSorted()
    {
        RequestStand stand;
        QVERIFY(stand.presenter.importMeidas({}).isEmpty());
        QCOMPARE(stand.log.take(),
                 QStringList{QStringLiteral(
                     "items: sigImportMedia(kind 0 [] to null, false false, [], true)")});
    }

    void importedMediaOfAnUnsortedListStayWhereTheyAre()
    {
        RequestStand stand;
        stand.presenter.setSortBy({sbNone, soASC});
        connect(&stand.presenter, &NxMediaItemManagerPresenter::sigImportMedia, this,
                [&](const NxMediaImportParam &, QList<INxAbstractMediaItem *> &medias, bool) {
                    medias.append(stand.a);
                });
        QCOMPARE(stand.presenter.importMeidas({}).size(), 1);
        QCOMPARE(stand.log.take().size(), 1);
    }

    void thePresenterMayDieInAnImport()
    {
        RequestStand stand;
        auto *presenter = new NxMediaItemManagerPresenter(&stand.category.items, nullptr);
        presenter->setSortBy({sbName, soASC});
        connect(presenter, &NxMediaItemManagerPresenter::sigImportMedia, this,
                [&](const NxMediaImportParam &, QList<INxAbstractMediaItem *> &medias, bool) {
                    medias.append(stand.a);
                    delete presenter;
                });
        QCOMPARE(presenter->importMeidas({}), QList<INxAbstractMediaItem *>{stand.a});
    }

    void theViewSideMakesACustomItem()
    {
        RequestStand stand;
        NxMediaAddCustomParam param;
        param.value = QStringLiteral("preset");
        QVERIFY(!stand.presenter.addCustomMediaItem(param));
        connect(
            &stand.presenter, &NxMediaItemManagerPresenter::sigAddCustomMediaItem, this,
            [&](const NxMediaAddCustomParam &, INxAbstractMediaItem *&item) { item = stand.a; });
        QCOMPARE(stand.presenter.addCustomMediaItem(param),
                 static_cast<INxAbstractMediaItem *>(stand.a));
        const QString offered =
            QStringLiteral("items: sigAddCustomMediaItem(kind 18 preset, null)");
        QCOMPARE(stand.log.take(), (QStringList{offered, offered}));
    }

    // What only the view side can do

    void theViewSideIsAsked()
    {
        RequestStand stand;
        stand.presenter.redownloadMedia({stand.b, stand.a});
        stand.presenter.redownloadMedia({});
        stand.presenter.gotoFolder(stand.other);
        stand.presenter.gotoFolder(nullptr);
        stand.presenter.exitSearchFolder();
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("items: sigRedownloadMedia([b a])"),
                                                QStringLiteral("items: sigRedownloadMedia([])"),
                                                QStringLiteral("items: sigGotoFolder(other)"),
                                                QStringLiteral("items: sigGotoFolder(null)"),
                                                QStringLiteral("items: sigExitSearchrFolder()")}));
        QVERIFY(!stand.presenter.folder());
    }

    // What the media model does

    void mediaAreAdded_data()
    {
        QTest::addColumn<bool>("refuses");
        QTest::newRow("taken") << false;
        QTest::newRow("refused") << true;
    }

    void mediaAreAdded()
    {
        QFETCH(bool, refuses);
        RequestStand stand;
        ScriptedItem fresh(mtVideo, QStringLiteral("fresh"));
        stand.category.items.refuses = refuses;
        QCOMPARE(stand.presenter.addMediaItems({&fresh, stand.a}), !refuses);
        QCOMPARE(stand.presenter.addMediaItems(stand.other, {&fresh}), !refuses);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("add fresh a"),
                                                QStringLiteral("add fresh to other")}));
        stand.other->media.clear();
    }

    void aRenamedMediaTakesItsPlace()
    {
        RequestStand stand;
        QVERIFY(stand.presenter.renameMediaItem(stand.a, QStringLiteral("z")));
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("rename a to z")} + sortedAgain);
        QCOMPARE(stand.a->title, QStringLiteral("z"));
    }

    void aRenamedMediaOfAnUnsortedListStaysWhereItIs()
    {
        RequestStand stand;
        stand.presenter.setSortBy({sbNone, soASC});
        QVERIFY(stand.presenter.renameMediaItem(stand.a, QStringLiteral("z")));
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("rename a to z")});
    }

    void aRefusedNameSortsNothing()
    {
        RequestStand stand;
        stand.category.items.refuses = true;
        QVERIFY(!stand.presenter.renameMediaItem(stand.a, QString()));
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("rename a to ")});
    }

    void theSortIsNotWrittenWhenAMediaIsRenamed()
    {
        RequestStand stand;
        NxMediaLibrarySetting::instance()->SetSortBy(mctMedia, sbDuration);
        QVERIFY(stand.presenter.renameMediaItem(stand.a, QStringLiteral("z")));
        QCOMPARE(NxMediaLibrarySetting::instance()->GetSortBy(mctMedia), sbDuration);
    }

    void resourcesOfTheShownFolderAreLoadedAnew()
    {
        RequestStand stand;
        stand.presenter.setFolder(stand.other);
        stand.log.take();
        stand.presenter.resetResourceLoader();
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("reset loader of other")});
    }

    // Strategies

    void aStrategyTakesThePlaceOfTheOneBefore()
    {
        RequestStand stand;
        auto first = stand.makeStrategy("first");
        const WrittenStrategy *kept = first.get();
        stand.presenter.setMediaItemStrategy(std::move(first));
        QCOMPARE(kept->attached, &stand.presenter);
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("first is attached")});
        stand.presenter.setMediaItemStrategy(stand.makeStrategy("second"));
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("first is detached"), QStringLiteral("first dies"),
                              QStringLiteral("second is attached")}));
        stand.presenter.setMediaItemStrategy(nullptr);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("second is detached"),
                                                QStringLiteral("second dies")}));
        stand.presenter.setMediaItemStrategy(nullptr);
        QCOMPARE(stand.log.take(), QStringList());
    }

    void aSharedStrategyLivesOn()
    {
        RequestStand stand;
        const auto shared = stand.makeStrategy("shared");
        stand.presenter.setMediaItemStrategy(shared);
        stand.presenter.setMediaItemStrategy(shared);
        QCOMPARE(stand.log.take(), (QStringList{QStringLiteral("shared is attached"),
                                                QStringLiteral("shared is detached"),
                                                QStringLiteral("shared is attached")}));
        QCOMPARE(shared->attached, &stand.presenter);
        stand.presenter.setMediaItemStrategy(nullptr);
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("shared is detached")});
        QVERIFY(!shared->attached);
    }

    void aStrategyIsDetachedWhenItsPresenterDies()
    {
        RequestStand stand;
        const auto shared = stand.makeStrategy("shared");
        {
            NxMediaItemManagerPresenter presenter(nullptr, nullptr);
            presenter.setMediaItemStrategy(shared);
            stand.log.take();
        }
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("shared is detached")});
    }

    void theStockProvidersStrategyKnowsWhomItServes()
    {
        RequestStand stand;
        const auto strategy = std::make_shared<NxVCGMediaItemStrategy>();
        QVERIFY(!strategy->presenter());
        stand.presenter.setMediaItemStrategy(strategy);
        QCOMPARE(strategy->presenter(), &stand.presenter);
        stand.presenter.setMediaItemStrategy(nullptr);
        QVERIFY(!strategy->presenter());
        auto presenter = std::make_unique<NxMediaItemManagerPresenter>(nullptr, nullptr);
        strategy->attach(presenter.get());
        QCOMPARE(strategy->presenter(), presenter.get());
        presenter.reset();
        QVERIFY(!strategy->presenter());
    }
};

NX_TEST_MAIN(tst_NxMediaItemManagerPresenter_requests)
#include "tst_NxMediaItemManagerPresenter_requests.moc"
