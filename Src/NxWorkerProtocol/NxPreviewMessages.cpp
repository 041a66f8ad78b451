// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPreviewMessages.h>

#include <NxWorkerProtocol/NxMessageForm.h>

using NxMessageForm::wasRead;
using NxMessageForm::written;

bool NxPreviewSlots::fits(QSize size)
{
    const qint64 most = Capacity / BytesPerPixel;
    return !size.isEmpty() && size.width() <= most && size.height() <= most / size.width();
}

bool NxPreviewSlots::isWanted(qint64 frame, qint64 shown, qint64 frames)
{
    if (frame < 0 || (frames > 0 && (frame >= frames || shown >= frames)))
        return false;
    const qint64 ahead = frame - shown;
    const qint64 after = ahead < 0 && frames > 0 ? ahead + frames : ahead;
    return after >= 0 && after < Count;
}

QByteArray NxPreviewMessages::packed(const NxPreviewOpen &open)
{
    return written([&open](QDataStream &out) { out << open.number << open.path << open.output; });
}

bool NxPreviewMessages::unpack(const QByteArray &bytes, NxPreviewOpen *open)
{
    return wasRead(bytes,
                   [open](QDataStream &in) { in >> open->number >> open->path >> open->output; })
           && NxPreviewSlots::fits(open->output);
}

QByteArray NxPreviewMessages::packed(const NxPreviewShow &show)
{
    return written([&show](QDataStream &out) {
        out << show.number << show.turn << show.frame << show.size << show.freed;
    });
}

bool NxPreviewMessages::unpack(const QByteArray &bytes, NxPreviewShow *show)
{
    const bool isWhole = wasRead(bytes, [show](QDataStream &in) {
        in >> show->number >> show->turn >> show->frame >> show->size >> show->freed;
    });
    return isWhole && show->frame >= 0 && NxPreviewSlots::fits(show->size)
           && (show->freed & ~NxPreviewSlots::All) == 0;
}

QByteArray NxPreviewMessages::packed(const NxPreviewOpened &opened)
{
    return written(
        [&opened](QDataStream &out) { out << opened.number << opened.frames << opened.reason; });
}

bool NxPreviewMessages::unpack(const QByteArray &bytes, NxPreviewOpened *opened)
{
    const bool isWhole = wasRead(bytes, [opened](QDataStream &in) {
        in >> opened->number >> opened->frames >> opened->reason;
    });
    return isWhole && opened->frames >= 0;
}

QByteArray NxPreviewMessages::packed(const NxPreviewFrame &frame)
{
    return written([&frame](QDataStream &out) {
        out << frame.number << frame.frame << frame.slot << frame.size;
    });
}

bool NxPreviewMessages::unpack(const QByteArray &bytes, NxPreviewFrame *frame)
{
    const bool isWhole = wasRead(bytes, [frame](QDataStream &in) {
        in >> frame->number >> frame->frame >> frame->slot >> frame->size;
    });
    return isWhole && frame->frame >= 0 && frame->slot < quint32(NxPreviewSlots::Count)
           && NxPreviewSlots::fits(frame->size);
}

QByteArray NxPreviewMessages::packedRested(quint64 turn)
{
    return written([turn](QDataStream &out) { out << turn; });
}

bool NxPreviewMessages::unpackRested(const QByteArray &bytes, quint64 *turn)
{
    return wasRead(bytes, [turn](QDataStream &in) { in >> *turn; });
}
