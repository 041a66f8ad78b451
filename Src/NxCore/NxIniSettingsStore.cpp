// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxIniSettingsStore.h>

#include <NxCore/NxIniFileGuard.h>
#include <NxCore/NxLog.h>

#include <QSettings>
#include <QStandardPaths>

NxIniSettingsStore::NxIniSettingsStore(const QString &path)
    : m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
    m_settings->setIniCodec("UTF-8");
    m_settings->setFallbacksEnabled(false);
}

NxIniSettingsStore::~NxIniSettingsStore() = default;

QString NxIniSettingsStore::userPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
           + QStringLiteral("/Settings.ini");
}

QVariant NxIniSettingsStore::value(const QString &key) const
{
    const auto unsaved = m_unsaved.constFind(key);
    return unsaved == m_unsaved.constEnd() ? m_settings->value(key) : *unsaved;
}

void NxIniSettingsStore::setValue(const QString &key, const QVariant &value)
{
    if (!mayWrite()) {
        m_unsaved.insert(key, value);
        return;
    }
    m_unsaved.remove(key);
    m_settings->setValue(key, value);
    write();
}

void NxIniSettingsStore::remove(const QString &key)
{
    if (!mayWrite()) {
        m_unsaved.insert(key, QVariant());
        return;
    }
    m_unsaved.remove(key);
    m_settings->remove(key);
    write();
}

bool NxIniSettingsStore::mayWrite() const
{
    const QString path = m_settings->fileName();
    const QString trouble = NxIniFileGuard::writingTrouble(path);
    if (trouble.isEmpty())
        return true;
    NX_LOG_ERROR("%s: the settings cannot be written: it %s", qUtf8Printable(path),
                 qUtf8Printable(trouble));
    return false;
}

void NxIniSettingsStore::write()
{
    m_settings->sync();
    if (m_settings->status() != QSettings::NoError)
        NX_LOG_ERROR("%s: the settings cannot be written", qUtf8Printable(m_settings->fileName()));
}
