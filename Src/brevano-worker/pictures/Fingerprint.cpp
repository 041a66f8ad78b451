// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/Fingerprint.h>

#include <brevano-worker/input/FootageFile.h>

#include <QCryptographicHash>
#include <QtEndian>

#include <vector>

namespace {

constexpr qint64 PieceBytes = 64 * 1024;
constexpr qint64 Pieces = 3;

std::vector<qint64> piecesOf(qint64 size)
{
    if (size > Pieces * PieceBytes)
        return {0, (size - PieceBytes) / 2, size - PieceBytes};
    std::vector<qint64> places;
    for (qint64 place = 0; place < size; place += PieceBytes)
        places.push_back(place);
    return places;
}

} // namespace

NxFingerprint fingerprintOf(const FootageFile &file)
{
    const qint64 size = file.size();
    QCryptographicHash hash(QCryptographicHash::Md5);
    QByteArray piece(int(PieceBytes), Qt::Uninitialized);
    for (const qint64 place : piecesOf(size)) {
        const qint64 wanted = std::min(PieceBytes, size - place);
        if (file.readAt(place, piece.data(), wanted) != wanted)
            return {};
        hash.addData(piece.constData(), int(wanted));
    }
    const QByteArray digest = hash.result();
    NxFingerprint fingerprint;
    fingerprint.size = size;
    fingerprint.high = qFromBigEndian<quint64>(digest.constData());
    fingerprint.low = qFromBigEndian<quint64>(digest.constData() + sizeof(quint64));
    return fingerprint;
}
