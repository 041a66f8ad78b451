// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ReadProject.h"

#include <QTest>

namespace {

constexpr int Patience = 60'000; // ms

} // namespace

ReadProject::ReadProject(int workers, const QString &manner)
    : footage(manner),
      settings(footage.settings(workers))
{
}

NxFootageReader &ReadProject::reader()
{
    if (m_reader)
        return *m_reader;
    m_reader = std::make_unique<NxFootageReader>(&memory, settings);
    NxFootageReader *made = m_reader.get();
    QObject::connect(made, &NxFootageReader::itemRead, made,
                     [this](INxAbstractMediaItem *item) { read.append(item->name()); });
    QObject::connect(made, &NxFootageReader::picturesMade, made,
                     [this](INxAbstractMediaItem *item) { pictured.append(item->name()); });
    QObject::connect(made, &NxFootageReader::progress, made, [this](qint64 done, qint64 known) {
        progress.append(QStringLiteral("%1/%2").arg(done).arg(known));
    });
    QObject::connect(made, &NxFootageReader::idle, made, [this] { ++idles; });
    QObject::connect(made, &NxFootageReader::looksWanted, made,
                     [this](const std::vector<qint64> &media) { looksWanted = media; });
    return *m_reader;
}

NxEngineMedia *ReadProject::add(const QString &name, NxEngineFolder *folder, bool known)
{
    NxMediaSeed seed;
    seed.path = footage.file(name);
    if (known) {
        const NxFileStamp stamp = ScriptedFootage::stampOf(seed.path);
        seed.size = stamp.size;
        seed.modified = stamp.modified;
    }
    return memory.addNewMedia(folder ? folder : section, {seed}).first();
}

QVector<NxEngineMedia *> ReadProject::addMany(int count)
{
    QVector<NxEngineMedia *> media;
    for (int i = 0; i < count; ++i)
        media.append(add(QStringLiteral("%1.mp4").arg(i)));
    return media;
}

bool ReadProject::startAndFinish()
{
    reader().start();
    return finish();
}

bool ReadProject::finish()
{
    const int before = idles;
    return QTest::qWaitFor([this, before] { return reader().isIdle() && idles > before; },
                           Patience);
}

void ReadProject::see(const NxEngineMedia *media)
{
    reader().noteSeen(media->id(), ScriptedFootage::stampOf(media->filePath()));
}

NxFootageState ReadProject::state(const NxEngineMedia *media)
{
    return reader().state(media);
}

int ReadProject::factsAsked(const QString &name) const
{
    return footage.names(rwFacts).count(name);
}

int ReadProject::picturesAsked(const QString &name) const
{
    return footage.names(rwCover).count(name);
}
