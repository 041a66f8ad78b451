// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowProgram.h>

#include <Brevano/commands/CommandRunner.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/HostSystem.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/window/DisplayGuard.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/ShotCommand.h>
#include <Brevano/window/WindowMemory.h>
#include <Brevano/window/WindowRequest.h>
#include <NxCore/INxSettingsStore.h>

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <utility>

namespace {

const auto PictureName = QStringLiteral("brevano-panel.png");

ProgramArgument word(const QString &text)
{
    return {text, true};
}

/// The names that are names of files as Qt can hold them; of the others it is said that they are
/// not.
QStringList pathsOf(const ProgramArguments &names, Console *console)
{
    QStringList paths;
    for (const ProgramArgument &name : names) {
        if (name.isText && !name.text.isEmpty())
            paths.append(name.text);
        else if (name.isText)
            console->note(QStringLiteral("the name of a file is empty"));
        else
            console->error(name.text, QStringLiteral("The name is not UTF-8."));
    }
    return paths;
}

void open(MainWindow *window, const QString &project, const QStringList &paths)
{
    const bool isMade = !paths.isEmpty() && ProjectHolder::isMissing(project);
    const bool isOpen = isMade ? window->createProject(project) : window->openProject(project);
    if (isOpen && !paths.isEmpty())
        window->importPaths(paths);
}

} // namespace

WindowProgram::WindowProgram(ProgramArguments words, Console *console, char **argv)
    : m_words(std::move(words)),
      m_console(console),
      m_argv(argv)
{
}

int WindowProgram::run()
{
    const bool canShow = HostSystem::hasDisplay();
    if (!WindowRequest::isMeant(m_words) || (m_words.isEmpty() && !canShow))
        return runCommand();
    const NxResult<WindowRequest> request = WindowRequest::of(m_words);
    if (!request)
        return CommandRunner(m_console).wrongUsage(request.error().message);
    return canShow ? showWindow(*request) : drawPicture(*request);
}

int WindowProgram::runCommand()
{
    if (ShotCommand::isMeant(m_words)) {
        ShotCommand::prepareProcess(m_words);
        const std::unique_ptr<QApplication> application = makeApplication();
        return CommandRunner(m_console).run(m_words);
    }
    const QCoreApplication application(m_argc, m_argv);
    return CommandRunner(m_console).run(m_words);
}

std::unique_ptr<QApplication> WindowProgram::makeApplication()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const DisplayGuard guard(m_console);
    auto application = std::make_unique<QApplication>(m_argc, m_argv);
    // The only style of Qt's that takes every colour from the palette, on every system.
    QApplication::setStyle(QStringLiteral("Fusion"));
    return application;
}

int WindowProgram::showWindow(const WindowRequest &request)
{
    const std::unique_ptr<QApplication> application = makeApplication();
    const QStringList paths = pathsOf(request.files, m_console);
    const InterruptWatcher interrupts;
    WindowMemory memory;
    MainWindow window(&memory);
    window.show();
    QObject::connect(&interrupts, &InterruptWatcher::interrupted, &window, [&window] {
        window.close();
        QCoreApplication::exit(Interrupted);
    });
    if (!request.project.isEmpty()) {
        // In the loop, for dialogs have one of their own.
        QTimer::singleShot(0, &window,
                           [&window, &request, &paths] { open(&window, request.project, paths); });
    }
    const int code = QApplication::exec();
    const bool isAllTaken = paths.size() == request.files.size();
    return code == Done && !isAllTaken ? int(SomeRefused) : code;
}

int WindowProgram::drawPicture(const WindowRequest &request)
{
    ShotCommand::prepareProcess({});
    const std::unique_ptr<QApplication> application = makeApplication();
    const ProgramArgument project = word(request.project);
    int imported = Done;
    if (!request.files.isEmpty())
        imported = wordsToCommand("import", ProgramArguments{project} + request.files);
    const bool isThere = !ProjectHolder::isMissing(request.project);
    if (imported != Done && imported != SomeRefused && !(imported == NothingDone && isThere))
        return imported;
    const QString picture = QDir::current().absoluteFilePath(PictureName);
    const int drawn =
        CommandRunner(m_console).run({word(QStringLiteral("shot")), word(QStringLiteral("--out")),
                                      word(picture), word(QStringLiteral("--")), project});
    if (drawn == ProjectUnusable)
        return drawn;
    const int listed = wordsToCommand("list", {project});
    if (drawn != NothingDone)
        m_console->line(QStringLiteral("The panel as a picture: ") + picture);
    for (const int code : {imported, listed, drawn}) {
        if (code != Done)
            return code;
    }
    return Done;
}

int WindowProgram::wordsToCommand(const char *command, const ProgramArguments &words)
{
    const ProgramArguments begin{word(QLatin1String(command)), word(QStringLiteral("--"))};
    return CommandRunner(m_console).run(begin + words);
}
