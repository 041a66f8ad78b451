// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCloudResouceReplyObserver.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/NxVCGMediaNumObserver.h>
#include <NxVBLModel/ResourceLoadReplyInfo.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct CountObserver final : NxVCGMediaNumObserver
{
    void onVCGMediaNumChanged(int total) override { last = total; }
    int last = -1;
};

struct FolderObserver final : INxMediaFolderEventObserver
{
    void onBeforeAddFolderEvent(INxFolderMedia *, const int &first, const int &last) override
    {
        rows = {first, last};
    }
    QPair<int, int> rows{-1, -1};
};

} // namespace

/// An observer overrides what it wants to hear and is left alone with the rest.
class tst_MediaObservers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anItemObserverMayIgnoreEverything();
    void aFolderObserverMayIgnoreEverything();
    void aReplyObserverMayIgnoreEverything();
    void aFolderObserverHearsRows();
    void aCountObserverHearsTheTotal();
    void aReplyIsEmptyAtFirst();
};

void tst_MediaObservers::anItemObserverMayIgnoreEverything()
{
    INxMediaItemEventObserver observer;
    observer.onBeforeAddItemEvent(nullptr, nullptr);
    observer.onAfterAddItemEvent(nullptr, nullptr);
    observer.onBeforeRemoveItemEvent(nullptr, nullptr);
    observer.onAfterRemoveItemEvent(nullptr, nullptr);
    observer.onBeforeMoveItemEvent(nullptr, nullptr, nullptr);
    observer.onAfterMoveItemEvent(nullptr, nullptr, nullptr);
    observer.onRenameFolderEvent(nullptr);
    observer.onBeforeClearItemsEvent(nullptr);
    observer.onAfterClearItemsEvent(nullptr);
    observer.onRenameItemEvent(nullptr, nullptr);
    observer.onMediaStateChangedEvent(nullptr);
    observer.onDownloadProgressEvent(nullptr, NXVBLMODEL::dkIcon, 0, 0);
    observer.onDownloadFinishedEvent(nullptr, NXVBLMODEL::dkIcon, false);
    observer.onFetchMoreStateChangedEvent(nullptr, INxFolderMedia::FetchMoreNone);
    observer.onAllMediaChangedFinishEvent(nullptr);
    observer.onVCGDownloadLimit();
    QVERIFY(dynamic_cast<INxMediaItemEventObserver *>(&observer));
}

void tst_MediaObservers::aFolderObserverMayIgnoreEverything()
{
    INxMediaFolderEventObserver observer;
    observer.onBeforeAddFolderEvent(nullptr, 0, 0);
    observer.onAfterAddFolderEvent();
    observer.onBeforeRemoveFolderEvent(nullptr, 0, 0);
    observer.onAfterRemoveFolderEvent();
    observer.onBeforeMoveFolderEvent();
    observer.onAfterMoveFolderEvent();
    observer.onFolderStateChangedEvent(nullptr);
    QVERIFY(dynamic_cast<INxMediaFolderEventObserver *>(&observer));
}

void tst_MediaObservers::aReplyObserverMayIgnoreEverything()
{
    INxCloudResouceReplyObserver observer;
    observer.onResourceLoadReply(nullptr);
    observer.onFetchMoreStateReply(nullptr, NXVBLMODEL::vmtNone, INxFolderMedia::FetchMoreNone);
    QVERIFY(dynamic_cast<INxCloudResouceReplyObserver *>(&observer));
}

void tst_MediaObservers::aFolderObserverHearsRows()
{
    FolderObserver observer;
    INxMediaFolderEventObserver &base = observer;
    base.onBeforeAddFolderEvent(nullptr, 2, 4);
    QCOMPARE(observer.rows, qMakePair(2, 4));
}

void tst_MediaObservers::aCountObserverHearsTheTotal()
{
    CountObserver observer;
    NxVCGMediaNumObserver &base = observer;
    base.onVCGMediaNumChanged(42);
    QCOMPARE(observer.last, 42);
}

void tst_MediaObservers::aReplyIsEmptyAtFirst()
{
    const ResourceLoadReplyInfo reply;
    QVERIFY(!reply.folder);
    QVERIFY(reply.items.isEmpty());
    QVERIFY(reply.sameSeries.isEmpty());
    QCOMPARE(reply.pageNo, 0);
    QCOMPARE(reply.searchType, 0);
    QCOMPARE(reply.state, INxFolderMedia::FetchMoreNone);
}

NX_TEST_MAIN(tst_MediaObservers)
#include "tst_MediaObservers.moc"
