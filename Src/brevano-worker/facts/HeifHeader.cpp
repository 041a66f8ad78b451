// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/facts/HeifHeader.h>

#include <brevano-worker/facts/SaneNumbers.h>
#include <brevano-worker/input/FootageFile.h>

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <vector>

namespace {

constexpr int BoxHeader = 8; // Length and name.
constexpr int FullBoxHeader = 4; // Version and flags.
constexpr qint64 LongestMeta = 4 * 1'024 * 1'024;
constexpr int MostBoxes = 4'096; // On one level; more has no camera.
constexpr int QuarterTurn = 90;
constexpr int QuarterTurns = 4;

/// Big-endian numbers one after the other; 0 behind the end.
class Numbers
{
public:
    explicit Numbers(QByteArray bytes) : m_bytes(std::move(bytes)) {}

    template<typename Number>
    Number next()
    {
        const int place = m_place;
        m_place += int(sizeof(Number));
        if (m_place > m_bytes.size()) {
            m_place = m_bytes.size();
            return 0;
        }
        return qFromBigEndian<Number>(m_bytes.constData() + place);
    }
    [[nodiscard]] bool atEnd() const { return m_place >= m_bytes.size(); }

private:
    const QByteArray m_bytes;
    int m_place = 0;
};

struct Box
{
    QByteArray name;
    QByteArray content;
};

std::vector<Box> boxesIn(const QByteArray &bytes)
{
    std::vector<Box> boxes;
    qint64 place = 0;
    while (place + BoxHeader <= bytes.size() && boxes.size() < size_t(MostBoxes)) {
        const qint64 length = qFromBigEndian<quint32>(bytes.constData() + place);
        if (length < BoxHeader || place + length > bytes.size())
            break;
        const int begin = int(place) + BoxHeader;
        boxes.push_back({bytes.mid(int(place) + 4, 4), bytes.mid(begin, int(length) - BoxHeader)});
        place += length;
    }
    return boxes;
}

QByteArray contentOf(const std::vector<Box> &boxes, const char *name)
{
    const auto found = std::find_if(boxes.begin(), boxes.end(),
                                    [name](const Box &box) { return box.name == name; });
    return found == boxes.end() ? QByteArray() : found->content;
}

/// The content of the box that describes the pictures, which is found among the outermost ones.
QByteArray metaOf(const FootageFile &file)
{
    constexpr int nameAt = 4;
    char header[BoxHeader] = {};
    qint64 place = 0;
    for (int i = 0; i < MostBoxes; ++i) {
        if (file.readAt(place, header, BoxHeader) < BoxHeader)
            return {};
        const qint64 length = qFromBigEndian<quint32>(header);
        const QByteArray name(header + nameAt, BoxHeader - nameAt);
        if (length < BoxHeader || (place == 0 && name != "ftyp"))
            return {};
        if (name == "meta" && length <= LongestMeta && length > BoxHeader + FullBoxHeader) {
            QByteArray meta(int(length) - BoxHeader, '\0');
            const qint64 got = file.readAt(place + BoxHeader, meta.data(), meta.size());
            return got == meta.size() ? meta.mid(FullBoxHeader) : QByteArray();
        }
        place += length;
    }
    return {};
}

quint32 primaryItem(const QByteArray &pitm)
{
    Numbers numbers(pitm);
    const bool isLong = numbers.next<quint32>() >> 24 != 0;
    return isLong ? numbers.next<quint32>() : numbers.next<quint16>();
}

/// Which of the properties, counted from 1, belong to an item.
std::vector<int> propertiesOf(quint32 wanted, const QByteArray &ipma)
{
    constexpr quint32 hasLongNumbers = 1;
    constexpr int shortMask = 0x7f; // The highest bit says that the property must be understood.
    constexpr int longMask = 0x7fff;
    Numbers numbers(ipma);
    const quint32 header = numbers.next<quint32>();
    const bool hasLongItems = header >> 24 != 0;
    const quint32 items = numbers.next<quint32>();
    for (quint32 i = 0; i < items && !numbers.atEnd(); ++i) {
        const quint32 item = hasLongItems ? numbers.next<quint32>() : numbers.next<quint16>();
        std::vector<int> properties(numbers.next<quint8>());
        for (int &property : properties)
            property = header & hasLongNumbers ? numbers.next<quint16>() & longMask
                                               : numbers.next<quint8>() & shortMask;
        if (item == wanted)
            return properties;
    }
    return {};
}

/// False when the property changes the picture in a way that is not known here.
bool apply(const Box &property, HeifHeader *header)
{
    Numbers numbers(property.content);
    if (property.name == "ispe") {
        numbers.next<quint32>();
        const quint32 width = numbers.next<quint32>();
        const quint32 height = numbers.next<quint32>();
        if (SaneNumbers::isSize(width, height))
            header->size = QSize(int(width), int(height));
    } else if (property.name == "irot") {
        const int turns = QuarterTurns - (numbers.next<quint8>() % QuarterTurns);
        header->rotation = turns % QuarterTurns * QuarterTurn;
    }
    return property.name != "clap";
}

} // namespace

std::optional<HeifHeader> HeifHeader::read(const FootageFile &file)
{
    const std::vector<Box> meta = boxesIn(metaOf(file));
    const std::vector<Box> known = boxesIn(contentOf(meta, "iprp"));
    const std::vector<Box> properties = boxesIn(contentOf(known, "ipco"));
    const quint32 item = primaryItem(contentOf(meta, "pitm"));
    HeifHeader header;
    for (const int property : propertiesOf(item, contentOf(known, "ipma"))) {
        const bool isThere = property > 0 && size_t(property) <= properties.size();
        if (!isThere || !apply(properties[size_t(property) - 1], &header))
            return {};
    }
    if (header.size.isEmpty())
        return {};
    if (header.rotation % (2 * QuarterTurn) != 0)
        header.size.transpose();
    return header;
}
