// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QtTest>

namespace {

constexpr int longestOpening = 60000; // ms
constexpr QSize pictureSize(1280, 800);
const QString pictureName = QStringLiteral("brevano-panel.png");

/// What stands between the environment and the arguments.
QString shellFor(const QString &environment)
{
    return environment + QStringLiteral(" exec \"$BREVANO\" \"$@\"");
}

} // namespace

/// The program without a command: the window, and what happens where there is no display.
class tst_WindowProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void withoutADisplayFootageIsImportedDrawnAndListed();
    void footageAloneGoesIntoTheProjectOfTheFolder();
    void aProjectAloneIsDrawnAndListed();
    void theCodeTellsWhatHappened_data();
    void theCodeTellsWhatHappened();
    void wrongWordsAreWrongUsage_data();
    void wrongWordsAreWrongUsage();
    void aPictureThatCannotBeWrittenKeepsNothingBack();
    void aDisplayThatIsNotThereIsSaid_data();
    void aDisplayThatIsNotThereIsSaid();
    void commandsNeedNoDisplay();
    void theWindowImportsUntilItIsEnded();
    void theWindowOpensAProject();

private:
    [[nodiscard]] ProgramResult start(const QStringList &words) const;
    [[nodiscard]] QByteArray settings() const;
    [[nodiscard]] QString picture() const { return m_yard->path(pictureName); }

    std::unique_ptr<Yard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_WindowProgram::init()
{
    m_yard = std::make_unique<Yard>();
    qputenv("XDG_DATA_HOME", m_yard->folder().makeDir(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CONFIG_HOME", m_yard->folder().makeDir(QStringLiteral("config")).toUtf8());
    qputenv("XDG_CACHE_HOME", m_yard->folder().makeDir(QStringLiteral("cache")).toUtf8());
    QImage still(pictureSize, QImage::Format_RGB32);
    still.fill(Qt::red);
    QVERIFY(still.save(m_yard->footage(QStringLiteral("a.png"))));
    still.fill(Qt::green);
    QVERIFY(still.save(m_yard->footage(QStringLiteral("b.png"))));
    m_yard->clip(QStringLiteral("notes.txt"));
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
}

void tst_WindowProgram::cleanup()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
    m_guard.reset();
    m_yard.reset();
}

/// From the yard's folder, without a display.
ProgramResult tst_WindowProgram::start(const QStringList &words) const
{
    return ProgramRun::run(words, m_yard->folder().path());
}

QByteArray tst_WindowProgram::settings() const
{
    QFile file(m_yard->path(QStringLiteral("config/Brevano/Settings.ini")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_WindowProgram::withoutADisplayFootageIsImportedDrawnAndListed()
{
    const ProgramResult result =
        start({QStringLiteral("Film.brevano"), QStringLiteral("footage/a.png"),
               m_yard->footage(QStringLiteral("b.png"))});
    VERIFY_CODE(result, 0);
    QVERIFY(result.said("brevano: Film.brevano: a new project was made"));
    const QList<QByteArray> lines = result.lines();
    QCOMPARE(lines.value(0), QByteArray("2 media added"));
    QVERIFY(lines.value(1).startsWith("Folder"));
    QVERIFY(lines.value(lines.size() - 2).startsWith("2 media in 1 folder"));
    QCOMPARE(lines.constLast(), "The panel as a picture: " + picture().toUtf8());
    QCOMPARE(QImage(picture()).size(), pictureSize);
    const QStringList expected{QStringLiteral(": a.png"), QStringLiteral(": b.png")};
    QCOMPARE(m_yard->shown(), expected);
}

void tst_WindowProgram::footageAloneGoesIntoTheProjectOfTheFolder()
{
    VERIFY_CODE(start({QStringLiteral("footage/a.png"), QStringLiteral("--"),
                       QStringLiteral("footage/b.png")}),
                0);
    QVERIFY(QFile::rename(m_yard->path(QStringLiteral("Media.brevano")), m_yard->project()));
    QCOMPARE(m_yard->shown().size(), 2);
    QVERIFY(QFileInfo::exists(picture()));
}

void tst_WindowProgram::aProjectAloneIsDrawnAndListed()
{
    VERIFY_CODE(start({QStringLiteral("Film.brevano"), QStringLiteral("footage/a.png")}), 0);
    m_yard->folder().write(pictureName, "an older picture");
    QFile project(m_yard->project());
    QVERIFY(project.open(QIODevice::ReadOnly));
    const QByteArray before = project.readAll();
    const ProgramResult result = start({QStringLiteral("Film.brevano")});
    VERIFY_CODE(result, 0);
    QVERIFY(result.output.contains("a.png"));
    QCOMPARE(result.lines().constLast(), "The panel as a picture: " + picture().toUtf8());
    QCOMPARE(QImage(picture()).size(), pictureSize);
    QVERIFY(project.seek(0));
    QCOMPARE(project.readAll(), before);
}

void tst_WindowProgram::theCodeTellsWhatHappened_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isDrawn");

    const QString film = QStringLiteral("Film.brevano");
    const QString good = QStringLiteral("footage/a.png");
    QTest::newRow("all added") << QStringList{film, good} << 0 << true;
    QTest::newRow("some refused") << QStringList{film, good, QStringLiteral("footage/notes.txt")}
                                  << 3 << true;
    QTest::newRow("a file that is not there")
        << QStringList{film, QStringLiteral("footage/gone.png")} << 1 << true;
    QTest::newRow("a project that is not there") << QStringList{film} << 4 << false;
    QTest::newRow("a folder that is not there")
        << QStringList{QStringLiteral("gone/Film.brevano"), good} << 4 << false;
    QTest::newRow("a project that is none")
        << QStringList{QStringLiteral("none.brevano"), good} << 4 << false;
}

void tst_WindowProgram::theCodeTellsWhatHappened()
{
    QFETCH(QStringList, words);
    QFETCH(int, code);
    QFETCH(bool, isDrawn);

    m_yard->folder().write(QStringLiteral("none.brevano"), QByteArray(4096, 'x'));
    const ProgramResult result = start(words);
    VERIFY_CODE(result, code);
    QCOMPARE(QFileInfo::exists(picture()), isDrawn);
    QCOMPARE(result.output.contains("The panel as a picture"), isDrawn);
    QVERIFY(code == 0 || result.errors.contains("brevano: "));
}

void tst_WindowProgram::wrongWordsAreWrongUsage_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("said");

    QTest::newRow("nothing") << QStringList() << QByteArray("a command is missing");
    QTest::newRow("no command") << QStringList{QStringLiteral("imprt")}
                                << QByteArray("there is no command \"imprt\"");
    QTest::newRow("an option") << QStringList{QStringLiteral("Film.brevano"),
                                              QStringLiteral("--skin=light")}
                               << QByteArray("there is no option --skin");
    QTest::newRow("a command that is a file, too")
        << QStringList{QStringLiteral("list")} << QByteArray("list: something is missing");
}

void tst_WindowProgram::wrongWordsAreWrongUsage()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, said);

    m_yard->folder().write(QStringLiteral("list"));
    const ProgramResult result = start(words);
    VERIFY_CODE(result, 2);
    QVERIFY2(result.said(said.constData()), result.story().constData());
    QVERIFY(!QFileInfo::exists(m_yard->project()));
}

void tst_WindowProgram::aPictureThatCannotBeWrittenKeepsNothingBack()
{
    m_yard->folder().makeDir(pictureName);
    const ProgramResult result =
        start({QStringLiteral("Film.brevano"), QStringLiteral("footage/a.png")});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(("brevano: " + picture().toUtf8() + ": ").constData()),
             result.story().constData());
    QVERIFY(!result.output.contains("The panel as a picture"));
    QVERIFY(result.output.contains("1 media in 1 folder"));
}

void tst_WindowProgram::aDisplayThatIsNotThereIsSaid_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("said");

    const QString display = QStringLiteral("DISPLAY=:77");
    const QByteArray said = "brevano: no window can be shown: could not connect to display :77\n";
    QTest::newRow("start page") << display << QStringList() << said;
    QTest::newRow("footage") << display
                             << QStringList{QStringLiteral("Film.brevano"),
                                            QStringLiteral("footage/a.png")}
                             << said;
    QTest::newRow("no such platform")
        << "QT_QPA_PLATFORM=nowhere" << QStringList{QStringLiteral("Film.brevano")}
        << QByteArray("brevano: no window can be shown: Could not find the Qt platform plugin "
                      "\"nowhere\"");
}

void tst_WindowProgram::aDisplayThatIsNotThereIsSaid()
{
    QFETCH(QString, environment);
    QFETCH(QStringList, words);
    QFETCH(QByteArray, said);

    const ProgramResult result =
        ProgramRun::runShell(shellFor(environment), words, m_yard->folder().path());
    VERIFY_CODE(result, 1);
    QVERIFY2(result.errors.startsWith(said), result.story().constData());
    QVERIFY(!QFileInfo::exists(m_yard->project()));
    QVERIFY(!QFileInfo::exists(picture()));
}

void tst_WindowProgram::commandsNeedNoDisplay()
{
    const ProgramResult result = ProgramRun::runShell(
        shellFor(QStringLiteral("DISPLAY=:77")),
        {QStringLiteral("import"), m_yard->project(), m_yard->footage(QStringLiteral("a.png"))},
        m_yard->folder().path());
    VERIFY_CODE(result, 0);
    QCOMPARE(result.errors.count('\n'), 1);
}

void tst_WindowProgram::theWindowImportsUntilItIsEnded()
{
    ProgramRun window;
    window.beginShell(shellFor(QStringLiteral("QT_QPA_PLATFORM=offscreen")),
                      {QStringLiteral("Film.brevano"), QStringLiteral("footage/a.png"),
                       m_yard->footage(QStringLiteral("b.png"))},
                      m_yard->folder().path());
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(m_yard->project()), longestOpening);
    QTRY_COMPARE_WITH_TIMEOUT(m_yard->run("list").output.count(".png"), 2, longestOpening);
    window.terminate();
    const ProgramResult result = window.end();
    VERIFY_CODE(result, 130);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(m_yard->shown().size(), 2);
    VERIFY_CODE(m_yard->run("check"), 0);
    QVERIFY(!QFileInfo::exists(picture()));
}

void tst_WindowProgram::theWindowOpensAProject()
{
    VERIFY_CODE(m_yard->run("import", {m_yard->footage(QStringLiteral("a.png"))}), 0);
    ProgramRun window;
    window.beginShell(shellFor(QStringLiteral("QT_QPA_PLATFORM=offscreen")), {m_yard->project()},
                      m_yard->folder().path());
    // It is among the recent ones as soon as it is open.
    QTRY_VERIFY_WITH_TIMEOUT(settings().contains("Film.brevano"), longestOpening);
    VERIFY_CODE(m_yard->run("undo"), 4); // Nobody else changes it now.
    window.terminate();
    VERIFY_CODE(window.end(), 130);
    VERIFY_CODE(m_yard->run("check"), 0);
}

NX_TEST_MAIN(tst_WindowProgram)
#include "tst_WindowProgram.moc"
