// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerProcess.h>

#include "ScriptedFootage.h"

#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QTest>

#include <signal.h>

#include <vector>

Q_DECLARE_METATYPE(NxWorkerEnd)

namespace {

constexpr quint64 Number = 7;

/// A worker, and what it said.
struct Worker
{
    explicit Worker(const QString &manner = QStringLiteral("plain"), const QString &program = {})
        : footage(manner),
          process(std::make_unique<NxWorkerProcess>(program.isEmpty() ? footage.program() : program,
                                                    footage.cacheFolder()))
    {
        NxWorkerProcess *p = process.get();
        QObject::connect(p, &NxWorkerProcess::ready, p,
                         [this] { heard += QStringLiteral("ready"); });
        QObject::connect(p, &NxWorkerProcess::opened, p, [this](quint64 number) {
            heard += QStringLiteral("opened %1").arg(number);
        });
        QObject::connect(p, &NxWorkerProcess::answered, p, [this](const NxReadAnswer &answer) {
            heard += QStringLiteral("answered %1").arg(answer.number);
            answers.push_back(answer);
        });
        QObject::connect(p, &NxWorkerProcess::ended, p,
                         [this](NxWorkerEnd how, const QString &text) {
                             heard += QStringLiteral("ended");
                             end = how;
                             why = text;
                         });
        QObject::connect(p, &NxWorkerProcess::gone, p, [this] { heard += QStringLiteral("gone"); });
    }
    bool startsReady()
    {
        process->start();
        return QTest::qWaitFor([this] { return process->isReady(); }, 30'000);
    }
    bool goes()
    {
        return QTest::qWaitFor([this] { return heard.contains(QStringLiteral("gone")); }, 30'000);
    }
    void ask(const QString &name)
    {
        NxReadRequest request;
        request.number = Number;
        request.path = QFile::encodeName(footage.file(name));
        process->ask(request);
    }

    const ScriptedFootage footage;
    std::unique_ptr<NxWorkerProcess> process;
    QStringList heard;
    std::vector<NxReadAnswer> answers;
    NxWorkerEnd end = NxWorkerEnd::Closed;
    QString why;
};

} // namespace

class tst_NxWorkerProcess : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itGreetsAndAnswers();
    void itIsNotReadyWhileItWorks();
    void anotherVersionIsRefusedAndBothAreNamed();
    void aWorkerEndsForAReason_data();
    void aWorkerEndsForAReason();
    void whatCannotBeStartedIsSaid();
    void itCloses();
    void itIsKilled();
    void oneThatIsStoppedCanBeKilled();
    void oneThatListensNoMoreIsNotWatched();
    void aRunningOneDiesWithItsOwner();
    void itsOwnerMayLetItGoInAnySignal_data();
    void itsOwnerMayLetItGoInAnySignal();
};

void tst_NxWorkerProcess::itGreetsAndAnswers()
{
    Worker f;
    QVERIFY(!f.process->hasGreeted());
    QVERIFY(f.startsReady());
    QVERIFY(f.process->hasGreeted());
    QVERIFY(f.process->hello().hasNoNetwork);
    QVERIFY(!f.process->hello().writesCacheOnly);
    QCOMPARE(f.process->hello().version, NxWorkerProtocol::Version);
    QCOMPARE(QStringList(QString::number(f.process->processId())), f.footage.starts());
    f.ask(QStringLiteral("a.mp4"));
    QTRY_COMPARE(f.answers.size(), size_t(1));
    QCOMPARE(f.heard, QStringList({QStringLiteral("ready"), QStringLiteral("opened 7"),
                                   QStringLiteral("answered 7")}));
    QCOMPARE(f.answers.front().facts->reel, QStringLiteral("a.mp4"));
    QCOMPARE(f.answers.front().stamp.size, 1);
}

void tst_NxWorkerProcess::itIsNotReadyWhileItWorks()
{
    Worker f;
    QVERIFY(f.startsReady());
    f.ask(QStringLiteral("gated.mp4"));
    QVERIFY(!f.process->isReady());
    QTRY_VERIFY(f.heard.contains(QStringLiteral("opened 7")));
    QVERIFY(!f.process->isReady());
    QVERIFY(f.process->isRunning());
}

void tst_NxWorkerProcess::anotherVersionIsRefusedAndBothAreNamed()
{
    Worker f(QStringLiteral("otherversion"));
    f.process->start();
    QVERIFY(f.goes());
    QCOMPARE(f.heard, QStringList({QStringLiteral("ended"), QStringLiteral("gone")}));
    QCOMPARE(f.end, NxWorkerEnd::WrongVersion);
    const QStringList named{QString::number(NxWorkerProtocol::Version),
                            QString::number(NxWorkerProtocol::Version + 41), f.footage.program()};
    for (const QString &part : named)
        QVERIFY2(f.why.contains(part), qUtf8Printable(f.why));
}

void tst_NxWorkerProcess::aWorkerEndsForAReason_data()
{
    QTest::addColumn<QString>("manner");
    QTest::addColumn<QString>("file");
    QTest::addColumn<NxWorkerEnd>("end");
    const QString plain = QStringLiteral("plain");
    QTest::newRow("ends at once") << QStringLiteral("endsatonce") << QString()
                                  << NxWorkerEnd::Crashed;
    QTest::newRow("greets with garbage")
        << QStringLiteral("garbage") << QString() << NxWorkerEnd::Confused;
    QTest::newRow("crashes") << plain << QStringLiteral("crash.mp4") << NxWorkerEnd::Crashed;
    QTest::newRow("crashes before opening")
        << plain << QStringLiteral("crash-unopened.mp4") << NxWorkerEnd::Crashed;
    QTest::newRow("takes too much memory")
        << plain << QStringLiteral("memory.mp4") << NxWorkerEnd::TooMuchMemory;
    QTest::newRow("answers garbage")
        << plain << QStringLiteral("garbage.mp4") << NxWorkerEnd::Confused;
}

void tst_NxWorkerProcess::aWorkerEndsForAReason()
{
    QFETCH(QString, manner);
    QFETCH(QString, file);
    Worker f(manner);
    f.process->start();
    if (!file.isEmpty()) {
        QTRY_VERIFY(f.process->isReady());
        f.ask(file);
    }
    QVERIFY(f.goes());
    QTEST(f.end, "end");
    QCOMPARE(f.heard.count(QStringLiteral("ended")), 1);
    QCOMPARE(f.heard.last(), QStringLiteral("gone"));
    QVERIFY(!f.why.isEmpty());
    QVERIFY(!f.process->isReady());
    QVERIFY(!f.process->isRunning());
}

void tst_NxWorkerProcess::whatCannotBeStartedIsSaid()
{
    Worker f(QStringLiteral("plain"), QStringLiteral("/no/such/program"));
    f.process->start();
    QTRY_COMPARE(f.heard, QStringList(QStringLiteral("ended")));
    QCOMPARE(f.end, NxWorkerEnd::NotStarted);
    QVERIFY2(f.why.contains(QStringLiteral("/no/such/program")), qUtf8Printable(f.why));
    QVERIFY(!f.process->isRunning());
}

void tst_NxWorkerProcess::itCloses()
{
    Worker f;
    QVERIFY(f.startsReady());
    f.process->close();
    QVERIFY(!f.process->isReady());
    QVERIFY(f.goes());
    QCOMPARE(f.end, NxWorkerEnd::Closed);
    QCOMPARE(f.heard.mid(1), QStringList({QStringLiteral("ended"), QStringLiteral("gone")}));
}

void tst_NxWorkerProcess::itIsKilled()
{
    Worker f;
    QVERIFY(f.startsReady());
    f.ask(QStringLiteral("gated.mp4"));
    f.process->kill();
    QVERIFY(f.goes());
    QCOMPARE(f.end, NxWorkerEnd::Crashed);
    QVERIFY(f.answers.empty());
}

void tst_NxWorkerProcess::oneThatIsStoppedCanBeKilled()
{
    Worker f;
    QVERIFY(f.startsReady());
    const qint64 id = f.process->processId();
    QCOMPARE(kill(pid_t(id), SIGSTOP), 0);
    f.ask(QStringLiteral("a.mp4"));
    f.process->kill();
    QVERIFY(f.goes());
    QVERIFY(f.footage.requests().isEmpty());
    QTRY_VERIFY(isProcessGone(id));
}

// So is one that has crashed, until its end is noticed. Watching on would be a warning of Qt's.
void tst_NxWorkerProcess::oneThatListensNoMoreIsNotWatched()
{
    constexpr int fewTurns = 10;
    Worker f(QStringLiteral("earless"));
    QVERIFY(f.startsReady());
    f.ask(QStringLiteral("a.mp4"));
    for (int turn = 0; turn < fewTurns; ++turn)
        QCoreApplication::processEvents();
    QVERIFY(f.answers.empty());
    f.process->kill();
    QVERIFY(f.goes());
    QCOMPARE(f.end, NxWorkerEnd::Crashed);
}

void tst_NxWorkerProcess::aRunningOneDiesWithItsOwner()
{
    Worker f;
    QVERIFY(f.startsReady());
    const qint64 id = f.process->processId();
    f.ask(QStringLiteral("hang-opened.mp4"));
    QTRY_VERIFY(f.heard.contains(QStringLiteral("opened 7")));
    QElapsedTimer clock;
    clock.start();
    f.process.reset();
    QTRY_VERIFY(isProcessGone(id));
    QVERIFY2(clock.elapsed() < 5'000, "nobody waits for one that hangs");
}

void tst_NxWorkerProcess::itsOwnerMayLetItGoInAnySignal_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"ready", "opened 7", "answered 7"})
        QTest::newRow(line) << QString::fromLatin1(line);
}

void tst_NxWorkerProcess::itsOwnerMayLetItGoInAnySignal()
{
    QFETCH(QString, line);
    Worker f;
    NxWorkerProcess *process = f.process.get();
    const auto letGo = [&f, &line] {
        if (f.heard.last() == line)
            f.process.release()->deleteLater();
    };
    connect(process, &NxWorkerProcess::ready, this, letGo);
    connect(process, &NxWorkerProcess::opened, this, letGo);
    connect(process, &NxWorkerProcess::answered, this, letGo);
    process->start();
    QTRY_VERIFY(f.heard.contains(QStringLiteral("ready")));
    const qint64 id = f.footage.starts().first().toLongLong();
    if (f.process)
        f.ask(QStringLiteral("a.mp4"));
    QTRY_VERIFY(isProcessGone(id));
    QVERIFY(f.heard.contains(line));
    QVERIFY(!f.process);
}

NX_TEST_MAIN(tst_NxWorkerProcess)
#include "tst_NxWorkerProcess.moc"
