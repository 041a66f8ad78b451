// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxStockMediaItem.h>

INxStockMediaItem::~INxStockMediaItem() = default;

QSize INxStockMediaItem::frameSize() const
{
    return {};
}

QString INxStockMediaItem::title() const
{
    return {};
}

QString INxStockMediaItem::tags() const
{
    return {};
}

int INxStockMediaItem::provider() const
{
    return 0;
}

int INxStockMediaItem::orientation() const
{
    return 0;
}

int INxStockMediaItem::format() const
{
    return 0;
}
