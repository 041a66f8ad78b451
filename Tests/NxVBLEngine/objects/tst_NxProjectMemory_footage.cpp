// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "EngineFixture.h"

#include <NxVBLModel/INxMediaInfo.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>

using namespace NXVBLMODEL;

namespace {

using Edit = std::function<void(NxFootageRecord *)>;

/// A project with one media, and what was handed to the store about footage.
struct ReadingFixture : EngineFixture
{
    ReadingFixture()
    {
        memory.setWriter([this](const NxStoreBatch &batch) {
            for (const NxStoreEntry::Any &entry : batch) {
                if (const auto *written = std::get_if<NxStoreEntry::Footage>(&entry))
                    stored += written->footage;
            }
        });
        media = addMedia(section, QStringLiteral("a.mp4"));
    }

    /// What was stored since the last call.
    QVector<NxFootageRecord> takeStored()
    {
        memory.flush();
        return std::exchange(stored, {});
    }

    NxEngineMedia *media = nullptr;
    QVector<NxFootageRecord> stored;
};

bool isSame(const NxFootageRecord &a, const NxFootageRecord &b)
{
    return NxFootageRow::of(a) == NxFootageRow::of(b)
           && a.facts.streams.cameraModel == b.facts.streams.cameraModel;
}

const QStringList OneChange{QStringLiteral("state a.mp4")};

} // namespace

Q_DECLARE_METATYPE(Edit)

class tst_NxProjectMemory_footage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasReadIsKeptToldAndStoredOnce()
    {
        ReadingFixture project;
        const int steps = project.undo->count();
        EngineEvents events(project.category);
        const NxFootageRecord film = NxFootageSamples::full(project.media->id());
        project.memory.setFootage(project.media, film);
        QVERIFY(isSame(project.media->footage(), film));
        QCOMPARE(events.take(), OneChange);
        const QVector<NxFootageRecord> stored = project.takeStored();
        QCOMPARE(stored.size(), 1);
        QVERIFY(isSame(stored.first(), film));

        project.memory.setFootage(project.media, film);
        QCOMPARE(events.take(), QStringList());
        QVERIFY(project.takeStored().isEmpty());
        QCOMPARE(project.undo->count(), steps); // Nothing to undo about what a file is.
    }

    void theRecordOfAnotherMediaIsTakenForThisOne()
    {
        ReadingFixture project;
        project.memory.setFootage(project.media, NxFootageSamples::full(4711));
        QCOMPARE(project.takeStored().first().media, project.media->id());
    }

    void whatAViewShowsIsTold_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("told");
        const auto row = [](const char *name, bool told, const Edit &edit) {
            QTest::newRow(name) << edit << told;
        };
        row("it was written, and reads the same", false, [](auto *r) { r->stamp.modified += 5; });
        row("another size on disk alone", false, [](auto *r) { r->stamp.size += 5; });
        row("other contents", true, [](auto *r) { r->fingerprint.low += 1; });
        row("other streams", true, [](auto *r) { r->facts.streams.width = 3; });
        row("other frames", true, [](auto *r) { r->facts.frames += 1; });
        row("another rate", true, [](auto *r) { r->facts.rate = {30, 1}; });
        row("another length", true, [](auto *r) { r->facts.durationUs += 1; });
        row("another bit rate", true, [](auto *r) { r->facts.videoBitRate += 1; });
        row("another bit rate of sound", true, [](auto *r) { r->facts.audioBitRate += 1; });
        row("another date", true, [](auto *r) { r->facts.shot += 1; });
        row("another time code", true, [](auto *r) { r->facts.timecode += QLatin1Char('x'); });
        row("another reel", true, [](auto *r) { r->facts.reel += QLatin1Char('x'); });
        row("no cover any more", true, [](auto *r) { r->cover = NxPictureState::None; });
        row("a strip", true, [](auto *r) { r->strip = NxPictureState::Made; });
        row("no strip for another reason", true,
            [](auto *r) { r->stripReason = QStringLiteral("x"); });
        row("damaged", true, [](auto *r) { r->state = NxReadState::Failed; });
        row("to be read again", true, [](auto *r) { *r = NxFootageRecord(); });
    }

    void whatAViewShowsIsTold()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, told);
        ReadingFixture project;
        NxFootageRecord film = NxFootageSamples::full(project.media->id());
        project.memory.setFootage(project.media, film);
        EngineEvents events(project.category);
        (void)project.takeStored();
        edit(&film);
        project.memory.setFootage(project.media, film);
        QCOMPARE(events.take(), told ? OneChange : QStringList());
        QCOMPARE(project.takeStored().size(), 1);
    }

    void aReadOnlyProjectShowsFactsAndStoresNothing()
    {
        ReadingFixture project;
        project.memory.flush();
        project.memory.setReadOnly(true);
        EngineEvents events(project.category);
        project.memory.setFootage(project.media, NxFootageSamples::full(1));
        QCOMPARE(project.media->readState(), NxReadState::Read);
        QCOMPARE(events.take(), OneChange);
        QVERIFY(project.takeStored().isEmpty());
    }

    void filesOfOneCameraShareTheirStreams()
    {
        ReadingFixture project;
        NxEngineMedia *other = project.addMedia(project.section, QStringLiteral("b.mp4"));
        project.memory.setFootage(project.media, NxFootageSamples::full(1));
        project.memory.setFootage(other, NxFootageSamples::full(2));
        QCOMPARE(project.media->mediaInfo()->videoStream(), other->mediaInfo()->videoStream());
        QVERIFY(project.media->mediaInfo()->frameCount() != other->mediaInfo()->frameCount());
    }

    void anotherFileIsToBeReadAndTheFirstIsKnownAfterUndo()
    {
        ReadingFixture project;
        const NxFootageRecord first = NxFootageSamples::full(1);
        const NxFootageRecord second = NxFootageSamples::full(2);
        project.memory.setFootage(project.media, first);
        (void)project.takeStored();
        EngineEvents events(project.category);
        QVERIFY(project.items->relinkMedia(project.media, QStringLiteral("/other/b.wav")));
        QCOMPARE(project.media->readState(), NxReadState::Unread);
        QVERIFY(project.media->fingerprint().isNull());
        QCOMPARE(int(project.media->mediaType()), int(mtAudio));
        QCOMPARE(events.take(), OneChange);
        QVector<NxFootageRecord> stored = project.takeStored();
        QCOMPARE(stored.size(), 1);
        QVERIFY(NxFootageRow::of(stored.first()).isBlank());

        project.memory.setFootage(project.media, second);
        (void)project.takeStored();
        QVERIFY(project.undo->undo());
        QVERIFY(project.media->fingerprint() == first.fingerprint);
        QCOMPARE(project.media->mediaInfo()->frameCount(), first.facts.frames);
        stored = project.takeStored();
        QCOMPARE(stored.size(), 2); // The second file's facts go, the first one's come.
        QVERIFY(NxFootageRow::of(stored.first()).isBlank());
        QVERIFY(stored.last().fingerprint == first.fingerprint);
        QVERIFY(project.undo->redo());
        QVERIFY(project.media->fingerprint() == second.fingerprint);
    }

    void aFileOfWhichNothingWasKnownIsToBeReadAfterUndo()
    {
        ReadingFixture project;
        QVERIFY(project.items->relinkMedia(project.media, QStringLiteral("/other/b.wav")));
        project.memory.setFootage(project.media, NxFootageSamples::full(2));
        QVERIFY(project.undo->undo());
        QCOMPARE(project.media->readState(), NxReadState::Unread);
        QVERIFY(project.media->fingerprint().isNull());
    }

    void aFileThatMovedWithItsProjectNeedNotBeReadAgain()
    {
        ReadingFixture project;
        const NxFootageRecord film = NxFootageSamples::full(1);
        project.memory.setFootage(project.media, film);
        (void)project.takeStored();
        project.memory.setMovedPath(project.media, QStringLiteral("/moved/a.mp4"));
        NxFootageRow expected = NxFootageRow::of(film);
        expected.media = project.media->id();
        QVERIFY(project.media->footageRow() == expected);
        QVERIFY(project.takeStored().isEmpty());
    }

    void removedMediaKeepWhatWasReadAndLearnWithoutATelling()
    {
        ReadingFixture project;
        project.memory.setFootage(project.media, NxFootageSamples::full(1, 1));
        project.items->removeMediaItems(nullptr, {project.media});
        QVERIFY(!project.media->folder());
        QCOMPARE(project.media->readState(), NxReadState::Read);
        EngineEvents events(project.category);
        project.memory.setFootage(project.media, NxFootageSamples::full(1, 2));
        QCOMPARE(events.take(), QStringList());
        QVERIFY(project.undo->undo());
        QCOMPARE(project.media->cameraName(), QStringLiteral("Maker Model 2"));
    }

    void aDamagedFileThatGoesMissingHasAnotherReason()
    {
        ReadingFixture project;
        project.memory.setFootage(project.media, NxFootageSamples::failed(1));
        EngineEvents events(project.category);
        project.memory.setPresence(project.media, NxPresence::Present);
        QCOMPARE(events.take(), QStringList()); // As damaged as before.
        project.memory.setPresence(project.media, NxPresence::Missing);
        QCOMPARE(events.take(), OneChange);
        project.memory.setPresence(project.media, NxPresence::Present);
        QCOMPARE(events.take(), OneChange);
    }

    void whatTheProjectKnewIsThereAfterLoading()
    {
        EngineFixture project;
        NxProjectContents contents;
        contents.counters = {100, 100, 1100, 100};
        for (const qint64 id : {1, 2, 3, 4}) {
            NxMediaRecord record;
            record.id = record.place = id;
            record.folder = fidRoot;
            record.path = QStringLiteral("/footage/%1.mp4").arg(id);
            record.alive = id != 2;
            contents.media.push_back(record);
        }
        contents.streams = {NxFootageSamples::full(1, 1).facts.streams,
                            NxFootageSamples::full(1, 2).facts.streams};
        for (const qint64 id : {1, 2, 4, 99}) {
            contents.footage.push_back(NxFootageRow::of(NxFootageSamples::full(id)));
            contents.footage.back().streams = 1;
        }
        contents.footage[2].streams = 2; // There are two descriptions, 0 and 1.
        project.memory.load(contents);
        QCOMPARE(project.memory.media(1)->cameraName(), QStringLiteral("Maker Model 2"));
        QCOMPARE(project.memory.media(1)->mediaInfo()->frameCount(), qint64(101));
        QCOMPARE(project.memory.media(2)->readState(), NxReadState::Read); // Removed, not lost.
        QCOMPARE(project.memory.media(3)->readState(), NxReadState::Unread);
        QCOMPARE(project.memory.media(4)->readState(), NxReadState::Unread);
        QCOMPARE(project.memory.brokenInvariant(), QString());
    }
};

NX_TEST_MAIN(tst_NxProjectMemory_footage)
#include "tst_NxProjectMemory_footage.moc"
