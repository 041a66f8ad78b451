// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <Support/NxTestMain.h>

#include <QTest>

using Utils = NxMediaLibraryUtils;

namespace {

struct Info final : INxMediaInfo
{
    int kind() const override { return NXVBLMODEL::mikVideo; }
    int streamFlags() const override { return flags; }
    const NxVideoStreamInfo *videoStream() const override { return stream; }
    QString demuxer() const override { return QStringLiteral("mpeg"); }
    int flags = NXVBLMODEL::sfVideo;
    const NxVideoStreamInfo *stream = nullptr;
};

struct Item final : INxAbstractMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    const INxMediaInfo *mediaInfo() const override { return info; }
    QString filePath() const override { return file; }
    QString sourcePath() const override { return source; }
    const INxMediaInfo *info = nullptr;
    QString file;
    QString source;
};

enum Family { Other, H264, H265 };

} // namespace

class tst_NxMediaLibraryUtils_codec : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsACodecByItsTag_data();
    void knowsACodecByItsTag();
    void knowsHevcByItsName_data();
    void knowsHevcByItsName();
    void tagAndNameAreReadApart();
    void saysNoOfNothing();
    void saysNoWithoutInformation();
    void saysNoWhenNoPicturesAreReported();
    void saysNoWithoutAStream();
    void knowsADvdFileByItsSuffix_data();
    void knowsADvdFileByItsSuffix();
    void readsTheSourceWhenThereIsNoFile();
};

void tst_NxMediaLibraryUtils_codec::knowsACodecByItsTag_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("family");
    const auto row = [](const char *tag, Family family) {
        QTest::newRow(*tag ? tag : "no tag") << QString::fromLatin1(tag) << int(family);
    };
    row("H264", H264);
    row("FAVC", H264);
    row("havc", H264);
    row("K264", H264);
    row("I264", H264);
    row("IAVC", H264);
    row("IPON", H264);
    row("IPAN", H264);
    row("M264", H264);
    row("N264", H264);
    row("PS3H", H264);
    row("PAVC", H264);
    row("VAVC", H264);
    row("X264", H264);
    row("HEVC", H265);
    row("K265", H265);
    row("H265", H265);

    // Case is part of a tag.
    row("h264", Other);
    row("HAVC", Other);
    row("x264", Other);
    row("hevc", Other);
    row("h265", Other);
    row("avc1", Other);
    row("hvc1", Other);
    row("H264 ", Other);
    row("H26", Other);
    row("", Other);
}

void tst_NxMediaLibraryUtils_codec::knowsACodecByItsTag()
{
    QFETCH(QString, tag);
    QFETCH(int, family);
    NxVideoStreamInfo stream;
    stream.codecTag = tag;
    Info info;
    info.stream = &stream;
    Item item;
    item.info = &info;
    QCOMPARE(Utils::isH264Encode(&item), family == H264);
    QCOMPARE(Utils::isH265Encode(&item), family == H265);
    QVERIFY(!Utils::IsHevc(&item));
}

void tst_NxMediaLibraryUtils_codec::knowsHevcByItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isHevc");
    QTest::newRow("HEVC") << QStringLiteral("HEVC") << true;
    QTest::newRow("hevc") << QStringLiteral("hevc") << false;
    QTest::newRow("H265") << QStringLiteral("H265") << false;
    QTest::newRow("HEVC Main 10") << QStringLiteral("HEVC Main 10") << false;
    QTest::newRow("unknown") << QString() << false;
}

void tst_NxMediaLibraryUtils_codec::knowsHevcByItsName()
{
    QFETCH(QString, name);
    QFETCH(bool, isHevc);
    NxVideoStreamInfo stream;
    stream.codecName = name;
    Info info;
    info.stream = &stream;
    Item item;
    item.info = &info;
    QCOMPARE(Utils::IsHevc(&item), isHevc);
}

void tst_NxMediaLibraryUtils_codec::tagAndNameAreReadApart()
{
    NxVideoStreamInfo stream;
    stream.codecTag = QStringLiteral("X264");
    stream.codecName = QStringLiteral("HEVC");
    Info info;
    info.stream = &stream;
    Item item;
    item.info = &info;
    QVERIFY(Utils::isH264Encode(&item));
    QVERIFY(!Utils::isH265Encode(&item));
    QVERIFY(Utils::IsHevc(&item));
}

void tst_NxMediaLibraryUtils_codec::saysNoOfNothing()
{
    QVERIFY(!Utils::IsHevc(nullptr));
    QVERIFY(!Utils::isH264Encode(nullptr));
    QVERIFY(!Utils::isH265Encode(nullptr));
    QVERIFY(!Utils::IsVob(nullptr));
}

void tst_NxMediaLibraryUtils_codec::saysNoWithoutInformation()
{
    Item item;
    QVERIFY(!Utils::IsHevc(&item));
    QVERIFY(!Utils::isH264Encode(&item));
    QVERIFY(!Utils::isH265Encode(&item));
    QVERIFY(!Utils::IsVob(&item));
}

void tst_NxMediaLibraryUtils_codec::saysNoWhenNoPicturesAreReported()
{
    NxVideoStreamInfo stream;
    stream.codecTag = QStringLiteral("HEVC");
    stream.codecName = QStringLiteral("HEVC");
    Info info;
    info.stream = &stream;
    info.flags = NXVBLMODEL::sfAudio | NXVBLMODEL::sfImage;
    Item item;
    item.info = &info;
    QVERIFY(!Utils::IsHevc(&item));
    QVERIFY(!Utils::isH265Encode(&item));
    stream.codecTag = QStringLiteral("H264");
    QVERIFY(!Utils::isH264Encode(&item));
}

void tst_NxMediaLibraryUtils_codec::saysNoWithoutAStream()
{
    const Info info;
    Item item;
    item.info = &info;
    QVERIFY(!Utils::IsHevc(&item));
    QVERIFY(!Utils::isH264Encode(&item));
    QVERIFY(!Utils::isH265Encode(&item));
}

void tst_NxMediaLibraryUtils_codec::knowsADvdFileByItsSuffix_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isVob");
    QTest::newRow("capitals") << QStringLiteral("/dvd/VTS_01_1.VOB") << true;
    QTest::newRow("small letters") << QStringLiteral("/dvd/film.vob") << true;
    QTest::newRow("mixed") << QStringLiteral("/dvd/film.Vob") << true;
    QTest::newRow("another container of the same reader")
        << QStringLiteral("/dvd/film.mpg") << false;
    QTest::newRow("longer suffix") << QStringLiteral("/dvd/film.vobs") << false;
    QTest::newRow("name without suffix") << QStringLiteral("/dvd/vob") << false;
    QTest::newRow("not the last suffix") << QStringLiteral("/dvd/film.vob.mp4") << false;
    QTest::newRow("no file") << QString() << false;
}

void tst_NxMediaLibraryUtils_codec::knowsADvdFileByItsSuffix()
{
    QFETCH(QString, file);
    QFETCH(bool, isVob);
    const Info info;
    Item item;
    item.info = &info;
    item.file = file;
    QCOMPARE(Utils::IsVob(&item), isVob);
}

void tst_NxMediaLibraryUtils_codec::readsTheSourceWhenThereIsNoFile()
{
    Item item;
    item.source = QStringLiteral("/dvd/film.vob");
    QVERIFY(Utils::IsVob(&item));
    item.file = QStringLiteral("/downloads/film.mp4");
    QVERIFY(!Utils::IsVob(&item));
}

NX_TEST_MAIN(tst_NxMediaLibraryUtils_codec)
#include "tst_NxMediaLibraryUtils_codec.moc"
