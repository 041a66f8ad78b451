// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDirectoryReader.h>

#include <NxCore/NxText.h>

#include <QByteArray>

#include <memory>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using Kind = NxDirectoryEntry::Kind;

struct CloseFolder
{
    void operator()(DIR *folder) const { closedir(folder); }
};
using FolderHandle = std::unique_ptr<DIR, CloseFolder>;

QString systemWords(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

Kind kindOfMode(mode_t mode)
{
    if (S_ISREG(mode))
        return Kind::File;
    return S_ISDIR(mode) ? Kind::Folder : Kind::Special;
}

/// Asks the disk only where the folder itself does not tell.
void findKind(int folder, const dirent &found, NxDirectoryEntry *entry)
{
    if (found.d_type != DT_LNK && found.d_type != DT_UNKNOWN) {
        entry->kind = kindOfMode(DTTOIF(found.d_type));
        return;
    }
    if (entry->isHidden)
        return; // Nobody will want to know.
    struct stat facts = {};
    if (fstatat(folder, found.d_name, &facts, AT_SYMLINK_NOFOLLOW) != 0) {
        entry->kind = Kind::File; // Whoever opens it learns the cause.
        return;
    }
    entry->isLink = S_ISLNK(facts.st_mode);
    const bool leadsSomewhere = !entry->isLink || fstatat(folder, found.d_name, &facts, 0) == 0;
    entry->kind = leadsSomewhere ? kindOfMode(facts.st_mode) : Kind::Dangling;
}

NxDirectoryEntry describe(int folder, const dirent &found)
{
    NxDirectoryEntry entry;
    const QByteArray bytes(found.d_name);
    entry.isHidden = bytes.startsWith('.');
    entry.isValidText = NxText::isUtf8(bytes);
    entry.name = entry.isValidText ? QString::fromUtf8(bytes) : NxText::displayBytes(bytes);
    findKind(folder, found, &entry);
    return entry;
}

bool isSelfOrParent(const char *name)
{
    return qstrcmp(name, ".") == 0 || qstrcmp(name, "..") == 0;
}

} // namespace

NxDirectoryListing NxDirectoryReader::read(
    const QString &path, const std::function<bool()> &goOn)
{
    NxDirectoryListing listing;
    const FolderHandle folder(opendir(path.toUtf8().constData()));
    if (!folder) {
        listing.error = systemWords(errno);
        return listing;
    }
    const int descriptor = dirfd(folder.get());
    while (goOn()) {
        errno = 0;
        const dirent *found = readdir(folder.get());
        if (!found) {
            if (errno != 0)
                listing.error = systemWords(errno);
            break;
        }
        if (isSelfOrParent(found->d_name))
            continue;
        NxDirectoryEntry entry = describe(descriptor, *found);
        (entry.kind == Kind::Folder ? listing.folders : listing.files).push_back(std::move(entry));
    }
    sort(&listing.files);
    sort(&listing.folders);
    return listing;
}
