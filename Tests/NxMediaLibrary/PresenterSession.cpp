// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PresenterSession.h"

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxVBLModel/INxTimelineEditor.h>

#include <NxWidgets/NxDialogScript.h>

#include <array>
#include <functional>

#include "ProjectDesk.h"

using namespace NXVBLMODEL;

namespace {

/// Answers every dialog of one operation with the same button and fresh files.
class QuickUser final : public INxDialogAnswerer
{
public:
    QuickUser(int button, std::function<QString()> file)
        : m_button(button),
          m_file(std::move(file)),
          m_script(this)
    {
    }
    NMessageDialogAnswer answer(const NMessageDialogInfo &info) override
    {
        const bool isShown = info.buttons.contains(m_button) || info.buttons.isEmpty();
        return {isShown ? m_button : info.escapeButton, false};
    }
    QString chooseFile(const NxFileDialogInfo &) override { return m_file(); }

private:
    const int m_button;
    const std::function<QString()> m_file;
    const NxDialogScript m_script;
};

void collect(INxFolderMedia *folder, QList<INxFolderMedia *> *all)
{
    all->append(folder);
    const QList<INxFolderMedia *> children = folder->childFolders();
    for (INxFolderMedia *child : children)
        collect(child, all);
}

} // namespace

PresenterSession::PresenterSession(ProjectDesk *desk, quint32 seed)
    : m_desk(desk),
      m_seed(seed),
      m_random(seed)
{
}

int PresenterSession::below(int bound)
{
    return int(m_random() % quint32(bound));
}

QString PresenterSession::fresh(const char *stem)
{
    return QStringLiteral("%1%2-%3").arg(QLatin1String(stem)).arg(m_seed).arg(++m_serial);
}

NxClipPlace PresenterSession::anyPlace()
{
    NxClipPlace place;
    place.track = below(4);
    place.position = below(400);
    place.length = 1 + below(20);
    place.inPoint = below(100);
    return place;
}

INxAbstractMedia *PresenterSession::anyMedia()
{
    const QList<INxAbstractMedia *> all = m_desk->section()->items(true, true);
    return all.isEmpty() ? nullptr : all.at(below(all.size()));
}

QList<INxAbstractMedia *> PresenterSession::someMedia(INxFolderMedia *folder)
{
    QList<INxAbstractMedia *> some;
    const QList<INxAbstractMedia *> all = folder->items(true, true);
    for (INxAbstractMedia *media : all) {
        if (below(6) == 0)
            some.append(media);
    }
    return some;
}

INxFolderMedia *PresenterSession::anyFolder()
{
    QList<INxFolderMedia *> all;
    collect(m_desk->section(), &all);
    return all.at(below(all.size()));
}

INxTimeline *PresenterSession::anyTimeline()
{
    const QList<INxTimeline *> all = m_desk->project->timelines();
    return all.isEmpty() ? nullptr : all.at(below(all.size()));
}

INxClip *PresenterSession::anyClip(INxTimeline *timeline)
{
    const QList<INxClip *> clips = timeline ? timeline->clips() : QList<INxClip *>();
    return clips.isEmpty() ? nullptr : clips.at(below(clips.size()));
}

INxSplitScreenClip *PresenterSession::anySplitScreen()
{
    QList<INxSplitScreenClip *> splits;
    const QList<INxTimeline *> all = m_desk->project->timelines();
    for (INxTimeline *timeline : all) {
        const QList<INxClip *> clips = timeline->clips();
        for (INxClip *clip : clips) {
            if (auto *split = dynamic_cast<INxSplitScreenClip *>(clip))
                splits.append(split);
        }
    }
    return splits.isEmpty() ? nullptr : splits.at(below(splits.size()));
}

// With media

void PresenterSession::importFiles()
{
    NXMEDIALIBRARY::NxMediaImportParam param;
    param.folder = anyFolder();
    for (int count = 1 + below(4); count > 0; --count)
        param.files.append(QStringLiteral("/footage/") + fresh("clip") + QStringLiteral(".mov"));
    m_desk->items->importMeidas(param);
}

void PresenterSession::addMedia()
{
    m_desk->items->addMediaItems(anyFolder(), someMedia(m_desk->section()));
}

void PresenterSession::removeMedia()
{
    const QuickUser user(below(4) == 0 ? mdbNegative : mdbAffirmative, {});
    INxFolderMedia *folder = anyFolder();
    const QList<INxAbstractMedia *> some = someMedia(folder);
    m_desk->items->removeMediaItems(folder, some);
    m_removed = NxMediaRef(some.value(0));
}

void PresenterSession::bringBackMedia()
{
    INxAbstractMedia *media = m_removed.get();
    const bool isKept =
        media && m_desk->undo()->keeps(NxObjectKind::Media, media->mediaId().toLongLong());
    if (isKept)
        m_desk->items->addMediaItems(anyFolder(), {media});
}

void PresenterSession::removeUnused()
{
    const QuickUser user(below(2) == 0 ? mdbNegative : mdbAffirmative, {});
    m_desk->items->removeUnusedMedia(anyFolder());
}

void PresenterSession::renameMedia()
{
    if (INxAbstractMedia *media = anyMedia())
        m_desk->items->renameMediaItem(media, below(8) == 0 ? QString() : fresh("name"));
}

void PresenterSession::relinkMedia()
{
    const QuickUser user(mdbAffirmative, [this] {
        return below(5) == 0 ? QString() : QLatin1String("/found/") + fresh("clip");
    });
    if (INxAbstractMedia *media = anyMedia())
        m_desk->items->relinkMedia({media});
}

void PresenterSession::dealWithMissing()
{
    const QuickUser user(below(3) == 0 ? mdbClosed : mdbNegative, {});
    m_desk->items->dealWithMissingFiles(someMedia(anyFolder()));
}

void PresenterSession::markMedia()
{
    if (auto *item = dynamic_cast<INxAbstractMediaItem *>(anyMedia()))
        m_desk->media()->itemManager()->setFavourite(item, !item->isFavourite());
}

void PresenterSession::selectMedia()
{
    m_desk->items->setFolder(anyFolder());
    m_desk->items->setSelectedItems(someMedia(m_desk->items->folder()));
}

// With folders

void PresenterSession::addFolder()
{
    m_desk->folders->setCurrentFolder(m_desk->folders->addFolder(anyFolder(), fresh("folder")));
}

void PresenterSession::renameFolder()
{
    m_desk->folders->renameFolder(anyFolder(), fresh("renamed"));
}

void PresenterSession::moveFolder()
{
    m_desk->folders->moveFolder(anyFolder(), anyFolder(), below(6) - 1);
}

void PresenterSession::removeFolder()
{
    const QuickUser user(below(3) == 0 ? mdbNegative : mdbAffirmative, {});
    m_desk->folders->removeFolder(anyFolder());
}

// With timelines

void PresenterSession::addTimeline()
{
    m_desk->project->timelineEditor()->addTimeline(fresh("timeline"));
}

void PresenterSession::addComposite()
{
    m_desk->project->timelineEditor()->addComposite(anyTimeline(), fresh("inside"), anyPlace());
}

void PresenterSession::addClip()
{
    m_desk->project->timelineEditor()->addClip(anyTimeline(), anyMedia(), anyPlace());
}

void PresenterSession::addSplitScreen()
{
    m_desk->project->timelineEditor()->addSplitScreen(anyTimeline(), anyPlace());
}

void PresenterSession::addInnerClip()
{
    m_desk->project->timelineEditor()->addInnerClip(anySplitScreen(), anyMedia(), below(50));
}

void PresenterSession::moveClip()
{
    m_desk->project->timelineEditor()->moveClip(anyClip(anyTimeline()), below(4), below(400));
}

void PresenterSession::removeClip()
{
    INxSplitScreenClip *split = below(3) == 0 ? anySplitScreen() : nullptr;
    if (split && !split->innerClips().isEmpty()) {
        split->removeInnerClip(split->innerClips().first());
        return;
    }
    INxTimeline *timeline = anyTimeline();
    if (INxClip *clip = anyClip(timeline))
        timeline->removeClip(clip);
}

void PresenterSession::step()
{
    static const std::array<Choice, 21> choices = {{
        {"importFiles", &PresenterSession::importFiles, 24},
        {"addMedia", &PresenterSession::addMedia, 6},
        {"removeMedia", &PresenterSession::removeMedia, 14},
        {"bringBackMedia", &PresenterSession::bringBackMedia, 4},
        {"removeUnused", &PresenterSession::removeUnused, 2},
        {"renameMedia", &PresenterSession::renameMedia, 8},
        {"relinkMedia", &PresenterSession::relinkMedia, 8},
        {"dealWithMissing", &PresenterSession::dealWithMissing, 4},
        {"markMedia", &PresenterSession::markMedia, 6},
        {"selectMedia", &PresenterSession::selectMedia, 8},
        {"addFolder", &PresenterSession::addFolder, 10},
        {"renameFolder", &PresenterSession::renameFolder, 4},
        {"moveFolder", &PresenterSession::moveFolder, 6},
        {"removeFolder", &PresenterSession::removeFolder, 3},
        {"addTimeline", &PresenterSession::addTimeline, 4},
        {"addComposite", &PresenterSession::addComposite, 6},
        {"addClip", &PresenterSession::addClip, 20},
        {"addSplitScreen", &PresenterSession::addSplitScreen, 8},
        {"addInnerClip", &PresenterSession::addInnerClip, 12},
        {"moveClip", &PresenterSession::moveClip, 6},
        {"removeClip", &PresenterSession::removeClip, 6},
    }};
    int total = 0;
    for (const Choice &choice : choices)
        total += choice.weight;
    int drawn = below(total);
    for (const Choice &choice : choices) {
        drawn -= choice.weight;
        if (drawn < 0) {
            m_operation = QLatin1String(choice.name);
            (this->*choice.run)();
            return;
        }
    }
}
