// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxIniSettingsStore.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <functional>
#include <memory>

#include <sys/resource.h>

using Maker = std::function<std::unique_ptr<INxSettingsStore>(const QString &path)>;
Q_DECLARE_METATYPE(Maker)

namespace {

/// While it lives no file may grow beyond what a lock file needs, as if the disk were full.
class FullDisk
{
public:
    FullDisk()
    {
        constexpr rlim_t LockBytes = 256;
        m_isFull = getrlimit(RLIMIT_FSIZE, &m_before) == 0;
        const rlimit limit{LockBytes, m_before.rlim_max};
        m_isFull = m_isFull && std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR
                   && setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FullDisk)

    [[nodiscard]] bool isFull() const { return m_isFull; }

private:
    rlimit m_before{};
    bool m_isFull = false;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The same promises of both stores.
class tst_NxSettingsStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keepsValues_data();
    void keepsValues();
    void iniFileSurvivesTheStore();
    void iniFileIsWrittenAtOnce();
    void unwritableFileIsReportedByName();
    void fullDiskKeepsTheOlderFile();
    void foreignLockIsNotWaitedFor();
    void userFileIsInTheUsersConfiguration();
};

void tst_NxSettingsStore::keepsValues_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("memory") << Maker(
        [](const QString &) { return std::make_unique<NxMemorySettingsStore>(); });
    QTest::newRow("ini file") << Maker(
        [](const QString &path) { return std::make_unique<NxIniSettingsStore>(path); });
}

void tst_NxSettingsStore::keepsValues()
{
    QFETCH(Maker, make);
    const NxTempDir dir;
    const std::unique_ptr<INxSettingsStore> store = make(dir.filePath(QStringLiteral("s.ini")));
    const QString key = QStringLiteral("Group/Name");
    QVERIFY(!store->value(key).isValid());

    store->setValue(key, QStringLiteral("grüße; a=b, \"c\"\n\\d"));
    QCOMPARE(store->value(key).toString(), QStringLiteral("grüße; a=b, \"c\"\n\\d"));
    store->setValue(key, 5);
    QCOMPARE(store->value(key).toInt(), 5);
    store->setValue(QStringLiteral("Group/Other"), true);
    store->remove(key);
    QVERIFY(!store->value(key).isValid());
    QVERIFY(store->value(QStringLiteral("Group/Other")).toBool());
}

void tst_NxSettingsStore::iniFileSurvivesTheStore()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("new folder/s.ini"));
    NxIniSettingsStore(path).setValue(QStringLiteral("A/B"), QStringLiteral("日本語"));
    QCOMPARE(NxIniSettingsStore(path).value(QStringLiteral("A/B")).toString(),
             QStringLiteral("日本語"));
}

void tst_NxSettingsStore::iniFileIsWrittenAtOnce()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    NxIniSettingsStore store(path);
    store.setValue(QStringLiteral("A/B"), 77);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("B=77"));
}

void tst_NxSettingsStore::unwritableFileIsReportedByName()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("folder"));
    dir.makeDir(
        QStringLiteral("folder")); // A folder cannot be written as a file, not even by root.
    NxTestLog::expectErrors(path + QStringLiteral(": the settings cannot be written"));
    NxIniSettingsStore store(path);
    store.setValue(QStringLiteral("A/B"), 77);
    QCOMPARE(store.value(QStringLiteral("A/B")).toInt(), 77);
}

void tst_NxSettingsStore::fullDiskKeepsTheOlderFile()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    NxIniSettingsStore store(path);
    store.setValue(QStringLiteral("A/B"), 77);
    const QByteArray before = contents(path);
    {
        const FullDisk disk;
        QVERIFY(disk.isFull());
        NxTestLog::expectErrors(path + QStringLiteral(": the settings cannot be written"));
        store.setValue(QStringLiteral("A/B"), 78);
        store.setValue(QStringLiteral("A/C"), QStringLiteral("new"));
        store.remove(QStringLiteral("A/D"));
        QCOMPARE(store.value(QStringLiteral("A/B")).toInt(), 78); // Until the process ends.
        QCOMPARE(store.value(QStringLiteral("A/C")).toString(), QStringLiteral("new"));
    }
    QCOMPARE(contents(path), before);
    store.setValue(QStringLiteral("A/B"), 79);
    QCOMPARE(NxIniSettingsStore(path).value(QStringLiteral("A/B")).toInt(), 79);
}

void tst_NxSettingsStore::foreignLockIsNotWaitedFor()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("s.ini"));
    dir.makeDir(QStringLiteral("s.ini.lock"));
    NxTestLog::expectErrors(path + QStringLiteral(": the settings cannot be written"));
    NxIniSettingsStore store(path);
    store.setValue(QStringLiteral("A/B"), 77);
    QCOMPARE(store.value(QStringLiteral("A/B")).toInt(), 77);
    QVERIFY(!QFileInfo::exists(path));
}

void tst_NxSettingsStore::userFileIsInTheUsersConfiguration()
{
    const QString config = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME"));
    QVERIFY(!config.isEmpty());
    QVERIFY2(NxIniSettingsStore::userPath().startsWith(config + QLatin1Char('/')),
             qUtf8Printable(NxIniSettingsStore::userPath()));
    QCOMPARE(QFileInfo(NxIniSettingsStore::userPath()).fileName(), QStringLiteral("Settings.ini"));
}

NX_TEST_MAIN(tst_NxSettingsStore)
#include "tst_NxSettingsStore.moc"
