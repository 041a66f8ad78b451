// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "FlowManager.h"
#include "PresenterLog.h"
#include "ScriptedEngine.h"
#include "ScriptedProject.h"
#include "ScriptedProxies.h"

struct FlowCategory final : INxMediaManager
{
    INxFolderMediaManager *folderManager() override { return nullptr; }
    INxMediaItemManager *itemManager() override { return nullptr; }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return NXVBLMODEL::mctMedia; }
    bool isTimelineMedia() const override { return servesTimelinesByFile; }
    bool isTimelineResource() const override { return servesTimelinesByResource; }

    bool servesTimelinesByFile = true;
    bool servesTimelinesByResource = false;
};

/// An item presenter and all that its questions, removals and relinks touch. Whatever happens to
/// one of them stands in one journal, in order, as does what the presenter emits.
struct FlowStand
{
    using Items = QList<INxAbstractMedia *>;

    FlowStand()
    {
        NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        engine.project = project.get();
        engine.proxies = &proxies;
        proxies.calls = &journal;
        section->managed = &category;
        presenter = std::make_unique<NxMediaItemManagerPresenter>(manager.get(), nullptr);
        log.follow(presenter.get(), QStringLiteral("presenter"));
    }
    ~FlowStand()
    {
        presenter.reset();
        NxConfig::Instance()->setStore(nullptr);
        NxAppSettings::instance()->setStore(nullptr);
    }

    /// A media in the folder.
    template<typename Item = FlowItem>
    Item *add(const char *called, int mediaType = NXVBLMODEL::mtVideoAudio)
    {
        return add<Item>(called, folder, mediaType);
    }
    template<typename Item = FlowItem>
    Item *add(const char *called, ScriptedItemFolder *into,
              int mediaType = NXVBLMODEL::mtVideoAudio)
    {
        auto made = std::make_unique<Item>(QString::fromLatin1(called), mediaType);
        Item *item = made.get();
        item->parent = into;
        into->media.append(item);
        items.push_back(std::move(made));
        return item;
    }
    /// The media of these names, in this order.
    [[nodiscard]] Items list(const char *names) const
    {
        Items wanted;
        const QStringList words = QString::fromLatin1(names).split(QLatin1Char(' '));
        for (const QString &word : words) {
            for (const auto &item : items) {
                if (item->name() == word)
                    wanted.append(item.get());
            }
        }
        return wanted;
    }
    /// The media dies without leaving its folder in the eyes of anybody.
    void kill(const INxAbstractMedia *media)
    {
        const auto place = std::find_if(items.begin(), items.end(),
                                        [media](const auto &one) { return one.get() == media; });
        folder->media.removeAll(place->get());
        items.erase(place);
    }
    /// What happened since the last call.
    QStringList takeJournal() { return log.take(); }

    PresenterLog log;
    QStringList &journal = log.lines;
    std::vector<std::unique_ptr<INxAbstractMedia>> items;
    ScriptedItemFolder root;
    ScriptedItemFolder *const section = root.append(
        std::make_unique<ScriptedItemFolder>(QStringLiteral("section"), NXVBLMODEL::fkProject));
    ScriptedItemFolder *folder =
        section->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("folder")));
    FlowCategory category;
    ScriptedProxies proxies;
    std::unique_ptr<ScriptedProject> project = std::make_unique<ScriptedProject>(&journal);
    std::unique_ptr<FlowManager> manager = std::make_unique<FlowManager>(&journal);
    ScriptedEngine engine;
    const NxMediaEngineDoor door{&engine};
    std::unique_ptr<NxMediaItemManagerPresenter> presenter;
};
