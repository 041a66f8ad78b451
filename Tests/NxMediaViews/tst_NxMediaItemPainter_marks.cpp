// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemPainter.h>

#include "RowStand.h"

#include <NxCore/NxDiskBan.h>
#include <NxCore/NxFile.h>

#include <Support/NxTestMain.h>

#include <QTest>

using namespace NXMEDIALIBRARY;

class tst_NxMediaItemPainter_marks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void statesHaveTheirGrounds_data();
    void statesHaveTheirGrounds();
    void theFrameStaysInsideTheRow();
    void progressIsAsLongAsItIsFar_data();
    void progressIsAsLongAsItIsFar();
    void progressOfADeadMediaIsForgotten();
    void missingMediaAreMarked_data();
    void missingMediaAreMarked();
    void marksSayWhatTheMediaIs_data();
    void marksSayWhatTheMediaIs();
    void theButtonShowsOnTheHoveredRow();

    void cleanup()
    {
        NxFile::setAnswerer({});
        NxSkinStyle::instance()->setSkin(NxSkin::Dark);
    }
};

void tst_NxMediaItemPainter_marks::statesHaveTheirGrounds_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("ground");
    QTest::newRow("normal") << int(QStyle::State_Enabled) << int(NxSkinColor::Background_Panel);
    QTest::newRow("hovered") << int(Hovered) << int(NxSkinColor::State_Hover);
    QTest::newRow("selected") << int(Selected) << int(NxSkinColor::State_Selected);
    QTest::newRow("both") << int(Hovered | Selected) << int(NxSkinColor::State_Selected);
    QTest::newRow("disabled") << int(QStyle::State_None) << int(NxSkinColor::Background_Panel);
}

void tst_NxMediaItemPainter_marks::statesHaveTheirGrounds()
{
    QFETCH(int, state);
    QFETCH(int, ground);
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    for (const NxSkin skin : {NxSkin::Dark, NxSkin::Light}) {
        NxSkinStyle::instance()->setSkin(skin);
        const QImage row = stand.painted(QStyle::State(state));
        const QColor between = row.pixelColor(row.width() / 2, 4);
        QCOMPARE(between, RowStand::colour(NxSkinColor(ground)));
        const bool isFramed = (state & QStyle::State_Selected) != 0;
        QCOMPARE(row.pixelColor(0, row.height() / 2) == RowStand::colour(NxSkinColor::Accent),
                 isFramed);
    }
}

void tst_NxMediaItemPainter_marks::theFrameStaysInsideTheRow()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    QStyleOptionViewItem option = stand.option(Selected);
    option.rect = option.rect.translated(5, 5);
    QImage around(option.rect.size() + QSize(10, 10), QImage::Format_RGB32);
    around.fill(Qt::magenta);
    {
        QPainter canvas(&around);
        stand.delegate.paint(&canvas, option, stand.index());
    }
    QCOMPARE(pixelsOf(around, around.rect(), Qt::magenta)
                 - pixelsOf(around, option.rect, Qt::magenta),
             around.width() * around.height() - option.rect.width() * option.rect.height());
    const QColor accent = RowStand::colour(NxSkinColor::Accent);
    const QRect row = option.rect;
    const QPoint middle = row.center();
    for (const int inwards : {0, 1}) {
        QCOMPARE(around.pixelColor(middle.x(), row.top() + inwards), accent);
        QCOMPARE(around.pixelColor(middle.x(), row.bottom() - inwards), accent);
        QCOMPARE(around.pixelColor(row.left() + inwards, middle.y()), accent);
        QCOMPARE(around.pixelColor(row.right() - inwards, middle.y()), accent);
    }
}

void tst_NxMediaItemPainter_marks::progressIsAsLongAsItIsFar_data()
{
    QTest::addColumn<qint64>("done");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<int>("percent"); // Below 0: no bar.
    QTest::newRow("begun") << qint64(0) << qint64(10) << 0;
    QTest::newRow("half") << qint64(5) << qint64(10) << 50;
    QTest::newRow("a large file") << qint64(3000000000) << qint64(4000000000) << 75;
    QTest::newRow("done") << qint64(10) << qint64(10) << 100;
    QTest::newRow("more than all") << qint64(12) << qint64(10) << 100;
    QTest::newRow("less than nothing") << qint64(-3) << qint64(10) << 0;
    QTest::newRow("over") << qint64(3) << qint64(0) << -1;
}

void tst_NxMediaItemPainter_marks::progressIsAsLongAsItIsFar()
{
    QFETCH(qint64, done);
    QFETCH(qint64, total);
    QFETCH(int, percent);
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    stand.painter->setProgress(&item, 1, 2);
    stand.painter->setProgress(&item, done, total);
    const QRect bar = stand.layout(vmLargeThumbnail).progress;
    const QRect line(bar.x() + 2, bar.center().y(), bar.width() - 4, 1);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        stand.direction = direction;
        const QImage row = stand.painted();
        const int full = pixelsOf(row, line, RowStand::colour(NxSkinColor::Progress_Done));
        const int back = pixelsOf(row, line, RowStand::colour(NxSkinColor::Progress_Back));
        if (percent < 0) {
            QCOMPARE(full + back, 0);
            continue;
        }
        QVERIFY(qAbs(full - line.width() * percent / 100) <= 3);
        QVERIFY(qAbs(back - line.width() * (100 - percent) / 100) <= 4);
        const QPoint begin(direction == Qt::LeftToRight ? line.left() : line.right(), line.y());
        if (percent > 0)
            QCOMPARE(row.pixelColor(begin), RowStand::colour(NxSkinColor::Progress_Done));
    }
}

void tst_NxMediaItemPainter_marks::progressOfADeadMediaIsForgotten()
{
    RowStand stand;
    stand.painter->setViewMode(vmLargeThumbnail);
    const QRect bar = stand.layout(vmLargeThumbnail).progress;
    alignas(GalleryItem) unsigned char place[sizeof(GalleryItem)];
    auto *first = new (place) GalleryItem;
    stand.show(first);
    stand.painter->setProgress(first, 1, 2);
    QVERIFY(pixelsOf(stand.painted(), bar, RowStand::colour(NxSkinColor::Progress_Done)) > 0);
    first->~GalleryItem();
    auto *second = new (place) GalleryItem; // At the same address.
    stand.show(second);
    QCOMPARE(pixelsOf(stand.painted(), bar, RowStand::colour(NxSkinColor::Progress_Done)), 0);
    second->~GalleryItem();
}

void tst_NxMediaItemPainter_marks::missingMediaAreMarked_data()
{
    QTest::addColumn<bool>("isUnavailable");
    QTest::addColumn<bool>("isResource");
    QTest::addColumn<int>("known"); // -1 nobody knows, 0 missing, 1 there.
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("unavailable") << true << false << 1 << true;
    QTest::newRow("known to be missing") << false << false << 0 << true;
    QTest::newRow("known to be there") << false << false << 1 << false;
    QTest::newRow("nobody knows") << false << false << -1 << false;
    QTest::newRow("a resource needs no file") << false << true << 0 << false;
}

void tst_NxMediaItemPainter_marks::missingMediaAreMarked()
{
    QFETCH(bool, isUnavailable);
    QFETCH(bool, isResource);
    QFETCH(int, known);
    QFETCH(bool, isMarked);
    RowStand stand;
    GalleryItem item;
    item.unavailable = isUnavailable;
    item.resource = isResource;
    stand.show(&item);
    NxFile::setAnswerer([&](const QString &) -> std::optional<bool> {
        return known < 0 ? std::nullopt : std::optional<bool>(known == 1);
    });
    const NxDiskBan ban;
    for (const auto mode : {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail}) {
        stand.painter->setViewMode(mode);
        const QImage row = stand.painted(Hovered);
        const int warning =
            pixelsOf(row, stand.layout(mode).missingMark, RowStand::colour(NxSkinColor::Warning));
        QCOMPARE(warning > 20, isMarked);
        const int button = pixelsOf(row, stand.layout(mode).addButton,
                                    RowStand::colour(NxSkinColor::Badge_Background));
        QCOMPARE(button > 100, !isMarked);
    }
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxMediaItemPainter_marks::marksSayWhatTheMediaIs_data()
{
    QTest::addColumn<int>("used");
    QTest::addColumn<bool>("hasProxy");
    QTest::addColumn<int>("licence");
    QTest::newRow("nothing") << 0 << false << int(NXVBLMODEL::lsNone);
    QTest::newRow("free") << 0 << false << int(NXVBLMODEL::lsFree);
    QTest::newRow("used") << 2 << false << int(NXVBLMODEL::lsFree);
    QTest::newRow("proxy") << 0 << true << int(NXVBLMODEL::lsFree);
    QTest::newRow("standard") << 0 << false << int(NXVBLMODEL::lsStandard);
    QTest::newRow("premium") << 0 << false << int(NXVBLMODEL::lsPremium);
    QTest::newRow("all") << 1 << true << int(NXVBLMODEL::lsPremium);
    QTest::newRow("a licence that nobody knows") << 0 << false << 77;
}

void tst_NxMediaItemPainter_marks::marksSayWhatTheMediaIs()
{
    QFETCH(int, used);
    QFETCH(bool, hasProxy);
    QFETCH(int, licence);
    RowStand stand;
    GalleryItem item;
    item.used = used;
    item.licence = licence;
    stand.show(&item);
    stand.painter->setProxyTest(
        [&](const INxAbstractMediaItem *asked) { return asked == &item && hasProxy; });
    const bool isStandard = licence == NXVBLMODEL::lsStandard;
    const bool isPremium = licence == NXVBLMODEL::lsPremium;
    for (const auto mode : {vmList, vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail}) {
        stand.painter->setViewMode(mode);
        const QImage row = stand.painted();
        const NxMediaItemLayout layout = stand.layout(mode);
        const auto has = [&](const QRect &place, NxSkinColor colour) {
            return pixelsNear(row, place, RowStand::colour(colour)) > 5;
        };
        QCOMPARE(has(layout.usedMark, NxSkinColor::Progress_Done), used > 0);
        QCOMPARE(has(layout.proxyMark, NxSkinColor::Accent), hasProxy);
        QCOMPARE(has(layout.licenceMark, NxSkinColor::Licence_Standard), isStandard);
        QCOMPARE(has(layout.licenceMark, NxSkinColor::Licence_Premium), isPremium);
        const QColor kind = RowStand::colour(mode == vmList ? NxSkinColor::Text_Icon_Secondary
                                                            : NxSkinColor::Badge_Text);
        QVERIFY(pixelsNear(row, layout.kindMark, kind) > 10);
    }
}

void tst_NxMediaItemPainter_marks::theButtonShowsOnTheHoveredRow()
{
    RowStand stand;
    GalleryItem item;
    stand.show(&item);
    stand.painter->setViewMode(vmLargeThumbnail);
    const QRect button = stand.layout(vmLargeThumbnail).addButton;
    const auto accent = [&](QStyle::State state) {
        return pixelsOf(stand.painted(state), button, RowStand::colour(NxSkinColor::Accent));
    };
    const auto ground = [&](QStyle::State state) {
        return pixelsOf(stand.painted(state), button,
                        RowStand::colour(NxSkinColor::Badge_Background));
    };
    QCOMPARE(ground(QStyle::State_Enabled), 0);
    QCOMPARE(ground(Selected), 0);
    QVERIFY(ground(Hovered) > 200);
    QVERIFY(ground(Hovered | Selected) > 200);
    QCOMPARE(accent(Hovered), 0);
    stand.painter->updateMouseEventInItem(button.center(), mmeMove, stand.index());
    QVERIFY(accent(Hovered) > 200);
    QCOMPARE(accent(QStyle::State_Enabled), 0);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemPainter_marks)
#include "tst_NxMediaItemPainter_marks.moc"
