// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// The absolute path of the file this library was loaded from; empty when the system does not say.
[[nodiscard]] QString nxModulePath();
