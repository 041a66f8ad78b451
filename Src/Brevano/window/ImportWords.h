// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>

#include <QCoreApplication>

/// What is said about an import, in the language of now.
class ImportWords
{
    Q_DECLARE_TR_FUNCTIONS(ImportWords)
public:
    /// "300 added, 2 already there, 1 cannot be read".
    [[nodiscard]] static QString sums(const NxImportReport &report);
    /// "Already there".
    [[nodiscard]] static QString verdict(NxImportVerdict verdict);
    /// The sums and below them the lines: verdict, path and reason, with tabs in between.
    [[nodiscard]] static QString text(const NxImportReport &report);
    /// One line of that text.
    [[nodiscard]] static QString text(const NxImportReportLine &line);
    /// Whether the report says more than that all was added.
    [[nodiscard]] static bool isWorthReading(const NxImportReport &report);
};
