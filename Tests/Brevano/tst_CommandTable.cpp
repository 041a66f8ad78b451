// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandHelp.h>
#include <Brevano/commands/CommandTable.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

class tst_CommandTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandCanBeFoundAndMade();
    void aCommandThatIsNotThereIsNotFound();
    void helpNamesEveryOption();
    void theManualTellsOfEveryCommandAndOption();
};

void tst_CommandTable::everyCommandCanBeFoundAndMade()
{
    QVERIFY(!CommandTable::entries().isEmpty());
    for (const CommandEntry &entry : CommandTable::entries()) {
        const CommandEntry *found = CommandTable::find(QLatin1String(entry.name));
        QVERIFY2(found && found->name == entry.name, entry.name);
        QVERIFY2(entry.make(), entry.name);
    }
}

void tst_CommandTable::aCommandThatIsNotThereIsNotFound()
{
    QCOMPARE(CommandTable::find(QStringLiteral("Import")), nullptr);
    QCOMPARE(CommandTable::find(QString()), nullptr);
}

void tst_CommandTable::helpNamesEveryOption()
{
    for (const CommandEntry &entry : CommandTable::entries()) {
        const QString help = CommandHelp::of(entry).join(QLatin1Char('\n'));
        for (const CommandOption &option : entry.options)
            QVERIFY2(help.contains(QLatin1String(option.name)), entry.name);
        const QString usage =
            QStringLiteral("brevano %1 %2")
                .arg(QLatin1String(entry.name), QLatin1String(entry.synopses.constFirst()));
        QVERIFY2(help.contains(usage), entry.name);
    }
}

void tst_CommandTable::theManualTellsOfEveryCommandAndOption()
{
    QFile file(QStringLiteral(NX_SOURCE_DIR "/Docs/cli.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll());
    for (const CommandEntry &entry : CommandTable::entries()) {
        QVERIFY2(manual.contains(QStringLiteral("## %1").arg(QLatin1String(entry.name)))
                     || manual.contains(QStringLiteral(", %1\n").arg(QLatin1String(entry.name))),
                 entry.name);
        for (const CommandOption &option : entry.options)
            QVERIFY2(manual.contains(QLatin1String(option.name)), option.name);
    }
}

NX_TEST_MAIN(tst_CommandTable)
#include "tst_CommandTable.moc"
