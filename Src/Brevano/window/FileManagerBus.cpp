// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FileManagerBus.h>

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUrl>

#include <utility>

void FileManagerBus::ask(const QDBusConnection &bus, const QString &path, QObject *context,
                         FileManager::Answer answer)
{
    if (!bus.isConnected()) {
        answer(bus.lastError().message()); // A call would never be answered.
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    call << QStringList(url) << QString(); // The second one names the start, for its feedback.
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, answer = std::move(answer)] {
                         const QDBusPendingReply<> reply = *watcher;
                         watcher->deleteLater();
                         answer(reply.isError() ? reply.error().message() : QString());
                     });
}

FileManager::Asker systemFileManager()
{
    return [](const QString &path, QObject *context, FileManager::Answer answer) {
        FileManagerBus::ask(QDBusConnection::sessionBus(), path, context, std::move(answer));
    };
}
