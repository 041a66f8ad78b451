// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "FaultReport.h"

#include <cstdio>

bool noFaults(const QStringList &faults)
{
    for (const QString &fault : faults)
        std::fprintf(stderr, "%s\n", qUtf8Printable(fault));
    return faults.isEmpty();
}
