// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

/// list, check, backup, and the words of the program itself.
class tst_LookCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyRowHasItsKeysInOrder();
    void theTypeIsThatOfTheSuffix_data();
    void theTypeIsThatOfTheSuffix();
    void aFolderIsListedWithAllBelowIt();
    void theTableIsAlignedAndSummedUp();
    void anEmptyProjectIsAnEmptyList();
    void aFileThatIsGoneIsMissingAndNotForgotten();
    void aFileThatMayNotBeReadIsUnreadable();
    void checkTellsItsProblemsAsObjects();
    void backupIsTheSameProject();
    void backupNeverOverwrites_data();
    void backupNeverOverwrites();
    void wrongWordsAreWrongUsage_data();
    void wrongWordsAreWrongUsage();
    void helpAndVersionNeedNoProject_data();
    void helpAndVersionNeedNoProject();
    void outputThatCannotBeWrittenIsTold();

private:
    std::unique_ptr<Yard> m_yard;
};

void tst_LookCommands::init()
{
    m_yard = std::make_unique<Yard>();
}

void tst_LookCommands::cleanup()
{
    m_yard.reset();
}

void tst_LookCommands::everyRowHasItsKeysInOrder()
{
    const QString clip = m_yard->clip(QStringLiteral("Day \"1\"/a.mp4"), "123");
    VERIFY_CODE(m_yard->run("import", {m_yard->footage(QStringLiteral("Day \"1\""))}), 0);
    const ProgramResult result = m_yard->run("list", {QStringLiteral("--json")});
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(result.lines().at(0),
             QByteArray(R"({"row":0,"kind":"import","title":"Import Media"})"));
    const QByteArray line = result.lines().at(1);
    QByteArray escapedPath = clip.toUtf8();
    escapedPath.replace('"', "\\\"");
    const QByteArray begin = R"({"row":1,"kind":"media","title":"a.mp4","name":"a.mp4","path":")"
                             + escapedPath
                             + R"(","section":"project","folder":"Day \"1\"","type":"video",)"
                             + R"("size":3,"created":")";
    QVERIFY2(line.startsWith(begin), line.constData());
    const QByteArray end =
        R"(Z","missing":false,"unreadable":null,"duration_ms":null,"frames":null,"fps":null,)"
        R"("width":null,"height":null,"rotation":null,"codec":null,"sample_rate":null,)"
        R"("channels":null,"camera":null,"timecode":null,"variable_rate":null})";
    QVERIFY2(line.endsWith(end), line.constData());
    const QString created = result.objects().constLast().value(QLatin1String("created")).toString();
    QVERIFY2(QDateTime::fromString(created, Qt::ISODateWithMs).isValid(), qPrintable(created));
}

void tst_LookCommands::theTypeIsThatOfTheSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");

    QTest::newRow("video") << "a.MOV"
                           << "video";
    QTest::newRow("audio") << "a.wav"
                           << "audio";
    QTest::newRow("image") << "a.jpg"
                           << "image";
    QTest::newRow("gif") << "a.gif"
                         << "gif";
    QTest::newRow("subtitle") << "a.srt"
                              << "subtitle";
}

void tst_LookCommands::theTypeIsThatOfTheSuffix()
{
    QFETCH(QString, name);
    QFETCH(QString, type);

    VERIFY_CODE(m_yard->run("import", {m_yard->clip(name)}), 0);
    QCOMPARE(m_yard->listed().constFirst().value(QLatin1String("type")).toString(), type);
}

void tst_LookCommands::aFolderIsListedWithAllBelowIt()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral("Day/b.mp4"));
    m_yard->clip(QStringLiteral("Day/Raw/c.mp4"));
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    const QStringList day{QStringLiteral("footage/Day: b.mp4"),
                          QStringLiteral("footage/Day/Raw: c.mp4")};
    QCOMPARE(m_yard->shown({QStringLiteral("--folder"), QStringLiteral("footage/Day")}), day);
    QCOMPARE(m_yard->listed({QStringLiteral("--folder=/")}).size(), 3);
    const ProgramResult none =
        m_yard->run("list", {QStringLiteral("--folder"), QStringLiteral("Night")});
    VERIFY_CODE(none, 1);
    QVERIFY2(none.said("Night: the project has no such folder"), none.story().constData());
}

void tst_LookCommands::theTableIsAlignedAndSummedUp()
{
    m_yard->clip(QStringLiteral("long name.mp4"), QByteArray(2048, 'x'));
    m_yard->clip(QStringLiteral("Day/b.wav"), "12");
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    const ProgramResult result = m_yard->run("list");
    VERIFY_CODE(result, 0);
    const QList<QByteArray> lines = result.lines();
    QCOMPARE(lines.size(), 5);
    QVERIFY2(lines.at(0).startsWith("Folder       Name           Type   "),
             lines.at(0).constData());
    QCOMPARE(lines.at(1), QByteArray("[Import Media]"));
    QVERIFY2(lines.at(2).startsWith("footage/Day  b.wav          audio  "),
             lines.at(2).constData());
    QVERIFY2(lines.at(3).startsWith("footage      long name.mp4  video  "),
             lines.at(3).constData());
    QCOMPARE(lines.at(4), QByteArray("2 media in 2 folders, 2.0 KiB"));
}

void tst_LookCommands::anEmptyProjectIsAnEmptyList()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 1);
    QCOMPARE(m_yard->run("list").output, QByteArray("0 media in 0 folders, 0 bytes\n"));
    QCOMPARE(m_yard->run("list", {QStringLiteral("--json")}).output, QByteArray());
}

void tst_LookCommands::aFileThatIsGoneIsMissingAndNotForgotten()
{
    m_yard->clip(QStringLiteral("card/a.mp4"));
    const QString b = m_yard->clip(QStringLiteral("card/b.mp4"));
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    VERIFY_CODE(m_yard->run("check"), 0);
    const QVector<QJsonObject> before = m_yard->listed();

    // As when the card is pulled out.
    const QString card = m_yard->footage(QStringLiteral("card"));
    QVERIFY(QFile::rename(card, m_yard->path(QStringLiteral("away"))));
    const QVector<QJsonObject> away = m_yard->listed();
    QCOMPARE(away.size(), 2);
    for (const QJsonObject &media : away)
        QCOMPARE(media.value(QLatin1String("missing")), QJsonValue(true));
    const ProgramResult check = m_yard->run("check");
    VERIFY_CODE(check, 3);
    QCOMPARE(check.lines().size(), 3);
    QVERIFY2(check.lines().at(1).startsWith("missing: " + b.toUtf8() + ": "),
             check.story().constData());
    QCOMPARE(check.lines().at(2),
             QByteArray("2 media, 2 missing, 0 unreadable, 0 problems in the project file"));
    QVERIFY(m_yard->run("list").output.endsWith(", 2 missing\n"));

    QVERIFY(QFile::rename(m_yard->path(QStringLiteral("away")), card));
    QCOMPARE(m_yard->listed(), before);
    const ProgramResult well = m_yard->run("check");
    VERIFY_CODE(well, 0);
    QCOMPARE(well.output, QByteArray("2 media, all is well\n"));
}

void tst_LookCommands::aFileThatMayNotBeReadIsUnreadable()
{
    const QString clip = m_yard->clip(QStringLiteral("a.mp4"));
    VERIFY_CODE(m_yard->run("import", {clip}), 0);
    QVERIFY(QFile::setPermissions(clip, {}));
    const QFileDevice::Permissions open = QFileDevice::ReadOther | QFileDevice::ExeOther;
    for (const QString &folder : {m_yard->folder().path(), m_yard->footage()})
        QVERIFY(QFile::setPermissions(folder, QFile::permissions(folder) | open));
    QVERIFY(QFile::setPermissions(m_yard->project(),
                                  QFile::permissions(m_yard->project()) | QFileDevice::ReadOther));

    const ProgramResult list =
        ProgramRun::run({QStringLiteral("list"), m_yard->project(), QStringLiteral("--json")}, {},
                        ProgramRun::User::Nobody);
    VERIFY_CODE(list, 0);
    const QJsonObject media = list.summary();
    QCOMPARE(media.value(QLatin1String("missing")), QJsonValue(false));
    QVERIFY2(media.value(QLatin1String("unreadable")).isString(), list.story().constData());

    const ProgramResult check =
        ProgramRun::run({QStringLiteral("check"), m_yard->project(), QStringLiteral("--json")}, {},
                        ProgramRun::User::Nobody);
    VERIFY_CODE(check, 3);
    QCOMPARE(check.values("problem", "problem"), QStringList{QStringLiteral("unreadable")});
    QCOMPARE(check.values("problem", "path"), QStringList{clip});
    QVERIFY(QFile::setPermissions(clip, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
}

void tst_LookCommands::checkTellsItsProblemsAsObjects()
{
    const QString clip = m_yard->clip(QStringLiteral("Day/a.mp4"));
    VERIFY_CODE(m_yard->run("import", {m_yard->footage(QStringLiteral("Day"))}), 0);
    QVERIFY(QFile::remove(clip));
    const ProgramResult check = m_yard->run("check", {QStringLiteral("--json")});
    VERIFY_CODE(check, 3);
    QCOMPARE(check.lines().size(), 2);
    const QByteArray begin = R"({"event":"problem","problem":"missing","text":")";
    QVERIFY2(check.lines().at(0).startsWith(begin), check.lines().at(0).constData());
    const QByteArray end =
        R"(","path":")" + clip.toUtf8() + R"(","name":"a.mp4","section":"project","folder":"Day"})";
    QVERIFY2(check.lines().at(0).endsWith(end), check.lines().at(0).constData());
    const QByteArray summary =
        R"({"event":"summary","media":1,"missing":1,"unreadable":0,"integrity":0})";
    QCOMPARE(check.lines().at(1), summary);
}

void tst_LookCommands::backupIsTheSameProject()
{
    m_yard->manyClips(2, 5);
    VERIFY_CODE(m_yard->run("import", {m_yard->footage()}), 0);
    VERIFY_CODE(m_yard->run("rename", {QStringLiteral("--folder"), QStringLiteral("footage"),
                                       QStringLiteral("Takes")}),
                0);
    const QString copy = m_yard->path(QStringLiteral("Copy.brevano"));
    VERIFY_CODE(m_yard->run("backup", {copy}), 0);

    const ProgramResult list = m_yard->run("list", {QStringLiteral("--json")});
    const ProgramResult ofCopy =
        ProgramRun::run({QStringLiteral("list"), copy, QStringLiteral("--json")});
    VERIFY_CODE(ofCopy, 0);
    QCOMPARE(ofCopy.output, list.output);
    VERIFY_CODE(ProgramRun::run({QStringLiteral("check"), copy}), 0);
    // The steps are part of the project.
    VERIFY_CODE(ProgramRun::run({QStringLiteral("undo"), copy}), 0);
    VERIFY_CODE(ProgramRun::run({QStringLiteral("list"), copy, QStringLiteral("--folder"),
                                 QStringLiteral("footage")}),
                0);
    QCOMPARE(m_yard->run("list", {QStringLiteral("--json")}).output, list.output);
}

void tst_LookCommands::backupNeverOverwrites_data()
{
    QTest::addColumn<QString>("target");

    QTest::newRow("a file") << "there.brevano";
    QTest::newRow("the project itself") << "Film.brevano";
    QTest::newRow("a folder") << "footage";
    QTest::newRow("a link to nowhere") << "link.brevano";
}

void tst_LookCommands::backupNeverOverwrites()
{
    QFETCH(QString, target);

    VERIFY_CODE(m_yard->run("import", {m_yard->clip(QStringLiteral("a.mp4"))}), 0);
    m_yard->folder().write(QStringLiteral("there.brevano"), "mine");
    QVERIFY(QFile::link(m_yard->path(QStringLiteral("nowhere")),
                        m_yard->path(QStringLiteral("link.brevano"))));
    const NxFootageGuard guard(m_yard->folder().path());
    const ProgramResult result = m_yard->run("backup", {m_yard->path(target)});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(target.toUtf8().constData()), result.story().constData());
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_LookCommands::wrongWordsAreWrongUsage_data()
{
    QTest::addColumn<QString>("words");

    QTest::newRow("nothing") << "";
    QTest::newRow("an unknown command") << "export P";
    QTest::newRow("an unknown option") << "list P --fast";
    QTest::newRow("an option of another command") << "undo P --json";
    QTest::newRow("no project") << "list";
    QTest::newRow("no files") << "import P";
    QTest::newRow("two projects") << "list P Q";
    QTest::newRow("a missing value") << "list P --folder";
    QTest::newRow("an option twice") << "list P --json --json";
    QTest::newRow("an unknown section") << "list P --section secret";
    QTest::newRow("an unknown section for import") << "import P a.mp4 --section secret";
    QTest::newRow("rename without a new name") << "rename P a.mp4";
    QTest::newRow("rename of a folder and a media") << "rename P a.mp4 --folder F x";
    QTest::newRow("move to nowhere") << "move P a.mp4";
    QTest::newRow("move of nothing") << "move P --into F";
    QTest::newRow("move of a folder and a media") << "move P a.mp4 --folder F --into G";
    QTest::newRow("remove of nothing") << "remove P";
    QTest::newRow("remove of a folder and a media") << "remove P a.mp4 --folder F";
    QTest::newRow("backup to nowhere") << "backup P";
    QTest::newRow("help for nothing") << "help export";
}

void tst_LookCommands::wrongWordsAreWrongUsage()
{
    QFETCH(QString, words);

    const QStringList arguments = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const NxFootageGuard guard(m_yard->folder().path());
    const ProgramResult result = ProgramRun::run(arguments, m_yard->folder().path());
    VERIFY_CODE(result, 2);
    QVERIFY2(result.errors.startsWith("brevano: "), result.story().constData());
    QCOMPARE(result.output, QByteArray());
    NX_VERIFY_UNTOUCHED(guard); // Not even a project was made.
}

void tst_LookCommands::helpAndVersionNeedNoProject_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("part");

    QTest::newRow("--help") << "--help" << QByteArray("brevano backup PROJECT FILE");
    QTest::newRow("help") << "help" << QByteArray("Exit codes: 0 done");
    QTest::newRow("help of a command") << "help move" << QByteArray("move PROJECT --folder FOLDER");
    QTest::newRow("a command's --help") << "import --help" << QByteArray("--into FOLDER");
    QTest::newRow("--version") << "--version" << QByteArray("brevano " NX_VERSION "\n");
}

void tst_LookCommands::helpAndVersionNeedNoProject()
{
    QFETCH(QString, words);
    QFETCH(QByteArray, part);

    const ProgramResult result = ProgramRun::run(words.split(QLatin1Char(' ')));
    VERIFY_CODE(result, 0);
    QVERIFY2(result.output.contains(part), result.story().constData());
    QCOMPARE(result.errors, QByteArray());
}

void tst_LookCommands::outputThatCannotBeWrittenIsTold()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->clip(QStringLiteral("a.mp4"))}), 0);
    const ProgramResult result = ProgramRun::runShell(
        QStringLiteral("exec \"$BREVANO\" list \"$1\" >/dev/full"), {m_yard->project()});
    VERIFY_CODE(result, 3);
    QVERIFY2(result.said("brevano: standard output: "), result.story().constData());
}

NX_TEST_MAIN(tst_LookCommands)
#include "tst_LookCommands.moc"
