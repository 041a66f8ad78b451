// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/JsonLine.h>
#include <Support/NxTestMain.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_JsonLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysStandInTheOrderInWhichTheyWereAdded();
    void anythingUnknownIsNull();
    void everyTextComesBackThroughAParser_data();
    void everyTextComesBackThroughAParser();
    void textsAreAnArray();
    void aNumberKeepsAllItsDigits();
    void timesAreUtc();
};

void tst_JsonLine::keysStandInTheOrderInWhichTheyWereAdded()
{
    JsonLine inner;
    inner.addNumber("z", 1);
    inner.addNumber("a", 2);
    JsonLine line;
    line.addText("name", QStringLiteral("b"));
    line.addBool("at", true);
    line.addObject("in", inner);
    line.addBool("end", false);
    QCOMPARE(line.text(), QByteArray(R"({"name":"b","at":true,"in":{"z":1,"a":2},"end":false})"));
    QCOMPARE(JsonLine().text(), QByteArray("{}"));
}

void tst_JsonLine::anythingUnknownIsNull()
{
    JsonLine line;
    line.addNull("a");
    line.addTextOrNull("b", QString());
    line.addNumberOrNull("c", 7, false);
    line.addTimeOrNull("d", QDateTime());
    line.addTextOrNull("e", QStringLiteral("x"));
    line.addNumberOrNull("f", 0, true);
    QCOMPARE(line.text(), QByteArray(R"({"a":null,"b":null,"c":null,"d":null,"e":"x","f":0})"));
}

void tst_JsonLine::everyTextComesBackThroughAParser_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString(QLatin1String(""));
    QTest::newRow("quotes and backslashes") << QStringLiteral("a\"b\\c/d");
    QTest::newRow("line ends and tabs") << QStringLiteral("a\nb\r\tc");
    QTest::newRow("control characters") << QStringLiteral("\x01\x1b[2J\x1f\x7f");
    QTest::newRow("emoji and accents")
        << QString::fromUtf8("Sommer \xF0\x9F\x8F\x96 \xC3\xA9\xE6\x97\xA5");
    QTest::newRow("line separators of Unicode") << QString(QChar(0x2028)) + QChar(0x2029);
}

void tst_JsonLine::everyTextComesBackThroughAParser()
{
    QFETCH(QString, text);

    JsonLine line;
    line.addText("text", text);
    QVERIFY(!line.text().contains('\n'));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line.text(), &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(document.object().value(QStringLiteral("text")).toString(), text);
}

void tst_JsonLine::textsAreAnArray()
{
    JsonLine line;
    line.addTexts("none", {});
    line.addTexts("two", {QStringLiteral("a\"b"), QStringLiteral("c")});
    QCOMPARE(line.text(), QByteArray("{\"none\":[],\"two\":[\"a\\\"b\",\"c\"]}"));
}

void tst_JsonLine::aNumberKeepsAllItsDigits()
{
    JsonLine line;
    line.addNumber("size", 9007199254740993);
    line.addNumber("less", -1);
    QCOMPARE(line.text(), QByteArray(R"({"size":9007199254740993,"less":-1})"));
}

void tst_JsonLine::timesAreUtc()
{
    const QDateTime summer(QDate(2026, 7, 1), QTime(14, 30, 5), Qt::OffsetFromUTC, 2 * 60 * 60);
    JsonLine line;
    line.addTimeOrNull("created", summer);
    QCOMPARE(line.text(), QByteArray(R"({"created":"2026-07-01T12:30:05Z"})"));
}

NX_TEST_MAIN(tst_JsonLine)
#include "tst_JsonLine.moc"
