// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "FakeLibrary.h"
#include "ScriptedItemManager.h"
#include "ScriptedProject.h"

#include <Brevano/window/FactSheet.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/PanelActions.h>
#include <NxCore/NxFile.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QHash>
#include <QLabel>
#include <QToolButton>

#include <memory>

/// Hands out the pictures that a test puts on the shelf.
struct PictureShelf final : INxMediaEngine
{
    struct Handle final : INxBsThumbManager
    {
        explicit Handle(PictureShelf *where) : shelf(where) {}
        QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) override
        {
            shelf->asked.append(media);
            const QColor colour = shelf->colours.value(media);
            if (!colour.isValid())
                return {};
            QImage picture(devicePixels, QImage::Format_RGB32);
            picture.fill(colour);
            return picture;
        }
        void setArrivalTeller(ArrivalTeller told) override { shelf->teller = std::move(told); }
        void cancelRequests() override {}

        PictureShelf *const shelf; // Not owned.
    };
    INxBsThumbManager *createThumbManager() override { return new Handle(this); }

    QHash<INxAbstractMedia *, QColor> colours;
    QList<INxAbstractMedia *> asked;
    INxBsThumbManager::ArrivalTeller teller;
};

/// The category of the media.
struct InfoCategory final : INxMediaManager
{
    INxFolderMediaManager *folderManager() override { return nullptr; }
    INxMediaItemManager *itemManager() override { return &manager; }
    NXVBLMODEL::NxMediaCategoryType categoryType() const override { return NXVBLMODEL::mctMedia; }

    ScriptedItemManager manager;
};

/// A panel over media that answer what a test writes into them.
struct InfoStand
{
    using Medias = QList<INxAbstractMedia *>;

    InfoStand()
    {
        section.managed = &category;
        panel.resize(360, 600);
        panel.show();
    }
    ~InfoStand() { NxFile::setAnswerer({}); }
    Q_DISABLE_COPY_MOVE(InfoStand)

    /// A film of ten seconds and two KiB.
    FakeItem *addFilm(const QString &path)
    {
        FakeItem *film = folder->addItem(path);
        film->info.rate = {25, 1};
        film->info.frames = 250;
        film->info.video.frameSize = {1920, 1080};
        film->info.hasAudio = film->info.hasImage = false;
        film->size = 2048;
        return film;
    }
    void select(const Medias &medias) { panel.setMedia(medias, project.get()); }
    void announce(INxAbstractMedia *media)
    {
        category.manager.observers.tell(
            [media](auto *observer) { observer->onMediaStateChangedEvent(media); });
    }
    /// Tells that the media leaves its folder; it stays alive.
    void announceRemoval(FakeItem *item)
    {
        category.manager.observers.tell(
            [&](auto *observer) { observer->onBeforeRemoveItemEvent(folder, item); });
        category.manager.observers.tell(
            [&](auto *observer) { observer->onAfterRemoveItemEvent(folder, item); });
    }
    [[nodiscard]] QString fact(const char *name) const
    {
        for (const auto &fact : panel.facts()) {
            if (fact.first == QLatin1String(name))
                return fact.second;
        }
        return {};
    }
    /// What a part of the panel says; empty while it is hidden.
    [[nodiscard]] QString text(const char *part) const
    {
        const auto *label = panel.findChild<QLabel *>(QLatin1String(part));
        return label->isVisible() ? label->text() : QString();
    }
    /// The buttons that can be seen.
    [[nodiscard]] QStringList buttons() const
    {
        QStringList texts;
        for (const PanelActions::Id id : {PanelActions::Id::Relink, PanelActions::Id::FindMissing,
                                          PanelActions::Id::ReadAgain}) {
            const auto all = panel.findChildren<QToolButton *>();
            for (const QToolButton *button : all) {
                if (button->defaultAction() == actions.action(id) && button->isVisible())
                    texts.append(button->text());
            }
        }
        return texts;
    }

    PictureShelf shelf;
    const NxMediaEngineDoor door{&shelf};
    QStringList journal;
    std::unique_ptr<ScriptedProject> project = std::make_unique<ScriptedProject>(&journal);
    InfoCategory category;
    FakeFolder section{QStringLiteral("Project Media"), NXVBLMODEL::fkProject};
    FakeFolder *const folder = section.addFolder(QStringLiteral("Day 1"));
    QWidget window;
    PanelActions actions{&window};
    InfoPanel panel{&actions};
};
