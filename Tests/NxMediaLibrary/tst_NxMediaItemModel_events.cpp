// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "ItemStand.h"
#include "ItemViewer.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaItemViewGroup ByCategory{gbCategory, soASC, nullptr};

/// "function: text" of each line.
QStringList linesOf(const NxLogCapture &capture)
{
    QStringList lines;
    for (const NxLogRecord &record : capture.records())
        lines.append(QString::fromUtf8(record.function) + QLatin1String(": ") + record.text);
    return lines;
}

} // namespace

/// What the model tells when media come, go and change.
class tst_NxMediaItemModel_events : public QObject
{
    Q_OBJECT

    /// The model shows "+ A B C"; D lies in a folder inside the shown one, E beside it.
    struct Shown
    {
        Shown()
        {
            model.subscribeMediaItemManager(&stand.manager);
            model.setSortEnable(true);
            model.setSortBy({sbName, soASC});
        }
        void load()
        {
            model.load(stand.folder);
            static_cast<void>(viewer.takeTold());
            static_cast<void>(viewer.takeRows());
        }
        ScriptedItemFolder *folderOf(const QString &name)
        {
            if (name == QLatin1String("shown"))
                return stand.folder;
            if (name == QLatin1String("inside"))
                return inside;
            if (name == QLatin1String("deeper"))
                return deeper;
            if (name == QLatin1String("beside"))
                return beside;
            return name == QLatin1String("above") ? stand.section : nullptr;
        }
        QString text() const { return rowsText(model.getItems()); }

        ItemStand stand{fkProject, "B A C"};
        ScriptedItemFolder *const inside = stand.addFolder("D", stand.folder);
        ScriptedItemFolder *const deeper = stand.addFolder("F", inside);
        ScriptedItemFolder *const beside = stand.addFolder("E", stand.section);
        NxMediaItemModel model{mctMedia, nullptr};
        ItemViewer viewer{&model};
    };

    static void addFolders()
    {
        QTest::addColumn<QString>("where");
        QTest::addColumn<bool>("concerns");
        QTest::newRow("the shown folder") << "shown" << true;
        QTest::newRow("a folder inside") << "inside" << true;
        QTest::newRow("a folder further inside") << "deeper" << true;
        QTest::newRow("a folder beside") << "beside" << false;
        QTest::newRow("the folder above") << "above" << false;
        QTest::newRow("no folder") << "none" << false;
    }

private Q_SLOTS:
    void addingIsToldInsideOneReset_data() { addFolders(); }

    void addingIsToldInsideOneReset()
    {
        QFETCH(QString, where);
        QFETCH(bool, concerns);
        Shown s;
        s.load();
        ScriptedItemFolder *folder = s.folderOf(where);
        ScriptedItem *item = s.stand.make(QStringLiteral("BB"));
        s.model.onBeforeAddItemEvent(folder, item);
        QCOMPARE(s.viewer.takeTold(), concerns ? QStringLiteral("before reset") : QString());
        QCOMPARE(s.text(),
                 concerns ? QStringLiteral("+ A B BB C D F") : QStringLiteral("+ A B C D F"));
        s.model.onAfterAddItemEvent(folder, item);
        QCOMPARE(s.viewer.takeTold(),
                 concerns ? QStringLiteral("added BB to %1, reset").arg(folder->name())
                          : QString());
        QCOMPARE(s.viewer.takeRows(), concerns ? QStringLiteral("6, 7") : QString());
    }

    void removingIsToldInsideOneReset_data() { addFolders(); }

    void removingIsToldInsideOneReset()
    {
        QFETCH(QString, where);
        QFETCH(bool, concerns);
        Shown s;
        s.load();
        ScriptedItem *item = s.stand.item("B");
        s.model.onBeforeRemoveItemEvent(s.folderOf(where), item);
        QCOMPARE(s.viewer.takeTold(),
                 concerns ? QStringLiteral("before reset, removing 2, reset") : QString());
        QCOMPARE(s.text(), concerns ? QStringLiteral("+ A C D F") : QStringLiteral("+ A B C D F"));
        QCOMPARE(s.viewer.takeRows(), concerns ? QStringLiteral("6, 5") : QString());
        s.model.onAfterRemoveItemEvent(s.folderOf(where), item);
        QCOMPARE(s.viewer.takeTold(), QString());
    }

    void removingWhatHasNoRowTellsNothing()
    {
        Shown s;
        s.load();
        s.model.setFilter(filterOf("a"));
        static_cast<void>(s.viewer.takeTold());
        s.model.onBeforeRemoveItemEvent(s.stand.folder, s.stand.item("B"));
        s.model.onBeforeRemoveItemEvent(s.stand.folder, nullptr);
        QCOMPARE(s.viewer.takeTold(), QString());
    }

    void everyRowOfARemovedMediaIsTold()
    {
        Shown s;
        s.stand.item("B")->category = QStringLiteral("x");
        s.load();
        s.model.setGroupBy(ByCategory);
        s.model.expandStateToggle(0, true);
        QCOMPARE(s.text(), QStringLiteral("[x] + B + B [None] + A C D F"));
        static_cast<void>(s.viewer.takeTold());
        s.stand.manager.take(s.stand.item("B"));
        QCOMPARE(s.viewer.takeTold(),
                 QStringLiteral("before reset, removing 2, removing 4, reset"));
        QCOMPARE(s.text(), QStringLiteral("[x] + + [None] + A C D F"));
    }

    void removingFromAFoldedGroupIsNotToldButRemembered()
    {
        Shown s;
        s.stand.item("B")->category = QStringLiteral("x");
        s.stand.item("C")->category = QStringLiteral("x");
        s.load();
        s.model.setGroupBy(ByCategory);
        s.model.expandStateToggle(0, false);
        static_cast<void>(s.viewer.takeTold());
        s.stand.manager.take(s.stand.item("B"));
        QCOMPARE(s.viewer.takeTold(), QString());
        QCOMPARE(dynamic_cast<INxGroupMedia *>(s.model.mediaItem(0))->itemCount(), 1);
        s.model.expandStateToggle(0, true);
        QCOMPARE(s.text(), QStringLiteral("[x] + C [None] + A D F"));
    }

    void otherEventsAreNotTold()
    {
        Shown s;
        s.load();
        ScriptedItem *item = s.stand.item("A");
        s.model.onAfterRemoveItemEvent(s.stand.folder, item);
        s.model.onBeforeMoveItemEvent(s.stand.folder, s.beside, item);
        s.model.onAfterMoveItemEvent(s.stand.folder, s.beside, item);
        s.model.onAfterMoveItemEvent(nullptr, nullptr, nullptr);
        s.model.onRenameFolderEvent(s.stand.folder);
        QCOMPARE(s.viewer.takeTold(), QString());
        QCOMPARE(s.text(), QStringLiteral("+ A B C D F"));
    }

    void anAdditionEndsThoughTheFolderChangedMeanwhile()
    {
        Shown s;
        s.load();
        ScriptedItem *item = s.stand.make(QStringLiteral("BB"));
        s.model.onBeforeAddItemEvent(s.stand.folder, item);
        s.model.load(s.beside);
        s.stand.folder->media.append(item);
        s.model.onAfterAddItemEvent(s.stand.folder, item);
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("before reset, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ E"));
    }

    void anAdditionOfWhichOnlyTheEndIsHeardIsShown()
    {
        Shown s;
        s.load();
        s.model.load(s.beside);
        static_cast<void>(s.viewer.takeTold());
        ScriptedItem *item = s.stand.make(QStringLiteral("BB"));
        s.stand.manager.meanwhile = [&s] { s.model.load(s.stand.folder); };
        s.stand.manager.insert(s.stand.folder, 0, item);
        QCOMPARE(s.viewer.takeTold(),
                 QStringLiteral("before reset, reset, before reset, added BB to folder, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A B BB C D F"));
        s.model.onAfterAddItemEvent(s.stand.folder, item);
        QCOMPARE(s.viewer.takeTold(), QString());
    }

    void anAdditionThatIsAnnouncedTwiceIsOne()
    {
        Shown s;
        s.load();
        ScriptedItem *item = s.stand.make(QStringLiteral("BB"));
        s.model.onBeforeAddItemEvent(s.stand.folder, item);
        s.model.onBeforeAddItemEvent(s.stand.folder, item);
        s.stand.folder->media.append(item);
        s.model.onAfterAddItemEvent(s.stand.folder, item);
        s.model.onAfterAddItemEvent(s.stand.folder, item);
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("before reset, added BB to folder, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A B BB C D F"));
    }

    void additionsMayOverlap()
    {
        Shown s;
        s.load();
        ScriptedItem *first = s.stand.make(QStringLiteral("BA"));
        ScriptedItem *second = s.stand.make(QStringLiteral("BB"));
        s.model.onBeforeAddItemEvent(s.stand.folder, first);
        s.model.onBeforeAddItemEvent(s.inside, second);
        s.stand.folder->media.append(first);
        s.model.onAfterAddItemEvent(s.stand.folder, first);
        s.inside->media.append(second);
        s.model.onAfterAddItemEvent(s.inside, second);
        QCOMPARE(s.viewer.takeTold(),
                 QStringLiteral("before reset, added BA to folder, added BB to , reset"));
        s.model.updateGroupByItemText();
        s.model.setSortBy({sbName, soASC});
        QCOMPARE(s.text(), QStringLiteral("+ A B BA BB C D F"));
    }

    void additionsOfNothingLeaveTheRows()
    {
        Shown s;
        s.model.onBeforeAddItemEvent(nullptr, nullptr);
        s.model.onAfterAddItemEvent(nullptr, nullptr);
        s.load();
        s.model.onBeforeAddItemEvent(s.stand.folder, nullptr);
        s.model.onAfterAddItemEvent(s.stand.folder, nullptr);
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("before reset, added null to folder, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A B C D F"));
    }

    void clearingTheShownFolderEmptiesTheModel_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("cleared");
        QTest::addColumn<bool>("concerns");
        QTest::newRow("the shown folder") << "shown"
                                          << "shown" << true;
        QTest::newRow("a folder inside") << "shown"
                                         << "inside" << false;
        QTest::newRow("a folder beside") << "shown"
                                         << "beside" << false;
        QTest::newRow("the folder above") << "shown"
                                          << "above" << false;
        QTest::newRow("no folder") << "shown"
                                   << "none" << false;
        QTest::newRow("no folder while none is shown") << "none"
                                                       << "none" << true;
        QTest::newRow("a folder while none is shown") << "none"
                                                      << "beside" << false;
    }

    void clearingTheShownFolderEmptiesTheModel()
    {
        QFETCH(QString, shown);
        QFETCH(QString, cleared);
        QFETCH(bool, concerns);
        Shown s;
        s.model.load(s.folderOf(shown));
        const QString before = s.text();
        static_cast<void>(s.viewer.takeTold());
        s.model.onBeforeClearItemsEvent(s.folderOf(cleared));
        QCOMPARE(s.viewer.takeTold(), concerns ? QStringLiteral("before reset") : QString());
        QCOMPARE(s.text(), concerns ? QString() : before);
        s.model.onAfterClearItemsEvent(s.folderOf(cleared));
        QCOMPARE(s.viewer.takeTold(), concerns ? QStringLiteral("reset") : QString());
        QCOMPARE(s.model.folder(), s.folderOf(shown));
    }

    void aClearingEndsThoughTheFolderChangedMeanwhile()
    {
        Shown s;
        s.load();
        s.stand.manager.meanwhile = [&s] { s.model.load(s.beside); };
        s.stand.manager.clear(s.stand.folder, [] {});
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("before reset, reset"));
        s.stand.manager.meanwhile = [&s] { s.model.load(s.stand.folder); };
        s.stand.manager.clear(s.stand.folder, [] {});
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("before reset, reset"));
        QCOMPARE(s.text(), QStringLiteral("+ A B C D F"));
    }

    void mediaCanBeAddedToAClearedFolder()
    {
        Shown s;
        s.model.setGroupBy(ByCategory);
        s.load();
        s.stand.manager.clear(s.stand.folder, [&s] { s.stand.folder->media.clear(); });
        QCOMPARE(s.text(), QString());
        s.stand.manager.insert(s.stand.folder, 0, s.stand.make(QStringLiteral("N:x")));
        QCOMPARE(s.text(), QStringLiteral("[x] + N [None] + D F"));
    }

    void renamingRepaintsEveryRowOfTheMedia()
    {
        Shown s;
        s.stand.item("B")->category = QStringLiteral("x");
        s.load();
        s.stand.manager.rename(s.stand.item("A"), QStringLiteral("Z"));
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("changed 1"));
        QCOMPARE(s.text(), QStringLiteral("+ Z B C D F"));
        s.model.setGroupBy(ByCategory);
        s.model.expandStateToggle(0, true);
        static_cast<void>(s.viewer.takeTold());
        s.stand.manager.announce(s.stand.item("B"));
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("changed 2, changed 4"));
        s.model.onRenameItemEvent(nullptr, s.stand.item("B"));
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("changed 2, changed 4"));
        s.stand.manager.announce(s.stand.item("E"));
        s.model.onRenameItemEvent(s.stand.folder, nullptr);
        s.model.onMediaStateChangedEvent(nullptr);
        QCOMPARE(s.viewer.takeTold(), QString());
    }

    void downloadsAreToldByTheirKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("progress");
        QTest::addColumn<QString>("finished");
        QTest::addColumn<QString>("failed");
        for (int kind = -1; kind <= 8; ++kind) {
            const bool isLight = kind == 0 || kind == 1;
            const bool isContent = kind >= 2 && kind <= 6;
            QTest::addRow("kind %d", kind) << kind << (isContent ? "changed 2" : "")
                                           << (isContent ? "changed 2, finished B"
                                               : isLight ? "changed 2"
                                                         : "")
                                           << (isContent ? "changed 2, failed B" : "");
        }
    }

    void downloadsAreToldByTheirKind()
    {
        QFETCH(int, kind);
        QFETCH(QString, progress);
        QFETCH(QString, finished);
        QFETCH(QString, failed);
        Shown s;
        s.load();
        ScriptedItem *item = s.stand.item("B");
        s.model.onDownloadProgressEvent(item, kind, 10, 20);
        QCOMPARE(s.viewer.takeTold(), progress);
        s.model.onDownloadFinishedEvent(item, kind, false);
        QCOMPARE(s.viewer.takeTold(), finished);
        s.model.onDownloadFinishedEvent(item, kind, true);
        QCOMPARE(s.viewer.takeTold(), failed);
    }

    void downloadsOfWhatIsNotShownAreTold()
    {
        Shown s;
        s.load();
        s.model.onDownloadProgressEvent(s.stand.item("E"), dkFirstContent, 1, 2);
        s.model.onDownloadFinishedEvent(s.stand.item("E"), dkLastContent, true);
        s.model.onDownloadFinishedEvent(s.stand.item("E"), dkIcon, false);
        s.model.onDownloadFinishedEvent(nullptr, dkFirstContent, false);
        QCOMPARE(s.viewer.takeTold(), QStringLiteral("failed E, finished null"));
    }

    void theDownloadLimitIsHandedOn()
    {
        Shown s;
        s.model.onVCGDownloadLimit();
        QCOMPARE(s.viewer.takeTold().section(QStringLiteral(", "), -1), QStringLiteral("limit"));
    }

    void pagesOfTheShownFolderAloneAreTold_data() { addFolders(); }

    void pagesOfTheShownFolderAloneAreTold()
    {
        QFETCH(QString, where);
        Shown s;
        s.load();
        const NxLogCapture log;
        s.model.onFetchMoreStateChangedEvent(s.folderOf(where), INxFolderMedia::FetchMoreFailed);
        if (where == QLatin1String("shown")) {
            QCOMPARE(s.viewer.takeTold(), QStringLiteral("fetch more 4"));
            QCOMPARE(linesOf(log), QStringList());
            return;
        }
        QCOMPARE(s.viewer.takeTold(), QString());
        QCOMPARE(linesOf(log),
                 QStringList(QStringLiteral("NxMediaItemModel::onFetchMoreStateChangedEvent: "
                                            "fetchMore folder is changed")));
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_events)
#include "tst_NxMediaItemModel_events.moc"
