// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <algorithm>
#include <vector>

/// The observers of a manager, told one after the other in the order of their registration: what
/// an engine's managers keep.
///
/// Observers may come and go while they are being told: one that leaves is not told any more, one
/// that comes is told from the next event on. None is owned.
template<typename Observer>
class NxObserverList
{
public:
    /// False, and nothing done, for null and for an observer that is registered already.
    bool add(Observer *observer)
    {
        if (!observer || contains(observer))
            return false;
        m_observers.push_back(observer);
        return true;
    }

    /// An observer that is not registered is ignored.
    void remove(Observer *observer)
    {
        const auto place = std::find(m_observers.begin(), m_observers.end(), observer);
        if (!observer || place == m_observers.end())
            return;
        if (m_depth > 0)
            *place = nullptr; // Whoever is telling walks over this list.
        else
            m_observers.erase(place);
    }

    [[nodiscard]] bool isEmpty() const
    {
        return std::all_of(m_observers.begin(), m_observers.end(),
                           [](const Observer *observer) { return !observer; });
    }

    /// True while observers are being told of something.
    [[nodiscard]] bool isTelling() const { return m_depth > 0; }

    /// Calls `what` with each observer. Events may be told while one is being told.
    template<typename Tell>
    void tell(const Tell &what)
    {
        ++m_depth;
        const size_t count = m_observers.size();
        for (size_t i = 0; i < count; ++i) {
            if (Observer *observer = m_observers[i])
                what(observer);
        }
        if (--m_depth == 0) {
            m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), nullptr),
                              m_observers.end());
        }
    }

private:
    bool contains(Observer *observer) const
    {
        return std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end();
    }

    std::vector<Observer *> m_observers;
    int m_depth = 0;
};
