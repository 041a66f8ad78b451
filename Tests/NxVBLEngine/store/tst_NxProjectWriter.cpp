// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectReader.h>
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectWriter.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <tuple>

using Kind = NxChangeKind;
using namespace StoreSamples;

namespace {

using Prove = std::function<bool(const NxProjectContents &)>;

constexpr qint64 Highest = std::numeric_limits<qint64>::max();
constexpr qint64 Lowest = std::numeric_limits<qint64>::min();

NxChangeState state(int folder, qint64 place, const QString &text = {}, const QString &second = {},
                    qint64 number = 0)
{
    return {folder, place, text, second, number};
}

const NxMediaRecord *mediaOf(const NxProjectContents &contents, qint64 id)
{
    for (const NxMediaRecord &media : contents.media) {
        if (media.id == id)
            return &media;
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Prove)
Q_DECLARE_METATYPE(NxChange)
Q_DECLARE_METATYPE(NxMediaRecord)
Q_DECLARE_METATYPE(NxClipRecord)

class tst_NxProjectWriter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyFieldOfAMediaComesBack_data();
    void everyFieldOfAMediaComesBack();
    void everyFieldOfAFolderComesBack();
    void everyFieldOfATimelineComesBack();
    void everyFieldOfAClipComesBack_data();
    void everyFieldOfAClipComesBack();
    void aChangeUpdatesItsRow_data();
    void aChangeUpdatesItsRow();
    void aChangeOfWhatIsNotThereFails_data();
    void aChangeOfWhatIsNotThereFails();
    void aResourceThatIsItselfAgainLeavesNoRow();
    void factsUpdateTheirColumnsOnly();
    void factsAboutWhatIsGoneAreIgnored();
    void stepsKeepTheirChangesInOrder();
    void aNewStepDropsWhatWasUndone();
    void droppingStepsDeletesWhatOnlyTheyKept();
    void droppingNeverDeletesTheLiving();
    void thePlaceNeverPointsBehindTheLastStep();
    void countersComeBack();
    void mediaAreReadInTheOrderTheyAreListed();

private:
    NxProjectContents read() { return NxProjectReader(m_database.get()).read(); }
    NxResult<void> write(const NxStoreBatch &batch) { return m_writer->write(batch); }

    QScopedPointer<NxTempDir> m_folder;
    std::unique_ptr<NxSqliteDatabase> m_database;
    std::unique_ptr<NxProjectWriter> m_writer;
};

void tst_NxProjectWriter::init()
{
    m_writer.reset();
    m_database.reset();
    m_folder.reset(new NxTempDir);
    auto database = NxSqliteDatabase::open(m_folder->filePath(QStringLiteral("a.brevano")),
                                           NxSqliteDatabase::Access::Create, nullptr);
    QVERIFY2(database, qUtf8Printable(database.errorText()));
    m_database = database.take();
    QVERIFY(m_database->execute("PRAGMA synchronous = OFF"));
    QVERIFY(NxProjectSchema::migrate(m_database.get(), NxProjectSchema::steps()));
    m_writer = std::make_unique<NxProjectWriter>(m_database.get());
    QVERIFY(m_writer->writeBeginning(QStringLiteral("/projects"), 1000));
}

void tst_NxProjectWriter::everyFieldOfAMediaComesBack_data()
{
    QTest::addColumn<NxMediaRecord>("media");
    QTest::newRow("a value in every field") << StoreSamples::media(5, 1001);
    NxMediaRecord plain;
    plain.id = 1;
    QTest::newRow("nothing known") << plain;
    NxMediaRecord high;
    high.id = Highest;
    high.category = 10;
    high.folder = std::numeric_limits<int>::max();
    high.place = high.size = high.created = high.modified = high.favourite = Highest;
    high.importKind = high.kindCode = std::numeric_limits<int>::max();
    QTest::newRow("highest values") << high;
    NxMediaRecord low = plain;
    low.place = Lowest;
    low.created = low.modified = low.favourite = Lowest + 1;
    low.importKind = low.kindCode = std::numeric_limits<int>::min();
    low.alive = false;
    QTest::newRow("lowest values, dead") << low;
    NxMediaRecord odd = plain;
    odd.name = QStringLiteral("line\nend\u20ac") + QChar(0xD83C) + QChar(0) + QChar(0xFEFF);
    odd.path = QChar(0xDC00) + QStringLiteral("/a\tb") + QChar(0xD800);
    odd.canonicalPath = QString(4000, QChar(0x6620));
    odd.relativePath = QStringLiteral("'; DROP TABLE media; --");
    QTest::newRow("odd texts") << odd;
}

void tst_NxProjectWriter::everyFieldOfAMediaComesBack()
{
    QFETCH(NxMediaRecord, media);
    QVERIFY(write({NxStoreEntry::NewMedia{{media}}}));
    NxProjectContents expected;
    expected.media.push_back(media);
    expected.projectFolder = QStringLiteral("/projects");
    QCOMPARE(described(read()), described(expected));
}

void tst_NxProjectWriter::everyFieldOfAFolderComesBack()
{
    NxFolderRecord folder = StoreSamples::folder(std::numeric_limits<int>::max(), 1001);
    folder.category = 7;
    folder.place = Lowest;
    folder.name = QString(QChar(0xDFFF)) + QStringLiteral("/\\");
    folder.alive = false;
    QVERIFY(write(
        {NxStoreEntry::NewFolder{folder}, NxStoreEntry::NewFolder{StoreSamples::folder(1001)}}));
    NxProjectContents expected;
    expected.folders = {StoreSamples::folder(1001), folder};
    expected.projectFolder = QStringLiteral("/projects");
    QCOMPARE(described(read()), described(expected));
}

void tst_NxProjectWriter::everyFieldOfATimelineComesBack()
{
    NxTimelineRecord odd = timeline(Highest, Highest);
    odd.name = QString(QChar(0xDFFF)) + QStringLiteral("\n\u20ac");
    odd.alive = false;
    QVERIFY(write({NxStoreEntry::NewTimeline{odd}, NxStoreEntry::NewTimeline{timeline(1)}}));
    NxProjectContents expected;
    expected.timelines = {timeline(1), odd};
    expected.projectFolder = QStringLiteral("/projects");
    QCOMPARE(described(read()), described(expected));
}

void tst_NxProjectWriter::everyFieldOfAClipComesBack_data()
{
    QTest::addColumn<NxClipRecord>("record");
    QTest::newRow("a value in every field") << clip(5, 9);
    QTest::newRow("inside a split screen") << innerClip(5, clip(3));
    NxClipRecord high = clip(Highest, Highest);
    high.media = high.split = Highest;
    high.kind = NXVBLMODEL::ckComposite;
    high.place = {std::numeric_limits<int>::max() - 1, Highest - 8, 8, Highest};
    high.alive = false;
    QTest::newRow("highest values, dead") << high;
    NxClipRecord low = clip(1);
    low.kind = NXVBLMODEL::ckUnknown;
    low.media = 0;
    low.place = {0, 0, 1, 0};
    QTest::newRow("lowest values") << low;
}

void tst_NxProjectWriter::everyFieldOfAClipComesBack()
{
    QFETCH(NxClipRecord, record);
    QVERIFY(write({NxStoreEntry::NewClips{{record}}}));
    NxProjectContents expected;
    expected.clips = {record};
    expected.projectFolder = QStringLiteral("/projects");
    QCOMPARE(described(read()), described(expected));
}

void tst_NxProjectWriter::aChangeUpdatesItsRow_data()
{
    QTest::addColumn<NxChange>("applied");
    QTest::addColumn<Prove>("prove");
    const QString name = QStringLiteral("new");
    const auto row = [](const char *title, const NxChange &applied, const Prove &prove) {
        QTest::newRow(title) << applied << prove;
    };
    row("folder removed", change(Kind::FolderRemove, {1001}),
        [](const auto &is) { return !is.folders[0].alive && is.folders[1].alive; });
    row("folder renamed", change(Kind::FolderRename, {1001}, state(0, 0, name)),
        [name](const auto &is) { return is.folders[0].name == name; });
    row("folder moved", change(Kind::FolderMove, {1001}, state(1002, -4)),
        [](const auto &is) { return is.folders[0].parent == 1002 && is.folders[0].place == -4; });
    row("media removed", change(Kind::MediaRemove, {1, 2}), [](const auto &is) {
        return !mediaOf(is, 1)->alive && !mediaOf(is, 2)->alive && mediaOf(is, 3)->alive;
    });
    row("media renamed", change(Kind::MediaRename, {2}, state(0, 0, name)),
        [name](const auto &is) { return mediaOf(is, 2)->name == name; });
    row("media moved", change(Kind::MediaMove, {2}, state(1002, 99)), [](const auto &is) {
        return mediaOf(is, 2)->folder == 1002 && mediaOf(is, 2)->place == 99;
    });
    row("media a favourite", change(Kind::MediaFavourite, {2}, state(0, 0, {}, {}, 77)),
        [](const auto &is) { return mediaOf(is, 2)->favourite == 77; });
    row("media no favourite", change(Kind::MediaFavourite, {2}, state(0, 0, {}, {}, NxNoTime)),
        [](const auto &is) { return mediaOf(is, 2)->favourite == NxNoTime; });
    row("media relinked", change(Kind::MediaRelink, {2}, state(0, 0, name, QStringLiteral("c"))),
        [name](const auto &is) {
            const NxMediaRecord *media = mediaOf(is, 2);
            return media->path == name && media->canonicalPath == QLatin1String("c")
                   && media->relativePath.isEmpty();
        });
    row("resource renamed", change(Kind::ResourceRename, {-5}, state(0, 0, name)),
        [name](const auto &is) {
            return is.resources.size() == 1 && is.resources[0].id == -5
                   && is.resources[0].name == name && is.resources[0].favourite == NxNoTime;
        });
    row("resource a favourite", change(Kind::ResourceFavourite, {6}, state(0, 0, {}, {}, 0)),
        [](const auto &is) {
            return is.resources.size() == 1 && is.resources[0].name.isEmpty()
                   && is.resources[0].favourite == 0;
        });
    row("timeline removed", change(Kind::TimelineRemove, {2}),
        [](const auto &is) { return is.timelines[0].alive && !is.timelines[1].alive; });
    row("timeline renamed", change(Kind::TimelineRename, {2}, state(0, 0, name)),
        [name](const auto &is) {
            return is.timelines[1].name == name && is.timelines[0].name != name;
        });
    row("clips removed", change(Kind::ClipRemove, {1, 3}, state(0, 0, {}, {}, 9)),
        [](const auto &is) {
            return !is.clips[0].alive && is.clips[1].alive && !is.clips[2].alive;
        });
    row("clip moved", change(Kind::ClipMove, {2}, state(5, 900)), [](const auto &is) {
        return is.clips[1].place == NxClipPlace{5, 900, 50, 7} && is.clips[0].place.track == 2;
    });
}

void tst_NxProjectWriter::aChangeUpdatesItsRow()
{
    QFETCH(NxChange, applied);
    QFETCH(Prove, prove);
    QVERIFY(write(addMedia(1, 3)));
    QVERIFY(write({NxStoreEntry::NewFolder{folder(1001)}, NxStoreEntry::NewFolder{folder(1002)}}));
    QVERIFY(write({NxStoreEntry::NewTimeline{timeline(1)}, NxStoreEntry::NewTimeline{timeline(2)},
                   NxStoreEntry::NewClips{{clip(1), clip(2), clip(3)}}}));
    QVERIFY(!prove(read()));
    const NxResult<void> written = write({NxStoreEntry::Apply{applied}});
    QVERIFY2(written, qUtf8Printable(written.errorText()));
    QVERIFY(prove(read()));

    if (isAddOrRemoval(applied.what)) {
        QVERIFY(write({NxStoreEntry::Apply{inverted(applied)}}));
        QVERIFY(!prove(read()));
    }
}

void tst_NxProjectWriter::aChangeOfWhatIsNotThereFails_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = int(Kind::FolderAdd); kind <= int(Kind::ClipMove); ++kind) {
        if (isChangeKind(kind) && objectOf(Kind(kind)) != NxObjectKind::Resource)
            QTest::addRow("kind %d", kind) << kind;
    }
}

void tst_NxProjectWriter::aChangeOfWhatIsNotThereFails()
{
    QFETCH(int, kind);
    const NxResult<void> written =
        write({NxStoreEntry::Apply{change(Kind(kind), {4711}, state(1, 1, QStringLiteral("n")))}});
    QVERIFY(!written);
    QVERIFY2(written.errorText().contains(QLatin1String("it does not hold entry 4711")),
             qUtf8Printable(written.errorText()));
}

void tst_NxProjectWriter::aResourceThatIsItselfAgainLeavesNoRow()
{
    QVERIFY(write(
        {NxStoreEntry::Apply{change(Kind::ResourceRename, {6}, state(0, 0, QStringLiteral("n")))},
         NxStoreEntry::Apply{change(Kind::ResourceFavourite, {6}, state(0, 0, {}, {}, 5))}}));
    QVERIFY(write({NxStoreEntry::Apply{change(Kind::ResourceRename, {6})}}));
    QCOMPARE(int(read().resources.size()), 1);
    QVERIFY(write({NxStoreEntry::Apply{
        change(Kind::ResourceFavourite, {6}, state(0, 0, {}, {}, NxNoTime))}}));
    QCOMPARE(int(read().resources.size()), 0);
}

void tst_NxProjectWriter::factsUpdateTheirColumnsOnly()
{
    QVERIFY(write(addMedia(1, 2)));
    NxMediaRecord facts;
    facts.id = 2;
    facts.path = QStringLiteral("/new/path");
    facts.relativePath = QStringLiteral("path");
    facts.size = 5;
    facts.created = 6;
    QVERIFY(write({NxStoreEntry::Facts{{facts}}}));

    NxMediaRecord expected = media(2);
    expected.path = facts.path;
    expected.canonicalPath.clear();
    expected.relativePath = facts.relativePath;
    expected.size = 5;
    expected.created = 6;
    expected.modified = NxNoTime;
    NxProjectContents contents = read();
    NxProjectContents wanted = contents;
    wanted.media = {media(1), expected};
    QCOMPARE(described(contents), described(wanted));
}

void tst_NxProjectWriter::factsAboutWhatIsGoneAreIgnored()
{
    QVERIFY(write(addMedia(1, 1)));
    const QStringList before = described(read());
    QVERIFY(write({NxStoreEntry::Facts{{media(9)}}}));
    QCOMPARE(described(read()), before);
}

void tst_NxProjectWriter::stepsKeepTheirChangesInOrder()
{
    QVERIFY(write({NxStoreEntry::StepBegin{5, QStringLiteral("f"), QStringLiteral("a")},
                   NxStoreEntry::StepChange{5, change(Kind::MediaRemove, {3, 1})},
                   NxStoreEntry::StepChange{
                       5, change(Kind::MediaRename, {2}, state(0, 0, QStringLiteral("n")))}}));
    QVERIFY(write({NxStoreEntry::StepBegin{6, {}, {}},
                   NxStoreEntry::StepChange{6, change(Kind::MediaAdd, {7})}}));
    const NxProjectContents contents = read();
    QCOMPARE(int(contents.undoSteps.size()), 2);
    QCOMPARE(contents.undoDone, 2);
    QCOMPARE(contents.undoSteps[0].serial, 5);
    QCOMPARE(contents.undoSteps[0].function, QStringLiteral("f"));
    QCOMPARE(contents.undoSteps[0].action, QStringLiteral("a"));
    QCOMPARE(contents.undoSteps[0].changes.size(), 2);
    QCOMPARE(contents.undoSteps[0].changes[0].ids, (QVector<qint64>{3, 1}));
    QCOMPARE(contents.undoSteps[0].changes[1].after.text, QStringLiteral("n"));
    QCOMPARE(contents.undoSteps[1].changes[0].ids, (QVector<qint64>{7}));
}

void tst_NxProjectWriter::aNewStepDropsWhatWasUndone()
{
    for (qint64 serial = 1; serial <= 4; ++serial) {
        QVERIFY(write({NxStoreEntry::StepBegin{serial, {}, {}},
                       NxStoreEntry::StepChange{serial, change(Kind::MediaAdd, {serial})}}));
    }
    QVERIFY(write({NxStoreEntry::StepPosition{2}}));
    QVERIFY(write({NxStoreEntry::StepBegin{9, {}, {}}}));
    const NxProjectContents contents = read();
    QCOMPARE(int(contents.undoSteps.size()), 3);
    QCOMPARE(contents.undoSteps[1].serial, 2);
    QCOMPARE(contents.undoSteps[2].serial, 9);
    QCOMPARE(contents.undoDone, 3);
    QCOMPARE(m_database->number("SELECT count(*) FROM undo_change", -1), 2);
}

void tst_NxProjectWriter::droppingStepsDeletesWhatOnlyTheyKept()
{
    QVERIFY(write(addMedia(1, 4)));
    QVERIFY(write({NxStoreEntry::NewFolder{folder(1001)}}));
    QVERIFY(write({NxStoreEntry::StepBegin{1, {}, {}},
                   NxStoreEntry::StepChange{1, change(Kind::MediaRemove, {2, 3})},
                   NxStoreEntry::Apply{change(Kind::MediaRemove, {2, 3})},
                   NxStoreEntry::Apply{change(Kind::FolderRemove, {1001})}}));
    QVERIFY(write({NxStoreEntry::NewTimeline{timeline(1)}, NxStoreEntry::NewTimeline{timeline(2)},
                   NxStoreEntry::NewClips{{clip(1), clip(2), clip(3)}},
                   NxStoreEntry::Apply{change(Kind::ClipRemove, {1, 2})},
                   NxStoreEntry::Apply{change(Kind::TimelineRemove, {2})}}));
    QVERIFY(write({NxStoreEntry::StepDrop{{1}, {2, 3}, {1001}, {2}, {1, 2}}}));
    const NxProjectContents contents = read();
    QCOMPARE(int(contents.timelines.size()), 1);
    QCOMPARE(int(contents.clips.size()), 1);
    QCOMPARE(int(contents.media.size()), 2);
    QVERIFY(contents.folders.empty());
    QVERIFY(contents.undoSteps.empty());
    QCOMPARE(contents.undoDone, 0);
    QCOMPARE(m_database->number("SELECT count(*) FROM undo_change", -1), 0);
}

void tst_NxProjectWriter::droppingNeverDeletesTheLiving()
{
    QVERIFY(write(addMedia(1, 1)));
    QVERIFY(write({NxStoreEntry::NewFolder{folder(1001)}}));
    QVERIFY(write({NxStoreEntry::NewTimeline{timeline(1)}, NxStoreEntry::NewClips{{clip(1)}}}));
    QVERIFY(write({NxStoreEntry::StepDrop{{}, {1}, {1001}, {1}, {1}}}));
    QCOMPARE(int(read().timelines.size()), 1);
    QCOMPARE(int(read().clips.size()), 1);
    QCOMPARE(int(read().media.size()), 1);
    QCOMPARE(int(read().folders.size()), 1);
}

void tst_NxProjectWriter::thePlaceNeverPointsBehindTheLastStep()
{
    for (qint64 serial = 1; serial <= 4; ++serial)
        QVERIFY(write({NxStoreEntry::StepBegin{serial, {}, {}}}));
    QVERIFY(write({NxStoreEntry::StepDrop{{1, 2}, {}, {}}}));
    QCOMPARE(read().undoDone, 2);
    QVERIFY(write({NxStoreEntry::StepPosition{1}, NxStoreEntry::StepDrop{{4}, {}, {}}}));
    QCOMPARE(read().undoDone, 1);
}

void tst_NxProjectWriter::countersComeBack()
{
    NxStoreEntry::Counters counters;
    counters.nextMediaId = Highest;
    counters.nextPlace = Highest - 1;
    counters.nextFolderId = std::numeric_limits<int>::max();
    counters.nextStepSerial = Highest - 2;
    counters.nextTimelineId = Highest - 3;
    counters.nextClipId = Highest - 4;
    QVERIFY(write({counters}));
    const NxStoreEntry::Counters back = read().counters;
    QCOMPARE(back.nextMediaId, counters.nextMediaId);
    QCOMPARE(back.nextPlace, counters.nextPlace);
    QCOMPARE(back.nextFolderId, counters.nextFolderId);
    QCOMPARE(back.nextStepSerial, counters.nextStepSerial);
    QCOMPARE(back.nextTimelineId, counters.nextTimelineId);
    QCOMPARE(back.nextClipId, counters.nextClipId);
}

void tst_NxProjectWriter::mediaAreReadInTheOrderTheyAreListed()
{
    QVector<NxMediaRecord> records;
    for (qint64 id = 1; id <= 200; ++id) {
        NxMediaRecord record = media(id, 1 + int(id * 7 % 3));
        record.category = int(id * 5 % 2);
        record.place = (id * 37) % 101;
        records.append(record);
    }
    QVERIFY(write({NxStoreEntry::NewMedia{records}}));
    const auto before = [](const NxMediaRecord &a, const NxMediaRecord &b) {
        return std::tie(a.category, a.folder, a.place, a.id)
               < std::tie(b.category, b.folder, b.place, b.id);
    };
    NxProjectContents contents = read();
    QCOMPARE(int(contents.media.size()), 200);
    QVERIFY(std::is_sorted(contents.media.begin(), contents.media.end(), before));

    NxProjectContents wanted = contents;
    wanted.media.assign(records.begin(), records.end());
    std::sort(wanted.media.begin(), wanted.media.end(), before);
    QCOMPARE(described(contents), described(wanted));
}

NX_TEST_MAIN(tst_NxProjectWriter)
#include "tst_NxProjectWriter.moc"
