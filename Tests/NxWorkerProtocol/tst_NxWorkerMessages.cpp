// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>
#include <random>

using namespace NxWorkerMessages;

namespace {

using Edit = std::function<void(NxReadAnswer *)>;
/// Unpacks bytes as a message and packs what was understood again; empty when they are refused.
using Again = std::function<QByteArray(const QByteArray &)>;

template<typename Message>
QByteArray again(const QByteArray &bytes)
{
    Message message;
    return unpack(bytes, &message) ? packed(message) : QByteArray();
}

QByteArray openedAgain(const QByteArray &bytes)
{
    quint64 number = 0;
    return unpackOpened(bytes, &number) ? packedOpened(number) : QByteArray();
}

QByteArray streamsAgain(const QByteArray &bytes)
{
    NxFootageStreams streams;
    return unpackStreams(bytes, &streams) ? packedStreams(streams) : QByteArray();
}

NxReadRequest request()
{
    return {0xFEDC'BA98'7654'3210ULL, QByteArray("/a\xff/b\0c", 7), NxFootageRoad::Text, 15};
}

NxReadAnswer emptyAnswer()
{
    NxReadAnswer answer;
    answer.facts.emplace();
    return answer;
}

NxReadAnswer fullAnswer();

/// One edit for each field of an answer.
const std::vector<std::pair<const char *, Edit>> &edits()
{
    static const QString text = QString(QChar(0xD800)) + QStringLiteral("\u00e4");
    static const std::vector<std::pair<const char *, Edit>> all{
        {"number", [](auto *a) { a->number = ~quint64(0); }},
        {"failure", [](auto *a) { a->failure = text; }},
        {"stamp size", [](auto *a) { a->stamp.size = 5; }},
        {"stamp modified", [](auto *a) { a->stamp.modified = -5; }},
        {"changed meanwhile", [](auto *a) { a->changedMeanwhile = true; }},
        {"no facts", [](auto *a) { a->facts.reset(); }},
        {"fingerprint size", [](auto *a) { a->fingerprint.size = 6; }},
        {"fingerprint high", [](auto *a) { a->fingerprint.high = ~quint64(0); }},
        {"fingerprint low", [](auto *a) { a->fingerprint.low = 7; }},
        {"cover", [](auto *a) { a->cover.outcome = NxPictureOutcome::Failed; }},
        {"cover reason", [](auto *a) { a->cover.reason = text; }},
        {"strip", [](auto *a) { a->strip.outcome = NxPictureOutcome::NoneThere; }},
        {"strip reason", [](auto *a) { a->strip.reason = text; }},
        {"depth of the pictures", [](auto *a) { a->bitDepth = 12; }},
        {"format of the pictures", [](auto *a) { a->pixelFormat = text; }},
        {"frames", [](auto *a) { a->facts->frames = -1; }},
        {"rate num", [](auto *a) { a->facts->rate.num = 24000; }},
        {"rate den", [](auto *a) { a->facts->rate.den = 1001; }},
        {"duration", [](auto *a) { a->facts->durationUs = 8; }},
        {"video bit rate", [](auto *a) { a->facts->videoBitRate = 9; }},
        {"audio bit rate", [](auto *a) { a->facts->audioBitRate = 10; }},
        {"shot", [](auto *a) { a->facts->shot = 11; }},
        {"timecode", [](auto *a) { a->facts->timecode = text; }},
        {"reel", [](auto *a) { a->facts->reel = text; }},
        {"kind", [](auto *a) { a->facts->streams.kind = NxFootageKind::Subtitle; }},
        {"has video", [](auto *a) { a->facts->streams.hasVideo = true; }},
        {"has audio", [](auto *a) { a->facts->streams.hasAudio = true; }},
        {"demuxer", [](auto *a) { a->facts->streams.demuxer = text; }},
        {"can seek", [](auto *a) { a->facts->streams.canSeek = true; }},
        {"width", [](auto *a) { a->facts->streams.width = 12; }},
        {"height", [](auto *a) { a->facts->streams.height = 13; }},
        {"rotation", [](auto *a) { a->facts->streams.rotation = 270; }},
        {"video codec", [](auto *a) { a->facts->streams.videoCodec = text; }},
        {"video tag", [](auto *a) { a->facts->streams.videoTag = text; }},
        {"bit depth", [](auto *a) { a->facts->streams.bitDepth = 14; }},
        {"pixel format", [](auto *a) { a->facts->streams.pixelFormat = text; }},
        {"colour range", [](auto *a) { a->facts->streams.colorRange = text; }},
        {"colour primaries", [](auto *a) { a->facts->streams.colorPrimaries = text; }},
        {"colour transfer", [](auto *a) { a->facts->streams.colorTransfer = text; }},
        {"colour matrix", [](auto *a) { a->facts->streams.colorMatrix = text; }},
        {"variable rate", [](auto *a) { a->facts->streams.variableRate = true; }},
        {"sample rate", [](auto *a) { a->facts->streams.sampleRate = 15; }},
        {"channels", [](auto *a) { a->facts->streams.channels = 16; }},
        {"audio codec", [](auto *a) { a->facts->streams.audioCodec = text; }},
        {"audio tag", [](auto *a) { a->facts->streams.audioTag = text; }},
        {"camera maker", [](auto *a) { a->facts->streams.cameraMaker = text; }},
        {"camera model", [](auto *a) { a->facts->streams.cameraModel = text; }},
        {"text encoding", [](auto *a) { a->facts->streams.textEncoding = text; }},
    };
    return all;
}

NxReadAnswer fullAnswer()
{
    NxReadAnswer answer = emptyAnswer();
    for (const auto &[name, edit] : edits()) {
        if (qstrcmp(name, "no facts") != 0)
            edit(&answer);
    }
    return answer;
}

void addMessages()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Again>("again");
    const auto row = [](const char *name, const QByteArray &bytes, const Again &understood) {
        QTest::newRow(name) << bytes << understood;
    };
    row("hello", packed(NxWorkerHello{NxWorkerProtocol::Version, true, true}),
        again<NxWorkerHello>);
    row("request", packed(request()), again<NxReadRequest>);
    row("opened", packedOpened(77), openedAgain);
    row("answer", packed(fullAnswer()), again<NxReadAnswer>);
    row("answer without facts", packed(NxReadAnswer()), again<NxReadAnswer>);
    row("streams", packedStreams(fullAnswer().facts->streams), streamsAgain);
}

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Again)

class tst_NxWorkerMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helloTellsWhatTheSystemHasTaken()
    {
        for (const bool network : {false, true}) {
            for (const bool cache : {false, true}) {
                NxWorkerHello back;
                QVERIFY(unpack(packed(NxWorkerHello{1, network, cache}), &back));
                QCOMPARE(back.version, quint32(1));
                QCOMPARE(back.hasNoNetwork, network);
                QCOMPARE(back.writesCacheOnly, cache);
            }
        }
    }

    void ofAnotherVersionTheNumberAloneIsRead()
    {
        NxWorkerHello back;
        const quint32 later = NxWorkerProtocol::Version + 1;
        const QByteArray bytes = packed(NxWorkerHello{later, true, true});
        QVERIFY(unpack(bytes + "whatever later versions say", &back));
        QCOMPARE(back.version, later);
        QVERIFY(unpack(bytes.left(4), &back));
        QVERIFY(!unpack(bytes.left(3), &back));
    }

    void aRequestKeepsEveryByteOfItsPath()
    {
        NxReadRequest back;
        QVERIFY(unpack(packed(request()), &back));
        QCOMPARE(back.number, request().number);
        QCOMPARE(back.path, request().path);
        QCOMPARE(back.road, NxFootageRoad::Text);
        QCOMPARE(int(back.wishes), 15);
    }

    void everyFieldOfAnAnswerComesBack_data()
    {
        QTest::addColumn<Edit>("edit");
        for (const auto &[name, edit] : edits())
            QTest::newRow(name) << edit;
    }

    void everyFieldOfAnAnswerComesBack()
    {
        QFETCH(Edit, edit);
        const QByteArray plain = packed(emptyAnswer());
        NxReadAnswer answer = emptyAnswer();
        edit(&answer);
        const QByteArray bytes = packed(answer);
        QVERIFY(bytes != plain); // It is said,
        QCOMPARE(again<NxReadAnswer>(bytes), bytes); // and understood.
    }

    void fieldsAreNotMistakenForEachOther()
    {
        NxReadAnswer back;
        QVERIFY(unpack(packed(fullAnswer()), &back));
        const NxReadAnswer is = fullAnswer();
        QCOMPARE(back.number, is.number);
        QCOMPARE(back.stamp, is.stamp);
        QCOMPARE(back.fingerprint, is.fingerprint);
        QCOMPARE(back.cover.outcome, NxPictureOutcome::Failed);
        QCOMPARE(back.strip.outcome, NxPictureOutcome::NoneThere);
        QVERIFY(back.facts);
        QCOMPARE(back.facts->frames, is.facts->frames);
        QCOMPARE(back.facts->rate, is.facts->rate);
        QCOMPARE(back.facts->durationUs, is.facts->durationUs);
        QCOMPARE(back.facts->videoBitRate, is.facts->videoBitRate);
        QCOMPARE(back.facts->audioBitRate, is.facts->audioBitRate);
        QCOMPARE(back.facts->shot, is.facts->shot);
        QCOMPARE(back.facts->streams.width, is.facts->streams.width);
        QCOMPARE(back.facts->streams.height, is.facts->streams.height);
        QCOMPARE(back.facts->streams.rotation, is.facts->streams.rotation);
        QCOMPARE(back.facts->streams.bitDepth, is.facts->streams.bitDepth);
        QCOMPARE(back.facts->streams.sampleRate, is.facts->streams.sampleRate);
        QCOMPARE(back.facts->streams.channels, is.facts->streams.channels);
    }

    void everyMessageComesBack_data() { addMessages(); }
    void everyMessageComesBack()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Again, again);
        QCOMPARE(again(bytes), bytes);
    }

    void whatIsCutOffAnywhereIsRefused_data() { addMessages(); }
    void whatIsCutOffAnywhereIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Again, again);
        for (int length = 0; length < bytes.size(); ++length)
            QVERIFY2(again(bytes.left(length)).isEmpty(), qPrintable(QString::number(length)));
    }

    void whatGoesOnBehindItsEndIsRefused_data() { addMessages(); }
    void whatGoesOnBehindItsEndIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Again, again);
        QVERIFY(again(bytes + '\0').isEmpty());
    }

    void anUnknownCodeIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Again>("again");
        NxReadRequest road = request();
        road.road = NxFootageRoad(3);
        QTest::newRow("road") << packed(road) << Again(again<NxReadRequest>);
        NxReadAnswer answer = fullAnswer();
        answer.cover.outcome = NxPictureOutcome(4);
        QTest::newRow("outcome") << packed(answer) << Again(again<NxReadAnswer>);
        NxFootageStreams streams;
        streams.kind = NxFootageKind(6);
        QTest::newRow("kind") << packedStreams(streams) << Again(streamsAgain);
    }

    void anUnknownCodeIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Again, again);
        QVERIFY(again(bytes).isEmpty());
    }

    void damagedBytesAreRefusedOrUnderstoodButNeverHarm_data() { addMessages(); }
    void damagedBytesAreRefusedOrUnderstoodButNeverHarm()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Again, again);
        constexpr quint32 Seed = 20260101;
        std::mt19937 random(Seed);
        for (int round = 0; round < 2000; ++round) {
            QByteArray damaged = bytes;
            for (quint32 left = 1 + random() % 4; left > 0; --left)
                damaged[int(random() % quint32(damaged.size()))] = char(random());
            const QByteArray understood = again(damaged);
            // Whatever was understood is a message like any other.
            QVERIFY2(understood.isEmpty() || again(understood) == understood,
                     qPrintable(QStringLiteral("seed %1, round %2").arg(Seed).arg(round)));
        }
    }
};

NX_TEST_MAIN(tst_NxWorkerMessages)
#include "tst_NxWorkerMessages.moc"
