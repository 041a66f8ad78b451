// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineCategory.h>

#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineFolderManager.h>
#include <NxVBLEngine/objects/NxEngineItemManager.h>
#include <NxVBLEngine/objects/NxEngineResource.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLEngine/objects/NxResourceCatalogue.h>

using namespace NXVBLMODEL;

NxEngineCategory::NxEngineCategory(NxProjectMemory *memory, NxMediaCategoryType category)
    : m_memory(memory),
      m_category(category),
      m_root(std::make_unique<NxEngineFolder>(this)),
      m_folderManager(std::make_unique<NxEngineFolderManager>(this)),
      m_itemManager(std::make_unique<NxEngineItemManager>(this))
{
    makeSections();
    makeResources();
}

NxEngineCategory::~NxEngineCategory() = default;

void NxEngineCategory::makeSections()
{
    qint64 place = 1;
    const QVector<NxSectionEntry> sections = NxResourceCatalogue::sections(m_category);
    for (const NxSectionEntry &entry : sections) {
        auto made = std::make_unique<NxEngineFolder>(this, entry);
        made->setPlace(place++);
        m_root->insertChild(made.get());
        m_folders.emplace(entry.id, std::move(made));
    }
}

void NxEngineCategory::makeResources()
{
    const QVector<NxResourceEntry> entries = NxResourceCatalogue::resources(m_category);
    for (const NxResourceEntry &entry : entries) {
        m_resources.push_back(std::make_unique<NxEngineResource>(entry));
        folder(entry.section)->insertItem(m_resources.back().get());
    }
}

NxEngineFolder *NxEngineCategory::folder(int id) const
{
    if (id == fidHiddenRoot)
        return m_root.get();
    // The stock provider begins at its home, which has another id.
    const int wanted = m_category == mctVCGStock && id == fidRoot ? int(fkStockHome) : id;
    const auto found = m_folders.find(wanted);
    return found == m_folders.end() ? nullptr : found->second.get();
}

NxEngineFolder *NxEngineCategory::section(int kind) const
{
    for (NxEngineFolder *candidate : m_root->children()) {
        if (candidate->isKind(kind))
            return candidate;
    }
    return nullptr;
}

NxEngineFolder *NxEngineCategory::insertFolder(const NxFolderRecord &record)
{
    NxEngineFolder *parent = folder(record.parent);
    if (!parent)
        return nullptr;
    const int kind = m_category == mctMedia ? fkNone : fkCustom;
    auto made = std::make_unique<NxEngineFolder>(this, record, kind);
    NxEngineFolder *added = made.get();
    m_folders.emplace(record.id, std::move(made));
    parent->insertChild(added);
    return added;
}

std::unique_ptr<NxEngineFolder> NxEngineCategory::takeFolder(NxEngineFolder *folder)
{
    folder->parentEngineFolder()->takeChild(folder);
    const auto found = m_folders.find(folder->folderId());
    std::unique_ptr<NxEngineFolder> taken = std::move(found->second);
    m_folders.erase(found);
    return taken;
}

NxEngineItem *NxEngineCategory::findItem(qint64 id) const
{
    if (NxEngineResource *resource = m_memory->resource(id))
        return resource->category() == m_category ? resource : nullptr;
    NxEngineMedia *media = m_memory->media(id);
    return media && media->folder() && media->category() == m_category ? media : nullptr;
}

NxEngineItem *NxEngineCategory::findItemByPath(const QString &path) const
{
    return m_memory->mediaByPath(path, m_category);
}

INxFolderMediaManager *NxEngineCategory::folderManager()
{
    return m_folderManager.get();
}

INxMediaItemManager *NxEngineCategory::itemManager()
{
    return m_itemManager.get();
}

void NxEngineCategory::setProject(INxProject *)
{
    m_memory->flush(); // Media record themselves as they are added; this hands on what waits.
}

bool NxEngineCategory::isTimelineMedia() const
{
    return m_category == mctMedia;
}

bool NxEngineCategory::isTimelineResource() const
{
    return m_category > mctMedia && m_category <= mctVCGStock;
}
