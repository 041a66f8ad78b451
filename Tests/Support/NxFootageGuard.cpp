// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageGuard.h"

#include <NxCore/NxText.h>

#include <QCryptographicHash>
#include <QFile>
#include <QStringList>

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

namespace {

QByteArray checksum(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return QByteArrayLiteral("unreadable");
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::array<char, 1 << 16> block;
    while (file.read(block.data(), block.size()) || file.gcount() > 0)
        hash.addData(block.data(), int(file.gcount()));
    return hash.result().toHex();
}

} // namespace

NxFootageGuard::NxFootageGuard(const QString &folder)
    : m_folder(QFile::encodeName(folder).toStdString()),
      m_before(look(m_folder))
{
    if (!fs::is_directory(m_folder))
        qFatal("%s is no folder that could be guarded", m_folder.c_str());
}

NxFootageGuard::Entry NxFootageGuard::describe(const std::string &path)
{
    const fs::file_status status = fs::symlink_status(path);
    Entry entry;
    std::error_code error;
    if (fs::is_symlink(status)) {
        entry.kind = QByteArrayLiteral("link");
        entry.content = QByteArray::fromStdString(fs::read_symlink(path, error).string());
        return entry; // Its time would be its target's.
    }
    if (fs::is_regular_file(status)) {
        entry.kind = QByteArrayLiteral("file");
        entry.content = checksum(path);
    } else {
        entry.kind =
            fs::is_directory(status) ? QByteArrayLiteral("folder") : QByteArrayLiteral("other");
    }
    entry.modified = fs::last_write_time(path, error).time_since_epoch().count();
    return entry;
}

NxFootageGuard::Snapshot NxFootageGuard::look(const std::string &folder)
{
    Snapshot snapshot;
    std::error_code error;
    if (!fs::exists(folder, error))
        return snapshot;
    snapshot.emplace(folder, describe(folder));
    for (fs::recursive_directory_iterator it(folder, error), end; it != end; it.increment(error))
        snapshot.emplace(it->path().string(), describe(it->path().string()));
    return snapshot;
}

QString NxFootageGuard::changes() const
{
    const Snapshot now = look(m_folder);
    QStringList lines;
    const auto say = [&lines](const char *what, const std::string &path) {
        lines += QLatin1String(what) + NxText::displayBytes(QByteArray::fromStdString(path));
    };
    for (const auto &[path, before] : m_before) {
        const auto found = now.find(path);
        if (found == now.end()) {
            say("gone: ", path);
            continue;
        }
        const Entry &after = found->second;
        if (after.kind != before.kind || after.content != before.content)
            say("other content: ", path);
        else if (after.modified != before.modified)
            say("other time: ", path);
    }
    for (const auto &[path, after] : now) {
        if (m_before.find(path) == m_before.end())
            say("new: ", path);
    }
    return lines.join(QLatin1Char('\n'));
}
