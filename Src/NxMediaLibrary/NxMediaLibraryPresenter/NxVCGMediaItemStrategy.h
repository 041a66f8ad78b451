// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxMediaItemStrategy.h>

#include <QPointer>

/// What belongs to the stock provider's category: it knows whose items it serves.
class NXMEDIALIBRARY_EXPORT NxVCGMediaItemStrategy : public INxMediaItemStrategy
{
public:
    NxVCGMediaItemStrategy();
    ~NxVCGMediaItemStrategy() override;

    void attach(NxMediaItemManagerPresenter *presenter) override;
    void detach() override;

    /// The presenter that is served; null while there is none, and once it died.
    [[nodiscard]] NxMediaItemManagerPresenter *presenter() const { return m_presenter; }

private:
    QPointer<NxMediaItemManagerPresenter> m_presenter;
};
