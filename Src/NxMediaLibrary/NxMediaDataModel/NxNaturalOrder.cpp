// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>

#include "NxNaturalKeyWriter_p.h"

QByteArray NxNaturalOrder::key(const QString &name)
{
    NxNaturalKeyWriter writer;
    writer.write(name);
    return QByteArray(reinterpret_cast<const char *>(writer.data()), writer.size());
}
