// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxPresenceCheck.h>
#include <NxVBLEngine/disk/NxWatchedFolders.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <NxCore/NxDoorbell.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class NxDiskThread;
class NxProjectMemory;
class NxSlice;
struct NxChange;

/// Knows whether the files of a project's media are there.
///
/// Looks at every file once on the disk thread, then compares the folders they lie in every two
/// seconds, some thousand a round, and looks again where something changed: a file that went or
/// came back shows within five seconds. What is written into a file changes no folder, so each
/// round also looks at the next thousand files. Media come and go with their volume, and are never
/// removed. A drive that does not answer marks only what lies on it, until it answers.
/// GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxPresenceKeeper final : public QObject
{
    Q_OBJECT
public:
    NxPresenceKeeper(NxProjectMemory *memory, std::shared_ptr<NxDiskThread> disk,
        NxPresenceDisk looks = {});
    ~NxPresenceKeeper() override;

    /// The relative paths of media whose project stands somewhere else than it did, by id: one
    /// whose file is missing, but stands at the same way from the project, gets that path. To be
    /// called before start().
    void setRelativePaths(QHash<qint64, QString> paths);
    /// Begins with all living media.
    void start();
    /// Looks at every file again; `done` runs when all answers are in, or will not come.
    void refreshNow(std::function<void()> done);
    /// Looks at the files of these media now.
    void lookAgain(const std::vector<qint64> &media);
    /// Whether the file of a media of the project is there, as last seen; what was not looked at
    /// yet counts as there. Nothing for other paths. Never touches a disk.
    [[nodiscard]] std::optional<bool> known(const QString &path) const;

Q_SIGNALS:
    /// The file of a media is there, and was like this a moment ago.
    void seen(qint64 media, const NxFileStamp &stamp);

private:
    struct News;
    struct Post;

    void onApplied(const NxChange &change);
    void beginRound();
    void askVolumes();
    void checkNext();
    void poll();
    void postPoll(const QString &volume, const QVector<NxFolderPoll> &polls);
    void onStuck(const QString &volume, bool inPoll);
    void pump();
    void takeNews(const News &news);
    void takeAnswers(std::vector<NxFileAnswer> answers);
    void fileFresh(const NxSlice &slice);
    void applyAnswers(const NxSlice &slice);
    void apply(const NxFileAnswer &answer);
    [[nodiscard]] bool isSettled() const;
    void callDone();

    NxProjectMemory *const m_memory; // Not owned.
    const std::shared_ptr<NxDiskThread> m_disk;
    const NxPresenceDisk m_looks;
    NxWatchedFolders m_folders;
    std::shared_ptr<Post> m_post; // The way back from the disk thread.
    NxDoorbell m_bell;
    QTimer m_pumpTimer;
    QTimer m_roundTimer;
    QElapsedTimer m_clock;
    bool m_started = false;
    bool m_checking = false;
    bool m_askingVolumes = false;
    QSet<QString> m_polling; // Volumes.
    std::deque<qint64> m_fresh; // Media that were not filed under their folders yet.
    std::deque<NxFileAnswer> m_answers;
    std::vector<std::function<void()>> m_done;
};
