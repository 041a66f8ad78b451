// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderTreeView.h>

#include "FolderTreeYard.h"

#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>

using namespace NXVBLMODEL;

/// Which folders a tree shows, which one is current, and which are unfolded.
class tst_NxFolderTreeView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void withoutACategoryNothingIsShown();
    void aCategoryBeginsInItsFirstSection();
    void aClickPicksAFolder();
    void whatLetsGoElsewherePicksNothing();
    void theArrowOnlyUnfolds();
    void keysPickFolders();
    void pickingEndsASearchForSimilarMedia();
    void theCurrentFolderCanBeSeen();
    void whatTheUserFoldsStaysFolded();
    void newFoldersUnfoldTheirParent();
    void undoneFoldersComeBackAsTheyWere();
    void whenTheCurrentFolderGoesItsParentIsCurrent();
    void aMovedFolderStaysCurrent();
    void aMovedFolderStaysAsItIsFolded_data();
    void aMovedFolderStaysAsItIsFolded();
    void eachCategoryStaysUnfoldedAsItWas();
    void unfoldedFoldersAreToldAndSet();
    void presentersMayDieFirst();
    void theViewMayDieFirst();
    void mediaThatComeRepaintTheirNumber();
};

void tst_NxFolderTreeView::withoutACategoryNothingIsShown()
{
    NxFolderTreeView tree;
    QCOMPARE(tree.model()->rowCount(), 0);
    QCOMPARE(tree.presenter(), nullptr);
    QCOMPARE(tree.expandedFolders(), QSet<int>());
    tree.setExpandedFolders({1});
    tree.newFolder();
    tree.renameFolder();
    tree.removeFolder();
    tree.keyboardSearch(QStringLiteral("a"));
    tree.show();
    QTest::keyClick(&tree, Qt::Key_F2);
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, {10, 10});
    NxMediaCategoryPresenter empty(nullptr, nullptr);
    tree.setPresenter(&empty);
    QCOMPARE(tree.presenter(), &empty);
    QCOMPARE(tree.model()->rowCount(), 0);
    QCOMPARE(tree.expandedFolders(), QSet<int>());
    tree.newFolder();
}

void tst_NxFolderTreeView::aCategoryBeginsInItsFirstSection()
{
    FolderTreeYard yard;
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media"}));
    QCOMPARE(yard.current(), QStringLiteral("Project Media"));
    yard.folders()->setCurrentFolder(yard.second);
    yard.tree->setPresenter(nullptr);
    QCOMPARE(yard.rows(), QStringList());
    yard.show(mctMedia);
    QCOMPARE(yard.current(), QStringLiteral("Day 2"));
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 1 +", "  Day 2 *", "Shared Media"}));
}

void tst_NxFolderTreeView::aClickPicksAFolder()
{
    const FolderTreeYard yard;
    QSignalSpy changed(yard.folders(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged);
    yard.click(yard.second);
    QCOMPARE(yard.current(), QStringLiteral("Day 2"));
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 1 +", "  Day 2 *", "Shared Media"}));
    yard.click(yard.second);
    QCOMPARE(changed.count(), 1);
}

void tst_NxFolderTreeView::whatLetsGoElsewherePicksNothing()
{
    const FolderTreeYard yard;
    QTest::mousePress(yard.tree->viewport(), Qt::LeftButton, {}, yard.at(yard.second));
    QCOMPARE(yard.current(), QStringLiteral("Project Media"));
    QTest::mouseRelease(yard.tree->viewport(), Qt::LeftButton, {}, yard.at(yard.first));
    QCOMPARE(yard.current(), QStringLiteral("Project Media"));
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView::theArrowOnlyUnfolds()
{
    const FolderTreeYard yard;
    const QRect row = yard.tree->visualRect(yard.index(yard.first));
    const QPoint arrow(row.left() - yard.tree->indentation() / 2, row.center().y());
    QTest::mouseClick(yard.tree->viewport(), Qt::LeftButton, {}, arrow);
    QCOMPARE(yard.rows(),
             lines({"Project Media - *", "  Day 1 -", "    Takes", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView::keysPickFolders()
{
    const FolderTreeYard yard;
    yard.press(Qt::Key_Down);
    QCOMPARE(yard.current(), QStringLiteral("Day 1"));
    yard.press(Qt::Key_Right);
    QCOMPARE(yard.rows(),
             lines({"Project Media -", "  Day 1 - *", "    Takes", "  Day 2", "Shared Media"}));
    yard.press(Qt::Key_Right);
    QCOMPARE(yard.current(), QStringLiteral("Takes"));
    yard.press(Qt::Key_Left);
    QCOMPARE(yard.current(), QStringLiteral("Day 1"));
    yard.press(Qt::Key_Left);
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 1 + *", "  Day 2", "Shared Media"}));
    yard.press(Qt::Key_End);
    QCOMPARE(yard.current(), QStringLiteral("Shared Media"));
    yard.press(Qt::Key_Home);
    QCOMPARE(yard.current(), QStringLiteral("Project Media"));
}

void tst_NxFolderTreeView::pickingEndsASearchForSimilarMedia()
{
    NxTestLog::expectErrors(QStringLiteral("search folder is nullptr")); // This project has none.
    const FolderTreeYard yard;
    NxMediaItemManagerPresenter *items = yard.category()->mediaItemManagerPresenter();
    for (const bool isByKey : {false, true}) {
        items->setFilterSimilarResource(7, mctMedia, QStringLiteral("/a.png"), true, false);
        QCOMPARE(items->getFilter().searchMode, NXMEDIALIBRARY::esmSimilar);
        if (isByKey)
            yard.press(Qt::Key_Up);
        else
            yard.click(yard.first);
        QVERIFY(items->getFilter().searchMode != NXMEDIALIBRARY::esmSimilar);
    }
    // Also when the folder is the current one already.
    items->setFilterSimilarResource(7, mctMedia, QStringLiteral("/a.png"), true, false);
    yard.click(yard.section());
    QVERIFY(items->getFilter().searchMode != NXMEDIALIBRARY::esmSimilar);
}

void tst_NxFolderTreeView::theCurrentFolderCanBeSeen()
{
    const FolderTreeYard yard;
    yard.tree->collapse(yard.index(yard.section()));
    QCOMPARE(yard.rows(), lines({"Project Media + *", "Shared Media"}));
    yard.folders()->setCurrentFolder(yard.takes);
    QCOMPARE(yard.rows(),
             lines({"Project Media -", "  Day 1 -", "    Takes *", "  Day 2", "Shared Media"}));
    for (int i = 0; i < 40; ++i)
        yard.add(yard.shared(), qPrintable(QStringLiteral("Shot %1").arg(i)));
    const INxFolderMedia *last = yard.shared()->childFolder(39);
    yard.folders()->setCurrentFolder(yard.shared()->childFolder(39));
    QVERIFY(yard.tree->viewport()->rect().contains(yard.at(last)));
}

void tst_NxFolderTreeView::whatTheUserFoldsStaysFolded()
{
    const FolderTreeYard yard;
    yard.folders()->setCurrentFolder(yard.takes);
    yard.tree->collapse(yard.index(yard.first));
    yard.add(yard.section(), "Day 3");
    yard.folders()->renameFolder(yard.second, QStringLiteral("Night"));
    QCOMPARE(yard.rows(),
             lines({"Project Media -", "  Day 1 +", "  Night", "  Day 3", "Shared Media"}));
}

void tst_NxFolderTreeView::newFoldersUnfoldTheirParent()
{
    const FolderTreeYard yard;
    yard.add(yard.takes, "Good ones");
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media"}));
    yard.tree->expand(yard.index(yard.first));
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 -", "    Takes -", "      Good ones",
                                 "  Day 2", "Shared Media"}));
    yard.tree->collapse(yard.index(yard.first));
    yard.add(yard.first, "Sound");
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 -", "    Takes -", "      Good ones",
                                 "    Sound", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView::undoneFoldersComeBackAsTheyWere()
{
    const FolderTreeYard yard;
    yard.tree->expandAll();
    const QStringList before = yard.rows();
    QVERIFY(yard.folders()->folderManager()->removeFolder(yard.first));
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 2", "Shared Media"}));
    yard.undo()->undo();
    QCOMPARE(yard.rows(), before);
}

void tst_NxFolderTreeView::whenTheCurrentFolderGoesItsParentIsCurrent()
{
    const FolderTreeYard yard;
    yard.folders()->setCurrentFolder(yard.first);
    QSignalSpy changed(yard.folders(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged);
    QVERIFY(yard.folders()->folderManager()->removeFolder(yard.first));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(yard.current(), QStringLiteral("Project Media"));
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView::aMovedFolderStaysCurrent()
{
    const FolderTreeYard yard;
    yard.folders()->setCurrentFolder(yard.takes);
    QSignalSpy changed(yard.folders(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged);
    QVERIFY(yard.folders()->moveFolder(yard.first, yard.second, 0));
    QCOMPARE(yard.rows(), lines({"Project Media -", "  Day 2 -", "    Day 1 -", "      Takes *",
                                 "Shared Media"}));
    QCOMPARE(changed.count(), 0);
}

void tst_NxFolderTreeView::aMovedFolderStaysAsItIsFolded_data()
{
    QTest::addColumn<bool>("isUnfolded");
    QTest::newRow("folded") << false;
    QTest::newRow("unfolded") << true;
}

void tst_NxFolderTreeView::aMovedFolderStaysAsItIsFolded()
{
    QFETCH(bool, isUnfolded);
    const FolderTreeYard yard;
    yard.tree->setExpanded(yard.index(yard.first), isUnfolded);
    QVERIFY(yard.folders()->moveFolder(yard.first, yard.shared(), 0));
    QStringList rows = lines({"Project Media - *", "  Day 2", "Shared Media -", "  Day 1 +"});
    if (isUnfolded)
        rows = rows.mid(0, 3) + lines({"  Day 1 -", "    Takes"});
    QCOMPARE(yard.rows(), rows);
}

void tst_NxFolderTreeView::eachCategoryStaysUnfoldedAsItWas()
{
    FolderTreeYard yard;
    yard.tree->expandAll();
    const QStringList media = yard.rows();
    yard.show(mctTitle);
    QCOMPARE(yard.rows(), lines({"All *", "Favorites", "Downloaded"}));
    yard.show(mctMedia);
    QCOMPARE(yard.rows(), media);
    yard.tree->collapseAll();
    yard.tree->setPresenter(nullptr);
    yard.show(mctMedia);
    QCOMPARE(yard.rows(), lines({"Project Media + *", "Shared Media"}));
}

void tst_NxFolderTreeView::unfoldedFoldersAreToldAndSet()
{
    const FolderTreeYard yard;
    QCOMPARE(yard.tree->expandedFolders(), QSet<int>({1, 2}));
    yard.tree->setExpandedFolders({yard.first->folderId(), 4711});
    QCOMPARE(yard.rows(), lines({"Project Media + *", "Shared Media"}));
    QCOMPARE(yard.tree->expandedFolders(), QSet<int>({yard.first->folderId()}));
    yard.tree->expand(yard.index(yard.section()));
    QCOMPARE(yard.rows(),
             lines({"Project Media - *", "  Day 1 -", "    Takes", "  Day 2", "Shared Media"}));
    QVERIFY(yard.folders()->folderManager()->removeFolder(yard.first));
    QCOMPARE(yard.tree->expandedFolders(), QSet<int>({1}));
}

void tst_NxFolderTreeView::presentersMayDieFirst()
{
    FolderTreeYard yard;
    yard.tree->expandAll();
    const QStringList before = yard.rows();
    yard.library.reset();
    QCOMPARE(yard.tree->presenter(), nullptr);
    QCOMPARE(yard.rows(), QStringList());
    yard.tree->newFolder();
    yard.press(Qt::Key_Down);
    yard.library = std::make_unique<NxMediaLibraryPresenter>(yard.project, nullptr);
    yard.show(mctMedia);
    QCOMPARE(yard.rows(), before);
    yard.close();
    QCOMPARE(yard.rows(), QStringList());
}

void tst_NxFolderTreeView::theViewMayDieFirst()
{
    FolderTreeYard yard;
    yard.folders()->setCurrentFolder(yard.first);
    yard.tree->renameFolder();
    QVERIFY(yard.editor());
    yard.tree.reset();
    yard.addMedia(yard.second, lines({"a.mov"}));
    QVERIFY(yard.add(yard.second, "New"));
    yard.folders()->setCurrentFolder(yard.second);
    NxSkinStyle::instance()->setSkin(NxSkin::Light);
    NxSkinStyle::instance()->setSkin(NxSkin::Dark);
    QCOMPARE(yard.current(), QStringLiteral("Day 2"));
}

void tst_NxFolderTreeView::mediaThatComeRepaintTheirNumber()
{
    const FolderTreeYard yard;
    const auto picture = [&] { return yard.tree->viewport()->grab().toImage(); };
    QCoreApplication::processEvents();
    const QImage before = picture();
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    yard.tree->viewport()->installEventFilter(&counter);
    yard.addMedia(yard.first, lines({"a.mov", "b.mov"}));
    QTRY_VERIFY(counter.paints > 0);
    QVERIFY(picture() != before);
    counter.paints = 0;
    yard.undo()->undo();
    QTRY_VERIFY(counter.paints > 0);
    QCOMPARE(picture(), before);
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeView)
#include "tst_NxFolderTreeView.moc"
