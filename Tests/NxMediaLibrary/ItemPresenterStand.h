// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>

#include "PresenterStand.h"

/// A private half that does nothing at its hooks but write them down, each with the folder that is
/// then shown and the one that is then selected in the tree.
struct HookedHalf final : NxMediaItemManagerPresenterPrivate
{
    HookedHalf(INxMediaItemManager *manager, QStringList *lines)
        : NxMediaItemManagerPresenterPrivate(manager),
          written(lines)
    {
    }
    void reload() override { write("reload"); }
    void searchFolderEntered() override { write("search folder entered"); }
    void treeFolderEntered() override { write("tree folder entered"); }
    void rootChanged() override { write("root changed"); }

    void write(const char *hook)
    {
        const auto nameOf = [](const INxFolderMedia *folder) {
            return folder ? folder->name() : QStringLiteral("null");
        };
        written->append(
            QStringLiteral("%1 (%2, %3)")
                .arg(QLatin1String(hook), nameOf(rootFolder), nameOf(treeSelectedFolder)));
        if (meanwhile)
            meanwhile();
    }

    QStringList *const written; // Not owned.
    std::function<void()> meanwhile; ///< What happens at every hook.
};

class HookedItemPresenter final : public NxMediaItemManagerPresenter
{
public:
    explicit HookedItemPresenter(HookedHalf *half) : NxMediaItemManagerPresenter(*half, nullptr) {}
};

/// An item presenter over one scripted category, whose signals are followed as "items".
struct ItemPresenterStand : PresenterStand
{
    explicit ItemPresenterStand(NXVBLMODEL::NxMediaCategoryType type = NXVBLMODEL::mctMedia)
        : category(library[type])
    {
        search.searchFolder = true;
        log.follow(&presenter, QStringLiteral("items"));
    }

    ScriptedCategory &category;
    ScriptedItemFolder *const folder = category.addFolder("folder", category.section);
    ScriptedItemFolder *const other = category.addFolder("other", category.section);
    ScriptedItemFolder search{QStringLiteral("search")};
    NxMediaItemManagerPresenter presenter{&category.items, nullptr};
};

/// The same with hooks that are written down.
struct HookedStand : PresenterStand
{
    explicit HookedStand(NXVBLMODEL::NxMediaCategoryType type = NXVBLMODEL::mctMedia)
        : category(library[type])
    {
        search.searchFolder = true;
        log.follow(&presenter, QStringLiteral("items"));
    }

    ScriptedCategory &category;
    ScriptedItemFolder *const folder = category.addFolder("folder", category.section);
    ScriptedItemFolder *const other = category.addFolder("other", category.section);
    ScriptedItemFolder search{QStringLiteral("search")};
    ScriptedItemFolder loose{QStringLiteral("loose")}; ///< In no tree.
    ScriptedItemFolder looseToo{QStringLiteral("loose too")};
    HookedHalf *const half = new HookedHalf(&category.items, &log.lines);
    HookedItemPresenter presenter{half};
};
