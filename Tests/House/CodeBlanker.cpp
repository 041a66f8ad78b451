// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "CodeBlanker.h"

CodeBlanker::CodeBlanker(const QString &text) : m_text(text)
{
    m_result.reserve(text.size());
}

QString CodeBlanker::blanked()
{
    while (m_position < m_text.size()) {
        const QChar current = at(m_position);
        const QChar next = at(m_position + 1);
        if (current == QLatin1Char('/') && next == QLatin1Char('/'))
            blankLineComment();
        else if (current == QLatin1Char('/') && next == QLatin1Char('*'))
            blankBlockComment();
        else if (startsRawString())
            blankRawString();
        else if (current == QLatin1Char('"')
                 || (current == QLatin1Char('\'') && !isDigitSeparator()))
            blankLiteral(current);
        else
            keep();
    }
    return m_result;
}

QChar CodeBlanker::at(int index) const
{
    return index >= 0 && index < m_text.size() ? m_text.at(index) : QChar();
}

void CodeBlanker::keep()
{
    m_result += m_text.at(m_position++);
}

void CodeBlanker::blank(int count)
{
    for (int i = 0; i < count && m_position < m_text.size(); ++i, ++m_position) {
        const bool isLineBreak = at(m_position) == QLatin1Char('\n');
        m_result += isLineBreak ? QLatin1Char('\n') : QLatin1Char(' ');
    }
}

void CodeBlanker::blankLineComment()
{
    const int end = m_text.indexOf(QLatin1Char('\n'), m_position);
    blank((end < 0 ? m_text.size() : end) - m_position);
}

void CodeBlanker::blankBlockComment()
{
    const int end = m_text.indexOf(QLatin1String("*/"), m_position + 2);
    blank((end < 0 ? m_text.size() : end + 2) - m_position);
}

void CodeBlanker::blankLiteral(QChar quote)
{
    keep();
    while (m_position < m_text.size() && at(m_position) != quote
           && at(m_position) != QLatin1Char('\n'))
        blank(at(m_position) == QLatin1Char('\\') ? 2 : 1);
    if (m_position < m_text.size())
        keep();
}

void CodeBlanker::blankRawString()
{
    keep(); // R
    keep(); // the quote
    const int open = m_text.indexOf(QLatin1Char('('), m_position);
    if (open < 0)
        return;
    const QString close =
        QLatin1Char(')') + m_text.mid(m_position, open - m_position) + QLatin1Char('"');
    const int end = m_text.indexOf(close, open);
    blank((end < 0 ? m_text.size() : end + close.size() - 1) - m_position);
    if (m_position < m_text.size())
        keep();
}

bool CodeBlanker::startsRawString() const
{
    if (at(m_position) != QLatin1Char('R') || at(m_position + 1) != QLatin1Char('"'))
        return false;
    const QChar before = at(m_position - 1);
    return !before.isLetterOrNumber() || before == QLatin1Char('u') || before == QLatin1Char('U')
           || before == QLatin1Char('L') || before == QLatin1Char('8');
}

bool CodeBlanker::isDigitSeparator() const
{
    const auto isHexDigit = [](QChar c) {
        return c.isDigit() || (c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f'));
    };
    return isHexDigit(at(m_position - 1)) && isHexDigit(at(m_position + 1));
}
