// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QList>
#include <QStringList>

/// What tests call media and folders by.
namespace PanelNames {

[[nodiscard]] inline QStringList of(const QList<INxAbstractMedia *> &medias)
{
    QStringList names;
    for (const INxAbstractMedia *media : medias)
        names.append(media->name());
    return names;
}

[[nodiscard]] inline QString of(const INxFolderMedia *folder)
{
    return folder ? folder->name() : QStringLiteral("none");
}

} // namespace PanelNames
