// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxEngineResource.h>

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

/// What all eleven categories have in common, one body for all of them.
class tst_NxEngineCategory : public QObject
{
    Q_OBJECT

private:
    static void allCategories()
    {
        QTest::addColumn<int>("category");
        for (int category = 0; category < MediaCategoryCount; ++category)
            QTest::addRow("category %d", category) << category;
    }

    // Any item of the category; the user's own categories get one first.
    static NxEngineItem *anyItem(EngineFixture *project, NxEngineCategory *category)
    {
        if (category->categoryType() == mctMedia)
            return project->addMedia(project->section, QStringLiteral("clip.mov"));
        return category->resources().empty() ? nullptr : category->resources().front().get();
    }

private Q_SLOTS:
    void theHiddenRootTakesNothingAndHasNoParent_data() { allCategories(); }
    void theHiddenRootTakesNothingAndHasNoParent()
    {
        QFETCH(int, category);
        EngineFixture project;
        const NxEngineCategory *one = project.memory.category(category);
        const NxEngineFolder *root = one->root();
        QCOMPARE(root->folderId(), int(fidHiddenRoot));
        QCOMPARE(root->kind(), int(fkNone));
        QCOMPARE(root->depth(), 0);
        QCOMPARE(root->parentFolder(), nullptr);
        QCOMPARE(root->owner(), nullptr);
        QCOMPARE(root->rowInParent(), -1);
        QVERIFY(!root->canAddMedia());
        QVERIFY(!root->canAddFolder());
        QVERIFY(root->isSpecial());
        QVERIFY(!root->isCategoryTreeFolder());
        QCOMPARE(root->mediaManager(), one);
    }

    void sectionsStandBelowTheRootAndOwnThemselves_data() { allCategories(); }
    void sectionsStandBelowTheRootAndOwnThemselves()
    {
        QFETCH(int, category);
        EngineFixture project;
        NxEngineCategory *one = project.memory.category(category);
        QVERIFY(!one->root()->children().empty());
        int row = 0;
        for (NxEngineFolder *section : one->root()->children()) {
            QCOMPARE(section->depth(), 1);
            QCOMPARE(section->owner(), section);
            QCOMPARE(section->rowInParent(), row++);
            QCOMPARE(one->folder(section->folderId()), section);
            QVERIFY(section->isSpecial());
            QVERIFY(section->isCategoryTreeFolder());
            QVERIFY(!one->folderManager()->canRemoveFolder(section));
            QVERIFY(!one->folderManager()->renameFolder(section, QStringLiteral("x")));
        }
        QCOMPARE(one->folder(4711), nullptr);
    }

    void itemsCanBeRenamedMarkedAndFoundAgain_data() { allCategories(); }
    void itemsCanBeRenamedMarkedAndFoundAgain()
    {
        QFETCH(int, category);
        EngineFixture project;
        NxEngineCategory *one = project.memory.category(category);
        NxEngineItem *item = anyItem(&project, one);
        if (!item) {
            QCOMPARE(category, int(mctReserved)); // The one category that is empty.
            QVERIFY(one->root()->items(true, true).isEmpty());
            return;
        }
        const QByteArray before = projectDump(project.memory);
        EngineEvents events(one);

        QVERIFY(one->itemManager()->renameMediaItem(item, QStringLiteral("  Mine ")));
        QCOMPARE(item->name(), QStringLiteral("Mine"));
        QCOMPARE(events.take().first(),
                 QStringLiteral("renamed Mine < %1").arg(item->parentFolder()->name()));

        QVERIFY(one->itemManager()->setFavourite(item, true));
        QVERIFY(item->isFavourite());
        QVERIFY(item->favouriteTime().isValid());
        QCOMPARE(events.take().last(), QStringLiteral("state Mine"));

        QCOMPARE(item->parentFolder()->findMedia(item->mediaId(), true), item);
        QCOMPARE(one->root()->findMedia(item->mediaId(), true), item);
        QVERIFY(one->root()->containsMedia(item, true));
        QVERIFY(one->root()->items(true, true).contains(item));
        QVERIFY(events.complaints.isEmpty());

        QVERIFY(project.undo->undo());
        QVERIFY(project.undo->undo());
        QCOMPARE(projectDump(project.memory), before);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }

    void favouriteResourcesAreGuestsOfTheFavourites_data() { allCategories(); }
    void favouriteResourcesAreGuestsOfTheFavourites()
    {
        QFETCH(int, category);
        EngineFixture project;
        NxEngineCategory *one = project.memory.category(category);
        NxEngineFolder *favourites = one->section(fkFavourites);
        const bool hasFavourites = category != mctMedia && category != mctReserved;
        QCOMPARE(favourites != nullptr, hasFavourites);
        if (!favourites)
            return;
        NxEngineItem *item = anyItem(&project, one);
        const int count = one->root()->items(true, true).size();
        EngineEvents events(one);

        one->itemManager()->setFavourite(item, true);
        QCOMPARE(favourites->items(true, true), QList<INxAbstractMedia *>{item});
        QVERIFY(favourites->containsMedia(item, true));
        QVERIFY(item->parentFolder() != favourites); // Its home stays its home.
        QCOMPARE(one->root()->items(true, true).size(), count); // And it is listed there alone.
        QCOMPARE(events.take().size(), 3); // Before and after the add, and the state.

        one->itemManager()->setFavourite(item, false);
        QVERIFY(favourites->items(true, true).isEmpty());
        QVERIFY(!favourites->containsMedia(item, true));
        QCOMPARE(events.complaints, QStringList());
    }

    void timelinesUseMediaByFileAndResourcesById_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<bool>("media");
        QTest::addColumn<bool>("resource");
        QTest::newRow("media") << int(mctMedia) << true << false;
        for (int category = mctAudio; category <= mctVCGStock; ++category)
            QTest::addRow("resources %d", category) << category << false << true;
        QTest::newRow("templates") << int(mctTemplate) << false << false;
        QTest::newRow("reserved") << int(mctReserved) << false << false;
    }
    void timelinesUseMediaByFileAndResourcesById()
    {
        QFETCH(int, category);
        EngineFixture project;
        QTEST(project.memory.category(category)->isTimelineMedia(), "media");
        QTEST(project.memory.category(category)->isTimelineResource(), "resource");
    }

    void whereTheUserMayMakeFolders_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("sections");
        QTest::newRow("media") << int(mctMedia) << "1 2";
        for (int category = mctAudio; category <= mctSplitScreen; ++category)
            QTest::addRow("resources %d", category) << category << "1";
        for (int category = mctStockMedia; category <= mctReserved; ++category)
            QTest::addRow("fixed %d", category) << category << "";
    }
    void whereTheUserMayMakeFolders()
    {
        QFETCH(int, category);
        EngineFixture project;
        NxEngineCategory *one = project.memory.category(category);
        QStringList taking;
        for (NxEngineFolder *section : one->root()->children()) {
            if (one->folderManager()->addFolder(section, QStringLiteral("Mine")))
                taking.append(QString::number(section->folderId()));
        }
        QTEST(taking.join(QLatin1Char(' ')), "sections");
    }

    void foldersAmongResourcesAreCustomOnes()
    {
        EngineFixture project;
        NxEngineCategory *titles = project.memory.category(mctTitle);
        NxEngineFolder *made =
            project.memory.addNewFolder(titles->folder(fidRoot), QStringLiteral("Mine"));
        QCOMPARE(made->kind(), int(fkCustom));
        QVERIFY(made->canAddMedia());
        QCOMPARE(made->owner(), titles->folder(fidRoot));
        QCOMPARE(project.memory.addNewFolder(project.section, QStringLiteral("Mine"))->kind(),
                 int(fkNone));
    }

    void theStockProviderBeginsAtItsHome()
    {
        EngineFixture project;
        const NxEngineCategory *provider = project.memory.category(mctVCGStock);
        QCOMPARE(provider->folder(fidRoot)->folderId(), int(fkStockHome));
        for (const int online :
             {fkStockHome, fkStockImageChoice, fkStockAudioChoice, fkStockVideoChoice})
            QVERIFY(provider->folder(online)->holdsMediaType(fkOnline));
        for (const int local : {fkFavourites, fkDownloaded, fkDownloadRecord})
            QVERIFY(!provider->folder(local)->holdsMediaType(fkOnline));
    }

    void resourceIdsAreTheSameInEveryProject()
    {
        EngineFixture one;
        EngineFixture other;
        for (int category = 0; category < MediaCategoryCount; ++category) {
            const auto &here = one.memory.category(category)->resources();
            const auto &there = other.memory.category(category)->resources();
            QCOMPARE(here.size(), there.size());
            for (size_t i = 0; i < here.size(); ++i)
                QCOMPARE(here[i]->mediaId(), there[i]->mediaId());
        }
    }

    void resourcesAreNotRemoved()
    {
        EngineFixture project;
        NxEngineCategory *titles = project.memory.category(mctTitle);
        NxEngineItem *item = titles->resources().front().get();
        QVERIFY(!titles->itemManager()->removeMediaItems(nullptr, {item}));
        QVERIFY(item->parentFolder());
    }
};

NX_TEST_MAIN(tst_NxEngineCategory)
#include "tst_NxEngineCategory.moc"
