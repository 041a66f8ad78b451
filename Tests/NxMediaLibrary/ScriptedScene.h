// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxScene.h>
#include <NxCore/NxMessage.h>

#include <QList>

#include <functional>

/// The editor around the panel: takes every message and shows it to the test.
struct ScriptedScene final : INxScene
{
    bool onMessage(NxMessage *message) override
    {
        types.append(message->type());
        if (look)
            look(message);
        return true;
    }

    QList<int> types; ///< Of the messages that came.
    std::function<void(NxMessage *)> look;
};
