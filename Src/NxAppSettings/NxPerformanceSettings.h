// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettingsExport.h>

#include <QString>

class INxSettingsStore;

/// How the editor trades disk space for speed: proxies, small copies of media that play smoothly.
///
/// Every change is written at once. A stored value that makes no sense counts as none.
/// GUI thread only.
class NXAPPSETTINGS_EXPORT NxPerformanceSettings
{
public:
    static constexpr int DefaultProxyResolution = 720;
    static constexpr int LowestProxyResolution = 90;
    static constexpr int HighestProxyResolution = 4320;

    /// The store is not owned and outlives this object.
    explicit NxPerformanceSettings(INxSettingsStore *store);

    /// Whether proxies are made without being asked for; false at first.
    [[nodiscard]] bool isAutoCreateProxy() const;
    void setAutoCreateProxy(bool enabled);

    /// The height of proxies in pixels; DefaultProxyResolution at first.
    [[nodiscard]] int autoProxyResolution() const;
    /// Refused, with an error line in the log, outside Lowest- to HighestProxyResolution.
    void setAutoProxyResolution(int height);

    /// The folder proxies are kept in, with "/" and none at the end: "Proxies" in the user's cache
    /// folder until the user chooses another. It need not exist.
    [[nodiscard]] QString proxyDirectory() const;
    /// An empty path goes back to the cache folder.
    void setProxyDirectory(const QString &directory);

private:
    INxSettingsStore *const m_store; // Not owned.
};
