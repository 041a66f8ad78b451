// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Footage/NxFootageRecipe.h>

#include <QJsonObject>
#include <QStringList>

/// What `info --json` must tell of a file of the footage.
namespace ExpectedInfo {

/// Every key that it prints, in their order.
[[nodiscard]] QStringList keys();
/// The values that follow from the recipe and from the file, which lies at `path`. Keys whose
/// value does not follow, such as the fingerprint, are left out.
[[nodiscard]] QJsonObject of(const NxFootageRecipe &recipe, const QString &path);
/// What is otherwise than expected, one line for each key; empty when nothing is. The length of
/// lossy sound may differ by what the recipe allows.
[[nodiscard]] QStringList differences(const NxFootageRecipe &recipe, const QString &path,
                                      const QJsonObject &info);

} // namespace ExpectedInfo
