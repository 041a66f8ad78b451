// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "SilentMount.h"

#include <QFile>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

SilentMount::SilentMount(const QString &folder)
    : m_folder(QFile::encodeName(folder)), m_device(::open("/dev/fuse", O_RDWR | O_CLOEXEC))
{
    if (m_device < 0)
        return;
    // Nobody ever reads the device, so no request is ever answered.
    const QByteArray options =
        "fd=" + QByteArray::number(m_device) + ",rootmode=40000,user_id=0,group_id=0";
    m_mounted = ::mount("silent", m_folder.constData(), "fuse", MS_NOSUID | MS_NODEV,
                        options.constData())
                == 0;
}

SilentMount::~SilentMount()
{
    if (m_device >= 0)
        ::close(m_device); // Ends every request that waits.
    if (m_mounted)
        ::umount2(m_folder.constData(), MNT_DETACH);
}
