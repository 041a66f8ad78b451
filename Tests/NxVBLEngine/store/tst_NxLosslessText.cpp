// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxLosslessText.h>

#include <Support/NxTestMain.h>

#include <random>

class tst_NxLosslessText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wellFormedTextIsPlainUtf8_data();
    void wellFormedTextIsPlainUtf8();
    void loneSurrogatesComeBack_data();
    void loneSurrogatesComeBack();
    void anySequenceOfUnitsComesBack();
    void bytesThatAreNoTextBecomeReplacements();
};

void tst_NxLosslessText::wellFormedTextIsPlainUtf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("ascii") << QStringLiteral("Clip 1.mp4");
    QTest::newRow("two bytes") << QStringLiteral("caf\u00e9 \u07ff");
    QTest::newRow("three bytes") << QStringLiteral("\u0800 \u6620\u753b \ud55c\uad6d \uffff");
    QTest::newRow("four bytes") << QString::fromUtf8("\xF0\x9F\x8E\xAC film \xF4\x8F\xBF\xBF");
    QTest::newRow("byte order marks") << QStringLiteral("\ufeff\ufeffa\ufeff");
    QTest::newRow("zeros and control characters") << QString(3, QChar(0)) + QChar(7);
}

void tst_NxLosslessText::wellFormedTextIsPlainUtf8()
{
    QFETCH(QString, text);
    const QByteArray bytes = NxLosslessText::encoded(text);
    QCOMPARE(bytes, text.toUtf8());
    QCOMPARE(NxLosslessText::decoded(bytes.constData(), bytes.size()), text);
}

void tst_NxLosslessText::loneSurrogatesComeBack_data()
{
    QTest::addColumn<QString>("text");
    const QChar high(0xD83C);
    const QChar low(0xDFAC);
    QTest::newRow("a high one") << QString(high);
    QTest::newRow("a low one") << QString(low);
    QTest::newRow("high at the end") << QStringLiteral("Clip") + high;
    QTest::newRow("low at the beginning") << low + QStringLiteral("Clip");
    QTest::newRow("the wrong way round") << QString(low) + high;
    QTest::newRow("two high ones and a pair") << QString(high) + high + low;
    QTest::newRow("among letters of the same lead byte")
        << QStringLiteral("\ud55c") + high + QStringLiteral("\ud7a3") + low;
}

void tst_NxLosslessText::loneSurrogatesComeBack()
{
    QFETCH(QString, text);
    const QByteArray bytes = NxLosslessText::encoded(text);
    QCOMPARE(NxLosslessText::decoded(bytes.constData(), bytes.size()), text);
}

void tst_NxLosslessText::anySequenceOfUnitsComesBack()
{
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> kind(0, 3);
    std::uniform_int_distribution<int> unit(0, 0xFFFF);
    std::uniform_int_distribution<int> surrogate(0xD800, 0xDFFF);
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (int i = 0; i < 20; ++i)
            text += QChar(kind(random) == 0 ? surrogate(random) : unit(random));
        const QByteArray bytes = NxLosslessText::encoded(text);
        QCOMPARE(NxLosslessText::decoded(bytes.constData(), bytes.size()), text);
    }
}

void tst_NxLosslessText::bytesThatAreNoTextBecomeReplacements()
{
    const QString text = NxLosslessText::decoded("a\xFFz", 3);
    QVERIFY(text.startsWith(QLatin1Char('a')) && text.endsWith(QLatin1Char('z')));
    QVERIFY(text.contains(QChar(QChar::ReplacementCharacter)));
}

NX_TEST_MAIN(tst_NxLosslessText)
#include "tst_NxLosslessText.moc"
