// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/import/NxEngineImporter.h>

#include "../Support/NxFullDiskVfs.h"
#include "../Support/NxProjectDump.h"
#include "RawFiles.h"

#include <EngineFixture.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A project with a file, and an importer of its media.
struct StoredProject
{
    StoredProject(const QString &path, bool isNew, const char *vfs = nullptr)
        : disk(std::make_shared<NxDiskThread>()), memory(path)
    {
        NxProjectStoreOptions options;
        options.vfs = vfs;
        auto opened = isNew ? NxProjectStore::create(path, options)
                            : NxProjectStore::open(path, options);
        if (!opened)
            qFatal("%s", qUtf8Printable(opened.error().message));
        store = opened.take();
        auto contents = store->load();
        if (!contents)
            qFatal("%s", qUtf8Printable(contents.error().message));
        memory.load(contents.take());
        memory.setWriter([this](NxStoreBatch batch) { store->write(std::move(batch)); });
        store->setFailureHandler([this](const NxError &error) {
            failure = error.message;
            memory.setReadOnly(true);
        });
        category = memory.category(NXVBLMODEL::mctMedia);
        section = category->folder(NXVBLMODEL::fidRoot);
        importer = std::make_unique<NxEngineImporter>(&memory, category, disk, store.get());
    }
    ~StoredProject()
    {
        importer.reset();
        memory.setWriter({});
    }

    std::shared_ptr<NxDiskThread> disk;
    NxProjectMemory memory;
    std::unique_ptr<NxProjectStore> store;
    NxEngineCategory *category = nullptr;
    NxEngineFolder *section = nullptr;
    std::unique_ptr<NxEngineImporter> importer;
    QString failure;
};

/// Files of one content: hard links are made much faster than files.
void writeMany(const NxTempDir &dir, const QString &folder, int count)
{
    const QString first = dir.write(folder + QStringLiteral("/00000.mp4"));
    for (int i = 1; i < count; ++i) {
        const QString name = QStringLiteral("/%1.mp4").arg(i, 5, 10, QLatin1Char('0'));
        RawFiles::hardLink(first, dir.filePath(folder) + name);
    }
}

/// How many media of this folder on disk the project file holds.
int storedMedia(const QString &project, const QString &folder)
{
    int count = 0;
    for (const QByteArray &line : dumpProjectFile(project).split('\n')) {
        if (line.startsWith("media:") && line.contains((folder + QLatin1Char('/')).toUtf8()))
            ++count;
    }
    return count;
}

} // namespace

class tst_NxEngineImporterStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsReportedStandsInTheProjectFile();
    void theNextProcessFindsAllAndCanTakeItBack();
    void aFullDiskEndsTheJobAndNothingIsReportedThatIsNotSafe_data();
    void aFullDiskEndsTheJobAndNothingIsReportedThatIsNotSafe();
    void closingReportsWhatWasSaved();
};

void tst_NxEngineImporterStore::whatIsReportedStandsInTheProjectFile()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("p.brevano"));
    writeMany(dir, QStringLiteral("in"), 600);
    const QString in = dir.filePath(QStringLiteral("in"));
    StoredProject project(path, true);
    int reported = 0;
    int looks = 0;
    connect(project.importer.get(), &INxMediaImporter::added, this,
        [&](quint64, const QList<INxAbstractMediaItem *> &items) {
            reported += items.size();
            if (++looks <= 5)
                QVERIFY(storedMedia(path, in) >= reported);
        });
    connect(project.importer.get(), &INxMediaImporter::progress, this,
        [&](quint64, quint64, qint64 added) { QVERIFY(added <= reported); });
    QSignalSpy finished(project.importer.get(), &INxMediaImporter::finished);
    connect(project.importer.get(), &INxMediaImporter::finished, this,
        [&] { QCOMPARE(storedMedia(path, in), 600); });
    QVERIFY(project.importer->start(project.section, {in}, 0) != 0);
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
    QCOMPARE(reported, 600);
    QVERIFY(looks > 0);
    QCOMPARE(finished.first().at(1).value<NxImportReport>().added, 600);
    QVERIFY(project.store->close());
}

void tst_NxEngineImporterStore::theNextProcessFindsAllAndCanTakeItBack()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("p.brevano"));
    writeMany(dir, QStringLiteral("in/Day"), 300);
    const QString in = dir.filePath(QStringLiteral("in"));
    {
        StoredProject project(path, true);
        QSignalSpy finished(project.importer.get(), &INxMediaImporter::finished);
        QVERIFY(project.importer->start(project.section, {in}, 0) != 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
        QVERIFY(project.store->close());
    }
    StoredProject project(path, false);
    QCOMPARE(project.memory.livingMediaCount(), 300);
    QSignalSpy finished(project.importer.get(), &INxMediaImporter::finished);
    QVERIFY(project.importer->start(project.section, {in}, 0) != 0);
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
    QCOMPARE(finished.first().at(1).value<NxImportReport>().alreadyThere, 300);
    QCOMPARE(project.memory.undoStack()->count(), 1);
    QVERIFY(project.memory.undoStack()->undo());
    QCOMPARE(project.memory.livingMediaCount(), 0);
    QCOMPARE(project.section->childFolderCount(), 0);
    QVERIFY(project.store->close());
}

void tst_NxEngineImporterStore::aFullDiskEndsTheJobAndNothingIsReportedThatIsNotSafe_data()
{
    QTest::addColumn<int>("write");
    for (const int write : {1, 2, 5, 12, 30})
        QTest::addRow("write %d", write) << write;
}

void tst_NxEngineImporterStore::aFullDiskEndsTheJobAndNothingIsReportedThatIsNotSafe()
{
    QFETCH(int, write);
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("p.brevano"));
    writeMany(dir, QStringLiteral("in"), 2'000);
    const QString in = dir.filePath(QStringLiteral("in"));
    qint64 reported = 0;
    NxImportReport report;
    {
        NxFullDiskVfs vfs;
        StoredProject project(path, true, vfs.name());
        vfs.fillAtWrite(write);
        connect(project.importer.get(), &INxMediaImporter::added, this,
            [&](quint64, const QList<INxAbstractMediaItem *> &items) { reported += items.size(); });
        QSignalSpy finished(project.importer.get(), &INxMediaImporter::finished);
        QVERIFY(project.importer->start(project.section, {in}, 0) != 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
        report = finished.first().at(1).value<NxImportReport>();
        QVERIFY(!project.failure.isEmpty());
        QVERIFY(!project.importer->isRunning());
        QVERIFY(!project.store->close());
    }
    QCOMPARE(report.added, reported);
    QVERIFY(report.cancelled > 0);
    QVERIFY(report.lines.last().reason.size() > 0);
    StoredProject again(path, false);
    QVERIFY(again.memory.livingMediaCount() >= reported);
    QSignalSpy finished(again.importer.get(), &INxMediaImporter::finished);
    QVERIFY(again.importer->start(again.section, {in}, 0) != 0);
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60'000);
    QCOMPARE(again.memory.livingMediaCount(), 2'000);
    QVERIFY(again.store->close());
}

void tst_NxEngineImporterStore::closingReportsWhatWasSaved()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("p.brevano"));
    writeMany(dir, QStringLiteral("in"), 3'000);
    StoredProject project(path, true);
    QSignalSpy finished(project.importer.get(), &INxMediaImporter::finished);
    QSignalSpy added(project.importer.get(), &INxMediaImporter::added);
    QVERIFY(project.importer->start(project.section, {dir.filePath(QStringLiteral("in"))}, 0) != 0);
    QTRY_VERIFY_WITH_TIMEOUT(!added.isEmpty(), 60'000);
    project.importer->stopAll();
    project.memory.flush();
    QVERIFY(project.store->close());
    QCOMPARE(finished.size(), 1);
    const NxImportReport report = finished.first().at(1).value<NxImportReport>();
    QCOMPARE(report.added, project.memory.livingMediaCount());
    QCOMPARE(storedMedia(path, dir.filePath(QStringLiteral("in"))), int(report.added));
}

NX_TEST_MAIN(tst_NxEngineImporterStore)
#include "tst_NxEngineImporterStore.moc"
