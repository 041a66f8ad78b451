// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxMaskScope.h>

#include "NxMask_p.h"

#include <NxWidgets/NMaskManager.h>

#include <QApplication>

namespace {

bool isToBeDimmed(const QWidget *window, const QWidget *bright)
{
    const Qt::WindowType type = window->windowType();
    const bool isRealWindow = type == Qt::Window || type == Qt::Dialog || type == Qt::Tool;
    return isRealWindow && window->isVisible() && window != bright && !NxMask::covers(window);
}

} // namespace

NxMaskScope::NxMaskScope(const QWidget *bright)
{
    ++NMaskManager::GetInstance()->m_scopes;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (isToBeDimmed(window, bright))
            m_masks.append(new NxMask(window));
    }
}

NxMaskScope::~NxMaskScope()
{
    for (const QPointer<QWidget> &mask : qAsConst(m_masks))
        delete mask; // Null when the window went first.
    --NMaskManager::GetInstance()->m_scopes;
}
