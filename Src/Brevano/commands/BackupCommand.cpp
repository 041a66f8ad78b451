// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/BackupCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/ShownText.h>
#include <NxVBLModel/INxProject.h>

#include <QEventLoop>
#include <QFileInfo>

namespace {

NxResult<void> saveAndWait(INxProject *project, const QString &path)
{
    QEventLoop loop;
    bool isAnswered = false;
    NxResult<void> answer;
    project->saveCopy(path, [&](const NxResult<void> &result) {
        answer = result;
        isAnswered = true;
        loop.quit();
    });
    if (!isAnswered)
        loop.exec();
    return answer;
}

QString targetFault(const ProgramArgument &target)
{
    if (!target.isText)
        return QStringLiteral("the name is not UTF-8");
    if (target.text.isEmpty())
        return QStringLiteral("the name of the copy is empty");
    const QFileInfo info(target.text);
    if (info.exists() || info.isSymLink())
        return QStringLiteral("there is a file of this name already; it is left as it is");
    return {};
}

} // namespace

int BackupCommand::run(const CommandLine &line, Console *console)
{
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Look))
        return ProjectUnusable;
    const ProgramArgument target = line.names().at(1);
    const QString fault = targetFault(target);
    if (!fault.isEmpty()) {
        console->error(target.text, fault);
        return session.close(NothingDone);
    }
    const QString path = QFileInfo(target.text).absoluteFilePath();
    const NxResult<void> saved = saveAndWait(session.project(), path);
    if (!saved) {
        session.tellFailure(saved.error().message);
        console->error(target.text, QStringLiteral("no copy was made"));
        return session.close(ProjectUnusable);
    }
    console->line(QStringLiteral("Saved %1").arg(ShownText::oneLine(target.text)));
    return session.close(Done);
}
