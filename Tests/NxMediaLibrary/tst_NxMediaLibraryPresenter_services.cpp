// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxDataMessage.h>
#include <NxCore/NxLogCapture.h>
#include <NxCore/NxMessageType.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxVBLModel/INxAudioSyncService.h>
#include <NxVBLModel/NxMediaLibraryFindSimilarMessage.h>
#include <NxVBLModel/NxTimelineAudioSynMessage.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "LibraryStand.h"
#include "LogLines.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

const QString categoryChanged = QStringLiteral("library: sigCurrentCategoryTypeChanged()");

struct AnyLength final : INxAudioSyncService
{
    qint64 minLength() const override { return 0; }
    qint64 maxLength() const override { return 3600000; }
};

struct SimilarMessage : NxMediaLibraryFindSimilarMessage
{
    explicit SimilarMessage(NxMediaCategoryType category)
    {
        categoryType = category;
        resourceId = 77;
        keyword = QStringLiteral("/pictures/a.png");
    }
};

/// Stock media with a folder for what is found.
struct SimilarStand : LibraryStand
{
    SimilarStand()
    {
        found.searchFolder = true;
        stock.folders.search = &found;
    }
    QStringList searched() const
    {
        const QString refreshed = QStringLiteral("refresh found");
        return {QStringLiteral("items: sigFilterChanged()"),
                refreshed,
                refreshed,
                QStringLiteral("items: sigRootFolderChanged()"),
                QStringLiteral("items: sigFilterSimilarSearchChanged()"),
                QStringLiteral("items: sigSetSimilarSearchBar(/pictures/a.png, 7)")};
    }

    ScriptedItemFolder found{QStringLiteral("found")};
    ScriptedCategory &stock = library[mctStockMedia];
};

/// Two videos of the project that a service can align.
struct SyncStand : LibraryStand
{
    SyncStand()
    {
        engine.audioSync = &lengths;
        for (ScriptedItem *item : {first, second}) {
            item->info.infoKind = mikVideo;
            item->info.frames = 100;
            item->info.rate = {25, 1};
        }
        scene.look = [this](NxMessage *message) {
            if (const auto *sync = dynamic_cast<NxTimelineAudioSynMessage *>(message))
                sent = {sync->first, sync->second};
        };
    }
    bool ask()
    {
        NxMessage message(nmtStartAudioSync);
        return presenter.dispatchMessage(&message);
    }

    AnyLength lengths;
    ScriptedCategory &media = library[mctMedia];
    ScriptedItem *const first = media.list("first");
    ScriptedItem *const second = media.list("second");
    QList<INxAbstractMediaItem *> sent;
};

} // namespace

/// What the panel has services do for the rest of the editor.
class tst_NxMediaLibraryPresenter_services : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // What looks alike

    void aSimilarSearchIsShownInItsCategory()
    {
        SimilarStand stand;
        NxMediaItemManagerPresenter *items =
            stand.follow(mctStockMedia)->mediaItemManagerPresenter();
        SimilarMessage message(mctStockMedia);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{categoryChanged} + stand.searched());
        QCOMPARE(stand.presenter.currentCategoryType(), mctStockMedia);
        QCOMPARE(items->folder(), static_cast<INxFolderMedia *>(&stand.found));
        const NxMediaItemViewFilter filter = items->getFilter();
        QCOMPARE(filter.similarResourceId, 77);
        QCOMPARE(filter.similarCategory, int(mctStockMedia));
        QCOMPARE(filter.searchMode, int(esmSimilar));
        QVERIFY(filter.keyword.isEmpty());
        QVERIFY(filter.showBar);
    }

    void theSameSearchIsNotBegunTwice()
    {
        SimilarStand stand;
        stand.follow(mctStockMedia);
        SimilarMessage message(mctStockMedia);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        stand.log.take();
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
        stand.presenter.setCurrentCategoryType(mctMedia);
        stand.log.take();
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{categoryChanged});
    }

    void aListRevealsMoreAtOnce_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("isList");
        QTest::newRow("list") << int(vmList) << true;
        QTest::newRow("small") << int(vmSmallThumbnail) << false;
        QTest::newRow("middle") << int(vmMiddleThumbnail) << false;
        QTest::newRow("large") << int(vmLargeThumbnail) << false;
    }

    void aListRevealsMoreAtOnce()
    {
        QFETCH(int, mode);
        QFETCH(bool, isList);
        SimilarStand stand;
        NxMediaLibrarySetting::instance()->SetViewType(mctStockMedia, NxMediaItemViewMode(mode));
        NxMediaItemManagerPresenter *items =
            stand.follow(mctStockMedia)->mediaItemManagerPresenter();
        SimilarMessage message(mctStockMedia);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(items->getFilter().listView, isList);
    }

    void aSearchInAnUnknownCategoryShowsThatCategoryOnly()
    {
        SimilarStand stand;
        stand.follow(mctStockMedia);
        SimilarMessage message(mctElement);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{categoryChanged});
        QCOMPARE(stand.presenter.currentCategoryType(), mctElement);
    }

    void thePanelMayDieWhenTheSearchBegins()
    {
        SimilarStand stand;
        auto *panel = new NxMediaLibraryPresenter(&stand.library, nullptr);
        connect(panel, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                [panel] { delete panel; });
        SimilarMessage message(mctStockMedia);
        QVERIFY(panel->dispatchMessage(&message));
    }

    // Alignment by sound

    void theSelectionOfTheShownCategoryIsAligned()
    {
        SyncStand stand;
        stand.library[mctAudio];
        stand.follow(mctMedia)->mediaItemManagerPresenter()->setSelectedItems(
            {stand.second, stand.first});
        QVERIFY(stand.presenter.getMediaCategoryPresenter(mctAudio));
        stand.presenter.setCurrentCategoryType(mctMedia);
        QVERIFY(stand.ask());
        QCOMPARE(stand.scene.types, QList<int>{nmtTimelineAudioSync});
        QCOMPARE(stand.sent, (QList<INxAbstractMediaItem *>{stand.second, stand.first}));
    }

    void theSelectionOfOtherCategoriesIsNotAligned()
    {
        NxTestLog::expectError(QStringLiteral("not two medias selected"));
        SyncStand stand;
        stand.library[mctAudio];
        stand.follow(mctMedia)->mediaItemManagerPresenter()->setSelectedItems(
            {stand.first, stand.second});
        stand.presenter.setCurrentCategoryType(mctAudio);
        const NxLogCapture log;
        QVERIFY(stand.ask());
        QCOMPARE(linesOf(log),
                 QStringList{QStringLiteral("error NxMediaItemManagerPresenter::startAudioSyn: "
                                            "not two medias selected")});
        QCOMPARE(stand.scene.types, QList<int>());
    }

    void nothingIsAlignedWhenNoCategoryIsShown()
    {
        SyncStand stand;
        stand.follow(mctMedia)->mediaItemManagerPresenter()->setSelectedItems(
            {stand.first, stand.second});
        const NxLogCapture log;
        QVERIFY(stand.ask());
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.scene.types, QList<int>());
    }

    // Proxies

    void proxiesFollowTheSettings_data()
    {
        QTest::addColumn<bool>("createProxy");
        QTest::addColumn<bool>("resolutionChanged");
        QTest::addColumn<bool>("isAutomatic");
        QTest::addColumn<QStringList>("calls");
        const QString sized = QStringLiteral("proxies of 1080 px");
        const QString created = QStringLiteral("create proxies a deep");
        QTest::newRow("nothing changed") << false << false << true << QStringList();
        QTest::newRow("nothing changed, by hand") << false << false << false << QStringList();
        QTest::newRow("now") << true << false << true << QStringList{created};
        QTest::newRow("now, by hand") << true << false << false << QStringList();
        QTest::newRow("another size") << false << true << true << QStringList{sized, created};
        QTest::newRow("another size, by hand") << false << true << false << QStringList{sized};
        QTest::newRow("both") << true << true << true << QStringList{sized, created};
        QTest::newRow("both, by hand") << true << true << false << QStringList{sized};
    }

    void proxiesFollowTheSettings()
    {
        QFETCH(bool, createProxy);
        QFETCH(bool, resolutionChanged);
        QFETCH(bool, isAutomatic);
        QFETCH(QStringList, calls);
        LibraryStand stand;
        stand.engine.proxies = &stand.proxies;
        NxPerformanceSettings &performance = NxAppSettings::instance()->performance();
        performance.setAutoProxyResolution(1080);
        performance.setAutoCreateProxy(isAutomatic);
        ScriptedCategory &media = stand.library[mctMedia];
        media.list("a");
        media.list(QStringLiteral("deep"), media.addFolder("folder", media.section));
        stand.library[mctAudio].list("other");
        NxDataMessage message(createProxy, resolutionChanged);
        QVERIFY(!stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), calls);
    }

    void noProxiesAreMadeWithoutTheProjectsMedia()
    {
        LibraryStand stand;
        stand.engine.proxies = &stand.proxies;
        NxAppSettings::instance()->performance().setAutoCreateProxy(true);
        NxDataMessage message(true, true);
        QVERIFY(!stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("proxies of 720 px")});
        ScriptedCategory &media = stand.library[mctMedia];
        media.hasFolders = false;
        QVERIFY(!stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("proxies of 720 px")});
    }

    void theEngineTellsOnceThatItMakesNoProxies()
    {
        LibraryStand stand;
        stand.library[mctMedia].list("a");
        NxAppSettings::instance()->performance().setAutoCreateProxy(true);
        const NxLogCapture log;
        NxDataMessage message(true, true);
        QVERIFY(!stand.presenter.dispatchMessage(&message));
        QVERIFY(!stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList{QStringLiteral("info INxMediaEngine::proxyService: "
                                                          "the media engine offers no proxy "
                                                          "service")});
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter_services)
#include "tst_NxMediaLibraryPresenter_services.moc"
