// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>

#include <QMap>

#include <memory>

#include "ScriptedItemManager.h"

/// The folders of a scripted category.
struct ScriptedItemFolders final : INxFolderMediaManager
{
    INxFolderMedia *rootFolder() override { return &root; }
    INxFolderMedia *folder(int folderId) override { return withId(&root, folderId); }
    INxFolderMedia *searchFolder() override { return search; }
    bool addFolder(INxFolderMedia *parent, const QString &name) override
    {
        if (calls)
            calls->append(QStringLiteral("add folder %1 to %2").arg(name, parent->name()));
        if (!refuses && !forgets)
            static_cast<ScriptedItemFolder *>(parent)->append(
                std::make_unique<ScriptedItemFolder>(trims ? name.trimmed() : name));
        return !refuses;
    }
    QList<INxAbstractMedia *> allMedia() override { return root.items(true, true); }
    bool registerObserver(INxMediaFolderEventObserver *observer) override
    {
        return observers.add(observer);
    }
    void unregisterObserver(INxMediaFolderEventObserver *observer) override
    {
        observers.remove(observer);
    }

    /// A section, whose kind is its id as well.
    ScriptedItemFolder *addSection(const QString &name, int kind)
    {
        ScriptedItemFolder *section = root.append(std::make_unique<ScriptedItemFolder>(name, kind));
        section->id = kind;
        return section;
    }
    static ScriptedItemFolder *withId(ScriptedItemFolder *folder, int folderId)
    {
        if (folder->id == folderId)
            return folder;
        for (const auto &child : folder->children) {
            if (ScriptedItemFolder *found = withId(child.get(), folderId))
                return found;
        }
        return nullptr;
    }

    ScriptedItemFolder root;
    NxObserverList<INxMediaFolderEventObserver> observers;
    INxFolderMedia *search = nullptr; // Not owned.
    bool refuses = false; ///< Whether no folder can be added.
    bool forgets = false; ///< Whether a folder that was added is not there.
    bool trims = false; ///< Whether names are kept without the blanks around them.
    QStringList *calls = nullptr; ///< Where it is written down what is asked for. Not owned.
};

/// A category that answers what a test wrote into it.
struct ScriptedCategory final : INxMediaManager
{
    explicit ScriptedCategory(NXVBLMODEL::NxMediaCategoryType type) : category(type)
    {
        items.category = type;
        items.owner = this;
        folders.root.id = NXVBLMODEL::fidHiddenRoot;
        section = folders.addSection(QStringLiteral("section"), NXVBLMODEL::fkProject);
    }

    INxFolderMediaManager *folderManager() override { return hasFolders ? &folders : nullptr; }
    INxMediaItemManager *itemManager() override { return hasItems ? &items : nullptr; }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return category; }
    void setProject(INxProject *project) override
    {
        items.note(QStringLiteral("set project"));
        projects.append(project);
    }
    bool isTimelineMedia() const override { return timelineMedia; }
    bool isTimelineResource() const override { return timelineResource; }

    /// Adds a media to a folder and tells nobody. Its id and its file are made of its name.
    ScriptedItem *list(const QString &name, ScriptedItemFolder *folder)
    {
        medias.push_back(std::make_unique<ScriptedItem>(NXVBLMODEL::mtVideoAudio, name));
        ScriptedItem *item = medias.back().get();
        item->id = QStringLiteral("id of ") + name;
        item->path = QStringLiteral("/footage/") + name;
        item->home = folder;
        folder->media.append(item);
        return item;
    }
    ScriptedItem *list(const char *name) { return list(QLatin1String(name), section); }
    ScriptedItemFolder *addFolder(const char *name, ScriptedItemFolder *into)
    {
        return into->append(std::make_unique<ScriptedItemFolder>(QLatin1String(name)));
    }
    /// Has calls written down.
    void tell(QStringList *calls)
    {
        items.calls = calls;
        folders.calls = calls;
    }

    const NXVBLMODEL::NxMediaCategoryType category;
    ScriptedItemFolders folders;
    ScriptedItemManager items;
    ScriptedItemFolder *section; ///< The section in which the category begins.
    std::vector<std::unique_ptr<ScriptedItem>> medias;
    bool hasFolders = true;
    bool hasItems = true;
    bool timelineMedia = false;
    bool timelineResource = false;
    QList<INxProject *> projects; ///< Those that were handed over. Not owned.
};

/// A library of scripted categories, which are made when a test asks for them.
struct ScriptedLibrary final : INxMediaLibrary
{
    INxMediaManager *mediaManager(NXVBLMODEL::NxMediaCategoryType category) override
    {
        return categories.value(category).get();
    }
    ScriptedCategory &operator[](NXVBLMODEL::NxMediaCategoryType category)
    {
        std::shared_ptr<ScriptedCategory> &known = categories[category];
        if (!known) {
            known = std::make_shared<ScriptedCategory>(category);
            known->tell(calls);
        }
        return *known;
    }

    QMap<int, std::shared_ptr<ScriptedCategory>> categories;
    QStringList *calls = nullptr; ///< Where categories write down what they are asked. Not owned.
};
