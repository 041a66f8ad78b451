// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CameraFootage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringList>

namespace {

struct Clip
{
    const char *name;
    NxFootageKind kind;
    const char *arguments; ///< Of ffmpeg.
};

constexpr const char *Moving = "-f lavfi -i testsrc2=s=1920x1080:r=25:d=4 ";
constexpr const char *Sound = "-f lavfi -i sine=r=48000:d=4 ";
constexpr const char *Photo = "-f lavfi -i testsrc2=s=4000x3000 -frames:v 1 ";

// In 1080p, as cameras, editors and telephones write them.
constexpr Clip Clips[] = {
    {"camera.mp4", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"camera.mov", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a pcm_s16le"},
    {"recorder.mkv", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"telephone.mp4", NxFootageKind::Video,
     "-c:v libx265 -preset ultrafast -x265-params log-level=none -c:a aac"},
    {"browser.webm", NxFootageKind::Video,
     "-c:v libvpx-vp9 -deadline realtime -cpu-used 8 -c:a libopus"},
    {"editor.mov", NxFootageKind::Video, "-c:v prores_ks -profile:v 1 -c:a pcm_s16le"},
    {"camcorder.ts", NxFootageKind::Video, "-c:v libx264 -preset veryfast -b:v 12M -c:a aac"},
    {"disc.mpg", NxFootageKind::Video, "-c:v mpeg2video -b:v 8M -c:a mp2"},
    {"broadcast.mxf", NxFootageKind::Video,
     "-c:v dnxhd -profile:v dnxhr_lb -pix_fmt yuv422p -c:a pcm_s16le"},
    {"old.avi", NxFootageKind::Video, "-c:v mjpeg -c:a pcm_s16le"},
    {"voice.wav", NxFootageKind::Audio, ""},
    {"music.mp3", NxFootageKind::Audio, ""},
    {"music.m4a", NxFootageKind::Audio, ""},
    {"photo.jpg", NxFootageKind::Image, "-pix_fmt yuvj420p"},
    {"drawing.png", NxFootageKind::Image, ""},
};

QString inputsOf(NxFootageKind kind)
{
    if (kind == NxFootageKind::Image)
        return QLatin1String(Photo);
    return kind == NxFootageKind::Audio ? QLatin1String(Sound)
                                        : QLatin1String(Moving) + QLatin1String(Sound);
}

void make(const Clip &clip, const QString &path)
{
    const QString part = path + QStringLiteral(".part.") + QLatin1String(clip.name);
    const QString arguments =
        QStringLiteral("-v error -y ") + inputsOf(clip.kind) + QLatin1String(clip.arguments);
    const QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (QProcess::execute(QStringLiteral("ffmpeg"), words + QStringList{part}) != 0
        || !QFile::rename(part, path))
        qFatal("ffmpeg cannot make %s", clip.name);
}

std::vector<CameraFootage::File> made()
{
    const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/../camera"));
    if (!QDir().mkpath(folder.path()))
        qFatal("%s cannot be made", qUtf8Printable(folder.path()));
    std::vector<CameraFootage::File> files;
    for (const Clip &clip : Clips) {
        const QString path = folder.filePath(QLatin1String(clip.name));
        if (!QFile::exists(path))
            make(clip, path);
        files.push_back({path, clip.kind});
    }
    return files;
}

} // namespace

const std::vector<CameraFootage::File> &CameraFootage::files()
{
    static const std::vector<File> all = made();
    return all;
}
