// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxLogFile_p.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

class NxLogCapture;

class NxLogPrivate
{
public:
    std::mutex mutex; // Guards captures and file.
    std::vector<NxLogCapture *> captures; // Each takes itself out when it dies.
    std::shared_ptr<NxLogFile> file; // Null: lines are not written down.
    std::atomic<bool> errorsOnStandardError{false};
};
