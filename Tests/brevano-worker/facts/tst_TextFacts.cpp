// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/CueTimes.h>
#include <brevano-worker/facts/TextEncoding.h>
#include <brevano-worker/facts/TextFacts.h>
#include <brevano-worker/input/FootageFile.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QObject>
#include <QTextCodec>
#include <QtTest>

namespace {

constexpr qint64 Nothing = -1;

const QString &cue()
{
    static const QString text =
        QString::fromUtf8("1\r\n00:00:01,000 --> 00:00:04,500\r\nGr\xC3\xBC\xC3\x9F\x65\r\n");
    return text;
}

QByteArray encoded(const char *encoding, bool isMarked)
{
    QTextCodec::ConverterState state(isMarked ? QTextCodec::DefaultConversion
                                              : QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(encoding)->fromUnicode(cue().constData(), cue().size(), &state);
}

NxResult<NxFootageFacts> factsOf(const NxTempDir &dir, const QByteArray &content)
{
    const auto file =
        FootageFile::open(QFile::encodeName(dir.write(QStringLiteral("text"), content)));
    return file ? TextFacts::read(**file) : NxResult<NxFootageFacts>(file.error());
}

} // namespace

class tst_TextFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEncodingIsRecognised_data();
    void theEncodingIsRecognised();
    void asciiIsUtf8();
    void theLastTimeIsTheEnd_data();
    void theLastTimeIsTheEnd();
    void subtitlesAreToldInTwentyFifthsOfASecond();
    void aFileWithoutASubtitleIsRefused_data();
    void aFileWithoutASubtitleIsRefused();
    void aHugeFileIsNotReadAtAll();
};

void tst_TextFacts::theEncodingIsRecognised_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<bool>("marked");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const char *codec, bool marked) {
        QTest::newRow(name) << QByteArray(codec) << marked << QString::fromLatin1(codec);
    };
    row("UTF-8", "UTF-8", false);
    row("marked UTF-8", "UTF-8", true);
    row("marked UTF-16, low byte first", "UTF-16LE", true);
    row("marked UTF-16, high byte first", "UTF-16BE", true);
    row("marked UTF-32, low byte first", "UTF-32LE", true);
    row("marked UTF-32, high byte first", "UTF-32BE", true);
    row("UTF-16 without a mark, low byte first", "UTF-16LE", false);
    row("UTF-16 without a mark, high byte first", "UTF-16BE", false);
    row("western European", "windows-1252", false);
}

void tst_TextFacts::theEncodingIsRecognised()
{
    QFETCH(QByteArray, codec);
    QFETCH(bool, marked);
    QFETCH(QString, name);
    const QByteArray bytes = encoded(codec.constData(), marked);
    QCOMPARE(TextEncoding::of(bytes), name);
    QCOMPARE(TextEncoding::decoded(bytes, name), cue());
    const NxTempDir dir;
    const auto facts = factsOf(dir, bytes);
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->streams.textEncoding, name);
    QCOMPARE(facts->durationUs, 4'500'000);
}

void tst_TextFacts::asciiIsUtf8()
{
    QCOMPARE(TextEncoding::of("[00:01.00]la la la"), QStringLiteral("UTF-8"));
}

void tst_TextFacts::theLastTimeIsTheEnd_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("end");
    const auto row = [](const char *name, const char *text, qint64 end) {
        QTest::newRow(name) << QString::fromLatin1(text) << end;
    };
    row("a subtitle", "00:00:01,000 --> 00:00:02,250", 2'250'000);
    row("points instead of commas", "00:00:01.000 --> 00:00:02.250", 2'250'000);
    row("without hours", "00:01.000 --> 01:02.5", 62'500'000);
    row("hours", "1:00:01,000 --> 2:00:00,000", 7'200'000'000);
    row("no fraction", "00:00:01 --> 00:00:09", 9'000'000);
    row("places behind the times", "00:00:01,000 --> 00:00:02,250  X1:10 X2:20", 2'250'000);
    row("the latest, not the last in the file",
        "00:00:05,000 --> 00:00:08,000\nb\n\n00:00:01,000 --> 00:00:02,000\na", 8'000'000);
    row("lyrics", "[00:01.00]one\n[00:05.50]two", 5'500'000);
    row("lyrics sung twice", "[00:01.00][01:05.50]two\n[00:30.00]three", 65'500'000);
    row("lyrics with colons only", "[00:01:25]one", 1'250'000);
    row("tags are no lyrics", "[ti:One]\n[length:03:04]", Nothing);
    row("a subtitle counts more than brackets", "00:00:01,000 --> 00:00:02,000\n[09:00.00]",
        2'000'000);
    row("prose", "It began at 10:30.", Nothing);
    row("an end that is cut off", "00:00:01,000 --> 00:00:0", Nothing);
    row("an end before the beginning, and a true one",
        "00:00:09,000 --> 00:00:01,000\n00:00:01,000 --> 00:00:02,000", 2'000'000);
    row("lyrics of no length", "[00:00.00]", Nothing);
    row("an arrow alone", "a --> b", Nothing);
}

void tst_TextFacts::theLastTimeIsTheEnd()
{
    QFETCH(QString, text);
    QTEST(CueTimes::endUs(text).value_or(Nothing), "end");
}

void tst_TextFacts::subtitlesAreToldInTwentyFifthsOfASecond()
{
    const NxTempDir dir;
    const auto facts = factsOf(dir, "00:00:01,000 --> 00:00:02,030\nla\n");
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->streams.kind, NxFootageKind::Subtitle);
    QCOMPARE(facts->rate.num, 25);
    QCOMPARE(facts->rate.den, 1);
    QCOMPARE(facts->frames, 51); // 50.75
}

void tst_TextFacts::aFileWithoutASubtitleIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("prose") << QByteArray("Dear diary");
    QTest::newRow("zeros") << QByteArray(5'000, '\0');
    QTest::newRow("an odd number of zeros") << QByteArray(4'999, '\0');
    QTest::newRow("a mark alone") << QByteArray("\xFF\xFE");
    QTest::newRow("a lone byte") << QByteArray("\xFF");
}

void tst_TextFacts::aFileWithoutASubtitleIsRefused()
{
    QFETCH(QByteArray, content);
    const NxTempDir dir;
    QCOMPARE(factsOf(dir, content).errorText(),
             QStringLiteral("There is no subtitle in the file."));
}

void tst_TextFacts::aHugeFileIsNotReadAtAll()
{
    const NxTempDir dir;
    QFile file(dir.write(QStringLiteral("huge"), "00:00:01,000 --> 00:00:02,000\n"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.resize(qint64(1) << 40)); // It takes no room on the disk.
    const auto opened = FootageFile::open(QFile::encodeName(file.fileName()));
    QVERIFY2(opened, qUtf8Printable(opened.errorText()));
    QCOMPARE(TextFacts::read(**opened).errorText(),
             QStringLiteral("The file is too large to be subtitles."));
}

NX_TEST_MAIN(tst_TextFacts)
#include "tst_TextFacts.moc"
