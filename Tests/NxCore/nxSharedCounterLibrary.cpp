// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "nxSharedCounter.h"

#include <QtGlobal>

/// Counts once, as this library sees the counter.
extern "C" Q_DECL_EXPORT int nxCountInLibrary()
{
    return ++NxLazySingleton<nxSharedCounter>::instance()->count;
}
