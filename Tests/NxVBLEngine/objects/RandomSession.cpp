// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "RandomSession.h"

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/objects/NxEngineResource.h>

#include <array>

using namespace NXVBLMODEL;

RandomSession::RandomSession(NxProjectMemory *memory, quint32 seed)
    : m_memory(memory),
      m_seed(seed),
      m_random(seed)
{
}

int RandomSession::below(int bound)
{
    return int(m_random() % quint32(bound));
}

QString RandomSession::name(const char *stem)
{
    return QStringLiteral("%1%2-%3").arg(QLatin1String(stem)).arg(m_seed).arg(++m_serial);
}

NxEngineCategory *RandomSession::anyCategory()
{
    // Mostly the user's own media, sometimes a category with custom folders.
    return m_memory->category(below(4) != 0 ? int(mctMedia) : mctAudio + below(mctSplitScreen));
}

NxEngineFolder *RandomSession::anyFolder(NxEngineCategory *category, bool userFolder)
{
    QVector<NxEngineFolder *> candidates;
    std::vector<NxEngineFolder *> waiting = {category->root()};
    while (!waiting.empty()) {
        NxEngineFolder *folder = waiting.back();
        waiting.pop_back();
        waiting.insert(waiting.end(), folder->children().begin(), folder->children().end());
        if (userFolder ? folder->isUserFolder() : folder->canAddFolder())
            candidates.append(folder);
    }
    return candidates.isEmpty() ? nullptr : candidates.at(below(candidates.size()));
}

NxEngineMedia *RandomSession::anyMedia()
{
    const std::vector<NxEngineMedia *> living = m_memory->livingMedia();
    return living.empty() ? nullptr : living[size_t(below(int(living.size())))];
}

QList<INxAbstractMedia *> RandomSession::someMedia(NxEngineCategory *category)
{
    QList<INxAbstractMedia *> some;
    const QList<INxAbstractMedia *> all = category->root()->items(true, true);
    for (INxAbstractMedia *media : all) {
        if (below(12) == 0)
            some.append(media);
    }
    return some;
}

bool RandomSession::addMedia()
{
    NxEngineFolder *folder = anyFolder(anyCategory(), false);
    if (!folder || !folder->canAddMedia())
        return false;
    QVector<NxMediaSeed> seeds(1 + below(4));
    for (NxMediaSeed &seed : seeds) {
        seed.path = QStringLiteral("/footage/") + name("clip") + QStringLiteral(".mov");
        seed.size = below(1000000);
        seed.created = below(2) ? qint64(below(1000000)) * 1000 : NxNoTime;
    }
    const NxUndoRedoCommander scope(m_memory->undoStack(), QStringLiteral("t"),
                                    QStringLiteral("import"));
    return !m_memory->addNewMedia(folder, seeds).isEmpty();
}

bool RandomSession::addFolder()
{
    NxEngineCategory *category = anyCategory();
    return category->folderManager()->addFolder(anyFolder(category, false), name("folder"));
}

bool RandomSession::renameMedia()
{
    NxEngineMedia *media = anyMedia();
    return media
           && m_memory->category(media->category())
                  ->itemManager()
                  ->renameMediaItem(media, name("name"));
}

bool RandomSession::renameFolder()
{
    NxEngineCategory *category = anyCategory();
    return category->folderManager()->renameFolder(anyFolder(category, true), name("renamed"));
}

bool RandomSession::renameResource()
{
    NxEngineCategory *category = m_memory->category(mctAudio + below(mctTemplate));
    const auto &resources = category->resources();
    return category->itemManager()->renameMediaItem(
        resources[size_t(below(int(resources.size())))].get(), name("mine"));
}

bool RandomSession::moveMedia()
{
    NxEngineCategory *category = anyCategory();
    return category->itemManager()->moveMediaItems(nullptr, anyFolder(category, false),
                                                   someMedia(category));
}

bool RandomSession::moveFolder()
{
    NxEngineCategory *category = anyCategory();
    const int steps = m_memory->undoStack()->count();
    const qint64 serial = m_memory->undoStack()->lastSerial();
    category->folderManager()->moveFolder(anyFolder(category, true), anyFolder(category, false),
                                          below(6) - 1);
    return m_memory->undoStack()->count() != steps || m_memory->undoStack()->lastSerial() != serial;
}

bool RandomSession::removeMedia()
{
    NxEngineCategory *category = anyCategory();
    return category->itemManager()->removeMediaItems(nullptr, someMedia(category));
}

bool RandomSession::removeFolder()
{
    NxEngineCategory *category = anyCategory();
    return category->folderManager()->removeFolder(anyFolder(category, true));
}

bool RandomSession::markMedia()
{
    NxEngineMedia *media = anyMedia();
    return media
           && m_memory->category(media->category())
                  ->itemManager()
                  ->setFavourite(media, !media->isFavourite());
}

bool RandomSession::markResource()
{
    NxEngineCategory *category = m_memory->category(mctAudio + below(mctTemplate));
    const auto &resources = category->resources();
    NxEngineResource *resource = resources[size_t(below(int(resources.size())))].get();
    return category->itemManager()->setFavourite(resource, !resource->isFavourite());
}

bool RandomSession::relink()
{
    NxEngineMedia *media = anyMedia();
    return media
           && m_memory->category(media->category())
                  ->itemManager()
                  ->relinkMedia(media, QStringLiteral("/elsewhere/") + name("clip")
                                           + QStringLiteral(".wav"));
}

bool RandomSession::several()
{
    const NxUndoRedoCommander scope(m_memory->undoStack(), QStringLiteral("t"),
                                    QStringLiteral("several"));
    const bool added = addFolder();
    const bool filled = addMedia();
    const bool removed = removeMedia();
    return added || filled || removed;
}

bool RandomSession::undo()
{
    return m_memory->undoStack()->undo();
}

bool RandomSession::redo()
{
    return m_memory->undoStack()->redo();
}

bool RandomSession::step()
{
    static const std::array<Choice, 26> choices = {{
        {"addMedia", &RandomSession::addMedia, 30},
        {"addFolder", &RandomSession::addFolder, 10},
        {"renameMedia", &RandomSession::renameMedia, 10},
        {"renameFolder", &RandomSession::renameFolder, 5},
        {"renameResource", &RandomSession::renameResource, 3},
        {"moveMedia", &RandomSession::moveMedia, 8},
        {"moveFolder", &RandomSession::moveFolder, 8},
        {"removeMedia", &RandomSession::removeMedia, 12},
        {"removeFolder", &RandomSession::removeFolder, 4},
        {"markMedia", &RandomSession::markMedia, 6},
        {"markResource", &RandomSession::markResource, 3},
        {"relink", &RandomSession::relink, 4},
        {"addTimeline", &RandomSession::addTimeline, 4},
        {"addComposite", &RandomSession::addComposite, 6},
        {"addClip", &RandomSession::addClip, 25},
        {"addSplitScreen", &RandomSession::addSplitScreen, 6},
        {"addInnerClip", &RandomSession::addInnerClip, 8},
        {"moveClip", &RandomSession::moveClip, 8},
        {"removeClip", &RandomSession::removeClip, 10},
        {"removeInnerClip", &RandomSession::removeInnerClip, 3},
        {"bringBackClip", &RandomSession::bringBackClip, 6},
        {"renameTimeline", &RandomSession::renameTimeline, 3},
        {"removeTimeline", &RandomSession::removeTimeline, 2},
        {"several", &RandomSession::several, 5},
        {"undo", &RandomSession::undo, 12},
        {"redo", &RandomSession::redo, 6},
    }};
    int total = 0;
    for (const Choice &choice : choices)
        total += choice.weight;
    int drawn = below(total);
    for (const Choice &choice : choices) {
        drawn -= choice.weight;
        if (drawn < 0) {
            m_operation = QLatin1String(choice.name);
            return (this->*choice.run)();
        }
    }
    return false;
}
