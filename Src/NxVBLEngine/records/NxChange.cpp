// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/records/NxChange.h>

#include <NxVBLEngine/records/NxLosslessText.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// More ids than any change can name: what claims more is damaged.
constexpr quint64 MostIds = 20'000'000;

/// Which fields of a state follow.
enum StateField : uchar {
    FolderField = 1,
    PlaceField = 2,
    TextField = 4,
    SecondTextField = 8,
    NumberField = 16,
    AllFields = 31,
};

/// Small numbers of either sign become small numbers: 0, -1, 1, -2 are 0, 1, 2, 3.
quint64 folded(qint64 value)
{
    return (quint64(value) << 1) ^ (value < 0 ? ~quint64(0) : 0);
}

qint64 unfolded(quint64 value)
{
    return qint64((value >> 1) ^ (~(value & 1) + 1));
}

void putNumber(QByteArray *packed, quint64 value)
{
    while (value >= 0x80) {
        packed->append(char(uchar(value) | 0x80));
        value >>= 7;
    }
    packed->append(char(value));
}

void putText(QByteArray *packed, const QString &text)
{
    const QByteArray bytes = NxLosslessText::encoded(text);
    putNumber(packed, quint64(bytes.size()));
    packed->append(bytes);
}

/// Reads what the functions above wrote; false at anything they cannot have written.
class Unpacker
{
public:
    /// The bytes must stand until the last call.
    explicit Unpacker(const QByteArray &packed, int skipped = 0)
        : m_next(packed.constBegin() + skipped),
          m_end(packed.constEnd())
    {
    }

    bool isAtEnd() const { return m_next == m_end; }

    bool number(quint64 *value)
    {
        *value = 0;
        for (int shift = 0; shift < 64; shift += 7) {
            if (m_next == m_end)
                return false;
            const uchar byte = uchar(*m_next++);
            if (shift == 63 && byte > 1)
                return false;
            *value |= quint64(byte & 0x7F) << shift;
            if (byte < 0x80)
                return true;
        }
        return false;
    }

    bool signedNumber(qint64 *value)
    {
        quint64 raw = 0;
        if (!number(&raw))
            return false;
        *value = unfolded(raw);
        return true;
    }

    bool integer(int *value)
    {
        qint64 wide = 0;
        if (!signedNumber(&wide) || wide != qint64(int(wide)))
            return false;
        *value = int(wide);
        return true;
    }

    bool text(QString *value)
    {
        quint64 size = 0;
        if (!number(&size) || size > quint64(m_end - m_next))
            return false;
        *value = NxLosslessText::decoded(m_next, int(size));
        m_next += size;
        return true;
    }

private:
    const char *m_next;
    const char *m_end;
};

struct KindEntry
{
    NxChangeKind kind;
    NxObjectKind object;
    NxChangeKind opposite; ///< Of the change that takes one back.
};

using Kind = NxChangeKind;

constexpr KindEntry Kinds[] = {
    {Kind::FolderAdd, NxObjectKind::Folder, Kind::FolderRemove},
    {Kind::FolderRemove, NxObjectKind::Folder, Kind::FolderAdd},
    {Kind::FolderRename, NxObjectKind::Folder, Kind::FolderRename},
    {Kind::FolderMove, NxObjectKind::Folder, Kind::FolderMove},
    {Kind::MediaAdd, NxObjectKind::Media, Kind::MediaRemove},
    {Kind::MediaRemove, NxObjectKind::Media, Kind::MediaAdd},
    {Kind::MediaRename, NxObjectKind::Media, Kind::MediaRename},
    {Kind::MediaMove, NxObjectKind::Media, Kind::MediaMove},
    {Kind::MediaFavourite, NxObjectKind::Media, Kind::MediaFavourite},
    {Kind::MediaRelink, NxObjectKind::Media, Kind::MediaRelink},
    {Kind::ResourceRename, NxObjectKind::Resource, Kind::ResourceRename},
    {Kind::ResourceFavourite, NxObjectKind::Resource, Kind::ResourceFavourite},
    {Kind::TimelineAdd, NxObjectKind::Timeline, Kind::TimelineRemove},
    {Kind::TimelineRemove, NxObjectKind::Timeline, Kind::TimelineAdd},
    {Kind::TimelineRename, NxObjectKind::Timeline, Kind::TimelineRename},
    {Kind::ClipAdd, NxObjectKind::Clip, Kind::ClipRemove},
    {Kind::ClipRemove, NxObjectKind::Clip, Kind::ClipAdd},
    {Kind::ClipMove, NxObjectKind::Clip, Kind::ClipMove},
};

const KindEntry *entryOf(NxChangeKind kind)
{
    const auto entry = std::find_if(std::begin(Kinds), std::end(Kinds),
                                    [kind](const KindEntry &one) { return one.kind == kind; });
    return entry == std::end(Kinds) ? nullptr : entry;
}

} // namespace

bool isChangeKind(int value)
{
    return entryOf(NxChangeKind(value)) != nullptr;
}

NxObjectKind objectOf(NxChangeKind kind)
{
    const KindEntry *entry = entryOf(kind);
    Q_ASSERT(entry);
    return entry->object;
}

bool isAddOrRemoval(NxChangeKind kind)
{
    const KindEntry *entry = entryOf(kind);
    return entry && entry->opposite != kind;
}

NxChange inverted(const NxChange &change)
{
    NxChange result = change;
    if (const KindEntry *entry = entryOf(change.what))
        result.what = entry->opposite;
    std::reverse(result.ids.begin(), result.ids.end());
    std::swap(result.before, result.after);
    return result;
}

QByteArray packedIds(const QVector<qint64> &ids)
{
    // How many, then runs of equal differences: an import of thousands takes a few bytes.
    QByteArray packed;
    putNumber(&packed, quint64(ids.size()));
    quint64 previous = 0;
    int next = 0;
    while (next < ids.size()) {
        const quint64 difference = quint64(ids.at(next)) - previous;
        quint64 run = 0;
        while (next < ids.size() && quint64(ids.at(next)) - previous == difference) {
            previous += difference;
            ++next;
            ++run;
        }
        putNumber(&packed, folded(qint64(difference)));
        putNumber(&packed, run);
    }
    return packed;
}

bool unpackIds(const QByteArray &packed, QVector<qint64> *ids)
{
    ids->clear();
    Unpacker unpacker(packed);
    quint64 missing = 0;
    if (!unpacker.number(&missing) || missing > MostIds)
        return false;
    quint64 previous = 0;
    while (missing > 0) {
        qint64 difference = 0;
        quint64 run = 0;
        if (!unpacker.signedNumber(&difference) || !unpacker.number(&run))
            return false;
        if (run == 0 || run > missing)
            return false;
        missing -= run;
        ids->reserve(ids->size() + int(run));
        for (; run > 0; --run) {
            previous += quint64(difference);
            ids->append(qint64(previous));
        }
    }
    return unpacker.isAtEnd();
}

QByteArray packedState(const NxChangeState &state)
{
    const int fields = (state.folder != 0 ? FolderField : 0) | (state.place != 0 ? PlaceField : 0)
                       | (state.text.isEmpty() ? 0 : TextField)
                       | (state.secondText.isEmpty() ? 0 : SecondTextField)
                       | (state.number != 0 ? NumberField : 0);
    if (fields == 0)
        return {};

    QByteArray packed(1, char(fields));
    if (fields & FolderField)
        putNumber(&packed, folded(state.folder));
    if (fields & PlaceField)
        putNumber(&packed, folded(state.place));
    if (fields & TextField)
        putText(&packed, state.text);
    if (fields & SecondTextField)
        putText(&packed, state.secondText);
    if (fields & NumberField)
        putNumber(&packed, folded(state.number));
    return packed;
}

bool unpackState(const QByteArray &packed, NxChangeState *state)
{
    *state = {};
    if (packed.isEmpty())
        return true;
    const uchar fields = uchar(packed.at(0));
    if (fields > AllFields)
        return false;

    Unpacker unpacker(packed, 1);
    return !((fields & FolderField) && !unpacker.integer(&state->folder))
           && !((fields & PlaceField) && !unpacker.signedNumber(&state->place))
           && !((fields & TextField) && !unpacker.text(&state->text))
           && !((fields & SecondTextField) && !unpacker.text(&state->secondText))
           && !((fields & NumberField) && !unpacker.signedNumber(&state->number))
           && unpacker.isAtEnd();
}
