// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>
#include <QVariant>

/// Where settings are kept: the user's ini file, or memory. GUI thread only.
class NXCORE_EXPORT INxSettingsStore
{
public:
    virtual ~INxSettingsStore();

    /// The stored value; invalid when there is none. Keys are "Group/Name".
    [[nodiscard]] virtual QVariant value(const QString &key) const = 0;
    /// Stores a value so that it is still there after the process was killed.
    virtual void setValue(const QString &key, const QVariant &value) = 0;
    /// Forgets a value.
    virtual void remove(const QString &key) = 0;
};
