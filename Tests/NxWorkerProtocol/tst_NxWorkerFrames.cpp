// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <Support/NxTestMain.h>

#include <QtEndian>
#include <QtTest>

namespace {

constexpr int HeadBytes = 5;

/// What a frame begins with, whatever follows.
QByteArray head(quint32 length, quint8 word)
{
    QByteArray bytes(HeadBytes, '\0');
    qToLittleEndian(length, bytes.data());
    bytes[HeadBytes - 1] = char(word);
    return bytes;
}

/// All whole messages that are there, "word:bytes" each.
QStringList taken(NxWorkerFrames *frames)
{
    QStringList lines;
    while (const std::optional<NxWorkerFrames::Frame> frame = frames->take())
        lines +=
            QStringLiteral("%1:%2").arg(int(frame->word)).arg(QString::fromLatin1(frame->bytes));
    return lines;
}

QByteArray threeMessages()
{
    return NxWorkerFrames::framed(NxWorkerWord::Hello, "hello")
           + NxWorkerFrames::framed(NxWorkerWord::Opened, {})
           + NxWorkerFrames::framed(NxWorkerWord::Answer, "a long answer");
}

const QStringList ThreeMessages{QStringLiteral("1:hello"), QStringLiteral("3:"),
                                QStringLiteral("4:a long answer")};

} // namespace

class tst_NxWorkerFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFrameIsLengthWordAndBytes()
    {
        QCOMPARE(NxWorkerFrames::framed(NxWorkerWord::Request, "abc"), QByteArray("\x03\0\0\0\x02"
                                                                                  "abc",
                                                                                  8));
    }

    void everyWordGoesThrough()
    {
        for (const NxWorkerWord word :
             {NxWorkerWord::Hello, NxWorkerWord::Request, NxWorkerWord::Opened,
              NxWorkerWord::Answer, NxWorkerWord::PreviewOpen, NxWorkerWord::PreviewShow,
              NxWorkerWord::PreviewOpened, NxWorkerWord::PreviewFrame,
              NxWorkerWord::PreviewRested}) {
            NxWorkerFrames frames;
            frames.append(NxWorkerFrames::framed(word, "x"));
            const std::optional<NxWorkerFrames::Frame> frame = frames.take();
            QVERIFY(frame);
            QCOMPARE(frame->word, word);
            QCOMPARE(frame->bytes, QByteArray("x"));
        }
    }

    void messagesComeWholeWhereverThePipePartsThem()
    {
        const QByteArray bytes = threeMessages();
        for (int cut = 0; cut <= bytes.size(); ++cut) {
            NxWorkerFrames frames;
            frames.append(bytes.left(cut));
            QStringList lines = taken(&frames);
            QVERIFY(lines == ThreeMessages.mid(0, lines.size()));
            frames.append(bytes.mid(cut));
            lines += taken(&frames);
            QCOMPARE(lines, ThreeMessages);
            QVERIFY(!frames.isBroken());
        }
    }

    void messagesComeWholeByteByByte()
    {
        NxWorkerFrames frames;
        QStringList lines;
        const QByteArray bytes = threeMessages();
        for (const char byte : bytes) {
            frames.append(QByteArray(1, byte));
            lines += taken(&frames);
        }
        QCOMPARE(lines, ThreeMessages);
    }

    void whatCanBeNoMessageBreaksTheThread_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no word") << head(0, 0);
        QTest::newRow("a word beyond the last") << head(0, quint8(NxWorkerWord::PreviewRested) + 1);
        QTest::newRow("a byte too long")
            << head(NxWorkerProtocol::LongestMessage + 1, quint8(NxWorkerWord::Answer));
        QTest::newRow("longest number") << head(0xFFFF'FFFF, quint8(NxWorkerWord::Answer));
        QTest::newRow("a text") << QByteArray("usage: worker\n");
    }

    void whatCanBeNoMessageBreaksTheThread()
    {
        QFETCH(QByteArray, bytes);
        NxWorkerFrames frames;
        frames.append(NxWorkerFrames::framed(NxWorkerWord::Hello, "hello") + bytes);
        QCOMPARE(taken(&frames), QStringList(QStringLiteral("1:hello")));
        QVERIFY(frames.isBroken());
        frames.append(threeMessages()); // No sense comes after nonsense.
        QVERIFY(!frames.take());
        QVERIFY(frames.isBroken());
    }

    void theLongestMessageIsWaitedFor()
    {
        NxWorkerFrames frames;
        frames.append(head(NxWorkerProtocol::LongestMessage, quint8(NxWorkerWord::Answer)));
        QVERIFY(!frames.take());
        QVERIFY(!frames.isBroken());
        frames.append(QByteArray(int(NxWorkerProtocol::LongestMessage), 'x'));
        const std::optional<NxWorkerFrames::Frame> frame = frames.take();
        QVERIFY(frame);
        QCOMPARE(quint32(frame->bytes.size()), NxWorkerProtocol::LongestMessage);
    }
};

NX_TEST_MAIN(tst_NxWorkerFrames)
#include "tst_NxWorkerFrames.moc"
