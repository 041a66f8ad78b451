// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemFilterFactory.h>

#include <NxMediaLibrary/NxMediaDataModel/NxStockMediaItemFilter.h>
#include <NxMediaLibrary/NxMediaDataModel/NxVCGMediaItemFilter.h>

std::unique_ptr<INxMediaItemFilter> NxMediaItemFilterFactory::createMediaItemFilter()
{
    return std::make_unique<NxMediaItemFilter>();
}

std::unique_ptr<INxMediaItemFilter> NxMediaItemFilterFactory::createStockMediaItemFilter()
{
    return std::make_unique<NxStockMediaItemFilter>();
}

std::unique_ptr<INxMediaItemFilter> NxMediaItemFilterFactory::createVCGMediaItemFilter()
{
    return std::make_unique<NxVCGMediaItemFilter>();
}
