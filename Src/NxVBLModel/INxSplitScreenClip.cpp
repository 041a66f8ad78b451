// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxSplitScreenClip.h>

INxSplitScreenClip::~INxSplitScreenClip() = default;

int INxSplitScreenClip::kind() const
{
    return NXVBLMODEL::ckSplitScreen;
}
