// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDataStream>

/// The form in which messages and stored facts are written as bytes.
namespace NxMessageForm {

constexpr auto Version = QDataStream::Qt_5_15;

/// What `write` puts into a stream.
template<typename Write>
[[nodiscard]] QByteArray written(Write write)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(Version);
    write(out);
    return bytes;
}

/// True when `read` took all of the bytes and no more.
template<typename Read>
[[nodiscard]] bool wasRead(const QByteArray &bytes, Read read)
{
    QDataStream in(bytes);
    in.setVersion(Version);
    read(in);
    return in.status() == QDataStream::Ok && in.atEnd();
}

} // namespace NxMessageForm
