// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

/// mkdir, rename, move, remove.
class tst_ChangeCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFolderIsMadeWithThoseAboveIt();
    void aFolderThatIsThereIsDone();
    void aFolderNameKeepsToTheRules_data();
    void aFolderNameKeepsToTheRules();
    void escapedNamesAreOneName();
    void mediaAreRenamedByNameAndByPath();
    void aFolderIsRenamed();
    void namesThatDoNotFitAreRefused_data();
    void namesThatDoNotFitAreRefused();
    void mediaAreMovedToTheEndOfAFolder();
    void aFolderIsMovedWithAllThatItHolds();
    void whatIsThereAlreadyNeedsNoMove();
    void movesThatCannotBeAreRefused_data();
    void movesThatCannotBeAreRefused();
    void mediaAreRemovedInOneStep();
    void aFolderIsRemovedWithAllThatItHolds();
    void anAmbiguousNameIsListedAndNothingChanged_data();
    void anAmbiguousNameIsListedAndNothingChanged();
    void oneNameThatDoesNotFitStopsAll();
    void theSectionItselfCannotBeChanged_data();
    void theSectionItselfCannotBeChanged();
    void foldersOfTheSharedSectionAreReached();

private:
    [[nodiscard]] ProgramResult run(const char *command, const char *rest) const;

    std::unique_ptr<Yard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
};

ProgramResult tst_ChangeCommands::run(const char *command, const char *rest) const
{
    QStringList words = QString::fromUtf8(rest).split(QLatin1Char('|'));
    words.replaceInStrings(QStringLiteral("$F"), m_yard->footage());
    return m_yard->run(command, words);
}

void tst_ChangeCommands::init()
{
    m_yard = std::make_unique<Yard>();
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral("b.mp4"));
    m_yard->clip(QStringLiteral("Day/clip.mp4"));
    m_yard->clip(QStringLiteral("Day/Raw/clip.mp4"));
    m_yard->clip(QStringLiteral("Day/Raw/r.mp4"));
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
    VERIFY_CODE(run("import", "$F/a.mp4|$F/b.mp4|$F/Day"), 0);
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')),
             QStringLiteral(": a.mp4|: b.mp4|Day: clip.mp4|Day/Raw: clip.mp4|Day/Raw: r.mp4"));
}

void tst_ChangeCommands::cleanup()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
    m_guard.reset();
    m_yard.reset();
}

void tst_ChangeCommands::aFolderIsMadeWithThoseAboveIt()
{
    const ProgramResult made = run("mkdir", " Trip / Day 1/Cut ");
    VERIFY_CODE(made, 0);
    QCOMPARE(made.output, QByteArray("Made Trip/Day 1/Cut\n"));
    VERIFY_CODE(run("list", "--folder|Trip/Day 1/Cut"), 0);
    // One step, whatever was missing.
    VERIFY_CODE(m_yard->run("undo"), 0);
    VERIFY_CODE(run("list", "--folder|Trip"), 1);
}

void tst_ChangeCommands::aFolderThatIsThereIsDone()
{
    const ProgramResult there = run("mkdir", "Day/Raw");
    VERIFY_CODE(there, 0);
    QCOMPARE(there.output, QByteArray("Day/Raw is there already\n"));
    // Nothing changed, so the last step is still the import.
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown(), QStringList());
}

void tst_ChangeCommands::aFolderNameKeepsToTheRules_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("code");

    QTest::newRow("255 characters") << QString(255, QLatin1Char('x')) << 0;
    QTest::newRow("256 characters") << QString(256, QLatin1Char('x')) << 1;
    QTest::newRow("256 characters below")
        << QStringLiteral("Trip/") + QString(256, QLatin1Char('x')) << 1;
    QTest::newRow("255 between spaces")
        << QLatin1Char(' ') + QString(255, QLatin1Char('x')) + QLatin1Char(' ') << 0;
    QTest::newRow("nothing") << QString() << 1;
    QTest::newRow("spaces") << QStringLiteral("  ") << 1;
    QTest::newRow("only separators") << QStringLiteral("//") << 1;
    QTest::newRow("a line end within") << QStringLiteral("a\nb") << 0;
}

void tst_ChangeCommands::aFolderNameKeepsToTheRules()
{
    QFETCH(QString, path);
    QFETCH(int, code);

    const ProgramResult result = m_yard->run("mkdir", {path});
    VERIFY_CODE(result, code);
    QCOMPARE(result.errors.isEmpty(), code == 0);
    // What was refused left nothing, not even the folders above.
    VERIFY_CODE(run("list", "--folder|Trip"), 1);
}

void tst_ChangeCommands::escapedNamesAreOneName()
{
    VERIFY_CODE(m_yard->run("mkdir", {QStringLiteral("AC\\/DC/a\\\\b")}), 0);
    VERIFY_CODE(m_yard->run("move", {QStringLiteral("a.mp4"), QStringLiteral("--into"),
                                     QStringLiteral("AC\\/DC/a\\\\b")}),
                0);
    QCOMPARE(m_yard->shown({QStringLiteral("--folder"), QStringLiteral("AC\\/DC")}),
             QStringList{QStringLiteral("AC\\/DC/a\\\\b: a.mp4")});
    VERIFY_CODE(run("list", "--folder|AC"), 1);
    // A new name is taken as it is.
    VERIFY_CODE(m_yard->run("rename", {QStringLiteral("--folder"), QStringLiteral("AC\\/DC"),
                                       QStringLiteral("x/y")}),
                0);
    QCOMPARE(m_yard->shown({QStringLiteral("--folder"), QStringLiteral("x\\/y")}),
             QStringList{QStringLiteral("x\\/y/a\\\\b: a.mp4")});
}

void tst_ChangeCommands::mediaAreRenamedByNameAndByPath()
{
    VERIFY_CODE(run("rename", "a.mp4|Opening"), 0);
    VERIFY_CODE(run("rename", "$F/Day/clip.mp4|  The clip "), 0);
    VERIFY_CODE(run("rename", "$F/Day/Raw/../../b.mp4|b.mp4"), 0);
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')),
             QStringLiteral(": Opening|: b.mp4|Day: The clip|Day/Raw: clip.mp4|Day/Raw: r.mp4"));
    VERIFY_CODE(run("rename", "Opening|a.mp4"), 0);
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown().constFirst(), QStringLiteral(": Opening"));
}

void tst_ChangeCommands::aFolderIsRenamed()
{
    VERIFY_CODE(run("rename", "--folder|Day/Raw|Cut"), 0);
    VERIFY_CODE(run("rename", "Day 1|--folder=Day"), 0);
    QCOMPARE(m_yard->shown({QStringLiteral("--folder"), QStringLiteral("Day 1/Cut")}).size(), 2);
    VERIFY_CODE(run("rename", "Day 1|--folder=Day 1"), 0);
}

void tst_ChangeCommands::namesThatDoNotFitAreRefused_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("a folder beside it") << QByteArray("--folder|Trip|Day") << QByteArray("Day: ");
    QTest::newRow("the same but for spaces")
        << QByteArray("--folder|Trip| Day ") << QByteArray("Day: ");
    QTest::newRow("an empty folder name")
        << QByteArray("--folder|Trip| ") << QByteArray("needs a name");
    QTest::newRow("a folder name too long")
        << "--folder|Trip|" + QByteArray(256, 'x') << QByteArray("256 characters");
    QTest::newRow("an empty media name") << QByteArray("a.mp4|  ") << QByteArray("needs a name");
    QTest::newRow("a folder that is not there")
        << QByteArray("--folder|Trips|x") << QByteArray("Trips: the project has no such folder");
    QTest::newRow("a media that is not there")
        << QByteArray("c.mp4|x") << QByteArray("c.mp4: the project has no such media");
    QTest::newRow("a file that is not in the project")
        << QByteArray("$F/c.mp4|x") << QByteArray("c.mp4: the project has no such media");
}

void tst_ChangeCommands::namesThatDoNotFitAreRefused()
{
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, reason);

    VERIFY_CODE(run("mkdir", "Trip"), 0);
    const QStringList before = m_yard->shown();
    const ProgramResult result = run("rename", words.constData());
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(reason.constData()), result.story().constData());
    QVERIFY2(result.errors.startsWith("brevano: "), result.story().constData());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(m_yard->shown(), before);
    VERIFY_CODE(run("list", "--folder|Trip"), 0);
}

void tst_ChangeCommands::mediaAreMovedToTheEndOfAFolder()
{
    VERIFY_CODE(run("move", "b.mp4|$F/a.mp4|--into|Day"), 0);
    QCOMPARE(
        m_yard->shown().join(QLatin1Char('|')),
        QStringLiteral("Day: clip.mp4|Day: b.mp4|Day: a.mp4|Day/Raw: clip.mp4|Day/Raw: r.mp4"));
    VERIFY_CODE(run("move", "--into|/|r.mp4"), 0);
    QCOMPARE(m_yard->shown().constFirst(), QStringLiteral(": r.mp4"));
    VERIFY_CODE(m_yard->run("undo"), 0);
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')),
             QStringLiteral(": a.mp4|: b.mp4|Day: clip.mp4|Day/Raw: clip.mp4|Day/Raw: r.mp4"));
}

void tst_ChangeCommands::aFolderIsMovedWithAllThatItHolds()
{
    VERIFY_CODE(run("mkdir", "Trip"), 0);
    VERIFY_CODE(run("move", "--folder|Day/Raw|--into|Trip"), 0);
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')),
             QStringLiteral(": a.mp4|: b.mp4|Day: clip.mp4|Trip/Raw: clip.mp4|Trip/Raw: r.mp4"));
    VERIFY_CODE(run("move", "--folder|Trip/Raw|--into|/"), 0);
    QCOMPARE(m_yard->shown({QStringLiteral("--folder"), QStringLiteral("Raw")}).size(), 2);
}

void tst_ChangeCommands::whatIsThereAlreadyNeedsNoMove()
{
    const QStringList before = m_yard->shown();
    VERIFY_CODE(run("move", "a.mp4|--into|/"), 0);
    VERIFY_CODE(run("move", "--folder|Day/Raw|--into|Day"), 0);
    QCOMPARE(m_yard->shown(), before);
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown(), QStringList());
}

void tst_ChangeCommands::movesThatCannotBeAreRefused_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("reason");

    QTest::newRow("into itself") << QByteArray("--folder|Day|--into|Day")
                                 << QByteArray("into itself");
    QTest::newRow("below itself") << QByteArray("--folder|Day|--into|Day/Raw")
                                  << QByteArray("into itself");
    QTest::newRow("beside one of its name")
        << QByteArray("--folder|Day/Raw|--into|Trip") << QByteArray("a folder of this name");
    QTest::newRow("a target that is not there")
        << QByteArray("a.mp4|--into|Trips") << QByteArray("Trips: the project has no such");
    QTest::newRow("a folder that is not there")
        << QByteArray("--folder|No|--into|Trip") << QByteArray("No: the project has no such");
}

void tst_ChangeCommands::movesThatCannotBeAreRefused()
{
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, reason);

    VERIFY_CODE(run("mkdir", "Trip/Raw"), 0);
    const QStringList before = m_yard->shown();
    const ProgramResult result = run("move", words.constData());
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(reason.constData()), result.story().constData());
    QCOMPARE(m_yard->shown(), before);
}

void tst_ChangeCommands::mediaAreRemovedInOneStep()
{
    const QStringList before = m_yard->shown();
    const ProgramResult removed = run("remove", "a.mp4|$F/Day/clip.mp4|r.mp4|a.mp4|--yes");
    VERIFY_CODE(removed, 0);
    QCOMPARE(removed.output, QByteArray("Removed 3 media\n"));
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')), QStringLiteral(": b.mp4|Day/Raw: clip.mp4"));
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown(), before);
}

void tst_ChangeCommands::aFolderIsRemovedWithAllThatItHolds()
{
    const ProgramResult removed = run("remove", "--folder|Day|--yes");
    VERIFY_CODE(removed, 0);
    QCOMPARE(removed.output, QByteArray("Removed Day with 3 media\n"));
    QCOMPARE(m_yard->shown().join(QLatin1Char('|')), QStringLiteral(": a.mp4|: b.mp4"));
    VERIFY_CODE(run("list", "--folder|Day"), 1);
}

void tst_ChangeCommands::anAmbiguousNameIsListedAndNothingChanged_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("words");

    QTest::newRow("rename") << QByteArray("rename") << QByteArray("clip.mp4|x");
    QTest::newRow("move") << QByteArray("move") << QByteArray("clip.mp4|--into|/");
    QTest::newRow("remove") << QByteArray("remove") << QByteArray("clip.mp4");
    QTest::newRow("remove with others") << QByteArray("remove") << QByteArray("a.mp4|clip.mp4");
}

void tst_ChangeCommands::anAmbiguousNameIsListedAndNothingChanged()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, words);

    const QStringList before = m_yard->shown();
    const ProgramResult result = run(command.constData(), words.constData());
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said("brevano: clip.mp4: 2 media have this name"), result.story().constData());
    const QByteArray footage = m_yard->footage().toUtf8();
    QVERIFY2(result.said(("  Day (project): " + footage + "/Day/clip.mp4\n").constData()),
             result.story().constData());
    QVERIFY2(result.said(("  Day/Raw (project): " + footage + "/Day/Raw/clip.mp4\n").constData()),
             result.story().constData());
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(m_yard->shown(), before);
}

void tst_ChangeCommands::oneNameThatDoesNotFitStopsAll()
{
    const QStringList before = m_yard->shown();
    const ProgramResult result = run("remove", "a.mp4|none.mp4|b.mp4|$F/no.mp4");
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said("none.mp4: the project has no such media"), result.story().constData());
    QVERIFY2(result.said("no.mp4: the project has no such media"), result.story().constData());
    QCOMPARE(m_yard->shown(), before);
}

void tst_ChangeCommands::theSectionItselfCannotBeChanged_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("words");

    QTest::newRow("rename") << QByteArray("rename") << QByteArray("--folder|/|x");
    QTest::newRow("move") << QByteArray("move") << QByteArray("--folder||--into|Day");
    QTest::newRow("remove") << QByteArray("remove") << QByteArray("--folder|/");
}

void tst_ChangeCommands::theSectionItselfCannotBeChanged()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, words);

    const QStringList before = m_yard->shown();
    VERIFY_CODE(run(command.constData(), words.constData()), 1);
    QCOMPARE(m_yard->shown(), before);
}

void tst_ChangeCommands::foldersOfTheSharedSectionAreReached()
{
    VERIFY_CODE(run("mkdir", "Logos|--section|shared"), 0);
    VERIFY_CODE(run("list", "--folder|Logos"), 1);
    VERIFY_CODE(run("move", "a.mp4|--into|Logos|--section|shared"), 0);
    VERIFY_CODE(run("rename", "--folder|Logos|Brand|--section=shared"), 0);
    QCOMPARE(m_yard->shown({QStringLiteral("--section"), QStringLiteral("shared")}),
             QStringList{QStringLiteral("Brand: a.mp4")});
    VERIFY_CODE(run("remove", "--folder|Brand|--section=shared|--yes"), 0);
    QCOMPARE(m_yard->shown({QStringLiteral("--section"), QStringLiteral("shared")}), QStringList());
}

NX_TEST_MAIN(tst_ChangeCommands)
#include "tst_ChangeCommands.moc"
