// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLazySingleton.h>

/// A singleton that a library and the program that loads it both use.
class nxSharedCounter : public NxLazySingleton<nxSharedCounter>
{
public:
    int count = 0;
};
