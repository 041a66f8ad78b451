// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// A language in which every text stands in brackets, spoken while this object lives.
class NxBracketLanguage : public QTranslator
{
public:
    NxBracketLanguage() { QCoreApplication::installTranslator(this); }
    ~NxBracketLanguage() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *text, const char *,
                                    int) const override
    {
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }
};
