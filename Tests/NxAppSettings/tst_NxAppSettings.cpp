// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxAppSettings/NxAppSettings.h>
#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxIniSettingsStore.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFileInfo>
#include <QTest>

#include <memory>

class tst_NxAppSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isOneObject();
    void usesTheInstalledStore();
    void keepsSettingsInTheUsersFile();
    void keepsSettingsOverRestarts();

    void cleanup() { NxAppSettings::instance()->setStore(nullptr); }
};

void tst_NxAppSettings::isOneObject()
{
    QVERIFY(NxAppSettings::instance());
    QCOMPARE(NxAppSettings::instance(), NxAppSettings::instance());
}

void tst_NxAppSettings::usesTheInstalledStore()
{
    auto store = std::make_unique<NxMemorySettingsStore>();
    store->setValue(QStringLiteral("Performance/ProxyResolution"), 540);
    NxAppSettings::instance()->setStore(std::move(store));
    QCOMPARE(NxAppSettings::instance()->performance().autoProxyResolution(), 540);

    NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    QCOMPARE(NxAppSettings::instance()->performance().autoProxyResolution(),
             int(NxPerformanceSettings::DefaultProxyResolution));
}

void tst_NxAppSettings::keepsSettingsInTheUsersFile()
{
    QFile::remove(NxIniSettingsStore::userPath());

    NxAppSettings::instance()->performance().setAutoCreateProxy(true);

    QVERIFY(QFileInfo::exists(NxIniSettingsStore::userPath()));
    QVERIFY(QFile::remove(NxIniSettingsStore::userPath()));
}

void tst_NxAppSettings::keepsSettingsOverRestarts()
{
    const NxTempDir dir;
    const QString file = dir.filePath(QStringLiteral("Settings.ini"));
    NxAppSettings *settings = NxAppSettings::instance();
    settings->setStore(std::make_unique<NxIniSettingsStore>(file));
    settings->performance().setAutoCreateProxy(true);
    settings->performance().setAutoProxyResolution(1080);
    settings->performance().setProxyDirectory(QStringLiteral("/media/Groß/proxies"));

    settings->setStore(std::make_unique<NxIniSettingsStore>(file));

    QVERIFY(settings->performance().isAutoCreateProxy());
    QCOMPARE(settings->performance().autoProxyResolution(), 1080);
    QCOMPARE(settings->performance().proxyDirectory(), QStringLiteral("/media/Groß/proxies"));
}

NX_TEST_MAIN(tst_NxAppSettings)
#include "tst_NxAppSettings.moc"
