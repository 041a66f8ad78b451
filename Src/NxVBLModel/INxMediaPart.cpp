// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaPart.h>

INxMediaPart::~INxMediaPart() = default;

bool INxMediaPart::isPart(int kind) const
{
    return partKind() == kind;
}
