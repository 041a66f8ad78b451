// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <NxAppSettings/NxAppSettings.h>
#include <NxAppSettings/NxPerformanceSettings.h>
#include <NxCore/NxConvertUtility.h>
#include <NxCore/NxLog.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaItemManagerPresenterPrivate.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxAudioSyncService.h>
#include <NxVBLModel/INxBeatService.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxMediaProxyService.h>
#include <NxVBLModel/INxSceneService.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxVBLModel/NxTimelineAudioSynMessage.h>
#include <NxWidgets/NMessageDialog.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

using namespace NXVBLMODEL;

namespace {

constexpr int SyncedMedia = 2;

/// A service of the installed engine; null where it has none, which the engine notes in the log.
template<typename Service>
Service *engineService(Service *(INxMediaEngine::*service)())
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    return engine ? (engine->*service)() : nullptr;
}

int infoKind(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = item ? item->mediaInfo() : nullptr;
    return info ? info->kind() : int(mikUnknown);
}

/// Kinds, in the order of the list, that can be aligned by their sound.
constexpr std::pair<int, int> SyncedKinds[] = {
    {mikVideo, mikVideo}, {mikAudio, mikVideo}, {mikVideo, mikAudio}};

/// -1 when it is not known.
qint64 lengthMs(const INxAbstractMediaItem *item)
{
    const INxMediaInfo *info = item ? item->mediaInfo() : nullptr;
    const NxRational rate = info ? info->frameRate() : NxRational();
    if (!info || rate.num <= 0 || rate.den <= 0 || info->frameCount() <= 0)
        return -1;
    return NxConvertUtility::frame2Msec(info->frameCount(), double(rate.num) / rate.den);
}

} // namespace

bool NxMediaItemManagerPresenter::checkFreeSpaceForProxy(const QList<INxAbstractMedia *> &items)
{
    INxMediaProxyService *service = getMediaProxyService();
    if (!service)
        return false;
    const QString directory = NxAppSettings::instance()->performance().proxyDirectory();
    double neededMB = 0;
    double remainMB = 0;
    if (service->checkFreeSpace(directory, NxMediaLibraryUtils::extractMediaItems(items), neededMB,
                                remainMB))
        return true;
    NMessageDialog::Infomation(
        d_func()->viewWidget(), {},
        tr("There is not enough space in the specified output directory, please choose another "
           "one.\nDise Space needed :%1 MB, remaining:%2 MB.")
            .arg(QString::number(std::ceil(neededMB), 'f', 0),
                 QString::number(std::floor(remainMB), 'f', 0)));
    return false;
}

bool NxMediaItemManagerPresenter::createProxyFile(const QList<INxAbstractMedia *> &items)
{
    INxMediaProxyService *service = getMediaProxyService();
    if (service)
        service->createProxyFile(NxMediaLibraryUtils::extractMediaItems(items));
    return service != nullptr;
}

bool NxMediaItemManagerPresenter::stopCreateProxyFile(const QList<INxAbstractMedia *> &items)
{
    INxMediaProxyService *service = getMediaProxyService();
    if (service)
        service->stopCreateProxyFile(NxMediaLibraryUtils::extractMediaItems(items));
    return service != nullptr;
}

bool NxMediaItemManagerPresenter::beatDetection(const QList<INxAbstractMedia *> &items)
{
    INxBeatService *service = engineService(&INxMediaEngine::beatService);
    return service && service->beatDetection(items);
}

QList<qint64> NxMediaItemManagerPresenter::getOneBeatInfo(const QList<INxAbstractMedia *> &items)
{
    INxBeatService *service = engineService(&INxMediaEngine::beatService);
    return service ? service->getOneBeatInfo(items) : QList<qint64>();
}

bool NxMediaItemManagerPresenter::scenceDetect(INxAbstractMedia *item, QList<qint64> &points)
{
    INxSceneService *service = engineService(&INxMediaEngine::sceneService);
    return service && item && service->scenceDetect(item, points);
}

// Audio synchronisation

bool NxMediaItemManagerPresenter::isAudioSyncEnabled(const QList<INxAbstractMedia *> &items)
{
    if (items.size() != SyncedMedia) {
        NX_LOG_INFO("not two medias selected");
        return false;
    }
    const auto *first = dynamic_cast<INxAbstractMediaItem *>(items.at(0));
    const auto *second = dynamic_cast<INxAbstractMediaItem *>(items.at(1));
    const std::pair<int, int> kinds(infoKind(first), infoKind(second));
    return std::find(std::begin(SyncedKinds), std::end(SyncedKinds), kinds)
           != std::end(SyncedKinds);
}

bool NxMediaItemManagerPresenter::isValidAudioSyncMediaLength(INxAbstractMediaItem *first,
                                                              INxAbstractMediaItem *second) const
{
    const INxAudioSyncService *service = engineService(&INxMediaEngine::audioSyncService);
    if (!service)
        return false;
    for (const INxAbstractMediaItem *item : {first, second}) {
        const qint64 length = lengthMs(item);
        if (length < 0 || length < service->minLength() || length > service->maxLength())
            return false;
    }
    return true;
}

void NxMediaItemManagerPresenter::startAudioSyn(const QList<INxAbstractMedia *> &items)
{
    if (items.size() != SyncedMedia) {
        NX_LOG_ERROR("not two medias selected");
        return;
    }
    auto *first = dynamic_cast<INxAbstractMediaItem *>(items.at(0));
    auto *second = dynamic_cast<INxAbstractMediaItem *>(items.at(1));
    if (!isValidAudioSyncMediaLength(first, second)) {
        NMessageDialog::Infomation(
            d_func()->viewWidget(), tr("Auto Synchronization"),
            tr("The selected clips cannot be synchronized, please reselect the clips."));
        return;
    }
    NxTimelineAudioSynMessage message;
    message.first = first;
    message.second = second;
    message.mode = asmBySound;
    message.muteChoice = mcNotAsked;
    const bool areVideos = infoKind(first) == mikVideo && infoKind(second) == mikVideo;
    if (!areVideos && !d_func()->askMute(&message))
        return;
    sendMessageToScene(&message);
}

bool NxMediaItemManagerPresenterPrivate::askMute(NxTimelineAudioSynMessage *message)
{
    const NxMediaRef first(message->first);
    const NxMediaRef second(message->second);
    const QPointer<NxMediaItemManagerPresenter> alive(q());
    NMessageDialogInfo info;
    info.style = mdsQuestion;
    info.text = NxMediaItemManagerPresenter::tr(
        "After the audio and video are synced, the audio and video will be added to the timeline "
        "simultaneously. Do you want to mute the original audio within the video file "
        "automatically?");
    info.buttons = {mdbAffirmative, mdbNegative};
    info.defaultButton = mdbAffirmative;
    info.escapeButton = mdbClosed;
    const int button = NMessageDialog::Ask(viewWidget(), info).button;
    if (button == mdbClosed || !alive || first.isNull() || second.isNull())
        return false;
    message->muteChoice = button == mdbAffirmative ? mcMute : mcKeepSound;
    const bool isSoundLast =
        infoKind(message->second) == mikAudio && infoKind(message->first) != mikAudio;
    if (isSoundLast)
        std::swap(message->first, message->second);
    return true;
}
