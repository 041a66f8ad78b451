// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ProgramRun.h"

#include "ReadableProgram.h"

#include <QProcessEnvironment>
#include <QtTest>

#include <pwd.h>
#include <unistd.h>

namespace {

constexpr int longestRun = 500'000; // ms

const ReadableProgram &programForAll()
{
    static const ReadableProgram program;
    return program;
}

} // namespace

ProgramRun::~ProgramRun()
{
    if (state() == NotRunning)
        return;
    kill();
    waitForFinished(longestRun);
}

void ProgramRun::begin(const QStringList &arguments, const QString &folder)
{
    launch(isForNobody() ? programForAll().path() : QStringLiteral(NX_BREVANO), arguments, folder);
}

void ProgramRun::beginShell(const QString &command, const QStringList &arguments,
                            const QString &folder)
{
    const QStringList words{QStringLiteral("-c"), command, QStringLiteral("sh")};
    launch(QStringLiteral("/bin/sh"), words + arguments, folder);
}

void ProgramRun::launch(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("BREVANO"), QStringLiteral(NX_BREVANO));
    for (const char *display :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_SESSION_TYPE"})
        environment.remove(QLatin1String(display));
    if (isForNobody())
        programForAll().addLibrariesTo(&environment);
    setProcessEnvironment(environment);
    setWorkingDirectory(folder);
    setStandardInputFile(nullDevice());
    start(program, arguments);
    QVERIFY2(waitForStarted(longestRun), qPrintable(errorString()));
}

bool ProgramRun::isForNobody() const
{
    return m_user == User::Nobody && geteuid() == 0;
}

void ProgramRun::setupChildProcess()
{
    if (!isForNobody())
        return;
    const passwd *nobody = getpwnam("nobody");
    if (!nobody || setgid(nobody->pw_gid) != 0 || setuid(nobody->pw_uid) != 0)
        _exit(125);
}

bool ProgramRun::killAfter(int msec)
{
    if (waitForFinished(msec))
        return false;
    kill();
    waitForFinished(longestRun);
    return exitStatus() == CrashExit;
}

ProgramResult ProgramRun::end()
{
    if (state() != NotRunning && !waitForFinished(longestRun)) {
        kill();
        waitForFinished(longestRun);
    }
    ProgramResult result;
    result.code = exitStatus() == NormalExit ? exitCode() : -1;
    result.output = readAllStandardOutput();
    result.errors = readAllStandardError();
    return result;
}

bool ProgramRun::waitForLine()
{
    while (!canReadLine()) {
        if (!waitForReadyRead(longestRun))
            return canReadLine(); // What comes with the end is there by then.
    }
    return true;
}

ProgramResult ProgramRun::run(const QStringList &arguments, const QString &folder, User user)
{
    ProgramRun program(user);
    program.begin(arguments, folder);
    return program.end();
}

ProgramResult ProgramRun::runShell(const QString &command, const QStringList &arguments,
                                   const QString &folder)
{
    ProgramRun program;
    program.beginShell(command, arguments, folder);
    return program.end();
}
