// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>

#include <QHash>

/// A media in a folder, or in none.
struct ScriptedMedia final : INxAbstractMediaItem
{
    explicit ScriptedMedia(const QString &file) : path(file) {}
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    QString sourcePath() const override { return path; }

    const QString path;
};

/// Takes jobs and does nothing: the test emits the signals.
struct ScriptedImporter final : INxMediaImporter
{
    quint64 start(INxFolderMedia *, const QStringList &paths, int) override
    {
        started.append(paths);
        return takesJobs ? quint64(started.size()) : 0;
    }
    void cancel(quint64 job) override { cancelled.append(job); }
    QList<INxAbstractMediaItem *> addNow(INxFolderMedia *, const QStringList &,
                                         NxImportReport *) override
    {
        return {};
    }

    QList<QStringList> started;
    QList<quint64> cancelled;
    bool takesJobs = true;
};

/// Knows what a test says, and remembers what was to be read.
struct ScriptedReader final : INxFootageService
{
    void start() override {}
    void stop() override {}
    void want(const QList<INxAbstractMediaItem *> &, int) override {}
    void read(const QList<INxAbstractMediaItem *> &items, int) override { asked += items; }
    NxFootageState state(const INxAbstractMediaItem *item) const override
    {
        return states.value(item);
    }
    bool isIdle() const override { return true; }
    QString trouble() const override { return obstacle; }

    /// The file turns out unreadable, or, with an empty reason, is read.
    void tell(INxAbstractMediaItem *item, const QString &reason)
    {
        states[item].facts = reason.isEmpty() ? NxFootageStatus::Done : NxFootageStatus::Failed;
        states[item].reason = reason;
        Q_EMIT itemRead(item);
    }

    QHash<const INxAbstractMediaItem *, NxFootageState> states;
    QList<INxAbstractMediaItem *> asked;
    QString obstacle; ///< Why nothing can be read.
};

/// A section that lists media which the test owns.
struct ScriptedSection final : INxFolderMedia
{
    int folderId() const override { return NXVBLMODEL::fidRoot; }
    QList<INxAbstractMedia *> items(bool, bool) const override { return media; }
    INxMediaManager *mediaManager() const override { return manager; }
    bool canAddMedia() const override { return takesMedia; }
    INxFolderMedia *owner() const override { return const_cast<ScriptedSection *>(this); }

    QList<INxAbstractMedia *> media;
    INxMediaManager *manager = nullptr;
    bool takesMedia = true;
};

/// The hidden folder above the section.
struct ScriptedRoot final : INxFolderMedia
{
    explicit ScriptedRoot(INxFolderMedia *child) : section(child) {}
    int folderId() const override { return NXVBLMODEL::fidHiddenRoot; }
    QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const override
    {
        return recursive ? section->items(true, mediaOnly) : QList<INxAbstractMedia *>();
    }
    QList<INxFolderMedia *> childFolders() const override { return {section}; }

    INxFolderMedia *const section; // Not owned.
};

/// A project with one category, one folder, and the importer and the reader above.
struct ScriptedProject final : INxProject, INxMediaLibrary, INxMediaManager, INxFolderMediaManager
{
    ScriptedProject() { section.manager = this; }
    QString path() const override { return QStringLiteral("/films/film.brevano"); }
    INxMediaLibrary *mediaLibrary() override { return this; }
    INxFootageService *footageService() override { return &reader; }
    INxMediaManager *mediaManager(NXVBLMODEL::NxMediaCategoryType category) override
    {
        return category == NXVBLMODEL::mctMedia ? this : nullptr;
    }
    INxFolderMediaManager *folderManager() override { return this; }
    INxMediaItemManager *itemManager() override { return nullptr; }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return NXVBLMODEL::mctMedia; }
    INxMediaImporter *importer() override { return &files; }
    INxFolderMedia *rootFolder() override { return &root; }
    INxFolderMedia *folder(int) override { return &section; }

    ScriptedSection section;
    ScriptedRoot root{&section};
    ScriptedImporter files;
    ScriptedReader reader;
};
