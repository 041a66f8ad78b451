// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ViewChoice.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/ViewWords.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

using namespace NXMEDIALIBRARY;

namespace {

NxMediaItemViewSortOrder turned(NxMediaItemViewSortOrder order)
{
    return order == soASC ? soDESC : soASC;
}

NXVBLMODEL::VCGMediaType providersTypeOf(NxMediaTypeFilter type)
{
    switch (type) {
    case mtfVideo:
        return NXVBLMODEL::vmtVideo;
    case mtfPhoto:
        return NXVBLMODEL::vmtImage;
    case mtfAudio:
        return NXVBLMODEL::vmtAudio;
    default:
        return NXVBLMODEL::vmtNone;
    }
}

void setType(NxMediaItemViewFilter *filter, NxMediaTypeFilter type)
{
    filter->type = type;
    filter->mediaType = providersTypeOf(type);
}

/// What the category showed last.
void fillIn(ViewChoice *choice)
{
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    choice->mode = setting->GetViewType(choice->category);
    choice->sort = {setting->GetSortBy(choice->category),
                    setting->GetSortByOrder(choice->category)};
    choice->group.groupBy = setting->GetGroupBy(choice->category);
    choice->group.order = setting->GetGroupByOrder(choice->category);
    setType(&choice->filter, setting->GetFilterType(choice->category));
}

NxResult<void> readMode(const CommandLine &line, NxMediaItemViewMode *mode)
{
    const std::optional<QString> word = line.value(CommandOptions::view);
    if (!word)
        return {};
    const NxResult<NxMediaItemViewMode> known = ViewWords::view(*word);
    if (!known)
        return known.error();
    *mode = *known;
    return {};
}

NxResult<void> readSort(const CommandLine &line, NxMediaItemViewSort *sort)
{
    if (const std::optional<QString> word = line.value(CommandOptions::sort)) {
        const NxResult<NxMediaItemViewSortBy> key = ViewWords::sortKey(*word);
        if (!key)
            return key.error();
        *sort = {*key, soASC};
    }
    if (line.has(CommandOptions::desc))
        sort->order = turned(sort->order);
    return {};
}

NxResult<void> readGroup(const CommandLine &line, NxMediaItemViewGroup *group)
{
    if (const std::optional<QString> word = line.value(CommandOptions::group)) {
        const NxResult<NxMediaItemViewGroupBy> key = ViewWords::groupKey(*word);
        if (!key)
            return key.error();
        *group = {*key, soASC, nullptr};
    }
    if (line.has(CommandOptions::groupDesc))
        group->order = turned(group->order);
    return {};
}

NxResult<void> readFilter(const CommandLine &line, NxMediaItemViewFilter *filter)
{
    if (const std::optional<QString> word = line.value(CommandOptions::type)) {
        const NxResult<NxMediaTypeFilter> type = ViewWords::type(*word);
        if (!type)
            return type.error();
        setType(filter, *type);
    }
    filter->keyword = line.value(CommandOptions::search).value_or(QString());
    filter->searchMode = filter->keyword.isEmpty() ? esmNone : esmKeyword;
    return {};
}

} // namespace

NxResult<ViewChoice> ViewChoice::of(const CommandLine &line)
{
    ViewChoice choice;
    if (const std::optional<QString> word = line.value(CommandOptions::category)) {
        const NxResult<NXVBLMODEL::NxMediaCategoryType> category = ViewWords::category(*word);
        if (!category)
            return category.error();
        choice.category = *category;
    }
    fillIn(&choice);
    for (const NxResult<void> &read :
         {readMode(line, &choice.mode), readSort(line, &choice.sort),
          readGroup(line, &choice.group), readFilter(line, &choice.filter)}) {
        if (!read)
            return read.error();
    }
    return choice;
}
