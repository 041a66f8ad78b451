// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QString>
#include <QStringList>

class INxAbstractMediaItem;
class JsonLine;

/// What a listing tells about a media.
namespace MediaFacts {

/// "video", "audio", "image", "gif", "subtitle"; a resource may also be a "title", "transition",
/// "effect", "split screen", "element" or "template"; else "other".
[[nodiscard]] QString typeWord(const INxAbstractMediaItem &media);
/// One text for each column of the category's list view, in their order, with typeWord() for the
/// type; empty where nothing is known, or where the column holds no text.
[[nodiscard]] QStringList columnTexts(const INxAbstractMediaItem &media,
                                      NXVBLMODEL::NxMediaCategoryType category);
/// Path of the folder that holds it, from the section down; empty for the section itself.
[[nodiscard]] QString folder(const INxAbstractMediaItem &media);
/// "project" or "shared"; the section's name for resources.
[[nodiscard]] QString section(const INxAbstractMediaItem &media);
/// Whether the file was not there when it was last looked for. A resource needs none.
[[nodiscard]] bool isMissing(const INxAbstractMediaItem &media);
/// The same as far as it is known without a look at the disk.
[[nodiscard]] bool isKnownMissing(const INxAbstractMediaItem &media);
/// How long it lasts; -1 when that is not known, and for what has no length.
[[nodiscard]] qint64 milliseconds(const INxAbstractMediaItem &media);
/// Why the file, which is there, cannot be read; empty when it can, or was not looked at.
[[nodiscard]] QString unreadableReason(const INxAbstractMediaItem &media);

/// name, path, section, folder, type, size, created.
void addIdentity(JsonLine *line, const INxAbstractMediaItem &media);
/// missing, unreadable.
void addState(JsonLine *line, const INxAbstractMediaItem &media);
/// What the file itself tells, null while it was not read: duration_ms to variable_rate.
void addContents(JsonLine *line, const INxAbstractMediaItem &media);

} // namespace MediaFacts
