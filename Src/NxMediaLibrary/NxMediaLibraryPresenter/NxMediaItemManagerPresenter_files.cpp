// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxCore/NxLog.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/NxTimelineUse.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxFileDialog.h>

namespace {

/// Two lengths are the same up to the rounding of one frame, or of a hundredth of a second.
constexpr qint64 DifferentBy = 2;

QString fileNameOf(const QString &path)
{
    return path.section(QLatin1Char('/'), -1);
}

/// As INxMediaInfo::duration() tells it; -1 while it is not known.
qint64 recordedDuration(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = item->mediaInfo();
    const qint64 duration = info ? info->duration() : -1;
    const bool isUnknown = item->hasDuration() && duration <= 0;
    return isUnknown ? -1 : duration;
}

} // namespace

void NxMediaItemManagerPresenter::getUnusedMedias(INxFolderMedia *folder,
                                                  QList<INxAbstractMedia *> &medias) const
{
    INxProject *project = d_func()->currentProject();
    if (!project)
        return;
    const QList<INxAbstractMediaItem *> items = NxMediaLibraryUtils::extractItems(folder, true);
    for (INxAbstractMediaItem *item : items) {
        if (project->timelineUses(item->mediaId()).isEmpty())
            medias.append(item);
    }
}

bool NxMediaItemManagerPresenter::removeUnusedMedia(INxFolderMedia *folder)
{
    QList<INxAbstractMedia *> unused;
    getUnusedMedias(folder, unused);
    return !unused.isEmpty() && removeMediaItems(folder, unused);
}

bool NxMediaItemManagerPresenter::dealWithMissingFiles(const QList<INxAbstractMedia *> &items)
{
    if (items.isEmpty())
        return false;
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    NMessageDialogInfo info;
    info.style = mdsQuestion;
    info.text = tr("Unable to locate file. Click 'RELOCATE' to try importing the file again, "
                   "'DELETE' to delete it, or 'IGNORE' to abort this operation.");
    info.buttons = {mdbAffirmative, mdbNegative, mdbClosed};
    info.captions = {
        {mdbAffirmative, tr("RELOCATE")}, {mdbNegative, tr("DELETE")}, {mdbClosed, tr("IGNORE")}};
    info.defaultButton = mdbAffirmative;
    info.escapeButton = mdbClosed;
    const QVector<NxMediaRef> missing = own->watched(items);
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    const int button = NMessageDialog::Ask(own->viewWidget(), info).button;
    if (!alive)
        return true;
    if (button == mdbAffirmative)
        relinkMedia(own->living(missing));
    else if (button == mdbNegative)
        own->deleteMissing(own->living(missing));
    return true;
}

int NxMediaItemManagerPresenter::relinkMedia(const QList<INxAbstractMedia *> &items)
{
    NxMediaItemManagerPresenterPrivate *const own = d_func();
    if (own->isRelinking) {
        NX_LOG_ERROR("media are being relinked already");
        return 0;
    }
    if (items.isEmpty() || own->tellIfReadOnly())
        return 0;
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    own->relinking = own->watched(items);
    own->relinkFolder = NxMediaLibrarySetting::GetImportDefaultDir();
    own->isRelinking = true;
    int relinked = 0;
    for (int index = 0; index < items.size(); ++index) {
        if (own->relinking.at(index).isNull())
            continue;
        const QString path = getRelinkMediaFile(index);
        if (!alive)
            return relinked;
        if (path.isEmpty())
            break;
        own->relinkFolder = path.section(QLatin1Char('/'), 0, -2); // The next may lie beside it.
        const bool fits = checkRelinkMediaFile(index, path);
        if (!alive)
            return relinked;
        relinked += fits && own->relinkOne(own->relinking.at(index).get(), path) ? 1 : 0;
        if (!alive)
            return relinked;
    }
    own->isRelinking = false;
    return relinked;
}

QString NxMediaItemManagerPresenter::getRelinkMediaFile(int index)
{
    const NxMediaItemManagerPresenterPrivate *const own = d_func();
    const INxAbstractMedia *media = own->relinking.value(index).get();
    if (!media)
        return {};
    NxFileDialogInfo info;
    info.title = tr("Relink");
    info.directory = own->relinkFolder;
    info.filter = NxMediaLibraryUtils::getImportFileFilter();
    info.fileName = fileNameOf(media->sourcePath());
    return NxFileDialog::getOpenFileName(own->viewWidget(), info);
}

bool NxMediaItemManagerPresenter::checkRelinkMediaFile(int index, const QString &path)
{
    const NxMediaItemManagerPresenterPrivate *const own = d_func();
    const NxMediaRef media = own->relinking.value(index);
    if (path.isEmpty() || media.isNull() || !itemManager())
        return false;
    const QPointer<NxMediaItemManagerPresenter> alive(this);
    const qint64 duration = itemManager()->readDuration(path);
    const auto *item = alive ? dynamic_cast<INxAbstractMediaItem *>(media.get()) : nullptr;
    if (!item)
        return false;
    if (duration < 0) {
        NMessageDialog::Infomation(
            own->viewWidget(), {},
            tr("%1 cannot be read as media, so it cannot take the place of \"%2\".")
                .arg(path, item->name()));
        return false;
    }
    const qint64 recorded = recordedDuration(item);
    if (recorded < 0 || qAbs(duration - recorded) < DifferentBy)
        return true;
    NMessageDialog::Infomation(
        own->viewWidget(), {},
        tr("The selected file's duration is different from the clip you used in project and may "
           "cause issues, please reselect another file with the same duration."));
    return false;
}
