// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxVCGMediaItemStrategy.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "LibraryStand.h"
#include "ScriptedProject.h"

using namespace NXVBLMODEL;

namespace {

/// The strategy of the presenter that observes a category's items; null when it has none.
NxVCGMediaItemStrategy *strategyOver(ScriptedCategory *category)
{
    NxVCGMediaItemStrategy *strategy = nullptr;
    category->items.observers.tell([&strategy](INxMediaItemEventObserver *observer) {
        auto *half = dynamic_cast<NxMediaItemManagerPresenterPrivate *>(observer);
        if (half)
            strategy = dynamic_cast<NxVCGMediaItemStrategy *>(half->strategy.get());
    });
    return strategy;
}

void addCategories()
{
    QTest::addColumn<int>("code");
    for (int code = mctMedia; code < MediaCategoryCount; ++code)
        QTest::addRow("category %d", code) << code;
}

NxMediaCategoryType fetchedCategory()
{
    QFETCH(int, code);
    return NxMediaCategoryType(code);
}

} // namespace

/// The top of the panel: its categories, each made when it is first asked for, and which one is
/// shown.
class tst_NxMediaLibraryPresenter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void beginsWithoutACategory()
    {
        LibraryStand stand;
        QCOMPARE(stand.presenter.mediaLibrary(), static_cast<INxMediaLibrary *>(&stand.library));
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
        QVERIFY(!stand.presenter.currentMediaCategoryPresenter());
        QVERIFY(stand.presenter.children().isEmpty());
        QCOMPARE(stand.log.take(), QStringList());
    }

    void tellsOneThingOnly()
    {
        const QMetaObject &meta = NxMediaLibraryPresenter::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
                 QByteArray("sigCurrentCategoryTypeChanged()"));
    }

    void aCategoryIsMadeWhenItIsFirstAskedFor_data() { addCategories(); }

    void aCategoryIsMadeWhenItIsFirstAskedFor()
    {
        const NxMediaCategoryType type = fetchedCategory();
        LibraryStand stand;
        ScriptedCategory &category = stand.library[type];
        NxMediaCategoryPresenter *made = stand.presenter.getMediaCategoryPresenter(type);
        QVERIFY(made);
        QCOMPARE(made->mediaManager(), static_cast<INxMediaManager *>(&category));
        QCOMPARE(made->parent(), static_cast<QObject *>(&stand.presenter));
        QCOMPARE(stand.presenter.getMediaCategoryPresenter(type), made);
        QCOMPARE(stand.presenter.findChildren<NxMediaCategoryPresenter *>().size(), 1);
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void everyCategoryHasAPresenterOfItsOwn()
    {
        LibraryStand stand;
        QSet<NxMediaCategoryPresenter *> made;
        for (int type = mctMedia; type < MediaCategoryCount; ++type) {
            stand.library[NxMediaCategoryType(type)];
            made.insert(stand.presenter.getMediaCategoryPresenter(NxMediaCategoryType(type)));
        }
        QCOMPARE(made.size(), int(MediaCategoryCount));
        QVERIFY(!made.contains(nullptr));
    }

    void aCategoryThatTheLibraryLacksIsAskedForAgain()
    {
        LibraryStand stand;
        QVERIFY(!stand.presenter.getMediaCategoryPresenter(mctElement));
        QVERIFY(!stand.presenter.getMediaCategoryPresenter(mctNone));
        stand.library[mctElement];
        QVERIFY(stand.presenter.getMediaCategoryPresenter(mctElement));
        QVERIFY(!stand.presenter.getMediaCategoryPresenter(mctNone));
    }

    void livesWithoutALibrary()
    {
        NxMediaLibraryPresenter presenter(nullptr, nullptr);
        QVERIFY(!presenter.mediaLibrary());
        QVERIFY(!presenter.getMediaCategoryPresenter(mctMedia));
        presenter.setCurrentCategoryType(mctMedia);
        QVERIFY(!presenter.currentMediaCategoryPresenter());
    }

    void onlyTitlesAreGivenTheOpenProject_data() { addCategories(); }

    void onlyTitlesAreGivenTheOpenProject()
    {
        const NxMediaCategoryType type = fetchedCategory();
        LibraryStand stand;
        ScriptedProject project(&stand.log.lines);
        stand.engine.project = &project;
        ScriptedCategory &category = stand.library[type];
        QVERIFY(stand.presenter.getMediaCategoryPresenter(type));
        QVERIFY(stand.presenter.getMediaCategoryPresenter(type));
        const QList<INxProject *> handed =
            type == mctTitle ? QList<INxProject *>{&project} : QList<INxProject *>();
        QCOMPARE(category.projects, handed);
    }

    void titlesAreToldWhenNoProjectIsOpen()
    {
        LibraryStand stand;
        ScriptedCategory &titles = stand.library[mctTitle];
        QVERIFY(stand.presenter.getMediaCategoryPresenter(mctTitle));
        QCOMPARE(titles.projects, QList<INxProject *>{nullptr});
    }

    void onlyTheStockProviderHasAStrategy_data() { addCategories(); }

    void onlyTheStockProviderHasAStrategy()
    {
        const NxMediaCategoryType type = fetchedCategory();
        LibraryStand stand;
        ScriptedCategory &category = stand.library[type];
        NxMediaItemManagerPresenter *items =
            stand.presenter.getMediaCategoryPresenter(type)->mediaItemManagerPresenter();
        const NxVCGMediaItemStrategy *strategy = strategyOver(&category);
        QCOMPARE(strategy != nullptr, type == mctVCGStock);
        if (strategy)
            QCOMPARE(strategy->presenter(), items);
    }

    void theShownCategoryIsToldOnce()
    {
        LibraryStand stand;
        QList<int> seen;
        connect(&stand.presenter, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                [&] { seen.append(stand.presenter.currentCategoryType()); });
        stand.presenter.setCurrentCategoryType(mctNone);
        QCOMPARE(seen, QList<int>());
        stand.presenter.setCurrentCategoryType(mctMedia);
        stand.presenter.setCurrentCategoryType(mctMedia);
        stand.presenter.setCurrentCategoryType(mctTemplate);
        stand.presenter.setCurrentCategoryType(mctNone);
        QCOMPARE(seen, (QList<int>{mctMedia, mctTemplate, mctNone}));
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("library: sigCurrentCategoryTypeChanged()"),
                              QStringLiteral("library: sigCurrentCategoryTypeChanged()"),
                              QStringLiteral("library: sigCurrentCategoryTypeChanged()")}));
    }

    void theShownCategoryIsMadeWhenItIsAskedFor()
    {
        LibraryStand stand;
        stand.library[mctEffect];
        stand.presenter.setCurrentCategoryType(mctEffect);
        QVERIFY(stand.presenter.findChildren<NxMediaCategoryPresenter *>().isEmpty());
        NxMediaCategoryPresenter *shown = stand.presenter.currentMediaCategoryPresenter();
        QVERIFY(shown);
        QCOMPARE(stand.presenter.getMediaCategoryPresenter(mctEffect), shown);
        stand.presenter.setCurrentCategoryType(mctNone);
        QVERIFY(!stand.presenter.currentMediaCategoryPresenter());
    }

    void takesItsCategoriesAlongAndLeavesTheModelAlone()
    {
        PresenterStand stand;
        ScriptedCategory &media = stand.library[mctMedia];
        QPointer<NxMediaCategoryPresenter> category;
        QPointer<NxMediaItemManagerPresenter> items;
        {
            NxMediaLibraryPresenter presenter(&stand.library, nullptr);
            category = presenter.getMediaCategoryPresenter(mctMedia);
            items = category->mediaItemManagerPresenter();
            QVERIFY(category->folderManagerPresenter());
            QVERIFY(!media.items.observers.isEmpty());
            QVERIFY(!media.folders.observers.isEmpty());
        }
        QVERIFY(!category);
        QVERIFY(!items);
        QVERIFY(media.items.observers.isEmpty());
        QVERIFY(media.folders.observers.isEmpty());
        QCOMPARE(stand.library.mediaManager(mctMedia), static_cast<INxMediaManager *>(&media));
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter)
#include "tst_NxMediaLibraryPresenter.moc"
