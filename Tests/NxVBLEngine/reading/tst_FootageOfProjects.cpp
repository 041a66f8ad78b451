// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ScriptedFootage.h"

#include <EngineFixture.h>
#include <Support/NxTestMain.h>

#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/disk/NxPresenceKeeper.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLModel/INxMediaImporter.h>

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int Patience = 60'000; // ms

/// A project with a file whose footage is read, as the host opens it.
struct StoredProject
{
    StoredProject(const ScriptedFootage &footage, const QString &path)
    {
        const bool isNew = !QFile::exists(path);
        auto store = isNew ? NxProjectStore::create(path, {}) : NxProjectStore::open(path, {});
        if (!store)
            qFatal("%s", qUtf8Printable(store.errorText()));
        auto opened = NxEngineProject::open(store.take(), footage.settings());
        if (!opened)
            qFatal("%s", qUtf8Printable(opened.errorText()));
        project = opened.take();
        category = project->memory()->category(NXVBLMODEL::mctMedia);
    }
    NxEngineMedia *add(const QString &path)
    {
        NxMediaSeed seed;
        seed.path = path;
        return project->memory()
            ->addNewMedia(category->folder(NXVBLMODEL::fidRoot), {seed})
            .first();
    }
    [[nodiscard]] NxFootageReader *reader() const { return project->footageReader(); }
    [[nodiscard]] NxEngineMedia *only() const { return project->memory()->livingMedia().front(); }
    [[nodiscard]] bool startAndFinish() const
    {
        QSignalSpy idle(reader(), &NxFootageReader::idle);
        reader()->start();
        return QTest::qWaitFor([&] { return idle.count() > 0 && reader()->isIdle(); }, Patience);
    }
    /// Waits until every file was looked at and whatever that led to was done.
    [[nodiscard]] bool refresh() const
    {
        bool done = false;
        project->presenceKeeper()->refreshNow([&done] { done = true; });
        return QTest::qWaitFor([&] { return done && reader()->isIdle(); }, Patience);
    }

    std::unique_ptr<NxEngineProject> project;
    NxEngineCategory *category = nullptr;
};

struct Footage : ScriptedFootage
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("p.brevano"));
};

} // namespace

/// Reading as a whole project does it: with a store, and with what watches the files.
class tst_FootageOfProjects : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatWasReadIsKnownWhenTheProjectIsOpenedAgain();
    void aFileThatKilledIsNotTriedWhenTheProjectIsOpenedAgain();
    void aFileThatChangedWhileClosedIsReadAgain();
    void aFileThatIsWrittenIsReadAgain();
    void importsReportWhatIsRead();
    void aProjectMayCloseWhileItIsRead();
    void projectsInMemoryAreReadToo();
};

void tst_FootageOfProjects::whatWasReadIsKnownWhenTheProjectIsOpenedAgain()
{
    const Footage footage;
    NxFootageRecord before;
    {
        StoredProject f(footage, footage.path);
        f.add(footage.file(QStringLiteral("a.mp4")));
        QVERIFY(f.startAndFinish());
        QVERIFY(f.refresh());
        before = f.only()->footage();
        QCOMPARE(before.cover, NxPictureState::Made);
    }
    const int asked = footage.requests().size();
    QCOMPARE(asked, 2);
    StoredProject f(footage, footage.path);
    QCOMPARE(f.only()->footage().facts.reel, QStringLiteral("a.mp4"));
    QCOMPARE(f.only()->footage().fingerprint, before.fingerprint);
    QVERIFY(f.startAndFinish());
    QVERIFY(f.refresh());
    QCOMPARE(footage.requests().size(), asked);
}

void tst_FootageOfProjects::aFileThatKilledIsNotTriedWhenTheProjectIsOpenedAgain()
{
    const Footage footage;
    {
        StoredProject f(footage, footage.path);
        f.add(footage.file(QStringLiteral("crash.mp4")));
        QVERIFY(f.startAndFinish());
        QVERIFY(f.refresh());
        QCOMPARE(f.only()->readState(), NxReadState::Failed);
        QCOMPARE(footage.requests().size(), 2);
    }
    StoredProject f(footage, footage.path);
    QCOMPARE(f.reader()->state(f.only()).reason,
             QStringLiteral("Reading the file crashed its reader."));
    QVERIFY(f.startAndFinish());
    QVERIFY(f.refresh());
    QVERIFY(f.refresh());
    QCOMPARE(f.only()->readState(), NxReadState::Failed);
    QCOMPARE(footage.requests().size(), 2);
    f.reader()->read({f.only()}, NxFootageReader::wFacts);
    QTRY_COMPARE(footage.requests().size(), 4);
}

void tst_FootageOfProjects::aFileThatChangedWhileClosedIsReadAgain()
{
    const Footage footage;
    const QString path = footage.file(QStringLiteral("a.mp4"));
    {
        StoredProject f(footage, footage.path);
        f.add(path);
        QVERIFY(f.startAndFinish());
    }
    QCOMPARE(footage.file(QStringLiteral("a.mp4"), "longer than before"), path);
    StoredProject f(footage, footage.path);
    QVERIFY(f.startAndFinish());
    QTRY_COMPARE_WITH_TIMEOUT(f.only()->stamp(), ScriptedFootage::stampOf(path), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(f.only()->coverState(), NxPictureState::Made, Patience);
    QCOMPARE(footage.requests().size(), 4);
}

void tst_FootageOfProjects::aFileThatIsWrittenIsReadAgain()
{
    const Footage footage;
    const QString path = footage.file(QStringLiteral("a.mp4"));
    StoredProject f(footage, footage.path);
    f.add(path);
    QVERIFY(f.startAndFinish());
    QVERIFY(f.refresh());
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append)); // Its folder does not change with it.
    QCOMPARE(file.write("more"), 4);
    file.close();
    QTRY_COMPARE_WITH_TIMEOUT(f.only()->stamp(), ScriptedFootage::stampOf(path), Patience);
    QTRY_COMPARE_WITH_TIMEOUT(f.only()->coverState(), NxPictureState::Made, Patience);
    QCOMPARE(footage.requests().size(), 4);
}

void tst_FootageOfProjects::importsReportWhatIsRead()
{
    const Footage footage;
    StoredProject f(footage, footage.path);
    QStringList paths;
    for (int i = 0; i < 30; ++i)
        paths.append(footage.file(QStringLiteral("%1.mp4").arg(i)));
    f.reader()->start();
    INxMediaImporter *importer = f.category->importer();
    qint64 lastRead = 0;
    bool finished = false;
    connect(importer, &INxMediaImporter::progress, this,
            [&](quint64, qint64 found, qint64 added, qint64 read) {
                QVERIFY(read >= lastRead);
                QVERIFY(read <= found && added <= found);
                lastRead = read;
            });
    connect(importer, &INxMediaImporter::finished, this, [&finished] { finished = true; });
    QVERIFY(importer->start(f.category->folder(NXVBLMODEL::fidRoot), paths, 0) != 0);
    QTRY_VERIFY_WITH_TIMEOUT(finished, Patience);
    const auto isRead = [](const NxEngineMedia *media) {
        return media->readState() == NxReadState::Read;
    };
    const auto allAre = [&] {
        const std::vector<NxEngineMedia *> media = f.project->memory()->livingMedia();
        return media.size() == 30 && std::all_of(media.begin(), media.end(), isRead);
    };
    QTRY_VERIFY_WITH_TIMEOUT(allAre(), Patience);
    QCOMPARE(footage.names(rwFacts).size(), 30); // Each once, though it was seen meanwhile.
}

void tst_FootageOfProjects::aProjectMayCloseWhileItIsRead()
{
    const Footage footage;
    {
        StoredProject f(footage, footage.path);
        f.add(footage.file(QStringLiteral("hang-opened.mp4")));
        f.reader()->start();
        QTRY_COMPARE(footage.requests().size(), 1);
        QVERIFY(f.project->close());
    }
    for (const QString &id : footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
    StoredProject f(footage, footage.path);
    QCOMPARE(f.only()->readState(), NxReadState::Unread);
}

void tst_FootageOfProjects::projectsInMemoryAreReadToo()
{
    const Footage footage;
    NxEngineProject project(footage.settings());
    NxProjectMemory *memory = project.memory();
    NxMediaSeed seed;
    seed.path = footage.file(QStringLiteral("a.mp4"));
    NxEngineMedia *media =
        memory
            ->addNewMedia(memory->category(NXVBLMODEL::mctMedia)->folder(NXVBLMODEL::fidRoot),
                          {seed})
            .first();
    QCOMPARE(project.footageService(), project.footageReader());
    project.footageService()->start();
    QTRY_COMPARE(media->coverState(), NxPictureState::Made);
    QVERIFY(media->thumbnailStripPath().startsWith(footage.cacheFolder()));
}

NX_TEST_MAIN(tst_FootageOfProjects)
#include "tst_FootageOfProjects.moc"
