// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <QStringList>

class NxEngineCategory;

/// Writes down what the observers of a category are told, a line an event, and checks at each
/// what an observer relies on: "before add" while the folder does not list the item, "before
/// remove" while it does.
class EngineEvents final : public INxMediaItemEventObserver, public INxMediaFolderEventObserver
{
public:
    explicit EngineEvents(NxEngineCategory *category);
    ~EngineEvents() override;

    /// The lines since the last call.
    QStringList take();
    /// What an observer could not have relied on; empty when all was well.
    QStringList complaints;
    bool quiet = false; ///< Only checks, writes nothing down.

    void onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                               INxAbstractMedia *item) override;
    void onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                              INxAbstractMedia *item) override;
    void onRenameFolderEvent(INxFolderMedia *folder) override;
    void onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onMediaStateChangedEvent(INxAbstractMedia *item) override;
    void onAllMediaChangedFinishEvent(INxFolderMedia *folder) override;

    void onBeforeAddFolderEvent(INxFolderMedia *parent, const int &first, const int &last) override;
    void onAfterAddFolderEvent() override;
    void onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                   const int &last) override;
    void onAfterRemoveFolderEvent() override;
    void onBeforeMoveFolderEvent() override;
    void onAfterMoveFolderEvent() override;
    void onFolderStateChangedEvent(INxFolderMedia *folder) override;

private:
    void note(const QString &line);
    void expectListed(INxFolderMedia *folder, INxAbstractMedia *item, bool listed,
                      const char *when);

    NxEngineCategory *const m_category;
    QStringList m_lines;
};
