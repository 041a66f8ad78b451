// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/INxAppInfo.h>

#include <QTemporaryDir>

/// While it lives the program has settings of its own, in which everything is as at its very first
/// start: nothing is read from the user's, and nothing that changes reaches them. No window and no
/// presenter may live longer. GUI thread only.
class BorrowedSettings final : private INxAppInfo
{
public:
    BorrowedSettings();
    ~BorrowedSettings() override;

private:
    Q_DISABLE_COPY_MOVE(BorrowedSettings)
    [[nodiscard]] QString getDirectory(int pathKind) override;

    INxAppInfo *const m_usual; // Not owned.
    const QTemporaryDir m_folder;
};
