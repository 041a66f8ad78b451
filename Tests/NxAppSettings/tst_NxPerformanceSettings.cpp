// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <Support/NxTestMain.h>

#include <QStandardPaths>
#include <QTest>

class tst_NxPerformanceSettings : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsWithDefaults();
    void remembersAutoCreateProxy();
    void takesSensibleResolutions_data();
    void takesSensibleResolutions();
    void readsOnlySensibleResolutions_data();
    void readsOnlySensibleResolutions();
    void normalisesTheProxyDirectory_data();
    void normalisesTheProxyDirectory();
};

void tst_NxPerformanceSettings::startsWithDefaults()
{
    NxMemorySettingsStore store;
    const NxPerformanceSettings settings(&store);
    QVERIFY(!settings.isAutoCreateProxy());
    QCOMPARE(settings.autoProxyResolution(), 720);
    QCOMPARE(settings.proxyDirectory(),
             QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
                 + QStringLiteral("/Proxies"));
}

void tst_NxPerformanceSettings::remembersAutoCreateProxy()
{
    NxMemorySettingsStore store;
    NxPerformanceSettings settings(&store);
    settings.setAutoCreateProxy(true);
    QVERIFY(NxPerformanceSettings(&store).isAutoCreateProxy());
    settings.setAutoCreateProxy(false);
    QVERIFY(!NxPerformanceSettings(&store).isAutoCreateProxy());
}

void tst_NxPerformanceSettings::takesSensibleResolutions_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("taken");

    QTest::newRow("full HD") << 1080 << true;
    QTest::newRow("lowest") << 90 << true;
    QTest::newRow("highest") << 4320 << true;
    QTest::newRow("too low") << 89 << false;
    QTest::newRow("too high") << 4321 << false;
    QTest::newRow("negative") << -720 << false;
}

void tst_NxPerformanceSettings::takesSensibleResolutions()
{
    QFETCH(int, height);
    QFETCH(bool, taken);
    NxMemorySettingsStore store;
    NxPerformanceSettings settings(&store);
    settings.setAutoProxyResolution(480);
    if (!taken)
        NxTestLog::expectError(QStringLiteral("proxies cannot be %1 pixels high").arg(height));

    settings.setAutoProxyResolution(height);

    QCOMPARE(NxPerformanceSettings(&store).autoProxyResolution(), taken ? height : 480);
}

void tst_NxPerformanceSettings::readsOnlySensibleResolutions_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("height");

    QTest::newRow("text of a number, as ini files keep it")
        << QVariant(QStringLiteral("540")) << 540;
    QTest::newRow("no number") << QVariant(QStringLiteral("big")) << 720;
    QTest::newRow("zero") << QVariant(0) << 720;
}

void tst_NxPerformanceSettings::readsOnlySensibleResolutions()
{
    QFETCH(QVariant, stored);
    QFETCH(int, height);
    NxMemorySettingsStore store;
    store.setValue(QStringLiteral("Performance/ProxyResolution"), stored);
    QCOMPARE(NxPerformanceSettings(&store).autoProxyResolution(), height);
}

void tst_NxPerformanceSettings::normalisesTheProxyDirectory_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("kept");

    QTest::newRow("plain") << QStringLiteral("/media/proxies") << QStringLiteral("/media/proxies");
    QTest::newRow("slash at the end")
        << QStringLiteral("/media/proxies/") << QStringLiteral("/media/proxies");
    QTest::newRow("dots") << QStringLiteral("/media/./a/../b") << QStringLiteral("/media/b");
    QTest::newRow("empty goes back to the cache folder")
        << QString()
        << QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
               + QStringLiteral("/Proxies");
}

void tst_NxPerformanceSettings::normalisesTheProxyDirectory()
{
    QFETCH(QString, given);
    QFETCH(QString, kept);
    NxMemorySettingsStore store;
    NxPerformanceSettings settings(&store);
    settings.setProxyDirectory(QStringLiteral("/elsewhere"));

    settings.setProxyDirectory(given);

    QCOMPARE(NxPerformanceSettings(&store).proxyDirectory(), kept);
}

NX_TEST_MAIN(tst_NxPerformanceSettings)
#include "tst_NxPerformanceSettings.moc"
