// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What tells the groups of a view apart, whatever the language.
///
/// A key names the kind of the group and what it stands for: so a camera that is called "None" is
/// another group than the media without a camera.
namespace NxMediaGroupKey {

/// The groups with titles of their own, in the order in which they are shown. "None" is for media
/// without a date, camera or category.
enum Fixed {
    Video,
    Photo,
    Audio,
    Other,
    Subtitle,
    BelowOneMinute,
    BelowFiveMinutes,
    BelowHalfAnHour,
    BelowOneHour,
    OneHourAndMore,
    None,
    FixedCount,
};

[[nodiscard]] QString ofFixed(Fixed group);
[[nodiscard]] QString ofDay(qint64 julianDay);
/// A text of the user's media, which is shown as it is.
[[nodiscard]] QString ofText(const QString &text);

/// The title in the user's language; empty for what is no key.
[[nodiscard]] QString title(const QString &key);
/// The title in the user's language of an English one; a text that is none as it is.
[[nodiscard]] QString translated(const QString &title);

/// Whether a group is shown before another one of the same choice.
[[nodiscard]] bool isBefore(const QString &a, const QString &b, bool descending);

} // namespace NxMediaGroupKey
