// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxUndoStack.h>
#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxUndoRecord.h>

#include <deque>
#include <vector>

class NxProjectMemory;

/// The project's history: the last 200 steps, kept with the project.
///
/// Steps hold changes, not objects: taking one back applies its changes turned round, last
/// first. A step reaches the project file together with what it changed.
class NXVBLENGINE_TEST_EXPORT NxEngineUndoStack final : public INxUndoStack
{
    Q_OBJECT
public:
    static constexpr int MaximumSteps = 200;

    explicit NxEngineUndoStack(NxProjectMemory *memory);
    ~NxEngineUndoStack() override;

    /// Steps of an earlier process, oldest first; `done` of them are done.
    void load(std::vector<NxUndoRecord> steps, int done);
    /// Notes a change that is about to be applied. Needs an open step.
    void record(const NxChange &change);
    /// The next step goes on with the last one if that is still the step of this serial; so a
    /// long job that works in slices stays one step for the user. 0: does nothing.
    void continueStep(qint64 serial);
    /// The serial of the step that was closed last, or is open; 0 when nothing was changed.
    [[nodiscard]] qint64 lastSerial() const { return m_lastSerial; }
    /// Whether a step that is done adds or removes this object.
    [[nodiscard]] bool keeps(NxObjectKind kind, qint64 id) const;
    /// False once the step was taken back or forgotten.
    [[nodiscard]] bool isDone(qint64 serial) const;

    bool undo() override;
    bool redo() override;
    bool canUndo() const override;
    bool canRedo() const override;
    QString undoText() const override;
    QString redoText() const override;
    int count() const override { return int(m_steps.size()); }
    int index() const override { return m_done; }

    [[nodiscard]] const std::deque<NxUndoRecord> &steps() const { return m_steps; }

protected:
    void openStep(const QString &function, const QString &action) override;
    void closeStep() override;

private:
    void startRecording();
    void dropUndone();
    void dropOldest();
    void drop(std::deque<NxUndoRecord>::iterator first, std::deque<NxUndoRecord>::iterator last);
    void storePosition();

    NxProjectMemory *const m_memory; // Not owned.
    std::deque<NxUndoRecord> m_steps; // Oldest first.
    int m_done = 0;
    NxUndoRecord m_open; // What the open step will be called.
    bool m_recording = false; // The open step has changes, and is the last of m_steps.
    qint64 m_continued = 0;
    qint64 m_lastSerial = 0;
};
