// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemStand.h"
#include "ItemViewer.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

/// What the changed folder is.
struct Nature
{
    QList<int> sectionKinds{fkProject};
    int folderKind = fkNone;
    QList<int> folderKinds;
    bool isLoaded = true;
    bool isSearchResult = false;
    bool isSearchFolder = false;
    int searchMode = esmNone;
};

} // namespace

Q_DECLARE_METATYPE(Nature)

/// Folders of which everything may have changed.
class tst_NxMediaItemModel_reloads : public QObject
{
    Q_OBJECT

    /// A folder that lists "B A".
    struct Changed
    {
        Changed()
        {
            stand.item("A")->created = QDateTime(QDate(2025, 1, 2), QTime(), Qt::UTC);
            stand.item("B")->created = QDateTime(QDate(2025, 1, 1), QTime(), Qt::UTC);
            model.setSortBy({sbName, soASC});
        }
        void become(const Nature &nature)
        {
            stand.section->itsKind = nature.sectionKinds.first();
            stand.section->extraKinds = nature.sectionKinds.mid(1);
            stand.folder->itsKind = nature.folderKind;
            stand.folder->extraKinds = nature.folderKinds;
            stand.folder->loaded = nature.isLoaded;
            stand.folder->searchResult = nature.isSearchResult;
            stand.folder->searchFolder = nature.isSearchFolder || nature.isSearchResult;
        }
        /// Shows the folder as it stands listed now, and lists one more without a word.
        void show(ScriptedItemFolder *folder)
        {
            model.load(folder);
            model.setFilter(model.getFilter());
            stand.list("AB");
            stand.item("AB")->created = QDateTime(QDate(2025, 1, 1), QTime(12, 0), Qt::UTC);
            static_cast<void>(viewer.takeTold());
        }
        QString text() const { return rowsText(model.getItems()); }

        ItemStand stand{fkProject, "B A"};
        NxMediaItemModel model{mctMedia, nullptr};
        ItemViewer viewer{&model};
    };

    static Nature online(const QList<int> &folderKinds = {}, int folderKind = fkNone)
    {
        Nature nature;
        nature.sectionKinds = QList<int>{fkOnline};
        nature.folderKinds = folderKinds;
        nature.folderKind = folderKind;
        return nature;
    }
    static Nature searched(int searchMode)
    {
        Nature nature;
        nature.isSearchResult = true;
        nature.searchMode = searchMode;
        return nature;
    }

private Q_SLOTS:
    void theFolderIsReadAnew_data()
    {
        QTest::addColumn<Nature>("nature");
        QTest::addColumn<QString>("rows"); // Empty: nothing happens.
        QTest::addColumn<bool>("sorts");
        QTest::newRow("user's media") << Nature() << "+ A AB B" << true;
        QTest::newRow("online") << online() << "B A AB" << false;
        QTest::newRow("own resources online") << online({}, fkCustom) << "A AB B" << true;
        QTest::newRow("recent online") << online({fkRecent}) << "A AB B" << true;
        QTest::newRow("favourites online") << online({fkFavourites}) << "B A AB" << false;
        Nature further;
        further.sectionKinds = QList<int>{fkStockVideoChoice, fkOnline};
        QTest::newRow("online by a further kind") << further << "B A AB" << false;
        Nature itself;
        itself.folderKind = fkOnline;
        QTest::newRow("only the folder is online") << itself << "+ A AB B" << true;
        Nature ownerless = online();
        ownerless.isSearchFolder = true;
        QTest::newRow("no section") << ownerless << "A AB B" << true;
        Nature waiting;
        waiting.isLoaded = false;
        QTest::newRow("not delivered yet") << waiting << "" << true;
        QTest::newRow("search result") << searched(esmNone) << "" << true;
        QTest::newRow("keyword search result") << searched(esmKeyword) << "" << true;
        Nature similar = searched(esmSimilar);
        QTest::newRow("similar search result") << similar << "B A AB" << true;
        similar.isLoaded = false;
        QTest::newRow("similar search result on its way") << similar << "B A AB" << true;
        Nature waitingOnline = online();
        waitingOnline.isLoaded = false;
        QTest::newRow("online, not delivered yet") << waitingOnline << "" << true;
    }

    void theFolderIsReadAnew()
    {
        QFETCH(Nature, nature);
        QFETCH(QString, rows);
        QFETCH(bool, sorts);
        for (const bool before : {false, true}) {
            Changed c;
            c.become(nature);
            NxMediaItemViewFilter filter;
            filter.searchMode = nature.searchMode;
            c.model.setFilter(filter);
            c.model.setSortEnable(before);
            c.show(c.stand.folder);
            const QString old = c.text();
            c.model.onAllMediaChangedFinishEvent(c.stand.folder);
            QCOMPARE(c.viewer.takeTold(),
                     rows.isEmpty() ? QString() : QStringLiteral("before reset, reset"));
            QCOMPARE(c.text(), rows.isEmpty() ? old : rows);
            QCOMPARE(c.model.isSortEnable(), sorts && before);
        }
    }

    void theShownFolderIsReadForThoseInside()
    {
        Changed c;
        ScriptedItemFolder *inside = c.stand.addFolder("C", c.stand.folder);
        inside->loaded = false;
        inside->searchResult = true;
        c.show(c.stand.folder);
        c.model.onAllMediaChangedFinishEvent(inside);
        QCOMPARE(c.viewer.takeTold(), QStringLiteral("before reset, reset"));
        QCOMPARE(c.model.folder(), c.stand.folder);
        QCOMPARE(c.text(), QStringLiteral("+ A AB B C"));
        inside->loaded = true;
        inside->searchResult = false;
        c.stand.folder->loaded = false;
        c.model.onAllMediaChangedFinishEvent(inside);
        QCOMPARE(c.viewer.takeTold(), QString());
    }

    void otherFoldersAreIgnored()
    {
        Changed c;
        ScriptedItemFolder *beside = c.stand.addFolder("C", c.stand.section);
        c.show(c.stand.folder);
        for (ScriptedItemFolder *folder : {beside, c.stand.section, &c.stand.root})
            c.model.onAllMediaChangedFinishEvent(folder);
        c.model.onAllMediaChangedFinishEvent(nullptr);
        QCOMPARE(c.viewer.takeTold(), QString());
        QCOMPARE(c.text(), QStringLiteral("+ B A"));
    }

    void aModelWithoutAFolderShowsTheOneThatIsReady()
    {
        Changed c;
        static_cast<void>(c.viewer.takeTold());
        c.model.onAllMediaChangedFinishEvent(nullptr);
        c.stand.folder->loaded = false;
        c.model.onAllMediaChangedFinishEvent(c.stand.folder);
        QCOMPARE(c.viewer.takeTold(), QString());
        c.stand.folder->loaded = true;
        c.model.onAllMediaChangedFinishEvent(c.stand.folder);
        QCOMPARE(c.viewer.takeTold(), QStringLiteral("before reset, reset"));
        QCOMPARE(c.model.folder(), c.stand.folder);
        QCOMPARE(c.text(), QStringLiteral("+ A B"));
    }

    void foldedGroupsUnfold()
    {
        Changed c;
        c.stand.item("A")->category = QStringLiteral("x");
        c.model.setGroupBy({gbCategory, soASC, nullptr});
        c.show(c.stand.folder);
        c.model.expandStateToggle(0, false);
        c.model.onAllMediaChangedFinishEvent(c.stand.folder);
        QCOMPARE(c.text(), QStringLiteral("[x] + A [None] + AB B"));
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_reloads)
#include "tst_NxMediaItemModel_reloads.moc"
