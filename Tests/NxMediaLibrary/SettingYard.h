// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxAppInfo.h>

#include <Support/NxTempDir.h>

#include <QByteArray>
#include <QMap>
#include <QString>

class NxMediaLibrarySetting;

/// A folder of user data that the view settings are kept in while this object lives. It begins
/// empty, and the settings begin anew with it.
class SettingYard : public INxAppInfo
{
public:
    SettingYard();
    ~SettingYard() override;

    QString getDirectory(int pathKind) override;

    [[nodiscard]] QString folder() const { return m_dir.path(); }
    [[nodiscard]] QString iniPath() const;
    [[nodiscard]] QString lockPath() const;
    /// Replaces the file as another program would.
    void writeIni(const QByteArray &text) const;
    /// The bytes of the file; empty when there is none.
    [[nodiscard]] QByteArray iniText() const;
    /// The keys of the file's only group with their texts. Says so under the key "?" when a line
    /// is neither the group's name nor a key.
    [[nodiscard]] QMap<QString, QString> iniKeys() const;

    /// The settings as a new start of the program has them.
    [[nodiscard]] static NxMediaLibrarySetting *restart();

private:
    const NxTempDir m_dir;
};
