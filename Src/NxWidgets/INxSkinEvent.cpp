// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/INxSkinEvent.h>

INxSkinEvent::~INxSkinEvent() = default;
