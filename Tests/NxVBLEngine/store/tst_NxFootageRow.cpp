// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxFootageRow.h>

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>

namespace {

using Edit = std::function<void(NxFootageRecord *)>;

} // namespace

Q_DECLARE_METATYPE(Edit)

class tst_NxFootageRow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEverythingOfItsFile()
    {
        const NxFootageRecord film = NxFootageSamples::full(7);
        const NxFootageRow row = NxFootageRow::of(film);
        QCOMPARE(row.media, qint64(7));
        QCOMPARE(row.state, NxReadState::Read);
        QCOMPARE(row.streams, -1);
        QCOMPARE(row.stamp, film.stamp);
        QCOMPARE(row.frames, film.facts.frames);
        QCOMPARE(row.rate, film.facts.rate);
        QCOMPARE(row.durationUs, film.facts.durationUs);
        QCOMPARE(row.videoBitRate, film.facts.videoBitRate);
        QCOMPARE(row.audioBitRate, film.facts.audioBitRate);
        QCOMPARE(row.shot, film.facts.shot);
        QCOMPARE(row.timecode, film.facts.timecode);
        QCOMPARE(row.reel, film.facts.reel);
        QCOMPARE(row.fingerprint, film.fingerprint);
        QCOMPARE(row.cover, NxPictureState::Made);
        QCOMPARE(row.strip, NxPictureState::Failed);
        QCOMPARE(row.stripReason, film.stripReason);
    }

    void everyDifferenceIsOne_data()
    {
        QTest::addColumn<Edit>("edit");
        const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
        row("media", [](auto *r) { r->media += 1; });
        row("state", [](auto *r) { r->state = NxReadState::Failed; });
        row("size on disk", [](auto *r) { r->stamp.size += 1; });
        row("last change", [](auto *r) { r->stamp.modified += 1; });
        row("frames", [](auto *r) { r->facts.frames += 1; });
        row("rate", [](auto *r) { r->facts.rate = {24, 1}; });
        row("length", [](auto *r) { r->facts.durationUs += 1; });
        row("bit rate", [](auto *r) { r->facts.videoBitRate += 1; });
        row("bit rate of sound", [](auto *r) { r->facts.audioBitRate += 1; });
        row("date", [](auto *r) { r->facts.shot += 1; });
        row("time code", [](auto *r) { r->facts.timecode.clear(); });
        row("reel", [](auto *r) { r->facts.reel.clear(); });
        row("fingerprint", [](auto *r) { r->fingerprint.high += 1; });
        row("cover", [](auto *r) { r->cover = NxPictureState::Unknown; });
        row("strip", [](auto *r) { r->strip = NxPictureState::None; });
        row("reason", [](auto *r) { r->stripReason.clear(); });
    }

    void everyDifferenceIsOne()
    {
        QFETCH(Edit, edit);
        NxFootageRecord record = NxFootageSamples::full(7);
        const NxFootageRow before = NxFootageRow::of(record);
        QVERIFY(before == NxFootageRow::of(record));
        edit(&record);
        QVERIFY(!(before == NxFootageRow::of(record)));
    }

    void onlyFilesThatWereReadHaveFacts()
    {
        NxFootageRecord record = NxFootageSamples::full(7);
        record.state = NxReadState::Failed;
        record.reason = QStringLiteral("damaged");
        NxFootageRow row = NxFootageRow::of(record);
        QCOMPARE(row.frames, qint64(0));
        QCOMPARE(row.shot, NxNoFootageTime);
        QCOMPARE(row.timecode, QString());
        QCOMPARE(row.reason, QStringLiteral("damaged"));
        QCOMPARE(row.fingerprint, record.fingerprint); // The bytes are there all the same.

        record.state = NxReadState::Read;
        QCOMPARE(NxFootageRow::of(record).reason, QString());
        record.facts.streams.kind = NxFootageKind::Unknown;
        QCOMPARE(NxFootageRow::of(record).state, NxReadState::Unread);
    }

    void aFingerprintOfAnotherWayIsNone()
    {
        NxFootageRecord record = NxFootageSamples::full(7);
        record.fingerprintVersion = NxFingerprint::Version + 1;
        const NxFootageRow row = NxFootageRow::of(record);
        QVERIFY(row.fingerprint.isNull());
        QCOMPARE(row.cover, NxPictureState::Unknown); // It was made, but where would it be?
        QCOMPARE(row.strip, NxPictureState::Failed);
    }

    void onlyFailuresHaveReasons()
    {
        NxFootageRecord record = NxFootageSamples::full(7);
        record.coverReason = QStringLiteral("none of yours");
        record.strip = NxPictureState::None;
        const NxFootageRow row = NxFootageRow::of(record);
        QCOMPARE(row.coverReason, QString());
        QCOMPARE(row.stripReason, QString());
        record.cover = NxPictureState::Failed;
        QCOMPARE(NxFootageRow::of(record).coverReason, record.coverReason);
    }

    void lessThanNothingIsUnknown()
    {
        NxFootageRecord record = NxFootageSamples::full(7);
        record.facts.frames = record.facts.durationUs = -5;
        record.facts.videoBitRate = record.facts.audioBitRate = -5;
        record.stamp.size = -5;
        const NxFootageRow row = NxFootageRow::of(record);
        QCOMPARE(row.frames, qint64(0));
        QCOMPARE(row.durationUs, qint64(0));
        QCOMPARE(row.videoBitRate, qint64(0));
        QCOMPARE(row.audioBitRate, qint64(0));
        QCOMPARE(row.stamp.size, qint64(-1));
    }

    void blankIsWhatKnowsNothingButItsMedia()
    {
        NxFootageRecord record;
        record.media = 5;
        QVERIFY(NxFootageRow::of(record).isBlank());
        record.stamp.size = 5;
        QVERIFY(!NxFootageRow::of(record).isBlank());
        QVERIFY(!NxFootageRow::of(NxFootageSamples::failed(5)).isBlank());
    }

    void onlyTheStampMayDifferUnseen()
    {
        NxFootageRecord record = NxFootageSamples::full(7);
        const NxFootageRow before = NxFootageRow::of(record);
        record.stamp = {};
        QVERIFY(NxFootageRow::of(record).looksLike(before));
        record.facts.frames += 1;
        QVERIFY(!NxFootageRow::of(record).looksLike(before));
    }
};

NX_TEST_MAIN(tst_NxFootageRow)
#include "tst_NxFootageRow.moc"
