// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFileLength.h>

#include <NxVBLEngine/objects/NxEngineMediaInfo.h>
#include <NxVBLEngine/objects/NxStreamDescription.h>
#include <NxVBLEngine/reading/NxReadRequests.h>
#include <NxVBLEngine/reading/NxReadingThread.h>

#include <QEventLoop>

#include <utility>

/// Somebody who waits for an answer.
struct NxFileLength::Wait
{
    void end(qint64 found)
    {
        length = found;
        loop.quit();
    }

    qint64 length = None;
    QEventLoop loop;
};

NxFileLength::NxFileLength(NxWorkerSettings settings)
    : m_settings(std::move(settings)),
      m_bell([this] { hear(); })
{
}

NxFileLength::~NxFileLength()
{
    for (const std::shared_ptr<Wait> &wait : std::as_const(m_waits))
        wait->end(None);
}

qint64 NxFileLength::read(const QString &path)
{
    if (path.isEmpty() || m_settings.program.isEmpty())
        return None;
    if (!m_thread)
        m_thread = std::make_unique<NxReadingThread>(m_settings, m_bell.rope());
    const auto wait = std::make_shared<Wait>();
    m_waits.insert(++m_lastNumber, wait);
    m_thread->add({NxReadRequests::of(m_lastNumber, path, rwFacts)});
    wait->loop.exec(QEventLoop::ExcludeUserInputEvents);
    return wait->length; // Nothing of this object is touched any more: it may be gone.
}

void NxFileLength::hear()
{
    if (!m_thread)
        return; // It rang before it ended.
    for (const NxReadOutcome &outcome : m_thread->take()) {
        if (const std::shared_ptr<Wait> wait = m_waits.take(outcome.number))
            wait->end(of(outcome.answer.facts.value_or(NxFootageFacts())));
    }
}

qint64 NxFileLength::of(const NxFootageFacts &facts)
{
    NxFootageRecord record;
    record.state = NxReadState::Read;
    record.facts = facts;
    const NxFootageRow row = NxFootageRow::of(record);
    if (row.state != NxReadState::Read)
        return None;
    const NxStreamDescription streams(facts.streams);
    NxEngineMediaInfo info;
    info.set(row, &streams);
    return info.duration();
}
