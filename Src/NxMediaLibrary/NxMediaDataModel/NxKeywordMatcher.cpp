// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxKeywordMatcher_p.h"

#include <algorithm>

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
    return m_matcher.indexIn(text) >= 0;
}
