// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>
#include <NxVBLEngine/relink/NxRelinkSearch.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <MovedProject.h>
#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTest>

#include "ScriptedEngine.h"
#include "TextLines.h"

namespace {

constexpr int Patience = 60'000; // ms

/// A project whose footage was moved from "old" to places below "new", as the panel knows it.
struct MovedDesk final : INxProject
{
    MovedDesk()
    {
        engine.project = this;
        for (const char *name : {"old/a.mp4", "old/b.mp4", "old/c.mp4"})
            files.add(QLatin1String(name), name);
        files.move(QStringLiteral("old/a.mp4"), QStringLiteral("new/deep/a.mp4"));
        files.move(QStringLiteral("old/b.mp4"), QStringLiteral("new/b.mp4"));
        files.lose(files.named(QStringLiteral("c.mp4")));
        steps = files.undo->count();
    }

    INxMediaLibrary *mediaLibrary() override { return nullptr; }
    INxUndoStack *undoStack() override { return files.undo; }
    INxRelinkSearch *relinkSearch() override { return &files.search(); }

    /// Where the media of the project are, without the folder of all of them.
    QStringList paths() const
    {
        QStringList list;
        for (const NxEngineMedia *media : files.memory.livingMedia())
            list.append(media->sourcePath().mid(files.root().size() + 1));
        return list;
    }

    MovedProject files{MovedProject::Worker::Scripted};
    ScriptedEngine engine;
    const NxMediaEngineDoor door{&engine};
    NxMediaItemManagerPresenter presenter{files.items, nullptr};
    NxMissingMediaRelinker relinker{&presenter};
    int steps = 0;
};

} // namespace

/// Missing media of a real project that are found on the disk again.
class tst_RelinkOverEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void putsBackInOneStepWhatItFinds();
    void leavesAloneWhatChangedMeanwhile();
};

void tst_RelinkOverEngine::putsBackInOneStepWhatItFinds()
{
    MovedDesk desk;
    const QStringList before = desk.paths();
    const QList<INxAbstractMediaItem *> missing =
        NxMissingMediaRelinker::missingMedia(desk.files.section);
    QCOMPARE(missing.size(), 3);
    QSignalSpy finished(&desk.relinker, &NxMissingMediaRelinker::finished);
    QVERIFY(desk.relinker.start(missing, desk.files.path(QStringLiteral("new"))));
    QVERIFY(finished.wait(Patience));
    QCOMPARE(finished.first().at(1).toInt(), 2);
    const QStringList after = lines({"new/deep/a.mp4", "new/b.mp4", "old/c.mp4"});
    QCOMPARE(desk.paths(), after);
    QCOMPARE(desk.files.undo->count(), desk.steps + 1);
    QCOMPARE(desk.files.undo->undoText(), QStringLiteral("relinkMedia"));
    QVERIFY(desk.files.undo->undo());
    QCOMPARE(desk.paths(), before);
    QVERIFY(desk.files.undo->redo());
    QCOMPARE(desk.paths(), after);
    QCOMPARE(desk.files.memory.brokenInvariant(), QString());
}

void tst_RelinkOverEngine::leavesAloneWhatChangedMeanwhile()
{
    MovedDesk desk;
    QSignalSpy finished(&desk.relinker, &NxMissingMediaRelinker::finished);
    QVERIFY(desk.relinker.start(NxMissingMediaRelinker::missingMedia(desk.files.section),
                                desk.files.path(QStringLiteral("new"))));
    NxEngineMedia *removed = desk.files.named(QStringLiteral("a.mp4"));
    NxEngineMedia *changed = desk.files.named(QStringLiteral("b.mp4"));
    QVERIFY(desk.files.items->removeMediaItems(desk.files.section, {removed}));
    QVERIFY(desk.files.items->relinkMedia(changed, desk.files.path(QStringLiteral("by/hand.mp4"))));
    const int steps = desk.files.undo->count();
    QVERIFY(finished.wait(Patience));
    QCOMPARE(finished.first().at(1).toInt(), 0);
    QCOMPARE(desk.paths(), lines({"by/hand.mp4", "old/c.mp4"}));
    QCOMPARE(desk.files.undo->count(), steps);
}

NX_TEST_MAIN(tst_RelinkOverEngine)
#include "tst_RelinkOverEngine.moc"
