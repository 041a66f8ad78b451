// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

class NxMediaItemManagerPresenter;

/// What an item presenter does differently for a particular source of items. Held by the
/// presenter through a shared pointer.
class NXVBLMODEL_EXPORT INxMediaItemStrategy
{
public:
    virtual ~INxMediaItemStrategy();

    /// The strategy may keep the presenter weakly, until detach().
    virtual void attach(NxMediaItemManagerPresenter *presenter) = 0;
    virtual void detach() = 0;
};
