// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDirectoryReader.h>

#include <NxVBLEngine/disk/NxFileProbe.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

using Kind = NxDirectoryEntry::Kind;

Kind kindOf(NxFileKind kind)
{
    if (kind == NxFileKind::Folder)
        return Kind::Folder;
    if (kind == NxFileKind::Special)
        return Kind::Special;
    return kind == NxFileKind::Missing ? Kind::Dangling : Kind::File;
}

NxDirectoryEntry describe(const QFileInfo &info)
{
    NxDirectoryEntry entry;
    entry.name = info.fileName();
    entry.isHidden = info.isHidden() || entry.name.startsWith(QLatin1Char('.'));
    entry.isLink = NxFileProbe::isLink(info.filePath());
    if (entry.isLink)
        entry.kind = kindOf(NxFileProbe::look(info.filePath()).kind);
    else
        entry.kind = info.isDir() ? Kind::Folder : Kind::File;
    return entry;
}

} // namespace

NxDirectoryListing NxDirectoryReader::read(
    const QString &path, const std::function<bool()> &goOn)
{
    NxDirectoryListing listing;
    if (!QFileInfo(path).isReadable()) {
        listing.error = QStringLiteral("Permission denied");
        return listing;
    }
    QDirIterator names(
        path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (goOn() && names.hasNext()) {
        names.next();
        NxDirectoryEntry entry = describe(names.fileInfo());
        (entry.kind == Kind::Folder ? listing.folders : listing.files).push_back(std::move(entry));
    }
    sort(&listing.files);
    sort(&listing.folders);
    return listing;
}
