// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include "NxNaturalKeyBuffer_p.h"
#include "NxNaturalRecordSorter_p.h"
#include "NxNaturalRecord_p.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>

namespace {

constexpr size_t ReadAhead = 16;

// The text of a name lies anywhere in memory: it is asked for some names before it is read.
Q_ALWAYS_INLINE void readAhead(const QString &name)
{
    const auto *const text = reinterpret_cast<const char *>(const_cast<QString &>(name).data_ptr());
    __builtin_prefetch(text);
    __builtin_prefetch(text + 64);
}

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
    const quint64 flip = descending ? ~quint64(0) : 0;
    NxNaturalRecordMaker maker; // Keeps the keys.
    const std::unique_ptr<NxNaturalRecord[]> records(new NxNaturalRecord[2 * names.size()]);
    NxNaturalRecord *const room = records.get() + names.size();
    for (size_t i = 0; i < names.size(); ++i) {
        if (names.size() - i > ReadAhead)
            readAhead(names[i + ReadAhead]);
        records[i] = maker.record(names[i], quint32(i));
        records[i].word ^= flip;
    }
    NxNaturalRecordSorter({records.get(), room}, room, flip).sort();

    std::vector<quint32> order;
    order.reserve(names.size());
    std::transform(records.get(), room, std::back_inserter(order),
                   [](const NxNaturalRecord &record) { return record.index; });
    return order;
}
