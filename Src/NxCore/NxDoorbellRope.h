// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <memory>

struct NxDoorbellState;

/// The rope of a doorbell: what a worker thread keeps, because it may outlive the bell.
/// Copies are cheap and ring the same bell; one whose bell is gone rings nothing.
class NXCORE_EXPORT NxDoorbellRope
{
public:
    NxDoorbellRope() = default;

    /// Asks for one delivery on the bell's thread. From any thread; never blocks for long.
    void ring() const;

private:
    friend class NxDoorbell;
    explicit NxDoorbellRope(std::shared_ptr<NxDoorbellState> state);

    std::shared_ptr<NxDoorbellState> m_state;
};
