// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettingsExport.h>

#include <QtGlobal>

#include <memory>

class INxSettingsStore;
class NxAppSettingsPrivate;
class NxPerformanceSettings;

/// The application's settings by subject.
///
/// Kept in the user's ini file unless the host installs another store. GUI thread only.
class NXAPPSETTINGS_EXPORT NxAppSettings
{
public:
    /// The process's settings; never null.
    static NxAppSettings *instance();

    /// Valid until the next setStore().
    [[nodiscard]] NxPerformanceSettings &performance();

    /// Keeps the settings somewhere else from now on; null goes back to the user's ini file.
    /// Takes ownership.
    void setStore(std::unique_ptr<INxSettingsStore> store);

private:
    Q_DISABLE_COPY_MOVE(NxAppSettings)
    NxAppSettings();
    ~NxAppSettings();

    const std::unique_ptr<NxAppSettingsPrivate> d;
};
