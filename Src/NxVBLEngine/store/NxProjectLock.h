// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QLockFile>
#include <QString>

/// The right to write a project: a file beside it that names who has it.
///
/// Given back by the destructor. The lock of a process that has died on this computer is taken
/// over.
class NXVBLENGINE_TEST_EXPORT NxProjectLock
{
public:
    enum class Answer {
        Ours,
        Taken, ///< Another window or process holds it.
        Impossible, ///< The file cannot be made.
    };

    explicit NxProjectLock(const QString &projectPath);

    /// Never waits for a living holder.
    [[nodiscard]] Answer tryLock();
    void release() { m_file.unlock(); }
    /// Why it is impossible, as part of a sentence.
    [[nodiscard]] QString impossibleText() const;
    /// Who holds it, as part of a sentence: "is open in another window (process 7 on host a)".
    [[nodiscard]] QString holderText() const;

    [[nodiscard]] static QString pathFor(const QString &projectPath);

private:
    const QString m_path;
    QLockFile m_file;
};
