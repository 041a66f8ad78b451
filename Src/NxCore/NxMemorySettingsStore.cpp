// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxMemorySettingsStore.h>

NxMemorySettingsStore::NxMemorySettingsStore() = default;

NxMemorySettingsStore::~NxMemorySettingsStore() = default;

QVariant NxMemorySettingsStore::value(const QString &key) const
{
    return m_values.value(key);
}

void NxMemorySettingsStore::setValue(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
}

void NxMemorySettingsStore::remove(const QString &key)
{
    m_values.remove(key);
}
