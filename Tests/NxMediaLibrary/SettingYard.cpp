// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "SettingYard.h"

#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <QFile>

SettingYard::SettingYard()
{
    NxMediaLibrarySetting::release();
    INxAppInfo::setInstance(this);
}

SettingYard::~SettingYard()
{
    NxMediaLibrarySetting::release();
    INxAppInfo::setInstance(nullptr);
}

QString SettingYard::getDirectory(int pathKind)
{
    return pathKind == pkUserData ? m_dir.path() : QString();
}

QString SettingYard::iniPath() const
{
    return m_dir.filePath(QStringLiteral("Brevano.ini"));
}

QString SettingYard::lockPath() const
{
    return iniPath() + QStringLiteral(".lock");
}

void SettingYard::writeIni(const QByteArray &text) const
{
    m_dir.write(QStringLiteral("Brevano.ini"), text);
}

QByteArray SettingYard::iniText() const
{
    QFile file(iniPath());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QString> SettingYard::iniKeys() const
{
    QMap<QString, QString> keys;
    bool isInGroup = false;
    for (const QByteArray &line : iniText().split('\n')) {
        const int equals = line.indexOf('=');
        if (line == "[NMatterViewMenu]" && !isInGroup)
            isInGroup = true;
        else if (equals > 0 && isInGroup)
            keys.insert(QString::fromUtf8(line.left(equals)),
                        QString::fromUtf8(line.mid(equals + 1)));
        else if (!line.isEmpty())
            keys.insert(QStringLiteral("?"), QString::fromUtf8(line));
    }
    return keys;
}

NxMediaLibrarySetting *SettingYard::restart()
{
    NxMediaLibrarySetting::release();
    return NxMediaLibrarySetting::instance();
}
