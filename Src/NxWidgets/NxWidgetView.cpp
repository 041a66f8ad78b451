// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxWidgetView.h>

NxWidgetView::NxWidgetView(NxUIView *parent) : QWidget(parent ? parent->widget() : nullptr) {}

NxWidgetView::~NxWidgetView() = default;

QWidget *NxWidgetView::widget()
{
    return this;
}
