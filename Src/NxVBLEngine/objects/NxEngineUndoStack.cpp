// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineUndoStack.h>

#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <QSet>

#include <algorithm>
#include <array>

namespace {

// The ids of what steps bring or take, by NxObjectKind.
class Mentioned
{
public:
    void add(const NxUndoRecord &step)
    {
        for (const NxChange &change : step.changes) {
            if (!isAddOrRemoval(change.what))
                continue;
            QSet<qint64> &ids = (*this)[objectOf(change.what)];
            for (const qint64 id : change.ids)
                ids.insert(id);
        }
    }

    void subtract(const NxUndoRecord &step)
    {
        for (const NxChange &change : step.changes) {
            if (!isAddOrRemoval(change.what))
                continue;
            QSet<qint64> &ids = (*this)[objectOf(change.what)];
            if (ids.isEmpty())
                continue;
            for (const qint64 id : change.ids)
                ids.remove(id);
        }
    }

    /// Keeps what is removed from the project now.
    void reduceToRemoved(const NxProjectMemory *memory)
    {
        for (int kind = 0; kind < NxObjectKindCount; ++kind) {
            QSet<qint64> &ids = m_ids[size_t(kind)];
            const QVector<qint64> removed =
                memory->removedAmong(NxObjectKind(kind), ids.values().toVector());
            ids = QSet<qint64>(removed.begin(), removed.end());
        }
    }

    QVector<qint64> ascending(NxObjectKind kind) const
    {
        QVector<qint64> ids = m_ids[size_t(kind)].values().toVector();
        std::sort(ids.begin(), ids.end());
        return ids;
    }

private:
    QSet<qint64> &operator[](NxObjectKind kind) { return m_ids[size_t(kind)]; }

    std::array<QSet<qint64>, NxObjectKindCount> m_ids;
};

} // namespace

NxEngineUndoStack::NxEngineUndoStack(NxProjectMemory *memory) : m_memory(memory) {}

NxEngineUndoStack::~NxEngineUndoStack() = default;

void NxEngineUndoStack::load(std::vector<NxUndoRecord> steps, int done)
{
    m_steps.assign(std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end()));
    m_done = std::clamp(done, 0, int(m_steps.size()));
}

void NxEngineUndoStack::openStep(const QString &function, const QString &action)
{
    m_open = NxUndoRecord();
    m_open.function = function;
    m_open.action = action;
}

void NxEngineUndoStack::record(const NxChange &change)
{
    Q_ASSERT(isInStep());
    if (!m_recording)
        startRecording();
    NxUndoRecord &step = m_steps.back();
    step.changes.append(change);
    m_memory->enqueue(NxStoreEntry::StepChange{step.serial, change});
}

void NxEngineUndoStack::startRecording()
{
    m_recording = true;
    dropUndone();
    const bool goesOn = m_continued != 0 && m_done > 0 && m_steps.back().serial == m_continued;
    m_continued = 0;
    if (!goesOn) {
        m_open.serial = m_memory->takeStepSerial();
        m_memory->enqueue(NxStoreEntry::StepBegin{m_open.serial, m_open.function, m_open.action});
        m_steps.push_back(m_open);
        m_done = int(m_steps.size());
    }
    m_lastSerial = m_steps.back().serial;
}

void NxEngineUndoStack::closeStep()
{
    m_continued = 0;
    if (!m_recording) {
        m_memory->flush(); // Facts may wait although the step stayed empty.
        return;
    }
    m_recording = false;
    dropOldest();
    storePosition();
    m_memory->flush();
    Q_EMIT changed();
}

void NxEngineUndoStack::continueStep(qint64 serial)
{
    m_continued = serial;
}

bool NxEngineUndoStack::isDone(qint64 serial) const
{
    return std::any_of(m_steps.begin(), m_steps.begin() + m_done,
                       [serial](const NxUndoRecord &step) { return step.serial == serial; });
}

bool NxEngineUndoStack::keeps(NxObjectKind kind, qint64 id) const
{
    return std::any_of(m_steps.begin(), m_steps.begin() + m_done, [=](const NxUndoRecord &step) {
        return std::any_of(step.changes.begin(), step.changes.end(), [=](const NxChange &change) {
            return isAddOrRemoval(change.what) && objectOf(change.what) == kind
                   && change.ids.contains(id);
        });
    });
}

void NxEngineUndoStack::dropUndone()
{
    if (m_done < int(m_steps.size()))
        drop(m_steps.begin() + m_done, m_steps.end());
}

void NxEngineUndoStack::dropOldest()
{
    const int tooMany = int(m_steps.size()) - MaximumSteps;
    if (tooMany <= 0)
        return;
    m_done -= tooMany;
    drop(m_steps.begin(), m_steps.begin() + tooMany);
}

void NxEngineUndoStack::drop(std::deque<NxUndoRecord>::iterator first,
                             std::deque<NxUndoRecord>::iterator last)
{
    NxStoreEntry::StepDrop dropped;
    Mentioned dead;
    for (auto step = first; step != last; ++step) {
        dropped.serials.append(step->serial);
        dead.add(*step);
    }
    m_steps.erase(first, last);
    // What is removed now and no remaining step can bring back is gone for good.
    dead.reduceToRemoved(m_memory);
    for (const NxUndoRecord &step : m_steps)
        dead.subtract(step);

    dropped.deadMedia = dead.ascending(NxObjectKind::Media);
    dropped.deadFolders = dead.ascending(NxObjectKind::Folder);
    dropped.deadTimelines = dead.ascending(NxObjectKind::Timeline);
    dropped.deadClips = dead.ascending(NxObjectKind::Clip);
    m_memory->forget(dropped);
    m_memory->enqueue(std::move(dropped));
}

void NxEngineUndoStack::storePosition()
{
    m_memory->enqueue(NxStoreEntry::StepPosition{m_done});
}

bool NxEngineUndoStack::undo()
{
    if (isInStep() || isReplaying() || !canUndo())
        return false;
    const QVector<NxChange> changes = m_steps[size_t(--m_done)].changes;
    {
        const ReplayScope replaying(this);
        for (auto change = changes.crbegin(); change != changes.crend(); ++change)
            m_memory->replay(inverted(*change));
    }
    storePosition();
    m_memory->flush();
    Q_EMIT changed();
    return true;
}

bool NxEngineUndoStack::redo()
{
    if (isInStep() || isReplaying() || !canRedo())
        return false;
    const QVector<NxChange> changes = m_steps[size_t(m_done++)].changes;
    {
        const ReplayScope replaying(this);
        for (const NxChange &change : changes)
            m_memory->replay(change);
    }
    storePosition();
    m_memory->flush();
    Q_EMIT changed();
    return true;
}

bool NxEngineUndoStack::canUndo() const
{
    return m_done > 0 && !m_memory->isReadOnly();
}

bool NxEngineUndoStack::canRedo() const
{
    return m_done < int(m_steps.size()) && !m_memory->isReadOnly();
}

QString NxEngineUndoStack::undoText() const
{
    return canUndo() ? m_steps[size_t(m_done) - 1].action : QString();
}

QString NxEngineUndoStack::redoText() const
{
    return canRedo() ? m_steps[size_t(m_done)].action : QString();
}
