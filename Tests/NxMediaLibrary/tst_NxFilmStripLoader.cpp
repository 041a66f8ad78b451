// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PreviewStand.h"

#include <NxMediaLibrary/delegate_P/NxFilmStripLoader.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QtTest>

#include <memory>

namespace {

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, format))
        qFatal("no picture can be written");
    return bytes;
}

struct Stand
{
    /// Asks, and waits for the answer.
    QImage loaded(const QString &path)
    {
        const int before = paths.size();
        loader.load(path);
        const auto hasCome = [&] { return paths.size() > before; };
        if (!QTest::qWaitFor(hasCome, NxPatience) || paths.last() != path)
            qFatal("%s did not come", qUtf8Printable(path));
        return last;
    }

    const NxTempDir dir;
    QStringList paths;
    QImage last;
    NxFilmStripLoader loader{[this](const QString &path, const QImage &strip) {
                                 paths.append(path);
                                 last = strip;
                             },
                             1'000}; // KiB: room for two strips of 810 px, not for three.
};

} // namespace

/// Film strips from files.
class tst_NxFilmStripLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aStripIsRead_data();
    void aStripIsRead();
    void whatIsNoStripIsNull_data();
    void whatIsNoStripIsNull();
    void anUnchangedStripIsNotDecodedAgain();
    void aChangedStripIsRead();
    void aStripThatWentIsForgotten();
    void memoryIsBounded();
    void oneStripLargerThanTheMemoryIsKept();
    void theHandlerMayDestroyTheLoader();
};

void tst_NxFilmStripLoader::aStripIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("size");
    QTest::newRow("png") << QStringLiteral("a.png") << encoded(filmStrip(162), "png")
                         << QSize(144, 162);
    QTest::newRow("jpeg") << QStringLiteral("a.jpg") << encoded(filmStrip(810), "jpg")
                          << QSize(144, 810);
    QTest::newRow("contents of another name")
        << QStringLiteral("a.jpg") << encoded(filmStrip(162), "png") << QSize(144, 162);
    QTest::newRow("no suffix") << QStringLiteral("a") << encoded(filmStrip(162), "png")
                               << QSize(144, 162);
    QTest::newRow("one frame") << QStringLiteral("a.png") << encoded(filmStrip(81), "png")
                               << QSize(144, 81);
    QTest::newRow("wider") << QStringLiteral("a.png") << encoded(filmStrip(162, 200), "png")
                           << QSize(200, 162);
    QTest::newRow("grey") << QStringLiteral(
        "a.png") << encoded(filmStrip(162).convertToFormat(QImage::Format_Grayscale8), "png")
                          << QSize(144, 162);
}

void tst_NxFilmStripLoader::aStripIsRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QSize, size);
    Stand f;
    const QImage strip = f.loaded(f.dir.write(name, content));
    QCOMPARE(strip.size(), size);
    QCOMPARE(strip.format(), QImage::Format_RGB32);
}

void tst_NxFilmStripLoader::whatIsNoStripIsNull_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("too narrow") << encoded(filmStrip(162, 143), "png");
    QTest::newRow("too low") << encoded(filmStrip(80), "png");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no picture") << QByteArray("no picture");
    QTest::newRow("cut") << encoded(filmStrip(162), "png").left(60);
    QTest::newRow("far too large")
        << encoded(QImage(144, 70'000'000 / 144, QImage::Format_Mono), "bmp");
}

void tst_NxFilmStripLoader::whatIsNoStripIsNull()
{
    QFETCH(QByteArray, content);
    Stand f;
    QVERIFY(f.loaded(f.dir.write(QStringLiteral("a.png"), content)).isNull());
    QVERIFY(f.loaded(f.dir.path()).isNull());
    QVERIFY(f.loaded(f.dir.filePath(QStringLiteral("missing.png"))).isNull());
}

void tst_NxFilmStripLoader::anUnchangedStripIsNotDecodedAgain()
{
    Stand f;
    const QString path = f.dir.write(QStringLiteral("a.png"), encoded(filmStrip(810), "png"));
    const QImage first = f.loaded(path);
    QVERIFY(!first.isNull());
    QCOMPARE(f.loaded(path).cacheKey(), first.cacheKey());
}

void tst_NxFilmStripLoader::aChangedStripIsRead()
{
    Stand f;
    const QString path = f.dir.write(QStringLiteral("a.bmp"), encoded(filmStrip(162), "bmp"));
    QCOMPARE(frameShown(f.loaded(path)), 0);
    QImage white(144, 162, QImage::Format_RGB32);
    white.fill(Qt::white);
    f.dir.write(QStringLiteral("a.bmp"), encoded(white, "bmp")); // Of the same size.
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                             QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(frameShown(f.loaded(path)), 255);
}

void tst_NxFilmStripLoader::aStripThatWentIsForgotten()
{
    Stand f;
    const QString path = f.dir.write(QStringLiteral("a.png"), encoded(filmStrip(162), "png"));
    QVERIFY(!f.loaded(path).isNull());
    QVERIFY(QFile::remove(path));
    QVERIFY(f.loaded(path).isNull());
    f.dir.write(QStringLiteral("a.png"), encoded(filmStrip(162), "png"));
    QVERIFY(!f.loaded(path).isNull());
}

void tst_NxFilmStripLoader::memoryIsBounded()
{
    Stand f;
    QVector<qint64> keys;
    QStringList paths;
    for (int i = 0; i < 3; ++i) {
        paths.append(f.dir.write(QString::number(i), encoded(filmStrip(810), "png")));
        keys.append(f.loaded(paths.last()).cacheKey());
    }
    QCOMPARE(f.loaded(paths.at(2)).cacheKey(), keys.at(2));
    QCOMPARE(f.loaded(paths.at(1)).cacheKey(), keys.at(1));
    QVERIFY(f.loaded(paths.at(0)).cacheKey() != keys.at(0));
}

void tst_NxFilmStripLoader::oneStripLargerThanTheMemoryIsKept()
{
    Stand f;
    const QString path = f.dir.write(QStringLiteral("a.png"), encoded(filmStrip(8'100), "png"));
    const QImage first = f.loaded(path);
    QCOMPARE(first.height(), 8'100);
    QCOMPARE(f.loaded(path).cacheKey(), first.cacheKey());
}

void tst_NxFilmStripLoader::theHandlerMayDestroyTheLoader()
{
    std::unique_ptr<NxFilmStripLoader> loader;
    loader = std::make_unique<NxFilmStripLoader>(
        [&](const QString &, const QImage &) { loader.reset(); });
    loader->load(QStringLiteral("/nowhere/missing.png"));
    QTRY_VERIFY(!loader);
}

NX_TEST_MAIN(tst_NxFilmStripLoader)
#include "tst_NxFilmStripLoader.moc"
