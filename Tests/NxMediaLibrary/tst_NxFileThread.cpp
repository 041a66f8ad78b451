// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxFileThread.h>

#include <NxCore/NxQueue.h>
#include <Support/NxTestMain.h>
#include <Support/NxThreadNiceness.h>

#include <QThread>
#include <QVector>
#include <QtTest>

#include <memory>

namespace {

using Answer = NxFileThread::Answer;

/// What holds up a task; outlives every thread that was left behind.
using Gate = std::shared_ptr<NxQueue<bool>>;

NxFileThread::Task hanging(const Gate &gate, const Answer &answer)
{
    return [gate, answer] {
        while (!gate->isClosed())
            (void)gate->waitPop(std::chrono::seconds(1));
        return answer;
    };
}

} // namespace

/// Tasks on a thread of its own, and their answers on ours.
class tst_NxFileThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tasksRunElsewhereAndAnswersHereInOrder();
    void tasksStepBackForTheWindow();
    void whatWaitsCanBeDropped();
    void nothingIsAnsweredAfterItsEnd();
    void anAnswerMayDestroyIt();
    void aFileThatHangsIsLeftBehind();
    void itsEndDoesNotWaitForAFileThatHangs();
};

void tst_NxFileThread::tasksRunElsewhereAndAnswersHereInOrder()
{
    NxFileThread thread;
    QVector<int> answers;
    QThread *const here = QThread::currentThread();
    for (int i = 0; i < 5; ++i) {
        thread.post([&answers, here, i]() -> Answer {
            const bool isElsewhere = QThread::currentThread() != here;
            return [&answers, here, i, isElsewhere] {
                if (isElsewhere && QThread::currentThread() == here)
                    answers.append(i);
            };
        });
    }
    QTRY_COMPARE(answers, QVector<int>({0, 1, 2, 3, 4}));
}

void tst_NxFileThread::tasksStepBackForTheWindow()
{
    NxFileThread thread;
    int niceness = -1;
    thread.post([&niceness]() -> Answer {
        const int found = NxThreadNiceness::own();
        return [&niceness, found] { niceness = found; };
    });
    QTRY_COMPARE(niceness, NxThreadNiceness::atLeast(5));
}

void tst_NxFileThread::whatWaitsCanBeDropped()
{
    const auto gate = std::make_shared<NxQueue<bool>>();
    NxFileThread thread(std::chrono::hours(1));
    QVector<int> answers;
    thread.post(hanging(gate, [&answers] { answers.append(1); }));
    thread.post([&answers]() -> Answer { return [&answers] { answers.append(2); }; });
    // The first may wait as well; either way the second does.
    thread.dropWaiting();
    thread.post([&answers]() -> Answer { return [&answers] { answers.append(3); }; });
    gate->close();
    QTRY_VERIFY(answers.contains(3));
    QVERIFY(!answers.contains(2));
}

void tst_NxFileThread::nothingIsAnsweredAfterItsEnd()
{
    bool isAnswered = false;
    {
        NxFileThread thread;
        for (int i = 0; i < 10; ++i)
            thread.post([&isAnswered]() -> Answer { return [&isAnswered] { isAnswered = true; }; });
    }
    QCoreApplication::processEvents();
    QVERIFY(!isAnswered);
}

void tst_NxFileThread::anAnswerMayDestroyIt()
{
    auto thread = std::make_unique<NxFileThread>();
    int answers = 0;
    for (int i = 0; i < 3; ++i) {
        thread->post([&]() -> Answer {
            return [&] {
                ++answers;
                thread.reset();
            };
        });
    }
    QTRY_VERIFY(!thread);
    QCoreApplication::processEvents();
    QCOMPARE(answers, 1);
}

void tst_NxFileThread::aFileThatHangsIsLeftBehind()
{
    const auto gate = std::make_shared<NxQueue<bool>>();
    NxFileThread thread(std::chrono::milliseconds(0));
    bool hasCome = false;
    thread.post(hanging(gate, [&hasCome] { hasCome = true; }));
    int answers = 0;
    const auto answeredMeanwhile = [&] {
        thread.post([&answers]() -> Answer { return [&answers] { ++answers; }; });
        return answers > 0;
    };
    QTRY_VERIFY(answeredMeanwhile());
    QVERIFY(!hasCome);
    gate->close();
    QTRY_VERIFY(hasCome); // Late is better than never.
}

void tst_NxFileThread::itsEndDoesNotWaitForAFileThatHangs()
{
    const auto gate = std::make_shared<NxQueue<bool>>();
    const auto begun = std::make_shared<NxQueue<bool>>();
    {
        NxFileThread thread;
        const NxFileThread::Task task = hanging(gate, [] {});
        thread.post([begun, task] {
            begun->push(true);
            return task();
        });
        QVERIFY(begun->waitPop(std::chrono::seconds(30)));
    }
    gate->close(); // Only now it may come back.
}

NX_TEST_MAIN(tst_NxFileThread)
#include "tst_NxFileThread.moc"
