// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

/// A folder that goes with everything in it when this object dies: read-only folders and names
/// that are no UTF-8 included.
class NxTempDir
{
public:
    NxTempDir();
    ~NxTempDir();

    [[nodiscard]] QString path() const { return m_path; }
    /// The absolute path of a name in it; the name may contain "/".
    [[nodiscard]] QString filePath(const QString &name) const;
    /// Makes a folder and those above it; answers its absolute path.
    QString makeDir(const QString &name) const;
    /// Writes a file, with the folders above it; answers its absolute path.
    QString write(const QString &name, const QByteArray &content = QByteArray("x")) const;

private:
    Q_DISABLE_COPY_MOVE(NxTempDir)

    QString m_path;
};
