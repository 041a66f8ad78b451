// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ShownText.h>
#include <Brevano/commands/TextTable.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_ShownText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTerminalIsNeverCommandedByAName_data();
    void aTerminalIsNeverCommandedByAName();
    void widthIsThatOfATerminal_data();
    void widthIsThatOfATerminal();
    void nounsFollowTheirNumber();
    void columnsAreAligned();
};

void tst_ShownText::aTerminalIsNeverCommandedByAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");

    QTest::newRow("plain") << "Day 1 \"x\".mp4"
                           << "Day 1 \"x\".mp4";
    QTest::newRow("line end") << "a\nb\tc"
                              << "a\\nb\\tc";
    QTest::newRow("escape") << "\x1b[31mred"
                            << "\\x1b[31mred";
    QTest::newRow("eight-bit control") << QString(QChar(0x9b)) << "\\x9b";
    QTest::newRow("Unicode's line end") << QString(QChar(0x2028)) << "\\u2028";
    QTest::newRow("a change of direction") << QString(QChar(0x202e)) << "\\u202e";
    QTest::newRow("emoji of several parts")
        << QString::fromUtf8("\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80")
        << QString::fromUtf8("\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80");
}

void tst_ShownText::aTerminalIsNeverCommandedByAName()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);

    QCOMPARE(ShownText::oneLine(name), shown);
}

void tst_ShownText::widthIsThatOfATerminal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");

    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("Latin") << "abc" << 3;
    QTest::newRow("an accent of its own") << QStringLiteral("e") + QChar(0x301) << 1;
    QTest::newRow("Chinese") << QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC") << 4;
    QTest::newRow("emoji") << QString::fromUtf8("\xF0\x9F\x8E\xAC") << 2;
}

void tst_ShownText::widthIsThatOfATerminal()
{
    QFETCH(QString, text);
    QFETCH(int, columns);

    QCOMPARE(ShownText::columns(text), columns);
}

void tst_ShownText::nounsFollowTheirNumber()
{
    QCOMPARE(ShownText::count(1, "folder", "folders"), QStringLiteral("1 folder"));
    QCOMPARE(ShownText::count(0, "folder", "folders"), QStringLiteral("0 folders"));
    QCOMPARE(ShownText::count(2, "folder", "folders"), QStringLiteral("2 folders"));
}

void tst_ShownText::columnsAreAligned()
{
    TextTable table;
    table.addColumn(QStringLiteral("Name"));
    table.addColumn(QStringLiteral("Size"), TextTable::Align::Right);
    table.addColumn(QString());
    table.addRow({QStringLiteral("a"), QStringLiteral("5"), QString()});
    table.addRow({QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC\n"), QStringLiteral("12345"),
                  QStringLiteral("missing")});
    const QStringList lines{
        QStringLiteral("Name     Size"),
        QStringLiteral("a           5"),
        QString::fromUtf8("\xE6\x97\xA5\xE6\x9C\xAC\\n  12345  missing"),
    };
    QCOMPARE(table.lines(), lines);
}

NX_TEST_MAIN(tst_ShownText)
#include "tst_ShownText.moc"
