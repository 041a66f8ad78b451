// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxNaturalAtoms_p.h"

#include <QString>
#include <QVector>

#include <algorithm>
#include <array>
#include <vector>

namespace {

using Kind = NxNaturalAtom::Kind;
using Width = NxNaturalAtom::Width;

constexpr char RankedSymbols[] = " \t\n\v\f\r!\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";
constexpr uint SharpS = 0x00DF;
constexpr uint StrokeMark = 0x0335; // Combining short stroke overlay.
constexpr quint32 ApostropheWeight = 0xFD; // Above every control, which weighs its code and 1.
constexpr quint32 HyphenWeight = 0xFE;

NxNaturalAtom element(uchar lead, quint32 rest, int restBytes)
{
    NxNaturalAtom atom;
    atom.bytes[0] = lead;
    for (int i = 0; i < restBytes; ++i)
        atom.bytes[1 + i] = uchar(rest >> (8 * (restBytes - 1 - i)));
    atom.size = quint8(1 + restBytes);
    return atom;
}

NxNaturalAtom valued(Kind kind, quint32 value)
{
    NxNaturalAtom atom;
    atom.kind = kind;
    atom.value = value;
    return atom;
}

bool isAccent(uint codePoint)
{
    if (!QChar::isMark(codePoint))
        return false;
    return QChar::combiningClass(codePoint) != 0
           || QChar::script(codePoint) == QChar::Script_Inherited;
}

bool isLetter(uint codePoint)
{
    return QChar::isLetter(codePoint) || QChar::isMark(codePoint)
           || QChar::category(codePoint) == QChar::Number_Letter;
}

uchar leadOfScript(QChar::Script script)
{
    switch (script) {
    case QChar::Script_Latin:
        return nlOtherLatin;
    case QChar::Script_Greek:
        return nlGreek;
    case QChar::Script_Cyrillic:
        return nlCyrillic;
    case QChar::Script_Hebrew:
        return nlHebrew;
    case QChar::Script_Arabic:
        return nlArabic;
    default:
        return nlOtherLetter;
    }
}

NxNaturalAtom letter(uint folded)
{
    if (folded >= 'a' && folded <= 'z')
        return element(uchar(nlFirstLetter + (folded - 'a')), 0, 0);
    return element(leadOfScript(QChar::script(folded)), folded, 3);
}

NxNaturalAtom symbol(uint codePoint)
{
    const char *const end = RankedSymbols + sizeof(RankedSymbols) - 1;
    const char *const found =
        codePoint < 0x80 ? std::find(RankedSymbols, end, char(codePoint)) : end;
    if (found != end)
        return element(uchar(nlFirstSymbol + (found - RankedSymbols)), 0, 0);
    if (QChar::isSurrogate(codePoint))
        return element(nlLoneSurrogate, codePoint, 2);
    return element(nlOtherSymbol, codePoint, 3);
}

bool isMinor(uint codePoint)
{
    if (codePoint == '-' || codePoint == '\'')
        return true;
    return QChar::category(codePoint) == QChar::Other_Control
           && !(codePoint >= '\t' && codePoint <= '\r');
}

NxNaturalAtom minorAtom(uint codePoint)
{
    if (codePoint == '-')
        return valued(Kind::Minor, HyphenWeight);
    if (codePoint == '\'')
        return valued(Kind::Minor, ApostropheWeight);
    return valued(Kind::Minor, codePoint + 1);
}

// What is not taken apart any further.
NxNaturalAtom plainAtom(uint codePoint)
{
    if (isMinor(codePoint))
        return minorAtom(codePoint);
    if (QChar::category(codePoint) == QChar::Number_DecimalDigit)
        return valued(Kind::Digit, quint32(QChar::digitValue(codePoint)));
    if (isAccent(codePoint))
        return valued(Kind::Mark, codePoint);
    return isLetter(codePoint) ? letter(QChar::toCaseFolded(codePoint)) : symbol(codePoint);
}

struct Spelling
{
    uint codePoint; // Case folded.
    uint first;
    uint second; // A letter, or a mark.
};

// Letters that do not decompose but are read as others.
constexpr std::array<Spelling, 8> Spellings = {{
    {SharpS, 's', 's'},
    {0x00E6, 'a', 'e'},
    {0x0153, 'o', 'e'},
    {0x00FE, 't', 'h'},
    {0x00F8, 'o', StrokeMark},
    {0x0142, 'l', StrokeMark},
    {0x0111, 'd', StrokeMark},
    {0x0127, 'h', StrokeMark},
}};

void appendSpelled(uint codePoint, std::vector<NxNaturalAtom> &atoms)
{
    const uint folded = isAccent(codePoint) ? codePoint : QChar::toCaseFolded(codePoint);
    const auto spelling =
        std::find_if(Spellings.begin(), Spellings.end(),
                     [folded](const Spelling &known) { return known.codePoint == folded; });
    if (spelling == Spellings.end()) {
        atoms.push_back(plainAtom(folded));
        return;
    }
    atoms.push_back(plainAtom(spelling->first));
    atoms.push_back(plainAtom(spelling->second));
}

Width widthOf(uint codePoint)
{
    const QChar::Decomposition form = QChar::decompositionTag(codePoint);
    if (form == QChar::Narrow)
        return Width::Narrow;
    return form == QChar::Wide ? Width::Wide : Width::Ordinary;
}

void appendAtoms(uint codePoint, std::vector<NxNaturalAtom> &atoms)
{
    const size_t before = atoms.size();
    if (QChar::isSurrogate(codePoint) || !isLetter(codePoint)) {
        atoms.push_back(plainAtom(codePoint));
    } else {
        const QString text = QString::fromUcs4(&codePoint, 1);
        const QVector<uint> parts = text.normalized(QString::NormalizationForm_KD).toUcs4();
        for (const uint part : parts)
            appendSpelled(part, atoms);
    }
    const Width width = widthOf(codePoint);
    for (size_t i = before; i < atoms.size(); ++i)
        atoms[i].width = width;
}

// Decomposing is slow, and names use few letters: what was once read is kept, thread by thread.
class AtomCache
{
public:
    NxNaturalAtoms atoms(uint codePoint)
    {
        if (codePoint >= m_places.size())
            return readRare(codePoint);
        Place &place = m_places[codePoint];
        if (place.count == 0) {
            place.first = quint32(m_atoms.size());
            appendAtoms(codePoint, m_atoms);
            place.count = quint32(m_atoms.size()) - place.first;
        }
        return {m_atoms.data() + place.first, int(place.count)};
    }

private:
    struct Place
    {
        quint32 first = 0;
        quint32 count = 0; // 0: not read yet.
    };

    NxNaturalAtoms readRare(uint codePoint)
    {
        m_rare.clear();
        appendAtoms(codePoint, m_rare);
        return {m_rare.data(), int(m_rare.size())};
    }

    std::vector<Place> m_places = std::vector<Place>(0x10000);
    std::vector<NxNaturalAtom> m_atoms;
    std::vector<NxNaturalAtom> m_rare;
};

std::array<NxNaturalAtom, 0x80> asciiAtoms()
{
    std::array<NxNaturalAtom, 0x80> atoms;
    for (uint character = 0; character < atoms.size(); ++character)
        atoms[character] = plainAtom(character);
    return atoms;
}

} // namespace

NxNaturalAtoms nxNaturalAtoms(uint codePoint)
{
    thread_local AtomCache cache;
    return cache.atoms(codePoint);
}

const NxNaturalAtom &nxNaturalAsciiAtom(uchar character)
{
    static const std::array<NxNaturalAtom, 0x80> atoms = asciiAtoms();
    return atoms[character];
}
