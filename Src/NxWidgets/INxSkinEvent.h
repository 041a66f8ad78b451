// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

#include <QtGlobal>

/// Tells what happened to the skin.
class NXWIDGETS_EXPORT INxSkinEvent
{
public:
    virtual ~INxSkinEvent();

    /// Whether pictures and colours are others than before.
    [[nodiscard]] virtual bool isSkinChanged() const = 0;

protected:
    INxSkinEvent() = default;

private:
    Q_DISABLE_COPY_MOVE(INxSkinEvent)
};
