// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/reading/NxWorkerSettings.h>
#include <NxWorkerProtocol/NxFootageFacts.h>

#include <NxCore/NxDoorbell.h>

#include <QHash>
#include <QString>

#include <memory>

class NxReadingThread;

/// How long the footage in a file is, whether a project holds it or not: frames at its own rate,
/// sound in hundredths of a second, as INxMediaInfo::duration() tells it.
///
/// Has workers of its own, so it answers while nothing else is read. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxFileLength
{
    Q_DISABLE_COPY_MOVE(NxFileLength)
public:
    /// When there is no length.
    static constexpr qint64 None = -1;

    explicit NxFileLength(NxWorkerSettings settings);
    /// Whoever waits in read() gets None.
    ~NxFileLength();

    /// Has the file read and waits for the answer in an event loop that leaves user input alone,
    /// for no longer than workers are given. None when the file cannot be read. Whatever the event
    /// loop brings may read other files, or destroy this object.
    [[nodiscard]] qint64 read(const QString &path);

    /// The length that was found in a file; None when nothing was.
    [[nodiscard]] static qint64 of(const NxFootageFacts &facts);

private:
    struct Wait;

    void hear();

    const NxWorkerSettings m_settings;
    NxDoorbell m_bell;
    QHash<quint64, std::shared_ptr<Wait>> m_waits; // By the number of the request.
    quint64 m_lastNumber = 0;
    std::unique_ptr<NxReadingThread> m_thread; // Made with the first file.
};
