// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageParts.h"

#include <QRandomGenerator>
#include <QtEndian>

namespace NxFootageParts {

namespace {

constexpr int sizeField = 4; // bytes
constexpr int typeField = 4; // bytes
constexpr int riffHead = 12; // "RIFF", the size, the form

QVector<Part> boxes(const QByteArray &bytes)
{
    if (bytes.mid(sizeField, typeField) != "ftyp")
        return {};
    QVector<Part> parts;
    int place = 0;
    while (place + sizeField + typeField <= bytes.size()) {
        const quint32 size = qFromBigEndian<quint32>(bytes.constData() + place);
        if (size < sizeField + typeField || size > quint32(bytes.size() - place))
            break;
        parts.append({place, place + int(size)});
        place += int(size);
    }
    return parts;
}

QVector<Part> chunks(const QByteArray &bytes)
{
    if (!bytes.startsWith("RIFF"))
        return {};
    QVector<Part> parts;
    int place = riffHead;
    while (place + sizeField + typeField <= bytes.size()) {
        const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + place + typeField);
        if (size > quint32(bytes.size() - place - sizeField - typeField))
            break;
        const int whole = sizeField + typeField + int(size + size % 2);
        parts.append({place, qMin(place + whole, bytes.size())});
        place += whole;
    }
    return parts;
}

QVector<Part> twoRanges(const QByteArray &bytes, QRandomGenerator *random)
{
    const int half = bytes.size() / 2;
    const int length = random->bounded(1, half + 1);
    const int first = random->bounded(0, half - length + 1);
    const int second = half + random->bounded(0, half - length + 1);
    return {{first, first + length}, {second, second + length}};
}

QByteArray exchanged(const QByteArray &bytes, const Part &first, const Part &second)
{
    return bytes.left(first.begin) + bytes.mid(second.begin, second.size())
           + bytes.mid(first.end, second.begin - first.end) + bytes.mid(first.begin, first.size())
           + bytes.mid(second.end);
}

} // namespace

QVector<Part> partsOf(const QByteArray &bytes)
{
    const QVector<Part> parts = boxes(bytes);
    return parts.isEmpty() ? chunks(bytes) : parts;
}

QByteArray swapped(const QByteArray &bytes, QRandomGenerator *random)
{
    QVector<Part> parts = partsOf(bytes);
    if (parts.size() < 2)
        parts = twoRanges(bytes, random);
    const int first = random->bounded(0, parts.size() - 1);
    const int second = random->bounded(first + 1, parts.size());
    return exchanged(bytes, parts.at(first), parts.at(second));
}

} // namespace NxFootageParts
