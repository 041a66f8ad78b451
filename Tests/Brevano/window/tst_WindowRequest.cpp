// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowRequest.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QtTest>

namespace {

ProgramArguments argumentsOf(const QStringList &words)
{
    ProgramArguments arguments;
    for (const QString &word : words)
        arguments.append({word, true});
    return arguments;
}

QStringList wordsOf(const ProgramArguments &arguments)
{
    QStringList words;
    for (const ProgramArgument &argument : arguments)
        words.append(argument.text);
    return words;
}

} // namespace

class tst_WindowRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void projectsAndFilesAreShown_data();
    void projectsAndFilesAreShown();
    void otherWordsAreThoseOfCommands_data();
    void otherWordsAreThoseOfCommands();
    void whatCannotBeUnderstoodIsSaid_data();
    void whatCannotBeUnderstoodIsSaid();
    void aNameThatIsNoTextIsNoProject();
    void aNameThatIsNoTextMayFollow();

private:
    std::unique_ptr<NxTempDir> m_dir;
    QString m_before;
};

/// A folder with a clip, a folder, a dangling link and files that are called like other things.
void tst_WindowRequest::init()
{
    m_before = QDir::currentPath();
    m_dir = std::make_unique<NxTempDir>();
    m_dir->write(QStringLiteral("clip.mov"));
    m_dir->write(QStringLiteral("-odd.mov"));
    m_dir->write(QStringLiteral("list"));
    m_dir->makeDir(QStringLiteral("Footage"));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), m_dir->filePath(QStringLiteral("link.mov"))));
    QVERIFY(QDir::setCurrent(m_dir->path()));
}

void tst_WindowRequest::cleanup()
{
    QVERIFY(QDir::setCurrent(m_before));
    m_dir.reset();
}

void tst_WindowRequest::projectsAndFilesAreShown_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QStringList>("files");

    const QString clip = QStringLiteral("clip.mov");
    const QString film = QStringLiteral("Film.brevano");
    const QString here = QStringLiteral("Media.brevano");
    const QStringList none;
    QTest::newRow("nothing") << none << QString() << none;
    QTest::newRow("a project that is not there") << QStringList{film} << film << none;
    QTest::newRow("capitals") << QStringList{QStringLiteral("FILM.BREVANO")} << "FILM.BREVANO"
                              << none;
    QTest::newRow("a project and files")
        << QStringList{film, clip, QStringLiteral("Footage"), QStringLiteral("gone.mov")} << film
        << QStringList{clip, QStringLiteral("Footage"), QStringLiteral("gone.mov")};
    QTest::newRow("two projects") << QStringList{film, here} << film << QStringList{here};
    QTest::newRow("a file") << QStringList{clip} << here << QStringList{clip};
    QTest::newRow("a folder") << QStringList{QStringLiteral("Footage"), clip} << here
                              << QStringList{QStringLiteral("Footage"), clip};
    QTest::newRow("the folder of now")
        << QStringList{QStringLiteral(".")} << here << QStringList{QStringLiteral(".")};
    QTest::newRow("a link to nothing") << QStringList{QStringLiteral("link.mov")} << here
                                       << QStringList{QStringLiteral("link.mov")};
    QTest::newRow("a file called like a command")
        << QStringList{QStringLiteral("./list")} << here << QStringList{QStringLiteral("./list")};
    QTest::newRow("a file behind dashes")
        << QStringList{QStringLiteral("--"), QStringLiteral("-odd.mov")} << here
        << QStringList{QStringLiteral("-odd.mov")};
    QTest::newRow("dashes behind a project")
        << QStringList{film, QStringLiteral("--"), QStringLiteral("-odd.mov")} << film
        << QStringList{QStringLiteral("-odd.mov")};
    QTest::newRow("dashes alone") << QStringList{QStringLiteral("--")} << QString() << none;
}

void tst_WindowRequest::projectsAndFilesAreShown()
{
    QFETCH(QStringList, words);
    QFETCH(QString, project);
    QFETCH(QStringList, files);

    QVERIFY(WindowRequest::isMeant(argumentsOf(words)));
    const NxResult<WindowRequest> request = WindowRequest::of(argumentsOf(words));
    QVERIFY2(request, qPrintable(request.errorText()));
    QCOMPARE(request->project, project);
    QCOMPARE(wordsOf(request->files), files);
}

void tst_WindowRequest::otherWordsAreThoseOfCommands_data()
{
    QTest::addColumn<QStringList>("words");

    QTest::newRow("a command") << QStringList{
        QStringLiteral("import"), QStringLiteral("Film.brevano"), QStringLiteral("clip.mov")};
    QTest::newRow("a command called like a file") << QStringList{QStringLiteral("list")};
    QTest::newRow("help") << QStringList{QStringLiteral("help")};
    QTest::newRow("version") << QStringList{QStringLiteral("--version")};
    QTest::newRow("an option") << QStringList{QStringLiteral("--json"), QStringLiteral("clip.mov")};
    QTest::newRow("no file") << QStringList{QStringLiteral("clip.mp4")};
    QTest::newRow("a command that is not there")
        << QStringList{QStringLiteral("imprt"), QStringLiteral("Film.brevano")};
    QTest::newRow("an empty word") << QStringList{QStringLiteral("")};
    QTest::newRow("a file that begins with a dash") << QStringList{QStringLiteral("-odd.mp4")};
}

void tst_WindowRequest::otherWordsAreThoseOfCommands()
{
    QFETCH(QStringList, words);

    QVERIFY(!WindowRequest::isMeant(argumentsOf(words)));
}

void tst_WindowRequest::whatCannotBeUnderstoodIsSaid_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("said");

    QTest::newRow("an option") << QStringList{QStringLiteral("Film.brevano"),
                                              QStringLiteral("--skin=light")}
                               << "there is no option --skin";
    QTest::newRow("no file behind dashes")
        << QStringList{QStringLiteral("--"), QStringLiteral("gone.mov")}
        << "there is no file \"gone.mov\"";
}

void tst_WindowRequest::whatCannotBeUnderstoodIsSaid()
{
    QFETCH(QStringList, words);
    QFETCH(QString, said);

    QVERIFY(WindowRequest::isMeant(argumentsOf(words)));
    QCOMPARE(WindowRequest::of(argumentsOf(words)).errorText(), said);
}

void tst_WindowRequest::aNameThatIsNoTextIsNoProject()
{
    const ProgramArguments words{{QStringLiteral("Film\\xff.brevano"), false}};
    QVERIFY(!WindowRequest::isMeant(words));
    m_dir->write(QStringLiteral("odd\\xff"));
    QVERIFY(!WindowRequest::isMeant({{QStringLiteral("odd\\xff"), false}}));
}

void tst_WindowRequest::aNameThatIsNoTextMayFollow()
{
    const ProgramArguments words{{QStringLiteral("Film.brevano"), true},
                                 {QStringLiteral("\\xff.mov"), false}};
    const NxResult<WindowRequest> request = WindowRequest::of(words);
    QVERIFY(request);
    QCOMPARE(request->files.size(), 1);
    QVERIFY(!request->files.constFirst().isText);
}

NX_TEST_MAIN(tst_WindowRequest)
#include "tst_WindowRequest.moc"
