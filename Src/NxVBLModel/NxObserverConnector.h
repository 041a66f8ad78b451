// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxVBLModelExport.h>

#include <memory>

/// Keeps an observer registered for as long as it lives.
class NXVBLMODEL_EXPORT NxObserverConnector
{
public:
    NxObserverConnector() = default;
    virtual ~NxObserverConnector();
    NxObserverConnector(const NxObserverConnector &) = delete;
    NxObserverConnector &operator=(const NxObserverConnector &) = delete;

    /// False when the manager refused the observer, or died.
    [[nodiscard]] virtual bool isConnected() const = 0;
};

/// Registers `Observer` with `Manager` and unregisters it when destroyed.
///
/// Neither is owned. The manager may die first: its lifeToken() tells.
template<typename Manager, typename Observer>
class NxObserverConnectorT : public NxObserverConnector
{
public:
    NxObserverConnectorT(Manager *manager, Observer *observer)
        : m_manager(manager),
          m_observer(observer)
    {
        if (manager && observer && manager->registerObserver(observer))
            m_managerLife = manager->lifeToken();
    }
    ~NxObserverConnectorT() override
    {
        if (isConnected())
            m_manager->unregisterObserver(m_observer);
    }
    [[nodiscard]] bool isConnected() const override { return !m_managerLife.expired(); }

private:
    Manager *const m_manager; // Not owned.
    Observer *const m_observer; // Not owned.
    std::weak_ptr<void> m_managerLife; // Empty when the registration was refused.
};
