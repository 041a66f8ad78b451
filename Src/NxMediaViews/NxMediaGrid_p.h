// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>

#include <QPair>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

#include <vector>

/// Where the rows of a view lie: media side by side in lines, heads across the whole width.
///
/// Nothing is kept for a media: a head and the media below it are a block, and whatever is asked
/// is worked out from the blocks, so that laying out costs as much as there are heads. Places are
/// px from the top left corner of all rows; the end of the width is where lines begin when reading
/// goes from right to left. Rows out of range have null places.
class NXMEDIAVIEWS_TEST_EXPORT NxMediaGrid
{
public:
    struct Measures
    {
        QSize cell; ///< Of a media.
        int headHeight = 0;
        int width = 0; ///< Of a line.
        int spacing = 0; ///< Between media, and around them.
        bool isList = false; ///< One media a line.
        bool isRightToLeft = false;
    };
    /// From the first to the last, both of them included; none when the first is -1.
    using Range = QPair<int, int>;
    static constexpr Range None{-1, -1};

    /// @param heads the rows that take a whole line, ascending.
    void layOut(int rows, const QVector<int> &heads, const Measures &measures);

    [[nodiscard]] int rowCount() const { return m_rows; }
    /// At least 1.
    [[nodiscard]] int itemsPerLine() const { return m_perLine; }
    [[nodiscard]] static int itemsPerLine(const Measures &measures);
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] bool isHead(int row) const;
    /// The head that a row stands below, or is; -1 for none.
    [[nodiscard]] int headOf(int row) const;
    [[nodiscard]] QRect rect(int row) const;
    /// -1 beside the media.
    [[nodiscard]] int rowAt(const QPoint &point) const;
    /// What lies between two heights, partly or whole.
    [[nodiscard]] Range rowsBetween(int top, int bottom) const;
    /// The media, heads left out, that a rectangle touches.
    [[nodiscard]] QVector<Range> mediaIn(const QRect &rect) const;
    /// The row in the line below, or above, that stands in the same column, or last in a line that
    /// is shorter; -1 when there is no such line.
    [[nodiscard]] int rowBelow(int row, int column) const;
    [[nodiscard]] int rowAbove(int row, int column) const;
    /// The column of a media; 0 of a head.
    [[nodiscard]] int columnOf(int row) const;
    /// The row of a column in the line that is nearest to a height.
    [[nodiscard]] int rowNear(int height, int column) const;

private:
    struct Block
    {
        int first; // The head, if it has one, else its first media.
        int media; // Its first media, whether or not there is one.
        int end;
        int top; // px
        int mediaTop; // px, of the first line.
    };

    [[nodiscard]] const Block &blockOf(int row) const;
    [[nodiscard]] const Block &blockAt(int height) const;
    [[nodiscard]] int lineHeight() const { return m_measures.cell.height() + m_measures.spacing; }
    [[nodiscard]] int linesOf(const Block &block) const;
    [[nodiscard]] int inLine(const Block &block, int line, int column) const;
    [[nodiscard]] int columnLeft(int column) const;
    [[nodiscard]] Range columnsIn(int left, int right) const;
    [[nodiscard]] Range linesIn(const Block &block, int top, int bottom) const;
    [[nodiscard]] QRect mirrored(QRect rect) const;
    void appendMedia(const Block &block, const QRect &rect, QVector<Range> *found) const;

    Measures m_measures;
    std::vector<Block> m_blocks; // By row, and by height.
    int m_rows = 0;
    int m_perLine = 1;
    int m_height = 0;
};
