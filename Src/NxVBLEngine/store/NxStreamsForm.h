// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QByteArray>

/// The form in which a project keeps what files of one camera share: a byte that names the form,
/// and what the form says.
namespace NxStreamsForm {

[[nodiscard]] NXVBLENGINE_TEST_EXPORT QByteArray packed(const NxFootageStreams &streams);
/// False for another form, for bytes that are none, and for streams of no known kind.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool unpack(const QByteArray &bytes,
                                                  NxFootageStreams *streams);

} // namespace NxStreamsForm
