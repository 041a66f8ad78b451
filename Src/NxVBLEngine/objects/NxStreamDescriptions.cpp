// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxStreamDescriptions.h>

#include <NxWorkerProtocol/NxWorkerMessages.h>

const NxStreamDescription *NxStreamDescriptions::of(const NxFootageStreams &streams)
{
    const QByteArray key = NxWorkerMessages::packedStreams(streams);
    return &m_descriptions.try_emplace(key, streams).first->second;
}
