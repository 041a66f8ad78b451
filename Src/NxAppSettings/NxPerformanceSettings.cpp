// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxAppSettings/NxPerformanceSettings.h>

#include <NxCore/INxSettingsStore.h>
#include <NxCore/NxLog.h>

#include <QDir>
#include <QStandardPaths>

namespace {

const auto autoCreateKey = QStringLiteral("Performance/AutoCreateProxy");
const auto resolutionKey = QStringLiteral("Performance/ProxyResolution");
const auto directoryKey = QStringLiteral("Performance/ProxyDirectory");

bool isResolution(int height)
{
    return height >= NxPerformanceSettings::LowestProxyResolution
           && height <= NxPerformanceSettings::HighestProxyResolution;
}

} // namespace

NxPerformanceSettings::NxPerformanceSettings(INxSettingsStore *store) : m_store(store)
{
    Q_ASSERT(m_store);
}

bool NxPerformanceSettings::isAutoCreateProxy() const
{
    return m_store->value(autoCreateKey).toBool();
}

void NxPerformanceSettings::setAutoCreateProxy(bool enabled)
{
    if (isAutoCreateProxy() != enabled)
        m_store->setValue(autoCreateKey, enabled);
}

int NxPerformanceSettings::autoProxyResolution() const
{
    const int stored = m_store->value(resolutionKey).toInt();
    return isResolution(stored) ? stored : DefaultProxyResolution;
}

void NxPerformanceSettings::setAutoProxyResolution(int height)
{
    if (!isResolution(height)) {
        NX_LOG_ERROR("proxies cannot be %d pixels high", height);
        return;
    }
    if (autoProxyResolution() != height)
        m_store->setValue(resolutionKey, height);
}

QString NxPerformanceSettings::proxyDirectory() const
{
    const QString stored = m_store->value(directoryKey).toString();
    if (!stored.isEmpty())
        return stored;
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
           + QStringLiteral("/Proxies");
}

void NxPerformanceSettings::setProxyDirectory(const QString &directory)
{
    if (directory.isEmpty()) {
        m_store->remove(directoryKey);
        return;
    }
    const QString path = QDir::cleanPath(QDir::fromNativeSeparators(directory));
    if (m_store->value(directoryKey).toString() != path)
        m_store->setValue(directoryKey, path);
}
