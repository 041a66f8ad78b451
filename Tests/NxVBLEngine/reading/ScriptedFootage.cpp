// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ScriptedFootage.h"

#include <RawFiles.h>

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr std::chrono::seconds Generous{60};
constexpr std::chrono::milliseconds Short{1'000};

} // namespace

ScriptedFootage::ScriptedFootage(const QString &manner)
    : m_cache(m_dir.makeDir(manner)),
      m_gate(m_cache + QStringLiteral("/gate"))
{
    RawFiles::makePipe(m_gate.fileName());
}

QString ScriptedFootage::program() const
{
    return QStringLiteral(NX_SCRIPTED_WORKER);
}

NxWorkerSettings ScriptedFootage::settings(int workers) const
{
    NxWorkerSettings settings;
    settings.program = program();
    settings.cacheFolder = m_cache;
    settings.workers = workers;
    const QStringList roots{QStringLiteral("/"), m_dir.filePath(QStringLiteral("dead"))};
    settings.volumeRoots = [roots] { return roots; };
    settings.startLimit = settings.slowOpening = settings.openingLimit = Generous;
    settings.factsLimit = settings.picturesLimit = Generous;
    settings.silentPause = Short;
    return settings;
}

NxWorkerSettings ScriptedFootage::impatient(int workers) const
{
    NxWorkerSettings settings = this->settings(workers);
    settings.slowOpening = Short;
    settings.openingLimit = settings.factsLimit = settings.picturesLimit = 3 * Short;
    return settings;
}

QString ScriptedFootage::file(const QString &name, const QByteArray &content) const
{
    return m_dir.write(name, content);
}

NxFileStamp ScriptedFootage::stampOf(const QString &path)
{
    const QFileInfo file(path);
    return {file.size(), file.lastModified().toMSecsSinceEpoch()};
}

QStringList ScriptedFootage::log() const
{
    QFile file(m_cache + QStringLiteral("/requests.log"));
    if (!file.open(QIODevice::ReadOnly))
        return {}; // No worker was started yet.
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList ScriptedFootage::requests() const
{
    QStringList lines = log();
    const auto isStart = [](const QString &line) {
        return line.startsWith(QLatin1String("start "));
    };
    lines.erase(std::remove_if(lines.begin(), lines.end(), isStart), lines.end());
    return lines;
}

QStringList ScriptedFootage::names(int wishes) const
{
    QStringList names;
    for (const QString &line : requests()) {
        if ((line.section(QLatin1Char(' '), -1).toInt() & wishes) != 0)
            names.append(line.section(QLatin1Char(' '), 0, -2));
    }
    return names;
}

QStringList ScriptedFootage::starts() const
{
    QStringList ids;
    for (const QString &line : log()) {
        if (line.startsWith(QLatin1String("start ")))
            ids.append(line.section(QLatin1Char(' '), 1));
    }
    return ids;
}

void ScriptedFootage::openGate()
{
    if (!m_gate.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        qFatal("the gate cannot be opened: %s", qUtf8Printable(m_gate.errorString()));
}

bool isProcessGone(qint64 processId)
{
    QFile status(QStringLiteral("/proc/%1/stat").arg(processId));
    if (!status.open(QIODevice::ReadOnly))
        return true;
    const QByteArray text = status.readAll();
    return text.mid(text.lastIndexOf(')') + 2, 1) == "Z";
}
