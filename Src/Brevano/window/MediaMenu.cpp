// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/MediaMenu.h>

#include <Brevano/commands/MediaFacts.h>
#include <Brevano/window/PanelActions.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAction>
#include <QEvent>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

using Id = PanelActions::Id;
using Medias = QList<INxAbstractMedia *>;

/// std::nullopt: a line between two groups.
using Entries = QVector<std::optional<Id>>;

const Entries &entriesOf(MediaMenu::Subject subject)
{
    static const Entries media = {Id::AddToTimeline, std::nullopt, Id::Rename,      Id::Remove,
                                  std::nullopt,      Id::Relink,   Id::FindMissing, Id::ReadAgain,
                                  std::nullopt,      Id::Reveal,   Id::CopyPath,    Id::CopyName,
                                  Id::FindInFolder};
    static const Entries folder = {
        Id::ImportFiles, Id::ImportFolder, std::nullopt,    Id::NewFolder, Id::Rename,  Id::Remove,
        std::nullopt,    Id::RemoveUnused, Id::FindMissing, std::nullopt,  Id::CopyName};
    return subject == MediaMenu::Subject::Media ? media : folder;
}

/// What is selected, as far as actions depend on it.
struct Traits
{
    bool hasMedia = false;
    bool hasFolder = false;
    bool hasFixedFolder = false; ///< A section, which nobody renames or deletes.
    bool hasFile = false;
    bool hasMissingFile = false;
    bool hasPresentFile = false; ///< As far as anybody knows.
};

void look(const INxAbstractMedia *media, Traits *traits)
{
    if (const auto *folder = dynamic_cast<const INxFolderMedia *>(media)) {
        traits->hasFolder = true;
        traits->hasFixedFolder |= NxMediaLibraryUtils::isSpecialFolder(folder);
        return;
    }
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    if (!item)
        return;
    traits->hasMedia = true;
    if (item->isResource() || item->sourcePath().isEmpty())
        return;
    traits->hasFile = true;
    const bool isMissing = MediaFacts::isKnownMissing(*item);
    traits->hasMissingFile |= isMissing;
    traits->hasPresentFile |= !isMissing;
}

Traits traitsOf(const Medias &medias)
{
    // Of more the menu offers everything: whoever selects so many is told by what cannot be done.
    constexpr int lookedAtMost = 500;
    Traits traits;
    const int count = std::min(medias.size(), lookedAtMost);
    for (int i = 0; i < count; ++i)
        look(medias.at(i), &traits);
    if (count < medias.size())
        traits.hasMissingFile = traits.hasPresentFile = traits.hasFile;
    return traits;
}

} // namespace

MediaMenu::MediaMenu(PanelActions *actions, Subject subject, Source source, QWidget *parent)
    : QMenu(parent),
      m_actions(actions),
      m_source(std::move(source))
{
    for (const std::optional<Id> &entry : entriesOf(subject)) {
        if (entry)
            addAction(actions->action(*entry));
        else
            addSeparator();
    }
    if (subject == Subject::Media) {
        m_synchronise = addAction(QString(), this, &MediaMenu::sigSynchroniseWanted);
        m_synchronise->setVisible(false);
    }
    retranslate();
    connect(this, &QMenu::aboutToShow, this, &MediaMenu::prepare);
}

MediaMenu::~MediaMenu() = default;

void MediaMenu::update(PanelActions *actions, const QList<INxAbstractMedia *> &selected,
                       bool isReadOnly)
{
    const Traits traits = traitsOf(selected);
    const bool isOne = selected.size() == 1;
    const bool hasAny = traits.hasMedia || traits.hasFolder;
    const bool canChange = !isReadOnly && !traits.hasFixedFolder;
    const std::pair<Id, bool> states[] = {
        {Id::AddToTimeline, traits.hasMedia && !isReadOnly},
        {Id::Rename, isOne && hasAny && canChange},
        {Id::Remove, hasAny && canChange},
        {Id::Relink, traits.hasFile && !isReadOnly},
        // With nothing selected, and in a folder, all that is missing is meant.
        {Id::FindMissing, (traits.hasMissingFile || !traits.hasMedia) && !isReadOnly},
        {Id::ReadAgain, traits.hasPresentFile && !isReadOnly},
        {Id::Reveal, isOne && traits.hasPresentFile},
        {Id::CopyPath, traits.hasFile},
        {Id::CopyName, hasAny},
        {Id::FindInFolder,
         isOne && traits.hasMedia && selected.constFirst()->parentFolder() != nullptr},
    };
    for (const auto &state : states)
        actions->action(state.first)->setEnabled(state.second);
}

void MediaMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void MediaMenu::prepare()
{
    setPalette(NxSkinStyle::instance()->palette());
    const Selection selection = m_source();
    update(m_actions, selection.medias, selection.isReadOnly);
    if (!m_synchronise)
        return;
    m_synchronise->setVisible(!selection.isReadOnly
                              && NxMediaItemManagerPresenter::isAudioSyncEnabled(selection.medias));
}

void MediaMenu::retranslate()
{
    setAccessibleName(m_synchronise ? tr("Media") : tr("Folder"));
    if (m_synchronise)
        m_synchronise->setText(tr("S&ynchronize by Sound"));
}
