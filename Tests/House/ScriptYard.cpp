// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ScriptYard.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString sourceFolder = QStringLiteral(NX_SOURCE_DIR);

QString quoted(const QString &text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + inner + QLatin1Char('\'');
}

} // namespace

ScriptYard::ScriptYard()
{
    m_isValid = m_folder.isValid() && QDir(folder()).mkpath(QStringLiteral("user"));
    for (const char *name : {"run", "check", ".ci/run", "CMakePresets.json", "Packaging/setup.sh",
                             "Packaging/draw-pictures"})
        copyScript(QLatin1String(name));
    listPackages({});
}

bool ScriptYard::isValid() const
{
    return m_isValid;
}

void ScriptYard::fakeProgram(const QString &name, const QString &body)
{
    writeProgram(QStringLiteral("fake/") + name, body);
}

void ScriptYard::writeProgram(const QString &name, const QString &text)
{
    const QString path = QDir(folder()).filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    m_isValid = m_isValid && file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (!m_isValid)
        return;
    const QString note = QStringLiteral("echo \"${0##*/} $*\" >>%1\n");
    file.write("#!/bin/bash\n");
    file.write(note.arg(quoted(folder() + QStringLiteral("/calls"))).toUtf8());
    file.write(text.toUtf8() + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ScriptYard::listPackages(const QStringList &packages)
{
    QFile list(folder() + QStringLiteral("/Packaging/apt-packages.txt"));
    m_isValid = m_isValid && list.open(QIODevice::WriteOnly | QIODevice::Truncate);
    if (m_isValid)
        list.write("# Packages\n" + packages.join(QLatin1Char('\n')).toUtf8());
}

CommandResult ScriptYard::run(const QString &script, const QStringList &arguments) const
{
    const QStringList all = QStringList(QDir(folder()).filePath(script)) + arguments;
    return runCommand(QStringLiteral("bash"), all, userFolder(), environment());
}

CommandResult ScriptYard::runSetup(const QString &commands, const QString &answer) const
{
    const QString setup = folder() + QStringLiteral("/Packaging/setup.sh");
    const QString whole =
        QStringLiteral("set -euo pipefail; source %1; %2").arg(quoted(setup), commands);
    if (answer.isNull())
        return runCommand(QStringLiteral("bash"), {QStringLiteral("-c"), whole}, userFolder(),
                          environment());

    // What is said goes to a file: script(1) loses what comes just before the end.
    const QString said = quoted(folder() + QStringLiteral("/said"));
    const QString inner = QStringLiteral("bash -c %1 >%2 2>&1").arg(quoted(whole), said);
    const QString onTerminal =
        QStringLiteral("printf '%s\\n' %1 | script -qefc %2 /dev/null; code=$?; cat %3; exit $code")
            .arg(quoted(answer), quoted(inner), said);
    return runCommand(QStringLiteral("bash"), {QStringLiteral("-c"), onTerminal}, userFolder(),
                      environment());
}

QStringList ScriptYard::calls() const
{
    QFile file(folder() + QStringLiteral("/calls"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString ScriptYard::folder() const
{
    return QFileInfo(m_folder.path()).canonicalFilePath();
}

QString ScriptYard::userFolder() const
{
    return folder() + QStringLiteral("/user");
}

void ScriptYard::copyScript(const QString &name)
{
    const QString target = QDir(folder()).filePath(name);
    m_isValid = m_isValid && QDir().mkpath(QFileInfo(target).path())
                && QFile::copy(QDir(sourceFolder).filePath(name), target);
}

QProcessEnvironment ScriptYard::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString path = environment.value(QStringLiteral("PATH"));
    environment.insert(QStringLiteral("PATH"), folder() + QStringLiteral("/fake:") + path);
    environment.insert(QStringLiteral("SHELL"), QStringLiteral("/bin/sh")); // Of script(1).
    environment.remove(QStringLiteral("NX_PACKAGE_LIST"));
    return environment;
}
