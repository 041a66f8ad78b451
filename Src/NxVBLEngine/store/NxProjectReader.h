// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxProjectContents.h>
#include <NxVBLEngine/store/NxTableReader.h>

#include <QStringList>

/// Reads a whole project file into records.
///
/// Rows that no program of ours can have written are left out, and so is what lies where a table is
/// damaged. Both are told in the contents' damage, a sentence without the file's name.
class NXVBLENGINE_TEST_EXPORT NxProjectReader
{
public:
    explicit NxProjectReader(NxSqliteDatabase *database);

    /// `damage` is what is known to be wrong already.
    [[nodiscard]] NxProjectContents read(const QString &damage = {});

private:
    void readMeta();
    void readFolders();
    void readMedia();
    void readFootage();
    void readResources();
    void readTimelines();
    void readUndo();
    void sortMedia();
    [[nodiscard]] qint64 mediaEstimate();
    [[nodiscard]] qint64 metaNumber(const char *key, qint64 fallback);

    NxSqliteDatabase *const m_database; // Not owned.
    NxProjectContents m_contents;
    QStringList m_damage;
    NxTableReader m_tables;
    qint64 m_strayChanges = 0; // Of undo steps that are not there.
};
