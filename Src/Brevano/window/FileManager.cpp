// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FileManager.h>

#include <NxCore/NxDesktopService.h>
#include <NxCore/NxLog.h>

#include <QUrl>

#include <utility>

FileManager::FileManager(QObject *parent) : FileManager(systemFileManager(), parent) {}

FileManager::FileManager(Asker asker, QObject *parent) : QObject(parent), m_asker(std::move(asker))
{
}

FileManager::~FileManager() = default;

void FileManager::reveal(const QString &path)
{
    m_asker(path, this, [this, path](const QString &cause) {
        if (cause.isEmpty())
            Q_EMIT sigRevealed(path);
        else
            showFolder(path, cause);
    });
}

void FileManager::showFolder(const QString &path, const QString &cause)
{
    NX_LOG_INFO("no file manager selects %s: %s", qUtf8Printable(path), qUtf8Printable(cause));
    const QUrl url = QUrl::fromLocalFile(path);
    const QUrl folder = url.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
    if (NxDesktopService::openURL(folder.toString(QUrl::FullyEncoded))) {
        Q_EMIT sigRevealed(path);
        return;
    }
    Q_EMIT sigFailed(path, tr("%1 cannot be shown, because no file manager answered (%2) and its "
                              "folder could not be opened.")
                               .arg(path, cause));
}
