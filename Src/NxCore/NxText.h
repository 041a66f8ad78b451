// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QByteArray>
#include <QString>

#include <optional>

/// Texts that people and programs read outside the panel: reports, listings, logs.
class NXCORE_EXPORT NxText
{
public:
    /// A moment in milliseconds since 1970 as UTC: "2026-11-21T09:52:38Z", with ".123" before the
    /// Z only when the milliseconds are not 0. Empty beyond the years 0 to 9999.
    [[nodiscard]] static QString isoUtc(qint64 msecsSinceEpoch);

    /// The moment that an ISO 8601 text with a zone ("Z", "+02:00") names, in milliseconds since
    /// 1970. Nothing when the text is not one, or names no zone.
    [[nodiscard]] static std::optional<qint64> parseIsoUtc(const QString &text);

    /// True when the bytes are well-formed UTF-8: no overlong forms, no surrogates.
    [[nodiscard]] static bool isUtf8(const QByteArray &bytes);

    /// A file name's bytes as something that can be read: UTF-8 where they are UTF-8, every other
    /// byte as \xNN ("caf\xe9.mp4"). For display only: the way back is ambiguous.
    [[nodiscard]] static QString displayBytes(const QByteArray &bytes);
};
