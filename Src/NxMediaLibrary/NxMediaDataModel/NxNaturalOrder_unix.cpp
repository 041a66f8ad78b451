// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include "NxNaturalKeyWriter_p.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace {

// Keys in few blocks, written where they stay.
class KeyArena
{
public:
    uchar *room(size_t size)
    {
        if (size_t(m_end - m_at) < size) {
            m_blockSize = std::min(2 * m_blockSize, LargestBlock);
            const size_t taken = std::max(m_blockSize, size);
            m_blocks.emplace_back(new uchar[taken]);
            m_at = m_blocks.back().get();
            m_end = m_at + taken;
        }
        return m_at;
    }
    void keep(size_t size) { m_at += size; }

private:
    static constexpr size_t LargestBlock = 1 << 20;

    size_t m_blockSize = 1 << 8; // Grows, so that a few names need little.
    std::vector<std::unique_ptr<uchar[]>> m_blocks;
    uchar *m_at = nullptr;
    uchar *m_end = nullptr;
};

// Most comparisons end in the first eight bytes, without a look at the key itself.
struct Record
{
    quint64 prefix;
    const uchar *rest;
    quint32 restSize;
    quint32 index;
};

constexpr int PrefixSize = 8;

Record makeRecord(const uchar *key, int size, quint32 index)
{
    quint64 prefix = 0;
    for (int i = 0; i < PrefixSize; ++i)
        prefix = (prefix << 8) | (i < size ? key[i] : 0);
    return {prefix, key + std::min(size, PrefixSize), quint32(std::max(size - PrefixSize, 0)),
            index};
}

int compareKeys(const Record &a, const Record &b)
{
    if (a.prefix != b.prefix)
        return a.prefix < b.prefix ? -1 : 1;
    const int byBytes = std::memcmp(a.rest, b.rest, std::min(a.restSize, b.restSize));
    if (byBytes != 0)
        return byBytes;
    return a.restSize == b.restSize ? 0 : a.restSize < b.restSize ? -1 : 1;
}

using Records = std::vector<Record>;
using Run = std::pair<Records::iterator, Records::iterator>;

void sortByPrefix(const Run &run)
{
    std::sort(run.first, run.second, [](const Record &a, const Record &b) {
        return a.prefix != b.prefix ? a.prefix < b.prefix : a.index < b.index;
    });
}

// Puts the next bytes of the key in the place of the prefix; false when no key has any more.
bool advance(const Run &run, quint64 flip)
{
    bool hasMore = false;
    for (auto record = run.first; record != run.second; ++record) {
        hasMore = hasMore || record->restSize > 0;
        *record = makeRecord(record->rest, int(record->restSize), record->index);
        record->prefix ^= flip;
    }
    return hasMore;
}

// Sorts by eight bytes at a time, so that each key is looked at once for each of its blocks and
// not once for each comparison.
void sortRecords(Records &records, quint64 flip)
{
    std::vector<Run> runs{{records.begin(), records.end()}};
    while (!runs.empty()) {
        const Run run = runs.back();
        runs.pop_back();
        sortByPrefix(run);
        for (auto first = run.first; first != run.second;) {
            const auto last = std::find_if(first, run.second, [first](const Record &record) {
                return record.prefix != first->prefix;
            });
            if (last - first > 1 && advance({first, last}, flip))
                runs.emplace_back(first, last);
            first = last;
        }
    }
}

Record recordOf(const QString &name, quint32 index, NxNaturalKeyWriter &writer, KeyArena &arena)
{
    uchar *key = arena.room(NxNaturalKeyWriter::asciiBound(name.size()));
    int size = writer.writeAscii(name, key);
    if (size < 0) {
        writer.write(name);
        size = writer.size();
        key = arena.room(size_t(size));
        std::copy_n(writer.data(), size, key);
    }
    arena.keep(size_t(size));
    return makeRecord(key, size, index);
}

} // namespace

int NxNaturalOrder::compare(const QString &a, const QString &b)
{
    KeyArena arena;
    NxNaturalKeyWriter writer;
    const Record first = recordOf(a, 0, writer, arena);
    return compareKeys(first, recordOf(b, 0, writer, arena));
}

std::vector<quint32> NxNaturalOrder::sorted(const std::vector<QString> &names, bool descending)
{
    KeyArena arena;
    NxNaturalKeyWriter writer;
    Records records;
    records.reserve(names.size());
    for (const QString &name : names)
        records.push_back(recordOf(name, quint32(records.size()), writer, arena));

    const quint64 flip = descending ? ~quint64(0) : 0;
    for (Record &record : records)
        record.prefix ^= flip;
    sortRecords(records, flip);

    std::vector<quint32> order;
    order.reserve(records.size());
    for (const Record &record : records)
        order.push_back(record.index);
    return order;
}
