// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/INxMediaItemFilter.h>

class NxKeywordMatcher;

/// The filter of every category that has none of its own: by type, then by keyword.
///
/// Nulls, group headers and tiles never pass: the model makes those rows itself afterwards. A
/// project template passes every type filter. A keyword is looked for anywhere in the name,
/// without regard to case; an empty one is in every name. Without settings all else passes.
class NXMEDIALIBRARY_EXPORT NxMediaItemFilter : public INxMediaItemFilter
{
public:
    void SetFilterParam(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter) override;
    void Filter(const QList<INxAbstractMedia *> &items,
                QList<INxAbstractMedia *> &out) const override;
    void Filter(const INxFolderMedia *folder, QList<INxAbstractMedia *> &out) const override;
    void Filter(const INxGroupMedia *group, QList<INxAbstractMedia *> &out) const override;

protected:
    /// Whether one media, never null, a header or a tile, is shown by these settings.
    [[nodiscard]] virtual bool accepts(const INxAbstractMedia *media,
                                       const NXMEDIALIBRARY::NxMediaItemViewFilter &filter,
                                       const NxKeywordMatcher &keyword) const;

    /// Whether a media is what a NxMediaTypeFilter asks for. The filters that only a service can
    /// tell, and unknown ones, let everything pass.
    [[nodiscard]] static bool passesType(const INxAbstractMedia *media, int typeFilter);

private:
    const NXMEDIALIBRARY::NxMediaItemViewFilter *m_filter = nullptr;
};
