// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <string>

/// Proves that nobody touched the user's files: remembers a folder and later says what changed.
///
/// Compared are the set of names (hidden ones and names that are no UTF-8 included), the bytes of
/// all regular files (SHA-256), the targets of links, and every modification time, also of the
/// folders: a file that came and went again is noticed. Links are not followed; FIFOs and devices
/// are never opened.
class NxFootageGuard
{
public:
    explicit NxFootageGuard(const QString &folder);

    /// What is different now, one line each; empty when nothing is.
    [[nodiscard]] QString changes() const;

private:
    struct Entry
    {
        QByteArray kind;
        QByteArray content; ///< Checksum of a file, target of a link.
        qint64 modified = 0;
    };
    using Snapshot = std::map<std::string, Entry>;

    [[nodiscard]] static Snapshot look(const std::string &folder);
    [[nodiscard]] static Entry describe(const std::string &path);

    const std::string m_folder;
    const Snapshot m_before;
};

/// Fails the test function when a guarded file changed, saying which and how.
#define NX_VERIFY_UNTOUCHED(guard) QCOMPARE((guard).changes(), QString())
