// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadingThread.h>

#include "ScriptedFootage.h"

#include <NxCore/NxDoorbell.h>
#include <Support/NxTestMain.h>

#include <QSet>
#include <QTest>

#include <memory>
#include <vector>

namespace {

struct Reading
{
    Reading()
        : bell([this] {
              if (!thread)
                  return; // It rang before it ended.
              for (NxReadOutcome &outcome : thread->take())
                  outcomes.push_back(std::move(outcome));
          })
    {
    }
    void start(int workers)
    {
        thread = std::make_unique<NxReadingThread>(footage.settings(workers), bell.rope());
    }
    [[nodiscard]] NxReadRequest request(const QString &name)
    {
        NxReadRequest request;
        request.number = ++lastNumber;
        request.path = QFile::encodeName(footage.file(name));
        return request;
    }

    ScriptedFootage footage;
    NxDoorbell bell;
    quint64 lastNumber = 0;
    std::vector<NxReadOutcome> outcomes;
    std::unique_ptr<NxReadingThread> thread;
};

} // namespace

class tst_NxReadingThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void outcomesComeWithTheBell();
    void processIdsAreThoseThatRun();
    void itEndsWithWorkUnderWay_data();
    void itEndsWithWorkUnderWay();
    void itMayEndAtOnce();
};

void tst_NxReadingThread::outcomesComeWithTheBell()
{
    Reading f;
    f.start(2);
    constexpr int parts = 10;
    constexpr int perPart = 30;
    for (int part = 0; part < parts; ++part) {
        std::vector<NxReadRequest> requests;
        for (int i = 0; i < perPart; ++i)
            requests.push_back(f.request(QStringLiteral("%1-%2.mp4").arg(part).arg(i)));
        f.thread->add(std::move(requests));
    }
    QTRY_COMPARE_WITH_TIMEOUT(f.outcomes.size(), size_t(parts * perPart), 60'000);
    QSet<quint64> numbers;
    for (const NxReadOutcome &outcome : f.outcomes) {
        QCOMPARE(outcome.end, NxReadEnd::Answered);
        numbers.insert(outcome.number);
    }
    QCOMPARE(numbers.size(), parts * perPart);
    QVERIFY(f.thread->take().empty());
}

void tst_NxReadingThread::processIdsAreThoseThatRun()
{
    Reading f;
    f.start(2);
    QVERIFY(f.thread->processIds().empty());
    f.thread->add(
        {f.request(QStringLiteral("gated-1.mp4")), f.request(QStringLiteral("gated-2.mp4"))});
    QTRY_COMPARE(f.footage.requests().size(), 2);
    QStringList ids;
    for (const qint64 id : f.thread->processIds())
        ids.append(QString::number(id));
    QStringList started = f.footage.starts();
    ids.sort();
    started.sort();
    QCOMPARE(ids, started);
    f.footage.openGate();
    QTRY_COMPARE(f.outcomes.size(), size_t(2));
}

void tst_NxReadingThread::itEndsWithWorkUnderWay_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("waiting for its disk") << QStringLiteral("hang-unopened.mp4");
    QTest::newRow("hanging") << QStringLiteral("hang-opened.mp4");
    QTest::newRow("crashing") << QStringLiteral("crash.mp4");
    QTest::newRow("reading") << QStringLiteral("a.mp4");
}

void tst_NxReadingThread::itEndsWithWorkUnderWay()
{
    QFETCH(QString, name);
    Reading f;
    f.start(2);
    std::vector<NxReadRequest> requests;
    for (int i = 0; i < 50; ++i)
        requests.push_back(f.request(name));
    f.thread->add(std::move(requests));
    QTRY_VERIFY(!f.footage.requests().isEmpty());
    f.thread.reset();
    for (const QString &id : f.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxReadingThread::itMayEndAtOnce()
{
    Reading f;
    for (int i = 0; i < 20; ++i) {
        f.start(1);
        f.thread.reset();
        f.start(1);
        f.thread->add({f.request(QStringLiteral("a.mp4"))});
        f.thread.reset();
    }
    for (const QString &id : f.footage.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

NX_TEST_MAIN(tst_NxReadingThread)
#include "tst_NxReadingThread.moc"
