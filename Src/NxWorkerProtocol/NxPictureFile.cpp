// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPictureFile.h>

namespace {

/// Raised when a picture of that kind is made in another way.
constexpr int MadeInWay[] = {1, 1};
constexpr const char *Words[] = {"cover", "strip"};

QString hex(quint64 number)
{
    return QStringLiteral("%1").arg(number, 16, 16, QLatin1Char('0'));
}

} // namespace

QString NxPictureFile::name(const NxFingerprint &fingerprint, NxPictureKind kind)
{
    const QString contents = hex(fingerprint.high) + hex(fingerprint.low);
    return QStringLiteral("%1/%2-%3-%4-%5-%6.jpg")
        .arg(contents.left(2), contents)
        .arg(NxFingerprint::Version)
        .arg(fingerprint.size)
        .arg(QLatin1String(Words[size_t(kind)]))
        .arg(MadeInWay[size_t(kind)]);
}
