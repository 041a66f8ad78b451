// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QTimer>

#include <deque>

class NxEngineMedia;
class NxProjectMemory;

/// Tells the observers of folders that all their media have changed: children before parents, a
/// folder at most once a second.
class NXVBLENGINE_TEST_EXPORT NxFolderAnnouncer final : public QObject
{
    Q_OBJECT
public:
    static constexpr int ShortestInterval = 1'000; ///< ms

    explicit NxFolderAnnouncer(NxProjectMemory *memory);
    ~NxFolderAnnouncer() override;

    /// The folder of this media is to be announced.
    void note(const NxEngineMedia *media);
    /// Announces what is noted, for a few milliseconds; the rest follows later, as do folders that
    /// were announced a moment ago.
    void announce();
    [[nodiscard]] bool isAnythingNoted() const { return !m_noted.isEmpty() || !m_due.empty(); }

private:
    using Key = QPair<int, int>; // Category, folder.

    void findDue();
    void tell(const Key &key) const;

    NxProjectMemory *const m_memory; // Not owned.
    QSet<Key> m_noted;
    std::deque<Key> m_due; // Children before parents.
    QHash<Key, qint64> m_lastTold; // ms
    QElapsedTimer m_clock;
    QTimer m_laterTimer;
};
