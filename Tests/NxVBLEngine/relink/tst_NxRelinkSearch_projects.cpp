// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include "MovedProject.h"

#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int Patience = 60'000; // ms

/// A project as the host opens it, one media of which is missing.
struct OpenProject
{
    explicit OpenProject(const MovedProject &files)
    {
        const QString path = files.path(QStringLiteral("p%1.brevano").arg(++s_projects));
        auto store = NxProjectStore::create(path, {});
        if (!store)
            qFatal("%s", qUtf8Printable(store.errorText()));
        auto opened = NxEngineProject::open(store.take(), files.settings);
        if (!opened)
            qFatal("%s", qUtf8Printable(opened.errorText()));
        project = opened.take();
        NxProjectMemory *memory = project->memory();
        NxMediaSeed seed;
        seed.path = files.path(QStringLiteral("old/a.mp4"));
        seed.size = 1;
        NxEngineCategory *category = memory->category(NXVBLMODEL::mctMedia);
        media = memory->addNewMedia(category->folder(NXVBLMODEL::fidRoot), {seed}).first();
        NxFootageRecord record;
        record.fingerprint = {1, 2, 3};
        memory->setFootage(media, record);
    }
    quint64 start(const MovedProject &files) const
    {
        return project->relinkSearch()->start({media}, files.path(QStringLiteral("new")));
    }

    static inline int s_projects = 0;
    std::unique_ptr<NxEngineProject> project;
    NxEngineMedia *media = nullptr;
};

} // namespace

/// The search of a whole project, and what becomes of it when the project closes.
class tst_NxRelinkSearch_projects : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void projectsWithWorkersFindMovedFiles();
    void projectsWithoutWorkersHaveNoSearch();
    void theReaderNeedNotRun();
    void closingTellsWhatWasFound();
    void theProjectMayCloseInTheMiddle();
    void theProjectMayCloseInItsSignals_data();
    void theProjectMayCloseInItsSignals();
};

void tst_NxRelinkSearch_projects::projectsWithWorkersFindMovedFiles()
{
    MovedProject files(MovedProject::Worker::Scripted);
    files.write(QStringLiteral("new/a.mp4"), "x");
    OpenProject f(files);
    f.project->memory()->setFootage(f.media, NxFootageRecord());
    QSignalSpy finished(f.project->relinkSearch(), &INxRelinkSearch::finished);
    const quint64 number = f.start(files);
    QVERIFY(finished.wait(Patience));
    QCOMPARE(finished.first().first().toULongLong(), number);
    QCOMPARE(files.lines(finished.first().at(1).value<NxRelinkReport>()),
             QStringList(QStringLiteral("a.mp4: name new/a.mp4")));
}

void tst_NxRelinkSearch_projects::projectsWithoutWorkersHaveNoSearch()
{
    NxEngineProject project;
    QVERIFY(!project.relinkSearch());
}

void tst_NxRelinkSearch_projects::theReaderNeedNotRun()
{
    MovedProject files(MovedProject::Worker::Scripted);
    files.write(QStringLiteral("new/b.mp4"), "x");
    OpenProject f(files);
    f.project->footageService()->start();
    f.project->footageService()->stop();
    QSignalSpy finished(f.project->relinkSearch(), &INxRelinkSearch::finished);
    (void)f.start(files);
    QVERIFY(finished.wait(Patience));
    QVERIFY(files.footage.names(rwFingerprint).contains(QStringLiteral("b.mp4")));
}

void tst_NxRelinkSearch_projects::closingTellsWhatWasFound()
{
    MovedProject files(MovedProject::Worker::Scripted);
    files.write(QStringLiteral("new/gated.mp4"), "x");
    OpenProject f(files);
    QSignalSpy finished(f.project->relinkSearch(), &INxRelinkSearch::finished);
    (void)f.start(files);
    (void)f.start(files);
    QTRY_VERIFY(!files.footage.names().isEmpty());
    QVERIFY(f.project->close());
    QCOMPARE(finished.size(), 2);
    QVERIFY(finished.first().at(1).value<NxRelinkReport>().cancelled);
    QVERIFY(!f.project->relinkSearch());
    for (const QString &id : files.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxRelinkSearch_projects::theProjectMayCloseInTheMiddle()
{
    MovedProject files(MovedProject::Worker::Scripted);
    constexpr int count = 200;
    for (int i = 0; i < count; ++i)
        files.write(QStringLiteral("new/%1/%2.mp4").arg(i % 20).arg(i), "x");
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        OpenProject f(files);
        f.project->footageService()->start();
        const int before = files.footage.names().size();
        for (int i = 0; i < 3; ++i)
            (void)f.start(files);
        // Before anything happened, with the walk, and with the workers.
        if (round % 3 == 1)
            QCoreApplication::processEvents();
        if (round % 3 == 2)
            QTRY_VERIFY(files.footage.names().size() > before + round);
        f.project.reset();
    }
    for (const QString &id : files.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxRelinkSearch_projects::theProjectMayCloseInItsSignals_data()
{
    QTest::addColumn<bool>("inProgress");
    QTest::newRow("progress") << true;
    QTest::newRow("finished") << false;
}

void tst_NxRelinkSearch_projects::theProjectMayCloseInItsSignals()
{
    QFETCH(bool, inProgress);
    MovedProject files(MovedProject::Worker::Scripted);
    files.write(QStringLiteral("new/1.mp4"), "x");
    if (inProgress)
        files.write(QStringLiteral("new/gated.mp4"), "x");
    OpenProject f(files);
    int told = 0;
    connect(f.project->relinkSearch(), &INxRelinkSearch::progress, this, [&] {
        if (inProgress)
            f.project.reset();
    });
    connect(f.project->relinkSearch(), &INxRelinkSearch::finished, this, [&] {
        ++told;
        f.project.reset();
    });
    constexpr int searches = 3;
    for (int i = 0; i < searches; ++i)
        (void)f.start(files);
    QTRY_VERIFY_WITH_TIMEOUT(!f.project, Patience);
    QVERIFY(told >= 1);
    QVERIFY(told <= searches);
}

NX_TEST_MAIN(tst_NxRelinkSearch_projects)
#include "tst_NxRelinkSearch_projects.moc"
