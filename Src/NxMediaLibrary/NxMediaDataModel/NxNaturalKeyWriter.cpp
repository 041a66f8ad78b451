// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalKeyWriter_p.h"

#include <algorithm>

#include "NxNaturalKeyBytes_p.h"

using Kind = NxNaturalAtom::Kind;
using Width = NxNaturalAtom::Width;

using namespace NxNaturalKeyBytes;

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
