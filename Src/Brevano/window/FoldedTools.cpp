// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FoldedTools.h>

#include <Brevano/window/ToolIcons.h>

#include <QToolBar>
#include <QToolButton>

QToolButton *FoldedTools::button(const QToolBar *bar)
{
    return bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
}

void FoldedTools::prepare(const QToolBar *bar, const QString &name)
{
    QToolButton *folded = button(bar);
    if (!folded)
        return;
    folded->setFocusPolicy(Qt::TabFocus);
    folded->setIcon(ToolIcons::icon(ToolIcons::Id::More));
    folded->setAccessibleName(name);
    folded->setToolTip(name);
}
