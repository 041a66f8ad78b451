// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

/// The absolute path of the library or program that holds a piece of code or static data, as it
/// was loaded; empty when the system does not say. Any thread.
[[nodiscard]] NXCORE_EXPORT QString nxModulePath(const void *inside);
