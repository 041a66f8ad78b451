// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// Shows files in the user's file manager: selected in their folder, or, where no file manager
/// can do that, their folder. Never waits for a file manager. GUI thread only.
class FileManager : public QObject
{
    Q_OBJECT
public:
    /// Called once, on the GUI thread: empty when the file is shown, else why it is not.
    using Answer = std::function<void(const QString &cause)>;
    /// Asks somebody to show the file of this absolute path. May answer at once, and must not
    /// answer after the context's death.
    using Asker = std::function<void(const QString &path, QObject *context, Answer answer)>;

    explicit FileManager(QObject *parent = nullptr);
    /// @param asker whom to ask in place of the system's file manager.
    explicit FileManager(Asker asker, QObject *parent = nullptr);
    ~FileManager() override;

    /// @param path absolute.
    void reveal(const QString &path);

Q_SIGNALS:
    /// Its file manager shows the file, or at least its folder.
    void sigRevealed(const QString &path);
    /// A sentence for the user, with the file and the cause.
    void sigFailed(const QString &path, const QString &reason);

private:
    void showFolder(const QString &path, const QString &cause);

    const Asker m_asker;
};

/// The file manager of the system that this runs on; one source file per system.
[[nodiscard]] FileManager::Asker systemFileManager();
