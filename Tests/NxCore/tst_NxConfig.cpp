// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxConfig.h>
#include <NxCore/NxIniSettingsStore.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QUrl>

#include <memory>

namespace {

/// Counts writes, to see that nothing is written twice.
class CountingStore : public NxMemorySettingsStore
{
public:
    explicit CountingStore(int *writes) : m_writes(writes) {}
    void setValue(const QString &key, const QVariant &value) override
    {
        ++*m_writes;
        NxMemorySettingsStore::setValue(key, value);
    }

private:
    int *const m_writes;
};

} // namespace

class tst_NxConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startsWithDefaults();
    void remembersWhatWasSet();
    void keepsSettingsOverRestarts();
    void writesOnlyChanges();
    void answersPageAddresses();
    void usesTheUsersFileOnItsOwn();

    void init() { NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>()); }
    void cleanup() { NxConfig::Instance()->setStore(nullptr); }
};

void tst_NxConfig::startsWithDefaults()
{
    const NxConfig &config = *NxConfig::Instance();
    QVERIFY(config.getMediaDeleteConfirm());
    QVERIFY(!config.getFindSimilarUsed());
    QCOMPARE(config.getDefaultImportDir(QStringLiteral("/fallback")), QStringLiteral("/fallback"));
}

void tst_NxConfig::remembersWhatWasSet()
{
    NxConfig &config = *NxConfig::Instance();
    config.setMediaDeleteConfirm(false);
    QVERIFY(!config.getMediaDeleteConfirm());
    config.setMediaDeleteConfirm(true);
    QVERIFY(config.getMediaDeleteConfirm());
    config.setFindSimilarUsed(true);
    QVERIFY(config.getFindSimilarUsed());
    config.setDefaultImportDir(QStringLiteral("/footage"));
    QCOMPARE(config.getDefaultImportDir(QStringLiteral("/fallback")), QStringLiteral("/footage"));
}

void tst_NxConfig::keepsSettingsOverRestarts()
{
    const NxTempDir dir;
    const QString file = dir.filePath(QStringLiteral("c.ini"));
    NxConfig &config = *NxConfig::Instance();
    config.setStore(std::make_unique<NxIniSettingsStore>(file));
    config.setMediaDeleteConfirm(false);
    config.setFindSimilarUsed(true);
    config.setDefaultImportDir(QStringLiteral("C:\\Users\\Zoë\\Filme"));

    config.setStore(std::make_unique<NxIniSettingsStore>(file));

    QVERIFY(!config.getMediaDeleteConfirm());
    QVERIFY(config.getFindSimilarUsed());
    QCOMPARE(config.getDefaultImportDir(QString()), QStringLiteral("C:\\Users\\Zoë\\Filme"));
}

void tst_NxConfig::writesOnlyChanges()
{
    int writes = 0;
    NxConfig &config = *NxConfig::Instance();
    config.setStore(std::make_unique<CountingStore>(&writes));
    config.setMediaDeleteConfirm(true);
    config.setFindSimilarUsed(false);
    QCOMPARE(writes, 0);
    config.setMediaDeleteConfirm(false);
    config.setMediaDeleteConfirm(false);
    config.setDefaultImportDir(QStringLiteral("/a"));
    config.setDefaultImportDir(QStringLiteral("/a"));
    QCOMPARE(writes, 2);
}

void tst_NxConfig::answersPageAddresses()
{
    NxConfig &config = *NxConfig::Instance();
    const QString key = QStringLiteral("HevcPage");
    const QString builtIn = config.GetCBSUrl(key);
    QCOMPARE(QUrl(builtIn, QUrl::StrictMode).scheme(), QStringLiteral("https"));
    QCOMPARE(config.GetCBSUrl(QStringLiteral("NoSuchPage")), QString());

    config.setCBSUrl(key, QStringLiteral("https://example.org/hevc"));
    QCOMPARE(config.GetCBSUrl(key), QStringLiteral("https://example.org/hevc"));
    config.setCBSUrl(key, QString());
    QCOMPARE(config.GetCBSUrl(key), builtIn);
}

void tst_NxConfig::usesTheUsersFileOnItsOwn()
{
    QFile::remove(NxIniSettingsStore::userPath());
    NxConfig::Instance()->setStore(nullptr);
    NxConfig::Instance()->setFindSimilarUsed(true);
    QVERIFY(QFileInfo::exists(NxIniSettingsStore::userPath()));
    QVERIFY(QFile::remove(NxIniSettingsStore::userPath()));
}

NX_TEST_MAIN(tst_NxConfig)
#include "tst_NxConfig.moc"
