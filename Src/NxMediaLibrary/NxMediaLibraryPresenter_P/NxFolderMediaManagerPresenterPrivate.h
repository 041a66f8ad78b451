// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QPointer>

#include <memory>

class INxFolderMediaManager;
class NxFolderMediaManagerPresenter;

class NXMEDIALIBRARY_TEST_EXPORT NxFolderMediaManagerPresenterPrivate
    : public NxBaseMediaPresenterPrivate,
      public INxMediaFolderEventObserver
{
public:
    explicit NxFolderMediaManagerPresenterPrivate(INxFolderMediaManager *manager);
    ~NxFolderMediaManagerPresenterPrivate() override;

    /// Null once it died.
    [[nodiscard]] INxFolderMediaManager *manager() const;
    void removeFolder(INxFolderMedia *folder);

    void onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                   const int &last) override;
    void onAfterRemoveFolderEvent() override;
    void onBeforeMoveFolderEvent() override;
    void onAfterMoveFolderEvent() override;

    INxFolderMediaManager *folderManager = nullptr; // Not owned.
    QPointer<INxFolderMedia> currentFolder;

private:
    [[nodiscard]] NxFolderMediaManagerPresenter *q() const;
    [[nodiscard]] bool holdsCurrentFolder(const INxFolderMedia *parent, int first, int last) const;

    std::weak_ptr<void> m_managerLife;
    const std::unique_ptr<NxObserverConnector> m_connector;
    QPointer<INxFolderMedia> m_heir; // Of the current folder, while that is being removed.
    bool m_isMoving = false;
};
