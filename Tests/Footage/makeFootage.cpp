// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageRecipes.h"
#include "NxFootageSet.h"

#include <QCoreApplication>

#include <cstdio>

/// Makes the footage of the build tree, so that no test's time limit has to hold for it.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const NxResult<QString> folder =
        NxFootageSet::make(QStringLiteral(NX_FOOTAGE_DIR), NxFootageRecipes::all());
    if (!folder) {
        std::fprintf(stderr, "makeFootage: %s\n", qUtf8Printable(folder.errorText()));
        return 1;
    }
    std::printf("%s\n", qUtf8Printable(*folder));
    return 0;
}
