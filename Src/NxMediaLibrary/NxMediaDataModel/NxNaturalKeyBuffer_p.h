// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QVarLengthArray>

/// The key of one name after the other, written in place. The same bytes as NxNaturalKeyWriter
/// writes, but quickly for names of few kinds of characters, and names are mostly such.
class NxNaturalKeyBuffer
{
public:
    static constexpr int PaddingSize = 8;

    void write(const QString &name);
    /// The key, and behind it PaddingSize zeros. The bytes stand until the next write().
    [[nodiscard]] const uchar *data() const { return m_bytes.constData(); }
    [[nodiscard]] int size() const { return m_size; }

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

    [[nodiscard]] int writeQuickly(const QString &name);
    [[nodiscard]] uchar *putNumber(uchar *out, const QChar *&at, const QChar *end);
    [[nodiscard]] uchar *putAtoms(uchar *out, ushort unit);
    [[nodiscard]] uchar *putLists(uchar *out) const;
    void writeSlowly(const QString &name);

    int m_size = 0;
    quint32 m_elements = 0;
    QVarLengthArray<Mark, 8> m_marks;
    QVarLengthArray<Minor, 16> m_minors;
    QVarLengthArray<uchar, 1024> m_bytes; // Names of ordinary length need no heap.
};
