// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/pictures/NxPictureKey.h>

#include <NxCore/NxDoorbellRope.h>
#include <NxCore/NxQueue.h>

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

/// Two threads that bring pictures from the cache folder into memory, scaled as painters need
/// them. Used from one thread.
class NXVBLENGINE_TEST_EXPORT NxPictureThreads
{
    Q_DISABLE_COPY_MOVE(NxPictureThreads)
public:
    struct Result
    {
        NxPictureKey key;
        QImage image; ///< Null: the file is gone, or is no picture any more.
    };
    using IsUnwanted = std::function<bool(const NxPictureKey &)>;

    /// `bell` is rung when results wait to be taken.
    explicit NxPictureThreads(NxDoorbellRope bell);
    /// Drops what waits, and waits for what is being done.
    ~NxPictureThreads();

    void load(const NxPictureKey &key, const QString &path);
    /// Runs anything that waits for a disk; it must bring its own way back.
    void run(std::function<void()> chore);
    /// Of what waits, the unwanted is not loaded; answers its keys. The rest keeps its order.
    [[nodiscard]] std::vector<NxPictureKey> dropWaiting(const IsUnwanted &isUnwanted);
    [[nodiscard]] std::vector<Result> take();

    /// The picture of a file, a cover fitted into `key.size` and never enlarged; null when there
    /// is none. A file that is no whole picture of this kind is removed: it hides that one is to
    /// be made.
    [[nodiscard]] static QImage loaded(const NxPictureKey &key, const QString &path);

private:
    struct Order
    {
        NxPictureKey key;
        QString path;
        std::function<void()> chore; // Set: this is done instead.
    };
    struct Shared
    {
        NxQueue<Order> orders;
        NxQueue<Result> results;
        NxDoorbellRope bell;
    };
    static void work(const std::shared_ptr<Shared> &shared);
    void start();

    const std::shared_ptr<Shared> m_shared;
    std::vector<std::thread> m_threads; // Started with the first order.
};
