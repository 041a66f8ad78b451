// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxAsNobody.h"

#include <QDirIterator>
#include <QFile>

#include <grp.h>
#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int CannotBecomeNobody = 99;

const passwd *nobody()
{
    return getpwnam("nobody");
}

bool isRoot()
{
    return geteuid() == 0;
}

void becomeNobody()
{
    const passwd *const user = nobody();
    if (!user || setgroups(0, nullptr) != 0 || setgid(user->pw_gid) != 0
        || setuid(user->pw_uid) != 0)
        _exit(CannotBecomeNobody);
}

[[noreturn]] void runChild(int output, const std::function<QString()> &body)
{
    if (isRoot())
        becomeNobody();
    const QByteArray answer = body().toUtf8();
    QFile pipe;
    const bool isTold =
        pipe.open(output, QFile::WriteOnly) && pipe.write(answer) == answer.size() && pipe.flush();
    _exit(isTold ? 0 : 1);
}

} // namespace

QString NxAsNobody::run(const std::function<QString()> &body)
{
    int ends[2];
    if (pipe(ends) != 0)
        return QStringLiteral("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        ::close(ends[0]);
        runChild(ends[1], body);
    }
    ::close(ends[1]);
    QFile pipeEnd;
    QByteArray answer;
    if (pipeEnd.open(ends[0], QFile::ReadOnly, QFile::AutoCloseHandle))
        answer = pipeEnd.readAll();
    int status = 0;
    const bool isOver = child > 0 && waitpid(child, &status, 0) == child;
    if (!isOver || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return QStringLiteral("the child process died: status %1").arg(status);
    return QString::fromUtf8(answer);
}

void NxAsNobody::give(const QString &path)
{
    const passwd *const user = nobody();
    if (!isRoot() || !user)
        return;
    const auto giveOne = [user](const QString &one) {
        if (lchown(QFile::encodeName(one).constData(), user->pw_uid, user->pw_gid) != 0)
            qFatal("%s cannot be given away", qUtf8Printable(one));
    };
    giveOne(path);
    QDirIterator below(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (below.hasNext())
        giveOne(below.next());
}
