// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxResourceInfo.h>

INxResourceInfo::~INxResourceInfo() = default;

int INxResourceInfo::paymentType() const
{
    return NXVBLMODEL::ptFree;
}

int INxResourceInfo::attribute() const
{
    return NXVBLMODEL::raNone;
}

int INxResourceInfo::category() const
{
    return NXVBLMODEL::mctNone;
}

QString INxResourceInfo::name() const
{
    return {};
}
