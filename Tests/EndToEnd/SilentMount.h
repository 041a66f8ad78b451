// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// A file system that never answers anything: whoever touches it waits until this dies.
class SilentMount
{
public:
    /// Mounted on the folder, where the system allows it.
    explicit SilentMount(const QString &folder);
    /// Whoever still waits gets an error.
    ~SilentMount();

    [[nodiscard]] bool isMounted() const { return m_mounted; }

private:
    Q_DISABLE_COPY_MOVE(SilentMount)

    const QByteArray m_folder;
    int m_device = -1;
    bool m_mounted = false;
};
