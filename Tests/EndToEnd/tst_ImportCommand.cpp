// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

class tst_ImportCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFolderBecomesAFolder();
    void everyLineHasItsKeysInOrder();
    void importingAgainAddsNothing();
    void aTreeMayBeImportedIntoAFolderOfTheProject();
    void theSharedSectionIsAnotherOne();
    void whatIsNamedAndCannotBeImportedIsTold_data();
    void whatIsNamedAndCannotBeImportedIsTold();
    void someRefusedIsNotAllRefused();
    void whatIsPassedOverIsCounted();
    void aLinkCycleIsWalkedOnce();
    void aFifoIsNeverOpened();
    void oddNamesArriveAsTheyAre_data();
    void oddNamesArriveAsTheyAre();
    void aNameThatIsNoUtf8IsRefusedWithItsBytes();
    void aVeryLongPathIsImported();
    void aLocaleOfAsciiDoesNotLoseNames();
    void aFolderThatVanishedIsTold();
    void anEmptyFolderIsNothingDone();
    void anInterruptedImportKeepsWhatItAdded_data();
    void anInterruptedImportKeepsWhatItAdded();
    void aReaderWhoLeavesDoesNotStopTheImport();
    void forPeopleThereIsOneLineOfSums();

private:
    [[nodiscard]] ProgramResult importUntilSignal(int signal) const;

    std::unique_ptr<Yard> m_yard;
};

void tst_ImportCommand::init()
{
    m_yard = std::make_unique<Yard>();
}

void tst_ImportCommand::cleanup()
{
    m_yard.reset();
}

void tst_ImportCommand::aFolderBecomesAFolder()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral("Day 1/b.wav"));
    m_yard->clip(QStringLiteral("Day 1/Raw/c.jpg"));
    const NxFootageGuard guard(m_yard->footage());

    const ProgramResult result = m_yard->run("import", {m_yard->footage()});
    VERIFY_CODE(result, 0);
    QVERIFY2(result.said("Film.brevano: a new project was made"), result.story().constData());

    QStringList shown = m_yard->shown();
    shown.sort();
    const QStringList expected{QStringLiteral("footage/Day 1/Raw: c.jpg"),
                               QStringLiteral("footage/Day 1: b.wav"),
                               QStringLiteral("footage: a.mp4")};
    QCOMPARE(shown, expected);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::everyLineHasItsKeysInOrder()
{
    const QString clip = m_yard->clip(QStringLiteral("a.mp4"), "12345");
    const QString refused = m_yard->clip(QStringLiteral("b.pdf"));
    const ProgramResult result = m_yard->run("import", {QStringLiteral("--json"), clip, refused});
    VERIFY_CODE(result, 3);

    const QList<QByteArray> lines = result.lines();
    QCOMPARE(lines.size(), 3);
    const QByteArray added = R"({"event":"added","name":"a.mp4","path":")" + clip.toUtf8()
                             + R"(","section":"project","folder":"","type":"video","size":5,)"
                             + R"("created":")";
    QVERIFY2(lines.at(0).startsWith(added), lines.at(0).constData());
    const QByteArray report =
        R"({"event":"report","path":")" + refused.toUtf8() + R"(","verdict":"refused","reason":")";
    QVERIFY2(lines.at(1).startsWith(report), lines.at(1).constData());
    const QByteArray folder = R"(","folder":""})";
    QVERIFY2(lines.at(1).endsWith(folder), lines.at(1).constData());
    const QByteArray summary =
        R"({"event":"summary","found":2,"added":1,"already_there":0,"refused":1,"unreadable":0,)"
        R"("cancelled":0,"passed_over":{"hidden":0,"other":0,"twice":0},"folders_added":0,)"
        R"("interrupted":false})";
    QCOMPARE(lines.at(2), summary);
}

void tst_ImportCommand::importingAgainAddsNothing()
{
    m_yard->manyClips(3, 4);
    const NxFootageGuard guard(m_yard->footage());
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    const QStringList before = m_yard->shown();
    QCOMPARE(before.size(), 12);

    const ProgramResult again =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(again, 0);
    QCOMPARE(again.values("added", "path"), QStringList());
    QCOMPARE(again.values("report", "verdict"),
             QVector<QString>(12, QStringLiteral("already_there")).toList());
    QCOMPARE(again.summary().value(QLatin1String("already_there")).toInt(), 12);
    QCOMPARE(again.summary().value(QLatin1String("folders_added")).toInt(), 0);
    QCOMPARE(m_yard->shown(), before);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::aTreeMayBeImportedIntoAFolderOfTheProject()
{
    const QString clip = m_yard->clip(QStringLiteral("a.mp4"));
    const QString into = QStringLiteral("Holiday\\/2026/Day 1");
    VERIFY_CODE(m_yard->run("import", {clip, QStringLiteral("--into"), into}), 0);
    QCOMPARE(m_yard->shown(), QStringList{into + QLatin1String(": a.mp4")});

    // The folder that was made stands behind a step of its own.
    VERIFY_CODE(m_yard->run("undo"), 0);
    VERIFY_CODE(m_yard->run("list", {QStringLiteral("--folder"), into}), 0);
    VERIFY_CODE(m_yard->run("undo"), 0);
    VERIFY_CODE(m_yard->run("list", {QStringLiteral("--folder"), into}), 1);
}

void tst_ImportCommand::theSharedSectionIsAnotherOne()
{
    const QStringList shared{QStringLiteral("--section"), QStringLiteral("shared")};
    VERIFY_CODE(m_yard->run("import", QStringList{m_yard->clip(QStringLiteral("a.mp4"))} + shared),
                0);
    VERIFY_CODE(m_yard->run("import", {m_yard->clip(QStringLiteral("b.mp4"))}), 0);
    QCOMPARE(m_yard->shown(shared), QStringList{QStringLiteral(": a.mp4")});
    const QVector<QJsonObject> all = m_yard->listed();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0).value(QLatin1String("section")).toString(), QStringLiteral("project"));
    QCOMPARE(all.at(1).value(QLatin1String("section")).toString(), QStringLiteral("shared"));
}

void tst_ImportCommand::whatIsNamedAndCannotBeImportedIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("verdict");

    QTest::newRow("another kind") << "a.pdf" << QByteArray("x") << "refused";
    QTest::newRow("no suffix") << "clip" << QByteArray("x") << "refused";
    QTest::newRow("empty") << "a.mp4" << QByteArray() << "unreadable";
    QTest::newRow("not there") << "none.mp4" << QByteArray() << "unreadable";
}

void tst_ImportCommand::whatIsNamedAndCannotBeImportedIsTold()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, verdict);

    const QString path =
        name == QLatin1String("none.mp4") ? m_yard->footage(name) : m_yard->clip(name, content);
    const ProgramResult result = m_yard->run("import", {path, QStringLiteral("--json")});
    VERIFY_CODE(result, 1);
    QCOMPARE(result.values("report", "verdict"), QStringList{verdict});
    QCOMPARE(result.values("report", "path"), QStringList{path});
    QCOMPARE(result.summary().value(verdict).toInt(), 1);
    QVERIFY2(result.said(("brevano: " + path.toUtf8() + ": ").constData()),
             result.story().constData());
    QCOMPARE(m_yard->paths(), QStringList());
}

void tst_ImportCommand::someRefusedIsNotAllRefused()
{
    const QString good = m_yard->clip(QStringLiteral("a.mp4"));
    const QString bad = m_yard->clip(QStringLiteral("a.zip"));
    VERIFY_CODE(m_yard->run("import", {bad, good}), 3);
    QCOMPARE(m_yard->paths(), QStringList{good});
}

void tst_ImportCommand::whatIsPassedOverIsCounted()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral(".hidden.mp4"));
    m_yard->clip(QStringLiteral(".cache/b.mp4"));
    m_yard->clip(QStringLiteral("notes.txt"));
    m_yard->clip(QStringLiteral("disc.dat"));
    m_yard->clip(QStringLiteral("Papers/c.pdf"));
    const ProgramResult result =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(result, 0);
    const QJsonObject passedOver = result.summary().value(QLatin1String("passed_over")).toObject();
    QCOMPARE(passedOver.value(QLatin1String("hidden")).toInt(), 2);
    QCOMPARE(passedOver.value(QLatin1String("other")).toInt(), 3);
    QCOMPARE(result.summary().value(QLatin1String("found")).toInt(), 1);
    // Folders without media are not made.
    QCOMPARE(result.summary().value(QLatin1String("folders_added")).toInt(), 1);
    QCOMPARE(m_yard->shown(), QStringList{QStringLiteral("footage: a.mp4")});
}

void tst_ImportCommand::aLinkCycleIsWalkedOnce()
{
    m_yard->clip(QStringLiteral("Day 1/a.mp4"));
    QVERIFY(QFile::link(m_yard->footage(), m_yard->footage(QStringLiteral("Day 1/again"))));
    QVERIFY(QFile::link(m_yard->footage(QStringLiteral("self")),
                        m_yard->footage(QStringLiteral("self"))));
    const NxFootageGuard guard(m_yard->footage());
    const ProgramResult result =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    QVERIFY2(result.code == 0 || result.code == 3, result.story().constData());
    QCOMPARE(m_yard->paths(), QStringList{m_yard->footage(QStringLiteral("Day 1/a.mp4"))});
    QVERIFY(result.summary()
                .value(QLatin1String("passed_over"))
                .toObject()
                .value(QLatin1String("twice"))
                .toInt()
            >= 1);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::aFifoIsNeverOpened()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    const QString fifo = m_yard->footage(QStringLiteral("pipe.mp4"));
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    // Who opened it would wait for ever.
    const ProgramResult named = m_yard->run("import", {fifo, QStringLiteral("--json")});
    VERIFY_CODE(named, 1);
    QCOMPARE(named.values("report", "verdict"), QStringList{QStringLiteral("refused")});
    const ProgramResult inside = m_yard->run("import", {m_yard->footage()});
    QVERIFY2(inside.code == 0 || inside.code == 3, inside.story().constData());
    QCOMPARE(m_yard->paths(), QStringList{m_yard->footage(QStringLiteral("a.mp4"))});
    VERIFY_CODE(m_yard->run("check"), 0);
}

void tst_ImportCommand::oddNamesArriveAsTheyAre_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("emoji") << QString::fromUtf8("Strand \xF0\x9F\x8F\x96\xEF\xB8\x8F.mp4");
    QTest::newRow("a line end") << "two\nlines.mp4";
    QTest::newRow("a control code") << "red\x1b[31m.mp4";
    QTest::newRow("quotes and backslashes") << "a\"b'c\\d.mp4";
    QTest::newRow("a leading dash") << "-v.mp4";
    QTest::newRow("like an option") << "--json.mp4";
    QTest::newRow("spaces at the ends") << " a .mp4";
    QTest::newRow("an accent of its own") << QString::fromUtf8("cafe\xCC\x81.mp4");
}

void tst_ImportCommand::oddNamesArriveAsTheyAre()
{
    QFETCH(QString, name);

    const QString path = m_yard->clip(name);
    const NxFootageGuard guard(m_yard->footage());
    // From within the folder, so that a leading dash is the first thing of the word.
    const QStringList words{QStringLiteral("import"), QStringLiteral("--no-read"),
                            m_yard->project(), QStringLiteral("--json"),
                            QStringLiteral("--"), name};
    const ProgramResult result = ProgramRun::run(words, m_yard->footage());
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(result.values("added", "path"), QStringList{path});
    QCOMPARE(m_yard->paths(), QStringList{path});

    const ProgramResult table = m_yard->run("list");
    QCOMPARE(table.lines().size(), 4); // Titles, the tile, the file, the sums.
    QVERIFY(!table.output.contains('\x1b'));

    VERIFY_CODE(
        ProgramRun::run({QStringLiteral("remove"), m_yard->project(), QStringLiteral("--yes"),
                         QStringLiteral("--"), name},
                        m_yard->footage()),
        0);
    QCOMPARE(m_yard->paths(), QStringList());
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::aNameThatIsNoUtf8IsRefusedWithItsBytes()
{
    const QString clip = m_yard->clip(QStringLiteral("a.mp4"));
    const QString make = QStringLiteral("printf x > \"$1/$(printf 'caf\\351.mp4')\"");
    VERIFY_CODE(ProgramRun::runShell(make, {m_yard->footage()}), 0);
    const NxFootageGuard guard(m_yard->footage());

    const QString import =
        QStringLiteral("exec \"$BREVANO\" import --no-read \"$1\" "
                       "\"$2/$(printf 'caf\\351.mp4')\" --json");
    const ProgramResult named =
        ProgramRun::runShell(import, {m_yard->project(), m_yard->footage()});
    VERIFY_CODE(named, 1);
    const QString shown = m_yard->footage(QStringLiteral("caf\\xe9.mp4"));
    QCOMPARE(named.values("report", "path"), QStringList{shown});
    QCOMPARE(named.values("report", "verdict"), QStringList{QStringLiteral("refused")});
    QCOMPARE(named.summary().value(QLatin1String("refused")).toInt(), 1);
    QVERIFY2(named.said("caf\\xe9.mp4: "), named.story().constData());

    const ProgramResult inside =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(inside, 3);
    QCOMPARE(inside.values("report", "path"), QStringList{shown});
    QCOMPARE(m_yard->paths(), QStringList{clip});
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::aVeryLongPathIsImported()
{
    constexpr int wanted = 4000;
    constexpr int longestName = 240;
    constexpr int least = 10; // Is left for the last one.
    QString name;
    int rest = wanted - m_yard->footage().size() - 1;
    for (; rest > longestName + least; rest -= longestName + 1)
        name += QString(longestName, QLatin1Char('d')) + QLatin1Char('/');
    name += QString(rest - 4, QLatin1Char('f')) + QLatin1String(".mp4");
    const QString path = m_yard->clip(name);
    QCOMPARE(path.size(), wanted);
    const NxFootageGuard guard(m_yard->footage());

    VERIFY_CODE(m_yard->run("import", {path}), 0);
    QCOMPARE(m_yard->paths(), QStringList{path});
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    QCOMPARE(m_yard->paths(), QStringList{path});
    VERIFY_CODE(m_yard->run("check"), 0);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_ImportCommand::aLocaleOfAsciiDoesNotLoseNames()
{
    const QString path = m_yard->clip(QString::fromUtf8("Stra\xC3\x9F\x65.mp4"));
    const ProgramResult result = ProgramRun::runShell(
        QStringLiteral("LC_ALL=C LANG=C exec \"$BREVANO\" import --no-read \"$1\" \"$2\" --json"),
        {m_yard->project(), m_yard->footage()});
    VERIFY_CODE(result, 0);
    QCOMPARE(result.values("added", "path"), QStringList{path});
    QCOMPARE(m_yard->paths(), QStringList{path});
}

void tst_ImportCommand::aFolderThatVanishedIsTold()
{
    const QString gone = m_yard->path(QStringLiteral("card/DCIM"));
    const ProgramResult result = m_yard->run("import", {gone});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(("brevano: " + gone.toUtf8() + ": It does not exist.").constData()),
             result.story().constData());
}

void tst_ImportCommand::anEmptyFolderIsNothingDone()
{
    const ProgramResult result =
        m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(result, 1);
    QCOMPARE(result.summary().value(QLatin1String("found")).toInt(), 0);
    VERIFY_CODE(m_yard->run("check"), 0);
}

void tst_ImportCommand::anInterruptedImportKeepsWhatItAdded_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("a request to terminate") << SIGTERM;
}

ProgramResult tst_ImportCommand::importUntilSignal(int signal) const
{
    ProgramRun import;
    import.begin(
        {QStringLiteral("import"), QStringLiteral("--no-read"), m_yard->project(),
         m_yard->footage(), QStringLiteral("--json")});
    if (import.waitForLine())
        ::kill(pid_t(import.processId()), signal);
    return import.end();
}

void tst_ImportCommand::anInterruptedImportKeepsWhatItAdded()
{
    QFETCH(int, signal);

    constexpr int files = 150;
    constexpr int manyFolders = 1000;
    int folders = 20;
    std::unique_ptr<NxFootageGuard> guard;
    ProgramResult interrupted;
    QString earlier;
    QStringList told;
    do { // The signal follows the first line, and everything may have been added by then.
        folders *= 2;
        m_yard = std::make_unique<Yard>();
        m_yard->manyClips(folders, files);
        guard = std::make_unique<NxFootageGuard>(m_yard->footage());
        // A project that is there already takes its first media sooner.
        earlier = m_yard->folder().write(QStringLiteral("earlier.mp4"));
        VERIFY_CODE(m_yard->run("import", {earlier}), 0);
        interrupted = importUntilSignal(signal);
        told = interrupted.values("added", "path");
    } while (told.size() == folders * files && folders < manyFolders);
    VERIFY_CODE(interrupted, 130);
    QVERIFY(!told.isEmpty());
    QVERIFY(told.size() < folders * files);
    QCOMPARE(m_yard->paths(), QStringList(earlier) + told);
    const QJsonObject summary = interrupted.summary();
    QCOMPARE(summary.value(QLatin1String("event")).toString(), QStringLiteral("summary"));
    QCOMPARE(summary.value(QLatin1String("added")).toInt(), told.size());
    QCOMPARE(summary.value(QLatin1String("interrupted")).toBool(), true);

    const ProgramResult rest = m_yard->run("import", {m_yard->footage(), QStringLiteral("--json")});
    VERIFY_CODE(rest, 0);
    QCOMPARE(rest.values("added", "path").size(), folders * files - told.size());
    QCOMPARE(m_yard->paths().size(), 1 + folders * files);
    VERIFY_CODE(m_yard->run("check"), 0);
    NX_VERIFY_UNTOUCHED(*guard);
}

void tst_ImportCommand::aReaderWhoLeavesDoesNotStopTheImport()
{
    constexpr int files = 500;
    m_yard->manyClips(1, files);
    const QString command = QStringLiteral(
        "{ \"$BREVANO\" import --no-read \"$1\" \"$2\" --json; echo \"code $?\" >&2; }"
        " | head -n 1");
    const ProgramResult result =
        ProgramRun::runShell(command, {m_yard->project(), m_yard->footage()});
    QCOMPARE(result.lines().size(), 1);
    QVERIFY2(result.said("code 0"), result.story().constData());
    QVERIFY2(!result.said("standard output"), result.story().constData());
    QCOMPARE(m_yard->paths().size(), files);
}

void tst_ImportCommand::forPeopleThereIsOneLineOfSums()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral("b.jpg"));
    const ProgramResult first = m_yard->run("import", {m_yard->footage()});
    VERIFY_CODE(first, 0);
    QCOMPARE(first.output, QByteArray("2 media added, 1 folder added\n"));
    const ProgramResult second = m_yard->run("import", {m_yard->footage(QStringLiteral("a.mp4"))});
    VERIFY_CODE(second, 0);
    QCOMPARE(second.lines().size(), 2);
    QVERIFY2(second.lines().at(0).contains("footage/a.mp4: It is already in "),
             second.story().constData());
    QCOMPARE(second.lines().at(1), QByteArray("0 media added, 1 already there"));
}

NX_TEST_MAIN(tst_ImportCommand)
#include "tst_ImportCommand.moc"
