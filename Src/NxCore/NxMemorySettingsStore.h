// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxSettingsStore.h>

#include <QHash>

/// Settings that last as long as this object: for tests, and for hosts that keep settings in a
/// place of their own and fill this one from it.
class NXCORE_EXPORT NxMemorySettingsStore : public INxSettingsStore
{
public:
    NxMemorySettingsStore();
    ~NxMemorySettingsStore() override;

    [[nodiscard]] QVariant value(const QString &key) const override;
    void setValue(const QString &key, const QVariant &value) override;
    void remove(const QString &key) override;

private:
    QHash<QString, QVariant> m_values;
};
