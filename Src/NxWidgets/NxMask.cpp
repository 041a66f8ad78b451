// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMask_p.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

const QColor shade(0, 0, 0, 110);

bool isMouse(QEvent::Type type)
{
    static constexpr QEvent::Type types[] = {
        QEvent::MouseButtonPress,
        QEvent::MouseButtonRelease,
        QEvent::MouseButtonDblClick,
        QEvent::MouseMove,
        QEvent::Wheel,
        QEvent::ContextMenu,
    };
    return std::find(std::begin(types), std::end(types), type) != std::end(types);
}

} // namespace

NxMask::NxMask(QWidget *window) : QWidget(window)
{
    setGeometry(window->rect());
    window->installEventFilter(this);
    raise();
    show();
}

bool NxMask::covers(const QWidget *window)
{
    return window->findChild<NxMask *>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

bool NxMask::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

bool NxMask::event(QEvent *event)
{
    if (!isMouse(event->type()))
        return QWidget::event(event);
    event->accept();
    return true;
}

void NxMask::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), shade);
}
