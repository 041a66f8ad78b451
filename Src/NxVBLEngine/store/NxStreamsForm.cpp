// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxStreamsForm.h>

#include <NxWorkerProtocol/NxWorkerMessages.h>

namespace {

/// Raised when what worker and engine say about streams changes. Files of another form are read
/// again.
constexpr char Form = 1;

} // namespace

QByteArray NxStreamsForm::packed(const NxFootageStreams &streams)
{
    return QByteArray(1, Form) + NxWorkerMessages::packedStreams(streams);
}

bool NxStreamsForm::unpack(const QByteArray &bytes, NxFootageStreams *streams)
{
    return bytes.startsWith(Form) && NxWorkerMessages::unpackStreams(bytes.mid(1), streams)
           && streams->kind != NxFootageKind::Unknown;
}
