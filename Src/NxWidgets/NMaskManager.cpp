// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NMaskManager.h>

NMaskManager *NMaskManager::GetInstance()
{
    static NMaskManager manager;
    return &manager;
}

bool NMaskManager::IsMaskVisible() const
{
    return m_scopes > 0;
}
