// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/TextLines.h>
#include <Support/NxTestMain.h>

#include <QHeaderView>
#include <QMimeData>
#include <QSignalSpy>

#include "MediaViewStand.h"

using namespace NXMEDIALIBRARY;

namespace {

const char *const Ten = "A B C D E F G H I J";

/// Beside the last tile of a short line.
QPoint besideLast(const MediaViewStand &stand)
{
    return stand.at(QStringLiteral("J")) + QPoint(stand.rect(QStringLiteral("J")).width() + 10, 0);
}

/// A drop of these files or addresses, and of media when wanted.
struct Dropping
{
    explicit Dropping(const QStringList &urls)
    {
        QList<QUrl> list;
        for (const QString &url : urls)
            list.append(QUrl(url));
        mime->setUrls(list);
    }
    bool enters(MediaViewStand *stand) const
    {
        QDragEnterEvent event({20, 20}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(stand->view.viewport(), &event);
        return event.isAccepted();
    }
    bool moves(MediaViewStand *stand) const
    {
        QDragMoveEvent event({30, 20}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton,
                             Qt::NoModifier);
        QApplication::sendEvent(stand->view.viewport(), &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    bool drops(MediaViewStand *stand) const
    {
        QDropEvent event({30, 20}, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(stand->view.viewport(), &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }

    std::unique_ptr<QMimeData> mime = std::make_unique<QMimeData>();
};

void wheel(MediaViewStand *stand, int angle, Qt::KeyboardModifiers held = Qt::NoModifier)
{
    const QPointF point(20, 20);
    QWheelEvent event(point, stand->view.viewport()->mapToGlobal(point.toPoint()), {}, {0, angle},
                      Qt::NoButton, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(stand->view.viewport(), &event);
}

} // namespace

/// What the mouse does in the view: it selects, drags, folds, scrolls and asks for things.
class tst_NxMediaItemView_mouse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void clicksSelect_data();
    void clicksSelect();
    void aPressOnTheSelectionKeepsItUntilTheRelease();
    void aRangeGoesByRows_data();
    void aRangeGoesByRows();
    void headersAndTilesAreNeverSelected();
    void aBandSelectsWhatItTouches();
    void aBandGoesOverHeaders();
    void aBandWithCtrlAdds();
    void aBandIsSeen();
    void aBandBeyondTheEdgeScrolls();
    void aBandFromAHeaderDragsNothing();
    void mediaAreDraggedWithTheirFiles_data();
    void mediaAreDraggedWithTheirFiles();
    void aShortWayIsNoDrag();
    void filesAreWelcome();
    void othersAreRefused_data();
    void othersAreRefused();
    void nothingIsDroppedWhereNoFolderIsShown();
    void aDoubleClickActivatesAMedia();
    void aMissingMediaIsActivatedToo();
    void aDoubleClickFoldsAGroup();
    void aDoubleClickOnTheArrowIsTwoClicks();
    void theImportTileAsksOnce_data();
    void theImportTileAsksOnce();
    void theWheelScrolls();
    void theWheelWithCtrlAsksForASize();
    void touchpadsAskForASizeByNotches();
    void menusAreAskedFor_data();
    void menusAreAskedFor();
    void aMenuByKeyboardStaysInSight();
    void rowsAreEnteredAndLeft();
    void rowsScrollBelowAPointerThatRests();
    void shiftScrubs();
    void aClickOnAColumnAsksForAnOrder();
    void columnsKeepTheirPlacesThroughResets();
    void columnsAreMovedHiddenAndResized();
    void aNarrowListScrollsSideways_data();
    void aNarrowListScrollsSideways();
    void tilesBeginAtTheRightWhereReadingDoes();
    void theMouseFindsNothingWithoutAModel();
};

void tst_NxMediaItemView_mouse::clicksSelect_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("selected");
    QTest::newRow("one") << lines({"B"}) << "B";
    QTest::newRow("another one") << lines({"B", "D"}) << "D";
    QTest::newRow("ctrl adds") << lines({"B", "+D"}) << "B D";
    QTest::newRow("ctrl takes away") << lines({"B", "+D", "+B"}) << "D";
    QTest::newRow("shift selects up to it") << lines({"B", "^F"}) << "B C D E F";
    QTest::newRow("shift goes backwards") << lines({"F", "^C"}) << "C D E F";
    QTest::newRow("shift again from the same beginning") << lines({"C", "^F", "^A"}) << "A B C";
    QTest::newRow("shift keeps what ctrl chose") << lines({"A", "+C", "^E"}) << "A C D E";
    QTest::newRow("ground clears") << lines({"B", "ground"}) << "";
    QTest::newRow("ground with ctrl keeps") << lines({"B", "+ground"}) << "B";
}

void tst_NxMediaItemView_mouse::clicksSelect()
{
    QFETCH(QStringList, clicks);
    MediaViewStand stand(Ten);
    for (QString name : qAsConst(clicks)) {
        const bool hasCtrl = name.startsWith(QLatin1Char('+'));
        const bool hasShift = name.startsWith(QLatin1Char('^'));
        if (hasCtrl || hasShift)
            name.remove(0, 1);
        const Qt::KeyboardModifiers held = hasCtrl    ? Qt::ControlModifier
                                           : hasShift ? Qt::ShiftModifier
                                                      : Qt::NoModifier;
        stand.click(name == QLatin1String("ground") ? besideLast(stand) : stand.at(name), held);
    }
    QTEST(stand.selected(), "selected");
}

void tst_NxMediaItemView_mouse::aPressOnTheSelectionKeepsItUntilTheRelease()
{
    MediaViewStand stand(Ten);
    stand.click(QStringLiteral("A"));
    stand.click(QStringLiteral("C"), Qt::ShiftModifier);
    stand.press(stand.at(QStringLiteral("B")));
    QCOMPARE(stand.selected(), QStringLiteral("A B C"));
    stand.release(stand.at(QStringLiteral("B")));
    QCOMPARE(stand.selected(), QStringLiteral("B"));
}

void tst_NxMediaItemView_mouse::aRangeGoesByRows_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("inList");
    for (const bool inList : {false, true}) {
        const QString mode = inList ? QStringLiteral("list") : QStringLiteral("tiles");
        QTest::addRow("%s, over a header", qPrintable(mode)) << "A"
                                                             << "D" << inList;
        QTest::addRow("%s, backwards", qPrintable(mode)) << "D"
                                                         << "A" << inList;
    }
}

void tst_NxMediaItemView_mouse::aRangeGoesByRows()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(bool, inList);
    MediaViewStand stand("A:x B:x C:y D:y E:y");
    stand.group();
    if (inList)
        stand.showList();
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B [y] C D E"));
    stand.click(from);
    stand.click(to, Qt::ShiftModifier);
    QCOMPARE(stand.selected(), QStringLiteral("A B C D"));
}

void tst_NxMediaItemView_mouse::headersAndTilesAreNeverSelected()
{
    MediaViewStand stand("A:x B:x C:y", NXVBLMODEL::fkProject);
    stand.group();
    QCOMPARE(stand.rows(), QStringLiteral("[x] + A B [y] + C"));
    constexpr int title = 60; // px
    for (const char *row : {"[x]", "+"}) {
        const QRect place = stand.rect(QLatin1String(row));
        stand.click(QPoint(place.left() + title, place.center().y()));
        QCOMPARE(stand.selected(), QString());
        stand.click(QStringLiteral("C"), Qt::ShiftModifier);
        QCOMPARE(stand.selected(), QStringLiteral("A B C"));
    }
    stand.view.selectAll();
    QCOMPARE(stand.selected(), QStringLiteral("A B C"));
}

void tst_NxMediaItemView_mouse::aBandSelectsWhatItTouches()
{
    MediaViewStand stand(Ten);
    stand.pull(besideLast(stand), stand.at(QStringLiteral("H")));
    QCOMPARE(stand.selected(), QStringLiteral("H"));
    stand.move(stand.at(QStringLiteral("D")), Qt::LeftButton);
    QCOMPARE(stand.selected(), QStringLiteral("D E G H J"));
    stand.move(stand.at(QStringLiteral("E")), Qt::LeftButton);
    QCOMPARE(stand.selected(), QStringLiteral("E H"));
    stand.release(stand.at(QStringLiteral("E")));
    QCOMPARE(stand.selected(), QStringLiteral("E H"));
    QVERIFY(stand.view.dragged.isEmpty());
}

void tst_NxMediaItemView_mouse::aBandGoesOverHeaders()
{
    MediaViewStand stand("A:x B:x C:y D:y");
    stand.group();
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B [y] C D"));
    const QPoint start =
        stand.at(QStringLiteral("D")) + QPoint(stand.rect(QStringLiteral("D")).width() + 10, 0);
    stand.pull(start, stand.at(QStringLiteral("B")));
    QCOMPARE(stand.selected(), QStringLiteral("B D"));
    QCOMPARE(stand.view.selectedIndexes().size(), 2);
}

void tst_NxMediaItemView_mouse::aBandWithCtrlAdds()
{
    MediaViewStand stand(Ten);
    stand.click(QStringLiteral("A"));
    stand.pull(besideLast(stand), stand.at(QStringLiteral("H")), Qt::ControlModifier);
    stand.release(stand.at(QStringLiteral("H")), Qt::ControlModifier);
    QCOMPARE(stand.selected(), QStringLiteral("A H"));
}

void tst_NxMediaItemView_mouse::aBandIsSeen()
{
    MediaViewStand stand(Ten);
    const QColor frame = NxSkinStyle::instance()->GetColor(NxSkinColor::Accent);
    const QPoint corner = besideLast(stand) + QPoint(60, 20);
    const auto pixel = [&] { return stand.view.viewport()->grab().toImage().pixelColor(corner); };
    QVERIFY(pixel() != frame);
    stand.pull(corner, besideLast(stand));
    QCOMPARE(pixel(), frame);
    stand.release(besideLast(stand));
    QVERIFY(pixel() != frame);
}

void tst_NxMediaItemView_mouse::aBandBeyondTheEdgeScrolls()
{
    MediaViewStand stand("A B C D E F G H");
    stand.fit(MediaViewStand::PerLine, 2);
    QScrollBar *bar = stand.view.verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);
    const QPoint start =
        stand.at(QStringLiteral("H")) + QPoint(stand.rect(QStringLiteral("H")).width() + 10, 0);
    const QPoint edge(start.x(), 2);
    stand.pull(start, edge);
    QTRY_COMPARE(bar->value(), 0);
    QTRY_COMPARE(stand.selected(), QStringLiteral("C F"));
    stand.release(edge);
}

void tst_NxMediaItemView_mouse::aBandFromAHeaderDragsNothing()
{
    MediaViewStand stand("A:x B:x C:y D:y");
    stand.group();
    stand.click(QStringLiteral("A"));
    stand.pull(stand.at(QStringLiteral("[y]")), stand.at(QStringLiteral("D")), Qt::ControlModifier);
    QVERIFY(stand.view.dragged.isEmpty());
    stand.release(stand.at(QStringLiteral("D")), Qt::ControlModifier);
    QVERIFY(stand.selected().startsWith(QLatin1Char('A')));
    QVERIFY(stand.selected().contains(QLatin1Char('D')));
}

void tst_NxMediaItemView_mouse::mediaAreDraggedWithTheirFiles_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QStringList>("drags");
    QTest::newRow("one") << ""
                         << "A" << lines({"A|A"});
    QTest::newRow("the selection") << "B"
                                   << "A" << lines({"A B|A B"});
    QTest::newRow("what is missing stays") << "gone"
                                           << "A" << lines({"A B|A B"});
    QTest::newRow("nothing but what is missing") << ""
                                                 << "gone" << QStringList();
}

void tst_NxMediaItemView_mouse::mediaAreDraggedWithTheirFiles()
{
    QFETCH(QString, chosen);
    QFETCH(QString, from);
    MediaViewStand stand("A B gone D");
    if (!chosen.isEmpty()) {
        stand.click(from);
        stand.click(chosen, Qt::ShiftModifier);
    }
    stand.pull(stand.at(from), stand.at(QStringLiteral("D")));
    QTEST(stand.view.dragged, "drags");
    stand.release(stand.at(QStringLiteral("D")));
}

void tst_NxMediaItemView_mouse::aShortWayIsNoDrag()
{
    MediaViewStand stand(Ten);
    const QPoint from = stand.at(QStringLiteral("A"));
    stand.pull(from, from + QPoint(QApplication::startDragDistance() / 2, 0));
    stand.release(from);
    QVERIFY(stand.view.dragged.isEmpty());
    QCOMPARE(stand.selected(), QStringLiteral("A"));
}

void tst_NxMediaItemView_mouse::filesAreWelcome()
{
    MediaViewStand stand(Ten);
    QSignalSpy drops(&stand.view, &NxMediaItemView::sigFilesDropped);
    const Dropping files({QStringLiteral("file:///footage/one.mov"),
                          QStringLiteral("https://example.org/two.mov"),
                          QStringLiteral("file:///footage/day%202")});
    const auto picture = [&] { return stand.view.viewport()->grab().toImage(); };
    const QImage before = picture();
    QVERIFY(files.enters(&stand));
    QVERIFY(picture() != before); // A frame says that files can be dropped.
    QVERIFY(files.moves(&stand));
    QVERIFY(files.drops(&stand));
    QCOMPARE(picture(), before);
    QCOMPARE(drops.size(), 1);
    QCOMPARE(drops.at(0).at(0).toStringList(),
             QStringList({QStringLiteral("/footage/one.mov"), QStringLiteral("/footage/day 2")}));
    QVERIFY(files.enters(&stand));
    QDragLeaveEvent leave;
    QApplication::sendEvent(stand.view.viewport(), &leave);
    QCOMPARE(picture(), before);
    QCOMPARE(drops.size(), 1);
}

void tst_NxMediaItemView_mouse::othersAreRefused_data()
{
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<bool>("isOwn");
    QTest::newRow("nothing") << QStringList() << false;
    QTest::newRow("an address") << lines({"https://example.org/two.mov"}) << false;
    QTest::newRow("media of a view") << lines({"file:///footage/A"}) << true;
}

void tst_NxMediaItemView_mouse::othersAreRefused()
{
    QFETCH(QStringList, urls);
    QFETCH(bool, isOwn);
    MediaViewStand stand(Ten);
    QSignalSpy drops(&stand.view, &NxMediaItemView::sigFilesDropped);
    Dropping dropping(urls);
    if (isOwn) {
        auto own = std::make_unique<NxMediaItemMimeData>();
        own->append(stand.media(QStringLiteral("A")));
        own->setUrls(dropping.mime->urls());
        dropping.mime = std::move(own);
    }
    QVERIFY(!dropping.enters(&stand));
    QVERIFY(!dropping.moves(&stand));
    QVERIFY(!dropping.drops(&stand));
    QCOMPARE(drops.size(), 0);
}

void tst_NxMediaItemView_mouse::nothingIsDroppedWhereNoFolderIsShown()
{
    MediaViewStand stand(Ten);
    const Dropping files({QStringLiteral("file:///footage/one.mov")});
    stand.model.load(nullptr);
    QVERIFY(!files.enters(&stand));
    stand.view.setModel(nullptr);
    QVERIFY(!files.enters(&stand));
}

void tst_NxMediaItemView_mouse::aDoubleClickActivatesAMedia()
{
    MediaViewStand stand(Ten);
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    stand.doubleClick(stand.at(QStringLiteral("E")));
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).value<INxAbstractMedia *>(),
             static_cast<INxAbstractMedia *>(stand.media(QStringLiteral("E"))));
    stand.doubleClick(besideLast(stand));
    QCOMPARE(activated.size(), 1);
    const QPoint right = stand.at(QStringLiteral("E"));
    stand.click(right, Qt::NoModifier, Qt::RightButton);
    stand.send(QEvent::MouseButtonDblClick, right, Qt::RightButton, Qt::RightButton);
    QCOMPARE(activated.size(), 1);
}

void tst_NxMediaItemView_mouse::aMissingMediaIsActivatedToo()
{
    MediaViewStand stand("A gone");
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    stand.doubleClick(stand.at(QStringLiteral("gone")));
    QCOMPARE(activated.size(), 1);
}

void tst_NxMediaItemView_mouse::aDoubleClickFoldsAGroup()
{
    MediaViewStand stand("A:x B:x C:y");
    stand.group();
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    stand.doubleClick(stand.at(QStringLiteral("[x]")));
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] C"));
    stand.doubleClick(stand.at(QStringLiteral("[x]")));
    QCOMPARE(stand.rows(), QStringLiteral("[x] A B [y] C"));
    QCOMPARE(activated.size(), 0);
}

void tst_NxMediaItemView_mouse::aDoubleClickOnTheArrowIsTwoClicks()
{
    MediaViewStand stand("A:x B:x C:y");
    stand.group();
    const QPoint arrow(4, stand.at(QStringLiteral("[x]")).y());
    stand.click(arrow);
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] C"));
    stand.doubleClick(arrow);
    QCOMPARE(stand.rows(), QStringLiteral("[x] [y] C"));
}

void tst_NxMediaItemView_mouse::theImportTileAsksOnce_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isDouble");
    QTest::addColumn<int>("asked");
    QTest::newRow("a click") << int(Qt::LeftButton) << false << 1;
    QTest::newRow("a double click") << int(Qt::LeftButton) << true << 1;
    QTest::newRow("the other button") << int(Qt::RightButton) << false << 0;
}

void tst_NxMediaItemView_mouse::theImportTileAsksOnce()
{
    QFETCH(int, button);
    QFETCH(bool, isDouble);
    MediaViewStand stand("A B", NXVBLMODEL::fkProject);
    QCOMPARE(stand.rows(), QStringLiteral("+ A B"));
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigImportWanted);
    QSignalSpy activated(&stand.view, &NxMediaItemView::sigMediaActivated);
    const QPoint tile = stand.at(QStringLiteral("+"));
    if (isDouble)
        stand.doubleClick(tile);
    else
        stand.click(tile, Qt::NoModifier, Qt::MouseButton(button));
    QTEST(asked.size(), "asked");
    QCOMPARE(activated.size(), 0);
    asked.clear();
    stand.press(stand.at(QStringLiteral("A")));
    stand.release(tile);
    QCOMPARE(asked.size(), 0);
    stand.click(tile);
    QCOMPARE(asked.size(), 1);
}

void tst_NxMediaItemView_mouse::theWheelScrolls()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    QSignalSpy seen(&stand.view, &NxMediaItemView::sigVisibleRowsChanged);
    wheel(&stand, -120);
    QVERIFY(stand.view.verticalScrollBar()->value() > 0);
    QVERIFY(!seen.isEmpty());
    wheel(&stand, 120);
    QCOMPARE(stand.view.verticalScrollBar()->value(), 0);
}

void tst_NxMediaItemView_mouse::theWheelWithCtrlAsksForASize()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigZoomWanted);
    wheel(&stand, 120, Qt::ControlModifier);
    wheel(&stand, -120, Qt::ControlModifier);
    wheel(&stand, -240, Qt::ControlModifier);
    QCOMPARE(asked.size(), 3);
    QCOMPARE(asked.at(0).at(0).toInt(), 1);
    QCOMPARE(asked.at(1).at(0).toInt(), -1);
    QCOMPARE(asked.at(2).at(0).toInt(), -2);
    QCOMPARE(stand.view.verticalScrollBar()->value(), 0);
}

void tst_NxMediaItemView_mouse::touchpadsAskForASizeByNotches()
{
    MediaViewStand stand(Ten);
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigZoomWanted);
    for (int part = 0; part < 9; ++part)
        wheel(&stand, 30, Qt::ControlModifier);
    QCOMPARE(asked.size(), 2);
}

void tst_NxMediaItemView_mouse::menusAreAskedFor_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<bool>("byKeyboard");
    QTest::addColumn<QString>("media");
    QTest::newRow("a media, by mouse") << "B" << false << "B";
    QTest::newRow("a media, by keyboard") << "B" << true << "B";
    QTest::newRow("a header, by mouse") << "[x]" << false << "";
    QTest::newRow("a header, by keyboard") << "[x]" << true << "";
    QTest::newRow("a tile, by mouse") << "+" << false << "";
    QTest::newRow("ground, by mouse") << "" << false << "";
}

void tst_NxMediaItemView_mouse::menusAreAskedFor()
{
    QFETCH(QString, row);
    QFETCH(bool, byKeyboard);
    QFETCH(QString, media);
    MediaViewStand stand("A:x B:x", NXVBLMODEL::fkProject);
    stand.group();
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigMenuWanted);
    const QPoint ground = stand.view.viewport()->rect().bottomRight() - QPoint(4, 4);
    const QPoint place = row.isEmpty() ? ground : stand.at(row);
    if (byKeyboard) {
        stand.view.selectionModel()->setCurrentIndex(stand.index(row),
                                                     QItemSelectionModel::NoUpdate);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1});
        QApplication::sendEvent(&stand.view, &event);
    } else {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                stand.view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(stand.view.viewport(), &event);
    }
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.at(0).at(0).toPoint(), stand.view.viewport()->mapToGlobal(place));
    auto *shown = asked.at(0).at(1).value<INxAbstractMedia *>();
    QCOMPARE(shown ? shown->name() : QString(), media);
}

void tst_NxMediaItemView_mouse::aMenuByKeyboardStaysInSight()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigMenuWanted);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1});
    stand.view.selectionModel()->clearCurrentIndex();
    QApplication::sendEvent(&stand.view, &event);
    stand.choose(QStringLiteral("A"));
    stand.view.verticalScrollBar()->setValue(stand.view.verticalScrollBar()->maximum());
    QApplication::sendEvent(&stand.view, &event);
    QCOMPARE(asked.size(), 2);
    for (const QList<QVariant> &one : qAsConst(asked)) {
        const QPoint place = stand.view.viewport()->mapFromGlobal(one.at(0).toPoint());
        QVERIFY(stand.view.viewport()->rect().contains(place));
    }
}

void tst_NxMediaItemView_mouse::rowsAreEnteredAndLeft()
{
    MediaViewStand stand(Ten);
    QStringList told;
    const NxMediaItemDelegate *delegate = stand.view.mediaDelegate();
    connect(delegate, &NxMediaItemDelegate::sigItemEnterEvent, this, [&](const QModelIndex &index) {
        told.append(rowText(stand.model.mediaItem(index.row())));
    });
    connect(delegate, &NxMediaItemDelegate::sigViewportEnterEvent, this,
            [&] { told.append(QStringLiteral("-")); });
    stand.move(stand.at(QStringLiteral("A")));
    stand.move(stand.at(QStringLiteral("A")) + QPoint(2, 2));
    stand.move(stand.at(QStringLiteral("B")));
    stand.move(besideLast(stand));
    stand.move(stand.at(QStringLiteral("C")));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(stand.view.viewport(), &leave);
    QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("A B - C -"));
}

void tst_NxMediaItemView_mouse::rowsScrollBelowAPointerThatRests()
{
    MediaViewStand stand(Ten);
    stand.fit(MediaViewStand::PerLine, 2);
    QSignalSpy entered(stand.view.mediaDelegate(), &NxMediaItemDelegate::sigItemEnterEvent);
    stand.move(stand.at(QStringLiteral("B")));
    const int line = stand.rect(QStringLiteral("E")).top() - stand.rect(QStringLiteral("B")).top();
    stand.view.verticalScrollBar()->setValue(line);
    QCOMPARE(entered.size(), 2);
    QCOMPARE(entered.at(1).at(0).toModelIndex(), stand.index(QStringLiteral("E")));
}

void tst_NxMediaItemView_mouse::shiftScrubs()
{
    MediaViewStand stand(Ten);
    stand.move(stand.at(QStringLiteral("A")));
    QVERIFY(!stand.view.isScrubbing());
    QTest::keyPress(&stand.view, Qt::Key_Shift);
    QVERIFY(stand.view.isScrubbing());
    QTest::keyRelease(&stand.view, Qt::Key_Shift);
    QVERIFY(!stand.view.isScrubbing());
    stand.move(stand.at(QStringLiteral("B")), Qt::NoButton, Qt::ShiftModifier);
    QVERIFY(stand.view.isScrubbing());
    stand.move(stand.at(QStringLiteral("C")));
    QVERIFY(!stand.view.isScrubbing());
}

void tst_NxMediaItemView_mouse::aClickOnAColumnAsksForAnOrder()
{
    MediaViewStand stand(Ten);
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigSortRequested);
    QHeaderView *header = stand.view.columnHeader();
    QVERIFY(!header->isVisible());
    stand.showList();
    QVERIFY(header->isVisible());
    constexpr int durationColumn = 6;
    const QPoint place(header->sectionViewportPosition(durationColumn) + 20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.at(0).at(0).value<NxMediaItemViewSortBy>(), sbDuration);
    stand.view.setSort({sbDuration, soDESC});
    QVERIFY(header->isSortIndicatorShown());
    QCOMPARE(header->sortIndicatorSection(), durationColumn);
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
    stand.view.setSort({sbNone, soASC});
    QVERIFY(!header->isSortIndicatorShown());
}

void tst_NxMediaItemView_mouse::columnsKeepTheirPlacesThroughResets()
{
    MediaViewStand stand(Ten);
    stand.showList();
    QHeaderView *header = stand.view.columnHeader();
    header->resizeSection(0, 333);
    header->moveSection(header->visualIndex(6), 1);
    header->hideSection(3);
    stand.model.load(stand.above);
    stand.model.load(stand.folder);
    stand.view.viewport()->grab();
    QCOMPARE(header->sectionSize(0), 333);
    QCOMPARE(header->visualIndex(6), 1);
    QVERIFY(header->isSectionHidden(3));
}

void tst_NxMediaItemView_mouse::columnsAreMovedHiddenAndResized()
{
    MediaViewStand stand(Ten);
    stand.showList();
    QHeaderView *header = stand.view.columnHeader();
    const auto row = [&] {
        return stand.view.viewport()->grab(stand.rect(QStringLiteral("A"))).toImage();
    };
    const QImage before = row();
    header->resizeSection(0, header->sectionSize(0) + 40);
    const QImage resized = row();
    QVERIFY(resized != before);
    header->hideSection(2);
    const QImage hidden = row();
    QVERIFY(hidden != resized);
    header->moveSection(header->visualIndex(6), 1);
    QVERIFY(row() != hidden);
}

void tst_NxMediaItemView_mouse::aNarrowListScrollsSideways_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("left to right") << int(Qt::LeftToRight);
    QTest::newRow("right to left") << int(Qt::RightToLeft);
}

void tst_NxMediaItemView_mouse::aNarrowListScrollsSideways()
{
    QFETCH(int, direction);
    MediaViewStand stand("A:x B:x");
    stand.group();
    stand.view.setLayoutDirection(Qt::LayoutDirection(direction));
    stand.showList(400);
    const bool isMirrored = direction == Qt::RightToLeft;
    const QHeaderView *header = stand.view.columnHeader();
    QScrollBar *bar = stand.view.horizontalScrollBar();
    const int room = stand.view.viewport()->width();
    QCOMPARE(bar->maximum(), header->length() - room);
    const auto edge = [&](const QRect &rect) { return isMirrored ? rect.right() : rect.left(); };
    const int nearEdge = isMirrored ? room - 1 : 0;
    QCOMPARE(edge(stand.rect(QStringLiteral("A"))), nearEdge);
    bar->setValue(100);
    const int scrolled = isMirrored ? nearEdge + 100 : nearEdge - 100;
    QCOMPARE(edge(stand.rect(QStringLiteral("A"))), scrolled);
    QCOMPARE(stand.rect(QStringLiteral("A")).width(), header->length());
    const int name = header->sectionViewportPosition(0);
    QCOMPARE(isMirrored ? name + header->sectionSize(0) - 1 : name, scrolled);
    QCOMPARE(stand.rect(QStringLiteral("[x]")),
             QRect(0, stand.rect(QStringLiteral("[x]")).top(), room,
                   stand.rect(QStringLiteral("[x]")).height()));
    stand.click(QPoint(room / 2, stand.at(QStringLiteral("B")).y()));
    QCOMPARE(stand.selected(), QStringLiteral("B"));
}

void tst_NxMediaItemView_mouse::tilesBeginAtTheRightWhereReadingDoes()
{
    MediaViewStand stand(Ten);
    stand.view.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(stand.at(QStringLiteral("A")).x() > stand.at(QStringLiteral("B")).x());
    stand.click(QStringLiteral("A"));
    QCOMPARE(stand.selected(), QStringLiteral("A"));
    stand.click(QStringLiteral("E"), Qt::ShiftModifier);
    QCOMPARE(stand.selected(), QStringLiteral("A B C D E"));
    stand.pull(stand.at(QStringLiteral("J"))
                   - QPoint(stand.rect(QStringLiteral("J")).width() + 10, 0),
               stand.at(QStringLiteral("H")));
    QCOMPARE(stand.selected(), QStringLiteral("H"));
}

void tst_NxMediaItemView_mouse::theMouseFindsNothingWithoutAModel()
{
    MediaViewStand stand(Ten);
    const QPoint place = stand.at(QStringLiteral("B"));
    QSignalSpy asked(&stand.view, &NxMediaItemView::sigMenuWanted);
    stand.move(place);
    stand.view.setModel(nullptr);
    QVERIFY(!stand.view.indexAt(place).isValid());
    stand.move(place + QPoint(1, 1));
    stand.doubleClick(place);
    stand.pull(place, stand.view.viewport()->rect().center());
    stand.release(place);
    wheel(&stand, -120);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place);
    QApplication::sendEvent(stand.view.viewport(), &event);
    QCOMPARE(asked.size(), 1);
    QVERIFY(stand.view.dragged.isEmpty());
    QVERIFY(stand.view.selectedMedia().isEmpty());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_mouse)
#include "tst_NxMediaItemView_mouse.moc"
