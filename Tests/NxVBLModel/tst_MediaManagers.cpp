// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaManager.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

#include "memoryengine.h"

namespace {

struct PlainFolders final : INxFolderMediaManager
{
    INxFolderMedia *rootFolder() override { return root; }
    INxFolderMedia *folder(int) override { return nullptr; }
    INxFolderMedia *root = nullptr;
};

struct PlainItems final : INxMediaItemManager
{
    bool registerObserver(INxMediaItemEventObserver *) override { return true; }
    void unregisterObserver(INxMediaItemEventObserver *) override {}
};

struct PlainManager final : INxMediaManager
{
    INxFolderMediaManager *folderManager() override { return nullptr; }
    INxMediaItemManager *itemManager() override { return nullptr; }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return NXVBLMODEL::mctAudio; }
};

} // namespace

/// What managers answer where an engine overrides nothing.
class tst_MediaManagers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersAreFixedByDefault();
    void folderObserversAreRefusedByDefault();
    void noMediaAreListedWithoutARoot();
    void allMediaAreThoseBelowTheRoot();
    void itemsAreFixedByDefault();
    void itemsBelongToNoCategoryByDefault();
    void nothingIsListedAtFirst();
    void lengthsOfFilesAreUnknownByDefault();
    void aCategoryImportsNothingByDefault();
    void noTimelineUsesACategoryByDefault();
    void lifeTokensExpireWithTheirManagers();
};

void tst_MediaManagers::foldersAreFixedByDefault()
{
    PlainFolders folders;
    MemoryFolder day(1001, QStringLiteral("day"), nullptr);
    QVERIFY(!folders.searchFolder());
    QVERIFY(!folders.itemManager());
    QVERIFY(!folders.addFolder(&day, QStringLiteral("new")));
    QVERIFY(!folders.canRemoveFolder(&day));
    QVERIFY(!folders.removeFolder(&day));
    QVERIFY(!folders.renameFolder(&day, QStringLiteral("night")));
    QVERIFY(!folders.moveFolder(&day, nullptr, 0));
    QCOMPARE(day.name(), QStringLiteral("day"));
}

void tst_MediaManagers::folderObserversAreRefusedByDefault()
{
    PlainFolders folders;
    INxMediaFolderEventObserver observer;
    QVERIFY(!folders.registerObserver(&observer));
    folders.unregisterObserver(&observer);
    QVERIFY(!folders.registerObserver(nullptr));
}

void tst_MediaManagers::noMediaAreListedWithoutARoot()
{
    PlainFolders folders;
    QVERIFY(folders.allMedia().isEmpty());
}

void tst_MediaManagers::allMediaAreThoseBelowTheRoot()
{
    MemoryFolder root(0, QString(), nullptr);
    auto *section = new MemoryFolder(1, QStringLiteral("Media"), &root);
    section->media.append(new MemoryMedia(QStringLiteral("a")));
    PlainFolders folders;
    folders.root = &root;
    QCOMPARE(folders.allMedia(), section->media);
}

void tst_MediaManagers::itemsAreFixedByDefault()
{
    PlainItems items;
    MemoryFolder day(1001, QStringLiteral("day"), nullptr);
    MemoryMedia media(QStringLiteral("a"));
    QVERIFY(!items.addMediaItems({&media}));
    QVERIFY(!items.addMediaItems(&day, {&media}));
    QVERIFY(!items.removeMediaItems(&day, {&media}));
    QVERIFY(!items.moveMediaItems(nullptr, &day, {&media}));
    QVERIFY(!items.renameMediaItem(&media, QStringLiteral("b")));
    QVERIFY(!items.setFavourite(&media, true));
    QVERIFY(!items.relinkMedia(&media, QStringLiteral("/clips/b.mp4")));
    items.removeDownloadRecords(&day, {&media});
    QVERIFY(day.media.isEmpty());
    QCOMPARE(media.name(), QStringLiteral("a"));
}

void tst_MediaManagers::itemsBelongToNoCategoryByDefault()
{
    const PlainItems items;
    QCOMPARE(items.categoryType(), NXVBLMODEL::mctNone);
    QVERIFY(!items.mediaManager());
}

void tst_MediaManagers::nothingIsListedAtFirst()
{
    PlainItems items;
    MemoryFolder day(1001, QStringLiteral("day"), nullptr);
    items.refresh(&day);
    items.resetResourceLoader(&day);
    items.onResourceReply(nullptr);
    QVERIFY(!items.currentRoot());
}

void tst_MediaManagers::lengthsOfFilesAreUnknownByDefault()
{
    QCOMPARE(PlainItems().readDuration(QStringLiteral("/clips/a.mp4")), qint64(-1));
}

void tst_MediaManagers::aCategoryImportsNothingByDefault()
{
    PlainManager manager;
    manager.setProject(nullptr);
    QVERIFY(!manager.importer());
}

void tst_MediaManagers::noTimelineUsesACategoryByDefault()
{
    const PlainManager manager;
    QVERIFY(!manager.isTimelineMedia());
    QVERIFY(!manager.isTimelineResource());
}

void tst_MediaManagers::lifeTokensExpireWithTheirManagers()
{
    auto folders = std::make_unique<PlainFolders>();
    auto items = std::make_unique<PlainItems>();
    const std::weak_ptr<void> ofFolders = folders->lifeToken();
    const std::weak_ptr<void> ofItems = items->lifeToken();
    QVERIFY(!ofFolders.expired());
    QVERIFY(!ofItems.expired());
    folders.reset();
    QVERIFY(ofFolders.expired());
    QVERIFY(!ofItems.expired());
    items.reset();
    QVERIFY(ofItems.expired());
}

NX_TEST_MAIN(tst_MediaManagers)
#include "tst_MediaManagers.moc"
