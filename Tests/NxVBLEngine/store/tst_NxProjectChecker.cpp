// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectChecker.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

using namespace StoreSamples;

class tst_NxProjectChecker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void aSoundProjectHasNoProblems();
    void findsWhatDoesNotFit_data();
    void findsWhatDoesNotFit();
    void whatMayBeIsNoFault_data();
    void whatMayBeIsNoFault();
    void findsTheSameNumberTwice();
    void findsAPageThatIsBroken();
    void checksAProjectThatIsBeingWritten();

private:
    QStringList problems() const
    {
        NxProjectStoreOptions options;
        options.readOnly = true;
        auto store = NxProjectStore::open(m_path, options);
        return store ? (*store)->integrityProblems() : QStringList{store.errorText()};
    }

    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectChecker::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("Media.brevano"));
    NxStoreEntry::Counters counters;
    counters.nextMediaId = 1000;
    counters.nextPlace = 10000;
    counters.nextFolderId = 1010;
    counters.nextStepSerial = 9;
    counters.nextTimelineId = 4;
    counters.nextClipId = 8;
    NxClipRecord composite = clip(2);
    composite.kind = NXVBLMODEL::ckComposite;
    NxClipRecord split = clip(3);
    split.kind = NXVBLMODEL::ckSplitScreen;
    makeProject(m_path,
                {addMedia(1, 20),
                 {NxStoreEntry::NewFolder{folder(1001)}, NxStoreEntry::NewFolder{folder(1002)},
                  NxStoreEntry::NewFolder{folder(1003, 1002)}},
                 {NxStoreEntry::NewTimeline{timeline(1)}, NxStoreEntry::NewTimeline{timeline(2, 2)},
                  NxStoreEntry::NewTimeline{timeline(3)},
                  NxStoreEntry::NewClips{{clip(1), composite, split, innerClip(4, split),
                                          clip(5, 2), clip(6, 3), clip(7, 3)}}},
                 {NxStoreEntry::StepBegin{8, {}, {}},
                  NxStoreEntry::StepChange{8, change(NxChangeKind::ClipRemove, {6})},
                  NxStoreEntry::StepChange{8, change(NxChangeKind::TimelineRename, {3})},
                  NxStoreEntry::Apply{change(NxChangeKind::ClipRemove, {6})},
                  NxStoreEntry::StepChange{8, change(NxChangeKind::MediaRemove, {4, 5})},
                  NxStoreEntry::StepChange{8, change(NxChangeKind::FolderRemove, {1001})},
                  NxStoreEntry::Apply{change(NxChangeKind::MediaRemove, {4, 5})}},
                 {counters}});
}

void tst_NxProjectChecker::aSoundProjectHasNoProblems()
{
    QCOMPARE(problems(), QStringList());
}

void tst_NxProjectChecker::findsWhatDoesNotFit_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QString>("problem");
    QTest::newRow("media in no folder")
        << QByteArray("UPDATE media SET folder = 1099 WHERE id = 7")
        << QStringLiteral("media 7 lies in a folder that is not there");
    QTest::newRow("media in a folder of another category")
        << QByteArray("UPDATE media SET folder = 1001, category = 3 WHERE id = 7")
        << QStringLiteral("media 7 lies in a folder that is not there");
    QTest::newRow("folder in no folder")
        << QByteArray("UPDATE folder SET parent = 1099 WHERE id = 1001")
        << QStringLiteral("folder 1001 lies in a folder that is not there");
    QTest::newRow("folder within itself")
        << QByteArray("UPDATE folder SET parent = 1003 WHERE id = 1002")
        << QStringLiteral("folder 1002 lies within itself");
    QTest::newRow("siblings of one name")
        << QByteArray("UPDATE folder SET name = 'same', parent = 1")
        << QStringLiteral("folders 1001 and 1002 lie in one folder and have one name");
    QTest::newRow("media number too high")
        << QByteArray("UPDATE meta SET value = 20 WHERE key = 'next_media_id'")
        << QStringLiteral("the number of media 20 would be given out again");
    QTest::newRow("place too high")
        << QByteArray("UPDATE meta SET value = 200 WHERE key = 'next_place'")
        << QStringLiteral("the place of media 20 would be given out again");
    QTest::newRow("folder number too high")
        << QByteArray("UPDATE meta SET value = 1003 WHERE key = 'next_folder_id'")
        << QStringLiteral("the number of folder 1003 would be given out again");
    QTest::newRow("step number too high")
        << QByteArray("UPDATE meta SET value = 8 WHERE key = 'next_step_serial'")
        << QStringLiteral("the number of undo step 8 would be given out again");
    QTest::newRow("undo of a media that is gone")
        << QByteArray("DELETE FROM media WHERE id = 5")
        << QStringLiteral("undo step 8 names what is not there");
    QTest::newRow("undo of a folder that is gone")
        << QByteArray("DELETE FROM folder WHERE id = 1001")
        << QStringLiteral("undo step 8 names what is not there");
    QTest::newRow("clip on no timeline")
        << QByteArray("UPDATE clip SET timeline = 99 WHERE id = 1")
        << QStringLiteral("clip 1 stands on a timeline that is not there");
    QTest::newRow("clip on a removed timeline")
        << QByteArray("UPDATE timeline SET alive = 0 WHERE id = 3")
        << QStringLiteral("clip 7 stands on a timeline that is not there");
    QTest::newRow("inside a clip that is gone")
        << QByteArray("DELETE FROM clip WHERE id = 3")
        << QStringLiteral("clip 4 stands inside what is no split screen");
    QTest::newRow("inside a clip of another kind")
        << QByteArray("UPDATE clip SET kind = 1 WHERE id = 3")
        << QStringLiteral("clip 4 stands inside what is no split screen");
    QTest::newRow("inside a removed split screen")
        << QByteArray("UPDATE clip SET alive = 0 WHERE id = 3")
        << QStringLiteral("clip 4 stands inside what is no split screen");
    QTest::newRow("inside a split screen of another timeline")
        << QByteArray("UPDATE clip SET timeline = 3 WHERE id = 4")
        << QStringLiteral("clip 4 stands inside what is no split screen");
    QTest::newRow("timeline whose clip is gone")
        << QByteArray("DELETE FROM clip WHERE id = 2")
        << QStringLiteral("timeline 2 stands for a clip that is not there");
    QTest::newRow("timeline whose clip is removed")
        << QByteArray("UPDATE clip SET alive = 0 WHERE id = 2")
        << QStringLiteral("timeline 2 stands for a clip that is not there");
    QTest::newRow("timeline whose clip is of another kind")
        << QByteArray("UPDATE timeline SET outer_clip = 1 WHERE id = 2")
        << QStringLiteral("timeline 2 stands for a clip that is not there");
    QTest::newRow("timeline on itself") << QByteArray("UPDATE clip SET timeline = 2 WHERE id = 2")
                                        << QStringLiteral("timeline 2 stands on itself");
    QTest::newRow("clip whose timeline is gone")
        << QByteArray("DELETE FROM timeline WHERE id = 2")
        << QStringLiteral("clip 2 stands for a timeline that is not there");
    QTest::newRow("clips that cover each other")
        << QByteArray("UPDATE clip SET position = 149 WHERE id = 3")
        << QStringLiteral("clips 1 and 3 cover each other");
    QTest::newRow("timeline number too high")
        << QByteArray("UPDATE meta SET value = 3 WHERE key = 'next_timeline_id'")
        << QStringLiteral("the number of timeline 3 would be given out again");
    QTest::newRow("clip number too high")
        << QByteArray("UPDATE meta SET value = 7 WHERE key = 'next_clip_id'")
        << QStringLiteral("the number of clip 7 would be given out again");
    QTest::newRow("undo of a clip that is gone")
        << QByteArray("DELETE FROM clip WHERE id = 6")
        << QStringLiteral("undo step 8 names what is not there");
    QTest::newRow("undo of a timeline that is gone")
        << QByteArray("DELETE FROM timeline WHERE id = 3")
        << QStringLiteral("undo step 8 names what is not there");
    QTest::newRow("a change of no step")
        << QByteArray("DELETE FROM undo_step")
        << QStringLiteral("a change belongs to undo step 8, which is not there");
    QTest::newRow("a place behind the last step")
        << QByteArray("UPDATE meta SET value = 2 WHERE key = 'undo_done'")
        << QStringLiteral("the place within the undo steps is impossible");
    QTest::newRow("a place before the first step")
        << QByteArray("UPDATE meta SET value = -1 WHERE key = 'undo_done'")
        << QStringLiteral("the place within the undo steps is impossible");
    QTest::newRow("impossible values")
        << QByteArray("UPDATE media SET alive = 5 WHERE id = 7")
        << QStringLiteral("entries with impossible values are left out: 1");
}

void tst_NxProjectChecker::findsWhatDoesNotFit()
{
    QFETCH(QByteArray, sql);
    QFETCH(QString, problem);
    runSql(m_path, sql);
    QVERIFY2(problems().contains(problem), qUtf8Printable(problems().join(QLatin1Char('\n'))));
}

void tst_NxProjectChecker::whatMayBeIsNoFault_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::newRow("a clip of a media that is gone")
        << QByteArray("UPDATE clip SET media = 4711 WHERE id = 1");
    QTest::newRow("clips that touch") << QByteArray("UPDATE clip SET position = 150 WHERE id = 3");
    QTest::newRow("a clip on another track")
        << QByteArray("UPDATE clip SET position = 120, track = 3 WHERE id = 3");
    QTest::newRow("where a removed clip stood")
        << QByteArray("UPDATE clip SET position = 600 WHERE id = 7");
}

void tst_NxProjectChecker::whatMayBeIsNoFault()
{
    QFETCH(QByteArray, sql);
    runSql(m_path, sql);
    QCOMPARE(problems(), QStringList());
}

void tst_NxProjectChecker::findsTheSameNumberTwice()
{
    NxProjectContents contents;
    contents.counters = {1000, 10000, 2000, 5, 9, 9};
    contents.timelines = {timeline(4), timeline(4)};
    contents.clips = {clip(5, 4), clip(5, 4)};
    contents.clips[1].place.track = 0;
    contents.media = {media(3), media(3)};
    contents.media[1].path = QStringLiteral("/other");
    contents.folders = {folder(1001), folder(1001)};
    contents.folders[1].name = QStringLiteral("other");
    const QStringList found = NxProjectChecker::problemsOf(contents);
    QVERIFY(found.contains(QLatin1String("media 3 is there twice")));
    QVERIFY(found.contains(QLatin1String("folder 1001 is there twice")));
    QVERIFY(found.contains(QLatin1String("timeline 4 is there twice")));
    QVERIFY(found.contains(QLatin1String("clip 5 is there twice")));
    QCOMPARE(found.size(), 4);
}

void tst_NxProjectChecker::findsAPageThatIsBroken()
{
    runSql(m_path, "CREATE INDEX by_name ON media(name)");
    QByteArray bytes = readFile(m_path);
    // One letter of one name in the index: no query of ours would ever notice.
    const int inIndex = bytes.lastIndexOf("Clip 13");
    QVERIFY(inIndex > 0);
    bytes[inIndex] = 'X';
    writeFile(m_path, bytes);
    QVERIFY(!problems().isEmpty());
}

void tst_NxProjectChecker::checksAProjectThatIsBeingWritten()
{
    auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    QCOMPARE((*store)->integrityProblems(), QStringList());
    NxMediaRecord twin = media(50);
    twin.path = media(1).path; // Relinking may make two media one file: that is no fault.
    twin.folder = 1099;
    (*store)->write({NxStoreEntry::NewMedia{{twin}}});
    QCOMPARE((*store)->integrityProblems(),
             QStringList{QStringLiteral("media 50 lies in a folder that is not there")});
    QVERIFY((*store)->close());
}

NX_TEST_MAIN(tst_NxProjectChecker)
#include "tst_NxProjectChecker.moc"
