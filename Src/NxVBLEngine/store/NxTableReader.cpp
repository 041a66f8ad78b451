// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxTableReader.h>

#include <QCoreApplication>

void NxTableReader::noteDamage(const Table &table)
{
    m_damage += QCoreApplication::translate("NxProjectStore", table.title);
}
