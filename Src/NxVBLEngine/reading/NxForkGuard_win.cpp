// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxForkGuard.h>

NxForkGuard::NxForkGuard() = default;
NxForkGuard::~NxForkGuard() = default;
