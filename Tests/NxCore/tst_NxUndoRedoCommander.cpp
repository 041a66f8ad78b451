// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxCore/NxUndoRedoCommander.h>

#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QStringList>
#include <QTest>

namespace {

/// A text that grows by words: one step takes back all words said while it was open.
class WordStack : public INxUndoStack
{
public:
    void say(const QString &word) { m_said += word; }
    QStringList said() const { return m_said; }
    QStringList events;

    bool undo() override
    {
        if (!canUndo() || isInStep())
            return false;
        --m_index;
        m_said = m_said.mid(0, m_steps.at(m_index).before);
        Q_EMIT changed();
        return true;
    }
    bool redo() override { return false; }
    bool canUndo() const override { return m_index > 0; }
    bool canRedo() const override { return m_index < count(); }
    QString undoText() const override
    {
        return canUndo() ? m_steps.at(m_index - 1).action : QString();
    }
    QString redoText() const override { return canRedo() ? m_steps.at(m_index).action : QString(); }
    int count() const override { return m_steps.size(); }
    int index() const override { return m_index; }

protected:
    void openStep(const QString &function, const QString &action) override
    {
        events += QStringLiteral("open %1 %2").arg(function, action);
        m_open = {action, m_said.size()};
    }
    void closeStep() override
    {
        events += QStringLiteral("close");
        if (m_said.size() == m_open.before)
            return;
        m_steps.append(m_open);
        m_index = m_steps.size();
        Q_EMIT changed();
    }

private:
    struct Step
    {
        QString action;
        int before = 0;
    };
    QStringList m_said;
    QVector<Step> m_steps;
    Step m_open;
    int m_index = 0;
};

const QString function = QStringLiteral("Class::method");

} // namespace

class tst_NxUndoRedoCommander : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesOneStep();
    void joinsTheOuterStep();
    void followingStepsAreSteps();
    void anEmptyScopeLeavesNoStep();
    void acceptsNoStack();
    void refusesOneEndTooMany();
};

void tst_NxUndoRedoCommander::makesOneStep()
{
    WordStack stack;
    QSignalSpy changed(&stack, &INxUndoStack::changed);
    QVERIFY(!stack.isInStep());
    {
        const NxUndoRedoCommander step(&stack, function, QStringLiteral("talk"));
        QVERIFY(stack.isInStep());
        stack.say(QStringLiteral("one"));
        stack.say(QStringLiteral("two"));
        QVERIFY(!stack.undo());
    }
    QVERIFY(!stack.isInStep());
    QCOMPARE(stack.events,
             (QStringList{QStringLiteral("open Class::method talk"), QStringLiteral("close")}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.undoText(), QStringLiteral("talk"));

    QVERIFY(stack.undo());
    QCOMPARE(stack.said(), QStringList());
    QCOMPARE(stack.redoText(), QStringLiteral("talk"));
}

void tst_NxUndoRedoCommander::joinsTheOuterStep()
{
    WordStack stack;
    {
        const NxUndoRedoCommander outer(&stack, function, QStringLiteral("outer"));
        stack.say(QStringLiteral("one"));
        {
            const NxUndoRedoCommander inner(&stack, function, QStringLiteral("inner"));
            stack.say(QStringLiteral("two"));
        }
        QVERIFY(stack.isInStep());
        stack.say(QStringLiteral("three"));
    }
    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.undoText(), QStringLiteral("outer"));
    QCOMPARE(stack.events.size(), 2);
}

void tst_NxUndoRedoCommander::followingStepsAreSteps()
{
    WordStack stack;
    for (const QString &action : {QStringLiteral("first"), QStringLiteral("second")}) {
        const NxUndoRedoCommander step(&stack, function, action);
        stack.say(action);
    }
    QCOMPARE(stack.count(), 2);
    QVERIFY(stack.undo());
    QCOMPARE(stack.said(), QStringList{QStringLiteral("first")});
}

void tst_NxUndoRedoCommander::anEmptyScopeLeavesNoStep()
{
    WordStack stack;
    {
        const NxUndoRedoCommander step(&stack, function, QStringLiteral("nothing"));
    }
    QCOMPARE(stack.count(), 0);
    QVERIFY(!stack.isInStep());
}

void tst_NxUndoRedoCommander::acceptsNoStack()
{
    const NxUndoRedoCommander outer(nullptr, function, QStringLiteral("nobody"));
    const NxUndoRedoCommander inner(nullptr, function, QStringLiteral("listens"));
}

void tst_NxUndoRedoCommander::refusesOneEndTooMany()
{
    WordStack stack;
    NxTestLog::expectError(QStringLiteral("no step is open"));
    stack.endStep();
    QVERIFY(stack.events.isEmpty());
    {
        const NxUndoRedoCommander step(&stack, function, QStringLiteral("talk"));
        stack.say(QStringLiteral("one"));
    }
    QCOMPARE(stack.count(), 1);
}

NX_TEST_MAIN(tst_NxUndoRedoCommander)
#include "tst_NxUndoRedoCommander.moc"
