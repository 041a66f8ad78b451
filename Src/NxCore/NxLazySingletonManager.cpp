// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLazySingletonManager.h>

#include <NxCore/INxLazySingleton.h>
#include <NxCore/NxLazySingletonSlot.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

struct Registry
{
    std::mutex mutex;
    std::vector<INxLazySingleton *> living; // In order of creation.
    std::unordered_map<std::string, std::unique_ptr<NxLazySingletonSlot>> slots;
    bool beforeApplicationGoes = false; // Whether the application object will call us.
};

Registry &registry()
{
    // Never destroyed: singletons are released until the very end of the process.
    static Registry *const instance = new Registry;
    return *instance;
}

INxLazySingleton *newest()
{
    const std::lock_guard<std::mutex> lock(registry().mutex);
    return registry().living.empty() ? nullptr : registry().living.back();
}

void destroyWithApplication()
{
    {
        const std::lock_guard<std::mutex> lock(registry().mutex);
        registry().beforeApplicationGoes = false; // Qt forgets its routines after calling them.
    }
    NxLazySingletonManager::destroyAll();
}

} // namespace

void NxLazySingletonManager::destroyAll()
{
    while (INxLazySingleton *singleton = newest()) {
        singleton->destory();
        detach(singleton); // Even if its hook did not: the address is never used again.
    }
}

int NxLazySingletonManager::count()
{
    const std::lock_guard<std::mutex> lock(registry().mutex);
    return int(registry().living.size());
}

void NxLazySingletonManager::attach(INxLazySingleton *singleton)
{
    [[maybe_unused]] static const int atExit = std::atexit(&NxLazySingletonManager::destroyAll);
    bool askApplication = false;
    {
        const std::lock_guard<std::mutex> lock(registry().mutex);
        registry().living.push_back(singleton);
        askApplication = !registry().beforeApplicationGoes && QCoreApplication::instance();
        registry().beforeApplicationGoes |= askApplication;
    }
    if (askApplication)
        qAddPostRoutine(destroyWithApplication);
}

void NxLazySingletonManager::detach(INxLazySingleton *singleton)
{
    const std::lock_guard<std::mutex> lock(registry().mutex);
    auto &living = registry().living;
    living.erase(std::remove(living.begin(), living.end(), singleton), living.end());
}

NxLazySingletonSlot &NxLazySingletonManager::slot(const char *typeName)
{
    const std::lock_guard<std::mutex> lock(registry().mutex);
    std::unique_ptr<NxLazySingletonSlot> &place = registry().slots[typeName];
    if (!place)
        place = std::make_unique<NxLazySingletonSlot>();
    return *place;
}
