// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>

#include <QStringList>

/// The words by which scripts choose how media are shown. A word that is none of them is an error
/// that names it and lists what there is.
namespace ViewWords {

[[nodiscard]] NxResult<NXMEDIALIBRARY::NxMediaItemViewSortBy> sortKey(const QString &word);
[[nodiscard]] NxResult<NXMEDIALIBRARY::NxMediaItemViewGroupBy> groupKey(const QString &word);
[[nodiscard]] NxResult<NXMEDIALIBRARY::NxMediaTypeFilter> type(const QString &word);
[[nodiscard]] NxResult<NXMEDIALIBRARY::NxMediaItemViewMode> view(const QString &word);
/// Categories have numbers for words: "0" to "10".
[[nodiscard]] NxResult<NXVBLMODEL::NxMediaCategoryType> category(const QString &word);

/// All words of a kind, in the order of their values.
[[nodiscard]] QStringList sortKeys();
[[nodiscard]] QStringList groupKeys();
[[nodiscard]] QStringList types();
[[nodiscard]] QStringList views();

} // namespace ViewWords
