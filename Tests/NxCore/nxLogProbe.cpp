// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLog.h>

#include <QCoreApplication>

#include <cstdio>
#include <cstring>

/// A host in small: logs an info line and an error line, and ends without tidying up.
/// Arguments: "quiet", "errors" (errors on standard error), or "file" and a path.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const char *mode = argc > 1 ? argv[1] : "quiet";
    if (std::strcmp(mode, "errors") == 0)
        GetGlobalLogInstance()->setErrorsOnStandardError(true);
    if (std::strcmp(mode, "file") == 0) {
        const NxResult<void> started =
            GetGlobalLogInstance()->startFile(QString::fromLocal8Bit(argv[2]));
        if (!started)
            return 1;
    }
    for (int i = 0; i < 500; ++i)
        NX_LOG_INFO("line %d", i);
    NX_LOG_ERROR("something failed");
    return 0;
}
