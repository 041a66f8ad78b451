// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

/// One whole change of the item model's rows: a reset, or part of the one that is under way.
class NxResetScope
{
public:
    explicit NxResetScope(NxMediaItemModel *model) : m_model(model) { m_model->beginChange(); }
    ~NxResetScope() { m_model->endChange(); }
    NxResetScope(const NxResetScope &) = delete;
    NxResetScope &operator=(const NxResetScope &) = delete;

private:
    NxMediaItemModel *const m_model; // Not owned.
};
