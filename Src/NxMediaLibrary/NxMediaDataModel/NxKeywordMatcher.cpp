// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxKeywordMatcher_p.h"

#include <algorithm>

namespace {

constexpr ushort FirstBeyondAscii = 0x80;

bool hasUnit(const QString &text, QChar folded)
{
    const QChar upper = folded.unicode() < FirstBeyondAscii ? folded.toUpper() : folded;
    return std::any_of(text.begin(), text.end(), [folded, upper](QChar unit) {
        if (unit.unicode() < FirstBeyondAscii)
            return unit == folded || unit == upper;
        return unit.toCaseFolded() == folded;
    });
}

} // namespace

NxKeywordMatcher::NxKeywordMatcher(const QString &keyword)
    : m_keyword(keyword),
      m_matcher(keyword, Qt::CaseInsensitive),
      m_hasSurrogates(std::any_of(keyword.begin(), keyword.end(),
                                  [](QChar unit) { return unit.isSurrogate(); }))
{
}

bool NxKeywordMatcher::isIn(const QString &text) const
{
    if (m_keyword.isEmpty())
        return true;
    // Where half a pair meets half a pair the two searches of Qt are not the same.
    if (m_hasSurrogates)
        return text.contains(m_keyword, Qt::CaseInsensitive);
    if (m_keyword.size() == 1)
        return hasUnit(text, m_keyword.front().toCaseFolded());
    return m_matcher.indexIn(text) >= 0;
}
