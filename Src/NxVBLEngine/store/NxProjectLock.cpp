// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectLock.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#endif

namespace {

/// How long a lock may be one that is just being written, if it names nobody, or that is just being
/// given back by the system, if whoever it names is dead, in ms.
constexpr int ChangingMsec = 200;

QString translated(const char *text)
{
    return QCoreApplication::translate("NxProjectStore", text);
}

/// False only if there is surely no such process on this computer.
bool mayRun([[maybe_unused]] qint64 process, const QString &host)
{
    if (host != QSysInfo::machineHostName())
        return true;
#ifdef Q_OS_UNIX
    return ::kill(pid_t(process), 0) == 0 || errno != ESRCH;
#else
    return true;
#endif
}

} // namespace

NxProjectLock::NxProjectLock(const QString &projectPath)
    : m_path(pathFor(projectPath)),
      m_file(m_path)
{
    m_file.setStaleLockTime(0); // Age says nothing; only a dead holder loses its lock.
}

NxProjectLock::Answer NxProjectLock::tryLock()
{
    if (m_file.tryLock(0))
        return Answer::Ours;
    if (m_file.error() != QLockFile::LockFailedError)
        return Answer::Impossible;

    qint64 process = 0;
    QString host;
    QString program;
    const bool isNamed = m_file.getLockInfo(&process, &host, &program);
    if (isNamed && mayRun(process, host))
        return Answer::Taken;
    if (m_file.tryLock(ChangingMsec))
        return Answer::Ours;
    if (isNamed)
        return Answer::Taken;
    // Its maker was killed before it wrote its name. A living one holds the system's lock on it,
    // against which the removal fails.
    return m_file.removeStaleLockFile() && m_file.tryLock(0) ? Answer::Ours : Answer::Taken;
}

QString NxProjectLock::impossibleText() const
{
    return m_file.error() == QLockFile::PermissionError
               ? translated("stands in a folder that cannot be written")
               : translated("cannot be written, since no lock can be made beside it");
}

QString NxProjectLock::holderText() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_file.getLockInfo(&process, &host, &program))
        return translated("is open in another window");
    const QString text = translated("is open in another window (process %1 on host %2)")
                             .arg(QString::number(process), host);
    if (host == QSysInfo::machineHostName())
        return text;
    return text + translated("; if that computer no longer runs it, remove %1").arg(m_path);
}

QString NxProjectLock::pathFor(const QString &projectPath)
{
    // Two links to one project must meet at one lock.
    const QFileInfo project(projectPath);
    QString canonical = project.canonicalFilePath();
    if (canonical.isEmpty())
        canonical = project.dir().canonicalPath() + QLatin1Char('/') + project.fileName();
    return canonical + QLatin1String(".lock");
}
