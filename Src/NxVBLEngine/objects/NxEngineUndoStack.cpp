// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineUndoStack.h>

#include <NxVBLEngine/objects/NxProjectMemory.h>

#include <QSet>

#include <algorithm>

namespace {

bool concernsFolders(const NxChange &change)
{
    return change.what == NxChangeKind::FolderAdd || change.what == NxChangeKind::FolderRemove;
}

bool concernsMedia(const NxChange &change)
{
    return change.what == NxChangeKind::MediaAdd || change.what == NxChangeKind::MediaRemove;
}

// What steps bring or take, each id once.
struct Mentioned
{
    QSet<qint64> media;
    QSet<qint64> folders;

    void add(const NxUndoRecord &step)
    {
        for (const NxChange &change : step.changes) {
            QSet<qint64> *ids = concernsMedia(change)     ? &media
                                : concernsFolders(change) ? &folders
                                                          : nullptr;
            for (const qint64 id : change.ids) {
                if (ids)
                    ids->insert(id);
            }
        }
    }

    void subtract(const NxUndoRecord &step)
    {
        for (const NxChange &change : step.changes) {
            QSet<qint64> *ids = concernsMedia(change)     ? &media
                                : concernsFolders(change) ? &folders
                                                          : nullptr;
            if (!ids || ids->isEmpty())
                continue;
            for (const qint64 id : change.ids)
                ids->remove(id);
        }
    }
};

QVector<qint64> sorted(QVector<qint64> ids)
{
    std::sort(ids.begin(), ids.end());
    return ids;
}

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
    Mentioned mentioned;
    for (auto step = first; step != last; ++step) {
        dropped.serials.append(step->serial);
        mentioned.add(*step);
    }
    m_steps.erase(first, last);
    // What is removed now and no remaining step can bring back is gone for good.
    Mentioned dead;
    for (const qint64 id : m_memory->removedAmong(mentioned.media.values().toVector()))
        dead.media.insert(id);
    for (const qint64 id : m_memory->removedFoldersAmong(mentioned.folders.values().toVector()))
        dead.folders.insert(id);
    for (const NxUndoRecord &step : m_steps)
        dead.subtract(step);

    dropped.deadMedia = sorted(dead.media.values().toVector());
    dropped.deadFolders = sorted(dead.folders.values().toVector());
    m_memory->forget(dropped.deadMedia, dropped.deadFolders);
    m_memory->enqueue(std::move(dropped));
}

void NxEngineUndoStack::storePosition()
{
    m_memory->enqueue(NxStoreEntry::StepPosition{m_done});
}

bool NxEngineUndoStack::undo()
{
    if (isInStep() || !canUndo())
        return false;
    const QVector<NxChange> changes = m_steps[size_t(--m_done)].changes;
    for (auto change = changes.crbegin(); change != changes.crend(); ++change)
        m_memory->replay(inverted(*change));
    storePosition();
    m_memory->flush();
    Q_EMIT changed();
    return true;
}

bool NxEngineUndoStack::redo()
{
    if (isInStep() || !canRedo())
        return false;
    const QVector<NxChange> changes = m_steps[size_t(m_done++)].changes;
    for (const NxChange &change : changes)
        m_memory->replay(change);
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
