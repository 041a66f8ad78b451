// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalKeyBuffer_p.h"

#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>

#include "NxNaturalKeyBytes_p.h"
#include "NxNaturalKeyWriter_p.h"

namespace {

using Kind = NxNaturalAtom::Kind;
using Width = NxNaturalAtom::Width;

using namespace NxNaturalKeyBytes;

constexpr ushort AsciiCount = 0x80;
constexpr int LongName = 1 << 16; // Longer ones are too rare to keep so much room for them.
constexpr int MostAtoms = 2;
// A character becomes two elements of four bytes at most, and each is passed by in the list of the
// marks; all other cases need less.
constexpr int BytesPerCharacter = 10;
constexpr int BytesPerName = 16; // The ends of the lists, and whole words written at the end.
constexpr quint32 DigitsPerWord = 16;

// The byte of an element, which is less than these, or what else an ASCII character is.
constexpr uchar MinorClass = 0x80;
constexpr uchar DigitClass = 0x81;
constexpr uchar ForeignClass = 0x82;

std::array<uchar, AsciiCount> asciiClasses()
{
    std::array<uchar, AsciiCount> classes{};
    for (size_t i = 0; i < classes.size(); ++i) {
        const NxNaturalAtom &atom = nxNaturalAsciiAtom(uchar(i));
        classes[i] = atom.kind == Kind::Element ? atom.bytes[0]
                     : atom.kind == Kind::Digit ? DigitClass
                                                : MinorClass;
    }
    return classes;
}

} // namespace

void NxNaturalKeyBuffer::write(const QString &name)
{
    m_size = name.size() <= LongName ? writeQuickly(name) : -1;
    if (m_size < 0)
        writeSlowly(name);
    std::memset(m_bytes.data() + m_size, 0, PaddingSize);
}

// Answers the size of the key, or -1 when the name has characters of a kind that is not dealt with
// here.
int NxNaturalKeyBuffer::writeQuickly(const QString &name)
{
    static const std::array<uchar, AsciiCount> classes = asciiClasses();
    m_bytes.resize(BytesPerCharacter * name.size() + BytesPerName + PaddingSize);
    m_elements = 0;
    m_marks.clear();
    m_minors.clear();
    const QChar *at = name.constData();
    const QChar *const end = at + name.size();
    uchar *const begin = m_bytes.data();
    uchar *out = begin;
    while (at != end) {
        const ushort unit = at->unicode();
        const uchar byte = unit < classes.size() ? classes[unit] : ForeignClass;
        if (byte < MinorClass) {
            *out++ = byte;
            ++m_elements;
            ++at;
        } else if (byte == DigitClass) {
            out = putNumber(out, at, end);
        } else {
            out = putAtoms(out, unit);
            if (!out)
                return -1;
            ++at;
        }
    }
    if (!m_marks.isEmpty() || !m_minors.isEmpty())
        out = putLists(out);
    while (out != begin && out[-1] == 0)
        --out;
    return int(out - begin);
}

// Gathers the digits in a word, four bits each, which spares a loop that is run through a few times
// only. Moves at behind them.
uchar *NxNaturalKeyBuffer::putNumber(uchar *out, const QChar *&at, const QChar *end)
{
    const QChar *const begin = at;
    quint64 digits = 0;
    for (; at != end && at->unicode() >= '0' && at->unicode() <= '9'; ++at)
        digits = digits << 4 | (at->unicode() & 0xF);
    ++m_elements;
    const quint32 count = quint32(at - begin);
    if (count > DigitsPerWord)
        return NxNaturalKeyBytes::putNumber(out, reinterpret_cast<const ushort *>(begin), count);

    const quint32 significant = DigitsPerWord - qCountLeadingZeroBits(digits) / 4;
    *out++ = uchar(nlFirstNumber + significant);
    if (significant > 0)
        qToBigEndian(digits << 4 * (DigitsPerWord - significant), out);
    out += (significant + 1) / 2;
    *out++ = uchar(ManyZeros - (count - significant));
    return out;
}

// Null when the character needs more care.
uchar *NxNaturalKeyBuffer::putAtoms(uchar *out, ushort unit)
{
    if (QChar::isSurrogate(unit))
        return nullptr;
    const NxNaturalAtoms atoms = unit < AsciiCount
                                     ? NxNaturalAtoms{&nxNaturalAsciiAtom(uchar(unit)), 1}
                                     : nxNaturalAtoms(unit);
    if (atoms.count > MostAtoms)
        return nullptr;
    for (const NxNaturalAtom &atom : atoms) {
        if (atom.kind == Kind::Digit || atom.width != Width::Ordinary)
            return nullptr;
        if (atom.kind == Kind::Mark) {
            m_marks.append({m_elements, atom.value});
        } else if (atom.kind == Kind::Minor) {
            m_minors.append({m_elements, uchar(atom.value)});
        } else {
            std::memcpy(out, atom.bytes, sizeof(atom.bytes));
            out += atom.size;
            ++m_elements;
        }
    }
    return out;
}

// The list of the widths is only closed.
uchar *NxNaturalKeyBuffer::putLists(uchar *out) const
{
    *out++ = nlEnd;
    quint32 place = 0;
    for (const Mark &mark : m_marks) {
        std::memset(out, NextElement, mark.place - place);
        out += mark.place - place;
        place = mark.place;
        out = putMark(out, mark.codePoint);
    }
    *out++ = nlEnd;
    *out++ = nlEnd;
    for (const Minor &minor : m_minors)
        out = putMinor(out, minor.place, minor.weight);
    return out;
}

void NxNaturalKeyBuffer::writeSlowly(const QString &name)
{
    NxNaturalKeyWriter writer;
    writer.write(name);
    m_size = writer.size();
    m_bytes.resize(m_size + PaddingSize);
    std::copy_n(writer.data(), m_size, m_bytes.data());
}
