// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemLayout.h>

#include <Support/NxTestMain.h>

#include <QStringList>
#include <QTest>

using namespace NXMEDIALIBRARY;

namespace {

constexpr int Line = 20;

struct NamedPlace
{
    const char *name;
    QRect NxMediaItemLayout::*place;
};

constexpr NamedPlace Places[] = {
    {"cover", &NxMediaItemLayout::cover},         {"name", &NxMediaItemLayout::name},
    {"duration", &NxMediaItemLayout::duration},   {"kindMark", &NxMediaItemLayout::kindMark},
    {"kindText", &NxMediaItemLayout::kindText},   {"used", &NxMediaItemLayout::usedMark},
    {"proxy", &NxMediaItemLayout::proxyMark},     {"licence", &NxMediaItemLayout::licenceMark},
    {"missing", &NxMediaItemLayout::missingMark}, {"add", &NxMediaItemLayout::addButton},
    {"progress", &NxMediaItemLayout::progress},
};

/// "cover 6,6 96x54", one place a line; those that are not there are left out.
QString textOf(const NxMediaItemLayout &layout)
{
    QStringList lines;
    for (const NamedPlace &it : Places) {
        const QRect rect = layout.*it.place;
        if (!rect.isNull())
            lines += QStringLiteral("%1 %2,%3 %4x%5")
                         .arg(QLatin1String(it.name), QString::number(rect.x()),
                              QString::number(rect.y()), QString::number(rect.width()),
                              QString::number(rect.height()));
    }
    return lines.join(QLatin1Char('\n'));
}

NxMediaItemLayout laidOut(NxMediaItemViewMode mode, int listWidth = 600,
                          Qt::LayoutDirection direction = Qt::LeftToRight, int nameWidth = 0)
{
    return NxMediaItemLayout::of(mode, NxMediaItemLayout::rowSize(mode, Line, listWidth), Line,
                                 direction, nameWidth);
}

} // namespace

class tst_NxMediaItemLayout : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsAreAsLargeAsTheirMode_data();
    void rowsAreAsLargeAsTheirMode();
    void everyPlaceOfAModeIsWhereItBelongs_data();
    void everyPlaceOfAModeIsWhereItBelongs();
    void nothingOverlapsOnATile_data();
    void nothingOverlapsOnATile();
    void columnsGiveWayBeforeTheName_data();
    void columnsGiveWayBeforeTheName();
    void aFirstColumnHoldsAllButTheRow_data();
    void aFirstColumnHoldsAllButTheRow();
    void aFirstColumnIsMirroredWithTheRow();
    void tilesHaveNoFirstColumn();
    void aMirroredRowIsTheMirrorImage_data();
    void aMirroredRowIsTheMirrorImage();
    void noSizeLeadsOutsideTheRow_data();
    void noSizeLeadsOutsideTheRow();
    void translatingMovesWhatIsThere();
};

void tst_NxMediaItemLayout::rowsAreAsLargeAsTheirMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("line");
    QTest::addColumn<QSize>("size");
    QTest::newRow("list") << int(vmList) << 20 << QSize(600, 35);
    QTest::newRow("list in a large font") << int(vmList) << 40 << QSize(600, 54);
    QTest::newRow("small") << int(vmSmallThumbnail) << 20 << QSize(108, 90);
    QTest::newRow("middle") << int(vmMiddleThumbnail) << 20 << QSize(156, 117);
    QTest::newRow("large") << int(vmLargeThumbnail) << 20 << QSize(236, 162);
    QTest::newRow("large in a large font") << int(vmLargeThumbnail) << 40 << QSize(236, 182);
    QTest::newRow("a mode that nobody knows") << 9 << 20 << QSize(236, 162);
}

void tst_NxMediaItemLayout::rowsAreAsLargeAsTheirMode()
{
    QFETCH(int, mode);
    QFETCH(int, line);
    QTEST(NxMediaItemLayout::rowSize(NxMediaItemViewMode(mode), line, 600), "size");
}

void tst_NxMediaItemLayout::everyPlaceOfAModeIsWhereItBelongs_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("places");
    QTest::newRow("list") << int(vmList)
                          << QStringLiteral("cover 8,4 48x27\nname 64,7 232x20\n"
                                            "duration 468,0 92x35\nkindMark 364,9 16x16\n"
                                            "kindText 386,0 82x35\nused 304,9 16x16\n"
                                            "proxy 322,9 16x16\nlicence 340,9 16x16\n"
                                            "missing 24,9 16x16\nadd 566,7 20x20\n"
                                            "progress 64,30 232x3");
    QTest::newRow("small") << int(vmSmallThumbnail)
                           << QStringLiteral("cover 6,6 96x54\nname 7,66 94x20\n"
                                             "duration 9,41 90x16\nkindMark 9,9 16x16\n"
                                             "used 27,9 16x16\nproxy 65,9 16x16\n"
                                             "licence 83,9 16x16\nmissing 46,25 16x16\n"
                                             "add 81,39 18x18\nprogress 7,61 94x3");
    QTest::newRow("middle") << int(vmMiddleThumbnail)
                            << QStringLiteral("cover 6,6 144x81\nname 7,93 142x20\n"
                                              "duration 9,68 138x16\nkindMark 9,9 16x16\n"
                                              "used 27,9 16x16\nproxy 113,9 16x16\n"
                                              "licence 131,9 16x16\nmissing 65,33 26x26\n"
                                              "add 125,62 22x22\nprogress 7,88 142x3");
    QTest::newRow("large") << int(vmLargeThumbnail)
                           << QStringLiteral("cover 6,6 224x126\nname 7,138 222x20\n"
                                             "duration 9,113 218x16\nkindMark 9,9 16x16\n"
                                             "used 27,9 16x16\nproxy 193,9 16x16\n"
                                             "licence 211,9 16x16\nmissing 102,53 32x32\n"
                                             "add 203,105 24x24\nprogress 7,133 222x3");
}

void tst_NxMediaItemLayout::everyPlaceOfAModeIsWhereItBelongs()
{
    QFETCH(int, mode);
    QTEST(textOf(laidOut(NxMediaItemViewMode(mode))), "places");
}

void tst_NxMediaItemLayout::nothingOverlapsOnATile_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("list") << int(vmList);
    QTest::newRow("small") << int(vmSmallThumbnail);
    QTest::newRow("middle") << int(vmMiddleThumbnail);
    QTest::newRow("large") << int(vmLargeThumbnail);
}

void tst_NxMediaItemLayout::nothingOverlapsOnATile()
{
    QFETCH(int, mode);
    const NxMediaItemLayout layout = laidOut(NxMediaItemViewMode(mode));
    const QVector<QRect> marks{layout.kindMark,    layout.usedMark,    layout.proxyMark,
                               layout.licenceMark, layout.missingMark, layout.duration,
                               layout.name};
    for (int i = 0; i < marks.size(); ++i) {
        for (int other = i + 1; other < marks.size(); ++other)
            QVERIFY2(!marks.at(i).intersects(marks.at(other)),
                     qPrintable(QStringLiteral("%1 and %2").arg(i).arg(other)));
    }
    QVERIFY(!layout.progress.intersects(layout.cover));
    QVERIFY(!layout.addButton.intersects(layout.licenceMark));
}

void tst_NxMediaItemLayout::columnsGiveWayBeforeTheName_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("columns");
    QTest::newRow("all") << 440 << QStringLiteral("add duration marks kind");
    QTest::newRow("no kind") << 400 << QStringLiteral("add duration marks");
    QTest::newRow("no marks") << 300 << QStringLiteral("add duration");
    QTest::newRow("no duration") << 200 << QStringLiteral("add");
    QTest::newRow("name alone") << 150 << QString();
}

void tst_NxMediaItemLayout::columnsGiveWayBeforeTheName()
{
    QFETCH(int, width);
    const NxMediaItemLayout layout = laidOut(vmList, width);
    QStringList columns;
    if (!layout.addButton.isNull())
        columns += QStringLiteral("add");
    if (!layout.duration.isNull())
        columns += QStringLiteral("duration");
    if (!layout.usedMark.isNull() && !layout.licenceMark.isNull())
        columns += QStringLiteral("marks");
    if (!layout.kindText.isNull() && !layout.kindMark.isNull())
        columns += QStringLiteral("kind");
    QTEST(columns.join(QLatin1Char(' ')), "columns");
    QVERIFY(layout.name.width() >= 64);
}

void tst_NxMediaItemLayout::aFirstColumnHoldsAllButTheRow_data()
{
    QTest::addColumn<int>("nameWidth");
    QTest::addColumn<QString>("places");
    const auto row = [](const char *name, int nameWidth, const QString &places) {
        QTest::newRow(name) << nameWidth << places;
    };
    row("wide", 300,
        QStringLiteral("cover 8,4 48x27\nname 64,7 146x20\nproxy 218,9 16x16\n"
                       "licence 236,9 16x16\nmissing 24,9 16x16\nadd 266,7 20x20\n"
                       "progress 64,30 146x3"));
    row("no room for marks", 200,
        QStringLiteral("cover 8,4 48x27\nname 64,7 88x20\nmissing 24,9 16x16\n"
                       "add 166,7 20x20\nprogress 64,30 88x3"));
    row("no room for the button", 160,
        QStringLiteral("cover 8,4 48x27\nname 64,7 80x20\nmissing 24,9 16x16\n"
                       "progress 64,30 80x3"));
    row("no room for a name", 60, QStringLiteral("cover 8,4 48x27\nmissing 24,9 16x16"));
    row("half a cover", 32, QStringLiteral("cover 8,4 24x27"));
    row("nothing but its edge", 8, QString());
    row("as wide as the row", 600,
        QStringLiteral("cover 8,4 48x27\nname 64,7 446x20\nproxy 518,9 16x16\n"
                       "licence 536,9 16x16\nmissing 24,9 16x16\nadd 566,7 20x20\n"
                       "progress 64,30 446x3"));
    row("wider than the row", 2000,
        QStringLiteral("cover 8,4 48x27\nname 64,7 446x20\nproxy 518,9 16x16\n"
                       "licence 536,9 16x16\nmissing 24,9 16x16\nadd 566,7 20x20\n"
                       "progress 64,30 446x3"));
}

void tst_NxMediaItemLayout::aFirstColumnHoldsAllButTheRow()
{
    QFETCH(int, nameWidth);
    const NxMediaItemLayout layout = laidOut(vmList, 600, Qt::LeftToRight, nameWidth);
    QCOMPARE(layout.row, QRect(0, 0, 600, 35));
    QTEST(textOf(layout), "places");
}

void tst_NxMediaItemLayout::aFirstColumnIsMirroredWithTheRow()
{
    const NxMediaItemLayout layout = laidOut(vmList, 600, Qt::RightToLeft, 300);
    QCOMPARE(layout.row, QRect(0, 0, 600, 35));
    QCOMPARE(layout.cover, QRect(544, 4, 48, 27));
    QCOMPARE(layout.name, QRect(390, 7, 146, 20));
    QCOMPARE(layout.addButton, QRect(314, 7, 20, 20));
    QVERIFY(layout.usedMark.isNull());
    QCOMPARE(laidOut(vmList, 600, Qt::RightToLeft, 32).cover, QRect(568, 4, 24, 27));
}

void tst_NxMediaItemLayout::tilesHaveNoFirstColumn()
{
    for (const auto mode : {vmSmallThumbnail, vmMiddleThumbnail, vmLargeThumbnail})
        QCOMPARE(textOf(laidOut(mode, 600, Qt::LeftToRight, 40)), textOf(laidOut(mode)));
}

void tst_NxMediaItemLayout::aMirroredRowIsTheMirrorImage_data()
{
    nothingOverlapsOnATile_data();
}

void tst_NxMediaItemLayout::aMirroredRowIsTheMirrorImage()
{
    QFETCH(int, mode);
    const NxMediaItemLayout plain = laidOut(NxMediaItemViewMode(mode));
    const NxMediaItemLayout mirrored = laidOut(NxMediaItemViewMode(mode), 600, Qt::RightToLeft);
    for (const NamedPlace &it : Places) {
        const QRect rect = plain.*it.place;
        if (rect.isNull()) {
            QVERIFY2((mirrored.*it.place).isNull(), it.name);
            continue;
        }
        const QRect expected(plain.row.width() - rect.x() - rect.width(), rect.y(), rect.width(),
                             rect.height());
        QVERIFY2(mirrored.*it.place == expected, it.name);
    }
}

void tst_NxMediaItemLayout::noSizeLeadsOutsideTheRow_data()
{
    nothingOverlapsOnATile_data();
}

void tst_NxMediaItemLayout::noSizeLeadsOutsideTheRow()
{
    QFETCH(int, mode);
    for (const int width : {-5, 0, 1, 7, 20, 55, 64, 65, 90, 131, 177, 260, 5000}) {
        for (const int height : {-5, 0, 1, 5, 12, 26, 35, 61, 400}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                const QSize size(width, height);
                const NxMediaItemLayout layout =
                    NxMediaItemLayout::of(NxMediaItemViewMode(mode), size, Line, direction);
                for (const NamedPlace &it : Places) {
                    const QRect rect = layout.*it.place;
                    const bool isFine =
                        rect.isNull() || (rect.isValid() && layout.row.contains(rect));
                    QVERIFY2(isFine,
                             qPrintable(QStringLiteral("%1 in %2 x %3")
                                            .arg(QLatin1String(it.name), QString::number(width),
                                                 QString::number(height))));
                }
            }
        }
    }
}

void tst_NxMediaItemLayout::translatingMovesWhatIsThere()
{
    const NxMediaItemLayout layout = laidOut(vmSmallThumbnail);
    const NxMediaItemLayout moved = layout.translated({30, 7});
    QCOMPARE(moved.row, layout.row.translated(30, 7));
    QCOMPARE(moved.cover, layout.cover.translated(30, 7));
    QCOMPARE(moved.addButton, layout.addButton.translated(30, 7));
    QVERIFY(moved.kindText.isNull());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemLayout)
#include "tst_NxMediaItemLayout.moc"
