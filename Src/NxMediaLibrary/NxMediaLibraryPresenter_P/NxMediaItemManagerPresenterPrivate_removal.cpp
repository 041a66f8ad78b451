// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>

#include <NxCore/NxConfig.h>
#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxTimelineClips.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxVCGMediaItem.h>
#include <NxVBLModel/NxTimelineUse.h>
#include <NxWidgets/NMessageDialog.h>

#include <QHash>
#include <QPair>
#include <QSet>

#include <algorithm>

using Presenter = NxMediaItemManagerPresenter;

namespace {

QSet<QString> idsOf(const QList<INxAbstractMedia *> &medias)
{
    QSet<QString> ids;
    for (const INxAbstractMedia *media : medias) {
        if (media && !media->mediaId().isEmpty())
            ids.insert(media->mediaId());
    }
    return ids;
}

/// The media by the folders that hold them, in the order in which folders come up.
QVector<QPair<INxFolderMedia *, QList<INxAbstractMedia *>>> byFolder(
    const QList<INxAbstractMedia *> &medias)
{
    QVector<QPair<INxFolderMedia *, QList<INxAbstractMedia *>>> folders;
    QHash<INxFolderMedia *, int> places;
    for (INxAbstractMedia *media : medias) {
        INxFolderMedia *folder = media ? media->parentFolder() : nullptr;
        if (!folder)
            continue;
        const auto known = places.constFind(folder);
        if (known == places.constEnd()) {
            places.insert(folder, folders.size());
            folders.append({folder, {media}});
        } else {
            folders[*known].second.append(media);
        }
    }
    return folders;
}

} // namespace

bool NxMediaItemManagerPresenterPrivate::canStandOnTimeline(INxFolderMedia *folder) const
{
    INxMediaManager *owner = folder ? folder->mediaManager() : nullptr;
    return owner && (owner->isTimelineMedia() || owner->isTimelineResource());
}

bool NxMediaItemManagerPresenterPrivate::isAnyUsed(const QList<INxAbstractMedia *> &medias)
{
    INxProject *project = currentProject();
    return project
           && std::any_of(medias.begin(), medias.end(), [project](const INxAbstractMedia *media) {
                  return media && !project->timelineUses(media->mediaId()).isEmpty();
              });
}

bool NxMediaItemManagerPresenterPrivate::askDelete(NMessageDialogInfo info) const
{
    info.style = mdsDelete;
    info.buttons = {mdbAffirmative, mdbNegative};
    info.captions = {{mdbAffirmative, Presenter::tr("Yes")}, {mdbNegative, Presenter::tr("No")}};
    info.defaultButton = mdbAffirmative;
    info.escapeButton = mdbNegative;
    const NMessageDialogAnswer answer = NMessageDialog::Ask(viewWidget(), info);
    if (!info.checkBoxText.isEmpty())
        NxConfig::Instance()->setMediaDeleteConfirm(!answer.isChecked);
    return answer.button == mdbAffirmative;
}

bool NxMediaItemManagerPresenterPrivate::askOrdinaryDelete() const
{
    NMessageDialogInfo info;
    info.text = Presenter::tr("Are you sure you want to delete the selected item?");
    info.checkBoxText = Presenter::tr("Stop asking for now.");
    return askDelete(info);
}

NMediaRemoveDecision NxMediaItemManagerPresenterPrivate::confirmRemoval(
    INxFolderMedia *folder, const QList<INxAbstractMedia *> &medias)
{
    // While the user thinks, anything may happen to the media.
    const QVector<NxMediaRef> asked = watched(medias);
    INxAbstractMedia *first = medias.value(0);
    const bool isStock = dynamic_cast<INxVCGMediaItem *>(first) != nullptr;
    const bool isUsed = (isStock || canStandOnTimeline(folder)) && isAnyUsed(medias);
    bool confirmed = true;
    if (isStock) {
        NMessageDialogInfo info;
        info.text = Presenter::tr("Are you sure you want to delete the selected matter?");
        info.detail = Presenter::tr("Deleting the file will affect the used project. You can "
                                    "retrieve it by downloading the record");
        confirmed = askDelete(info);
    } else if (isUsed) {
        confirmed = NMessageDialog::Question_YesNo(
            viewWidget(), {},
            Presenter::tr("One or more of your selected clips have been added to the timeline. "
                          "Deleting them from the library will also delete them from the "
                          "timeline."));
    } else if (first && first->mediaType() == NXVBLMODEL::mtProjectTemplate) {
        NMessageDialogInfo info;
        info.text = Presenter::tr("Are you sure you want to delete the custom project template "
                                  "item \"%1?\"")
                        .arg(first->name());
        confirmed = askDelete(info);
    } else if (NxConfig::Instance()->getMediaDeleteConfirm()) {
        confirmed = askOrdinaryDelete();
    }
    return {living(asked), confirmed};
}

bool NxMediaItemManagerPresenterPrivate::removeMediaItems(INxFolderMedia *folder,
                                                          const QList<INxAbstractMedia *> &medias)
{
    if (!manager())
        return false;
    if (tellIfReadOnly())
        return true;
    const QPointer<Presenter> alive(q());
    const QPointer<INxFolderMedia> from(folder);
    const NMediaRemoveDecision decision = confirmRemoval(folder, medias);
    const bool isFolderGone = folder && !from;
    if (!decision.confirmed || !alive || !manager() || isFolderGone)
        return true;
    q()->stopCreateProxyFile(decision.medias);
    deselect(decision.medias);
    if (!alive || !manager() || (folder && !from))
        return true;
    const NxTimelineClips clips(currentProject(), idsOf(decision.medias));
    const NxUndoRedoCommander step(
        undoStack(), QStringLiteral("NxMediaItemManagerPresenterPrivate::removeMediaItems"),
        QStringLiteral("deleteMediaItems"));
    clips.remove();
    manager()->removeMediaItems(folder, decision.medias);
    return true;
}

void NxMediaItemManagerPresenterPrivate::deleteMissing(const QList<INxAbstractMedia *> &medias)
{
    if (tellIfReadOnly())
        return;
    const QPointer<Presenter> alive(q());
    deselect(medias);
    if (!alive || !manager())
        return;
    const NxUndoRedoCommander step(
        undoStack(), QStringLiteral("NxMediaItemManagerPresenter::dealWithMissingFiles"),
        QStringLiteral("deleteMediaItems"));
    const auto folders = byFolder(medias);
    for (const auto &[folder, held] : folders)
        manager()->removeMediaItems(folder, held);
}

bool NxMediaItemManagerPresenterPrivate::relinkOne(INxAbstractMedia *media, const QString &path)
{
    if (!media || !manager())
        return false;
    {
        const NxUndoRedoCommander step(undoStack(),
                                       QStringLiteral("NxMediaItemManagerPresenter::relinkMedia"),
                                       QStringLiteral("relinkMedia"));
        if (manager()->relinkMedia(media, path))
            return true;
    }
    NMessageDialog::Infomation(
        viewWidget(), {},
        Presenter::tr("\"%1\" cannot be relinked to %2.").arg(media->name(), path));
    return false;
}
