// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TimelineStand.h"

#include <Support/NxTestMain.h>

#include <QtTest>

#include <algorithm>
#include <random>
#include <tuple>

namespace {

/// What a timeline should say, worked out from all its clips.
struct PlainTimeline
{
    explicit PlainTimeline(const QList<INxClip *> &clips)
    {
        for (const INxClip *clip : clips)
            places.push_back(clip->place());
    }

    bool hasRoom(const NxClipPlace &wanted) const
    {
        return std::none_of(places.begin(), places.end(), [&wanted](const NxClipPlace &place) {
            return place.track == wanted.track && place.position < wanted.position + wanted.length
                   && wanted.position < place.position + place.length;
        });
    }
    int trackCount() const
    {
        int count = 0;
        for (const NxClipPlace &place : places)
            count = std::max(count, place.track + 1);
        return count;
    }
    qint64 frameCount() const
    {
        qint64 count = 0;
        for (const NxClipPlace &place : places)
            count = std::max(count, place.position + place.length);
        return count;
    }
    bool isSorted() const
    {
        return std::is_sorted(
            places.begin(), places.end(), [](const NxClipPlace &a, const NxClipPlace &b) {
                return std::tie(a.track, a.position) < std::tie(b.track, b.position);
            });
    }

    std::vector<NxClipPlace> places;
};

} // namespace

class tst_NxTimelineNode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTimelineHasNothing()
    {
        TimelineStand stand;
        QCOMPARE(stand.timeline->trackCount(), 0);
        QCOMPARE(stand.timeline->frameCount(), qint64(0));
        QVERIFY(stand.timeline->clips().isEmpty());
        uchar pixel[4] = {1, 2, 3, 4};
        QVERIFY(!stand.timeline->renderFrame(0, 1, 1, pixel));
    }

    void clipsStandByTrackThenPosition()
    {
        TimelineStand stand;
        stand.add(2, 0);
        stand.add(0, 90);
        stand.add(0, 20);
        stand.add(2, 300);
        stand.add(0, 50);
        QCOMPARE(placesOf(stand.timeline), QStringLiteral("0:20 0:50 0:90 2:0 2:300"));
        QCOMPARE(stand.timeline->trackCount(), 3); // The empty one between them counts.
        QCOMPARE(stand.timeline->frameCount(), qint64(310));
    }

    void theEndIsThatOfTheLastClipOfAnyTrack()
    {
        TimelineStand stand;
        stand.add(0, 500);
        INxClip *top = stand.add(3, 10);
        QCOMPARE(stand.timeline->frameCount(), qint64(510));
        stand.timeline->removeClip(top);
        QCOMPARE(stand.timeline->trackCount(), 1);
        QCOMPARE(stand.timeline->frameCount(), qint64(510));
    }

    void aListingThatIsHeldStaysAsItWas()
    {
        TimelineStand stand;
        INxClip *first = stand.add(0, 0);
        INxClip *second = stand.add(0, 20);
        const QList<INxClip *> held = stand.timeline->clips();
        QVERIFY(stand.timeline->removeClip(first));
        QCOMPARE(held, (QList<INxClip *>{first, second}));
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{second});
    }

    void saysWhatEveryClipTogetherSays_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 10; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void saysWhatEveryClipTogetherSays()
    {
        QFETCH(quint32, seed);
        TimelineStand stand;
        std::mt19937 random(seed);
        const auto below = [&random](int bound) { return int(random() % quint32(bound)); };
        int added = 0;
        int refused = 0;
        for (int i = 0; i < 400; ++i) {
            const QList<INxClip *> clips = stand.timeline->clips();
            const PlainTimeline plain(clips);
            QVERIFY(plain.isSorted());
            QCOMPARE(stand.timeline->trackCount(), plain.trackCount());
            QCOMPARE(stand.timeline->frameCount(), plain.frameCount());
            if (!clips.isEmpty() && below(4) == 0) {
                QVERIFY(stand.timeline->removeClip(clips.at(below(clips.size()))));
                continue;
            }
            const NxClipPlace place{below(3), below(300), 1 + below(12), 0};
            const bool isAdded = stand.editor->addClip(stand.timeline, stand.film, place);
            QCOMPARE(isAdded, plain.hasRoom(place));
            (isAdded ? added : refused) += 1;
        }
        QVERIFY(added > 30);
        QVERIFY(refused > 30);
        QCOMPARE(stand.broken(), QString());
    }
};

NX_TEST_MAIN(tst_NxTimelineNode)
#include "tst_NxTimelineNode.moc"
