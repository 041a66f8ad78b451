// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QtTest>

/// undo and redo, each in a process of its own.
class tst_HistoryCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingToUndoIsNothingDone();
    void everyStepGoesBackAndForthAcrossProcesses();
    void undoneFolderRemovalBringsEverythingBackInOrder();
    void aNewChangeEndsWhatCouldBeRedone();
    void exactlyTwoHundredStepsAreKept();

private:
    [[nodiscard]] ProgramResult run(const char *command, const char *rest) const;

    std::unique_ptr<Yard> m_yard;
};

ProgramResult tst_HistoryCommand::run(const char *command, const char *rest) const
{
    QStringList words = QString::fromUtf8(rest).split(QLatin1Char('|'));
    words.replaceInStrings(QStringLiteral("$F"), m_yard->footage());
    return m_yard->run(command, words);
}

void tst_HistoryCommand::init()
{
    m_yard = std::make_unique<Yard>();
}

void tst_HistoryCommand::cleanup()
{
    m_yard.reset();
}

void tst_HistoryCommand::nothingToUndoIsNothingDone()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    VERIFY_CODE(run("import", "$F/a.mp4"), 0);
    VERIFY_CODE(m_yard->run("redo"), 1);
    VERIFY_CODE(m_yard->run("undo"), 0);
    const ProgramResult empty = m_yard->run("undo");
    VERIFY_CODE(empty, 1);
    QVERIFY2(empty.said("Film.brevano: there is nothing to undo"), empty.story().constData());
}

void tst_HistoryCommand::everyStepGoesBackAndForthAcrossProcesses()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    m_yard->clip(QStringLiteral("Day/b.mp4"));
    m_yard->clip(QStringLiteral("Day/c.mp4"));
    const NxFootageGuard guard(m_yard->footage());
    QVector<QVector<QJsonObject>> states;
    const QVector<QPair<const char *, const char *>> steps{
        {"import", "$F"},
        {"mkdir", "Trip/Cut"},
        {"move", "a.mp4|--into|Trip/Cut"},
        {"rename", "a.mp4|Intro"},
        {"rename", "--folder|Trip|Travel"},
        {"remove", "b.mp4|--yes"},
        {"remove", "--folder|footage/Day|--yes"},
    };
    for (const auto &[command, rest] : steps) {
        VERIFY_CODE(run(command, rest), 0);
        states.append(m_yard->listed());
    }
    for (int step = steps.size() - 2; step >= 0; --step) {
        VERIFY_CODE(m_yard->run("undo"), 0);
        QCOMPARE(m_yard->listed(), states.at(step));
    }
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown(), QStringList());
    for (int step = 0; step < steps.size(); ++step) {
        VERIFY_CODE(m_yard->run("redo"), 0);
        QCOMPARE(m_yard->listed(), states.at(step));
    }
    VERIFY_CODE(m_yard->run("redo"), 1);
    VERIFY_CODE(m_yard->run("check"), 0);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_HistoryCommand::undoneFolderRemovalBringsEverythingBackInOrder()
{
    m_yard->manyClips(6, 20);
    VERIFY_CODE(run("import", "$F"), 0);
    VERIFY_CODE(run("move", "--folder|footage/part 004|--into|footage/part 001"), 0);
    VERIFY_CODE(run("move", "$F/part 000/clip 003.mp4|--into|footage/part 001"), 0);
    const QVector<QJsonObject> before = m_yard->listed();
    QCOMPARE(before.size(), 120);

    VERIFY_CODE(run("remove", "--folder|footage|--yes"), 0);
    QCOMPARE(m_yard->shown(), QStringList());
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->listed(), before);
    VERIFY_CODE(m_yard->run("check"), 0);
}

void tst_HistoryCommand::aNewChangeEndsWhatCouldBeRedone()
{
    m_yard->clip(QStringLiteral("a.mp4"));
    VERIFY_CODE(run("import", "$F/a.mp4"), 0);
    VERIFY_CODE(run("rename", "a.mp4|b"), 0);
    VERIFY_CODE(m_yard->run("undo"), 0);
    VERIFY_CODE(run("rename", "a.mp4|c"), 0);
    VERIFY_CODE(m_yard->run("redo"), 1);
    QCOMPARE(m_yard->shown(), QStringList{QStringLiteral(": c")});
    VERIFY_CODE(m_yard->run("undo"), 0);
    QCOMPARE(m_yard->shown(), QStringList{QStringLiteral(": a.mp4")});
}

void tst_HistoryCommand::exactlyTwoHundredStepsAreKept()
{
    constexpr int kept = 200;
    constexpr int fallen = 3;
    m_yard->clip(QStringLiteral("a.mp4"));
    VERIFY_CODE(run("import", "$F/a.mp4"), 0);
    // In one shell, for the time that each start of a process takes.
    const ProgramResult renamed = ProgramRun::runShell(
        QStringLiteral("last=a.mp4; for i in $(seq $2); do "
                       "\"$BREVANO\" rename \"$1\" $last n$i >/dev/null || exit 9; last=n$i; "
                       "done"),
        {m_yard->project(), QString::number(kept + fallen)});
    VERIFY_CODE(renamed, 0);
    const ProgramResult undone = ProgramRun::runShell(
        QStringLiteral("n=0; while \"$BREVANO\" undo \"$1\" >/dev/null; do n=$((n+1)); done; "
                       "echo $n"),
        {m_yard->project()});
    QCOMPARE(undone.output, QByteArray::number(kept) + '\n');
    QCOMPARE(m_yard->shown(), QStringList{QStringLiteral(": n%1").arg(fallen)});
}

NX_TEST_MAIN(tst_HistoryCommand)
#include "tst_HistoryCommand.moc"
