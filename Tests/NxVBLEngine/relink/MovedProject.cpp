// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MovedProject.h"

#include <NxVBLEngine/disk/NxDiskThread.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <NxVBLEngine/relink/NxRelinkSearch.h>

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>

#include <array>

namespace {

constexpr int Patience = 60'000; // ms

[[noreturn]] void giveUp(const QString &why)
{
    qFatal("%s", qUtf8Printable(why));
}

} // namespace

MovedProject::MovedProject(Worker worker, const QString &manner)
    : footage(manner),
      settings(footage.settings(2))
{
    if (worker == Worker::Real)
        settings.program = QStringLiteral(NX_WORKER_PROGRAM);
}

MovedProject::~MovedProject() = default;

QString MovedProject::root() const
{
    return QFileInfo(footage.cacheFolder()).path();
}

QString MovedProject::path(const QString &name) const
{
    return root() + QLatin1Char('/') + name;
}

void MovedProject::write(const QString &name, const QByteArray &content) const
{
    (void)footage.file(name, content);
}

NxEngineMedia *MovedProject::add(const QString &name, const QByteArray &content)
{
    return addExisting(footage.file(name, content));
}

NxEngineMedia *MovedProject::addExisting(const QString &path)
{
    const NxFileStamp stamp = ScriptedFootage::stampOf(path);
    NxMediaSeed seed;
    seed.path = path;
    seed.size = stamp.size;
    seed.modified = stamp.modified;
    return memory.addNewMedia(section, {seed}).first();
}

void MovedProject::lose(const NxEngineMedia *media) const
{
    if (!QFile::remove(media->filePath()))
        giveUp(media->filePath());
}

void MovedProject::move(const QString &from, const QString &to) const
{
    if (!QDir().mkpath(QFileInfo(path(to)).path()) || !QFile::rename(path(from), path(to)))
        giveUp(from);
}

void MovedProject::identify(const QVector<NxEngineMedia *> &media)
{
    NxFootageReader reader(&memory, settings);
    QSignalSpy idle(&reader, &NxFootageReader::idle);
    reader.read(asItems(media), NxFootageReader::wFacts | NxFootageReader::wFingerprint);
    if (!idle.wait(Patience))
        giveUp(QStringLiteral("the files are not read"));
    for (const NxEngineMedia *one : media) {
        if (one->fingerprint().isNull())
            giveUp(one->filePath());
    }
}

void MovedProject::setFrames(NxEngineMedia *media, qint64 frames)
{
    NxFootageRecord record = media->footage();
    record.state = NxReadState::Read;
    record.facts.streams.kind = NxFootageKind::Video;
    record.facts.streams.hasVideo = true;
    record.facts.frames = frames;
    memory.setFootage(media, record);
}

void MovedProject::setFingerprint(NxEngineMedia *media, const NxFingerprint &fingerprint)
{
    NxFootageRecord record = media->footage();
    record.fingerprint = fingerprint;
    memory.setFootage(media, record);
}

NxRelinkSearch &MovedProject::search()
{
    if (m_search)
        return *m_search;
    disk = std::make_shared<NxDiskThread>(patience);
    m_search = std::make_unique<NxRelinkSearch>(&memory, disk, settings, look);
    return *m_search;
}

NxRelinkReport MovedProject::find(const QVector<NxEngineMedia *> &media, const QString &folder)
{
    QSignalSpy finished(&search(), &INxRelinkSearch::finished);
    const quint64 number = search().start(asItems(media), path(folder));
    if (!finished.wait(Patience) || finished.first().first().toULongLong() != number)
        giveUp(QStringLiteral("the search does not end"));
    return finished.first().at(1).value<NxRelinkReport>();
}

QStringList MovedProject::lines(const NxRelinkReport &report) const
{
    // By NxRelinkMatch.
    static constexpr std::array<const char *, 4> words = {"none", "contents", "name", "several"};
    QStringList lines;
    for (const NxRelinkFinding &finding : report.findings) {
        const INxAbstractMedia *media = finding.media.get();
        QString line = media ? media->name() : QStringLiteral("nobody");
        line += QLatin1String(": ") + QLatin1String(words[size_t(finding.match)]);
        for (const QString &path : finding.paths)
            line += QLatin1Char(' ') + QString(path).remove(root() + QLatin1Char('/'));
        lines.append(line);
    }
    return lines;
}

QStringList MovedProject::sentences(const NxRelinkReport &report) const
{
    QStringList sentences = report.unreadable;
    return sentences.replaceInStrings(root() + QLatin1Char('/'), QString());
}

QList<INxAbstractMediaItem *> asItems(const QVector<NxEngineMedia *> &media)
{
    QList<INxAbstractMediaItem *> items;
    for (NxEngineMedia *one : media)
        items.append(one);
    return items;
}
