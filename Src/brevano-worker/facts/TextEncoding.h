// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// In which encoding the bytes of a text file stand.
namespace TextEncoding {

/// "UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE" or "windows-1252": by the mark at the
/// beginning; else by the zero bytes that letters have in UTF-16; else UTF-8 where the bytes are
/// some, which plain ASCII is; else windows-1252.
[[nodiscard]] QString of(const QByteArray &bytes);

/// The text, without its mark.
[[nodiscard]] QString decoded(const QByteArray &bytes, const QString &encoding);

} // namespace TextEncoding
