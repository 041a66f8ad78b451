// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/RecordingPainter.h>
#include <NxMediaLibrary/TextLines.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <Support/NxTestMain.h>

#include <QHeaderView>
#include <QPainter>

#include "MediaViewStand.h"

using namespace NXMEDIALIBRARY;

namespace {

const char *const Many = "A B C D E F G H I J K L M N O P Q R";

/// An engine that notes whose covers are asked for, and has none: each row that is painted asks.
struct AskedEngine final : INxMediaEngine
{
    struct Thumbs final : INxBsThumbManager
    {
        explicit Thumbs(AskedEngine *owner) : engine(owner) {}
        QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) override
        {
            engine->painted.append(media->name());
            engine->sizes.append(devicePixels);
            return {};
        }
        void cancelRequests() override {}

        AskedEngine *const engine; // Not owned.
    };

    INxBsThumbManager *createThumbManager() override { return new Thumbs(this); }
    [[nodiscard]] QString take()
    {
        sizes.clear();
        return std::exchange(painted, {}).join(QLatin1Char(' '));
    }

    QStringList painted;
    QVector<QSize> sizes;
};

/// A stand whose rows tell that they are painted.
struct PaintedStand
{
    explicit PaintedStand(const char *words) : stand(words)
    {
        QCoreApplication::processEvents();
        stand.view.paints.clear();
        (void)engine.take();
    }

    AskedEngine engine;
    const NxMediaEngineDoor door{&engine};
    MediaViewStand stand;
};

QColor colour(NxSkinColor key)
{
    return NxSkinStyle::instance()->GetColor(key);
}

QImage picture(const MediaViewStand &stand, const QRect &rect)
{
    return stand.view.viewport()->grab(rect).toImage();
}

QImage picture(const MediaViewStand &stand)
{
    return picture(stand, stand.view.viewport()->rect());
}

bool shows(const QImage &picture, const QColor &wanted)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == wanted)
                return true;
        }
    }
    return false;
}

/// Where the texts of a column stand in a row.
QRect cellOf(const MediaViewStand &stand, const char *row, int column)
{
    const QHeaderView *header = stand.view.columnHeader();
    QRect cell = stand.rect(QLatin1String(row));
    cell.setLeft(header->sectionViewportPosition(column));
    cell.setWidth(header->sectionSize(column));
    return cell;
}

constexpr int UsedColumn = 1;
constexpr int TypeColumn = 2;

} // namespace

/// What the view paints, and how often.
class tst_NxMediaItemView_painting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyVisibleRowsArePainted();
    void onlyWhatChangedIsPainted();
    void aChangedMediaIsPaintedAlone();
    void onlyTheLineOfAHoveredRowIsPainted();
    void manyResetsArePaintedOnce();
    void aListPaintsVisibleRows();
    void theGroundFollowsTheSkin();
    void theKeyboardIsSeen();
    void whatIsSelectedIsSeen();
    void aDisabledViewLooksSo();
    void columnsSayWhatTheyKnow();
    void hiddenColumnsAreNotPainted();
    void headersTakeTheWholeWidth_data();
    void headersTakeTheWholeWidth();
    void headersLookHovered();
    void coversAreAsSharpAsTheScreen();
    void nothingIsPaintedWithoutAModel();
};

void tst_NxMediaItemView_painting::onlyVisibleRowsArePainted()
{
    PaintedStand painted(Many);
    painted.stand.fit(MediaViewStand::PerLine, 2);
    (void)painted.engine.take();
    picture(painted.stand);
    QCOMPARE(painted.engine.take(), QStringLiteral("A B C D E F"));
    QScrollBar *bar = painted.stand.view.verticalScrollBar();
    bar->setValue(painted.stand.rect(QStringLiteral("A")).height() / 2);
    picture(painted.stand);
    QCOMPARE(painted.engine.take(), QStringLiteral("A B C D E F G H I"));
    bar->setValue(bar->maximum());
    picture(painted.stand);
    QCOMPARE(painted.engine.take(), QStringLiteral("M N O P Q R"));
    QCOMPARE(painted.stand.view.visibleRows(), qMakePair(12, 17));
}

void tst_NxMediaItemView_painting::onlyWhatChangedIsPainted()
{
    PaintedStand painted(Many);
    painted.stand.view.viewport()->repaint(painted.stand.rect(QStringLiteral("E")));
    QCOMPARE(painted.engine.take(), QStringLiteral("E"));
    const QRect between(painted.stand.rect(QStringLiteral("A")).right() + 1, 0, 1, 20);
    painted.stand.view.viewport()->repaint(between);
    QCOMPARE(painted.engine.take(), QString());
}

void tst_NxMediaItemView_painting::aChangedMediaIsPaintedAlone()
{
    PaintedStand painted(Many);
    painted.stand.model.onMediaStateChangedEvent(painted.stand.media(QStringLiteral("R")));
    painted.stand.model.onMediaStateChangedEvent(painted.stand.media(QStringLiteral("B")));
    QTRY_VERIFY(!painted.stand.view.paints.isEmpty());
    QCOMPARE(painted.engine.take(), QStringLiteral("B"));
    QCOMPARE(painted.stand.view.paints.last().boundingRect(),
             painted.stand.rect(QStringLiteral("B")));
}

void tst_NxMediaItemView_painting::onlyTheLineOfAHoveredRowIsPainted()
{
    PaintedStand painted(Many);
    const QImage before = picture(painted.stand, painted.stand.rect(QStringLiteral("B")));
    (void)painted.engine.take();
    painted.stand.view.paints.clear();
    painted.stand.move(painted.stand.at(QStringLiteral("B")));
    QTRY_VERIFY(!painted.stand.view.paints.isEmpty());
    QCOMPARE(painted.engine.take(), QStringLiteral("A B C"));
    QVERIFY(picture(painted.stand, painted.stand.rect(QStringLiteral("B"))) != before);
}

void tst_NxMediaItemView_painting::manyResetsArePaintedOnce()
{
    PaintedStand painted("A B C D");
    for (int reset = 0; reset < 5; ++reset)
        painted.stand.model.load(painted.stand.folder);
    QTRY_VERIFY(!painted.stand.view.paints.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(painted.engine.take(), QStringLiteral("A B C D"));
    QCOMPARE(painted.stand.view.paints.size(), 1);
}

void tst_NxMediaItemView_painting::aListPaintsVisibleRows()
{
    PaintedStand painted(Many);
    painted.stand.showList();
    (void)painted.engine.take();
    picture(painted.stand);
    const QStringList seen = painted.engine.take().split(QLatin1Char(' '));
    const QPair<int, int> rows = painted.stand.view.visibleRows();
    QCOMPARE(seen.size(), rows.second - rows.first + 1);
    QCOMPARE(seen.first(), QStringLiteral("A"));
    QVERIFY(seen.size() < painted.stand.model.rowCount());
}

void tst_NxMediaItemView_painting::theGroundFollowsTheSkin()
{
    PaintedStand painted("A");
    const QPoint ground = painted.stand.view.viewport()->rect().bottomRight() - QPoint(3, 3);
    const QColor dark = colour(NxSkinColor::Background_Panel);
    QCOMPARE(picture(painted.stand).pixelColor(ground), dark);
    painted.stand.view.paints.clear();
    NxSkinStyle::instance()->setSkin(NxSkin::Light);
    QTRY_VERIFY(!painted.stand.view.paints.isEmpty());
    QVERIFY(colour(NxSkinColor::Background_Panel) != dark);
    QCOMPARE(picture(painted.stand).pixelColor(ground), colour(NxSkinColor::Background_Panel));
}

void tst_NxMediaItemView_painting::theKeyboardIsSeen()
{
    MediaViewStand stand("A:x B:x C:x");
    stand.group();
    stand.choose(QStringLiteral("A"));
    const QRect place = stand.rect(QStringLiteral("[x]"));
    const QColor frame = colour(NxSkinColor::Accent);
    QVERIFY(!shows(picture(stand, place), frame));
    QTest::keyClick(&stand.view, Qt::Key_Up);
    QCOMPARE(stand.current(), QStringLiteral("[x]"));
    QVERIFY(shows(picture(stand, place), frame));
    stand.view.clearFocus();
    QVERIFY(!shows(picture(stand, place), frame));
    stand.view.setFocus();
    QVERIFY(shows(picture(stand, place), frame));
    stand.choose(QStringLiteral("B"));
    QVERIFY(!shows(picture(stand, place), frame));
}

void tst_NxMediaItemView_painting::whatIsSelectedIsSeen()
{
    MediaViewStand stand("A B C");
    const auto rowPicture = [&] { return picture(stand, stand.rect(QStringLiteral("B"))); };
    const QImage before = rowPicture();
    stand.choose(QStringLiteral("B"));
    const QImage selected = rowPicture();
    QVERIFY(selected != before);
    stand.view.selectAll();
    QCOMPARE(rowPicture(), selected);
    stand.view.clearSelection();
    stand.view.clearFocus();
    QCOMPARE(rowPicture(), before);
}

void tst_NxMediaItemView_painting::aDisabledViewLooksSo()
{
    MediaViewStand stand("A B C");
    const QImage before = picture(stand, stand.rect(QStringLiteral("B")));
    stand.view.setEnabled(false);
    QVERIFY(picture(stand, stand.rect(QStringLiteral("B"))) != before);
}

void tst_NxMediaItemView_painting::columnsSayWhatTheyKnow()
{
    MediaViewStand stand("A B");
    stand.media(QStringLiteral("A"))->used = 5;
    stand.showList();
    const QImage used = picture(stand, cellOf(stand, "A", UsedColumn));
    const QImage type = picture(stand, cellOf(stand, "A", TypeColumn));
    QVERIFY(used != picture(stand, cellOf(stand, "B", UsedColumn)));
    QCOMPARE(picture(stand, cellOf(stand, "B", TypeColumn)), type);
    stand.media(QStringLiteral("A"))->used = 7;
    QVERIFY(picture(stand, cellOf(stand, "A", UsedColumn)) != used);
    QCOMPARE(picture(stand, cellOf(stand, "A", TypeColumn)), type);
    stand.view.columnHeader()->swapSections(UsedColumn, TypeColumn);
    QCOMPARE(picture(stand, cellOf(stand, "A", TypeColumn)), type);
}

void tst_NxMediaItemView_painting::hiddenColumnsAreNotPainted()
{
    MediaViewStand stand("A B");
    stand.showList();
    const QImage shown = picture(stand);
    stand.view.columnHeader()->hideSection(UsedColumn);
    const QImage hidden = picture(stand);
    QVERIFY(hidden != shown);
    stand.media(QStringLiteral("A"))->used = 7;
    QCOMPARE(picture(stand), hidden);
    stand.view.columnHeader()->showSection(UsedColumn);
    QVERIFY(picture(stand) != shown);
}

void tst_NxMediaItemView_painting::headersTakeTheWholeWidth_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("left to right") << int(Qt::LeftToRight);
    QTest::newRow("right to left") << int(Qt::RightToLeft);
}

void tst_NxMediaItemView_painting::headersTakeTheWholeWidth()
{
    QFETCH(int, direction);
    QStringList journal;
    MediaViewStand stand("A:x B:x");
    stand.view.setLayoutDirection(Qt::LayoutDirection(direction));
    auto *painter = new RecordingPainter<>(QStringLiteral("header"), &journal);
    painter->setInk(Qt::red);
    stand.view.mediaDelegate()->setGroupPainter(painter);
    stand.group();
    stand.showList(400);
    const QRect header = stand.rect(QStringLiteral("[x]"));
    for (const int across : {0, 100}) {
        stand.view.horizontalScrollBar()->setValue(across);
        QCOMPARE(stand.rect(QStringLiteral("[x]")), header);
        QCOMPARE(header.width(), stand.view.viewport()->width());
        QCOMPARE(picture(stand).pixelColor(1, header.top() + 1), QColor(Qt::red));
        QCOMPARE(painter->size(), header.size());
    }
    stand.view.mediaDelegate()->setGroupPainter(nullptr);
}

void tst_NxMediaItemView_painting::headersLookHovered()
{
    QStringList journal;
    MediaViewStand stand("A:x B:x");
    stand.view.mediaDelegate()->setGroupPainter(
        new RecordingPainter<>(QStringLiteral("header"), &journal));
    stand.group();
    picture(stand);
    journal.clear();
    const QRect place = stand.rect(QStringLiteral("[x]"));
    picture(stand, place);
    QCOMPARE(journal, lines({"header draws 0 in state 0"}));
    journal.clear();
    stand.move(place.center());
    picture(stand, place);
    QCOMPARE(journal, lines({"header draws 0 in state 1"}));
    journal.clear();
    stand.view.setEnabled(false);
    picture(stand, place);
    QCOMPARE(journal.last(), QStringLiteral("header draws 0 in state 4"));
    stand.view.mediaDelegate()->setGroupPainter(nullptr);
}

void tst_NxMediaItemView_painting::coversAreAsSharpAsTheScreen()
{
    PaintedStand painted("A B");
    QWidget *viewport = painted.stand.view.viewport();
    viewport->repaint();
    QCOMPARE(painted.engine.sizes, QVector<QSize>(2, QSize(96, 54) * viewport->devicePixelRatio()));
}

void tst_NxMediaItemView_painting::nothingIsPaintedWithoutAModel()
{
    PaintedStand painted(Many);
    painted.stand.view.setModel(nullptr);
    const QImage empty = picture(painted.stand);
    QCOMPARE(painted.engine.take(), QString());
    QImage ground(empty.size(), empty.format());
    ground.fill(colour(NxSkinColor::Background_Panel));
    QCOMPARE(empty, ground);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemView_painting)
#include "tst_NxMediaItemView_painting.moc"
