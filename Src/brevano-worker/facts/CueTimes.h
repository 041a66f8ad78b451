// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

/// The times at which the texts of subtitles and lyrics are shown.
namespace CueTimes {

/// The latest end of a subtitle ("00:00:01,000 --> 00:00:02,500"), or, where there is none, the
/// latest time of a line of lyrics ("[00:05.50]"), in microseconds. Nothing when the text is
/// neither. A subtitle that ends before it begins does not count.
[[nodiscard]] std::optional<qint64> endUs(const QString &text);

} // namespace CueTimes
