// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MediaViewStand.h"

#include <NxMediaLibrary/PreviewStand.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QHeaderView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr const char *Words = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18";

/// Everything that a user and a program may ask of a view that shows nothing.
void askEverything(MediaViewStand &f)
{
    NxMediaItemView &view = f.view;
    QVERIFY(!view.mediaModel());
    QVERIFY(view.selectedMedia().isEmpty());
    QVERIFY(!view.currentMedia());
    const QPair<int, int> none(-1, -1);
    QCOMPARE(view.visibleRows(), none);
    const QPoint point(20, 20);
    QVERIFY(!view.indexAt(point).isValid());
    QVERIFY(view.visualRect(f.model.index(0, 0)).isNull());
    view.scrollTo(f.model.index(0, 0));
    view.selectMedia({f.media(QStringLiteral("1"))});
    view.showMedia(f.media(QStringLiteral("1")));
    view.editName(f.media(QStringLiteral("1")));
    view.selectAll();
    view.clearSelection();
    view.setAllExpanded(false);
    view.setScrubbing(true);
    view.setScrubbing(false);
    view.keyboardSearch(QStringLiteral("1"));
    f.move(point);
    f.click(point);
    f.doubleClick(point);
    f.pull(point, point + QPoint(90, 90));
    f.release(point);
    f.click(point, Qt::NoModifier, Qt::RightButton);
    for (const int key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Space,
                          Qt::Key_Return, Qt::Key_F2, Qt::Key_A, Qt::Key_Shift})
        QTest::keyClick(&view, Qt::Key(key));
    view.viewport()->grab();
    view.resize(view.width() + 10, view.height());
    view.setViewMode(vmList);
    view.viewport()->grab();
    view.setViewMode(vmSmallThumbnail);
    QCoreApplication::processEvents();
    QVERIFY(view.selectedMedia().isEmpty());
    QCOMPARE(view.visibleRows(), none);
    QCOMPARE(view.verticalScrollBar()->maximum(), 0);
}

} // namespace

/// Models that are given to a view, taken from it, or die.
class tst_NxMediaItemView_models : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aViewWithoutAModelShowsNothing();
    void aModelThatIsTakenAwayLeavesNothing();
    void aModelThatDiesLeavesNothing();
    void aModelMayDieWithItsView();
    void anotherKindOfModelIsRefused();
    void theSameModelAgainChangesNothing();
    void anotherModelBeginsAfresh();
    void theSelectionModelGoesWithItsModel();
    void aSelectionThatGoesWithItsModelIsTold();
    void whoIsToldOfASelectionMayTakeTheModelAway();
    void rowsInAnOpenResetAreNotAskedFor();
    void aSimilarSearchIsShownInWholeLines();
};

void tst_NxMediaItemView_models::aViewWithoutAModelShowsNothing()
{
    MediaViewStand f(Words);
    f.view.setModel(nullptr);
    NxMediaItemView other;
    QVERIFY(!other.mediaModel());
    QVERIFY(!other.mediaSelection() || other.selectedMedia().isEmpty());
    QVERIFY(!other.indexAt({1, 1}).isValid());
    other.show();
    other.viewport()->grab();
    QCOMPARE(other.visibleRows().first, -1);
}

void tst_NxMediaItemView_models::aModelThatIsTakenAwayLeavesNothing()
{
    MediaViewStand f(Words);
    f.view.verticalScrollBar()->setValue(50);
    f.move({20, 20});
    f.choose(QStringLiteral("4"));
    INxPreviewFrameHelper *player = f.view.mediaDelegate()->previewFrameHelper();
    QVERIFY(player->getMedia());
    player->setPlayThumbnail(filmStrip(810));
    QVERIFY(player->playPreviewFrame());
    f.view.setModel(nullptr);
    QVERIFY(!player->getMedia());
    QVERIFY(!f.view.mediaSelection());
    askEverything(f);
    f.view.setModel(&f.model);
    f.view.viewport()->grab();
    QCOMPARE(f.selected(), QString());
    QCOMPARE(f.view.visibleRows().first, 0);
}

void tst_NxMediaItemView_models::aModelThatDiesLeavesNothing()
{
    MediaViewStand f(Words);
    for (const bool isDirty : {false, true}) {
        auto model = std::make_unique<NxMediaItemModel>(mctMedia, nullptr);
        model->load(f.folder);
        f.view.setModel(model.get());
        f.choose(QStringLiteral("4"));
        f.view.viewport()->grab();
        f.move({20, 20});
        if (isDirty)
            model->load(f.folder);
        model.reset();
        askEverything(f);
    }
    f.view.setModel(&f.model);
    f.view.viewport()->grab();
    QCOMPARE(f.view.visibleRows().first, 0);
}

void tst_NxMediaItemView_models::aModelMayDieWithItsView()
{
    const MediaViewStand f(Words);
    auto view = std::make_unique<NxMediaItemView>();
    auto *model = new NxMediaItemModel(mctMedia, view.get());
    const QPointer<NxMediaItemModel> alive(model);
    model->load(f.folder);
    view->setModel(model);
    view->show();
    view->viewport()->grab();
    view.reset();
    QVERIFY(!alive);
}

void tst_NxMediaItemView_models::anotherKindOfModelIsRefused()
{
    MediaViewStand f(Words);
    QStandardItemModel other;
    f.view.selectMedia({f.media(QStringLiteral("3"))});
    NxTestLog::expectError(QStringLiteral("QStandardItemModel"));
    f.view.setModel(&other);
    QCOMPARE(f.view.mediaModel(), &f.model);
    QCOMPARE(f.view.model(), &f.model);
    QCOMPARE(f.selected(), QStringLiteral("3"));
}

void tst_NxMediaItemView_models::theSameModelAgainChangesNothing()
{
    MediaViewStand f(Words);
    f.choose(QStringLiteral("4"));
    const NxMediaItemSelectionModel *selection = f.view.mediaSelection();
    f.view.setModel(&f.model);
    QCOMPARE(f.view.mediaSelection(), selection);
    QCOMPARE(f.selected(), QStringLiteral("4"));
    QCOMPARE(f.current(), QStringLiteral("4"));
}

void tst_NxMediaItemView_models::anotherModelBeginsAfresh()
{
    MediaViewStand f(Words);
    f.choose(QStringLiteral("14"));
    QVERIFY(f.view.verticalScrollBar()->value() > 0);
    f.model.load(f.folder); // What would come back, does not.
    NxMediaItemModel other(mctMedia, nullptr);
    other.load(f.folder);
    f.view.setModel(&other);
    f.view.viewport()->grab();
    QCOMPARE(f.selected(), QString());
    QVERIFY(!f.view.currentIndex().isValid());
    QCOMPARE(f.view.verticalScrollBar()->value(), 0);
    QCOMPARE(other.itemCountPerLine(), MediaViewStand::PerLine);
    QCOMPARE(f.view.columnHeader()->model(), &other);
    f.model.load(f.folder);
    f.view.setModel(&f.model);
}

void tst_NxMediaItemView_models::theSelectionModelGoesWithItsModel()
{
    MediaViewStand f(Words);
    const QPointer<NxMediaItemSelectionModel> first(f.view.mediaSelection());
    QVERIFY(first);
    QCOMPARE(first->mediaItemModel(), &f.model);
    for (int i = 0; i < 3; ++i) {
        f.view.setModel(nullptr);
        f.view.setModel(&f.model);
    }
    QVERIFY(f.view.mediaSelection() != first);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first);
    QCOMPARE(f.model.findChildren<QItemSelectionModel *>().size()
                 + f.view.findChildren<QItemSelectionModel *>(QString(), Qt::FindDirectChildrenOnly)
                       .size(),
             1);
}

void tst_NxMediaItemView_models::aSelectionThatGoesWithItsModelIsTold()
{
    MediaViewStand f(Words);
    f.choose(QStringLiteral("4"));
    QStringList told;
    connect(&f.view, &NxMediaItemView::sigSelectedMediaChanged, this,
            [&] { told.append(f.selected()); });
    f.view.setModel(nullptr);
    QCOMPARE(told, QStringList(QString()));
    f.view.setModel(&f.model);
    QCOMPARE(told.size(), 1);
    disconnect(&f.view, nullptr, this, nullptr);
}

void tst_NxMediaItemView_models::whoIsToldOfASelectionMayTakeTheModelAway()
{
    MediaViewStand f(Words);
    connect(&f.view, &NxMediaItemView::sigSelectedMediaChanged, &f.view,
            [&] { f.view.setModel(nullptr); });
    f.click(QStringLiteral("4"));
    QVERIFY(!f.view.mediaModel());
    f.view.setModel(&f.model);
    f.view.viewport()->grab();
    f.model.load(f.folder);
    QVERIFY(f.view.selectedMedia().isEmpty()); // Told, and without a model again.
    QVERIFY(!f.view.mediaModel());
}

void tst_NxMediaItemView_models::rowsInAnOpenResetAreNotAskedFor()
{
    MediaViewStand f(Words);
    f.choose(QStringLiteral("4"));
    ShownMedia coming(QStringLiteral("new"));
    f.model.onBeforeAddItemEvent(f.folder, &coming);
    f.view.viewport()->grab();
    f.move({20, 20});
    f.folder->media.prepend(&coming);
    f.model.onAfterAddItemEvent(f.folder, &coming);
    QCOMPARE(f.selected(), QStringLiteral("4"));
    QCOMPARE(f.current(), QStringLiteral("4"));
    f.folder->media.removeAll(&coming);
    f.model.load(f.folder);
}

void tst_NxMediaItemView_models::aSimilarSearchIsShownInWholeLines()
{
    MediaViewStand f(Words);
    NxMediaItemViewFilter filter;
    filter.searchMode = esmSimilar;
    filter.similarResourceId = 1;
    f.model.setFilter(filter);
    f.model.updateSimilarMediaItems();
    f.view.viewport()->grab();
    QCOMPARE(f.rows(), QStringLiteral("1 2 3 4 5 6 ..."));
    f.fit(4);
    QCOMPARE(f.view.itemsPerLine(), 4);
    const int shown = f.model.rowCount() - 1;
    QCOMPARE(shown % 4, 0);
    QCOMPARE(f.rect(QStringLiteral("...")).width(), f.view.viewport()->width());
    f.view.setViewMode(vmList);
    f.view.viewport()->grab();
    QCOMPARE(f.model.itemCountPerLine(), 1);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_models)
#include "tst_NxMediaItemView_models.moc"
