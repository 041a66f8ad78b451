// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaLibraryPresenterPrivate.h>
#include <NxVBLModel/NxClipExportImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include "LibraryStand.h"
#include "LogLines.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

const QString categoryChanged = QStringLiteral("library: sigCurrentCategoryTypeChanged()");
const QString sorted = QStringLiteral("items: sigSortByChanged()");
const QString selectedAgain = QStringLiteral("items: sigSelectItems([])");

QString importedInto(const char *folder)
{
    return QStringLiteral(
               "items: sigImportMedia(kind 4 [/a.mov /b.mov] to %1, true false, [], true)")
        .arg(QLatin1String(folder));
}

/// The list follows the tree: its listing is made anew, and both are told.
QStringList shown(const char *folder)
{
    const QString refreshed = QStringLiteral("refresh %1").arg(QLatin1String(folder));
    return {refreshed, refreshed, QStringLiteral("items: sigRootFolderChanged()"),
            QStringLiteral("folders: sigCurrentFolderChanged()")};
}

/// A panel whose view side makes the media that a test lays out.
struct ImportStand : LibraryStand
{
    ImportStand()
    {
        folder->id = 4711;
        media.addFolder("deep", folder);
        category = follow(mctMedia);
        items = category->mediaItemManagerPresenter();
        folders = category->folderManagerPresenter();
        QObject::connect(
            items, &NxMediaItemManagerPresenter::sigImportMedia, items,
            [this](const NxMediaImportParam &param, QList<INxAbstractMediaItem *> &medias, bool) {
                target = param.folder;
                medias += made;
                if (meanwhile)
                    meanwhile();
            });
        items->setSortBy({sbName, soDESC});
        log.take();
    }
    template<typename Message>
    static void fill(Message *message)
    {
        message->importKind = mitInstantCutter;
        message->files = QStringList{QStringLiteral("/a.mov"), QStringLiteral("/b.mov")};
        message->flag1 = true;
    }
    void make(const char *name) { made.append(media.list(name)); }

    ScriptedCategory &media = library[mctMedia];
    ScriptedItemFolder *const folder = media.addFolder("folder", media.section);
    NxMediaCategoryPresenter *category = nullptr;
    NxMediaItemManagerPresenter *items = nullptr;
    NxFolderMediaManagerPresenter *folders = nullptr;
    QList<INxAbstractMediaItem *> made; ///< What the view side answers.
    INxFolderMedia *target = nullptr;
    std::function<void()> meanwhile; ///< While the view side imports.
};

/// A message that asks for an import into a folder and perhaps one below.
struct ImportMessage : NxMediaLibraryImportMediaMessage
{
    explicit ImportMessage(int folder, const char *below = "")
    {
        folderId = folder;
        subFolderName = QLatin1String(below);
        ImportStand::fill(this);
    }
};

/// A message that brings back what was made from clips.
struct ClipMessage : NxClipExportImportMediaMessage
{
    explicit ClipMessage(const char *folder)
    {
        folderName = QLatin1String(folder);
        ImportStand::fill(this);
    }
};

} // namespace

/// What the rest of the editor brings into the panel: where it goes, and what is shown afterwards.
class tst_NxMediaLibraryPresenter_imports : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Into a folder that is named by its id

    void filesGoIntoTheFolder()
    {
        ImportStand stand;
        stand.make("a");
        stand.make("b");
        ImportMessage message(4711);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("folder"), sorted, selectedAgain, categoryChanged}));
        QCOMPARE(message.result, stand.made);
        QCOMPARE(stand.presenter.currentCategoryType(), mctMedia);
        QVERIFY(!stand.folders->currentFolder());
        QVERIFY(stand.items->getSortBy() == (NxMediaItemViewSort{sbName, soDESC}));
    }

    void filesForAnUnknownFolderGoWhereTheViewIs()
    {
        ImportStand stand;
        stand.make("a");
        ImportMessage message(99);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("null"), sorted, selectedAgain, categoryChanged}));
        QCOMPARE(message.result, stand.made);
    }

    void nothingIsSortedWhenNothingWasMade()
    {
        ImportStand stand;
        ImportMessage message(4711);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), (QStringList{importedInto("folder"), categoryChanged}));
        QVERIFY(message.result.isEmpty());
    }

    void anUnsortedListStaysSo()
    {
        ImportStand stand;
        stand.items->setSortBy({sbNone, soASC});
        stand.make("a");
        ImportMessage message(4711);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), (QStringList{importedInto("folder"), categoryChanged}));
    }

    void theSelectionIsKeptWhenTheNewMediaAreSorted()
    {
        ImportStand stand;
        stand.items->setSelectedItems({stand.media.list("old")});
        stand.make("a");
        stand.log.take();
        ImportMessage message(4711);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("folder"), sorted,
                              QStringLiteral("items: sigSelectItems([old])"), categoryChanged}));
    }

    void theShownCategoryIsNotToldAgain()
    {
        ImportStand stand;
        stand.presenter.setCurrentCategoryType(mctMedia);
        stand.log.take();
        ImportMessage message(4711);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{importedInto("folder")});
    }

    void theAnswerStandsInTheMessageBeforeTheCategoryIsShown()
    {
        ImportStand stand;
        stand.make("a");
        ImportMessage message(4711, "new");
        QList<int> sizes;
        const auto note = [&] { sizes.append(message.result.size()); };
        connect(&stand.presenter, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                note);
        connect(stand.folders, &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, this, note);
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(sizes, (QList<int>{1, 1}));
    }

    void theAnswerStandsBehindEarlierOnes()
    {
        ImportStand stand;
        ScriptedItem earlier;
        stand.make("a");
        ImportMessage message(4711);
        message.result = {&earlier};
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(message.result, QList<INxAbstractMediaItem *>{&earlier} + stand.made);
    }

    // Into a folder below, named by its name

    void aFolderBelowIsFoundByItsName()
    {
        ImportStand stand;
        stand.make("a");
        ImportMessage message(4711, "deep");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("deep"), sorted, selectedAgain, categoryChanged}
                  + shown("deep")));
        QCOMPARE(stand.target, stand.folder->childFolder(0));
        QCOMPARE(stand.folders->currentFolder(), stand.folder->childFolder(0));
        QCOMPARE(stand.items->folder(), stand.folder->childFolder(0));
    }

    void blanksAroundAFoldersNameDoNotCount_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("in front") << QStringLiteral("  deep");
        QTest::newRow("behind") << QStringLiteral("deep ");
        QTest::newRow("around") << QStringLiteral("\tdeep\n");
    }

    void blanksAroundAFoldersNameDoNotCount()
    {
        QFETCH(QString, name);
        ImportStand stand;
        ImportMessage message(4711);
        message.subFolderName = name;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("deep"), categoryChanged} + shown("deep")));
        stand.media.addFolder("deep", stand.media.section);
        ClipMessage clips("");
        clips.folderName = name;
        QVERIFY(stand.presenter.dispatchMessage(&clips));
        QCOMPARE(stand.target, stand.media.section->childFolder(1));
        QCOMPARE(stand.folders->currentFolder(), stand.target);
    }

    void aFolderWhoseNameIsKeptWithoutBlanksIsFoundWhenItIsMade()
    {
        ImportStand stand;
        stand.media.folders.trims = true;
        ImportMessage message(4711, " new ");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.target->name(), QStringLiteral("new"));
        ClipMessage clips(" clips ");
        QVERIFY(stand.presenter.dispatchMessage(&clips));
        QCOMPARE(stand.target->name(), QStringLiteral("clips"));
        QCOMPARE(stand.media.section->childFolderCount(), 2);
    }

    void aFolderOfExactlyThatNameComesFirst()
    {
        ImportStand stand;
        stand.media.addFolder(" deep", stand.folder);
        ImportMessage message(4711, " deep");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.target, stand.folder->childFolder(1));
    }

    void aFolderBelowIsMade_data()
    {
        QTest::addColumn<int>("folderId");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("parent");
        QTest::newRow("in the folder") << 4711 << QStringLiteral("new") << QStringLiteral("folder");
        QTest::newRow("in the first section when the folder is unknown")
            << 99 << QStringLiteral("new") << QStringLiteral("section");
        QTest::newRow("beside one in other letters")
            << 4711 << QStringLiteral("Deep") << QStringLiteral("folder");
        QTest::newRow("above one of that name further in")
            << int(fidRoot) << QStringLiteral("deep") << QStringLiteral("section");
    }

    void aFolderBelowIsMade()
    {
        QFETCH(int, folderId);
        QFETCH(QString, name);
        QFETCH(QString, parent);
        ImportStand stand;
        ImportMessage message(folderId, name.toLatin1().constData());
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("add folder %1 to %2").arg(name, parent),
                              importedInto(name.toLatin1().constData()), categoryChanged}
                  + shown(name.toLatin1().constData())));
        QCOMPARE(stand.target->parentFolder()->name(), parent);
        QCOMPARE(stand.folders->currentFolder(), stand.target);
    }

    void theFolderThatIsCurrentIsNotToldAgain()
    {
        ImportStand stand;
        stand.folders->setCurrentFolder(stand.folder->childFolder(0));
        stand.log.take();
        ImportMessage message(4711, "deep");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), (QStringList{importedInto("deep"), categoryChanged}));
    }

    void nothingIsImportedWhenTheFolderCannotBeMade()
    {
        NxTestLog::expectError(QStringLiteral("add srt folder error!!!"));
        ImportStand stand;
        stand.media.folders.refuses = true;
        const NxLogCapture log;
        ImportMessage message(4711, "new");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log),
                 QStringList{QStringLiteral("error NxMediaLibraryPresenterPrivate::"
                                            "findOrCreateFolder: add srt folder error!!!")});
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("add folder new to folder")});
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void nothingIsImportedWhenTheNewFolderIsNotThere()
    {
        ImportStand stand;
        stand.media.folders.forgets = true;
        const NxLogCapture log;
        ImportMessage message(4711, "new");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log), QStringList());
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("add folder new to folder")});
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void nothingIsImportedBelowAFolderThatIsNotThere()
    {
        ImportStand stand;
        stand.media.section->id = 98;
        ImportMessage message(99, "new");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void anotherCategoryIsLeftAlone()
    {
        ImportStand stand;
        ImportMessage message(fidRoot, "new");
        message.categoryType = mctEffect;
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
        stand.library[mctEffect];
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.presenter.currentCategoryType(), mctEffect);
        QVERIFY(!stand.target);
        QVERIFY(!stand.folders->currentFolder());
        QCOMPARE(stand.presenter.getMediaCategoryPresenter(mctEffect)
                     ->folderManagerPresenter()
                     ->currentFolder()
                     ->name(),
                 QStringLiteral("new"));
    }

    // What dies meanwhile

    void aFolderThatDiesMeanwhileIsNotShown()
    {
        ImportStand stand;
        stand.folders->setCurrentFolder(stand.media.section);
        stand.log.take();
        stand.meanwhile = [&stand] { stand.media.section->destroy(stand.folder); };
        ImportMessage message(4711, "deep");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), (QStringList{importedInto("deep"), categoryChanged}));
        QCOMPARE(stand.folders->currentFolder(),
                 static_cast<INxFolderMedia *>(stand.media.section));
    }

    void thePanelMayDieWhileItImports()
    {
        ImportStand stand;
        auto *panel = new NxMediaLibraryPresenter(&stand.library, nullptr);
        NxMediaItemManagerPresenter *items =
            panel->getMediaCategoryPresenter(mctMedia)->mediaItemManagerPresenter();
        ScriptedItem item;
        connect(items, &NxMediaItemManagerPresenter::sigImportMedia, this,
                [&](const NxMediaImportParam &, QList<INxAbstractMediaItem *> &medias, bool) {
                    medias.append(&item);
                    delete panel;
                });
        ImportMessage message(4711, "deep");
        QVERIFY(panel->dispatchMessage(&message));
        QCOMPARE(message.result, QList<INxAbstractMediaItem *>{&item});
    }

    void thePanelMayDieWhenItsCategoryIsShown()
    {
        ImportStand stand;
        auto *panel = new NxMediaLibraryPresenter(&stand.library, nullptr);
        connect(panel, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                [panel] { delete panel; });
        ImportMessage message(4711, "deep");
        QVERIFY(panel->dispatchMessage(&message));
    }

    // What was made from clips

    void clipsGoIntoTheSectionsFolderOfThatName()
    {
        ImportStand stand;
        stand.make("a");
        ClipMessage message("folder");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(),
                 (QStringList{importedInto("folder"), sorted, selectedAgain, categoryChanged}
                  + shown("folder")));
        QCOMPARE(message.result, stand.made);
        QCOMPARE(stand.folders->currentFolder(), static_cast<INxFolderMedia *>(stand.folder));
    }

    void aFolderForClipsIsMade_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("new") << QStringLiteral("new");
        QTest::newRow("in other letters") << QStringLiteral("Folder");
        QTest::newRow("one of that name stands further in") << QStringLiteral("deep");
        QTest::newRow("without a name") << QString();
    }

    void aFolderForClipsIsMade()
    {
        QFETCH(QString, name);
        ImportStand stand;
        ClipMessage message(name.toLatin1().constData());
        QVERIFY(stand.presenter.dispatchMessage(&message));
        const QByteArray folder = name.toLatin1();
        QCOMPARE(stand.log.take(),
                 (QStringList{QStringLiteral("add folder %1 to section").arg(name),
                              importedInto(folder.constData()), categoryChanged}
                  + shown(folder.constData())));
        QCOMPARE(stand.target->parentFolder(), static_cast<INxFolderMedia *>(stand.media.section));
        QVERIFY(message.result.isEmpty());
    }

    void clipsAreNotImportedWhenTheirFolderCannotBeMade_data()
    {
        QTest::addColumn<bool>("forgets");
        QTest::newRow("refused") << false;
        QTest::newRow("not there afterwards") << true;
    }

    void clipsAreNotImportedWhenTheirFolderCannotBeMade()
    {
        QFETCH(bool, forgets);
        NxTestLog::expectError(QStringLiteral("addFolder failure, folder name : Schnee ß雪"));
        ImportStand stand;
        stand.make("a");
        stand.media.folders.forgets = forgets;
        stand.media.folders.refuses = !forgets;
        const NxLogCapture log;
        ClipMessage message("");
        message.folderName = QStringLiteral("Schnee ß雪");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(linesOf(log),
                 QStringList{QStringLiteral("error NxMediaLibraryPresenter::dispatchMessage: "
                                            "addFolder failure, folder name : Schnee ß雪")});
        QCOMPARE(stand.log.take(), QStringList{QStringLiteral("add folder Schnee ß雪 to section")});
        QVERIFY(message.result.isEmpty());
        QCOMPARE(stand.presenter.currentCategoryType(), mctNone);
    }

    void clipsAreNotImportedWithoutASection()
    {
        ImportStand stand;
        stand.media.section->id = 98;
        ClipMessage message("folder");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList());
    }

    void nothingIsSortedWhenClipsMadeNothing()
    {
        ImportStand stand;
        stand.presenter.setCurrentCategoryType(mctMedia);
        stand.folders->setCurrentFolder(stand.folder);
        stand.log.take();
        ClipMessage message("folder");
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(stand.log.take(), QStringList{importedInto("folder")});
    }

    void theAnswerForClipsStandsInTheMessageBeforeTheCategoryIsShown()
    {
        ImportStand stand;
        stand.make("a");
        ClipMessage message("folder");
        int size = -1;
        connect(&stand.presenter, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                [&] { size = message.result.size(); });
        QVERIFY(stand.presenter.dispatchMessage(&message));
        QCOMPARE(size, 1);
    }

    // Finding a folder, or making it

    void noFolderIsFoundWithoutAManagerOrAParent()
    {
        ScriptedCategory media(mctMedia);
        const QString name = QStringLiteral("a");
        QVERIFY(!NxMediaLibraryPresenterPrivate::findOrCreateFolder(nullptr, media.section, name));
        QVERIFY(!NxMediaLibraryPresenterPrivate::findOrCreateFolder(&media.folders, nullptr, name));
        QCOMPARE(media.section->childFolderCount(), 0);
    }

    void theFirstFolderOfThatNameIsFound()
    {
        ScriptedCategory media(mctMedia);
        media.addFolder("other", media.section);
        ScriptedItemFolder *first = media.addFolder("a", media.section);
        media.addFolder("a", media.section);
        INxFolderMedia *found = NxMediaLibraryPresenterPrivate::findOrCreateFolder(
            &media.folders, media.section, QStringLiteral("a"));
        QCOMPARE(found, static_cast<INxFolderMedia *>(first));
        QCOMPARE(media.section->childFolderCount(), 3);
    }

    void aFolderIsMadeOnce()
    {
        ScriptedCategory media(mctMedia);
        const auto find = [&media] {
            return NxMediaLibraryPresenterPrivate::findOrCreateFolder(&media.folders, media.section,
                                                                      QStringLiteral("a"));
        };
        INxFolderMedia *made = find();
        QVERIFY(made);
        QCOMPARE(made->name(), QStringLiteral("a"));
        QCOMPARE(find(), made);
        QCOMPARE(media.section->childFolderCount(), 1);
    }
};

NX_TEST_MAIN(tst_NxMediaLibraryPresenter_imports)
#include "tst_NxMediaLibraryPresenter_imports.moc"
