// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/input/FootageFile.h>
#include <brevano-worker/pictures/Fingerprint.h>

#include <QCryptographicHash>
#include <QTest>

namespace {

constexpr int Piece = 64 * 1024;

/// Bytes that do not repeat themselves every so often.
QByteArray bytesOf(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = char(state >> 24);
    }
    return bytes;
}

QByteArray hashOf(const NxFingerprint &fingerprint)
{
    return QByteArray::number(fingerprint.high, 16).rightJustified(16, '0')
           + QByteArray::number(fingerprint.low, 16).rightJustified(16, '0');
}

} // namespace

class tst_Fingerprint : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hashIsOfTheFirstMiddleAndLastPiece_data();
    void hashIsOfTheFirstMiddleAndLastPiece();
    void everyByteOfThePiecesCounts_data();
    void everyByteOfThePiecesCounts();
    void bytesBetweenThePiecesAreNotRead();
    void filesOfOtherSizesAreOthers();
    void projectsKeepWhatItIs();
    void fileThatGotShorterHasNone();

private:
    [[nodiscard]] NxFingerprint of(const QByteArray &bytes);

    NxTempDir m_dir;
};

NxFingerprint tst_Fingerprint::of(const QByteArray &bytes)
{
    const QString path = m_dir.write(QStringLiteral("file"), bytes);
    return fingerprintOf(**FootageFile::open(path.toUtf8()));
}

void tst_Fingerprint::hashIsOfTheFirstMiddleAndLastPiece_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QVector<int>>("places");
    QTest::newRow("large, odd") << 1'000'001
                                << QVector<int>{0, (1'000'001 - Piece) / 2, 1'000'001 - Piece};
    QTest::newRow("one byte more than three pieces")
        << 3 * Piece + 1 << QVector<int>{0, Piece, 2 * Piece + 1};
    QTest::newRow("three pieces: everything") << 3 * Piece << QVector<int>{0, Piece, 2 * Piece};
}

void tst_Fingerprint::hashIsOfTheFirstMiddleAndLastPiece()
{
    QFETCH(int, size);
    QFETCH(QVector<int>, places);
    const QByteArray bytes = bytesOf(size);
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const int place : places)
        hash.addData(bytes.mid(place, Piece));
    const NxFingerprint fingerprint = of(bytes);
    QCOMPARE(fingerprint.size, qint64(size));
    QCOMPARE(hashOf(fingerprint), hash.result().toHex());
}

void tst_Fingerprint::everyByteOfThePiecesCounts_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("place");
    constexpr int large = 10 * Piece;
    constexpr int middle = (large - Piece) / 2;
    QTest::newRow("first byte") << large << 0;
    QTest::newRow("last of the first piece") << large << Piece - 1;
    QTest::newRow("first of the middle") << large << middle;
    QTest::newRow("last of the middle") << large << middle + Piece - 1;
    QTest::newRow("first of the last piece") << large << large - Piece;
    QTest::newRow("last byte") << large << large - 1;
    QTest::newRow("in a short file") << Piece + 10 << Piece + 5;
    QTest::newRow("the only one") << 1 << 0;
}

void tst_Fingerprint::everyByteOfThePiecesCounts()
{
    QFETCH(int, size);
    QFETCH(int, place);
    QByteArray bytes = bytesOf(size);
    const NxFingerprint before = of(bytes);
    bytes[place] = char(bytes.at(place) ^ 1);
    QVERIFY(of(bytes) != before);
}

void tst_Fingerprint::bytesBetweenThePiecesAreNotRead()
{
    QByteArray bytes = bytesOf(10 * Piece);
    const NxFingerprint before = of(bytes);
    bytes[2 * Piece] = char(bytes.at(2 * Piece) ^ 1);
    QVERIFY(of(bytes) == before);
}

void tst_Fingerprint::filesOfOtherSizesAreOthers()
{
    // The same bytes everywhere: nothing but the size tells them apart.
    QVERIFY(of(QByteArray(10 * Piece, '\0')) != of(QByteArray(11 * Piece, '\0')));
}

void tst_Fingerprint::projectsKeepWhatItIs()
{
    QCOMPARE(NxFingerprint::Version, 1);
    QCOMPARE(hashOf(of("Brevano")), QByteArray("80e4757628396f464dfb82c115d1f57a"));
    QCOMPARE(hashOf(of(QByteArray(1'000'000, 'b'))),
             QByteArray("f419d4baba769b4f017ac91ee1acdcb1"));
}

void tst_Fingerprint::fileThatGotShorterHasNone()
{
    const QString path = m_dir.write(QStringLiteral("shrinks"), bytesOf(10 * Piece));
    const NxResult<std::unique_ptr<FootageFile>> file = FootageFile::open(path.toUtf8());
    QVERIFY(file);
    QVERIFY(QFile::resize(path, Piece));
    QVERIFY(fingerprintOf(**file).isNull());
}

NX_TEST_MAIN(tst_Fingerprint)
#include "tst_Fingerprint.moc"
