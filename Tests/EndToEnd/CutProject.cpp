// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CutProject.h"

#include <NxCore/NxUndoRedoCommander.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/INxTimelineEditor.h>

#include <QtTest>

#include <functional>

namespace {

void withProject(const QString &path, const std::function<void(INxProject *)> &deed)
{
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false;
    NxEmbeddedEngine engine(options);
    const NxResult<INxProject *> opened = engine.openProject(path, NxProjectOpenMode::ReadWrite);
    QVERIFY2(bool(opened), qPrintable(opened.errorText()));
    deed(*opened);
    const NxResult<void> closed = engine.closeProject();
    QVERIFY2(bool(closed), qPrintable(closed.errorText()));
}

void addClips(INxProject *project, const QStringList &paths)
{
    INxFolderMedia *root =
        project->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia)->folderManager()->rootFolder();
    INxTimelineEditor *editor = project->timelineEditor();
    const NxUndoRedoCommander step(project->undoStack(), QStringLiteral("CutProject"),
                                   QStringLiteral("cut"));
    INxTimeline *timeline = editor->addTimeline(QStringLiteral("Cut"));
    QVERIFY(timeline);
    constexpr qint64 length = 25;
    qint64 position = 0;
    for (const QString &path : paths) {
        INxAbstractMedia *media = root->findMediaByPath(path, true);
        QVERIFY2(media, qPrintable(path));
        QVERIFY(editor->addClip(timeline, media, {0, position, length, 0}));
        position += length;
    }
}

} // namespace

void CutProject::use(const QString &project, const QStringList &paths)
{
    withProject(project, [&paths](INxProject *opened) { addClips(opened, paths); });
}

int CutProject::clips(const QString &project)
{
    int count = 0;
    withProject(project, [&count](INxProject *opened) {
        const QList<INxTimeline *> timelines = opened->timelines();
        for (INxTimeline *timeline : timelines)
            count += timeline->clips().size();
    });
    return count;
}
