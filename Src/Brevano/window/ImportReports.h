// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>

/// Arithmetic with reports.
namespace ImportReports {

/// Adds the lines and the sums of another report.
void add(NxImportReport *sum, const NxImportReport &more);
/// Takes lines out, with what they count for; lines that are not in the report are passed over.
void take(NxImportReport *report, const QVector<NxImportReportLine> &lines);
/// Whether another attempt at the path may end differently.
[[nodiscard]] bool isWorthAnotherTry(NxImportVerdict verdict);

} // namespace ImportReports
