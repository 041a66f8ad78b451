// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <memory>

struct NxFullDiskVfsState;

/// An SQLite file layer whose disk becomes full at a chosen write.
///
/// Everything else goes to the system's layer, but for telling the disk itself to write, which is
/// only counted. Every object is a layer and a disk of its own; all
/// databases opened through it must be closed before it dies. Counters may be read on any thread.
class NxFullDiskVfs
{
public:
    enum class Then {
        FullForGood, ///< Every later write fails, too.
        RoomAgain, ///< Only that one write fails.
    };

    NxFullDiskVfs();
    ~NxFullDiskVfs();

    /// To be given to SQLite, or to a store as its file layer.
    [[nodiscard]] const char *name() const;

    /// The n-th write from now on, counted from 1, finds the disk full; 0 for none.
    void fillAtWrite(int n, Then then = Then::FullForGood);

    /// Every write waits from now on, until the same thread calls letGo().
    void hold();
    void letGo();

    /// Writes since the last fillAtWrite(), the failed ones included.
    [[nodiscard]] int writes() const;
    /// How many of them found the disk full.
    [[nodiscard]] int refusedWrites() const;
    /// How often a file was to reach the disk itself.
    [[nodiscard]] int syncs() const;

private:
    Q_DISABLE_COPY_MOVE(NxFullDiskVfs)

    const std::unique_ptr<NxFullDiskVfsState> d;
};
