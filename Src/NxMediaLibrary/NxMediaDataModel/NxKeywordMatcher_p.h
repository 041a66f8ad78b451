// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringMatcher>

/// A keyword, made ready once to be looked for in many texts.
///
/// Answers exactly what QString::contains() answers without regard to case.
class NxKeywordMatcher
{
public:
    /// An empty keyword is in every text.
    explicit NxKeywordMatcher(const QString &keyword);

    [[nodiscard]] bool isIn(const QString &text) const;
    [[nodiscard]] bool isEmpty() const { return m_keyword.isEmpty(); }

private:
    QString m_keyword;
    QStringMatcher m_matcher;
    bool m_hasSurrogates = false;
};
