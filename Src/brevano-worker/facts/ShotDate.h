// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <initializer_list>

/// Dates as cameras write them, in ms since 1970 (UTC); NxNoFootageTime for what is no date.
namespace ShotDate {

/// "2024-05-01T12:00:00+0200", "2024-05-01T10:00:00.000000Z". Without a zone: UTC.
[[nodiscard]] qint64 ofContainer(const QString &text);
/// "2024:05:01 12:00:00" and "+02:00". Without an offset: the time zone of this computer.
[[nodiscard]] qint64 ofExif(const QString &text, const QString &offset);

/// The first that lies between 1970 and tomorrow: cameras whose clock was never set write others.
[[nodiscard]] qint64 firstSane(std::initializer_list<qint64> dates);

} // namespace ShotDate
