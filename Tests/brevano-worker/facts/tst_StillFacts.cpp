// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/ExifTags.h>
#include <brevano-worker/facts/HeifHeader.h>
#include <brevano-worker/facts/StillFacts.h>
#include <brevano-worker/input/FootageFile.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QtEndian>
#include <QtTest>

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray shortNumber(quint16 value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray box(const char *name, const QByteArray &content)
{
    constexpr quint32 header = 8;
    return number(quint32(content.size()) + header) + name + content;
}

/// A header of the size of a picture, with the number of quarter turns back, and one more thing.
QByteArray heif(quint32 width, quint32 height, char turnsBack, const char *more = "pixi")
{
    const QByteArray none = number(0); // Version and flags.
    const QByteArray thumbnail = box("ispe", none + number(16) + number(9));
    const QByteArray size = box("ispe", none + number(width) + number(height));
    const QByteArray properties =
        thumbnail + size + box("irot", QByteArray(1, turnsBack)) + box(more, none);
    const QByteArray ofThumbnail = shortNumber(1) + char(1) + char(1);
    const QByteArray ofPicture = shortNumber(2) + char(3) + char(0x82) + char(0x83) + char(4);
    const QByteArray owners = box("ipma", none + number(2) + ofThumbnail + ofPicture);
    const QByteArray meta = none + box("hdlr", none) + box("pitm", none + shortNumber(2))
                            + box("iprp", box("ipco", properties) + owners);
    return box("ftyp", "heic") + box("free", none) + box("meta", meta);
}

QByteArray encoded(const QImage &image, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format))
        qFatal("no %s", format);
    return buffer.data();
}

QImage image()
{
    QImage made(64, 36, QImage::Format_RGB32);
    made.fill(Qt::darkCyan);
    return made;
}

std::unique_ptr<FootageFile> opened(const NxTempDir &dir, const QByteArray &content)
{
    auto file = FootageFile::open(QFile::encodeName(dir.write(QStringLiteral("picture"), content)));
    if (!file)
        qFatal("%s", qUtf8Printable(file.errorText()));
    return file.take();
}

/// A PNG that claims to be so large; nothing of its checks notices.
QByteArray claiming(quint32 width, quint32 height)
{
    const QByteArray size = number(width) + number(height) + QByteArray("\x08\x02\0\0\0", 5);
    constexpr int placeOfHeader = 12;
    QByteArray png = encoded(image(), "png");
    png.replace(placeOfHeader + 4, size.size(), size);
    quint32 check = 0xffffffff;
    for (const char byte : png.mid(placeOfHeader, 4 + size.size())) {
        check ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            check = (check >> 1) ^ (check & 1 ? 0xedb88320 : 0);
    }
    png.replace(placeOfHeader + 4 + size.size(), 4, number(~check));
    return png;
}

} // namespace

class tst_StillFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormatIsThatOfTheContent_data();
    void theFormatIsThatOfTheContent();
    void whatCannotBeAPictureIsRefused_data();
    void whatCannotBeAPictureIsRefused();
    void aPictureCutOffIsStillKnown();
    void damagedTagsSpoilNoPicture_data();
    void damagedTagsSpoilNoPicture();
    void theHeaderOfHeifTellsTheShape_data();
    void theHeaderOfHeifTellsTheShape();
    void aHeifHeaderThatIsCutTellsNothing();

private:
    const NxTempDir m_dir;
};

void tst_StillFacts::theFormatIsThatOfTheContent_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("name");
    for (const char *format : {"png", "jpeg", "webp", "tiff", "bmp", "ico"})
        QTest::newRow(format) << QByteArray(format) << QString::fromLatin1(format);
}

void tst_StillFacts::theFormatIsThatOfTheContent()
{
    QFETCH(QByteArray, format);
    QFETCH(QString, name);
    const auto file = opened(m_dir, encoded(image(), format.constData()));
    const auto facts = StillFacts::read(file.get());
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(facts->streams.videoCodec, name);
    QCOMPARE(QSize(facts->streams.width, facts->streams.height), image().size());
    QCOMPARE(facts->streams.kind, NxFootageKind::Image);
    QCOMPARE(facts->frames, 0);
    QVERIFY(!facts->rate.isValid());
}

void tst_StillFacts::whatCannotBeAPictureIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const QString unknown = QStringLiteral("The file is damaged, or no picture of a known kind.");
    QTest::newRow("letters") << QByteArray("Dear diary") << unknown;
    QTest::newRow("zeros") << QByteArray(1'000, '\0') << unknown;
    QTest::newRow("wider than anything")
        << claiming(200'000, 100)
        << QStringLiteral("The picture is too large: 200000 x 100 pixels.");
    QTest::newRow("more pixels than memory")
        << claiming(60'000, 60'000)
        << QStringLiteral("The picture is too large: 60000 x 60000 pixels.");
}

void tst_StillFacts::whatCannotBeAPictureIsRefused()
{
    QFETCH(QByteArray, content);
    const auto file = opened(m_dir, content);
    QTEST(StillFacts::read(file.get()).errorText(), "reason");
}

void tst_StillFacts::aPictureCutOffIsStillKnown()
{
    const QByteArray whole = encoded(image(), "jpeg");
    const auto file = opened(m_dir, whole.left(whole.size() - 20));
    const auto facts = StillFacts::read(file.get());
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(QSize(facts->streams.width, facts->streams.height), image().size());
}

void tst_StillFacts::damagedTagsSpoilNoPicture_data()
{
    QTest::addColumn<QByteArray>("tags");
    QTest::newRow("none at all") << QByteArray();
    QTest::newRow("letters") << QByteArray("nonsense");
    QTest::newRow("tags far behind the end") << QByteArray("MM\0\x2a\x7f\xff\xff\xff", 8);
    QTest::newRow("more tags than there are")
        << QByteArray("MM\0\x2a\0\0\0\x08\xff\xff\x01\x0f\0\x02\xff\xff\xff\xff\0\0\0\x08", 22);
}

void tst_StillFacts::damagedTagsSpoilNoPicture()
{
    QFETCH(QByteArray, tags);
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tags;
    const QByteArray marker = QByteArray("\xff\xe1") + shortNumber(quint16(exif.size() + 2)) + exif;
    QByteArray jpeg = encoded(image(), "jpeg");
    jpeg.insert(2, marker);
    const auto file = opened(m_dir, jpeg);
    const auto facts = StillFacts::read(file.get());
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(QSize(facts->streams.width, facts->streams.height), image().size());
    QCOMPARE(facts->streams.cameraMaker, QString());
    QCOMPARE(facts->shot, NxNoFootageTime);
}

void tst_StillFacts::theHeaderOfHeifTellsTheShape_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rotation");
    QTest::newRow("upright") << heif(640, 360, 0) << QSize(640, 360) << 0;
    QTest::newRow("a quarter back") << heif(640, 360, 1) << QSize(360, 640) << 270;
    QTest::newRow("upside down") << heif(640, 360, 2) << QSize(640, 360) << 180;
    QTest::newRow("a quarter clockwise") << heif(640, 360, 3) << QSize(360, 640) << 90;
    QTest::newRow("mirrored") << heif(640, 360, 0, "imir") << QSize(640, 360) << 0;
    QTest::newRow("a size that cannot be") << heif(640, 0, 0) << QSize() << 0;
    QTest::newRow("cropped, which only decoding tells")
        << heif(640, 360, 0, "clap") << QSize() << 0;
    QTest::newRow("another kind of file") << box("free", "none") << QSize() << 0;
}

void tst_StillFacts::theHeaderOfHeifTellsTheShape()
{
    QFETCH(QByteArray, content);
    QFETCH(QSize, size);
    QFETCH(int, rotation);
    const auto file = opened(m_dir, content);
    const auto header = HeifHeader::read(*file);
    QCOMPARE(header.has_value(), size.isValid());
    QCOMPARE(header ? header->size : QSize(), size);
    QCOMPARE(header ? header->rotation : 0, rotation);
}

void tst_StillFacts::aHeifHeaderThatIsCutTellsNothing()
{
    const QByteArray whole = heif(640, 360, 0);
    for (int length = 1; length < whole.size(); ++length) {
        const auto file = opened(m_dir, whole.left(length));
        QVERIFY2(!HeifHeader::read(*file), qPrintable(QString::number(length)));
    }
}

NX_TEST_MAIN(tst_StillFacts)
#include "tst_StillFacts.moc"
