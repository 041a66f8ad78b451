// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QString>

#include <memory>

/// Memory that the editor and one worker both see. The editor makes it and hands it to the worker
/// that it starts; nobody else can reach it. Neither can make it smaller, so whatever a worker
/// does, reading it never fails. It is gone when both have let go of it.
class NxSharedMemory
{
    Q_DISABLE_COPY_MOVE(NxSharedMemory)
public:
    /// New memory of zeros; it takes none before it is written to.
    [[nodiscard]] static NxResult<std::unique_ptr<NxSharedMemory>> create(qint64 bytes);
    /// The memory that this process was started with. `name` is the name() that its maker said.
    /// Refused when it is smaller than that.
    [[nodiscard]] static NxResult<std::unique_ptr<NxSharedMemory>> attach(const QString &name,
                                                                          qint64 bytes);
    ~NxSharedMemory();

    /// What the worker is told on its command line.
    [[nodiscard]] QString name() const { return m_name; }
    /// Lets the process that calls it keep the memory when it becomes another program. Between
    /// fork and exec, where little else is allowed; nothing to do where the name is enough.
    void passOn() const;

    [[nodiscard]] uchar *bytes() const { return m_bytes; }
    [[nodiscard]] qint64 size() const { return m_size; }

private:
    NxSharedMemory(QString name, qintptr handle, uchar *bytes, qint64 size);

    const QString m_name;
    const qintptr m_handle; // Of the system; none after attach().
    uchar *const m_bytes;
    const qint64 m_size;
};
