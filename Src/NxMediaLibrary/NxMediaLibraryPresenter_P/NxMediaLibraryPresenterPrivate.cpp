// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaLibraryPresenterPrivate.h>

#include <NxAppSettings/NxAppSettings.h>
#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxDataMessage.h>
#include <NxCore/NxLog.h>
#include <NxCore/NxMessageType.h>
#include <NxCore/NxQueryMessage.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxMediaProxyService.h>
#include <NxVBLModel/NxAddCustomMediaItemMessage.h>
#include <NxVBLModel/NxClipExportImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryFindSimilarMessage.h>
#include <NxVBLModel/NxMediaLibraryGetImportFilesMessage.h>
#include <NxVBLModel/NxMediaLibraryImportMediaMessage.h>
#include <NxVBLModel/NxMediaLibraryRemoveMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaMessage.h>
#include <NxVBLModel/NxTimelineAddMediaResponseMessage.h>
#include <NxVBLModel/NxTimelineAddProjectTemplateResponseMessage.h>

#include <QPointer>
#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <iterator>

using namespace NXVBLMODEL;

namespace {

INxFolderMedia *childOfName(const INxFolderMedia *parent, const QString &name)
{
    const QList<INxFolderMedia *> children = parent->childFolders();
    const auto found =
        std::find_if(children.begin(), children.end(),
                     [&name](const INxFolderMedia *child) { return child->name() == name; });
    return found == children.end() ? nullptr : *found;
}

/// Managers keep names without the blanks around them; a message may bring some.
INxFolderMedia *childNamed(const INxFolderMedia *parent, const QString &name)
{
    INxFolderMedia *child = childOfName(parent, name);
    return child ? child : childOfName(parent, name.trimmed());
}

/// The copy of a stock clip is another object each time; its file tells which one it is.
QString fileOfStockCopy(const INxAbstractMedia *media)
{
    return media->kindCode() == mkcStockCopy ? media->sourcePath() : QString();
}

QString fileOf(const INxAbstractMedia *media)
{
    return media->sourcePath();
}

/// A resource that is no file of its own cannot be filed.
bool isFileable(const INxAbstractMedia *media)
{
    return !media->isResource() || media->isSourceMedia();
}

bool never(const NxMessage *)
{
    return false;
}

bool always(const NxMessage *)
{
    return true;
}

bool isData(const NxMessage *message)
{
    return dynamic_cast<const NxDataMessage *>(message) != nullptr;
}

} // namespace

const NxMediaLibraryPresenterPrivate::MessageRule NxMediaLibraryPresenterPrivate::s_messageRules[] =
    {
        {nmtImportMedia, &NxMediaLibraryPresenterPrivate::importMedia, never},
        {nmtRemoveMedia, &NxMediaLibraryPresenterPrivate::removeMedia, never},
        {nmtGetImportFiles, &NxMediaLibraryPresenterPrivate::getImportFiles, never},
        {nmtTimelineAddMediaResponse,
         &NxMediaLibraryPresenterPrivate::processAddTimelineMediaResponse, never},
        {nmtTimelineAddProjectTemplateResponse,
         &NxMediaLibraryPresenterPrivate::processTimelineAddProjectTemplateResponse, never},
        {nmtAddRandomClips, &NxMediaLibraryPresenterPrivate::addRandomClips, always},
        {nmtAddCustomMediaItem, &NxMediaLibraryPresenterPrivate::addCustomMedia, never},
        {nmtFindSimilar, &NxMediaLibraryPresenterPrivate::findSimilar, never},
        {nmtStartAudioSync, &NxMediaLibraryPresenterPrivate::startAudioSync, never},
        {nmtClipExportImportMedia, &NxMediaLibraryPresenterPrivate::importExportedClips, never},
        {nmtData, &NxMediaLibraryPresenterPrivate::applyProxySettings, isData},
};

NxMediaLibraryPresenterPrivate::NxMediaLibraryPresenterPrivate(INxMediaLibrary *mediaLibrary)
    : library(mediaLibrary)
{
}

NxMediaLibraryPresenterPrivate::~NxMediaLibraryPresenterPrivate() = default;

NxMediaLibraryPresenter *NxMediaLibraryPresenterPrivate::q() const
{
    return static_cast<NxMediaLibraryPresenter *>(q_ptr);
}

INxMediaManager *NxMediaLibraryPresenterPrivate::manager(NxMediaCategoryType category) const
{
    return library ? library->mediaManager(category) : nullptr;
}

bool NxMediaLibraryPresenterPrivate::dispatch(NxMessage *message)
{
    const auto *rule =
        std::find_if(std::begin(s_messageRules), std::end(s_messageRules),
                     [message](const MessageRule &it) { return it.code == message->type(); });
    if (rule == std::end(s_messageRules))
        return true;
    (this->*rule->handle)(message);
    return !rule->goesOn(message);
}

INxFolderMedia *NxMediaLibraryPresenterPrivate::findOrCreateFolder(INxFolderMediaManager *manager,
                                                                   INxFolderMedia *parent,
                                                                   const QString &name)
{
    if (!manager || !parent)
        return nullptr;
    if (INxFolderMedia *known = childNamed(parent, name))
        return known;
    if (!manager->addFolder(parent, name)) {
        NX_LOG_ERROR("add srt folder error!!!");
        return nullptr;
    }
    return childNamed(parent, name);
}

// Imports

void NxMediaLibraryPresenterPrivate::importMedia(NxMessage *message)
{
    auto *request = dynamic_cast<NxMediaLibraryImportMediaMessage *>(message);
    INxMediaManager *owner = request ? manager(request->categoryType) : nullptr;
    INxFolderMediaManager *folders = owner ? owner->folderManager() : nullptr;
    if (!folders)
        return;
    INxFolderMedia *folder = folders->folder(request->folderId);
    const bool isSubFolder = !request->subFolderName.isEmpty();
    if (isSubFolder) {
        INxFolderMedia *above = folder ? folder : folders->folder(fidRoot);
        folder = findOrCreateFolder(folders, above, request->subFolderName);
        if (!folder)
            return;
    }
    import({request->categoryType, request->importKind, request->files, request->flag1,
            request->flag2},
           folder, isSubFolder, &request->result);
}

void NxMediaLibraryPresenterPrivate::importExportedClips(NxMessage *message)
{
    auto *request = dynamic_cast<NxClipExportImportMediaMessage *>(message);
    INxMediaManager *owner = request ? manager(request->categoryType) : nullptr;
    INxFolderMediaManager *folders = owner ? owner->folderManager() : nullptr;
    INxFolderMedia *root = folders ? folders->folder(fidRoot) : nullptr;
    if (!root)
        return;
    INxFolderMedia *folder = childNamed(root, request->folderName);
    if (!folder && folders->addFolder(root, request->folderName))
        folder = childNamed(root, request->folderName);
    if (!folder) {
        NX_LOG_ERROR_AS("NxMediaLibraryPresenter::dispatchMessage",
                        "addFolder failure, folder name : %s",
                        request->folderName.toUtf8().constData());
        return;
    }
    import({request->categoryType, request->importKind, request->files, request->flag1,
            request->flag2},
           folder, true, &request->result);
}

void NxMediaLibraryPresenterPrivate::import(const ImportRequest &request, INxFolderMedia *folder,
                                            bool showsFolder, QList<INxAbstractMediaItem *> *result)
{
    NxMediaCategoryPresenter *category = q()->getMediaCategoryPresenter(request.category);
    if (!category)
        return;
    const QPointer<NxMediaLibraryPresenter> alive(q());
    const QPointer<INxFolderMedia> shown(folder);
    NXMEDIALIBRARY::NxMediaImportParam param;
    param.kind = request.kind;
    param.files = request.files;
    param.folder = folder;
    param.firstFlag = request.firstFlag;
    param.secondFlag = request.secondFlag;
    *result += category->mediaItemManagerPresenter()->importMeidas(param);
    if (!alive)
        return;
    q()->setCurrentCategoryType(request.category);
    if (alive && showsFolder && shown)
        category->folderManagerPresenter()->setCurrentFolder(shown);
}

void NxMediaLibraryPresenterPrivate::getImportFiles(NxMessage *message)
{
    auto *request = dynamic_cast<NxMediaLibraryGetImportFilesMessage *>(message);
    if (request && NxMediaLibraryUtils::hasValidFile(request->files))
        request->result += request->files;
}

// Removing

void NxMediaLibraryPresenterPrivate::removeMedia(NxMessage *message)
{
    const auto *request = dynamic_cast<NxMediaLibraryRemoveMediaMessage *>(message);
    NxMediaCategoryPresenter *category =
        request ? q()->getMediaCategoryPresenter(request->categoryType) : nullptr;
    INxFolderMediaManager *folders = category ? category->mediaManager()->folderManager() : nullptr;
    INxFolderMedia *folder = folders ? folders->folder(request->folderId) : nullptr;
    INxAbstractMedia *media = folder ? folder->findMedia(request->mediaId, true) : nullptr;
    if (media)
        category->mediaItemManagerPresenter()->removeMediaItems(folder, {media});
}

// The timeline

void NxMediaLibraryPresenterPrivate::processAddTimelineMediaResponse(NxMessage *message)
{
    const auto *response = dynamic_cast<NxTimelineAddMediaResponseMessage *>(message);
    if (response && response->status != tasCancelled)
        fileIntoProject(manager(mctMedia), response->medias, fileOfStockCopy,
                        "NxMediaLibraryPresenterPrivate::processAddTimelineMediaResponse");
}

void NxMediaLibraryPresenterPrivate::processTimelineAddProjectTemplateResponse(NxMessage *message)
{
    const auto *response = dynamic_cast<NxTimelineAddProjectTemplateResponseMessage *>(message);
    if (!response) {
        NX_LOG_ERROR("msg is null");
        return;
    }
    INxMediaManager *owner = manager(mctMedia);
    if (!owner) {
        NX_LOG_ERROR("pMediaManager is null");
        return;
    }
    fileIntoProject(owner, response->medias, fileOf,
                    "NxMediaLibraryPresenterPrivate::processTimelineAddProjectTemplateResponse");
}

void NxMediaLibraryPresenterPrivate::fileIntoProject(INxMediaManager *owner,
                                                     const QList<INxAbstractMedia *> &medias,
                                                     FileKey fileKey, const char *function)
{
    INxFolderMediaManager *folders = owner ? owner->folderManager() : nullptr;
    INxFolderMedia *root = folders ? folders->folder(fidRoot) : nullptr;
    if (!root)
        return;
    QList<INxAbstractMedia *> added;
    QSet<INxAbstractMedia *> taken;
    QSet<QString> takenFiles;
    for (INxAbstractMedia *media : medias) {
        if (!media || taken.contains(media) || root->containsMedia(media, true)
            || !isFileable(media))
            continue;
        const QString file = fileKey(media);
        const bool isHeld =
            !file.isEmpty() && (takenFiles.contains(file) || root->findMediaByPath(file, true));
        if (isHeld)
            continue;
        taken.insert(media);
        takenFiles.insert(file);
        NX_LOG_INFO_AS(function, "add to project folder: %s", media->name().toUtf8().constData());
        added.append(media);
    }
    if (added.isEmpty())
        return;
    if (INxMediaItemManager *items = owner->itemManager())
        items->addMediaItems(root, added);
    owner->setProject(currentProject());
}

void NxMediaLibraryPresenterPrivate::addRandomClips(NxMessage *)
{
    INxMediaManager *owner = manager(mctTransition);
    INxFolderMediaManager *folders = owner ? owner->folderManager() : nullptr;
    INxFolderMedia *downloaded = folders ? folders->folder(fidDownloaded) : nullptr;
    const QList<INxAbstractMedia *> items =
        downloaded ? downloaded->items(true, true) : QList<INxAbstractMedia *>();
    if (items.isEmpty())
        return;
    NxTimelineAddMediaMessage added;
    added.addMode = tamAppend;
    const qint64 wanted = 2 * qint64(selectedCutPoints()); // One for each side of a cut.
    for (qint64 i = 0; i < wanted; ++i) {
        const quint64 drawn = QRandomGenerator64::global()->generate();
        added.medias.append(items.at(int(drawn % quint64(items.size()))));
    }
    q()->sendMessageToScene(&added);
}

int NxMediaLibraryPresenterPrivate::selectedCutPoints()
{
    NxQueryMessage query(nqcSelectedCutPoints);
    q()->sendMessageToScene(&query);
    return std::max(0, query.result);
}

void NxMediaLibraryPresenterPrivate::addCustomMedia(NxMessage *message)
{
    auto *offer = dynamic_cast<NxAddCustomMediaItemMessage *>(message);
    if (!offer)
        return;
    offer->received = true;
    NxMediaCategoryPresenter *category =
        offer->alreadyAdded ? nullptr : q()->getMediaCategoryPresenter(mctMedia);
    if (!category)
        return;
    NXMEDIALIBRARY::NxMediaAddCustomParam param;
    param.kind = NXMEDIALIBRARY::CustomMediaKind;
    param.value = offer->value;
    category->mediaItemManagerPresenter()->addCustomMediaItem(param);
}

void NxMediaLibraryPresenterPrivate::findSimilar(NxMessage *message)
{
    const auto *request = dynamic_cast<NxMediaLibraryFindSimilarMessage *>(message);
    if (!request)
        return;
    const QPointer<NxMediaLibraryPresenter> alive(q());
    q()->setCurrentCategoryType(request->categoryType);
    NxMediaCategoryPresenter *category = alive ? q()->currentMediaCategoryPresenter() : nullptr;
    if (!category)
        return;
    NxMediaItemManagerPresenter *items = category->mediaItemManagerPresenter();
    const bool isList = items->viewMode() == NXMEDIALIBRARY::vmList;
    items->setFilterSimilarResource(request->resourceId, request->categoryType, request->keyword,
                                    true, isList);
}

void NxMediaLibraryPresenterPrivate::startAudioSync(NxMessage *)
{
    NxMediaCategoryPresenter *category = q()->currentMediaCategoryPresenter();
    if (!category)
        return;
    NxMediaItemManagerPresenter *items = category->mediaItemManagerPresenter();
    items->startAudioSyn(items->selectedItems());
}

void NxMediaLibraryPresenterPrivate::applyProxySettings(NxMessage *message)
{
    const auto *settings = dynamic_cast<NxDataMessage *>(message);
    if (!settings)
        return;
    const NxPerformanceSettings &performance = NxAppSettings::instance()->performance();
    if (settings->resolutionChanged) {
        if (INxMediaProxyService *service = getMediaProxyService())
            service->setResolution(performance.autoProxyResolution());
    }
    const bool isWanted = settings->createProxy || settings->resolutionChanged;
    if (!isWanted || !performance.isAutoCreateProxy())
        return;
    NxMediaCategoryPresenter *category = q()->getMediaCategoryPresenter(mctMedia);
    INxFolderMediaManager *folders =
        category ? category->folderManagerPresenter()->folderManager() : nullptr;
    if (folders)
        category->mediaItemManagerPresenter()->createProxyFile(folders->allMedia());
}
