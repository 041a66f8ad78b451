// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MadeClip.h"

#include <QProcess>
#include <QStringList>

namespace {

constexpr int Timeout = 60'000; // ms
constexpr int FramesASecond = 25;

QString input(const char *source, const QString &size, int frames)
{
    return QStringLiteral("-f lavfi -i %1%2:r=%3:d=%4 ")
        .arg(QLatin1String(source), size)
        .arg(FramesASecond)
        .arg(double(frames) / FramesASecond);
}

} // namespace

QString MadeClip::make(const NxTempDir &dir, const QString &name, const QString &arguments)
{
    const QString path = dir.filePath(name);
    QProcess program;
    program.setWorkingDirectory(dir.path());
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(NX_FFMPEG), (QStringLiteral("-v fatal -y -bitexact ") + arguments)
                                                     .split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                                 + QStringList{path});
    if (!program.waitForFinished(Timeout) || program.exitCode() != 0)
        qFatal("%s: %s", qUtf8Printable(name), program.readAll().constData());
    return path;
}

QString MadeClip::pictures(int frames, const char *size)
{
    return input("testsrc2=s=", QLatin1String(size), frames);
}

QString MadeClip::noise(int frames)
{
    return QString(input("testsrc2=s=", QStringLiteral("640x360"), frames)).trimmed()
           + QStringLiteral(",noise=alls=40:allf=t:all_seed=1 ");
}

QString MadeClip::sound(int seconds)
{
    return QStringLiteral("-f lavfi -i sine=r=48000:d=%1 ").arg(seconds);
}
