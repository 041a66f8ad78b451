// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/SoundPeaks.h>

#include <QTest>
#include <QtEndian>

#include <cmath>
#include <cstring>

namespace {

using std::chrono::milliseconds;

constexpr int Rate = 8'000; // Hz
constexpr qint64 SecondUs = 1'000'000;

enum WaveFormat : quint16 { Whole = 1, Floating = 3 };

template<typename Number>
QByteArray little(Number number)
{
    QByteArray bytes(int(sizeof(Number)), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray wave(WaveFormat format, quint16 channels, quint16 bits, const QByteArray &samples)
{
    constexpr int perByte = 8;
    constexpr quint32 headerBytes = 36;
    const quint16 block = quint16(channels * bits / perByte);
    return "RIFF" + little(quint32(headerBytes + quint32(samples.size()))) + "WAVEfmt "
           + little(quint32(16)) + little(quint16(format)) + little(channels)
           + little(quint32(Rate)) + little(quint32(Rate * block)) + little(block) + little(bits)
           + "data" + little(quint32(samples.size())) + samples;
}

/// One channel of 16 bits: the first half silent, the second at half of full.
QByteArray halfLoud(int seconds)
{
    constexpr qint16 half = 16'384;
    QByteArray samples;
    samples.reserve(seconds * Rate * int(sizeof half));
    for (int i = 0; i < seconds * Rate; ++i)
        samples += little(i < seconds * Rate / 2 ? qint16(0) : i % 2 ? half : qint16(-half));
    return wave(Whole, 1, 16, samples);
}

/// Of a machine that is never late.
milliseconds noTime()
{
    return {};
}

} // namespace

class tst_SoundPeaks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eachColumnHasItsOwnPeak_data();
    void eachColumnHasItsOwnPeak();
    void sampleFormats_data();
    void sampleFormats();
    void allChannelsCount();
    void whatTheTimeDoesNotReachLooksLikeTheNearest();
    void longSoundsAreHeardInPlaces();

private:
    [[nodiscard]] NxResult<std::vector<float>> heard(const QByteArray &sound, qint64 durationUs,
                                                     SoundPeaks::Clock clock = {});

    NxTempDir m_dir;
};

NxResult<std::vector<float>> tst_SoundPeaks::heard(const QByteArray &sound, qint64 durationUs,
                                                   SoundPeaks::Clock clock)
{
    const QString path = m_dir.write(QStringLiteral("sound.wav"), sound);
    const auto file = FootageFile::open(path.toUtf8());
    const auto container = Container::open(file->get());
    if (!container)
        return container.error();
    FilmReader reader(container->get(), (*container)->audio(), durationUs);
    return SoundPeaks(&reader, std::move(clock)).read();
}

void tst_SoundPeaks::eachColumnHasItsOwnPeak_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<qint64>("durationUs");
    QTest::newRow("short") << 2 << 2 * SecondUs;
    QTest::newRow("its length is not told") << 2 << qint64(0);
    QTest::newRow("a minute") << 60 << 60 * SecondUs;
    QTest::newRow("long: in places") << 130 << 130 * SecondUs;
}

void tst_SoundPeaks::eachColumnHasItsOwnPeak()
{
    QFETCH(int, seconds);
    QFETCH(qint64, durationUs);
    const NxResult<std::vector<float>> peaks = heard(halfLoud(seconds), durationUs, &noTime);
    QCOMPARE(peaks.errorText(), QString());
    QCOMPARE(int(peaks->size()), SoundPeaks::Columns);
    constexpr int atTheEdge = 2;
    for (int column = 0; column < SoundPeaks::Columns; ++column) {
        const int fromEdge = std::abs(column - SoundPeaks::Columns / 2);
        const float expected = column < SoundPeaks::Columns / 2 ? 0.0f : 0.5f;
        const float peak = (*peaks)[size_t(column)];
        QVERIFY2(fromEdge <= atTheEdge || std::abs(peak - expected) < 0.01f,
                 qPrintable(QStringLiteral("column %1 has %2").arg(column).arg(double(peak))));
    }
}

void tst_SoundPeaks::sampleFormats_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<float>("peak");
    const auto row = [](const char *name, WaveFormat format, int bits, const QByteArray &sample,
                        float peak) {
        QTest::newRow(name) << int(format) << bits << sample << peak;
    };
    row("8 bits, silent", Whole, 8, little(quint8(128)), 0.0f);
    row("8 bits", Whole, 8, little(quint8(64)), 0.5f);
    row("16 bits, the loudest", Whole, 16, little(qint16(-32'768)), 1.0f);
    row("24 bits", Whole, 24, QByteArray("\0\0\x40", 3), 0.5f);
    row("32 bits", Whole, 32, little(qint32(-1'073'741'824)), 0.5f);
    row("floating", Floating, 32, little(0.25f), 0.25f);
    row("floating, louder than full", Floating, 32, little(40.0f), 1.0f);
    row("floating, no number", Floating, 32, little(std::nanf("")), 0.0f);
    row("floating, infinite", Floating, 32, little(HUGE_VALF), 1.0f);
    row("double", Floating, 64, little(-0.75), 0.75f);
}

void tst_SoundPeaks::sampleFormats()
{
    QFETCH(int, format);
    QFETCH(int, bits);
    QFETCH(QByteArray, sample);
    QFETCH(float, peak);
    const NxResult<std::vector<float>> peaks =
        heard(wave(WaveFormat(format), 1, quint16(bits), sample.repeated(Rate)), SecondUs);
    QCOMPARE(peaks.errorText(), QString());
    for (const float value : *peaks)
        QVERIFY2(std::abs(value - peak) < 0.001f, qPrintable(QString::number(double(value))));
}

void tst_SoundPeaks::allChannelsCount()
{
    const QByteArray loudOnTheRight = little(qint16(0)) + little(qint16(16'384));
    const NxResult<std::vector<float>> peaks =
        heard(wave(Whole, 2, 16, loudOnTheRight.repeated(Rate)), SecondUs);
    QCOMPARE(peaks.errorText(), QString());
    QVERIFY(std::abs(peaks->front() - 0.5f) < 0.001f);
    QVERIFY(std::abs(peaks->back() - 0.5f) < 0.001f);
}

void tst_SoundPeaks::whatTheTimeDoesNotReachLooksLikeTheNearest()
{
    constexpr int seconds = 60;
    milliseconds now{0};
    const NxResult<std::vector<float>> peaks =
        heard(halfLoud(seconds), seconds * SecondUs, [&now] { return now += milliseconds(100); });
    QCOMPARE(peaks.errorText(), QString());
    // Ten packets are not half of it: all that was heard is silence.
    for (const float peak : *peaks)
        QCOMPARE(peak, 0.0f);
}

void tst_SoundPeaks::longSoundsAreHeardInPlaces()
{
    constexpr int seconds = 130;
    int looks = 0;
    const auto counting = [&looks] {
        ++looks;
        return milliseconds(0);
    };
    QVERIFY(heard(halfLoud(seconds), seconds * SecondUs, counting));
    // One look at the clock when it begins, one before each place.
    QCOMPARE(looks, 1 + SoundPeaks::Columns);
}

NX_TEST_MAIN(tst_SoundPeaks)
#include "tst_SoundPeaks.moc"
