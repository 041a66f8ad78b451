// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

/// Something that NxLazySingletonManager destroys at shutdown.
class NXCORE_EXPORT INxLazySingleton
{
public:
    virtual ~INxLazySingleton();

    /// The manager's hook: destroys the instance.
    virtual void destory() = 0;
    /// Whether the manager destroys the instance; otherwise it goes at process exit.
    [[nodiscard]] virtual bool attachManager() const = 0;
};
