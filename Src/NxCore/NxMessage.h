// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QtGlobal>

/// Base of everything that travels between the panel and the rest of the editor.
///
/// A message lives on its sender's stack for the length of one synchronous call; a receiver finds
/// its class with dynamic_cast, may fill in the answer fields, and never keeps its address.
class NXCORE_EXPORT NxMessage
{
public:
    /// @param type one of NxMessageType, or a code of the host's own.
    explicit NxMessage(int type);
    virtual ~NxMessage();

    [[nodiscard]] int type() const { return m_type; }

private:
    Q_DISABLE_COPY_MOVE(NxMessage)

    const int m_type;
};
