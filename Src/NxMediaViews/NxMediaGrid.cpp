// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaGrid_p.h>

#include <algorithm>

int NxMediaGrid::itemsPerLine(const Measures &measures)
{
    const int step = measures.cell.width() + measures.spacing;
    if (measures.isList || step <= 0)
        return 1;
    return qMax(1, (measures.width - measures.spacing) / step);
}

void NxMediaGrid::layOut(int rows, const QVector<int> &heads, const Measures &measures)
{
    m_measures = measures;
    m_rows = rows;
    m_perLine = itemsPerLine(measures);
    const int above = heads.isEmpty() ? rows : heads.constFirst(); // Media without a head.
    m_blocks.resize(size_t(heads.size()) + (above > 0 ? 1 : 0));
    // Local: a member could be what is stored in a block, and would be read again for each of them.
    const int spacing = measures.spacing;
    const int headHeight = measures.headHeight;
    const int height = lineHeight();
    const auto perLine = unsigned(m_perLine);
    Block *block = m_blocks.data();
    int top = 0;
    const auto add = [&](int first, int media, int end) {
        const unsigned lines = (unsigned(end - media) + perLine - 1) / perLine;
        const int below = top + (media - first) * headHeight;
        *block++ = {first, media, end, top, below + spacing};
        top = lines > 0 ? below + spacing + int(lines) * height : below;
    };
    if (above > 0)
        add(0, 0, above);
    const int *const ends = heads.constData() + heads.size();
    for (const int *head = heads.constData(); head != ends; ++head)
        add(*head, *head + 1, head + 1 != ends ? *(head + 1) : rows);
    m_height = top;
}

bool NxMediaGrid::isHead(int row) const
{
    if (row < 0 || row >= m_rows)
        return false;
    const Block &block = blockOf(row);
    return row < block.media;
}

int NxMediaGrid::headOf(int row) const
{
    if (row < 0 || row >= m_rows)
        return -1;
    const Block &block = blockOf(row);
    return block.media > block.first ? block.first : -1;
}

int NxMediaGrid::linesOf(const Block &block) const
{
    return (block.end - block.media + m_perLine - 1) / m_perLine;
}

const NxMediaGrid::Block &NxMediaGrid::blockOf(int row) const
{
    const auto behind =
        std::upper_bound(m_blocks.begin(), m_blocks.end(), row,
                         [](int wanted, const Block &block) { return wanted < block.first; });
    return *std::prev(behind);
}

const NxMediaGrid::Block &NxMediaGrid::blockAt(int height) const
{
    const auto behind =
        std::upper_bound(m_blocks.begin(), m_blocks.end(), height,
                         [](int wanted, const Block &block) { return wanted < block.top; });
    return behind == m_blocks.begin() ? *behind : *std::prev(behind);
}

int NxMediaGrid::columnLeft(int column) const
{
    return m_measures.spacing + column * (m_measures.cell.width() + m_measures.spacing);
}

QRect NxMediaGrid::mirrored(QRect rect) const
{
    if (m_measures.isRightToLeft)
        rect.moveLeft(m_measures.width - rect.left() - rect.width());
    return rect;
}

QRect NxMediaGrid::rect(int row) const
{
    if (row < 0 || row >= m_rows)
        return {};
    const Block &block = blockOf(row);
    if (row < block.media)
        return {0, block.top, m_measures.width, m_measures.headHeight};
    const int place = row - block.media;
    const int top = block.mediaTop + place / m_perLine * lineHeight();
    const int left = m_measures.isList ? 0 : columnLeft(place % m_perLine);
    return mirrored({QPoint(left, top), m_measures.cell});
}

int NxMediaGrid::columnOf(int row) const
{
    if (row < 0 || row >= m_rows)
        return 0;
    const Block &block = blockOf(row);
    return row < block.media ? 0 : (row - block.media) % m_perLine;
}

NxMediaGrid::Range NxMediaGrid::linesIn(const Block &block, int top, int bottom) const
{
    const int lines = linesOf(block);
    if (lines == 0 || lineHeight() <= 0 || bottom < block.mediaTop)
        return None;
    const int above = top - block.mediaTop;
    int first = above <= 0 ? 0 : above / lineHeight();
    if (above > 0 && above % lineHeight() >= m_measures.cell.height())
        ++first; // It begins in the gap below that line.
    const int last = qMin(lines - 1, (bottom - block.mediaTop) / lineHeight());
    return first <= last ? Range(first, last) : None;
}

NxMediaGrid::Range NxMediaGrid::columnsIn(int left, int right) const
{
    if (m_measures.isList)
        return right >= 0 && left < m_measures.cell.width() ? Range(0, 0) : None;
    const int step = m_measures.cell.width() + m_measures.spacing;
    if (step <= 0 || right < m_measures.spacing)
        return None;
    const int before = left - m_measures.spacing;
    int first = before <= 0 ? 0 : before / step;
    if (before > 0 && before % step >= m_measures.cell.width())
        ++first;
    const int last = qMin(m_perLine - 1, (right - m_measures.spacing) / step);
    return first <= last ? Range(first, last) : None;
}

int NxMediaGrid::rowAt(const QPoint &point) const
{
    if (m_blocks.empty() || point.y() < 0 || point.y() >= m_height || point.x() < 0
        || point.x() >= m_measures.width)
        return -1;
    const Block &block = blockAt(point.y());
    if (block.media > block.first && point.y() < block.top + m_measures.headHeight)
        return block.first;
    const QPoint at = mirrored({point, QSize(1, 1)}).topLeft();
    const Range line = linesIn(block, at.y(), at.y());
    const Range column = columnsIn(at.x(), at.x());
    if (line == None || column == None)
        return -1;
    const int row = block.media + line.first * m_perLine + column.first;
    return row < block.end ? row : -1;
}

NxMediaGrid::Range NxMediaGrid::rowsBetween(int top, int bottom) const
{
    if (m_blocks.empty() || bottom < 0 || top >= m_height || bottom < top)
        return None;
    const auto firstIn = [this, top](const Block &block) {
        if (block.media > block.first && top < block.top + m_measures.headHeight)
            return block.first;
        const Range lines = linesIn(block, top, m_height);
        return lines == None ? block.end : block.media + lines.first * m_perLine;
    };
    const Block &below = blockAt(bottom);
    const Range lines = linesIn(below, below.top, bottom);
    const int first = firstIn(blockAt(qMax(0, top)));
    const int last = lines == None
                         ? below.media - 1
                         : qMin(below.end, below.media + (lines.second + 1) * m_perLine) - 1;
    return first <= last ? Range(first, last) : None;
}

void NxMediaGrid::appendMedia(const Block &block, const QRect &rect, QVector<Range> *found) const
{
    const Range lines = linesIn(block, rect.top(), rect.bottom());
    const Range columns = columnsIn(rect.left(), rect.right());
    if (lines == None || columns == None)
        return;
    if (columns == Range(0, m_perLine - 1)) {
        const int end = qMin(block.end, block.media + (lines.second + 1) * m_perLine);
        found->append({block.media + lines.first * m_perLine, end - 1});
        return;
    }
    for (int line = lines.first; line <= lines.second; ++line) {
        const int start = block.media + line * m_perLine;
        const int last = qMin(block.end - 1, start + columns.second);
        if (start + columns.first <= last)
            found->append({start + columns.first, last});
    }
}

QVector<NxMediaGrid::Range> NxMediaGrid::mediaIn(const QRect &rect) const
{
    QVector<Range> found;
    if (m_blocks.empty() || rect.isEmpty())
        return found;
    const QRect inside = mirrored(rect);
    const Block *block = &blockAt(inside.top());
    const Block *end = m_blocks.data() + m_blocks.size();
    for (; block != end && block->top <= inside.bottom(); ++block)
        appendMedia(*block, inside, &found);
    return found;
}

int NxMediaGrid::inLine(const Block &block, int line, int column) const
{
    const int start = block.media + line * m_perLine;
    return qMin(block.end - 1, start + qBound(0, column, m_perLine - 1));
}

int NxMediaGrid::rowBelow(int row, int column) const
{
    if (row < 0 || row >= m_rows)
        return -1;
    const Block &block = blockOf(row);
    const int line = row < block.media ? 0 : (row - block.media) / m_perLine + 1;
    if (line < linesOf(block))
        return inLine(block, line, column);
    const Block *next = &block + 1;
    if (next == m_blocks.data() + m_blocks.size())
        return -1;
    return next->media > next->first ? next->first : inLine(*next, 0, column);
}

int NxMediaGrid::rowAbove(int row, int column) const
{
    if (row < 0 || row >= m_rows)
        return -1;
    const Block &block = blockOf(row);
    if (row >= block.media) {
        const int line = (row - block.media) / m_perLine;
        if (line > 0)
            return inLine(block, line - 1, column);
        if (block.media > block.first)
            return block.first;
    }
    if (&block == m_blocks.data())
        return -1;
    const Block &before = *(&block - 1);
    const int lines = linesOf(before);
    return lines > 0 ? inLine(before, lines - 1, column) : before.first;
}

int NxMediaGrid::rowNear(int height, int column) const
{
    if (m_blocks.empty())
        return -1;
    const int at = qBound(0, height, m_height - 1);
    const Block &block = blockAt(at);
    const int lines = linesOf(block);
    const bool isOnHead = block.media > block.first && at < block.top + m_measures.headHeight;
    if (isOnHead || lines == 0)
        return block.first;
    const int line = (at - block.mediaTop) / qMax(1, lineHeight());
    return inLine(block, qBound(0, line, lines - 1), column);
}
