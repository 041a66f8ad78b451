// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxLazySingleton.h>
#include <NxCore/NxLazySingletonManager.h>
#include <NxCore/NxLazySingletonSlot.h>

#include <cstdlib>
#include <typeinfo>

/// Base of a class of which the process has one object, made when it is first asked for:
///
///     class Cache : public NxLazySingleton<Cache> { ... };
///     Cache *cache = NxLazySingleton<Cache>::instance();
///
/// T needs a default constructor (it may be private with NxLazySingleton<T> as friend). The one
/// object is the same in every library of the process. instance(), isActive() and release() may
/// be called from any thread; what T does itself is T's affair. T's constructor may use other
/// singletons, which then outlive it, but never its own instance().
template<typename T>
class NxLazySingleton : public INxLazySingleton
{
public:
    /// The object, made by the first caller.
    static T *instance();
    /// Whether the object exists.
    [[nodiscard]] static bool isActive();
    /// Destroys the object; the next instance() makes a new one. No caller may still use it.
    static void release();

    void destory() override { release(); }
    [[nodiscard]] bool attachManager() const override { return true; }

protected:
    NxLazySingleton() = default;
    NxLazySingleton(const NxLazySingleton &) = delete;
    NxLazySingleton &operator=(const NxLazySingleton &) = delete;

private:
    static NxLazySingletonSlot &slot();
    static T *create(NxLazySingletonSlot &place);
};

template<typename T>
NxLazySingletonSlot &NxLazySingleton<T>::slot()
{
    static NxLazySingletonSlot &place = NxLazySingletonManager::slot(typeid(T).name());
    return place;
}

template<typename T>
T *NxLazySingleton<T>::instance()
{
    NxLazySingletonSlot &place = slot();
    if (void *object = place.instance.load(std::memory_order_acquire))
        return static_cast<T *>(object);
    return create(place);
}

template<typename T>
T *NxLazySingleton<T>::create(NxLazySingletonSlot &place)
{
    const std::lock_guard<std::mutex> lock(place.mutex);
    if (void *object = place.instance.load(std::memory_order_relaxed))
        return static_cast<T *>(object);

    T *made = new T;
    INxLazySingleton *base = made;
    if (base->attachManager())
        NxLazySingletonManager::attach(base);
    else [[maybe_unused]]
        static const int registered = std::atexit(&NxLazySingleton<T>::release);
    place.instance.store(made, std::memory_order_release);
    return made;
}

template<typename T>
bool NxLazySingleton<T>::isActive()
{
    return slot().instance.load(std::memory_order_acquire) != nullptr;
}

template<typename T>
void NxLazySingleton<T>::release()
{
    T *object = nullptr;
    {
        NxLazySingletonSlot &place = slot();
        const std::lock_guard<std::mutex> lock(place.mutex);
        object = static_cast<T *>(place.instance.exchange(nullptr, std::memory_order_acq_rel));
    }
    if (!object)
        return;
    NxLazySingletonManager::detach(object);
    delete object;
}
