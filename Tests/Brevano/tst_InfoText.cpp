// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/InfoText.h>
#include <NxVBLModel/INxFootageService.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace NXVBLMODEL;

namespace {

QString valueOf(const QStringList &lines, const char *name)
{
    const QString head = QLatin1String(name) + QLatin1Char(':');
    for (const QString &line : lines) {
        if (line.startsWith(head))
            return line.mid(head.size()).trimmed();
    }
    return {};
}

NxFootageState allDone()
{
    NxFootageState state;
    state.facts = state.cover = state.strip = NxFootageStatus::Done;
    state.coverPath = QStringLiteral("/cache/c.jpg");
    state.stripPath = QStringLiteral("/cache/s.jpg");
    state.fingerprint = "00ff";
    return state;
}

/// A media of a file that is there, of which nothing is known.
struct Item
{
    explicit Item(const QString &name = QStringLiteral("a.mp4"))
        : media(folder.addItem(dir.write(name)))
    {
        media->info.hasVideo = media->info.hasAudio = media->info.hasImage = false;
    }

    void makeFilm() const
    {
        FakeInfo &info = media->info;
        info.hasVideo = info.hasAudio = true;
        info.rate = {24'000, 1'001};
        info.frames = 240;
        info.video.frameSize = {1080, 1920};
        info.video.rotation = 90;
        info.video.codecName = QStringLiteral("hevc");
        info.video.codecTag = QStringLiteral("hvc1");
        info.video.pixelFormat = QStringLiteral("yuv420p10le");
        info.video.bitDepth = 10;
        makeSoundOf(&info.audio);
        info.clock = QStringLiteral("01:00:00:00");
        info.reel = QStringLiteral("A001");
        media->camera = QStringLiteral("Maker Model");
        media->size = 2048;
    }
    void makeSound() const
    {
        media->type = mtAudio;
        media->info.infoKind = mikAudio;
        media->info.hasAudio = true;
        media->info.rate = {25, 1};
        media->info.frames = 50;
        media->info.length = 200;
        makeSoundOf(&media->info.audio);
    }
    void makePicture() const
    {
        media->type = mtImage;
        media->info.infoKind = mikImage;
        media->info.hasImage = true;
        media->info.image.size = {4000, 3000};
    }
    void makeSubtitle() const
    {
        media->type = mtSubtitle;
        media->info.infoKind = mikSubtitle;
        media->info.rate = {25, 1};
        media->info.frames = 75;
        media->info.encoding = QStringLiteral("UTF-8");
    }
    [[nodiscard]] QStringList lines(const NxFootageState &state = allDone()) const
    {
        return InfoText::lines(*media, state);
    }
    [[nodiscard]] QJsonObject json(const NxFootageState &state = allDone()) const
    {
        return QJsonDocument::fromJson(InfoText::json(*media, state)).object();
    }

    const NxTempDir dir;
    FakeFolder folder{QStringLiteral("Project Media"), fkProject};
    FakeItem *const media;

private:
    static void makeSoundOf(NxAudioStreamInfo *audio)
    {
        audio->sampleRate = 48'000;
        audio->channels = 2;
        audio->format = QStringLiteral("aac");
        audio->codecTag = QStringLiteral("mp4a");
    }
};

} // namespace

/// What a user is told of one media.
class tst_InfoText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFilmTellsAll();
    void soundHasNoPicture();
    void aPictureHasOnlyItsSize();
    void aSubtitleTellsItsEncoding();
    void whatIsNotKnownIsLeftOut();
    void framesThatVaryAreNoted();
    void tagsAreShownWhereTheySayMore_data();
    void tagsAreShownWhereTheySayMore();
    void theStateOfReadingIsShown_data();
    void theStateOfReadingIsShown();
    void theStateOfPicturesIsShown_data();
    void theStateOfPicturesIsShown();
    void aMissingFileSaysSo();
    void noTextBreaksTheLine();
    void jsonHasAllKeysForEveryKind_data();
    void jsonHasAllKeysForEveryKind();
    void jsonTellsAFilm();
    void jsonIsNullForWhatIsNotKnown();
    void everyStatusHasAWord_data();
    void everyStatusHasAWord();
};

void tst_InfoText::aFilmTellsAll()
{
    const Item f;
    f.makeFilm();
    f.media->created = QDateTime({2024, 5, 6}, {7, 8, 9}, Qt::LocalTime);
    const QStringList expected = {
        QStringLiteral("Name:       a.mp4"),
        QStringLiteral("File:       ") + f.media->sourcePath(),
        QStringLiteral("Section:    project"),
        QStringLiteral("Type:       video"),
        QStringLiteral("Size:       2.0 KiB"),
        QStringLiteral("Created:    2024-05-06 07:08:09"),
        QStringLiteral("Length:     00:00:10:00 (240 frames)"),
        QStringLiteral("Picture:    1080 x 1920, 23.976 frames a second, hevc (hvc1), "
                       "yuv420p10le, 10 bit, turned by 90 degrees"),
        QStringLiteral("Sound:      48000 Hz, 2 channels, aac (mp4a)"),
        QStringLiteral("Camera:     Maker Model"),
        QStringLiteral("Timecode:   01:00:00:00"),
        QStringLiteral("Reel:       A001"),
        QStringLiteral("Cover:      /cache/c.jpg"),
        QStringLiteral("Film strip: /cache/s.jpg"),
    };
    QCOMPARE(f.lines().join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}

void tst_InfoText::soundHasNoPicture()
{
    const Item f(QStringLiteral("a.wav"));
    f.makeSound();
    const QStringList lines = f.lines();
    QCOMPARE(valueOf(lines, "Type"), QStringLiteral("audio"));
    QCOMPARE(valueOf(lines, "Length"), QStringLiteral("00:00:02:00"));
    QCOMPARE(valueOf(lines, "Sound"), QStringLiteral("48000 Hz, 2 channels, aac (mp4a)"));
    QCOMPARE(lines.filter(QStringLiteral("Picture")), QStringList());
    f.media->info.audio.channels = 1;
    QCOMPARE(valueOf(f.lines(), "Sound"), QStringLiteral("48000 Hz, 1 channel, aac (mp4a)"));
}

void tst_InfoText::aPictureHasOnlyItsSize()
{
    const Item f(QStringLiteral("a.png"));
    f.makePicture();
    const QStringList lines = f.lines();
    QCOMPARE(valueOf(lines, "Type"), QStringLiteral("image"));
    QCOMPARE(valueOf(lines, "Picture"), QStringLiteral("4000 x 3000"));
    QCOMPARE(lines.filter(QStringLiteral("Length")), QStringList());
    QCOMPARE(lines.filter(QStringLiteral("Sound")), QStringList());
}

void tst_InfoText::aSubtitleTellsItsEncoding()
{
    const Item f(QStringLiteral("a.srt"));
    f.makeSubtitle();
    const QStringList lines = f.lines();
    QCOMPARE(valueOf(lines, "Type"), QStringLiteral("subtitle"));
    QCOMPARE(valueOf(lines, "Length"), QStringLiteral("00:00:03:00"));
    QCOMPARE(valueOf(lines, "Text"), QStringLiteral("UTF-8"));
}

void tst_InfoText::whatIsNotKnownIsLeftOut()
{
    const Item f;
    f.media->info.hasVideo = f.media->info.hasAudio = true;
    const QStringList expected = {
        QStringLiteral("Name:       a.mp4"),
        QStringLiteral("File:       ") + f.media->sourcePath(),
        QStringLiteral("Section:    project"),
        QStringLiteral("Type:       video"),
        QStringLiteral("Cover:      /cache/c.jpg"),
        QStringLiteral("Film strip: /cache/s.jpg"),
    };
    QCOMPARE(f.lines().join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
    f.media->info.hasVideo = false;
    f.media->info.hasImage = true;
    QCOMPARE(f.lines().join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}

void tst_InfoText::framesThatVaryAreNoted()
{
    const Item f;
    f.makeFilm();
    f.media->info.rate = {30, 1};
    f.media->info.video.variableFrameRate = true;
    const QString picture = valueOf(f.lines(), "Picture");
    QVERIFY2(picture.contains(QStringLiteral(", 30 frames a second (they vary), ")),
             qPrintable(picture));
    QCOMPARE(f.json().value(QStringLiteral("variable_rate")), QJsonValue(true));
}

void tst_InfoText::tagsAreShownWhereTheySayMore_data()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char *codec, const char *tag, const char *shown) {
        QTest::newRow(name) << QString::fromLatin1(codec) << QString::fromLatin1(tag)
                            << QString::fromLatin1(shown);
    };
    row("another word", "h264", "avc1", "h264 (avc1)");
    row("the same word", "vp09", "vp09", "vp09");
    row("the same word with a blank", "png", "png ", "png");
    row("another word with a blank", "rawvideo", "raw ", "rawvideo (raw)");
    row("blanks alone", "mjpeg", "    ", "mjpeg");
    row("no tag", "mjpeg", "", "mjpeg");
    row("no codec", "", "raw ", "raw");
    row("neither", "", "", "");
}

void tst_InfoText::tagsAreShownWhereTheySayMore()
{
    QFETCH(QString, codec);
    QFETCH(QString, tag);
    const Item f;
    f.media->info.hasVideo = f.media->info.hasAudio = true;
    f.media->info.video.codecName = f.media->info.audio.format = codec;
    f.media->info.video.codecTag = f.media->info.audio.codecTag = tag;
    QTEST(valueOf(f.lines(), "Picture"), "shown");
    QTEST(valueOf(f.lines(), "Sound"), "shown");
}

void tst_InfoText::theStateOfReadingIsShown_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("hasContents");
    QTest::newRow("waiting") << int(NxFootageStatus::Waiting) << QStringLiteral("not read yet")
                             << false;
    QTest::newRow("read") << int(NxFootageStatus::Done) << QString() << true;
    QTest::newRow("failed") << int(NxFootageStatus::Failed)
                            << QStringLiteral("unreadable: It is damaged.") << false;
}

void tst_InfoText::theStateOfReadingIsShown()
{
    QFETCH(int, status);
    const Item f;
    f.makeFilm();
    NxFootageState state = allDone();
    state.facts = NxFootageStatus(status);
    state.reason = QStringLiteral("It is damaged.");
    QTEST(valueOf(f.lines(state), "State"), "shown");
    QTEST(!valueOf(f.lines(state), "Picture").isEmpty(), "hasContents");
    const bool hasFailed = state.facts == NxFootageStatus::Failed;
    QCOMPARE(valueOf(f.lines(state), "Cover").isEmpty(), hasFailed);
    QCOMPARE(valueOf(f.lines(state), "Film strip").isEmpty(), hasFailed);
}

void tst_InfoText::theStateOfPicturesIsShown_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("shown");
    QTest::newRow("waiting") << int(NxFootageStatus::Waiting) << QStringLiteral("not made yet");
    QTest::newRow("made") << int(NxFootageStatus::Done) << QStringLiteral("/cache/x.jpg");
    QTest::newRow("none") << int(NxFootageStatus::NoneThere) << QStringLiteral("there is none");
    QTest::newRow("failed") << int(NxFootageStatus::Failed) << QStringLiteral("The disk is full.");
}

void tst_InfoText::theStateOfPicturesIsShown()
{
    QFETCH(int, status);
    const Item f;
    NxFootageState cover = allDone();
    cover.cover = NxFootageStatus(status);
    cover.coverPath = QStringLiteral("/cache/x.jpg");
    cover.coverReason = QStringLiteral("The disk is full.");
    QTEST(valueOf(f.lines(cover), "Cover"), "shown");
    QCOMPARE(valueOf(f.lines(cover), "Film strip"), QStringLiteral("/cache/s.jpg"));
    NxFootageState strip = allDone();
    strip.strip = NxFootageStatus(status);
    strip.stripPath = QStringLiteral("/cache/x.jpg");
    strip.stripReason = QStringLiteral("The disk is full.");
    QTEST(valueOf(f.lines(strip), "Film strip"), "shown");
    QCOMPARE(valueOf(f.lines(strip), "Cover"), QStringLiteral("/cache/c.jpg"));
}

void tst_InfoText::aMissingFileSaysSo()
{
    const Item f;
    f.makeFilm();
    QVERIFY(f.lines().filter(QStringLiteral("missing")).isEmpty());
    QVERIFY(QFile::remove(f.media->sourcePath()));
    QCOMPARE(valueOf(f.lines(), "State"), QStringLiteral("missing"));
    QCOMPARE(f.json().value(QStringLiteral("missing")), QJsonValue(true));
}

void tst_InfoText::noTextBreaksTheLine()
{
    const Item f(QStringLiteral("a\nb\x1b[31m.mp4"));
    f.makeFilm();
    f.media->camera = QStringLiteral("Maker\nState: fine");
    f.media->info.reel = QStringLiteral("\x1b]0;gone\x07");
    NxFootageState state = allDone();
    state.cover = NxFootageStatus::Failed;
    state.coverReason = QStringLiteral("one\ntwo");
    const QStringList lines = f.lines(state);
    QCOMPARE(valueOf(lines, "Name"), QStringLiteral("a\\nb\\x1b[31m.mp4"));
    QCOMPARE(valueOf(lines, "Camera"), QStringLiteral("Maker\\nState: fine"));
    QCOMPARE(valueOf(lines, "Cover"), QStringLiteral("one\\ntwo"));
    for (const QString &line : lines) {
        for (const QChar character : line)
            QVERIFY2(character.isPrint(), qPrintable(line));
    }
    const QByteArray json = InfoText::json(*f.media, state);
    QVERIFY(!json.contains('\n') && !json.contains('\x1b'));
    QCOMPARE(f.json(state).value(QStringLiteral("cover_reason")).toString(), state.coverReason);
}

void tst_InfoText::jsonHasAllKeysForEveryKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("nothing known") << int(mikUnknown);
    QTest::newRow("film") << int(mikVideo);
    QTest::newRow("sound") << int(mikAudio);
    QTest::newRow("picture") << int(mikImage);
    QTest::newRow("subtitle") << int(mikSubtitle);
}

void tst_InfoText::jsonHasAllKeysForEveryKind()
{
    QFETCH(int, kind);
    const Item f;
    if (kind == mikVideo)
        f.makeFilm();
    else if (kind == mikAudio)
        f.makeSound();
    else if (kind == mikImage)
        f.makePicture();
    else if (kind == mikSubtitle)
        f.makeSubtitle();
    const QStringList expected =
        QStringLiteral("name path section folder type size created missing unreadable duration_ms "
                       "frames fps width height rotation codec sample_rate channels camera "
                       "timecode variable_rate reel audio_codec pixel_format bit_depth "
                       "text_encoding read reason fingerprint cover cover_state cover_reason strip "
                       "strip_state strip_reason")
            .split(QLatin1Char(' '));
    QStringList keys = f.json().keys();
    QStringList sorted = expected;
    sorted.sort();
    keys.sort();
    QCOMPARE(keys, sorted);
}

void tst_InfoText::jsonTellsAFilm()
{
    const Item f;
    f.makeFilm();
    const QByteArray expected =
        R"("duration_ms":10010,"frames":240,"fps":"24000/1001","width":1080,"height":1920,)"
        R"("rotation":90,"codec":"hevc","sample_rate":48000,"channels":2,"camera":"Maker Model",)"
        R"("timecode":"01:00:00:00","variable_rate":false,"reel":"A001","audio_codec":"aac",)"
        R"("pixel_format":"yuv420p10le","bit_depth":10,"text_encoding":null,"read":"done",)"
        R"("reason":null,"fingerprint":"00ff","cover":"/cache/c.jpg","cover_state":"made",)"
        R"("cover_reason":null,"strip":"/cache/s.jpg","strip_state":"made","strip_reason":null})";
    const QByteArray json = InfoText::json(*f.media, allDone());
    QVERIFY2(json.endsWith(expected), json.constData());
}

void tst_InfoText::jsonIsNullForWhatIsNotKnown()
{
    const Item f;
    f.media->info.hasVideo = f.media->info.hasAudio = f.media->info.hasImage = true;
    const QByteArray expected =
        R"("size":null,"created":null,"missing":false,"unreadable":null,"duration_ms":null,)"
        R"("frames":null,"fps":null,"width":null,"height":null,"rotation":null,"codec":null,)"
        R"("sample_rate":null,"channels":null,"camera":null,"timecode":null,)"
        R"("variable_rate":null,"reel":null,"audio_codec":null,"pixel_format":null,)"
        R"("bit_depth":null,"text_encoding":null,"read":"waiting","reason":null,)"
        R"("fingerprint":null,"cover":null,"cover_state":"waiting","cover_reason":null,)"
        R"("strip":null,"strip_state":"waiting","strip_reason":null})";
    const QByteArray json = InfoText::json(*f.media, NxFootageState());
    QVERIFY2(json.endsWith(expected), json.constData());
}

void tst_InfoText::everyStatusHasAWord_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("ofFacts");
    QTest::addColumn<QString>("ofPictures");
    const auto row = [](NxFootageStatus status, const char *facts, const char *pictures) {
        QTest::newRow(facts) << int(status) << QString::fromLatin1(facts)
                             << QString::fromLatin1(pictures);
    };
    row(NxFootageStatus::Waiting, "waiting", "waiting");
    row(NxFootageStatus::Done, "done", "made");
    row(NxFootageStatus::NoneThere, "none", "none");
    row(NxFootageStatus::Failed, "failed", "failed");
}

void tst_InfoText::everyStatusHasAWord()
{
    QFETCH(int, status);
    const Item f;
    NxFootageState state;
    state.facts = state.cover = state.strip = NxFootageStatus(status);
    QTEST(InfoText::statusWord(state.facts), "ofFacts");
    QTEST(f.json(state).value(QStringLiteral("read")).toString(), "ofFacts");
    QTEST(f.json(state).value(QStringLiteral("cover_state")).toString(), "ofPictures");
    QTEST(f.json(state).value(QStringLiteral("strip_state")).toString(), "ofPictures");
}

NX_TEST_MAIN(tst_InfoText)
#include "tst_InfoText.moc"
