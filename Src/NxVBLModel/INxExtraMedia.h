// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>

/// A tile that stands among media without being one: "Import Media" (type 18) or "View More"
/// (type 19). Made and released through the two static functions.
class NXVBLMODEL_EXPORT INxExtraMedia : public INxAbstractMedia
{
public:
    ~INxExtraMedia() override;

    /// A tile that answers `type` as its media type and has no title yet.
    [[nodiscard]] static INxExtraMedia *createExtraMedia(NXVBLMODEL::NxMediaType type);
    /// Null is accepted.
    static void releaseExtraMedia(INxExtraMedia *tile);

    virtual void setTitle(const QString &title) = 0;
};
