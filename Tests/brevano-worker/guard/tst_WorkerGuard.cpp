// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/guard/ProcessWatch.h>

#include <QProcess>
#include <QtTest>

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>

class tst_WorkerGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProcessThatHoldsTooMuchEndsItself_data();
    void aProcessThatHoldsTooMuchEndsItself();
    void aProcessWhoseParentIsGoneEndsItself();
    void whatIsGivenUpIsRefusedFromThenOn();
    void memoryIsCountedInBytes();

private:
    [[nodiscard]] static QProcess *probe(const QStringList &arguments);
};

QProcess *tst_WorkerGuard::probe(const QStringList &arguments)
{
    auto *process = new QProcess;
    process->start(QStringLiteral(NX_PROBE), arguments);
    return process;
}

void tst_WorkerGuard::aProcessThatHoldsTooMuchEndsItself_data()
{
    QTest::addColumn<int>("held");
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("code");

    QTest::newRow("far above the limit") << 400 << 200 << int(NxWorkerExit::TooMuchMemory);
    QTest::newRow("below it") << 20 << 400 << int(NxWorkerExit::Done);
}

void tst_WorkerGuard::aProcessThatHoldsTooMuchEndsItself()
{
    QFETCH(int, held);
    QFETCH(int, limit);
    QFETCH(int, code);

    const std::unique_ptr<QProcess> process(
        probe({QStringLiteral("hold"), QString::number(held), QString::number(limit)}));
    QVERIFY(process->waitForFinished());
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(process->exitCode(), code);
}

void tst_WorkerGuard::aProcessWhoseParentIsGoneEndsItself()
{
    // Else whoever takes in orphans may leave the ended one standing.
    QCOMPARE(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    QProcess shell;
    shell.start(QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"), QStringLiteral("\"$0\" wait & read line"),
                 QStringLiteral(NX_PROBE)});
    QVERIFY(shell.waitForReadyRead());
    const pid_t orphan = pid_t(shell.readLine().trimmed().toInt());
    QVERIFY(orphan > 0);
    QCOMPARE(::kill(orphan, 0), 0);
    shell.kill();
    QVERIFY(shell.waitForFinished());
    int status = 0;
    const auto hasEnded = [&] { return ::waitpid(orphan, &status, WNOHANG) == orphan; };
    QVERIFY(QTest::qWaitFor(hasEnded, NxPatience));
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), int(NxWorkerExit::EditorGone));
}

void tst_WorkerGuard::whatIsGivenUpIsRefusedFromThenOn()
{
    const NxTempDir dir;
    const QString inside = dir.makeDir(QStringLiteral("inside"));
    const QString outside = dir.makeDir(QStringLiteral("outside"));
    dir.write(QStringLiteral("outside/readable"), "text");
    const std::unique_ptr<QProcess> process(
        probe({QStringLiteral("confine"), inside, outside}));
    QVERIFY(process->waitForFinished());
    QCOMPARE(process->exitCode(), 0); // Reading is never given up.
    const QList<QByteArray> told = process->readAllStandardOutput().trimmed().split(' ');
    QCOMPARE(told.size(), 5);
    // A kernel that cannot take it away says so; then it is still there.
    QCOMPARE(told.at(1), QByteArray(told.at(0) == "1" ? "refused" : "network"));
    QCOMPARE(told.at(3), QByteArray("written"));
    QCOMPARE(told.at(4), QByteArray(told.at(2) == "1" ? "refused" : "written"));
}

void tst_WorkerGuard::memoryIsCountedInBytes()
{
    constexpr qint64 MiB = 1024 * 1024;
    const qint64 before = ProcessWatch::residentBytes();
    QVERIFY(before > MiB);
    std::vector<char> held(size_t(64 * MiB), 1);
    const qint64 grown = ProcessWatch::residentBytes() - before;
    QVERIFY2(grown > 48 * MiB && grown < 160 * MiB, qPrintable(QString::number(grown)));
    QCOMPARE(held.back(), char(1));
}

NX_TEST_MAIN(tst_WorkerGuard)
#include "tst_WorkerGuard.moc"
