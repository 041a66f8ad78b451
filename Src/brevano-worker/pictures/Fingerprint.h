// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

class FootageFile;

/// The identity of a file's contents, read from three pieces of 64 KiB: the first, the one that
/// begins at half of (size - 64 KiB), rounded down, and the last. Of files that are no longer than
/// the three together, everything. The hash is MD5 over the pieces in their order; the high half
/// is its first eight bytes, big-endian. Projects keep it: whoever changes anything here raises
/// NxFingerprint::Version. Null when the disk fails or the file got shorter.
[[nodiscard]] NxFingerprint fingerprintOf(const FootageFile &file);
