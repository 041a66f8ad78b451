// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Yard.h"

#include <Footage/NxFootageRecipe.h>

/// A project of real footage. While this lives, every program is started with a PATH that is
/// empty, so that the tools by which the footage was made are out of its reach, and with a cache
/// of its own, so that no earlier run has made its pictures.
class FootageYard
{
public:
    FootageYard();
    ~FootageYard();

    [[nodiscard]] const Yard &yard() const { return m_yard; }
    /// Imports one folder or file.
    [[nodiscard]] ProgramResult imported(const QString &path) const;
    /// What `info --json` tells of a file; the run must end with one of those codes and print one
    /// object, else the test function fails and this is empty.
    [[nodiscard]] QJsonObject info(const QString &path, const QVector<int> &codes = {0}) const;

    /// The programs named that PATH leads to.
    [[nodiscard]] static QStringList reachable(const QStringList &programs);

private:
    Q_DISABLE_COPY_MOVE(FootageYard)

    const QByteArray m_path;
    const QByteArray m_cacheHome;
    const Yard m_yard;
};
