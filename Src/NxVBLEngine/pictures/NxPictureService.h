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

#include <functional>

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
    /// Tells those apart who ask, so that one gives up nothing that another one waits for. Never
    /// looked into.
    using Asker = const void *;
    using Teller = std::function<void(INxAbstractMedia *)>;

    /// Memory and reader must outlive the service.
    NxPictureService(NxProjectMemory *memory, NxFootageReader *reader, Limits limits);
    ~NxPictureService() override;

    /// The cover, fitted into `devicePixels`, or a null image.
    [[nodiscard]] QImage cover(Asker asker, INxAbstractMedia *media, const QSize &devicePixels);
    /// The film strip as it was made, or a null image.
    [[nodiscard]] QImage strip(Asker asker, INxAbstractMedia *media);
    /// What nobody but the asker waits for, and did not come yet, is not fetched.
    void cancelRequests(Asker asker);
    /// Is told of each picture that this asker waits for, when it has come. May do anything, even
    /// close the project. An empty one is forgotten.
    void setTeller(Asker asker, Teller teller);

private:
    /// Who waits for a picture that is being fetched.
    struct Awaited
    {
        [[nodiscard]] bool isWanted() const;

        QHash<qint64, QSet<Asker>> askers; // By media; none is left of those that gave up.
        qint64 madeAgainFor = 0; // The media for which it was made again before it was ordered.
    };

    [[nodiscard]] QImage picture(Asker asker, INxAbstractMedia *item, const NxPictureKey &asked);
    void order(const NxPictureKey &key, const NxEngineMedia *media, Awaited *awaited);
    void takeResults();
    void take(const NxPictureThreads::Result &result);
    void keep(const NxPictureThreads::Result &result);
    void noteLoss(const NxPictureKey &key, const Awaited &awaited);
    void noteLoss(NxEngineMedia *media, NxPictureKind kind, bool isForGood);
    [[nodiscard]] NxEngineMedia *stillWaiting(qint64 id, const NxPictureKey &key) const;
    void tell(qint64 id, const NxPictureKey &key, const QSet<Asker> &askers);
    void tell(NxEngineMedia *media);
    void trimFolder();

    NxProjectMemory *const m_memory; // Not owned, as the reader is not.
    NxFootageReader *const m_reader;
    const Limits m_limits;
    QCache<NxPictureKey, QImage> m_images; // By KiB.
    QHash<NxPictureKey, Awaited> m_awaited;
    QHash<Asker, Teller> m_tellers;
    QHash<NxPictureKey, QSet<qint64>> m_lost; // Media whose picture was gone: it is made again.
    NxDoorbell m_bell;
    NxPictureThreads m_threads;
    int m_madeSinceTrim = 0;
};
