// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/Support/NxFullDiskVfs.h>
#include <NxVBLEngine/store/NxProjectStore.h>

#include <QByteArray>
#include <QHash>
#include <QStringList>

/// Records, batches and shorthand for the tests of the project store.
namespace StoreSamples {

/// A media with a value in every field that differs from the default.
[[nodiscard]] NxMediaRecord media(qint64 id, int folder = 1);
[[nodiscard]] NxFolderRecord folder(int id, int parent = 1);
[[nodiscard]] NxTimelineRecord timeline(qint64 id, qint64 outerClip = 0);
/// A clip of a media, beside those of lower ids.
[[nodiscard]] NxClipRecord clip(qint64 id, qint64 timeline = 1);
/// A clip inside a split screen.
[[nodiscard]] NxClipRecord innerClip(qint64 id, const NxClipRecord &split);
[[nodiscard]] NxChange change(NxChangeKind kind, const QVector<qint64> &ids,
                              const NxChangeState &after = {});
/// A batch that adds `count` media, ids ascending from `firstId`.
[[nodiscard]] NxStoreBatch addMedia(qint64 firstId, int count);
/// Batches of every kind of entry, each a whole operation of a user.
[[nodiscard]] std::vector<NxStoreBatch> session();

/// Every field of everything, a line for each record.
[[nodiscard]] QStringList described(const NxProjectContents &contents);

/// Asks for a commit and waits until it is answered.
[[nodiscard]] NxResult<void> commitAndWait(NxProjectStore *store);
[[nodiscard]] NxResult<void> saveCopyAndWait(NxProjectStore *store, const QString &path);
/// Makes a project that holds these batches, and closes it. Ends the test program when it cannot.
void makeProject(const QString &path, const std::vector<NxStoreBatch> &batches,
                 const NxProjectStoreOptions &options = {});
/// What a fresh reader finds in a closed project; the reason when it cannot be read.
[[nodiscard]] QStringList contentsOf(const QString &path);

/// Name and content of every file in a folder, hidden ones too.
[[nodiscard]] QHash<QString, QByteArray> filesIn(const QString &folder);
[[nodiscard]] QByteArray readFile(const QString &path);
void writeFile(const QString &path, const QByteArray &bytes);
/// Runs SQL on a closed project, as another program would. Ends the test program on an error.
void runSql(const QString &path, const QByteArray &sql);

} // namespace StoreSamples
