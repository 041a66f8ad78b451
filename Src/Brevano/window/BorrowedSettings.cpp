// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/BorrowedSettings.h>

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

BorrowedSettings::BorrowedSettings() : m_usual(INxAppInfo::getInstance())
{
    NxDiskBan::note("BorrowedSettings");
    INxAppInfo::setInstance(this);
    NxMediaLibrarySetting::release();
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
}

BorrowedSettings::~BorrowedSettings()
{
    NxMediaLibrarySetting::release();
    NxConfig::Instance()->setStore(nullptr);
    NxAppSettings::instance()->setStore(nullptr);
    INxAppInfo::setInstance(m_usual);
}

QString BorrowedSettings::getDirectory(int pathKind)
{
    return pathKind == pkUserData ? m_folder.path() : m_usual->getDirectory(pathKind);
}
