// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>
#include <QStringList>
#include <QVector>

/// The backups of one project within the folder that holds those of all.
///
/// A backup is named after the project, the place where the project stands, and its own time.
class NXVBLENGINE_TEST_EXPORT NxBackupFolder
{
public:
    static constexpr int MostBackups = 5;

    NxBackupFolder(const QString &folder, const QString &projectPath);

    /// Makes the folder where there is none; false when that fails.
    [[nodiscard]] bool make() const;
    [[nodiscard]] QString path() const { return m_folder; }
    /// Where a backup of this time (ms UTC) belongs.
    [[nodiscard]] QString pathFor(qint64 msec) const;
    /// The name that a backup grows under.
    [[nodiscard]] QString partPathFor(qint64 msec) const;

    /// The project's backups, oldest first.
    [[nodiscard]] QStringList backups() const;
    /// Removes backups until there are no more than five of them, and what killed processes left
    /// half.
    void thin() const;

    /// Which of more than one backup, by ascending times, goes first: the one that is closest to
    /// the next newer one, so that a day of many backups does not push out the older days. Never
    /// the newest.
    [[nodiscard]] static int superfluous(const QVector<qint64> &times);

private:
    [[nodiscard]] QStringList files(const QString &suffix) const;
    [[nodiscard]] qint64 timeOf(const QString &path) const;

    const QString m_folder;
    const QString m_prefix;
};
