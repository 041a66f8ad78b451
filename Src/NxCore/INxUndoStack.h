// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QObject>

/// The undo history of a project. An engine derives its own; NxUndoRedoCommander opens steps.
///
/// Everything that changes between openStep() and closeStep() is one step. Steps that are begun
/// inside a step join it: only the outermost begin and end reach the derived class. A step in
/// which nothing changed leaves no trace. GUI thread only.
class NXCORE_EXPORT INxUndoStack : public QObject
{
    Q_OBJECT
public:
    explicit INxUndoStack(QObject *parent = nullptr);
    ~INxUndoStack() override;

    /// Begins a step, or joins the one that is open.
    /// @param function who does it ("Class::method"), for the log.
    /// @param action what it is called ("deleteMediaItems"); the text of the whole step is the
    /// outermost one's.
    void beginStep(const QString &function, const QString &action);
    /// Ends what the last beginStep() began. One end too many is refused with an error line.
    void endStep();
    /// Whether a step is open.
    [[nodiscard]] bool isInStep() const;

    /// Whether a step is being taken back or done again at this moment: what is told to observers
    /// meanwhile was done before.
    [[nodiscard]] bool isReplaying() const { return m_isReplaying; }

    /// Takes back or does again one step. False when there is none, or a step is open.
    virtual bool undo() = 0;
    virtual bool redo() = 0;
    [[nodiscard]] virtual bool canUndo() const = 0;
    [[nodiscard]] virtual bool canRedo() const = 0;
    /// The action of the step that undo() or redo() would take; empty when there is none.
    [[nodiscard]] virtual QString undoText() const = 0;
    [[nodiscard]] virtual QString redoText() const = 0;
    /// How many steps are kept, done and undone ones.
    [[nodiscard]] virtual int count() const = 0;
    /// How many of them are done: undo() takes step index() - 1, redo() takes step index().
    [[nodiscard]] virtual int index() const = 0;

Q_SIGNALS:
    /// The history changed: what the other queries answer may be different now. After undo() and
    /// redo() everything stands as it did when this is told.
    void changed();

protected:
    /// The outermost begin and end of a step.
    virtual void openStep(const QString &function, const QString &action) = 0;
    virtual void closeStep() = 0;

    /// Lives in undo() and redo() while changes are replayed.
    class NXCORE_EXPORT ReplayScope
    {
    public:
        explicit ReplayScope(INxUndoStack *stack);
        ~ReplayScope();

    private:
        Q_DISABLE_COPY_MOVE(ReplayScope)
        INxUndoStack *const m_stack; // Not owned.
    };

private:
    int m_depth = 0;
    bool m_isReplaying = false;
};
