// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineTimeline.h>

NxEngineTimeline::~NxEngineTimeline() = default;
