// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/// Where a worker that plays puts its pictures: into slots of a memory that it shares with the
/// editor. A slot is the worker's until a picture in it is announced; then it is the editor's
/// until the editor gives it back. So nobody ever reads what is being written.
namespace NxPreviewSlots {

constexpr int Count = 12;
constexpr int BytesPerPixel = 4; ///< 0xffRRGGBB
/// Bytes of one slot. Memory is taken only for what was written.
constexpr int Capacity = 1920 * 1080 * BytesPerPixel;
constexpr qint64 MemoryBytes = qint64(Count) * Capacity;
constexpr quint32 All = (1U << Count) - 1; ///< One bit for each slot.

[[nodiscard]] constexpr quint32 bit(int slot)
{
    return 1U << slot;
}
/// Whether a picture of that size (px) finds room in a slot.
[[nodiscard]] bool fits(QSize size);
/// Whether a frame is among those that are rendered while `shown` is shown: the next `Count`, in
/// a film that begins again after its last frame. `frames`: how many there are; 0: not known.
[[nodiscard]] bool isWanted(qint64 frame, qint64 shown, qint64 frames);

} // namespace NxPreviewSlots

/// Plays another film, or none; pictures of the one before are not wanted any more.
struct NxPreviewOpen
{
    quint64 number = 0; ///< Whatever is said of the film bears it.
    QByteArray path; ///< As the system names the file; empty: the film before is closed.
    /// px. The shape of the pictures; a film of another shape lies between bars.
    QSize output{1920, 1080};
};

/// What is shown now; what follows is rendered ahead.
struct NxPreviewShow
{
    quint64 number = 0; ///< The film.
    quint64 turn = 0; ///< Counts these messages.
    qint64 frame = 0; ///< From 0, of 25 a second.
    QSize size; ///< px. Of the pictures.
    quint32 freed = 0; ///< Slots that the editor gives back, whatever film they were of.
};

/// The answer to NxPreviewOpen; once more when a film turns out to be damaged later.
struct NxPreviewOpened
{
    quint64 number = 0;
    qint64 frames = 0; ///< 0: it cannot be played.
    QString reason; ///< Why it cannot, a sentence without the path.
};

/// There is a picture in a slot, which is the editor's now.
struct NxPreviewFrame
{
    quint64 number = 0;
    qint64 frame = 0;
    quint32 slot = 0;
    QSize size; ///< px; rows without gaps.
};

namespace NxPreviewMessages {

[[nodiscard]] QByteArray packed(const NxPreviewOpen &open);
[[nodiscard]] QByteArray packed(const NxPreviewShow &show);
[[nodiscard]] QByteArray packed(const NxPreviewOpened &opened);
[[nodiscard]] QByteArray packed(const NxPreviewFrame &frame);
/// Nothing is left to do for what was shown in that turn and the turns before.
[[nodiscard]] QByteArray packedRested(quint64 turn);

/// False when the bytes are no such message, or say what cannot be: a size that fits no slot, a
/// slot that there is not. What is read then means nothing.
[[nodiscard]] bool unpack(const QByteArray &bytes, NxPreviewOpen *open);
[[nodiscard]] bool unpack(const QByteArray &bytes, NxPreviewShow *show);
[[nodiscard]] bool unpack(const QByteArray &bytes, NxPreviewOpened *opened);
[[nodiscard]] bool unpack(const QByteArray &bytes, NxPreviewFrame *frame);
[[nodiscard]] bool unpackRested(const QByteArray &bytes, quint64 *turn);

} // namespace NxPreviewMessages
