// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTest>

/// How long tests wait for what must come, in ms. It is never waited for where all is well; Qt's
/// own five seconds are too few for a machine that does other things, too. NX_PATIENCE in the
/// environment replaces it where tests are expected to fail; some wait for limits of ten seconds.
inline const int NxPatience = [] {
    constexpr int usual = 60'000;
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("NX_PATIENCE", &isGiven);
    return isGiven ? given : usual;
}();

#undef QTRY_VERIFY
#undef QTRY_VERIFY2
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), NxPatience)
#define QTRY_VERIFY2(condition, said) QTRY_VERIFY2_WITH_TIMEOUT((condition), (said), NxPatience)
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), NxPatience)
