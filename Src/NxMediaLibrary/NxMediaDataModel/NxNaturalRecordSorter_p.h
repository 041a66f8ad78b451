// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <vector>

#include "NxNaturalRecord_p.h"

/// Sorts records by their keys; records of equal keys keep their order.
///
/// A run of records is split by the first eight bits in which its words differ, so that each record
/// is moved a few times and compared with few others. Those whose words are equal go on with the
/// next words of their keys.
class NxNaturalRecordSorter
{
public:
    struct Run
    {
        NxNaturalRecord *first;
        NxNaturalRecord *last;

        [[nodiscard]] size_t size() const { return size_t(last - first); }
    };

    /// The room for the records' copies is as long as the run. Every next word is taken with the
    /// bits of flip inverted, as the first word was by the caller.
    NxNaturalRecordSorter(const Run &all, NxNaturalRecord *room, quint64 flip);

    void sort();

private:
    void push(const Run &run);
    [[nodiscard]] Run pop();
    void sortStep(const Run &run);
    void sortFew(const Run &run);
    void split(const Run &run);
    void goOn(const Run &run);

    Run m_all;
    NxNaturalRecord *m_room;
    quint64 m_flip;
    std::vector<Run> m_open;
};
