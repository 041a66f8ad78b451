// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/pictures/NxPictureThreads.h>

#include <NxCore/NxDoorbell.h>

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QTimer>

class INxAbstractMedia;
class NxEngineMedia;
class NxFootageReader;
class NxProjectMemory;

/// The pictures of an open project for painters: answers from memory, and fetches what is not
/// there from the cache folder, or has it made. When it has come the observers are told that the
/// media's state changed. GUI thread only.
class NXVBLENGINE_TEST_EXPORT NxPictureService final : public QObject
{
    Q_OBJECT
public:
    struct Limits
    {
        int memoryKiB = 128 * 1024;
        qint64 folderBytes = 0; ///< 0: what NxPictureCache holds right.
    };

    /// Memory and reader must outlive the service.
    NxPictureService(NxProjectMemory *memory, NxFootageReader *reader, Limits limits);
    ~NxPictureService() override;

    /// The cover, fitted into `devicePixels`, or a null image.
    [[nodiscard]] QImage cover(INxAbstractMedia *media, const QSize &devicePixels);
    /// The film strip as it was made, or a null image.
    [[nodiscard]] QImage strip(INxAbstractMedia *media);
    /// What was asked for and did not come yet is not fetched.
    void cancelRequests();

private:
    [[nodiscard]] QImage picture(INxAbstractMedia *media, NxPictureKind kind, const QSize &size);
    void takeResults();
    void take(const NxPictureThreads::Result &result);
    void tell(qint64 media);
    void trimFolder();

    NxProjectMemory *const m_memory; // Not owned, as the reader is not.
    NxFootageReader *const m_reader;
    const Limits m_limits;
    QCache<NxPictureKey, QImage> m_images; // By KiB.
    QHash<NxPictureKey, QSet<qint64>> m_awaited; // For which media.
    NxDoorbell m_bell;
    NxPictureThreads m_threads;
    int m_madeSinceTrim = 0;
};
