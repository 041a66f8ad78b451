// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>

#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTreeView>

#include "PanelYard.h"
#include "TextLines.h"

using namespace NXMEDIALIBRARY;

namespace {

/// Two days of shooting, the first one with a folder of its own; "cover" lies beside them.
struct TwoDays : PanelYard
{
    TwoDays()
    {
        add(lines({"cover.jpg"}));
        add(lines({"1b.mov", "1a.mov"}), first);
        add(lines({"2.mov"}), second);
        folders()->addFolder(first, QStringLiteral("Takes"));
        takes = first->childFolder(0);
        add(lines({"take.mov"}), takes);
        panel->tree()->expandAll();
        settleFiles();
    }

    INxFolderMedia *const first = addFolder(QStringLiteral("Day 1")); // Not owned, like the others.
    INxFolderMedia *const second = addFolder(QStringLiteral("Day 2"));
    INxFolderMedia *takes = nullptr;
};

/// A clip of the stock provider that was downloaded.
struct StockClip final : INxAbstractMediaItem
{
    explicit StockClip(const char *name) : file(QStringLiteral("/Downloads/") + QLatin1String(name))
    {
    }

    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    int kindCode() const override { return NXVBLMODEL::mkcStockCopy; }
    QString name() const override { return file.section(QLatin1Char('/'), -1); }
    QString sourcePath() const override { return file; }
    QString filePath() const override { return file; }
    bool isResource() const override { return true; }
    bool isSourceMedia() const override { return true; }

    const QString file;
};

} // namespace

/// What users do in the tree of the panel, and what the rest of the editor asks the panel for.
class tst_PanelFlows_folders : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theFolderThatIsPickedIsShown();
    void anotherFolderEndsTheSelection();
    void removingTheCurrentFolderGoesToItsParent_data();
    void removingTheCurrentFolderGoesToItsParent();
    void removingAnotherFolderStaysWhereOneIs();
    void mediaOfSeveralFoldersGoAndComeBackTogether();
    void aCategoryIsShownAsItWasLeft();
    void anImportGoesToItsCategoryAndFolder_data();
    void anImportGoesToItsCategoryAndFolder();
    void stockClipsOnTheTimelineAppear();
    void theEditorRemovesAMediaOfASubfolder_data();
    void theEditorRemovesAMediaOfASubfolder();
};

void tst_PanelFlows_folders::theFolderThatIsPickedIsShown()
{
    const TwoDays yard;
    QCOMPARE(yard.shownFolder(), yard.section()->name());
    QCOMPARE(yard.rows(), lines({"1a.mov", "1b.mov", "2.mov", "cover.jpg", "take.mov"}));
    QSignalSpy shown(yard.items(), &NxMediaItemManagerPresenter::sigRootFolderChanged);
    yard.pick(yard.first);
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
    QCOMPARE(yard.rows(), lines({"1a.mov", "1b.mov", "take.mov"}));
    yard.pick(yard.takes);
    QCOMPARE(yard.rows(), lines({"take.mov"}));
    yard.pick(yard.takes);
    QCOMPARE(shown.count(), 2);
    yard.items()->gotoFolder(yard.second);
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 2"));
    QCOMPARE(yard.rows(), lines({"2.mov"}));
}

void tst_PanelFlows_folders::anotherFolderEndsTheSelection()
{
    const TwoDays yard;
    yard.click(QStringLiteral("2.mov"));
    yard.pick(yard.first);
    QCOMPARE(yard.selection(), QStringList());
    yard.click(QStringLiteral("1b.mov"));
    yard.pick(yard.section());
    QCOMPARE(yard.selection(), lines({"1b.mov"})); // It is still shown.
}

void tst_PanelFlows_folders::removingTheCurrentFolderGoesToItsParent_data()
{
    QTest::addColumn<bool>("isPicked");
    QTest::newRow("the folder that is shown") << true;
    QTest::newRow("one that holds it") << false;
}

void tst_PanelFlows_folders::removingTheCurrentFolderGoesToItsParent()
{
    QFETCH(bool, isPicked);
    TwoDays yard;
    const QByteArray before = yard.dump();
    yard.pick(isPicked ? yard.first : yard.takes);
    yard.click(QStringLiteral("take.mov"));
    const DialogUser user(DialogUser::typing({Qt::Key_Return}));
    if (isPicked) {
        yard.panel->tree()->setFocus();
        yard.press(QKeySequence::Delete);
    } else {
        yard.folders()->removeFolder(yard.first);
    }
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.shownFolder(), yard.section()->name());
    QCOMPARE(yard.rows(), lines({"2.mov", "cover.jpg"}));
    QCOMPARE(yard.selection(), QStringList());
    QCOMPARE(yard.panel->treeModel()->rowCount(yard.panel->tree()->currentIndex()), 1);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), lines({"1a.mov", "1b.mov", "2.mov", "cover.jpg", "take.mov"}));
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_folders::removingAnotherFolderStaysWhereOneIs()
{
    const TwoDays yard;
    yard.pick(yard.second);
    yard.click(QStringLiteral("2.mov"));
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    yard.folders()->removeFolder(yard.first);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 2"));
    QCOMPARE(yard.selection(), lines({"2.mov"}));
}

void tst_PanelFlows_folders::mediaOfSeveralFoldersGoAndComeBackTogether()
{
    TwoDays yard;
    const QByteArray before = yard.dump();
    yard.click(QStringLiteral("1a.mov"));
    yard.press(QKeySequence::SelectAll);
    const QStringList all = yard.rows();
    QCOMPARE(yard.selection(), all);
    const DialogUser user(DialogUser::typing({Qt::Key_Return}));
    yard.press(QKeySequence::Delete);
    QCOMPARE(user.dialogs(), 1);
    QCOMPARE(yard.rows(), QStringList());
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), all);
    QCOMPARE(yard.selection().size(), all.size());
    QCOMPARE(yard.kept(), before);
}

void tst_PanelFlows_folders::aCategoryIsShownAsItWasLeft()
{
    const TwoDays yard;
    yard.pick(yard.first);
    yard.click(QStringLiteral("1b.mov"));
    yard.library->setCurrentCategoryType(NXVBLMODEL::mctTitle);
    yard.library->setCurrentCategoryType(NXVBLMODEL::mctMedia);
    QCOMPARE(yard.shownFolder(), QStringLiteral("Day 1"));
    QCOMPARE(yard.rows(), lines({"1a.mov", "1b.mov", "take.mov"}));
    QCOMPARE(yard.selection(), lines({"1b.mov"}));
}

void tst_PanelFlows_folders::anImportGoesToItsCategoryAndFolder_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("a new folder") << QStringLiteral("Day 3") << QStringLiteral("Day 3")
                                  << lines({"2 new.mov", "10 new.mov"});
    QTest::newRow("a known folder") << QStringLiteral("Day 2") << QStringLiteral("Day 2")
                                    << lines({"2 new.mov", "2.mov", "10 new.mov"});
    QTest::newRow("no folder") << QString() << QStringLiteral("Day 1")
                               << lines({"1a.mov", "1b.mov", "take.mov"});
}

void tst_PanelFlows_folders::anImportGoesToItsCategoryAndFolder()
{
    QFETCH(QString, below);
    QFETCH(QString, shown);
    QFETCH(QStringList, rows);
    const TwoDays yard;
    yard.pick(yard.first);
    yard.library->setCurrentCategoryType(NXVBLMODEL::mctTitle);
    NxMediaLibraryImportMediaMessage message;
    message.subFolderName = below;
    message.files = lines({"/footage/10 new.mov", "/footage/2 new.mov"});
    QVERIFY(yard.library->dispatchMessage(&message));
    QCOMPARE(message.result.size(), 2);
    QCOMPARE(yard.library->currentCategoryType(), NXVBLMODEL::mctMedia);
    QCOMPARE(yard.shownFolder(), shown);
    QCOMPARE(yard.rows(), rows);
    const bool isInSection = message.result.first()->parentFolder() == yard.section();
    QCOMPARE(isInSection, below.isEmpty());
}

void tst_PanelFlows_folders::stockClipsOnTheTimelineAppear()
{
    const TwoDays yard;
    StockClip wave("wave.mp4");
    StockClip dawn("dawn.mp4");
    NxTimelineAddMediaResponseMessage message;
    message.medias = {&wave, yard.media(QStringLiteral("2.mov")), &dawn, &wave};
    const int steps = yard.undo()->count();
    const QStringList before = yard.rows();
    QVERIFY(yard.library->dispatchMessage(&message));
    QCOMPARE(yard.rows(),
             lines({"1a.mov", "1b.mov", "2.mov", "cover.jpg", "dawn.mp4", "take.mov", "wave.mp4"}));
    QVERIFY(yard.library->dispatchMessage(&message));
    QCOMPARE(yard.undo()->count(), steps + 1);
    yard.press(QKeySequence::Undo);
    QCOMPARE(yard.rows(), before);
}

void tst_PanelFlows_folders::theEditorRemovesAMediaOfASubfolder_data()
{
    QTest::addColumn<bool>("isSure");
    QTest::newRow("the user agrees") << true;
    QTest::newRow("the user declines") << false;
}

void tst_PanelFlows_folders::theEditorRemovesAMediaOfASubfolder()
{
    QFETCH(bool, isSure);
    TwoDays yard;
    const QByteArray before = yard.dump();
    yard.pick(yard.first);
    yard.click(QStringLiteral("take.mov"));
    NxMediaLibraryRemoveMediaMessage message;
    message.mediaId = yard.media(QStringLiteral("take.mov"))->mediaId();
    const DialogUser user(
        DialogUser::typing({isSure ? QKeySequence(Qt::Key_Return) : QKeySequence(Qt::Key_Escape)}));
    QVERIFY(yard.library->dispatchMessage(&message));
    QCOMPARE(user.dialogs(), 1);
    const QStringList left = lines({"1a.mov", "1b.mov"});
    QCOMPARE(yard.rows(), isSure ? left : left + lines({"take.mov"}));
    QCOMPARE(yard.selection(), isSure ? QStringList() : lines({"take.mov"}));
    if (isSure)
        yard.press(QKeySequence::Undo);
    QCOMPARE(yard.selection(), lines({"take.mov"}));
    QCOMPARE(yard.kept(), before);
}

NX_TEST_MAIN_WIDGETS(tst_PanelFlows_folders)
#include "tst_PanelFlows_folders.moc"
