// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

/// Replaces comments and the insides of literals by spaces, line breaks kept, so that what is left
/// is code alone and stands at its old place. Knows raw strings and digit separators.
class CodeBlanker
{
public:
    explicit CodeBlanker(const QString &text);

    [[nodiscard]] QString blanked();

private:
    [[nodiscard]] QChar at(int index) const;
    void keep();
    void blank(int count);
    void blankLineComment();
    void blankBlockComment();
    void blankLiteral(QChar quote);
    void blankRawString();
    [[nodiscard]] bool startsRawString() const;
    [[nodiscard]] bool isDigitSeparator() const;

    const QString m_text;
    QString m_result;
    int m_position = 0;
};
