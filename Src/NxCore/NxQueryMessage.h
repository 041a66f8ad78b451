// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>

/// Asks the scene for a number, which stands in `result` when the call returns.
class NXCORE_EXPORT NxQueryMessage : public NxMessage
{
public:
    /// @param code one of NxQueryCode.
    explicit NxQueryMessage(int code);
    ~NxQueryMessage() override;

    const int queryCode;
    int result = 0; ///< Filled in by the scene; 0 when nobody answers.
};
