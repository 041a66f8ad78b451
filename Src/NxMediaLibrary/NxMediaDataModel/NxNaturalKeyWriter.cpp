// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalKeyWriter_p.h"

#include <algorithm>
#include <array>

namespace {

using Kind = NxNaturalAtom::Kind;
using Width = NxNaturalAtom::Width;

constexpr quint32 FewDigits = nlLongNumber - nlFirstNumber;
constexpr quint32 ManyZeros = 0xFF;
constexpr quint32 NearPlaces = 0xC0; // Places of hyphens that take one byte.
constexpr uchar FarPlace = 0x01;
constexpr uchar NextElement = 0x01;
constexpr uchar MarkFollows = 0x02;

// For the loop over ASCII names: the byte of an element, or what else the character is.
constexpr uchar MinorClass = 0;
constexpr uchar DigitClass = 1;

std::array<uchar, 0x80> asciiClasses()
{
    std::array<uchar, 0x80> classes{};
    for (size_t i = 0; i < classes.size(); ++i) {
        const NxNaturalAtom &atom = nxNaturalAsciiAtom(uchar(i));
        classes[i] = atom.kind == Kind::Element ? atom.bytes[0]
                     : atom.kind == Kind::Digit ? DigitClass
                                                : MinorClass;
    }
    return classes;
}

uchar *putBigEndian(uchar *out, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        *out++ = uchar(value >> shift);
    return out;
}

// Two digits a byte; digits are numbers or characters, whose lower four bits are the number.
template<typename Digit>
uchar *putDigits(uchar *out, const Digit *digit, quint32 count)
{
    for (quint32 i = 0; i + 1 < count; i += 2)
        *out++ = uchar(((digit[i] & 0xF) << 4) | (digit[i + 1] & 0xF));
    if (count % 2)
        *out++ = uchar((digit[count - 1] & 0xF) << 4);
    return out;
}

// Longer is larger, then digit by digit, then fewer leading zeros is larger.
template<typename Digit>
uchar *putNumber(uchar *out, const Digit *digits, quint32 count)
{
    quint32 zeros = 0;
    while (zeros < count && (digits[zeros] & 0xF) == 0)
        ++zeros;
    const quint32 significant = count - zeros;
    if (significant < FewDigits) {
        *out++ = uchar(nlFirstNumber + significant);
    } else {
        *out++ = nlLongNumber;
        out = putBigEndian(out, significant);
    }
    out = putDigits(out, digits + zeros, significant);
    if (zeros < ManyZeros) {
        *out++ = uchar(ManyZeros - zeros);
        return out;
    }
    *out++ = 0;
    return putBigEndian(out, ~zeros);
}

// A later place is smaller, and every place is larger than the end of the list.
uchar *putMinor(uchar *out, quint32 place, uchar weight)
{
    if (place < NearPlaces) {
        *out++ = uchar(0xFF - place);
    } else {
        *out++ = FarPlace;
        out = putBigEndian(out, ~place);
    }
    *out++ = weight;
    return out;
}

} // namespace

int NxNaturalKeyWriter::writeAscii(const QString &name, uchar *out)
{
    static const std::array<uchar, 0x80> classes = asciiClasses();
    const ushort *at = name.utf16();
    const ushort *const end = at + name.size();
    uchar *const begin = out;
    quint32 elements = 0;
    m_minors.clear();
    while (at != end) {
        if (*at >= classes.size())
            return -1;
        const uchar byte = classes[*at];
        if (byte == MinorClass) {
            m_minors.append({elements, uchar(nxNaturalAsciiAtom(uchar(*at++)).value)});
            continue;
        }
        ++elements;
        if (byte != DigitClass) {
            *out++ = byte;
            ++at;
            continue;
        }
        const ushort *const digits = at;
        while (at != end && *at < classes.size() && classes[*at] == DigitClass)
            ++at;
        out = putNumber(out, digits, quint32(at - digits));
    }
    out = putMinorsBehind(out);
    while (out != begin && out[-1] == 0)
        --out;
    return int(out - begin);
}

// Without marks and widths: their lists are only closed.
uchar *NxNaturalKeyWriter::putMinorsBehind(uchar *out) const
{
    if (m_minors.isEmpty())
        return out;
    for (int list = 0; list < 3; ++list)
        *out++ = nlEnd;
    for (const Minor &minor : m_minors)
        out = putMinor(out, minor.place, minor.weight);
    return out;
}

void NxNaturalKeyWriter::write(const QString &name)
{
    clear();
    const int size = name.size();
    for (int i = 0; i < size; ++i) {
        const QChar unit = name.at(i);
        uint codePoint = unit.unicode();
        if (unit.isHighSurrogate() && i + 1 < size && name.at(i + 1).isLowSurrogate())
            codePoint = QChar::surrogateToUcs4(unit, name.at(++i));
        for (const NxNaturalAtom &atom : nxNaturalAtoms(codePoint))
            take(atom);
    }
    endNumber();
    m_key.append(nlEnd);
    appendMarks();
    m_key.append(nlEnd);
    appendWidths();
    m_key.append(nlEnd);
    appendMinors();
    while (!m_key.isEmpty() && m_key.last() == 0)
        m_key.removeLast();
}

void NxNaturalKeyWriter::clear()
{
    m_key.clear();
    m_digits.clear();
    m_digitsWidth = Width::Ordinary;
    m_elements = 0;
    m_marks.clear();
    m_forms.clear();
    m_minors.clear();
}

void NxNaturalKeyWriter::take(const NxNaturalAtom &atom)
{
    if (atom.kind == Kind::Digit) {
        takeDigit(atom);
        return;
    }
    endNumber();
    switch (atom.kind) {
    case Kind::Element:
        m_key.append(atom.bytes, atom.size);
        countElement(atom.width);
        return;
    case Kind::Mark:
        m_marks.append({m_elements, atom.value});
        return;
    case Kind::Minor:
        m_minors.append({m_elements, uchar(atom.value)});
        return;
    case Kind::Digit:
        return;
    }
}

void NxNaturalKeyWriter::takeDigit(const NxNaturalAtom &atom)
{
    m_digits.append(uchar(atom.value));
    m_digitsWidth = std::max(m_digitsWidth, atom.width);
}

void NxNaturalKeyWriter::endNumber()
{
    if (m_digits.isEmpty())
        return;
    const int before = m_key.size();
    m_key.resize(before + m_digits.size() + 16);
    uchar *const begin = m_key.data() + before;
    uchar *const end = putNumber(begin, m_digits.constData(), quint32(m_digits.size()));
    m_key.resize(before + int(end - begin));
    countElement(m_digitsWidth);
    m_digits.clear();
    m_digitsWidth = Width::Ordinary;
}

void NxNaturalKeyWriter::countElement(Width width)
{
    if (width != Width::Ordinary)
        m_forms.append({m_elements, width});
    ++m_elements;
}

void NxNaturalKeyWriter::appendMarks()
{
    quint32 place = 0;
    for (const Mark &mark : m_marks) {
        for (; place < mark.place; ++place)
            m_key.append(NextElement);
        const uchar bytes[] = {MarkFollows, uchar(mark.codePoint >> 16), uchar(mark.codePoint >> 8),
                               uchar(mark.codePoint)};
        m_key.append(bytes, int(sizeof(bytes)));
    }
}

void NxNaturalKeyWriter::appendWidths()
{
    quint32 place = 0;
    for (const Form &form : m_forms) {
        for (; place < form.place; ++place)
            m_key.append(NextElement);
        m_key.append(uchar(NextElement + uchar(form.width)));
        ++place;
    }
}

void NxNaturalKeyWriter::appendMinors()
{
    for (const Minor &minor : m_minors) {
        uchar bytes[6];
        m_key.append(bytes, int(putMinor(bytes, minor.place, minor.weight) - bytes));
    }
}
