// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

class QWidget;

/// What a presenter knows about the view it serves: the widget that dialogs are shown over.
class NXCORE_EXPORT NxUIView
{
public:
    virtual ~NxUIView();

    /// The view's widget; not null, owned by the view.
    [[nodiscard]] virtual QWidget *widget() = 0;
};
