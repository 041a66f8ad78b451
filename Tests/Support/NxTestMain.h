// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Support/NxObservedTest.h>
#include <Support/NxPatience.h>
#include <Support/NxTestHome.h>
#include <Support/NxTestLog.h>

#include <QGuiApplication>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#endif

#include <cstdio>

/// Runs a test class: an error line that it did not announce fails it, wherever it appeared.
template<typename Application, typename Test>
int nxRunTest(int argc, char **argv)
{
    const NxTestHome home;
    NxTestLog::start();
    int failures = 0;
    {
        Application application(argc, argv);
        NxObservedTest<Test> test;
        failures = QTest::qExec(&test, argc, argv);
    }
    const QByteArray late = NxTestLog::takeComplaints().toUtf8();
    if (late.isEmpty())
        return failures;
    std::fprintf(stderr, "outside every test function: %s\n", late.constData());
    return failures + 1;
}

/// The main function of a test program of one class, with a QGuiApplication.
#define NX_TEST_MAIN(Test)                                                                         \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return nxRunTest<QGuiApplication, Test>(argc, argv);                                       \
    }

/// The same with a QApplication, for programs that link Qt5::Widgets.
#define NX_TEST_MAIN_WIDGETS(Test)                                                                 \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return nxRunTest<QApplication, Test>(argc, argv);                                          \
    }
