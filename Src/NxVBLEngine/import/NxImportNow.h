// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/NxImportReport.h>

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QStringList>

class INxAbstractMediaItem;
class NxEngineCategory;
class NxEngineFolder;

/// An import of the moment: media made from paths alone, with no look at any disk.
class NxImportNow
{
    Q_DECLARE_TR_FUNCTIONS(NxImportNow)
public:
    explicit NxImportNow(NxEngineFolder *folder);

    /// The media of these paths in their order, those that are there already among them; one undo
    /// step. To be called once.
    [[nodiscard]] QList<INxAbstractMediaItem *> add(const QStringList &paths);
    [[nodiscard]] const NxImportReport &report() const { return m_report; }

private:
    /// A path on its way: to a new media, or to one that is there.
    struct Wanted
    {
        NxEngineMedia *known = nullptr;
        int seed = -1;
    };

    void want(const QString &given);
    void wantKnown(const QString &given, NxEngineMedia *known);

    NxEngineFolder *const m_folder; // Not owned, as are category and memory.
    NxEngineCategory *const m_category;
    NxProjectMemory *const m_memory;
    const QString m_folderPath;
    QVector<Wanted> m_wanted;
    QVector<NxMediaSeed> m_seeds;
    QHash<QString, int> m_seedByPath;
    NxImportReport m_report;
};
