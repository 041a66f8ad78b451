// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>

#include <QByteArray>
#include <QString>

/// How an import's report is told.
namespace ImportReportText {

/// "already_there", "copy_of", "refused", "unreadable", "cancelled".
[[nodiscard]] QString verdictWord(NxImportVerdict verdict);
/// Whether the verdict is a failure of the file, told on standard error.
[[nodiscard]] bool isFailure(NxImportVerdict verdict);
/// The ExitCode that an import ends with.
[[nodiscard]] int exitCode(const NxImportReport &report, bool interrupted);

/// One report line as a JSON object.
[[nodiscard]] QByteArray jsonLine(const NxImportReportLine &line);
/// The sums as a JSON object, the last line of an import.
[[nodiscard]] QByteArray jsonSummary(const NxImportReport &report, bool interrupted);
/// The sums in a sentence.
[[nodiscard]] QString summary(const NxImportReport &report, bool interrupted);

} // namespace ImportReportText
