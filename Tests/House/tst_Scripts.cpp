// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ScriptYard.h"

#include <Support/NxTestMain.h>

#include <QDir>
#include <QFileInfo>
#include <QtTest>

namespace {

const QString sourceFolder = QStringLiteral(NX_SOURCE_DIR);

/// Puts a brevano that ends with \a code where the build would leave it.
void placeBrevano(ScriptYard *yard, int code)
{
    yard->fakeProgram(QStringLiteral("cmake"));
    yard->writeProgram(QStringLiteral("build/release/bin/brevano"),
                       QStringLiteral("exit %1").arg(code));
}

QStringList callsOf(const ScriptYard &yard, const QString &program)
{
    return yard.calls().filter(QRegularExpression(QStringLiteral("^%1 ").arg(program)));
}

} // namespace

class tst_Scripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scriptsAreReadByBash_data();
    void scriptsAreReadByBash();
    void commandsAreExecutable_data();
    void commandsAreExecutable();
    void usage_data();
    void usage();

    void nothingIsInstalledWhenAllIsThere();
    void rootInstallsWhatIsMissing();
    void withoutTerminalNothingIsAskedOrInstalled();
    void sudoIsAskedForOnce_data();
    void sudoIsAskedForOnce();
    void anInstallationThatFailsIsTold();

    void runShowsTheFootageInAProject_data();
    void runShowsTheFootageInAProject();
    void runEndsAsTheProgramEnded_data();
    void runEndsAsTheProgramEnded();
    void runMakesSamplesWithoutArguments();
    void runTellsThatTheBuildFailed();
    void theReaderOfFootageIsBuiltWithTheProgram();
    void listingStandsAloneOnStandardOutput();

    void checkRunsItsStages_data();
    void checkRunsItsStages();
    void checkStopsAtTheFirstBrokenStage_data();
    void checkStopsAtTheFirstBrokenStage();
    void continuousIntegrationRunsTheCheck();

    void everyPictureIsDrawnInTwoSizes();
    void aPictureThatCannotBeDrawnIsTold();
};

void tst_Scripts::scriptsAreReadByBash_data()
{
    QTest::addColumn<QString>("script");
    for (const char *script :
         {"run", "check", ".ci/run", "Packaging/setup.sh", "Packaging/draw-pictures",
          "Packaging/make-listing", "Packaging/make-samples", "Tests/mutants/run"})
        QTest::newRow(script) << QString::fromLatin1(script);
}

void tst_Scripts::scriptsAreReadByBash()
{
    QFETCH(QString, script);

    const QStringList arguments{QStringLiteral("-n"), QDir(sourceFolder).filePath(script)};
    const CommandResult result = runCommand(QStringLiteral("bash"), arguments);

    QCOMPARE(result.errors, QString());
    QCOMPARE(result.code, 0);
}

void tst_Scripts::commandsAreExecutable_data()
{
    QTest::addColumn<QString>("script");
    for (const char *script :
         {"run", "check", ".ci/run", "Packaging/draw-pictures", "Packaging/make-listing",
          "Packaging/make-samples", "Tests/mutants/run"})
        QTest::newRow(script) << QString::fromLatin1(script);
}

void tst_Scripts::commandsAreExecutable()
{
    QFETCH(QString, script);

    QVERIFY(QFileInfo(QDir(sourceFolder).filePath(script)).isExecutable());
}

void tst_Scripts::usage_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");

    const QString run = QStringLiteral("run");
    const QString check = QStringLiteral("check");
    const QString help = QStringLiteral("--help");
    const QString unknown = QStringLiteral("--bogus");
    const QString project = QStringLiteral("--project");
    QTest::newRow("help of run") << run << QStringList{help} << 0 << QStringLiteral("Usage: ./run");
    QTest::newRow("unknown option of run")
        << run << QStringList{unknown} << 2 << QStringLiteral("run: unknown option --bogus");
    QTest::newRow("project without a file")
        << run << QStringList{project} << 2 << QStringLiteral("run: --project needs a file");
    QTest::newRow("project with an empty name") << run << QStringList{project, QString()} << 2
                                                << QStringLiteral("run: --project needs a file");
    QTest::newRow("project without its suffix")
        << run << QStringList{project, QStringLiteral("Film.mp4")} << 2
        << QStringLiteral("run: --project needs a file whose name ends in .brevano");
    QTest::newRow("an empty name")
        << run << QStringList{QString()} << 2 << QStringLiteral("run: an empty file name");
    QTest::newRow("help of check")
        << check << QStringList{help} << 0 << QStringLiteral("Usage: ./check [--all]");
    QTest::newRow("unknown argument of check")
        << check << QStringList{unknown} << 2 << QStringLiteral("check: unknown argument --bogus");
    QTest::newRow("argument of draw-pictures")
        << QStringLiteral("Packaging/draw-pictures") << QStringList{unknown} << 2
        << QStringLiteral("Usage: draw-pictures");
}

void tst_Scripts::usage()
{
    QFETCH(QString, script);
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, said);
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("cmake"));
    yard.fakeProgram(QStringLiteral("apt-get"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(script, arguments);

    QCOMPARE(result.code, code);
    const QString &place = code == 0 ? result.output : result.errors;
    QVERIFY2(place.contains(said), qPrintable(place));
    QCOMPARE(yard.calls(), QStringList());
}

void tst_Scripts::nothingIsInstalledWhenAllIsThere()
{
    ScriptYard yard;
    yard.listPackages({QStringLiteral("alpha"), QStringLiteral("beta  # why")});
    yard.fakeProgram(QStringLiteral("dpkg-query"), QStringLiteral("echo -n installed"));
    yard.fakeProgram(QStringLiteral("apt-get"));
    yard.fakeProgram(QStringLiteral("sudo"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.runSetup(QStringLiteral("nx_install_packages"));

    QCOMPARE(result.code, 0);
    QCOMPARE(result.output + result.errors, QString());
    QCOMPARE(callsOf(yard, QStringLiteral("dpkg-query")).size(), 2);
    QCOMPARE(yard.calls().size(), 2);
}

void tst_Scripts::rootInstallsWhatIsMissing()
{
    ScriptYard yard;
    yard.listPackages({QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("gamma")});
    yard.fakeProgram(QStringLiteral("dpkg-query"),
                     QStringLiteral("case $* in *alpha) echo -n installed ;; *beta) exit 1 ;; "
                                    "*) echo -n config-files ;; esac"));
    yard.fakeProgram(QStringLiteral("id"), QStringLiteral("echo 0"));
    yard.fakeProgram(QStringLiteral("apt-get"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.runSetup(QStringLiteral("nx_install_packages"));

    QCOMPARE(result.code, 0);
    const QStringList expected{
        QStringLiteral("apt-get update"),
        QStringLiteral("apt-get install -y --no-install-recommends -- beta gamma")};
    QCOMPARE(callsOf(yard, QStringLiteral("apt-get")), expected);
}

void tst_Scripts::withoutTerminalNothingIsAskedOrInstalled()
{
    ScriptYard yard;
    yard.listPackages({QStringLiteral("alpha")});
    yard.fakeProgram(QStringLiteral("dpkg-query"), QStringLiteral("exit 1"));
    yard.fakeProgram(QStringLiteral("id"), QStringLiteral("echo 1000"));
    yard.fakeProgram(QStringLiteral("apt-get"));
    yard.fakeProgram(QStringLiteral("sudo"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.runSetup(QStringLiteral("nx_install_packages; echo later"));

    QCOMPARE(result.code, 5);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QLatin1String("--no-install-recommends alpha")),
             qPrintable(result.errors));
    QCOMPARE(callsOf(yard, QStringLiteral("(apt-get|sudo)")), QStringList());
}

void tst_Scripts::sudoIsAskedForOnce_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("installations");

    QTest::newRow("yes") << QStringLiteral("yes") << 0 << 1;
    QTest::newRow("no") << QStringLiteral("n") << 5 << 0;
    QTest::newRow("nothing said") << QStringLiteral("") << 5 << 0;
}

void tst_Scripts::sudoIsAskedForOnce()
{
    QFETCH(QString, answer);
    QFETCH(int, code);
    QFETCH(int, installations);
    ScriptYard yard;
    yard.listPackages({QStringLiteral("alpha"), QStringLiteral("beta")});
    yard.fakeProgram(QStringLiteral("dpkg-query"), QStringLiteral("exit 1"));
    yard.fakeProgram(QStringLiteral("id"), QStringLiteral("echo 1000"));
    yard.fakeProgram(QStringLiteral("apt-get"));
    yard.fakeProgram(QStringLiteral("sudo"), QStringLiteral("\"$@\""));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.runSetup(QStringLiteral("nx_install_packages"), answer);

    QCOMPARE(result.output.count(QLatin1String("Install them now with sudo")), 1);
    QCOMPARE(result.code, code);
    const QString installs = QStringLiteral("apt-get install .*alpha beta");
    QCOMPARE(yard.calls().filter(QRegularExpression(QStringLiteral("^") + installs)).size(),
             installations);
}

void tst_Scripts::anInstallationThatFailsIsTold()
{
    ScriptYard yard;
    yard.listPackages({QStringLiteral("alpha")});
    yard.fakeProgram(QStringLiteral("dpkg-query"), QStringLiteral("exit 1"));
    yard.fakeProgram(QStringLiteral("id"), QStringLiteral("echo 0"));
    yard.fakeProgram(QStringLiteral("apt-get"), QStringLiteral("[[ $1 == update ]]"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.runSetup(QStringLiteral("nx_install_packages; echo later"));

    QCOMPARE(result.code, 5);
    QCOMPARE(result.output, QString());
    QVERIFY(result.errors.contains(QLatin1String("could not be installed")));
}

void tst_Scripts::runShowsTheFootageInAProject_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("call");

    const QString clip = QStringLiteral("a.mp4");
    const QString project = QStringLiteral("--project");
    QTest::newRow("footage goes into the project of this folder")
        << QStringList{clip, QStringLiteral("My clips")}
        << QStringLiteral("brevano Media.brevano a.mp4 My clips");
    QTest::newRow("a project of another name")
        << QStringList{project, QStringLiteral("../P.brevano"), clip}
        << QStringLiteral("brevano ../P.brevano a.mp4");
    QTest::newRow("options may follow footage")
        << QStringList{clip, QStringLiteral("--project=P.Brevano")}
        << QStringLiteral("brevano P.Brevano a.mp4");
    QTest::newRow("names that begin with a dash")
        << QStringList{QStringLiteral("--"), QStringLiteral("-a.mp4"), project}
        << QStringLiteral("brevano Media.brevano ./-a.mp4 ./--project");
    QTest::newRow("a project that begins with a dash")
        << QStringList{project, QStringLiteral("-P.brevano"), clip}
        << QStringLiteral("brevano ./-P.brevano a.mp4");
    QTest::newRow("a project alone") << QStringList{project, QStringLiteral("P.brevano")}
                                     << QStringLiteral("brevano P.brevano");
}

void tst_Scripts::runShowsTheFootageInAProject()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, call);
    ScriptYard yard;
    placeBrevano(&yard, 0);
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("run"), arguments);

    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QCOMPARE(callsOf(yard, QStringLiteral("brevano")), QStringList{call});
}

void tst_Scripts::runEndsAsTheProgramEnded_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("done") << 0;
    QTest::newRow("nothing done") << 1;
    QTest::newRow("some refused") << 3;
    QTest::newRow("project cannot be opened") << 4;
    QTest::newRow("interrupted") << 130;
}

void tst_Scripts::runEndsAsTheProgramEnded()
{
    QFETCH(int, code);
    ScriptYard yard;
    placeBrevano(&yard, code);
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("run"), {QStringLiteral("a.mp4")});

    QCOMPARE(result.code, code);
    QCOMPARE(callsOf(yard, QStringLiteral("brevano")).size(), 1);
}

void tst_Scripts::runMakesSamplesWithoutArguments()
{
    ScriptYard yard;
    placeBrevano(&yard, 0);
    yard.writeProgram(QStringLiteral("Packaging/make-samples"),
                      QStringLiteral("mkdir -p \"$1/Music\" \"$1/Stills\""));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("run"), {});

    QVERIFY2(result.code == 0, qPrintable(result.errors));
    const QString sample = yard.folder() + QStringLiteral("/build/sample/");
    const QStringList expected{
        QStringLiteral("make-samples %1footage").arg(sample),
        QStringLiteral("brevano %1Sample.brevano %1footage/Music %1footage/Stills").arg(sample)};
    QCOMPARE(callsOf(yard, QStringLiteral("(make-samples|brevano)")), expected);
}

void tst_Scripts::runTellsThatTheBuildFailed()
{
    ScriptYard yard;
    placeBrevano(&yard, 0);
    yard.fakeProgram(QStringLiteral("cmake"), QStringLiteral("exit 1"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("run"), {QStringLiteral("a.mp4")});

    QCOMPARE(result.code, 5);
    QVERIFY(result.errors.contains(QLatin1String("could not be built")));
    QCOMPARE(callsOf(yard, QStringLiteral("brevano")), QStringList());
}

// Nothing else of what ./run builds needs it, and without it no file is read.
void tst_Scripts::theReaderOfFootageIsBuiltWithTheProgram()
{
    const CommandResult result =
        runCommand(QStringLiteral("ninja"),
                   {QStringLiteral("-C"), QStringLiteral(NX_BUILD_DIR), QStringLiteral("-t"),
                    QStringLiteral("inputs"), QStringLiteral("brevano")});

    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(result.output.contains(QLatin1String("/Src/Brevano/main.cpp\n")));
    QVERIFY(result.output.contains(QLatin1String("/Src/brevano-worker/main.cpp\n")));
}

void tst_Scripts::listingStandsAloneOnStandardOutput()
{
    ScriptYard yard;
    placeBrevano(&yard, 0);
    yard.fakeProgram(QStringLiteral("cmake"), QStringLiteral("echo building"));
    yard.writeProgram(QStringLiteral("build/release/bin/brevano"), QStringLiteral("echo \"$@\""));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("run"), {QStringLiteral("a.mp4")});

    QCOMPARE(result.output, QStringLiteral("Media.brevano a.mp4\n"));
    QVERIFY(result.errors.contains(QLatin1String("building")));
}

void tst_Scripts::checkRunsItsStages_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("calls");

    const QStringList plain{QStringLiteral("cmake --preset dev"),
                            QStringLiteral("cmake --build --preset dev"),
                            QStringLiteral("ctest --preset dev --no-tests=error -j2 -LE package")};
    const QStringList more{QStringLiteral("ctest --preset dev --no-tests=error -j2 -L package"),
                           QStringLiteral("cmake --preset asan"),
                           QStringLiteral("cmake --build --preset asan"),
                           QStringLiteral("ctest --preset asan --no-tests=error -j2"),
                           QStringLiteral("cmake --preset tsan"),
                           QStringLiteral("cmake --build --preset tsan"),
                           QStringLiteral("ctest --preset tsan --no-tests=error -j2")};
    QTest::newRow("plain") << QStringList() << plain;
    const QStringList mutants{QStringLiteral("run ")};
    QTest::newRow("all") << QStringList{QStringLiteral("--all")} << plain + more;
    QTest::newRow("mutants") << QStringList{QStringLiteral("--mutants")} << plain + mutants;
}

void tst_Scripts::checkRunsItsStages()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, calls);
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("cmake"));
    yard.fakeProgram(QStringLiteral("ctest"), QStringLiteral("echo 100% tests passed"));
    yard.fakeProgram(QStringLiteral("setarch"), QStringLiteral("shift; \"$@\""));
    yard.writeProgram(QStringLiteral("Tests/mutants/run"), QString());
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("check"), arguments);

    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QCOMPARE(callsOf(yard, QStringLiteral("(cmake|ctest|run)")), calls);
    QVERIFY(result.output.contains(QLatin1String("100% tests passed")));
}

void tst_Scripts::checkStopsAtTheFirstBrokenStage_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("stage");
    QTest::addColumn<int>("callsMade");

    const QString cmake = QStringLiteral("cmake");
    const QString ctest = QStringLiteral("ctest");
    QTest::newRow("configure") << cmake << QStringLiteral("exit 1") << QStringLiteral("configure")
                               << 1;
    QTest::newRow("build") << cmake << QStringLiteral("[[ $1 != --build ]]")
                           << QStringLiteral("build") << 2;
    QTest::newRow("tests") << ctest << QStringLiteral("exit 8") << QStringLiteral("tests") << 3;
    QTest::newRow("package") << ctest << QStringLiteral("[[ $* != *'-L package' ]]")
                             << QStringLiteral("installed package") << 4;
    QTest::newRow("address sanitizer") << ctest << QStringLiteral("[[ $* != *asan* ]]")
                                       << QStringLiteral("tests with address sanitizer") << 7;
    QTest::newRow("thread sanitizer") << ctest << QStringLiteral("[[ $* != *tsan* ]]")
                                      << QStringLiteral("tests with thread sanitizer") << 10;
}

void tst_Scripts::checkStopsAtTheFirstBrokenStage()
{
    QFETCH(QString, program);
    QFETCH(QString, body);
    QFETCH(QString, stage);
    QFETCH(int, callsMade);
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("cmake"));
    yard.fakeProgram(QStringLiteral("ctest"));
    yard.fakeProgram(QStringLiteral("setarch"), QStringLiteral("shift; \"$@\""));
    yard.fakeProgram(program, body);
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("check"), {QStringLiteral("--all")});

    QCOMPARE(result.code, 1);
    const QString told = QStringLiteral("check: FAILED in the stage \"%1\"\n").arg(stage);
    QVERIFY2(result.errors.endsWith(told), qPrintable(result.errors));
    QCOMPARE(callsOf(yard, QStringLiteral("(cmake|ctest)")).size(), callsMade);
}

void tst_Scripts::continuousIntegrationRunsTheCheck()
{
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("cmake"));
    yard.fakeProgram(QStringLiteral("ctest"), QStringLiteral("exit 8"));
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral(".ci/run"), {});

    QCOMPARE(result.code, 1);
    QCOMPARE(callsOf(yard, QStringLiteral("(cmake|ctest)")).size(), 3);
}

void tst_Scripts::everyPictureIsDrawnInTwoSizes()
{
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("rsvg-convert"));
    const QString pictures = yard.folder() + QStringLiteral("/Src/NxOne/resources/");
    for (const char *name : {"a.svg", "a folder/b.svg", "a folder/c.png"})
        yard.writeProgram(QLatin1String("Src/NxOne/resources/") + QLatin1String(name), QString());
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("Packaging/draw-pictures"), {});

    QCOMPARE(result.code, 0);
    const QString drawn = QStringLiteral("rsvg-convert --zoom %1 --output %2%3.png -- %2%4.svg");
    QStringList calls;
    for (const char *name : {"a folder/b", "a"}) {
        const QString picture = QLatin1String(name);
        calls += drawn.arg(QStringLiteral("1"), pictures, picture, picture);
        calls += drawn.arg(QStringLiteral("2"), pictures, picture + QLatin1String("@2x"), picture);
    }
    QStringList called = yard.calls();
    calls.sort();
    called.sort();
    QCOMPARE(called, calls);
}

void tst_Scripts::aPictureThatCannotBeDrawnIsTold()
{
    ScriptYard yard;
    yard.fakeProgram(QStringLiteral("rsvg-convert"), QStringLiteral("echo unreadable >&2; exit 1"));
    for (const char *name : {"a.svg", "b.svg"})
        yard.writeProgram(QLatin1String("Src/NxOne/resources/") + QLatin1String(name), QString());
    QVERIFY(yard.isValid());

    const CommandResult result = yard.run(QStringLiteral("Packaging/draw-pictures"), {});

    QVERIFY(result.code != 0);
    QVERIFY(result.errors.contains(QLatin1String("unreadable")));
    QCOMPARE(yard.calls().size(), 1);
}

NX_TEST_MAIN(tst_Scripts)
#include "tst_Scripts.moc"
