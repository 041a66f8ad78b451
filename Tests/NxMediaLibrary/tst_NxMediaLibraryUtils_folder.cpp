// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxVBLModel/INxExtraMedia.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

using Utils = NxMediaLibraryUtils;
using namespace NXVBLMODEL;
using Items = QList<INxAbstractMediaItem *>;
using Medias = QList<INxAbstractMedia *>;

class tst_NxMediaLibraryUtils_folder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsTheItemsOfAFolder();
    void listsWhatTheFolderLists();
    void nothingListsNothing();
    void takesTheItemsOutOfAList();
    void findsTheNearestFolderThatTakesMedia();
    void namesTheFolderOfAMedia();
    void knowsTheFixedFolders();
    void knowsFoldersOfAnOlderFormat();
    void noFolderIsNonCommercial();
};

void tst_NxMediaLibraryUtils_folder::listsTheItemsOfAFolder()
{
    UtilsFolder root(QStringLiteral("Project"));
    UtilsFolder day(QStringLiteral("Day 1"), &root);
    UtilsItem b;
    UtilsItem a;
    UtilsItem deep;
    UtilsMedia odd(mtVideo);
    root.own = {&b, nullptr, &odd, &a};
    day.own = {&deep};
    QCOMPARE(Utils::extractItems(&root, false), (Items{&b, &a}));
    QCOMPARE(Utils::extractItems(&root, true), (Items{&b, &a, &deep}));
    QCOMPARE(Utils::extractItems(&day, false), (Items{&deep}));
}

void tst_NxMediaLibraryUtils_folder::listsWhatTheFolderLists()
{
    UtilsFolder root(QStringLiteral("Project"));
    UtilsFolder day(QStringLiteral("Day 1"), &root);
    UtilsItem a;
    UtilsItem deep;
    root.own = {&a};
    day.own = {&deep};
    QCOMPARE(Utils::getMediaItemsFromFolderMedia(&root, false, true), (Medias{&a}));
    QCOMPARE(Utils::getMediaItemsFromFolderMedia(&root, false, false), (Medias{&a, &day}));
    QCOMPARE(Utils::getMediaItemsFromFolderMedia(&root, true, true), (Medias{&a, &deep}));
    QCOMPARE(Utils::getMediaItemsFromFolderMedia(&root, true, false), (Medias{&a, &day, &deep}));
}

void tst_NxMediaLibraryUtils_folder::nothingListsNothing()
{
    QVERIFY(Utils::extractItems(nullptr, true).isEmpty());
    QVERIFY(Utils::getMediaItemsFromFolderMedia(nullptr, true, true).isEmpty());
    QVERIFY(Utils::extractMediaItems(Medias()).isEmpty());
    QVERIFY(!Utils::findCanAddMediaFolder(nullptr));
    QCOMPARE(Utils::getParentFolderName(nullptr), QString());
    QVERIFY(!Utils::isSpecialFolder(nullptr));
    QVERIFY(!Utils::needConvertOldResource(nullptr));
}

void tst_NxMediaLibraryUtils_folder::takesTheItemsOutOfAList()
{
    const std::unique_ptr<INxGroupMedia, void (*)(INxGroupMedia *)> group(
        INxGroupMedia::createGroup(), &INxGroupMedia::releaseGroup);
    const std::unique_ptr<INxExtraMedia, void (*)(INxExtraMedia *)> tile(
        INxExtraMedia::createExtraMedia(mtImportTile), &INxExtraMedia::releaseExtraMedia);
    UtilsFolder folder(QStringLiteral("Clips"));
    UtilsItem a;
    UtilsItem b(mtTitle);
    Medias listed{group.get(), tile.get(), &b, &folder, nullptr, &a, &b};
    const Medias before = listed;
    QCOMPARE(Utils::extractMediaItems(listed), (Items{&b, &a, &b}));
    QCOMPARE(listed, before);
}

void tst_NxMediaLibraryUtils_folder::findsTheNearestFolderThatTakesMedia()
{
    UtilsFolder hidden;
    UtilsFolder section(QStringLiteral("Project"), &hidden);
    UtilsFolder folder(QStringLiteral("Day 1"), &section);
    QVERIFY(!Utils::findCanAddMediaFolder(&folder));
    section.takesMedia = true;
    QCOMPARE(Utils::findCanAddMediaFolder(&folder), &section);
    QCOMPARE(Utils::findCanAddMediaFolder(&section), &section);
    QVERIFY(!Utils::findCanAddMediaFolder(&hidden));
    folder.takesMedia = true;
    QCOMPARE(Utils::findCanAddMediaFolder(&folder), &folder);
}

void tst_NxMediaLibraryUtils_folder::namesTheFolderOfAMedia()
{
    UtilsFolder section(QStringLiteral("Project"));
    UtilsFolder results(QStringLiteral("sea"));
    results.search = true;
    UtilsItem item;
    QCOMPARE(Utils::getParentFolderName(&item), QString());
    item.parent = &section;
    QCOMPARE(Utils::getParentFolderName(&item), QStringLiteral("Project"));
    item.parent = &results;
    QCOMPARE(Utils::getParentFolderName(&item), QStringLiteral("Search"));
    UtilsFolder folder(QStringLiteral("Day 1"), &section);
    QCOMPARE(Utils::getParentFolderName(&folder), QStringLiteral("Project"));
    QCOMPARE(Utils::getParentFolderName(&section), QString());
}

void tst_NxMediaLibraryUtils_folder::knowsTheFixedFolders()
{
    UtilsFolder hidden;
    UtilsFolder section(QStringLiteral("Project"), &hidden);
    UtilsFolder folder(QStringLiteral("Day 1"), &section);
    UtilsFolder results(QStringLiteral("sea"), &folder);
    QVERIFY(Utils::isSpecialFolder(&hidden));
    QVERIFY(Utils::isSpecialFolder(&section));
    QVERIFY(!Utils::isSpecialFolder(&folder));
    QVERIFY(!Utils::isSpecialFolder(&results));
    results.search = true;
    QVERIFY(Utils::isSpecialFolder(&results));
}

void tst_NxMediaLibraryUtils_folder::knowsFoldersOfAnOlderFormat()
{
    UtilsFolder folder(QStringLiteral("Titles"));
    QVERIFY(!Utils::needConvertOldResource(&folder));
    folder.old = true;
    QVERIFY(Utils::needConvertOldResource(&folder));
}

void tst_NxMediaLibraryUtils_folder::noFolderIsNonCommercial()
{
    const UtilsFolder folder(QStringLiteral("Titles"));
    QVERIFY(!Utils::isNonCommercial(&folder));
    QVERIFY(!Utils::isNonCommercial(nullptr));
}

NX_TEST_MAIN(tst_NxMediaLibraryUtils_folder)
#include "tst_NxMediaLibraryUtils_folder.moc"
