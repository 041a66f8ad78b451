// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/FileManager.h>

class QDBusConnection;

/// The file manager that listens on a bus under the name that all desktops share.
namespace FileManagerBus {

/// Asks it to select the file; see FileManager::Asker.
void ask(const QDBusConnection &bus, const QString &path, QObject *context,
         FileManager::Answer answer);

} // namespace FileManagerBus
