// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxWorkerFrames.h>

#include <QtEndian>

namespace {

constexpr int LengthBytes = 4;
constexpr int HeadBytes = LengthBytes + 1;

} // namespace

QByteArray NxWorkerFrames::framed(NxWorkerWord word, const QByteArray &bytes)
{
    QByteArray frame(HeadBytes, '\0');
    qToLittleEndian(quint32(bytes.size()), frame.data());
    frame[LengthBytes] = char(word);
    return frame + bytes;
}

std::optional<NxWorkerFrames::Frame> NxWorkerFrames::take()
{
    if (m_broken || m_bytes.size() < HeadBytes)
        return std::nullopt;
    const quint32 length = qFromLittleEndian<quint32>(m_bytes.constData());
    const quint8 word = quint8(m_bytes.at(LengthBytes));
    const bool isWord =
        word >= quint8(NxWorkerWord::Hello) && word <= quint8(NxWorkerWord::PreviewRested);
    if (!isWord || length > NxWorkerProtocol::LongestMessage) {
        m_broken = true;
        return std::nullopt;
    }
    if (quint32(m_bytes.size() - HeadBytes) < length)
        return std::nullopt;
    Frame frame{NxWorkerWord(word), m_bytes.mid(HeadBytes, int(length))};
    m_bytes.remove(0, HeadBytes + int(length));
    return frame;
}
