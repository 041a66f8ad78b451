// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandLine.h>
#include <Support/NxTestMain.h>

#include <QtTest>

namespace {

ProgramArguments words(const QString &text)
{
    ProgramArguments result;
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        result.append({part, true});
    return result;
}

const QVector<CommandOption> options{CommandOptions::into, CommandOptions::json};

/// "P a | --into=X --json": the names, then the options.
QString shown(const CommandLine &line)
{
    QStringList parts;
    for (const ProgramArgument &name : line.names())
        parts.append(name.text);
    parts.append(QStringLiteral("|"));
    if (const auto into = line.value(CommandOptions::into))
        parts.append(QStringLiteral("--into=") + *into);
    if (line.has(CommandOptions::json))
        parts.append(QStringLiteral("--json"));
    return parts.join(QLatin1Char(' '));
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsMayStandAnywhere_data();
    void optionsMayStandAnywhere();
    void whatCannotBeUnderstoodIsRefused_data();
    void whatCannotBeUnderstoodIsRefused();
    void aValueMayBeEmpty();
    void aValueThatIsNoTextIsRefused();
    void aNameThatIsNoTextIsKeptAsSuch();
};

void tst_CommandLine::optionsMayStandAnywhere_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("read");

    QTest::newRow("only names") << "P a b"
                                << "P a b |";
    QTest::newRow("before") << "--into X P a"
                            << "P a | --into=X";
    QTest::newRow("between") << "P --into X a --json b"
                             << "P a b | --into=X --json";
    QTest::newRow("behind") << "P a --json --into X"
                            << "P a | --into=X --json";
    QTest::newRow("with an equals sign") << "P --into=X/Y=Z a"
                                         << "P a | --into=X/Y=Z";
    QTest::newRow("only names after two dashes") << "P -- --json -x --"
                                                 << "P --json -x -- |";
    QTest::newRow("an option before, names after") << "--json -- P --into"
                                                   << "P --into | --json";
    QTest::newRow("one dash is a name") << "P -"
                                        << "P - |";
    QTest::newRow("a value may look like an option") << "P --into --json"
                                                     << "P | --into=--json";
    QTest::newRow("nothing") << ""
                             << "|";
}

void tst_CommandLine::optionsMayStandAnywhere()
{
    QFETCH(QString, given);
    QFETCH(QString, read);

    const NxResult<CommandLine> line = CommandLine::parse(words(given), options);
    QVERIFY2(line, qPrintable(line.errorText()));
    QCOMPARE(shown(*line), read);
}

void tst_CommandLine::whatCannotBeUnderstoodIsRefused_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("reason");

    QTest::newRow("an option nobody knows") << "P --intoo X"
                                            << "there is no option --intoo";
    QTest::newRow("a short option nobody knows") << "P -j"
                                                 << "there is no option -j";
    QTest::newRow("an option of another command") << "P --folder X"
                                                  << "there is no option --folder";
    QTest::newRow("twice") << "P --into A --into B"
                           << "--into is there twice";
    QTest::newRow("twice in two forms") << "P --into A --into=B"
                                        << "--into is there twice";
    QTest::newRow("no value") << "P --into"
                              << "--into needs a FOLDER";
    QTest::newRow("a value too much") << "P --json=yes"
                                      << "--json takes no value";
}

void tst_CommandLine::whatCannotBeUnderstoodIsRefused()
{
    QFETCH(QString, given);
    QFETCH(QString, reason);

    const NxResult<CommandLine> line = CommandLine::parse(words(given), options);
    QCOMPARE(line.errorText(), reason);
}

void tst_CommandLine::aValueMayBeEmpty()
{
    const NxResult<CommandLine> equals =
        CommandLine::parse(words(QStringLiteral("P --into=")), options);
    QVERIFY(equals);
    QCOMPARE(equals->value(CommandOptions::into), std::optional<QString>(QString()));

    const NxResult<CommandLine> apart =
        CommandLine::parse({{QStringLiteral("--into"), true}, {QString(), true}}, options);
    QVERIFY(apart);
    QCOMPARE(apart->value(CommandOptions::into), std::optional<QString>(QString()));
    QVERIFY(!apart->value(CommandOptions::json));
}

void tst_CommandLine::aValueThatIsNoTextIsRefused()
{
    const NxResult<CommandLine> line = CommandLine::parse(
        {{QStringLiteral("--into"), true}, {QStringLiteral("caf\\xe9"), false}}, options);
    QCOMPARE(line.errorText(), QStringLiteral("the value of --into is not UTF-8: caf\\xe9"));
}

void tst_CommandLine::aNameThatIsNoTextIsKeptAsSuch()
{
    const NxResult<CommandLine> line =
        CommandLine::parse({{QStringLiteral("caf\\xe9.mp4"), false}}, options);
    QVERIFY(line);
    QCOMPARE(line->names().size(), 1);
    QCOMPARE(line->names().constFirst().text, QStringLiteral("caf\\xe9.mp4"));
    QVERIFY(!line->names().constFirst().isText);
}

NX_TEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
