// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxSettingsStore.h>

#include <QHash>

#include <memory>

class QSettings;

/// Settings in an ini file, written at every change. A file that cannot be written costs one
/// error line that names it; the value then lasts until the process ends.
class NXCORE_EXPORT NxIniSettingsStore : public INxSettingsStore
{
public:
    explicit NxIniSettingsStore(const QString &path);
    ~NxIniSettingsStore() override;

    /// The file all settings of the user are in: "Settings.ini" in the application's folder of
    /// the user's configuration.
    [[nodiscard]] static QString userPath();

    [[nodiscard]] QVariant value(const QString &key) const override;
    void setValue(const QString &key, const QVariant &value) override;
    void remove(const QString &key) override;

private:
    [[nodiscard]] bool mayWrite() const;
    void write();

    const std::unique_ptr<QSettings> m_settings;
    QHash<QString, QVariant> m_unsaved; // What the file could not take; an invalid one is removed.
};
