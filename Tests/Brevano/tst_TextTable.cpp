// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/TextTable.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_TextTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreAlignedOverAllRows();
    void aLineAcrossWidensNoColumn();
    void everyRowStaysOnOneLine();
};

void tst_TextTable::columnsAreAlignedOverAllRows()
{
    TextTable table;
    table.addColumn(QStringLiteral("Name"));
    table.addColumn(QStringLiteral("Size"), TextTable::Align::Right);
    table.addColumn(QString());
    table.addRow({QStringLiteral("a"), QStringLiteral("1"), QString()});
    table.addRow({QString::fromUtf8("海辺の夕日"), QStringLiteral("12345"), QStringLiteral("x")});
    const QStringList expected{QStringLiteral("Name         Size"),
                               QStringLiteral("a               1"),
                               QString::fromUtf8("海辺の夕日  12345  x")};
    QCOMPARE(table.lines(), expected);
}

void tst_TextTable::aLineAcrossWidensNoColumn()
{
    TextTable table;
    table.addColumn(QStringLiteral("A"));
    table.addColumn(QStringLiteral("B"));
    table.addLine(QStringLiteral("[a line that is longer than the columns]"));
    table.addRow({QStringLiteral("1"), QStringLiteral("2")});
    table.addLine(QStringLiteral("== end"));
    const QStringList expected{QStringLiteral("A  B"),
                               QStringLiteral("[a line that is longer than the columns]"),
                               QStringLiteral("1  2"), QStringLiteral("== end")};
    QCOMPARE(table.lines(), expected);
}

void tst_TextTable::everyRowStaysOnOneLine()
{
    TextTable table;
    table.addColumn(QStringLiteral("A"));
    table.addRow({QStringLiteral("a\nb")});
    table.addLine(QStringLiteral("c\x1b[2J"));
    const QStringList expected{QStringLiteral("A"), QStringLiteral("a\\nb"),
                               QStringLiteral("c\\x1b[2J")};
    QCOMPARE(table.lines(), expected);
}

NX_TEST_MAIN(tst_TextTable)
#include "tst_TextTable.moc"
