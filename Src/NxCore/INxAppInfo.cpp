// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxAppInfo.h>

#include "NxAppInfo_p.h"

namespace {

INxAppInfo *installedInfo = nullptr; // Not owned.

} // namespace

INxAppInfo::~INxAppInfo() = default;

INxAppInfo *INxAppInfo::getInstance()
{
    static NxAppInfo builtIn;
    return installedInfo ? installedInfo : &builtIn;
}

void INxAppInfo::setInstance(INxAppInfo *info)
{
    installedInfo = info;
}
