// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxVCGMediaItem.h>

INxVCGMediaItem::~INxVCGMediaItem() = default;

bool INxVCGMediaItem::isOnline() const
{
    return true;
}

bool INxVCGMediaItem::isNotAvailable() const
{
    return true;
}

int INxVCGMediaItem::stateCode() const
{
    return NXVBLMODEL::vrsNotRequested;
}

bool INxVCGMediaItem::isPreviewAvailable() const
{
    return false;
}

int INxVCGMediaItem::mediaCount() const
{
    return 0;
}

QString INxVCGMediaItem::mediaPath(int) const
{
    return {};
}

QSize INxVCGMediaItem::frameSize() const
{
    return {};
}
