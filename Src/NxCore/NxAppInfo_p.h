// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxAppInfo.h>

/// The answers of a process whose host has none of its own.
class NxAppInfo : public INxAppInfo
{
public:
    [[nodiscard]] QString getDirectory(int pathKind) override;
};
