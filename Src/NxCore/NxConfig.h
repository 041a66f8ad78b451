// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

#include <memory>

class INxSettingsStore;
class NxConfigPrivate;

/// What the user once decided and need not decide again, and the addresses of web pages.
///
/// Kept in the user's ini file unless the host installs another store. Every change is written
/// at once. GUI thread only.
class NXCORE_EXPORT NxConfig
{
public:
    /// The process's configuration; never null.
    static NxConfig *Instance();

    /// Whether deleting media asks first; true until the user says otherwise.
    [[nodiscard]] bool getMediaDeleteConfirm() const;
    void setMediaDeleteConfirm(bool confirm);

    /// Whether "find similar" was ever used; false at first.
    [[nodiscard]] bool getFindSimilarUsed() const;
    void setFindSimilarUsed(bool used);

    /// The folder the user last imported from, or the fallback when there was none.
    [[nodiscard]] QString getDefaultImportDir(const QString &fallback) const;
    void setDefaultImportDir(const QString &directory);

    /// The address of a web page by its key ("HevcPage": where one learns about playing HEVC).
    /// Empty for an unknown key.
    [[nodiscard]] QString GetCBSUrl(const QString &key) const;
    /// Sets a page's address; an empty one brings back the built-in address.
    void setCBSUrl(const QString &key, const QString &url);

    /// Keeps the settings somewhere else from now on; null goes back to the user's ini file.
    /// Takes ownership.
    void setStore(std::unique_ptr<INxSettingsStore> store);

private:
    Q_DISABLE_COPY_MOVE(NxConfig)
    NxConfig();
    ~NxConfig();

    const std::unique_ptr<NxConfigPrivate> d;
};
