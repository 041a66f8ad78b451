// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxAppSettings/NxAppSettings.h>

#include <NxAppSettings/NxPerformanceSettings.h>

#include <NxCore/NxIniSettingsStore.h>

#include <utility>

class NxAppSettingsPrivate
{
public:
    std::unique_ptr<INxSettingsStore> store; // Null until it is needed: the user's ini file.
    std::unique_ptr<NxPerformanceSettings> performance; // Made over the store when first asked for.
};

NxAppSettings *NxAppSettings::instance()
{
    static NxAppSettings settings;
    return &settings;
}

NxAppSettings::NxAppSettings() : d(std::make_unique<NxAppSettingsPrivate>()) {}

NxAppSettings::~NxAppSettings() = default;

NxPerformanceSettings &NxAppSettings::performance()
{
    if (!d->store)
        d->store = std::make_unique<NxIniSettingsStore>(NxIniSettingsStore::userPath());
    if (!d->performance)
        d->performance = std::make_unique<NxPerformanceSettings>(d->store.get());
    return *d->performance;
}

void NxAppSettings::setStore(std::unique_ptr<INxSettingsStore> store)
{
    d->performance.reset();
    d->store = std::move(store);
}
