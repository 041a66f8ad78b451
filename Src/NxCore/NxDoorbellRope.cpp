// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDoorbellRope.h>

#include "NxDoorbellState_p.h"

#include <utility>

NxDoorbellRope::NxDoorbellRope(std::shared_ptr<NxDoorbellState> state) : m_state(std::move(state))
{
}

void NxDoorbellRope::ring() const
{
    if (m_state)
        m_state->ring();
}
