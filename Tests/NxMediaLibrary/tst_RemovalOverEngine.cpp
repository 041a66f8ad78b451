// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxVBLModel/INxTimelineEditor.h>
#include <NxVBLModel/NxTimelineUse.h>

#include <NxWidgets/ScriptedUser.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QTest>

#include "ProjectDesk.h"

namespace {

/// A day's footage on a film with split screens and timelines inside one another. Of "Day 1",
/// "film" and "sound" are used in many places, "picture" nowhere; "still" stands beside it.
struct ShotProject : ProjectDesk
{
    explicit ShotProject(const QString &path) : ProjectDesk(path)
    {
        INxTimelineEditor *editor = project->timelineEditor();
        day = folders->addFolder(section(), QStringLiteral("Day 1"));
        for (const char *name : {"film.mov", "sound.wav", "picture.jpg"})
            add(day, name);
        add(section(), "still.png");
        items->renameMediaItem(find("film.mov"), QStringLiteral("film"));
        media()->itemManager()->setFavourite(find("film"), true);
        media()->itemManager()->setFavourite(find("picture.jpg"), true);

        INxTimeline *main = editor->addTimeline(QStringLiteral("Main"));
        put(main, "film", 0, 0);
        put(main, "film", 0, 100);
        put(main, "sound.wav", 1, 0);
        put(main, "still.png", 1, 100);
        split(main, 2, {"film", "sound.wav", "film"});
        INxTimeline *inside = editor->addComposite(main, QStringLiteral("Inside"), {3, 0, 50, 0});
        put(inside, "film", 0, 10);
        put(inside, "still.png", 1, 10);
        INxTimeline *deep = editor->addComposite(inside, QStringLiteral("Deep"), {2, 0, 20, 0});
        put(deep, "sound.wav", 0, 0);
        split(deep, 1, {"still.png", "film"});
        put(editor->addTimeline(QStringLiteral("Second")), "film", 0, 0);
    }

    INxAbstractMedia *find(const char *name) const
    {
        const QList<INxAbstractMedia *> all = section()->items(true, true);
        for (INxAbstractMedia *media : all) {
            if (media->name() == QLatin1String(name))
                return media;
        }
        return nullptr;
    }
    QList<INxAbstractMedia *> list(const QString &names) const
    {
        QList<INxAbstractMedia *> found;
        const QStringList words = names.split(QLatin1Char(' '));
        for (const QString &word : words)
            found.append(find(word.toLatin1().constData()));
        return found;
    }
    int uses(const INxAbstractMedia *media) const
    {
        return project->timelineUses(media->mediaId()).size();
    }

    INxFolderMedia *day = nullptr; // Not owned.

private:
    void add(INxFolderMedia *into, const char *name)
    {
        NxMediaSeed seed;
        seed.path = QStringLiteral("/footage/") + QString::fromLatin1(name);
        memory()->addNewMedia(static_cast<NxEngineFolder *>(into), {seed});
    }
    void put(INxTimeline *timeline, const char *name, int track, qint64 position)
    {
        QVERIFY(project->timelineEditor()->addClip(timeline, find(name),
                                                   {track, position, 10, position}));
    }
    void split(INxTimeline *timeline, int track, std::initializer_list<const char *> names)
    {
        INxSplitScreenClip *made =
            project->timelineEditor()->addSplitScreen(timeline, {track, 0, 10, 0});
        for (const char *name : names)
            QVERIFY(project->timelineEditor()->addInnerClip(made, find(name), 5));
    }
};

void addDesks()
{
    QTest::addColumn<bool>("isFile");

    QTest::newRow("in memory") << false;
    QTest::newRow("in a file") << true;
}

} // namespace

/// Removing media of a real project, and what an undo brings back.
class tst_RemovalOverEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isOneStepThatComesBackExactly_data();
    void isOneStepThatComesBackExactly();
    void leavesNoStepWhenDeclined_data() { addDesks(); }
    void leavesNoStepWhenDeclined();
    void bringsBackTheVeryObjects_data() { addDesks(); }
    void bringsBackTheVeryObjects();
    void selectsWhatAnUndoBroughtBack();
    void removesWhatIsUnusedInOneStep_data() { addDesks(); }
    void removesWhatIsUnusedInOneStep();
    void deletesMissingMediaAndKeepsTheirClips_data() { addDesks(); }
    void deletesMissingMediaAndKeepsTheirClips();
    void relinksInStepsThatComeBackExactly_data() { addDesks(); }
    void relinksInStepsThatComeBackExactly();
    void removesMediaThatAnotherRemovedMeanwhile();
    void changesNothingInAProjectThatCannotBeChanged();
    void tellsThatAFileCannotBeReplaced();
    void tellsThatAFolderCannotBeRemoved();
    void survivesTheEndOfTheProject();

private:
    /// Of a project file that is not there yet; empty for a project in memory.
    QString pathFor(bool isFile)
    {
        const QString name = QStringLiteral("film%1.brevano").arg(++m_files);
        return isFile ? m_folder.filePath(name) : QString();
    }

    NxTempDir m_folder;
    int m_files = 0;
};

void tst_RemovalOverEngine::isOneStepThatComesBackExactly_data()
{
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<QString>("names");

    for (const bool isFile : {false, true}) {
        const char *where = isFile ? "in a file" : "in memory";
        for (const char *names : {"film", "sound.wav", "film sound.wav", "picture.jpg sound.wav",
                                  "picture.jpg film", "film sound.wav picture.jpg"})
            QTest::addRow("%s: %s", where, names) << isFile << QString::fromLatin1(names);
    }
}

void tst_RemovalOverEngine::isOneStepThatComesBackExactly()
{
    QFETCH(bool, isFile);
    QFETCH(QString, names);
    ShotProject desk(pathFor(isFile));
    const QList<INxAbstractMedia *> medias = desk.list(names);
    const QByteArray before = desk.dump();
    const int steps = desk.undo()->count();
    const int stillUses = desk.uses(desk.find("still.png"));
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(desk.items->removeMediaItems(desk.day, medias));
    QVERIFY(user.messages().first().text.startsWith(QLatin1String("One or more")));

    QCOMPARE(desk.undo()->count(), steps + 1);
    QCOMPARE(desk.undo()->undoText(), QStringLiteral("deleteMediaItems"));
    for (const INxAbstractMedia *media : medias) {
        QCOMPARE(desk.uses(media), 0);
        QVERIFY(!desk.day->containsMedia(media, true));
    }
    QCOMPARE(desk.day->items(true, true).size(), 3 - medias.size());
    QCOMPARE(desk.uses(desk.find("still.png")), stillUses);
    QCOMPARE(desk.memory()->brokenInvariant(), QString());
    const QByteArray after = desk.dump();

    for (int round = 0; round < 2; ++round) {
        QVERIFY(desk.undo()->undo());
        QCOMPARE(desk.dump(), before);
        QCOMPARE(desk.undo()->redoText(), QStringLiteral("deleteMediaItems"));
        QVERIFY(desk.undo()->redo());
        QCOMPARE(desk.dump(), after);
        QCOMPARE(desk.memory()->brokenInvariant(), QString());
    }
    if (!isFile)
        return;
    desk.reopen();
    QCOMPARE(desk.dump(), after);
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.dump(), before);
    desk.reopen();
    QCOMPARE(desk.dump(), before);
    QVERIFY(desk.undo()->redo());
    QCOMPARE(desk.dump(), after);
}

void tst_RemovalOverEngine::leavesNoStepWhenDeclined()
{
    QFETCH(bool, isFile);
    ShotProject desk(pathFor(isFile));
    const QByteArray before = desk.dump();
    const int steps = desk.undo()->count();
    ScriptedUser user;
    user.press(mdbNegative).press(mdbNegative);
    QVERIFY(desk.items->removeMediaItems(desk.day, desk.list(QStringLiteral("film"))));
    QVERIFY(desk.items->removeMediaItems(desk.day, desk.list(QStringLiteral("picture.jpg"))));
    QCOMPARE(desk.dump(), before);
    QCOMPARE(desk.undo()->count(), steps);
}

void tst_RemovalOverEngine::bringsBackTheVeryObjects()
{
    QFETCH(bool, isFile);
    ShotProject desk(pathFor(isFile));
    INxAbstractMedia *film = desk.find("film");
    const QList<NxTimelineUse> uses = desk.project->timelineUses(film->mediaId());
    QVERIFY(uses.size() >= 5);
    ScriptedUser user;
    user.press(mdbAffirmative);
    desk.items->removeMediaItems(desk.day, {film});
    QCoreApplication::processEvents(); // What is forgotten for good would die now.
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.find("film"), film);
    const QList<NxTimelineUse> back = desk.project->timelineUses(film->mediaId());
    QCOMPARE(back.size(), uses.size());
    for (int i = 0; i < uses.size(); ++i) {
        QCOMPARE(back.at(i).timeline, uses.at(i).timeline);
        QCOMPARE(back.at(i).clip, uses.at(i).clip);
    }
}

void tst_RemovalOverEngine::selectsWhatAnUndoBroughtBack()
{
    ShotProject desk{QString()};
    const QList<INxAbstractMedia *> medias = desk.list(QStringLiteral("sound.wav film"));
    desk.items->setSelectedItems(medias + desk.list(QStringLiteral("still.png")));
    ScriptedUser user;
    user.press(mdbAffirmative);
    desk.items->removeMediaItems(desk.day, medias);
    QCOMPARE(desk.items->selectedItems(), desk.list(QStringLiteral("still.png")));
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.items->selectedItems().size(), 2);
    for (INxAbstractMedia *media : medias)
        QVERIFY(desk.items->selectedItems().contains(media));
    QVERIFY(desk.undo()->redo());
    QVERIFY(desk.items->selectedItems().isEmpty());
}

void tst_RemovalOverEngine::removesWhatIsUnusedInOneStep()
{
    QFETCH(bool, isFile);
    ShotProject desk(pathFor(isFile));
    const QByteArray before = desk.dump();
    const int steps = desk.undo()->count();
    ScriptedUser user;
    user.press(mdbAffirmative);
    QVERIFY(desk.items->removeUnusedMedia(desk.section()));
    QVERIFY(!desk.find("picture.jpg"));
    QCOMPARE(desk.section()->items(true, true).size(), 3);
    QCOMPARE(desk.undo()->count(), steps + 1);
    QVERIFY(!desk.items->removeUnusedMedia(desk.section()));
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.dump(), before);
}

void tst_RemovalOverEngine::deletesMissingMediaAndKeepsTheirClips()
{
    QFETCH(bool, isFile);
    ShotProject desk(pathFor(isFile));
    const QByteArray before = desk.dump();
    const int steps = desk.undo()->count();
    const QList<INxAbstractMedia *> medias = desk.list(QStringLiteral("film still.png"));
    const int uses = desk.uses(medias.first());
    ScriptedUser user;
    user.press(mdbNegative);
    QVERIFY(desk.items->dealWithMissingFiles(medias));
    QCOMPARE(desk.section()->items(true, true).size(), 2);
    QCOMPARE(desk.uses(medias.first()), uses);
    QCOMPARE(desk.undo()->count(), steps + 1);
    QCOMPARE(desk.undo()->undoText(), QStringLiteral("deleteMediaItems"));
    QCOMPARE(desk.memory()->brokenInvariant(), QString());
    const QByteArray after = desk.dump();
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.dump(), before);
    QVERIFY(desk.undo()->redo());
    QCOMPARE(desk.dump(), after);
    if (!isFile)
        return;
    desk.reopen();
    QCOMPARE(desk.dump(), after);
}

void tst_RemovalOverEngine::relinksInStepsThatComeBackExactly()
{
    QFETCH(bool, isFile);
    ShotProject desk(pathFor(isFile));
    const int steps = desk.undo()->count();
    const QByteArray before = desk.dump();
    ScriptedUser user;
    user.choose(QStringLiteral("/found/film.mov")).choose(QStringLiteral("/found/sound.wav"));
    QCOMPARE(desk.items->relinkMedia(desk.list(QStringLiteral("film sound.wav"))), 2);
    QCOMPARE(desk.undo()->count(), steps + 2);
    QCOMPARE(desk.undo()->undoText(), QStringLiteral("relinkMedia"));
    QCOMPARE(desk.find("film")->sourcePath(), QStringLiteral("/found/film.mov"));
    const QByteArray after = desk.dump();
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.find("sound.wav")->sourcePath(), QStringLiteral("/footage/sound.wav"));
    QCOMPARE(desk.find("film")->sourcePath(), QStringLiteral("/found/film.mov"));
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.dump(), before);
    QVERIFY(desk.undo()->redo());
    QVERIFY(desk.undo()->redo());
    QCOMPARE(desk.dump(), after);
}

void tst_RemovalOverEngine::removesMediaThatAnotherRemovedMeanwhile()
{
    ShotProject desk{QString()};
    const QByteArray before = desk.dump();
    const QList<INxAbstractMedia *> medias = desk.list(QStringLiteral("film sound.wav"));
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&desk, &medias] {
        desk.media()->itemManager()->removeMediaItems(desk.day, {medias.first()});
    });
    QVERIFY(desk.items->removeMediaItems(desk.day, medias));
    // The user wanted both gone, from the timelines as well.
    for (const INxAbstractMedia *media : medias)
        QCOMPARE(desk.uses(media), 0);
    QCOMPARE(desk.memory()->brokenInvariant(), QString());
    QVERIFY(desk.undo()->undo());
    QVERIFY(desk.undo()->undo());
    QCOMPARE(desk.dump(), before);
}

void tst_RemovalOverEngine::changesNothingInAProjectThatCannotBeChanged()
{
    ShotProject desk(pathFor(true));
    desk.reopen(NxProjectOpenMode::ReadOnly);
    const QByteArray before = desk.dump();
    INxFolderMedia *day = desk.section()->childFolder(0);
    ScriptedUser user;
    user.press(mdbAffirmative);
    const QList<INxAbstractMedia *> medias = desk.list(QStringLiteral("film sound.wav"));
    desk.items->setSelectedItems(medias);
    QVERIFY(desk.items->removeMediaItems(day, medias));
    QVERIFY(!desk.project->readOnlyReason().isEmpty());
    QCOMPARE(user.messages().size(), 1); // It tells why, and asks nothing.
    QCOMPARE(user.messages().first().text, desk.project->readOnlyReason());
    QCOMPARE(desk.items->selectedItems(), medias);
    QCOMPARE(desk.dump(), before);
    QCOMPARE(desk.memory()->brokenInvariant(), QString());
}

void tst_RemovalOverEngine::tellsThatAFileCannotBeReplaced()
{
    ShotProject desk(pathFor(true));
    desk.reopen(NxProjectOpenMode::ReadOnly);
    const QByteArray before = desk.dump();
    ScriptedUser user;
    user.press(mdbAffirmative);
    QCOMPARE(desk.items->relinkMedia(desk.list(QStringLiteral("film"))), 0);
    QCOMPARE(user.messages().first().text,
             desk.project->readOnlyReason());
    QCOMPARE(desk.dump(), before);
}

void tst_RemovalOverEngine::tellsThatAFolderCannotBeRemoved()
{
    ShotProject desk(pathFor(true));
    desk.reopen(NxProjectOpenMode::ReadOnly);
    const QByteArray before = desk.dump();
    ScriptedUser user;
    user.press(mdbAffirmative);
    desk.folders->removeFolder(desk.section()->childFolder(0));
    QCOMPARE(user.messages().size(), 1);
    QCOMPARE(user.messages().first().text, desk.project->readOnlyReason());
    QCOMPARE(desk.dump(), before);
}

void tst_RemovalOverEngine::survivesTheEndOfTheProject()
{
    ShotProject desk(pathFor(true));
    ScriptedUser user;
    user.press(mdbAffirmative).whileOpen([&desk] { desk.close(); });
    QVERIFY(desk.items->removeMediaItems(desk.day, desk.list(QStringLiteral("film"))));
    QVERIFY(!desk.project);
}

NX_TEST_MAIN(tst_RemovalOverEngine)
#include "tst_RemovalOverEngine.moc"
