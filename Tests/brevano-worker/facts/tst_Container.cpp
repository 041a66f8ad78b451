// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MadeClip.h"

#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/input/ReadingLimit.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QObject>
#include <QtTest>

#include <memory>

namespace {

struct Opened
{
    std::unique_ptr<FootageFile> file;
    std::unique_ptr<Container> container;
    QString error;
};

Opened opened(const QString &path)
{
    Opened result;
    auto file = FootageFile::open(QFile::encodeName(path));
    if (!file)
        return {nullptr, nullptr, file.errorText()};
    result.file = file.take();
    auto container = Container::open(result.file.get());
    result.error = container.errorText();
    if (container)
        result.container = container.take();
    return result;
}

int packetsOf(const Container &container)
{
    int packets = 0;
    AVPacket *packet = av_packet_alloc();
    while (av_read_frame(container.format(), packet) >= 0) {
        ++packets;
        av_packet_unref(packet);
    }
    av_packet_free(&packet);
    return packets;
}

} // namespace

class tst_Container : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aFileThatNamesOthersIsRefused_data();
    void aFileThatNamesOthersIsRefused();
    void theReasonSaysWhatIsWrong_data();
    void theReasonSaysWhatIsWrong();
    void coverArtIsNoVideo();
    void theDefaultStreamIsShown();
    void aLimitEndsTheFileAndGoesAway();
    void packetsComeFromTheBeginningAgain_data();
    void packetsComeFromTheBeginningAgain();

private:
    const NxTempDir m_dir;
    QString m_clip;
};

void tst_Container::initTestCase()
{
    m_clip = MadeClip::make(m_dir, QStringLiteral("clip.mp4"),
                            MadeClip::pictures(25) + QLatin1String("-c:v mpeg4"));
}

void tst_Container::aFileThatNamesOthersIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a playlist") << QByteArray("#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n"
                                              "clip.mp4\n#EXT-X-ENDLIST\n");
    QTest::newRow("a list of parts") << QByteArray("ffconcat version 1.0\nfile clip.mp4\n");
    QTest::newRow("a description of a session")
        << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\nt=0 0\n"
                      "m=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n");
    QTest::newRow("an adaptive film")
        << QByteArray("<?xml version=\"1.0\"?>\n<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
                      "type=\"static\" profiles=\"urn:mpeg:dash:profile:isoff-main:2011\">"
                      "<Period/></MPD>\n");
}

void tst_Container::aFileThatNamesOthersIsRefused()
{
    QFETCH(QByteArray, content);
    for (const char *name : {"list.mp4", "list.ts", "list.mkv", "list.m3u8"}) {
        const Opened file = opened(m_dir.write(QString::fromLatin1(name), content));
        QVERIFY2(!file.container, name);
        QCOMPARE(file.error,
                 QStringLiteral("The file is neither a film nor sound that can be read."));
    }
}

void tst_Container::theReasonSaysWhatIsWrong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QFile file(m_clip);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray clip = file.readAll();
    QTest::newRow("the end is cut off")
        << QStringLiteral("cut.mp4") << clip.left(clip.size() / 2)
        << QStringLiteral("The file is damaged: moov atom not found.");
    QTest::newRow("letters") << QStringLiteral("diary.dat")
                             << QByteArray("Dear diary, today nothing happened at all.")
                             << QStringLiteral(
                                    "The file is neither a film nor sound that can be read.");
    QTest::newRow("a beginning and nothing more")
        << QStringLiteral("begun.gif") << QByteArray("GIF89a\x40")
        << QStringLiteral("The file is damaged, or no film and no sound.");
}

void tst_Container::theReasonSaysWhatIsWrong()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const Opened file = opened(m_dir.write(name, content));
    QVERIFY(!file.container);
    QTEST(file.error, "reason");
}

void tst_Container::coverArtIsNoVideo()
{
    const Opened file = opened(MadeClip::make(
        m_dir, QStringLiteral("song.m4a"),
        MadeClip::sound(1) + MadeClip::pictures(1)
            + QLatin1String("-map 0 -map 1 -c:v mjpeg -c:a aac -disposition:v attached_pic")));
    QVERIFY2(file.container, qUtf8Printable(file.error));
    QVERIFY(!file.container->video());
    QVERIFY(file.container->coverArt());
    QVERIFY(file.container->audio());
}

void tst_Container::theDefaultStreamIsShown()
{
    const Opened file = opened(MadeClip::make(
        m_dir, QStringLiteral("two.mkv"),
        MadeClip::pictures(5, "160x90") + MadeClip::pictures(5, "320x180")
            + QLatin1String(
                "-map 0 -map 1 -c:v mjpeg -disposition:v:0 0 -disposition:v:1 default")));
    QVERIFY2(file.container, qUtf8Printable(file.error));
    QCOMPARE(file.container->video()->codecpar->width, 320);
}

void tst_Container::aLimitEndsTheFileAndGoesAway()
{
    const QString path = MadeClip::make(m_dir, QStringLiteral("large.mkv"),
                                        MadeClip::noise(25) + QLatin1String("-c:v mjpeg -q:v 2"));
    const Opened file = opened(path);
    QVERIFY2(file.container, qUtf8Printable(file.error));
    {
        const ReadingLimit limit(file.container.get(), 1'024 * 1'024);
        QVERIFY(!limit.wasReached());
        const int packets = packetsOf(*file.container);
        QVERIFY2(packets > 0 && packets < 25, qPrintable(QString::number(packets)));
        QVERIFY(limit.wasReached());
    }
    file.container->rewind();
    QCOMPARE(packetsOf(*file.container), 25);
}

void tst_Container::packetsComeFromTheBeginningAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("codec");
    QTest::newRow("mp4") << QStringLiteral("again.mp4") << QStringLiteral("mpeg4");
    QTest::newRow("mkv") << QStringLiteral("again.mkv") << QStringLiteral("mjpeg");
    QTest::newRow("ts") << QStringLiteral("again.ts") << QStringLiteral("mpeg2video");
    QTest::newRow("mpg") << QStringLiteral("again.mpg") << QStringLiteral("mpeg2video");
    QTest::newRow("avi") << QStringLiteral("again.avi") << QStringLiteral("mjpeg");
    QTest::newRow("mxf") << QStringLiteral("again.mxf") << QStringLiteral("mpeg2video");
    QTest::newRow("gif") << QStringLiteral("again.gif") << QStringLiteral("gif");
}

void tst_Container::packetsComeFromTheBeginningAgain()
{
    QFETCH(QString, name);
    QFETCH(QString, codec);
    const Opened file = opened(
        MadeClip::make(m_dir, name, MadeClip::pictures(25) + QStringLiteral("-c:v %1").arg(codec)));
    QVERIFY2(file.container, qUtf8Printable(file.error));
    const auto analysed = file.container->analyse();
    QVERIFY2(analysed, qUtf8Printable(analysed.errorText()));
    QCOMPARE(packetsOf(*file.container), 25);
    file.container->rewind();
    QCOMPARE(packetsOf(*file.container), 25);
}

NX_TEST_MAIN(tst_Container)
#include "tst_Container.moc"
