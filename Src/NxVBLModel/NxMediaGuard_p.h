// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class INxAbstractMedia;

/// What the references to one media share: its address, cleared when it dies.
struct NxMediaGuard
{
    INxAbstractMedia *media = nullptr;
    int references = 0; // The media itself counts as one while it lives.

    /// The guard of a media, made on the first call.
    static NxMediaGuard *of(INxAbstractMedia *media);
    /// Gives back one reference; the last one deletes the guard.
    static void drop(NxMediaGuard *guard);
};
