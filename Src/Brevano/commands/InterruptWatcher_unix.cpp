// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InterruptWatcher.h>

#include <NxCore/NxLog.h>

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

// Written by the signal handler, which may do no more than that.
volatile std::sig_atomic_t bellEnd = -1;

void ringBell(int)
{
    const int savedError = errno;
    const char stroke = 1;
    const ssize_t written = write(bellEnd, &stroke, sizeof stroke);
    static_cast<void>(written); // A full pipe rings already.
    errno = savedError;
}

constexpr std::array<int, 2> watchedSignals{SIGINT, SIGTERM};

} // namespace

class InterruptWatcher::Private
{
public:
    explicit Private(InterruptWatcher *watcher);
    ~Private();
    Q_DISABLE_COPY_MOVE(Private)

private:
    void install();

    std::array<int, 2> m_pipe{-1, -1};
    std::array<struct sigaction, watchedSignals.size()> m_previous{};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

InterruptWatcher::Private::Private(InterruptWatcher *watcher)
{
    if (pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        NX_LOG_ERROR("no pipe for signals: %s", std::strerror(errno));
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, watcher, [this, watcher] {
        m_notifier->setEnabled(false);
        Q_EMIT watcher->interrupted();
    });
    install();
}

void InterruptWatcher::Private::install()
{
    bellEnd = m_pipe[1];
    struct sigaction action = {};
    action.sa_handler = ringBell;
    // The second signal meets the system's own answer, which ends the process.
    action.sa_flags = SA_RESTART | int(SA_RESETHAND);
    for (size_t i = 0; i < watchedSignals.size(); ++i)
        sigaction(watchedSignals[i], &action, &m_previous[i]);
}

InterruptWatcher::Private::~Private()
{
    if (!m_notifier)
        return;
    for (size_t i = 0; i < watchedSignals.size(); ++i)
        sigaction(watchedSignals[i], &m_previous[i], nullptr);
    bellEnd = -1;
    m_notifier.reset();
    for (const int end : m_pipe)
        close(end);
}

InterruptWatcher::InterruptWatcher(QObject *parent)
    : QObject(parent),
      d(std::make_unique<Private>(this))
{
}

InterruptWatcher::~InterruptWatcher() = default;
