// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaGrid_p.h>

#include <Support/NxTestMain.h>

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <vector>

namespace {

using Range = NxMediaGrid::Range;

/// The same rows, placed one after the other.
struct PlainGrid
{
    struct Row
    {
        QRect rect;
        int line;
        int column;
        bool isHead;
    };

    PlainGrid(int count, const QVector<int> &heads, const NxMediaGrid::Measures &wanted)
        : measures(wanted)
    {
        while (!wanted.isList && widthOf(perLine + 1) <= wanted.width)
            ++perLine;
        int column = -1; // No line of media has begun.
        for (int row = 0; row < count; ++row) {
            if (heads.contains(row))
                addHead(&column);
            else
                addMedia(&column);
        }
        if (column >= 0)
            height += wanted.cell.height() + wanted.spacing;
    }

    [[nodiscard]] int widthOf(int columns) const
    {
        return measures.spacing + columns * (measures.cell.width() + measures.spacing);
    }
    void addHead(int *column)
    {
        if (*column >= 0)
            height += measures.cell.height() + measures.spacing;
        *column = -1;
        rows.push_back({{0, height, measures.width, measures.headHeight}, ++lastLine, 0, true});
        height += measures.headHeight;
    }
    void addMedia(int *column)
    {
        if (*column < 0) {
            height += measures.spacing;
            ++lastLine;
            *column = 0;
        } else if (++*column == perLine) {
            height += measures.cell.height() + measures.spacing;
            ++lastLine;
            *column = 0;
        }
        int left = measures.isList ? 0 : widthOf(*column);
        if (measures.isRightToLeft)
            left = measures.width - left - measures.cell.width();
        rows.push_back({{{left, height}, measures.cell}, lastLine, *column, false});
    }

    [[nodiscard]] int rowAt(const QPoint &point) const
    {
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const Row &row) { return row.rect.contains(point); });
        const bool isInside = point.x() >= 0 && point.x() < measures.width;
        return isInside && found != rows.end() ? int(found - rows.begin()) : -1;
    }
    [[nodiscard]] Range between(int top, int bottom) const
    {
        Range seen = NxMediaGrid::None;
        for (int row = 0; row < int(rows.size()); ++row) {
            const QRect &rect = rows.at(size_t(row)).rect;
            if (bottom < top || rect.bottom() < top || rect.top() > bottom)
                continue;
            seen = {seen.first < 0 ? row : seen.first, row};
        }
        return seen;
    }
    [[nodiscard]] QVector<int> mediaIn(const QRect &wanted) const
    {
        QVector<int> found;
        for (int row = 0; row < int(rows.size()); ++row) {
            const Row &one = rows.at(size_t(row));
            if (!one.isHead && one.rect.intersects(wanted))
                found.append(row);
        }
        return found;
    }
    /// The media of a column, or the last before it; a head is in every column.
    [[nodiscard]] int inLine(int line, int column) const
    {
        int found = -1;
        for (int row = 0; row < int(rows.size()); ++row) {
            const Row &one = rows.at(size_t(row));
            if (one.line == line && one.column <= qMax(0, column))
                found = row;
        }
        return found;
    }
    [[nodiscard]] int lineAt(int y) const
    {
        const Range lines = between(y, y);
        return lines == NxMediaGrid::None ? -1 : rows.at(size_t(lines.first)).line;
    }

    NxMediaGrid::Measures measures;
    std::vector<Row> rows;
    int perLine = 1;
    int lastLine = -1;
    int height = 0;
};

struct Case
{
    explicit Case(quint32 seed) : dice(seed)
    {
        count = number(0, 40);
        const int headShare = number(0, 3) * 2; // Of ten rows.
        for (int row = 0; row < count; ++row) {
            const bool isEdge = row == 0 || row == count - 1;
            if (number(1, 10) <= (isEdge ? headShare + 3 : headShare))
                heads.append(row);
        }
        measures.cell = {number(5, 60), number(3, 40)};
        measures.headHeight = number(1, 30);
        measures.width = number(0, 4) == 0 ? number(1, measures.cell.width()) : number(20, 300);
        measures.spacing = number(0, 2) == 0 ? 0 : number(1, 9);
        measures.isRightToLeft = number(0, 1) == 1;
        measures.isList = number(0, 3) == 0;
        if (measures.isList) {
            measures.cell.setWidth(measures.width);
            measures.spacing = 0;
        }
        grid.layOut(count, heads, measures);
    }
    int number(int least, int most) { return int(dice.bounded(least, most + 1)); }
    QPoint point(const PlainGrid &plain)
    {
        return {number(-10, measures.width + 10), number(-10, plain.height + 10)};
    }

    QRandomGenerator dice;
    int count;
    QVector<int> heads;
    NxMediaGrid::Measures measures;
    NxMediaGrid grid;
};

QRect between(const QPoint &one, const QPoint &other)
{
    return {QPoint(qMin(one.x(), other.x()), qMin(one.y(), other.y())),
            QPoint(qMax(one.x(), other.x()), qMax(one.y(), other.y()))};
}

QVector<int> rowsOf(const QVector<Range> &ranges)
{
    QVector<int> rows;
    for (const Range &range : ranges) {
        for (int row = range.first; row <= range.second; ++row)
            rows.append(row);
    }
    return rows;
}

} // namespace

/// Where rows lie, compared with rows that are placed one by one.
class tst_NxMediaGrid : public QObject
{
    Q_OBJECT

    static constexpr int Probes = 60;

    static void addCases()
    {
        QTest::addColumn<quint32>("seed");
        constexpr quint32 cases = 300;
        for (quint32 seed = 1; seed <= cases; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

private Q_SLOTS:
    void rowsLieOneAfterTheOther_data() { addCases(); }
    void rowsLieOneAfterTheOther();
    void aPointFindsTheRowBelowIt_data() { addCases(); }
    void aPointFindsTheRowBelowIt();
    void aSpanFindsWhatItTouches_data() { addCases(); }
    void aSpanFindsWhatItTouches();
    void aRectangleFindsTheMediaItTouches_data() { addCases(); }
    void aRectangleFindsTheMediaItTouches();
    void linesFollowEachOther_data() { addCases(); }
    void linesFollowEachOther();
    void aHeightFindsTheNearestLine_data() { addCases(); }
    void aHeightFindsTheNearestLine();
    void noRowsLieNowhere();
    void rowsThatAreNotThereHaveNoPlace();
    void layingOutAnewForgetsTheRowsBefore();
    void linesHoldWhatFits_data();
    void linesHoldWhatFits();
    void aMillionRowsHaveTheirPlaces_data();
    void aMillionRowsHaveTheirPlaces();
};

void tst_NxMediaGrid::rowsLieOneAfterTheOther()
{
    QFETCH(quint32, seed);
    const Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    QCOMPARE(f.grid.rowCount(), f.count);
    QCOMPARE(f.grid.height(), plain.height);
    QCOMPARE(f.grid.itemsPerLine(), plain.perLine);
    int head = -1;
    for (int row = 0; row < f.count; ++row) {
        const PlainGrid::Row &one = plain.rows.at(size_t(row));
        if (one.isHead)
            head = row;
        QCOMPARE(f.grid.rect(row), one.rect);
        QCOMPARE(f.grid.isHead(row), one.isHead);
        QCOMPARE(f.grid.columnOf(row), one.column);
        QCOMPARE(f.grid.headOf(row), head);
    }
}

void tst_NxMediaGrid::aPointFindsTheRowBelowIt()
{
    QFETCH(quint32, seed);
    Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    for (const PlainGrid::Row &row : plain.rows) {
        const QRect near = row.rect.adjusted(-1, -1, 1, 1);
        for (const QPoint &point :
             {row.rect.topLeft(), row.rect.bottomRight(), row.rect.center(), near.topLeft(),
              near.topRight(), near.bottomLeft(), near.bottomRight()})
            QCOMPARE(f.grid.rowAt(point), plain.rowAt(point));
    }
    for (int probe = 0; probe < Probes; ++probe) {
        const QPoint point = f.point(plain);
        QCOMPARE(f.grid.rowAt(point), plain.rowAt(point));
    }
}

void tst_NxMediaGrid::aSpanFindsWhatItTouches()
{
    QFETCH(quint32, seed);
    Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    for (int probe = 0; probe < Probes; ++probe) {
        const int top = f.number(-20, plain.height + 20);
        const int bottom = top + f.number(-1, probe % 2 == 0 ? 3 : 200);
        QCOMPARE(f.grid.rowsBetween(top, bottom), plain.between(top, bottom));
    }
}

void tst_NxMediaGrid::aRectangleFindsTheMediaItTouches()
{
    QFETCH(quint32, seed);
    Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    for (int probe = 0; probe < Probes; ++probe) {
        const QRect rect = probe % 3 == 0 ? QRect(f.point(plain), QSize(1, 1))
                                          : between(f.point(plain), f.point(plain));
        QCOMPARE(rowsOf(f.grid.mediaIn(rect)), plain.mediaIn(rect));
    }
    QVERIFY(f.grid.mediaIn(QRect()).isEmpty());
    QCOMPARE(rowsOf(f.grid.mediaIn(QRect(-9, -9, 1000, plain.height + 99))).size(),
             f.count - f.heads.size());
}

void tst_NxMediaGrid::linesFollowEachOther()
{
    QFETCH(quint32, seed);
    const Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    for (int row = 0; row < f.count; ++row) {
        const int line = plain.rows.at(size_t(row)).line;
        for (int column = -1; column <= plain.perLine; ++column) {
            QCOMPARE(f.grid.rowBelow(row, column), plain.inLine(line + 1, column));
            QCOMPARE(f.grid.rowAbove(row, column), plain.inLine(line - 1, column));
        }
    }
}

void tst_NxMediaGrid::aHeightFindsTheNearestLine()
{
    QFETCH(quint32, seed);
    Case f(seed);
    const PlainGrid plain(f.count, f.heads, f.measures);
    for (int probe = 0; probe < Probes && f.count > 0; ++probe) {
        const int height = f.number(-20, plain.height + 20);
        const int column = f.number(0, plain.perLine);
        const int found = f.grid.rowNear(height, column);
        QVERIFY(found >= 0 && found < f.count);
        const int line = plain.rows.at(size_t(found)).line;
        QCOMPARE(found, plain.inLine(line, column));
        int above = qBound(0, height, plain.height - 1);
        int below = above;
        while (above >= 0 && plain.lineAt(above) < 0)
            --above;
        while (below < plain.height && plain.lineAt(below) < 0)
            ++below;
        const int lineAbove = above >= 0 ? plain.lineAt(above) : 0;
        const int lineBelow = below < plain.height ? plain.lineAt(below) : plain.lastLine;
        QVERIFY(line == lineAbove || line == lineBelow);
    }
}

void tst_NxMediaGrid::noRowsLieNowhere()
{
    NxMediaGrid::Measures measures;
    measures.cell = {50, 40};
    measures.headHeight = 20;
    measures.width = 200;
    measures.spacing = 4;
    NxMediaGrid laidOut;
    laidOut.layOut(0, {}, measures);
    for (const NxMediaGrid &grid : {laidOut, NxMediaGrid()}) {
        QCOMPARE(grid.rowCount(), 0);
        QCOMPARE(grid.height(), 0);
        QCOMPARE(grid.rowAt({0, 0}), -1);
        QCOMPARE(grid.rowsBetween(0, 100), NxMediaGrid::None);
        QVERIFY(grid.mediaIn({0, 0, 100, 100}).isEmpty());
        QCOMPARE(grid.rowNear(0, 0), -1);
        QCOMPARE(grid.rowBelow(0, 0), -1);
        QCOMPARE(grid.rowAbove(0, 0), -1);
    }
    QCOMPARE(laidOut.itemsPerLine(), 3);
}

void tst_NxMediaGrid::rowsThatAreNotThereHaveNoPlace()
{
    NxMediaGrid::Measures measures;
    measures.cell = {50, 40};
    measures.width = 200;
    NxMediaGrid grid;
    grid.layOut(5, {0}, measures);
    for (const int row : {-1, 5, 500}) {
        QVERIFY(grid.rect(row).isNull());
        QVERIFY(!grid.isHead(row));
        QCOMPARE(grid.headOf(row), -1);
        QCOMPARE(grid.columnOf(row), 0);
        QCOMPARE(grid.rowBelow(row, 0), -1);
        QCOMPARE(grid.rowAbove(row, 0), -1);
    }
}

void tst_NxMediaGrid::layingOutAnewForgetsTheRowsBefore()
{
    Case f(1);
    NxMediaGrid::Measures measures;
    measures.cell = {50, 40};
    measures.width = 100;
    f.grid.layOut(30, {0, 10, 20}, measures);
    f.grid.layOut(2, {}, measures);
    QCOMPARE(f.grid.rowCount(), 2);
    QCOMPARE(f.grid.height(), 40);
    QVERIFY(!f.grid.isHead(0));
    QCOMPARE(f.grid.rect(1), QRect(50, 0, 50, 40));
}

void tst_NxMediaGrid::linesHoldWhatFits_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isList");
    QTest::addColumn<int>("count");
    QTest::newRow("exactly three") << 4 + 3 * 54 << false << 3;
    QTest::newRow("a pixel less") << 3 + 3 * 54 << false << 2;
    QTest::newRow("a pixel more") << 5 + 3 * 54 << false << 3;
    QTest::newRow("less than one") << 20 << false << 1;
    QTest::newRow("no room at all") << 0 << false << 1;
    QTest::newRow("list") << 1000 << true << 1;
}

void tst_NxMediaGrid::linesHoldWhatFits()
{
    QFETCH(int, width);
    QFETCH(bool, isList);
    NxMediaGrid::Measures measures;
    measures.cell = {50, 40};
    measures.spacing = 4;
    measures.width = width;
    measures.isList = isList;
    QTEST(NxMediaGrid::itemsPerLine(measures), "count");
}

void tst_NxMediaGrid::aMillionRowsHaveTheirPlaces_data()
{
    QTest::addColumn<int>("every"); // This many rows, a head.
    QTest::addColumn<int>("width");
    QTest::newRow("tiles") << 0 << 1000;
    QTest::newRow("one tile a line") << 0 << 100;
    QTest::newRow("groups of ten") << 11 << 1000;
    QTest::newRow("nothing but heads") << 1 << 1000;
}

void tst_NxMediaGrid::aMillionRowsHaveTheirPlaces()
{
    QFETCH(int, every);
    QFETCH(int, width);
    constexpr int count = 1000000;
    NxMediaGrid::Measures measures;
    measures.cell = {240, 200};
    measures.headHeight = 30;
    measures.width = width;
    measures.spacing = 4;
    QVector<int> heads;
    for (int row = 0; every > 0 && row < count; row += every)
        heads.append(row);
    NxMediaGrid grid;
    grid.layOut(count, heads, measures);
    QVERIFY(grid.height() > 0);
    int before = -1;
    for (int row = 0; row < count; row += 997) {
        const QRect rect = grid.rect(row);
        QVERIFY(rect.top() > before || (rect.top() == before && !grid.isHead(row)));
        before = rect.top();
        QCOMPARE(grid.rowAt({qMin(rect.center().x(), width - 1), rect.center().y()}), row);
        const Range line = grid.rowsBetween(rect.top(), rect.top());
        QVERIFY(line.first <= row && row <= line.second);
        QVERIFY(line.second - line.first < grid.itemsPerLine());
    }
    QCOMPARE(grid.rowsBetween(0, grid.height()), Range(0, count - 1));
    QCOMPARE(grid.rowNear(grid.height(), 0) + grid.itemsPerLine() >= count, true);
    QVERIFY(grid.rect(count - 1).bottom() < grid.height());
}

NX_TEST_MAIN(tst_NxMediaGrid)
#include "tst_NxMediaGrid.moc"
