// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FactsOfFile.h"
#include "MadeClip.h"

#include <brevano-worker/facts/FactsReader.h>
#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QObject>
#include <QtTest>

#include <random>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qUtf8Printable(path));
    return file.readAll();
}

/// What is wrong with numbers that no file can have; empty when nothing is.
QString complaintOf(const NxFootageFacts &facts)
{
    const NxFootageStreams &streams = facts.streams;
    const bool hasSize = SaneNumbers::isSize(streams.width, streams.height);
    const bool needsSize =
        streams.kind != NxFootageKind::Audio && streams.kind != NxFootageKind::Subtitle;
    if (needsSize != hasSize)
        return QStringLiteral("size %1 x %2").arg(streams.width).arg(streams.height);
    if (facts.durationUs < 0 || facts.durationUs > SaneNumbers::LongestUs)
        return QStringLiteral("%1 us").arg(facts.durationUs);
    if (facts.frames < 0)
        return QStringLiteral("%1 frames").arg(facts.frames);
    const double rate = facts.rate.toDouble();
    if (rate < 0.0 || rate > SaneNumbers::MostFramesASecond)
        return QStringLiteral("%1 a second").arg(rate);
    const bool isTurned =
        streams.rotation % 90 == 0 && streams.rotation >= 0 && streams.rotation < 360;
    return isTurned ? QString() : QStringLiteral("turned by %1").arg(streams.rotation);
}

/// While it lives, nobody hears what decoders of pictures print about damaged files.
class QuietDecoders
{
    Q_DISABLE_COPY_MOVE(QuietDecoders)
public:
    QuietDecoders()
        : m_before(
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
    {
    }
    ~QuietDecoders() { qInstallMessageHandler(m_before); }

private:
    const QtMessageHandler m_before;
};

} // namespace

class tst_FactsReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void streamsAreAnalysedOnlyWhereTheHeaderIsPoor_data();
    void streamsAreAnalysedOnlyWhereTheHeaderIsPoor();
    void aFileWithoutPicturesAndSoundIsRefused();
    void soundOfNoKnownCodecIsNoSound();
    void colorsAndBitRatesAreTold();
    void camerasAreKnownByAnyOfTheirTags_data();
    void camerasAreKnownByAnyOfTheirTags();
    void aClockThatWasNeverSetTellsNoDate();
    void damagedFilesGiveFactsThatCanBeOrAReason_data();
    void damagedFilesGiveFactsThatCanBeOrAReason();

private:
    const NxTempDir m_dir;
};

void tst_FactsReader::streamsAreAnalysedOnlyWhereTheHeaderIsPoor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("analysed");
    const auto row = [](const char *name, bool analysed) {
        QTest::newRow(name) << QString::fromLatin1(name) << analysed;
    };
    for (const char *name : {"avc.mp4", "avc fragments.mp4", "variable.mp4", "prores.mov",
                             "avc.mkv", "vp9.webm", "mpeg4.avi", "many.gif", "one.gif", "tone.wav",
                             "tone.m4a", "tone.ogg", "tone.aiff", "tone.mka"})
        row(name, false);
    for (const char *name : {"avc.ts", "mpeg2.mpg", "mpeg2.mxf", "tone.mp3", "tone.flac"})
        row(name, true);
}

void tst_FactsReader::streamsAreAnalysedOnlyWhereTheHeaderIsPoor()
{
    QFETCH(QString, name);
    const QString path = NxFootageSet::path(NxFootageRecipes::named(name));
    const auto file = FootageFile::open(QFile::encodeName(path));
    QVERIFY2(file, qUtf8Printable(file.errorText()));
    const auto container = Container::open(file->get());
    QVERIFY2(container, qUtf8Printable(container.errorText()));
    const auto facts = FactsReader::ofStream(container->get());
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QTEST((*container)->isAnalysed(), "analysed");
}

void tst_FactsReader::aFileWithoutPicturesAndSoundIsRefused()
{
    m_dir.write(QStringLiteral("text.srt"), "1\n00:00:00,000 --> 00:00:01,000\nla\n\n");
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("text.mkv"), QStringLiteral("-i text.srt -c:s srt")));
    QCOMPARE(facts.errorText(), QStringLiteral("There is neither a film nor sound in the file."));
}

void tst_FactsReader::soundOfNoKnownCodecIsNoSound()
{
    const QByteArray codec = "sowt";
    QByteArray content = contentOf(MadeClip::make(
        m_dir, QStringLiteral("sound.mov"), MadeClip::sound(1) + QLatin1String("-c:a pcm_s16le")));
    const int place = content.indexOf(codec);
    QVERIFY(place > 0);
    content.replace(place, codec.size(), "????");
    const auto facts = FactsOfFile::read(m_dir.write(QStringLiteral("unknown.mov"), content));
    QCOMPARE(facts.errorText(), QStringLiteral("There is neither a film nor sound in the file."));
}

void tst_FactsReader::colorsAndBitRatesAreTold()
{
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("colors.mp4"),
        MadeClip::pictures(25) + MadeClip::sound(1)
            + QLatin1String("-c:v libx264 -c:a aac -movflags write_colr -color_range tv "
                            "-color_primaries bt709 -color_trc bt709 -colorspace bt709")));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    const NxFootageStreams &streams = facts->streams;
    QCOMPARE(streams.colorPrimaries, QStringLiteral("bt709"));
    QCOMPARE(streams.colorTransfer, QStringLiteral("bt709"));
    QCOMPARE(streams.colorMatrix, QStringLiteral("bt709"));
    QCOMPARE(streams.colorRange, QStringLiteral("tv"));
    QCOMPARE(streams.videoTag, QStringLiteral("avc1"));
    QCOMPARE(streams.audioTag, QStringLiteral("mp4a"));
    QCOMPARE(streams.demuxer, QStringLiteral("mov,mp4,m4a,3gp,3g2,mj2"));
    QVERIFY(streams.canSeek);
    QVERIFY(facts->videoBitRate > 0);
    QVERIFY(facts->audioBitRate > 0);
}

void tst_FactsReader::camerasAreKnownByAnyOfTheirTags_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("tags");
    const auto row = [](const char *title, const char *name, const char *maker, const char *model) {
        QTest::newRow(title) << QString::fromLatin1(name)
                             << QStringLiteral("-metadata %1=Lumen -metadata %2=X2")
                                    .arg(QLatin1String(maker), QLatin1String(model));
    };
    row("QuickTime", "camera.mov", "com.apple.quicktime.make", "com.apple.quicktime.model");
    row("Android", "android.mp4", "com.android.manufacturer", "com.android.model");
    row("plain", "plain.mov", "make", "model");
    row("Matroska in capitals", "capitals.mkv", "MAKE", "MODEL");
    row("Matroska in small letters", "small.mkv", "make", "model");
}

void tst_FactsReader::camerasAreKnownByAnyOfTheirTags()
{
    QFETCH(QString, name);
    QFETCH(QString, tags);
    const bool isMatroska = name.endsWith(QLatin1String("mkv"));
    const QString flags = isMatroska ? QString() : QStringLiteral(" -movflags use_metadata_tags ");
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, name, MadeClip::pictures(2) + QLatin1String("-c:v mjpeg ") + tags + flags));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->streams.cameraMaker, QStringLiteral("Lumen"));
    QCOMPARE(facts->streams.cameraModel, QStringLiteral("X2"));
}

void tst_FactsReader::aClockThatWasNeverSetTellsNoDate()
{
    const auto facts = FactsOfFile::read(MadeClip::make(
        m_dir, QStringLiteral("clock.mkv"),
        MadeClip::pictures(2)
            + QLatin1String("-c:v mpeg4 -metadata creation_time=1946-01-01T00:00:00Z")));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->shot, NxNoFootageTime);
}

void tst_FactsReader::damagedFilesGiveFactsThatCanBeOrAReason_data()
{
    QTest::addColumn<QString>("name");
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        QTest::newRow(qUtf8Printable(recipe.name)) << recipe.name;
}

void tst_FactsReader::damagedFilesGiveFactsThatCanBeOrAReason()
{
    constexpr quint32 seed = 20'240'506;
    constexpr int times = 8;
    constexpr int damages = 12;
    constexpr int header = 2'048; // Bytes at either end, where the numbers stand.
    QFETCH(QString, name);
    const QByteArray whole = contentOf(NxFootageSet::path(NxFootageRecipes::named(name)));
    std::mt19937 random(seed);
    for (int time = 0; time < times; ++time) {
        QByteArray content = whole;
        for (int damage = 0; damage < damages; ++damage) {
            const int place = int(random() % uint(qMin(header, content.size())));
            content[time % 2 ? place : content.size() - 1 - place] = char(random());
        }
        const QString path = m_dir.write(name, content);
        const auto facts = [&path] {
            const QuietDecoders quiet;
            return FactsOfFile::read(path);
        }();
        const QString complaint = facts ? complaintOf(*facts) : QString();
        QVERIFY2(
            complaint.isEmpty(),
            qPrintable(QStringLiteral("seed %1, time %2: %3").arg(seed).arg(time).arg(complaint)));
        QVERIFY(facts || facts.errorText().endsWith(QLatin1Char('.')));
    }
}

NX_TEST_MAIN(tst_FactsReader)
#include "tst_FactsReader.moc"
