// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxConfig.h>

#include <NxCore/NxIniSettingsStore.h>

#include <QHash>

#include <utility>

namespace {

const auto deleteConfirmKey = QStringLiteral("MediaLibrary/DeleteConfirm");
const auto findSimilarKey = QStringLiteral("MediaLibrary/FindSimilarUsed");
const auto importDirKey = QStringLiteral("MediaLibrary/DefaultImportDir");
const auto pageGroup = QStringLiteral("Pages/");

QString builtInPage(const QString &key)
{
    static const QHash<QString, QString> pages{
        {QStringLiteral("HevcPage"),
         QStringLiteral("https://en.wikipedia.org/wiki/High_Efficiency_Video_Coding")},
    };
    return pages.value(key);
}

} // namespace

class NxConfigPrivate
{
public:
    INxSettingsStore &store()
    {
        if (!m_store)
            m_store = std::make_unique<NxIniSettingsStore>(NxIniSettingsStore::userPath());
        return *m_store;
    }

    /// A text that was stored and is not empty, else the fallback.
    QString text(const QString &key, const QString &fallback)
    {
        const QString stored = store().value(key).toString();
        return stored.isEmpty() ? fallback : stored;
    }

    std::unique_ptr<INxSettingsStore> m_store; // Null until it is needed: the user's ini file.
};

NxConfig *NxConfig::Instance()
{
    static NxConfig config;
    return &config;
}

NxConfig::NxConfig() : d(std::make_unique<NxConfigPrivate>()) {}

NxConfig::~NxConfig() = default;

bool NxConfig::getMediaDeleteConfirm() const
{
    const QVariant stored = d->store().value(deleteConfirmKey);
    return !stored.isValid() || stored.toBool();
}

void NxConfig::setMediaDeleteConfirm(bool confirm)
{
    if (getMediaDeleteConfirm() != confirm)
        d->store().setValue(deleteConfirmKey, confirm);
}

bool NxConfig::getFindSimilarUsed() const
{
    return d->store().value(findSimilarKey).toBool();
}

void NxConfig::setFindSimilarUsed(bool used)
{
    if (getFindSimilarUsed() != used)
        d->store().setValue(findSimilarKey, used);
}

QString NxConfig::getDefaultImportDir(const QString &fallback) const
{
    return d->text(importDirKey, fallback);
}

void NxConfig::setDefaultImportDir(const QString &directory)
{
    if (getDefaultImportDir(QString()) != directory)
        d->store().setValue(importDirKey, directory);
}

QString NxConfig::GetCBSUrl(const QString &key) const
{
    return d->text(pageGroup + key, builtInPage(key));
}

void NxConfig::setCBSUrl(const QString &key, const QString &url)
{
    if (url.isEmpty())
        d->store().remove(pageGroup + key);
    else
        d->store().setValue(pageGroup + key, url);
}

void NxConfig::setStore(std::unique_ptr<INxSettingsStore> store)
{
    d->m_store = std::move(store);
}
