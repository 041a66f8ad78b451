// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What a test program says about the errors it provokes.
///
/// An error line of the global log, and every qWarning() or worse, fails the test function in
/// which it appears, unless the function (or its init()) announced it first. An announced error
/// that does not come fails the function as well. Lines may come from any thread; they are judged
/// when the test function returns.
class NxTestLog
{
public:
    /// Announces one error line that contains this text; call it twice for two lines.
    static void expectError(const QString &part);
    /// Announces error lines that contain this text: one or more of them.
    static void expectErrors(const QString &part);

    /// Used by NX_TEST_MAIN: listens to the log and to Qt.
    static void start();
    /// Used by NX_TEST_MAIN: takes Qt's messages, in front of whoever took them until now.
    static void listenToQt();
    /// Used by NX_TEST_MAIN: says what was wrong since the last call and forgets it; empty when
    /// all was as announced.
    static QString takeComplaints();
};
