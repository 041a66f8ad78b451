// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxNaturalAtoms_p.h"

#include <QString>
#include <QVarLengthArray>

/// Writes the key of one name; made once and used for many names.
///
/// A key is four lists, each closed by a zero byte: the elements, their marks, their widths, the
/// hyphens and the like. Zero bytes at the end are left out, which changes no comparison.
class NxNaturalKeyWriter
{
public:
    /// The bytes stand until the next call.
    void write(const QString &name);
    [[nodiscard]] const uchar *data() const { return m_key.constData(); }
    [[nodiscard]] int size() const { return m_key.size(); }

private:
    struct Minor
    {
        quint32 place;
        uchar weight;
    };
    struct Mark
    {
        quint32 place;
        quint32 codePoint;
    };
    struct Form
    {
        quint32 place;
        NxNaturalAtom::Width width;
    };

    void clear();
    void take(const NxNaturalAtom &atom);
    void takeDigit(const NxNaturalAtom &atom);
    void endNumber();
    void countElement(NxNaturalAtom::Width width);
    void appendMarks();
    void appendWidths();
    void appendMinors();

    QVarLengthArray<uchar, 512> m_key;
    QVarLengthArray<uchar, 64> m_digits; // The run that is being read.
    NxNaturalAtom::Width m_digitsWidth = NxNaturalAtom::Width::Ordinary;
    quint32 m_elements = 0;
    QVarLengthArray<Mark, 16> m_marks;
    QVarLengthArray<Form, 16> m_forms; // Of the elements that are not of ordinary width.
    QVarLengthArray<Minor, 16> m_minors;
};
