// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/INxSkinEventHandler.h>
#include <NxWidgets/NxSkinStyle.h>

#include <functional>
#include <utility>

/// Counts the new skins it hears of, and does something each time.
class SkinListener : public INxSkinEventHandler
{
public:
    explicit SkinListener(std::function<void()> deed = {}) : m_deed(std::move(deed))
    {
        NxSkinStyle::instance()->Attach(this);
    }
    ~SkinListener() override { NxSkinStyle::instance()->Detach(this); }

    void OnSkinChangedEvent(INxSkinEvent *event) override
    {
        ++told;
        isLatestChange = event->isSkinChanged();
        found = NxSkinStyle::instance()->skin();
        if (m_deed)
            m_deed();
    }

    int told = 0;
    bool isLatestChange = false;
    NxSkin found = NxSkin::Dark; // When it was told last.

private:
    Q_DISABLE_COPY_MOVE(SkinListener)
    const std::function<void()> m_deed;
};
