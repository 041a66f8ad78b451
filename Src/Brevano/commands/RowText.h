// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class INxAbstractMedia;
class JsonLine;

/// What a listing tells about any of its rows.
namespace RowText {

/// "media", "group", "import" or "more".
[[nodiscard]] QString kindWord(const INxAbstractMedia &row);
/// The line of a row that is no media: "== Video (12)", "[Import Media]".
[[nodiscard]] QString lineOf(const INxAbstractMedia &row);

/// row, kind, title, and for a group items, the number of media that it shows.
void addTo(JsonLine *line, int number, const INxAbstractMedia &row);

} // namespace RowText
