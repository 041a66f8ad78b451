// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>

#include <QProcess>
#include <QTest>

class tst_NxTestLog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void judgesTestFunctions_data();
    void judgesTestFunctions();
};

void tst_NxTestLog::judgesTestFunctions_data()
{
    QTest::addColumn<bool>("passes");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("silent") << true << QString();
    QTest::newRow("info") << true << QString();
    QTest::newRow("announced") << true << QString();
    QTest::newRow("announcedTwice") << true << QString();
    QTest::newRow("announcedMany") << true << QString();
    QTest::newRow("announcedWarning") << true << QString();
    const QString unannounced = QStringLiteral("not announced: nobody said so");
    QTest::newRow("unannounced") << false << unannounced;
    QTest::newRow("unannouncedWarning") << false << QStringLiteral("not announced: mind the gap");
    QTest::newRow("unannouncedOnAThread") << false << unannounced;
    QTest::newRow("announcedTooLate") << false << unannounced;
    QTest::newRow("oncePerAnnouncement") << false << QStringLiteral("not announced: wrong twice");
    const QString missing = QStringLiteral("announced, but never came: never said");
    QTest::newRow("neverCame") << false << missing;
    QTest::newRow("manyNeverCame") << false << missing;
}

void tst_NxTestLog::judgesTestFunctions()
{
    QFETCH(bool, passes);
    QFETCH(QString, complaint);
    const QString function = QString::fromUtf8(QTest::currentDataTag());

    QProcess probe;
    probe.setProcessChannelMode(QProcess::MergedChannels);
    probe.start(QStringLiteral(NX_PROBE), {function});
    QVERIFY2(probe.waitForFinished(), qUtf8Printable(probe.errorString()));
    const QString output = QString::fromUtf8(probe.readAll());

    QVERIFY2((probe.exitCode() == 0) == passes, qUtf8Printable(output));
    QVERIFY2(output.contains(complaint), qUtf8Printable(output));
    const QString verdict = passes ? QStringLiteral("PASS   : ") : QStringLiteral("FAIL!  : ");
    const QString line = verdict + QStringLiteral("nxTestLogProbe::%1()").arg(function);
    QVERIFY2(output.contains(line), qUtf8Printable(output));
}

NX_TEST_MAIN(tst_NxTestLog)
#include "tst_NxTestLog.moc"
