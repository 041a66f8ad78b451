// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/INxAppInfo.h>
#include <NxWidgets/NxSkinPicture.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTest>

#include <cstdlib>

using Utils = NxMediaLibraryUtils;
using namespace NXVBLMODEL;

namespace {

struct ResourcesAt final : INxAppInfo
{
    explicit ResourcesAt(const QString &path) : folder(path) { setInstance(this); }
    ~ResourcesAt() override { setInstance(nullptr); }
    QString getDirectory(int kind) override { return kind == pkResources ? folder : QString(); }
    QString folder;
};

const QSize FrameSize(1920, 1080);
const QSize PhotoSize(4000, 3000);

UtilsInfo fullInfo(int flags)
{
    UtilsInfo info(mikVideo, flags);
    info.video.emplace();
    info.video->frameSize = FrameSize;
    info.audio.emplace();
    info.audio->sampleRate = 44100;
    info.image.emplace();
    info.image->size = PhotoSize;
    return info;
}

} // namespace

class tst_NxMediaLibraryUtils_text : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlySomeTypesHaveALength_data();
    void onlySomeTypesHaveALength();
    void writesALengthByItsRate_data();
    void writesALengthByItsRate();
    void asksTheItemOnlyWithoutInformation();
    void nothingHasNoLength();
    void writesWhenAFileWasMade();
    void writesNoDateForAFileThatIsGone();
    void nothingHasNoDate();
    void aVideoIsAsLargeAsItsStream();
    void aPhotoIsAsLargeAsItsImage();
    void movingPicturesGoBeforeStillOnes();
    void whatIsNotReadableHasNoSize_data();
    void whatIsNotReadableHasNoSize();
    void readsTheRateOfVideoAndSoundAlone_data();
    void readsTheRateOfVideoAndSoundAlone();
    void whatIsNotReadableHasNoSampleRate();
    void defaultCoversStandInTheResourceFolder();
    void defaultCoversKeepTheFoldersOwnName();
    void withoutResourcesThereIsNoCover();
    void theCoversCameWithTheLibrary_data();
    void theCoversCameWithTheLibrary();
    void theCoversAreThereForCrispScreensToo_data();
    void theCoversAreThereForCrispScreensToo();
};

void tst_NxMediaLibraryUtils_text::onlySomeTypesHaveALength_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    const QString minute = QStringLiteral("00:01:00:00");
    for (const int type : {0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 14, 16, 17, 18, 19}) {
        const bool has = type == 2 || type == 3 || type == 4 || type == 14 || type == 16;
        QTest::addRow("type %d", type) << type << (has ? minute : QString());
    }
}

void tst_NxMediaLibraryUtils_text::onlySomeTypesHaveALength()
{
    QFETCH(int, type);
    UtilsItem item(type);
    item.frames = 1500;
    item.rate = {25, 1};
    QTEST(Utils::getDuration(&item), "text");
}

void tst_NxMediaLibraryUtils_text::writesALengthByItsRate_data()
{
    QTest::addColumn<qint64>("frames");
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("den");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, qint64 frames, int num, int den, const char *text) {
        QTest::newRow(name) << frames << num << den << QString::fromLatin1(text);
    };
    row("25", 37, 25, 1, "00:00:01:12");
    row("50/2", 37, 50, 2, "00:00:01:12");
    row("nothing yet", 0, 25, 1, "00:00:00:00");
    row("negative", -1, 25, 1, "");
    // 23.97 makes 1000 seconds of 23970 frames; at 24000/1001 they are 999 seconds and some.
    row("film", 23970, 24000, 1001, "00:16:40:00");
    row("film unreduced", 23970, 48000, 2002, "00:16:39:17");
    row("23.976", 23970, 23976, 1000, "00:16:39:17");
    row("30000/1001", 29971, 30000, 1001, "00:16:40:00");
    row("60", 3600, 60, 1, "00:01:00:00");
    row("120 as 60", 3600, 120, 1, "00:01:00:00");
    row("just above 60", 3601, 61, 1, "00:01:00:01");
    row("1", 61, 1, 1, "00:01:01:00");
    row("below 1", 61, 99, 100, "");
    row("0/0", 61, 0, 0, "");
    row("over 0", 61, 25, 0, "");
    row("0/1", 61, 0, 1, "");
    row("both negative", 61, -25, -1, "");
    row("negative numerator", 61, -25, 1, "");
    row("a hundred hours", 9000000, 25, 1, "100:00:00:00");
}

void tst_NxMediaLibraryUtils_text::writesALengthByItsRate()
{
    QFETCH(qint64, frames);
    QFETCH(int, num);
    QFETCH(int, den);
    UtilsItem item(mtVideo);
    item.frames = frames;
    item.rate = {num, den};
    QTEST(Utils::getDuration(&item), "text");

    UtilsInfo info(mikVideo, sfVideo);
    info.frames = frames;
    info.rate = {num, den};
    UtilsItem informed(mtVideo);
    informed.info = &info;
    QTEST(Utils::getDuration(&informed), "text");
}

void tst_NxMediaLibraryUtils_text::asksTheItemOnlyWithoutInformation()
{
    UtilsInfo info;
    info.frames = 50;
    info.rate = {25, 1};
    UtilsItem item(mtAudio);
    item.frames = 100;
    item.rate = {10, 1};
    QCOMPARE(Utils::getDuration(&item), QStringLiteral("00:00:10:00"));
    item.info = &info;
    QCOMPARE(Utils::getDuration(&item), QStringLiteral("00:00:02:00"));
    info.rate = {};
    QCOMPARE(Utils::getDuration(&item), QString());
    info.rate = {25, 1};
    info.frames = -1;
    QCOMPARE(Utils::getDuration(&item), QString());
}

void tst_NxMediaLibraryUtils_text::nothingHasNoLength()
{
    QCOMPARE(Utils::getDuration(nullptr), QString());
}

void tst_NxMediaLibraryUtils_text::writesWhenAFileWasMade()
{
    const NxTempDir dir;
    UtilsItem item(mtVideo);
    item.file = dir.write(QStringLiteral("a.mp4"));
    QFile file(item.file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime changed(QDate(2019, 1, 2), QTime(15, 4, 5));
    QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
    file.close();

    const QDateTime born = QFileInfo(item.file).birthTime();
    const QString expected = born.isValid() ? born.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss"))
                                            : QStringLiteral("2019/01/02 15:04:05");
    QCOMPARE(Utils::getCreatDate(&item), expected);
    QCOMPARE(expected.size(), 19);
}

void tst_NxMediaLibraryUtils_text::writesNoDateForAFileThatIsGone()
{
    const NxTempDir dir;
    UtilsItem item(mtVideo);
    item.file = dir.write(QStringLiteral("a.mp4"));
    QVERIFY(!Utils::getCreatDate(&item).isEmpty());
    QVERIFY(QFile::remove(item.file));
    QCOMPARE(Utils::getCreatDate(&item), QString());
}

void tst_NxMediaLibraryUtils_text::nothingHasNoDate()
{
    QCOMPARE(Utils::getCreatDate(nullptr), QString());
    const UtilsItem withoutFile(mtVideo);
    QCOMPARE(Utils::getCreatDate(&withoutFile), QString());
}

void tst_NxMediaLibraryUtils_text::aVideoIsAsLargeAsItsStream()
{
    UtilsInfo info = fullInfo(sfVideo);
    UtilsItem item(mtVideo);
    item.info = &info;
    QCOMPARE(Utils::getResolution(&item), FrameSize);
    UtilsItem resource(mtVideoAudio);
    resource.resource = true;
    resource.info = &info;
    QCOMPARE(Utils::getResolution(&resource), FrameSize);
    info.video.reset();
    QVERIFY(!Utils::getResolution(&item).isValid());
}

void tst_NxMediaLibraryUtils_text::aPhotoIsAsLargeAsItsImage()
{
    UtilsInfo info = fullInfo(sfImage);
    UtilsItem item(mtImage);
    item.info = &info;
    QCOMPARE(Utils::getResolution(&item), PhotoSize);
    info.image.reset();
    QVERIFY(!Utils::getResolution(&item).isValid());
}

void tst_NxMediaLibraryUtils_text::movingPicturesGoBeforeStillOnes()
{
    UtilsInfo info = fullInfo(sfImage | sfVideo);
    UtilsItem item(mtImage);
    item.info = &info;
    QCOMPARE(Utils::getResolution(&item), FrameSize);
    info.video.reset();
    QVERIFY(!Utils::getResolution(&item).isValid());
}

void tst_NxMediaLibraryUtils_text::whatIsNotReadableHasNoSize_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("informed");
    QTest::addColumn<bool>("unavailable");
    QTest::newRow("sound") << 3 << int(sfAudio) << true << false;
    QTest::newRow("nothing known") << 2 << int(sfVideo) << false << false;
    QTest::newRow("video offline") << 2 << int(sfVideo) << true << true;
    QTest::newRow("photo offline") << 5 << int(sfImage) << true << true;
}

void tst_NxMediaLibraryUtils_text::whatIsNotReadableHasNoSize()
{
    QFETCH(int, type);
    QFETCH(int, flags);
    QFETCH(bool, informed);
    QFETCH(bool, unavailable);
    const UtilsInfo info = fullInfo(flags);
    UtilsItem item(type);
    item.info = informed ? &info : nullptr;
    item.unavailable = unavailable;
    QVERIFY(!Utils::getResolution(&item).isValid());
    QVERIFY(!Utils::getResolution(nullptr).isValid());
    UtilsItem gif(mtElement);
    gif.sub = mskGif;
    QVERIFY(!Utils::getResolution(&gif).isValid());
}

void tst_NxMediaLibraryUtils_text::readsTheRateOfVideoAndSoundAlone_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("rate");
    QTest::newRow("sound") << 3 << int(sfAudio) << 44100;
    QTest::newRow("sound by type alone") << 3 << int(sfNone) << 44100;
    QTest::newRow("video with sound") << 4 << int(sfVideo | sfAudio) << 44100;
    QTest::newRow("video by stream") << 5 << int(sfVideo) << 44100;
    QTest::newRow("photo") << 5 << int(sfImage) << 0;
    QTest::newRow("template") << 16 << int(sfAudio) << 0;
}

void tst_NxMediaLibraryUtils_text::readsTheRateOfVideoAndSoundAlone()
{
    QFETCH(int, type);
    QFETCH(int, flags);
    const UtilsInfo info = fullInfo(flags);
    UtilsItem item(type);
    item.info = &info;
    QTEST(Utils::getAudioSampleRate(&item), "rate");
}

void tst_NxMediaLibraryUtils_text::whatIsNotReadableHasNoSampleRate()
{
    QCOMPARE(Utils::getAudioSampleRate(nullptr), 0);
    UtilsItem item(mtAudio);
    QCOMPARE(Utils::getAudioSampleRate(&item), 0);
    UtilsInfo info = fullInfo(sfAudio);
    item.info = &info;
    QCOMPARE(Utils::getAudioSampleRate(&item), 44100);
    item.unavailable = true;
    QCOMPARE(Utils::getAudioSampleRate(&item), 0);
    item.unavailable = false;
    info.audio.reset();
    QCOMPARE(Utils::getAudioSampleRate(&item), 0);
}

void tst_NxMediaLibraryUtils_text::defaultCoversStandInTheResourceFolder()
{
    const ResourcesAt info(QStringLiteral("/opt/brevano/share"));
    QCOMPARE(Utils::getDefaultAudioThumbnailImagePath(),
             QStringLiteral("/opt/brevano/share/CommonResource/music_DefaultCover.png"));
    QCOMPARE(Utils::getDefaultSubtitleThumbnailImagePath(),
             QStringLiteral("/opt/brevano/share/CommonResource/subtitle_DefaultCover.png"));
}

void tst_NxMediaLibraryUtils_text::defaultCoversKeepTheFoldersOwnName()
{
#ifdef Q_OS_WIN
    const QString shown = QStringLiteral("C:/odd/name");
#else
    const QString shown = QStringLiteral("C:\\odd/name");
#endif
    const ResourcesAt info(QStringLiteral("C:\\odd/name"));
    QCOMPARE(Utils::getDefaultAudioThumbnailImagePath(),
             shown + QLatin1String("/CommonResource/music_DefaultCover.png"));
}

void tst_NxMediaLibraryUtils_text::withoutResourcesThereIsNoCover()
{
    const ResourcesAt info{QString()};
    QCOMPARE(Utils::getDefaultAudioThumbnailImagePath(), QString());
    QCOMPARE(Utils::getDefaultSubtitleThumbnailImagePath(), QString());
}

void tst_NxMediaLibraryUtils_text::theCoversCameWithTheLibrary_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("sound") << Utils::getDefaultAudioThumbnailImagePath();
    QTest::newRow("subtitle") << Utils::getDefaultSubtitleThumbnailImagePath();
}

void tst_NxMediaLibraryUtils_text::theCoversCameWithTheLibrary()
{
    QFETCH(QString, path);
    const QImage cover(path);
    QVERIFY2(!cover.isNull(), qPrintable(path));
    QCOMPARE(cover.size(), QSize(480, 270));
    // Something light stands on a dark ground.
    QVERIFY(qGray(cover.pixel(2, 2)) < 80);
    int light = 0;
    for (int y = 0; y < cover.height(); ++y) {
        for (int x = 0; x < cover.width(); ++x)
            light += qGray(cover.pixel(x, y)) > 120;
    }
    QVERIFY2(light > 1000, qPrintable(QString::number(light)));
}

void tst_NxMediaLibraryUtils_text::theCoversAreThereForCrispScreensToo_data()
{
    theCoversCameWithTheLibrary_data();
}

void tst_NxMediaLibraryUtils_text::theCoversAreThereForCrispScreensToo()
{
    QFETCH(QString, path);
    const NxSkinPicture cover(path);
    const QImage plain = cover.pixmap(1.0).toImage();
    const QImage crisp = cover.pixmap(2.0).toImage();
    QCOMPARE(crisp.size(), plain.size() * 2);
    QCOMPARE(crisp.devicePixelRatio(), 2.0);

    const QImage shrunk =
        crisp.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    qint64 difference = 0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x)
            difference += std::abs(qGray(plain.pixel(x, y)) - qGray(shrunk.pixel(x, y)));
    }
    QVERIFY2(difference < qint64(plain.width()) * plain.height(), qPrintable(path));
}

NX_TEST_MAIN(tst_NxMediaLibraryUtils_text)
#include "tst_NxMediaLibraryUtils_text.moc"
