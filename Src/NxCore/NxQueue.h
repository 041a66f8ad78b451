// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <iterator>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

/// The one way data crosses threads: first in, first out, any number of threads at either end.
///
/// Every operation may be called from any thread. A closed queue takes nothing more, wakes
/// everybody who waits, and still gives out what it holds. It must outlive the threads that
/// use it. To wake the GUI thread, push first and ring an NxDoorbell afterwards.
template<typename T>
class NxQueue
{
public:
    NxQueue() = default;
    NxQueue(const NxQueue &) = delete;
    NxQueue &operator=(const NxQueue &) = delete;

    /// Appends one item and wakes one waiting thread. False when the queue is closed.
    bool push(T item)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_closed)
                return false;
            m_items.push_back(std::move(item));
        }
        m_filled.notify_one();
        return true;
    }

    /// Appends all items, with no other thread's item between them. False when closed.
    bool pushAll(std::vector<T> items)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_closed)
                return false;
            m_items.insert(m_items.end(), std::make_move_iterator(items.begin()),
                           std::make_move_iterator(items.end()));
        }
        m_filled.notify_all();
        return true;
    }

    /// Takes the oldest item, or nothing when the queue is empty. Never waits.
    [[nodiscard]] std::optional<T> tryPop()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return takeFirst();
    }

    /// Takes the oldest item, waiting for one at most that long. Nothing when the time is over,
    /// or at once when the queue is closed and empty.
    [[nodiscard]] std::optional<T> waitPop(std::chrono::milliseconds timeout)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_filled.wait_for(lock, timeout, [this] { return m_closed || !m_items.empty(); });
        return takeFirst();
    }

    /// Takes everything there is, oldest first. Never waits.
    [[nodiscard]] std::vector<T> drain()
    {
        std::deque<T> items;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            items.swap(m_items);
        }
        return std::vector<T>(std::make_move_iterator(items.begin()),
                              std::make_move_iterator(items.end()));
    }

    /// Takes no more items from now on and wakes everybody who waits.
    void close()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_closed = true;
        }
        m_filled.notify_all();
    }

    [[nodiscard]] bool isClosed() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_closed;
    }

    /// How many items wait; with other threads about, only a hint.
    [[nodiscard]] std::size_t size() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_items.size();
    }

private:
    std::optional<T> takeFirst()
    {
        if (m_items.empty())
            return std::nullopt;
        std::optional<T> item(std::move(m_items.front()));
        m_items.pop_front();
        return item;
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_filled;
    std::deque<T> m_items;
    bool m_closed = false;
};
