// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalRecordSorter_p.h"

#include <QtAlgorithms>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Record = NxNaturalRecord;

constexpr size_t FewRecords = 32;
constexpr int DigitBits = 8;
constexpr quint64 DigitMask = (1 << DigitBits) - 1;
constexpr std::ptrdiff_t ReadAhead = 16;

} // namespace

NxNaturalRecordSorter::NxNaturalRecordSorter(const Run &all, Record *room, quint64 flip)
    : m_all(all),
      m_room(room),
      m_flip(flip)
{
    push(all);
}

void NxNaturalRecordSorter::sort()
{
    while (!m_open.empty())
        sortStep(pop());
}

void NxNaturalRecordSorter::push(const Run &run)
{
    if (run.size() > 1)
        m_open.push_back(run);
}

NxNaturalRecordSorter::Run NxNaturalRecordSorter::pop()
{
    const Run run = m_open.back();
    m_open.pop_back();
    return run;
}

void NxNaturalRecordSorter::sortStep(const Run &run)
{
    if (run.size() <= FewRecords)
        sortFew(run);
    else
        split(run);
}

void NxNaturalRecordSorter::sortFew(const Run &run)
{
    for (Record *at = run.first + 1; at != run.last; ++at) {
        const Record moved = *at;
        Record *to = at;
        for (; to != run.first && to[-1].word > moved.word; --to)
            *to = to[-1];
        *to = moved;
    }
    for (Record *first = run.first; first != run.last;) {
        Record *const last = std::find_if(first + 1, run.last, [first](const Record &record) {
            return record.word != first->word;
        });
        if (last - first > 1)
            goOn({first, last});
        first = last;
    }
}

void NxNaturalRecordSorter::split(const Run &run)
{
    quint64 different = 0;
    for (const Record *record = run.first; record != run.last; ++record)
        different |= record->word ^ run.first->word;
    if (different == 0) {
        goOn(run);
        return;
    }
    const int highest = 63 - int(qCountLeadingZeroBits(different));
    const int shift = std::max(0, highest + 1 - DigitBits);
    std::array<size_t, DigitMask + 1> places{};
    for (const Record *record = run.first; record != run.last; ++record)
        ++places[record->word >> shift & DigitMask];
    size_t place = 0;
    for (size_t &counted : places)
        place += std::exchange(counted, place);

    Record *const room = m_room + (run.first - m_all.first);
    for (const Record *record = run.first; record != run.last; ++record)
        room[places[record->word >> shift & DigitMask]++] = *record;
    std::copy_n(room, run.size(), run.first);
    size_t first = 0;
    for (const size_t last : places)
        push({run.first + std::exchange(first, last), run.first + last});
}

// Puts the next words of the keys in the place of those that are equal.
void NxNaturalRecordSorter::goOn(const Run &run)
{
    bool hasMore = false;
    for (Record *record = run.first; record != run.last; ++record) {
        if (m_all.last - record > ReadAhead)
            __builtin_prefetch(record[ReadAhead].rest);
        hasMore = hasMore || record->restSize > 0;
        quint64 word = 0;
        if (record->restSize > 0) {
            word = *record->rest++;
            --record->restSize;
        }
        record->word = word ^ m_flip;
    }
    if (hasMore)
        push(run);
}
