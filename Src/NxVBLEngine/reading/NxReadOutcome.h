// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <QString>

/// What became of a request.
enum class NxReadEnd {
    Answered, ///< The worker answered, be it that the file cannot be read.
    Killed, ///< The file ended every worker that it was given to.
    DriveSilent, ///< Nobody can read from its drive now; it was not read.
    NoWorker, ///< There is no worker to give it to; it was not read.
};

struct NxReadOutcome
{
    quint64 number = 0; ///< The request's.
    NxReadEnd end = NxReadEnd::Answered;
    NxReadAnswer answer; ///< When answered.
    QString reason; ///< Otherwise: a sentence for the user.
    QString volume; ///< The drive, when it is silent.
    QString volumeBack; ///< A drive that answers again, with this very file.
};
