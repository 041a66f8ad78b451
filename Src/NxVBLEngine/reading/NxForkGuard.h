// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QtGlobal>

/// While it lives, what this thread starts ends with it, even before it has become a program of its
/// own.
///
/// A child that was forked holds all that the editor holds, the lock of the project among it, and
/// waits for a word of its parent before it runs its program. An editor that is killed in this
/// moment would leave it waiting for ever, and the project locked. On Linux only; elsewhere it does
/// nothing. Not to be nested.
class NXVBLENGINE_TEST_EXPORT NxForkGuard
{
    Q_DISABLE_COPY_MOVE(NxForkGuard)
public:
    NxForkGuard();
    ~NxForkGuard();
};
