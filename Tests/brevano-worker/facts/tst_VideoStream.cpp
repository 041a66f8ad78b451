// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/VideoStream.h>

#include <Support/NxTestMain.h>

#include <QObject>
#include <QSize>
#include <QVector>
#include <QtTest>

#include <cstring>
#include <memory>

extern "C" {
#include <libavformat/avformat.h>
}

namespace {

using Matrix = QVector<int>;

constexpr int One = 1 << 16;
constexpr int OneOfThird = 1 << 30;

struct FreeContext
{
    void operator()(AVFormatContext *context) const { avformat_free_context(context); }
};
using Context = std::unique_ptr<AVFormatContext, FreeContext>;

/// a b c d: what becomes of right and of down.
Matrix matrix(int a, int b, int c, int d)
{
    return {a * One, b * One, 0, c * One, d * One, 0, 0, 0, OneOfThird};
}

AVStream *streamOf(const Context &context, const Matrix &matrix, QSize size)
{
    AVStream *stream = avformat_new_stream(context.get(), nullptr);
    stream->codecpar->codec_type = AVMEDIA_TYPE_VIDEO;
    stream->codecpar->width = size.width();
    stream->codecpar->height = size.height();
    const size_t bytes = size_t(matrix.size()) * sizeof(int32_t);
    if (bytes > 0) {
        uint8_t *data = av_stream_new_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, bytes);
        std::memcpy(data, matrix.constData(), bytes);
    }
    return stream;
}

} // namespace

class tst_VideoStream : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesAreTurnedAsTheMatrixSays_data();
    void picturesAreTurnedAsTheMatrixSays();
    void sizesThatCannotBeAreNone_data();
    void sizesThatCannotBeAreNone();
    void aTagIsFourCharactersOrNothing();
};

void tst_VideoStream::picturesAreTurnedAsTheMatrixSays_data()
{
    QTest::addColumn<Matrix>("matrix");
    QTest::addColumn<int>("rotation");
    QTest::newRow("no matrix") << Matrix() << 0;
    QTest::newRow("upright") << matrix(1, 0, 0, 1) << 0;
    QTest::newRow("a quarter clockwise") << matrix(0, 1, -1, 0) << 90;
    QTest::newRow("upside down") << matrix(-1, 0, 0, -1) << 180;
    QTest::newRow("a quarter back") << matrix(0, -1, 1, 0) << 270;
    QTest::newRow("mirrored") << matrix(-1, 0, 0, 1) << 0;
    QTest::newRow("mirrored, upside down") << matrix(1, 0, 0, -1) << 180;
    QTest::newRow("mirrored, a quarter clockwise") << matrix(0, -1, -1, 0) << 90;
    QTest::newRow("mirrored, a quarter back") << matrix(0, 1, 1, 0) << 270;
    QTest::newRow("all zeros") << matrix(0, 0, 0, 0) << 0;
    QTest::newRow("too short") << Matrix{0, One, 0} << 0;
}

void tst_VideoStream::picturesAreTurnedAsTheMatrixSays()
{
    QFETCH(Matrix, matrix);
    QFETCH(int, rotation);
    const Context context(avformat_alloc_context());
    NxFootageFacts facts;
    VideoStream::read(streamOf(context, matrix, {320, 180}), &facts);
    QCOMPARE(facts.streams.rotation, rotation);
    const bool isUpright = rotation == 0 || rotation == 180;
    QCOMPARE(QSize(facts.streams.width, facts.streams.height),
             isUpright ? QSize(320, 180) : QSize(180, 320));
}

void tst_VideoStream::sizesThatCannotBeAreNone_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("can");
    QTest::newRow("one pixel") << QSize(1, 1) << true;
    QTest::newRow("the widest") << QSize(65'535, 1'000) << true;
    QTest::newRow("wider") << QSize(65'536, 1'000) << false;
    QTest::newRow("too many pixels") << QSize(65'535, 65'535) << false;
    QTest::newRow("no height") << QSize(320, 0) << false;
    QTest::newRow("a negative width") << QSize(-320, 180) << false;
}

void tst_VideoStream::sizesThatCannotBeAreNone()
{
    QFETCH(QSize, size);
    QFETCH(bool, can);
    const Context context(avformat_alloc_context());
    NxFootageFacts facts;
    VideoStream::read(streamOf(context, {}, size), &facts);
    QCOMPARE(QSize(facts.streams.width, facts.streams.height), can ? size : QSize(0, 0));
}

void tst_VideoStream::aTagIsFourCharactersOrNothing()
{
    QCOMPARE(VideoStream::fourCharacters(MKTAG('a', 'v', 'c', '1')), QStringLiteral("avc1"));
    QCOMPARE(VideoStream::fourCharacters(MKTAG('r', 'a', 'w', ' ')), QStringLiteral("raw "));
    QCOMPARE(VideoStream::fourCharacters(0), QString());
    QCOMPARE(VideoStream::fourCharacters(27), QString());
}

NX_TEST_MAIN(tst_VideoStream)
#include "tst_VideoStream.moc"
