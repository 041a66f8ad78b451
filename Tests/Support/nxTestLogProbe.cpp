// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLog.h>

#include <Support/NxTestMain.h>

#include <QObject>
#include <QTest>

#include <thread>

/// Test functions that keep or break the rules of NxTestLog.
class nxTestLogProbe : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void silent() {}
    void info() { NX_LOG_INFO("all is well"); }
    void announced()
    {
        NxTestLog::expectError(QStringLiteral("went wrong"));
        NX_LOG_ERROR("it went wrong as planned");
    }
    void announcedTwice()
    {
        NxTestLog::expectError(QStringLiteral("wrong"));
        NxTestLog::expectError(QStringLiteral("wrong"));
        NX_LOG_ERROR("wrong once");
        NX_LOG_ERROR("wrong twice");
    }
    void announcedMany()
    {
        NxTestLog::expectErrors(QStringLiteral("wrong"));
        for (int i = 0; i < 3; ++i)
            NX_LOG_ERROR("wrong %d", i);
    }
    void announcedWarning()
    {
        NxTestLog::expectError(QStringLiteral("mind the gap"));
        qWarning("mind the gap");
    }
    void unannounced() { NX_LOG_ERROR("nobody said so"); }
    void unannouncedWarning() { qWarning("mind the gap"); }
    void unannouncedOnAThread()
    {
        std::thread([] { NX_LOG_ERROR("nobody said so"); }).join();
    }
    void announcedTooLate()
    {
        NX_LOG_ERROR("nobody said so");
        NxTestLog::expectError(QStringLiteral("nobody said so"));
    }
    void oncePerAnnouncement()
    {
        NxTestLog::expectError(QStringLiteral("wrong"));
        NX_LOG_ERROR("wrong once");
        NX_LOG_ERROR("wrong twice");
    }
    void neverCame() { NxTestLog::expectError(QStringLiteral("never said")); }
    void manyNeverCame() { NxTestLog::expectErrors(QStringLiteral("never said")); }
};

NX_TEST_MAIN(nxTestLogProbe)
#include "nxTestLogProbe.moc"
