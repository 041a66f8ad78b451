// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InterruptWatcher.h>

#include <NxCore/NxLog.h>

#include <atomic>

#include <windows.h>

namespace {

std::atomic<InterruptWatcher *> watching{nullptr};

BOOL WINAPI onControl(DWORD)
{
    InterruptWatcher *watcher = watching.exchange(nullptr);
    if (!watcher)
        return FALSE; // The second request: the system ends the process.
    QMetaObject::invokeMethod(watcher, &InterruptWatcher::interrupted, Qt::QueuedConnection);
    return TRUE;
}

} // namespace

class InterruptWatcher::Private
{
public:
    explicit Private(InterruptWatcher *watcher)
    {
        watching = watcher;
        if (!SetConsoleCtrlHandler(onControl, TRUE))
            NX_LOG_ERROR("no handler for Ctrl-C: error %lu", GetLastError());
    }
    ~Private()
    {
        watching = nullptr;
        SetConsoleCtrlHandler(onControl, FALSE);
    }
    Q_DISABLE_COPY_MOVE(Private)
};

InterruptWatcher::InterruptWatcher(QObject *parent)
    : QObject(parent),
      d(std::make_unique<Private>(this))
{
}

InterruptWatcher::~InterruptWatcher() = default;
