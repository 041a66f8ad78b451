// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDoorbell.h>

#include "NxDoorbellState_p.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace {

QEvent::Type ringEvent()
{
    static const int type = QEvent::registerEventType();
    return QEvent::Type(type);
}

} // namespace

void NxDoorbellState::ring()
{
    if (rung.exchange(true))
        return;
    const std::lock_guard<std::mutex> lock(mutex);
    if (bell)
        QCoreApplication::postEvent(bell, new QEvent(ringEvent()));
}

NxDoorbell::NxDoorbell(std::function<void()> handler, QObject *parent)
    : QObject(parent),
      d(std::make_shared<NxDoorbellState>())
{
    Q_ASSERT(handler);
    ringEvent(); // Registered before another thread can need it.
    d->handler = std::move(handler);
    d->bell = this;
}

NxDoorbell::~NxDoorbell()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->bell = nullptr;
}

void NxDoorbell::ring()
{
    d->ring();
}

NxDoorbellRope NxDoorbell::rope() const
{
    return NxDoorbellRope(d);
}

bool NxDoorbell::event(QEvent *event)
{
    {
        // The ringing thread made the event under this lock; only now it may be looked at.
        const std::lock_guard<std::mutex> lock(d->mutex);
    }
    if (event->type() != ringEvent())
        return QObject::event(event);

    const std::shared_ptr<NxDoorbellState> state = d; // The handler may destroy this bell.
    state->rung.exchange(false);
    state->handler();
    return true;
}
