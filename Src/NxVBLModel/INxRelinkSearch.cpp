// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxRelinkSearch.h>

INxRelinkSearch::INxRelinkSearch(QObject *parent) : QObject(parent)
{
    qRegisterMetaType<NxRelinkReport>();
}

INxRelinkSearch::~INxRelinkSearch() = default;
