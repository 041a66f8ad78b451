// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

class INxLazySingleton;
struct NxLazySingletonSlot;

/// Knows the living lazy singletons of the process and destroys them in reverse order of their
/// creation, before the application object goes, or when the process exits without one.
/// From any thread.
class NXCORE_EXPORT NxLazySingletonManager
{
public:
    /// Destroys all that are attached. Also the reset between two tests.
    static void destroyAll();
    /// How many are attached.
    [[nodiscard]] static int count();

    static void attach(INxLazySingleton *singleton);
    static void detach(INxLazySingleton *singleton);

    /// The slot of a class by its type name; made at the first call, never moved or deleted.
    [[nodiscard]] static NxLazySingletonSlot &slot(const char *typeName);
};
