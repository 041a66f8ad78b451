// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxFileSystemKind.h>

#include <QStorageInfo>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *NetworkTypes[] = {
    "9p",
    "acfs",
    "afpfs",
    "afs",
    "beegfs",
    "ceph",
    "cifs",
    "coda",
    "davfs",
    "fuse.ceph",
    "fuse.davfs2",
    "fuse.gvfsd-fuse",
    "fuse.glusterfs",
    "fuse.rclone",
    "fuse.s3fs",
    "fuse.smbnetfs",
    "fuse.sshfs",
    "gfs2",
    "glusterfs",
    "lustre",
    "ncpfs",
    "nfs",
    "nfs3",
    "nfs4",
    "ocfs2",
    "smb2",
    "smb3",
    "smbfs",
    "virtiofs",
    "webdav",
};

} // namespace

QByteArray NxFileSystemKind::typeOf(const QString &path)
{
    return QStorageInfo(path).fileSystemType();
}

bool NxFileSystemKind::isNetwork(const QByteArray &type)
{
    const QByteArray name = type.toLower();
    return std::any_of(std::begin(NetworkTypes), std::end(NetworkTypes),
                       [&name](const char *network) { return name == network; });
}
