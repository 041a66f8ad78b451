// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxProjectDump.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace StoreSamples;

class tst_NxProjectStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void aNewProjectIsEmptyAndWritable();
    void aNewProjectIsOneFile();
    void creatingNeverTouchesWhatStandsThere_data();
    void creatingNeverTouchesWhatStandsThere();
    void creatingTellsWhyItCannot_data();
    void creatingTellsWhyItCannot();
    void theLogOfADeletedProjectDoesNotReachANewOne();
    void everythingWrittenIsThereNextTime();
    void loadingSeesWhatIsQueued();
    void aReadOnlyStoreIgnoresWrites();
    void aReadOnlyStoreAnswersCommitsWithItsReason();
    void aReadOnlyOpeningLeavesNothingBehind();
    void openingAndClosingWithoutAChangeLeavesTheFileAsItWas();
    void aMovedProjectRemembersItsOldFolderUntilItIsWritten();
    void anyNameMayBeAProject_data();
    void anyNameMayBeAProject();
    void aSavedCopyHoldsEverythingQueuedBefore();
    void aCopyNeverReplacesAFile();
    void aCopyThatFailsLeavesNothingBehind();
    void aReadOnlyProjectCanBeCopied();
    void closingTwiceIsNothing();
    void aClosedStoreAnswersThatItIsClosed();
    void closingAnswersEverythingWithoutAnEventLoop();
    void aHandlerMayDestroyTheStore();
    void onANetworkDriveThereIsNoLog();
    void aProjectFromANetworkDriveGetsALogAgain();

private:
    std::unique_ptr<NxProjectStore> created(const NxProjectStoreOptions &options = {})
    {
        auto store = NxProjectStore::create(m_path, options);
        if (!store)
            qWarning("%s", qUtf8Printable(store.errorText()));
        return store ? store.take() : nullptr;
    }
    std::unique_ptr<NxProjectStore> opened(const NxProjectStoreOptions &options = {})
    {
        auto store = NxProjectStore::open(m_path, options);
        if (!store)
            qWarning("%s", qUtf8Printable(store.errorText()));
        return store ? store.take() : nullptr;
    }
    QStringList names() const { return filesIn(m_folder->path()).keys(); }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectStore::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
}

void tst_NxProjectStore::aNewProjectIsEmptyAndWritable()
{
    const auto store = created();
    QVERIFY(!store->isReadOnly());
    QVERIFY(store->readOnlyReason().isEmpty());
    QCOMPARE(store->path(), m_path);
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    NxProjectContents expected;
    expected.projectFolder = m_folder->path();
    QCOMPARE(described(*contents), described(expected));
    QVERIFY(store->integrityProblems().isEmpty());
}

void tst_NxProjectStore::aNewProjectIsOneFile()
{
    const auto store = created();
    store->write(addMedia(1, 10));
    QVERIFY(commitAndWait(store.get()));
    QVERIFY(names().contains(QStringLiteral("Media.brevano.lock")));
    QVERIFY(store->close());
    QCOMPARE(names(), QStringList{QStringLiteral("Media.brevano")});
}

void tst_NxProjectStore::creatingNeverTouchesWhatStandsThere_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a text") << QByteArray("my diary");
    QTest::newRow("an empty file") << QByteArray();
}

void tst_NxProjectStore::creatingNeverTouchesWhatStandsThere()
{
    QFETCH(QByteArray, content);
    writeFile(m_path, content);
    const auto store = NxProjectStore::create(m_path, {});
    QVERIFY(!store);
    QVERIFY2(store.errorText().startsWith(m_path), qUtf8Printable(store.errorText()));
    QVERIFY(store.errorText().contains(QLatin1String("a file of this name is there already")));
    QCOMPARE(readFile(m_path), content);
    QCOMPARE(names(), QStringList{QStringLiteral("Media.brevano")});
}

void tst_NxProjectStore::creatingTellsWhyItCannot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cause");
    QTest::newRow("no folder") << QStringLiteral("none/a.brevano")
                               << QStringLiteral("there is no such folder");
    QTest::newRow("a folder of this name") << QString() << QStringLiteral("it is a folder");
    QTest::newRow("a name that leaves no room for a log's")
        << QString(248, QLatin1Char('a')) << QStringLiteral("its name is too long");
    QTest::newRow("4,000 characters")
        << QString(4000, QLatin1Char('a')) << QStringLiteral("its path is too long");
}

void tst_NxProjectStore::creatingTellsWhyItCannot()
{
    QFETCH(QString, name);
    QFETCH(QString, cause);
    const QString path = QDir::cleanPath(m_folder->filePath(name));
    const auto store = NxProjectStore::create(path, {});
    QVERIFY(!store);
    QVERIFY2(store.errorText().startsWith(path), qUtf8Printable(store.errorText()));
    QVERIFY2(store.errorText().contains(cause), qUtf8Printable(store.errorText()));
    QVERIFY(names().isEmpty());
}

void tst_NxProjectStore::theLogOfADeletedProjectDoesNotReachANewOne()
{
    {
        const auto store = created();
        store->write(addMedia(1, 10));
        QVERIFY(commitAndWait(store.get()));
        QVERIFY(QFileInfo(m_path + QLatin1String("-wal")).size() > 0);
        QVERIFY(QFile::copy(m_path + QLatin1String("-wal"), m_path + QLatin1String("-keep")));
        QVERIFY(store->close());
    }
    QVERIFY(QFile::remove(m_path));
    QVERIFY(QFile::rename(m_path + QLatin1String("-keep"), m_path + QLatin1String("-wal")));
    const auto store = created();
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QVERIFY(contents->media.empty());
}

void tst_NxProjectStore::everythingWrittenIsThereNextTime()
{
    QStringList before;
    {
        const auto store = created();
        for (const NxStoreBatch &batch : session())
            store->write(batch);
        const NxResult<NxProjectContents> contents = store->load();
        QVERIFY2(contents, qUtf8Printable(contents.errorText()));
        before = described(*contents);
        QVERIFY(before.size() > 60);
        QVERIFY(store->close());
    }
    const auto store = opened();
    QVERIFY(!store->isReadOnly());
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QVERIFY(contents->damage.isEmpty());
    QCOMPARE(described(*contents), before);
}

void tst_NxProjectStore::loadingSeesWhatIsQueued()
{
    const auto store = created();
    for (int batch = 0; batch < 50; ++batch)
        store->write(addMedia(1 + 20 * batch, 20));
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QCOMPARE(int(contents->media.size()), 1000);
}

void tst_NxProjectStore::aReadOnlyStoreIgnoresWrites()
{
    makeProject(m_path, {addMedia(1, 3)});
    const QByteArray before = readFile(m_path);
    NxProjectStoreOptions options;
    options.readOnly = true;
    const auto store = opened(options);
    QVERIFY(store->isReadOnly());
    QCOMPARE(store->readOnlyReason(), m_path + QStringLiteral(": was opened for reading only"));
    store->write(addMedia(4, 3));
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QCOMPARE(int(contents->media.size()), 3);
    QVERIFY(store->close());
    QCOMPARE(readFile(m_path), before);
}

void tst_NxProjectStore::aReadOnlyStoreAnswersCommitsWithItsReason()
{
    makeProject(m_path, {});
    NxProjectStoreOptions options;
    options.readOnly = true;
    const auto store = opened(options);
    const NxResult<void> committed = commitAndWait(store.get());
    QCOMPARE(committed.errorText(), store->readOnlyReason());
}

void tst_NxProjectStore::aReadOnlyOpeningLeavesNothingBehind()
{
    makeProject(m_path, {addMedia(1, 3)});
    const auto before = filesIn(m_folder->path());
    NxProjectStoreOptions options;
    options.readOnly = true;
    {
        const auto store = opened(options);
        QVERIFY(store->load());
        QCOMPARE(filesIn(m_folder->path()), before);
        QVERIFY(store->integrityProblems().isEmpty());
        QCOMPARE(filesIn(m_folder->path()), before);
    }
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectStore::openingAndClosingWithoutAChangeLeavesTheFileAsItWas()
{
    makeProject(m_path, session());
    const auto before = filesIn(m_folder->path());
    const auto store = opened();
    QVERIFY(store->load());
    QVERIFY(commitAndWait(store.get()));
    QVERIFY(store->close());
    QCOMPARE(filesIn(m_folder->path()), before);
}

void tst_NxProjectStore::aMovedProjectRemembersItsOldFolderUntilItIsWritten()
{
    makeProject(m_path, {addMedia(1, 1)});
    const QString oldFolder = m_folder->path();
    const QString moved =
        m_folder->makeDir(QStringLiteral("elsewhere")) + QLatin1String("/Media.brevano");
    QVERIFY(QFile::rename(m_path, moved));
    m_path = moved;
    {
        const auto store = opened();
        const NxResult<NxProjectContents> contents = store->load();
        QCOMPARE(contents->projectFolder, oldFolder);
        store->write(addMedia(2, 1));
        QVERIFY(store->close());
    }
    const auto store = opened();
    const NxResult<NxProjectContents> contents = store->load();
    QCOMPARE(contents->projectFolder, QFileInfo(moved).path());
}

void tst_NxProjectStore::anyNameMayBeAProject_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("emoji") << QString::fromUtf8("\xF0\x9F\x8E\xAC.brevano");
    QTest::newRow("a line end") << QStringLiteral("a\nb.brevano");
    QTest::newRow("what a URI reads as its own") << QStringLiteral("50% a?b#c&mode=ro.brevano");
    QTest::newRow("no suffix") << QStringLiteral("project");
    QTest::newRow("the longest name") << QString(247, QLatin1Char('n'));
}

void tst_NxProjectStore::anyNameMayBeAProject()
{
    QFETCH(QString, name);
    m_path = m_folder->filePath(name);
    makeProject(m_path, {addMedia(1, 5)});
    QCOMPARE(names(), QStringList{name});
    const auto store = opened();
    const NxResult<NxProjectContents> contents = store->load();
    QVERIFY2(contents, qUtf8Printable(contents.errorText()));
    QCOMPARE(int(contents->media.size()), 5);
}

void tst_NxProjectStore::aSavedCopyHoldsEverythingQueuedBefore()
{
    const QString copy = m_folder->filePath(QStringLiteral("Copy.brevano"));
    const auto store = created();
    for (const NxStoreBatch &batch : session())
        store->write(batch);
    const NxResult<void> saved = saveCopyAndWait(store.get(), copy);
    QVERIFY2(saved, qUtf8Printable(saved.errorText()));
    QVERIFY(store->close());
    QCOMPARE(contentsOf(copy), contentsOf(m_path));
    QCOMPARE(dumpProjectFile(copy), dumpProjectFile(m_path));
    QCOMPARE(names().size(), 2);
}

void tst_NxProjectStore::aCopyNeverReplacesAFile()
{
    const QString copy = m_folder->write(QStringLiteral("Copy.brevano"), "precious");
    const auto store = created();
    const NxResult<void> saved = saveCopyAndWait(store.get(), copy);
    QVERIFY(!saved);
    QVERIFY2(saved.errorText().startsWith(copy), qUtf8Printable(saved.errorText()));
    QCOMPARE(readFile(copy), QByteArray("precious"));
    // The store goes on.
    store->write(addMedia(1, 2));
    QVERIFY(commitAndWait(store.get()));
}

void tst_NxProjectStore::aCopyThatFailsLeavesNothingBehind()
{
    NxFullDiskVfs disk;
    NxProjectStoreOptions options;
    options.vfs = disk.name();
    const QString folder = m_folder->makeDir(QStringLiteral("copies"));
    const auto store = created(options);
    store->write(addMedia(1, 500));
    QVERIFY(commitAndWait(store.get()));
    disk.fillAtWrite(5, NxFullDiskVfs::Then::RoomAgain);
    const QString copy = folder + QLatin1String("/Copy.brevano");
    const NxResult<void> saved = saveCopyAndWait(store.get(), copy);
    QCOMPARE(saved.errorText(),
             copy + QStringLiteral(": cannot be written as a copy: the disk is full"));
    QVERIFY(filesIn(folder).isEmpty());
    QVERIFY(commitAndWait(store.get()));
    QVERIFY(saveCopyAndWait(store.get(), copy));
    QVERIFY(store->close());
    QCOMPARE(contentsOf(copy), contentsOf(m_path));
}

void tst_NxProjectStore::aReadOnlyProjectCanBeCopied()
{
    makeProject(m_path, session());
    NxProjectStoreOptions options;
    options.readOnly = true;
    const auto store = opened(options);
    const QString copy = m_folder->filePath(QStringLiteral("Copy.brevano"));
    const NxResult<void> saved = saveCopyAndWait(store.get(), copy);
    QVERIFY2(saved, qUtf8Printable(saved.errorText()));
    QCOMPARE(contentsOf(copy), contentsOf(m_path));
}

void tst_NxProjectStore::closingTwiceIsNothing()
{
    const auto store = created();
    QVERIFY(store->close());
    QVERIFY(store->close());
}

void tst_NxProjectStore::aClosedStoreAnswersThatItIsClosed()
{
    const auto store = created();
    QVERIFY(store->close());
    store->write(addMedia(1, 1));
    QCOMPARE(commitAndWait(store.get()).errorText(), m_path + QStringLiteral(": is closed"));
    QCOMPARE(saveCopyAndWait(store.get(), m_path + QLatin1String("2")).errorText(),
             m_path + QStringLiteral(": is closed"));
    QCOMPARE(contentsOf(m_path).filter(QLatin1String("media|")), QStringList());
}

void tst_NxProjectStore::closingAnswersEverythingWithoutAnEventLoop()
{
    QVector<int> answered;
    const auto store = created();
    for (int number = 0; number < 20; ++number) {
        store->write(addMedia(1 + number, 1));
        store->commit([&answered, number](const NxResult<void> &result) {
            answered.append(result ? number : -1);
        });
    }
    const QString copy = m_folder->filePath(QStringLiteral("Copy.brevano"));
    bool isCopied = false;
    store->saveCopy(copy, [&isCopied](const NxResult<void> &result) { isCopied = bool(result); });
    QVERIFY(store->close());
    QVERIFY(isCopied);
    QCOMPARE(answered.size(), 20);
    QVERIFY(std::is_sorted(answered.begin(), answered.end()) && answered.first() == 0);
    QCOMPARE(contentsOf(copy), contentsOf(m_path));
}

void tst_NxProjectStore::aHandlerMayDestroyTheStore()
{
    auto store = created();
    bool isAnswered = false;
    store->write(addMedia(1, 1));
    store->commit([&store](const NxResult<void> &) { store.reset(); });
    store->commit([&isAnswered](const NxResult<void> &result) { isAnswered = bool(result); });
    QTRY_VERIFY(!store);
    QVERIFY(isAnswered);
    QCOMPARE(contentsOf(m_path).filter(QLatin1String("media|")).size(), 1);
}

void tst_NxProjectStore::onANetworkDriveThereIsNoLog()
{
    NxProjectStoreOptions options;
    options.fileSystem = "nfs4";
    const auto store = created(options);
    store->write(addMedia(1, 10));
    QVERIFY(commitAndWait(store.get()));
    QVERIFY(!QFileInfo::exists(m_path + QLatin1String("-wal")));
    QVERIFY(!QFileInfo::exists(m_path + QLatin1String("-shm")));
    // A second window still reads it.
    QCOMPARE(contentsOf(m_path).filter(QLatin1String("media|")).size(), 10);
    QVERIFY(store->close());
    QCOMPARE(names(), QStringList{QStringLiteral("Media.brevano")});
}

void tst_NxProjectStore::aProjectFromANetworkDriveGetsALogAgain()
{
    NxProjectStoreOptions network;
    network.fileSystem = "cifs";
    makeProject(m_path, {addMedia(1, 2)});
    {
        const auto store = opened(network); // With the header of a project with a log.
        store->write(addMedia(3, 2));
        QVERIFY(store->close());
    }
    const auto store = opened();
    store->write(addMedia(5, 2));
    QVERIFY(commitAndWait(store.get()));
    QVERIFY(QFileInfo::exists(m_path + QLatin1String("-wal")));
    QVERIFY(store->close());
    QCOMPARE(contentsOf(m_path).filter(QLatin1String("media|")).size(), 6);
}

NX_TEST_MAIN(tst_NxProjectStore)
#include "tst_NxProjectStore.moc"
