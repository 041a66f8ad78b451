// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/TextFacts.h>

#include <brevano-worker/facts/CueTimes.h>
#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/facts/SoundStream.h>
#include <brevano-worker/facts/TextEncoding.h>
#include <brevano-worker/input/FootageFile.h>

#include <QCoreApplication>

namespace {

/// The subtitles of a long film take a hundredth of this.
constexpr qint64 MostBytes = 32 * 1'024 * 1'024;

QString translated(const char *text)
{
    return QCoreApplication::translate("TextFacts", text);
}

} // namespace

NxResult<NxFootageFacts> TextFacts::read(const FootageFile &file)
{
    if (file.size() > MostBytes)
        return NxError{translated("The file is too large to be subtitles.")};
    QByteArray bytes(int(file.size()), '\0');
    const qint64 got = file.readAt(0, bytes.data(), bytes.size());
    if (got < 0)
        return NxError{translated("The disk cannot read the file.")};
    bytes.truncate(int(got));

    NxFootageFacts facts;
    facts.streams.kind = NxFootageKind::Subtitle;
    facts.streams.textEncoding = TextEncoding::of(bytes);
    const auto end = CueTimes::endUs(TextEncoding::decoded(bytes, facts.streams.textEncoding));
    if (!end)
        return NxError{translated("There is no subtitle in the file.")};
    facts.durationUs = *end;
    facts.rate = SoundStream::Rate;
    facts.frames = SaneNumbers::frames(facts.durationUs, facts.rate);
    return facts;
}
