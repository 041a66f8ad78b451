// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ToolRow.h>

#include <Brevano/window/FoldedTools.h>
#include <Brevano/window/SearchField.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/PanelYard.h>
#include <NxMediaLibrary/ScriptedItemFolder.h>
#include <NxMediaLibrary/TextLines.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace NXMEDIALIBRARY;
using Id = PanelActions::Id;
using Items = NxMediaItemManagerPresenter;

namespace {

const QStringList ByImport = lines({"c.mov", "a.jpg", "b.wav", "d.mov"});

/// A window of its own actions with a row of tools.
struct Tools
{
    Tools()
    {
        auto *column = new QVBoxLayout(&window);
        column->addWidget(row);
        column->addStretch();
        window.resize(1000, 200);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QAction *action(Id id) const { return actions->action(id); }
    QToolButton *button(const char *name) const
    {
        return row->findChild<QToolButton *>(QLatin1String(name));
    }
    QToolButton *button(Id id) const
    {
        return qobject_cast<QToolButton *>(bar()->widgetForAction(action(id)));
    }
    QToolBar *bar() const { return row->findChild<QToolBar *>(); }
    QToolButton *folded() const { return FoldedTools::button(bar()); }
    QStringList entries(const char *name) const
    {
        QStringList texts;
        const QList<QAction *> all = button(name)->defaultAction()->menu()->actions();
        for (const QAction *entry : all) {
            if (!entry->isSeparator())
                texts.append(entry->text());
        }
        return texts;
    }
    QStringList checked(const char *name) const
    {
        QStringList texts;
        const QList<QAction *> all = button(name)->defaultAction()->menu()->actions();
        for (const QAction *entry : all) {
            if (entry->isChecked())
                texts.append(entry->text());
        }
        return texts;
    }
    /// Opens a menu with the mouse and clicks on an entry.
    void choose(const char *name, const QString &entry) const
    {
        bool isChosen = false;
        QTimer::singleShot(0, row, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            const QList<QAction *> all = menu->actions();
            for (QAction *one : all) {
                if (isChosen || one->text() != entry)
                    continue;
                isChosen = true;
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(one).center());
            }
            menu->close();
        });
        QTest::mouseClick(button(name), Qt::LeftButton);
        QVERIFY2(isChosen, qPrintable(entry));
    }
    /// All that the row shows of its presenter.
    QStringList look() const
    {
        QStringList look = checked("sort") + checked("group") + checked("type");
        for (const Id id : {Id::ViewList, Id::ViewSmall, Id::ViewMiddle, Id::ViewLarge}) {
            if (action(id)->isChecked())
                look.append(action(id)->text());
        }
        look.append(row->searchField()->findChild<QLineEdit *>()->text());
        return look;
    }

    QWidget window;
    PanelActions *const actions = new PanelActions(&window);
    ToolRow *const row = new ToolRow(actions, &window);
};

/// Four media in the panel, sorted by name, and a row of tools for them.
struct Yard : PanelYard
{
    Yard()
    {
        add(ByImport);
        tools.row->setPresenter(items());
    }

    Tools tools;
};

} // namespace

/// The tools above the list of media.
class tst_ToolRow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mediaAreSorted_data();
    void mediaAreSorted();
    void theOrderOfImportHasNoDirection();
    void mediaAreGrouped_data();
    void mediaAreGrouped();
    void groupsDescend();
    void whatCannotBeGroupedSaysWhy();
    void theServicesOrderIsNotGrouped();
    void viewModesExcludeEachOther();
    void mediaAreFilteredByType_data();
    void mediaAreFilteredByType();
    void filtersAreCleared();
    void thereIsAKeyForTheSearch();
    void theImportMenuHasBothWays();
    void categoriesOfferTheirOwnKeys();
    void twoRowsNeverDisagree();
    void aForeignChoiceChecksNothing();
    void withoutAPresenterEverythingIsOff();
    void aPresenterMayDie();
    void textsGiveWayToIcons();
    void everyToolCanBeReachedWhenThereIsNoRoom();
    void toolsAreReachedByTab();
    void textsFollowTheLanguage();
};

void tst_ToolRow::mediaAreSorted_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<NxMediaItemViewSortBy>("key");
    const auto row = [](const char *entry, NxMediaItemViewSortBy key) {
        QTest::newRow(entry) << QString::fromLatin1(entry) << key;
    };
    row("Name", sbName);
    row("Used", sbUsed);
    row("Type", sbType);
    row("Frame Rate", sbFrameRate);
    row("In Point", sbInPoint);
    row("Out Point", sbOutPoint);
    row("Duration", sbDuration);
    row("Resolution", sbResolution);
    row("Audio Info", sbAudioInfo);
    row("Date Created", sbDateCreated);
    row("Order of Import", sbNone);
}

void tst_ToolRow::mediaAreSorted()
{
    QFETCH(const QString, entry);
    QFETCH(const NxMediaItemViewSortBy, key);
    const Yard yard;
    const NxMediaItemViewSortBy other = key == sbName ? sbType : sbName;
    yard.items()->setSortBy({other, soDESC});
    QVERIFY(!yard.tools.checked("sort").contains(entry));
    yard.tools.choose("sort", entry);
    QCOMPARE(yard.items()->getSortBy(), (NxMediaItemViewSort{key, soDESC}));
    QVERIFY(yard.tools.checked("sort").contains(entry));
    QVERIFY(yard.tools.button("sort")->toolTip().contains(entry));
}

void tst_ToolRow::theOrderOfImportHasNoDirection()
{
    const Yard yard;
    const QAction *descending = yard.tools.action(Id::SortDescending);
    QCOMPARE(yard.rows(), lines({"a.jpg", "b.wav", "c.mov", "d.mov"}));
    yard.tools.choose("sort", descending->text());
    QCOMPARE(yard.rows(), lines({"d.mov", "c.mov", "b.wav", "a.jpg"}));
    QVERIFY(descending->isChecked());
    yard.tools.choose("sort", QStringLiteral("Order of Import"));
    QCOMPARE(yard.rows(), ByImport);
    QVERIFY(!descending->isEnabled());
    yard.tools.choose("sort", QStringLiteral("Name"));
    QCOMPARE(yard.rows(), lines({"d.mov", "c.mov", "b.wav", "a.jpg"}));
    QVERIFY(descending->isEnabled());
}

void tst_ToolRow::mediaAreGrouped_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<NxMediaItemViewGroupBy>("key");
    QTest::newRow("type") << QStringLiteral("Type") << gbType;
    QTest::newRow("date") << QStringLiteral("Date Created") << gbDateCreated;
    QTest::newRow("duration") << QStringLiteral("Duration") << gbDuration;
    QTest::newRow("camera") << QStringLiteral("Camera") << gbCameraName;
    QTest::newRow("none") << QStringLiteral("No Groups") << gbNone;
}

void tst_ToolRow::mediaAreGrouped()
{
    QFETCH(const QString, entry);
    QFETCH(const NxMediaItemViewGroupBy, key);
    const Yard yard;
    const NxMediaItemViewGroupBy other = key == gbType ? gbDuration : gbType;
    yard.items()->setGroupBy({other, soASC, nullptr});
    yard.tools.choose("group", entry);
    QCOMPARE(yard.items()->getGroupBy().groupBy, key);
    QCOMPARE(yard.tools.checked("group"), QStringList{entry});
    QVERIFY(yard.tools.button("group")->toolTip().contains(entry));
    QCOMPARE(yard.tools.action(Id::GroupDescending)->isEnabled(), key != gbNone);
}

void tst_ToolRow::groupsDescend()
{
    const Yard yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    QCOMPARE(yard.rows(), lines({"c.mov", "d.mov", "a.jpg", "b.wav"}));
    yard.tools.action(Id::GroupDescending)->trigger();
    QCOMPARE(yard.items()->getGroupBy().groupBy, gbType);
    QCOMPARE(yard.rows(), lines({"b.wav", "a.jpg", "c.mov", "d.mov"}));
    yard.tools.action(Id::GroupDescending)->trigger();
    QCOMPARE(yard.items()->getGroupBy().order, soASC);
}

void tst_ToolRow::whatCannotBeGroupedSaysWhy()
{
    const Yard yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    QVERIFY(yard.tools.button("group")->isEnabled());
    yard.items()->setFilterKeyword(QStringLiteral("a"), esmKeyword);
    QVERIFY(!yard.tools.button("group")->isEnabled());
    QVERIFY(!yard.tools.action(Id::GroupDescending)->isEnabled());
    QCOMPARE(yard.tools.button("group")->toolTip(),
             QStringLiteral("What a search finds is not grouped"));
    yard.items()->setFilterKeyword(QString(), esmKeyword);
    QVERIFY(yard.tools.button("group")->isEnabled());
    QVERIFY(yard.tools.action(Id::GroupDescending)->isEnabled());
}

void tst_ToolRow::theServicesOrderIsNotGrouped()
{
    const Tools tools;
    ScriptedItemFolder root;
    ScriptedItemFolder *found = root.append(std::make_unique<ScriptedItemFolder>());
    found->searchResult = true;
    ScriptedItemFolder *online = root.append(
        std::make_unique<ScriptedItemFolder>(QStringLiteral("online"), NXVBLMODEL::fkOnline));
    Items items(nullptr, nullptr);
    tools.row->setPresenter(&items);
    QVERIFY(tools.button("group")->toolTip().startsWith(QLatin1String("No folder")));
    items.setFolder(online);
    QVERIFY(!tools.button("group")->isEnabled());
    QVERIFY(tools.button("group")->toolTip().contains(QLatin1String("service")));
    items.setFolder(found);
    QVERIFY(!tools.button("group")->isEnabled());
    QVERIFY(tools.button("group")->toolTip().contains(QLatin1String("search")));
}

void tst_ToolRow::viewModesExcludeEachOther()
{
    const Yard yard;
    const QVector<QPair<Id, NxMediaItemViewMode>> modes{{Id::ViewList, vmList},
                                                        {Id::ViewSmall, vmSmallThumbnail},
                                                        {Id::ViewMiddle, vmMiddleThumbnail},
                                                        {Id::ViewLarge, vmLargeThumbnail}};
    for (const auto &chosen : modes) {
        // The second click changes nothing.
        for (int click = 0; click < 2; ++click) {
            QTest::mouseClick(yard.tools.button(chosen.first), Qt::LeftButton);
            QCOMPARE(yard.items()->viewMode(), chosen.second);
            for (const auto &one : modes)
                QCOMPARE(yard.tools.action(one.first)->isChecked(), one.first == chosen.first);
        }
    }
    yard.items()->setViewMode(vmList);
    QVERIFY(yard.tools.action(Id::ViewList)->isChecked());
    QVERIFY(!yard.tools.action(Id::ViewLarge)->isChecked());
}

void tst_ToolRow::mediaAreFilteredByType_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("video") << QStringLiteral("Video") << lines({"c.mov", "d.mov"});
    QTest::newRow("photo") << QStringLiteral("Photo") << lines({"a.jpg"});
    QTest::newRow("audio") << QStringLiteral("Audio") << lines({"b.wav"});
    QTest::newRow("subtitle") << QStringLiteral("Subtitle") << QStringList();
    QTest::newRow("all") << QStringLiteral("All") << lines({"a.jpg", "b.wav", "c.mov", "d.mov"});
}

void tst_ToolRow::mediaAreFilteredByType()
{
    QFETCH(const QString, entry);
    const Yard yard;
    yard.tools.choose("type", QStringLiteral("Audio"));
    yard.tools.choose("type", entry);
    QTEST(yard.rows(), "rows");
    QCOMPARE(yard.tools.checked("type"), QStringList{entry});
    QCOMPARE(yard.tools.button("type")->isChecked(), entry != QLatin1String("All"));
    QVERIFY(yard.tools.button("type")->toolTip().contains(entry));
}

void tst_ToolRow::filtersAreCleared()
{
    const Yard yard;
    const QAction *clear = yard.tools.action(Id::ClearFilters);
    QVERIFY(!clear->isEnabled());
    yard.items()->setFilterKeyword(QStringLiteral("c"), esmKeyword);
    QVERIFY(clear->isEnabled());
    yard.tools.choose("type", QStringLiteral("Video"));
    QCOMPARE(yard.rows(), lines({"c.mov"}));
    yard.tools.choose("type", clear->text());
    QCOMPARE(yard.rows(), lines({"a.jpg", "b.wav", "c.mov", "d.mov"}));
    QCOMPARE(yard.tools.checked("type"), lines({"All"}));
    QVERIFY(!clear->isEnabled());
}

void tst_ToolRow::thereIsAKeyForTheSearch()
{
    const Yard yard;
    QTest::keySequence(yard.tools.row, yard.tools.action(Id::Find)->shortcut());
    auto *edit = yard.tools.row->searchField()->findChild<QLineEdit *>();
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(edit, QStringLiteral("wav"));
    QCOMPARE(yard.rows(), lines({"b.wav"}));
}

void tst_ToolRow::theImportMenuHasBothWays()
{
    const Yard yard;
    QStringList used;
    for (const Id id : {Id::ImportFiles, Id::ImportFolder}) {
        const QAction *action = yard.tools.action(id);
        connect(action, &QAction::triggered, &yard.tools.window,
                [&used, action] { used.append(action->text()); });
    }
    const QStringList entries = yard.tools.entries("import");
    QCOMPARE(entries, lines({"&Import Files...", "Import &Folder..."}));
    for (const QString &entry : entries)
        yard.tools.choose("import", entry);
    QCOMPARE(used, entries);
}

void tst_ToolRow::categoriesOfferTheirOwnKeys()
{
    const Yard yard;
    QCOMPARE(
        yard.tools.entries("sort"),
        lines({"Name", "Used", "Type", "Frame Rate", "In Point", "Out Point", "Duration",
               "Resolution", "Audio Info", "Date Created", "Order of Import", "Sort &Descending"}));
    QCOMPARE(yard.tools.entries("group"), lines({"No Groups", "Type", "Date Created", "Duration",
                                                 "Camera", "Groups D&escending"}));
    yard.tools.row->setPresenter(
        yard.library->getMediaCategoryPresenter(NXVBLMODEL::mctAudio)->mediaItemManagerPresenter());
    QCOMPARE(yard.tools.entries("sort"), lines({"Newest", "Name", "Favorite", "Category",
                                                "Order of Import", "Sort &Descending"}));
    QCOMPARE(yard.tools.entries("group"), lines({"No Groups", "Category", "Groups D&escending"}));
    QCOMPARE(yard.tools.entries("type"),
             lines({"All", "Video", "Photo", "Audio", "Subtitle", "&Clear Filters"}));
}

void tst_ToolRow::twoRowsNeverDisagree()
{
    const Yard yard;
    const Tools other;
    other.row->setPresenter(yard.items());
    const auto agree = [&](const QString &choice) {
        return yard.tools.look() == other.look() && other.look().contains(choice);
    };
    yard.tools.choose("sort", QStringLiteral("Duration"));
    QVERIFY(agree(QStringLiteral("Duration")));
    other.choose("sort", QStringLiteral("Order of Import"));
    QVERIFY(agree(QStringLiteral("Order of Import")));
    yard.tools.choose("sort", QStringLiteral("Name"));
    yard.tools.action(Id::SortDescending)->trigger();
    QVERIFY(agree(QStringLiteral("Sort &Descending")));
    other.choose("group", QStringLiteral("Camera"));
    QVERIFY(agree(QStringLiteral("Camera")));
    yard.tools.action(Id::GroupDescending)->trigger();
    QVERIFY(agree(QStringLiteral("Groups D&escending")));
    other.choose("type", QStringLiteral("Photo"));
    QVERIFY(agree(QStringLiteral("Photo")));
    QTest::mouseClick(yard.tools.button(Id::ViewList), Qt::LeftButton);
    QVERIFY(agree(QStringLiteral("&List")));
    QTest::keyClicks(other.row->searchField()->findChild<QLineEdit *>(), QStringLiteral("q"));
    QVERIFY(agree(QStringLiteral("q")));
}

void tst_ToolRow::aForeignChoiceChecksNothing()
{
    const Yard yard;
    yard.items()->setFilterType(mtfPremium);
    yard.items()->setSortBy({sbSale, soASC});
    QCOMPARE(yard.tools.checked("type"), QStringList());
    QVERIFY(yard.tools.button("type")->isChecked());
    QCOMPARE(yard.tools.checked("sort"), QStringList());
    QVERIFY(yard.tools.action(Id::ClearFilters)->isEnabled());
}

void tst_ToolRow::withoutAPresenterEverythingIsOff()
{
    const Yard yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    yard.items()->setFilterType(mtfVideo);
    yard.tools.row->setPresenter(nullptr);
    for (const char *name : {"import", "sort", "group", "type"})
        QVERIFY2(!yard.tools.button(name)->isEnabled(), name);
    for (const Id id : {Id::ViewList, Id::ViewLarge, Id::SortDescending, Id::GroupDescending,
                        Id::Find, Id::ClearFilters})
        QVERIFY2(!yard.tools.action(id)->isEnabled(), qPrintable(yard.tools.action(id)->text()));
    yard.items()->setViewMode(vmList);
    QVERIFY(!yard.tools.action(Id::ViewList)->isChecked());
    yard.tools.row->setPresenter(yard.items());
    QVERIFY(yard.tools.action(Id::ViewList)->isChecked());
    QVERIFY(yard.tools.action(Id::Find)->isEnabled());
    QVERIFY(yard.tools.button("import")->isEnabled());
}

void tst_ToolRow::aPresenterMayDie()
{
    const Tools tools;
    auto items = std::make_unique<Items>(nullptr, nullptr);
    tools.row->setPresenter(items.get());
    QVERIFY(tools.button("sort")->isEnabled());
    items.reset();
    QVERIFY(!tools.button("sort")->isEnabled());
    tools.action(Id::ClearFilters)->trigger();
    tools.action(Id::ViewList)->trigger();
    QVERIFY(!tools.action(Id::ViewList)->isChecked());
}

void tst_ToolRow::textsGiveWayToIcons()
{
    Yard yard;
    QCOMPARE(yard.tools.button("sort")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(yard.tools.button(Id::ViewList)->toolButtonStyle(), Qt::ToolButtonIconOnly);
    yard.tools.window.resize(560, 200);
    QTRY_COMPARE(yard.tools.button("sort")->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QTRY_VERIFY(!yard.tools.folded()->isVisible());
    for (const char *name : {"import", "sort", "group", "type"}) {
        QVERIFY2(!yard.tools.button(name)->icon().isNull(), name);
        QVERIFY2(!yard.tools.button(name)->toolTip().isEmpty(), name);
    }
    yard.tools.window.resize(1000, 200);
    QTRY_COMPARE(yard.tools.button("sort")->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QTRY_VERIFY(!yard.tools.folded()->isVisible());
}

void tst_ToolRow::everyToolCanBeReachedWhenThereIsNoRoom()
{
    Yard yard;
    yard.tools.window.resize(260, 200);
    QTRY_VERIFY(yard.tools.folded()->isVisible());
    QVERIFY(yard.tools.folded()->focusPolicy() & Qt::TabFocus);
    const QMenu *menu = yard.tools.folded()->menu();
    QVERIFY(menu);
    QStringList inMenu;
    const QList<QAction *> actions = yard.tools.bar()->actions();
    for (QAction *action : actions) {
        const bool isButton = yard.tools.bar()->widgetForAction(action)->isVisible();
        const bool isInMenu = menu->actions().contains(action);
        QVERIFY2(action->isSeparator() || isButton != isInMenu, qPrintable(action->text()));
        if (isInMenu)
            inMenu.append(action->text());
    }
    QVERIFY(inMenu.contains(QStringLiteral("Filter")));
    QVERIFY(yard.tools.row->searchField()->isVisible());
    QVERIFY(yard.tools.row->rect().contains(yard.tools.row->searchField()->geometry()));
}

void tst_ToolRow::toolsAreReachedByTab()
{
    const Yard yard;
    QStringList reached;
    yard.tools.button("import")->setFocus();
    for (int i = 0; i < 9; ++i) {
        auto *button = qobject_cast<QToolButton *>(QApplication::focusWidget());
        reached.append(button ? button->text() : QStringLiteral("search"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(reached, lines({"Import", "List", "Small Thumbnails", "Medium Thumbnails",
                             "Large Thumbnails", "Sort", "Group", "Filter", "search"}));
}

void tst_ToolRow::textsFollowTheLanguage()
{
    const Yard yard;
    const NxBracketLanguage language;
    QTRY_COMPARE(yard.tools.button("sort")->text(), QStringLiteral("[Sort]"));
    QCOMPARE(yard.tools.entries("type").mid(0, 2), lines({"[All]", "[Video]"}));
    QVERIFY(yard.tools.checked("sort").contains(QStringLiteral("[Name]")));
    QVERIFY(yard.tools.button("sort")->toolTip().contains(QLatin1String("[Name]")));
}

NX_TEST_MAIN_WIDGETS(tst_ToolRow)
#include "tst_ToolRow.moc"
