// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include "NxNaturalKeyBuffer_p.h"
#include "NxNaturalRecordSorter_p.h"
#include "NxNaturalRecord_p.h"
#include "NxParallelParts.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

using Record = NxNaturalRecord;
using Sorter = NxNaturalRecordSorter;
using Names = std::vector<QString>;

constexpr size_t ManyNames = 50000; // Fewer are sorted before another thread is there to help.
constexpr size_t Parts = 16; // More than threads, lest all wait for the one that is interrupted.
constexpr size_t ReadAhead = 16;

// The text of a name lies anywhere in memory: it is asked for some names before it is read.
void readAhead(const QString &name)
{
    const auto *const text = reinterpret_cast<const char *>(const_cast<QString &>(name).data_ptr());
    __builtin_prefetch(text);
    __builtin_prefetch(text + 64);
}

class Sorting
{
public:
    Sorting(const Names &names, bool descending)
        : m_names(names),
          m_flip(descending ? ~quint64(0) : 0),
          m_parts(names.size() < ManyNames ? 1 : Parts),
          m_makers(m_parts),
          m_records(new Record[2 * names.size()])
    {}

    [[nodiscard]] std::vector<quint32> order()
    {
        nxDoParts(m_parts, [this](size_t part) { makeRecords(part); });
        sortRecords();
        std::vector<quint32> order;
        order.reserve(m_names.size());
        for (size_t i = 0; i < m_names.size(); ++i)
            order.push_back(m_records[i].index);
        return order;
    }

private:
    [[nodiscard]] size_t beginOf(size_t part) const { return m_names.size() * part / m_parts; }

    void makeRecords(size_t part)
    {
        const size_t end = beginOf(part + 1);
        for (size_t i = beginOf(part); i < end; ++i) {
            if (end - i > ReadAhead)
                readAhead(m_names[i + ReadAhead]);
            m_records[i] = m_makers[part].record(m_names[i], quint32(i));
            m_records[i].word ^= m_flip;
        }
    }

    void sortRecords()
    {
        Record *const first = m_records.get();
        Record *const room = first + m_names.size();
        Sorter sorter({first, room}, room, m_flip);
        if (m_parts == 1) {
            sorter.sort();
            return;
        }
        const std::vector<Sorter::Run> runs = sorter.splitInto(m_names.size() / m_parts);
        nxDoParts(runs.size(), [&](size_t i) {
            Sorter(runs[i], room + (runs[i].first - first), m_flip).sort();
        });
    }

    const Names &m_names;
    const quint64 m_flip;
    const size_t m_parts;
    std::vector<NxNaturalRecordMaker> m_makers;
    const std::unique_ptr<Record[]> m_records; // And behind them as much room to sort in.
};

} // namespace

int NxNaturalOrder::compare(const QString &a, const QString &b)
{
    NxNaturalKeyBuffer first;
    NxNaturalKeyBuffer second;
    first.write(a);
    second.write(b);
    const int byBytes =
        std::memcmp(first.data(), second.data(), size_t(std::min(first.size(), second.size())));
    return byBytes != 0 ? byBytes : first.size() - second.size();
}

std::vector<quint32> NxNaturalOrder::sorted(const std::vector<QString> &names, bool descending)
{
    return Sorting(names, descending).order();
}
