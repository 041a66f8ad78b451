// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PanelYard.h"

#include "BenchmarkTools.h"

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/disk/NxFileProbe.h>
#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <unistd.h>

using namespace NXVBLMODEL;

namespace {

constexpr int ClipsPerFolder = 1'000;
constexpr int FreshFolders = 10;
constexpr int Pictures = 48;
constexpr int Cameras = 12;
constexpr int Grain = 60;
constexpr int Grey = 128;
constexpr qint64 SmallestFile = 1'000'000; // Bytes, of which none takes room.
constexpr qint64 FreshFile = 1; // Bytes.
constexpr qint64 FirstDay = 1'500'000'000'000; // ms UTC
constexpr qint64 DayMsec = 86'400'000;
constexpr qint64 FrameUs = 40'000;

const QTemporaryDir &yard()
{
    static const QTemporaryDir dir;
    return dir;
}

void makeFolder(const QString &path)
{
    if (!QDir().mkpath(path))
        giveUp(path);
}

void makeFile(const QString &path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(bytes))
        giveUp(path);
}

void link(const QString &original, const QString &path)
{
    if (::link(QFile::encodeName(original).constData(), QFile::encodeName(path).constData()) != 0)
        giveUp(path);
}

/// As much grain as footage has.
QImage coverPicture(int number)
{
    QImage cover(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight, QImage::Format_RGB32);
    QRandomGenerator random(static_cast<quint32>(number));
    for (int y = 0; y < cover.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(cover.scanLine(y));
        for (int x = 0; x < cover.width(); ++x) {
            const int light = Grey + int(random.bounded(Grain));
            line[x] = qRgb(light, (light + x) % 256, (light + y + number) % 256);
        }
    }
    return cover;
}

QString coverFile(int number)
{
    const QString path = PanelYard::path(QStringLiteral("cover %1.jpg").arg(number));
    if (!QFile::exists(path) && !coverPicture(number).save(path, "jpg"))
        giveUp(path);
    return path;
}

QString clipName(int number)
{
    static const char *const kinds[] = {"harbour at dawn", "interview", "IMG", "GX01", "Müller"};
    return QStringLiteral("%1 %2.mov")
        .arg(QString::fromUtf8(kinds[number % 5]))
        .arg(number * 7919 % 100'003, 6, 10, QLatin1Char('0'));
}

qint64 shotAt(int number)
{
    return FirstDay + number % PanelYard::Days * DayMsec;
}

/// The clips of a folder are links to one file, which is in it.
QVector<NxMediaSeed> seedsOf(int first, int end, const QString &folder)
{
    const QString original = folder + QStringLiteral("/original.mov");
    makeFolder(folder);
    makeFile(original, SmallestFile + first);
    const NxFileFacts facts = NxFileProbe::look(original);
    QVector<NxMediaSeed> seeds;
    for (int number = first; number < end; ++number) {
        NxMediaSeed seed;
        seed.path = folder + QLatin1Char('/') + clipName(number);
        seed.size = facts.size;
        seed.created = facts.created;
        seed.modified = facts.modified;
        link(original, seed.path);
        seeds.append(seed);
    }
    return seeds;
}

NxFootageRecord footageOf(const NxEngineMedia &media, int number, const NxMediaSeed &seed)
{
    NxFootageRecord record;
    record.media = media.id();
    record.state = NxReadState::Read;
    record.stamp = {seed.size, seed.modified};
    NxFootageStreams &streams = record.facts.streams;
    streams.kind = NxFootageKind::Video;
    streams.hasVideo = streams.hasAudio = streams.canSeek = true;
    streams.width = 3840;
    streams.height = 2160;
    streams.videoCodec = QStringLiteral("h264");
    streams.audioCodec = QStringLiteral("aac");
    streams.cameraModel = QStringLiteral("Camera %1").arg(number % Cameras);
    record.facts.frames = 100 + number % 1000;
    record.facts.rate = {25, 1};
    record.facts.durationUs = record.facts.frames * FrameUs;
    record.facts.shot = shotAt(number);
    record.facts.timecode = QStringLiteral("01:02:%1:00").arg(number % 60, 2, 10, QLatin1Char('0'));
    record.fingerprint = {seed.size, quint64(number) * 0x9e3779b97f4a7c15U, quint64(number)};
    record.cover = record.strip = NxPictureState::Made;
    return record;
}

// A link: all clips of one picture share its file.
void putCover(const NxFingerprint &contents, int number)
{
    static const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation)
                                 + QStringLiteral("/Pictures/");
    const QString path = cache + NxPictureFile::name(contents, NxPictureKind::Cover);
    makeFolder(QFileInfo(path).path());
    link(coverFile(number % Pictures), path);
}

NxEmbeddedEngine::Options quietly()
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false;
    return options;
}

void close(NxEmbeddedEngine *engine)
{
    const NxResult<void> closed = engine->closeProject();
    if (!closed)
        giveUp(closed.errorText());
}

QString madeProject(int clips)
{
    const QString path = PanelYard::path(QStringLiteral("%1.brevano").arg(clips));
    NxEmbeddedEngine engine(quietly());
    const NxResult<INxProject *> made = engine.createProject(path);
    if (!made)
        giveUp(made.errorText());
    NxProjectMemory *memory = static_cast<NxEngineProject *>(*made)->memory();
    NxEngineFolder *section = memory->category(mctMedia)->section(fkProject);
    for (int first = 0; first < clips; first += ClipsPerFolder) {
        const QString folder =
            PanelYard::path(QStringLiteral("%1 clips/Shoot %2").arg(clips).arg(first));
        const QVector<NxMediaSeed> seeds =
            seedsOf(first, qMin(clips, first + ClipsPerFolder), folder);
        const QVector<NxEngineMedia *> media = memory->addNewMedia(section, seeds);
        for (int i = 0; i < media.size(); ++i) {
            const NxFootageRecord record = footageOf(*media.at(i), first + i, seeds.at(i));
            memory->setFootage(media.at(i), record);
            putCover(record.fingerprint, first + i);
        }
    }
    memory->flush();
    close(&engine);
    return path;
}

bool isRead(const NxProjectMemory &memory, const INxFootageService &service)
{
    const auto all = memory.livingMedia();
    return !all.empty() && std::all_of(all.begin(), all.end(), [&](const NxEngineMedia *media) {
        const NxFootageState state = service.state(media);
        return state.cover != NxFootageStatus::Waiting && state.strip != NxFootageStatus::Waiting;
    });
}

/// Imports a folder and waits until all of it was read.
void importAll(NxEngineProject *project, const QString &folder)
{
    NxProjectMemory *memory = project->memory();
    NxEngineCategory *category = memory->category(mctMedia);
    INxFootageService *service = project->footageService();
    QEventLoop loop;
    bool isImported = false;
    const auto look = [&] {
        if (isImported && isRead(*memory, *service))
            loop.quit();
    };
    QObject::connect(category->importer(), &INxMediaImporter::finished, &loop, [&] {
        isImported = true;
        look();
    });
    QObject::connect(service, &INxFootageService::picturesMade, &loop, look);
    QObject::connect(service, &INxFootageService::idle, &loop, look);
    category->importer()->start(category->section(fkProject), {folder}, mitFolder);
    loop.exec();
    memory->flush();
}

QString madeSampleProject()
{
    const QString footage = PanelYard::path(QStringLiteral("samples"));
    const QString maker = QStringLiteral(NX_SOURCE_DIR "/Packaging/make-samples");
    if (QProcess::execute(maker, {footage}) != 0)
        giveUp(maker);
    const QString path = PanelYard::path(QStringLiteral("Samples.brevano"));
    NxEmbeddedEngine::Options options = quietly();
    options.readsFootage = true;
    NxEmbeddedEngine engine(options);
    const NxResult<INxProject *> made = engine.createProject(path);
    if (!made)
        giveUp(made.errorText());
    importAll(static_cast<NxEngineProject *>(*made), footage);
    close(&engine);
    return path;
}

} // namespace

void PanelYard::settle()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        const QString folder = path(QStringLiteral("home/") + QLatin1String(name));
        makeFolder(folder);
        qputenv(name, QFile::encodeName(folder));
    }
}

QString PanelYard::path(const QString &name)
{
    return yard().filePath(name);
}

QString PanelYard::project(int clips)
{
    static std::map<int, QString> made;
    QString &path = made[clips];
    if (path.isEmpty())
        path = madeProject(clips);
    return path;
}

QString PanelYard::sampleProject()
{
    static const QString path = madeSampleProject();
    return path;
}

QString PanelYard::freshFiles(int files)
{
    static int count = 0;
    const QString root = path(QStringLiteral("fresh %1").arg(++count));
    for (int number = 0; number < files; ++number) {
        const QString folder = QStringLiteral("%1/Shoot %2").arg(root).arg(number % FreshFolders);
        if (number < FreshFolders)
            makeFolder(folder);
        makeFile(folder + QLatin1Char('/') + clipName(number), FreshFile + number);
    }
    return root;
}
