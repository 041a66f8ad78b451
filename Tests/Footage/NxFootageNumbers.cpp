// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageNumbers.h"

#include <QRandomGenerator>
#include <QVector>

#include <algorithm>

namespace NxFootageNumbers {

namespace {

/// Numbers that stand behind a mark.
struct Field
{
    const char *mark;
    int markLength;
    int first; ///< Bytes from the end of the mark.
    int length; ///< Bytes of numbers from there.
};

constexpr int number = 4; // bytes that are changed at a time

constexpr Field fields[] = {
    // Boxes of MP4, MOV and HEIC: the numbers stand behind a version byte and three of flags.
    {"mvhd", 4, 12, 8}, // time scale, duration
    {"tkhd", 4, 20, 4}, // duration
    {"tkhd", 4, 40, 44}, // matrix, width, height
    {"mdhd", 4, 12, 8},
    {"elst", 4, 4, 16},
    {"stsz", 4, 4, 24},
    {"stts", 4, 4, 12},
    {"ctts", 4, 4, 12},
    {"stsc", 4, 4, 16},
    {"stco", 4, 4, 12},
    {"stss", 4, 4, 12},
    {"trun", 4, 4, 16},
    {"ispe", 4, 4, 8},
    {"avc1", 4, 24, 4}, // width, height
    {"hvc1", 4, 24, 4},
    {"mp4a", 4, 16, 12}, // channels, bits, rate
    // Chunks of AVI, WAV, AIFF and WebP, each behind its size.
    {"avih", 4, 4, 56},
    {"strh", 4, 4, 48},
    {"strf", 4, 4, 40},
    {"idx1", 4, 4, 32},
    {"fmt ", 4, 4, 16},
    {"data", 4, 0, 4},
    {"COMM", 4, 4, 18},
    {"VP8 ", 4, 7, 4},
    // Elements of Matroska: duration, time scale, widths and heights, default duration.
    {"\x44\x89", 2, 1, 8},
    {"\x2A\xD7\xB1", 3, 1, 4},
    {"\x23\xE3\x83", 3, 1, 4},
    {"\xE0\x01", 2, 8, 24},
    // Sound: FLAC's stream information, MP3's table of contents, the first page of OGG.
    {"fLaC", 4, 4, 34},
    {"Info", 4, 4, 8},
    {"Xing", 4, 4, 8},
    {"vorbis", 6, 4, 8},
    // Pictures: PNG, the frame header of JPEG, GIF, BMP, the directories of TIFF.
    {"IHDR", 4, 0, 8},
    {"\xFF\xC0", 2, 2, 5},
    {"GIF89a", 6, 0, 7},
    {"BM", 2, 0, 40},
    {"II*\0", 4, 0, 4},
    // Headers of MPEG-2 pictures, of MXF sets and of transport packets.
    {"\0\0\1\xB3", 4, 0, 8},
    {"\x06\x0E\x2B\x34", 4, 12, 24},
    {"\x47\x40", 2, 2, 24},
};

constexpr quint32 absurdities[] = {0xFFFFFFFF, 0x7FFFFFFF, 0x80000000,
                                   0x00000000, 0x40000000, 0xFFFF0000};

QVector<int> placesOf(const QByteArray &bytes)
{
    QVector<int> places;
    for (const Field &field : fields) {
        const auto mark = QByteArray::fromRawData(field.mark, field.markLength);
        const int at = bytes.indexOf(mark);
        const int first = at + field.markLength + field.first;
        for (int place = first; at >= 0 && place + number <= first + field.length; place += number)
            places.append(place);
    }
    const int last = bytes.size() - number;
    places.erase(
        std::remove_if(places.begin(), places.end(), [last](int place) { return place > last; }),
        places.end());
    return places;
}

/// For files without known fields.
QVector<int> placesAtTheBeginning(const QByteArray &bytes)
{
    constexpr int beginning = 64;
    QVector<int> places;
    for (int place = 0; place + number <= qMin(beginning, bytes.size()); place += number)
        places.append(place);
    return places;
}

void change(QByteArray *bytes, int place, quint32 value)
{
    constexpr int bitsOfByte = 8;
    for (int byte = 0; byte < number; ++byte)
        (*bytes)[place + byte] = char(value >> (bitsOfByte * (number - 1 - byte)));
}

} // namespace

int fieldsOf(const QByteArray &bytes)
{
    return placesOf(bytes).size();
}

QByteArray absurd(QByteArray bytes, QRandomGenerator *random)
{
    constexpr int most = 4;
    QVector<int> places = placesOf(bytes);
    if (places.isEmpty())
        places = placesAtTheBeginning(bytes);
    const int count = random->bounded(1, most);
    for (int turn = 0; turn < count; ++turn) {
        const quint32 value = absurdities[random->bounded(int(std::size(absurdities)))];
        change(&bytes, places.at(random->bounded(places.size())), value);
    }
    return bytes;
}

} // namespace NxFootageNumbers
