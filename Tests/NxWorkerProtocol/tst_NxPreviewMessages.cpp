// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPreviewMessages.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <functional>

using namespace NxPreviewMessages;

namespace {

/// Unpacks bytes as a message and packs what was understood again; empty when they are refused.
using Again = std::function<QByteArray(const QByteArray &)>;

template<typename Message>
QByteArray again(const QByteArray &bytes)
{
    Message message;
    return unpack(bytes, &message) ? packed(message) : QByteArray();
}

QByteArray restedAgain(const QByteArray &bytes)
{
    quint64 turn = 0;
    return unpackRested(bytes, &turn) ? packedRested(turn) : QByteArray();
}

constexpr quint64 Number = 0xFEDC'BA98'7654'3210ULL;
constexpr QSize Small(144, 81);
constexpr QSize Full(1920, 1080);
constexpr int LastSlot = NxPreviewSlots::Count - 1;

struct Sample
{
    const char *name;
    QByteArray bytes;
    Again again;
};

std::vector<Sample> samples()
{
    const NxPreviewOpen open{Number, QByteArray("/a\xff/b\0c", 7), Full};
    const NxPreviewShow show{Number, 7, 1'000'000'000'000, Small, NxPreviewSlots::All};
    const NxPreviewOpened opened{Number, 250, QStringLiteral("\u00e4")};
    const NxPreviewFrame frame{Number, 249, LastSlot, Full};
    return {{"open", packed(open), again<NxPreviewOpen>},
            {"show", packed(show), again<NxPreviewShow>},
            {"opened", packed(opened), again<NxPreviewOpened>},
            {"frame", packed(frame), again<NxPreviewFrame>},
            {"rested", packedRested(Number), restedAgain}};
}

NxPreviewFrame frameWith(qint64 frame, quint32 slot, QSize size)
{
    return {1, frame, slot, size};
}

NxPreviewShow showWith(qint64 frame, QSize size, quint32 freed)
{
    return {1, 1, frame, size, freed};
}

} // namespace

class tst_NxPreviewMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMessageComesBackAsItWas_data() { addSamples(); }
    void everyMessageComesBackAsItWas();
    void piecesAndExtraBytesAreNoMessages_data() { addSamples(); }
    void piecesAndExtraBytesAreNoMessages();
    void whatIsUnderstoodIsWhatWasSent();
    void whatCannotBeIsRefused_data();
    void whatCannotBeIsRefused();
    void picturesFitTheirSlots_data();
    void picturesFitTheirSlots();
    void theNextFramesAreWanted_data();
    void theNextFramesAreWanted();

private:
    static void addSamples();
};

void tst_NxPreviewMessages::addSamples()
{
    QTest::addColumn<int>("sample");
    const std::vector<Sample> all = samples();
    for (size_t i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << int(i);
}

void tst_NxPreviewMessages::everyMessageComesBackAsItWas()
{
    QFETCH(int, sample);
    const Sample message = samples().at(size_t(sample));
    QVERIFY(!message.bytes.isEmpty());
    QCOMPARE(message.again(message.bytes), message.bytes);
}

void tst_NxPreviewMessages::piecesAndExtraBytesAreNoMessages()
{
    QFETCH(int, sample);
    const Sample message = samples().at(size_t(sample));
    for (int length = 0; length < message.bytes.size(); ++length)
        QCOMPARE(message.again(message.bytes.left(length)), QByteArray());
    QCOMPARE(message.again(message.bytes + 'x'), QByteArray());
}

void tst_NxPreviewMessages::whatIsUnderstoodIsWhatWasSent()
{
    NxPreviewOpen open;
    QVERIFY(unpack(packed(NxPreviewOpen{3, "/a", Small}), &open));
    QCOMPARE(open.number, 3ULL);
    QCOMPARE(open.path, QByteArray("/a"));
    QCOMPARE(open.output, Small);
    NxPreviewShow show;
    QVERIFY(unpack(packed(NxPreviewShow{4, 5, 6, Full, 7}), &show));
    QCOMPARE(show.number, 4ULL);
    QCOMPARE(show.turn, 5ULL);
    QCOMPARE(show.frame, 6);
    QCOMPARE(show.size, Full);
    QCOMPARE(show.freed, 7U);
    NxPreviewFrame frame;
    QVERIFY(unpack(packed(NxPreviewFrame{8, 9, 10, Small}), &frame));
    QCOMPARE(frame.number, 8ULL);
    QCOMPARE(frame.frame, 9);
    QCOMPARE(frame.slot, 10U);
    QCOMPARE(frame.size, Small);
}

void tst_NxPreviewMessages::whatCannotBeIsRefused_data()
{
    QTest::addColumn<QByteArray>("good");
    QTest::addColumn<QByteArray>("bad");
    QTest::addColumn<int>("sample");
    constexpr int open = 0;
    constexpr int show = 1;
    constexpr int opened = 2;
    constexpr int frame = 3;
    const QByteArray goodFrame = packed(frameWith(0, LastSlot, Full));
    const QByteArray goodShow = packed(showWith(0, Full, NxPreviewSlots::All));
    const QSize tooLarge(Full.width() + 1, Full.height());
    const QSize huge(INT_MAX, INT_MAX);

    QTest::newRow("a slot past the last")
        << goodFrame << packed(frameWith(0, NxPreviewSlots::Count, Full)) << frame;
    QTest::newRow("a frame before the first")
        << goodFrame << packed(frameWith(-1, LastSlot, Full)) << frame;
    QTest::newRow("a picture larger than its slot")
        << goodFrame << packed(frameWith(0, LastSlot, tooLarge)) << frame;
    QTest::newRow("a picture beyond counting")
        << goodFrame << packed(frameWith(0, LastSlot, huge)) << frame;
    QTest::newRow("a picture of nothing")
        << goodFrame << packed(frameWith(0, LastSlot, {144, 0})) << frame;
    QTest::newRow("showing before the first")
        << goodShow << packed(showWith(-1, Full, NxPreviewSlots::All)) << show;
    QTest::newRow("showing larger than a slot")
        << goodShow << packed(showWith(0, tooLarge, NxPreviewSlots::All)) << show;
    QTest::newRow("a freed slot that there is not")
        << goodShow << packed(showWith(0, Full, NxPreviewSlots::All + 1)) << show;
    QTest::newRow("fewer frames than none")
        << packed(NxPreviewOpened{1, 0, {}}) << packed(NxPreviewOpened{1, -1, {}}) << opened;
    QTest::newRow("an output of nothing")
        << packed(NxPreviewOpen{1, {}, Full}) << packed(NxPreviewOpen{1, {}, {0, 0}}) << open;
}

void tst_NxPreviewMessages::whatCannotBeIsRefused()
{
    QFETCH(QByteArray, good);
    QFETCH(QByteArray, bad);
    QFETCH(int, sample);
    const Again again = samples().at(size_t(sample)).again;
    QCOMPARE(again(good), good);
    QCOMPARE(again(bad), QByteArray());
}

void tst_NxPreviewMessages::picturesFitTheirSlots_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("fits");
    QTest::newRow("a film strip's") << Small << true;
    QTest::newRow("a full one") << Full << true;
    QTest::newRow("a tall one") << QSize(1080, 1920) << true;
    QTest::newRow("one row of all pixels") << QSize(1920 * 1080, 1) << true;
    QTest::newRow("one pixel more") << QSize(1920 * 1080 + 1, 1) << false;
    QTest::newRow("one row more") << QSize(1920, 1081) << false;
    QTest::newRow("sizes whose product wraps") << QSize(1 << 16, 1 << 16) << false;
    QTest::newRow("no width") << QSize(0, 1) << false;
    QTest::newRow("less than nothing") << QSize(-144, -81) << false;
}

void tst_NxPreviewMessages::picturesFitTheirSlots()
{
    QFETCH(QSize, size);
    QFETCH(bool, fits);
    QCOMPARE(NxPreviewSlots::fits(size), fits);
}

void tst_NxPreviewMessages::theNextFramesAreWanted_data()
{
    QTest::addColumn<qint64>("frame");
    QTest::addColumn<qint64>("shown");
    QTest::addColumn<qint64>("frames");
    QTest::addColumn<bool>("wanted");
    const auto row = [](const char *name, qint64 frame, qint64 shown, qint64 frames, bool wanted) {
        QTest::newRow(name) << frame << shown << frames << wanted;
    };
    row("the one that is shown", 5, 5, 100, true);
    row("the one before", 4, 5, 100, false);
    row("the last ahead", 5 + LastSlot, 5, 100, true);
    row("one further", 6 + LastSlot, 5, 100, false);
    row("the first, near the end", 0, 95, 100, true);
    row("the last of the next round", LastSlot - 5, 95, 100, true);
    row("one further in the next round", LastSlot - 4, 95, 100, false);
    row("past the end", 100, 95, 100, false);
    row("all of a short film", 2, 3, 4, true);
    row("less than the first", -1, 0, 100, false);
    row("while the end is not known", 16, 5, 0, true);
    row("before, while the end is not known", 4, 5, 0, false);
    row("shown past the end", 1, 100, 100, false);
}

void tst_NxPreviewMessages::theNextFramesAreWanted()
{
    QFETCH(qint64, frame);
    QFETCH(qint64, shown);
    QFETCH(qint64, frames);
    QFETCH(bool, wanted);
    QCOMPARE(NxPreviewSlots::isWanted(frame, shown, frames), wanted);
}

NX_TEST_MAIN(tst_NxPreviewMessages)
#include "tst_NxPreviewMessages.moc"
