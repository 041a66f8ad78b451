// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>
#include <NxCore/NxDoorbellRope.h>

#include <QObject>

#include <functional>
#include <memory>

struct NxDoorbellState;

/// Tells the thread it lives on that another thread has put something into an NxQueue.
///
/// A ring carries no data: it posts one bare event, and rings that come before the event is
/// delivered are the same ring. The flag is lowered before the handler runs, so a ring during the
/// handler is never lost: push first, then ring, and the handler sees the item now or next time.
/// Made, destroyed and answered on one thread, which needs an event loop.
class NXCORE_EXPORT NxDoorbell : public QObject
{
    Q_OBJECT
public:
    /// The handler runs on this thread, once per delivery. It may destroy the bell.
    explicit NxDoorbell(std::function<void()> handler, QObject *parent = nullptr);
    ~NxDoorbell() override;

    /// As NxDoorbellRope::ring(), for threads that surely end before the bell.
    void ring();
    /// A rope for a thread that may outlive the bell.
    [[nodiscard]] NxDoorbellRope rope() const;

    bool event(QEvent *event) override;

private:
    const std::shared_ptr<NxDoorbellState> d;
};
