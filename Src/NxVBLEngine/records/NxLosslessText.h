// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QByteArray>
#include <QString>

/// UTF-8 that loses nothing: every QString comes back as it was.
///
/// Well-formed text is plain UTF-8. A surrogate without its partner, which UTF-8 has no form for,
/// takes the three bytes its number would take; file names with such halves do exist. Empty and
/// null strings are the same.
namespace NxLosslessText {

/// The most bytes that encodeTo() writes for a text of this length.
[[nodiscard]] constexpr int maximumBytes(int length)
{
    return 3 * length;
}

/// Writes the text at `to`, which has room for maximumBytes(text.size()); answers the end.
NXVBLENGINE_TEST_EXPORT char *encodeTo(char *to, const QString &text);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QByteArray encoded(const QString &text);

/// Bytes that no encodeTo() would write become the replacement character.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString decoded(const char *bytes, int size);

} // namespace NxLosslessText
