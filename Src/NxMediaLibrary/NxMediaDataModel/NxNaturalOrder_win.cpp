// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include <algorithm>
#include <numeric>

#include <windows.h>

#include <shlwapi.h>

namespace {

// QString keeps a zero behind its text, which is all the system asks for.
const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace

int NxNaturalOrder::compare(const QString &a, const QString &b)
{
    return StrCmpLogicalW(wide(a), wide(b));
}

std::vector<quint32> NxNaturalOrder::sorted(const std::vector<QString> &names, bool descending)
{
    std::vector<quint32> order(names.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(), [&names, descending](quint32 a, quint32 b) {
        return descending ? compare(names[b], names[a]) < 0 : compare(names[a], names[b]) < 0;
    });
    return order;
}
