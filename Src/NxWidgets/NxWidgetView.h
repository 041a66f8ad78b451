// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxUIView.h>
#include <NxWidgets/NxWidgetsExport.h>

#include <QWidget>

/// Base of views that are widgets themselves.
class NXWIDGETS_EXPORT NxWidgetView : public QWidget, public NxUIView
{
    Q_OBJECT
public:
    /// A child of the parent view's widget, which owns it; a window of its own without a parent.
    explicit NxWidgetView(NxUIView *parent = nullptr);
    ~NxWidgetView() override;

    [[nodiscard]] QWidget *widget() override;
};
