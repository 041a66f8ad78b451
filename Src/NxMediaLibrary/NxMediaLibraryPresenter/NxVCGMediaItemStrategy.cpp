// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxVCGMediaItemStrategy.h>

NxVCGMediaItemStrategy::NxVCGMediaItemStrategy() = default;

NxVCGMediaItemStrategy::~NxVCGMediaItemStrategy() = default;

void NxVCGMediaItemStrategy::attach(NxMediaItemManagerPresenter *presenter)
{
    m_presenter = presenter;
}

void NxVCGMediaItemStrategy::detach()
{
    m_presenter.clear();
}
