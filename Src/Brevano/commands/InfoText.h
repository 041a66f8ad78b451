// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

class INxAbstractMediaItem;
enum class NxFootageStatus;
struct NxFootageState;

/// All that is known of one media.
namespace InfoText {

/// "Name:      clip.mov" and so on; what is not known is left out.
[[nodiscard]] QStringList lines(const INxAbstractMediaItem &media, const NxFootageState &state);
/// One JSON object; what is not known is null.
[[nodiscard]] QByteArray json(const INxAbstractMediaItem &media, const NxFootageState &state);
/// "done", "none", "failed", "waiting".
[[nodiscard]] QString statusWord(NxFootageStatus status);

} // namespace InfoText
