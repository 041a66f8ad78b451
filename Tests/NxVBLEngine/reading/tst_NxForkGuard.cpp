// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxForkGuard.h>

#include <NxVBLEngine/reading/NxWorkerProcess.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QProcess>
#include <QTest>

#include <csignal>
#include <optional>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int Long = 30'000; // ms
constexpr int Moment = 300; // ms

/// Starts something that waits for ever, and answers its number.
using Starter = pid_t (*)();

pid_t startCopy()
{
    const pid_t child = ::fork();
    while (child == 0)
        ::pause();
    return child;
}

/// Qt forks for a class of its own, as workers are started, and else lets the kernel do more.
class Program final : public QProcess
{
};

pid_t startProgram()
{
    static Program program;
    program.start(QStringLiteral("sleep"), {QStringLiteral("1000")});
    return pid_t(program.processId());
}

/// What it runs has been written for the shell.
QString s_script;

pid_t startWorker()
{
    static NxWorkerProcess worker(QStringLiteral("/bin/sh"), s_script);
    worker.start();
    return pid_t(worker.processId());
}

/// An editor that starts something and is killed at once. What it started holds one end of a pipe.
class KilledEditor
{
public:
    KilledEditor(Starter start, bool isGuarded)
    {
        if (::pipe(m_pipe) != 0)
            return;
        const pid_t editor = ::fork();
        if (editor == 0)
            beEditor(start, isGuarded);
        ::close(m_pipe[1]);
        ::waitpid(editor, nullptr, 0);
        if (::read(m_pipe[0], &m_child, sizeof(m_child)) != ssize_t(sizeof(m_child)))
            m_child = 0;
    }
    ~KilledEditor()
    {
        if (hasChild())
            ::kill(m_child, SIGKILL);
        ::close(m_pipe[0]);
    }
    Q_DISABLE_COPY_MOVE(KilledEditor)

    [[nodiscard]] bool hasChild() const { return m_child > 0; }
    /// The pipe is closed when its last holder is gone.
    [[nodiscard]] bool childEndsWithin(int msec) const
    {
        pollfd end{m_pipe[0], POLLIN, 0};
        return ::poll(&end, 1, msec) == 1 && (end.revents & POLLHUP) != 0;
    }

private:
    [[noreturn]] void beEditor(Starter start, bool isGuarded) const
    {
        std::optional<NxForkGuard> guard;
        if (isGuarded)
            guard.emplace();
        const pid_t child = start();
        (void)!::write(m_pipe[1], &child, sizeof(child));
        ::kill(::getpid(), SIGKILL);
        ::_exit(1);
    }

    int m_pipe[2] = {-1, -1};
    pid_t m_child = 0;
};

} // namespace

Q_DECLARE_METATYPE(Starter)

class tst_NxForkGuard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsStartedEndsWithTheEditor_data();
    void whatIsStartedEndsWithTheEditor();
    void whatOthersStartIsLeftAlone_data() { whatIsStartedEndsWithTheEditor_data(); }
    void whatOthersStartIsLeftAlone();
    void whatIsStartedLaterIsLeftAlone();
    void workersAreGuarded();
};

void tst_NxForkGuard::whatIsStartedEndsWithTheEditor_data()
{
    QTest::addColumn<Starter>("start");

    QTest::newRow("before it is a program") << Starter(&startCopy);
    QTest::newRow("a program") << Starter(&startProgram);
}

void tst_NxForkGuard::whatIsStartedEndsWithTheEditor()
{
    QFETCH(Starter, start);
    const KilledEditor editor(start, true);
    QVERIFY(editor.hasChild());
    QVERIFY(editor.childEndsWithin(Long));
}

void tst_NxForkGuard::whatOthersStartIsLeftAlone()
{
    QFETCH(Starter, start);
    const KilledEditor editor(start, false);
    QVERIFY(editor.hasChild());
    QVERIFY(!editor.childEndsWithin(Moment));
}

void tst_NxForkGuard::whatIsStartedLaterIsLeftAlone()
{
    {
        const NxForkGuard guard;
    }
    const KilledEditor editor(&startCopy, false);
    QVERIFY(editor.hasChild());
    QVERIFY(!editor.childEndsWithin(Moment));
}

void tst_NxForkGuard::workersAreGuarded()
{
    const NxTempDir dir;
    s_script = dir.write(QStringLiteral("script"), "exec sleep 1000\n");
    const KilledEditor editor(&startWorker, false);
    QVERIFY(editor.hasChild());
    QVERIFY(editor.childEndsWithin(Long));
}

NX_TEST_MAIN(tst_NxForkGuard)
#include "tst_NxForkGuard.moc"
