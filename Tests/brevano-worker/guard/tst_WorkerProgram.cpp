// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <NxWorkerProtocol/NxWorkerFrames.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QProcess>
#include <QtTest>

/// The program itself, spoken to over its pipe.
class tst_WorkerProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itSaysHelloWithItsVersionFirst();
    void eachRequestIsAnsweredByItsNumber();
    void aFileThatIsNotThereIsAReason();
    void itEndsWithItsPipe();
    void whatIsNoMessageEndsIt_data();
    void whatIsNoMessageEndsIt();
    void withoutAFolderItSaysWhoStartsIt();

private:
    [[nodiscard]] std::optional<NxWorkerFrames::Frame> next();
    [[nodiscard]] bool greeted();

    const NxTempDir m_dir;
    std::unique_ptr<QProcess> m_worker;
    NxWorkerFrames m_frames;
};

void tst_WorkerProgram::init()
{
    m_frames = {};
    m_worker = std::make_unique<QProcess>();
    m_worker->start(QStringLiteral(NX_WORKER_PROGRAM),
                    {m_dir.filePath(QStringLiteral("cache"))});
    QVERIFY(m_worker->waitForStarted());
}

void tst_WorkerProgram::cleanup()
{
    m_worker->kill();
    m_worker->waitForFinished();
    m_worker.reset();
}

std::optional<NxWorkerFrames::Frame> tst_WorkerProgram::next()
{
    std::optional<NxWorkerFrames::Frame> frame = m_frames.take();
    while (!frame && !m_frames.isBroken() && m_worker->waitForReadyRead()) {
        m_frames.append(m_worker->readAllStandardOutput());
        frame = m_frames.take();
    }
    return frame;
}

bool tst_WorkerProgram::greeted()
{
    const auto frame = next();
    return frame && frame->word == NxWorkerWord::Hello;
}

void tst_WorkerProgram::itSaysHelloWithItsVersionFirst()
{
    const auto frame = next();
    QVERIFY(frame);
    QVERIFY(frame->word == NxWorkerWord::Hello);
    NxWorkerHello hello;
    QVERIFY(NxWorkerMessages::unpack(frame->bytes, &hello));
    QCOMPARE(hello.version, NxWorkerProtocol::Version);
}

void tst_WorkerProgram::eachRequestIsAnsweredByItsNumber()
{
    QVERIFY(greeted());
    NxReadRequest request;
    request.road = NxFootageRoad::Text;
    request.path = QFile::encodeName(m_dir.write(
        QStringLiteral("a.srt"), "1\n00:00:01,000 --> 00:00:02,000\nHello\n"));
    for (const quint64 number : {7, 9}) {
        request.number = number;
        m_worker->write(NxWorkerFrames::framed(NxWorkerWord::Request,
                                               NxWorkerMessages::packed(request)));
    }
    for (const quint64 number : {7, 9}) {
        const auto opened = next();
        quint64 openedNumber = 0;
        QVERIFY(opened && opened->word == NxWorkerWord::Opened);
        QVERIFY(NxWorkerMessages::unpackOpened(opened->bytes, &openedNumber));
        QCOMPARE(openedNumber, number);
        const auto answered = next();
        NxReadAnswer answer;
        QVERIFY(answered && answered->word == NxWorkerWord::Answer);
        QVERIFY(NxWorkerMessages::unpack(answered->bytes, &answer));
        QCOMPARE(answer.number, number);
        QCOMPARE(answer.failure, QString());
        QVERIFY(answer.facts);
        QCOMPARE(answer.facts->durationUs, 2'000'000);
        QVERIFY(answer.fingerprint.isNull()); // Nobody asked for it.
    }
}

void tst_WorkerProgram::aFileThatIsNotThereIsAReason()
{
    QVERIFY(greeted());
    NxReadRequest request;
    request.number = 1;
    request.path = QFile::encodeName(m_dir.filePath(QStringLiteral("none.mp4")));
    m_worker->write(
        NxWorkerFrames::framed(NxWorkerWord::Request, NxWorkerMessages::packed(request)));
    const auto answered = next(); // Nothing was opened.
    NxReadAnswer answer;
    QVERIFY(answered && answered->word == NxWorkerWord::Answer);
    QVERIFY(NxWorkerMessages::unpack(answered->bytes, &answer));
    QCOMPARE(answer.failure, QStringLiteral("The file is missing."));
    QVERIFY(!answer.facts);
}

void tst_WorkerProgram::itEndsWithItsPipe()
{
    QVERIFY(greeted());
    m_worker->closeWriteChannel();
    QVERIFY(m_worker->waitForFinished());
    QCOMPARE(m_worker->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_worker->exitCode(), int(NxWorkerExit::Done));
}

void tst_WorkerProgram::whatIsNoMessageEndsIt_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("an unknown word") << QByteArray("\x01\0\0\0\x63z", 6);
    QTest::newRow("a length beyond reason") << QByteArray("\xff\xff\xff\xff\x02", 5);
    QTest::newRow("a request that is none") << NxWorkerFrames::framed(NxWorkerWord::Request, "x");
    QTest::newRow("an answer") << NxWorkerFrames::framed(
        NxWorkerWord::Answer, NxWorkerMessages::packed(NxReadAnswer()));
}

void tst_WorkerProgram::whatIsNoMessageEndsIt()
{
    QFETCH(QByteArray, bytes);

    QVERIFY(greeted());
    m_worker->write(bytes);
    QVERIFY(m_worker->waitForFinished());
    QCOMPARE(m_worker->exitCode(), int(NxWorkerExit::PipeBroken));
}

void tst_WorkerProgram::withoutAFolderItSaysWhoStartsIt()
{
    QProcess worker;
    worker.start(QStringLiteral(NX_WORKER_PROGRAM), QStringList());
    QVERIFY(worker.waitForFinished());
    QCOMPARE(worker.exitCode(), int(NxWorkerExit::WrongUsage));
    QVERIFY(worker.readAllStandardError().contains("started by the editor"));
    QVERIFY(worker.readAllStandardOutput().isEmpty());
}

NX_TEST_MAIN(tst_WorkerProgram)
#include "tst_WorkerProgram.moc"
